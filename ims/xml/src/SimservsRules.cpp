#include "SimservsRules.h"

#include <iterator>

#include "XMLSimservsRules.h"

namespace {

constexpr XmlOldKnownName Policy(e_XmlStrRef local) { return {local, XmlOldKnownName::Required, IX_STR_CP}; }

constexpr XmlOldKnownName Service(e_XmlStrRef local) { return {local, XmlOldKnownName::Optional, IX_STR_SS}; }

constexpr const char* kFlag = "ix_empty_element_type";

/// A flag is known by its presence; the object keeps its local name.
XMLElement* CreateFlag(const char* name, const char* source) {
    const char* const colon = __strchr(name, ':');
    return ixCreateEmptyElement(colon != nullptr ? colon + 1 : name, source, __LINE__);
}

constexpr XmlOldContainerRow kContainers[] = {
    // Required: the end of a ruleset is looked for under a class name that no class has. The ruleset stays on the
    // stack, refuses what follows it in the service, and goes at the end of the service.
    {Policy(IX_STR_RULESET), XmlOldContainerRow::Child, "ix_ruleset", IX_OLD_CREATOR(ix_ns_common_policy_ruleset)},
    {Policy(IX_STR_RULE), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_ruleType)},
    {Policy(IX_STR_CONDITIONS), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_conditionsType)},
    {Policy(IX_STR_IDENTITY), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_identityType)},
    {Policy(IX_STR_ONE), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_oneType)},
    {Policy(IX_STR_MANY), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_manyType)},
    {Policy(IX_STR_EXCEPT), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_exceptType)},
    {Policy(IX_STR_SPHERE), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_sphereType)},
    {Policy(IX_STR_VALIDITY), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_validityType)},
    {Policy(IX_STR_ACTIONS), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_extensibleType)},
    {Policy(IX_STR_TRANSFORMATIONS), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_common_policy_extensibleType)},
    {Service(IX_STR_FORWARD_TO), XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_xcap_forward_to_type)},
    {Service(IX_STR_MEDIA), XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_ns_xcap_media_type)},
    {Service(IX_STR_PRESENCE_STATUS), XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_presence_status_activity_type)},
    {Service(IX_STR_ANONYMOUS), XmlOldContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_COMMUNICATION_DIVERTED), XmlOldContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_RULE_DEACTIVATED), XmlOldContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_NOT_REGISTERED), XmlOldContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_BUSY), XmlOldContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_NO_ANSWER), XmlOldContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_NOT_REACHABLE), XmlOldContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_ROAMING), XmlOldContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_INTERNATIONAL), XmlOldContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_INTERNATIONAL_EXHC), XmlOldContainerRow::Child, kFlag, CreateFlag},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {Policy(IX_STR_RULE), IX_STR_ID},       {Policy(IX_STR_ONE), IX_STR_ID},    {Policy(IX_STR_MANY), IX_STR_DOMAIN},
    {Policy(IX_STR_EXCEPT), IX_STR_DOMAIN}, {Policy(IX_STR_EXCEPT), IX_STR_ID}, {Policy(IX_STR_SPHERE), IX_STR_VALUE},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info;
    info.containers = kContainers;
    info.containerCount = std::size(kContainers);
    info.attributes = kAttributes;
    info.attributeCount = std::size(kAttributes);
    return info;
}

}  // namespace

const XmlOldDecoderInfo kRuleDecoderInfo = Info();
