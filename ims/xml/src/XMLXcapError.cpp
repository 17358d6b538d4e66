#include "XMLXcapError.h"

#include <iterator>

#include "XcapError.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLXcapError";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = IX_OLD_UNMARSHALLER_INFO(XMLXcapErrorDecoder, "XcapErrorUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddXcap_errorElementToXml, ix_xcap_error)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    info.noRoot = {3, kSchemaCode, __LINE__, "<XML Module>: Xcap_ErrorMarshall :: Marshall: Received Object is NULL"};
    IX_OLD_MARSHALL_TEXTS(info, "Xcap_ErrorMarshall", "mXcapErrorXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

// Required: the doubled name is part of the text.
constexpr XmlLogText kAddRoot = {2, kSchemaCode, __LINE__, "<XML Module>: AddXcap_errorElementToXmlErrorElementToXml"};
constexpr XmlLogText kAddError = {3, kSchemaCode, __LINE__, "<XML Module>: Xcap_ErrorMarshall::%s"};
constexpr XmlLogText kAddExists = {2, kSchemaCode, __LINE__, "<XML Module>: Xcap_ErrorMarshall::AddExistsElementToXml"};
constexpr XmlLogText kAddExtension = {2, kSchemaCode, __LINE__,
                                      "<XML Module>: Xcap_ErrorMarshall::AddExtensionElementToXml"};
constexpr XmlLogText kExistsFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddExistsElementToXml tempNum: %d "};

constexpr XmlField kPhraseFields[] = {
    {XmlFieldKind::Text, IX_STR_PHRASE, XmlTextMember(&ix_phraseType::mPhrase)},
};
constexpr XmlFieldTable kPhraseTable = {nullptr, kPhraseFields, std::size(kPhraseFields)};

constexpr XmlField kXcapErrorFields[] = {
    {XmlFieldKind::Child, IX_STR_IX_NULL, IX_CHILD_MEMBER(ix_xcap_error, mError), 0, nullptr, "error"},
};
constexpr XmlFieldTable kXcapErrorTable = {&kPhraseTable, kXcapErrorFields, std::size(kXcapErrorFields)};

constexpr XmlFieldTable kExtensionTable = {nullptr, nullptr, 0};

constexpr XmlField kNoParentFields[] = {
    {XmlFieldKind::Text, IX_STR_ANCESTOR, XmlTextMember(&ix_no_parent::mAncestor)},
};
constexpr XmlFieldTable kNoParentTable = {&kPhraseTable, kNoParentFields, std::size(kNoParentFields)};

constexpr XmlField kUniquenessFailureFields[] = {
    {XmlFieldKind::ChildList, IX_STR_EXISTS, XmlListMember(&ix_uniqueness_failure::mExistsList)},
};
constexpr XmlFieldTable kUniquenessFailureTable = {&kPhraseTable, kUniquenessFailureFields,
                                                   std::size(kUniquenessFailureFields)};

constexpr XmlField kExistsFields[] = {
    {XmlFieldKind::Text, IX_STR_FIELD, XmlTextMember(&ix_exists::mField)},
    {XmlFieldKind::TextList, IX_STR_ALT_VALUE, XmlListMember(&ix_exists::mAltValueList)},
};
constexpr XmlFieldTable kExistsTable = {nullptr, kExistsFields, std::size(kExistsFields)};

/// An error condition.
struct ErrorRow {
    e_XmlStrRef element;
    const char* className;
    XmlOldWriter write;
};

/// The conditions that the root takes and writes.
constexpr ErrorRow kErrors[] = {
    {IX_STR_SCHEMA_VALIDATION_ERROR,
     IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddSchema_validation_errorElementToXml, ix_schema_validation_error)},
    {IX_STR_NOT_XML_FRAG, IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddNot_xml_fragElementToXml, ix_not_xml_frag)},
    {IX_STR_NO_PARENT, IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddNo_parentElementToXml, ix_no_parent)},
    {IX_STR_CANNOT_INSERT, IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddCannot_insertElementToXml, ix_cannot_insert)},
    {IX_STR_NOT_XML_ATT_VALUE,
     IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddNot_xml_att_valueElementToXml, ix_not_xml_att_value)},
    {IX_STR_UNIQUENESS_FAILURE,
     IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddUniqueness_failureElementToXml, ix_uniqueness_failure)},
    {IX_STR_NOT_WELL_FORMED, IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddNot_well_formedElementToXml, ix_not_well_formed)},
    {IX_STR_CONSTRAINT_FAILURE,
     IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddConstraint_failureElementToXml, ix_constraint_failure)},
    {IX_STR_CANNOT_DELETE, IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddCannot_deleteElementToXml, ix_cannot_delete)},
    {IX_STR_NOT_UTF_8, IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddNot_utf_8ElementToXml, ix_not_utf_8)},
    {IX_STR_EXTENSION, IX_OLD_WRITER_OF(Xcap_ErrorMarshall, AddExtensionElementToXml, ix_extension)},
};

}  // namespace

