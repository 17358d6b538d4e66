#include "Text.h"

#include <algorithm>

namespace {

bool IsControl(unsigned code) {
    return code < 0x20 || (code >= 0x7f && code < 0xa0) || (code >= 0x2028 && code <= 0x202e) ||
           (code >= 0x2066 && code <= 0x2069);
}

bool IsTail(char byte) { return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U; }

}  // namespace

std::string_view TrimEnd(std::string_view text) { return text.substr(0, text.find_last_not_of(kSpaces) + 1); }

std::string WithBlanks(std::string_view text) {
    std::string result(text);
    std::replace_if(
        result.begin(), result.end(), [](char byte) { return static_cast<unsigned char>(byte) < ' '; }, ' ');
    return result;
}

std::string WithoutControls(std::string_view text) {
    std::string clean;
    clean.reserve(text.size());
    const auto byte = [text](std::size_t at) { return static_cast<unsigned char>(at < text.size() ? text[at] : 0); };
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned code = byte(i);
        std::size_t more = 0;
        if (code == 0xc2) {
            code = byte(i + 1);
            more = 1;
        } else if (code == 0xe2) {
            code = 0x2000U + ((byte(i + 1) & 0x3fU) << 6U) + (byte(i + 2) & 0x3fU);
            more = 2;
        }
        // A byte from 0x80 on is no character, but a part of one.
        if (!IsControl(code) || (more == 0 && code >= 0x80) || (more != 0 && code < 0x80)) {
            clean += text[i];
            continue;
        }
        constexpr char kDigits[] = "0123456789abcdef";
        clean += "\\u";
        for (unsigned shift = 16; shift != 0;) clean += kDigits[(code >> (shift -= 4)) & 0xfU];
        i += more;
    }
    return clean;
}

std::string Short(std::string_view text) {
    std::size_t length = 80;
    if (text.size() <= length) return WithoutControls(WithBlanks(text));
    while (length > 0 && IsTail(text[length])) --length;
    return WithoutControls(WithBlanks(text.substr(0, length))) + "...";
}
