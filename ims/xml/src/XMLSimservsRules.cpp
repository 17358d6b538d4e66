#include "XMLSimservsRules.h"

#include <cstring>
#include <iterator>

namespace {

constexpr XmlLogText kAddRuleset = {2, kSchemaCode, __LINE__, "<XML Module>: AddRuleSetElementToXml"};
constexpr XmlLogText kRulesetFailed = {4, kSchemaCode, __LINE__,
                                       "<XML Module>: AddRuleSetElementToXml Rule ID mandatory"};
constexpr XmlLogText kAddRule = {2, kSchemaCode, __LINE__, "<XML Module>: AddRuleElementToXml"};
constexpr XmlLogText kRuleWithoutId = {4, kSchemaCode, __LINE__, "<XML Module>: AddRuleElementToXml Rule ID mandatory"};
constexpr XmlLogText kAddConditions = {2, kSchemaCode, __LINE__, "<XML Module>: AddConditionsElementToXml"};
constexpr XmlLogText kEmptyIdentity = {4, kSchemaCode, __LINE__,
                                       "<XML Module>: Identity element - m_OneListCount: %d, m_ManyListCount: %d"};
constexpr XmlLogText kOneWithoutId = {4, kSchemaCode, __LINE__,
                                      "<XML Module>: One element's - Id attribute is mandatory"};
constexpr XmlLogText kSphereWithoutValue = {4, kSchemaCode, __LINE__,
                                            "<XML Module>: Sphere element's - Value attribute is mandatory"};
constexpr XmlLogText kUnevenValidity = {4, kSchemaCode, __LINE__,
                                        "<XML Module>: Validity element - m_fromListCount: %d, m_untilListCount: %d"};
constexpr XmlLogText kAddTransformations = {2, kSchemaCode, __LINE__, "<XML Module>: AddTransformationsElementToXml"};

/// Size of the buffer in which the tag of a flag is put together; longer names are cut.
constexpr std::size_t kFlagBufferSize = 100;

constexpr XmlField kMediaFields[] = {
    {XmlFieldKind::Text, IX_STR_IX_NULL, XmlTextMember(&ix_ns_xcap_media_type::mMedia), 0, nullptr, "text"},
};
constexpr XmlFieldTable kMediaTable = {nullptr, kMediaFields, std::size(kMediaFields)};

constexpr XmlField kPresenceStatusFields[] = {
    {XmlFieldKind::Text, IX_STR_IX_NULL, XmlTextMember(&ix_presence_status_activity_type::mPresenceStatus), 0, nullptr,
     "text"},
};
constexpr XmlFieldTable kPresenceStatusTable = {nullptr, kPresenceStatusFields, std::size(kPresenceStatusFields)};

constexpr XmlField kExternalListFields[] = {
    {XmlFieldKind::Text, IX_STR_IX_NULL, XmlTextMember(&ix_external_list::mExternalList), 0, nullptr, "text"},
};
constexpr XmlFieldTable kExternalListTable = {nullptr, kExternalListFields, std::size(kExternalListFields)};

constexpr char kRevealTexts[][100] = {"false", "not-reveal-GRUU", "true"};
constexpr XmlEnumeration kReveal = {kRevealTexts[0], sizeof kRevealTexts[0], int{std::size(kRevealTexts)}};
static_assert(kReveal.count == ix_ns_xcap_forward_to_type::kRevealNotSet, "not set is past the last text");

constexpr XmlField Notification(e_XmlStrRef name, int ix_ns_xcap_forward_to_type::*member) {
    return {XmlFieldKind::Flag, name, XmlIntMember(member), ix_ns_xcap_forward_to_type::kNotifyNotSet};
}

constexpr XmlField Reveal(e_XmlStrRef name, int ix_ns_xcap_forward_to_type::*member) {
    return {XmlFieldKind::Enumeration, name, XmlIntMember(member), ix_ns_xcap_forward_to_type::kRevealNotSet, &kReveal};
}

constexpr XmlField kForwardToFields[] = {
    {XmlFieldKind::Text, IX_STR_TARGET, XmlTextMember(&ix_ns_xcap_forward_to_type::mTarget)},
    Notification(IX_STR_NOTIFY_CALLER, &ix_ns_xcap_forward_to_type::mNotifyCaller),
    Reveal(IX_STR_REVEAL_IDENTITY_TO_CALLER, &ix_ns_xcap_forward_to_type::mRevealIdentityToCaller),
    Reveal(IX_STR_REVEAL_SERVED_USER_IDENTITY_TO_CALLER,
           &ix_ns_xcap_forward_to_type::mRevealServedUserIdentityToCaller),
    Notification(IX_STR_NOTIFY_SERVED_USER, &ix_ns_xcap_forward_to_type::mNotifyServedUser),
    Notification(IX_STR_NOTIFY_SERVED_USER_ON_OUTBOUND_CALL,
                 &ix_ns_xcap_forward_to_type::mNotifyServedUserOnOutboundCall),
    Reveal(IX_STR_REVEAL_IDENTITY_TO_TARGET, &ix_ns_xcap_forward_to_type::mRevealIdentityToTarget),
};
constexpr XmlFieldTable kForwardToTable = {nullptr, kForwardToFields, std::size(kForwardToFields)};

constexpr XmlField kRuleServiceFields[] = {
    {XmlFieldKind::Child, IX_STR_RULESET, IX_CHILD_MEMBER(ix_ns_xcap_ruleServiceType, mRuleset)},
};
constexpr XmlFieldTable kRuleServiceTable = {&kSimservTable, kRuleServiceFields, std::size(kRuleServiceFields)};

int CountOf(const IxSingleElementList* list) { return list != nullptr ? list->GetCount() : 0; }

/// Takes the text of the element's own end tag. @return 1, or 0 for an object or without memory.
int TakeOwnText(char*& field, e_XmlStrRef own, const char* name, const char* text, const XMLElement* child) {
    if (!ixEndNameIs(name, own)) return 1;
    return child == nullptr ? ixOverwriteWithText(field, text) : 0;
}

}  // namespace

