#include "Ft.h"

#include "XMLFt.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_file>(IX_STR_FILE),
    Child<ix_ns_ft_file_info>(IX_STR_FILE_INFO),
    Child<ix_ns_ft_data>(IX_STR_DATA),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLFileDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLFileDecoder", "m_strDup or m_PassName");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLFileDecoder");
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLFileDecoder", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLFileDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLFileDecoder::XMLFileDecoder() : XmlFamilyDecoder(kInfo) {}
