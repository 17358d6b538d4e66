#include "XMLCommunicationBarring.h"

#include "CommunicationBarring.h"

namespace {

using namespace XmlRow;

constexpr XmlField kAllowFields[] = {
    OwnText<&ix_allow_action_type::mAllow>(XmlFlag::TrueOrNot).Always(),
};

constexpr XmlField kBarringFields[] = {
    Attribute<&ix_ns_xcap_simservType::mActive>(IX_STR_ACTIVE, XmlFlag::TrueOrFalse).Always(),
    Attributes<&ix_ns_xcap_simservType::mExtensionList>(),
    Child<&ix_ns_xcap_ruleServiceType::mRuleset>(IX_STR_RULESET).In(XmlNamespace::CommonPolicy),
};

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLCommunicationBarringDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in CommunicationBarringUnMarshaller::UnMarshall"});

// Required: a transformations element has the class of the actions, and is written as actions.
constexpr XmlWriterRow kWriters[] = {
    ixWriter<&Communication_barringMarshaller::AddIncoming_communication_barringElementToXml>(
        {2, "<XML Module>: Incoming_communication_barringMarshaller XML Failed!"}),
    ixWriter<&Communication_barringMarshaller::AddOutgoing_communication_barringElementToXml>(
        {2, "<XML Module>: outgoing_communication_barringMarshaller XML Failed!"}),
    ixWriter<&XmlRuleMarshaller::AddRuleSetElementToXml>(),
    ixWriter<&XmlRuleMarshaller::AddRuleElementToXml>(),
    ixWriter<&XmlRuleMarshaller::AddConditionsElementToXml>(),
    ixWriter<&XmlRuleMarshaller::AddActionsElementToXml>(),
    ixWriter<&XmlRuleMarshaller::AddEmptyElementtoXml>(),
    ixWriter<&XmlRuleMarshaller::AddExceptElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo = ixServiceMarshallerInfo(
    ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("Communication_barringMarshaller", "mCbXml")),
    {2, "Communication_barringMarshaller :: Communication_barringMarshaller: Malloc cannot allocate memory"});

// Required: unlike other entry lines, that of the actions names the marshaller and no module.
constexpr XmlRuleWriterTexts kRuleTexts =
    IX_RULE_WRITER_TEXTS("Communication_barringMarshaller", "Communication_barringMarshaller: AddActionsElementToXml");

}  // namespace

constexpr XmlClass ix_allow_action_type::kClass =
    ixClass<ix_allow_action_type>("ix_allow_action_type", "CommunicationBarring:AllowActionType", kSource, kAllowFields,
                                  ixIgnoring())
        .Of(IX_STR_ALLOW);
// Required: its type is spelt with one "m".
constexpr XmlClass ix_incoming_communication_barring::kClass = ixServiceClass(
    ixClass<ix_incoming_communication_barring>("incoming-communication-barring", "IncomingComunicationBarring", kSource,
                                               kBarringFields, ixIgnoring())
        .Of(IX_STR_INCOMING_COMMUNICATION_BARRING));
constexpr XmlClass ix_outgoing_communication_barring::kClass = ixServiceClass(
    ixClass<ix_outgoing_communication_barring>("outgoing-communication-barring", "OutgoingCommunicationBarring",
                                               kSource, kBarringFields, ixIgnoring())
        .Of(IX_STR_OUTGOING_COMMUNICATION_BARRING));

CommunicationBarringDataBinder::CommunicationBarringDataBinder() : XmlRuleDataBinder(kSource) {}

int CommunicationBarringDataBinder::setCBType(XML_COMMUNICATION_BARRING_TYPE type) {
    ixLog(kSource, {4, "<XML Module>: in CommunicationBarringDataBinder::setCBType  %d"}, static_cast<int>(type));
    if (type != XML_CB_INCOMING && type != XML_CB_OUTGOING) {
        ixLog(kSource, {4, "<XML Module>: CB Type is invalid "});
        return 0;
    }
    m_type = type;
    return 1;
}

XMLElement* CommunicationBarringDataBinder::CreateRootElement() {
    if (m_type == XML_CB_INCOMING) return ixNew<ix_incoming_communication_barring>(kSource);
    if (m_type == XML_CB_OUTGOING) return ixNew<ix_outgoing_communication_barring>(kSource);
    return nullptr;
}
ix_allow_action_type* CommunicationBarringDataBinder::CreateAllowTypeElement() {
    return ixNew<ix_allow_action_type>(kSource);
}

CommunicationBarringUnMarshaller::CommunicationBarringUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

Communication_barringMarshaller::Communication_barringMarshaller() : XmlRuleMarshaller(kMarshallerInfo, kRuleTexts) {}

CommunicationBarringContext::CommunicationBarringContext()
    : XmlBinderContext(
          ixFamily<Communication_barringMarshaller, CommunicationBarringUnMarshaller, CommunicationBarringDataBinder>(
              kSource)) {}

bool Communication_barringMarshaller::Begin(XMLElement* root) {
    // Required: unlike elsewhere, the earlier text goes before the entry is logged.
    if (root != nullptr && root->ClassName() != nullptr) DeleteText();
    return XmlRuleMarshaller::Begin(root);
}

int Communication_barringMarshaller::AddBarring(const XmlLogText& entered, e_XmlStrRef name,
                                                const ix_ns_xcap_ruleServiceType* element) {
    if (!Enter(element, entered)) return 0;
    AddServiceStart(name, *element, false);
    EndService(name, *element);
    return 1;
}

int Communication_barringMarshaller::AddIncoming_communication_barringElementToXml(
    ix_incoming_communication_barring* element) {
    return AddBarring({2, "<XML Module>: AddIncoming_communication_barringElementToXml"},
                      IX_STR_INCOMING_COMMUNICATION_BARRING, element);
}

int Communication_barringMarshaller::AddOutgoing_communication_barringElementToXml(
    ix_outgoing_communication_barring* element) {
    // Required: a small "o".
    return AddBarring({2, "<XML Module>: Addoutgoing_communication_barringElementToXml"},
                      IX_STR_OUTGOING_COMMUNICATION_BARRING, element);
}

void Communication_barringMarshaller::AddAction(XMLElement* action) {
    // Required: a target is written without its address and flags.
    if (ixIs<ix_ns_xcap_forward_to_type>(action)) AddServiceText(IX_STR_FORWARD_TO, nullptr);
    const auto* const allow = ixAs<ix_allow_action_type>(action);
    if (allow != nullptr) AddServiceText(IX_STR_ALLOW, ixString(allow->mAllow != 0 ? IX_STR_TRUE : IX_STR_FALSE));
}
