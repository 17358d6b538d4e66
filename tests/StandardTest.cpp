// The standard profile: what goes in comes out, whatever it is, and says where it cannot.
//
// tests/standard.json has documents: "in", what is written of it ("out"; none: the same), or why it is refused
// ("problem": line, column and text). "validate" are the points in which it is not what its standard says.
#include <algorithm>
#include <random>

#include "Classes.h"
#include "Scenario.h"
#include "XMLCommunicationDiversion.h"
#include "XMLConferenceInfo.h"
#include "XMLPresence.h"
#include "XMLRcsTermsInfo.h"
#include "XMLReginfo.h"
#include "XMLResourceList.h"
#include "XMLSchemaNameSpaceRetrieval.h"
#include "XMLSimservs.h"
#include "XMLSimservsXcap.h"
#include "XmlFields.h"

namespace {

constexpr char kDeclaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

std::string Described(const XmlProblem* problem) {
    if (problem == nullptr) return "";
    return std::to_string(problem->line) + ':' + std::to_string(problem->column) + ' ' + problem->text;
}

/// A context of the standard profile with what it makes.
class Standard {
  public:
    explicit Standard(eXMLSchemaID id, XMLObject* binder = nullptr)
        : m_context(XMLFactory::newInstance(id, IX_XML_PROFILE_STANDARD)) {
        if (m_context == nullptr) return;
        m_context->SetNamespaceBinder(binder);
        m_unMarshaller = m_context->createUnMarshaller();
        m_marshaller = m_context->createMarshaller();
    }

    bool IsThere() const { return m_marshaller != nullptr && m_unMarshaller != nullptr; }
    /// The text is not ended by a NUL.
    XmlOwned<> Read(const std::string& text) const {
        const std::vector<char> bytes(text.begin(), text.end());
        return XmlOwned<>(m_unMarshaller->UnMarshall(bytes.data(), bytes.size()));
    }
    std::string Problem() const { return Described(m_unMarshaller->Problem()); }
    /// Without the declaration; or the problem.
    std::string Write(XMLElement* root) const {
        const char* const text = m_marshaller->Marshall(root);
        if (text == nullptr) return Described(m_marshaller->Problem());
        EXPECT_EQ(m_marshaller->Problem(), nullptr);
        const std::string written = text;
        EXPECT_EQ(written.rfind(kDeclaration, 0), 0U);
        return written.substr(sizeof kDeclaration - 1);
    }
    std::string WriteAgain(const std::string& text) const {
        const XmlOwned<> root = Read(text);
        return root != nullptr ? Write(root.get()) : Problem();
    }
    XMLObjectFactory* Factory() const { return m_context->createBinderFactory(); }

