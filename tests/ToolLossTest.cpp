// What the command says of losses: imsxml diff, lost and convert --strict.
#ifdef IMSXML_TOOL

#include <sstream>

#include "ToolTest.h"

namespace {

using tool::Result;

class ToolLossTest : public tool::ToolTest {
  protected:
    /// What "diff" says of two documents.
    std::string Diff(const std::string& before, const std::string& after) {
        Write("before", before);
        Write("after", after);
        const Result result = Run("diff before after");
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.status, result.output.empty() ? 0 : 1) << result.output;
        return result.output;
    }
};

/// The files of a folder that hold documents.
std::vector<std::string> DocumentsBelow(const std::string& folder) {
    std::vector<std::string> documents;
    for (const std::string& file : FilesBelow(folder)) {
        if (file.substr(file.size() - 4) == ".xml") documents.push_back(file);
    }
    return documents;
}

}  // namespace

TEST_F(ToolLossTest, SpellingsThatSayTheSame) {
    const char document[] = "<a xmlns='urn:a' n='true'><b>x y</b><c>7</c></a>";
    const std::string same[] = {
        "<p:a xmlns:p='urn:a' n='1'><p:b>x y</p:b><p:c>7</p:c></p:a>",
        "<a n='true' xmlns='urn:a'><c>7</c><b>x y</b></a>",
        "<!DOCTYPE a [<!ENTITY e 'x'>]>\n<!-- c --><a xmlns='urn:a'\n n=' true '>\n<b>&e;<!-- c -->\n\ty</b><?p i?>"
        "<c><![CDATA[+007]]></c></a>",
        "<a xmlns='urn:a' n='&#x74;rue' xmlns:s='http://www.w3.org/2001/XMLSchema-instance' s:schemaLocation='a b'>"
        "<b>x y</b><c>07</c></a>",
        "<p:a xmlns:p='urn:a' n='true'><b>x y</b><c>7</c></p:a>",
    };
    for (const std::string& other : same) EXPECT_EQ(Diff(document, other), "");
    // Where the root has no namespace, local names alone count.
    EXPECT_EQ(Diff("<a><b xmlns='urn:b'/></a>", "<x:a xmlns:x='urn:x'><x:b/></x:a>"), "");
    // What is cut out of a service; what the root declares for itself counts.
    EXPECT_EQ(Diff("<cp:rule><ss:allow>true</ss:allow></cp:rule>",
                   "<rule xmlns='urn:ietf:params:xml:ns:common-policy'><x:allow "
                   "xmlns:x='http://uri.etsi.org/ngn/params/xml/simservs/xcap'>1</x:allow></rule>"),
              "");
    EXPECT_EQ(Diff("<cp:rule xmlns:cp='urn:c'><ss:allow/></cp:rule>",
                   "<rule xmlns='urn:c'><allow xmlns='http://uri.etsi.org/ngn/params/xml/simservs/xcap'/></rule>"),
              "");
}

TEST_F(ToolLossTest, EachDifferenceHasItsPath) {
    const struct {
        const char* before;
        const char* after;
        const char* lines;
    } table[] = {
        {"<r><g><c state='active'/></g><g><c state='active'/></g></r>",
         "<r><g><c state='active'/></g><g><c state='terminated'/></g></r>",
         "/r/g[2]/c/@state: \"active\" became \"terminated\"\n"},
        {"<r a='1' b='-0'>t</r>", "<r b='0' c='2'>u</r>",
         "/r/@a: \"1\" is lost\n/r/@b: \"-0\" became \"0\"\n/r/@c: \"2\" was added\n/r/text(): \"t\" became \"u\"\n"},
        {"<r>t<b/></r>", "<r><b>t</b></r>", "/r/text(): \"t\" is lost\n/r/b/text(): \"t\" was added\n"},
        {"<r><b>t</b><c><d/></c></r>", "<r><e/></r>", "/r/b: \"t\" is lost\n/r/c is lost\n/r/e was added\n"},
        {"<r xmlns='urn:r'><b/></r>", "<r xmlns='urn:r'><b xmlns='urn:b'/></r>",
         "/r/b is lost\n/r/b (urn:b) was added\n"},
        {"<r xmlns:x='urn:x' x:a='1' xml:lang='en'/>", "<r a='1'/>",
         "/r/@a (urn:x): \"1\" is lost\n/r/@xml:lang: \"en\" is lost\n/r/@a: \"1\" was added\n"},
        {"<a/>", "<b/>", "/a became /b\n"},
        {"<a xmlns='urn:a'/>", "<a xmlns='urn:b'/>", "/a became /a (urn:b)\n"},
        // An entry that is gone is one loss, wherever it stood, and hides no change of another one.
        {"<r><e>1</e><e>2</e><e>3</e></r>", "<r><e>1</e><e>3</e></r>", "/r/e[2]: \"2\" is lost\n"},
        {"<r><e>1</e><e>2</e></r>", "<r><e>2</e><e>1</e></r>", "/r/e[1]: \"1\" is lost\n/r/e[2]: \"1\" was added\n"},
        {"<r><e id='a' n='1'/><e id='b' n='1'/><e id='c' n='1'/></r>", "<r><e id='b' n='2'/><e id='c' n='2'/></r>",
         "/r/e[1] is lost\n/r/e[2]/@n: \"1\" became \"2\"\n/r/e[3]/@n: \"1\" became \"2\"\n"},
        {"<r><e>a</e></r>", "<r><e>0</e><e>a</e></r>", "/r/e[1]: \"0\" was added\n"},
        // A line stays a line, and its quotes stay where they are.
        {"<r a='\"&#10;&#x202e;'/>", "<r a=''/>", "/r/@a: \"\\\" \\u202e\" became \"\"\n"},
    };
    for (const auto& row : table) EXPECT_EQ(Diff(row.before, row.after), row.lines);
}

