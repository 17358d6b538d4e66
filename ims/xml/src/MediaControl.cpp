#include "MediaControl.h"

#include "XMLMediaControl.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_media_control>(IX_STR_MEDIA_CONTROL),
    Child<ix_vc_primitive>(IX_STR_VC_PRIMITIVE),
    Child<ix_to_encoder>(IX_STR_TO_ENCODER),
    Leaf<ix_empty_element_type>(IX_STR_PICTURE_FAST_UPDATE),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLMediaControlDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLMediaControlDecoder", "m_strDup or m_PassName");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLMediaControlDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLMediaControlDecoder::XMLMediaControlDecoder() : XmlFamilyDecoder(kInfo) {}

int XMLMediaControlDecoder::ProcessElement(char* element, char* text) {
    m_pWrittenName = element;
    return XmlFamilyDecoder::ProcessElement(element, text);
}

int XMLMediaControlDecoder::StartElement(const XmlTag& tag) {
    if (tag.name != IX_STR_PICTURE_FAST_UPDATE) return XmlFamilyDecoder::StartElement(tag);
    XMLElement* const top = Top();
    if (top == nullptr) return 0;
    // Required: the request is written back with the prefix that it came with.
    ix_empty_element_type* const request = ixCreateEmptyElement(m_pWrittenName, kSource);
    if (request != nullptr) Offer(*top, tag, request);
    return 0;
}
