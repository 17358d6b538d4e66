#include "Commands.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <utility>

#include "Codec.h"
#include "Diagnosis.h"
#include "Infoset.h"
#include "Json.h"
#include "JsonTree.h"
#include "JsonValue.h"
#include "Library.h"
#include "Outline.h"
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

XmlOwned<> UnMarshall(XMLContext& context, const Document& document, LogLines log) {
    constexpr unsigned kResults = 1U << 2U;
    const LogWatch watch(log, kResults);
    XmlOwned<> root = ReadDevice(context, document);
    if (root != nullptr && watch.IsTooDeep()) {
        Warn(document,
             "nested too deep: 100 elements are under construction at a time; what lies deeper is filed in another "
             "element or lost");
    }
    return root;
}

/// The same in the standard profile, which says what is wrong.
XmlOwned<> UnMarshallStandard(XMLContext& context, const Document& document, LogLines log) {
    const LogWatch watch(log);
    return ReadStandard(context, document);
}

/// The declarations of a document; not decoded: NULL.
XmlOwned<> DecodeNamespaces(const Document& document, LogLines log) {
    const XmlOwnedContext context =
        NewContext(*XMLFactory::SchemaInfo(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL), IX_XML_PROFILE_DEVICE);
    return UnMarshall(*context, document, log);
}

void AddBinder(Decoded& decoded, const Document& document, LogLines log) {
    decoded.binder = DecodeNamespaces(document, log);
    if (decoded.binder == nullptr) throw Diagnose(document);
    decoded.context->SetNamespaceBinder(static_cast<XMLObject*>(decoded.binder.get()));
}

/// True when more than an empty root is read of a document with its own declarations.
bool BinderHelps(const XmlSchemaInfo& schema, const Document& document) {
    Decoded decoded;
    decoded.context = NewContext(schema, IX_XML_PROFILE_DEVICE);
    AddBinder(decoded, document, kNoLines);
    decoded.root = UnMarshall(*decoded.context, document, kNoLines);
    bool replaced = false;
    return decoded.root != nullptr && ToJson(*decoded.root, replaced).size() > 1;
}

