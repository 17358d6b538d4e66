#include "XMLXcapError.h"

#include "XcapError.h"

namespace {

using namespace XmlRow;

constexpr XmlField kPhraseFields[] = {
    Attribute<&ix_phraseType::mPhrase>(IX_STR_PHRASE),
};

/// The conditions that the root takes.
constexpr XmlNamedClass kConditions[] = {
    {IX_STR_SCHEMA_VALIDATION_ERROR, &ix_schema_validation_error::kClass},
    {IX_STR_NOT_XML_FRAG, &ix_not_xml_frag::kClass},
    {IX_STR_NO_PARENT, &ix_no_parent::kClass},
    {IX_STR_CANNOT_INSERT, &ix_cannot_insert::kClass},
    {IX_STR_NOT_XML_ATT_VALUE, &ix_not_xml_att_value::kClass},
    {IX_STR_UNIQUENESS_FAILURE, &ix_uniqueness_failure::kClass},
    {IX_STR_NOT_WELL_FORMED, &ix_not_well_formed::kClass},
    {IX_STR_CONSTRAINT_FAILURE, &ix_constraint_failure::kClass},
    {IX_STR_CANNOT_DELETE, &ix_cannot_delete::kClass},
    {IX_STR_NOT_UTF_8, &ix_not_utf_8::kClass},
    {IX_STR_EXTENSION, &ix_extension::kClass},
};

constexpr XmlField kXcapErrorFields[] = {
    OneOf<&ix_xcap_error::mError>("error", kConditions),
};

constexpr XmlField kNoParentFields[] = {
    Element<&ix_no_parent::mAncestor>(IX_STR_ANCESTOR),
};

constexpr XmlField kExistsFields[] = {
    Attribute<&ix_exists::mField>(IX_STR_FIELD).Mandatory(),
    Texts<&ix_exists::mAltValueList>(IX_STR_ALT_VALUE),
};

constexpr XmlField kUniquenessFailureFields[] = {
    Children<&ix_uniqueness_failure::mExistsList, ix_exists>(IX_STR_EXISTS),
};

/// An element where nobody expects it is not refused, so that what is in it stays out of the tree, too.
constexpr XmlAnswers Answers() {
    XmlAnswers answers;
    answers.object = 1;
    return answers;
}
constexpr XmlAnswers kAnswers = Answers();

/// A class with no field but the phrase.
template <class Condition>
constexpr XmlClass ConditionClass(const char* name, const char* type) {
    return ixDerived(ixClass<Condition>(name, type, kSource, kAnswers), ix_phraseType::kClass);
}

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLXcapErrorDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in XcapErrorUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&Xcap_ErrorMarshall::AddXcap_errorElementToXml>(),
};
constexpr XmlWriterRow kConditionWriters[] = {
    ixWriter<&Xcap_ErrorMarshall::AddSchema_validation_errorElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddNot_xml_fragElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddNo_parentElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddCannot_insertElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddNot_xml_att_valueElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddUniqueness_failureElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddNot_well_formedElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddConstraint_failureElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddCannot_deleteElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddNot_utf_8ElementToXml>(),
    ixWriter<&Xcap_ErrorMarshall::AddExtensionElementToXml>(),
};

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info =
        ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("Xcap_ErrorMarshall", "mXcapErrorXml"));
    info.noRoot = {3, "<XML Module>: Xcap_ErrorMarshall :: Marshall: Received Object is NULL"};
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

}  // namespace

constexpr XmlClass ix_phraseType::kClass =
    ixClass<ix_phraseType>("ix_phraseType", "PhraseType", kSource, kPhraseFields, kAnswers);
constexpr XmlClass ix_xcap_error::kClass = ixDerived(
    ixClass<ix_xcap_error>("ix_xcap_error", "XcapError", kSource, kXcapErrorFields, kAnswers), ix_phraseType::kClass);
constexpr XmlClass ix_extension::kClass = ixClass<ix_extension>("ix_extension", "Extension", kSource, kAnswers);
constexpr XmlClass ix_schema_validation_error::kClass =
    ConditionClass<ix_schema_validation_error>("ix_schema_validation_error", "SchemaValidationError");
constexpr XmlClass ix_not_xml_frag::kClass = ConditionClass<ix_not_xml_frag>("ix_not_xml_frag", "NotXmlFrag");
constexpr XmlClass ix_no_parent::kClass = ixDerived(
    ixClass<ix_no_parent>("ix_no_parent", "NoParent", kSource, kNoParentFields, kAnswers), ix_phraseType::kClass);
constexpr XmlClass ix_cannot_insert::kClass = ConditionClass<ix_cannot_insert>("ix_cannot_insert", "CannotInsert");
constexpr XmlClass ix_not_xml_att_value::kClass =
    ConditionClass<ix_not_xml_att_value>("ix_not_xml_att_value", "NotXmlAttValue");
