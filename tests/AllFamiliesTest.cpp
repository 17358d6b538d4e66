// What every family has to stand, written once. A family joins by a row of `kFamilies`.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <ostream>
#include <set>
#include <thread>

#include "FamilyTest.h"
#include "XMLFactory.h"
#include "XmlFields.h"

namespace {

struct Family {
    eXMLSchemaID id;
    const char* folder;                           ///< Below samples/, and in the folder of real documents.
    const char* logName;                          ///< What its unmarshaller calls itself in the log.
    std::vector<const char*> sources;             ///< Binding and decoder, each with a header of the same name.
    std::map<std::string, const char*> losses{};  ///< Samples that do not come back equal, and what they lose.
    bool endless = false;                         ///< Damaged documents may keep the decoder busy without end.
};

void PrintTo(const Family& family, std::ostream* stream) { *stream << family.folder; }

const Family kFamilies[] = {
    {IX_XML_SCHEMA_IS_COMPOSING, "is-composing", "IsComposing", {"XMLIsComposing", "IsComposing"}},
    {IX_XML_SCHEMA_RESOURCE_LISTS,
     "resource-lists",
     "ResourceLists",
     {"XMLResourceList", "ResourceLists"},
     {{"odd", "entries and references without their mandatory attribute"}}},
    {IX_XML_SCHEMA_CONFERENCE_INFO,
     "conference-info",
     "ConferenceInfo",
     {"XMLConferenceInfo", "ConferenceInfo"},
     {{"odd", "a sidebar without an entity is not written"}}},
    {IX_XML_SCHEMA_IMDN,
     "imdn",
     "IMDN",
     {"XMLImdn", "Imdn"},
     {{"rich", "one notification and no stray elements are written"},
      {"odd", "a processing notification is written under another name"}}},
    {IX_XML_SCHEMA_COMMUNICATION_WAITING,
     "communication-waiting",
     "CommunicationWaiting",
     {"XMLCommunicationWaiting", "CommunicationWaiting"},
     {{"odd", "an entity that is meant literally: only quotes are escaped"}}},
    {IX_XML_SCHEMA_OIP, "oip", "OIP", {"XMLOriginatingIdentityPresentation", "OriginatingIdentityPresentation"}},
    {IX_XML_SCHEMA_TIP, "tip", "TIP", {"XMLTerminatingIdentityPresentation", "TerminatingIdentityPresentation"}},
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION,
     "communication-diversion",
     "CommunicationDiversion",
     {"XMLCommunicationDiversion", "CommunicationDiversion"},
     {{"odd", "presence-status, the content of transformations"}}},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING,
     "communication-barring",
     "CommunicationBarring",
     {"XMLCommunicationBarring", "CommunicationBarring"},
     {{"rich", "entries that the walk over a list skips"}, {"odd", "the target of a diversion"}}},
    {IX_XML_SCHEMA_SIMSERVS,
     "simservs",
     "Simservs",
     {"XMLSimservs", "Simservs"},
     {{"odd", "a part of an element that only looks like a service"}},
     true},
    {IX_XML_SCHEMA_XCAP_ERROR,
     "xcap-error",
     "XcapError",
     {"XMLXcapError", "XcapError"},
     {{"rich", "the phrase of the root"}}},
    {IX_XML_SCHEMA_WAP_PROVISIONING_DOC,
     "wap-provisioning",
     "WapProvisioningDoc",
     {"XMLCharacteristic", "XMLWapProvisioningDoc", "WapProvisioningDoc"},
     {{"typical", "read only"}, {"rich", "read only"}, {"odd", "read only"}}},
    {IX_XML_SCHEMA_VOLTE_CONFIG_INFO,
     "volte-config-info",
     "VolteConfigInfo",
     {"XMLCharacteristic", "XMLVolteConfigInfo", "VolteConfigInfo"},
     {{"typical", "read only"}, {"rich", "read only"}, {"odd", "read only"}}},
    {IX_XML_SCHEMA_PRESENCE,
     "presence",
     "Presence",
     {"XMLPresence", "Presence", "XMLOmaPres", "XMLCaps"},
     {{"odd", "objects of extensions where no writer looks for them"}}},
    {IX_XML_SCHEMA_RLS_SERVICES,
     "rls-services",
     "RlsServices",
     {"XMLRlsServices", "RlsServices"},
     {{"rich", "the service's own list"}, {"odd", "the service's own list"}}},
    {IX_XML_SCHEMA_LIST,
     "rlmi",
     "List",
     {"XMLRlmi", "Rlmi"},
     {{"rich", "the cid and the other attributes of the list"}}},
    {IX_XML_SCHEMA_XCAP_DIRECTORY,
     "xcap-directory",
     "XcapDirectory",
     {"XMLXcapDirectory", "XcapDirectory"},
     {{"odd", "a folder without auid is written with an empty one"}}},
    {IX_XML_SCHEMA_FILE, "file-transfer", "File", {"XMLFt", "Ft"}},
    {IX_XML_SCHEMA_MEDIA_CONTROL, "media-control", "MediaControl", {"XMLMediaControl", "MediaControl"}},
    {IX_XML_SCHEMA_CALL_WAITING_INDICATION,
     "call-waiting-indication",
     "CallWaitingIndication",
     {"XMLCallWaitingIndication", "CallWaitingIndication"}},
    {IX_XML_SCHEMA_CW_INDICATION,
     "cw-indication",
     "CallWaitingIndication",
     {"XMLCWIndication", "CWIndication"},
     {{"odd", "a reason that was not there comes back without content"}}},
    {IX_XML_SCHEMA_RCS_TERMS_INFO, "rcs-terms-info", "RcsTermsInfo", {"XMLRcsTermsInfo", "RcsTermsInfo"}},
    {IX_XML_SCHEMA_BOOTSTRAPPING_INFO,
     "bootstrapping-info",
     "BootstrappingInfo",
     {"XMLBootstrappingInfo", "BootstrappingInfo"}},
    {IX_XML_SCHEMA_GRUU, "gruu", "Gruu", {"XMLGruu", "Gruu"}, {{"rich", "first-cseq is written in 32 bits"}}},
    {IX_XML_SCHEMA_REGINFO,
     "reginfo",
     "Reginfo",
     {"XMLReginfo", "ReginfoDecoder"},
     {{"odd", "unknown elements; quotes in a value; the extra text of an id that was missing"}}},
    {IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL,
     "namespaces",
     "SchemaNamespaceRetrieval",
     {"XMLSchemaNameSpaceRetrieval", "SchemaNameSpaceRetrieval"},
     {{"typical", "read only"}, {"rich", "read only"}, {"odd", "read only"}}},
};

