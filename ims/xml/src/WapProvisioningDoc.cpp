#include "WapProvisioningDoc.h"

#include "XMLWapProvisioningDoc.h"

namespace {

const char kSourceFile[] = "ims/xml/src/WapProvisioningDoc";

constexpr XmlOldContainerRow kContainers[] = {
    {XmlOldKnownName::Of("wap-provisioningdoc"), XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_wap_provisioning_doc)},
    kCharacteristicRow,
    kParmRow,
};
constexpr XmlOldDecoderInfo kInfo = ixCharacteristicDecoderInfo(kSourceFile, kContainers);

}  // namespace

XMLWapProvisioningDocDecoder::XMLWapProvisioningDocDecoder() : XmlOldFamilyDecoder(kInfo) {}
