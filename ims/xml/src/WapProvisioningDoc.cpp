#include "WapProvisioningDoc.h"

#include "XMLWapProvisioningDoc.h"

namespace {

const char kSourceFile[] = "ims/xml/src/WapProvisioningDoc";

constexpr XmlContainerRow kContainers[] = {
    {XmlKnownName::Of("wap-provisioningdoc"), XmlContainerRow::Root, nullptr, IX_CREATOR(ix_wap_provisioning_doc)},
    kCharacteristicRow,
    kParmRow,
};
constexpr XmlDecoderInfo kInfo = ixCharacteristicDecoderInfo(kSourceFile, kContainers);

}  // namespace

XMLWapProvisioningDocDecoder::XMLWapProvisioningDocDecoder() : XmlFamilyDecoder(kInfo) {}
