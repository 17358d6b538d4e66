/// @file
/// Choosing a schema, by its name or by the root element of a document.
#ifndef IMSXML_TOOL_SCHEMA_H
#define IMSXML_TOOL_SCHEMA_H

#include <string>
#include <string_view>
#include <vector>

#include "Document.h"
#include "Scanner.h"
#include "XMLFactory.h"

/// All schemas, in the order of their numbers.
std::vector<const XmlSchemaInfo*> AllSchemas();

/// The local names of a schema's root elements; none when any will do.
std::vector<std::string_view> RootsOf(const XmlSchemaInfo& schema);

/// Throws `DocumentError` (wrong usage) for a name that no schema of this build has.
const XmlSchemaInfo& SchemaByName(const std::string& name);

/// Throws `DocumentError` for a root element that no schema of this build has.
const XmlSchemaInfo& SchemaOfRoot(const RootElement& root);

#endif
