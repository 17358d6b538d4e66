#include "ResourceLists.h"

#include "XMLResourceList.h"

namespace {

const char kSourceFile[] = "ims/xml/src/ResourceLists";

constexpr XmlKnownName kList = {IX_STR_LIST};
constexpr XmlKnownName kExternal = {IX_STR_EXTERNAL};
constexpr XmlKnownName kEntry = {IX_STR_ENTRY};
constexpr XmlKnownName kEntryRef = {IX_STR_ENTRY_REF};

constexpr XmlContainerRow kContainers[] = {
    {{IX_STR_RESOURCE_LISTS}, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_resource_lists)},
    {kList, XmlContainerRow::Text, IX_OBJECT(ix_listType)},
    {kExternal, XmlContainerRow::Text, IX_OBJECT(ix_externalType)},
    {kEntry, XmlContainerRow::Text, IX_OBJECT(ix_entryType)},
    {kEntryRef, XmlContainerRow::Text, IX_OBJECT(ix_entry_refType)},
    {{IX_STR_DISPLAY_NAME}, XmlContainerRow::Text, IX_OBJECT(ix_display_nameType)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kList, IX_STR_NAME},
    {kExternal, IX_STR_ANCHOR},
    {kEntry, IX_STR_URI},
    {kEntryRef, IX_STR_REF},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    IX_DECODER_NULL_TEXTS(info.texts, "XMLResourceListsDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLResourceListsDecoder::XMLResourceListsDecoder() : XmlFamilyDecoder(kInfo) {}
