#include "BootstrappingInfo.h"

#include "XMLBootstrappingInfo.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_bootstrappinginfo>(IX_STR_BOOTSTRAPPINGINFO),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    info.wrapsNameSize = true;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLBootstrappingInfoDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLBootstrappingInfoDecoder", "m_PassName");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLBootstrappingInfoDecoder");
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLBootstrappingInfoDecoder", "m_PassName");
    info.texts.noObject = {3, "<XML Module>: New Failed at element = \"%s\""};
    info.texts.noPair = {3, "<XML Module>: New Failed at any attribute level with element = \"%s\""};
    info.texts.removeTagNoTag = {2, "XMLBootstrappingInfoDecoder :: XMLRemoveNameSpaceTag: n_strElement is NULL"};
    // Required: this line alone has the event number of the tokenizer.
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLBootstrappingInfoDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLBootstrappingInfoDecoder::XMLBootstrappingInfoDecoder() : XmlFamilyDecoder(kInfo) {}
