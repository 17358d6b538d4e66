/// @file
/// Choosing a schema, by its name or by the root element of a document.
#ifndef IMSXML_JSON_SCHEMA_H
#define IMSXML_JSON_SCHEMA_H

#include <string>
#include <string_view>
#include <vector>

#include "Document.h"
#include "Scanner.h"
#include "XMLFactory.h"

/// All schemas, in the order of their numbers.
std::vector<const XmlSchemaInfo*> SchemaInfos();

/// The local names of a schema's root elements; none when any will do.
std::vector<std::string_view> RootsOf(const XmlSchemaInfo& schema);

/// The schema of that name; NULL: none.
const XmlSchemaInfo* FindSchema(std::string_view name);

/// What is said of a name that no schema has.
std::string NoSchema(std::string_view name);

/// Throws `DocumentError` (wrong usage) for a name that no schema has.
const XmlSchemaInfo& SchemaByName(const std::string& name);

/// The same for a content type.
const XmlSchemaInfo& SchemaByContentType(const std::string& type);

/// The classes that the documents of a schema are made of, as the rows of its roots lead to them, and the generic ones.
std::vector<const XmlClass*> ClassesOf(const XmlSchemaInfo& schema);

/// Those that the root of a document can have. In the device profile, that of a schema with parts is of any class.
std::vector<const XmlClass*> RootClassesOf(const XmlSchemaInfo& schema, eXMLProfile profile);

/// True for the elements of a rule of communication diversion and barring. XCAP transports them alone, and both schemas
/// take each of them as a root element, too.
bool IsRulePart(std::string_view local);

/// True when the schema takes this root element.
bool TakesRoot(const XmlSchemaInfo& schema, std::string_view local);

/// The schema whose documents have this root element; none: NULL.
const XmlSchemaInfo* SchemaWithRoot(std::string_view local);

/// What is wrong with the namespace of a root element of this schema; "": nothing, as far as it is declared.
std::string NamespaceFault(const RootElement& root, const XmlSchemaInfo& schema);

/// Throws `DocumentError` for a document whose root element no schema has.
/// @param scanner stands behind the root's start tag.
const XmlSchemaInfo& SchemaOf(Scanner& scanner);

/// The same for the standard profile, whose documents the tokenizer need not understand. A text without a root element
/// is of the schema of all: the reader says what is wrong with it.
const XmlSchemaInfo& StandardSchemaOf(const std::string& text);

#endif
