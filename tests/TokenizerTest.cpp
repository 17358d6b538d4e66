#include <climits>
#include <cstring>
#include <random>

#include "XmlDecoder.h"
#include "XmlTest.h"

namespace {

/// Writes the events down: "+a" start, "a.x[1]" attribute, ">a" end of the start tag, "/a[text]" end.
class Recorder : public XmlDecoderSchema {
  public:
    int Reserved() override { return 0; }
    int ProcessAttribute(char* element, char* attribute, char* value) override {
        Add(std::string(element) + "." + attribute + "[" + value + "]");
        return -1;  // Ignored.
    }
    int ProcessElement(char* element, char* text) override {
        Add(text != nullptr ? std::string(element) + "[" + text + "]" : std::string("+") + element);
        return m_result;
    }
    int ProcessEndOfStartTag(char* element) override {
        Add(std::string(">") + element);
        return -1;  // Ignored.
    }
    XMLElement* GetSessionData() override { return nullptr; }

    void Add(const std::string& event) { m_events += (m_events.empty() ? "" : " ") + event; }

    std::string m_events;
    int m_result = 0;
};

LogLine Line(int level, int line, const std::string& text) {
    return {level, 6053, "ims/xml/src/XmlDecoder", line, text};
}

LogLine Count(std::size_t length) { return Line(2, 180, "XmlDecoder::n_count = " + std::to_string(length)); }

const LogLine kValid = Line(2, 547, "XmlDecoder:: DecodeAttributes 0");
const LogLine kTagFailed = Line(3, 401, "<XML Decoder>:Decoder Failed in DecodeAttributes");
const LogLine kSelfClosingFailed =
    Line(3, 374, "<XML Decoder>:Decoder Failed in DecodeAttributes and ret:IX_XML_PARSE_ERROR");
const LogLine kPush = Line(2, 121, "XmlDecoder::PushElement");
const LogLine kPushFailed =
    Line(3, 439, "<XML Decoder>:Decoder Failed as stack is not empty at end, reason: IX_XML_PARSE_ERROR");
const LogLine kNoMemoryForTag = Line(2, 510, "XmlDecoder:: pStrAttrCheck: Malloc unable to allocate memory");

/// A tokenizer with its recorder.
struct Tokenizer {
    Tokenizer() { decoder.SetSchemaDecoder(&recorder); }
    int Decode(const std::string& text) { return decoder.Decode(text.c_str(), static_cast<int>(text.size())); }
    const std::string& Events() const { return recorder.m_events; }

    Recorder recorder;
    XmlDecoder decoder;
};

std::string Repeated(const std::string& text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) result += text;
    return result;
}

using Lines = std::vector<LogLine>;

class TokenizerTest : public XmlTest {
  protected:
    /// Frees a node that `PopElement` handed over; returns its name, "(null)" for none.
    static std::string NameOf(BuddyLinkList* node) {
        if (node == nullptr) return "(no node)";
        const std::string name = node->m_pData != nullptr ? static_cast<char*>(node->m_pData) : "(null)";
        FreeElement(node->m_pData);
        trmemlog_remove(1, node);
        delete node;
        return name;
    }
};

/// Compares the length that the tokenizer tells of each name with its characters.
class Measurer : public Recorder {
  public:
    explicit Measurer(const XmlDecoder& decoder) : m_decoder(decoder) {}
    int ProcessElement(char* element, char* text) override {
        EXPECT_EQ(m_decoder.LengthOf(element), std::strlen(element)) << element;
        return Recorder::ProcessElement(element, text);
    }

  private:
    const XmlDecoder& m_decoder;
};

// Each piece comes to the place of the one before, so that an end tag can stand where its start tag stood.
TEST_F(TokenizerTest, LengthsOfNamesInPieces) {
    XmlDecoder decoder;
    Measurer measurer(decoder);
    decoder.SetSchemaDecoder(&measurer);
    for (const char* piece : {"<cp:a>", "</cp:b>", "<cp:b>", "</cp:b>", "</cp:a>"}) {
        decoder.Decode(piece, static_cast<int>(std::strlen(piece)));
    }
    EXPECT_EQ(measurer.m_events, "+cp:a >cp:a +cp:b >cp:b /cp:b[] /cp:a[]");
}

struct Document {
    const char* text;
    const char* events;
    int result;
    int state;
};

