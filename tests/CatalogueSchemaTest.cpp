// A schema built from nothing on the family template, as docs/adding-a-schema.md tells: one root, two attributes, one
// list. Its names are borrowed from the string table. It also stands for what the documents of the library do not show.
#include <cstring>
#include <string>
#include <vector>

#include "XmlFamily.h"
#include "XmlFields.h"
#include "XmlTest.h"

namespace {

using namespace XmlRow;

// [schema]
/// <term><title>text</title></term>, nested to any depth.
class ix_term : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_term() : XmlDescribedElement(kClass) {}
    ~ix_term() override { ixRelease(*this, kClass); }

    char* mTitle = nullptr;
    IxSingleElementList* mTermList = nullptr;
};

/// <folder auid="..." size="...">, with terms.
class ix_catalogue : public XmlDescribedObject {
  public:
    static const XmlClass kClass;

    ix_catalogue() : XmlDescribedObject(kClass) {}
    ~ix_catalogue() override { ixRelease(*this, kClass); }

    char* mAuid = nullptr;
    int mSize = 0;
    IxSingleElementList* mTermList = nullptr;
};

constexpr XmlField kTermFields[] = {
    Element<&ix_term::mTitle>(IX_STR_TITLE),
    Children<&ix_term::mTermList, ix_term>(IX_STR_TERM),
};
constexpr XmlClass ix_term::kClass = ixClass<ix_term>("ix_term", "Term", kSource, kTermFields);

constexpr XmlField kCatalogueFields[] = {
    Attribute<&ix_catalogue::mAuid>(IX_STR_AUID),
    Attribute<&ix_catalogue::mSize>(IX_STR_SIZE),
    Children<&ix_catalogue::mTermList, ix_term>(IX_STR_TERM),
};
constexpr XmlAnswers Lenient() {
    XmlAnswers answers;
    answers.object = 1;  // any other child is taken, but kept by nobody
    return answers;
}
constexpr XmlClass ix_catalogue::kClass =
    ixClass<ix_catalogue>("ix_catalogue", "Catalogue", kSource, kCatalogueFields, Lenient());

constexpr XmlContainerRow kContainers[] = {
    XmlContainer::Root<ix_catalogue>(IX_STR_FOLDER),
    XmlContainer::Child<ix_term>(XmlKnownName(IX_STR_TERM, XmlKnownName::Required, IX_STR_OP)),
    XmlContainer::Child<ix_term>(IX_STR_NOTE),
};
constexpr XmlDecoderInfo kDecoderInfo = ixDecoderInfo<kContainers>(kSource);

class XMLCatalogueDecoder : public XmlFamilyDecoder {
  public:
    XMLCatalogueDecoder() : XmlFamilyDecoder(kDecoderInfo) {}
};

constexpr XmlUnMarshallerInfo kUnMarshallerInfo =
    ixUnMarshallerInfo<XMLCatalogueDecoder>(kSource, {4, "<XML Module>: StrDup failed in CatalogueUnMarshaller"});

class CatalogueUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    CatalogueUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}
};

class CatalogueMarshaller : public XmlFamilyMarshaller {
  public:
    CatalogueMarshaller();

    int AddCatalogueElementToXml(ix_catalogue* catalogue) {
        XmlStartTag tag(*this, IX_STR_FOLDER);
        tag.Add(IX_STR_AUID, catalogue->mAuid);
        tag.AddDecimal(IX_STR_SIZE, catalogue->mSize);
        tag.Close();
        AddDecimalElement(IX_STR_VERSION, -9223372036854775807 - 1);
        if (AddTerms(catalogue->mTermList) == 0) return 0;
        EndElement(IX_STR_FOLDER);
        return 1;
    }
    int AddTermElementToXml(ix_term* term) {
        if (!Enter(term, {2, "<XML Module>: AddTermElementToXml"}) || term->mTitle == nullptr) return 0;
        AddTextElement(IX_STR_TITLE, term->mTitle);
        return AddTerms(term->mTermList);
    }

  private:
    int AddTerms(const IxSingleElementList* terms) {
        return AddChildren<&CatalogueMarshaller::AddTermElementToXml>(
            terms, {2, "<XML Module>: AddTermElementToXml: term %d failed"});
    }
};

