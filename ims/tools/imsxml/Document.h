/// @file
/// The text of a document, and how the tool speaks of its places and its faults.
#ifndef IMSXML_TOOL_DOCUMENT_H
#define IMSXML_TOOL_DOCUMENT_H

#include <cstddef>
#include <string>

/// What the tool ends with. Of several documents the highest counts.
enum ExitStatus { kDone = 0, kNotDecoded = 1, kWrongUsage = 2, kNotMarshalled = 3, kTimeLimit = 4 };

constexpr std::size_t kNoOffset = std::string::npos;

/// Ends the work on one document.
struct DocumentError {
    ExitStatus status;
    std::string message;             ///< "": all is said.
    std::size_t offset = kNoOffset;  ///< Of the byte that is at fault, when it is known.
    std::string place{};             ///< "LINE:COLUMN", where that is known in place of the offset.
    std::string output{};            ///< What goes to the standard output all the same.
};

struct Document {
    std::string name;  ///< As the caller gave it; "-" is the standard input.
    std::string text;

    /// "LINE:COLUMN", both from 1; columns count characters, as editors do.
    std::string PlaceOf(std::size_t offset) const;
    /// "FILE: message", or "FILE:LINE:COLUMN: message".
    std::string Describe(const DocumentError& error) const;
};

/// @return the text of a file, "-" being the standard input. Throws `DocumentError` when it cannot be read.
std::string ReadText(const std::string& name);

/// Throws `DocumentError` for a text that no decoder would see to its end.
void RequireText(const std::string& text);

#endif
