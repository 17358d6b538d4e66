#include "XmlRoots.h"

#include <cstring>

XmlNamespace ixMainNamespace(const XmlSchemaInfo& schema) {
    const char* const uri = schema.standardUri != nullptr ? schema.standardUri : schema.namespaceUri;
    std::size_t i = kXmlNamespaceCount - 1;
    while (i != 0 && std::strcmp(kXmlNamespaces[i].uri, uri) != 0) --i;
    return static_cast<XmlNamespace>(i);
}

namespace {

/// The roots of a schema, in the order of their classes, until one `fits`.
template <class Predicate>
XmlRoot FindRoot(const XmlSchemaInfo& schema, Predicate fits) {
    const char* at = schema.rootElements;
    for (std::size_t i = 0; *at != '\0'; ++i) {
        const char* end = at;
        while (*end != '\0' && *end != ' ') ++end;
        const XmlRoot root = {
            schema.classes[i], {const_cast<char*>(at), static_cast<std::size_t>(end - at)}, ixMainNamespace(schema)};
        if (fits(root)) return root;
        at = *end == ' ' ? end + 1 : end;
    }
    for (const XmlNamedClass* part = schema.parts; part != nullptr && part->description != nullptr; ++part) {
        const char* const name = part->name.Text();
        const XmlRoot root = {part->description, {const_cast<char*>(name), std::strlen(name)}, part->ns};
        if (fits(root)) return root;
    }
    return {};
}

}  // namespace

XmlRoot ixRootOf(const XmlSchemaInfo& schema, const XmlSlice& local) {
    return FindRoot(schema,
                    [&](const XmlRoot& root) { return root.name == local || std::strcmp(root.name.text, "*") == 0; });
}

XmlRoot ixRootOf(const XmlSchemaInfo& schema, const XmlClass& description) {
    return FindRoot(schema, [&](const XmlRoot& root) { return root.description == &description; });
}
