#include "XMLCommunicationDiversion.h"

#include "CommunicationDiversion.h"

namespace {

using namespace XmlRow;

constexpr unsigned int kShortestTimer = 5;
constexpr unsigned int kLongestTimer = 180;

constexpr XmlField kTimerFields[] = {
    OwnText<&ix_NoReplyTimer::mNoReplyTimer>().Always(),
};

constexpr XmlField kDiversionFields[] = {
    Attribute<&ix_ns_xcap_simservType::mActive>(IX_STR_ACTIVE, XmlFlag::TrueOrFalse).Always(),
    Attributes<&ix_ns_xcap_simservType::mExtensionList>(),
    Child<&ix_communication_diversion::mNoReplyTimer>(IX_STR_NOREPLYTIMER),
    Child<&ix_ns_xcap_ruleServiceType::mRuleset>(IX_STR_RULESET).In(XmlNamespace::CommonPolicy),
};

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLCommunicationDiversionDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in CommunicationDiversionUnMarshaller::UnMarshall"});

// Required: a transformations element has the class of the actions, and is written as actions.
constexpr XmlWriterRow kWriters[] = {
    ixWriter<&Communication_diversionMarshaller::AddCommunication_diversionElementToXml>(),
    ixWriter<&Communication_diversionMarshaller::AddNoReplyTimerElementToXml>(),
    ixWriter<&XmlRuleMarshaller::AddRuleSetElementToXml>(),
    ixWriter<&XmlRuleMarshaller::AddRuleElementToXml>(),
    ixWriter<&XmlRuleMarshaller::AddConditionsElementToXml>(),
    ixWriter<&XmlRuleMarshaller::AddActionsElementToXml>(),
    ixWriter<&Communication_diversionMarshaller::AddForwardToElementtoXml>(),
    ixWriter<&XmlRuleMarshaller::AddEmptyElementtoXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo = ixServiceMarshallerInfo(
    ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("Communication_diversionMarshaller", "mCdivXml")),
    {2, "Communication_diversionMarshaller :: Communication_diversionMarshaller: Malloc cannot allocate memory"});

constexpr XmlRuleWriterTexts kRuleTexts =
    IX_RULE_WRITER_TEXTS("Communication_diversionMarshaller", "<XML Module>: AddActionsElementToXml");

}  // namespace

constexpr XmlClass ix_NoReplyTimer::kClass =
    ixClass<ix_NoReplyTimer>("ix_NoReplyTimer", "NoReplyTimer", kSource, kTimerFields, ixIgnoring())
        .Of(IX_STR_NOREPLYTIMER);
constexpr XmlClass ix_communication_diversion::kClass =
    ixServiceClass(ixClass<ix_communication_diversion>("communication-diversion", "CommunicationDiversion", kSource,
                                                       kDiversionFields, ixIgnoring())
                       .Of(IX_STR_COMMUNICATION_DIVERSION));

int ix_NoReplyTimer::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    const bool isText = child == nullptr && text != nullptr && ixEndNameIs(name, IX_STR_NOREPLYTIMER);
    if (!isText) return XmlDescribedElement::ProcessUnMarshall(name, text, child);
    // Required: a number out of bounds is no error.
    setNoReplyTimerValue(static_cast<unsigned int>(__atoi(text)));
    return 1;
}

int ix_NoReplyTimer::setNoReplyTimerValue(unsigned int seconds) {
    if (seconds < kShortestTimer || seconds > kLongestTimer) return 0;
    mNoReplyTimer = seconds;
    return 1;
}

int ix_communication_diversion::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (!ixEndNameIs(name, IX_STR_NOREPLYTIMER)) {
        return ix_ns_xcap_ruleServiceType::ProcessUnMarshall(name, text, child);
    }
    if (child != nullptr) return 0;
    // Required: the timer is made at its end tag, and only by the service around it.
    auto* const timer = ixNew<ix_NoReplyTimer>(kSource);
    if (timer == nullptr) return 0;
    timer->ProcessUnMarshall(name, text, nullptr);
    return setNoReplyTimerValue(timer);
}

