#include <cstring>
#include <functional>

#include "XmlTest.h"
#include "ixXMLDocGenerator.h"

namespace {

using Generator = IxXMLDocGenerator;

using Call = std::function<void(Generator& g)>;

class GeneratorTest : public XmlTest {
  protected:
    using Text = const char*;
    static Call Header(Text v, Text e) {
        return [=](Generator& g) { g.ixAddHeader(v, e); };
    }
    static Call Comment(Text t) {
        return [=](Generator& g) { g.ixAddComment(t); };
    }
    static Call Prefix(Text p) {
        return [=](Generator& g) { g.ixSetXmlNamespace(p); };
    }
    static Call Start(Text n, int open) {
        return [=](Generator& g) { g.ixStartElement(n, open); };
    }
    static Call StartInline(Text n, int open) {
        return [=](Generator& g) { g.ixStartElementWithoutNL(n, open); };
    }
    static Call SelfEnding(Text n) {
        return [=](Generator& g) { g.ixStartElementSelfEnding(n); };
    }
    static Call StartNs(Text n, Text p, Text uri, int open) {
        return [=](Generator& g) { g.ixStartElementNs(n, p, uri, open); };
    }
    static Call Attribute(Text n, Text v, int usePrefix, int selfEnd, int close) {
        return [=](Generator& g) { g.ixStartAttribute(n, v, usePrefix, selfEnd, close); };
    }
    static Call AttributeNs(Text n, Text v, Text p, int selfEnd, int close) {
        return [=](Generator& g) { g.ixStartAttributeNs(n, v, p, selfEnd, close); };
    }
    static Call Declare(Text n, Text v, Text p, int selfEnd, int close) {
        return [=](Generator& g) { g.ixAddNameSpacePrefixToXml(n, v, p, selfEnd, close); };
    }
    static Call Data(Text t) {
        return [=](Generator& g) { g.ixXmlSetData(t); };
    }
    static Call End(Text n) {
        return [=](Generator& g) { g.ixEndXmlElement(n); };
    }
    static Call EndNs(Text n, Text p) {
        return [=](Generator& g) { g.ixEndXmlElementNs(n, p); };
    }
};

TEST_F(GeneratorTest, CallsWriteExactlyTheirText) {
    struct {
        const char* text;
        std::vector<Call> calls;
    } const table[] = {
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>", {Header(nullptr, nullptr)}},
        {"<?xml version=\"1.1\" encoding=\"UTF-8\"?>", {Header("1.1", "UTF-8"), Header("1.0", "x")}},
        {"\n<!-- c -->",  // A header goes to the top or nowhere.
         {Comment(" c"), Header(nullptr, nullptr)}},
        {"<?xml version=\"\" encoding=\"\"?>\n<!-- -->", {Header("", ""), Comment("")}},
        {"\n<a>", {Start("a", 0)}},
        {"\n<a>", {Start("a", 2)}},
        {"\n<a ", {Start("a", 1)}},
        {"<a><b ", {StartInline("a", 0), StartInline("b", 1)}},
        {"\n<ss:simservs>\n<ss:a/><ss:b></ss:c>\n</ss:d>",
         {Prefix("ss"), Start("simservs", 0), SelfEnding("a"), StartInline("b", 0), End("c"), EndNs("d", nullptr)}},
        {"</p:a></a>", {Prefix("q"), Prefix("p"), End("a"), Prefix(nullptr), End("a")}},
        {"\n</p:a>\n</b>", {EndNs("a", "p"), EndNs("b", nullptr)}},
        {"\n<a \n<b/>x=\"1\"",  // An element that ends itself does not close the open tag.
         {Start("a", 1), SelfEnding("b"), Attribute("x", "1", 0, 0, 0)}},
        {"\n<p:a xmlns:p=\"u\">\n<q:b xmlns:q=\"v\" >\n<r:c xmlns:r=\"w\">",
         {StartNs("a", "p", "u", 0), StartNs("b", "q", "v", 1), StartNs("c", "r", "w", 0)}},
        {"\n<a >\n<ss:b >\n<ss:c>",  // Without prefix or URI: as a plain start tag, and still closing the open one.
         {Start("a", 1), Prefix("ss"), StartNs("b", nullptr, "u", 1), StartNs("c", "p", nullptr, 0)}},
        {"\n<a x=\"1\">v</a>", {Start("a", 1), Attribute("x", "1", 0, 0, 1), Data("v"), End("a")}},
        {"\n<a x=\"1\"y=\"\">v",  // No blanks of their own, and an open tag that the data closes.
         {Start("a", 1), Attribute("x", "1", 0, 0, 0), Attribute("y", nullptr, 0, 0, 0), Data("v")}},
        {"\n<a x=\"1\"/>",  // Self-ending wins, and closes the tag for good.
         {Start("a", 1), Attribute("x", "1", 0, 1, 1), Attribute("y", "2", 0, 0, 0), AttributeNs("z", "3", "p", 0, 0)}},
        {"\n<ss:a  ss:x=\"1\"y=\"2\" z=\"3\"",  // An empty prefix writes its blank and no colon.
         {Prefix("ss"), Start("a", 1), Attribute("x", "1", 1, 0, 0), Attribute("y", "2", 0, 0, 0), Prefix(""),
          Attribute("z", "3", 1, 0, 0)}},
        {"\n<a x=\"1\"", {Start("a", 1), Attribute("x", "1", 1, 0, 0)}},
        {"\n<a  p:x=\"1\"  q:y=\"\" z=\"3\">",
         {Start("a", 1), AttributeNs("x", "1", "p", 0, 0), AttributeNs("y", nullptr, "q", 0, 0),
          AttributeNs("z", "3", nullptr, 0, 1), AttributeNs("w", "4", "p", 0, 0)}},
        {"\n<a  p:x=\"1\"/>v", {Start("a", 1), AttributeNs("x", "1", "p", 1, 0), Data("v")}},
        {"\n<a >", {Start("a", 1), Data("")}},
        {"\n<a>",  // Attributes of the first two writers need an open tag ...
         {Start("a", 0), Attribute("x", "1", 0, 0, 0), AttributeNs("x", "1", "p", 0, 0)}},
        {" xmlns:ss=\"u\"  xmlns=\"u\"  n=\"\" ",  // ... those of the third do not.
         {Declare("xmlns", "u", "ss", 0, 0), Declare("xmlns", "u", nullptr, 0, 0),
          Declare("n", nullptr, nullptr, 0, 0)}},
        {"\n<a  xmlns:p=\"u\">v\n<b  y=\"2\"/>w",
         {Start("a", 1), Declare("xmlns", "u", "p", 0, 1), Data("v"), Start("b", 1), Declare("y", "2", nullptr, 1, 0),
          Data("w")}},
        {" ", {Data(nullptr)}},
        {"\n<a </a>",  // An end tag forgets the open one without closing it.
         {Start("a", 1), End("a"), Attribute("x", "1", 0, 0, 0)}},
        {"\n<a x=\"say &quot;hi&quot;\" y=\"&quot;\"  p:z=\"a&b<c>'d'\" ",  // Double quotes only.
         {Start("a", 1), Attribute("x", "say \"hi\"", 0, 0, 0), Declare("y", "\"", nullptr, 0, 0),
          AttributeNs("z", "a&b<c>'d'", "p", 0, 0)}},
        {"a&b<c>\"", {Data("a&b<c>\"")}},  // Text content: nothing at all.
        {"",                               // Calls that miss their name.
         {Start(nullptr, 1), StartInline(nullptr, 1), SelfEnding(nullptr), StartNs(nullptr, "p", "u", 1),
          Attribute(nullptr, "1", 0, 0, 1), AttributeNs(nullptr, "1", "p", 0, 1), Declare(nullptr, "1", "p", 0, 1),
          End(nullptr), EndNs(nullptr, "p"), Comment(nullptr)}},
    };
    for (const auto& row : table) {
        Generator generator;
        generator.ixInitXmlDoc();
        for (const Call& call : row.calls) call(generator);
        EXPECT_STREQ(generator.ixGetXmlDoc(), row.text);
        EXPECT_EQ(generator.Length(), std::strlen(row.text));
    }
    EXPECT_EQ(Texts(), std::vector<std::string>{});
}

TEST_F(GeneratorTest, WithoutABufferNothingHappens) {
    const auto writeAll = [](Generator& g) {
        for (const Call& call :
             {Header(nullptr, nullptr), Comment("c"), Prefix("p"), Start("a", 1), StartInline("a", 1), SelfEnding("a"),
              StartNs("a", "p", "u", 1), Attribute("x", "1", 0, 0, 0), AttributeNs("x", "1", "p", 0, 0),
              Declare("x", "1", "p", 0, 0), Data("v"), End("a"), EndNs("a", "p")})
            call(g);
        g.ixResetHeader();
        EXPECT_EQ(g.ixGetXmlDoc(), nullptr);
        EXPECT_EQ(g.Length(), 0U);
    };
    Generator generator;
    writeAll(generator);
    generator.ixDeInitXmlDoc();
    generator.ixInitXmlDoc();
    generator.ixSetXmlNamespace("p");
    generator.ixStartElement("a", 1);
    char* const buffer = generator.ixGetXmlDoc();
    generator.ixInitXmlDoc();  // A second time: nothing is lost.
    EXPECT_EQ(generator.ixGetXmlDoc(), buffer);
    EXPECT_STREQ(buffer, "\n<p:a ");
    generator.ixDeInitXmlDoc();
    writeAll(generator);
    generator.ixDeInitXmlDoc();
    // The next document starts without the prefix, the open tag and the header of the last.
    generator.ixInitXmlDoc();
    generator.ixStartAttribute("x", "1", 0, 0, 0);
    generator.ixAddHeader("1", "2");
    generator.ixStartElement("a", 0);
    EXPECT_STREQ(generator.ixGetXmlDoc(), "<?xml version=\"1\" encoding=\"2\"?>\n<a>");
    generator.ixDeInitXmlDoc();
    ixDplHostFailAllocation(1);
    generator.ixInitXmlDoc();
    writeAll(generator);
}

TEST_F(GeneratorTest, AResetEmptiesTheBufferAndForgetsThePrefix) {
    Generator generator;
    generator.ixInitXmlDoc();
    generator.ixAddHeader("1", "2");
    generator.ixSetXmlNamespace("ss");
    generator.ixStartElement("a", 1);
    generator.ixXmlSetData(std::string(Generator::kCapacity, 'x').c_str());
    generator.ixResetHeader();
    EXPECT_FALSE(generator.IsTruncated());
    for (std::size_t i = 0; i < Generator::kCapacity; ++i) ASSERT_EQ(generator.ixGetXmlDoc()[i], '\0') << i;
    generator.ixStartAttribute("x", "1", 0, 0, 0);
    generator.ixAddHeader("3", "4");
    generator.ixStartElement("b", 0);
    EXPECT_STREQ(generator.ixGetXmlDoc(), "<?xml version=\"3\" encoding=\"4\"?>\n<b>");
    generator.ixDeInitXmlDoc();
    // Required: the prefix is forgotten, not freed.
    EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 1U);
    ExpectLeftBehind(0);
}

