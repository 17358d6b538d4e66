#include "Schema.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace {

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

const XmlSchemaInfo* FindByRoot(std::string_view local) {
    for (const XmlSchemaInfo* schema : AllSchemas()) {
        for (const std::string_view root : RootsOf(*schema)) {
            if (root == local) return schema;
        }
    }
    return nullptr;
}

[[noreturn]] void RefuseRoot(const RootElement& root) {
    std::vector<std::pair<std::string_view, std::string>> candidates;
    for (const XmlSchemaInfo* schema : AllSchemas()) {
        for (const std::string_view name : RootsOf(*schema)) {
            candidates.emplace_back(name, std::string(schema->name) + " (<" + std::string(name) + ">)");
        }
    }
    throw DocumentError{
        kNotDecoded,
        "root element " + TagText(root.name) + " is of no schema; the nearest: " + Nearest(root.Local(), candidates),
        root.offset};
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
        if (name != schema->name) continue;
        if (schema->create != nullptr) return *schema;
        throw DocumentError{kWrongUsage, "schema " + name + " is not part of this build"};
    }
    throw DocumentError{kWrongUsage,
                        "no schema has the name \"" + name + "\"; the nearest: " + Nearest(name, candidates)};
}

const XmlSchemaInfo& SchemaOfRoot(const RootElement& root) {
    const XmlSchemaInfo* const schema = FindByRoot(root.Local());
    if (schema == nullptr) RefuseRoot(root);
    const std::optional<std::string> uri = root.Namespace();
    // Some senders take the default namespace away (xmlns=""); that says as little as no declaration.
    if (uri && !uri->empty() && *schema->namespaceUri != '\0' && *uri != schema->namespaceUri) {
        throw DocumentError{kNotDecoded,
                            "root element " + TagText(root.name) + " is of namespace \"" + *uri + "\", not of \"" +
                                schema->namespaceUri + "\" as in schema " + schema->name,
                            root.offset};
    }
    if (schema->create == nullptr) {
        throw DocumentError{kNotDecoded,
                            "schema " + std::string(schema->name) + " of root element " + TagText(root.name) +
                                " is not part of this build",
                            root.offset};
    }
    return *schema;
}
