// The command imsxml, run as a user runs it.
#ifdef IMSXML_TOOL

#include "ToolTest.h"

#include <sys/stat.h>

#include <sstream>

using namespace tool;

TEST_F(ToolTest, DecodePrintsJsonOverLines) {
    const Result result = Run("decode waiting");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, R"({
  "schema": "communication-waiting",
  "file": "waiting",
  "root": {
    "class": "communication-waiting",
    "active": true,
    "attributes": [
      {
        "name": "xmlns:ss",
        "value": "http://uri.etsi.org/ngn/params/xml/simservs/xcap"
      }
    ]
  }
}
)");
}

TEST_F(ToolTest, DecodePrintsOneLineForEachOfManyFiles) {
    Write("temp", R"(<gr:temp-gruu xmlns:gr="urn:ietf:params:xml:ns:gruuinfo" uri="sip:c" first-cseq="9000000000"/>)");
    EXPECT_EQ(
        Run("decode gruu temp").output,
        std::string(kGruuLine) +
            R"({"schema":"gruu","file":"temp","root":{"class":"ix_temp_gruu","uri":"sip:c","first-cseq":9000000000}})"
            "\n");
}

TEST_F(ToolTest, TreeHasNoColourInAFile) {
    EXPECT_EQ(Run("decode --format tree waiting").output,
              "communication-waiting\n"
              "  active = true\n"
              "  attributes\n"
              "    xmlns:ss = \"http://uri.etsi.org/ngn/params/xml/simservs/xcap\"\n");
    EXPECT_EQ(Run("decode --format tree gruu gruu").output,
              "# gruu (gruu)\nix_pub_gruu  uri = \"sip:a@b;gr=1&2\"\n"
              "# gruu (gruu)\nix_pub_gruu  uri = \"sip:a@b;gr=1&2\"\n");
}

TEST_F(ToolTest, TreeOfAProvisioningDocument) {
    Write("provisioning", R"(<wap-provisioningdoc version="1.1"><characteristic type="IMS">
        <characteristic type="auth"><parm name="realm" value="ims.example.net"/></characteristic>
        <parm name="appid" value="ap2001"/><parm name="INTERNET"/><characteristic type="ext"/></characteristic>
        </wap-provisioningdoc>)");
    const Result result = Run("decode --format tree provisioning");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output,
              "ix_wap_provisioning_doc\n"
              "  version = \"1.1\"\n"
              "  characteristic \"IMS\"\n"
              "    appid = \"ap2001\"\n"
              "    parm \"INTERNET\"\n"
              "    characteristic \"auth\"\n"
              "      realm = \"ims.example.net\"\n"
              "    characteristic \"ext\"\n");
}

TEST_F(ToolTest, ColourIsForTerminalsUnlessAskedFor) {
    const std::string plain = "ix_pub_gruu  uri = \"sip:a@b;gr=1&2\"\n";
    const std::string coloured = "\033[1mix_pub_gruu\033[0m  \033[36muri\033[0m = \"sip:a@b;gr=1&2\"\n";
    unsetenv("NO_COLOR");
    setenv("TERM", "xterm", 1);
    EXPECT_EQ(Run("decode --format tree gruu").output, plain);
    EXPECT_EQ(Run("decode --format tree --color always gruu").output, coloured);
    EXPECT_EQ(Run("decode --format json --color always gruu gruu").output, std::string(kGruuLine) + kGruuLine);
    setenv("NO_COLOR", "1", 1);
    EXPECT_EQ(Run("decode --format tree --color always gruu").output, coloured);
    const std::string onTerminal = OnTerminal("decode --format tree gruu");
    if (onTerminal == kNoTerminal) GTEST_SKIP() << "this machine has no pseudo-terminals";
    EXPECT_EQ(onTerminal, plain);
    setenv("NO_COLOR", "", 1);
    EXPECT_EQ(OnTerminal("decode --format tree gruu"), coloured);
    EXPECT_EQ(OnTerminal("decode --format tree --color never gruu"), plain);
    unsetenv("NO_COLOR");
    EXPECT_EQ(OnTerminal("decode --format tree gruu"), coloured);
    setenv("TERM", "dumb", 1);
    EXPECT_EQ(OnTerminal("decode --format tree gruu"), plain);
}

