#include "MediaControl.h"

#include "XMLMediaControl.h"

namespace {

const char kSourceFile[] = "ims/xml/src/MediaControl";

constexpr XmlContainerRow kContainers[] = {
    {{IX_STR_MEDIA_CONTROL}, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_media_control)},
    {{IX_STR_VC_PRIMITIVE}, XmlContainerRow::Child, IX_OBJECT(ix_vc_primitive)},
    {{IX_STR_TO_ENCODER}, XmlContainerRow::Child, IX_OBJECT(ix_to_encoder)},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers);
    info.names = XmlNamePolicy::Stripped;
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLMediaControlDecoder::XMLMediaControlDecoder() : XmlFamilyDecoder(kInfo) {}

int XMLMediaControlDecoder::ProcessElement(char* element, char* text) {
    m_pWrittenName = element;
    return XmlFamilyDecoder::ProcessElement(element, text);
}

int XMLMediaControlDecoder::ProcessAttribute(char* /*element*/, char* /*attribute*/, char* /*value*/) { return 0; }

int XMLMediaControlDecoder::StartElement(char* name) {
    if (!ixNameIs(name, IX_STR_PICTURE_FAST_UPDATE)) return XmlFamilyDecoder::StartElement(name);
    XMLElement* const top = Top();
    if (top == nullptr) return 0;
    ix_empty_element_type* const request = ixCreateEmptyElement(m_pWrittenName, kSourceFile, __LINE__);
    if (request != nullptr) Offer(*top, name, request);
    return 0;
}

int XMLMediaControlDecoder::EndElement(char* name, char* text) {
    return ixEndNameIs(name, IX_STR_PICTURE_FAST_UPDATE) ? 0 : XmlFamilyDecoder::EndElement(name, text);
}
