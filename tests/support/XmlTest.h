// The fixture of all tests: captured log lines, and a memory ledger that must be empty at the end.
#ifndef XML_TEST_H
#define XML_TEST_H

#include <gtest/gtest.h>

#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

#include "XMLFactory.h"
#include "ixDplHost.h"

/// A captured log line.
struct LogLine {
    int level;
    int code;
    std::string source;
    int line;
    std::string text;
};

inline bool operator==(const LogLine& left, const LogLine& right) {
    return left.level == right.level && left.code == right.code && left.source == right.source &&
           left.line == right.line && left.text == right.text;
}

std::ostream& operator<<(std::ostream& stream, const LogLine& line);

class XmlTest : public testing::Test {
  public:
    XmlTest();
    ~XmlTest() override;

  protected:
    void TearDown() override;

    /// The lines logged since the start or the last `ClearLog`.
    std::vector<LogLine> Log();
    /// The lines of one source file, "XMLList" for example.
    std::vector<LogLine> LogOf(const std::string& file);
    /// The lines of the schemas: without those of tokenizer, generator, lists and files, which have tests of their own.
    std::vector<LogLine> LogOfSchemas();
    /// Frees what a document has left to nobody, if anything.
    static void ReleaseLeftovers();
    /// "level text" of each line.
    static std::vector<std::string> LevelsAndTexts(const std::vector<LogLine>& log);
    /// "level text" of each line of one source file since the last call; forgets all lines.
    std::vector<std::string> NewLinesOf(const std::string& file);
    /// The texts of all lines.
    std::vector<std::string> Texts();
    /// True when a line with exactly this text was logged.
    bool Logged(const std::string& text);
    void ClearLog();
    /// From now on lines are made, but not kept: for what logs much.
    static void LogNowhere();

    /// For an operation that leaves memory to nobody: checks that this many objects are alive, and frees everything.
    void ExpectLeftBehind(std::size_t objects);

  private:
    std::mutex m_mutex;
    std::vector<LogLine> m_log;
};

/// The whole file; fails the test when it cannot be read.
std::string ReadFile(const std::string& path);

/// The files of a folder and its sub-folders, sorted; empty when there is no such folder.
std::vector<std::string> FilesBelow(const std::string& folder);

/// Appends to a list, which is created on first use. @return 1, or 0 without memory.
inline int ixAppend(IxSingleElementList*& list, void* entry, const char* source, int line) {
    if (list == nullptr) list = ixNew<IxSingleElementList>(source, line);
    return list != nullptr && list->Add(entry) != 0 ? 1 : 0;
}

#endif
