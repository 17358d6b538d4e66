// JSON made of trees, and trees made of JSON, in one process.
#include <filesystem>

#include "Classes.h"
#include "Codec.h"
#include "Json.h"
#include "JsonTree.h"
#include "JsonValue.h"
#include "Scenario.h"
#include "Schema.h"
#include "XmlFields.h"

namespace {

class JsonTest : public XmlTest {
  protected:
    void SetUp() override { LogNowhere(); }

    static XmlOwned<> Tree(const std::string& json, const XmlSchemaInfo* schema, eXMLProfile profile) {
        JsonValue value;
        std::size_t at = 0;
        EXPECT_TRUE(ReadJson(json, at, value)) << json;
        return ToTree(value, nullptr, schema, profile).root;
    }

    static std::string Written(XMLElement* root, const XmlSchemaInfo& schema, eXMLProfile profile) {
        const XmlOwnedContext context = NewContext(schema, profile);
        XMLMarshaller* const marshaller = context->createMarshaller();
        const char* const text = marshaller != nullptr ? marshaller->Marshall(root) : nullptr;
        return text != nullptr ? text : "not written";
    }

    /// The JSON of a tree makes an equal tree, which is written as the first one is.
    static void ExpectSame(XMLElement* root, const XmlSchemaInfo& schema, eXMLProfile profile) {
        JsonText json(-1);
        WriteDocument(json, schema.name, nullptr, *root);
        if (json.HasReplaced()) return;  // What is no UTF-8, JSON cannot say.
        try {
            const XmlOwned<> again = Tree(json.Text(), nullptr, profile);
            EXPECT_TRUE(XmlFields::Equal(root, again.get())) << json.Text();
            EXPECT_EQ(Written(root, schema, profile), Written(again.get(), schema, profile)) << json.Text();
        } catch (const DocumentError& error) {
            ADD_FAILURE() << error.message << '\n' << json.Text();
        }
    }

    /// The same for a document, if it can be read.
    static bool ExpectSame(const std::string& text, const XmlSchemaInfo& schema, eXMLProfile profile) {
        const XmlOwnedContext context(XMLFactory::newInstance(schema.id, profile));
        XMLUnMarshaller* const reader = context != nullptr ? context->createUnMarshaller() : nullptr;
        const XmlTidy tidy;
        const XmlOwned<> root(reader != nullptr ? reader->UnMarshall(text.c_str()) : nullptr);
        if (root != nullptr) ExpectSame(root.get(), schema, profile);
        return root != nullptr;
    }

    static int ExpectSameInBoth(const std::string& text, const XmlSchemaInfo& schema) {
        const bool isRead = ExpectSame(text, schema, IX_XML_PROFILE_DEVICE);
        return ExpectSame(text, schema, IX_XML_PROFILE_STANDARD) || isRead ? 1 : 0;
    }

    static int ExpectSameOfFiles(const std::string& folder) {
        int count = 0;
        for (const std::string& file : FilesBelow(folder)) {
            if (std::filesystem::path(file).extension() != ".xml") continue;
            SCOPED_TRACE(file);
            const Document document = {file, ReadFile(file)};
            const XmlSchemaInfo* const schema =
                FindSchema(std::filesystem::path(file).parent_path().filename().string());
            count += ExpectSameInBoth(document.text, schema != nullptr ? *schema : StandardSchemaOf(document.text));
        }
        return count;
    }
};

}  // namespace

TEST_F(JsonTest, EverySampleComesBack) { EXPECT_GT(ExpectSameOfFiles(PROJECT_DIR "/samples"), 70); }

TEST_F(JsonTest, EveryRealDocumentComesBack) {
    if (ExpectSameOfFiles(PROJECT_DIR "/../shared/samples") == 0) GTEST_SKIP() << "no folder of real documents";
}

TEST_F(JsonTest, EveryScenarioComesBack) {
    for (const eXMLSchemaID id : AllSchemas()) {
        ScenarioFile file(id);
        int count = 0;
        for (const Scenario& scenario : file.Scenarios()) {
            SCOPED_TRACE(scenario.Name());
            if (scenario.Text() == nullptr || !scenario.Decodes()) continue;
            count += ExpectSameInBoth(scenario.Text(), *XMLFactory::SchemaInfo(id));
        }
        EXPECT_GT(count, 2) << id;
    }
}

