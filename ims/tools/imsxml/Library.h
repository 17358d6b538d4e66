/// @file
/// The library's objects and log lines, as the commands hold them.
#ifndef IMSXML_TOOL_LIBRARY_H
#define IMSXML_TOOL_LIBRARY_H

#include <string>

#include "XMLFactory.h"
#include "ixDplHost.h"

/// Which of the library's log lines go to the standard error.
enum LogLines { kNoLines, kFaultLines, kAllLines };

/// Follows the library's log lines for as long as it lives.
class LogWatch {
  public:
    /// @param levels bit n stands for level n; those of lines to print are followed anyway.
    explicit LogWatch(LogLines print, unsigned levels = kIxDplHostAllLevels);
    ~LogWatch();
    LogWatch(const LogWatch&) = delete;
    LogWatch& operator=(const LogWatch&) = delete;

    /// What the library says of a failed `Marshall`: the last cause, or else the last step that failed; "": neither.
    const std::string& Reason() const { return m_cause.empty() ? m_failedStep : m_cause; }
    /// True when a document had more objects under construction than a decoder holds. The line has level 2.
    bool IsTooDeep() const { return m_tooDeep; }

  private:
    void Take(const ixDplHostLogLine& line);

    LogLines m_print;
    bool m_tooDeep = false;
    std::string m_cause;
    std::string m_failedStep;
};

#endif