constexpr XmlWriterRow kWriters[] = {ixWriter<&CatalogueMarshaller::AddCatalogueElementToXml>()};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("CatalogueMarshaller", "mCatalogueXml"));

CatalogueMarshaller::CatalogueMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}
// [schema]

class CatalogueTest : public XmlTest {
  protected:
    XMLElement* Decode(const std::string& text) { return m_reader.UnMarshall(text.c_str()); }

    CatalogueUnMarshaller m_reader;
};

TEST_F(CatalogueTest, ContainersAreFiledPushedAndPopped) {
    const XmlOwned<> root(
        Decode("<folder auid=\"a\" size=\"12kB\" other=\"dropped\">"
               "<op:term><title>one</title><op:term><title>two</title></op:term><title>uno</title></op:term>"
               "<op:term><title>three</title></op:term></folder>"));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_EQ(static_cast<ix_catalogue*>(root.get())->mSize, 12);
    const auto* const first =
        static_cast<ix_term*>(static_cast<ix_catalogue*>(root.get())->mTermList->GetKeyAtIndex(0));
    EXPECT_STREQ(first->mTitle, "uno");
    CatalogueMarshaller writer;
    EXPECT_STREQ(writer.Marshall(root.get()),
                 "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<folder  auid=\"a\"  size=\"12\">\n"
                 "<version>-9223372036854775808</version>\n<title>uno</title>\n<title>two</title>\n<title>three</title>"
                 "</folder>");
    EXPECT_EQ(writer.IsTruncated(), 0);
}

// The events of a caller that uses one buffer for all names.
TEST_F(CatalogueTest, AnAttributeBelongsToTheElementThatItNames) {
    XMLCatalogueDecoder decoder;
    char name[16] = "folder";
    char auid[] = "auid";
    char value[] = "a";
    char size[] = "size";
    char number[] = "7";
    decoder.ProcessElement(name, nullptr);
    decoder.ProcessAttribute(name, auid, value);
    std::strcpy(name, "other");
    decoder.ProcessAttribute(name, size, number);
    const XmlOwned<> root(decoder.GetSessionData());
    EXPECT_STREQ(static_cast<ix_catalogue*>(root.get())->mAuid, "a");
    EXPECT_EQ(static_cast<ix_catalogue*>(root.get())->mSize, 0);
}

TEST_F(CatalogueTest, WhatNobodyKeepsIsFreedWithTheDecoder) {
    // `term` without its prefix is none of the containers; `note` is one that the root takes and does not keep.
    const XmlOwned<> root(
        Decode("<folder><term><title>x</title></term><note><op:term/><title>y</title></note>"
               "<note/><folder><note/></folder></folder>"));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_EQ(static_cast<ix_catalogue*>(root.get())->mTermList, nullptr);
    EXPECT_EQ(ixDplHostLedger().liveObjects, 1U);
    EXPECT_EQ(Decode("<op:term/>"), nullptr);
}

TEST_F(CatalogueTest, DocumentsDeeperThanTheStackAreReadAsFarAsItGoes) {
    std::string text = "<folder>";
    for (int i = 0; i < 150; ++i) text += "<op:term>";
    for (int i = 0; i < 150; ++i) text += "</op:term>";
    const XmlOwned<> root(Decode(text + "</folder>"));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_TRUE(Logged("stack overflow\n"));
}

TEST_F(CatalogueTest, ATextPastTheCapacityIsCutAndSaysSo) {
    CatalogueMarshaller writer;
    const std::string frame = "<folder auid=\"\" size=\"0\"><op:term><title></title></op:term></folder>";
    const std::size_t at = frame.find("</title>");
    for (const std::size_t length : {30000U, 40000U}) {
        const XmlOwned<> root(Decode(std::string(frame).insert(at, std::string(length, 'x'))));
        const char* const text = writer.Marshall(root.get());
        EXPECT_EQ(writer.IsTruncated(), length > 32767 ? 1 : 0);
        EXPECT_EQ(std::string(text).size() == 32767, length > 32767);
    }
    const XmlOwned<> untitled(Decode("<folder><op:term><title/></op:term><op:term/></folder>"));
    EXPECT_EQ(writer.Marshall(untitled.get()), nullptr);
    EXPECT_TRUE(Logged("<XML Module>: AddTermElementToXml: term 1 failed"));
}

}  // namespace