  private:
    XmlOwnedContext m_context;
    XMLUnMarshaller* m_unMarshaller = nullptr;
    XMLMarshaller* m_marshaller = nullptr;
};

std::vector<std::string> Findings(eXMLSchemaID id, const std::string& text) {
    std::vector<std::string> found;
    const int count = XMLFactory::Validate(
        id, text.data(), text.size(),
        [](const XmlProblem& problem, void* context) {
            static_cast<std::vector<std::string>*>(context)->push_back(Described(&problem));
        },
        &found);
    EXPECT_EQ(count < 0 ? 1 : count, static_cast<int>(found.size()));
    EXPECT_EQ(XMLFactory::Validate(id, text.data(), text.size(), nullptr, nullptr), count);
    return found;
}

class StandardTest : public XmlTest {};

eXMLSchemaID SchemaOf(const std::string& name) {
    for (const eXMLSchemaID id : AllSchemas()) {
        if (name == XMLFactory::SchemaInfo(id)->name) return id;
    }
    ADD_FAILURE() << name;
    return IX_XML_SCHEMA_REGINFO;
}

TEST_F(StandardTest, DocumentsComeOutAsExpected) {
    const std::string path = PROJECT_DIR "/tests/standard.json";
    Json cases = Json::parse(ReadFile(path));
    const Json expected = cases;
    for (Json& one : cases) {
        const eXMLSchemaID id = SchemaOf(one.at("schema"));
        const std::string text = one.at("in");
        SCOPED_TRACE(text);
        const Standard standard(id);
        const XmlOwned<> root = standard.Read(text);
        one.erase("out");
        one.erase("problem");
        one.erase("validate");
        if (root == nullptr) {
            one["problem"] = standard.Problem();
        } else if (id != IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL) {
            const std::string written = standard.Write(root.get());
            if (written != text) one["out"] = written;
            // What was written says the same.
            const XmlOwned<> again = standard.Read(written);
            EXPECT_TRUE(XmlFields::Equal(root.get(), again.get()) || written.rfind("0:0", 0) == 0) << written;
            const std::vector<std::string> found = Findings(id, text);
            if (!found.empty()) one["validate"] = found;
        }
    }
    if (UpdatesExpected()) {
        std::string all = "[\n";
        for (const Json& one : cases) all += "    " + one.dump() + (&one == &cases.back() ? "\n]" : ",\n");
        ExpectFile(path, all);
    } else {
        for (std::size_t i = 0; i < cases.size(); ++i) EXPECT_EQ(cases[i], expected[i]);
    }
}

/// Reads and writes all samples of a schema.
class StandardSampleTest : public StandardTest, public testing::WithParamInterface<eXMLSchemaID> {
  protected:
    void SetUp() override {
        const std::string name = XMLFactory::SchemaInfo(GetParam())->name;
        for (const std::string& file : FilesBelow(PROJECT_DIR "/samples/" + name)) m_texts.push_back(ReadFile(file));
        for (const std::string& file : FilesBelow(PROJECT_DIR "/../shared/samples/" + name)) {
            m_texts.push_back(ReadFile(file));
        }
    }
    /// What can be read at all.
    std::vector<std::string> ReadableTexts() const {
        std::vector<std::string> texts = m_texts;
        const Standard standard(GetParam());
        const auto isUnreadable = [&](const std::string& text) { return standard.Read(text) == nullptr; };
        texts.erase(std::remove_if(texts.begin(), texts.end(), isUnreadable), texts.end());
        return texts;
    }

