// The first families: what they read from the samples, and exactly what they write.
#include <cstring>

#include "CommunicationWaiting.h"
#include "FamilyTest.h"
#include "Gruu.h"
#include "XMLCommunicationWaiting.h"
#include "XMLFile.h"
#include "XMLGruu.h"
#include "XMLSchemaNameSpaceRetrieval.h"
#include "XmlElementSupport.h"
#include "XmlFields.h"

namespace {

constexpr char kSimservs[] = "http://uri.etsi.org/ngn/params/xml/simservs/xcap";

class WaitingTest : public FamilyTest {};

TEST_F(WaitingTest, TakesExactlyTrueForActive) {
    for (const char* const value : {"TRUE", "1", "yes", " true", "truely", ""}) {
        const OwnedElement root(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING,
                                       "<communication-waiting active=\"" + std::string(value) + "\"/>"));
        ASSERT_NE(root.get(), nullptr) << value;
        EXPECT_EQ(root.as<ix_communication_waiting>()->mActive, 0) << value;
    }
}

TEST_F(WaitingTest, AnUnknownPrefixNeedsABinder) {
    const std::string text = Sample("communication-waiting/rich");
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, text), nullptr);
    // A binder for other namespaces does not help.
    const OwnedElement other(Binder("<a xmlns:mmtel=\"urn:other\"/>"));
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, text, other.as<XMLObject>()), nullptr);
    // An element that is no binder at all, and a binder without a list, change nothing.
    ix_communication_waiting notABinder;
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, text, &notABinder), nullptr);
    ix_schema_namespace_retrieval empty;
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, text, &empty), nullptr);
}

TEST_F(WaitingTest, TheLastDeclarationOfANamespaceGivesThePrefix) {
    const std::string twice = "<a xmlns:x=\"" + std::string(kSimservs) + "\" xmlns=\"" + kSimservs + "\"/>";
    const OwnedElement binder(Binder(twice));
    ix_communication_waiting root;
    ASSERT_EQ(root.addExtension(ixCreatePair("a", "b", "test", 1)), 1);
    EXPECT_EQ(Write(IX_XML_SCHEMA_COMMUNICATION_WAITING, &root, binder.as<XMLObject>()),
              "<communication-waiting  a=\"b\"  active=\"false\"/>");
    root.setExtensionListValue(nullptr);
    EXPECT_EQ(Write(IX_XML_SCHEMA_COMMUNICATION_WAITING, &root, binder.as<XMLObject>()),
              "<communication-waiting  active=\"false\"/>");
}

