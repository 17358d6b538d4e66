#include "OriginatingIdentityPresentation.h"

#include "XMLOriginatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/OriginatingIdentityPresentation";

constexpr XmlKnownName kRoot = {IX_STR_ORIGINATING_IDENTITY_PRESENTATION};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_originating_identity_presentation)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlDecoderInfo kInfo = IX_IDENTITY_DECODER_INFO("OIP", "Originating", kContainers, kAttributes);

}  // namespace

XMLOIPDecoder::XMLOIPDecoder() : XmlFamilyDecoder(kInfo) {}