    std::vector<std::string> m_texts;
};

std::vector<eXMLSchemaID> StandardSchemas() {
    std::vector<eXMLSchemaID> schemas = AllSchemas();
    schemas.erase(std::remove(schemas.begin(), schemas.end(), IX_XML_SCHEMA_CALL_WAITING_INDICATION), schemas.end());
    schemas.erase(std::remove(schemas.begin(), schemas.end(), IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL), schemas.end());
    return schemas;
}

INSTANTIATE_TEST_SUITE_P(Schemas, StandardSampleTest, testing::ValuesIn(StandardSchemas()), SchemaName);

TEST_P(StandardSampleTest, WhatWasWrittenSaysTheSame) {
    const Standard standard(GetParam());
    for (const std::string& text : ReadableTexts()) {
        const XmlOwned<> root = standard.Read(text);
        const std::string written = standard.Write(root.get());
        const XmlOwned<> again = standard.Read(written);
        ASSERT_NE(again, nullptr) << written << standard.Problem();
        EXPECT_TRUE(XmlFields::Equal(root.get(), again.get())) << text << JsonOf(root.get()) << '\n'
                                                               << JsonOf(again.get());
        EXPECT_EQ(standard.Write(again.get()), written);
    }
}

/// The device profile takes declarations for attributes.
void DropDeclarations(Json& tree) {
    if (tree.contains("attributes")) {
        Json rest = Json::array();
        for (const Json& pair : tree["attributes"]) {
            if (pair["name"].get<std::string>().rfind("xmlns", 0) != 0) rest.push_back(pair);
        }
        tree["attributes"] = rest;
        if (rest.empty()) tree.erase("attributes");
    }
    for (Json& child : tree) {
        if (child.is_structured()) DropDeclarations(child);
    }
}

TEST_P(StandardSampleTest, ProfilesAgreeWhereNothingIsLost) {
    const Standard standard(GetParam());
    const XmlOwnedContext device(XMLFactory::newInstance(GetParam()));
    XMLUnMarshaller* const unMarshaller = device->createUnMarshaller();
    for (const std::string& text : ReadableTexts()) {
        const std::string written = standard.WriteAgain(text);
        const XmlOwned<> root = standard.Read(written);
        // Prefixes, references and what no field holds are read by one of them only.
        const bool isPlain = written.find(':', written.find('>')) == std::string::npos;
        const std::string tree = JsonOf(root.get()).dump();
        if (!isPlain || written.find('&') != std::string::npos || tree.find("\"rest\"") != std::string::npos) continue;
        const XmlOwned<> other(unMarshaller->UnMarshall(written.c_str()));
        Json expected = JsonOf(other.get());
        DropDeclarations(expected);
        EXPECT_EQ(expected, JsonOf(root.get())) << written;
    }
}

TEST_P(StandardSampleTest, StandsEveryAllocationFailing) {
    for (const std::string& text : ReadableTexts()) {
        const Standard standard(GetParam());
        const XmlOwned<> whole = standard.Read(text);
        // Of long documents, every so often one.
        for (unsigned long failing = 1;; failing += 1 + failing / 40) {
            const std::size_t before = ixDplHostLedger().liveHeapBlocks;
            ixDplHostFailAllocation(failing);
            XmlOwned<> root = standard.Read(text);
            const bool reached = ixDplHostAllocations() >= failing;
            ixDplHostStopCounting();
            if (!reached) break;
            ASSERT_EQ(root, nullptr) << failing;
            ASSERT_EQ(standard.Problem(), "0:0 no memory");
            ASSERT_EQ(ixDplHostLedger().liveHeapBlocks, before) << failing;
        }
        const std::string complete = standard.Write(whole.get());
        for (unsigned long failing = 1;; failing += 1 + failing / 40) {
            ixDplHostFailAllocation(failing);
            const std::string cut = standard.Write(whole.get());
            const bool reached = ixDplHostAllocations() >= failing;
            ixDplHostStopCounting();
            if (!reached) break;
            ASSERT_EQ(cut, "0:0 no memory") << failing;
        }
        EXPECT_EQ(standard.Write(whole.get()), complete);
    }
}

TEST_P(StandardSampleTest, ContextsStandEveryAllocationFailing) {
    for (unsigned long failing = 1;; ++failing) {
        ixDplHostFailAllocation(failing);
        const bool isThere = Standard(GetParam()).IsThere();
        const bool reached = ixDplHostAllocations() >= failing;
        ixDplHostStopCounting();
        EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 0U) << failing;
        EXPECT_EQ(isThere, !reached) << failing;
        if (!reached) break;
    }
}

TEST_P(StandardSampleTest, RefusesEveryPrefix) {
    const Standard standard(GetParam());
    for (const std::string& text : ReadableTexts()) {
        const std::size_t last = text.rfind('>');
        for (std::size_t length = 1; length <= last; length += 1 + last / 1000) {
            ASSERT_EQ(standard.Read(text.substr(0, length)), nullptr) << text.substr(0, length);
            ASSERT_NE(standard.Problem().rfind("0:", 0), 0U) << text.substr(0, length);
        }
    }
}

