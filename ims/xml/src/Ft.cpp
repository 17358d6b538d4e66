#include "Ft.h"

#include "XMLFt.h"

namespace {

const char kSourceFile[] = "ims/xml/src/Ft";

constexpr XmlOldKnownName kFileInfo = {IX_STR_FILE_INFO};
constexpr XmlOldKnownName kData = {IX_STR_DATA};

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_FILE}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_file)},
    {kFileInfo, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_ft_file_info)},
    {kData, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_ft_data)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kFileInfo, IX_STR_TYPE},
    {kData, IX_STR_URL},
    {kData, IX_STR_ETAG},
    {kData, IX_STR_UNTIL},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlOldNamePolicy::Stripped;
    info.attributePolicy = XmlOldAttributePolicy::Top;
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLFileDecoder::XMLFileDecoder() : XmlOldFamilyDecoder(kInfo) {}