const Document kDocuments[] = {
    // Well-formed.
    {"<a/>", "+a >a /a[]", 0, 3},
    {"<a>x</a>", "+a >a /a[x]", 0, 3},
    {"<a><b>x</b>y</a>", "+a >a +b >b /b[x] /a[y]", 0, 3},
    {"<a><b/><b y='1'/>\n</a>", "+a >a +b >b /b[] +b b.y[1] >b /b[] /a[\n]", 0, 3},
    {"<p:a p:x='1'> &lt; </p:a>", "+p:a p:a.p:x[1] >p:a /p:a[ &lt; ]", 0, 3},
    {"<a x=\"1\" y='2'/>", "+a a.x[1] a.y[2] >a /a[]", 0, 3},
    {"<a x=\"1\"y='2'>t</a>", "+a a.x[1] a.y[2] >a /a[t]", 0, 3},
    {"<a\r\n\tx=\"\"\ty=''>t</a>", "+a a.x[] a.y[] >a /a[t]", 0, 3},
    {"<a x=\"it's\" y='say \"=\"'/>", "+a a.x[it's] a.y[say \"=\"] >a /a[]", 0, 3},
    {"text<a/>behind<", "+a >a /a[]", 0, 3},
    {"< a>t</a>", "+a >a /a[t]", 0, 3},
    {"<a >t</a>", "+a >a /a[t]", 0, 3},
    {"<a />", "+a >a /a[]", 0, 3},
    // Required: blanks before "=" stay part of the name, and blanks behind the last value are one more attribute.
    {"<a x = \"1\"/>", "+a a.x [1] >a /a[]", 0, 3},
    {"<a x=\"1\" >t</a>", "+a a.x[1] a.[] >a /a[t]", 0, 3},
    {"<a x=\"1\" />", "+a a.x[1] a.[] >a /a[]", 0, 3},
    {"<a  >t</a>", "+a a.[] >a /a[t]", 0, 3},
    // A value without a name is taken for a name.
    {"<a =\"1\"/>", "+a a.\"1\"[] >a /a[]", 0, 3},
    // Entities: the five predefined ones in values, "&amp;" last.
    {"<a x=\"&lt;&gt;&quot;&apos;&amp;&lt;\"/>", "+a a.x[<>\"'&<] >a /a[]", 0, 3},
    {"<a x='1&amp;lt;2' y='&lt;'/>", "+a a.x[1&lt;2] a.y[<] >a /a[]", 0, 3},
    {"<a x='&#65;&#x41;&nbsp;&amp&LT;&'/>", "+a a.x[&#65;&#x41;&nbsp;&amp&LT;&] >a /a[]", 0, 3},
    // Declarations and comments.
    {"<?xml version=\"1.0\"?>\n<!-- c -->\n<a/>", "+a >a /a[]", 0, 3},
    {"<?><!----><a><!-- < -->x<!---->y</a>", "+a >a /a[y]", 0, 3},
    {"<?xml version=\"1.0\"><a/>", "", -1, 2},
    {"<a><?xml version=\"1.0\"?></a>", "+a >a", -1, 2},
    {"<!--><a/>", "", -1, 2},
    {"<!---><a/>", "", -1, 2},
    {"<!-- c -><a/>", "", -1, 2},
    {"<!-- c > d --><a/>", "", -1, 2},
    // What is not supported is taken for an element.
    {"<!DOCTYPE a><a/>", "+!DOCTYPE", -1, 2},
    {"<a><![CDATA[x]]></a>", "+a >a +![CDATA[x]] >![CDATA[x]]", -1, 0},
    // Malformed.
    {"<>", "", -1, 2},
    {"< \t\r\n>", "", -1, 2},
    {"</>", "", -1, 0},
    {"</a>", "", -1, 0},
    {"<a>x</b>", "+a >a", -1, 0},
    {"<a>x</A>", "+a >a", -1, 0},
    {"<a>x</a >", "+a >a", -1, 0},
    {"<ab>x</a>", "+ab >ab", -1, 0},
    {"<a b>", "+a", -1, 2},
    {"<a x=1>", "+a", -1, 2},
    {"<a x='>'/>", "+a", -1, 2},
    {"<a x==\"1\"/>", "+a", -1, 2},
    {"<a =/>", "+a", -1, 2},
    {"<a =>", "", -1, 2},
    // Incomplete.
    {"<a", "", 1, 1},
    {"<a x='1'", "", 1, 1},
    {"<a>x", "+a >a", 1, 1},
    {"<a>x</a", "+a >a", 1, 1},
    {"no tag", "", 1, 1},
};

