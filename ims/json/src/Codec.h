/// @file
/// Reading and writing of documents in a profile, with what is to be said of those that fail.
#ifndef IMSXML_JSON_CODEC_H
#define IMSXML_JSON_CODEC_H

#include <string>

#include "Document.h"
#include "XMLFactory.h"

/// The schema that the root element of a document says. Throws `DocumentError`.
const XmlSchemaInfo& SchemaOfDocument(const Document& document, eXMLProfile profile);

/// Throws `DocumentError` for a schema that has no such profile.
XmlOwnedContext NewContext(const XmlSchemaInfo& schema, eXMLProfile profile);

/// @name Reading
/// @{
/// In the device profile; NULL: not decoded, see `Diagnose`.
XmlOwned<> ReadDevice(XMLContext& context, const Document& document);
/// In the standard profile. Throws `DocumentError`.
XmlOwned<> ReadStandard(XMLContext& context, const Document& document);
/// @}

/// The marshaller of a context. Throws `DocumentError` for a schema that is only read.
XMLMarshaller& MarshallerOf(XMLContext& context, const XmlSchemaInfo& schema);

/// Why `Marshall` yielded NULL. @param reason as far as it is known; "": it is not.
DocumentError NotMarshalled(const XMLMarshaller& marshaller, const XmlSchemaInfo& schema, std::string reason);

/// What is wrong with a text that was written all the same; "": nothing.
std::string FlawOf(const XMLMarshaller& marshaller, const std::string& written, eXMLProfile profile);

#endif
