/// @file
/// IM CN subsystem XML body (3GPP TS 24.229), and what the two documents made of it share: the call waiting indication
/// (XMLCallWaitingIndication.h) and the CW indication (XMLCWIndication.h), which differ by their root and by what an
/// alternative service holds.
///
/// - A root has the attribute `version` and holds an `alternative-service`.
/// - Namespace: none is expected or written.
/// - Prefixes: removed.
/// - Read and written. Lost: all attributes but `version`, and the elements that the headers of the two do not name.
#ifndef IX_XML_IMS_BODY_H
#define IX_XML_IMS_BODY_H

#include "XmlElementSupport.h"
#include "XmlOldFamily.h"
#include "XmlFields.h"

/// The root of both documents.
class IX_XML_EXPORT ix_imsBodyType : public XMLElement {
  public:
    static constexpr unsigned int kNoVersion = 0xffffffffU;

    const char* BaseClassName() const override { return "XMLElement"; }
    int Reserved() const override { return 0; }
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// @return 1.
    int setVersionValue(unsigned int version);

    unsigned int mVersion = kNoVersion;  ///< Version of the schema; `kNoVersion`: not set.

  protected:
    /// The source path that the log lines of the class show.
    virtual const char* SourceFile() const = 0;
};

/// The row of the version in the field tables of both roots.
constexpr XmlField kImsBodyVersionField = {XmlFieldKind::Unsigned, IX_STR_VERSION,
                                           XmlUnsignedMember(&ix_imsBodyType::mVersion), ix_imsBodyType::kNoVersion};

/// What the marshallers of both documents share.
class IX_XML_EXPORT XmlImsBodyMarshaller : public XmlOldFamilyMarshaller {
  protected:
    explicit XmlImsBodyMarshaller(const XmlOldMarshallerInfo& info) : XmlOldFamilyMarshaller(info) {}

    /// The start tag of the root, with its version when there is one: `<3gpp-ims version="1">`.
    void StartRoot(e_XmlStrRef name, const ix_imsBodyType& root);
};

/// @name Constants of both families
/// Each family logs them under its own source path, and takes the line from `line`.
/// @{

constexpr XmlLogText ixImsBodyAddAlternativeService(int line) {
    return {2, kSchemaCode, line, "<XML Module>: AddAlternativeServiceElementToXml"};
}

// Required: the texts of the CW indication family name the classes of the call waiting indication family.

constexpr XmlLogText ixImsBodyAlternativeServiceFailed(int line) {
    return {2, kSchemaCode, line,
            "<XML Module>: CallWaitingIndicationMarshaller XML Failed at AddAlternativeServiceElementToXml!"};
}

constexpr XmlOldUnMarshallerInfo ixImsBodyUnMarshallerInfo(const char* source, int line,
                                                        XmlOldFamilyDecoder* (*createDecoder)(int line)) {
    return ixOldUnMarshallerInfo(source, line, createDecoder,
                              "<XML Module>: StrDup failed in CallWaitingIndicationUnMarshaller::UnMarshall");
}

/// @param writer the row of the root.
constexpr XmlOldMarshallerInfo ixImsBodyMarshallerInfo(const char* source, int line, const XmlOldWriterRow& writer) {
    XmlOldMarshallerInfo info;
    info.source = source;
    info.writers = &writer;
    info.writerCount = 1;
    info.entered = {3, kSchemaCode, line, "<XML Module>: CallWaitingIndicationMarshaller :: Marshall"};
    info.deleting = {3, kSchemaCode, line,
                     "<XML Module>: CallWaitingIndicationMarshaller :: Marshall: Deleting mCallWaitingIndicationXml"};
    info.written = {2, kSchemaCode, line, "<XML Module>: CallWaitingIndicationMarshaller XML %s"};
    info.failed = {2, kSchemaCode, line, "<XML Module>: CallWaitingIndicationMarshaller XML Failed!"};
    return info;
}

/// @param attribute the one that is given to an object without a pair, before it is given with one like all others.
template <std::size_t count>
constexpr XmlOldDecoderInfo ixImsBodyDecoderInfo(const char* source, int line, const XmlOldContainerRow (&containers)[count],
                                              const XmlOldAttributeRow& attribute) {
    XmlOldDecoderInfo info = ixOldDecoderInfo(source, line, containers);
    info.names = XmlOldNamePolicy::Stripped;
    info.attributePolicy = XmlOldAttributePolicy::TopTwice;
    info.attributes = &attribute;
    info.attributeCount = 1;
    return info;
}
/// @}

#endif
