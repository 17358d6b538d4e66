#include "SimservsRules.h"

#include <iterator>

#include "XMLSimservsRules.h"

namespace {

constexpr XmlKnownName Policy(e_XmlStrRef local) { return {local, XmlKnownName::Required, IX_STR_CP}; }

constexpr XmlKnownName Service(e_XmlStrRef local) { return {local, XmlKnownName::Optional, IX_STR_SS}; }

constexpr const char* kFlag = ix_empty_element_type::kClassName;

/// A flag is known by its presence; the object keeps its local name.
XMLElement* CreateFlag(const char* name, const char* source) {
    const char* const colon = __strchr(name, ':');
    return ixCreateEmptyElement(colon != nullptr ? colon + 1 : name, source, __LINE__);
}

constexpr XmlContainerRow kContainers[] = {
    // Required: the end of a ruleset is looked for under a class name that no class has. The ruleset stays on the
    // stack, refuses what follows it in the service, and goes at the end of the service.
    {Policy(IX_STR_RULESET), XmlContainerRow::Child, "ix_ruleset", IX_CREATOR(ix_ns_common_policy_ruleset)},
    {Policy(IX_STR_RULE), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_ruleType)},
    {Policy(IX_STR_CONDITIONS), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_conditionsType)},
    {Policy(IX_STR_IDENTITY), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_identityType)},
    {Policy(IX_STR_ONE), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_oneType)},
    {Policy(IX_STR_MANY), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_manyType)},
    {Policy(IX_STR_EXCEPT), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_exceptType)},
    {Policy(IX_STR_SPHERE), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_sphereType)},
    {Policy(IX_STR_VALIDITY), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_validityType)},
    {Policy(IX_STR_ACTIONS), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_extensibleType)},
    {Policy(IX_STR_TRANSFORMATIONS), XmlContainerRow::Child, IX_OBJECT(ix_ns_common_policy_extensibleType)},
    {Service(IX_STR_FORWARD_TO), XmlContainerRow::Child, IX_OBJECT(ix_ns_xcap_forward_to_type)},
    {Service(IX_STR_MEDIA), XmlContainerRow::Text, IX_OBJECT(ix_ns_xcap_media_type)},
    {Service(IX_STR_PRESENCE_STATUS), XmlContainerRow::Text, IX_OBJECT(ix_presence_status_activity_type)},
    {Service(IX_STR_ANONYMOUS), XmlContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_COMMUNICATION_DIVERTED), XmlContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_RULE_DEACTIVATED), XmlContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_NOT_REGISTERED), XmlContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_BUSY), XmlContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_NO_ANSWER), XmlContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_NOT_REACHABLE), XmlContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_ROAMING), XmlContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_INTERNATIONAL), XmlContainerRow::Child, kFlag, CreateFlag},
    {Service(IX_STR_INTERNATIONAL_EXHC), XmlContainerRow::Child, kFlag, CreateFlag},
};

constexpr XmlAttributeRow kAttributes[] = {
    {Policy(IX_STR_RULE), IX_STR_ID},       {Policy(IX_STR_ONE), IX_STR_ID},    {Policy(IX_STR_MANY), IX_STR_DOMAIN},
    {Policy(IX_STR_EXCEPT), IX_STR_DOMAIN}, {Policy(IX_STR_EXCEPT), IX_STR_ID}, {Policy(IX_STR_SPHERE), IX_STR_VALUE},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info;
    info.containers = kContainers;
    info.containerCount = std::size(kContainers);
    info.attributes = kAttributes;
    info.attributeCount = std::size(kAttributes);
    return info;
}

}  // namespace

const XmlDecoderInfo kRuleDecoderInfo = Info();
