/// @file
/// Decoder of the schema namespace retrieval (XMLSchemaNameSpaceRetrieval.h).
#ifndef IX_SCHEMA_NAME_SPACE_RETRIEVAL_H
#define IX_SCHEMA_NAME_SPACE_RETRIEVAL_H

#include "XmlFamilyDecoder.h"

/// Collects declarations and looks at nothing else. Its result is there from the start, even for a text without
/// elements.
class IX_XML_EXPORT XMLSchemaNamespaceRetrievalDecoder : public XmlFamilyDecoder {
  public:
    XMLSchemaNamespaceRetrievalDecoder();

    /// Required: any name that begins with "xmlns" counts, also one that goes on without ":".
    static bool IsDeclaration(const char* attribute);

    /// Ignores the element. @return 0, or -1 without a name.
    int ProcessElement(char* element, char* text) override;
    /// @return 0, or -1 without element or attribute name.
    int ProcessAttribute(char* element, char* attribute, char* value) override;
};

#endif
