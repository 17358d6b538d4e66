/// @file
/// Why a document could not be decoded. The library answers NULL, whatever the fault.
#ifndef IMSXML_JSON_DIAGNOSIS_H
#define IMSXML_JSON_DIAGNOSIS_H

#include <functional>

#include "Document.h"
#include "XMLFactory.h"

/// @return what the tokenizer refuses in the document, and where.
DocumentError Diagnose(const Document& document);

/// The same; when the tokenizer has nothing against the document, why the schema makes nothing of its root element.
/// @param binderHelps asked before a binder is advised.
DocumentError Diagnose(const Document& document, const XmlSchemaInfo& schema, const std::function<bool()>& binderHelps);

#endif
