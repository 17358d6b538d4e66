#include "Input.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>

#include "Document.h"

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
