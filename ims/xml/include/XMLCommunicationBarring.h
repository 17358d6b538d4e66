/// @file
/// Communication barring (3GPP TS 24.611, XCAP documents of TS 24.623): under which conditions calls are barred, in
/// either direction.
///
/// - Root elements: `incoming-communication-barring` and `outgoing-communication-barring`, with the attribute `active`
/// and a ruleset (XMLCommonPolicy.h). A document whose outermost element is a part of it (a rule, the conditions ...)
/// decodes to that part, and parts can be written alone, as an XCAP client needs them.
/// - Namespaces: http://uri.etsi.org/ngn/params/xml/simservs/xcap and urn:ietf:params:xml:ns:common-policy.
/// - Prefixes: mapped. Elements of the services are recognised without a prefix and as `ss:`, those of common-policy as
/// `cp:`, both with the prefixes of a namespace binder as well. Written with `ss:` and `cp:`, or those of the binder.
/// - Read and written. Lost on writing: the content of `transformations` and `forward-to`, the condition
/// `presence-status`, and elements that this library does not know.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_COMMUNICATION_BARRING_H
#define IX_XML_COMMUNICATION_BARRING_H

#include "XMLSimservsRules.h"

/// Which root `CommunicationBarringDataBinder` creates.
enum XML_COMMUNICATION_BARRING_TYPE { XML_CB_INCOMING = 1, XML_CB_OUTGOING = 2, XML_CB_NONE = 3 };

/// The action `allow`.
class IX_XML_EXPORT ix_allow_action_type : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_allow_action_type() : XmlDescribedElement(kClass) {}
    ~ix_allow_action_type() override { ixRelease(*this, kClass); }

    /// @return 1.
    int setAllowValue(int allow) { return ixSetNumber(mAllow, allow); }

    int mAllow = 0;  ///< 1 the call is allowed, 0 it is barred.
};

/// The element `incoming-communication-barring`.
class IX_XML_EXPORT ix_incoming_communication_barring : public ix_ns_xcap_ruleServiceType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_COMMUNICATION_BARRING, class CommunicationBarringDataBinder>;

    ix_incoming_communication_barring() : ix_ns_xcap_ruleServiceType(kClass) {}
};

/// The element `outgoing-communication-barring`.
class IX_XML_EXPORT ix_outgoing_communication_barring : public ix_ns_xcap_ruleServiceType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_COMMUNICATION_BARRING, class CommunicationBarringDataBinder>;

    ix_outgoing_communication_barring() : ix_ns_xcap_ruleServiceType(kClass) {}
};

/// Creates the elements of the schema, which the caller links. Each creator yields NULL without memory.
class IX_XML_EXPORT CommunicationBarringDataBinder : public XmlRuleDataBinder {
  public:
    CommunicationBarringDataBinder();

    /// Says which root to create. @return 1, or 0 for anything but incoming and outgoing, the earlier type kept.
    int setCBType(XML_COMMUNICATION_BARRING_TYPE type);
    /// A new root of the type that `setCBType` said, active; NULL before that.
    XMLElement* CreateRootElement() override;
    ix_allow_action_type* CreateAllowTypeElement();

  private:
    XML_COMMUNICATION_BARRING_TYPE m_type = XML_CB_NONE;
};

class IX_XML_EXPORT CommunicationBarringUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    CommunicationBarringUnMarshaller();
};

/// Writes a document, or one of its parts: ruleset, rule, conditions, actions, flag, exception. No XML declaration, and
/// no namespace declarations but those kept from the document that the root was decoded from.
///
/// Required: a transformations element alone is written as `actions`, being of the same class.
class IX_XML_EXPORT Communication_barringMarshaller : public XmlRuleMarshaller {
  public:
    Communication_barringMarshaller();

    /// @name Each answers 1, or 0 for NULL.
    /// @{
    int AddIncoming_communication_barringElementToXml(ix_incoming_communication_barring* element);
    int AddOutgoing_communication_barringElementToXml(ix_outgoing_communication_barring* element);
    /// @}

  protected:
    bool Begin(XMLElement* root) override;
    void AddAction(XMLElement* action) override;

  private:
    int AddBarring(const XmlLogText& entered, e_XmlStrRef name, const ix_ns_xcap_ruleServiceType* element);
};

class IX_XML_EXPORT CommunicationBarringContext : public XmlBinderContext {
  public:
    CommunicationBarringContext();
};

#endif
