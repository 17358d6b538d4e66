#include "XcapDirectory.h"

#include <iterator>

#include "XMLXcapDirectory.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XcapDirectory";

constexpr XmlKnownName kFolder = {IX_STR_FOLDER};
constexpr XmlKnownName kEntry = {IX_STR_ENTRY};

constexpr XmlContainerRow kContainers[] = {
    {{IX_STR_XCAP_DIRECTORY}, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_xcap_directory)},
    {kFolder, XmlContainerRow::Child, ix_folder::kClass, IX_CREATOR(ix_folder)},
    {kEntry, XmlContainerRow::Child, ix_entry::kClass, IX_CREATOR(ix_entry)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kFolder, IX_STR_AUID},         {kEntry, IX_STR_URI},  {kEntry, IX_STR_ETAG},
    {kEntry, IX_STR_LAST_MODIFIED}, {kEntry, IX_STR_SIZE},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info;
    info.source = kSourceFile;
    info.names = XmlNamePolicy::Stripped;
    info.containers = kContainers;
    info.containerCount = std::size(kContainers);
    info.attributes = kAttributes;
    info.attributeCount = std::size(kAttributes);
    info.pairLine = __LINE__;
    info.texts.noElement = {3, kSchemaCode, __LINE__,
                            "<XML Module>XMLXcapDirectoryDecoder :: ProcessElement: n_strElement is NULL"};
    info.texts.noElementName = {
        3, kSchemaCode, __LINE__,
        "<XML Module>XMLXcapDirectoryDecoder :: ProcessElement: m_strDup or m_PassName is NULL"};
    info.texts.noAttribute = {3, kSchemaCode, __LINE__,
                              "<XML Module>XMLXcapDirectoryDecoder :: ProcessAttribute: n_strElement is NULL"};
    info.texts.noAttributeName = {3, kSchemaCode, __LINE__,
                                  "<XML Module>XMLXcapDirectoryDecoder :: ProcessAttribute: m_strDup is NULL"};
    info.texts.removeTagNoMemory = {
        2, kDecoderCode, __LINE__,
        "XMLXcapDirectoryDecoder :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory"};
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLXcapDirectoryDecoder::XMLXcapDirectoryDecoder() : XmlFamilyDecoder(kInfo) {}
