/// @file
/// Work on texts that the files of the command share.
#ifndef IMSXML_JSON_TEXT_H
#define IMSXML_JSON_TEXT_H

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// White space as XML has it.
constexpr char kSpaces[] = " \t\r\n";

/// What tells an element from its siblings of the same name.
constexpr std::string_view kIdentities[] = {"id", "uri", "entity", "aor", "name", "type"};

inline bool Begins(std::string_view text, std::string_view beginning) {
    return text.substr(0, beginning.size()) == beginning;
}

inline bool Ends(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

inline bool Has(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

/// Without the white space at its end: the tokenizer leaves it between the name of an attribute and the "=".
std::string_view TrimEnd(std::string_view text);

/// Control characters, line feeds among them, as blanks.
std::string WithBlanks(std::string_view text);

/// What a terminal obeys, or reorders the line for, as JSON escapes: control characters, separators of lines, changes
/// of the direction. `text` is UTF-8.
std::string WithoutControls(std::string_view text);

/// What of a text fits a message: at most 80 bytes, on one line.
std::string Short(std::string_view text);

/// A word that could have been meant, and how it is told.
using Candidate = std::pair<std::string_view, std::string>;

/// Puts those of the candidates into words that are most like `word`: the best ones only, and at most three. There is
/// one at least.
std::string Nearest(std::string_view word, const std::vector<Candidate>& candidates);

#endif
