/// @file
/// Indication of message composition (RFC 3994): says whether the other side of a chat is typing.
///
/// - Root element: `isComposing`, with `state`, `lastactive`, `contenttype`, `refresh`.
/// - Namespace: urn:ietf:params:xml:ns:im-iscomposing, written as the default namespace, not expected.
/// - Prefixes: removed.
/// - Read and written, the elements in the order above. Attributes, namespace declarations among them, and other
///   elements are lost with a log line; an attribute with the name of one of the four elements is lost without.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_IS_COMPOSING_H
#define IX_XML_IS_COMPOSING_H

#include "XmlFamily.h"

/// The element `isComposing`.
class IX_XML_EXPORT ix_isComposing : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_IS_COMPOSING, class IsComposingDataBinder>;

    ix_isComposing() : XmlDescribedObject(kClass) {}
    ~ix_isComposing() override { ixRelease(*this, kClass); }

    /// @name Each copies the text; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    /// Required: an earlier text is not freed, for callers that still hold it; nor is that of a repeated element.
    /// @{
    int setStateValue(const char* state) { return ixOverwriteText(mState, state); }
    int setLastactiveValue(const char* lastactive) { return ixOverwriteText(mLastactive, lastactive); }
    int setContenttypeValue(const char* contenttype) { return ixOverwriteText(mContenttype, contenttype); }
    /// @}
    /// @return 1.
    int setRefreshValue(unsigned int refresh) { return ixSetNumber(mRefresh, refresh); }
    /// Takes over a list in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    /// Appends an element, which then belongs to this one. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }

    char* mState = nullptr;        ///< "active" or "idle"; unchecked. Owned; NULL: not set. Mandatory in a document.
    char* mLastactive = nullptr;   ///< When the last message was sent (RFC 3339); unchecked. Owned; NULL: not set.
    char* mContenttype = nullptr;  ///< Media type of the message, or its first part. Owned; NULL: not set.
    unsigned int mRefresh = 0;     ///< Seconds until the next indication; 0: not set, and not written.
    IxSingleElementList* mAnyElementList = nullptr;  ///< Owned elements of other classes, not written; NULL: none.
};

class IX_XML_EXPORT IsComposingDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_isComposing`.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT IsComposingUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    IsComposingUnMarshaller();
};

/// Writes the XML declaration and the document. A root without a state cannot be written.
class IX_XML_EXPORT IsComposingMarshaller : public XmlFamilyMarshaller {
  public:
    IsComposingMarshaller();

    /// @return 1, or 0 for NULL, or without a state, the element left open.
    int AddIsComposingElementToXml(ix_isComposing* isComposing);
    /// @name Each writes one element. @return 1, or 0 for NULL.
    /// @{
    int AddStateElementToXml(const char* state);
    int AddLastactiveElementToXml(const char* lastactive);
    int AddContenttypeElementToXml(const char* contenttype);
    int AddRefreshElementToXml(unsigned int refresh);
    /// @}
};

class IX_XML_EXPORT IsComposingContext : public XmlFamilyContext {
  public:
    IsComposingContext();
};

/// A fixed document as the family writes it, to look at or to try a connection with: someone is recording audio.
/// @return the text, freed by the caller (`FreeElement`); NULL without memory.
IX_XML_EXPORT char* TestIsComposingMarshall();

#endif