TEST_F(ToolTest, WarnsOfElementsBelowTheStack) {
    std::string text;
    for (int i = 0; i < 99; ++i) text = "<characteristic>" + text + "</characteristic>";
    Write("deep", "<volte-config-info>" + text + "</volte-config-info>");
    Write("deeper", "<volte-config-info><characteristic>" + text + "</characteristic></volte-config-info>");
    EXPECT_EQ(Run("decode deep").errors, "");
    const Result result = Run("decode deeper");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors,
              "deeper: warning: nested too deep: 100 elements are under construction at a time; what lies deeper is "
              "filed in another element or lost\n");
}

TEST_F(ToolTest, BytesThatAreNotUtf8AreReplaced) {
    Write("bytes", "<pub-gruu uri=\"a\xff\"/>");
    const Result result = Run("decode --format tree bytes");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "ix_pub_gruu  uri = \"a\xef\xbf\xbd\"\n");
    EXPECT_EQ(result.errors, "bytes: warning: bytes that are not UTF-8 were replaced\n");
}

TEST_F(ToolTest, ConvertPrintsTheTextAndNothingElse) {
    EXPECT_EQ(Run("convert gruu").output,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<pub-gruu  uri=\"sip:a@b;gr=1&2\"/>");
    const Result result = Run("convert --binder other");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(
        result.output,
        "<x:communication-waiting  xmlns:x=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\"  active=\"false\"/>");
}

TEST_F(ToolTest, ConvertWarnsOfACutText) {
    Write("long", "<pub-gruu uri=\"" + std::string(40000, 'a') + "\"/>");
    const Result result = Run("convert long");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output.size(), 32767U);
    EXPECT_EQ(result.errors,
              "long: warning: the text was cut at 32767 characters, and is not well-formed at 2:1: unclosed token\n");
}

TEST_F(ToolTest, ConvertTellsWhyADocumentCannotBeWritten) {
    Write("empty", "<pub-gruu/>");
    const Result result = Run("convert empty");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "empty: schema gruu cannot write the document: AddPubGruuElementToXml: Uri is a mandatory attribute\n");
    Write("volte", "<volte-config-info/>");
    const Result readOnly = Run("convert volte waiting");
    EXPECT_EQ(readOnly.status, 3);
    EXPECT_EQ(readOnly.errors, "volte: documents of schema volte-config-info are only read\n");
    EXPECT_EQ(Run("convert --schema namespaces gruu").errors, "gruu: documents of schema namespaces are only read\n");
    // The cause is told rather than the steps that fail because of it, and those rather than nothing.
    const struct {
        const char* text;
        const char* reason;
    } cases[] = {
        {"<reginfo version='1'/>",
         "schema reginfo cannot write the document: AddReginfoElementToXml state is required"},
        {"<conference-info entity='a'><users><user entity='b'><endpoint><media/></endpoint></user></users>"
         "</conference-info>",
         "schema conference-info cannot write the document: AddMediaElementToXml: id attribute mandatory"},
        {"<presence entity='a'><tuple/></presence>",
         "schema presence cannot write the document: PresenceMarshaller XML Failed at AddTupleElementToXml!"},
        {"<isComposing/>", "schema is-composing cannot write the document: the library does not say why"},
        {"<cp:rule/>",
         "schema communication-diversion cannot write the document: AddRuleElementToXml Rule ID mandatory"},
    };
    for (const auto& c : cases) {
        Write("bad", c.text);
        const Result unwritten = Run("convert bad");
        EXPECT_EQ(unwritten.status, 3) << c.text;
        EXPECT_EQ(unwritten.errors, "bad: " + std::string(c.reason) + '\n');
    }
}

TEST_F(ToolTest, NamespacesPrintsDeclarations) {
    Write("many", R"(<a xmlns="urn:d"><b xmlns:p="urn:p" x="y"/></a>)");
    EXPECT_EQ(Run("namespaces many").output, "(default)\turn:d\np\turn:p\n");
    EXPECT_EQ(Run("namespaces many gruu").output,
              "many\t(default)\turn:d\nmany\tp\turn:p\ngruu\tgr\turn:ietf:params:xml:ns:gruuinfo\n");
    Write("none", "<a/>");
    EXPECT_EQ(Run("namespaces none").output, "");
    Write("lines", "<a xmlns:p\n = 'u\nx\ty'/>");
    EXPECT_EQ(Run("namespaces lines").output, "p\tu x y\n");
}