/// One caller's whole work on a document: decode it with its own namespaces as binder, write it, decode what was
/// written. Says how far it came; never leaves anything of its own behind.
struct Work {
    bool decoded = false;
    int cutShort = 0;  ///< Decodes that failed, and left their trees to nobody.
    std::string tree;
    std::string written;
    bool sameAgain = false;

    Work(eXMLSchemaID id, const char* text, bool looksAtTree = false) : m_looksAtTree(looksAtTree) {
        XMLContext* const namespaces = XMLFactory::newInstance(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL);
        XMLContext* const context = XMLFactory::newInstance(id);
        if (namespaces != nullptr && context != nullptr) Run(*namespaces, *context, text);
        XMLFactory::deleteContext(context);
        XMLFactory::deleteContext(namespaces);
    }

  private:
    XMLElement* Decode(XMLUnMarshaller* reader, const char* text) {
        XMLElement* const root = reader != nullptr ? reader->UnMarshall(text) : nullptr;
        if (root == nullptr) ++cutShort;
        return root;
    }

    void Run(XMLContext& namespaces, XMLContext& context, const char* text) {
        XMLUnMarshaller* const namespaceReader = namespaces.createUnMarshaller();
        XMLElement* const binder = Decode(namespaceReader, text);
        context.SetNamespaceBinder(static_cast<XMLObject*>(binder));
        XMLUnMarshaller* const reader = context.createUnMarshaller();
        XMLMarshaller* const writer = context.createMarshaller();
        XMLElement* const root = Decode(reader, text);
        decoded = root != nullptr;
        if (m_looksAtTree) tree = TreeOf(root).dump(2);
        const char* const result = decoded && writer != nullptr ? writer->Marshall(root) : nullptr;
        if (result != nullptr) {
            written = result;
            XMLElement* const again = Decode(reader, result);
            sameAgain = XmlFields::Equal(root, again);
            XMLFactory::DeleteElement(again);
        }
        XMLFactory::DeleteElement(root);
        XMLFactory::DeleteElement(binder);
    }

