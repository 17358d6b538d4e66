#include "XMLSimservsXcap.h"

#include <iterator>

#include "XmlFields.h"

namespace {

using namespace XmlRow;

constexpr XmlField kSimservFields[] = {
    Attribute<&ix_ns_xcap_simservType::mActive>(IX_STR_ACTIVE, XmlFlag::TrueOrFalse).Always(),
    Attributes<&ix_ns_xcap_simservType::mExtensionList>(),
    Others<&ix_ns_xcap_simservType::mAnyList>(),
};

constexpr XmlField kMediaFields[] = {
    OwnText<&ix_ns_xcap_media_type::mMedia>().LeavesEarlier(),
};

constexpr XmlField kPresenceStatusFields[] = {
    OwnText<&ix_presence_status_activity_type::mPresenceStatus>().LeavesEarlier(),
};

constexpr XmlField kExternalListFields[] = {
    OwnText<&ix_external_list::mExternalList>().LeavesEarlier(),
};

constexpr char kRevealTexts[][100] = {"false", "not-reveal-GRUU", "true"};
constexpr XmlEnumeration kReveal = {kRevealTexts[0], sizeof kRevealTexts[0], int{std::size(kRevealTexts)}, true};
static_assert(kReveal.count == ix_ns_xcap_forward_to_type::kRevealNotSet, "not set is past the last text");

constexpr XmlField kForwardToFields[] = {
    Element<&ix_ns_xcap_forward_to_type::mTarget>(IX_STR_TARGET).Mandatory(),
    Element<&ix_ns_xcap_forward_to_type::mNotifyCaller>(IX_STR_NOTIFY_CALLER, XmlFlag::TrueOrFalse)
        .NotSet(ix_ns_xcap_forward_to_type::kNotifyNotSet),
    Element<&ix_ns_xcap_forward_to_type::mRevealIdentityToCaller>(IX_STR_REVEAL_IDENTITY_TO_CALLER, kReveal),
    Element<&ix_ns_xcap_forward_to_type::mRevealServedUserIdentityToCaller>(
        IX_STR_REVEAL_SERVED_USER_IDENTITY_TO_CALLER, kReveal),
    Element<&ix_ns_xcap_forward_to_type::mNotifyServedUser>(IX_STR_NOTIFY_SERVED_USER, XmlFlag::TrueOrFalse)
        .NotSet(ix_ns_xcap_forward_to_type::kNotifyNotSet),
    Element<&ix_ns_xcap_forward_to_type::mNotifyServedUserOnOutboundCall>(IX_STR_NOTIFY_SERVED_USER_ON_OUTBOUND_CALL,
                                                                          XmlFlag::TrueOrFalse)
        .NotSet(ix_ns_xcap_forward_to_type::kNotifyNotSet),
    Element<&ix_ns_xcap_forward_to_type::mRevealIdentityToTarget>(IX_STR_REVEAL_IDENTITY_TO_TARGET, kReveal),
};

constexpr XmlAnswers SimservAnswers() {
    XmlAnswers answers;
    answers.needsName = true;
    answers.unknown = {2, "Cannot accommodate the element %s with value %s"};
    return answers;
}

/// A target refuses what it has no place for.
constexpr XmlAnswers ForwardToAnswers() {
    XmlAnswers answers;
    answers.event = 0;
    return answers;
}

}  // namespace

constexpr XmlClass ix_ns_xcap_simservType::kClass =
    ixClass<ix_ns_xcap_simservType>("ix_ns_xcap_simservType", "simservType", kSource, kSimservFields, SimservAnswers());
constexpr XmlClass ix_ns_xcap_media_type::kClass =
    ixClass<ix_ns_xcap_media_type>("ix_ns_xcap_media_type", "MediaType", kSource, kMediaFields, ixIgnoring())
        .Of(IX_STR_MEDIA);
constexpr XmlClass ix_presence_status_activity_type::kClass =
    ixClass<ix_presence_status_activity_type>("ix_presence_status_activity_type", "PresenceStatusActivityType", kSource,
                                              kPresenceStatusFields, ixIgnoring())
        .Of(IX_STR_PRESENCE_STATUS);
constexpr XmlClass ix_external_list::kClass =
    ixClass<ix_external_list>("ix_external_list", "ExternalList", kSource, kExternalListFields);
constexpr XmlClass ix_ns_xcap_forward_to_type::kClass =
    ixClass<ix_ns_xcap_forward_to_type>("ix_ns_xcap_forward_to_type", "CommunicationDiversion:ForwardToType", kSource,
                                        kForwardToFields, ForwardToAnswers());

int ix_ns_xcap_simservType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    // Required: as an element, the switch is set under its bare name, though texts come with end tags.
    const bool isSwitch = m_pClass == &kClass && ixNameIs(name, IX_STR_ACTIVE);
    if (!isSwitch) return XmlDescribedObject::ProcessUnMarshall(name, text, child);
    return child == nullptr ? XmlDescribedObject::ProcessUnMarshallAttribute(name, text, nullptr) : 0;
}

// Services with rows of their own have none for this list, so it is deleted without one.
int ix_ns_xcap_simservType::setAnyListValue(IxSingleElementList* list) {
    if (mAnyList != list) ix_xml_common_methods::DeleteElementList(mAnyList);
    mAnyList = list;
    return 1;
}

const char* ix_ns_xcap_forward_to_type::RevealText(int value) { return kReveal.TextOf(value); }

const XmlNamespaceRow kSimservsNamespaces[kSimservsNamespaceCount] = {
    {IX_STR_SS, IX_STR_SS, IX_STR_HTTP_URI_ETSI_ORG_NGN_PARAMS_XML_SIMSERVS_XCAP},
    {IX_STR_CP, IX_STR_CP, IX_STR_URN_IETF_PARAMS_XML_NS_COMMON_POLICY},
    {IX_STR_OCP, IX_STR_OCP, IX_STR_URN_OMA_XML_XDM_COMMON_POLICY},
};

void XmlServiceMarshaller::AddServiceStart(e_XmlStrRef name, const ix_ns_xcap_simservType& service, bool isEmpty) {
    SetElementPrefix(IX_STR_SS);
    XmlStartTag tag(*this, name);
    tag.AddAll(service.mExtensionList);
    tag.Add(IX_STR_ACTIVE, service.mActive != 0 ? IX_STR_TRUE : IX_STR_FALSE);
    if (isEmpty) {
        tag.SelfClose();
    } else {
        tag.Close();
    }
    ClearElementPrefix();
}

int XmlServiceMarshaller::AddSwitch(const XmlLogText& entered, e_XmlStrRef name,
                                    const ix_ns_xcap_simservType* service) {
    if (!Enter(service, entered)) return 0;
    AddServiceStart(name, *service, true);
    return 1;
}