TEST_F(ToolTest, TheStandardProfileKeepsEverythingAndSaysWhatIsWrong) {
    const std::string document =
        "<!DOCTYPE isComposing>\n<c:isComposing xmlns:c='urn:ietf:params:xml:ns:im-iscomposing' v='1'>"
        "<c:state>a<![CDATA[&]]></c:state></c:isComposing>";
    Write("typing", document);
    EXPECT_EQ(Run("convert typing").status, 1);
    const Result converted = Run("convert --profile standard typing");
    EXPECT_EQ(converted.output,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<isComposing "
              "xmlns=\"urn:ietf:params:xml:ns:im-iscomposing\" v=\"1\"><state>a&amp;</state></isComposing>");
    EXPECT_EQ(converted.errors, "");
    EXPECT_NE(Run("decode --profile standard typing").output.find("\"kind\": \"attribute\""), std::string::npos);
    EXPECT_EQ(Run("namespaces --profile standard typing").output, "c\turn:ietf:params:xml:ns:im-iscomposing\n");
    EXPECT_EQ(Run("validate typing").errors, "typing:2:64: \"v\" is not an attribute of the standard\n");
    EXPECT_EQ(Run("validate typing").status, 1);
    Write("valid", "<isComposing xmlns='urn:ietf:params:xml:ns:im-iscomposing'><state>idle</state></isComposing>");
    EXPECT_EQ(Run("validate valid").output, "valid: valid\n");
    Write("broken", "<isComposing><state></isComposing>");
    EXPECT_EQ(Run("convert --profile standard broken").errors, "broken:1:21: not the end tag of the open element\n");
    EXPECT_EQ(Run("validate broken").status, 1);
    Write("other", "<!-- <a> --><other/>");
    EXPECT_EQ(Run("validate other").errors.rfind("other:1:13: root element <other> is of no schema", 0), 0U);
    Write("early", "no document");
    EXPECT_EQ(Run("validate early").errors, "early:1:1: text outside of the root element\n");
    Write("indication", "<3gpp-ims/>");
    EXPECT_EQ(Run("convert --profile standard indication").errors,
              "indication: schema call-waiting-indication has no standard profile\n");
}

TEST_F(ToolTest, EncodeUndoesDecode) {
    Write("text",
          "<gr:temp-gruu xmlns:gr=\"urn:ietf:params:xml:ns:gruuinfo\"\n uri=\"sip:c\" first-cseq=\"07\"><!--c-->"
          "<x:y xmlns:x=\"urn:x\"/></gr:temp-gruu>");
    for (const std::string profile : {"", " --profile standard"}) {
        const std::string documents = profile + " gruu text waiting gruu";
        const Result written = Run("convert" + documents);
        EXPECT_EQ(written.status, 0) << written.errors;
        EXPECT_EQ(Run("decode" + documents + " >json").status, 0);
        EXPECT_EQ(Run("encode" + profile + " json").output, written.output);
        EXPECT_EQ(Run("decode" + profile + " gruu | '" IMSXML_TOOL "' encode" + profile + " -").output,
                  Run("convert" + profile + " gruu").output);
    }
}

TEST_F(ToolTest, EncodeTriesEachDocument) {
    const std::string good = R"({"schema":"gruu","root":{"class":"ix_pub_gruu","uri":"a"}})";
    const std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<pub-gruu  uri=\"a\"/>";
    const std::string unwritten = R"({"schema":"gruu","root":{"class":"ix_pub_gruu"}})";
    const std::string wrong = R"({"schema":"gruu","root":{"class":"ix_pub_gruu","uri":1}})";
    Write("array", "[" + good + ",\n" + unwritten + ",\n" + wrong + ",\n" + good + "]");
    Write("lines", good + "\n" + good + "\n{]");
    const Result array = Run("encode array");
    EXPECT_EQ(array.status, 3);
    EXPECT_EQ(array.output, text + text);
    EXPECT_EQ(array.errors,
              "array: schema gruu cannot write the document: AddPubGruuElementToXml: Uri is a mandatory attribute\n"
              "array:3:48: [2].root.uri: a text is expected here and not a number\n");
    const Result lines = Run("encode lines array");
    EXPECT_EQ(lines.status, 3);
    EXPECT_EQ(lines.output, text + text + text + text);
    EXPECT_EQ(lines.errors.find("lines:3:2: no JSON: syntax error while parsing object key"), 0U) << lines.errors;
    Write("blank", " \n");
    EXPECT_EQ(Run("encode blank").errors, "blank: there is no JSON\n");
    Write("empty", "[]");
    EXPECT_EQ(Run("encode empty").status, 0);
}

