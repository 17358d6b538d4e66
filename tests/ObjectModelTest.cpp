#include <cstring>
#include <fstream>

#include "XmlElementSupport.h"
#include "XmlFields.h"
#include "XmlTest.h"

namespace {

/// An element with one field of each owning kind, that nests through its list and through its child.
class NestingElement : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    NestingElement() : XmlDescribedElement(kClass) {}
    ~NestingElement() override { ixRelease(*this, kClass); }

    char* mText = nullptr;
    int mNumber = 0;
    NestingElement* mChild = nullptr;
    IxSingleElementList* mChildren = nullptr;
    IxSingleElementList* mTexts = nullptr;
    IxSingleElementList* mPairs = nullptr;
};

constexpr XmlField kFields[] = {
    XmlRow::Element<&NestingElement::mText>(IX_STR_NAME),
    XmlRow::Attribute<&NestingElement::mNumber>(IX_STR_SIZE),
    XmlRow::Child<&NestingElement::mChild>(IX_STR_FILE),
    XmlRow::Children<&NestingElement::mChildren, NestingElement>(IX_STR_FOLDER),
    XmlRow::Texts<&NestingElement::mTexts>(IX_STR_NOTE),
    XmlRow::Attributes<&NestingElement::mPairs>(),
};
constexpr XmlClass NestingElement::kClass = ixClass<NestingElement>("nesting", "Nesting", "test", kFields);

NestingElement* NewNesting(NestingElement* parent = nullptr) {
    NestingElement* const element = ixNew<NestingElement>("test");
    if (parent != nullptr) ixAppend(parent->mChildren, element, "test", __LINE__);
    return element;
}

/// Two entries in its list, the first with a child of its own, and something in every other field.
NestingElement* NewTree() {
    NestingElement* const tree = NewNesting();
    ixSetText(tree->mText, "text");
    tree->mNumber = 7;
    tree->mChild = NewNesting();
    NewNesting(tree)->mChild = NewNesting();
    NewNesting(tree);
    ixAppend(tree->mTexts, __strdup("one"), "test", __LINE__);
    ixAppend(tree->mPairs, ixCreatePair("a", "1", "test", __LINE__), "test", __LINE__);
    return tree;
}

void* FirstKey(const IxSingleElementList* list) { return list->GetPtrToListHead()->key; }

class ObjectModelTest : public XmlTest {};

// Decoders and clients tell objects apart by these names.
TEST_F(ObjectModelTest, GenericClassesNameThemselves) {
    const ix_string text;
    const ix_empty_element_type empty;
    const ix_AttributeValuePair pair;
    EXPECT_STREQ(text.ClassName(), "ix_string");
    EXPECT_STREQ(text.BaseClassName(), "XMLElement");
    EXPECT_STREQ(text.TypeName(), "string_class");
    EXPECT_STREQ(empty.ClassName(), "ix_empty_element_type");
    EXPECT_STREQ(empty.BaseClassName(), "XMLElement");
    EXPECT_STREQ(empty.TypeName(), "empty_element");
    EXPECT_STREQ(pair.ClassName(), "ix_AttributeValuePair");
    EXPECT_STREQ(pair.BaseClassName(), "XMLAttribute");
    EXPECT_STREQ(pair.TypeName(), "AttributeValuePair");
    EXPECT_EQ(text.Reserved() | empty.Reserved() | pair.Reserved(), 0);
}

TEST_F(ObjectModelTest, ContentThatAClassDoesNotKnowCountsAsHandled) {
    ix_string element;
    char name[] = "name";
    EXPECT_EQ(element.ProcessUnMarshall(name, nullptr, nullptr), 1);
    EXPECT_EQ(element.ProcessUnMarshallAttribute(name, name, nullptr), 1);
}

// The earlier text must survive a failed replacement, and must not leak in a good one.
TEST_F(ObjectModelTest, SettersCopyAndKeepTheEarlierTextWithoutMemory) {
    ix_string element;
    char text[] = "one";
    EXPECT_EQ(element.setValueValue(text), 1);
    text[0] = 'X';
    EXPECT_STREQ(element.mValue, "one");
    ixDplHostFailAllocation(1);
    EXPECT_EQ(element.setValueValue("two"), 0);
    EXPECT_STREQ(element.mValue, "one");
    EXPECT_EQ(element.setValueValue("two"), 1);
    EXPECT_STREQ(element.mValue, "two");
    EXPECT_EQ(element.setValueValue(nullptr), 1);
    EXPECT_EQ(element.mValue, nullptr);
}

TEST_F(ObjectModelTest, StringTableKeepsItsNumbersTextsAndPadding) {
    struct {
        int index;
        const char* text;
    } const pins[] = {{0, "IX_NULL"},
                      {1, "1.0"},
                      {9, "simservs"},
                      {48, "allow"},
                      {62, "allow"},
                      {100, " "},
                      {144, "proessing-notification"},
                      {223, "simservs"},
                      {227, "urn:ietf:params:xml:ns:im-composing  iscomposing.xsd"},
                      {266, "urn:ietf:params:xml:ns:gruuinfo"}};
    EXPECT_EQ(sizeof ix_xml_common_array_definition::arrXmlStrRef, 267U * 100U);
    for (const auto& pin : pins) {
        EXPECT_STREQ(ix_xml_common_array_definition::getStringName(static_cast<e_XmlStrRef>(pin.index)), pin.text);
    }
    for (const auto& row : ix_xml_common_array_definition::arrXmlStrRef) {
        EXPECT_NE(row[0], '\0');
        for (std::size_t i = std::strlen(row); i < sizeof row; ++i) EXPECT_EQ(row[i], '\0') << row;
    }
}