/// Moves, doubles and removes elements, and changes bytes: whatever can be read is written so that it reads the same.
TEST_P(StandardSampleTest, KeepsWhatIsMovedDoubledOrRemoved) {
    std::mt19937 random(static_cast<unsigned>(GetParam()));
    const auto below = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    const Standard standard(GetParam());
    for (const std::string& text : ReadableTexts()) {
        for (int round = 0; round < 60; ++round) {
            std::string changed = text;
            for (std::size_t i = below(3) + 1; i > 0; --i) {
                const std::size_t from = changed.find('<', below(changed.size()));
                const std::size_t close = from != std::string::npos ? changed.find("</", from) : from;
                const std::size_t end = close != std::string::npos ? changed.find('>', close) : close;
                if (end == std::string::npos) continue;
                const std::string piece = changed.substr(from, end + 1 - from);
                const std::size_t how = below(4);
                if (how != 0) changed.erase(from, piece.size());
                const std::size_t to = changed.find('<', below(changed.size()));
                if (how != 1 && to != std::string::npos) changed.insert(to, piece);
                if (how == 3) changed.insert(to != std::string::npos ? to : 0, "<v:x xmlns:v='urn:v' a='&lt;'>t</v:x>");
            }
            const XmlOwned<> root = standard.Read(changed);
            if (root == nullptr) continue;
            const std::string written = standard.Write(root.get());
            const XmlOwned<> again = standard.Read(written);
            ASSERT_NE(again, nullptr) << changed << '\n' << written << standard.Problem();
            // Written once in the order of the schema, it stays as it is.
            ASSERT_EQ(standard.Write(again.get()), written) << changed;
        }
    }
}

TEST_F(StandardTest, RestStaysInItsPlaceWhenTheTreeIsChanged) {
    const Standard standard(IX_XML_SCHEMA_RESOURCE_LISTS);
    const std::string text =
        "<resource-lists xmlns=\"urn:ietf:params:xml:ns:resource-lists\"><list other=\"1\" name=\"a\">"
        "<v:first xmlns:v=\"urn:v\"/><display-name xml:lang=\"en\">List</display-name><v:one xmlns:v=\"urn:v\"/>"
        "<entry uri=\"sip:1\"/><v:two xmlns:v=\"urn:v\"/><entry uri=\"sip:2\"/><v:three xmlns:v=\"urn:v\"/>"
        "<entry uri=\"sip:3\"/>text</list></resource-lists>";
    const XmlOwned<> root = standard.Read(text);
    ASSERT_NE(root, nullptr) << standard.Problem();
    EXPECT_EQ(standard.Write(root.get()), text);
    auto& lists = static_cast<ix_resource_lists&>(*root);
    auto& list = *static_cast<ix_listType*>(lists.mListList->GetKeyAtIndex(0));
    auto* const second = static_cast<ix_entryType*>(list.mChildren->GetKeyAtIndex(1));
    auto* const added = ixNew<ix_entryType>("test");
    list.mChildren->Remove(second);
    ixDelete(second);
    list.setNameValue("b");
    added->setUriValue("sip:4");
    list.mChildren->Add(added);
    EXPECT_EQ(standard.Write(root.get()),
              "<resource-lists xmlns=\"urn:ietf:params:xml:ns:resource-lists\"><list other=\"1\" name=\"b\">"
              "<v:first xmlns:v=\"urn:v\"/><display-name xml:lang=\"en\">List</display-name><v:one xmlns:v=\"urn:v\"/>"
              "<entry uri=\"sip:1\"/><v:two xmlns:v=\"urn:v\"/><v:three xmlns:v=\"urn:v\"/>"
              "<entry uri=\"sip:3\"/>text<entry uri=\"sip:4\"/></list></resource-lists>");
}

