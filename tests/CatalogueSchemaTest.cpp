// A schema built from nothing on the family template, as docs/adding-a-schema.md tells: one root, two attributes, one
// list. Its names are borrowed from the string table. It also stands for the parts of the template that the first
// families leave to later ones.
#include <iterator>
#include <string>
#include <vector>

#include "XmlElementSupport.h"
#include "XmlOldFamily.h"
#include "XmlFields.h"
#include "XmlTest.h"

namespace {

// [schema]
const char kSourceFile[] = "ims/xml/src/XMLCatalogue";

/// <term><title>text</title></term>, nested to any depth.
class ix_term : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_term";

    ~ix_term() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "Term"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    char* mTitle = nullptr;
    ix_empty_element_type* mBusy = nullptr;
    IxSingleElementList* mTermList = nullptr;
};

/// <folder auid="..." size="...">, with terms.
class ix_catalogue : public XMLObject {
  public:
    static constexpr char kClassName[] = "ix_catalogue";

    ~ix_catalogue() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLObject"; }
    const char* TypeName() const override { return "Catalogue"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    char* mAuid = nullptr;
    int mSize = 0;
    IxSingleElementList* mTermList = nullptr;
};

constexpr XmlField kTermFields[] = {
    {XmlFieldKind::Text, IX_STR_TITLE, XmlTextMember(&ix_term::mTitle)},
    {XmlFieldKind::Presence, IX_STR_BUSY, IX_CHILD_MEMBER(ix_term, mBusy)},
    {XmlFieldKind::ChildList, IX_STR_TERM, XmlListMember(&ix_term::mTermList)},
};
constexpr XmlFieldTable kTermTable = {nullptr, kTermFields, std::size(kTermFields)};

constexpr XmlField kCatalogueFields[] = {
    {XmlFieldKind::Text, IX_STR_AUID, XmlTextMember(&ix_catalogue::mAuid)},
    {XmlFieldKind::Number, IX_STR_SIZE, XmlIntMember(&ix_catalogue::mSize)},
    {XmlFieldKind::ChildList, IX_STR_TERM, XmlListMember(&ix_catalogue::mTermList)},
};
constexpr XmlFieldTable kCatalogueTable = {nullptr, kCatalogueFields, std::size(kCatalogueFields)};

ix_term::~ix_term() { XmlFields::Release(this, kTermTable); }

const XmlFieldTable* ix_term::FieldTable() const { return &kTermTable; }

int ix_term::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_TITLE)) return ixSetText(mTitle, text);
    if (ixNameIs(name, IX_STR_TERM)) return ixTakeInto<ix_term>(mTermList, child, kSourceFile, __LINE__);
    if (!ixNameIs(name, IX_STR_BUSY)) return 1;
    // The first one counts.
    return mBusy == nullptr ? ixTakeChild(mBusy, child) : 0;
}

ix_catalogue::~ix_catalogue() { XmlFields::Release(this, kCatalogueTable); }

const XmlFieldTable* ix_catalogue::FieldTable() const { return &kCatalogueTable; }

int ix_catalogue::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    // A lenient answer for any other child: taken, but kept by nobody.
    return ixNameIs(name, IX_STR_TERM) ? ixAppend(mTermList, child, kSourceFile, __LINE__) : 1;
}

int ix_catalogue::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    if (ixNameIs(attribute, IX_STR_AUID)) return ixSetText(mAuid, value);
    if (ixNameIs(attribute, IX_STR_SIZE)) mSize = __atoi(value);
    return 1;
}

constexpr XmlOldKnownName kFolder = {IX_STR_FOLDER};
constexpr XmlOldContainerRow kContainers[] = {
    {kFolder, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_catalogue)},
    {{IX_STR_TERM, XmlOldKnownName::Required, IX_STR_OP}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_term)},
    {{IX_STR_NOTE}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_term)},
    {{IX_STR_BUSY}, XmlOldContainerRow::Leaf, nullptr, IX_OLD_CREATOR(ix_empty_element_type)},
};
constexpr XmlOldAttributeRow kAttributes[] = {{kFolder, IX_STR_AUID}, {kFolder, IX_STR_SIZE}};

constexpr XmlOldDecoderInfo kDecoderInfo = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);

class XMLCatalogueDecoder : public XmlOldFamilyDecoder {
  public:
    XMLCatalogueDecoder() : XmlOldFamilyDecoder(kDecoderInfo) {}
};

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = IX_OLD_UNMARSHALLER_INFO(XMLCatalogueDecoder, "CatalogueUnMarshaller");

class CatalogueUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override { return kUnMarshallerInfo; }
};

class CatalogueMarshaller : public XmlOldFamilyMarshaller {
  public:
    CatalogueMarshaller();

    int AddCatalogueElementToXml(ix_catalogue* catalogue);
    int AddTermElementToXml(ix_term* term);
};

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(CatalogueMarshaller, AddCatalogueElementToXml, ix_catalogue)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    IX_OLD_MARSHALL_TEXTS(info, "CatalogueMarshaller", "mCatalogueXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kTermFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddTermElementToXml: term %d failed"};

CatalogueMarshaller::CatalogueMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int CatalogueMarshaller::AddCatalogueElementToXml(ix_catalogue* catalogue) {
    StartElementOpen(IX_STR_FOLDER);
    AddAttribute(IX_STR_AUID, catalogue->mAuid, Attribute::Open);
    AddDecimalAttribute(IX_STR_SIZE, catalogue->mSize, Attribute::Closing);
    AddDecimalElement(IX_STR_VERSION, -9223372036854775807 - 1);
    const XmlOldWriter addTerm = IX_OLD_WRITER(CatalogueMarshaller, AddTermElementToXml, ix_term);
    if (AddChildList(catalogue->mTermList, addTerm, kTermFailed) == 0) return 0;
    EndElement(IX_STR_FOLDER);
    return 1;
}

