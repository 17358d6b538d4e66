#include "XmlTest.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <set>

std::ostream& operator<<(std::ostream& stream, const LogLine& line) {
    return stream << line.level << ' ' << line.code << ' ' << line.source << ':' << line.line << ' ' << line.text;
}

XmlTest::XmlTest() {
    ixDplHostEnableLedger(true);
    ixDplHostSetLogSink(
        [](const ixDplHostLogLine& line, void* context) {
            auto* const test = static_cast<XmlTest*>(context);
            const std::lock_guard<std::mutex> lock(test->m_mutex);
            test->m_log.push_back({line.level, line.code, line.source, line.line, line.text});
        },
        this, kIxDplHostAllLevels);
}

XmlTest::~XmlTest() {
    ixDplHostStopCounting();
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    ixDplHostEnableLedger(false);
}

void XmlTest::TearDown() {
    const ixDplHostLedgerTotals totals = ixDplHostLedger();
    EXPECT_EQ(totals.liveObjects, 0U);
    EXPECT_EQ(totals.liveHeapBlocks, 0U);
    EXPECT_EQ(totals.doubleRemovals, 0U);
    EXPECT_EQ(totals.unknownRemovals, 0U);
    if (totals.liveObjects != 0) ixDplHostDumpLedger(stderr);
}

std::vector<LogLine> XmlTest::Log() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_log;
}

std::vector<LogLine> XmlTest::LogOf(const std::string& file) {
    std::vector<LogLine> lines = Log();
    const std::string source = "ims/xml/src/" + file;
    lines.erase(std::remove_if(lines.begin(), lines.end(), [&](const LogLine& line) { return line.source != source; }),
                lines.end());
    return lines;
}

std::vector<LogLine> XmlTest::LogOfSchemas() {
    static const std::set<std::string> others = {"ims/xml/src/XmlDecoder", "ims/xml/src/ixXMLDocGenerator",
                                                 "ims/xml/src/XMLList", "ims/xml/src/XMLFile"};
    std::vector<LogLine> lines = Log();
    lines.erase(
        std::remove_if(lines.begin(), lines.end(), [](const LogLine& line) { return others.count(line.source) != 0; }),
        lines.end());
    return lines;
}

std::vector<std::string> XmlTest::LevelsAndTexts(const std::vector<LogLine>& log) {
    std::vector<std::string> lines;
    for (const LogLine& line : log) lines.push_back(std::to_string(line.level) + ' ' + line.text);
    return lines;
}

std::vector<std::string> XmlTest::NewLinesOf(const std::string& file) {
    std::vector<std::string> lines = LevelsAndTexts(LogOf(file));
    ClearLog();
    return lines;
}

std::vector<std::string> XmlTest::Texts() {
    std::vector<std::string> texts;
    for (const LogLine& line : Log()) texts.push_back(line.text);
    return texts;
}

bool XmlTest::Logged(const std::string& text) {
    const std::vector<std::string> texts = Texts();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

void XmlTest::ClearLog() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_log.clear();
}

void XmlTest::LogNowhere() {
    ixDplHostSetLogSink([](const ixDplHostLogLine&, void*) {}, nullptr, kIxDplHostAllLevels);
}

void XmlTest::ReleaseLeftovers() {
    if (ixDplHostLedger().liveHeapBlocks != 0) ixDplHostReleaseHeap();
}

void XmlTest::ExpectLeftBehind(std::size_t objects) {
    EXPECT_EQ(ixDplHostLedger().liveObjects, objects);
    ixDplHostReleaseHeap();
}

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> FilesBelow(const std::string& folder) {
    std::vector<std::string> files;
    std::error_code none;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder, none)) {
        if (entry.is_regular_file()) files.push_back(entry.path().string());
    }
    std::sort(files.begin(), files.end());
    return files;
}
