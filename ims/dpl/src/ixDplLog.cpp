#include <atomic>
#include <cinttypes>
#include <cstring>
#include <mutex>
#include <string>

#include "ixDplHost.h"

namespace {

std::atomic<unsigned> levelMask{0};
std::mutex sinkMutex;
ixDplHostLogSink currentSink = nullptr;
void* currentContext = nullptr;

/// Appends up to one character past the limit, by which a text is known to be longer.
void Append(std::string& text, const char* piece, std::size_t length) {
    const std::size_t room = kIxDplHostLogLimit + 1 - text.size();
    text.append(piece, length < room ? length : room);
}

void AppendNumber(std::string& text, char conversion, std::uintptr_t word) {
    char digits[32];
    int length = 0;
    switch (conversion) {
        case 'd':
        case 'i':
            length = std::snprintf(digits, sizeof digits, "%" PRIdPTR, static_cast<std::intptr_t>(word));
            break;
        case 'u':
            length = std::snprintf(digits, sizeof digits, "%" PRIuPTR, word);
            break;
        case 'c':
            digits[0] = static_cast<char>(word);
            length = 1;
            break;
        default:
            length = std::snprintf(digits, sizeof digits, "%" PRIxPTR, word);
            break;
    }
    Append(text, digits, static_cast<std::size_t>(length));
}

/// Puts the words into the format. The words say nothing of their type, so the C library's own formatting, which takes
/// each argument by its type, cannot be used; flags, widths and length modifiers are read over.
std::string Format(const char* format, const std::uintptr_t (&words)[3]) {
    std::string text;
    std::size_t next = 0;
    const char* at = format;
    while (*at != '\0' && text.size() <= kIxDplHostLogLimit) {
        const std::size_t plain = std::strcspn(at, "%");
        Append(text, at, plain);
        at += plain;
        if (*at == '\0') break;
        ++at;
        at += std::strspn(at, "-+ #0123456789.hlzjt");
        if (*at == '\0') break;
        const char conversion = *at++;
        if (conversion == '%') {
            Append(text, "%", 1);
            continue;
        }
        const std::uintptr_t word = next < 3 ? words[next] : 0;
        ++next;
        if (conversion == 's') {
            const char* value = word != 0 ? reinterpret_cast<const char*>(word) : "(null)";
            Append(text, value, strnlen(value, kIxDplHostLogLimit + 1));
        } else {
            AppendNumber(text, conversion, word);
        }
    }
    if (text.size() > kIxDplHostLogLimit) text.replace(kIxDplHostLogLimit - 3, std::string::npos, "...");
    return text;
}

/// A line of a level that is logged.
[[gnu::noinline]] void Send(int level, int code, const char* source, int line, const char* format,
                            std::uintptr_t argument1, std::uintptr_t argument2, std::uintptr_t argument3) {
    ixDplHostLogSink sink = nullptr;
    void* context = nullptr;
    {
        const std::lock_guard<std::mutex> lock(sinkMutex);
        sink = currentSink;
        context = currentContext;
    }
    if (sink == nullptr) return;
    const std::string text = Format(format, {argument1, argument2, argument3});
    sink({level, code, source, line, text.c_str()}, context);
}

}  // namespace

void ixLogModuleEventSimple(int level, int code, const char* source, int line, const char* format,
                            std::uintptr_t argument1, std::uintptr_t argument2, std::uintptr_t argument3) {
    if (level < 0 || level > 31 || ((levelMask.load(std::memory_order_relaxed) >> level) & 1U) == 0) return;
    Send(level, code, source, line, format, argument1, argument2, argument3);
}

void ixDplHostSetLogSink(ixDplHostLogSink sink, void* context, unsigned mask) {
    const std::lock_guard<std::mutex> lock(sinkMutex);
    currentSink = sink;
    currentContext = context;
    levelMask.store(sink != nullptr ? mask : 0, std::memory_order_relaxed);
}
