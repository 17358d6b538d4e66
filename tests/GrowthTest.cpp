// What grows with a document grows with its size and no faster, and nothing depends on its depth. Counted in
// allocations, never by the clock. A row of "growth" in tests/scenarios/<schema>.json is one of these:
//
// - {"in": FRAME, "wide": TEXT}: the text many times over, past the 65535 entries that a list can count.
// - {"in": FRAME, "deep": [START, END], "inside": [TEXT...], "from": POINTER, "at": POINTER}: tags around each other;
//   `{n}` is the level. The pointers lead to the first level, and from each to the next one. What the levels hold where
//   the stack of the decoder ends stands in tests/expected/<schema>/deep.txt.
// - {"root": TREE, "chain": [[NAME, TREE]...]}: objects that hold one another under these names.
#include "Classes.h"
#include "Scenario.h"

namespace {

std::string Repeated(const std::string& text, std::size_t count, bool downwards = false) {
    std::string all;
    for (std::size_t i = 1; i <= count; ++i) {
        std::string one = text;
        const std::size_t number = one.find("{n}");
        if (number != std::string::npos) one.replace(number, 3, std::to_string(downwards ? count + 1 - i : i));
        all += one;
    }
    return all;
}

class GrowthTest : public XmlTest, public testing::WithParamInterface<eXMLSchemaID> {
  protected:
    const XmlSchemaInfo& Schema() const { return *XMLFactory::SchemaInfo(GetParam()); }

    /// The rows of a kind.
    std::vector<Json> Rows(const char* kind) const {
        std::vector<Json> rows;
        for (const Json& row : m_file.About("growth")) {
            if (row.contains(kind)) rows.push_back(row);
        }
        return rows;
    }

    std::string Framed(const Json& row, const std::string& text) const { return m_file.Framed(row, text); }

    std::string Nested(const Json& row, std::size_t levels, const std::string& inside) const {
        const Json& tags = row.at("deep");
        return Framed(row, Repeated(tags[0], levels) + inside + Repeated(tags[1], levels, true));
    }

    /// What the 97th level of a document holds, and all that is deeper.
    std::string TailOf(const Json& row, const std::string& text) {
        ClearLog();
        std::string tail;
        {
            const XmlOwnedContext context(XMLFactory::newInstance(GetParam()));
            const XmlOwned<> root(context->createUnMarshaller()->UnMarshall(text.c_str()));
            Json tree = JsonOf(root.get());
            const Json::json_pointer first(row.value("from", ""));
            if (tree.contains(first)) tree = Json(tree.at(first));
            const Json::json_pointer step(row.value("at", ""));
            for (int i = 0; i < 97 && !step.empty() && tree.contains(step); ++i) tree = Json(tree.at(step));
            tail = (Logged("stack overflow\n") ? "overflow " : "") + tree.dump();
        }
        ReleaseLeftovers();
        return tail;
    }

    /// Reads a document, and writes what is read. @return the allocations of the reader; -1: not decoded.
    long long CostOf(const std::string& text) {
        long long allocations = -1;
        {
            const XmlOwnedContext context(XMLFactory::newInstance(GetParam()));
            XMLUnMarshaller* const reader = context->createUnMarshaller();
            ixDplHostFailAllocation(0);
            const XmlOwned<> root(reader->UnMarshall(text.c_str()));
            if (root.get() != nullptr) allocations = static_cast<long long>(ixDplHostAllocations());
            ixDplHostStopCounting();
            XMLMarshaller* const writer = root.get() != nullptr ? context->createMarshaller() : nullptr;
            if (writer != nullptr) writer->Marshall(root.get());
        }
        EXPECT_TRUE(allocations == -1 || ixDplHostLedger().liveHeapBlocks == 0);
        ReleaseLeftovers();
        return allocations;
    }

    ScenarioFile m_file{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Schemas, GrowthTest, testing::ValuesIn(AllSchemas()), SchemaName);

TEST_P(GrowthTest, AWideDocumentTakesTheSameForEachEntry) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    for (const Json& row : Rows("wide")) {
        const auto costOf = [&](std::size_t count) { return CostOf(Framed(row, Repeated(row.at("wide"), count))); };
        const long long one = costOf(1000);
        const long long two = costOf(2000);
        // The ledger has its price.
        ixDplHostEnableLedger(false);
        const long long more = costOf(70000) - two;
        EXPECT_GE(more, 67 * (two - one)) << row;
        EXPECT_LE(more, 68 * (two - one) + 20) << row;
        ixDplHostEnableLedger(true);
    }
}

TEST_P(GrowthTest, ADeepDocumentIsReadAsFarAsTheStackGoes) {
    std::string text;
    for (const Json& row : Rows("deep")) {
        for (const Json& inside : row.value("inside", Json({""}))) {
            std::string line;
            for (const std::size_t levels : {97U, 98U, 99U, 100U, 101U}) {
                const std::string before = line;
                line = TailOf(row, Nested(row, levels, inside));
                if (line != before)
                    text += std::to_string(levels) + ' ' + row.at("deep")[0].get<std::string>() +
                            inside.get<std::string>() + ": " + line + '\n';
            }
        }
    }
    ExpectFile(PROJECT_DIR "/tests/expected/" + std::string(Schema().name) + "/deep.txt", text);
}

TEST_P(GrowthTest, ADeepDocumentTakesTheSameForEachLevel) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    for (const Json& row : Rows("deep")) {
        const long long one = CostOf(Nested(row, 1000, ""));
        const long long two = CostOf(Nested(row, 2000, ""));
        ixDplHostEnableLedger(false);
        // Open names come in blocks.
        EXPECT_LE(CostOf(Nested(row, 20000, "")) - two, 18 * (two - one) + 20) << row;
        ixDplHostEnableLedger(true);
        EXPECT_EQ(CostOf(Framed(row, Repeated(row.at("deep")[0], 5000))), -1) << row;
    }
}

// Without ledger, which so many objects would make slow.
TEST_P(GrowthTest, ATreeOfAnyDepthIsWrittenAndReleased) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    ixDplHostEnableLedger(false);
    for (const Json& row : Rows("chain")) {
        const XmlOwned<> root(TreeFromJson(GetParam(), row.at("root")));
        XMLElement* last = root.get();
        for (std::size_t i = 0; i < 100000; ++i) {
            const Json& link = row.at("chain")[i % row.at("chain").size()];
            XMLElement* const next = TreeFromJson(GetParam(), link[1]);
            std::string name = link[0];
            ASSERT_EQ(last->ProcessUnMarshall(name.data(), nullptr, next), 1) << row;
            last = next;
        }
        const XmlOwnedContext context(XMLFactory::newInstance(GetParam()));
        XMLMarshaller* const writer = context->createMarshaller();
        if (writer == nullptr) continue;
        const char* const text = writer->Marshall(root.get());
        EXPECT_EQ(std::string(text != nullptr ? text : "").size(), 32767U) << row;
        EXPECT_EQ(writer->IsTruncated(), 1) << row;
        // Without memory for the text there is nothing to descend for.
        ixDplHostFailAllocation(1);
        EXPECT_EQ(writer->Marshall(root.get()), nullptr) << row;
        ixDplHostStopCounting();
    }
}

}  // namespace