// What JSON may say beyond what documents lead to.
TEST_F(JsonTest, WhatIsWrittenForJson) {
    const struct {
        eXMLSchemaID id;
        eXMLProfile profile;
        const char* root;
        const char* text;  ///< Behind the first line.
    } table[] = {
        // 0 is the 'not set' value of the device profile, and a number of the standard.
        {IX_XML_SCHEMA_IS_COMPOSING, IX_XML_PROFILE_STANDARD,
         R"({"class":"ix_isComposing","refresh":0,"state":"idle"})",
         R"(<isComposing xmlns="urn:ietf:params:xml:ns:im-iscomposing"><state>idle</state><refresh>0</refresh></isComposing>)"},
        // A value that did not fit counts until the field is given another one.
        {IX_XML_SCHEMA_REGINFO, IX_XML_PROFILE_STANDARD,
         R"({"version":1,"rest":[{"kind":"value","at":"state","text":"whole"}],"class":"ix_reginfo"})",
         R"(<reginfo xmlns="urn:ietf:params:xml:ns:reginfo" version="1" state="whole"/>)"},
        {IX_XML_SCHEMA_REGINFO, IX_XML_PROFILE_STANDARD,
         R"({"class":"ix_reginfo","version":1,"state":"full","rest":[{"kind":"value","at":"state","text":"whole"}]})",
         R"(<reginfo xmlns="urn:ietf:params:xml:ns:reginfo" version="1" state="full"/>)"},
        {IX_XML_SCHEMA_REGINFO, IX_XML_PROFILE_STANDARD,
         R"({"class":"ix_reginfo","version":2,"state":"full",
             "rest":[{"kind":"value","at":"version","text":"two","held":1}]})",
         R"(<reginfo xmlns="urn:ietf:params:xml:ns:reginfo" version="2" state="full"/>)"},
        // Places among the entries of a list, before all children and behind them.
        {IX_XML_SCHEMA_REGINFO, IX_XML_PROFILE_STANDARD,
         R"({"class":"ix_reginfo","version":1,"state":"full",
             "registration":[{"class":"ix_registration","aor":"a","id":"1","state":"init"},
                             {"class":"ix_registration","aor":"b","id":"2","state":"init"}],
             "rest":[{"kind":"element","text":"<a xmlns=\"\"/>"},
                     {"kind":"element","behind":"all","text":"<d xmlns=\"\"/>"},
                     {"kind":"element","at":"registration","behind":0,"text":"<b xmlns=\"\"/>"},
                     {"kind":"element","at":"registration","behind":1,"text":"<c xmlns=\"\"/>"}]})",
         R"(<reginfo xmlns="urn:ietf:params:xml:ns:reginfo" version="1" state="full"><a xmlns=""/>)"
         R"(<registration aor="a" id="1" state="init"/><b xmlns=""/><registration aor="b" id="2" state="init"/>)"
         R"(<c xmlns=""/><d xmlns=""/></reginfo>)"},
        {IX_XML_SCHEMA_REGINFO, IX_XML_PROFILE_STANDARD,
         R"({"class":"ix_reginfo","version":1,"state":"full","rest":[{"kind":"element","text":"<a"}]})", "not written"},
        // An empty list is something else than none, an entry can be missing, and a presence can be called off.
        {IX_XML_SCHEMA_RESOURCE_LISTS, IX_XML_PROFILE_STANDARD,
         R"({"class":"ix_resource_lists","list":[null,{"class":"ix_listType","name":"a","children":[]}]})",
         R"(<resource-lists xmlns="urn:ietf:params:xml:ns:resource-lists"><list name="a"/></resource-lists>)"},
        {IX_XML_SCHEMA_IMDN, IX_XML_PROFILE_STANDARD,
         R"({"class":"ix_imdn","message-id":"1","datetime":"now","delivery-notification":{
             "class":"ix_delivery_notification","status":{"class":"ix_status","delivered":true,
             "failed":{"class":"ix_failed","rest":[{"kind":"attribute","name":"a","text":"<"}]}}}})",
         R"(<imdn xmlns="urn:ietf:params:xml:ns:imdn"><message-id>1</message-id><datetime>now</datetime>)"
         R"(<delivery-notification><status><delivered/><failed a="&lt;"/></status></delivery-notification></imdn>)"},
    };
    for (const auto& row : table) {
        const XmlSchemaInfo& schema = *XMLFactory::SchemaInfo(row.id);
        try {
            const XmlOwned<> root = Tree(std::string(R"({"root":)") + row.root + '}', &schema, row.profile);
            const std::string text = Written(root.get(), schema, row.profile);
            EXPECT_EQ(text.substr(text.find("?>\n") + (text[0] == '<' ? 3 : 1)), row.text) << row.root;
            ExpectSame(root.get(), schema, row.profile);
        } catch (const DocumentError& error) {
            ADD_FAILURE() << error.message << '\n' << row.root;
        }
    }
}

