#include "OriginatingIdentityPresentation.h"

#include "XMLOriginatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/OriginatingIdentityPresentation";

// Only the first prefix of a name is removed, so `ss` may still be there behind another one.
constexpr XmlOldKnownName kRoot = {IX_STR_ORIGINATING_IDENTITY_PRESENTATION, XmlOldKnownName::Optional, IX_STR_SS};

constexpr XmlOldContainerRow kContainers[] = {
    {kRoot, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_originating_identity_presentation)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlOldDecoderInfo kInfo = IX_IDENTITY_DECODER_INFO("OIP", "Originating", kContainers, kAttributes);

}  // namespace

XMLOIPDecoder::XMLOIPDecoder() : XmlOldFamilyDecoder(kInfo) {}
