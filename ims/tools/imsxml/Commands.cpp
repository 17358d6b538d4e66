#include "Commands.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <utility>

#include "Diagnosis.h"
#include "Infoset.h"
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

XmlOwned<> UnMarshall(XMLContext& context, const Document& document, LogLines log) {
    constexpr unsigned kResults = 1U << 2U;
    const LogWatch watch(log, kResults);
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
XmlOwned<> UnMarshallStandard(XMLContext& context, const Document& document, LogLines log) {
    const LogWatch watch(log);
    XMLUnMarshaller* const unMarshaller = context.createUnMarshaller();
    if (unMarshaller == nullptr) throw DocumentError{kNotDecoded, "no memory"};
    XmlOwned<> root(unMarshaller->UnMarshall(document.text.data(), document.text.size()));
    if (root != nullptr) return root;
    const XmlProblem problem = *unMarshaller->Problem();
    throw DocumentError{kNotDecoded, problem.text, kNoOffset, PlaceOf(problem)};
}

/// The declarations of a document; not decoded: NULL.
XmlOwned<> DecodeNamespaces(const Document& document, LogLines log) {
    const XmlOwnedContext context = NewContext(*XMLFactory::SchemaInfo(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL));
    return UnMarshall(*context, document, log);
}

const XmlSchemaInfo& FindSchema(const Document& document) {
    Scanner scanner(document.text);
    if (!scanner.FindRoot()) throw Diagnose(document);
    return SchemaOf(scanner);
}

void AddBinder(Decoded& decoded, const Document& document, LogLines log) {
    decoded.binder = DecodeNamespaces(document, log);
    if (decoded.binder == nullptr) throw Diagnose(document);
    decoded.context->SetNamespaceBinder(static_cast<XMLObject*>(decoded.binder.get()));
}

/// True when more than an empty root is read of a document with its own declarations.
bool BinderHelps(const XmlSchemaInfo& schema, const Document& document) {
    Decoded decoded;
    decoded.context = NewContext(schema);
    AddBinder(decoded, document, kNoLines);
    decoded.root = UnMarshall(*decoded.context, document, kNoLines);
    return decoded.root != nullptr && ToJson(*decoded.root).size() > 1;
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
    if (options.binder && result.schema->takesBinder) AddBinder(result, document, options.log);
    result.root = UnMarshall(*result.context, document, options.log);
    if (result.root == nullptr) {
        throw Diagnose(document, *result.schema,
                       [&] { return !options.binder && BinderHelps(*result.schema, document); });
    }
    return result;
}

/// What the library wrote for a document.
struct Written {
    std::string text;
    std::optional<InfoElement> infoset;  ///< None: the text is no XML.
    std::string fault;                   ///< What is wrong with the text; "": nothing.
};

/// @param reason what the library says of it; "": nothing.
Written Check(std::string text, bool isCut, const std::string& reason) {
    Written written{std::move(text), {}, isCut ? "the text was cut at 32767 characters" : ""};
    try {
        written.infoset = ReadInfoset(written.text);
    } catch (const DocumentError& error) {
        // Elements stay open where something mandatory is missing in them.
        const Document document{{}, written.text};
        written.fault += (isCut ? ", and" : "the written text") + std::string(" is not well-formed at ") +
                         document.PlaceOf(error.offset) + ": " + error.message +
                         (isCut || reason.empty() ? "" : "; " + reason);
    }
    return written;
}

Written MarshallText(const Decoded& decoded, const Options& options) {
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
    return Check(text, marshaller->IsTruncated() != 0, reason);
}

/// A line for each loss; none for a text that is no XML, which is its fault.
std::vector<std::string> LossesOf(const Document& document, Written& written) {
    if (!written.infoset) return {};
    try {
        return Differences(ReadInfoset(document.text), std::move(*written.infoset));
    } catch (DocumentError& error) {
        error.message = "no XML to compare with: " + error.message;
        throw;
    }
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
    Written written = MarshallText(decoded, options);
    if (!written.fault.empty()) Warn(document, written.fault);
    if (!options.strict) return written.text;
    try {
        const std::vector<std::string> losses = LossesOf(document, written);
        for (const std::string& loss : losses) std::fprintf(stderr, "%s: %s\n", document.name.c_str(), loss.c_str());
        if (!losses.empty() || !written.fault.empty()) throw DocumentError{kNotMarshalled, ""};
    } catch (DocumentError& error) {
        error.output = written.text;
        throw;
    }
    return written.text;
}

std::string ListLosses(const Document& document, const Options& options, const Progress& progress) {
    const Decoded decoded = Decode(document, options);
    progress.Enter(Stage::Writing);
    Written written = MarshallText(decoded, options);
    std::string text;
    for (const std::string& loss : LossesOf(document, written)) text += document.name + ": " + loss + '\n';
    if (text.empty() && written.fault.empty()) return text;
    throw DocumentError{kNotMarshalled, written.fault, kNoOffset, "", text};
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