TEST_F(ToolTest, ContentTypeChoosesTheSchema) {
    Write("list", "<list xmlns=\"urn:ietf:params:xml:ns:rlmi\" uri=\"sip:a\" version=\"1\" fullState=\"true\"/>");
    const std::string typed = " --content-type 'Application/RLMI+xml;charset=\"utf-8\"' list";
    for (const std::string command : {"decode", "convert", "validate"}) {
        const Result result = Run(command + typed);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.output, Run(command + " list").output);
    }
    EXPECT_NE(Run("decode --content-type application/reginfo+xml list").errors.find("of schema reginfo"),
              std::string::npos);
}

TEST_F(ToolTest, SchemasPrintsEverySchema) {
    const Result result = Run("schemas");
    EXPECT_EQ(result.status, 0);
    std::istringstream lines(result.output);
    std::string line;
    std::getline(lines, line);
    int count = 0;
    for (int id = 0; id < kXmlSchemaCount; ++id) {
        const XmlSchemaInfo* const schema = XMLFactory::SchemaInfo(id);
        if (schema == nullptr) continue;
        ++count;
        std::getline(lines, line);
        std::istringstream words(line);
        std::string number, name, access, uri, types, roots;
        words >> number >> name >> access >> uri >> types >> std::ws;
        std::getline(words, roots);
        EXPECT_EQ(number, std::to_string(id));
        EXPECT_EQ(name, schema->name);
        EXPECT_EQ(access, schema->writes ? "read/write" : "read");
        EXPECT_EQ(uri, *schema->namespaceUri != '\0' ? schema->namespaceUri : "-");
        std::replace(types.begin(), types.end(), ',', ' ');
        EXPECT_EQ(types, *schema->contentTypes != '\0' ? schema->contentTypes : "-");
        EXPECT_EQ(roots, schema->rootElements);
    }
    EXPECT_EQ(count, 26);
    EXPECT_FALSE(std::getline(lines, line));
}

// Headers and names are what a program writes, so they have to be there.
TEST_F(ToolTest, SchemasNamesWhatAProgramNeeds) {
    const Result result = Run("schemas --long");
    EXPECT_EQ(result.status, 0);
    const std::string registry = ReadFile(PROJECT_DIR "/ims/xml/include/XMLFactory.h");
    std::istringstream lines(result.output);
    std::string header, schema, number;
    int counts[3] = {};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string what, name;
        words >> what >> name;
        if (line.substr(0, 2) != "  ") {
            schema = what;
            number = name.substr(0, name.find(')')).erase(0, 1);
        } else if (what == "header") {
            header = ReadFile(PROJECT_DIR "/ims/xml/include/" + name);
        } else if (what == "enumerator") {
            ++counts[0];
            EXPECT_NE(registry.find(' ' + name + " = " + number), std::string::npos) << schema;
        } else if (what == "class") {
            ++counts[1];
            EXPECT_NE(header.find("class IX_XML_EXPORT " + name + " :"), std::string::npos) << schema << ' ' << name;
        } else if (what == "factory") {
            ++counts[2];
            EXPECT_NE(header.find("class IX_XML_EXPORT " + name + " :"), std::string::npos) << schema << ' ' << name;
        }
    }
    EXPECT_EQ(counts[0], 26);
    EXPECT_EQ(counts[1], 28) << "two schemas have two roots";
    EXPECT_EQ(counts[2], 26);
}

TEST_F(ToolTest, TheStandardInputCanBeGivenTwice) {
    const Result result = Run("decode - - < gruu");
    EXPECT_EQ(result.status, 0);
    std::string line = kGruuLine;
    line.replace(line.find("\"gruu\",\"root"), 6, "\"-\"");
    EXPECT_EQ(result.output, line + line);
}

TEST_F(ToolTest, TheWorstStatusCountsAndEveryFileIsTried) {
    Write("bad", "<pub-gruu>");
    const Result result = Run("decode bad missing gruu . bad");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, kGruuLine);
    EXPECT_EQ(result.errors,
              "bad:1:11: <pub-gruu> opened at 1:1 is never closed\nmissing: No such file or directory\n"
              ".: Is a directory\nbad:1:11: <pub-gruu> opened at 1:1 is never closed\n");
}