TEST_F(StandardTest, ValuesThatDoNotFitStayUntilTheFieldIsSet) {
    const Standard standard(IX_XML_SCHEMA_REGINFO);
    const std::string text =
        "<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\" version=\"many\" state=\"whole\">"
        "<registration aor=\"sip:a\" id=\"1\" state=\"active\"><contact state=\"active\" event=\"registered\" "
        "expires=\"0\" id=\"c\"><uri x=\"1\">sip:u<b/></uri><uri>second</uri></contact></registration></reginfo>";
    const XmlOwned<> root = standard.Read(text);
    ASSERT_NE(root, nullptr) << standard.Problem();
    EXPECT_EQ(standard.Write(root.get()), text);
    auto& reginfo = static_cast<ix_reginfo&>(*root);
    EXPECT_EQ(reginfo.mVersion, 0U);
    reginfo.setVersionValue(7);
    auto& registration = *static_cast<ix_registration*>(reginfo.mRegistrationList->GetKeyAtIndex(0));
    auto& contact = *static_cast<ix_ns_reginfo_contact*>(registration.mContactList->GetKeyAtIndex(0));
    EXPECT_STREQ(contact.mUri, "sip:u");
    contact.setExpiresValue(60);
    const std::string written = standard.Write(root.get());
    EXPECT_NE(written.find("version=\"7\" state=\"whole\""), std::string::npos) << written;
    EXPECT_NE(written.find("expires=\"60\""), std::string::npos) << written;
}

TEST_F(StandardTest, ApplicationsAddToARest) {
    const Standard standard(IX_XML_SCHEMA_REGINFO);
    const std::string begin = "<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\"";
    const XmlOwned<> root = standard.Read(begin + " version=\"1\" state=\"full\"/>");
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->Rest(), nullptr);
    XmlRest* const rest = root->MakeRest();
    EXPECT_EQ(rest->AddAttribute("urn:v", "v:level", "<3>"), 1);
    EXPECT_EQ(rest->AddAttribute("urn:w", "v:level", "4"), 1);
    EXPECT_EQ(rest->AddElement("<e:x xmlns:e=\"urn:e\"/>"), 1);
    EXPECT_EQ(rest->AddElement(nullptr), 0);
    EXPECT_EQ(standard.Write(root.get()),
              begin +
                  " xmlns:v=\"urn:v\" xmlns:n1=\"urn:w\" version=\"1\" state=\"full\" v:level=\"&lt;3&gt;\" "
                  "n1:level=\"4\"><e:x xmlns:e=\"urn:e\"/></reginfo>");
    EXPECT_EQ(rest->AddAttribute("urn:v", "level", "again"), 1);
    EXPECT_EQ(standard.Write(root.get()).rfind("0:0 what was added to a rest is not well-formed:", 0), 0U);
    rest->Remove(rest->Last());
    EXPECT_EQ(rest->AddElement("</reginfo>"), 1);
    EXPECT_EQ(standard.Write(root.get()).rfind("0:0 what was added", 0), 0U);
    rest->Clear();
    EXPECT_TRUE(rest->IsEmpty());
    EXPECT_EQ(standard.Write(root.get()), begin + " version=\"1\" state=\"full\"/>");
}

TEST_F(StandardTest, ComparisonCountsRests) {
    const Standard standard(IX_XML_SCHEMA_IS_COMPOSING);
    // The same document, then others that differ in one point each.
    const char* const contents[] = {
        "<state>a</state><x/><y/><refresh>1</refresh><x/>", "<state>a</state><x/><refresh>1</refresh><x/><y/>",
        "<state>a</state><x/><y/><refresh>1</refresh><z/>", "<state>a</state><y/><x/><refresh>1</refresh><x/>",
        "<state>a</state><x/><y/><refresh>1</refresh>",     "<state>a</state><x/><y/><refresh>1</refresh>x",
        "<x/><state>a</state><y/><refresh>1</refresh><x/>", "<state>a</state><refresh>1</refresh>"};
    std::vector<XmlOwned<>> trees;
    for (const char* const content : contents) {
        trees.push_back(standard.Read("<isComposing xmlns='urn:ietf:params:xml:ns:im-iscomposing'>" +
                                      std::string(content) + "</isComposing>"));
    }
    for (std::size_t i = 0; i < trees.size(); ++i) {
        for (std::size_t j = 0; j < trees.size(); ++j) {
            EXPECT_EQ(XmlFields::Equal(trees[i].get(), trees[j].get()), i == j) << i << ' ' << j;
        }
    }
}

