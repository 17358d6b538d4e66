// The two documents made of characteristics and parms: what no sample shows.
#include "FamilyTest.h"
#include "XMLVolteConfigInfo.h"
#include "XMLWapProvisioningDoc.h"
#include "XmlElementSupport.h"
#include "XmlFields.h"

namespace {

/// What is particular to one of the documents.
struct Document {
    eXMLSchemaID id;
    const char* root;
    const char* className;
};

const Document kWap = {IX_XML_SCHEMA_WAP_PROVISIONING_DOC, "wap-provisioningdoc", "ix_wap_provisioning_doc"};
const Document kVolte = {IX_XML_SCHEMA_VOLTE_CONFIG_INFO, "volte-config-info", "ix_volte_config_info"};

class ProvisioningTest : public FamilyTest, public testing::WithParamInterface<Document> {
  protected:
    static XMLElement* DecodeInRoot(const std::string& content, const std::string& attributes = "") {
        const std::string root = GetParam().root;
        return Decode(GetParam().id, '<' + root + attributes + '>' + content + "</" + root + '>');
    }
    /// The tree below the root, without the classes, on one line.
    static std::string Tree(const std::string& content, const std::string& attributes = "") {
        const OwnedElement root(DecodeInRoot(content, attributes));
        std::string text = TreeOf(root.get()).dump();
        for (const char* const name : {GetParam().className, ix_characteristic::kClass.name, ix_parm::kClass.name}) {
            const std::string entry = "\"class\":\"" + std::string(name) + '"';
            for (std::size_t at = text.find(entry); at != std::string::npos; at = text.find(entry)) {
                text.erase(at, entry.size() + (text[at + entry.size()] == ',' ? 1 : 0));
            }
        }
        return text;
    }
    static std::string Nested(int levels, const std::string& innermost, const std::string& behind = "") {
        std::string text;
        for (int i = 1; i <= levels; ++i) text += "<characteristic type=\"" + std::to_string(i) + "\">";
        text += innermost;
        for (int i = 0; i < levels; ++i) text += "</characteristic>" + (i == 0 ? behind : "");
        return text;
    }
};

INSTANTIATE_TEST_SUITE_P(Documents, ProvisioningTest, testing::Values(kWap, kVolte),
                         [](const auto& row) { return row.param.id == kWap.id ? "wap" : "volte"; });

TEST_P(ProvisioningTest, WhoGetsAttributesAndChildren) {
    const struct {
        const char* content;
        const char* tree;
    } table[] = {
        {"", "{}"},
        // A parm outside any characteristic is refused: what it says falls to the root, and so does what it holds.
        {R"(<parm name="a" value="b"/>)", "{}"},
        {R"(<parm name="a" version="2"/>)", R"({"version":"2"})"},
        {R"(<parm><characteristic type="c"/></parm>)", R"({"characteristic":[{"type":"c"}]})"},
        // A parm holds nothing: what lies in it is read and dropped, whatever its depth.
        {R"(<characteristic><parm name="a"><parm name="b"><characteristic type="c"><parm name="d"/></characteristic>
            </parm></parm><parm name="e"/></characteristic>)",
         R"({"characteristic":[{"parm":[{"name":"a"},{"name":"e"}]}]})"},
        // Attributes that the object does not know, and those of an unknown element.
        {R"(<characteristic type="c" name="n" value="v"><parm type="t" version="1"/></characteristic>)",
         R"({"characteristic":[{"type":"c","parm":[{}]}]})"},
        {R"(<characteristic type="c"><other name="n" type="t"/></characteristic>)",
         R"({"characteristic":[{"type":"t"}]})"},
        // An attribute, and an element, that are called as an object is.
        {R"(<characteristic parm="p" characteristic="c" type="t"><type>u</type></characteristic>)",
         R"({"characteristic":[{"type":"t"}]})"},
        // Names are compared with their prefix and their case.
        {R"(<Characteristic/><x:characteristic/><characteristics/><characteristic Type="c"/>)",
         R"({"characteristic":[{}]})"},
        // An end tag takes only an object of its own class off the stack.
        {R"(<characteristic type="c"><parm name="a"><other></other></parm><parm name="b"/></characteristic>)",
         R"({"characteristic":[{"type":"c","parm":[{"name":"a"},{"name":"b"}]}]})"},
    };
    for (const auto& row : table) EXPECT_EQ(Tree(row.content), row.tree) << row.content;
    EXPECT_EQ(Tree("<version>2</version>", " version=\"1\""), R"({"version":"1"})");
}

