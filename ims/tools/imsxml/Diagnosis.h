/// @file
/// Why a document could not be decoded. The library answers NULL, whatever the fault.
#ifndef IMSXML_TOOL_DIAGNOSIS_H
#define IMSXML_TOOL_DIAGNOSIS_H

#include <string>
#include <string_view>

#include "Document.h"
#include "XMLFactory.h"

/// A tag for a message that has one line: "<name>", cut when it is long, line feeds as blanks.
std::string TagText(std::string_view name);

/// @return what the tokenizer refuses in the document, and where.
DocumentError Diagnose(const Document& document);

/// The same; when the tokenizer has nothing against the document, why the schema makes nothing of its root element.
DocumentError Diagnose(const Document& document, const XmlSchemaInfo& schema, bool hasBinder);

#endif
