#include "XMLSimservsRules.h"

#include <cstring>

#include "XMLCommunicationBarring.h"

namespace {

/// Size of the buffer in which the tag of a flag is put together; longer names are cut.
constexpr std::size_t kFlagBufferSize = 100;

int CountOf(const IxSingleElementList* list) { return list != nullptr ? list->GetCount() : 0; }

const char* TextOf(const IxSingleElementNode& node) {
    const auto* const string = ixAs<ix_string>(static_cast<XMLElement*>(node.key));
    return string != nullptr ? string->mValue : nullptr;
}

/// True for what a document with rules is made of, which may stand where it is not written.
bool IsOfRules(const XMLElement& element) {
    if (ixIs<ix_ns_xcap_forward_to_type>(&element) || ixIs<ix_allow_action_type>(&element)) return true;
    const XmlSchemaInfo& schema = *XMLFactory::SchemaInfo(IX_XML_SCHEMA_COMMUNICATION_BARRING);
    for (const XmlClass* const* known = schema.classes; *known != nullptr; ++known) {
        if (ixIsClass(&element, **known)) return true;
    }
    for (const XmlNamedClass* part = schema.parts; part->description != nullptr; ++part) {
        if (ixIsClass(&element, *part->description)) return true;
    }
    return false;
}

}  // namespace

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

void XmlRuleMarshaller::EndService(e_XmlStrRef name, const ix_ns_xcap_ruleServiceType& service) {
    // Required: a ruleset that ends early does not fail the document.
    if (service.mRuleset != nullptr) AddRuleSetElementToXml(service.mRuleset);
    EndPrefixed(IX_STR_SS, name);
}

int XmlRuleMarshaller::AddRuleSetElementToXml(ix_ns_common_policy_ruleset* element) {
    if (!Enter(element, {2, "<XML Module>: AddRuleSetElementToXml"})) return 0;
    StartPrefixed(IX_STR_CP, IX_STR_RULESET);
    if (!AddChildren<&XmlRuleMarshaller::AddRuleElementToXml>(element->mRuleList)) {
        return Fail({4, "<XML Module>: AddRuleSetElementToXml Rule ID mandatory"});
    }
    EndPrefixed(IX_STR_CP, IX_STR_RULESET);
    return 1;
}

int XmlRuleMarshaller::AddRuleElementToXml(ix_ns_common_policy_ruleType* element) {
    if (!Enter(element, {2, "<XML Module>: AddRuleElementToXml"})) return 0;
    SetElementPrefix(IX_STR_CP);
    XmlStartTag tag(*this, IX_STR_RULE);
    if (element->mId == nullptr) {
        tag.LeaveOpen();
        return Fail({4, "<XML Module>: AddRuleElementToXml Rule ID mandatory"});
    }
    tag.AddOnly(IX_STR_ID, element->mId);
    tag.Close();
    // Required: parts that end early do not fail the rule.
    if (element->mConditions != nullptr) AddConditionsElementToXml(element->mConditions);
    if (element->mActions != nullptr) AddActionsElementToXml(element->mActions);
    if (element->mTransformations != nullptr) AddTransformationsElementToXml(element->mTransformations);
    EndPrefixed(IX_STR_CP, IX_STR_RULE);
    return 1;
}

int XmlRuleMarshaller::AddConditionsElementToXml(ix_ns_common_policy_conditionsType* element) {
    if (!Enter(element, {2, "<XML Module>: AddConditionsElementToXml"})) return 0;
    StartPrefixed(IX_STR_CP, IX_STR_CONDITIONS);
    if (!AddChildren<&XmlRuleMarshaller::AddIdentityElementToXml>(element->mIdentityList)) return 0;
    if (!AddChildren<&XmlRuleMarshaller::AddSphereElementToXml>(element->mSphereList)) return 0;
    if (!AddChildren<&XmlRuleMarshaller::AddValidityElementToXml>(element->mValidityList)) return 0;
    for (auto* const condition : XmlEntries<XMLElement>(element->mOtherConditionsList)) AddFlagOrMedia(condition);
    EndPrefixed(IX_STR_CP, IX_STR_CONDITIONS);
    return 1;
}