TEST_F(TokenizerTest, DocumentsBecomeEvents) {
    for (const Document& document : kDocuments) {
        Tokenizer tokenizer;
        EXPECT_EQ(tokenizer.Decode(document.text), document.result) << document.text;
        EXPECT_EQ(tokenizer.Events(), document.events) << document.text;
        EXPECT_EQ(tokenizer.decoder.m_DecodeState, document.state) << document.text;
    }
}

// A piece of the network may end anywhere. A split within a tag changes nothing; one within a text drops what came.
TEST_F(TokenizerTest, SplitDocumentsYieldTheSameEventsExceptForTheTextBeforeTheSplit) {
    for (const Document& document : kDocuments) {
        const std::string text = document.text;
        for (std::size_t split = 1; split < text.size(); ++split) {
            Tokenizer tokenizer;
            int result = tokenizer.Decode(text.substr(0, split));
            if (result == 1) result = tokenizer.Decode(text.substr(split));
            const std::size_t tail = text.rfind('>', split - 1) + 1;
            const bool inTag = text.find('<', tail) < split;
            Tokenizer whole;
            EXPECT_EQ(result, whole.Decode(inTag ? text : text.substr(0, tail) + text.substr(split)));
            EXPECT_EQ(tokenizer.Events(), whole.Events()) << text.substr(0, split) << " | " << text.substr(split);
        }
    }
    Tokenizer tokenizer;
    EXPECT_EQ(tokenizer.Decode("<a>he"), 1);
    EXPECT_EQ(tokenizer.Decode("llo"), 1);
    EXPECT_EQ(tokenizer.Decode("!<"), 1);  // From here on the text is kept with its tag.
    EXPECT_EQ(tokenizer.Decode("/"), 1);
    EXPECT_EQ(tokenizer.Decode("a>"), 0);
    EXPECT_EQ(tokenizer.Events(), "+a >a /a[!]");
}

TEST_F(TokenizerTest, EveryOutcomeIsLogged) {
    const LogLine invalid = Line(2, 547, "XmlDecoder:: DecodeAttributes -1");
    const LogLine invalidList = Line(2, 552, "XmlDecoder:: DecodeAttributes - Attribute list invalid");
    const LogLine rejected =
        Line(3, 331, "<XML Decoder>:ProcessElement(pStrEndElement, start) failed when pStrEndElement=\"/a\"");
    struct {
        const char* text;
        Lines lines;  ///< Behind the first, which counts the characters.
    } const table[] = {
        {"<a/>", {kValid, Line(3, 450, "<XML Decoder>:Decoder Success")}},
        {"<a>x</a>", {kValid, rejected, Line(3, 450, "<XML Decoder>:Decoder Success")}},
        {"<a", {Line(3, 459, "<XML Decoder>:IX_XML_PARSE_CONTINUE ret:IX_XML_INCOMPLETE ")}},
        {"x", {Line(3, 476, "<XML Decoder>:IX_XML_PARSE_CONTINUE ret:IX_XML_INCOMPLETE")}},
        {"<>", {kTagFailed}},
        {"<a b>", {invalid, invalidList, kTagFailed}},
        {"<a b/>", {invalid, invalidList, kSelfClosingFailed}},
        {"<?xml>", {}},
        {"<!-->", {}},
        {"</a>", {Line(3, 360, "<XML Decoder>:stack is empty when decodeBegin is not")}},
        {"<a></b>",
         {kValid,
          Line(3, 342, "<XML Decoder>:stack mismatch happened when stored value is \"a\" and ret:IX_XML_ERROR")}},
    };
    for (const auto& row : table) {
        Tokenizer tokenizer;
        tokenizer.recorder.m_result = -1;  // Only logged, and for end tags only.
        ClearLog();
        tokenizer.Decode(row.text);
        Lines expected = {Count(std::string(row.text).size())};
        expected.insert(expected.end(), row.lines.begin(), row.lines.end());
        EXPECT_EQ(Log(), expected) << row.text;
    }
}

