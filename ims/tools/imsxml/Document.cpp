#include "Document.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <string_view>

std::string Document::PlaceOf(std::size_t offset) const {
    const std::string_view before = std::string_view(text).substr(0, offset);
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::string_view lineText = before.substr(before.rfind('\n') + 1);
    const auto isLead = [](char byte) { return (static_cast<unsigned char>(byte) & 0xc0U) != 0x80U; };
    const auto column = 1 + std::count_if(lineText.begin(), lineText.end(), isLead);
    return std::to_string(line) + ':' + std::to_string(column);
}

std::string Document::Describe(const DocumentError& error) const {
    const std::string place = error.offset == kNoOffset ? error.place : PlaceOf(error.offset);
    return name + (place.empty() ? "" : ':' + place) + ": " + error.message;
}

std::string ReadText(const std::string& name) {
    const bool isInput = name == "-";
    const int file = isInput ? STDIN_FILENO : open(name.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) throw DocumentError{kWrongUsage, std::strerror(errno)};
    std::string text;
    char block[65536];
    ssize_t got = 0;
    do {
        got = read(file, block, sizeof block);
        if (got > 0) text.append(block, static_cast<std::size_t>(got));
        // More than this no decoder takes.
    } while ((got > 0 && text.size() <= INT_MAX) || (got < 0 && errno == EINTR));
    const int error = errno;
    if (!isInput) close(file);
    if (got < 0) throw DocumentError{kWrongUsage, std::strerror(error)};
    return text;
}

void RequireText(const std::string& text) {
    if (text.empty()) throw DocumentError{kNotDecoded, "the file is empty"};
    if (text.size() > INT_MAX) {
        throw DocumentError{kNotDecoded, "longer than " + std::to_string(INT_MAX) + " bytes, which no decoder takes"};
    }
    const std::size_t nul = text.find('\0');
    if (nul == std::string::npos) return;
    const std::string mark = text.substr(0, 2);
    if (mark == "\xfe\xff" || mark == "\xff\xfe") throw DocumentError{kNotDecoded, "UTF-16, which no decoder reads"};
    throw DocumentError{kNotDecoded, "NUL byte at offset " + std::to_string(nul) + ", where the decoder would stop",
                        nul};
}