TEST_P(ProvisioningTest, HooksRefuseWhatTheyCannotTake) {
    const OwnedContext context(GetParam().id);
    const OwnedElement root(context->createBinderFactory()->CreateRootElement());
    ix_characteristic characteristic;
    ix_parm parm;
    struct {
        XMLElement* element;
        const char* name;
        XMLElement* child;
        int result;
    } const table[] = {
        {root.get(), "version", &parm, 0},
        {root.get(), "characteristic", &parm, 0},
        {root.get(), "characteristic", nullptr, 0},
        {root.get(), "parm", &parm, 0},
        {root.get(), "parm", nullptr, 1},
        {root.get(), "other", nullptr, 1},
        {&characteristic, "type", &parm, 0},
        {&characteristic, "parm", root.get(), 0},
        {&characteristic, "characteristic", &parm, 0},
        {&characteristic, "parm", nullptr, 0},
        {&characteristic, "version", nullptr, 1},
        {&parm, "name", &characteristic, 0},
        {&parm, "value", &characteristic, 0},
        {&parm, "characteristic", &characteristic, 1},
    };
    for (const auto& row : table) {
        std::string name = row.name;
        std::string text = "text";
        EXPECT_EQ(row.element->ProcessUnMarshall(name.data(), text.data(), row.child), row.result) << name;
    }
    EXPECT_EQ(TreeOf(root.get()).size() + TreeOf(&characteristic).size() + TreeOf(&parm).size(), 3U);
}