TEST_F(ObjectModelTest, StringTableEqualsTheReferenceList) {
    // Index and text are part of the interface, so a change of either has to be made twice.
    std::ifstream file(PROJECT_DIR "/tests/strings.tsv");
    int rows = 0;
    for (std::string line; std::getline(file, line); ++rows) {
        const std::size_t tab = line.find('\t');
        ASSERT_NE(tab, std::string::npos) << line;
        ASSERT_EQ(std::stoi(line), rows);
        EXPECT_EQ(ix_xml_common_array_definition::arrXmlStrRef[rows], line.substr(tab + 1)) << rows;
    }
    EXPECT_EQ(rows, kXmlStrRefCount);
}

TEST_F(ObjectModelTest, TheMarkerIsMadeOnceAndRegisteredAtItsLine) {
    auto* const marker = ix_xml_common_array_definition::CreateArrayInstance();
    ASSERT_NE(marker, nullptr);
    EXPECT_EQ(ix_xml_common_array_definition::CreateArrayInstance(), marker);
    std::string seen;
    ixDplHostVisitLedger(
        [](const ixDplHostBlock& block, void* context) {
            *static_cast<std::string*>(context) += std::to_string(block.module) + " " + block.source + ":" +
                                                   std::to_string(block.line) + " " + std::to_string(block.size);
        },
        &seen);
    EXPECT_EQ(seen, "14 ims/xml/src/XMLCommonDef:304 1");
    ix_xml_common_array_definition::ReleaseArrayInstance();
    EXPECT_EQ(ix_xml_common_array_definition::m_pXmlStrRef, nullptr);
    ix_xml_common_array_definition::ReleaseArrayInstance();
}

TEST_F(ObjectModelTest, ListsOfElementsGoWithAllEntriesAroundANullOne) {
    IxSingleElementList* list = nullptr;
    ixAppend(list, NewTree(), "test", __LINE__);
    ixAppend(list, nullptr, "test", __LINE__);
    ixAppend(list, NewNesting(), "test", __LINE__);
    ix_xml_common_methods::DeleteElementList(list);
    EXPECT_EQ(ixDplHostLedger().liveObjects, 0U);
    ix_xml_common_methods::DeleteElementList(nullptr);
    ix_xml_common_methods::DeleteAttributeList(nullptr);
    ix_xml_common_methods::DeleteTextList(nullptr);
    FreeElement(nullptr);
}

// A document may nest as deep as its sender likes; its depth must not become the depth of the stack.
TEST_F(ObjectModelTest, ADeepTreeIsDeletedWithoutACallForEveryLevel) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    NestingElement* const root = NewNesting();
    NestingElement* last = root;
    for (int i = 0; i < 100000; ++i) {
        last = NewNesting(last);
        // Lists below a child field have to be reached as well.
        if (i % 1000 == 0) last = last->mChild = NewNesting();
    }
    XMLFactory::DeleteElement(root);
}

TEST_F(ObjectModelTest, TreesAreEqualWhenAllOfTheirFieldsAre) {
    const XmlOwned<> tree(NewTree());
    const XmlOwned<> same(NewTree());
    EXPECT_TRUE(XmlFields::Equal(tree.get(), same.get()));
    EXPECT_TRUE(XmlFields::Equal(nullptr, nullptr));
    EXPECT_FALSE(XmlFields::Equal(tree.get(), nullptr));
    EXPECT_FALSE(XmlFields::Equal(nullptr, tree.get()));
    const ix_string text;
    const ix_empty_element_type empty;
    EXPECT_FALSE(XmlFields::Equal(&text, &empty));

    void (*const changes[])(NestingElement&) = {
        [](NestingElement& element) { ixSetText(element.mText, "Text"); },
        [](NestingElement& element) { ixSetText(element.mText, nullptr); },
        [](NestingElement& element) { element.mNumber = 8; },
        [](NestingElement& element) { element.mChild->mNumber = 1; },
        [](NestingElement& element) { NewNesting(&element); },
        [](NestingElement& element) { static_cast<NestingElement*>(FirstKey(element.mChildren))->mNumber = 1; },
        [](NestingElement& element) { static_cast<NestingElement*>(FirstKey(element.mChildren))->mChild->mNumber = 1; },
        [](NestingElement& element) { static_cast<char*>(FirstKey(element.mTexts))[0] = 'O'; },
        [](NestingElement& element) {
            static_cast<ix_AttributeValuePair*>(FirstKey(element.mPairs))->setValueValue("2");
        },
        [](NestingElement& element) {
            static_cast<ix_AttributeValuePair*>(FirstKey(element.mPairs))->setNameValue(nullptr);
        },
    };
    int number = 0;
    for (const auto change : changes) {
        const XmlOwned<> other(NewTree());
        change(*static_cast<NestingElement*>(other.get()));
        EXPECT_FALSE(XmlFields::Equal(tree.get(), other.get())) << number;
        EXPECT_FALSE(XmlFields::Equal(other.get(), tree.get())) << number;
        ++number;
    }
}

// An element that was decoded has no list where another one has emptied its own.
TEST_F(ObjectModelTest, AnEmptyListEqualsNoList) {
    NestingElement with;
    const NestingElement without;
    char entry[] = "x";
    ixAppend(with.mTexts, entry, "test", __LINE__);
    EXPECT_TRUE(XmlFields::IsSet(with, kFields[4]));
    EXPECT_FALSE(XmlFields::Equal(&with, &without));
    with.mTexts->Remove(entry);
    EXPECT_FALSE(XmlFields::IsSet(with, kFields[4]));
    EXPECT_TRUE(XmlFields::Equal(&with, &without));
}

}  // namespace
