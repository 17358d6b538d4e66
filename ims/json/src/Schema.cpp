#include "Schema.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "Text.h"
#include "XmlElementSupport.h"

namespace {

constexpr std::string_view kRuleParts[] = {"ruleset", "rule",    "conditions",     "identity",
                                           "one",     "many",    "except",         "validity",
                                           "sphere",  "actions", "transformations"};
constexpr char kRuleNamespace[] = "urn:ietf:params:xml:ns:common-policy";

[[noreturn]] void RefuseRoot(const std::string& root, std::size_t offset) {
    const std::string_view local = std::string_view(root).substr(root.rfind(':') + 1);
    std::vector<Candidate> candidates;
    for (const XmlSchemaInfo* schema : SchemaInfos()) {
        for (const std::string_view name : RootsOf(*schema)) {
            candidates.emplace_back(name, std::string(schema->name) + " (<" + std::string(name) + ">)");
        }
    }
    throw DocumentError{
        kNotDecoded, "root element " + TagText(root) + " is of no schema; the nearest: " + Nearest(local, candidates),
        offset};
}

/// The schema of a document that is a part of a rule. What the rule does tells the two services apart: barring allows,
/// diversion forwards. A part that says neither is the same in both.
const XmlSchemaInfo& SchemaOfRule(Scanner& scanner) {
    const bool allows = scanner.FindElement("allow");
    return *XMLFactory::SchemaInfo(allows ? IX_XML_SCHEMA_COMMUNICATION_BARRING
                                          : IX_XML_SCHEMA_COMMUNICATION_DIVERSION);
}

/// Adds a class, and those that its rows lead to.
void Collect(const XmlClass* description, std::vector<const XmlClass*>& classes) {
    if (description == nullptr || std::find(classes.begin(), classes.end(), description) != classes.end()) return;
    classes.push_back(description);
    for (const XmlFieldTable* table = &description->table; table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            const XmlField& row = table->fields[i];
            Collect(row.description, classes);
            for (std::size_t at = 0; at < row.entryCount; ++at) Collect(row.entries[at].description, classes);
        }
    }
}

}  // namespace

std::vector<const XmlSchemaInfo*> SchemaInfos() {
    std::vector<const XmlSchemaInfo*> schemas;
    for (int id = 0; id < kXmlSchemaCount; ++id) {
        const XmlSchemaInfo* const schema = XMLFactory::SchemaInfo(id);
        if (schema != nullptr) schemas.push_back(schema);
    }
    return schemas;
}

std::vector<std::string_view> RootsOf(const XmlSchemaInfo& schema) {
    std::vector<std::string_view> roots;
    if (std::strcmp(schema.rootElements, "*") == 0) return roots;
    std::string_view rest = schema.rootElements;
    while (!rest.empty()) {
        const std::string_view root = rest.substr(0, rest.find(' '));
        roots.push_back(root);
        rest.remove_prefix(std::min(rest.size(), root.size() + 1));
    }
    return roots;
}

const XmlSchemaInfo* FindSchema(std::string_view name) {
    for (const XmlSchemaInfo* schema : SchemaInfos()) {
        if (name == schema->name) return schema;
    }
    return nullptr;
}

std::string NoSchema(std::string_view name) {
    std::vector<Candidate> candidates;
    for (const XmlSchemaInfo* schema : SchemaInfos()) candidates.emplace_back(schema->name, schema->name);
    return "no schema has the name " + QuotedText(name) + "; the nearest: " + Nearest(name, candidates);
}

const XmlSchemaInfo& SchemaByName(const std::string& name) {
    const XmlSchemaInfo* const schema = FindSchema(name);
    if (schema == nullptr) throw DocumentError{kWrongUsage, NoSchema(name)};
    return *schema;
}

const XmlSchemaInfo& SchemaByContentType(const std::string& type) {
    const int id = XMLFactory::SchemaForContentType(type.c_str());
    if (id < 0) throw DocumentError{kWrongUsage, "no schema has the content type " + QuotedText(type)};
    return *XMLFactory::SchemaInfo(id);
}

