#include "Ft.h"

#include "XMLFt.h"

namespace {

const char kSourceFile[] = "ims/xml/src/Ft";

constexpr XmlKnownName kFileInfo = {IX_STR_FILE_INFO};
constexpr XmlKnownName kData = {IX_STR_DATA};

constexpr XmlContainerRow kContainers[] = {
    {{IX_STR_FILE}, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_file)},
    {kFileInfo, XmlContainerRow::Child, IX_OBJECT(ix_ns_ft_file_info)},
    {kData, XmlContainerRow::Child, IX_OBJECT(ix_ns_ft_data)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kFileInfo, IX_STR_TYPE},
    {kData, IX_STR_URL},
    {kData, IX_STR_ETAG},
    {kData, IX_STR_UNTIL},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlNamePolicy::Stripped;
    info.attributePolicy = XmlAttributePolicy::Top;
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLFileDecoder::XMLFileDecoder() : XmlFamilyDecoder(kInfo) {}
