/// @file
/// What a document says: its elements, attributes and texts, whatever they are spelled with. Read with a parser of its
/// own, so that the library's two are not measured by themselves.
#ifndef IMSXML_TOOL_INFOSET_H
#define IMSXML_TOOL_INFOSET_H

#include <string>
#include <vector>

#include "Document.h"

struct InfoAttribute {
    std::string uri;  ///< Of its namespace; "": none.
    std::string name;
    std::string value;
};

struct InfoElement {
    std::string uri;
    std::string name;
    std::vector<InfoAttribute> attributes;
    std::string text;  ///< All of its own, without that of its children.
    std::vector<InfoElement> children;
    std::size_t digest = 0;  ///< The same for elements that say the same.
};

/// The root of a document. The prefixes that parts of supplementary services come with need no declaration.
/// Throws `DocumentError` (not decoded), with the place, for what is not well-formed XML with namespaces.
InfoElement ReadInfoset(const std::string& text);

/// What `after` says otherwise than `before`: a line each, which begins with the path of what is changed, lost or
/// added. Elements go by namespace and local name. One without a namespace is of that of the root of `before`; where
/// the root has none, local names alone count. Siblings of one name are in order, others are not.
/// `xsi:schemaLocation`, white space around and within texts, leading zeros and the two spellings of a boolean do not
/// count.
std::vector<std::string> Differences(InfoElement before, InfoElement after);

#endif
