#include "CWIndication.h"

#include "XMLCWIndication.h"

namespace {

const char kSourceFile[] = "ims/xml/src/CWIndication";

constexpr XmlOldKnownName kRoot = {IX_STR_IMS_3GPP};

constexpr XmlOldContainerRow kContainers[] = {
    {kRoot, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_ims_3gpp)},
    {{IX_STR_ALTERNATIVE_SERVICE}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_alternative_service)},
};

constexpr XmlOldAttributeRow kAttribute = {kRoot, IX_STR_VERSION};

constexpr XmlOldDecoderInfo kInfo = ixImsBodyDecoderInfo(kSourceFile, __LINE__, kContainers, kAttribute);

}  // namespace

XMLCWIndicationDecoder::XMLCWIndicationDecoder() : XmlOldFamilyDecoder(kInfo) {}