TEST_F(WaitingTest, ABuiltRootIsInactiveUntilSet) {
    const OwnedContext context(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    const OwnedElement root(context->createBinderFactory()->CreateRootElement());
    XMLMarshaller* const marshaller = context->createMarshaller();
    EXPECT_STREQ(marshaller->Marshall(root.get()), "<communication-waiting  active=\"false\"/>");
    root.as<ix_communication_waiting>()->setActiveValue(1);
    ClearLog();
    EXPECT_STREQ(marshaller->Marshall(root.get()), "<communication-waiting  active=\"true\"/>");
    const std::vector<LogLine> expected = {
        {3, 6070, "ims/xml/src/XMLCommunicationWaiting", 283,
         "<XML Module>: Communication_waitingMarshaller :: Marshall"},
        {3, 6070, "ims/xml/src/XMLCommunicationWaiting", 288,
         "<XML Module>: Communication_waitingMarshaller :: Marshall: Deleting mCommunicationWaitingXml"},
        {2, 6070, "ims/xml/src/XMLCommunicationWaiting", 194, "<XML Module>: AddCommunication_waitingElementToXml"},
        {2, 6070, "ims/xml/src/XMLCommunicationWaiting", 313,
         "<XML Module>: Communication_waitingMarshaller XML <communication-waiting  active=\"true\"/>"},
    };
    EXPECT_EQ(Log(), expected);
    EXPECT_EQ(marshaller->Marshall(nullptr), nullptr);
    // An element of another class is refused, not read as if it were one.
    ix_pub_gruu other;
    EXPECT_EQ(marshaller->Marshall(&other), nullptr);
    EXPECT_TRUE(Logged("<XML Module>: Communication_waitingMarshaller XML Failed!"));
}

TEST_F(WaitingTest, ObjectsAreRegisteredUnderTheirLines) {
    const OwnedContext context(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    context->createMarshaller();
    context->createBinderFactory();
    const OwnedElement root(context->createUnMarshaller()->UnMarshall("<communication-waiting a=\"b\"/>"));
    Strings blocks;
    ixDplHostVisitLedger(
        [](const ixDplHostBlock& block, void* to) {
            static_cast<Strings*>(to)->push_back(std::string(block.source) + ":" + std::to_string(block.line));
        },
        &blocks);
    blocks.erase(blocks.begin());  // the context
    const Strings expected = {"ims/xml/src/XMLCommunicationWaiting:331", "ims/xml/src/XMLCommunicationWaiting:389",
                              "ims/xml/src/XMLCommunicationWaiting:380", "ims/xml/src/CommunicationWaiting:314",
                              "ims/xml/src/CommunicationWaiting:372",    "ims/xml/src/XMLCommunicationWaiting:42"};
    EXPECT_EQ(blocks, expected);
}

TEST_F(WaitingTest, DecodesWithFewAllocations) {
    const OwnedContext context(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
    const std::string text = Sample("communication-waiting/typical");
    ixDplHostFailAllocation(0);
    const OwnedElement root(unMarshaller->UnMarshall(text.c_str()));
    EXPECT_LE(ixDplHostAllocations(), 25U);
    EXPECT_NE(root.get(), nullptr);
}

TEST_F(WaitingTest, DecoderRefusesEventsWithoutNames) {
    XMLCommunicationWaitingDecoder decoder;
    char name[] = "communication-waiting";
    EXPECT_EQ(decoder.ProcessElement(nullptr, nullptr), -1);
    EXPECT_EQ(decoder.ProcessAttribute(nullptr, name, name), -1);
    EXPECT_EQ(decoder.ProcessAttribute(name, nullptr, name), -1);
    EXPECT_EQ(decoder.ProcessAttribute(name, name, name), 0);  // nothing is open yet
    EXPECT_EQ(decoder.ProcessEndOfStartTag(name), 0);
    EXPECT_EQ(decoder.GetSessionData(), nullptr);
    const std::vector<LogLine> expected = {
        {3, 6070, "ims/xml/src/CommunicationWaiting", 285,
         "<XML Module>XMLCommunicationWaitingDecoder :: ProcessElement: n_strElement is NULL"},
        {3, 6070, "ims/xml/src/CommunicationWaiting", 342,
         "<XML Module>XMLCommunicationWaitingDecoder :: ProcessAttribute: n_strElement is NULL"},
        {3, 6070, "ims/xml/src/CommunicationWaiting", 342,
         "<XML Module>XMLCommunicationWaitingDecoder :: ProcessAttribute: n_strElement is NULL"},
    };
    EXPECT_EQ(Log(), expected);
}

TEST_F(WaitingTest, ARootInsideTheRootReplacesIt) {
    const OwnedElement root(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING,
                                   "<communication-waiting active=\"true\"><communication-waiting active=\"false\"/>"
                                   "</communication-waiting>"));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_EQ(root.as<ix_communication_waiting>()->mActive, 0);
}

TEST_F(WaitingTest, BadInputYieldsNull) {
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, ""), nullptr);
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, "no element at all"), nullptr);
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, "<other/>"), nullptr);
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, std::string(1 << 20, '<')), nullptr);
    const OwnedContext context(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
    EXPECT_EQ(unMarshaller->UnMarshall(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_EQ(unMarshaller->UnMarshall(static_cast<XMLFile*>(nullptr)), nullptr);
    XMLFile missing(PROJECT_DIR "/samples/none.xml", eXMLFileRead);
    EXPECT_EQ(unMarshaller->UnMarshall(&missing), nullptr);
}

// The tree of a document that ends too early, or goes wrong after its root has started, is left to nobody.
TEST_F(WaitingTest, AFailedDocumentLeavesItsTreeBehind) {
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, "<communication-waiting a=\"b\">"), nullptr);
    ExpectLeftBehind(3);  // root, list, pair
    EXPECT_EQ(Decode(IX_XML_SCHEMA_COMMUNICATION_WAITING, "<communication-waiting></other>"), nullptr);
    ExpectLeftBehind(1);
}

