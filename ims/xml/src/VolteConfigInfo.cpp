#include "VolteConfigInfo.h"

#include "XMLVolteConfigInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/VolteConfigInfo";

constexpr XmlContainerRow kContainers[] = {
    {XmlKnownName::Of("volte-config-info"), XmlContainerRow::Root, nullptr, IX_CREATOR(ix_volte_config_info)},
    kCharacteristicRow,
    kParmRow,
};
constexpr XmlDecoderInfo kInfo = ixCharacteristicDecoderInfo(kSourceFile, kContainers);

}  // namespace

XMLVolteConfigInfoDecoder::XMLVolteConfigInfoDecoder() : XmlFamilyDecoder(kInfo) {}
