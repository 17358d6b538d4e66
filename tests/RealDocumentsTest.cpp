// The documents of other senders, read in place; skipped where their folder is missing.
#include <map>
#include <set>

#include "FamilyTest.h"
#include "XmlFields.h"

namespace {

/// What becomes of a tree that is written and read again.
enum class Again {
    Same,   ///< It is equal.
    Less,   ///< Something is lost.
    Never,  ///< It cannot be written.
    None    ///< There is no tree.
};

/// Fields that a person reads in a document, by JSON pointer into the tree: text as it is, anything else as JSON.
struct Expectation {
    eXMLSchemaID id;
    const char* file;
    Again again;
    std::map<std::string, std::string> fields;
    bool binder = false;  ///< Decoded and written with the document's own declarations as binder.
};

const Expectation kExpectations[] = {
    {IX_XML_SCHEMA_COMMUNICATION_WAITING,
     "communication-waiting/default-namespace-handwritten.xml",
     Again::Same,
     {{"/active", "false"}, {"/attributes/0/value", "http://uri.etsi.org/ngn/params/xml/simservs/xcap"}}},
    {IX_XML_SCHEMA_COMMUNICATION_WAITING,
     "communication-waiting/prefixed-self-closing-no-declaration.xml",
     Again::Same,
     {{"/active", "true"}}},
    {IX_XML_SCHEMA_COMMUNICATION_WAITING,
     "communication-waiting/unprefixed-crlf-end-tag.xml",
     Again::Same,
     {{"/active", "true"}}},
    {IX_XML_SCHEMA_GRUU,
     "gruu/pub-gruu-default-namespace-handwritten.xml",
     Again::Same,
     {{"/class", "ix_pub_gruu"}, {"/uri", "sip:user@example.com;gr=urn:uuid:f81d4fae-7dec-11d0-a765-00a0c91e6bf6"}}},
    {IX_XML_SCHEMA_GRUU,
     "gruu/pub-gruu-prefixed.xml",
     Again::Same,
     {{"/uri", "sip:user1_public1@home1.net;gr=urn:uuid:f81d4fae-7dec-11d0-a765-00a0c91e6bf6"}}},
    {IX_XML_SCHEMA_GRUU,
     "gruu/temp-gruu-fragment.xml",
     Again::Same,
     {{"/class", "ix_temp_gruu"}, {"/first-cseq", "54301"}}},
};

const std::string kFolder = PROJECT_DIR "/../shared/samples/";

class RealDocumentsTest : public FamilyTest {
  protected:
    void SetUp() override {
        if (FilesBelow(kFolder).empty()) GTEST_SKIP() << "no folder of real documents";
    }
};

TEST_F(RealDocumentsTest, DecodeAsExpected) {
    for (const Expectation& expected : kExpectations) {
        SCOPED_TRACE(expected.file);
        const std::string text = ReadFile(kFolder + expected.file);
        {
            const OwnedElement binder(expected.binder ? Binder(text) : nullptr);
            const OwnedElement root(Decode(expected.id, text, binder.as<XMLObject>()));
            ASSERT_EQ(root.get() == nullptr, expected.again == Again::None);
            const nlohmann::ordered_json tree = TreeOf(root.get());
            for (const auto& [pointer, value] : expected.fields) {
                const nlohmann::ordered_json::json_pointer place(pointer);
                const auto found = tree.contains(place) ? tree.at(place) : nlohmann::ordered_json();
                EXPECT_EQ(found.is_string() ? found.get<std::string>() : found.dump(), value) << pointer;
            }
            if (root.get() == nullptr) continue;
            const std::string written = Write(expected.id, root.get(), binder.as<XMLObject>());
            EXPECT_EQ(written == "(null)", expected.again == Again::Never);
            if (expected.again == Again::Never) continue;
            const OwnedElement again(Decode(expected.id, written, binder.as<XMLObject>()));
            EXPECT_EQ(XmlFields::Equal(root.get(), again.get()), expected.again == Again::Same) << written;
        }
        // What a document that fails half-way leaves behind.
        if (expected.again == Again::None) ixDplHostReleaseHeap();
    }
}

TEST_F(RealDocumentsTest, DeclareTheirNamespaces) {
    // Every real document goes through the namespace retrieval. These are the ones that the tokenizer does not take.
    const std::set<std::string> notTaken = {"doctype-small-handwritten.xml", "cdata-and-charref-handwritten.xml"};
    const std::map<std::string, std::size_t> declarations = {{"geolocation-nine-declarations.xml", 7},
                                                             {"presence-schema-location.xml", 5},
                                                             {"simservs-three-declarations.xml", 3},
                                                             {"long-all-services-namespaces.xml", 14}};
    for (const std::string& file : FilesBelow(kFolder)) {
        const std::string name = file.substr(file.rfind('/') + 1);
        if (name == "README.md") continue;
        {
            const OwnedElement root(Binder(ReadFile(file)));
            EXPECT_EQ(root.get() == nullptr, notTaken.count(name) != 0) << file;
            const auto expected = declarations.find(name);
            if (root.get() != nullptr && expected != declarations.end()) {
                const XmlField& field = root.get()->FieldTable()->fields[0];
                EXPECT_EQ(XmlFields::List(*root.get(), field)->GetCount(), expected->second) << file;
            }
        }
        // A document that is not taken leaves its root behind, with or without declarations.
        EXPECT_EQ(ixDplHostLedger().liveObjects != 0, notTaken.count(name) != 0) << file;
        ixDplHostReleaseHeap();
    }
}

}  // namespace