TEST_F(StandardTest, WhatTheStandardDemandsIsNamed) {
    const Standard standard(IX_XML_SCHEMA_REGINFO);
    const XmlOwned<> root(standard.Factory()->CreateRootElement());
    auto& reginfo = static_cast<ix_reginfo&>(*root);
    EXPECT_EQ(standard.Write(root.get()), "0:0 <reginfo> has no attribute state");
    reginfo.setStateValue(IX_REGINFO_STATE_FULL);
    reginfo.addRegistration(ixNew<ix_registration>("test"));
    EXPECT_EQ(standard.Write(root.get()), "0:0 <registration> has no attribute aor");
    auto& registration = *static_cast<ix_registration*>(reginfo.mRegistrationList->GetKeyAtIndex(0));
    registration.setAorValue("sip:a\x01");
    EXPECT_EQ(standard.Write(root.get()), "0:0 a text is not XML in UTF-8");
    registration.setAorValue("sip:\"a\"&<b>");
    registration.setIdValue("1");
    registration.setStateValue(IX_REGISTRATION_STATE_ACTIVE);
    EXPECT_EQ(standard.Write(root.get()),
              "<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\" version=\"0\" state=\"full\"><registration "
              "aor=\"sip:&quot;a&quot;&amp;&lt;b&gt;\" id=\"1\" state=\"active\"/></reginfo>");
    auto* const stranger = ixNew<ix_listType>("test");
    registration.mContactList = ixNew<IxSingleElementList>("test");
    registration.mContactList->Add(stranger);
    EXPECT_EQ(standard.Write(root.get()), "0:0 <ix_registration> has no place for an object of the class ix_listType");
    EXPECT_EQ(standard.Write(stranger), "0:0 is not the class of a root: ix_listType");
    EXPECT_EQ(standard.Write(nullptr), "0:0 there is no root");
}

TEST_F(StandardTest, TheBinderDeclaresPrefixes) {
    ix_schema_namespace_retrieval binder;
    binder.addNameSpaceInfo(ixCreatePair("gr", "urn:ietf:params:xml:ns:gruuinfo", "test"));
    const Standard standard(IX_XML_SCHEMA_GRUU, &binder);
    EXPECT_EQ(standard.WriteAgain("<gr:pub-gruu uri='sip:a'/>"),
              "<pub-gruu xmlns=\"urn:ietf:params:xml:ns:gruuinfo\" uri=\"sip:a\"/>");
    EXPECT_EQ(standard.WriteAgain("<gr:pub-gruu xmlns:gr='urn:other' uri='sip:a'/>"),
              "1:1 the root element is of another namespace");
}

TEST_F(StandardTest, AServiceIsSwitchedOffAndEverythingElseStays) {
    const Standard standard(IX_XML_SCHEMA_SIMSERVS);
    const std::string text = ReadFile(PROJECT_DIR "/samples/simservs/rich.xml");
    const XmlOwned<> root = standard.Read(text);
    ASSERT_NE(root, nullptr) << standard.Problem();
    std::string expected = standard.Write(root.get());
    auto& simservs = static_cast<ix_Simservs&>(*root);
    for (auto* const service : XmlEntries<XMLElement>(simservs.mServiceList)) {
        auto* const diversion = ixAs<ix_communication_diversion>(service);
        if (diversion == nullptr) continue;
        EXPECT_EQ(diversion->mActive, 1);
        diversion->setActiveValue(0);
        break;
    }
    const std::size_t at = expected.find("\"true\"", expected.find("<communication-diversion "));
    expected.replace(at, 6, "\"false\"");
    EXPECT_EQ(standard.Write(root.get()), expected);
}

