#include "RcsTermsInfo.h"

#include "XMLRcsTermsInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/RcsTermsInfo";

constexpr XmlKnownName kRoot = {IX_STR_RCS_TERMS_INFO};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_rcs_terms_info)},
    {{IX_STR_TERM}, XmlContainerRow::Child, IX_OBJECT(ix_ns_rcs_terms_info_term)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kRoot, IX_STR_VERSION},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlNamePolicy::Stripped;
    info.attributePolicy = XmlAttributePolicy::Top;
    info.texts.noElement = {2, kSchemaCode, __LINE__,
                            "In XMLRcsTermsInfoDecoder :: ProcessElement, Element name is NULL"};
    info.texts.noAttribute = {2, kSchemaCode, __LINE__,
                              "In XMLRcsTermsInfoDecoder :: ProcessAttribute, Element name is NULL"};
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLRcsTermsInfoDecoder::XMLRcsTermsInfoDecoder() : XmlFamilyDecoder(kInfo) {}