Decoded Decode(const Document& document, const Options& options) {
    Decoded result;
    result.schema = options.schema != nullptr ? options.schema : &SchemaOfDocument(document, options.profile);
    result.context = NewContext(*result.schema, options.profile);
    if (options.profile == IX_XML_PROFILE_STANDARD) {
        result.root = UnMarshallStandard(*result.context, document, options.log);
        return result;
    }
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
    XMLMarshaller& marshaller = MarshallerOf(*decoded.context, *decoded.schema);
    const char* text = nullptr;
    std::string reason;
    {
        const LogWatch watch(options.log);
        text = marshaller.Marshall(decoded.root.get());
        reason = watch.Reason();
    }
    if (text == nullptr) throw NotMarshalled(marshaller, *decoded.schema, reason);
    return Check(text, marshaller.IsTruncated() != 0, reason);
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

/// The text of each document of a file, and what is wrong with the others.
class Encoder {
  public:
    Encoder(const Document& document, const Options& options) : m_document(document), m_options(options) {}

    /// Throws the last error, if there was one, behind the others.
    std::string Text();

  private:
    void EncodeAll();
    void Encode(const JsonValue& value, const JsonPlace* place);

    const Document& m_document;
    const Options& m_options;
    std::string m_text;
    std::vector<DocumentError> m_errors;
};

void Encoder::Encode(const JsonValue& value, const JsonPlace* place) {
    try {
        JsonDocument tree = ToTree(value, place, m_options.schema, m_options.profile);
        const Decoded decoded = {tree.schema, nullptr, NewContext(*tree.schema, m_options.profile),
                                 std::move(tree.root)};
        const Written written = MarshallText(decoded, m_options);
        if (!written.fault.empty()) Warn(m_document, written.fault);
        m_text += written.text;
    } catch (const DocumentError& error) {
        m_errors.push_back(error);
    }
}

void Encoder::EncodeAll() {
    JsonValue value;
    std::size_t at = 0;
    for (bool isFirst = true; ReadJson(m_document.text, at, value); isFirst = false) {
        if (value.kind != JsonValue::Kind::Array || !isFirst) {
            Encode(value, nullptr);
            continue;
        }
        for (std::size_t i = 0; i < value.values.size(); ++i) {
            const JsonPlace place = {nullptr, nullptr, i};
            Encode(value.values[i], &place);
        }
    }
    if (at == 0 || m_document.text.find_first_not_of(kSpaces) == std::string::npos) {
        throw DocumentError{kNotDecoded, "there is no JSON"};
    }
}

/// Tells all errors but the last one, which goes the way of all errors.
[[noreturn]] void ThrowLast(const Document& document, const std::vector<DocumentError>& errors) {
    for (std::size_t i = 0; i + 1 < errors.size(); ++i) {
        std::fprintf(stderr, "%s\n", document.Describe(errors[i]).c_str());
    }
    throw DocumentError(errors.back());
}

std::string Encoder::Text() {
    try {
        EncodeAll();
    } catch (const DocumentError& error) {
        m_errors.push_back(error);
    }
    if (m_errors.empty()) return m_text;
    DocumentError& last = m_errors.back();
    last.output = m_text;
    for (const DocumentError& error : m_errors) last.status = std::max(last.status, error.status);
    ThrowLast(m_document, m_errors);
}

bool HasColour(Colour colour) {
    if (colour != Colour::Auto) return colour == Colour::Always;
    const char* const none = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    if (none != nullptr && *none != '\0') return false;
    if (terminal != nullptr && std::strcmp(terminal, "dumb") == 0) return false;
    return isatty(STDOUT_FILENO) == 1;
}

/// Words with commas between them, so that they are one; none: "-".
std::string WithCommas(std::string words) {
    std::replace(words.begin(), words.end(), ' ', ',');
    return words.empty() ? "-" : words;
}

std::string PrefixOf(const ix_AttributeValuePair& declaration) {
    return declaration.mName != nullptr ? std::string(TrimEnd(WithBlanks(declaration.mName))) : "(default)";
}

}  // namespace

std::string DecodeDocument(const Document& document, const Options& options, const Progress& /*progress*/) {
    const Decoded decoded = Decode(document, options);
    bool replaced = false;
    std::string text;
    if (options.tree) {
        Outline outline(HasColour(options.colour));
        if (options.HasManyFiles()) outline.AddTitle(document.name, decoded.schema->name);
        outline.AddTree(ToJson(*decoded.root, replaced));
        text = outline.Text();
    } else {
        JsonText json(options.HasManyFiles() ? -1 : 2);
        WriteDocument(json, decoded.schema->name, document.name.c_str(), *decoded.root);
        text = json.Text() + '\n';
        replaced = json.HasReplaced();
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
    throw DocumentError{kNotMarshalled, written.fault, kNoOffset, {}, text};
}

std::string EncodeDocument(const Document& document, const Options& options, const Progress& progress) {
    progress.Enter(Stage::Writing);
    return Encoder(document, options).Text();
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
                {kNotDecoded, text, kNoOffset, {problem.line, problem.column}});
        },
        &found);
    if (count == 0) return document.name + ": valid\n";
    ThrowLast(document, found);
}

std::string ListSchemas() {
    std::vector<std::vector<std::string>> rows = {
        {"NUMBER", "NAME", "ACCESS", "NAMESPACE", "CONTENT TYPES", "ROOT ELEMENTS"}};
    for (const XmlSchemaInfo* schema : SchemaInfos()) {
        rows.push_back({std::to_string(schema->id), schema->name, schema->writes ? "read/write" : "read",
                        *schema->namespaceUri != '\0' ? schema->namespaceUri : "-", WithCommas(schema->contentTypes),
                        schema->rootElements});
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
