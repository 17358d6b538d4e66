#include "Document.h"

#include <algorithm>
#include <climits>
#include <string_view>

namespace {

std::string ToText(TextPlace place) { return std::to_string(place.line) + ':' + std::to_string(place.column); }

}  // namespace

TextPlace Document::PlaceAt(std::size_t offset) const {
    const std::string_view before = std::string_view(text).substr(0, offset);
    const auto number = line + std::count(before.begin(), before.end(), '\n');
    const std::string_view lineText = before.substr(before.rfind('\n') + 1);
    const auto isLead = [](char byte) { return (static_cast<unsigned char>(byte) & 0xc0U) != 0x80U; };
    const auto column = 1 + std::count_if(lineText.begin(), lineText.end(), isLead);
    return {static_cast<int>(number), static_cast<int>(column)};
}

std::string Document::PlaceOf(std::size_t offset) const { return ToText(PlaceAt(offset)); }

std::string Document::Describe(const DocumentError& error) const {
    const TextPlace place = error.offset == kNoOffset ? error.place : PlaceAt(error.offset);
    return name + (place.line == 0 ? "" : ':' + ToText(place)) + ": " + error.message;
}

void RequireLength(const std::string& text) {
    if (text.empty()) throw DocumentError{kNotDecoded, "the file is empty"};
    if (text.size() > INT_MAX) {
        throw DocumentError{kNotDecoded, "longer than " + std::to_string(INT_MAX) + " bytes, which no decoder takes"};
    }
}

void RequireText(const std::string& text) {
    RequireLength(text);
    const std::size_t nul = text.find('\0');
    if (nul == std::string::npos) return;
    const std::string mark = text.substr(0, 2);
    if (mark == "\xfe\xff" || mark == "\xff\xfe") throw DocumentError{kNotDecoded, "UTF-16, which no decoder reads"};
    throw DocumentError{kNotDecoded, "NUL byte at offset " + std::to_string(nul) + ", where the decoder would stop",
                        nul};
}
