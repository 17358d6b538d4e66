#include "OriginatingIdentityPresentation.h"

#include "XMLOriginatingIdentityPresentation.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    // Only the first prefix of a name is removed, so `ss` may still be there behind another one.
    Root<ix_originating_identity_presentation>(
        {IX_STR_ORIGINATING_IDENTITY_PRESENTATION, XmlKnownName::Optional, IX_STR_SS}),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info =
        ixServiceDecoderInfo(ixDecoderInfo<kContainers>(kSource),
                             IX_SERVICE_DECODER_TEXTS("XMLOIPDecoder", "XMLOriginatingIdentityPresentationDecoder",
                                                      "m_PassName", "XMLOIPDecoder"));
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLOIPDecoder::XMLOIPDecoder() : XmlFamilyDecoder(kInfo) {}