TEST_F(JsonTest, NothingIsPassedOver) {
    const std::string contact = R"({"schema":"reginfo","root":{"class":"ix_reginfo","registration":[
        {"class":"ix_registration","contact":[null,{"class":"ix_ns_reginfo_contact",)";
    const struct {
        std::string json;
        const char* problem;
    } table[] = {
        {"7", "an object is expected here and not a number"},
        {R"({"root":{}})", "\"schema\" is missing"},
        {R"({"schema":"gruu"})", "\"root\" is missing"},
        {R"({"schema":"gruu","roots":{}})", "roots: a document has no such key; the nearest: root"},
        {R"({"schema":"gruu","schema":"gruu"})", "schema: is given twice"},
        {R"({"schema":"gruu","file":1,"root":{}})", "file: a text is expected here and not a number"},
        {R"({"schema":"gruu","root":{}})", "root: \"class\" is missing"},
        {R"({"schema":"gruu","root":[]})", "root: an object is expected here and not an array"},
        {R"({"schema":"gruu","root":{"class":null}})", "root.class: a text is expected here and not null"},
        {R"({"schema":"gruu","root":{"class":"ix_gruu"}})",
         "root.class: no object of the class \"ix_gruu\" stands here; the nearest: ix_pub_gruu, ix_temp_gruu"},
        // A class of the schema, but not of this place.
        {R"({"schema":"reginfo","root":{"class":"ix_registration"}})",
         "root.class: no object of the class \"ix_registration\" stands here; the nearest: ix_reginfo"},
        {R"({"schema":"reginfo","root":{"class":"ix_reginfo","registration":[{"class":"ix_reginfo"}]}})",
         "root.registration[0].class: no object of the class \"ix_reginfo\" stands here; the nearest: ix_registration"},
        {contact + R"("stat":"active"}]}]}})",
         "root.registration[0].contact[1].stat: ix_ns_reginfo_contact has no field \"stat\"; the nearest: state"},
        {contact + R"("state":"activ"}]}]}})",
         "root.registration[0].contact[1].state: \"activ\" is no word of the enumeration; the nearest: active"},
        {contact + R"("state":2}]}]}})",
         "root.registration[0].contact[1].state: a text is expected here and not a number"},
        {contact + R"("id":"a","id":"b"}]}]}})", "root.registration[0].contact[1].id: is given twice"},
        {contact + R"("id":"a\u0000b"}]}]}})", "root.registration[0].contact[1].id: there is a NUL in the text"},
        {contact + R"("expires":0}]}]}})",
         "root.registration[0].contact[1].expires: 0 means that there is no such value, and the device profile would "
         "not write it"},
        {contact + R"("expires":1.5}]}]}})",
         "root.registration[0].contact[1].expires: a whole number from -9223372036854775808 to 9223372036854775807 is "
         "expected here"},
        {contact + R"("expires":9223372036854775808}]}]}})",
         "root.registration[0].contact[1].expires: a whole number from -9223372036854775808 to 9223372036854775807 is "
         "expected here"},
        {contact + R"("rest":[]}]}]}})",
         "root.registration[0].contact[1].rest: the device profile writes no rest, the standard profile does"},
        {R"({"schema":"reginfo","root":{"class":"ix_reginfo","version":-1}})",
         "root.version: a whole number from 0 to 4294967295 is expected here"},
        {R"({"schema":"reginfo","root":{"class":"ix_reginfo","registration":{}}})",
         "root.registration: an array is expected here and not an object"},
        {R"({"schema":"rlmi","root":{"class":"ix_list","fullState":1}})",
         "root.fullState: true or false is expected here and not a number"},
        {R"({"schema":"rlmi","root":{"class":"ix_list","attributes":[{"name":"a"}]}})",
         "root.attributes[0]: \"value\" is missing"},
        {R"({"schema":"media-control","root":{"class":"ix_media_control","vc_primitive":
            {"class":"ix_vc_primitive","to_encoder":{"class":"ix_to_encoder","picture_fast_update":false}}}})",
         "root.vc_primitive.to_encoder.picture_fast_update: true or an object is expected here"},
    };
    for (const auto& row : table) {
        try {
            Tree(row.json, nullptr, IX_XML_PROFILE_DEVICE);
            ADD_FAILURE() << row.json;
        } catch (const DocumentError& error) {
            EXPECT_EQ(error.message, row.problem) << row.json;
        }
    }
}