TEST_F(ToolTest, FilesThatCannotBeRead) {
    ASSERT_EQ(symlink("loop", (m_folder + "/loop").c_str()), 0);
    // Memory at 0, which nobody can read, not even root.
    const std::pair<const char*, const char*> cases[] = {{"missing", "No such file or directory"},
                                                         {"gruu/below", "Not a directory"},
                                                         {".", "Is a directory"},
                                                         {"loop", "Too many levels of symbolic links"},
                                                         {"/proc/self/mem", "Input/output error"}};
    for (const auto& [name, message] : cases) {
        for (const char* command : {"decode ", "convert ", "namespaces "}) {
            const Result result = Run(command + std::string(name));
            EXPECT_EQ(result.status, 2) << name;
            EXPECT_EQ(result.output, "");
            EXPECT_EQ(result.errors, std::string(name) + ": " + message + '\n');
        }
    }
    if (geteuid() == 0) return;
    Write("closed", kGruu);
    ASSERT_EQ(chmod((m_folder + "/closed").c_str(), 0), 0);
    EXPECT_EQ(Run("decode closed").errors, "closed: Permission denied\n");
}

TEST_F(ToolTest, TheTimeLimitEndsAFile) {
    // Nobody ever writes to it.
    ASSERT_EQ(mkfifo((m_folder + "/pipe").c_str(), 0600), 0);
    const Result result = Run("decode --timeout 0.5 pipe gruu");
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.output, kGruuLine);
    EXPECT_EQ(result.errors,
              "pipe: no result after 0.5 s: the file did not come to its end; it may need a longer --timeout\n");
    EXPECT_EQ(Run("decode --timeout 0 gruu").status, 0);
}

TEST_F(ToolTest, TheTimeLimitEndsTheWalksWithoutEnd) {
    Write("service", "<simservs><vendor service=\"communication-waiting\"></vendor></simservs>");
    const Result decoded = Run("decode --timeout 1 service gruu");
    EXPECT_EQ(decoded.status, 4);
    EXPECT_EQ(decoded.output, kGruuLine);
    EXPECT_EQ(decoded.errors,
              "service: no result after 1 s: the document makes the decoder run without end, or it needs a longer "
              "--timeout\n");
    Write("rule",
          "<incoming-communication-barring><cp:ruleset><cp:rule id='a'><cp:conditions><cp:identity><cp:many/><cp:many/>"
          "<cp:many><cp:except id='b'/></cp:many></cp:identity></cp:conditions></cp:rule></cp:ruleset>"
          "</incoming-communication-barring>");
    EXPECT_EQ(Run("decode rule").status, 0);
    const Result converted = Run("convert --timeout 1 rule");
    EXPECT_EQ(converted.status, 4);
    EXPECT_EQ(converted.output, "");
    EXPECT_EQ(converted.errors,
              "rule: no result after 1 s: decoded, but writing it runs without end, or it needs a longer --timeout\n");
}

TEST_F(ToolTest, WrongUsage) {
    for (const char* arguments : {"", "decode", "undo gruu", "decode --format yaml gruu", "decode --color maybe gruu",
                                  "decode --timeout x gruu", "decode --schema gru gruu", "decode gruu ''"}) {
        const Result result = Run(arguments);
        EXPECT_EQ(result.status, 2) << arguments;
        EXPECT_EQ(result.output, "") << arguments;
        EXPECT_EQ(result.errors.find("imsxml: "), 0U) << arguments;
        EXPECT_EQ(result.errors.find('\n'), result.errors.size() - 1) << arguments;
    }
    EXPECT_EQ(Run("decode --schema gru gruu").errors, "imsxml: no schema has the name \"gru\"; the nearest: gruu\n");
    EXPECT_EQ(Run("undo gruu").errors, "imsxml: \"undo\" is no command; see imsxml --help\n");
    EXPECT_EQ(Run("schemas --json gru").errors, Run("decode --schema gru gruu").errors);
    EXPECT_EQ(Run("validate --content-type text/plain gruu").errors,
              "imsxml: no schema has the content type \"text/plain\"\n");
    EXPECT_EQ(Run("decode --schema gruu --content-type message/imdn+xml gruu").status, 2);
    EXPECT_EQ(Run("convert --format tree gruu").errors,
              "imsxml: The following argument was not expected: --format; see imsxml convert --help\n");
}

