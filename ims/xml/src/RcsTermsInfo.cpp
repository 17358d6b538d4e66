#include "RcsTermsInfo.h"

#include "XMLRcsTermsInfo.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_rcs_terms_info>(IX_STR_RCS_TERMS_INFO),
    Child<ix_ns_rcs_terms_info_term>(IX_STR_TERM),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    info.texts.noElement = {2, "In XMLRcsTermsInfoDecoder :: ProcessElement, Element name is NULL"};
    info.texts.noAttribute = {2, "In XMLRcsTermsInfoDecoder :: ProcessAttribute, Element name is NULL"};
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLRcsTermsInfoDecoder", "m_strDup or m_PassName");
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLRcsTermsInfoDecoder", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLRcsTermsInfoDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLRcsTermsInfoDecoder::XMLRcsTermsInfoDecoder() : XmlFamilyDecoder(kInfo) {}
