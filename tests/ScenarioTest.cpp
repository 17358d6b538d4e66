// Runs the scenarios of every schema (tests/scenarios) and its samples: as they are, with every allocation failing,
// with every prefix of their documents, with every character missing, and on two threads.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <thread>

#include "Classes.h"
#include "Scenario.h"
#include "XMLFile.h"
#include "XmlFields.h"

namespace {

/// A context with a binder of its own.
class Session {
  public:
    /// Once the binder is there, the allocation `failing` fails; 0: none.
    Session(eXMLSchemaID id, const char* binder, unsigned long failing = 0)
        : m_binder(BinderOf(binder)), m_failing(failing), m_context(XMLFactory::newInstance(Failing(id, failing))) {
        if (m_context.get() != nullptr) m_context->SetNamespaceBinder(static_cast<XMLObject*>(m_binder.get()));
    }

    XMLUnMarshaller* Reader() { return m_context.get() != nullptr ? m_context->createUnMarshaller() : nullptr; }
    XMLMarshaller* Writer() { return m_context.get() != nullptr ? m_context->createMarshaller() : nullptr; }

    /// @return true when there were that many allocations.
    bool StopFailing() const {
        const bool reached = ixDplHostAllocations() >= m_failing;
        ixDplHostStopCounting();
        return reached;
    }

  private:
    static eXMLSchemaID Failing(eXMLSchemaID id, unsigned long failing) {
        if (failing != 0) ixDplHostFailAllocation(failing);
        return id;
    }

    static XMLElement* BinderOf(const char* text) {
        const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL));
        return text != nullptr ? context->createUnMarshaller()->UnMarshall(text) : nullptr;
    }

    XmlOwned<> m_binder;
    unsigned long m_failing;
    XmlOwnedContext m_context;
};

class ScenarioTest : public XmlTest, public testing::WithParamInterface<eXMLSchemaID> {
  protected:
    eXMLSchemaID Id() const { return GetParam(); }
    const XmlSchemaInfo& Schema() const { return *XMLFactory::SchemaInfo(Id()); }

    XMLElement* Root(const Scenario& scenario, XMLUnMarshaller* reader) const {
        if (!scenario.HasText()) return TreeFromJson(Id(), scenario.Tree());
        return reader != nullptr ? reader->UnMarshall(scenario.Text()) : nullptr;
    }

    Outcome Run(const Scenario& scenario) {
        Outcome outcome;
        {
            Session session(Id(), scenario.Binder());
            ClearLog();
            XMLUnMarshaller* const reader = session.Reader();
            const XmlOwned<> root(Root(scenario, reader));
            XMLMarshaller* const writer = session.Writer();
            const bool isWritten = writer != nullptr && (root.get() != nullptr || !scenario.HasText());
            const char* const text = isWritten ? writer->Marshall(root.get()) : nullptr;
            outcome.log = LogOfSchemas();
            if (text != nullptr) outcome.written = text;
            outcome.tree = JsonOf(root.get());
        }
        outcome.objects = ixDplHostLedger().liveObjects;
        outcome.blocks = ixDplHostLedger().liveHeapBlocks;
        ReleaseLeftovers();
        if (outcome.written.is_string()) {
            Session session(Id(), scenario.Binder());
            const XmlOwned<> again(session.Reader()->UnMarshall(outcome.written.get<std::string>().c_str()));
            outcome.again = JsonOf(again.get()) == outcome.tree;
        }
        ReleaseLeftovers();
        return outcome;
    }

    /// The lines of a run, without what is written of a part, or with something missing.
    static Strings Lines(const Scenario& scenario, const Outcome& outcome) {
        Strings lines = outcome.Lines(scenario.Text() != nullptr ? scenario.Text() : "", true);
        for (std::string& line : lines) {
            const std::size_t text = line.find("XML <");
            if (text != std::string::npos && line.compare(text, 12, "XML <XML Mod") != 0) line.erase(text + 4) += "...";
        }
        return lines;
    }

    /// The lines since the last call.
    Strings NewLines(const Scenario& scenario, const char* written) {
        Outcome outcome;
        if (written != nullptr) outcome.written = written;
        outcome.log = LogOfSchemas();
        ClearLog();
        return Lines(scenario, outcome);
    }

    /// Notes each of the lines since the last call that is not a usual one.
    void Note(const Scenario& scenario, const char* written) {
        for (const std::string& line : NewLines(scenario, written)) {
            if (m_usual.count(line) == 0) m_further.insert(line);
        }
    }

    /// Notes the lines since the last call together, but those of a plain run.
    void NoteAll(const Scenario& scenario, const char* written, const Outcome& plain) {
        const Strings usual = Lines(scenario, plain);
        std::string text;
        for (const std::string& line : NewLines(scenario, written)) {
            const bool isUsual = std::find(usual.begin(), usual.end(), line) != usual.end();
            if (!isUsual) text += (text.empty() ? "" : "\n  ") + line;
        }
        if (!text.empty()) m_further.insert(text);
    }