TEST_F(StandardTest, EveryCharacterIsEscapedWhereverItStands) {
    const Standard standard(IX_XML_SCHEMA_RCS_TERMS_INFO);
    const XmlOwned<> root(standard.Factory()->CreateRootElement());
    auto& terms = static_cast<ix_rcs_terms_info&>(*root);
    for (std::size_t length = 1; length < 40; ++length) {
        for (std::size_t at = 0; at < length; ++at) {
            for (const char* const character : {"&", "<", ">", "\"", "'", "\n", "\t", "\r", "\xC3\xA9", "\x7F"}) {
                const std::string text =
                    std::string(at, 'a') + character + std::string(length - at - 1, 'b') + "]]>" + character;
                terms.setVersionValue(text.c_str());
                terms.setTermsVersionValue(text.c_str());
                const XmlOwned<> again = standard.Read(standard.Write(root.get()));
                ASSERT_TRUE(XmlFields::Equal(root.get(), again.get())) << text << standard.Write(root.get());
            }
        }
    }
}

TEST_F(StandardTest, NothingIsTooWideAndAThousandIsDeep) {
    const Standard standard(IX_XML_SCHEMA_RESOURCE_LISTS);
    const auto nested = [](std::size_t depth) {
        std::string text = "<resource-lists xmlns=\"urn:ietf:params:xml:ns:resource-lists\">";
        for (std::size_t i = 1; i < depth; ++i) text += "<list>";
        for (std::size_t i = 1; i < depth; ++i) text += "</list>";
        return text + "</resource-lists>";
    };
    EXPECT_NE(standard.Read(nested(1000)), nullptr);
    EXPECT_EQ(standard.Read(nested(1001)), nullptr);
    const XmlOwned<> deep = standard.Read(nested(1000));
    EXPECT_NE(standard.Write(deep.get()).rfind("0:0", 0), 0U);
    std::string wide = "<resource-lists xmlns=\"urn:ietf:params:xml:ns:resource-lists\"><list";
    for (int i = 0; i < 20000; ++i) wide += " a" + std::to_string(i) + "=\"\"";
    std::string twice = wide + " a7=\"\"/></resource-lists>";
    wide += '>';
    for (int i = 0; i < 20000; ++i)
        wide += "<x" + std::to_string(i) + ":y xmlns:x" + std::to_string(i) + "=\"urn:" + std::to_string(i) + "\"/>";
    for (int i = 0; i < 20000; ++i) wide += "<entry uri=\"sip:" + std::to_string(i) + "\"/>";
    wide += "</list></resource-lists>";
    const XmlOwned<> root = standard.Read(wide);
    ASSERT_NE(root, nullptr) << standard.Problem();
    EXPECT_EQ(standard.Write(root.get()).size(), wide.size());
    EXPECT_EQ(standard.Read(twice), nullptr);
    EXPECT_NE(standard.Problem().find("an attribute is given twice"), std::string::npos);
}

TEST_F(StandardTest, LengthsCountInBothProfiles) {
    const char text[] = "<rcs-terms-info version=\"1\"/>and more";
    for (const eXMLProfile profile : {IX_XML_PROFILE_DEVICE, IX_XML_PROFILE_STANDARD}) {
        const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_RCS_TERMS_INFO, profile));
        XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
        const XmlOwned<> root(unMarshaller->UnMarshall(text, 29));
        EXPECT_NE(root, nullptr);
        EXPECT_EQ(XmlOwned<>(unMarshaller->UnMarshall(text, 28)), nullptr);
        EXPECT_EQ(XmlOwned<>(unMarshaller->UnMarshall(nullptr, 0)), nullptr);
    }
    EXPECT_EQ(XMLFactory::Validate(IX_XML_SCHEMA_RCS_TERMS_INFO, nullptr, 0, nullptr, nullptr), -1);
    EXPECT_EQ(XMLFactory::Validate(IX_XML_SCHEMA_RESERVED_6, text, 29, nullptr, nullptr), -1);
    EXPECT_EQ(XMLFactory::newInstance(IX_XML_SCHEMA_CALL_WAITING_INDICATION, IX_XML_PROFILE_STANDARD), nullptr);
    EXPECT_EQ(XMLFactory::newInstance(IX_XML_SCHEMA_REGINFO, static_cast<eXMLProfile>(2)), nullptr);
}

}  // namespace
