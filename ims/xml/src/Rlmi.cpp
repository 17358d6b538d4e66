#include "Rlmi.h"

#include "XMLRlmi.h"

namespace {

const char kSourceFile[] = "ims/xml/src/Rlmi";

constexpr XmlKnownName kList = {IX_STR_LIST};
constexpr XmlKnownName kResource = {IX_STR_RESOURCE};
constexpr XmlKnownName kInstance = {IX_STR_INSTANCE};

constexpr XmlContainerRow kContainers[] = {
    {kList, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_list)},
    {{IX_STR_NAME}, XmlContainerRow::Text, IX_OBJECT(ix_name)},
    {kResource, XmlContainerRow::Child, IX_OBJECT(ix_resource)},
    {kInstance, XmlContainerRow::Child, IX_OBJECT(ix_instance)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kList, IX_STR_URI},       {kList, IX_STR_VERSION},    {kList, IX_STR_FULLSTATE},
    {kList, IX_STR_CID},       {kResource, IX_STR_URI},    {kInstance, IX_STR_ID},
    {kInstance, IX_STR_STATE}, {kInstance, IX_STR_REASON}, {kInstance, IX_STR_CID},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    IX_DECODER_NULL_TEXTS(info.texts, "XMLListDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLListDecoder::XMLListDecoder() : XmlFamilyDecoder(kInfo) {}
