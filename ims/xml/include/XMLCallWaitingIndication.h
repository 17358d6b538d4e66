/// @file
/// Call waiting indication (3GPP TS 24.229, IM CN subsystem XML body): tells a caller that the called party's call is
/// waiting.
///
/// - Root element: `3gpp-ims`, with the attribute `version` and one `alternative-service`, with one `action`, with the
///   empty element `call-waiting-indication`. XMLImsBody.h tells what the document shares with the CW indication.
/// - Namespace: none is expected or written.
/// - Prefixes: removed.
/// - Read and written. Lost: `version`, which is written when it was set but never read; other attributes and elements;
///   and an `alternative-service` behind the first one.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_CALL_WAITING_INDICATION_H
#define IX_XML_CALL_WAITING_INDICATION_H

#include "XMLImsBody.h"

/// The element `action`: what the caller is told.
class IX_XML_EXPORT ix_ns_call_waiting_indication_action : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_call_waiting_indication_action() : XmlDescribedElement(kClass) {}
    ~ix_ns_call_waiting_indication_action() override { ixRelease(*this, kClass); }

    /// Takes over the indication in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setCallWaitingIndicationValue(ix_empty_element_type* indication) {
        return ixSetChild(mCallWaitingIndication, indication);
    }

    ix_empty_element_type* mCallWaitingIndication = nullptr;  ///< Owned; NULL: not set. Written under its own name.
};

/// The element `alternative-service`.
class IX_XML_EXPORT ix_ns_call_waiting_indication_alternative_service : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_call_waiting_indication_alternative_service() : XmlDescribedElement(kClass) {}
    ~ix_ns_call_waiting_indication_alternative_service() override { ixRelease(*this, kClass); }

    /// Takes over the action in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setActionValue(ix_ns_call_waiting_indication_action* action) { return ixSetChild(mAction, action); }

    ix_ns_call_waiting_indication_action* mAction = nullptr;  ///< Owned; NULL: not set.
};

/// The element `3gpp-ims`.
class IX_XML_EXPORT ix_3gpp_ims : public ix_imsBodyType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_CALL_WAITING_INDICATION, class CallWaitingIndicationDataBinder>;

    ix_3gpp_ims() : ix_imsBodyType(kClass) {}
    ~ix_3gpp_ims() override { ixRelease(*this, kClass); }

    /// Takes over the service in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setAlternativeServiceValue(ix_ns_call_waiting_indication_alternative_service* service) {
        return ixSetChild(mAlternativeService, service);
    }

    ix_ns_call_waiting_indication_alternative_service* mAlternativeService = nullptr;  ///< Owned; NULL: not set.
};

/// Creates the elements of the schema; each creator yields NULL without memory.
class IX_XML_EXPORT CallWaitingIndicationDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_3gpp_ims`.
    XMLElement* CreateRootElement() override;
    ix_ns_call_waiting_indication_alternative_service* CreateAlternativeServiceElement();
    ix_ns_call_waiting_indication_action* CreateActionElement();
    /// A new indication, present and with the name of its element.
    ix_empty_element_type* CreateCallWaitingIndicationElement();
};

class IX_XML_EXPORT CallWaitingIndicationUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    CallWaitingIndicationUnMarshaller();
};

/// Writes the document without XML declaration. An element without its child is written empty; an indication that is
/// not present fails the whole document, and one without a name writes nothing.
class IX_XML_EXPORT CallWaitingIndicationMarshaller : public XmlImsBodyMarshaller {
  public:
    CallWaitingIndicationMarshaller();

    /// @name Each answers 1, or 0 for NULL, and when what is below it fails, after giving up the document.
    /// @{
    int Add3gppImsElementToXml(ix_3gpp_ims* element);
    int AddAlternativeServiceElementToXml(ix_ns_call_waiting_indication_alternative_service* service);
    int AddActionElementToXml(ix_ns_call_waiting_indication_action* action);
    /// Fails, too, when the indication is not present.
    int AddCallWaitingIndicationElementToXml(ix_empty_element_type* indication);
    /// @}
};

class IX_XML_EXPORT CallWaitingIndicationContext : public XmlFamilyContext {
  public:
    CallWaitingIndicationContext();
};

#endif
