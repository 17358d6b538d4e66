#include "TerminatingIdentityPresentation.h"

#include "XMLTerminatingIdentityPresentation.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    // Only the first prefix of a name is removed, so `ss` may still be there behind another one.
    Root<ix_terminating_identity_presentation>(
        {IX_STR_TERMINATING_IDENTITY_PRESENTATION, XmlKnownName::Optional, IX_STR_SS}),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info =
        ixServiceDecoderInfo(ixDecoderInfo<kContainers>(kSource),
                             IX_SERVICE_DECODER_TEXTS("XMLTIPDecoder", "XMLTerminatingIdentityPresentationDecoder",
                                                      "m_PassName", "XMLTIPDecoder"));
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLTIPDecoder::XMLTIPDecoder() : XmlFamilyDecoder(kInfo) {}
