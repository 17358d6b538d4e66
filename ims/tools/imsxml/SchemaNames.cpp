#include "SchemaNames.h"

#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <typeinfo>

#include "Schema.h"
#include "XmlClass.h"

namespace {

#define ROW(enumerator) \
    { enumerator, #enumerator }

/// Enumerators leave no trace in the library.
constexpr std::pair<eXMLSchemaID, const char*> kEnumerators[] = {
    ROW(IX_XML_SCHEMA_IS_COMPOSING),
    ROW(IX_XML_SCHEMA_RESOURCE_LISTS),
    ROW(IX_XML_SCHEMA_CONFERENCE_INFO),
    ROW(IX_XML_SCHEMA_IMDN),
    ROW(IX_XML_SCHEMA_COMMUNICATION_WAITING),
    ROW(IX_XML_SCHEMA_OIP),
    ROW(IX_XML_SCHEMA_TIP),
    ROW(IX_XML_SCHEMA_COMMUNICATION_DIVERSION),
    ROW(IX_XML_SCHEMA_COMMUNICATION_BARRING),
    ROW(IX_XML_SCHEMA_SIMSERVS),
    ROW(IX_XML_SCHEMA_XCAP_ERROR),
    ROW(IX_XML_SCHEMA_WAP_PROVISIONING_DOC),
    ROW(IX_XML_SCHEMA_VOLTE_CONFIG_INFO),
    ROW(IX_XML_SCHEMA_PRESENCE),
    ROW(IX_XML_SCHEMA_RLS_SERVICES),
    ROW(IX_XML_SCHEMA_LIST),
    ROW(IX_XML_SCHEMA_XCAP_DIRECTORY),
    ROW(IX_XML_SCHEMA_FILE),
    ROW(IX_XML_SCHEMA_MEDIA_CONTROL),
    ROW(IX_XML_SCHEMA_CALL_WAITING_INDICATION),
    ROW(IX_XML_SCHEMA_CW_INDICATION),
    ROW(IX_XML_SCHEMA_RCS_TERMS_INFO),
    ROW(IX_XML_SCHEMA_BOOTSTRAPPING_INFO),
    ROW(IX_XML_SCHEMA_GRUU),
    ROW(IX_XML_SCHEMA_REGINFO),
    ROW(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL),
};

#undef ROW

/// The class of an object as C++ has it. What `ClassName` answers is not always that.
template <class Object>
std::string TypeOf(const Object* object) {
    if (object == nullptr) return "";
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(*object).name(), nullptr, nullptr, &status), std::free);
    return name != nullptr ? name.get() : "";
}

}  // namespace

std::vector<std::pair<std::string, std::string>> NamesInPrograms(const XmlSchemaInfo& schema) {
    std::vector<std::pair<std::string, std::string>> names;
    // The sources of a schema's own classes are named after its header.
    const std::string source = schema.classes[0]->source;
    names.emplace_back("header", source.substr(source.rfind('/') + 1) + ".h");
    for (const auto& [id, enumerator] : kEnumerators) {
        if (id == schema.id) names.emplace_back("enumerator", enumerator);
    }
    // Of the described classes the roots come first.
    const std::size_t roots = std::max<std::size_t>(RootsOf(schema).size(), 1);
    for (std::size_t i = 0; i < roots && schema.classes[i] != nullptr; ++i) {
        const XmlOwned<> root(schema.classes[i]->create(schema.classes[i]->source, 0));
        names.emplace_back("class", TypeOf(root.get()));
    }
    const XmlOwnedContext context(schema.create());
    if (context != nullptr) names.emplace_back("factory", TypeOf(context->createBinderFactory()));
    return names;
}

std::string DescribeSchemas() {
    std::string text;
    for (const XmlSchemaInfo* schema : SchemaInfos()) {
        const auto add = [&text](const std::string& what, const std::string& value) {
            constexpr std::size_t kWidth = 12;
            text.append("  ").append(what).append(kWidth - what.size(), ' ').append(value).append("\n");
        };
        text += std::string(text.empty() ? "" : "\n") + schema->name + " (" + std::to_string(schema->id) + ")\n";
        add("access", schema->writes ? "read/write" : "read");
        add("namespace", *schema->namespaceUri != '\0' ? schema->namespaceUri : "-");
        add("types", *schema->contentTypes != '\0' ? schema->contentTypes : "-");
        add("roots", schema->rootElements);
        for (const auto& [what, name] : NamesInPrograms(*schema)) add(what, name);
    }
    return text;
}
