#include "XcapDirectory.h"

#include "XMLXcapDirectory.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XcapDirectory";

constexpr XmlOldKnownName kFolder = {IX_STR_FOLDER};
constexpr XmlOldKnownName kEntry = {IX_STR_ENTRY};

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_XCAP_DIRECTORY}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_xcap_directory)},
    {kFolder, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_folder)},
    {kEntry, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_entry)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kFolder, IX_STR_AUID},         {kEntry, IX_STR_URI},  {kEntry, IX_STR_ETAG},
    {kEntry, IX_STR_LAST_MODIFIED}, {kEntry, IX_STR_SIZE},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlOldNamePolicy::Stripped;
    IX_OLD_DECODER_TEXTS(info.texts, "XMLXcapDirectoryDecoder", "m_strDup or m_PassName", "m_strDup");
    info.texts.removeTagNoMemory = IX_OLD_REMOVE_TAG_TEXT("XMLXcapDirectoryDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLXcapDirectoryDecoder::XMLXcapDirectoryDecoder() : XmlOldFamilyDecoder(kInfo) {}