    bool Logs(const std::string& part) {
        const Strings texts = Texts();
        return std::any_of(texts.begin(), texts.end(),
                           [&](const std::string& text) { return text.find(part) != std::string::npos; });
    }

    /// Reads with each allocation failing in turn: no more is left behind than the tree of a
    /// document that is cut short, and what there is can be written.
    void FailReading(const Scenario& scenario, const Outcome& plain) {
        bool reached = true;
        for (unsigned long failing = 1; reached; ++failing) {
            SCOPED_TRACE("reading: allocation " + std::to_string(failing));
            bool decoded = false;
            {
                Session session(Id(), scenario.Binder(), failing);
                XMLUnMarshaller* const reader = session.Reader();
                const XmlOwned<> root(Root(scenario, reader));
                reached = session.StopFailing();
                decoded = root.get() != nullptr;
                XMLMarshaller* const writer = decoded ? session.Writer() : nullptr;
                const char* const text = writer != nullptr ? writer->Marshall(root.get()) : nullptr;
                Note(scenario, text);
                const XmlOwned<> again(reader != nullptr ? Root(scenario, reader) : nullptr);
                EXPECT_EQ(again.get() != nullptr, reader != nullptr && !plain.tree.is_null());
                EXPECT_TRUE(reached || XmlFields::Equal(root.get(), again.get()));
            }
            // What is cut short is left behind.
            EXPECT_TRUE(!decoded || plain.blocks != 0 || m_isEndless || ixDplHostLedger().liveHeapBlocks == 0);
            ReleaseLeftovers();
        }
    }

    /// Writes with each allocation failing in turn: the text is whole, or there is none. Only an escaped value may be
    /// left out.
    void FailWriting(const Scenario& scenario, const Outcome& plain) {
        Session reading(Id(), scenario.Binder());
        const XmlOwned<> root(Root(scenario, reading.Reader()));
        const bool escapes =
            plain.written.is_string() && plain.written.get<std::string>().find("&quot;") != std::string::npos;
        bool reached = true;
        for (unsigned long failing = 1; reached; ++failing) {
            SCOPED_TRACE("writing: allocation " + std::to_string(failing));
            ClearLog();
            Session session(Id(), scenario.Binder(), failing);
            XMLMarshaller* const writer = session.Writer();
            // A namespace table that was cut short is logged, and used as far as it goes.
            const bool isCut = Logs("Malloc cannot allocate memory");
            const char* const text = writer != nullptr ? writer->Marshall(root.get()) : nullptr;
            reached = session.StopFailing();
            EXPECT_TRUE(isCut || escapes ||
                        (text == nullptr ? reached || plain.written.is_null() : text == plain.written));
            NoteAll(scenario, text, plain);
            const char* const again = writer != nullptr ? writer->Marshall(root.get()) : nullptr;
            EXPECT_TRUE(isCut || writer == nullptr ||
                        (again == nullptr ? plain.written.is_null() : again == plain.written));
            NoteAll(scenario, again, plain);
        }
    }

    void ReadFromFile(const Scenario& scenario, const Outcome& plain) {
        const std::string path = testing::TempDir() + "imsxml-scenario-" + Schema().name + ".xml";
        std::ofstream(path, std::ios::binary) << scenario.Text();
        Session session(Id(), scenario.Binder());
        ClearLog();
        XMLFile file(path.c_str(), eXMLFileRead);
        const XmlOwned<> root(session.Reader()->UnMarshall(&file));
        EXPECT_EQ(JsonOf(root.get()), plain.tree);
        Note(scenario, nullptr);
        std::filesystem::remove(path);
    }

    std::set<std::string> m_usual;    ///< The lines of plain runs ...
    std::set<std::string> m_further;  ///< ... and of others.
    std::string m_folder = PROJECT_DIR "/tests/expected/" + std::string(Schema().name) + "/";
    ScenarioFile m_file{GetParam()};
    /// A damaged document may keep the decoder busy without end, and hold others that are cut short without a word.
    const bool m_isEndless = m_file.About("endless") == true;
};

INSTANTIATE_TEST_SUITE_P(Schemas, ScenarioTest, testing::ValuesIn(AllSchemas()), SchemaName);