TEST_F(TokenizerTest, CallsWithoutTextFailAndChangeNothing) {
    Tokenizer tokenizer;
    const LogLine noText = Line(2, 183, "XmlDecoder::Decode n_strXML is null");
    tokenizer.Decode("<a");
    ClearLog();
    EXPECT_EQ(tokenizer.decoder.Decode(nullptr, 4), -1);
    EXPECT_EQ(tokenizer.decoder.Decode("<a/>", 0), -1);
    EXPECT_EQ(tokenizer.decoder.Decode("<a/>", -5), -1);
    const Lines lines = {Count(4), noText, Count(0), noText, Line(2, 180, "XmlDecoder::n_count = -5"), noText};
    EXPECT_EQ(Log(), lines);
    // With what is pending this would need more bytes than an int counts; the text is not touched.
    EXPECT_EQ(tokenizer.decoder.Decode("x", INT_MAX), -1);
    EXPECT_EQ(tokenizer.Decode("/>"), 0);
    // Less than the whole text, and no further than its NUL.
    Tokenizer shorter;
    EXPECT_EQ(shorter.decoder.Decode("<a></a>", 3), 1);
    EXPECT_EQ(shorter.Decode(std::string("</a\0>", 5)), 1);
    EXPECT_EQ(shorter.Decode(">"), 0);
    EXPECT_EQ(shorter.Events(), "+a >a /a[]");
}

TEST_F(TokenizerTest, AFinishedOrFailedTokenizerStaysSoUntilInitialised) {
    Tokenizer tokenizer;
    EXPECT_EQ(tokenizer.Decode("<a/>"), 0);
    ClearLog();
    EXPECT_EQ(tokenizer.Decode("</b>"), 0);
    const Lines complete = {
        Count(4), Line(2, 189, "XmlDecoder::Decode m_DecodeState = IX_XML_PARSE_COMPLETE ret IX_XML_SUCCESS")};
    EXPECT_EQ(Log(), complete);
    tokenizer.decoder.InitXmlDecoder();
    EXPECT_EQ(tokenizer.Decode("<b><>"), -1);
    EXPECT_FALSE(tokenizer.decoder.HasOpenElements());
    ClearLog();
    EXPECT_EQ(tokenizer.Decode("<a/>"), -1);
    EXPECT_EQ(Log(), Lines{Count(4)});
    EXPECT_EQ(tokenizer.decoder.PushElement("a"), 0U);
    tokenizer.decoder.InitXmlDecoder();
    EXPECT_EQ(tokenizer.Decode("<c/>"), 0);
    EXPECT_EQ(tokenizer.Events(), "+a >a /a[] +b >b +c >c /c[]");
}

TEST_F(TokenizerTest, AnInitialisedTokenizerKeepsOpenNamesAndDropsPendingText) {
    Tokenizer tokenizer;
    EXPECT_EQ(tokenizer.Decode("<a><b x='1"), 1);
    tokenizer.decoder.InitXmlDecoder();
    EXPECT_EQ(tokenizer.decoder.m_DecodeState, IX_XML_PARSE_INIT);
    EXPECT_EQ(tokenizer.Decode("t</a>"), 0);
    EXPECT_EQ(tokenizer.Events(), "+a >a /a[t]");
}

TEST_F(TokenizerTest, ABadEndTagLeavesStateAndOpenNames) {
    Tokenizer tokenizer;
    EXPECT_EQ(tokenizer.Decode("</x><a>"), -1);
    EXPECT_EQ(tokenizer.decoder.m_DecodeState, IX_XML_PARSE_INIT);
    EXPECT_EQ(tokenizer.Decode("<c>"), 1);
    EXPECT_EQ(tokenizer.Decode("</b>"), -1);
    EXPECT_EQ(tokenizer.decoder.m_DecodeState, IX_XML_PARSE_CONTINUE);
    EXPECT_EQ(NameOf(tokenizer.decoder.PopElement()), "c");
}

// Resetting in the middle of a tag must not leave a position in the text that is gone.
TEST_F(TokenizerTest, AResetTokenizerRefusesTagsUntilInitialised) {
    Tokenizer tokenizer;
    EXPECT_EQ(tokenizer.Decode("<a>" + Repeated("t", 100) + "<a_long_tag"), 1);
    tokenizer.decoder.ResetXmlDecoder();
    EXPECT_EQ(tokenizer.Decode("<b>"), -1);
    EXPECT_EQ(tokenizer.decoder.m_DecodeState, IX_XML_PARSE_ERROR);
    tokenizer.decoder.InitXmlDecoder();
    EXPECT_EQ(tokenizer.Decode("<c/>"), 0);
}

