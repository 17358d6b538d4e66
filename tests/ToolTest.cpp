// The command imsxml, run as a user runs it, where its input is made here, or time and terminals matter. The other
// cases are data (tests/tool).
#ifdef IMSXML_TOOL

#include "ToolTest.h"

#include <sys/stat.h>

#include <sstream>

using namespace tool;

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

TEST_F(ToolTest, ConvertWarnsOfACutText) {
    Write("long", "<pub-gruu uri=\"" + std::string(40000, 'a') + "\"/>");
    const Result result = Run("convert long");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output.size(), 32767U);
    EXPECT_EQ(result.errors,
              "long: warning: the text was cut at 32767 characters, and is not well-formed at 2:1: unclosed token\n");
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

TEST_F(ToolTest, FilesThatMustNotBeRead) {
    if (geteuid() == 0) GTEST_SKIP() << "root may read everything";
    Write("closed", kGruu);
    ASSERT_EQ(chmod((m_folder + "/closed").c_str(), 0), 0);
    EXPECT_EQ(Run("decode closed").errors, "closed: Permission denied\n");
}

TEST_F(ToolTest, TheTimeLimitEndsAFile) {
    // Nobody ever writes to it.
    ASSERT_EQ(mkfifo((m_folder + "/pipe").c_str(), 0600), 0);
    const Result result = Run("decode --timeout 2 pipe gruu");
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.output, kGruuLine);
    EXPECT_EQ(result.errors,
              "pipe: no result after 2 s: the file did not come to its end; it may need a longer --timeout\n");
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

// A message has one line, whole characters, and nothing that a terminal obeys.
TEST_F(ToolTest, LongNamesAreCutInMessages) {
    std::string longName = "a\x7f\xc2\x9b";
    while (longName.size() < 100) longName += "\xc3\xa4";
    Write("bad", '<' + longName + "/>");
    const std::string errors = Run("decode bad").errors;
    EXPECT_EQ(errors.find("bad:1:1: root element <a\\u007f\\u009b\xc3\xa4"), 0U);
    EXPECT_NE(errors.find("\xc3\xa4...>"), std::string::npos);
    EXPECT_EQ(errors.find('\n'), errors.size() - 1);
}

TEST_F(ToolTest, AnIgnoredEndOfChildrenAndBracketsInNamesDoNotMatter) {
    Write("[a,b]", kGruu);
    const std::string command =
        "cd '" + m_folder + "' && trap '' CHLD && exec '" IMSXML_TOOL "' decode '[a,b]' >out 2>err";
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 0);
    EXPECT_EQ(ReadFile(m_folder + "/err"), "");
    EXPECT_NE(ReadFile(m_folder + "/out").find("ix_pub_gruu"), std::string::npos);
}

#endif
