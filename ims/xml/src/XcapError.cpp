#include "XcapError.h"

#include "XMLXcapError.h"

namespace {

using namespace XmlContainer;

// An element `error-element` has no row: nobody knows it, so what is in it reaches the root.
constexpr XmlContainerRow kContainers[] = {
    Root<ix_xcap_error>(IX_STR_XCAP_ERROR),
    Child<ix_extension>(IX_STR_EXTENSION),
    Child<ix_schema_validation_error>(IX_STR_SCHEMA_VALIDATION_ERROR),
    Child<ix_not_xml_frag>(IX_STR_NOT_XML_FRAG),
    Child<ix_no_parent>(IX_STR_NO_PARENT),
    Child<ix_cannot_insert>(IX_STR_CANNOT_INSERT),
    Child<ix_not_xml_att_value>(IX_STR_NOT_XML_ATT_VALUE),
    Child<ix_uniqueness_failure>(IX_STR_UNIQUENESS_FAILURE),
    Child<ix_exists>(IX_STR_EXISTS),
    Child<ix_not_well_formed>(IX_STR_NOT_WELL_FORMED),
    Child<ix_constraint_failure>(IX_STR_CONSTRAINT_FAILURE),
    Child<ix_cannot_delete>(IX_STR_CANNOT_DELETE),
    Child<ix_not_utf_8>(IX_STR_NOT_UTF_8),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::OwnNoPairs;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLXcapErrorDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLXcapErrorDecoder", "m_strDup or m_PassName");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLXcapErrorDecoder");
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLXcapErrorDecoder", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLXcapErrorDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLXcapErrorDecoder::XMLXcapErrorDecoder() : XmlFamilyDecoder(kInfo) {}