TEST_F(ToolLossTest, DiffRefusesWhatIsNoXml) {
    Write("good", "<a/>");
    const struct {
        const char* text;
        const char* message;
    } table[] = {
        {"<a>\n <b></a>", "2:7: mismatched tag"},
        {"<a x='1&2'/>", "1:8: unexpected \"&2'/>\""},
        {"<a>\xc3\xa9<x:b/></a>", "1:5: a prefix is not declared in \"<x:b/>\""},
        // The place in the text as it is.
        {"<cp:a>\n<ss:b></cp:a>", "2:9: mismatched tag"},
        {"<cp:a><ss:b></cp:a>", "1:15: mismatched tag"},
        {"<cp:a><x:b/></cp:a>", "1:7: a prefix is not declared in \"<x:b/>\""},
        {"<!DOCTYPE a SYSTEM 'a'><a>&e;</a>", "1:27: unknown entity \"e\""},
        {"", " no element found"},
    };
    for (const auto& row : table) {
        Write("bad", row.text);
        for (const char* order : {"diff bad good", "diff good bad"}) {
            const Result result = Run(order);
            EXPECT_EQ(result.status, 2) << row.text;
            EXPECT_EQ(result.output, "");
            EXPECT_EQ(result.errors, std::string("bad:") + row.message + '\n');
        }
    }
    Write("deep", [] {
        std::string text;
        for (int i = 0; i < 1001; ++i) text = "<a>" + text + "</a>";
        return text;
    }());
    EXPECT_EQ(Run("diff deep deep").errors.substr(0, 44), "deep:1:3001: more than 1000 open elements\nde");
    EXPECT_EQ(Run("diff good missing").errors, "missing: No such file or directory\n");
    EXPECT_EQ(Run("diff good missing").status, 2);
    for (const char* usage : {"diff good", "diff good good good", "diff"}) EXPECT_EQ(Run(usage).status, 2) << usage;
}

