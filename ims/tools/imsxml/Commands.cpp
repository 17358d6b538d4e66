#include "Commands.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "Diagnosis.h"
#include "Json.h"
#include "Library.h"
#include "Outline.h"
#include "Scanner.h"
#include "Schema.h"
#include "Text.h"
#include "XMLSchemaNameSpaceRetrieval.h"

namespace {

void Warn(const Document& document, const std::string& message) {
    std::fprintf(stderr, "%s: warning: %s\n", document.name.c_str(), message.c_str());
}

/// A document and what decoded it. The members go in reverse order: the context uses the binder.
struct Decoded {
    const XmlSchemaInfo* schema = nullptr;
    XmlOwned<> binder;
    XmlOwnedContext context;
    XmlOwned<> root;
};

XmlOwnedContext NewContext(const XmlSchemaInfo& schema, eXMLProfile profile = IX_XML_PROFILE_DEVICE) {
    XmlOwnedContext context(XMLFactory::newInstance(schema.id, profile));
    if (context == nullptr && profile == IX_XML_PROFILE_STANDARD) {
        throw DocumentError{kNotDecoded, std::string("schema ") + schema.name + " has no standard profile"};
    }
    if (context == nullptr) throw DocumentError{kNotDecoded, "no memory for the context"};
    return context;
}

XmlOwned<> UnMarshall(XMLContext& context, const Document& document, bool log) {
    constexpr unsigned kResults = 1U << 2U;
    const LogWatch watch(log, log ? kIxDplHostAllLevels : kResults);
    XMLUnMarshaller* const unMarshaller = context.createUnMarshaller();
    XmlOwned<> root(unMarshaller != nullptr ? unMarshaller->UnMarshall(document.text.c_str()) : nullptr);
    if (root != nullptr && watch.IsTooDeep()) {
        Warn(document,
             "nested too deep: 100 elements are under construction at a time; what lies deeper is filed in another "
             "element or lost");
    }
    return root;
}

std::string PlaceOf(const XmlProblem& problem) {
    return problem.line != 0 ? std::to_string(problem.line) + ':' + std::to_string(problem.column) : "";
}

/// The same in the standard profile, which says what is wrong.
XmlOwned<> UnMarshallStandard(XMLContext& context, const Document& document, bool log) {
    const LogWatch watch(log);
    XMLUnMarshaller* const unMarshaller = context.createUnMarshaller();
    if (unMarshaller == nullptr) throw DocumentError{kNotDecoded, "no memory"};
    XmlOwned<> root(unMarshaller->UnMarshall(document.text.data(), document.text.size()));
    if (root != nullptr) return root;
    const XmlProblem problem = *unMarshaller->Problem();
    throw DocumentError{kNotDecoded, problem.text, kNoOffset, PlaceOf(problem)};
}

/// The declarations of a document; not decoded: NULL.
XmlOwned<> DecodeNamespaces(const Document& document, bool log) {
    const XmlOwnedContext context = NewContext(*XMLFactory::SchemaInfo(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL));
    return UnMarshall(*context, document, log);
}

const XmlSchemaInfo& FindSchema(const Document& document) {
    Scanner scanner(document.text);
    if (!scanner.FindRoot()) throw Diagnose(document);
    return SchemaOf(scanner);
}

Decoded Decode(const Document& document, const Options& options) {
    Decoded result;
    if (options.profile == IX_XML_PROFILE_STANDARD) {
        result.schema = options.schema != nullptr ? options.schema : &StandardSchemaOf(document.text);
        result.context = NewContext(*result.schema, options.profile);
        result.root = UnMarshallStandard(*result.context, document, options.log);
        return result;
    }
    result.schema = options.schema != nullptr ? options.schema : &FindSchema(document);
    result.context = NewContext(*result.schema);
    if (options.binder && result.schema->takesBinder) {
        result.binder = DecodeNamespaces(document, options.log);
        if (result.binder == nullptr) throw Diagnose(document);
        result.context->SetNamespaceBinder(static_cast<XMLObject*>(result.binder.get()));
    }
    result.root = UnMarshall(*result.context, document, options.log);
    if (result.root == nullptr) throw Diagnose(document, *result.schema, result.binder != nullptr);
    return result;
}

std::string MarshallText(const Decoded& decoded, const Document& document, const Options& options) {
    const bool isDevice = options.profile == IX_XML_PROFILE_DEVICE;
    const std::string name = decoded.schema->name;
    XMLMarshaller* const marshaller = decoded.context->createMarshaller();
    if (marshaller == nullptr) throw DocumentError{kNotMarshalled, "documents of schema " + name + " are only read"};
    const char* text = nullptr;
    std::string reason;
    {
        const LogWatch watch(options.log);
        text = marshaller->Marshall(decoded.root.get());
        reason = watch.Reason();
    }
    const XmlProblem* const problem = marshaller->Problem();
    if (text == nullptr) {
        if (problem != nullptr) reason = problem->text;
        if (reason.empty()) reason = "the library does not say why";
        throw DocumentError{kNotMarshalled, "schema " + name + " cannot write the document: " + reason};
    }
    std::string written = text;
    if (marshaller->IsTruncated() != 0) {
        Warn(document, "the text was cut at 32767 characters");
    } else if (isDevice && !Scanner(written).FindEnd()) {
        // Elements stay open where something mandatory is missing in them.
        Warn(document, "the written text is not well-formed" + (reason.empty() ? "" : ": " + reason));
    }
    return written;
}

bool HasColour(Colour colour) {
    if (colour != Colour::Auto) return colour == Colour::Always;
    const char* const none = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    if (none != nullptr && *none != '\0') return false;
    if (terminal != nullptr && std::strcmp(terminal, "dumb") == 0) return false;
    return isatty(STDOUT_FILENO) == 1;
}

std::string PrefixOf(const ix_AttributeValuePair& declaration) {
    return declaration.mName != nullptr ? std::string(TrimEnd(WithBlanks(declaration.mName))) : "(default)";
}

}  // namespace

