#include "RlsServices.h"

#include "XMLRlsServices.h"

namespace {

const char kSourceFile[] = "ims/xml/src/RlsServices";

constexpr XmlOldKnownName kService = {IX_STR_SERVICE};
// The elements of a list are recognised with this prefix only, and offered without it.
constexpr XmlOldKnownName kList = {IX_STR_LIST, XmlOldKnownName::Required, IX_STR_RL};
constexpr XmlOldKnownName kExternal = {IX_STR_EXTERNAL, XmlOldKnownName::Required, IX_STR_RL};
constexpr XmlOldKnownName kEntry = {IX_STR_ENTRY, XmlOldKnownName::Required, IX_STR_RL};
constexpr XmlOldKnownName kEntryRef = {IX_STR_ENTRY_REF, XmlOldKnownName::Required, IX_STR_RL};

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_RLS_SERVICES}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_rls_services)},
    {kService, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_rls_services_serviceType)},
    {kList, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_listType)},
    {kExternal, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_externalType)},
    {kEntry, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_entryType)},
    {kEntryRef, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_entry_refType)},
    // Required: unlike the list that it stands in, a display name has no prefix.
    {{IX_STR_DISPLAY_NAME}, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_display_nameType)},
    {{IX_STR_PACKAGES}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_rls_services_packagesType)},
    {{IX_STR_PACKAGE}, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_ns_rls_services_packageType)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kService, IX_STR_URI}, {kList, IX_STR_NAME},    {kExternal, IX_STR_ANCHOR},
    {kEntry, IX_STR_URI},   {kEntryRef, IX_STR_REF},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    IX_OLD_DECODER_NULL_TEXTS(info.texts, "XMLRlsServicesDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLRlsServicesDecoder::XMLRlsServicesDecoder() : XmlOldFamilyDecoder(kInfo) {}