TEST_F(WaitingTest, ReadsFromAFile) {
    const OwnedContext context(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    XMLFile file(PROJECT_DIR "/samples/communication-waiting/typical.xml", eXMLFileRead);
    const OwnedElement root(context->createUnMarshaller()->UnMarshall(&file));
    file.CloseFile();
    ASSERT_NE(root.get(), nullptr);
    EXPECT_EQ(root.as<ix_communication_waiting>()->mActive, 1);
}

class NamespacesTest : public FamilyTest {};

TEST_F(NamespacesTest, ADocumentWithoutDeclarationsHasARootWithoutList) {
    const OwnedElement root(Decode(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, "<a b=\"c\"/>"));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_EQ(root.as<ix_schema_namespace_retrieval>()->getNameSpaceInfo(), nullptr);
    const OwnedContext context(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL);
    EXPECT_EQ(context->createMarshaller(), nullptr);
    EXPECT_EQ(context->SetNamespaceBinder(root.as<XMLObject>()), 0);
}

TEST_F(NamespacesTest, ListPassesToTheRootAndReplacesTheEarlierOne) {
    ix_schema_namespace_retrieval root;
    for (const char* const uri : {"urn:first", "urn:second"}) {
        IxSingleElementList* list = nullptr;
        ASSERT_EQ(ixAppend(list, ixCreatePair("p", uri, "test", 1), "test", 1), 1);
        EXPECT_EQ(root.setNameSpaceInfo(list), 1);
        EXPECT_EQ(root.setNameSpaceInfo(list), 1);
        EXPECT_EQ(root.setNameSpaceInfo(nullptr), 1);
    }
    EXPECT_EQ(Pairs(root.mNameSpaceInfo), Strings{"p=urn:second"});
    char name[] = "uri";
    EXPECT_EQ(root.ProcessUnMarshallAttribute(name, name, nullptr), 1);
    char declaration[] = "xmlns:q";
    ixDplHostFailAllocation(1);
    EXPECT_EQ(root.ProcessUnMarshallAttribute(declaration, name, nullptr), 0);
    EXPECT_EQ(Log().back().text,
              "<XML Module>: ix_schema_namespace_retrieval::ProcessUnMarshallAttribute: cannot allocate memory to "
              "pXMLNSValuePair ");
}

class GruuTest : public FamilyTest {};

TEST_F(GruuTest, RefusedAttributesAreLoggedTwice) {
    ClearLog();
    const OwnedElement root(Decode(IX_XML_SCHEMA_GRUU, "<temp-gruu expires=\"60\" uri=\"u\"/>"));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_TRUE(Logged("<XML Module>: Any attribute is not allowed in class ix_temp_gruu"));
    EXPECT_TRUE(Logged("<XML Module>: Any attribute is not allowed for attribute = \"expires\""));
    EXPECT_TRUE(
        Logged("<XML Module>: In GruuUnMarshaller::UnMarshall with pXmlString=<temp-gruu expires=\"60\" uri=\"u\"/>"));
    EXPECT_TRUE(Logged("<XML Module>: Xml Decoder Success"));
    char name[] = "q";
    ix_ns_gruuinfo_pubGruu pub;
    ix_ns_gruuinfo_tempGruu temp;
    ix_pub_gruu plain;
    EXPECT_EQ(pub.ProcessUnMarshallAttribute(name, name, nullptr), 0);
    EXPECT_EQ(temp.ProcessUnMarshallAttribute(name, name, nullptr), 0);
    EXPECT_EQ(plain.ProcessUnMarshallAttribute(name, name, nullptr), 0);
    EXPECT_TRUE(Logged("<XML Module>: Any attribute is not allowed in class ix_ns_gruuinfo_pubGruu"));
    EXPECT_TRUE(Logged("<XML Module>: Any attribute is not allowed in class ix_ns_gruuinfo_tempGruu"));
    EXPECT_TRUE(Logged("<XML Module>: Any attribute is not allowed in class ix_pub_gruu"));
    // A known name is refused when it comes as a pair, without a message.
    char uri[] = "uri";
    ix_AttributeValuePair pair;
    ClearLog();
    EXPECT_EQ(plain.ProcessUnMarshallAttribute(uri, uri, &pair), 0);
    EXPECT_TRUE(Log().empty());
}

TEST_F(GruuTest, TheEndOfATemporaryGruuPopsNothing) {
    XMLGruuDecoder decoder;
    char start[] = "temp-gruu";
    char end[] = "/temp-gruu";
    char uri[] = "uri";
    EXPECT_EQ(decoder.ProcessElement(start, nullptr), 0);
    EXPECT_EQ(decoder.ProcessElement(end, start), 0);
    EXPECT_EQ(decoder.ProcessAttribute(start, uri, uri), 0);
    const OwnedElement root(decoder.GetSessionData());
    EXPECT_STREQ(root.as<ix_temp_gruu>()->mUri, "uri");
    EXPECT_EQ(decoder.ProcessElement(nullptr, nullptr), -1);
    EXPECT_TRUE(Logged("<XML Module>: XMLGruuDecoder: n_strElement is NULL"));
    EXPECT_EQ(decoder.ProcessAttribute(start, nullptr, uri), -1);
    EXPECT_TRUE(Logged("<XML Module>: XMLGruuDecoder: n_strElement or n_strAttr is NULL"));
}

TEST_F(GruuTest, AnyLeadingPartOfATypeSelectsTheRoot) {
    GruuDataBinder binder;
    EXPECT_EQ(binder.CreateRootElement(), nullptr);
    EXPECT_TRUE(Logged("<XML Module>: GruuDataBinder :: Gruutype is NULL"));
    const struct {
        const char* type;
        const char* className;
    } cases[] = {{"pub-gruu", "ix_pub_gruu"}, {"temp-gruu", "ix_temp_gruu"}, {"", "ix_pub_gruu"}, {"p", "ix_pub_gruu"},
                 {"temp", "ix_temp_gruu"},    {"temp-gruus", nullptr},       {"x", nullptr}};
    for (const auto& c : cases) {
        ASSERT_EQ(binder.setGruutypeValue(c.type), 1);
        const OwnedElement root(binder.CreateRootElement());
        EXPECT_STREQ(root.get() != nullptr ? root.get()->ClassName() : nullptr, c.className) << c.type;
    }
    EXPECT_TRUE(Logged("<XML Module>: In GruuDataBinder::CreateRootElement with m_pGruutype=temp"));
}

TEST_F(GruuTest, MarshallerNamesWhatFailed) {
    class Nameless : public ix_pub_gruu {
      public:
        const char* ClassName() const override { return nullptr; }
    };
    class Shortened : public ix_string {
      public:
        const char* ClassName() const override { return "ix_temp"; }
    };
    ix_pub_gruu pub;
    ix_temp_gruu temp;
    Nameless nameless;
    Shortened shortened;
    ix_string other;
    const struct {
        XMLElement* root;
        std::string text;
        Strings log;
    } cases[] = {
        {nullptr, "(null)", {"<XML Module>: GruuMarshaller :: Incoming obj is NULL"}},
        {&nameless, "(null)", {"<XML Module>: GruuMarshaller :: Incoming pObj->ClassName() is NULL"}},
        {&pub,
         "(null)",
         {"<XML Module>: GruuMarshaller :: Marshall: obj is pub-gruu", "<XML Module>: AddPubGruuElementToXml",
          "<XML Module>: AddPubGruuElementToXml: Uri is a mandatory attribute",
          "<XML Module>: GruuMarshaller XML Failed at AddPubGruuElementToXml!"}},
        {&temp,
         "(null)",
         {"<XML Module>: GruuMarshaller :: Marshall: obj is pub-gruu", "<XML Module>: AddTempGruuElementToXml",
          "<XML Module>: AddTempGruuElementToXml: Uri is a mandatory attribute",
          "<XML Module>: GruuMarshaller XML Failed at AddTempGruuElementToXml!"}},
        {&shortened,
         "(null)",
         {"<XML Module>: GruuMarshaller :: Marshall: obj is pub-gruu", "<XML Module>: AddTempGruuElementToXml",
          "<XML Module>: GruuMarshaller XML Failed at AddTempGruuElementToXml!"}},
        {&other,
         "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
         {"<XML Module>: GruuMarshaller XML <?xml version=\"1.0\" encoding=\"UTF-8\"?>"}},
    };
    for (const auto& c : cases) {
        ClearLog();
        EXPECT_EQ(Write(IX_XML_SCHEMA_GRUU, c.root), c.text);
        Strings expected = {"<XML Module>: GruuMarshaller :: Marshall"};
        expected.insert(expected.end(), c.log.begin(), c.log.end());
        EXPECT_EQ(Texts(), expected);
    }
}

}  // namespace