constexpr XmlClass ix_exists::kClass = ixClass<ix_exists>("ix_exists", "Exists", kSource, kExistsFields, kAnswers);
constexpr XmlClass ix_uniqueness_failure::kClass =
    ixDerived(ixClass<ix_uniqueness_failure>("ix_uniqueness_failure", "UniquenessFailure", kSource,
                                             kUniquenessFailureFields, kAnswers),
              ix_phraseType::kClass);
constexpr XmlClass ix_not_well_formed::kClass =
    ConditionClass<ix_not_well_formed>("ix_not_well_formed", "NotWellFormed");
constexpr XmlClass ix_constraint_failure::kClass =
    ConditionClass<ix_constraint_failure>("ix_constraint_failure", "ConstraintFailure");
constexpr XmlClass ix_cannot_delete::kClass = ConditionClass<ix_cannot_delete>("ix_cannot_delete", "CannotDelete");
constexpr XmlClass ix_not_utf_8::kClass = ConditionClass<ix_not_utf_8>("ix_not_utf_8", "NotUtf8");

XMLElement* XcapErrorDataBinder::CreateRootElement() { return ixNew<ix_xcap_error>(kSource); }
ix_extension* XcapErrorDataBinder::CreateExtensionElement() { return ixNew<ix_extension>(kSource); }
ix_not_utf_8* XcapErrorDataBinder::CreateNot_utf_8Element() { return ixNew<ix_not_utf_8>(kSource); }
ix_cannot_delete* XcapErrorDataBinder::CreateCannot_deleteElement() { return ixNew<ix_cannot_delete>(kSource); }
ix_constraint_failure* XcapErrorDataBinder::CreateConstraint_failureElement() {
    return ixNew<ix_constraint_failure>(kSource);
}
ix_not_well_formed* XcapErrorDataBinder::CreateNot_well_formedElement() { return ixNew<ix_not_well_formed>(kSource); }
ix_exists* XcapErrorDataBinder::CreateExistsElement() { return ixNew<ix_exists>(kSource); }
ix_uniqueness_failure* XcapErrorDataBinder::CreateUniqueness_failureElement() {
    return ixNew<ix_uniqueness_failure>(kSource);
}
ix_not_xml_att_value* XcapErrorDataBinder::CreateNot_xml_att_valueElement() {
    return ixNew<ix_not_xml_att_value>(kSource);
}
ix_cannot_insert* XcapErrorDataBinder::CreateCannot_insertElement() { return ixNew<ix_cannot_insert>(kSource); }
ix_no_parent* XcapErrorDataBinder::CreateNo_parentElement() { return ixNew<ix_no_parent>(kSource); }
ix_not_xml_frag* XcapErrorDataBinder::CreateNot_xml_fragElement() { return ixNew<ix_not_xml_frag>(kSource); }
ix_schema_validation_error* XcapErrorDataBinder::CreateSchema_validation_errorElement() {
    return ixNew<ix_schema_validation_error>(kSource);
}
IxSingleElementList* XcapErrorDataBinder::CreateList() { return ixNew<IxSingleElementList>(kSource); }

XcapErrorUnMarshaller::XcapErrorUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

Xcap_ErrorMarshall::Xcap_ErrorMarshall() : XmlFamilyMarshaller(kMarshallerInfo) {}

XcapErrorContext::XcapErrorContext()
    : XmlFamilyContext(ixFamily<Xcap_ErrorMarshall, XcapErrorUnMarshaller, XcapErrorDataBinder>(kSource)) {}

