#include "WapProvisioningDoc.h"

#include "XMLWapProvisioningDoc.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_wap_provisioning_doc>(kXmlNameWapProvisioningdoc),
    Child<ix_characteristic>(kXmlNameCharacteristic),
    Child<ix_parm>(kXmlNameParm),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLWapProvisioningDocDecoder");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLWapProvisioningDocDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLWapProvisioningDocDecoder::XMLWapProvisioningDocDecoder() : XmlCharacteristicDecoder(kInfo) {}
