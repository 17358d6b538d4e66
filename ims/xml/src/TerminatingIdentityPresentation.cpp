#include "TerminatingIdentityPresentation.h"

#include "XMLTerminatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/TerminatingIdentityPresentation";

// Only the first prefix of a name is removed, so `ss` may still be there behind another one.
constexpr XmlKnownName kRoot = {IX_STR_TERMINATING_IDENTITY_PRESENTATION, XmlKnownName::Optional, IX_STR_SS};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_terminating_identity_presentation)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlDecoderInfo kInfo = IX_IDENTITY_DECODER_INFO("TIP", "Terminating", kContainers, kAttributes);

}  // namespace

XMLTIPDecoder::XMLTIPDecoder() : XmlFamilyDecoder(kInfo) {}