CommunicationDiversionDataBinder::CommunicationDiversionDataBinder() : XmlRuleDataBinder(kSource) {}

XMLElement* CommunicationDiversionDataBinder::CreateRootElement() { return ixNew<ix_communication_diversion>(kSource); }
ix_ns_xcap_forward_to_type* CommunicationDiversionDataBinder::CreateForwardToTypeElement() {
    return ixNew<ix_ns_xcap_forward_to_type>(kSource);
}
ix_NoReplyTimer* CommunicationDiversionDataBinder::CreateNoReplyTimerElement() {
    return ixNew<ix_NoReplyTimer>(kSource);
}

CommunicationDiversionUnMarshaller::CommunicationDiversionUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

Communication_diversionMarshaller::Communication_diversionMarshaller()
    : XmlRuleMarshaller(kMarshallerInfo, kRuleTexts) {}

CommunicationDiversionContext::CommunicationDiversionContext()
    : XmlBinderContext(ixFamily<Communication_diversionMarshaller, CommunicationDiversionUnMarshaller,
                                CommunicationDiversionDataBinder>(kSource)) {}

int Communication_diversionMarshaller::AddCommunication_diversionElementToXml(ix_communication_diversion* element) {
    if (!Enter(element, {2, "<XML Module>: AddCommunication_diversionElementToXml"})) return 0;
    AddServiceStart(IX_STR_COMMUNICATION_DIVERSION, *element, false);
    AddNoReplyTimerElementToXml(element->mNoReplyTimer);
    EndService(IX_STR_COMMUNICATION_DIVERSION, *element);
    return 1;
}

int Communication_diversionMarshaller::AddNoReplyTimerElementToXml(ix_NoReplyTimer* element) {
    // Required: unlike other writers, it does not fail for NULL.
    if (element == nullptr) return 1;
    SetElementPrefix(IX_STR_SS);
    AddDecimalElement(IX_STR_NOREPLYTIMER, element->mNoReplyTimer);
    return 1;
}

void Communication_diversionMarshaller::AddAction(XMLElement* action) {
    AddForwardToElementtoXml(ixAs<ix_ns_xcap_forward_to_type>(action));
}

int Communication_diversionMarshaller::AddForwardToElementtoXml(ix_ns_xcap_forward_to_type* element) {
    if (element == nullptr) return 0;
    StartPrefixed(IX_STR_SS, IX_STR_FORWARD_TO);
    AddTextElement(IX_STR_TARGET, element->mTarget);
    AddNotification(IX_STR_NOTIFY_CALLER, element->mNotifyCaller);
    AddTextElement(IX_STR_REVEAL_IDENTITY_TO_CALLER,
                   ix_ns_xcap_forward_to_type::RevealText(element->mRevealIdentityToCaller));
    AddTextElement(IX_STR_REVEAL_SERVED_USER_IDENTITY_TO_CALLER,
                   ix_ns_xcap_forward_to_type::RevealText(element->mRevealServedUserIdentityToCaller));
    AddNotification(IX_STR_NOTIFY_SERVED_USER, element->mNotifyServedUser);
    AddNotification(IX_STR_NOTIFY_SERVED_USER_ON_OUTBOUND_CALL, element->mNotifyServedUserOnOutboundCall);
    AddTextElement(IX_STR_REVEAL_IDENTITY_TO_TARGET,
                   ix_ns_xcap_forward_to_type::RevealText(element->mRevealIdentityToTarget));
    EndElement(IX_STR_FORWARD_TO);
    return 1;
}

/// Nothing when it is not set.
void Communication_diversionMarshaller::AddNotification(e_XmlStrRef name, int value) {
    if (value == ix_ns_xcap_forward_to_type::kNotifyNotSet) return;
    AddTextElement(name, ixString(value == 1 ? IX_STR_TRUE : IX_STR_FALSE));
}