TEST_P(ScenarioTest, RunsAsExpected) {
    for (Scenario& scenario : m_file.Scenarios()) {
        SCOPED_TRACE(scenario.Name());
        const Outcome outcome = Run(scenario);
        EXPECT_EQ(ixDplHostLedger().unknownRemovals + ixDplHostLedger().doubleRemovals, 0U);
        if (scenario.Sample().empty()) {
            scenario.Expect(outcome, Schema().writes, UpdatesExpected());
            continue;
        }
        const std::string file = PROJECT_DIR "/tests/expected/" + scenario.Sample();
        ExpectFile(file + ".json", outcome.tree.is_null() ? "" : outcome.tree.dump(2));
        ExpectFile(file + ".xml", outcome.written.is_null() ? "" : outcome.written.get<std::string>());
        ExpectFile(file + ".log", InLines(outcome.Lines(scenario.Text(), true)));
        const bool losses = !m_file.About("losses", std::filesystem::path(file).stem()).is_null();
        EXPECT_EQ(outcome.again, Schema().writes && !losses);
    }
    if (UpdatesExpected()) m_file.Save();
}

// Whatever else is said when memory is short or a text is written again stands in further.log. What is said together
// while a text is written has blanks before all lines but the first.
TEST_P(ScenarioTest, StandsEveryAllocationFailing) {
    for (const Scenario& scenario : m_file.Scenarios()) {
        const Strings lines = Lines(scenario, Run(scenario));
        m_usual.insert(lines.begin(), lines.end());
    }
    for (const Scenario& scenario : m_file.Scenarios()) {
        SCOPED_TRACE(scenario.Name());
        const Outcome plain = Run(scenario);
        ClearLog();
        if (scenario.Text() != nullptr) ReadFromFile(scenario, plain);
        ReleaseLeftovers();
        if (scenario.HasText()) FailReading(scenario, plain);
        if (Schema().writes && plain.blocks == 0) FailWriting(scenario, plain);
        EXPECT_EQ(ixDplHostLedger().unknownRemovals + ixDplHostLedger().doubleRemovals, 0U);
    }
    ExpectFile(m_folder + "further.log", InLines({m_further.begin(), m_further.end()}));
}

// A document that was cut somewhere decodes only if the cut lies behind the root element, and then as a whole.
TEST_P(ScenarioTest, StandsEveryPrefix) {
    LogNowhere();
    for (const Scenario& scenario : m_file.Scenarios()) {
        SCOPED_TRACE(scenario.Name());
        if (scenario.Text() == nullptr || !scenario.Decodes()) continue;
        const Outcome plain = Run(scenario);
        const std::string text = scenario.Text();
        bool decoded = false;
        for (std::size_t length = 0; length < text.size(); ++length) {
            SCOPED_TRACE(length);
            Session session(Id(), scenario.Binder());
            const XmlOwned<> root(session.Reader()->UnMarshall(text.substr(0, length).c_str()));
            const bool ends = root.get() != nullptr && !decoded && text[length - 1] == '>';
            EXPECT_EQ(root.get() != nullptr, decoded || ends);
            EXPECT_EQ(JsonOf(root.get()), decoded || ends ? plain.tree : Json());
            decoded = decoded || ends;
        }
        ReleaseLeftovers();
    }
}

// Mostly another name.
TEST_P(ScenarioTest, StandsEveryCharacterMissing) {
    if (m_isEndless) GTEST_SKIP() << "left to the fuzzers, which are built to end";
    LogNowhere();
    for (const Scenario& scenario : m_file.Scenarios()) {
        if (scenario.Text() == nullptr) continue;
        const std::string text = scenario.Text();
        for (std::size_t at = 0; at < text.size(); ++at) {
            Session session(Id(), scenario.Binder());
            XMLUnMarshaller* const reader = session.Reader();
            const XmlOwned<> root(reader->UnMarshall(std::string(text).erase(at, 1).c_str()));
            XMLMarshaller* const writer = root.get() != nullptr ? session.Writer() : nullptr;
            if (writer != nullptr) writer->Marshall(root.get());
        }
        EXPECT_EQ(ixDplHostLedger().unknownRemovals + ixDplHostLedger().doubleRemovals, 0U);
        ReleaseLeftovers();
    }
}

// Without ledger and log, whose locks would keep the threads in step, so that what a document leaves behind would be
// lost.
TEST_P(ScenarioTest, TwoThreadsDoNotDisturbEachOther) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    ixDplHostEnableLedger(false);
    const auto written = [&](const Scenario& scenario) {
        Session session(Id(), scenario.Binder());
        const XmlOwned<> root(Root(scenario, session.Reader()));
        XMLMarshaller* const writer = root.get() != nullptr ? session.Writer() : nullptr;
        const char* const text = writer != nullptr ? writer->Marshall(root.get()) : nullptr;
        return std::string(text != nullptr ? text : "(null)");
    };
    std::vector<std::pair<const Scenario*, std::string>> expected;
    for (const Scenario& scenario : m_file.Scenarios()) {
        if (!scenario.Leaves()) expected.emplace_back(&scenario, written(scenario));
    }
    const auto run = [&] {
        for (int round = 0; round < 20; ++round) {
            for (const auto& [scenario, text] : expected) EXPECT_EQ(written(*scenario), text);
        }
    };
    std::thread first(run);
    std::thread second(run);
    first.join();
    second.join();
}

}  // namespace