TEST_F(JsonTest, RestsAreChecked) {
    const std::pair<const char*, const char*> table[] = {
        {R"({})", "root.rest[0]: \"kind\" is missing"},
        {R"({"kind":"elements","text":""})",
         "root.rest[0].kind: \"elements\" is no kind of rest; the nearest: element"},
        {R"({"kind":"element"})", "root.rest[0]: \"text\" is missing"},
        {R"({"kind":"element","text":null})", "root.rest[0].text: a text is expected here and not null"},
        {R"({"kind":"element","text":"","held":1})",
         "root.rest[0].held: a rest of this kind has no such key; the nearest: text, kind, in"},
        {R"({"kind":"element","text":"","at":"states"})",
         "root.rest[0].at: ix_reginfo has no field \"states\"; the nearest: state"},
        {R"({"kind":"element","text":"","at":"state","in":"state"})",
         "root.rest[0].at: a rest is in a field or at one"},
        {R"({"kind":"element","text":"","at":"registration","behind":0})",
         "root.rest[0].behind: there is no such entry"},
        {R"({"kind":"element","text":"","at":"registration","behind":"all"})",
         "root.rest[0].behind: a number is expected here and not a text"},
        {R"({"kind":"value","at":"version","text":"x","held":"x"})",
         "root.rest[0].held: a number is expected here and not a text"},
    };
    for (const auto& [item, problem] : table) {
        const std::string json =
            R"({"schema":"reginfo","root":{"class":"ix_reginfo","rest":[)" + std::string(item) + "]}}";
        try {
            Tree(json, nullptr, IX_XML_PROFILE_STANDARD);
            ADD_FAILURE() << json;
        } catch (const DocumentError& error) {
            EXPECT_EQ(error.message, problem) << json;
        }
    }
}

TEST_F(JsonTest, DepthEndsInAnErrorAndNotInACrash) {
    const auto nested = [](int depth) {
        std::string json = R"({"schema":"resource-lists","root":{"class":"ix_resource_lists","list":[)";
        for (int i = 0; i < depth; ++i) json += R"({"class":"ix_listType","children":[)";
        for (int i = 0; i < depth; ++i) json += "]}";
        return json + "]}}";
    };
    EXPECT_NE(Tree(nested(999), nullptr, IX_XML_PROFILE_STANDARD), nullptr);
    const std::pair<std::string, const char*> table[] = {
        {nested(1000), "is within 1000 elements"},
        {nested(100000), "nested too deep: more than 1000 elements within each other"},
        {std::string(1000000, '['), "nested too deep: more than 1000 elements within each other"},
    };
    for (const auto& [json, problem] : table) {
        try {
            Tree(json, nullptr, IX_XML_PROFILE_STANDARD);
            ADD_FAILURE() << problem;
        } catch (const DocumentError& error) {
            EXPECT_NE(error.message.find(problem), std::string::npos) << error.message;
        }
    }
}
