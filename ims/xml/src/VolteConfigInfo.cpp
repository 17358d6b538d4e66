#include "VolteConfigInfo.h"

#include "XMLVolteConfigInfo.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_volte_config_info>(kXmlNameVolteConfigInfo),
    Child<ix_characteristic>(kXmlNameCharacteristic),
    Child<ix_parm>(kXmlNameParm),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLVolteConfigInfoDecoder");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLVolteConfigInfoDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLVolteConfigInfoDecoder::XMLVolteConfigInfoDecoder() : XmlCharacteristicDecoder(kInfo) {}
