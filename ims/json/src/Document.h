/// @file
/// The text of a document, and how the tool speaks of its places and its faults.
#ifndef IMSXML_JSON_DOCUMENT_H
#define IMSXML_JSON_DOCUMENT_H

#include <cstddef>
#include <string>

/// What the tool ends with. Of several documents the highest counts.
enum ExitStatus { kDone = 0, kNotDecoded = 1, kWrongUsage = 2, kNotMarshalled = 3, kTimeLimit = 4 };

constexpr std::size_t kNoOffset = std::string::npos;

/// A place in a text, both from 1 on; 0: none.
struct TextPlace {
    int line = 0;
    int column = 0;  ///< In characters, as editors count.
};

/// Ends the work on one document.
struct DocumentError {
    ExitStatus status;
    std::string message;             ///< "": all is said.
    std::size_t offset = kNoOffset;  ///< Of the byte that is at fault, when it is known.
    TextPlace place{};               ///< Where that is known in place of the offset.
    std::string output{};            ///< What was done before, and counts all the same.
};

struct Document {
    std::string name;  ///< As the caller gave it; "-" is the standard input.
    std::string text;
    int line = 1;  ///< That of its first byte, in the file that it is a part of.

    TextPlace PlaceAt(std::size_t offset) const;
    /// "LINE:COLUMN".
    std::string PlaceOf(std::size_t offset) const;
    /// "FILE: message", or "FILE:LINE:COLUMN: message".
    std::string Describe(const DocumentError& error) const;
};

/// Throws `DocumentError` for a text that is empty, or longer than a decoder takes.
void RequireLength(const std::string& text);

/// The same, and for a text that no decoder would see to its end.
void RequireText(const std::string& text);

#endif
