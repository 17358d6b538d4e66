/// @file
/// A decoded tree as JSON, and JSON as text.
#ifndef IMSXML_TOOL_JSON_H
#define IMSXML_TOOL_JSON_H

#include <nlohmann/json.hpp>
#include <string>

#include "XMLCommonDef.h"

using Json = nlohmann::ordered_json;

/// The class and every field that is set, in the order of the declarations.
Json ToJson(const XMLElement& element);

/// @param indent blanks a level; -1: one line.
/// @param replaced out: set when bytes that are not UTF-8 were replaced, else left alone.
std::string ToText(const Json& json, int indent, bool& replaced);

#endif
