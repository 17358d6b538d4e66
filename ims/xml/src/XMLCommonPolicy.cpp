#include "XMLCommonPolicy.h"

#include "XMLCommunicationBarring.h"
#include "XMLSimservsXcap.h"
#include "XmlHooks.h"

namespace {

using namespace XmlRow;

/// The conditions of the services.
constexpr XmlNamedClass kConditions[] = {
    {IX_STR_ANONYMOUS, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_BUSY, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_COMMUNICATION_DIVERTED, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_INTERNATIONAL, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_INTERNATIONAL_EXHC, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_NO_ANSWER, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_NOT_REACHABLE, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_NOT_REGISTERED, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_ROAMING, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_RULE_DEACTIVATED, &ix_empty_element_type::kClass, XmlNamespace::Simservs},
    {IX_STR_MEDIA, &ix_ns_xcap_media_type::kClass, XmlNamespace::Simservs},
    {IX_STR_PRESENCE_STATUS, &ix_presence_status_activity_type::kClass, XmlNamespace::Simservs},
};

/// The actions of the services.
constexpr XmlNamedClass kActions[] = {
    {IX_STR_ALLOW, &ix_allow_action_type::kClass, XmlNamespace::Simservs},
    {IX_STR_FORWARD_TO, &ix_ns_xcap_forward_to_type::kClass, XmlNamespace::Simservs},
};

constexpr XmlField kExtensibleFields[] = {
    Others<&ix_ns_common_policy_extensibleType::mElementList>(kActions),
};

constexpr XmlField kExceptFields[] = {
    Attribute<&ix_ns_common_policy_exceptType::mDomain>(IX_STR_DOMAIN).LeavesEarlier(),
    Attribute<&ix_ns_common_policy_exceptType::mId>(IX_STR_ID).LeavesEarlier(),
};

constexpr XmlField kOneFields[] = {
    Attribute<&ix_ns_common_policy_oneType::mId>(IX_STR_ID).LeavesEarlier().Mandatory(),
    Others<&ix_ns_common_policy_oneType::mExtensionList>(),
};

constexpr XmlField kManyFields[] = {
    Attribute<&ix_ns_common_policy_manyType::mDomain>(IX_STR_DOMAIN).LeavesEarlier(),
    Children<&ix_ns_common_policy_manyType::mExceptList, ix_ns_common_policy_exceptType>(IX_STR_EXCEPT),
    Others<&ix_ns_common_policy_manyType::mExtensionList>(),
};

constexpr XmlField kIdentityFields[] = {
    Children<&ix_ns_common_policy_identityType::mOneList, ix_ns_common_policy_oneType>(IX_STR_ONE),
    Children<&ix_ns_common_policy_identityType::mManyList, ix_ns_common_policy_manyType>(IX_STR_MANY),
    Others<&ix_ns_common_policy_identityType::mExtensionList>(),
};

constexpr XmlField kSphereFields[] = {
    Attribute<&ix_ns_common_policy_sphereType::mValue>(IX_STR_VALUE).LeavesEarlier().Mandatory(),
};

constexpr XmlField kValidityFields[] = {
    Children<&ix_ns_common_policy_validityType::mFromList, ix_string>(IX_STR_FROM).TakesTurns(),
    Children<&ix_ns_common_policy_validityType::mUntilList, ix_string>(IX_STR_UNTIL),
};

constexpr XmlField kConditionsFields[] = {
    Children<&ix_ns_common_policy_conditionsType::mIdentityList, ix_ns_common_policy_identityType>(IX_STR_IDENTITY),
    Children<&ix_ns_common_policy_conditionsType::mSphereList, ix_ns_common_policy_sphereType>(IX_STR_SPHERE),
    Children<&ix_ns_common_policy_conditionsType::mValidityList, ix_ns_common_policy_validityType>(IX_STR_VALIDITY),
    Others<&ix_ns_common_policy_conditionsType::mOtherConditionsList>(kConditions),
};

constexpr XmlField kRuleFields[] = {
    Attribute<&ix_ns_common_policy_ruleType::mId>(IX_STR_ID).LeavesEarlier().Mandatory(),
    Child<&ix_ns_common_policy_ruleType::mConditions>(IX_STR_CONDITIONS).LeavesEarlier(),
    Child<&ix_ns_common_policy_ruleType::mActions>(IX_STR_ACTIONS).LeavesEarlier(),
    Child<&ix_ns_common_policy_ruleType::mTransformations>(IX_STR_TRANSFORMATIONS).LeavesEarlier(),
};

constexpr XmlField kRulesetFields[] = {
    Children<&ix_ns_common_policy_ruleset::mRuleList, ix_ns_common_policy_ruleType>(IX_STR_RULE),
};

/// Rulesets and rules refuse what they have no place for.
constexpr XmlAnswers StrictAnswers() {
    XmlAnswers answers;
    answers.event = 0;
    answers.needsName = true;
    return answers;
}

/// Elements with a place for any object log a tag without one.
constexpr XmlAnswers OpenAnswers(bool needsName = true) {
    XmlAnswers answers;
    answers.needsName = needsName;
    answers.unknown = {2, "Cannot accommodate the element %s with value %s"};
    return answers;
}

/// Elements without children pass over all.
constexpr XmlAnswers LeafAnswers() {
    XmlAnswers answers;
    answers.object = 1;
    return answers;
}

}  // namespace

