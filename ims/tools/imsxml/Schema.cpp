#include "Schema.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <numeric>

#include "Text.h"

namespace {

constexpr std::string_view kRuleParts[] = {"ruleset", "rule",    "conditions",     "identity",
                                           "one",     "many",    "except",         "validity",
                                           "sphere",  "actions", "transformations"};
constexpr char kRuleNamespace[] = "urn:ietf:params:xml:ns:common-policy";

/// Single-byte insertions, deletions and replacements that make one word of the other.
std::size_t EditDistance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

/// Puts the candidates that are most like `word` into words: the best ones only, and at most three.
std::string Nearest(std::string_view word, const std::vector<std::pair<std::string_view, std::string>>& candidates) {
    // Longer words are no typing errors of anything, and comparing them takes long.
    constexpr std::size_t kLongestWord = 200;
    word = word.substr(0, kLongestWord);
    std::vector<std::pair<std::size_t, std::string>> found;
    found.reserve(candidates.size());
    for (const auto& [name, text] : candidates) found.emplace_back(EditDistance(word, name), text);
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    constexpr std::size_t kMost = 3;
    constexpr std::size_t kSlack = 1;
    std::string list;
    for (std::size_t i = 0; i < found.size() && i < kMost && found[i].first <= found[0].first + kSlack; ++i) {
        list += (i == 0 ? "" : ", ") + found[i].second;
    }
    return list;
}

[[noreturn]] void RefuseRoot(const std::string& root, std::size_t offset) {
    const std::string_view local = std::string_view(root).substr(root.rfind(':') + 1);
    std::vector<std::pair<std::string_view, std::string>> candidates;
    for (const XmlSchemaInfo* schema : AllSchemas()) {
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

}  // namespace

std::vector<const XmlSchemaInfo*> AllSchemas() {
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

const XmlSchemaInfo& SchemaByName(const std::string& name) {
    std::vector<std::pair<std::string_view, std::string>> candidates;
    for (const XmlSchemaInfo* schema : AllSchemas()) {
        candidates.emplace_back(schema->name, schema->name);
        if (name == schema->name) return *schema;
    }
    throw DocumentError{kWrongUsage,
                        "no schema has the name \"" + name + "\"; the nearest: " + Nearest(name, candidates)};
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
    for (const XmlSchemaInfo* schema : AllSchemas()) {
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
