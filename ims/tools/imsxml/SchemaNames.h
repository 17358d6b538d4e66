/// @file
/// What a schema is called in a program.
#ifndef IMSXML_TOOL_SCHEMA_NAMES_H
#define IMSXML_TOOL_SCHEMA_NAMES_H

#include <string>
#include <utility>
#include <vector>

#include "XMLFactory.h"

/// Names in C++, each with what it is: header, enumerator, the class of each root element, factory.
std::vector<std::pair<std::string, std::string>> NamesInPrograms(const XmlSchemaInfo& schema);

/// A block of lines for each schema: its facts and its names in programs.
std::string DescribeSchemas();

#endif
