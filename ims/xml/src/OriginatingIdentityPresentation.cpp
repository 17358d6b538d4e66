#include "OriginatingIdentityPresentation.h"

#include "XMLOriginatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/OriginatingIdentityPresentation";

// Only the first prefix of a name is removed, so `ss` may still be there behind another one.
constexpr XmlKnownName kRoot = {IX_STR_ORIGINATING_IDENTITY_PRESENTATION, XmlKnownName::Optional, IX_STR_SS};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_originating_identity_presentation)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlDecoderInfo kInfo = IX_IDENTITY_DECODER_INFO("OIP", "Originating", kContainers, kAttributes);

}  // namespace

XMLOIPDecoder::XMLOIPDecoder() : XmlFamilyDecoder(kInfo) {}
