#include "XMLCommunicationDiversion.h"

#include <iterator>

#include "CommunicationDiversion.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLCommunicationDiversion";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLCommunicationDiversionDecoder, "CommunicationDiversionUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(Communication_diversionMarshaller, AddCommunication_diversionElementToXml,
                  ix_communication_diversion)},
    {IX_OLD_WRITER_OF(Communication_diversionMarshaller, AddNoReplyTimerElementToXml, ix_NoReplyTimer)},
    IX_RULE_WRITER_ROWS,
    {IX_OLD_WRITER_OF(Communication_diversionMarshaller, AddForwardToElementtoXml, ix_ns_xcap_forward_to_type)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixServiceMarshallerInfo(kSourceFile, kWriters);
    IX_SERVICE_MARSHALL_TEXTS(info, "Communication_diversionMarshaller", "mCdivXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlRuleWriterTexts kRuleTexts =
    IX_RULE_WRITER_TEXTS("Communication_diversionMarshaller", "<XML Module>: AddActionsElementToXml");

constexpr XmlLogText kAddElement = {2, kSchemaCode, __LINE__, "<XML Module>: AddCommunication_diversionElementToXml"};

constexpr unsigned int kShortestTimer = 5;
constexpr unsigned int kLongestTimer = 180;

constexpr XmlField kTimerFields[] = {
    {XmlFieldKind::Unsigned, IX_STR_IX_NULL, XmlUnsignedMember(&ix_NoReplyTimer::mNoReplyTimer), kXmlAlwaysSet, nullptr,
     "text"},
};
constexpr XmlFieldTable kTimerTable = {nullptr, kTimerFields, std::size(kTimerFields)};

// The timer comes before the ruleset of the base class, which frees its field itself.
constexpr XmlField kDiversionFields[] = {
    {XmlFieldKind::Child, IX_STR_NOREPLYTIMER, IX_CHILD_MEMBER(ix_communication_diversion, mNoReplyTimer)},
    {XmlFieldKind::Child, IX_STR_RULESET, IX_CHILD_MEMBER(ix_communication_diversion, mRuleset)},
};
constexpr XmlFieldTable kDiversionTable = {&kSimservTable, kDiversionFields, std::size(kDiversionFields)};
constexpr XmlFieldTable kOwnDiversionTable = {nullptr, kDiversionFields, 1};

}  // namespace

ix_NoReplyTimer::~ix_NoReplyTimer() { XmlFields::Release(this, kTimerTable); }

const XmlFieldTable* ix_NoReplyTimer::FieldTable() const { return &kTimerTable; }

int ix_NoReplyTimer::setNoReplyTimerValue(unsigned int seconds) {
    if (seconds < kShortestTimer || seconds > kLongestTimer) return 0;
    mNoReplyTimer = seconds;
    return 1;
}

ix_communication_diversion::~ix_communication_diversion() { XmlFields::Release(this, kOwnDiversionTable); }

const XmlFieldTable* ix_communication_diversion::FieldTable() const { return &kDiversionTable; }

int ix_communication_diversion::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (!ixEndNameIs(name, IX_STR_NOREPLYTIMER))
        return ix_ns_xcap_ruleServiceType::ProcessUnMarshall(name, text, child);
    if (child != nullptr) return 0;
    ix_NoReplyTimer* const timer = IX_NEW(ix_NoReplyTimer);
    if (timer == nullptr) return 0;
    // A number that is refused leaves the timer at 0.
    if (text != nullptr) timer->setNoReplyTimerValue(static_cast<unsigned int>(__atoi(text)));
    return setNoReplyTimerValue(timer);
}

const char* ix_communication_diversion::SourceFile() const { return kSourceFile; }

XMLElement* CommunicationDiversionDataBinder::CreateRootElement() { return IX_NEW(ix_communication_diversion); }

ix_ns_xcap_forward_to_type* CommunicationDiversionDataBinder::CreateForwardToTypeElement() {
    return IX_NEW(ix_ns_xcap_forward_to_type);
}

ix_NoReplyTimer* CommunicationDiversionDataBinder::CreateNoReplyTimerElement() { return IX_NEW(ix_NoReplyTimer); }

const char* CommunicationDiversionDataBinder::SourceFile() const { return kSourceFile; }

Communication_diversionMarshaller::Communication_diversionMarshaller()
    : XmlRuleMarshaller(kMarshallerInfo, kRuleTexts) {}

int Communication_diversionMarshaller::AddCommunication_diversionElementToXml(ix_communication_diversion* element) {
    ixLog(kSourceFile, kAddElement);
    if (element == nullptr) return 0;
    AddRuleService(IX_STR_COMMUNICATION_DIVERSION, *element);
    return 1;
}

void Communication_diversionMarshaller::AddServiceElements(const ix_ns_xcap_ruleServiceType& service) {
    AddNoReplyTimerElementToXml(static_cast<const ix_communication_diversion&>(service).mNoReplyTimer);
}

int Communication_diversionMarshaller::AddNoReplyTimerElementToXml(ix_NoReplyTimer* element) {
    if (element == nullptr) return 1;
    SetElementPrefix(IX_STR_SS);
    AddDecimalElement(IX_STR_NOREPLYTIMER, element->mNoReplyTimer);
    return 1;
}

void Communication_diversionMarshaller::AddAction(XMLElement* action) {
    if (ixIs<ix_ns_xcap_forward_to_type>(action))
        AddForwardToElementtoXml(static_cast<ix_ns_xcap_forward_to_type*>(action));
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
    AddTextElement(name, ix_xml_common_array_definition::getStringName(value == 1 ? IX_STR_TRUE : IX_STR_FALSE));
}

IX_OLD_FAMILY(CommunicationDiversionContext, Communication_diversionMarshaller, CommunicationDiversionUnMarshaller,
          CommunicationDiversionDataBinder);