TEST_F(TokenizerTest, TagsAreSplitWithoutASchemaDecoderToo) {
    XmlDecoder decoder;
    EXPECT_EQ(decoder.Decode("<a x='1'><b y='2'/>t</a>", 24), 0);
    char none[] = "a";
    char one[] = "a x='1'";
    EXPECT_EQ(decoder.DecodeAttributes(none), 0);
    EXPECT_EQ(decoder.DecodeAttributes(one), 0);
    EXPECT_EQ(decoder.DecodeAttributes(nullptr), -1);
    EXPECT_EQ(Log().back(), Line(2, 501, "XmlDecoder::DecodeAttributes n_strAttrList is null"));
}

TEST_F(TokenizerTest, SplittingATagTellsWhetherTheElementWasReported) {
    struct {
        std::string tag;
        int result;
        const char* events;
    } table[] = {{"a", 1, ""}, {"a x='1'", 0, "+a a.x[1]"}, {"a ", 1, ""}, {" \n", -1, ""}, {"a x", -1, "+a"}};
    for (auto& row : table) {
        Tokenizer tokenizer;
        EXPECT_EQ(tokenizer.decoder.DecodeAttributes(&row.tag[0]), row.result) << row.tag;
        EXPECT_EQ(tokenizer.Events(), row.events);
    }
    // A tag that closes itself and fails makes none of those behind it close themselves.
    Tokenizer tokenizer;
    EXPECT_EQ(tokenizer.Decode("<a b/>"), -1);
    tokenizer.decoder.InitXmlDecoder();
    char tag[] = "c x='1'";
    EXPECT_EQ(tokenizer.decoder.DecodeAttributes(tag), 0);
    EXPECT_EQ(tokenizer.Events(), "+a +c c.x[1]");
}

/// What a decode without memory leaves: its lines behind the first, the events, the state.
struct Outcome {
    Lines lines;
    std::string events;
    int state;
};

// Short names need no memory of their own, so the failing texts are longer than what a tokenizer has at hand. Each
// allocation fails in turn until one decode goes through; how many there are is the tokenizer's own affair.
TEST_F(TokenizerTest, EachFailedAllocationHasItsLinesAndResult) {
    const std::string name(100, 'n');
    const std::string open = "+" + name + " >" + name;
    LogLine noList = Line(2, 540, "XmlDecoder:: Malloc failed, Unable to validate attributeList");
    noList.code = 6070;  // Required: this line alone has the schemas' number.
    const Outcome noText = {{}, "", 0};
    const Outcome noTag = {{kNoMemoryForTag, kTagFailed}, "", 2};
    const Outcome noName = {{kValid, kPush, kPushFailed}, open, 2};
    const LogLine noEnd = Line(2, 323, "<XML Decoder>XmlDecoder:: pStrEndElement: Malloc unable to allocate memory");
    const LogLine noSelfEnd = Line(2, 627, "XmlDecoder:: pStrEndElement: Malloc unable to allocate memory");
    struct {
        std::string text;
        int result;
        std::vector<Outcome> outcomes;
    } const table[] = {
        {"<a x='" + name + "'>", 1, {noText, noTag, {{noList, kTagFailed}, "+a", 2}}},
        {"<" + name + "></" + name + ">", 0, {noText, noTag, noName, {{kValid, noEnd}, open, 0}}},
        {"<" + name + "/>",
         0,
         {noText, {{kNoMemoryForTag, kSelfClosingFailed}, "", 2}, {{kValid, noSelfEnd, kSelfClosingFailed}, open, 2}}}};
    for (const auto& row : table) {
        std::size_t at = 0;
        for (unsigned long failing = 1;; ++failing) {
            Tokenizer tokenizer;
            ClearLog();
            ixDplHostFailAllocation(failing);
            const int result = tokenizer.Decode(row.text);
            ixDplHostStopCounting();
            if (result != -1) {
                EXPECT_EQ(result, row.result);
                break;
            }
            Lines lines = Log();
            lines.erase(lines.begin());
            if (at + 1 < row.outcomes.size() && lines == row.outcomes[at + 1].lines) ++at;
            EXPECT_EQ(lines, row.outcomes[at].lines) << row.text << ' ' << failing;
            EXPECT_EQ(tokenizer.Events(), row.outcomes[at].events);
            EXPECT_EQ(tokenizer.decoder.m_DecodeState, row.outcomes[at].state);
            tokenizer.decoder.ResetXmlDecoder();
            tokenizer.decoder.InitXmlDecoder();
            EXPECT_EQ(tokenizer.Decode("<a/>"), 0);
        }
        EXPECT_EQ(at + 1, row.outcomes.size()) << row.text;
    }
}