int CatalogueMarshaller::AddTermElementToXml(ix_term* term) {
    if (term->mTitle == nullptr) return 0;
    AddTextElement(IX_STR_TITLE, term->mTitle);
    return AddChildList(term->mTermList, IX_OLD_WRITER(CatalogueMarshaller, AddTermElementToXml, ix_term), kTermFailed);
}
// [schema]

class CatalogueTest : public XmlTest {
  protected:
    XMLElement* Decode(const std::string& text) { return m_reader.UnMarshall(text.c_str()); }

    CatalogueUnMarshaller m_reader;
};

TEST_F(CatalogueTest, ContainersAreFiledPushedAndPopped) {
    const OwnedElement root(Decode(
        "<folder auid=\"a\" size=\"12kB\" other=\"dropped\">"
        "<op:term><title>one</title><op:term><title>two</title></op:term><busy/><busy/><title>uno</title></op:term>"
        "<op:term><title>three</title></op:term></folder>"));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_EQ(root.as<ix_catalogue>()->mSize, 12);
    const auto* const first = static_cast<ix_term*>(root.as<ix_catalogue>()->mTermList->GetKeyAtIndex(0));
    EXPECT_STREQ(first->mTitle, "uno");
    EXPECT_NE(first->mBusy, nullptr);
    CatalogueMarshaller writer;
    EXPECT_STREQ(writer.Marshall(root.get()),
                 "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<folder  auid=\"a\"  size=\"12\">\n"
                 "<version>-9223372036854775808</version>\n<title>uno</title>\n<title>two</title>\n<title>three</title>"
                 "</folder>");
    EXPECT_EQ(writer.IsTruncated(), 0);
}

// The index of a table has room for 64 rows.
TEST_F(CatalogueTest, AllRowsOfALongTableCount) {
    std::vector<XmlOldContainerRow> rows(70, kContainers[2]);
    for (XmlOldContainerRow& row : rows) row.parentClass = "nobody";
    rows[63] = kContainers[0];
    rows[69] = kContainers[2];
    std::vector<XmlOldAttributeRow> attributes(70, kAttributes[1]);
    for (XmlOldAttributeRow& row : attributes) row.className = "nobody";
    attributes[69] = kAttributes[0];
    XmlOldDecoderInfo info = kDecoderInfo;
    info.containers = rows.data();
    info.containerCount = rows.size();
    info.attributes = attributes.data();
    info.attributeCount = attributes.size();
    struct LongDecoder : XmlOldFamilyDecoder {
        explicit LongDecoder(const XmlOldDecoderInfo& table) : XmlOldFamilyDecoder(table) {}
    } decoder(info);
    std::string text = "<folder auid=\"a\"><note/></folder>";
    XmlDecoder tokenizer;
    tokenizer.SetSchemaDecoder(&decoder);
    EXPECT_EQ(tokenizer.Decode(text.c_str(), static_cast<int>(text.size())), IX_XML_SUCCESS);
    const OwnedElement root(decoder.GetSessionData());
    ASSERT_NE(root.get(), nullptr);
    EXPECT_STREQ(root.as<ix_catalogue>()->mAuid, "a");
    // The note is taken by a catalogue that does not keep it: it was made, and goes with the decoder.
    EXPECT_EQ(ixDplHostLedger().liveObjects, 3U) << "root, note, open names";
}

TEST_F(CatalogueTest, WhatNobodyKeepsIsFreedWithTheDecoder) {
    // `term` without its prefix is none of the containers; `note` is one that the root takes and does not keep.
    const OwnedElement root(
        Decode("<folder><term><title>x</title></term><note><op:term/><title>y</title></note>"
               "<note/><busy/><folder><note/></folder></folder>"));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_EQ(root.as<ix_catalogue>()->mTermList, nullptr);
    EXPECT_EQ(ixDplHostLedger().liveObjects, 1U);
    EXPECT_EQ(Decode("<op:term/>"), nullptr);
}

TEST_F(CatalogueTest, DocumentsDeeperThanTheStackAreReadAsFarAsItGoes) {
    std::string text = "<folder>";
    for (int i = 0; i < 150; ++i) text += "<op:term>";
    for (int i = 0; i < 150; ++i) text += "</op:term>";
    const OwnedElement root(Decode(text + "</folder>"));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_TRUE(Logged("stack overflow\n"));
}

TEST_F(CatalogueTest, ATextPastTheCapacityIsCutAndSaysSo) {
    CatalogueMarshaller writer;
    const std::string frame = "<folder auid=\"\" size=\"0\"><op:term><title></title></op:term></folder>";
    const std::size_t at = frame.find("</title>");
    for (const std::size_t length : {30000U, 40000U}) {
        const OwnedElement root(Decode(std::string(frame).insert(at, std::string(length, 'x'))));
        const char* const text = writer.Marshall(root.get());
        EXPECT_EQ(writer.IsTruncated(), length > 32767 ? 1 : 0);
        EXPECT_EQ(std::string(text).size() == 32767, length > 32767);
    }
    const OwnedElement untitled(Decode("<folder><op:term><title/></op:term><op:term/></folder>"));
    EXPECT_EQ(writer.Marshall(untitled.get()), nullptr);
    EXPECT_TRUE(Logged("<XML Module>: AddTermElementToXml: term 1 failed"));
}

}  // namespace
