#include "TerminatingIdentityPresentation.h"

#include "XMLTerminatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/TerminatingIdentityPresentation";

constexpr XmlKnownName kRoot = {IX_STR_TERMINATING_IDENTITY_PRESENTATION};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_terminating_identity_presentation)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlDecoderInfo kInfo = IX_IDENTITY_DECODER_INFO("TIP", "Terminating", kContainers, kAttributes);

}  // namespace

XMLTIPDecoder::XMLTIPDecoder() : XmlFamilyDecoder(kInfo) {}