TEST_F(TokenizerTest, OpenNamesComeBackLastFirst) {
    XmlDecoder decoder;
    EXPECT_EQ(NameOf(decoder.PopElement()), "(no node)");
    const std::string name(40, 'x');
    for (std::size_t i = 0; i < 40; ++i)
        EXPECT_EQ(decoder.PushElement((name + std::to_string(i)).substr(i).c_str()), 1U);
    EXPECT_EQ(decoder.PushElement(nullptr), 1U);
    ClearLog();
    EXPECT_EQ(decoder.Decode("</a>", 4), -1);  // No name to tell in the log.
    EXPECT_EQ(Log(), Lines{Count(4)});
    EXPECT_EQ(NameOf(decoder.PopElement()), "(null)");
    for (std::size_t i = 39; i > 0; --i) EXPECT_EQ(NameOf(decoder.PopElement()), (name + std::to_string(i)).substr(i));
    EXPECT_EQ(decoder.PushElement(""), 1U);
    EXPECT_EQ(NameOf(decoder.PopElement()), "");
    EXPECT_TRUE(decoder.HasOpenElements());
    EXPECT_EQ(NameOf(decoder.PopElement()), name + "0");
    EXPECT_FALSE(decoder.HasOpenElements());
}

TEST_F(TokenizerTest, WithoutMemoryTheOpenNamesStayAsTheyAre) {
    const std::string name(40, 'x');
    for (int depth = 0; depth < 20; ++depth) {
        XmlDecoder decoder;
        for (int i = 0; i < depth; ++i) decoder.PushElement("a");
        ClearLog();
        unsigned long failing = 1;
        for (; ixDplHostFailAllocation(failing), decoder.PushElement(name.c_str()) == 0; ++failing) {
            EXPECT_EQ(Log(), Lines{kPush});
            EXPECT_EQ(decoder.HasOpenElements(), depth != 0);
            ClearLog();
        }
        EXPECT_GT(failing, 1U);
        // A name that cannot be handed over stays open.
        ixDplHostFailAllocation(1);
        EXPECT_EQ(decoder.PopElement(), nullptr);
        ixDplHostStopCounting();
        EXPECT_EQ(NameOf(decoder.PopElement()), name);
        for (int i = 0; i < depth; ++i) EXPECT_EQ(NameOf(decoder.PopElement()), "a");
        EXPECT_FALSE(decoder.HasOpenElements());
    }
}

TEST_F(TokenizerTest, TokensAreCutAtTheFirst32Delimiters) {
    XmlDecoder decoder;
    const std::string most(31, ';');
    struct {
        std::string text, delimiters;
        const char *token, *rest;
    } table[] = {
        {"a b", " ", "a", "b"},
        {"  a  b", " ", "a", " b"},
        {"a", " ", "a", ""},
        {" = ", "= ", nullptr, ""},
        {"", " ", nullptr, ""},
        {"a b", "", "a b", ""},
        {"a=", "=", "a", ""},
        {"a,b;c", ",;", "a", "b;c"},
        {"a\xff"
         "b",
         "\xff", "a", "b"},
        {"a,b", most + ",", "a", "b"},
        {"a,b", most + ";,", "a,b", ""},
    };
    for (auto& row : table) {
        char* rest = nullptr;
        const char* const token = decoder.N_strtok(&row.text[0], row.delimiters.c_str(), &rest);
        EXPECT_STREQ(token, row.token) << row.delimiters;
        EXPECT_STREQ(rest, row.rest) << row.delimiters;
    }
    char text[] = "a b";
    char* rest = text + 1;
    ClearLog();
    EXPECT_EQ(decoder.N_strtok(nullptr, " ", &rest), nullptr);
    EXPECT_EQ(decoder.N_strtok(text, nullptr, &rest), nullptr);
    EXPECT_EQ(rest, text + 1);
    const LogLine line = Line(2, 844, "XmlDecoder::N_strtok incomming params are null");
    EXPECT_EQ(Log(), (Lines{line, line}));
}

