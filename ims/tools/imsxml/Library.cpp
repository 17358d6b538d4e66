#include "Library.h"

#include <cstdio>
#include <cstring>
#include <string_view>

#include "Text.h"

namespace {

constexpr char kModule[] = "<XML Module>: ";

/// Some lines hold a whole document; in the output each is one line all the same.
std::string OnOneLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (const char byte : text) {
        if (byte == '\n') {
            line += "\\n";
        } else if (byte == '\r') {
            line += "\\r";
        } else {
            line += byte;
        }
    }
    return WithoutControls(line);
}

}  // namespace

LogWatch::LogWatch(LogLines print, unsigned levels) : m_print(print) {
    ixDplHostSetLogSink(
        [](const ixDplHostLogLine& line, void* context) { static_cast<LogWatch*>(context)->Take(line); }, this,
        print != kNoLines ? kIxDplHostAllLevels : levels);
}

LogWatch::~LogWatch() { ixDplHostSetLogSink(nullptr, nullptr, 0); }

void LogWatch::Take(const ixDplHostLogLine& line) {
    if (std::strcmp(line.text, "stack overflow\n") == 0) m_tooDeep = true;
    const bool isFault = ixDplHostKindOf(line) == kIxDplHostFault;
    if (!isFault && m_print != kAllLines) return;
    const std::string text = OnOneLine(line.text);
    if (m_print != kNoLines)
        std::fprintf(stderr, "%d %d %s:%d %s\n", line.level, line.code, line.source, line.line, text.c_str());
    if (!isFault) return;
    // Which module speaks is known here.
    std::string message = text.substr(Begins(text, kModule) ? std::strlen(kModule) : 0);
    message.erase(message.find_last_not_of(' ') + 1);
    if (Has(text, "ailed") || Has(text, "issue in")) {
        // The last step is the whole document, which is no news.
        if (!Ends(text, "XML Failed!")) m_failedStep = message;
    } else {
        m_cause = message;
    }
}
