#include "XMLGruu.h"

#include "Gruu.h"

namespace {

using namespace XmlRow;

constexpr XmlField kGruuFields[] = {
    Attribute<&ix_gruuType::mUri>(IX_STR_URI).Mandatory(),
};

constexpr XmlField kTempGruuFields[] = {
    Attribute<&ix_temp_gruu::mFirstCseq>(IX_STR_FIRST_CSEQ).Always().Mandatory(),
};

/// @param refused logged for every attribute but those of the class.
constexpr XmlAnswers Answers(const XmlLogText& refused) {
    XmlAnswers answers;
    answers.object = 1;
    answers.attribute = 0;
    answers.pair = 0;
    answers.unknownAttribute = refused;
    return answers;
}
constexpr XmlAnswers kPubGruuAnswers = Answers({3, "<XML Module>: Any attribute is not allowed in class ix_pub_gruu"});
constexpr XmlAnswers kTempGruuAnswers =
    Answers({3, "<XML Module>: Any attribute is not allowed in class ix_temp_gruu"});
constexpr XmlAnswers kInnerPubGruuAnswers =
    Answers({3, "<XML Module>: Any attribute is not allowed in class ix_ns_gruuinfo_pubGruu"});
constexpr XmlAnswers kInnerTempGruuAnswers =
    Answers({3, "<XML Module>: Any attribute is not allowed in class ix_ns_gruuinfo_tempGruu"});

constexpr XmlUnMarshallerInfo UnMarshallerInfo() {
    XmlUnMarshallerInfo info =
        ixUnMarshallerInfo<XMLGruuDecoder>(kSource, {4, "<XML Module>: StrDup failed in GruuUnMarshaller::UnMarshall"});
    info.fileEntered = {2, "<XML Module>: In GruuUnMarshaller::UnMarshall(pfile) with pstring=%s"};
    info.decoded = {2, "<XML Module>: Xml Decoder Success"};
    info.notDecoded = {3, "<XML Module>: Xml Decoder failed because of some error in XML"};
    return info;
}
constexpr XmlUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info;
    info.source = kSource;
    info.entersFirst = true;
    info.noRoot = {3, "<XML Module>: GruuMarshaller :: Incoming obj is NULL"};
    info.texts.entered = {1, "<XML Module>: GruuMarshaller :: Marshall"};
    info.texts.deleting = {1, "<XML Module>: GruuMarshaller :: Marshall: Deleting mGruuXml"};
    info.texts.written = {2, "<XML Module>: GruuMarshaller XML %s"};
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

/// True when `text` is a leading part of `word`.
bool Begins(const char* word, const char* text) { return __strncmp(word, text, __strlen(text)) == 0; }

/// Ends the empty element with its URI.
bool EndGruu(XmlStartTag& tag, const ix_gruuType& gruu) {
    if (gruu.mUri == nullptr) {
        tag.LeaveOpen();
        return false;
    }
    tag.Add(IX_STR_URI, gruu.mUri);
    tag.SelfClose();
    return true;
}

}  // namespace

constexpr XmlClass ix_gruuType::kClass = ixClass<ix_gruuType>("ix_gruuType", "gruuType", kSource, kGruuFields);
constexpr XmlClass ix_pub_gruu::kClass =
    ixDerived(ixClass<ix_pub_gruu>("ix_pub_gruu", "PubGruu", kSource, kPubGruuAnswers), ix_gruuType::kClass);
constexpr XmlClass ix_temp_gruu::kClass = ixDerived(
    ixClass<ix_temp_gruu>("ix_temp_gruu", "TempGruu", kSource, kTempGruuFields, kTempGruuAnswers), ix_gruuType::kClass);
constexpr XmlClass ix_ns_gruuinfo_pubGruu::kClass = ixDerived(
    ixClass<ix_ns_gruuinfo_pubGruu>("ix_ns_gruuinfo_pubGruu", "PubGruu", kSource, kInnerPubGruuAnswers).NoRoot(),
    ix_pub_gruu::kClass);
constexpr XmlClass ix_ns_gruuinfo_tempGruu::kClass = ixDerived(
    ixClass<ix_ns_gruuinfo_tempGruu>("ix_ns_gruuinfo_tempGruu", "TempGruu", kSource, kInnerTempGruuAnswers).NoRoot(),
    ix_temp_gruu::kClass);

int ix_temp_gruu::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    // Required: a number that comes as a pair is refused with the line of other attributes, a URI without one.
    if (pair != nullptr && ixNameIs(attribute, IX_STR_FIRST_CSEQ)) ixLog(kSource, Class()->answers.unknownAttribute);
    return ix_gruuType::ProcessUnMarshallAttribute(attribute, value, pair);
}

