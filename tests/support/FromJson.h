// Trees from JSON as the command prints it.
#ifndef FROM_JSON_H
#define FROM_JSON_H

#include <nlohmann/json.hpp>

#include "XMLFactory.h"

/// Builds the tree of an object with `"class"` and fields by the descriptions that the schema's roots lead to. Beside
/// what the command prints, a list may hold null, an enumeration a number, and a class may be one of any schema. What
/// does not fit throws `std::runtime_error`.
XMLElement* FromJson(eXMLSchemaID schema, const nlohmann::ordered_json& object);

/// All classes that a schema's roots lead to, the roots first.
std::vector<const XmlClass*> ClassesOf(eXMLSchemaID schema);

#endif
