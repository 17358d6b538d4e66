// Runs the cases of the command (tests/tool): what it is given, and what it prints.
#ifdef IMSXML_TOOL

#include <cctype>
#include <sstream>
#include <utility>

#include "Scenario.h"
#include "ToolTest.h"

namespace {

/// The lines of a file from "== name" to the next.
struct Case {
    std::string path;
    std::string name;
    std::string text;
};

std::ostream& operator<<(std::ostream& stream, const Case& shown) { return stream << shown.path << ": " << shown.name; }

bool Starts(const std::string& line, const std::string& with) { return line.compare(0, with.size(), with) == 0; }

std::vector<Case> AllCases() {
    std::vector<Case> cases;
    for (const std::string& path : FilesBelow(PROJECT_DIR "/tests/tool")) {
        if (std::filesystem::path(path).extension() != ".txt") continue;
        std::istringstream lines(ReadFile(path));
        for (std::string line; std::getline(lines, line);) {
            if (Starts(line, "== ")) cases.push_back({path, line.substr(3), ""});
            if (!cases.empty() && cases.back().path == path) cases.back().text += line + '\n';
        }
    }
    return cases;
}

std::string CaseName(const testing::TestParamInfo<Case>& info) {
    std::string name = std::filesystem::path(info.param.path).stem();
    name += ' ' + info.param.name;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

/// What cannot be seen, or is not ASCII, as "\xNN".
std::string Escaped(const std::string& line) {
    static const char kDigits[] = "0123456789abcdef";
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const auto c = static_cast<unsigned char>(line[i]);
        const char next = i + 1 < line.size() ? line[i + 1] : '\n';
        const bool isSeen = c >= ' ' && c < 0x7f;
        const bool isTaken = (c == ' ' && next == '\n') || (c == '\\' && (next == '\n' || next == 'x'));
        if (isSeen && !isTaken) {
            text += line[i];
        } else {
            text += {'\\', 'x', kDigits[c >> 4U], kDigits[c & 15U]};
        }
    }
    return text;
}

std::string Unescaped(std::string line) {
    for (std::size_t at = 0; (at = line.find("\\x", at)) != std::string::npos; ++at) {
        line.replace(at, 4, 1, static_cast<char>(std::stoi(line.substr(at + 2, 2), nullptr, 16)));
    }
    return line;
}

/// Each line behind `mark`; the last one ends in a backslash if it has no line feed.
std::string Marked(const std::string& mark, const std::string& text) {
    std::string marked;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        marked += mark + (line.empty() ? "" : " " + Escaped(line)) + (lines.eof() ? "\\\n" : "\n");
    }
    return marked;
}

/// True when the text is as expected, where "..." stands for anything.
bool Matches(const std::string& text, const std::string& expected) {
    const std::size_t dots = expected.find("...");
    if (dots == std::string::npos) return text == expected;
    if (!Starts(text, expected.substr(0, dots))) return false;
    const std::string rest = expected.substr(dots + 3);
    for (std::size_t at = dots; at <= text.size(); ++at) {
        if (Matches(text.substr(at), rest)) return true;
    }
    return false;
}

/// A case for messages, which is played with either line end in its files, and with both.
const char kEveryLineEnd[] = "every line end";
const std::vector<Strings> kLineEnds = {{"\n"}, {"\r\n"}, {"\r\n", "\n"}};

class ToolCaseTest : public tool::ToolTest, public testing::WithParamInterface<Case> {
  protected:
    ToolCaseTest() { std::filesystem::create_directory_symlink(PROJECT_DIR "/samples", m_folder + "/samples"); }

    /// The case with what its commands print.
    std::string Played(const Strings& lineEnds) {
        std::string played, file, content, printed, expected;
        bool isFirst = true, hasRun = false;
        std::size_t count = 0;
        const auto endStep = [&] {
            played += Matches(printed, expected) ? expected : printed;
            printed = expected = "";
            hasRun = false;
        };
        std::istringstream lines(GetParam().text);
        for (std::string line; std::getline(lines, line);) {
            if (hasRun && (line[0] == '>' || Starts(line, "2>") || Starts(line, "? ") || line == "...")) {
                expected += line + '\n';
                continue;
            }
            endStep();
            played += line + '\n';
            if (Starts(line, "< ")) {
                file = line.substr(2);
                Write(file, content = "");
                isFirst = true;
                count = 0;
            } else if (line[0] == '|') {
                if (!std::exchange(isFirst, false)) content += lineEnds[count++ % lineEnds.size()];
                Write(file, content += Unescaped(line.substr(std::min<std::size_t>(2, line.size()))));
            } else if (Starts(line, "$ ")) {
                const tool::Result result = Shell(line.substr(2));
                if (result.status != 0) printed = "? " + std::to_string(result.status) + '\n';
                printed += Marked(">", result.output) + Marked("2>", result.errors);
                hasRun = true;
            } else {
                EXPECT_TRUE(line.empty() || line[0] == '#' || Starts(line, "== ") || line == kEveryLineEnd) << line;
            }
        }
        endStep();
        return played;
    }
};

/// Puts the case in place of what its file says of it.
void Update(const Case& old, const std::string& played) {
    std::string text = ReadFile(old.path);
    text.replace(text.find(old.text), old.text.size(), played);
    std::ofstream(old.path, std::ios::binary) << text;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Tool, ToolCaseTest, testing::ValuesIn(AllCases()), CaseName);

TEST_P(ToolCaseTest, PrintsWhatIsExpected) {
    const std::string& text = GetParam().text;
    const bool isMessage = text.find(std::string("\n") + kEveryLineEnd + '\n') != std::string::npos;
    if (UpdatesExpected()) return Update(GetParam(), Played(kLineEnds[0]));
    for (std::size_t i = 0; i < (isMessage ? kLineEnds.size() : 1); ++i) {
        EXPECT_EQ(text, Played(kLineEnds[i])) << GetParam().path << ", line ends " << i;
    }
}

#endif
