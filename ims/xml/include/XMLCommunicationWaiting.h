/// @file
/// Communication waiting (3GPP TS 24.615, XCAP document of TS 24.623).
///
/// - Root element: `communication-waiting`, with the attribute `active`; no children.
/// - Namespace: http://uri.etsi.org/ngn/params/xml/simservs/xcap.
/// - Prefixes: mapped. The element is recognised without a prefix and as `ss:`, and with the prefix of a namespace
/// binder.
/// - Read and written.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_COMMUNICATION_WAITING_H
#define IX_XML_COMMUNICATION_WAITING_H

#include "XMLSimservsXcap.h"

/// The element `communication-waiting`.
class IX_XML_EXPORT ix_communication_waiting : public ix_ns_xcap_simservType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_COMMUNICATION_WAITING, class CommunicationWaitingDataBinder>;

    /// Unlike the other services, a new one is inactive.
    ix_communication_waiting() : ix_ns_xcap_simservType(kClass) { mActive = 0; }
    /// What comes without a pair is the switch, 1 for exactly "true"; pairs are kept, but `active`. @return 1.
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;
};

class IX_XML_EXPORT CommunicationWaitingDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_communication_waiting`, inactive.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT CommunicationWaitingUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    CommunicationWaitingUnMarshaller();
};

/// Writes `<communication-waiting  active="true"/>`, with the attributes kept from the document it was decoded from
/// before `active`, and with the prefix that a namespace binder gives to the namespace. No XML declaration.
class IX_XML_EXPORT Communication_waitingMarshaller : public XmlServiceMarshaller {
  public:
    Communication_waitingMarshaller();

    /// @return 1, or 0 for NULL.
    int AddCommunication_waitingElementToXml(ix_communication_waiting* element);
};

class IX_XML_EXPORT CommunicationWaitingContext : public XmlBinderContext {
  public:
    CommunicationWaitingContext();
};

#endif
