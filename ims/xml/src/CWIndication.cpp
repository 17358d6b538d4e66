#include "CWIndication.h"

#include "XMLCWIndication.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_ims_3gpp>(IX_STR_IMS_3GPP),
    Child<ix_alternative_service>(IX_STR_ALTERNATIVE_SERVICE),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLCWIndicationDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLCWIndicationDecoder", "m_strDup or m_PassName");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLCWIndicationDecoder");
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLCWIndicationDecoder", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLCWIndicationDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLCWIndicationDecoder::XMLCWIndicationDecoder() : XmlImsBodyDecoder(kInfo, IX_STR_IMS_3GPP, IX_STR_VERSION) {}
