#include "XMLGruu.h"

#include <iterator>

#include "Gruu.h"
#include "XmlElementSupport.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLGruu";

constexpr XmlOldUnMarshallerInfo UnMarshallerInfo() {
    XmlOldUnMarshallerInfo info = IX_OLD_UNMARSHALLER_INFO(XMLGruuDecoder, "GruuUnMarshaller");
    info.textEntered = {2, kSchemaCode, __LINE__, "<XML Module>: In GruuUnMarshaller::UnMarshall with pXmlString=%s"};
    info.fileEntered = {2, kSchemaCode, __LINE__,
                        "<XML Module>: In GruuUnMarshaller::UnMarshall(pfile) with pstring=%s"};
    info.decoded = {2, kSchemaCode, __LINE__, "<XML Module>: Xml Decoder Success"};
    info.notDecoded = {3, kSchemaCode, __LINE__, "<XML Module>: Xml Decoder failed because of some error in XML"};
    return info;
}
constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info;
    info.source = kSourceFile;
    info.writesDeclaration = true;
    info.entersFirst = true;
    info.entered = {1, kSchemaCode, __LINE__, "<XML Module>: GruuMarshaller :: Marshall"};
    info.noRoot = {3, kSchemaCode, __LINE__, "<XML Module>: GruuMarshaller :: Incoming obj is NULL"};
    info.noClassName = {3, kSchemaCode, __LINE__, "<XML Module>: GruuMarshaller :: Incoming pObj->ClassName() is NULL"};
    info.deleting = {1, kSchemaCode, __LINE__, "<XML Module>: GruuMarshaller :: Marshall: Deleting mGruuXml"};
    info.written = {2, kSchemaCode, __LINE__, "<XML Module>: GruuMarshaller XML %s"};
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kPubRefused = {3, kSchemaCode, __LINE__,
                                    "<XML Module>: Any attribute is not allowed in class ix_pub_gruu"};
constexpr XmlLogText kTempRefused = {3, kSchemaCode, __LINE__,
                                     "<XML Module>: Any attribute is not allowed in class ix_temp_gruu"};
constexpr XmlLogText kInnerPubRefused = {3, kSchemaCode, __LINE__,
                                         "<XML Module>: Any attribute is not allowed in class ix_ns_gruuinfo_pubGruu"};
constexpr XmlLogText kInnerTempRefused = {
    3, kSchemaCode, __LINE__, "<XML Module>: Any attribute is not allowed in class ix_ns_gruuinfo_tempGruu"};
constexpr XmlLogText kNoType = {3, kSchemaCode, __LINE__, "<XML Module>: GruuDataBinder :: Gruutype is NULL"};
constexpr XmlLogText kCreateRoot = {2, kSchemaCode, __LINE__,
                                    "<XML Module>: In GruuDataBinder::CreateRootElement with m_pGruutype=%s"};
constexpr XmlLogText kWritesPub = {2, kSchemaCode, __LINE__,
                                   "<XML Module>: GruuMarshaller :: Marshall: obj is pub-gruu"};
// Required: a temporary GRUU is announced as a public one, too.
constexpr XmlLogText kWritesTemp = {2, kSchemaCode, __LINE__,
                                    "<XML Module>: GruuMarshaller :: Marshall: obj is pub-gruu"};
constexpr XmlLogText kPubFailed = {2, kSchemaCode, __LINE__,
                                   "<XML Module>: GruuMarshaller XML Failed at AddPubGruuElementToXml!"};
constexpr XmlLogText kTempFailed = {2, kSchemaCode, __LINE__,
                                    "<XML Module>: GruuMarshaller XML Failed at AddTempGruuElementToXml!"};
constexpr XmlLogText kAddPub = {2, kSchemaCode, __LINE__, "<XML Module>: AddPubGruuElementToXml"};
constexpr XmlLogText kAddTemp = {2, kSchemaCode, __LINE__, "<XML Module>: AddTempGruuElementToXml"};
constexpr XmlLogText kPubWithoutUri = {3, kSchemaCode, __LINE__,
                                       "<XML Module>: AddPubGruuElementToXml: Uri is a mandatory attribute"};
constexpr XmlLogText kTempWithoutUri = {3, kSchemaCode, __LINE__,
                                        "<XML Module>: AddTempGruuElementToXml: Uri is a mandatory attribute"};

constexpr XmlField kGruuFields[] = {
    {XmlFieldKind::Text, IX_STR_URI, XmlTextMember(&ix_gruuType::mUri)},
};
constexpr XmlFieldTable kGruuTable = {nullptr, kGruuFields, std::size(kGruuFields)};

constexpr XmlField kTempGruuFields[] = {
    {XmlFieldKind::Number64, IX_STR_FIRST_CSEQ, XmlInt64Member(&ix_temp_gruu::mFirstCseq), kXmlAlwaysSet},
};
constexpr XmlFieldTable kTempGruuTable = {&kGruuTable, kTempGruuFields, std::size(kTempGruuFields)};