TEST_F(GeneratorTest, TextPastTheCapacityIsCutOff) {
    constexpr std::size_t kMost = Generator::kCapacity - 1;
    for (const std::size_t size : {kMost - 1, kMost, kMost + 1, 3 * kMost}) {
        Generator generator;
        generator.ixInitXmlDoc();
        generator.ixXmlSetData(std::string(size, 'x').c_str());
        EXPECT_EQ(generator.IsTruncated(), size > kMost) << size;
        EXPECT_EQ(generator.Length(), size < kMost ? size : kMost);
        EXPECT_EQ(std::strlen(generator.ixGetXmlDoc()), generator.Length());
        // Later pieces fill what room there is, and their own loss is noticed too.
        generator.ixEndXmlElement("a");
        EXPECT_TRUE(generator.IsTruncated());
        EXPECT_EQ(generator.ixGetXmlDoc()[kMost - 1], size < kMost ? '<' : 'x');
        EXPECT_EQ(generator.ixGetXmlDoc()[kMost], '\0');
    }
}

TEST_F(GeneratorTest, QuotesOfAValueAreEscapedIntoANewText) {
    const Generator generator;
    const std::pair<const char*, const char*> table[] = {
        {"", ""}, {"a&b<'", "a&b<'"}, {"\"", "&quot;"}, {"\"a\"\"", "&quot;a&quot;&quot;"}, {"&quot;", "&quot;"}};
    for (const auto& row : table) {
        char* const escaped = generator.escapeString(row.first);
        EXPECT_STREQ(escaped, row.second);
        FreeElement(escaped);
    }
    EXPECT_EQ(generator.escapeString(nullptr), nullptr);
}

