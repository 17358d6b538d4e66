/// @file
/// The contexts of the standard profile.
#ifndef IX_XML_STANDARD_H
#define IX_XML_STANDARD_H

#include "XMLFactory.h"

/// False for the schema whose root element has a name that no XML document can have.
bool ixHasStandardProfile(const XmlSchemaInfo& schema);

/// A new context of a schema; NULL without memory, and for a schema that has no standard profile.
XMLContext* ixNewStandardContext(const XmlSchemaInfo& schema);

/// See `XMLFactory::Validate`.
int ixValidate(const XmlSchemaInfo& schema, const char* text, std::size_t length,
               void (*report)(const XmlProblem& problem, void* context), void* context);

#endif