ix_ns_xcap_media_type::~ix_ns_xcap_media_type() { XmlFields::Release(this, kMediaTable); }

const XmlFieldTable* ix_ns_xcap_media_type::FieldTable() const { return &kMediaTable; }

int ix_ns_xcap_media_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    return TakeOwnText(mMedia, IX_STR_MEDIA, name, text, child);
}

ix_presence_status_activity_type::~ix_presence_status_activity_type() {
    XmlFields::Release(this, kPresenceStatusTable);
}

const XmlFieldTable* ix_presence_status_activity_type::FieldTable() const { return &kPresenceStatusTable; }

int ix_presence_status_activity_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    return TakeOwnText(mPresenceStatus, IX_STR_PRESENCE_STATUS, name, text, child);
}

ix_external_list::~ix_external_list() { XmlFields::Release(this, kExternalListTable); }

const XmlFieldTable* ix_external_list::FieldTable() const { return &kExternalListTable; }

const char* ix_ns_xcap_forward_to_type::RevealText(int value) { return kReveal.TextOf(value); }

ix_ns_xcap_forward_to_type::~ix_ns_xcap_forward_to_type() { XmlFields::Release(this, kForwardToTable); }

const XmlFieldTable* ix_ns_xcap_forward_to_type::FieldTable() const { return &kForwardToTable; }

int ix_ns_xcap_forward_to_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (name == nullptr || child != nullptr) return 0;
    // Start tags are waited for, the text comes with the end tag.
    const bool isEnd = *name == '/';
    const char* const local = isEnd ? name + 1 : name;
    for (const XmlField& field : kForwardToFields) {
        if (!ixNameIs(local, field.name)) continue;
        if (!isEnd || text == nullptr) return 1;
        if (field.kind == XmlFieldKind::Text) return setTargetValue(text);
        int& value = this->*static_cast<int ix_ns_xcap_forward_to_type::*>(field.member.number);
        if (field.kind == XmlFieldKind::Flag) {
            if (ixNameIs(text, IX_STR_TRUE)) value = 1;
            if (ixNameIs(text, IX_STR_FALSE)) value = 0;
        } else {
            value = kReveal.IndexOf(text);
        }
        return 1;
    }
    return 0;
}

ix_ns_xcap_ruleServiceType::~ix_ns_xcap_ruleServiceType() { XmlFields::Release(this, kRuleServiceTable); }

const XmlFieldTable* ix_ns_xcap_ruleServiceType::FieldTable() const { return &kRuleServiceTable; }

int ix_ns_xcap_ruleServiceType::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    return ixNameIs(name, IX_STR_RULESET) ? ixTakeChild(mRuleset, child) : 1;
}

int ix_ns_xcap_ruleServiceType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair != nullptr) return TakeExtension(attribute, pair);
    if (!ixNameIs(attribute, IX_STR_ACTIVE)) return 1;
    if (ixNameIs(value, IX_STR_TRUE)) setActiveValue(1);
    if (ixNameIs(value, IX_STR_FALSE)) setActiveValue(0);
    return 1;
}