bool ixWriteGruu(XmlFamilyMarshaller& marshaller, const ix_pub_gruu& gruu) {
    XmlStartTag tag(marshaller, IX_STR_PUB_GRUU);
    return EndGruu(tag, gruu);
}

bool ixWriteGruu(XmlFamilyMarshaller& marshaller, const ix_temp_gruu& gruu, std::int64_t firstCseq) {
    XmlStartTag tag(marshaller, IX_STR_TEMP_GRUU);
    tag.AddDecimal(IX_STR_FIRST_CSEQ, firstCseq);
    return EndGruu(tag, gruu);
}

GruuDataBinder::~GruuDataBinder() { __free(m_pGruutype); }

XMLElement* GruuDataBinder::CreateRootElement() {
    if (m_pGruutype == nullptr) {
        ixLog(kSource, {3, "<XML Module>: GruuDataBinder :: Gruutype is NULL"});
        return nullptr;
    }
    ixLog(kSource, {2, "<XML Module>: In GruuDataBinder::CreateRootElement with m_pGruutype=%s"}, m_pGruutype);
    if (Begins(ixString(IX_STR_PUB_GRUU), m_pGruutype)) return CreatePubGruuElement();
    if (Begins(ixString(IX_STR_TEMP_GRUU), m_pGruutype)) return CreateTempGruuElement();
    return nullptr;
}
ix_pub_gruu* GruuDataBinder::CreatePubGruuElement() { return ixNew<ix_pub_gruu>(kSource); }
ix_temp_gruu* GruuDataBinder::CreateTempGruuElement() { return ixNew<ix_temp_gruu>(kSource); }

GruuUnMarshaller::GruuUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

XMLElement* GruuUnMarshaller::UnMarshall(const char* text) {
    if (text != nullptr) ixLog(kSource, {2, "<XML Module>: In GruuUnMarshaller::UnMarshall with pXmlString=%s"}, text);
    return XmlFamilyUnMarshaller::UnMarshall(text);
}

GruuMarshaller::GruuMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

GruuContext::GruuContext() : XmlFamilyContext(ixFamily<GruuMarshaller, GruuUnMarshaller, GruuDataBinder>(kSource)) {}

bool GruuMarshaller::Begin(XMLElement* root) {
    const bool begun = XmlFamilyMarshaller::Begin(root);
    if (!begun && root != nullptr) Log({3, "<XML Module>: GruuMarshaller :: Incoming pObj->ClassName() is NULL"});
    return begun;
}

int GruuMarshaller::AddRootElementToXml(XMLElement* root) {
    // Required: a class name that is only the beginning of the expected one selects the writer as well. Such an object
    // is none of ours, so the writer gets nothing to read from.
    const char* const name = root->ClassName();
    if (Begins(ix_pub_gruu::kClass.name, name)) {
        Log({2, "<XML Module>: GruuMarshaller :: Marshall: obj is pub-gruu"});
        if (AddPubGruuElementToXml(ixAs<ix_pub_gruu>(root)) != 0) return 1;
        return Fail({2, "<XML Module>: GruuMarshaller XML Failed at AddPubGruuElementToXml!"});
    }
    if (Begins(ix_temp_gruu::kClass.name, name)) {
        // Required: a temporary GRUU is announced as a public one, too.
        Log({2, "<XML Module>: GruuMarshaller :: Marshall: obj is pub-gruu"});
        if (AddTempGruuElementToXml(ixAs<ix_temp_gruu>(root)) != 0) return 1;
        return Fail({2, "<XML Module>: GruuMarshaller XML Failed at AddTempGruuElementToXml!"});
    }
    return 1;
}

int GruuMarshaller::AddPubGruuElementToXml(ix_pub_gruu* gruu) {
    if (!Enter(gruu, {2, "<XML Module>: AddPubGruuElementToXml"})) return 0;
    if (ixWriteGruu(*this, *gruu)) return 1;
    return Fail({3, "<XML Module>: AddPubGruuElementToXml: Uri is a mandatory attribute"});
}

int GruuMarshaller::AddTempGruuElementToXml(ix_temp_gruu* gruu) {
    if (!Enter(gruu, {2, "<XML Module>: AddTempGruuElementToXml"})) return 0;
    // Required: the number is written as far as 32 bits hold it.
    if (ixWriteGruu(*this, *gruu, static_cast<std::uint32_t>(gruu->mFirstCseq))) return 1;
    return Fail({3, "<XML Module>: AddTempGruuElementToXml: Uri is a mandatory attribute"});
}
