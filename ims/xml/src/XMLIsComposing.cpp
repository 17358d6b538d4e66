#include "XMLIsComposing.h"

#include <iterator>

#include "IsComposing.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLIsComposing";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLIsComposingDecoder, "IsComposingUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(IsComposingMarshaller, AddIsComposingElementToXml, ix_isComposing)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    IX_OLD_MARSHALL_TEXTS(info, "IsComposingMarshaller", "mIsComposingXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kUnknownElement = {2, kSchemaCode, __LINE__, "Cannot accommodate the element %s with value %s"};
constexpr XmlLogText kAddIsComposing = {2, kSchemaCode, __LINE__, "<XML Module>: AddIsComposingElementToXml"};
constexpr XmlLogText kAddState = {2, kSchemaCode, __LINE__, "<XML Module>: AddStateElementToXml"};
constexpr XmlLogText kAddRefresh = {2, kSchemaCode, __LINE__, "<XML Module>: AddRefreshElementToXml"};
constexpr XmlLogText kNoLastactive = {1, kSchemaCode, __LINE__,
                                      "<XML Module>: IsComposingElement lastactive not present"};
constexpr XmlLogText kNoContenttype = {1, kSchemaCode, __LINE__,
                                       "<XML Module>: IsComposingElement Content-type not present"};
constexpr XmlLogText kNoRefresh = {1, kSchemaCode, __LINE__, "<XML Module>: IsComposingElement Refresh not present"};

constexpr XmlField kFields[] = {
    {XmlFieldKind::Text, IX_STR_STATE, XmlTextMember(&ix_isComposing::mState)},
    {XmlFieldKind::Text, IX_STR_LASTACTIVE, XmlTextMember(&ix_isComposing::mLastactive)},
    {XmlFieldKind::Text, IX_STR_CONTENTTYPE, XmlTextMember(&ix_isComposing::mContenttype)},
    {XmlFieldKind::Unsigned, IX_STR_REFRESH, XmlUnsignedMember(&ix_isComposing::mRefresh)},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_isComposing::mAnyElementList), 0, nullptr, "any"},
};
constexpr XmlFieldTable kTable = {nullptr, kFields, std::size(kFields)};

constexpr e_XmlStrRef kTexts[] = {IX_STR_STATE, IX_STR_LASTACTIVE, IX_STR_CONTENTTYPE, IX_STR_REFRESH};

const char* TextOf(e_XmlStrRef entry) { return ix_xml_common_array_definition::getStringName(entry); }

}  // namespace

ix_isComposing::~ix_isComposing() { XmlFields::Release(this, kTable); }

const XmlFieldTable* ix_isComposing::FieldTable() const { return &kTable; }

int ix_isComposing::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (text != nullptr) {
        if (ixEndNameIs(name, IX_STR_STATE)) return setStateValue(text);
        if (ixEndNameIs(name, IX_STR_LASTACTIVE)) return setLastactiveValue(text);
        if (ixEndNameIs(name, IX_STR_CONTENTTYPE)) return setContenttypeValue(text);
        if (ixEndNameIs(name, IX_STR_REFRESH)) return setRefreshValue(ixToUnsigned(text));
    }
    // Start tags say nothing yet.
    for (const e_XmlStrRef known : kTexts) {
        if (ixNameIs(name, known) || ixEndNameIs(name, known)) return 1;
    }
    if (child != nullptr) return addAnyElement(child);
    ixLog(kSourceFile, kUnknownElement, name, text);
    return 1;
}

int ix_isComposing::setRefreshValue(unsigned int refresh) {
    mRefresh = refresh;
    return 1;
}

int ix_isComposing::addAnyElement(XMLElement* element) {
    return ixAppend(mAnyElementList, element, kSourceFile, __LINE__);
}

XMLElement* IsComposingDataBinder::CreateRootElement() { return IX_NEW(ix_isComposing); }

IsComposingMarshaller::IsComposingMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int IsComposingMarshaller::AddIsComposingElementToXml(ix_isComposing* element) {
    ixLog(kSourceFile, kAddIsComposing);
    StartElementOpen(IX_STR_ISCOMPOSING);
    AddAttribute(IX_STR_XMLNS, TextOf(IX_STR_URN_IETF_PARAMS_XML_NS_IM_ISCOMPOSING), Attribute::Open);
    AddPrefixedAttribute(IX_STR_XMLNS, IX_STR_XSI, TextOf(IX_STR_HTTP_WWW_W3_ORG_2001_XMLSCHEMA_INSTANCE),
                         Attribute::Open);
    // Required: the schema location names another namespace, and has two blanks before the file name.
    AddPrefixedAttribute(IX_STR_XSI, IX_STR_SCHEMALOCATION,
                         TextOf(IX_STR_URN_IETF_PARAMS_XML_NS_IM_COMPOSING_ISCOMPOSING_XSD), Attribute::Closing);
    if (element == nullptr || element->mState == nullptr) return 0;
    AddStateElementToXml(element->mState);
    if (element->mLastactive != nullptr) {
        AddLastactiveElementToXml(element->mLastactive);
    } else {
        ixLog(kSourceFile, kNoLastactive);
    }
    if (element->mContenttype != nullptr) {
        AddContenttypeElementToXml(element->mContenttype);
    } else {
        ixLog(kSourceFile, kNoContenttype);
    }
    if (element->mRefresh != 0) {
        AddRefreshElementToXml(element->mRefresh);
    } else {
        ixLog(kSourceFile, kNoRefresh);
    }
    EndElement(IX_STR_ISCOMPOSING);
    return 1;
}

int IsComposingMarshaller::AddStateElementToXml(const char* state) {
    ixLog(kSourceFile, kAddState);
    AddTextElement(IX_STR_STATE, state);
    return 1;
}

int IsComposingMarshaller::AddLastactiveElementToXml(const char* lastactive) {
    AddTextElement(IX_STR_LASTACTIVE, lastactive);
    return 1;
}

int IsComposingMarshaller::AddContenttypeElementToXml(const char* contenttype) {
    AddTextElement(IX_STR_CONTENTTYPE, contenttype);
    return 1;
}

int IsComposingMarshaller::AddRefreshElementToXml(unsigned int refresh) {
    ixLog(kSourceFile, kAddRefresh);
    AddDecimalElement(IX_STR_REFRESH, refresh);
    return 1;
}

IX_OLD_FAMILY(IsComposingContext, IsComposingMarshaller, IsComposingUnMarshaller, IsComposingDataBinder);

char* TestIsComposingMarshall() {
    ix_isComposing root;
    const bool complete = root.setStateValue(TextOf(IX_STR_ACTIVE)) != 0 &&
                          root.setLastactiveValue("2002-05-30T09:30:10-06:00") != 0 &&
                          root.setContenttypeValue("audio") != 0 && root.setRefreshValue(9) != 0;
    IsComposingMarshaller marshaller;
    const char* const text = complete ? marshaller.Marshall(&root) : nullptr;
    return text != nullptr ? __strdup(text) : nullptr;
}