int ix_ns_xcap_ruleServiceType::setRulesetValue(ix_ns_common_policy_ruleset* ruleset) {
    return ruleset != nullptr ? ixSetChild(mRuleset, ruleset) : 1;
}

int ix_ns_xcap_ruleServiceType::ExtensionListLine() const { return __LINE__; }

/// A new element, registered under the service's own source file.
#define IX_NEW_RULE_ELEMENT(type) IX_TRACKED_NEW(kSchemaModule, SourceFile(), __LINE__, type, ())

ix_ns_common_policy_ruleset* XmlRuleDataBinder::CreateRuleSetElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_ruleset);
}

ix_ns_common_policy_ruleType* XmlRuleDataBinder::CreateRuleTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_ruleType);
}

ix_ns_common_policy_conditionsType* XmlRuleDataBinder::CreateConditionsTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_conditionsType);
}

ix_ns_common_policy_identityType* XmlRuleDataBinder::CreateIdentityTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_identityType);
}

ix_ns_common_policy_oneType* XmlRuleDataBinder::CreateOneTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_oneType);
}

ix_ns_common_policy_manyType* XmlRuleDataBinder::CreateManyTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_manyType);
}

ix_ns_common_policy_exceptType* XmlRuleDataBinder::CreateExceptTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_exceptType);
}

ix_ns_common_policy_sphereType* XmlRuleDataBinder::CreateSphereTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_sphereType);
}

ix_ns_common_policy_validityType* XmlRuleDataBinder::CreateValidityTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_validityType);
}

ix_ns_common_policy_extensibleType* XmlRuleDataBinder::CreateActionsTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_extensibleType);
}

ix_ns_common_policy_extensibleType* XmlRuleDataBinder::CreateTransformationsTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_common_policy_extensibleType);
}

ix_empty_element_type* XmlRuleDataBinder::CreateEmptyTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_empty_element_type);
}

ix_ns_xcap_media_type* XmlRuleDataBinder::CreateMediaTypeElement() {
    return IX_NEW_RULE_ELEMENT(ix_ns_xcap_media_type);
}

ix_string* XmlRuleDataBinder::CreateStringElement() { return IX_NEW_RULE_ELEMENT(ix_string); }

XmlRuleMarshaller::XmlRuleMarshaller(const XmlOldMarshallerInfo& info, const XmlRuleWriterTexts& texts)
    : XmlServiceMarshaller(info), m_texts(texts) {}

void XmlRuleMarshaller::StartPrefixed(e_XmlStrRef prefix, e_XmlStrRef name) {
    SetElementPrefix(prefix);
    StartElement(name);
}

void XmlRuleMarshaller::EndPrefixed(e_XmlStrRef prefix, e_XmlStrRef name) {
    SetElementPrefix(prefix);
    EndElement(name);
}

void XmlRuleMarshaller::AddServiceText(e_XmlStrRef name, const char* text) {
    SetElementPrefix(IX_STR_SS);
    AddTextOrEmptyElement(name, text);
}

void XmlRuleMarshaller::AddRuleService(e_XmlStrRef name, const ix_ns_xcap_ruleServiceType& service) {
    AddServiceStart(name, service, Attribute::Closing);
    AddServiceElements(service);
    // Required: a ruleset that ends early does not fail the document.
    if (service.mRuleset != nullptr) AddRuleSetElementToXml(service.mRuleset);
    EndPrefixed(IX_STR_SS, name);
}

void XmlRuleMarshaller::AddServiceElements(const ix_ns_xcap_ruleServiceType& /*service*/) {}

int XmlRuleMarshaller::AddRuleSetElementToXml(ix_ns_common_policy_ruleset* element) {
    ixLog(Source(), kAddRuleset);
    if (element == nullptr) return 0;
    StartPrefixed(IX_STR_CP, IX_STR_RULESET);
    for (auto* const rule : XmlEntries<ix_ns_common_policy_ruleType>(element->mRuleList)) {
        if (rule != nullptr && AddRuleElementToXml(rule) == 0) {
            ixLog(Source(), kRulesetFailed);
            return 0;
        }
    }
    EndPrefixed(IX_STR_CP, IX_STR_RULESET);
    return 1;
}

