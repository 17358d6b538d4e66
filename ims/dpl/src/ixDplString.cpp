#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "ixDpl.h"

void* __memset(void* destination, int value, std::size_t size) { return std::memset(destination, value, size); }

void* __memmove(void* destination, const void* source, std::size_t size) {
    return std::memmove(destination, source, size);
}

char* __strdup(const char* text) {
    if (text == nullptr) return nullptr;
    const std::size_t size = std::strlen(text) + 1;
    char* const copy = static_cast<char*>(__malloc(size));
    if (copy != nullptr) std::memcpy(copy, text, size);
    return copy;
}

std::size_t __strlen(const char* text) { return text != nullptr ? std::strlen(text) : 0; }

int __strcmp(const char* left, const char* right) { return std::strcmp(left, right); }

int __strncmp(const char* left, const char* right, std::size_t count) { return std::strncmp(left, right, count); }

std::size_t __strlcpy(char* destination, const char* source, std::size_t size) {
    const std::size_t length = std::strlen(source);
    if (size != 0) {
        const std::size_t copied = length < size ? length : size - 1;
        std::memcpy(destination, source, copied);
        destination[copied] = '\0';
    }
    return length;
}

std::size_t __strlcat(char* destination, const char* source, std::size_t size) {
    const std::size_t used = strnlen(destination, size);
    return used + (used < size ? __strlcpy(destination + used, source, size - used) : std::strlen(source));
}

char* __strlncpy(char* destination, std::size_t size, const char* source, std::size_t count) {
    if (size == 0) return destination;
    const std::size_t length = strnlen(source, count < size ? count : size - 1);
    std::memcpy(destination, source, length);
    destination[length] = '\0';
    return destination;
}

char* __strchr(const char* text, int character) { return const_cast<char*>(std::strchr(text, character)); }

char* __strstr(const char* text, const char* part) { return const_cast<char*>(std::strstr(text, part)); }

std::size_t __strcspn(const char* text, const char* reject) { return std::strcspn(text, reject); }

int __atoi(const char* text) {
    const std::int64_t value = __atoi64(text);
    if (value > INT_MAX) return INT_MAX;
    if (value < INT_MIN) return INT_MIN;
    return static_cast<int>(value);
}

std::int64_t __atoi64(const char* text) {
    if (text == nullptr) return 0;
    const int before = errno;
    const long long value = std::strtoll(text, nullptr, 10);
    errno = before;
    return value;
}

char* __itoaL(std::int64_t value, char* buffer, std::size_t size, int radix) {
    if (buffer == nullptr || size == 0) return nullptr;
    buffer[0] = '\0';
    if (radix < 2 || radix > 36) return buffer;
    char digits[64];
    std::size_t length = 0;
    // The magnitude of the smallest number does not fit the signed type.
    std::uint64_t rest = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    do {
        digits[length++] = "0123456789abcdefghijklmnopqrstuvwxyz"[rest % static_cast<unsigned>(radix)];
        rest /= static_cast<unsigned>(radix);
    } while (rest != 0);
    const std::size_t sign = value < 0 ? 1 : 0;
    if (length + sign >= size) return buffer;
    if (sign != 0) buffer[0] = '-';
    for (std::size_t i = 0; i < length; ++i) buffer[sign + i] = digits[length - 1 - i];
    buffer[sign + length] = '\0';
    return buffer;
}