    bool m_looksAtTree;
};

/// Compares a text with that of a file, or writes the file when the environment asks for it; an empty text is none.
void ExpectFile(const std::string& path, const std::string& text) {
    if (std::getenv("IMSXML_UPDATE_EXPECTED") != nullptr) {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::filesystem::remove(path);
        if (!text.empty()) std::ofstream(path, std::ios::binary) << text << '\n';
    }
    if (text.empty()) {
        EXPECT_FALSE(std::filesystem::exists(path)) << path;
    } else {
        EXPECT_EQ(text + "\n", ReadFile(path)) << path;
    }
}

class AllFamiliesTest : public XmlTest, public testing::WithParamInterface<Family> {
  protected:
    static std::vector<std::string> Samples() {
        return FilesBelow(PROJECT_DIR "/samples/" + std::string(GetParam().folder));
    }
};

INSTANTIATE_TEST_SUITE_P(Families, AllFamiliesTest, testing::ValuesIn(kFamilies), [](const auto& row) {
    std::string name = row.param.folder;
    for (char& c : name) c = c == '-' ? '_' : c;
    return name;
});

TEST_P(AllFamiliesTest, HasHeadersSourcesAndThreeSamples) {
    EXPECT_GE(Samples().size(), 3U);
    for (const char* const source : GetParam().sources) {
        EXPECT_FALSE(ReadFile(PROJECT_DIR "/ims/xml/include/" + std::string(source) + ".h").empty());
        EXPECT_FALSE(ReadFile(PROJECT_DIR "/ims/xml/src/" + std::string(source) + ".cpp").empty());
    }
}

// tests/expected holds the tree and the written text of every sample, decoded and written with its own namespaces as
// binder. IMSXML_UPDATE_EXPECTED=1 writes the files anew, to be read before they are committed.
TEST_P(AllFamiliesTest, ReadsAndWritesItsSamplesAsExpected) {
    for (const std::string& sample : Samples()) {
        SCOPED_TRACE(sample);
        const Work work(GetParam().id, ReadFile(sample).c_str(), true);
        const std::string name = std::filesystem::path(sample).stem();
        const std::string expected = PROJECT_DIR "/tests/expected/" + std::string(GetParam().folder) + "/" + name;
        ExpectFile(expected + ".json", work.tree);
        ExpectFile(expected + ".xml", work.written);
        const auto loss = GetParam().losses.find(name);
        EXPECT_EQ(work.sameAgain, loss == GetParam().losses.end());
    }
}

// Each allocation of the whole work fails once. Whatever happens then, nothing that was complete is lost, nothing but
// the tree of a document that was cut short is left behind, and the work succeeds once no allocation fails.
TEST_P(AllFamiliesTest, StandsEveryAllocationFailing) {
    for (const std::string& sample : Samples()) {
        SCOPED_TRACE(sample);
        const std::string text = ReadFile(sample);
        const Work plain(GetParam().id, text.c_str());
        ASSERT_TRUE(plain.decoded);
        unsigned long failing = 1;
        for (bool reached = true; reached; ++failing) {
            ixDplHostFailAllocation(failing);
            const Work work(GetParam().id, text.c_str());
            reached = ixDplHostAllocations() >= failing;
            ixDplHostStopCounting();
            EXPECT_TRUE(reached || work.written == plain.written);
            EXPECT_EQ(ixDplHostLedger().unknownRemovals, 0U);
            EXPECT_EQ(ixDplHostLedger().doubleRemovals, 0U);
            // A service inside simservs is a document of its own, which may be cut short without a word.
            if (work.cutShort == 0 && GetParam().id != IX_XML_SCHEMA_SIMSERVS) {
                EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 0U) << failing;
            }
            ixDplHostReleaseHeap();
        }
        EXPECT_GT(failing, 10U);
    }
}

