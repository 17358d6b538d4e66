/// @file
/// Indication of message composition (RFC 3994): says whether the other side of a chat is typing.
///
/// - Root element: `isComposing`, with `state`, `lastactive`, `contenttype`, `refresh`.
/// - Namespace: urn:ietf:params:xml:ns:im-iscomposing, written as the default namespace, not expected.
/// - Prefixes: removed.
/// - Read and written, the elements in the order above. Attributes, namespace declarations among them, and other
///   elements are lost with a log line; an attribute with the name of one of the four elements is lost without.
#ifndef IX_XML_IS_COMPOSING_H
#define IX_XML_IS_COMPOSING_H

#include "XmlElementSupport.h"
#include "XmlOldFamily.h"
#include "XmlFields.h"

/// The element `isComposing`.
class IX_XML_EXPORT ix_isComposing : public XMLObject {
  public:
    static constexpr char kClassName[] = "ix_isComposing";

    ~ix_isComposing() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLObject"; }
    const char* TypeName() const override { return "IsComposing"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// @name Each copies the text; NULL clears it. An earlier text is not freed, see `ixOverwriteText`.
    /// @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setStateValue(const char* state) { return ixOverwriteText(mState, state); }
    int setLastactiveValue(const char* lastactive) { return ixOverwriteText(mLastactive, lastactive); }
    int setContenttypeValue(const char* contenttype) { return ixOverwriteText(mContenttype, contenttype); }
    /// @}
    /// @return 1.
    int setRefreshValue(unsigned int refresh);
    /// Takes over a list in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetElementList(mAnyElementList, list); }
    /// Appends an element, which then belongs to this one. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addAnyElement(XMLElement* element);

    char* mState = nullptr;        ///< "active" or "idle"; unchecked. Owned; NULL: not set. Mandatory in a document.
    char* mLastactive = nullptr;   ///< When the last message was sent (RFC 3339); unchecked. Owned; NULL: not set.
    char* mContenttype = nullptr;  ///< Media type of the message, or its first part. Owned; NULL: not set.
    unsigned int mRefresh = 0;     ///< Seconds until the next indication; 0: not set.
    IxSingleElementList* mAnyElementList = nullptr;  ///< Owned elements of other classes, not written; NULL: none.
};

class IX_XML_EXPORT IsComposingDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_isComposing`.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT IsComposingUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override;
};

/// Writes the XML declaration and the document. A root without a state cannot be written.
class IX_XML_EXPORT IsComposingMarshaller : public XmlOldFamilyMarshaller {
  public:
    IsComposingMarshaller();

    /// @return 1, or 0 without a state, the element left open.
    int AddIsComposingElementToXml(ix_isComposing* element);
    /// @name Each writes one element; NULL writes nothing. @return 1.
    /// @{
    int AddStateElementToXml(const char* state);
    int AddLastactiveElementToXml(const char* lastactive);
    int AddContenttypeElementToXml(const char* contenttype);
    int AddRefreshElementToXml(unsigned int refresh);
    /// @}
};

class IX_XML_EXPORT IsComposingContext : public XmlOldFamilyContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override;
    XmlOldFamilyUnMarshaller* NewUnMarshaller() override;
    XMLObjectFactory* NewBinderFactory() override;
};

/// A fixed document as the family writes it, to look at or to try a connection with: someone is recording audio.
/// @return the text, freed by the caller (`FreeElement`); NULL without memory.
IX_XML_EXPORT char* TestIsComposingMarshall();

#endif
