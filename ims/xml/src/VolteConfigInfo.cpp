#include "VolteConfigInfo.h"

#include "XMLVolteConfigInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/VolteConfigInfo";

constexpr XmlOldContainerRow kContainers[] = {
    {XmlOldKnownName::Of("volte-config-info"), XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_volte_config_info)},
    kCharacteristicRow,
    kParmRow,
};
constexpr XmlOldDecoderInfo kInfo = ixCharacteristicDecoderInfo(kSourceFile, kContainers);

}  // namespace

XMLVolteConfigInfoDecoder::XMLVolteConfigInfoDecoder() : XmlOldFamilyDecoder(kInfo) {}