std::vector<const XmlClass*> ClassesOf(const XmlSchemaInfo& schema) {
    std::vector<const XmlClass*> classes;
    for (const XmlClass* const* known = schema.classes; *known != nullptr; ++known) Collect(*known, classes);
    for (const XmlNamedClass* part = schema.parts; part != nullptr; ++part) {
        if (part->description == nullptr) break;
        Collect(part->description, classes);
    }
    for (const XmlClass* const generic : {&ix_string::kClass, &ix_empty_element_type::kClass}) {
        Collect(generic, classes);
    }
    return classes;
}

std::vector<const XmlClass*> RootClassesOf(const XmlSchemaInfo& schema, eXMLProfile profile) {
    if (schema.parts != nullptr && profile == IX_XML_PROFILE_DEVICE) return ClassesOf(schema);
    const std::size_t count = std::max(RootsOf(schema).size(), std::size_t{1});
    std::vector<const XmlClass*> classes(schema.classes, schema.classes + count);
    for (const XmlNamedClass* part = schema.parts; part != nullptr && part->description != nullptr; ++part) {
        classes.push_back(part->description);
    }
    return classes;
}

bool IsRulePart(std::string_view local) {
    return std::find(std::begin(kRuleParts), std::end(kRuleParts), local) != std::end(kRuleParts);
}

bool TakesRoot(const XmlSchemaInfo& schema, std::string_view local) {
    const std::vector<std::string_view> roots = RootsOf(schema);
    const bool hasRules =
        schema.id == IX_XML_SCHEMA_COMMUNICATION_DIVERSION || schema.id == IX_XML_SCHEMA_COMMUNICATION_BARRING;
    return roots.empty() || (hasRules && IsRulePart(local)) ||
           std::find(roots.begin(), roots.end(), local) != roots.end();
}

const XmlSchemaInfo* SchemaWithRoot(std::string_view local) {
    for (const XmlSchemaInfo* schema : SchemaInfos()) {
        if (!RootsOf(*schema).empty() && TakesRoot(*schema, local)) return schema;
    }
    return nullptr;
}

std::string NamespaceFault(const RootElement& root, const XmlSchemaInfo& schema) {
    const std::string_view expected = IsRulePart(root.Local()) ? kRuleNamespace : schema.namespaceUri;
    const std::string uri = root.Namespace().value_or("");
    // Some senders take the default namespace away (xmlns=""); that says as little as no declaration.
    if (uri.empty() || expected.empty() || uri == expected) return "";
    return "is of namespace " + QuotedText(uri) + ", not of " + QuotedText(expected) + " as in schema " + schema.name;
}

const XmlSchemaInfo& StandardSchemaOf(const std::string& text) {
    // Behind declarations, comments and a document type, none of which has an element in it.
    std::size_t at = text.find('<');
    while (at != std::string::npos && at + 1 < text.size() && (text[at + 1] == '?' || text[at + 1] == '!')) {
        const std::string_view rest = std::string_view(text).substr(at);
        const char* const end = Begins(rest, "<!--") ? "-->" : Begins(rest, "<?") ? "?>" : ">";
        at = text.find('<', std::min(text.find(end, at), text.size()));
    }
    const std::string_view tag = at != std::string::npos ? std::string_view(text).substr(at + 1) : std::string_view();
    const std::string_view name = tag.substr(0, tag.find_first_of(" \t\r\n/><"));
    const std::string_view local = name.substr(name.rfind(':') + 1);
    if (local.empty()) return *XMLFactory::SchemaInfo(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL);
    const bool allows = IsRulePart(local) && Has(text, "allow");
    const XmlSchemaInfo* const schema =
        allows ? XMLFactory::SchemaInfo(IX_XML_SCHEMA_COMMUNICATION_BARRING) : SchemaWithRoot(local);
    if (schema == nullptr) RefuseRoot(std::string(name), at);
    return *schema;
}

const XmlSchemaInfo& SchemaOf(Scanner& scanner) {
    const RootElement root = *scanner.Root();
    const XmlSchemaInfo* const schema =
        IsRulePart(root.Local()) ? &SchemaOfRule(scanner) : SchemaWithRoot(root.Local());
    if (schema == nullptr) RefuseRoot(std::string(root.name), root.offset);
    const std::string fault = NamespaceFault(root, *schema);
    if (!fault.empty())
        throw DocumentError{kNotDecoded, "root element " + TagText(root.name) + ' ' + fault, root.offset};
    return *schema;
}
