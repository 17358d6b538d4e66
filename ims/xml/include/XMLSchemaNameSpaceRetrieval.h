/// @file
/// Schema namespace retrieval: the namespace declarations of any XML text (Namespaces in XML 1.0), so that a caller
/// learns which schemas a document uses before choosing one.
///
/// - Root element: any. Every declaration counts, whatever element carries it; so does any attribute whose name
/// begins with "xmlns".
/// - Prefixes: not looked at.
/// - Read only. The result serves as namespace binder (`XMLContext::SetNamespaceBinder`).
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_SCHEMA_NAME_SPACE_RETRIEVAL_H
#define IX_XML_SCHEMA_NAME_SPACE_RETRIEVAL_H

#include "XmlFamily.h"

/// The declarations of a document.
class IX_XML_EXPORT ix_schema_namespace_retrieval : public XmlNamespaceBinder {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, class SchemaNamespaceRetrievalDataBinder>;

    ix_schema_namespace_retrieval() : XmlNamespaceBinder(kClass) {}
    ~ix_schema_namespace_retrieval() override { ixRelease(*this, kClass); }
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Takes over a list of `ix_AttributeValuePair`s, in place of an earlier one, which is deleted. NULL changes
    /// nothing.
    /// @return 1.
    int setNameSpaceInfo(IxSingleElementList* list);
    /// Appends a pair, which then belongs to the element. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addNameSpaceInfo(ix_AttributeValuePair* declaration);
    /// The list, which stays with the element; NULL when there are no declarations.
    IxSingleElementList* getNameSpaceInfo() const override;

    /// Owned `ix_AttributeValuePair`s in the order of the text: the name is the prefix, NULL for the default namespace,
    /// the value is the URI. NULL: none.
    IxSingleElementList* mNameSpaceInfo = nullptr;
};

class IX_XML_EXPORT SchemaNamespaceRetrievalDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_schema_namespace_retrieval`.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT SchemaNamespaceRetrievalUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    SchemaNamespaceRetrievalUnMarshaller();
};

/// Its `createMarshaller` answers NULL.
class IX_XML_EXPORT SchemaNamespaceRetrievalContext : public XmlFamilyContext {
  public:
    SchemaNamespaceRetrievalContext();
};

#endif
