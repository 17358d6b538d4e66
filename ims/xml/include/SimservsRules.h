/// @file
/// What the decoders of the services with a ruleset share: the elements of the rules.
#ifndef IX_SIMSERVS_RULES_H
#define IX_SIMSERVS_RULES_H

#include "XMLSimservsXcap.h"

/// Containers and attributes of rules, their conditions and actions, to be shared by `XmlOldDecoderInfo::shared`.
///
/// Elements of common-policy must have the canonical prefix `cp`, those of the services may have `ss`. What is none of
/// them goes to the object on top of the stack, under its local name.
extern IX_XML_EXPORT const XmlOldDecoderInfo kRuleDecoderInfo;

/// What the decoders of these services share; the log lines are their own.
/// @param pairLine source line under which attribute pairs are registered.
/// @param containers the roots, and what the service has in its rules besides the shared elements.
/// @param attributes those of the roots.
template <std::size_t containerCount, std::size_t attributeCount>
constexpr XmlOldDecoderInfo ixRuleServiceDecoderInfo(const char* source, int pairLine,
                                                  const XmlOldContainerRow (&containers)[containerCount],
                                                  const XmlOldAttributeRow (&attributes)[attributeCount]) {
    XmlOldDecoderInfo info = ixServiceDecoderInfo(source, pairLine, containers, attributes);
    info.handsOnLocalNames = true;
    info.takesFragments = true;
    info.attributePolicy = XmlOldAttributePolicy::RootPairs;
    info.shared = &kRuleDecoderInfo;
    return info;
}

#endif
