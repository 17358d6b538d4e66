#include "XcapDirectory.h"

#include "XMLXcapDirectory.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XcapDirectory";

constexpr XmlKnownName kFolder = {IX_STR_FOLDER};
constexpr XmlKnownName kEntry = {IX_STR_ENTRY};

constexpr XmlContainerRow kContainers[] = {
    {{IX_STR_XCAP_DIRECTORY}, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_xcap_directory)},
    {kFolder, XmlContainerRow::Child, IX_OBJECT(ix_folder)},
    {kEntry, XmlContainerRow::Child, IX_OBJECT(ix_entry)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kFolder, IX_STR_AUID},         {kEntry, IX_STR_URI},  {kEntry, IX_STR_ETAG},
    {kEntry, IX_STR_LAST_MODIFIED}, {kEntry, IX_STR_SIZE},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlNamePolicy::Stripped;
    IX_DECODER_TEXTS(info.texts, "XMLXcapDirectoryDecoder", "m_strDup or m_PassName", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLXcapDirectoryDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLXcapDirectoryDecoder::XMLXcapDirectoryDecoder() : XmlFamilyDecoder(kInfo) {}
