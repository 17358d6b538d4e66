#include "RcsTermsInfo.h"

#include "XMLRcsTermsInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/RcsTermsInfo";

constexpr XmlOldKnownName kRoot = {IX_STR_RCS_TERMS_INFO};

constexpr XmlOldContainerRow kContainers[] = {
    {kRoot, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_rcs_terms_info)},
    {{IX_STR_TERM}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_rcs_terms_info_term)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kRoot, IX_STR_VERSION},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlOldNamePolicy::Stripped;
    info.attributePolicy = XmlOldAttributePolicy::Top;
    info.texts.noElement = {2, kSchemaCode, __LINE__,
                            "In XMLRcsTermsInfoDecoder :: ProcessElement, Element name is NULL"};
    info.texts.noAttribute = {2, kSchemaCode, __LINE__,
                              "In XMLRcsTermsInfoDecoder :: ProcessAttribute, Element name is NULL"};
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLRcsTermsInfoDecoder::XMLRcsTermsInfoDecoder() : XmlOldFamilyDecoder(kInfo) {}