TEST_P(ProvisioningTest, SettersCopyReplaceAndKeep) {
    const OwnedContext context(GetParam().id);
    auto& factory = static_cast<XmlCharacteristicDataBinder&>(*context->createBinderFactory());
    const OwnedElement root(factory.CreateRootElement());
    auto& document = *root.as<ix_characteristicDocType>();
    EXPECT_STREQ(document.ClassName(), GetParam().className);
    EXPECT_EQ(document.IsRootElement(), 1);
    ix_characteristic* const group = factory.CreateCharacteristic();
    EXPECT_EQ(document.addCharacteristic(group), 1);
    ix_parm* const parm = factory.CreateParm();
    EXPECT_EQ(group->addParm(parm), 1);
    for (const char* const text : {"first", "second", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(document.setVersionValue(text), 1);
        EXPECT_EQ(group->setTypeValue(text), 1);
        EXPECT_EQ(parm->setParmName(text), 1);
        EXPECT_EQ(parm->setParmValue(text), 1);
    }
    ixDplHostFailAllocation(1, 4);
    EXPECT_EQ(document.setVersionValue("x") + group->setTypeValue("x") + parm->setParmName("x"), 0);
    EXPECT_EQ(parm->setParmValue("x"), 0);
    EXPECT_STREQ(parm->getParmName(), "second");
    EXPECT_STREQ(parm->getParmValue(), "second");
    EXPECT_STREQ(group->mType, "second");
    EXPECT_STREQ(document.mVersion, "second");

    // A list takes the place of the earlier one, which goes with all that is in it.
    IxSingleElementList* groups = nullptr;
    ASSERT_EQ(ixAppend(groups, factory.CreateCharacteristic(), "test", 1), 1);
    EXPECT_EQ(document.setCharacteristicList(groups), 1);
    EXPECT_EQ(document.getCharacteristicList(), groups);
    auto& other = *static_cast<ix_characteristic*>(groups->GetKeyAtIndex(0));
    EXPECT_EQ(other.addParm(factory.CreateParm()), 1);
    EXPECT_EQ(other.setParmList(nullptr), 1);
    EXPECT_EQ(other.addCharacteristic(factory.CreateCharacteristic()), 1);
    EXPECT_EQ(other.setCharacteristicList(nullptr), 1);
    EXPECT_EQ(other.getCharacteristicList(), nullptr);
}

TEST_P(ProvisioningTest, IsOnlyRead) {
    const OwnedContext context(GetParam().id);
    const OwnedElement root(DecodeInRoot("<characteristic/>"));
    EXPECT_EQ(context->createMarshaller(), nullptr);
    EXPECT_EQ(context->SetNamespaceBinder(root.as<XMLObject>()), 0);
    WapProvisioningDocMarshall wap;
    VolteConfigInfoMarshall volte;
    for (XMLMarshaller* const marshaller : {static_cast<XMLMarshaller*>(&wap), static_cast<XMLMarshaller*>(&volte)}) {
        EXPECT_EQ(marshaller->Marshall(root.get()), nullptr);
        EXPECT_EQ(marshaller->Marshall(nullptr), nullptr);
    }
}

TEST_P(ProvisioningTest, BadInputYieldsNull) {
    const std::string root = GetParam().root;
    const std::string other = root == kWap.root ? kVolte.root : kWap.root;
    for (const std::string& text : {std::string(), '<' + other + "/>", "<x:" + root + "/>", "<characteristic/>" + root,
                                    std::string("<characteristic><parm name=\"a\"/></characteristic>")}) {
        EXPECT_EQ(Decode(GetParam().id, text), nullptr) << text;
    }
}

// The stack holds the root and 99 characteristics. What lies deeper is created, and filed where it belongs as far as
// its parent is on the stack; what is said of it falls to the object on top, and its end tag ends that one.
TEST_P(ProvisioningTest, TooDeepDocumentsAreReadAsFarAsTheStackGoes) {
    const struct {
        int levels;
        const char* innermost;
        const char* behind;
        bool overflows;
        const char* place;  ///< A place below the characteristic of level 98, and what stands there.
        const char* expected;
    } table[] = {
        {98, R"(<parm name="a"/>)", "", false, "/parm/0/name", "\"a\""},
        {99, R"(<other name="a"/>)", "", false, "/characteristic/0/type", "\"99\""},
        {99, R"(<parm name="a"/>)", "", true, "/characteristic/0/parm/0", R"({"class":"ix_parm"})"},
        {100, "", "", true, "/characteristic/0/type", "\"100\""},
        {100, "", "", true, "/characteristic/0/characteristic/0", R"({"class":"ix_characteristic"})"},
        {101, R"(<parm name="a"/>)", "", true, "/characteristic/0/characteristic/1",
         R"({"class":"ix_characteristic"})"},
        // What follows level 100 inside level 99 is taken by level 98.
        {100, "", R"(<parm name="b"/>)", true, "/parm/0/name", "\"b\""},
    };
    std::string level98;
    for (int i = 1; i <= 98; ++i) level98 += "/characteristic/0";
    for (const auto& row : table) {
        SCOPED_TRACE(row.place);
        ClearLog();
        const OwnedElement root(DecodeInRoot(Nested(row.levels, row.innermost, row.behind)));
        EXPECT_EQ(Logged("stack overflow\n"), row.overflows);
        const nlohmann::ordered_json tree = TreeOf(root.get());
        const nlohmann::ordered_json::json_pointer place(level98 + row.place);
        ASSERT_TRUE(tree.contains(place)) << tree.dump();
        EXPECT_EQ(tree.at(place).dump(), row.expected);
    }
    // Far deeper, everything is filed in level 99.
    const OwnedElement root(DecodeInRoot(Nested(5000, "")));
    const nlohmann::ordered_json tree = TreeOf(root.get());
    EXPECT_EQ(tree.at(nlohmann::ordered_json::json_pointer(level98 + "/characteristic/0/characteristic")).size(),
              4901U);
}

TEST_P(ProvisioningTest, ARootInsideTheRootReplacesIt) {
    EXPECT_EQ(Tree("<characteristic type=\"a\"/><" + std::string(GetParam().root) + " version=\"2\"/>" +
                   "<characteristic type=\"b\"/>"),
              R"({"version":"2"})");
}

// The same documents as volte-config-info, whose real ones have the same shape.
TEST_P(ProvisioningTest, RealDocumentsDifferByTheRootOnly) {
    const std::string file = PROJECT_DIR "/../shared/samples/wap-provisioningdoc/long-rcs-operator-configuration.xml";
    if (FilesBelow(PROJECT_DIR "/../shared/samples").empty()) GTEST_SKIP() << "no folder of real documents";
    std::string text = ReadFile(file);
    for (std::size_t at = text.find(kWap.root); at != std::string::npos; at = text.find(kWap.root)) {
        text.replace(at, std::string(kWap.root).size(), kVolte.root);
    }
    const OwnedElement wap(Decode(kWap.id, ReadFile(file)));
    const OwnedElement volte(Decode(kVolte.id, text));
    ASSERT_NE(volte.get(), nullptr);
    nlohmann::ordered_json expected = TreeOf(wap.get());
    expected["class"] = kVolte.className;
    EXPECT_EQ(TreeOf(volte.get()), expected);
}

// A configuration of 16 MiB: about 130,000 settings, some in a list of more entries than the list counts, in groups of
// different depth. Beside what the tree keeps (a block for each text, object and list entry), memory is taken only for
// the copy of the document and the tokenizer.
TEST_P(ProvisioningTest, LargeDocumentsTakeNoMemoryButWhatTheTreeKeeps) {
    constexpr std::size_t kSize = 16U << 20U;
    const std::string root = GetParam().root;
    std::string text = '<' + root + " version=\"1.1\"><characteristic type=\"flat\">";
    std::size_t parms = 0;
    const auto addParms = [&](std::size_t count) {
        for (; count != 0; --count, ++parms) {
            text += "<parm name=\"setting-" + std::to_string(parms) + "\" value=\"" + std::string(parms % 150, 'v') +
                    "\"/>\n";
        }
    };
    addParms(70000);
    text += "</characteristic>";
    std::size_t groups = 1;
    while (text.size() < kSize) {
        const std::size_t depth = 1 + groups % 7;
        for (std::size_t i = 0; i < depth; ++i, ++groups) {
            text += "<characteristic type=\"group\">\n";
            addParms(6);
        }
        for (std::size_t i = 0; i < depth; ++i) text += "</characteristic>\n";
    }
    text += "</" + root + '>';

    ixDplHostSetLogSink(nullptr, nullptr, 0);
    const OwnedContext context(GetParam().id);
    XMLUnMarshaller* const reader = context->createUnMarshaller();
    const std::size_t before = ixDplHostLedger().liveHeapBlocks;
    ixDplHostFailAllocation(0);
    const OwnedElement document(reader->UnMarshall(text.c_str()));
    const unsigned long allocations = ixDplHostAllocations();
    ASSERT_NE(document.get(), nullptr);
    const std::size_t kept = ixDplHostLedger().liveHeapBlocks - before;
    EXPECT_LE(allocations, kept + 20);
    // Element, name, value, entry; element, type, entry, list of settings, and at most one list of groups.
    EXPECT_GE(kept, 4 * parms + 4 * groups);
    EXPECT_LE(kept, 4 * parms + 5 * groups + 3);
    // The last group and its last setting are there.
    const auto* last = static_cast<ix_characteristic*>(
        document.as<ix_characteristicDocType>()->getCharacteristicList()->LastNode()->key);
    while (last->getCharacteristicList() != nullptr) {
        last = static_cast<ix_characteristic*>(last->getCharacteristicList()->LastNode()->key);
    }
    const auto* const parm = static_cast<const ix_parm*>(last->mParmList->LastNode()->key);
    EXPECT_EQ(parm->getParmName(), "setting-" + std::to_string(parms - 1));
}

}  // namespace