TEST_F(ToolTest, HelpAndVersion) {
    const std::pair<const char*, const char*> table[] = {{"--help", "Exit status"},
                                                         {"decode --help", "one object per file"},
                                                         {"convert --help", "without a line feed"},
                                                         {"encode --help", "as decode prints it"},
                                                         {"validate --help", "FILE: valid"},
                                                         {"namespaces --help", "one line per declaration"},
                                                         {"lost --help", "Nothing lost"},
                                                         {"diff --help", "no difference"},
                                                         {"schemas --help", "one line per schema"}};
    for (const auto& [arguments, phrase] : table) {
        const Result result = Run(arguments);
        EXPECT_EQ(result.status, 0) << arguments;
        EXPECT_NE(result.output.find("Example"), std::string::npos) << arguments;
        EXPECT_NE(result.output.find(phrase), std::string::npos) << arguments;
    }
    EXPECT_EQ(Run("--version").output, "imsxml 0.1.0\n");
}

TEST_F(ToolTest, LogPrintsTheLibrarysLines) {
    const Result result = Run("decode --log gruu");
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.errors.find("\n3 6053 ims/xml/src/XmlDecoder:450 <XML Decoder>:Decoder Success\n"),
              std::string::npos);
    EXPECT_EQ(Run("decode --log=faults gruu").errors, "");
    Write("empty", "<pub-gruu/>");
    const std::string fault = "3 6070 ims/xml/src/XMLGruu:";
    EXPECT_EQ(Run("convert --log=faults empty").errors.substr(0, fault.size()), fault);
    EXPECT_EQ(Run("decode --log=some gruu").status, 2);
}

TEST_F(ToolTest, LeaksPrintsWhatIsAlive) {
    EXPECT_EQ(Run("convert --leaks waiting").errors,
              "waiting: 0 objects and 0 heap blocks alive, 0 double and 0 unknown removals\n");
    Write("bad", "<pub-gruu uri=\"a\">");
    const Result result = Run("decode --leaks bad");
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.errors.find("bad: module 14 ims/xml/src/"), std::string::npos);
    EXPECT_NE(result.errors.find("bad: 1 objects and "), std::string::npos);
}

TEST_F(ToolTest, EachFaultHasItsMessageAndPlace) {
    const struct {
        const char* text;
        const char* message;
    } cases[] = {
        {"<a>\n <b>\n</c></a>", "3:1: end tag </c> does not match <b> opened at 2:2"},
        {"\n</a>", "2:1: end tag </a>, but no element is open"},
        {"<a>\xc3\xa9<b x=y/></a>", "1:5: attribute \"x\" of <b> has a value without quotes"},
        {"<a><b x=\"1\" y/></a>", "1:4: attribute \"y\" of <b> has no \"=\""},
        {"<a><b x= \"1\" y/></a>", "1:4: attribute \"y\" of <b> has no \"=\""},
        {"<b x=\"y/></b>", "1:1: attribute \"x\" of <b> has no closing quote before the next \">\""},
        {"<b \"y\"/>", "1:1: attribute without a name in <b>"},
        {"<a\n<b></b></a>", "1:1: start tag <a> has no \">\" before the next \"<\""},
        {"<a>\n< ></a>", "2:1: tag without a name"},
        {"<a><?xml version=\"1.0\"?></a>",
         "1:4: declaration <?xml version=\"1.0\"?> after the root element has started"},
        {"<?xml version=\"1.0\"><a/>", "1:1: declaration is not closed by \"?>\""},
        {"<a><!-- 1 > 0 --></a>", "1:4: comment contains \">\", which the decoder takes for its end"},
        {"<a><!-- 1 </a>", "1:4: comment is never closed"},
        {"<a><!-- 1", "1:4: comment is never closed"},
        {"<!DOCTYPE a>\n<a/>", "1:1: document type <!DOCTYPE, which is not supported"},
        {"<!DOCTYPE a SYSTEM \"b\"><a/>", "1:1: document type <!DOCTYPE, which is not supported"},
        {"<a>\n  <![CDATA[x]]></a>", "2:3: CDATA section <![CDATA[, which is not supported"},
        {"<a><![CDATA[x y]]></a>", "1:4: CDATA section <![CDATA[, which is not supported"},
        {"<a>\n<b x=\"1\"", "2:1: the text ends inside this tag"},
        {"<a>\n<b></b>\n", "3:1: <a> opened at 1:1 is never closed"},
        {"hello > world", " no element found; this is no XML document"},
        {"", " the file is empty"},
        {"<a/>", "1:1: root element <a> is not <pub-gruu> or <temp-gruu> of schema gruu"},
        {kWaiting,
         "1:1: root element <ss:communication-waiting> is not <pub-gruu> or <temp-gruu> of schema gruu, but of schema "
         "communication-waiting"},
    };
    for (const auto& fault : cases) EXPECT_EQ(MessageFor(fault.text), fault.message);
    EXPECT_EQ(MessageFor(std::string("<a>\0</a>", 8)), "1:4: NUL byte at offset 3, where the decoder would stop");
    EXPECT_EQ(MessageFor(std::string("\xff\xfe<\0a\0", 6)), " UTF-16, which no decoder reads");
}