std::string DecodeDocument(const Document& document, const Options& options, const Progress& /*progress*/) {
    const Decoded decoded = Decode(document, options);
    const Json root = ToJson(*decoded.root);
    bool replaced = false;
    std::string text;
    if (options.tree) {
        Outline outline(HasColour(options.colour));
        if (options.HasManyFiles()) outline.AddTitle(document.name, decoded.schema->name);
        outline.AddTree(root);
        text = outline.Text();
        replaced = outline.HasReplaced();
    } else {
        const Json whole = {{"schema", decoded.schema->name}, {"file", document.name}, {"root", root}};
        text = ToText(whole, options.HasManyFiles() ? -1 : 2, replaced) + '\n';
    }
    if (replaced) Warn(document, "bytes that are not UTF-8 were replaced");
    return text;
}

std::string ConvertDocument(const Document& document, const Options& options, const Progress& progress) {
    const Decoded decoded = Decode(document, options);
    progress.Enter(Stage::Writing);
    return MarshallText(decoded, document, options);
}

std::string ListNamespaces(const Document& document, const Options& options, const Progress& /*progress*/) {
    XmlOwned<> root;
    if (options.profile == IX_XML_PROFILE_STANDARD) {
        const XmlSchemaInfo& schema = *XMLFactory::SchemaInfo(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL);
        root = UnMarshallStandard(*NewContext(schema, options.profile), document, options.log);
    } else {
        root = DecodeNamespaces(document, options.log);
    }
    if (root == nullptr) throw Diagnose(document);
    const IxSingleElementList* const list = static_cast<ix_schema_namespace_retrieval&>(*root).getNameSpaceInfo();
    std::string text;
    for (const auto* pair : XmlEntries<ix_AttributeValuePair>(list)) {
        if (options.HasManyFiles()) text += document.name + '\t';
        // White space in an attribute stands for blanks, which also keeps a declaration on its line.
        text += PrefixOf(*pair) + '\t' + WithBlanks(pair->mValue != nullptr ? pair->mValue : "") + '\n';
    }
    return text;
}

std::string ValidateDocument(const Document& document, const Options& options, const Progress& /*progress*/) {
    const XmlSchemaInfo& schema = options.schema != nullptr ? *options.schema : StandardSchemaOf(document.text);
    std::vector<DocumentError> found;
    const int count = XMLFactory::Validate(
        schema.id, document.text.data(), document.text.size(),
        [](const XmlProblem& problem, void* context) {
            const std::string text = WithoutControls(problem.text);
            static_cast<std::vector<DocumentError>*>(context)->push_back(
                {kNotDecoded, text, kNoOffset, PlaceOf(problem)});
        },
        &found);
    if (count == 0) return document.name + ": valid\n";
    // The last one goes the way of all errors.
    for (std::size_t i = 0; i + 1 < found.size(); ++i) {
        std::fprintf(stderr, "%s\n", document.Describe(found[i]).c_str());
    }
    throw DocumentError(found.back());
}

std::string ListSchemas() {
    std::vector<std::vector<std::string>> rows = {{"NUMBER", "NAME", "ACCESS", "NAMESPACE", "ROOT ELEMENTS"}};
    for (const XmlSchemaInfo* schema : AllSchemas()) {
        rows.push_back({std::to_string(schema->id), schema->name, schema->writes ? "read/write" : "read",
                        *schema->namespaceUri != '\0' ? schema->namespaceUri : "-", schema->rootElements});
    }
    std::vector<std::size_t> widths(rows[0].size());
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    std::string text;
    for (const auto& row : rows) {
        for (std::size_t i = 0; i + 1 < row.size(); ++i)
            text += row[i] + std::string(widths[i] - row[i].size() + 2, ' ');
        text += row.back() + '\n';
    }
    return text;
}