int XmlRuleMarshaller::AddRuleElementToXml(ix_ns_common_policy_ruleType* element) {
    ixLog(Source(), kAddRule);
    if (element == nullptr) return 0;
    SetElementPrefix(IX_STR_CP);
    StartElementOpen(IX_STR_RULE);
    if (element->mId == nullptr) {
        ixLog(Source(), kRuleWithoutId);
        return 0;
    }
    AddOnlyAttribute(IX_STR_ID, element->mId, Attribute::Closing);
    // Required: parts that end early do not fail the rule.
    if (element->mConditions != nullptr) AddConditionsElementToXml(element->mConditions);
    if (element->mActions != nullptr) AddActionsElementToXml(element->mActions);
    if (element->mTransformations != nullptr) AddTransformationsElementToXml(element->mTransformations);
    EndPrefixed(IX_STR_CP, IX_STR_RULE);
    return 1;
}

int XmlRuleMarshaller::AddConditionsElementToXml(ix_ns_common_policy_conditionsType* element) {
    ixLog(Source(), kAddConditions);
    if (element == nullptr) return 0;
    StartPrefixed(IX_STR_CP, IX_STR_CONDITIONS);
    for (const auto* const identity : XmlEntries<ix_ns_common_policy_identityType>(element->mIdentityList)) {
        if (identity != nullptr && AddIdentityElementToXml(*identity) == 0) return 0;
    }
    for (const auto* const sphere : XmlEntries<ix_ns_common_policy_sphereType>(element->mSphereList)) {
        if (sphere != nullptr && AddSphereElementToXml(*sphere) == 0) return 0;
    }
    for (const auto* const validity : XmlEntries<ix_ns_common_policy_validityType>(element->mValidityList)) {
        if (validity != nullptr && AddValidityElementToXml(*validity) == 0) return 0;
    }
    for (auto* const condition : XmlEntries<XMLElement>(element->mOtherConditionsList)) AddFlagOrMedia(condition);
    EndPrefixed(IX_STR_CP, IX_STR_CONDITIONS);
    return 1;
}

int XmlRuleMarshaller::AddIdentityElementToXml(const ix_ns_common_policy_identityType& element) {
    StartPrefixed(IX_STR_CP, IX_STR_IDENTITY);
    if (ixNodesOf(element.mOneList) == nullptr && ixNodesOf(element.mManyList) == nullptr) {
        ixLog(Source(), kEmptyIdentity, CountOf(element.mOneList), CountOf(element.mManyList));
        return 0;
    }
    for (const auto* const one : XmlEntries<ix_ns_common_policy_oneType>(element.mOneList)) {
        if (one == nullptr) continue;
        StartElementOpen(IX_STR_ONE);
        if (one->mId == nullptr) {
            ixLog(Source(), kOneWithoutId);
            return 0;
        }
        AddOnlyAttribute(IX_STR_ID, one->mId, Attribute::SelfClosing);
    }
    AddManyList(element.mManyList);
    EndElement(IX_STR_IDENTITY);
    return 1;
}

/// Required: the walk over the list shares its counter with the walk over the exceptions of each entry. After an entry
/// with a list of n exceptions it goes on at the entry n + 1, which skips entries, or goes back and never ends. Senders
/// and servers have settled on the documents that come out. IMSXML_WALKS_END makes the walk end where it would go back.
void XmlRuleMarshaller::AddManyList(const IxSingleElementList* list) {
    const IxSingleElementNode* node = ixNodesOf(list);
    int index = 0;
    while (node != nullptr) {
        const auto* const many = static_cast<const ix_ns_common_policy_manyType*>(node->key);
        int next = index + 1;
        if (many != nullptr) {
            StartElementOpen(IX_STR_MANY);
            // Required: without a domain nothing closes the start tag.
            if (many->mDomain != nullptr) AddOnlyAttribute(IX_STR_DOMAIN, many->mDomain, Attribute::Closing);
            if (many->mExceptList != nullptr) next = 1;
            for (auto* const except : XmlEntries<ix_ns_common_policy_exceptType>(many->mExceptList)) {
                if (except != nullptr) AddExceptElementToXml(except);
                ++next;
            }
            EndElement(IX_STR_MANY);
        }
        if (next <= index) {
#ifdef IMSXML_WALKS_END
            return;
#endif
            node = ixNodesOf(list);
            index = 0;
        }
        for (; index < next && node != nullptr; ++index) node = node->next;
    }
}

