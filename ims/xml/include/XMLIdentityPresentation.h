/// @file
/// The two identity presentation services, which differ in names only: originating
/// (XMLOriginatingIdentityPresentation.h) and terminating (XMLTerminatingIdentityPresentation.h).
#ifndef IX_XML_IDENTITY_PRESENTATION_H
#define IX_XML_IDENTITY_PRESENTATION_H

#include "XMLSimservsXcap.h"

/// The root element of either service: nothing but the switch.
class IX_XML_EXPORT ix_ns_identity_presentationType : public ix_ns_xcap_simservType {
  public:
    /// Child elements are ignored, `active` included. @return 1.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    /// `active` is 1 for exactly "true" and 0 for anything else; as a pair it is refused. Other pairs are kept.
    /// @return 1, or 0.
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

  protected:
    int ExtensionListLine() const override;
};

/// Writes `<ss:NAME  active="true"/>`, with the attributes kept from the document it was decoded from before `active`,
/// and with the prefix that a namespace binder gives to the namespace. No XML declaration, and no namespace declaration
/// unless it was among the attributes.
class IX_XML_EXPORT XmlIdentityPresentationMarshaller : public XmlServiceMarshaller {
  protected:
    using XmlServiceMarshaller::XmlServiceMarshaller;

    /// Logs `entered` and writes the element. @return 1, or 0 for NULL.
    int AddIdentityElementToXml(const XmlLogText& entered, e_XmlStrRef name,
                                const ix_ns_identity_presentationType* element);
};

/// @name Constants of both services
/// `service` is its short name, "OIP" or "TIP"; `word` is its first word, "Originating" or "Terminating".
/// @{
#define IX_IDENTITY_UNMARSHALLER_INFO(service, decoder)                                                          \
    [] {                                                                                                         \
        XmlOldUnMarshallerInfo info = IX_OLD_UNMARSHALLER_INFO(decoder, service "UnMarshaller");                        \
        info.textCopied = {2, kSchemaCode, __LINE__,                                                             \
                           "<XML Module>: " service "UnMarshaller::UnMarshall: pstring is %s"};                  \
        info.fileEntered = {2, kSchemaCode, __LINE__,                                                            \
                            "<XML Module>: " service "UnMarshaller::UnMarshall(XMLFile* pfile): pstring is %s"}; \
        info.decoded = {2, kSchemaCode, __LINE__, "<XML Module>: XML Decode Success"};                           \
        info.notDecoded = {2, kSchemaCode, __LINE__, "<XML Module>: XML Decode Failed"};                         \
        return info;                                                                                             \
    }()

#define IX_IDENTITY_MARSHALLER_INFO(service, writers)                             \
    [] {                                                                          \
        XmlOldMarshallerInfo info = ixServiceMarshallerInfo(kSourceFile, writers);   \
        IX_SERVICE_MARSHALL_TEXTS(info, service "Marshaller", "m" service "Xml"); \
        return info;                                                              \
    }()

#define IX_IDENTITY_DECODER_INFO(service, word, containers, attributes)                                       \
    [] {                                                                                                      \
        XmlOldDecoderInfo info = ixServiceDecoderInfo(kSourceFile, __LINE__, containers, attributes);            \
        info.names = XmlOldNamePolicy::Stripped;                                                                 \
        info.attributePolicy = XmlOldAttributePolicy::Top;                                                       \
        IX_SERVICE_DECODER_TEXTS(info.texts, "XML" service "Decoder", "m_PassName", "XML" service "Decoder"); \
        info.texts.noFirstNamespace = {2, kSchemaCode, __LINE__,                                              \
                                       "XML" service "Decoder :: XML" word                                    \
                                       "IdentityPresentationDecoder: Malloc cannot allocate memory"};         \
        return info;                                                                                          \
    }()
/// @}

#endif
