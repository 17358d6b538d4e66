#include "RlsServices.h"

#include "XMLRlsServices.h"

namespace {

using namespace XmlContainer;

/// The elements of a list are recognised with this prefix only, and offered without it.
constexpr XmlKnownName InList(e_XmlStrRef name) { return {name, XmlKnownName::Required, IX_STR_RL}; }

constexpr XmlContainerRow kContainers[] = {
    Root<ix_rls_services>(IX_STR_RLS_SERVICES),
    Child<ix_ns_rls_services_serviceType>(IX_STR_SERVICE),
    Child<ix_listType>(InList(IX_STR_LIST)),
    Child<ix_externalType>(InList(IX_STR_EXTERNAL)),
    Child<ix_entryType>(InList(IX_STR_ENTRY)),
    Child<ix_entry_refType>(InList(IX_STR_ENTRY_REF)),
    // Required: unlike the list that it stands in, a display name has no prefix.
    Text<ix_display_nameType>(IX_STR_DISPLAY_NAME),
    Child<ix_ns_rls_services_packagesType>(IX_STR_PACKAGES),
    Text<ix_ns_rls_services_packageType>(IX_STR_PACKAGE),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLRlsServicesDecoder");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLRlsServicesDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLRlsServicesDecoder::XMLRlsServicesDecoder() : XmlFamilyDecoder(kInfo) {}
