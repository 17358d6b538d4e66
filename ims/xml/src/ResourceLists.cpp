#include "ResourceLists.h"

#include "XMLResourceList.h"

namespace {

const char kSourceFile[] = "ims/xml/src/ResourceLists";

constexpr XmlOldKnownName kList = {IX_STR_LIST};
constexpr XmlOldKnownName kExternal = {IX_STR_EXTERNAL};
constexpr XmlOldKnownName kEntry = {IX_STR_ENTRY};
constexpr XmlOldKnownName kEntryRef = {IX_STR_ENTRY_REF};

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_RESOURCE_LISTS}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_resource_lists)},
    {kList, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_listType)},
    {kExternal, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_externalType)},
    {kEntry, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_entryType)},
    {kEntryRef, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_entry_refType)},
    {{IX_STR_DISPLAY_NAME}, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_display_nameType)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kList, IX_STR_NAME},
    {kExternal, IX_STR_ANCHOR},
    {kEntry, IX_STR_URI},
    {kEntryRef, IX_STR_REF},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    IX_OLD_DECODER_NULL_TEXTS(info.texts, "XMLResourceListsDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLResourceListsDecoder::XMLResourceListsDecoder() : XmlOldFamilyDecoder(kInfo) {}
