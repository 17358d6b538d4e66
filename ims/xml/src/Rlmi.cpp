#include "Rlmi.h"

#include "XMLRlmi.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_list>(IX_STR_LIST),
    Text<ix_name>(IX_STR_NAME),
    Child<ix_resource>(IX_STR_RESOURCE),
    Child<ix_instance>(IX_STR_INSTANCE),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLListDecoder");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLListDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLListDecoder::XMLListDecoder() : XmlFamilyDecoder(kInfo) {}
