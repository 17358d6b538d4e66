#include "CWIndication.h"

#include "XMLCWIndication.h"

namespace {

const char kSourceFile[] = "ims/xml/src/CWIndication";

constexpr XmlKnownName kRoot = {IX_STR_IMS_3GPP};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_ims_3gpp)},
    {{IX_STR_ALTERNATIVE_SERVICE}, XmlContainerRow::Child, IX_OBJECT(ix_alternative_service)},
};

constexpr XmlAttributeRow kAttribute = {kRoot, IX_STR_VERSION};

constexpr XmlDecoderInfo kInfo = ixImsBodyDecoderInfo(kSourceFile, __LINE__, kContainers, kAttribute);

}  // namespace

XMLCWIndicationDecoder::XMLCWIndicationDecoder() : XmlFamilyDecoder(kInfo) {}
