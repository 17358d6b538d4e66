#include "XcapError.h"

#include "XMLXcapError.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XcapError";

constexpr XmlOldKnownName kRoot = {IX_STR_XCAP_ERROR};
constexpr XmlOldKnownName kExtension = {IX_STR_EXTENSION};
constexpr XmlOldKnownName kSchemaValidationError = {IX_STR_SCHEMA_VALIDATION_ERROR};
constexpr XmlOldKnownName kNotXmlFrag = {IX_STR_NOT_XML_FRAG};
constexpr XmlOldKnownName kNoParent = {IX_STR_NO_PARENT};
constexpr XmlOldKnownName kCannotInsert = {IX_STR_CANNOT_INSERT};
constexpr XmlOldKnownName kNotXmlAttValue = {IX_STR_NOT_XML_ATT_VALUE};
constexpr XmlOldKnownName kUniquenessFailure = {IX_STR_UNIQUENESS_FAILURE};
constexpr XmlOldKnownName kExists = {IX_STR_EXISTS};
constexpr XmlOldKnownName kNotWellFormed = {IX_STR_NOT_WELL_FORMED};
constexpr XmlOldKnownName kConstraintFailure = {IX_STR_CONSTRAINT_FAILURE};
constexpr XmlOldKnownName kCannotDelete = {IX_STR_CANNOT_DELETE};
constexpr XmlOldKnownName kNotUtf8 = {IX_STR_NOT_UTF_8};

// An element `error-element` has no row: nobody knows it, so what is in it reaches the root.
constexpr XmlOldContainerRow kContainers[] = {
    {kRoot, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_xcap_error)},
    {kExtension, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_extension)},
    {kSchemaValidationError, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_schema_validation_error)},
    {kNotXmlFrag, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_not_xml_frag)},
    {kNoParent, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_no_parent)},
    {kCannotInsert, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_cannot_insert)},
    {kNotXmlAttValue, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_not_xml_att_value)},
    {kUniquenessFailure, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_uniqueness_failure)},
    {kExists, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_exists)},
    {kNotWellFormed, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_not_well_formed)},
    {kConstraintFailure, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_constraint_failure)},
    {kCannotDelete, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_cannot_delete)},
    {kNotUtf8, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_not_utf_8)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kRoot, IX_STR_PHRASE},
    {kSchemaValidationError, IX_STR_PHRASE},
    {kNotXmlFrag, IX_STR_PHRASE},
    {kNoParent, IX_STR_PHRASE},
    {kCannotInsert, IX_STR_PHRASE},
    {kNotXmlAttValue, IX_STR_PHRASE},
    {kUniquenessFailure, IX_STR_PHRASE},
    {kExists, IX_STR_FIELD},
    {kNotWellFormed, IX_STR_PHRASE},
    {kConstraintFailure, IX_STR_PHRASE},
    {kCannotDelete, IX_STR_PHRASE},
    {kNotUtf8, IX_STR_PHRASE},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlOldNamePolicy::Stripped;
    info.attributePolicy = XmlOldAttributePolicy::OwnNoPairs;
    IX_OLD_DECODER_TEXTS(info.texts, "XMLXcapErrorDecoder", "m_strDup or m_PassName", "m_strDup");
    info.texts.removeTagNoMemory = IX_OLD_REMOVE_TAG_TEXT("XMLXcapErrorDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLXcapErrorDecoder::XMLXcapErrorDecoder() : XmlOldFamilyDecoder(kInfo) {}
