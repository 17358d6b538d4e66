#include "XMLRcsTermsInfo.h"

#include <iterator>

#include "RcsTermsInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLRcsTermsInfo";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLRcsTermsInfoDecoder, "RcsTermsInfoUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(RcsTermsInfoMarshaller, AddRcsTermsInfoElementToXml, ix_rcs_terms_info)},
};

/// The list may come from a caller and hold anything.
constexpr XmlOldWriter kTermWriter = [](XmlOldFamilyMarshaller& self, XMLElement* element) -> int {
    if (!ixIs<ix_ns_rcs_terms_info_term>(element)) return 0;
    return static_cast<RcsTermsInfoMarshaller&>(self).AddTermElementToXml(
        static_cast<ix_ns_rcs_terms_info_term*>(element));
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    IX_OLD_MARSHALL_TEXTS(info, "RcsTermsInfoMarshaller", "mRcsTermsInfoXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kRootHook = {2, kSchemaCode, __LINE__, "In ix_rcs_terms_info::ProcessUnMarshall"};
constexpr XmlLogText kRootAttributeHook = {2, kSchemaCode, __LINE__,
                                           "In ix_rcs_terms_info::ProcessUnMarshallAttribute"};
constexpr XmlLogText kTermHook = {2, kSchemaCode, __LINE__, "In ix_ns_rcs_terms_info_term::ProcessUnMarshall"};
constexpr XmlLogText kTermAttributeHook = {2, kSchemaCode, __LINE__,
                                           "In ix_ns_rcs_terms_info_term::ProcessUnMarshallAttribute"};
constexpr XmlLogText kAddRoot = {2, kSchemaCode, __LINE__, "<XML Module>: AddRcsTermsInfoElementToXml"};
constexpr XmlLogText kAddTerm = {2, kSchemaCode, __LINE__, "<XML Module>: AddTermElementToXml"};
constexpr XmlLogText kTermFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddTermElementToXml XML Failed!"};

constexpr XmlField kTermFields[] = {
    {XmlFieldKind::Text, IX_STR_TITLE, XmlTextMember(&ix_ns_rcs_terms_info_term::mTitle)},
    {XmlFieldKind::Text, IX_STR_URL, XmlTextMember(&ix_ns_rcs_terms_info_term::mUrl)},
};
constexpr XmlFieldTable kTermTable = {nullptr, kTermFields, std::size(kTermFields)};

constexpr XmlField kRootFields[] = {
    {XmlFieldKind::Text, IX_STR_VERSION, XmlTextMember(&ix_rcs_terms_info::mVersion)},
    {XmlFieldKind::Text, IX_STR_TERMSVERSION, XmlTextMember(&ix_rcs_terms_info::mTermsVersion)},
    {XmlFieldKind::ChildList, IX_STR_TERM, XmlListMember(&ix_rcs_terms_info::mTerms)},
};
constexpr XmlFieldTable kRootTable = {nullptr, kRootFields, std::size(kRootFields)};

}  // namespace

ix_ns_rcs_terms_info_term::~ix_ns_rcs_terms_info_term() { XmlFields::Release(this, kTermTable); }

const XmlFieldTable* ix_ns_rcs_terms_info_term::FieldTable() const { return &kTermTable; }

int ix_ns_rcs_terms_info_term::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    ixLog(kSourceFile, kTermHook);
    if (ixEndNameIs(name, IX_STR_TITLE)) return ixTakeText(mTitle, text, child);
    if (ixEndNameIs(name, IX_STR_URL)) return ixTakeText(mUrl, text, child);
    return 1;
}

int ix_ns_rcs_terms_info_term::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/,
                                                          XMLAttribute* /*pair*/) {
    ixLog(kSourceFile, kTermAttributeHook);
    return 1;
}

ix_rcs_terms_info::~ix_rcs_terms_info() { XmlFields::Release(this, kRootTable); }

const XmlFieldTable* ix_rcs_terms_info::FieldTable() const { return &kRootTable; }

int ix_rcs_terms_info::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    ixLog(kSourceFile, kRootHook);
    if (ixEndNameIs(name, IX_STR_TERMSVERSION)) return ixTakeText(mTermsVersion, text, child);
    if (!ixNameIs(name, IX_STR_TERM) || ixIsNameless(child)) return 1;
    return ixTakeInto<ix_ns_rcs_terms_info_term>(mTerms, child, kSourceFile, __LINE__);
}

int ix_rcs_terms_info::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    ixLog(kSourceFile, kRootAttributeHook);
    return ixNameIs(attribute, IX_STR_VERSION) ? ixTakeText(mVersion, value, pair) : 1;
}

int ix_rcs_terms_info::addTerm(ix_ns_rcs_terms_info_term* term) {
    return ixAppend(mTerms, term, kSourceFile, __LINE__);
}

XMLElement* RcsTermsInfoDataBinder::CreateRootElement() { return IX_NEW(ix_rcs_terms_info); }

ix_ns_rcs_terms_info_term* RcsTermsInfoDataBinder::CreateTermElement() { return IX_NEW(ix_ns_rcs_terms_info_term); }

RcsTermsInfoMarshaller::RcsTermsInfoMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int RcsTermsInfoMarshaller::AddRcsTermsInfoElementToXml(ix_rcs_terms_info* element) {
    ixLog(kSourceFile, kAddRoot);
    if (element == nullptr) return 0;
    if (element->mVersion != nullptr) {
        StartElementOpen(IX_STR_RCS_TERMS_INFO);
        AddAttribute(IX_STR_VERSION, element->mVersion, Attribute::Closing);
    } else {
        StartElement(IX_STR_RCS_TERMS_INFO);
    }
    AddTextElement(IX_STR_TERMSVERSION, element->mTermsVersion);
    if (AddChildList(element->mTerms, kTermWriter) == 0) return ReleaseAndFail(kTermFailed);
    EndElement(IX_STR_RCS_TERMS_INFO);
    return 1;
}

int RcsTermsInfoMarshaller::AddTermElementToXml(ix_ns_rcs_terms_info_term* term) {
    ixLog(kSourceFile, kAddTerm);
    if (term == nullptr) return 0;
    StartElement(IX_STR_TERM);
    AddTextElement(IX_STR_TITLE, term->mTitle);
    AddTextElement(IX_STR_URL, term->mUrl);
    EndElement(IX_STR_TERM);
    return 1;
}

IX_OLD_FAMILY(RcsTermsInfoContext, RcsTermsInfoMarshaller, RcsTermsInfoUnMarshaller, RcsTermsInfoDataBinder);
