/// @file
/// A decoded tree as JSON.
#ifndef IMSXML_JSON_JSON_H
#define IMSXML_JSON_JSON_H

#include <nlohmann/json.hpp>

#include "JsonText.h"
#include "XMLCommonDef.h"
#include "XmlClass.h"

using Json = nlohmann::ordered_json;

/// Writes the class and every field that is set, in the order of the declarations.
void WriteTree(JsonText& json, const XMLElement& element);

/// The same as a value, to look into.
/// @param replaced out: set when bytes that are not UTF-8 were replaced, else left alone.
Json ToJson(const XMLElement& element, bool& replaced);

/// Writes what is decoded of a document: its schema and its tree.
/// @param file NULL: none is named.
void WriteDocument(JsonText& json, const char* schema, const char* file, const XMLElement& root);

/// True for the only value of an enumeration that JSON has a number for: that of a text which is no word, where it is
/// not the 'not set' value.
bool IsWordless(const XmlField& field, long long value);

/// True for a field whose 'not set' value is none in JSON.
bool IsAlwaysShown(const XmlField& field);

/// True for an empty element that JSON says no more of than that it is there: it has the name of the row.
bool IsMerePresence(const XMLElement& element, const XmlField& field);

/// A kind of rest: its keys beside "kind", and which of them it cannot go without, separated by blanks.
struct JsonRestShape {
    const char* kind;
    const char* keys;
    const char* required;
};

/// By `XmlRestKind`.
constexpr JsonRestShape kRestShapes[] = {
    {"attribute", "in behind namespace name text", "name text"},
    {"element", "in at behind text", "text"},
    {"text", "at behind text", "text"},
    {"value", "at text held", "at text"},
    {"namespace", "in behind namespace", "namespace"},
};

/// In place of an entry: behind all children.
constexpr char kBehindAll[] = "all";

#endif