TEST_F(TokenizerTest, AttributeListsAreValidated) {
    const std::pair<const char*, int> table[] = {
        {"", 0},          {" \t\r\n", 0},    {"x='1'", 0},       {" x = \"1\"\ty='' ", 0},
        {"x='a\"=b'", 0}, {"x=\"a'=b\"", 0}, {"x='1'y='2'", 0},  {"='1'", 0},
        {"x", -1},        {"x=", -1},        {"x='1", -1},       {"x=\"1'", -1},
        {"x=1", -1},      {"x=='1'", -1},    {"x=a'1'", -1},     {"x y='1'", -1},
        {"x\ry='1'", -1}, {"'1'", -1},       {"x='1''2'", -1},   {"x='1' y", -1},
        {"x='1' '", -1},  {"x='1' y='", -1}, {"x='1'\"2\"", -1}, {"x=y='1'", -1},
    };
    XmlDecoder decoder;
    for (const auto& row : table) {
        std::string list = row.first;
        EXPECT_EQ(decoder.ValidateAttributeList(&list[0]), row.second) << row.first;
    }
    EXPECT_EQ(decoder.ValidateAttributeList(nullptr), -1);
}

TEST_F(TokenizerTest, TextsAreTrimmedAndUnescapedInPlace) {
    XmlDecoder decoder;
    char text[] = " \t\r\na b \n";
    EXPECT_EQ(decoder.TrimSpaces(text), text + 4);
    EXPECT_STREQ(text + 4, "a b");
    char blank[] = "  ";
    EXPECT_STREQ(decoder.TrimSpaces(blank), "");
    struct {
        std::string text;
        const char* entity;
        const char* result;
    } table[] = {{"&e;", "&e;", "+"}, {"a&e;&e;b&e;", "&e;", "a++b+"},
                 {"&e", "&e;", "&e"}, {"", "&e;", ""},
                 {"aaa", "aa", "+a"}, {"a", "", "a"},
                 {"a", nullptr, "a"}};
    for (auto& row : table) {
        decoder.UnescapeXmlString(&row.text[0], row.entity, '+');
        EXPECT_STREQ(row.text.c_str(), row.result);
    }
    decoder.UnescapeXmlString(nullptr, "&e;", '+');
    decoder.UnescapeXml(nullptr);
    std::string tooLong = "&lt;" + std::string(100, 'x');
    ixDplHostFailAllocation(1);
    decoder.UnescapeXml(&tooLong[0]);
    EXPECT_EQ(tooLong.substr(0, 4), "&lt;");
    EXPECT_EQ(Log(), Lines{Line(2, 929, "XmlDecoder::DecodeAttributes  OUT OF MEMORY!!!! ")});
}

// What is searched or copied once must not be searched or copied again with every byte that follows.
TEST_F(TokenizerTest, AHugeTagMayComeByteByByte) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    const std::string value(1 << 20, 'v');
    const std::string text = "<a x='" + value + "'/>";
    Tokenizer tokenizer;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) ASSERT_EQ(tokenizer.decoder.Decode(&text[i], 1), 1);
    EXPECT_EQ(tokenizer.Decode(">"), 0);
    EXPECT_TRUE(tokenizer.Events() == "+a a.x[" + value + "] >a /a[]");
}

TEST_F(TokenizerTest, HostileTextsEnd) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    Tokenizer open;
    EXPECT_EQ(open.Decode(std::string(1 << 20, '<')), 1);
    EXPECT_EQ(open.Decode(">"), 1);
    EXPECT_TRUE(open.decoder.HasOpenElements());

    Tokenizer nested;
    EXPECT_EQ(nested.Decode(Repeated("<a>", 100000) + "x" + Repeated("</a>", 100000)), 0);
    EXPECT_EQ(nested.Events().size(), 100000U * 11);  // "+a >a " and "/a[] " for each.

    std::mt19937 random(1);
    const std::string marks = "<>/!?-='\" a";
    for (int i = 0; i < 5000; ++i) {
        Tokenizer tokenizer;
        for (int piece = 0; piece < 4; ++piece) {
            std::string junk(1 + random() % 60, '\0');
            for (char& byte : junk) {
                byte = random() % 4 == 0 ? static_cast<char>(random()) : marks[random() % marks.size()];
            }
            const int result = tokenizer.Decode(junk);
            EXPECT_TRUE(result >= -1 && result <= 1);
            const int state = tokenizer.decoder.m_DecodeState;
            EXPECT_TRUE(result == 0 ? state == 3 : result == 1 ? state == 1 : state != 3) << result << state;
        }
    }
}

}  // namespace
