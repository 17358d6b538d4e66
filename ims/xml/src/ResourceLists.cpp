#include "ResourceLists.h"

#include "XMLResourceList.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_resource_lists>(IX_STR_RESOURCE_LISTS), Text<ix_listType>(IX_STR_LIST),
    Text<ix_externalType>(IX_STR_EXTERNAL),         Text<ix_entryType>(IX_STR_ENTRY),
    Text<ix_entry_refType>(IX_STR_ENTRY_REF),       Text<ix_display_nameType>(IX_STR_DISPLAY_NAME),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLResourceListsDecoder");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLResourceListsDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLResourceListsDecoder::XMLResourceListsDecoder() : XmlFamilyDecoder(kInfo) {}
