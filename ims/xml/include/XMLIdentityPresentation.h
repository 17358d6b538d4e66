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

    /// Logs `entered` and writes the element. @return 1.
    int AddIdentityElementToXml(const XmlLogText& entered, e_XmlStrRef name,
                                const ix_ns_identity_presentationType& element);
};

/// What both unmarshallers have in common; `service` is "OIP" or "TIP".
#define IX_IDENTITY_UNMARSHALLER_TEXTS(info, service)                                                              \
    do {                                                                                                           \
        (info).textCopied = {2, kSchemaCode, __LINE__,                                                             \
                             "<XML Module>: " service "UnMarshaller::UnMarshall: pstring is %s"};                  \
        (info).fileEntered = {2, kSchemaCode, __LINE__,                                                            \
                              "<XML Module>: " service "UnMarshaller::UnMarshall(XMLFile* pfile): pstring is %s"}; \
        (info).noCopy = {4, kSchemaCode, __LINE__,                                                                 \
                         "<XML Module>: StrDup failed in " service "UnMarshaller::UnMarshall"};                    \
        (info).decoded = {2, kSchemaCode, __LINE__, "<XML Module>: XML Decode Success"};                           \
        (info).notDecoded = {2, kSchemaCode, __LINE__, "<XML Module>: XML Decode Failed"};                         \
    } while (false)

#endif
