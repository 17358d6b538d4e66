/// @file
/// What the root elements of the supplementary services share (3GPP TS 24.623, simservs XML schema), and how they are
/// written.
#ifndef IX_XML_SIMSERVS_XCAP_H
#define IX_XML_SIMSERVS_XCAP_H

#include "XMLCommonDef.h"
#include "XmlOldFamily.h"
#include "XmlFields.h"

/// The namespaces of the services' documents under their canonical prefixes. Communication waiting has a table of its
/// own.
extern IX_XML_EXPORT const XmlNamespaceRow kSimservsNamespaces[];
constexpr std::size_t kSimservsNamespaceCount = 3;

/// The fields of `ix_ns_xcap_simservType`, for the tables of the classes derived from it.
extern IX_XML_EXPORT const XmlFieldTable kSimservTable;

/// The log lines of a service's decoder, which name it (`decoder`), the name that it compares attributes' elements with
/// (`comparedName`), and the decoder that its namespace operations were taken from (`origin`).
#define IX_SERVICE_DECODER_TEXTS(texts, decoder, comparedName, origin)                                               \
    do {                                                                                                             \
        IX_OLD_DECODER_TEXTS(texts, decoder, "m_strDup or m_PassName", comparedName);                                    \
        (texts).noObject = {3, kSchemaCode, __LINE__, "<XML Module>: New Failed at element = \"%s\""};               \
        (texts).noPairOf = {3, kSchemaCode, __LINE__,                                                                \
                            "<XML Module>: New Failed at any attribute level with element = \"%s\""};                \
        (texts).noFirstNamespace = (texts).noNamespace = {2, kSchemaCode, __LINE__,                                  \
                                                          decoder " :: " decoder ": Malloc cannot allocate memory"}; \
        (texts).changeTagNoMemory = (texts).changeEndTagNoMemory = {                                                 \
            2, kDecoderCode, __LINE__, origin " :: XMLChangeNamespaceTag Malloc unable to allocate memory"};         \
        (texts).mappedTagNoMemory = (texts).mappedEndTagNoMemory = {                                                 \
            2, kDecoderCode, __LINE__, "XmlDecoder:: m_strDup: Malloc unable to allocate memory"};                   \
        (texts).removeTagNoMemory = IX_OLD_REMOVE_TAG_TEXT(origin);                                                      \
    } while (false)

/// What the decoders of the services share: namespaces and, with the exceptions that each makes, mapped names.
template <std::size_t containerCount, std::size_t attributeCount>
constexpr XmlOldDecoderInfo ixServiceDecoderInfo(const char* source, int line,
                                              const XmlOldContainerRow (&containers)[containerCount],
                                              const XmlOldAttributeRow (&attributes)[attributeCount]) {
    XmlOldDecoderInfo info = ixOldDecoderInfo(source, line, containers, attributes);
    info.names = XmlOldNamePolicy::Mapped;
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    return info;
}

/// What their marshallers share: namespaces, and no XML declaration.
template <std::size_t count>
constexpr XmlOldMarshallerInfo ixServiceMarshallerInfo(const char* source, const XmlOldWriterRow (&writers)[count]) {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(source, writers);
    info.writesDeclaration = false;
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    return info;
}

/// The log lines of a service's marshaller.
#define IX_SERVICE_MARSHALL_TEXTS(info, marshaller, kept)                                              \
    do {                                                                                               \
        IX_OLD_MARSHALL_TEXTS(info, marshaller, kept);                                                     \
        (info).noFirstNamespace = (info).noNamespace = {                                               \
            2, kSchemaCode, __LINE__, marshaller " :: " marshaller ": Malloc cannot allocate memory"}; \
    } while (false)

/// The simserv type: a service that is switched on or off.
class IX_XML_EXPORT ix_ns_xcap_simservType : public XMLObject {
  public:
    ~ix_ns_xcap_simservType() override;
    const char* BaseClassName() const override { return "XMLObject"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;
    /// An element "active" sets the switch by its text, "true" or "false"; as an object it is refused (0). Any other
    /// object is kept, anything else logged. @return 1, or 0. The services of this library take none of this over.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// @return 1.
    int setActiveValue(int active);
    /// Takes over a list of `ix_AttributeValuePair`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setExtensionListValue(IxSingleElementList* list);
    /// Appends a pair, which then belongs to the element. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addExtension(ix_AttributeValuePair* pair);

    int mActive = 1;                                ///< 1 active, else inactive; a new service is active.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned `ix_AttributeValuePair`s: every attribute but "active",
                                                    ///< such as namespace declarations, to be written back. NULL: none.
    IxSingleElementList* mAnyList = nullptr;        ///< Owned child elements of any other kind; never written. They and
                                                    ///< the pairs have no base class in common. NULL: none.

  protected:
    /// Appends `pair`, if it is one, unless the attribute is "active": that of the service does not come as a pair, and
    /// that of a child element does not count. @return 1, or 0 for "active".
    int TakeExtension(const char* attribute, XMLAttribute* pair);
    /// The source file of the service's own class, under which its list is registered.
    virtual const char* SourceFile() const = 0;
    /// The source line that goes with it.
    virtual int ExtensionListLine() const = 0;
};

/// Base of the marshallers of the services.
class IX_XML_EXPORT XmlServiceMarshaller : public XmlOldFamilyMarshaller {
  protected:
    using XmlOldFamilyMarshaller::XmlOldFamilyMarshaller;

    /// The start tag of a service with the prefix of the simservs namespace: the attributes kept from the document it
    /// was decoded from, then `active`, which ends the tag. The elements that follow have no prefix.
    void AddServiceStart(e_XmlStrRef name, const ix_ns_xcap_simservType& service, Attribute end);
};

#endif
