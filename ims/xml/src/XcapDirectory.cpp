#include "XcapDirectory.h"

#include "XMLXcapDirectory.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_xcap_directory>(IX_STR_XCAP_DIRECTORY),
    Child<ix_folder>(IX_STR_FOLDER),
    Child<ix_entry>(IX_STR_ENTRY),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLXcapDirectoryDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLXcapDirectoryDecoder", "m_strDup or m_PassName");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLXcapDirectoryDecoder");
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLXcapDirectoryDecoder", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLXcapDirectoryDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLXcapDirectoryDecoder::XMLXcapDirectoryDecoder() : XmlFamilyDecoder(kInfo) {}
