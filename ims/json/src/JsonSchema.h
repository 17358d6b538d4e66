/// @file
/// The JSON Schema of a kind of documents.
#ifndef IMSXML_JSON_JSON_SCHEMA_H
#define IMSXML_JSON_JSON_SCHEMA_H

#include <string>

#include "XMLFactory.h"

/// The schema (draft 2020-12) of what `decode` prints for documents of a kind, in both profiles, with a line feed
/// behind it.
std::string JsonSchemaOf(const XmlSchemaInfo& schema);

#endif
