#include "XMLRcsTermsInfo.h"

#include "RcsTermsInfo.h"

namespace {

using namespace XmlRow;

constexpr XmlField kTermFields[] = {
    Element<&ix_ns_rcs_terms_info_term::mTitle>(IX_STR_TITLE),
    Element<&ix_ns_rcs_terms_info_term::mUrl>(IX_STR_URL),
};
constexpr XmlAnswers kTermAnswers = ixTracing({2, "In ix_ns_rcs_terms_info_term::ProcessUnMarshall"},
                                              {2, "In ix_ns_rcs_terms_info_term::ProcessUnMarshallAttribute"});

constexpr XmlField kRootFields[] = {
    Attribute<&ix_rcs_terms_info::mVersion>(IX_STR_VERSION),
    Element<&ix_rcs_terms_info::mTermsVersion>(IX_STR_TERMSVERSION),
    Children<&ix_rcs_terms_info::mTerms, ix_ns_rcs_terms_info_term>(IX_STR_TERM),
};
constexpr XmlAnswers kRootAnswers =
    ixTracing({2, "In ix_rcs_terms_info::ProcessUnMarshall"}, {2, "In ix_rcs_terms_info::ProcessUnMarshallAttribute"});

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLRcsTermsInfoDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in RcsTermsInfoUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&RcsTermsInfoMarshaller::AddRcsTermsInfoElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("RcsTermsInfoMarshaller", "mRcsTermsInfoXml"));

}  // namespace

constexpr XmlClass ix_ns_rcs_terms_info_term::kClass =
    ixClass<ix_ns_rcs_terms_info_term>("ix_ns_rcs_terms_info_term", "Term", kSource, kTermFields, kTermAnswers);
constexpr XmlClass ix_rcs_terms_info::kClass =
    ixClass<ix_rcs_terms_info>("ix_rcs_terms_info", "RcsTermsInfo", kSource, kRootFields, kRootAnswers);

XMLElement* RcsTermsInfoDataBinder::CreateRootElement() { return ixNew<ix_rcs_terms_info>(kSource); }
ix_ns_rcs_terms_info_term* RcsTermsInfoDataBinder::CreateTermElement() {
    return ixNew<ix_ns_rcs_terms_info_term>(kSource);
}

RcsTermsInfoUnMarshaller::RcsTermsInfoUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

RcsTermsInfoMarshaller::RcsTermsInfoMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

RcsTermsInfoContext::RcsTermsInfoContext()
    : XmlFamilyContext(ixFamily<RcsTermsInfoMarshaller, RcsTermsInfoUnMarshaller, RcsTermsInfoDataBinder>(kSource)) {}

int RcsTermsInfoMarshaller::AddRcsTermsInfoElementToXml(ix_rcs_terms_info* element) {
    if (!Enter(element, {2, "<XML Module>: AddRcsTermsInfoElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_RCS_TERMS_INFO);
    tag.Add(IX_STR_VERSION, element->mVersion);
    tag.Close();
    AddTextElement(IX_STR_TERMSVERSION, element->mTermsVersion);
    if (!AddChildren<&RcsTermsInfoMarshaller::AddTermElementToXml>(element->mTerms)) {
        return ReleaseAndFail({2, "<XML Module>: AddTermElementToXml XML Failed!"});
    }
    EndElement(IX_STR_RCS_TERMS_INFO);
    return 1;
}

int RcsTermsInfoMarshaller::AddTermElementToXml(ix_ns_rcs_terms_info_term* term) {
    if (!Enter(term, {2, "<XML Module>: AddTermElementToXml"})) return 0;
    StartElement(IX_STR_TERM);
    AddTextElement(IX_STR_TITLE, term->mTitle);
    AddTextElement(IX_STR_URL, term->mUrl);
    EndElement(IX_STR_TERM);
    return 1;
}
