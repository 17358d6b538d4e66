#include "Text.h"

#include <algorithm>
#include <numeric>

namespace {

bool IsControl(unsigned code) {
    return code < 0x20 || (code >= 0x7f && code < 0xa0) || (code >= 0x2028 && code <= 0x202e) ||
           (code >= 0x2066 && code <= 0x2069);
}

bool IsTail(char byte) { return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U; }

/// Single-byte insertions, deletions and replacements that make one word of the other.
std::size_t EditDistance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

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

std::string Nearest(std::string_view word, const std::vector<Candidate>& candidates) {
    // Longer words are no typing errors of anything, and comparing them takes long.
    constexpr std::size_t kLongestWord = 200;
    word = word.substr(0, kLongestWord);
    std::vector<std::size_t> distances;
    distances.reserve(candidates.size());
    for (const Candidate& candidate : candidates) distances.push_back(EditDistance(word, candidate.first));
    constexpr std::size_t kMost = 3;
    constexpr std::size_t kSlack = 1;
    const std::size_t best = *std::min_element(distances.begin(), distances.end());
    std::string list;
    std::size_t count = 0;
    for (std::size_t distance = best; distance <= best + kSlack; ++distance) {
        for (std::size_t i = 0; i < candidates.size(); ++i) {
            if (distances[i] != distance || count == kMost) continue;
            list += (count++ == 0 ? "" : ", ") + candidates[i].second;
        }
    }
    return list;
}