TEST_F(ToolLossTest, LostTellsWhatTheDeviceProfileLoses) {
    const struct {
        const char* sample;
        int status;
        const char* lines;  ///< Without the name of the file.
    } table[] = {
        {"reginfo/typical.xml", 0, ""},
        {"rlmi/typical.xml", 3, "/list/name/@xml:lang: \"en\" is lost\n"},
        {"is-composing/odd.xml", 3,
         "/isComposing/@state: \"no\" is lost\n/isComposing/refresh/@unit: \"s\" is lost\n"
         "/isComposing/refresh/text(): \"12abc\" became \"12\"\n/isComposing/typing: \"yes\" is lost\n"
         "/isComposing/state/@xml:lang: \"en\" is lost\n/isComposing/state/text(): \"active\" is lost\n"},
        {"communication-waiting/odd.xml", 3,
         "/communication-waiting/@vendor: \"say \\\"ring\\\" &amp; wait\" became \"say \\\"ring\\\" & wait\"\n"
         "/communication-waiting/@lang: \"en\" was added\n/communication-waiting/note: \"kept by nobody\" is lost\n"},
        {"presence/rich.xml", 3, "the written text is not well-formed at 3:14: unexpected \"&b\">\"\n"},
        {"volte-config-info/typical.xml", 3, "documents of schema volte-config-info are only read\n"},
        {"reginfo/odd.xml", 1, "no XML to compare with: duplicate attribute\n"},
        {"namespaces/odd.xml", 1, "root element <a> is of no schema; ...\n"},
    };
    for (const auto& row : table) {
        const std::string file = PROJECT_DIR "/samples/" + std::string(row.sample);
        const Result result = Run("lost '" + file + '\'');
        EXPECT_EQ(result.status, row.status) << file;
        std::istringstream expected(row.lines), found(result.output + result.errors);
        std::string line;
        for (std::string want; std::getline(expected, want);) {
            std::getline(found, line);
            ASSERT_EQ(line.substr(0, file.size() + 1), file + ':');
            // Behind the place, for what is about the document.
            line = line.substr(line.find(": ") + 2);
            const std::size_t end = want.find("...");
            EXPECT_EQ(line.substr(0, end), want.substr(0, end));
        }
        EXPECT_FALSE(std::getline(found, line)) << line;
    }
}

// Three ways to the same answer: the losses, a strict conversion, and the written text, read once more and compared.
TEST_F(ToolLossTest, LostAgreesWithConvertAndDiff) {
    const std::string real = PROJECT_DIR "/../shared/samples";
    std::vector<std::string> files = DocumentsBelow(real);
    for (const std::string& file : DocumentsBelow(PROJECT_DIR "/samples")) files.push_back(file);
    std::string names;
    for (const std::string& file : files) names += " '" + file + '\'';
    for (const std::string profile : {" --profile device", " --profile standard"}) {
        const Result lost = Run("lost" + profile + names);
        const std::string told = '\n' + lost.output + lost.errors;
        const std::string strict = '\n' + Run("convert --strict" + profile + names + " >/dev/null").errors;
        for (const std::string& file : files) {
            SCOPED_TRACE(file + profile);
            const Result written = Run("convert" + profile + " '" + file + '\'');
            Write("written", written.output);
            const bool isSame = written.status == 0 && Run("diff '" + file + "' written").status == 0;
            // Behind the name there is a place or a blank.
            EXPECT_EQ(isSame, told.find('\n' + file + ':') == std::string::npos);
            EXPECT_EQ(isSame, strict.find('\n' + file + ':') == std::string::npos);
            // What other senders write goes through the standard profile as it is.
            const bool isReal = file.find(real) == 0 && profile == " --profile standard";
            EXPECT_TRUE(!isReal || written.status != 0 || isSame);
        }
    }
}

TEST_F(ToolLossTest, ConvertSaysWhatIsWrongWithItsText) {
    const Result gruu = Run("convert gruu");
    EXPECT_EQ(gruu.status, 0);
    EXPECT_EQ(gruu.errors, "gruu: warning: the written text is not well-formed at 2:29: unexpected \"&2\"/>\"\n");
    const Result strict = Run("convert --strict gruu");
    EXPECT_EQ(strict.status, 3);
    EXPECT_EQ(strict.output, gruu.output);
    EXPECT_EQ(strict.errors, gruu.errors);
    EXPECT_EQ(Run("convert --strict --profile standard gruu").status, 0);

    Write("extended", R"(<pub-gruu xmlns="urn:ietf:params:xml:ns:gruuinfo" uri="a" v="1"/>)");
    const Result extended = Run("convert --strict extended gruu");
    EXPECT_EQ(extended.status, 3);
    EXPECT_EQ(extended.output, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<pub-gruu  uri=\"a\"/>" + gruu.output);
    EXPECT_EQ(extended.errors, "extended: /pub-gruu/@v: \"1\" is lost\n" + gruu.errors);
    EXPECT_EQ(Run("convert extended").errors, "");

    // Written, but nobody can tell whether it is all.
    Write("undeclared", R"(<pub-gruu uri="a"/><x:y>)");
    const Result undeclared = Run("convert --strict undeclared");
    EXPECT_EQ(undeclared.status, 1);
    EXPECT_NE(undeclared.output, "");
    EXPECT_EQ(undeclared.errors, "undeclared:1:20: no XML to compare with: junk after document element\n");
}

#endif
