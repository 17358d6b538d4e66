#include "XcapError.h"

#include "XMLXcapError.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XcapError";

constexpr XmlKnownName kRoot = {IX_STR_XCAP_ERROR};
constexpr XmlKnownName kExtension = {IX_STR_EXTENSION};
constexpr XmlKnownName kSchemaValidationError = {IX_STR_SCHEMA_VALIDATION_ERROR};
constexpr XmlKnownName kNotXmlFrag = {IX_STR_NOT_XML_FRAG};
constexpr XmlKnownName kNoParent = {IX_STR_NO_PARENT};
constexpr XmlKnownName kCannotInsert = {IX_STR_CANNOT_INSERT};
constexpr XmlKnownName kNotXmlAttValue = {IX_STR_NOT_XML_ATT_VALUE};
constexpr XmlKnownName kUniquenessFailure = {IX_STR_UNIQUENESS_FAILURE};
constexpr XmlKnownName kExists = {IX_STR_EXISTS};
constexpr XmlKnownName kNotWellFormed = {IX_STR_NOT_WELL_FORMED};
constexpr XmlKnownName kConstraintFailure = {IX_STR_CONSTRAINT_FAILURE};
constexpr XmlKnownName kCannotDelete = {IX_STR_CANNOT_DELETE};
constexpr XmlKnownName kNotUtf8 = {IX_STR_NOT_UTF_8};

// An element `error-element` has no row: nobody knows it, so what is in it reaches the root.
constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_xcap_error)},
    {kExtension, XmlContainerRow::Child, IX_OBJECT(ix_extension)},
    {kSchemaValidationError, XmlContainerRow::Child, IX_OBJECT(ix_schema_validation_error)},
    {kNotXmlFrag, XmlContainerRow::Child, IX_OBJECT(ix_not_xml_frag)},
    {kNoParent, XmlContainerRow::Child, IX_OBJECT(ix_no_parent)},
    {kCannotInsert, XmlContainerRow::Child, IX_OBJECT(ix_cannot_insert)},
    {kNotXmlAttValue, XmlContainerRow::Child, IX_OBJECT(ix_not_xml_att_value)},
    {kUniquenessFailure, XmlContainerRow::Child, IX_OBJECT(ix_uniqueness_failure)},
    {kExists, XmlContainerRow::Child, IX_OBJECT(ix_exists)},
    {kNotWellFormed, XmlContainerRow::Child, IX_OBJECT(ix_not_well_formed)},
    {kConstraintFailure, XmlContainerRow::Child, IX_OBJECT(ix_constraint_failure)},
    {kCannotDelete, XmlContainerRow::Child, IX_OBJECT(ix_cannot_delete)},
    {kNotUtf8, XmlContainerRow::Child, IX_OBJECT(ix_not_utf_8)},
};

constexpr XmlAttributeRow kAttributes[] = {
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

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlNamePolicy::Stripped;
    info.attributePolicy = XmlAttributePolicy::OwnNoPairs;
    IX_DECODER_TEXTS(info.texts, "XMLXcapErrorDecoder", "m_strDup or m_PassName", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLXcapErrorDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLXcapErrorDecoder::XMLXcapErrorDecoder() : XmlFamilyDecoder(kInfo) {}
