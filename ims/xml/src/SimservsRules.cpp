#include "SimservsRules.h"

namespace {

using namespace XmlContainer;

/// The objects are registered under the service's own file, and a line of it.
constexpr int kServiceLine = 0;

template <class Element>
constexpr XmlContainerRow Policy(e_XmlStrRef name) {
    return Child<Element>({name, XmlKnownName::Required, IX_STR_CP}, kServiceLine);
}

constexpr XmlKnownName Service(e_XmlStrRef name) { return {name, XmlKnownName::Optional, IX_STR_SS}; }

XMLElement* CreateFlag(const char* name, const char* source, int line) {
    return ixCreateEmptyElement(name, source, line);
}

/// An element that is known by its presence; the object keeps its local name.
constexpr XmlContainerRow Flag(e_XmlStrRef name) {
    return Child<ix_empty_element_type>(Service(name), kServiceLine).MadeBy(CreateFlag);
}

constexpr XmlContainerRow kContainers[] = {
    // Required: the end of a ruleset is looked for under a class name that no class has. The ruleset stays on the
    // stack, refuses what follows it in the service, and goes at the end of the service.
    Policy<ix_ns_common_policy_ruleset>(IX_STR_RULESET).EndsAs("ix_ruleset"),
    Policy<ix_ns_common_policy_ruleType>(IX_STR_RULE),
    Policy<ix_ns_common_policy_conditionsType>(IX_STR_CONDITIONS),
    Policy<ix_ns_common_policy_identityType>(IX_STR_IDENTITY),
    Policy<ix_ns_common_policy_oneType>(IX_STR_ONE),
    Policy<ix_ns_common_policy_manyType>(IX_STR_MANY),
    Policy<ix_ns_common_policy_exceptType>(IX_STR_EXCEPT),
    Policy<ix_ns_common_policy_sphereType>(IX_STR_SPHERE),
    Policy<ix_ns_common_policy_validityType>(IX_STR_VALIDITY),
    Policy<ix_ns_common_policy_extensibleType>(IX_STR_ACTIONS),
    Policy<ix_ns_common_policy_extensibleType>(IX_STR_TRANSFORMATIONS),
    Child<ix_ns_xcap_forward_to_type>(Service(IX_STR_FORWARD_TO), kServiceLine),
    Text<ix_ns_xcap_media_type>(Service(IX_STR_MEDIA), kServiceLine),
    Text<ix_presence_status_activity_type>(Service(IX_STR_PRESENCE_STATUS), kServiceLine),
    Flag(IX_STR_ANONYMOUS),
    Flag(IX_STR_COMMUNICATION_DIVERTED),
    Flag(IX_STR_RULE_DEACTIVATED),
    Flag(IX_STR_NOT_REGISTERED),
    Flag(IX_STR_BUSY),
    Flag(IX_STR_NO_ANSWER),
    Flag(IX_STR_NOT_REACHABLE),
    Flag(IX_STR_ROAMING),
    Flag(IX_STR_INTERNATIONAL),
    Flag(IX_STR_INTERNATIONAL_EXHC),
};

}  // namespace

constexpr XmlContainerTable kRuleContainers = ixContainers<kContainers>();

int XmlRuleDecoder::OtherElement(const XmlTag& /*tag*/, char* text) {
    return XmlFamilyDecoder::OtherElement(XmlTag(PassName()), text);
}

bool XmlRuleDecoder::IsResult(const XmlContainerRow& /*row*/) const { return Top() == nullptr; }
