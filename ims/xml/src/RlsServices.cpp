#include "RlsServices.h"

#include "XMLRlsServices.h"

namespace {

const char kSourceFile[] = "ims/xml/src/RlsServices";

constexpr XmlKnownName kService = {IX_STR_SERVICE};
// The elements of a list are recognised with this prefix only, and offered without it.
constexpr XmlKnownName kList = {IX_STR_LIST, XmlKnownName::Required, IX_STR_RL};
constexpr XmlKnownName kExternal = {IX_STR_EXTERNAL, XmlKnownName::Required, IX_STR_RL};
constexpr XmlKnownName kEntry = {IX_STR_ENTRY, XmlKnownName::Required, IX_STR_RL};
constexpr XmlKnownName kEntryRef = {IX_STR_ENTRY_REF, XmlKnownName::Required, IX_STR_RL};

constexpr XmlContainerRow kContainers[] = {
    {{IX_STR_RLS_SERVICES}, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_rls_services)},
    {kService, XmlContainerRow::Child, IX_OBJECT(ix_ns_rls_services_serviceType)},
    {kList, XmlContainerRow::Child, IX_OBJECT(ix_listType)},
    {kExternal, XmlContainerRow::Child, IX_OBJECT(ix_externalType)},
    {kEntry, XmlContainerRow::Child, IX_OBJECT(ix_entryType)},
    {kEntryRef, XmlContainerRow::Child, IX_OBJECT(ix_entry_refType)},
    // Required: unlike the list that it stands in, a display name has no prefix.
    {{IX_STR_DISPLAY_NAME}, XmlContainerRow::Text, IX_OBJECT(ix_display_nameType)},
    {{IX_STR_PACKAGES}, XmlContainerRow::Child, IX_OBJECT(ix_ns_rls_services_packagesType)},
    {{IX_STR_PACKAGE}, XmlContainerRow::Text, IX_OBJECT(ix_ns_rls_services_packageType)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kService, IX_STR_URI}, {kList, IX_STR_NAME},    {kExternal, IX_STR_ANCHOR},
    {kEntry, IX_STR_URI},   {kEntryRef, IX_STR_REF},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    IX_DECODER_NULL_TEXTS(info.texts, "XMLRlsServicesDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLRlsServicesDecoder::XMLRlsServicesDecoder() : XmlFamilyDecoder(kInfo) {}
