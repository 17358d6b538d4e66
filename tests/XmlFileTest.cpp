#include <cerrno>
#include <filesystem>
#include <fstream>

#include "XMLFile.h"
#include "XmlTest.h"

namespace {

struct Message {
    int line;
    const char* text;
};
constexpr Message kRead = {84, "XMLFile::Read() - Successful"};
constexpr Message kNotRead = {88, "XMLFile::Read() - UnSuccessful"};
constexpr Message kNoMemory = {94, "XMLFile::Read() - m_pFileData - Malloc cannot allocate memory"};
constexpr Message kNoInfo = {101, "XMLFile::Read() - Error pSpecificInfo is NULL"};
constexpr Message kReadNotOpened = {108, "XMLFile::Read()- File Opening failed"};
constexpr Message kNotWritten = {122, "XMLFile::Write - File Writing failed"};
constexpr Message kWriteNotOpened = {128, "XMLFile::Write - File Opening failed"};
constexpr Message kNoName = {144, "XMLFile::Init() - invalid filename"};
constexpr Message kOpenedToWrite = {175, "XMLFile::Init() - Opened file "};
constexpr Message kOpenedForBoth = {202, "XMLFile::Init() - Opened file "};

constexpr auto kUnknownMode = static_cast<eXMLFileAccessMode>(3);

class XmlFileTest : public XmlTest {
  protected:
    void SetUp() override {
        ASSERT_NE(mkdtemp(&m_folder[0]), nullptr);
        m_path = m_folder + "/file";
    }
    void TearDown() override {
        std::filesystem::remove_all(m_folder);
        XmlTest::TearDown();
    }
    void Store(const std::string& text) { std::ofstream(m_path, std::ios::binary) << text; }
    /// Compares the lines since the last call.
    void ExpectLogged(const std::vector<Message>& messages) {
        std::vector<LogLine> expected;
        for (const Message& message : messages) {
            expected.push_back({2, 6070, "ims/xml/src/XMLFile", message.line, message.text});
        }
        EXPECT_EQ(Log(), expected);
        ClearLog();
    }

    std::string m_folder = testing::TempDir() + "xmlfileXXXXXX";
    std::string m_path;
};

TEST_F(XmlFileTest, AFileIsReadWholeAndEndsInANul) {
    Store(std::string("<a>\0</a>", 8) + std::string(5000, 'x'));
    XMLFile file(m_path.c_str(), eXMLFileRead);
    const char* text = file.Read();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(std::string(text, 5009), std::string("<a>\0</a>", 8) + std::string(5000, 'x') + '\0');
    ExpectLogged({kRead});
    // Reading again opens again, so that it sees what has been stored since.
    Store("<b/>");
    EXPECT_STREQ(file.Read(), "<b/>");
    ExpectLogged({kRead});
    EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 3U);  // Name, buffer, size record.
    EXPECT_EQ(file.CloseFile(), 1);
    EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 1U);
    EXPECT_EQ(file.CloseFile(), 1);
    ExpectLogged({});
}

TEST_F(XmlFileTest, WrittenTextIsReadBack) {
    XMLFile file(m_path.c_str(), eXMLFileWrite);
    EXPECT_EQ(file.Write("<long/>"), 1);
    ExpectLogged({kOpenedToWrite});
    EXPECT_EQ(file.Write("<a/>"), 1);
    file.CloseFile();
    EXPECT_EQ(ReadFile(m_path), "<a/>");
    ClearLog();
    XMLFile both(m_path.c_str(), eXMLFileReadWrite);
    EXPECT_EQ(both.Write("<b"), 1);
    EXPECT_STREQ(both.Read(), "<b/>");
    ExpectLogged({kOpenedForBoth, kOpenedForBoth, kRead});
    both.CloseFile();
}

TEST_F(XmlFileTest, WhatCannotBeOpenedIsLoggedWithTheError) {
    const std::string missing = m_folder + "/no/file";
    const std::string error = "[" + std::to_string(ENOENT) + "]";
    struct {
        const char* name;
        eXMLFileAccessMode mode;
        int line;
        std::string text;
    } const table[] = {
        {nullptr, eXMLFileRead, kNoName.line, kNoName.text},
        {nullptr, kUnknownMode, kNoName.line, kNoName.text},
        {missing.c_str(), eXMLFileRead, 152, "XMLFile::Init() - Error opening file " + error},
        {missing.c_str(), eXMLFileWrite, 179, "XMLFile::Init() - Unable to open file for write " + error + " "},
        {missing.c_str(), eXMLFileReadWrite, 206,
         "XMLFile::Init() - Unable to open file for Read and Write " + error + " "},
        {m_folder.c_str(), eXMLFileRead, 152, "XMLFile::Init() - Error opening file [" + std::to_string(EISDIR) + "]"},
    };
    for (const auto& row : table) {
        XMLFile file(row.name, row.mode);
        const Message reason = {row.line, row.text.c_str()};
        EXPECT_EQ(file.OpenFile(), 0U);
        ExpectLogged({reason});
        EXPECT_EQ(file.Read(), nullptr);
        ExpectLogged({reason, kReadNotOpened});
        EXPECT_EQ(file.Write("x"), 0);
        ExpectLogged({reason, kWriteNotOpened});
    }
}

TEST_F(XmlFileTest, ReadsThatYieldNothingCloseTheFile) {
    struct {
        const char* text;
        eXMLFileAccessMode mode;
        std::vector<Message> messages;
    } const table[] = {
        {"", eXMLFileRead, {kNotRead}},
        {"", eXMLFileReadWrite, {kOpenedForBoth, kNotRead}},
        {"<a/>", eXMLFileWrite, {kOpenedToWrite, kNotRead}},  // Opening it to write has emptied it.
        {"<a/>", kUnknownMode, {kNoInfo}},
    };
    for (const auto& row : table) {
        Store(row.text);
        XMLFile file(m_path.c_str(), row.mode);
        EXPECT_EQ(file.Read(), nullptr);
        ExpectLogged(row.messages);
        EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 1U);
    }
    XMLFile file(m_path.c_str(), eXMLFileRead);
    ixDplHostFailAllocation(2);  // The first one is the size record's.
    EXPECT_EQ(file.Read(), nullptr);
    ExpectLogged({kNoMemory});
    EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 1U);
}

TEST_F(XmlFileTest, AnUnknownModeOpensNothingAndSaysItDid) {
    XMLFile file(m_path.c_str(), kUnknownMode);
    EXPECT_EQ(file.OpenFile(), 1U);
    ExpectLogged({});
    EXPECT_EQ(file.Write("x"), 0);
    ExpectLogged({kNotWritten});
    EXPECT_FALSE(std::filesystem::exists(m_path));
}

TEST_F(XmlFileTest, AFileOpenedToReadIsNotWritten) {
    Store("<a/>");
    XMLFile file(m_path.c_str(), eXMLFileRead);
    EXPECT_EQ(file.OpenFile(), 1U);
    ExpectLogged({});
    EXPECT_EQ(file.Write("x"), 0);
    ExpectLogged({kNotWritten});
    file.CloseFile();
    EXPECT_EQ(ReadFile(m_path), "<a/>");
}

}  // namespace