ix_phraseType::~ix_phraseType() { XmlFields::Release(this, kPhraseTable); }

const XmlFieldTable* ix_phraseType::FieldTable() const { return &kPhraseTable; }

int ix_phraseType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    return ixNameIs(attribute, IX_STR_PHRASE) ? ixTakeText(mPhrase, value, pair) : 1;
}

ix_xcap_error::~ix_xcap_error() { XmlFields::Release(this, kXcapErrorTable); }

const XmlFieldTable* ix_xcap_error::FieldTable() const { return &kXcapErrorTable; }

int ix_xcap_error::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    for (const ErrorRow& error : kErrors) {
        if (!ixNameIs(name, error.element)) continue;
        return ixIsClass(child, error.className) ? ixSetChild(mError, child) : 0;
    }
    return 1;
}

const XmlFieldTable* ix_extension::FieldTable() const { return &kExtensionTable; }

ix_no_parent::~ix_no_parent() { XmlFields::Release(this, kNoParentTable); }

const XmlFieldTable* ix_no_parent::FieldTable() const { return &kNoParentTable; }

int ix_no_parent::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    return ixEndNameIs(name, IX_STR_ANCESTOR) ? ixTakeText(mAncestor, text, child) : 1;
}

ix_uniqueness_failure::~ix_uniqueness_failure() { XmlFields::Release(this, kUniquenessFailureTable); }

const XmlFieldTable* ix_uniqueness_failure::FieldTable() const { return &kUniquenessFailureTable; }

int ix_uniqueness_failure::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (!ixNameIs(name, IX_STR_EXISTS)) return 1;
    return ixTakeInto<ix_exists>(mExistsList, child, kSourceFile, __LINE__);
}

int ix_uniqueness_failure::addExists(ix_exists* exists) { return ixAppend(mExistsList, exists, kSourceFile, __LINE__); }

ix_exists::~ix_exists() { XmlFields::Release(this, kExistsTable); }

const XmlFieldTable* ix_exists::FieldTable() const { return &kExistsTable; }

int ix_exists::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (!ixEndNameIs(name, IX_STR_ALT_VALUE)) return 1;
    if (child != nullptr) return 0;
    return text != nullptr ? addAltValue(text) : 1;
}

int ix_exists::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    return ixNameIs(attribute, IX_STR_FIELD) ? ixTakeText(mField, value, pair) : 1;
}

int ix_exists::addAltValue(const char* value) {
    return ixAppendText(mAltValueList, value, value != nullptr ? __strlen(value) : 0, kSourceFile, __LINE__);
}

XMLElement* XcapErrorDataBinder::CreateRootElement() { return IX_NEW(ix_xcap_error); }

ix_extension* XcapErrorDataBinder::CreateExtensionElement() { return IX_NEW(ix_extension); }

ix_not_utf_8* XcapErrorDataBinder::CreateNot_utf_8Element() { return IX_NEW(ix_not_utf_8); }

ix_cannot_delete* XcapErrorDataBinder::CreateCannot_deleteElement() { return IX_NEW(ix_cannot_delete); }

ix_constraint_failure* XcapErrorDataBinder::CreateConstraint_failureElement() { return IX_NEW(ix_constraint_failure); }

ix_not_well_formed* XcapErrorDataBinder::CreateNot_well_formedElement() { return IX_NEW(ix_not_well_formed); }

ix_exists* XcapErrorDataBinder::CreateExistsElement() { return IX_NEW(ix_exists); }

ix_uniqueness_failure* XcapErrorDataBinder::CreateUniqueness_failureElement() { return IX_NEW(ix_uniqueness_failure); }

ix_not_xml_att_value* XcapErrorDataBinder::CreateNot_xml_att_valueElement() { return IX_NEW(ix_not_xml_att_value); }

ix_cannot_insert* XcapErrorDataBinder::CreateCannot_insertElement() { return IX_NEW(ix_cannot_insert); }

ix_no_parent* XcapErrorDataBinder::CreateNo_parentElement() { return IX_NEW(ix_no_parent); }

