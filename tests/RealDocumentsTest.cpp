// The documents of other senders, read in place; skipped where their folder is missing. What is expected of each stands
// in real-documents.json:
//
// - `fields`: what a person reads in it, by JSON pointer into the tree; text as it is, anything else as JSON.
// - `again`: what becomes of the tree when it is written and read again. "same": it is equal. "less": something is
// lost.
//   "unreadable": the text is longer than a text can be, or elements in it stay open. "never": it cannot be written.
//   "none": there is no tree.
// - `binder`: decoded and written with the document's own declarations as binder.
#include <map>
#include <set>

#include "Classes.h"
#include "XmlFields.h"
#include "XmlTest.h"

namespace {

using Json = nlohmann::ordered_json;

const std::string kFolder = PROJECT_DIR "/../shared/samples/";

/// The number of a schema by its name; -1: there is none.
int SchemaNumber(const std::string& name) {
    for (int id = 0; id < kXmlSchemaCount; ++id) {
        const XmlSchemaInfo* const schema = XMLFactory::SchemaInfo(id);
        if (schema != nullptr && schema->name == name) return id;
    }
    return -1;
}

class RealDocumentsTest : public XmlTest {
  protected:
    void SetUp() override {
        if (FilesBelow(kFolder).empty()) GTEST_SKIP() << "no folder of real documents";
    }

    static XMLElement* Decode(eXMLSchemaID id, const std::string& text, XMLObject* binder = nullptr) {
        const XmlOwnedContext context(XMLFactory::newInstance(id));
        context->SetNamespaceBinder(binder);
        return context->createUnMarshaller()->UnMarshall(text.c_str());
    }

    /// The declarations of a document, as a namespace binder.
    static XMLObject* Binder(const std::string& text) {
        return static_cast<XMLObject*>(Decode(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, text));
    }

    static void ExpectFields(const Json& tree, const Json& fields) {
        for (const auto& [pointer, value] : fields.items()) {
            const Json::json_pointer place(pointer);
            const Json found = tree.contains(place) ? tree.at(place) : Json();
            EXPECT_EQ(found.is_string() ? found.get<std::string>() : found.dump(), value) << pointer;
        }
    }

    static std::string WrittenAgain(eXMLSchemaID id, XMLElement* root, XMLObject* binder) {
        if (root == nullptr) return "none";
        const XmlOwnedContext context(XMLFactory::newInstance(id));
        context->SetNamespaceBinder(binder);
        XMLMarshaller* const marshaller = context->createMarshaller();
        const char* const written = marshaller != nullptr ? marshaller->Marshall(root) : nullptr;
        if (written == nullptr) return "never";
        const XmlOwned<> again(Decode(id, written, binder));
        if (again.get() == nullptr) return "unreadable";
        return XmlFields::Equal(root, again.get()) ? "same" : "less";
    }
};

TEST_F(RealDocumentsTest, DecodeAsExpected) {
    const Json documents = Json::parse(ReadFile(PROJECT_DIR "/tests/real-documents.json"));
    EXPECT_EQ(documents.size(), 95U);
    for (const Json& expected : documents) {
        const std::string file = expected.at("file");
        SCOPED_TRACE(file);
        const int number = SchemaNumber(expected.at("schema"));
        ASSERT_GE(number, 0);
        const auto id = static_cast<eXMLSchemaID>(number);
        const std::string text = ReadFile(kFolder + file);
        const std::string again = expected.at("again");
        {
            const XmlOwned<> binder(expected.contains("binder") ? Binder(text) : nullptr);
            const XmlOwned<> root(Decode(id, text, static_cast<XMLObject*>(binder.get())));
            ExpectFields(JsonOf(root.get()), expected.at("fields"));
            EXPECT_EQ(WrittenAgain(id, root.get(), static_cast<XMLObject*>(binder.get())), again);
        }
        // What a document that fails half-way leaves behind, or the text of one that was cut.
        const bool leaves = again == "none" || again == "unreadable";
        EXPECT_TRUE(leaves || ixDplHostLedger().liveHeapBlocks == 0);
        ixDplHostReleaseHeap();
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
            const XmlOwned<> root(Binder(ReadFile(file)));
            EXPECT_EQ(root.get() == nullptr, notTaken.count(name) != 0) << file;
            const auto expected = declarations.find(name);
            if (root.get() != nullptr && expected != declarations.end()) {
                const XmlField& field = ixRowsOf(*root.get())->fields[0];
                EXPECT_EQ(XmlFields::List(*root.get(), field)->GetCount(), expected->second) << file;
            }
        }
        // A document that is not taken leaves its root behind, with or without declarations.
        EXPECT_EQ(ixDplHostLedger().liveObjects != 0, notTaken.count(name) != 0) << file;
        ixDplHostReleaseHeap();
    }
}

}  // namespace