// With memory short, a tree is written as always or not at all; never with another prefix, or without an attribute.
// Only an escaped value may be left out.
TEST_P(AllFamiliesTest, WritesTheWholeTextOrNone) {
    for (const std::string& sample : Samples()) {
        SCOPED_TRACE(sample);
        const std::string text = ReadFile(sample);
        const std::string whole = Work(GetParam().id, text.c_str()).written;
        if (whole.empty() || whole.find("&quot;") != std::string::npos) continue;
        const OwnedContext namespaces(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL);
        const OwnedElement binder(namespaces->createUnMarshaller()->UnMarshall(text.c_str()));
        const OwnedContext reading(GetParam().id);
        reading->SetNamespaceBinder(binder.as<XMLObject>());
        const OwnedElement root(reading->createUnMarshaller()->UnMarshall(text.c_str()));
        bool reached = true;
        for (unsigned long failing = 1; reached; ++failing) {
            const OwnedContext writing(GetParam().id);
            writing->SetNamespaceBinder(binder.as<XMLObject>());
            ixDplHostFailAllocation(failing);
            XMLMarshaller* const writer = writing->createMarshaller();
            // A namespace table that was cut short is logged, and used as far as it goes.
            const std::vector<std::string> log = Texts();
            const bool hasAllNamespaces = std::none_of(log.begin(), log.end(), [](const std::string& line) {
                return line.find("Malloc cannot allocate memory") != std::string::npos;
            });
            const char* const written = writer != nullptr ? writer->Marshall(root.get()) : nullptr;
            reached = ixDplHostAllocations() >= failing;
            ixDplHostStopCounting();
            EXPECT_TRUE(!hasAllNamespaces || (written == nullptr ? reached : written == whole)) << failing;
            ClearLog();
        }
    }
}

// A body that was cut somewhere decodes only if the cut lies behind the root element.
TEST_P(AllFamiliesTest, StandsEveryPrefixOfADocument) {
    for (const std::string& sample : Samples()) {
        SCOPED_TRACE(sample);
        const std::string text = ReadFile(sample);
        const std::size_t end = text.rfind('>') + 1;
        for (std::size_t length = 0; length < text.size(); ++length) {
            const Work work(GetParam().id, text.substr(0, length).c_str());
            EXPECT_EQ(work.decoded, length >= end) << length;
            ixDplHostReleaseHeap();
        }
    }
}

// Each element and each attribute in turn loses its first character, which mostly makes another name of it.
TEST_P(AllFamiliesTest, StandsEveryCharacterMissing) {
    if (GetParam().endless) GTEST_SKIP() << "left to the fuzzers, which are built to end";
    for (const std::string& sample : Samples()) {
        std::string text = ReadFile(sample);
        for (std::size_t at = 0; at < text.size(); ++at) {
            std::string damaged = text;
            damaged.erase(at, 1);
            const Work work(GetParam().id, damaged.c_str());
            ixDplHostReleaseHeap();
        }
    }
}

// Without ledger and log, whose locks would keep the threads in step.
TEST_P(AllFamiliesTest, TwoThreadsDoNotDisturbEachOther) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    ixDplHostEnableLedger(false);
    std::vector<std::string> texts;
    for (const std::string& sample : Samples()) texts.push_back(ReadFile(sample));
    std::vector<std::string> expected;
    for (const std::string& text : texts) expected.push_back(Work(GetParam().id, text.c_str()).written);
    const auto run = [&] {
        for (int round = 0; round < 20; ++round) {
            for (std::size_t i = 0; i < texts.size(); ++i) {
                EXPECT_EQ(Work(GetParam().id, texts[i].c_str()).written, expected[i]);
            }
        }
    };
    std::thread first(run);
    std::thread second(run);
    first.join();
    second.join();
}