TEST_F(ToolTest, PrefixesThatTheSchemaDoesNotKnow) {
    const std::string start = "1:1: root element <x:communication-waiting> is ";
    const std::string unknown =
        start + "not understood by schema communication-waiting: it does not know the prefix \"x\"";
    EXPECT_EQ(MessageFor(kOtherPrefix, "decode"), unknown + "; --binder gives it the document's own declarations");
    EXPECT_EQ(Run("decode --binder other").status, 0);
    // It is advised only when it helps: most services of a document are read without it.
    const std::string services = "<x:simservs xmlns:x='http://uri.etsi.org/ngn/params/xml/simservs/xcap'>";
    const std::string root =
        "1:1: root element <x:simservs> is not understood by schema simservs: it does not know the prefix \"x\"";
    EXPECT_EQ(MessageFor(services + "<x:communication-waiting/></x:simservs>", "decode"), root);
    EXPECT_EQ(MessageFor(services + "<x:originating-identity-presentation/></x:simservs>", "decode"),
              root + "; --binder makes some of its services readable, --profile standard all of them");
    // A binder has no more than what is declared.
    const char undeclared[] = "<x:communication-waiting/>";
    EXPECT_EQ(MessageFor(undeclared, "decode"), unknown + ", which the element does not declare");
    EXPECT_EQ(MessageFor(undeclared, "decode --binder"), unknown + ", which the element does not declare");
    EXPECT_EQ(
        MessageFor("<x:communication-waiting xmlns:x='urn:x'/>", "decode --binder --schema communication-waiting"),
        start +
            "of namespace \"urn:x\", not of \"http://uri.etsi.org/ngn/params/xml/simservs/xcap\" as in "
            "schema communication-waiting");
    // This schema takes no binder.
    EXPECT_EQ(MessageFor("<x:volte-config-info xmlns:x='urn:x'/>", "decode"),
              "1:1: root element <x:volte-config-info> is not understood by schema volte-config-info: it does not know "
              "the prefix \"x\"");
    EXPECT_EQ(MessageFor("<rule id='a'/>", "decode"),
              "1:1: root element <rule> is not understood by schema communication-diversion without a prefix");
    EXPECT_EQ(MessageFor("<cp:rule xmlns:cp='urn:x'/>", "decode"),
              "1:1: root element <cp:rule> is of namespace \"urn:x\", not of \"urn:ietf:params:xml:ns:common-policy\" "
              "as in schema communication-diversion");
}

TEST_F(ToolTest, EverySampleHasItsSchemaWithoutBeingTold) {
    int schemas = 0;
    for (int id = 0; id < kXmlSchemaCount; ++id) {
        const XmlSchemaInfo* const schema = XMLFactory::SchemaInfo(id);
        // Any document is one of declarations; that is asked for by its own command.
        if (schema == nullptr || id == IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL) continue;
        ++schemas;
        std::string samples;
        const std::vector<std::string> files = FilesBelow(PROJECT_DIR "/samples/" + std::string(schema->name));
        for (const std::string& file : files) samples += " '" + file + '\'';
        const Result result = Run("decode --binder" + samples);
        EXPECT_EQ(result.status, 0) << result.errors;
        std::istringstream lines(result.output);
        std::size_t count = 0;
        for (std::string line; std::getline(lines, line); ++count)
            EXPECT_EQ(line.find("{\"schema\":\"" + std::string(schema->name) + '"'), 0U) << line;
        EXPECT_GE(count, 3U) << schema->name;
        EXPECT_EQ(count, files.size());
    }
    EXPECT_EQ(schemas, 25);
}