int Xcap_ErrorMarshall::AddXcap_errorElementToXml(ix_xcap_error* error) {
    // Required: the name is doubled.
    if (!Enter(error, {2, "<XML Module>: AddXcap_errorElementToXmlErrorElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_XCAP_ERROR);
    tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_XCAP_ERROR);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_XSI, IX_STR_HTTP_WWW_W3_ORG_2001_XMLSCHEMA_INSTANCE);
    tag.AddPrefixed(IX_STR_XSI, IX_STR_SCHEMALOCATION, IX_STR_URN_IETF_PARAMS_XML_NS_XCAP_ERROR);
    tag.Close();
    for (const XmlWriterRow& row : kConditionWriters) {
        if (ixIsClass(error->mError, *row.description)) row.write(*this, error->mError);
    }
    EndElement(IX_STR_XCAP_ERROR);
    return 1;
}

int Xcap_ErrorMarshall::AddSchema_validation_errorElementToXml(ix_schema_validation_error* condition) {
    return AddCondition(condition, IX_STR_SCHEMA_VALIDATION_ERROR,
                        {3, "<XML Module>: Xcap_ErrorMarshall::AddSchema_validation_errorElementToXml"});
}

int Xcap_ErrorMarshall::AddNot_xml_fragElementToXml(ix_not_xml_frag* condition) {
    return AddCondition(condition, IX_STR_NOT_XML_FRAG,
                        {3, "<XML Module>: Xcap_ErrorMarshall::AddNot_xml_fragElementToXml"});
}

int Xcap_ErrorMarshall::AddNo_parentElementToXml(ix_no_parent* condition) {
    if (!StartCondition(condition, IX_STR_NO_PARENT,
                        {3, "<XML Module>: Xcap_ErrorMarshall::AddNo_parentElementToXml"})) {
        return 0;
    }
    AddTextElement(IX_STR_ANCESTOR, condition->mAncestor);
    EndElement(IX_STR_NO_PARENT);
    return 1;
}

int Xcap_ErrorMarshall::AddCannot_insertElementToXml(ix_cannot_insert* condition) {
    return AddCondition(condition, IX_STR_CANNOT_INSERT,
                        {3, "<XML Module>: Xcap_ErrorMarshall::AddCannot_insertElementToXml"});
}

int Xcap_ErrorMarshall::AddNot_xml_att_valueElementToXml(ix_not_xml_att_value* condition) {
    return AddCondition(condition, IX_STR_NOT_XML_ATT_VALUE,
                        {3, "<XML Module>: Xcap_ErrorMarshall::AddNot_xml_att_valueElementToXml"});
}

int Xcap_ErrorMarshall::AddUniqueness_failureElementToXml(ix_uniqueness_failure* condition) {
    if (!StartCondition(condition, IX_STR_UNIQUENESS_FAILURE,
                        {3, "<XML Module>: Xcap_ErrorMarshall::AddUniqueness_failureElementToXml"})) {
        return 0;
    }
    int index = 0;
    for (XMLElement* const entry : XmlEntries<XMLElement>(condition->mExistsList)) {
        // One that cannot be written does not keep out the others.
        if (!AddExistsElementToXml(ixAs<ix_exists>(entry))) {
            Log({2, "<XML Module>: AddExistsElementToXml tempNum: %d "}, index);
        }
        ++index;
    }
    EndElement(IX_STR_UNIQUENESS_FAILURE);
    return 1;
}

int Xcap_ErrorMarshall::AddExistsElementToXml(ix_exists* exists) {
    if (!Enter(exists, {2, "<XML Module>: Xcap_ErrorMarshall::AddExistsElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_EXISTS);
    tag.Add(IX_STR_FIELD, exists->mField);
    tag.Close();
    for (const char* const value : XmlEntries<const char>(exists->mAltValueList)) {
        AddTextElement(IX_STR_ALT_VALUE, value);
    }
    EndElement(IX_STR_EXISTS);
    return 1;
}

int Xcap_ErrorMarshall::AddNot_well_formedElementToXml(ix_not_well_formed* condition) {
    return AddCondition(condition, IX_STR_NOT_WELL_FORMED,
                        {3, "<XML Module>: Xcap_ErrorMarshall::AddNot_well_formedElementToXml"});
}

int Xcap_ErrorMarshall::AddConstraint_failureElementToXml(ix_constraint_failure* condition) {
    return AddCondition(condition, IX_STR_CONSTRAINT_FAILURE,
                        {3, "<XML Module>: Xcap_ErrorMarshall::AddConstraint_failureElementToXml"});
}

int Xcap_ErrorMarshall::AddCannot_deleteElementToXml(ix_cannot_delete* condition) {
    return AddCondition(condition, IX_STR_CANNOT_DELETE,
                        {3, "<XML Module>: Xcap_ErrorMarshall::AddCannot_deleteElementToXml"});
}

int Xcap_ErrorMarshall::AddNot_utf_8ElementToXml(ix_not_utf_8* condition) {
    return AddCondition(condition, IX_STR_NOT_UTF_8, {3, "<XML Module>: Xcap_ErrorMarshall::AddNot_utf_8ElementToXml"});
}

int Xcap_ErrorMarshall::AddExtensionElementToXml(ix_extension* condition) {
    if (!Enter(condition, {2, "<XML Module>: Xcap_ErrorMarshall::AddExtensionElementToXml"})) return 0;
    StartElement(IX_STR_EXTENSION);
    EndElement(IX_STR_EXTENSION);
    return 1;
}

/// Logs the entry of a writer and writes the start tag, with the phrase when there is one. @return false for NULL.
bool Xcap_ErrorMarshall::StartCondition(const ix_phraseType* condition, e_XmlStrRef name, const XmlLogText& entered) {
    if (!Enter(condition, entered)) return false;
    XmlStartTag tag(*this, name);
    tag.Add(IX_STR_PHRASE, condition->mPhrase);
    tag.Close();
    return true;
}

/// Writes a condition without details. @return 1, or 0 for NULL.
int Xcap_ErrorMarshall::AddCondition(const ix_phraseType* condition, e_XmlStrRef name, const XmlLogText& entered) {
    if (!StartCondition(condition, name, entered)) return 0;
    EndElement(name);
    return 1;
}
