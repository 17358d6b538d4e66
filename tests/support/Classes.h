// The element classes of each schema, and trees of them made of JSON.
#ifndef CLASSES_H
#define CLASSES_H

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "XMLFactory.h"
#include "XmlDecoder.h"

/// The schemas that have a context, in the order of their numbers.
std::vector<eXMLSchemaID> AllSchemas();

/// Names a test of a schema.
std::string SchemaName(const testing::TestParamInfo<eXMLSchemaID>& schema);

struct XmlField;

/// The classes that the documents of a schema are made of, as the rows of its roots lead to them, and the generic ones.
std::vector<const XmlClass*> ClassesOf(eXMLSchemaID id);

/// A new object; NULL: of no class, without class name.
XMLElement* New(const XmlClass* description);

/// A new decoder.
std::unique_ptr<XmlDecoderSchema> NewDecoder(eXMLSchemaID id);

/// A tree as the command prints it, and beyond: a class of null makes an element without class name, one that the
/// schema does not have an element of that name and nothing else; a null among the entries of a list stays one, an
/// enumeration may be a number. NULL for null. An unknown field fails the test.
XMLElement* TreeFromJson(eXMLSchemaID id, const nlohmann::ordered_json& tree);

/// The tree, and what the command does not show: lists without entries, and the numbers of words that are none.
nlohmann::ordered_json StateOf(const XMLElement& element);

/// The fields that differ, behind a blank; empty: none.
std::string Changes(const nlohmann::ordered_json& before, const nlohmann::ordered_json& after);

/// The fields of an object by name, those of its bases included.
std::map<std::string, const XmlField*> FieldsOf(const XMLElement& element);

/// The tree as the command prints it; null for NULL.
nlohmann::ordered_json JsonOf(const XMLElement* root);

#endif
