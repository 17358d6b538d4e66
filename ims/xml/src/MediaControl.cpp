#include "MediaControl.h"

#include "XMLMediaControl.h"

namespace {

const char kSourceFile[] = "ims/xml/src/MediaControl";

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_MEDIA_CONTROL}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_media_control)},
    {{IX_STR_VC_PRIMITIVE}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_vc_primitive)},
    {{IX_STR_TO_ENCODER}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_to_encoder)},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers);
    info.names = XmlOldNamePolicy::Stripped;
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLMediaControlDecoder::XMLMediaControlDecoder() : XmlOldFamilyDecoder(kInfo) {}

int XMLMediaControlDecoder::ProcessElement(char* element, char* text) {
    m_pWrittenName = element;
    return XmlOldFamilyDecoder::ProcessElement(element, text);
}

int XMLMediaControlDecoder::ProcessAttribute(char* /*element*/, char* /*attribute*/, char* /*value*/) { return 0; }

int XMLMediaControlDecoder::StartElement(char* name) {
    if (!ixNameIs(name, IX_STR_PICTURE_FAST_UPDATE)) return XmlOldFamilyDecoder::StartElement(name);
    XMLElement* const top = Top();
    if (top == nullptr) return 0;
    ix_empty_element_type* const request = ixCreateEmptyElement(m_pWrittenName, kSourceFile, __LINE__);
    if (request != nullptr) Offer(*top, name, request);
    return 0;
}

int XMLMediaControlDecoder::EndElement(char* name, char* text) {
    return ixEndNameIs(name, IX_STR_PICTURE_FAST_UPDATE) ? 0 : XmlOldFamilyDecoder::EndElement(name, text);
}