constexpr XmlClass ix_ns_common_policy_extensibleType::kClass = ixClass<ix_ns_common_policy_extensibleType>(
    "ix_ns_common_policy_extensibleType", "CommonPolicy:ExtensibleType", kSource, kExtensibleFields, OpenAnswers());
constexpr XmlClass ix_ns_common_policy_exceptType::kClass = ixClass<ix_ns_common_policy_exceptType>(
    "ix_ns_common_policy_exceptType", "CommonPolicy:ExceptType", kSource, kExceptFields, LeafAnswers());
constexpr XmlClass ix_ns_common_policy_oneType::kClass = ixClass<ix_ns_common_policy_oneType>(
    "ix_ns_common_policy_oneType", "CommonPolicy:OneType", kSource, kOneFields, OpenAnswers(false));
constexpr XmlClass ix_ns_common_policy_manyType::kClass = ixClass<ix_ns_common_policy_manyType>(
    "ix_ns_common_policy_manyType", "CommonPolicy:ManyType", kSource, kManyFields, OpenAnswers());
constexpr XmlClass ix_ns_common_policy_identityType::kClass =
    ixClass<ix_ns_common_policy_identityType>("ix_ns_common_policy_identityType", "CommonPolicy:IdentityType", kSource,
                                              kIdentityFields, OpenAnswers())
        .Unordered();
constexpr XmlClass ix_ns_common_policy_sphereType::kClass = ixClass<ix_ns_common_policy_sphereType>(
    "ix_ns_common_policy_sphereType", "CommonPolicy:SphereType", kSource, kSphereFields, LeafAnswers());
constexpr XmlClass ix_ns_common_policy_validityType::kClass = ixClass<ix_ns_common_policy_validityType>(
    "ix_ns_common_policy_validityType", "CommonPolicy:ValidityType", kSource, kValidityFields);
constexpr XmlClass ix_ns_common_policy_conditionsType::kClass =
    ixClass<ix_ns_common_policy_conditionsType>("ix_ns_common_policy_conditionsType", "CommonPolicy:ConditionsType",
                                                kSource, kConditionsFields, OpenAnswers())
        .Unordered();
constexpr XmlClass ix_ns_common_policy_ruleType::kClass = ixClass<ix_ns_common_policy_ruleType>(
    "ix_ns_common_policy_ruleType", "CommonPolicy:RuleType", kSource, kRuleFields, StrictAnswers());
constexpr XmlClass ix_ns_common_policy_ruleset::kClass = ixClass<ix_ns_common_policy_ruleset>(
    "ix_ns_common_policy_ruleset", "CommonPolicy:Ruleset", kSource, kRulesetFields, StrictAnswers());

// Required: each end tag of a date makes an object, even without a text, since the n-th entries of both lists are one
// period.
int ix_ns_common_policy_validityType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    const XmlTag tag(name);
    const bool isFrom = tag.Ends(IX_STR_FROM);
    if (!isFrom && !tag.Ends(IX_STR_UNTIL)) return 1;
    if (child != nullptr) return 0;
    auto* const date = ixNew<ix_string>(kSource);
    if (date != nullptr && date->setValueValue(text) != 0 && (isFrom ? addFrom(date) : addUntil(date)) != 0) return 1;
    ixDelete(date);
    return 0;
}
