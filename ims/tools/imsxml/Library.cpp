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

LogWatch::LogWatch(bool print, unsigned levels) : m_print(print) {
    ixDplHostSetLogSink(
        [](const ixDplHostLogLine& line, void* context) { static_cast<LogWatch*>(context)->Take(line); }, this, levels);
}

LogWatch::~LogWatch() { ixDplHostSetLogSink(nullptr, nullptr, 0); }

void LogWatch::Take(const ixDplHostLogLine& line) {
    if (std::strcmp(line.text, "stack overflow\n") == 0) m_tooDeep = true;
    const std::string text = OnOneLine(line.text);
    if (m_print) std::fprintf(stderr, "%d %d %s:%d %s\n", line.level, line.code, line.source, line.line, text.c_str());
    // Which module speaks is known here.
    std::string message = text.substr(Begins(text, kModule) ? std::strlen(kModule) : 0);
    message.erase(message.find_last_not_of(' ') + 1);
    if (Has(text, "ailed")) {
        // The last step is the whole document, which is no news.
        if (!Ends(text, "XML Failed!")) m_failedStep = message;
    } else if (Has(text, "mandatory") || Has(text, "required") || (line.level >= 3 && !Ends(text, "Marshall"))) {
        // Progress has the level of refusals, too, but only the entry of a marshaller is logged where one fails.
        m_cause = message;
    }
}
