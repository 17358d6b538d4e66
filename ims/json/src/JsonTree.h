/// @file
/// Trees made of JSON.
#ifndef IMSXML_JSON_TREE_H
#define IMSXML_JSON_TREE_H

#include <vector>

#include "JsonValue.h"
#include "XMLFactory.h"
#include "XmlClass.h"

/// A tree, and the schema that it is of.
struct JsonDocument {
    const XmlSchemaInfo* schema;
    XmlOwned<> root;
};

/// Makes the tree that a document of `decode` says. Nothing in it is passed over: what has no place in the tree, or
/// would not be written, is refused.
/// @param place where the document is; NULL: it is the outermost value.
/// @param named the schema; NULL: the document says it.
/// Throws `DocumentError`.
JsonDocument ToTree(const JsonValue& document, const JsonPlace* place, const XmlSchemaInfo* named, eXMLProfile profile);

/// The classes that can stand in a field of children.
/// @param all those of the schema, for a field that takes any.
std::vector<const XmlClass*> ClassesAt(const XmlField& row, eXMLProfile profile,
                                       const std::vector<const XmlClass*>& all);

/// The numbers that a field of a kind holds.
struct JsonRange {
    long long least;
    long long most;
};
JsonRange RangeOf(XmlFieldKind kind);

#endif
