/// @file
/// What the decoders of the services with a ruleset share: the elements of the rules.
#ifndef IX_SIMSERVS_RULES_H
#define IX_SIMSERVS_RULES_H

#include "XmlFamily.h"

/// Containers and attributes of rules, their conditions and actions, to be shared by `XmlDecoderInfo::shared`.
///
/// Elements of common-policy must have the canonical prefix `cp`, those of the services may have `ss`. What is none of
/// them goes to the object on top of the stack, under its local name.
extern const XmlDecoderInfo kRuleDecoderInfo;

#endif
