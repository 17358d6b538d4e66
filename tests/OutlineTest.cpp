// The outline of trees, for shapes that the families have between them.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "../ims/tools/imsxml/Outline.h"

namespace {

TEST(OutlineTest, EachShapeHasItsForm) {
    const struct {
        const char* fields;  ///< Of the root.
        const char* lines;   ///< Below it.
    } table[] = {
        // An element with a text and nothing else is as plain as a field; with an attribute it is an element.
        {R"("list":[{"class":"ix_list","display-name":{"class":"ix_string","text":"Friends"}}])",
         "  list\n    display-name = \"Friends\"\n"},
        {R"("note":[{"class":"ix_note","text":"Away"},{"class":"ix_note","lang":"fr","text":"Absent"}])",
         "  note = \"Away\"\n  note  lang = \"fr\"  text = \"Absent\"\n"},
        {R"("any":[{"class":"ix_ns_xcap_media_type","text":"audio"}])", "  any: ix_ns_xcap_media_type = \"audio\"\n"},
        // The class is told where the name does not tell it, and only the first field stands behind the name.
        {R"("children":[{"class":"ix_entry","uri":"sip:a"},{"class":"ix_list","name":"inner","entry":[]}])",
         "  children: ix_entry \"sip:a\"\n  children: ix_list \"inner\"\n"},
        {R"("contact":[{"class":"ix_ns_reginfo_contact","state":"active","id":"c1"}])",
         "  contact  state = \"active\"  id = \"c1\"\n"},
        {R"("conf-uris":{"class":"ix_conf_uris","state":"full"},"uris":{"class":"ix_confuris","state":"full"})",
         "  conf-uris  state = \"full\"\n  uris: ix_confuris  state = \"full\"\n"},
        // A name and a value: with anything less or more it is no setting.
        {R"("parm":[{"class":"ix_parm","name":"a b","value":""},{"class":"ix_parm","name":"","value":"1"},
            {"class":"ix_parm","name":"c","value":"1","type":"t"},{"class":"ix_parm","value":"1"},{"class":"ix_parm"}])",
         "  a b = \"\"\n  parm \"\"  value = \"1\"\n  parm \"c\"  value = \"1\"  type = \"t\"\n"
         "  parm  value = \"1\"\n  parm\n"},
        {R"("setting":{"class":"ix_setting","name":"a","value":"b"})", "  setting \"a\"  value = \"b\"\n"},
        {R"("attributes":[{"name":"lang","value":"en"},{"name":null,"value":null},null])",
         "  attributes\n    lang = \"en\"\n    (default) = null\n    (default) = null\n"},
        {R"("keywords":["one","two"],"entry":[null],"size":7,"busy":true)",
         "  keywords = \"one\"\n  keywords = \"two\"\n  entry = null\n  size = 7\n  busy = true\n"},
        {R"("rest":[{"kind":"attribute","name":"v:a","text":"1"},{"kind":"element","at":"entry","text":"<x/>"},
            {"kind":"namespace","in":"uri","namespace":"urn:u"}])",
         "  rest\n    attribute v:a = \"1\"\n    element = \"<x/>\" at entry\n    namespace = \"urn:u\" in uri\n"},
        // Attributes and texts come before children, and what no field holds comes last.
        {R"("list":[{"class":"ix_list","name":"a","entry":[{"class":"ix_entry","uri":"u"}],"name2":"b"}],
            "child":{"class":"ix_child","a":"1"},"title":{"class":"ix_string","text":"t"},"keywords":["k"],
            "rest":[{"kind":"text","text":"r"}],"attributes":[{"name":"lang","value":"en"}],"size":7)",
         "  title = \"t\"\n  keywords = \"k\"\n  attributes\n    lang = \"en\"\n  size = 7\n"
         "  list \"a\"\n    name2 = \"b\"\n    entry \"u\"\n  child  a = \"1\"\n  rest\n    text = \"r\"\n"},
        // What a terminal would obey.
        {R"("list":[],"title":"\u001b[2J\u007f\u009b\u202e\u2028\u2066\u20ac\u00e9\u2065\"")",
         "  title = \"\\u001b[2J\\u007f\\u009b\\u202e\\u2028\\u2066\u20ac\u00e9\u2065\\\"\"\n"},
    };
    for (const auto& row : table) {
        Outline outline(false);
        outline.AddTree(Json::parse("{\"class\":\"ix_root\"," + std::string(row.fields) + "}"));
        EXPECT_EQ(outline.Text(), std::string("ix_root\n") + row.lines);
    }
}

TEST(OutlineTest, ALineHas100Columns) {
    // "ix_root  a = " and two quotes; colours and the second byte of a character take no column.
    for (const bool colour : {false, true}) {
        for (const std::size_t length : {85U, 86U}) {
            std::string value;
            for (std::size_t i = 0; i < length; ++i) value += "\u00e9";
            Outline outline(colour);
            outline.AddTree({{"class", "ix_root"}, {"a", value}});
            EXPECT_EQ(std::count(outline.Text().begin(), outline.Text().end(), '\n'), length == 85 ? 1 : 2);
        }
    }
}

}  // namespace