TEST_P(AllFamiliesTest, WithoutTextOrItsCopyThereIsNoTree) {
    const OwnedContext context(GetParam().id);
    XMLUnMarshaller* const reader = context->createUnMarshaller();
    EXPECT_EQ(reader->UnMarshall(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_EQ(reader->UnMarshall(static_cast<XMLFile*>(nullptr)), nullptr);
    // Simservs asks for the memory of its pieces first.
    const unsigned long copy = GetParam().id == IX_XML_SCHEMA_SIMSERVS ? 6 : 1;
    ClearLog();
    ixDplHostFailAllocation(copy);
    EXPECT_EQ(reader->UnMarshall("<a/>"), nullptr);
    ixDplHostStopCounting();
    const std::string line =
        std::string("4 <XML Module>: StrDup failed in ") + GetParam().logName + "UnMarshaller::UnMarshall";
    const Strings lines = LevelsAndTexts(Log());
    // GRUU tells of the text before it copies it.
    EXPECT_EQ(lines.size(), GetParam().id == IX_XML_SCHEMA_GRUU ? 2U : 1U);
    EXPECT_EQ(lines.back(), line);
    EXPECT_EQ(Log().back().code, 6070);
    const auto isOwn = [this](const std::string& source) { return Log().back().source == "ims/xml/src/" + source; };
    EXPECT_TRUE(std::any_of(GetParam().sources.begin(), GetParam().sources.end(), isOwn)) << Log().back().source;
}

TEST_P(AllFamiliesTest, AnEmptyRootIsWrittenOrRefused) {
    const OwnedContext context(GetParam().id);
    XMLObjectFactory* const factory = context->createBinderFactory();
    ASSERT_NE(factory, nullptr);
    const OwnedElement root(factory->CreateRootElement());
    // Which of two roots is wanted, these factories have to be told first.
    const bool isTold = GetParam().id == IX_XML_SCHEMA_GRUU || GetParam().id == IX_XML_SCHEMA_COMMUNICATION_BARRING;
    ASSERT_EQ(root.get() == nullptr, isTold);
    if (isTold) return;
    XMLMarshaller* const marshaller = context->createMarshaller();
    EXPECT_EQ(marshaller == nullptr, !XMLFactory::SchemaInfo(GetParam().id)->writes);
    const char* const text = marshaller != nullptr ? marshaller->Marshall(root.get()) : nullptr;
    EXPECT_TRUE(text == nullptr || std::string(text).find('<') != std::string::npos);
    ixDplHostFailAllocation(1);
    EXPECT_EQ(factory->CreateRootElement(), nullptr);
    ixDplHostStopCounting();
}

class RegistryTest : public XmlTest {};

TEST_F(RegistryTest, TheReadmeShowsTheExampleThatIsBuilt) {
    const std::string readme = ReadFile(PROJECT_DIR "/README.md");
    EXPECT_NE(readme.find("```cpp\n" + ReadFile(PROJECT_DIR "/docs/example.cpp") + "```\n"), std::string::npos);
}

TEST_F(RegistryTest, KnowsEverySchemaAndAnswersNullForTheRest) {
    std::set<int> present;
    for (const Family& family : kFamilies) present.insert(family.id);
    std::set<std::string> names;
    for (int id = -1; id <= kXmlSchemaCount; ++id) {
        const OwnedContext context(static_cast<eXMLSchemaID>(id));
        EXPECT_EQ(context.get() != nullptr, present.count(id) != 0) << id;
        const XmlSchemaInfo* const info = XMLFactory::SchemaInfo(id);
        const bool reserved = id < 0 || id == 6 || id == 8 || id >= kXmlSchemaCount;
        ASSERT_EQ(info == nullptr, reserved) << id;
        EXPECT_TRUE(info == nullptr || names.insert(info->name).second) << id;
    }
    EXPECT_EQ(names.size(), 26U);
    XMLFactory::deleteContext(nullptr);
    XMLFactory::DeleteElement(nullptr);
}

TEST_F(RegistryTest, AContextDeletesWhatItCreatedButNoTree) {
    XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    const OwnedElement root(context->createBinderFactory()->CreateRootElement());
    context->createMarshaller();
    context->createUnMarshaller();
    XMLFactory::deleteContext(context);
    EXPECT_EQ(ixDplHostLedger().liveObjects, 1U);
    EXPECT_STREQ(root.get()->ClassName(), "communication-waiting");
}

}  // namespace