TEST_F(ToolTest, PartsOfARuleGoByWhatTheRuleDoes) {
    const std::pair<const char*, const char*> cases[] = {
        {"<cp:rule id='a'><cp:actions><ss:allow>false</ss:allow></cp:actions></cp:rule>", "communication-barring"},
        {"<cp:rule id='a'><cp:actions><forward-to><target>t</target></forward-to></cp:actions></cp:rule>",
         "communication-diversion"},
        {"<cp:conditions allow='x'><ss:busy/></cp:conditions>", "communication-diversion"},
    };
    for (const auto& [text, schema] : cases) {
        Write("rule", text);
        EXPECT_NE(Run("decode rule").output.find("\"schema\": \"" + std::string(schema) + '"'), std::string::npos)
            << text;
    }
}

TEST_F(ToolTest, RootsWithoutASchema) {
    EXPECT_EQ(MessageFor("<!-- c --><p:pub-gru/>", "decode"),
              "1:11: root element <p:pub-gru> is of no schema; the nearest: gruu (<pub-gruu>)");
    EXPECT_EQ(
        MessageFor("<pub-gruu xmlns='urn:x' uri='a'/>", "convert"),
        "1:1: root element <pub-gruu> is of namespace \"urn:x\", not of \"urn:ietf:params:xml:ns:gruuinfo\" as in "
        "schema gruu");
    // A default namespace that was taken away counts as none.
    Write("undeclared", "<pub-gruu xmlns='' uri='a'/>");
    EXPECT_EQ(Run("decode undeclared").status, 0);
    EXPECT_EQ(MessageFor("<pub-gruu uri='a'></pub-gruu >", "decode"),
              "1:19: end tag </pub-gruu > has a blank before \">\", which is not supported");
    // A message has one line, whole characters, and nothing that a terminal obeys.
    std::string longName = "a\x7f\xc2\x9b";
    while (longName.size() < 100) longName += "\xc3\xa4";
    EXPECT_NE(MessageFor('<' + longName + "/>", "decode").find("<a\\u007f\\u009b\xc3\xa4"), std::string::npos);
    EXPECT_NE(MessageFor('<' + longName + "/>", "decode").find("\xc3\xa4...>"), std::string::npos);
    EXPECT_EQ(MessageFor("<a><b></a>", "namespaces"), "1:7: end tag </a> does not match <b> opened at 1:4");
}

TEST_F(ToolTest, LostOutputIsAnError) {
    for (const char* const command :
         {"decode gruu", "convert waiting", "diff gruu other", "schemas", "--help", "decode --help"}) {
        const Result result = Run(std::string(command) + " >/dev/full");
        EXPECT_EQ(result.status, 2) << command;
        EXPECT_EQ(result.errors, "imsxml: standard output: No space left on device\n") << command;
    }
    // Nobody reads on: the other files are not tried.
    EXPECT_EQ(Run("decode gruu gruu gruu >/dev/full").errors, "imsxml: standard output: No space left on device\n");
}

TEST_F(ToolTest, AnIgnoredEndOfChildrenAndBracketsInNamesDoNotMatter) {
    Write("[a,b]", kGruu);
    const std::string command =
        "cd '" + m_folder + "' && trap '' CHLD && exec '" IMSXML_TOOL "' decode '[a,b]' >out 2>err";
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 0);
    EXPECT_EQ(ReadFile(m_folder + "/err"), "");
    EXPECT_NE(ReadFile(m_folder + "/out").find("ix_pub_gruu"), std::string::npos);
}

TEST_F(ToolTest, WarnsOfATextThatIsNotWellFormed) {
    Write("rule",
          "<cp:rule id='a' xmlns:cp='urn:ietf:params:xml:ns:common-policy'><cp:conditions><cp:validity>"
          "<cp:from>now</cp:from></cp:validity></cp:conditions></cp:rule>");
    const Result result = Run("convert rule");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "<cp:rule id=\"a\">\n<cp:conditions>\n<cp:validity></cp:rule>");
    EXPECT_EQ(result.errors,
              "rule: warning: the written text is not well-formed at 3:16: mismatched tag; Validity element - "
              "m_fromListCount: 1, m_untilListCount: 0\n");
}

#endif