int XmlRuleMarshaller::AddIdentityElementToXml(ix_ns_common_policy_identityType* element) {
    if (element == nullptr) return 0;
    StartPrefixed(IX_STR_CP, IX_STR_IDENTITY);
    if (ixNodesOf(element->mOneList) == nullptr && ixNodesOf(element->mManyList) == nullptr) {
        return Fail({4, "<XML Module>: Identity element - m_OneListCount: %d, m_ManyListCount: %d"},
                    CountOf(element->mOneList), CountOf(element->mManyList));
    }
    if (!AddChildren<&XmlRuleMarshaller::AddOneElementToXml>(element->mOneList)) return 0;
    AddManyList(element->mManyList);
    EndElement(IX_STR_IDENTITY);
    return 1;
}

int XmlRuleMarshaller::AddOneElementToXml(ix_ns_common_policy_oneType* element) {
    if (element == nullptr) return 0;
    XmlStartTag tag(*this, IX_STR_ONE);
    if (element->mId == nullptr) {
        tag.LeaveOpen();
        return Fail({4, "<XML Module>: One element's - Id attribute is mandatory"});
    }
    tag.AddOnly(IX_STR_ID, element->mId);
    tag.SelfClose();
    return 1;
}

/// Required: the walk over the list shares its counter with the walk over the exceptions of each entry. After an entry
/// with a list of n exceptions it goes on at the entry n + 1, which skips entries, or goes back and never ends. Senders
/// and servers have settled on the documents that come out. IMSXML_WALKS_END makes the walk end where it would go back.
void XmlRuleMarshaller::AddManyList(const IxSingleElementList* list) {
    const IxSingleElementNode* node = ixNodesOf(list);
    int index = 0;
    while (node != nullptr) {
        auto* const many = ixAs<ix_ns_common_policy_manyType>(static_cast<XMLElement*>(node->key));
        if (AddManyElementToXml(many) == 0 && node->key != nullptr) LogForeign(*static_cast<XMLElement*>(node->key));
        const bool hasExceptions = many != nullptr && many->mExceptList != nullptr;
        const int next = hasExceptions ? CountOf(many->mExceptList) + 1 : index + 1;
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

int XmlRuleMarshaller::AddManyElementToXml(ix_ns_common_policy_manyType* element) {
    if (element == nullptr) return 0;
    XmlStartTag tag(*this, IX_STR_MANY);
    tag.AddOnly(IX_STR_DOMAIN, element->mDomain);
    if (element->mDomain != nullptr) {
        tag.Close();
    } else {
        // Required: without a domain nothing closes the start tag.
        tag.LeaveOpen();
    }
    for (auto* const except : XmlEntries<XMLElement>(element->mExceptList)) {
        const int result = AddExceptElementToXml(ixAs<ix_ns_common_policy_exceptType>(except));
        if (result == 0 && except != nullptr) LogForeign(*except);
    }
    EndElement(IX_STR_MANY);
    return 1;
}

int XmlRuleMarshaller::AddSphereElementToXml(ix_ns_common_policy_sphereType* element) {
    if (element == nullptr) return 0;
    SetElementPrefix(IX_STR_CP);
    XmlStartTag tag(*this, IX_STR_SPHERE);
    if (element->mValue == nullptr) {
        tag.LeaveOpen();
        return Fail({4, "<XML Module>: Sphere element's - Value attribute is mandatory"});
    }
    tag.AddOnly(IX_STR_VALUE, element->mValue);
    tag.Close();
    EndElement(IX_STR_SPHERE);
    return 1;
}

int XmlRuleMarshaller::AddValidityElementToXml(ix_ns_common_policy_validityType* element) {
    if (element == nullptr) return 0;
    StartPrefixed(IX_STR_CP, IX_STR_VALIDITY);
    const IxSingleElementNode* from = ixNodesOf(element->mFromList);
    const IxSingleElementNode* until = ixNodesOf(element->mUntilList);
    if (from == nullptr || CountOf(element->mFromList) != CountOf(element->mUntilList)) {
        return Fail({4, "<XML Module>: Validity element - m_fromListCount: %d, m_untilListCount: %d"},
                    CountOf(element->mFromList), CountOf(element->mUntilList));
    }
    for (; from != nullptr && until != nullptr; from = from->next, until = until->next) {
        AddTextOrEmptyElement(IX_STR_FROM, TextOf(*from));
        AddTextOrEmptyElement(IX_STR_UNTIL, TextOf(*until));
    }
    EndElement(IX_STR_VALIDITY);
    return 1;
}

int XmlRuleMarshaller::AddExceptElementToXml(ix_ns_common_policy_exceptType* element) {
    if (element == nullptr) return 0;
    // Either attribute has a single blank before it when it is the first one, which no start tag with two has.
    m_generator.ixStartElement(ixString(IX_STR_EXCEPT), 1);
    if (element->mDomain != nullptr) {
        m_generator.ixStartAttribute(ixString(IX_STR_DOMAIN), element->mDomain, 0, 0, 0);
    }
    // Required: without an id nothing closes the start tag.
    if (element->mId != nullptr && element->mDomain != nullptr) {
        m_generator.ixAddNameSpacePrefixToXml(ixString(IX_STR_ID), element->mId, nullptr, 0, 1);
    } else if (element->mId != nullptr) {
        m_generator.ixStartAttribute(ixString(IX_STR_ID), element->mId, 0, 0, 1);
    }
    EndElement(IX_STR_EXCEPT);
    return 1;
}

int XmlRuleMarshaller::AddActionsElementToXml(ix_ns_common_policy_extensibleType* element) {
    if (!Enter(element, m_texts.addActions)) return 0;
    StartPrefixed(IX_STR_CP, IX_STR_ACTIONS);
    for (auto* const action : XmlEntries<XMLElement>(element->mElementList)) {
        AddFlagOrMedia(action);
        AddAction(action);
    }
    EndPrefixed(IX_STR_CP, IX_STR_ACTIONS);
    return 1;
}

int XmlRuleMarshaller::AddTransformationsElementToXml(ix_ns_common_policy_extensibleType* element) {
    if (!Enter(element, {2, "<XML Module>: AddTransformationsElementToXml"})) return 0;
    SetElementPrefix(IX_STR_CP);
    // Required: the content is never written.
    AddTextOrEmptyElement(IX_STR_TRANSFORMATIONS, nullptr);
    return 1;
}

int XmlRuleMarshaller::AddEmptyElementtoXml(ix_empty_element_type* element) {
    if (element == nullptr) return Fail(m_texts.noFlag);
    if (element->mPresent == 0) return Fail(m_texts.flagNotPresent);
    if (element->mName == nullptr) return 0;
    char* const tag = static_cast<char*>(__malloc(kFlagBufferSize));
    if (tag == nullptr) {
        GiveUp();
        return Fail(m_texts.noFlagBuffer);
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

/// Nothing for any other element.
void XmlRuleMarshaller::AddFlagOrMedia(XMLElement* element) {
    auto* const flag = ixAs<ix_empty_element_type>(element);
    if (flag != nullptr) AddEmptyElementtoXml(flag);
    const auto* const media = ixAs<ix_ns_xcap_media_type>(element);
    if (media != nullptr) AddServiceText(IX_STR_MEDIA, media->mMedia);
    const bool isForeign = element != nullptr && flag == nullptr && media == nullptr && !IsOfRules(*element);
    if (isForeign) LogForeign(*element);
}