TEST_F(GeneratorTest, AValueThatCannotBeEscapedIsLeftOut) {
    Generator generator;
    generator.ixInitXmlDoc();
    generator.ixStartElement("a", 1);
    ixDplHostFailAllocation(1);
    generator.ixStartAttribute("x", "\"", 0, 0, 1);
    EXPECT_STREQ(generator.ixGetXmlDoc(), "\n<a x=\"\">");
    const std::vector<LogLine> line = {
        {2, 6070, "ims/xml/src/ixXMLDocGenerator", 880, "IxXMLDocGenerator :: escapeString malloc failed"}};
    EXPECT_EQ(Log(), line);
}

TEST_F(GeneratorTest, WhatWasCutIsGone) {
    Generator generator;
    generator.ixInitXmlDoc();
    generator.ixStartElement("a", 0);
    const Generator::Place before = generator.Here();
    generator.ixStartElement("b", 1);
    EXPECT_STREQ(generator.ixGetXmlDoc(), "\n<a>\n<b ");
    generator.CutBack(before);
    const char* const text = generator.ixGetXmlDoc();
    EXPECT_EQ(std::string(text, 10), std::string("\n<a>\0\0\0\0\0\0", 10));
    generator.ixEndXmlElement("a");
    EXPECT_STREQ(generator.ixGetXmlDoc(), "\n<a></a>");
}

}  // namespace
