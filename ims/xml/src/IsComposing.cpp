#include "IsComposing.h"

#include "XMLIsComposing.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_isComposing>(IX_STR_ISCOMPOSING),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLIsComposingDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLIsComposingDecoder", "m_strDup or m_PassName");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLIsComposingDecoder");
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLIsComposingDecoder", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLIsComposingDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLIsComposingDecoder::XMLIsComposingDecoder() : XmlFamilyDecoder(kInfo) {}

int XMLIsComposingDecoder::OtherAttribute(XMLElement& receiver, const XmlTag& attribute, char* value) {
    // Required: attributes are offered as if they were elements, which the root knows none of; so each is logged, and
    // none is kept.
    XmlHooks::OfferTo(receiver, XmlTag(attribute.text), value, nullptr);
    return 0;
}
