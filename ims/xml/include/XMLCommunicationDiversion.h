/// @file
/// Communication diversion (3GPP TS 24.604, XCAP document of TS 24.623): under which conditions calls are forwarded,
/// and to whom.
///
/// - Root element: `communication-diversion`, with the attribute `active`, a no-reply timer and a ruleset
/// (XMLCommonPolicy.h). A document whose outermost element is a part of it (a rule, the conditions, a target ...)
/// decodes to that part, and parts can be written alone, as an XCAP client needs them.
/// - Namespaces: http://uri.etsi.org/ngn/params/xml/simservs/xcap and urn:ietf:params:xml:ns:common-policy.
/// - Prefixes: mapped. Elements of the services are recognised without a prefix and as `ss:`, those of common-policy as
/// `cp:`, both with the prefixes of a namespace binder as well. Written with `ss:` and `cp:`, or those of the binder.
/// - Read and written. Lost on writing: the content of `transformations`, the condition `presence-status`, and elements
/// that this library does not know. Lost on reading: a timer that follows the ruleset.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_COMMUNICATION_DIVERSION_H
#define IX_XML_COMMUNICATION_DIVERSION_H

#include "XMLSimservsRules.h"

/// The element `NoReplyTimer`: for how long a call rings before it is forwarded.
class IX_XML_EXPORT ix_NoReplyTimer : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_NoReplyTimer() : XmlDescribedElement(kClass) {}
    ~ix_NoReplyTimer() override { ixRelease(*this, kClass); }
    /// A text that is no number within the bounds leaves the timer as it is. @return 1, or 0 for an object.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// @param seconds 5 to 180. @return 1, or 0 for any other number, the earlier one kept.
    int setNoReplyTimerValue(unsigned int seconds);

    unsigned int mNoReplyTimer = 0;  ///< Seconds; 0 until set.
};

/// The element `communication-diversion`.
class IX_XML_EXPORT ix_communication_diversion : public ix_ns_xcap_ruleServiceType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_COMMUNICATION_DIVERSION, class CommunicationDiversionDataBinder>;

    ix_communication_diversion() : ix_ns_xcap_ruleServiceType(kClass) {}
    ~ix_communication_diversion() override { ixDelete(mNoReplyTimer); }
    /// Also takes the text of `NoReplyTimer`.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Stores a timer, which passes to this element, in place of an earlier one, which is deleted; NULL clears it.
    /// @return 1.
    int setNoReplyTimerValue(ix_NoReplyTimer* timer) { return ixSetChild(mNoReplyTimer, timer); }

    ix_NoReplyTimer* mNoReplyTimer = nullptr;  ///< Owned; NULL: none.
};

/// Creates the elements of the schema, which the caller links. Each creator yields NULL without memory.
class IX_XML_EXPORT CommunicationDiversionDataBinder : public XmlRuleDataBinder {
  public:
    CommunicationDiversionDataBinder();

    /// A new `ix_communication_diversion`, active.
    XMLElement* CreateRootElement() override;
    ix_ns_xcap_forward_to_type* CreateForwardToTypeElement();
    ix_NoReplyTimer* CreateNoReplyTimerElement();
};

class IX_XML_EXPORT CommunicationDiversionUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    CommunicationDiversionUnMarshaller();
};

/// Writes the document, or one of its parts: timer, ruleset, rule, conditions, actions, target, flag. No XML
/// declaration, and no namespace declarations but those kept from the document that the root was decoded from.
///
/// Required: a transformations element alone is written as `actions`, being of the same class.
class IX_XML_EXPORT Communication_diversionMarshaller : public XmlRuleMarshaller {
  public:
    Communication_diversionMarshaller();

    /// @return 1, or 0 for NULL.
    int AddCommunication_diversionElementToXml(ix_communication_diversion* element);
    /// Writes nothing for NULL. @return 1.
    int AddNoReplyTimerElementToXml(ix_NoReplyTimer* element);
    /// @return 1, or 0 for NULL.
    int AddForwardToElementtoXml(ix_ns_xcap_forward_to_type* element);

  protected:
    void AddAction(XMLElement* action) override;

  private:
    void AddNotification(e_XmlStrRef name, int value);
};

class IX_XML_EXPORT CommunicationDiversionContext : public XmlBinderContext {
  public:
    CommunicationDiversionContext();
};

#endif
