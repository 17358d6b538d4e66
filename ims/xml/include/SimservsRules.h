/// @file
/// What the decoders of the services with a ruleset share: the elements of the rules.
#ifndef IX_SIMSERVS_RULES_H
#define IX_SIMSERVS_RULES_H

#include "XMLSimservsXcap.h"

/// Containers of rules, their conditions and actions, to be shared by `XmlDecoderInfo::shared`.
///
/// Elements of common-policy must have the canonical prefix `cp`, those of the services may have `ss`.
extern IX_XML_EXPORT const XmlContainerTable kRuleContainers;

/// What the decoders of these services share.
/// @param info the roots, and what the service has in its rules besides the shared elements.
/// @param texts the log lines of the service.
constexpr XmlDecoderInfo ixRuleServiceDecoderInfo(const XmlDecoderInfo& info, const XmlDecoderTexts& texts) {
    XmlDecoderInfo shared = ixServiceDecoderInfo(info, texts);
    shared.attributes = XmlAttributePolicy::RootPairs;
    shared.shared = &kRuleContainers;
    return shared;
}

/// Base of these decoders.
class IX_XML_EXPORT XmlRuleDecoder : public XmlFamilyDecoder {
  protected:
    using XmlFamilyDecoder::XmlFamilyDecoder;

    /// What is no container goes to the object on top of the stack under its local name.
    int OtherElement(const XmlTag& tag, char* text) override;
    /// The outermost container is the result: a part of a document, too. A root inside of one is a part like any other.
    bool IsResult(const XmlContainerRow& row) const override;
};

#endif