int XmlRuleMarshaller::AddSphereElementToXml(const ix_ns_common_policy_sphereType& element) {
    SetElementPrefix(IX_STR_CP);
    StartElementOpen(IX_STR_SPHERE);
    if (element.mValue == nullptr) {
        ixLog(Source(), kSphereWithoutValue);
        return 0;
    }
    AddOnlyAttribute(IX_STR_VALUE, element.mValue, Attribute::Closing);
    EndElement(IX_STR_SPHERE);
    return 1;
}

int XmlRuleMarshaller::AddValidityElementToXml(const ix_ns_common_policy_validityType& element) {
    StartPrefixed(IX_STR_CP, IX_STR_VALIDITY);
    const IxSingleElementNode* from = ixNodesOf(element.mFromList);
    const IxSingleElementNode* until = ixNodesOf(element.mUntilList);
    if (from == nullptr || CountOf(element.mFromList) != CountOf(element.mUntilList)) {
        ixLog(Source(), kUnevenValidity, CountOf(element.mFromList), CountOf(element.mUntilList));
        return 0;
    }
    for (; from != nullptr && until != nullptr; from = from->next, until = until->next) {
        const auto* const begin = static_cast<const ix_string*>(from->key);
        const auto* const end = static_cast<const ix_string*>(until->key);
        AddTextOrEmptyElement(IX_STR_FROM, begin != nullptr ? begin->mValue : nullptr);
        AddTextOrEmptyElement(IX_STR_UNTIL, end != nullptr ? end->mValue : nullptr);
    }
    EndElement(IX_STR_VALIDITY);
    return 1;
}

int XmlRuleMarshaller::AddExceptElementToXml(ix_ns_common_policy_exceptType* element) {
    if (element == nullptr) return 0;
    StartElementOpen(IX_STR_EXCEPT);
    if (element->mDomain != nullptr) AddOnlyAttribute(IX_STR_DOMAIN, element->mDomain, Attribute::Open);
    // Required: without an id nothing closes the start tag.
    if (element->mId != nullptr && element->mDomain != nullptr) {
        AddAttribute(IX_STR_ID, element->mId, Attribute::Closing);
    } else if (element->mId != nullptr) {
        AddOnlyAttribute(IX_STR_ID, element->mId, Attribute::Closing);
    }
    EndElement(IX_STR_EXCEPT);
    return 1;
}

int XmlRuleMarshaller::AddActionsElementToXml(ix_ns_common_policy_extensibleType* element) {
    ixLog(Source(), m_texts.addActions);
    if (element == nullptr) return 0;
    StartPrefixed(IX_STR_CP, IX_STR_ACTIONS);
    for (auto* const action : XmlEntries<XMLElement>(element->mElementList)) {
        AddFlagOrMedia(action);
        AddAction(action);
    }
    EndPrefixed(IX_STR_CP, IX_STR_ACTIONS);
    return 1;
}

int XmlRuleMarshaller::AddTransformationsElementToXml(ix_ns_common_policy_extensibleType* element) {
    ixLog(Source(), kAddTransformations);
    if (element == nullptr) return 0;
    SetElementPrefix(IX_STR_CP);
    AddTextOrEmptyElement(IX_STR_TRANSFORMATIONS, nullptr);
    return 1;
}

int XmlRuleMarshaller::AddEmptyElementtoXml(ix_empty_element_type* element) {
    if (element == nullptr) {
        ixLog(Source(), m_texts.noFlag);
        return 0;
    }
    if (element->mPresent == 0) {
        ixLog(Source(), m_texts.flagNotPresent);
        return 0;
    }
    if (element->mName == nullptr) return 0;
    char* const tag = static_cast<char*>(__malloc(kFlagBufferSize));
    if (tag == nullptr) {
        ixLog(Source(), m_texts.noFlagBuffer);
        GiveUp();
        return 0;
    }
    std::size_t length = __strlen(element->mName);
    if (length > kFlagBufferSize - 2) length = kFlagBufferSize - 2;
    std::memcpy(tag, element->mName, length);
    std::memcpy(tag + length, "/", 2);
    SetElementPrefix(IX_STR_SS);
    m_generator.ixStartElement(tag, 0);
    __free(tag);
    return 1;
}

void XmlRuleMarshaller::AddFlagOrMedia(XMLElement* element) {
    if (ixIs<ix_empty_element_type>(element)) {
        AddEmptyElementtoXml(static_cast<ix_empty_element_type*>(element));
    } else if (ixIs<ix_ns_xcap_media_type>(element)) {
        AddServiceText(IX_STR_MEDIA, static_cast<const ix_ns_xcap_media_type*>(element)->mMedia);
    }
}