ix_not_xml_frag* XcapErrorDataBinder::CreateNot_xml_fragElement() { return IX_NEW(ix_not_xml_frag); }

ix_schema_validation_error* XcapErrorDataBinder::CreateSchema_validation_errorElement() {
    return IX_NEW(ix_schema_validation_error);
}

IxSingleElementList* XcapErrorDataBinder::CreateList() { return IX_NEW(IxSingleElementList); }

Xcap_ErrorMarshall::Xcap_ErrorMarshall() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int Xcap_ErrorMarshall::AddXcap_errorElementToXml(ix_xcap_error* element) {
    ixLog(kSourceFile, kAddRoot);
    if (element == nullptr) return 0;
    StartElementOpen(IX_STR_XCAP_ERROR);
    const char* const uri = ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_XCAP_ERROR);
    AddAttribute(IX_STR_XMLNS, uri, Attribute::Open);
    AddPrefixedAttribute(IX_STR_XMLNS, IX_STR_XSI,
                         ix_xml_common_array_definition::getStringName(IX_STR_HTTP_WWW_W3_ORG_2001_XMLSCHEMA_INSTANCE),
                         Attribute::Open);
    AddPrefixedAttribute(IX_STR_XSI, IX_STR_SCHEMALOCATION, uri, Attribute::Closing);
    for (const ErrorRow& error : kErrors) {
        if (!ixIsClass(element->mError, error.className)) continue;
        error.write(*this, element->mError);
        break;
    }
    EndElement(IX_STR_XCAP_ERROR);
    return 1;
}

int Xcap_ErrorMarshall::AddNo_parentElementToXml(ix_no_parent* element) {
    if (StartError(__func__, IX_STR_NO_PARENT, element) == 0) return 0;
    AddTextElement(IX_STR_ANCESTOR, element->mAncestor);
    EndElement(IX_STR_NO_PARENT);
    return 1;
}

int Xcap_ErrorMarshall::AddUniqueness_failureElementToXml(ix_uniqueness_failure* element) {
    if (StartError(__func__, IX_STR_UNIQUENESS_FAILURE, element) == 0) return 0;
    // An entry that cannot be written is logged; the others are written all the same.
    int index = 0;
    for (auto* const exists : XmlEntries<ix_exists>(element->mExistsList)) {
        if (AddExistsElementToXml(exists) == 0) ixLog(kSourceFile, kExistsFailed, index);
        ++index;
    }
    EndElement(IX_STR_UNIQUENESS_FAILURE);
    return 1;
}

int Xcap_ErrorMarshall::AddExistsElementToXml(ix_exists* element) {
    ixLog(kSourceFile, kAddExists);
    if (element == nullptr) return 0;
    StartElementWith(IX_STR_EXISTS, IX_STR_FIELD, element->mField);
    for (const auto* const value : XmlEntries<const char>(element->mAltValueList))
        AddTextElement(IX_STR_ALT_VALUE, value);
    EndElement(IX_STR_EXISTS);
    return 1;
}

int Xcap_ErrorMarshall::AddExtensionElementToXml(ix_extension* element) {
    ixLog(kSourceFile, kAddExtension);
    if (element == nullptr) return 0;
    StartElement(IX_STR_EXTENSION);
    EndElement(IX_STR_EXTENSION);
    return 1;
}

/// Logs the name of the writer and writes the start tag of an error condition, with its phrase when there is one.
int Xcap_ErrorMarshall::StartError(const char* writer, e_XmlStrRef name, const ix_phraseType* element) {
    ixLog(kSourceFile, kAddError, writer);
    if (element == nullptr) return 0;
    StartElementWith(name, IX_STR_PHRASE, element->mPhrase);
    return 1;
}

/// Writes an error condition that has no details.
int Xcap_ErrorMarshall::AddError(const char* writer, e_XmlStrRef name, const ix_phraseType* element) {
    if (StartError(writer, name, element) == 0) return 0;
    EndElement(name);
    return 1;
}

/// A start tag with its only attribute, or without it for NULL.
void Xcap_ErrorMarshall::StartElementWith(e_XmlStrRef name, e_XmlStrRef attribute, const char* value) {
    if (value == nullptr) {
        StartElement(name);
    } else {
        StartElementOpen(name);
        AddAttribute(attribute, value, Attribute::Closing);
    }
}

IX_OLD_FAMILY(XcapErrorContext, Xcap_ErrorMarshall, XcapErrorUnMarshaller, XcapErrorDataBinder);