/// True when `text` is a leading part of `word`.
bool Begins(const char* word, const char* text) { return __strncmp(word, text, __strlen(text)) == 0; }

}  // namespace

ix_gruuType::~ix_gruuType() { XmlFields::Release(this, kGruuTable); }

const XmlFieldTable* ix_gruuType::FieldTable() const { return &kGruuTable; }

int ix_gruuType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (ixNameIs(attribute, IX_STR_URI)) return pair == nullptr ? setUriValue(value) : 0;
    LogRefusal();
    return 0;
}

int ix_gruuType::setUriValue(const char* uri) { return ixSetText(mUri, uri); }

void ix_pub_gruu::LogRefusal() const { ixLog(kSourceFile, kPubRefused); }

const XmlFieldTable* ix_temp_gruu::FieldTable() const { return &kTempGruuTable; }

int ix_temp_gruu::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_FIRST_CSEQ)) return setFirstCseqValue(__atoi64(value));
    return ix_gruuType::ProcessUnMarshallAttribute(attribute, value, pair);
}

int ix_temp_gruu::setFirstCseqValue(std::int64_t firstCseq) {
    mFirstCseq = firstCseq;
    return 1;
}

void ix_temp_gruu::LogRefusal() const { ixLog(kSourceFile, kTempRefused); }

void ix_ns_gruuinfo_pubGruu::LogRefusal() const { ixLog(kSourceFile, kInnerPubRefused); }

void ix_ns_gruuinfo_tempGruu::LogRefusal() const { ixLog(kSourceFile, kInnerTempRefused); }

GruuDataBinder::~GruuDataBinder() { __free(m_pGruutype); }

int GruuDataBinder::setGruutypeValue(const char* type) { return ixSetText(m_pGruutype, type); }

XMLElement* GruuDataBinder::CreateRootElement() {
    if (m_pGruutype == nullptr) {
        ixLog(kSourceFile, kNoType);
        return nullptr;
    }
    ixLog(kSourceFile, kCreateRoot, m_pGruutype);
    if (Begins(ix_xml_common_array_definition::getStringName(IX_STR_PUB_GRUU), m_pGruutype))
        return CreatePubGruuElement();
    if (Begins(ix_xml_common_array_definition::getStringName(IX_STR_TEMP_GRUU), m_pGruutype)) {
        return CreateTempGruuElement();
    }
    return nullptr;
}

ix_pub_gruu* GruuDataBinder::CreatePubGruuElement() { return IX_NEW(ix_pub_gruu); }

ix_temp_gruu* GruuDataBinder::CreateTempGruuElement() { return IX_NEW(ix_temp_gruu); }

GruuMarshaller::GruuMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int GruuMarshaller::AddRootElementToXml(XMLElement* root) {
    // Required: a class name that is only the beginning of the expected one selects the writer as well. Such an object
    // is none of ours, so the writer gets nothing to read from.
    const char* const name = root->ClassName();
    const XmlLogText* failed = nullptr;
    if (Begins(ix_pub_gruu::kClassName, name)) {
        ixLog(kSourceFile, kWritesPub);
        const bool exact = ixIs<ix_pub_gruu>(root);
        if (AddPubGruuElementToXml(exact ? static_cast<ix_pub_gruu*>(root) : nullptr) == 0) failed = &kPubFailed;
    } else if (Begins(ix_temp_gruu::kClassName, name)) {
        ixLog(kSourceFile, kWritesTemp);
        const bool exact = ixIs<ix_temp_gruu>(root);
        if (AddTempGruuElementToXml(exact ? static_cast<ix_temp_gruu*>(root) : nullptr) == 0) failed = &kTempFailed;
    }
    if (failed == nullptr) return 1;
    ixLog(kSourceFile, *failed);
    return 0;
}

int GruuMarshaller::AddPubGruuElementToXml(ix_pub_gruu* element) {
    ixLog(kSourceFile, kAddPub);
    StartElementOpen(IX_STR_PUB_GRUU);
    return AddUri(element, kPubWithoutUri);
}

int GruuMarshaller::AddTempGruuElementToXml(ix_temp_gruu* element) {
    ixLog(kSourceFile, kAddTemp);
    StartElementOpen(IX_STR_TEMP_GRUU);
    if (element != nullptr) {
        // The number is written as far as 32 bits hold it.
        AddDecimalAttribute(IX_STR_FIRST_CSEQ, static_cast<std::uint32_t>(element->mFirstCseq), Attribute::Open);
    }
    return AddUri(element, kTempWithoutUri);
}

/// The attribute that ends the element.
int GruuMarshaller::AddUri(const ix_gruuType* element, const XmlLogText& missing) {
    if (element == nullptr || element->mUri == nullptr) {
        ixLog(kSourceFile, missing);
        return 0;
    }
    AddAttribute(IX_STR_URI, element->mUri, Attribute::SelfClosing);
    return 1;
}

IX_OLD_FAMILY(GruuContext, GruuMarshaller, GruuUnMarshaller, GruuDataBinder);
