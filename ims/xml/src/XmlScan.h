/// @file
/// Looks at many bytes of a text at a time: 16 where the machine can.
#ifndef IX_XML_SCAN_H
#define IX_XML_SCAN_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__) && !defined(IMSXML_PLAIN_SCAN)
#include <emmintrin.h>
#elif defined(__ARM_NEON) && defined(__aarch64__) && !defined(IMSXML_PLAIN_SCAN)
#include <arm_neon.h>
#endif

/// Readable bytes that have to stand behind a text that is searched.
constexpr std::size_t kXmlScanPadding = 16;

/// The first byte from `text` on that is "<", "&", `other`, a control character or not ASCII; there has to be one.
inline char* ixNextSpecial(char* text, char other) {
#if defined(__SSE2__) && !defined(IMSXML_PLAIN_SCAN)
    const __m128i less = _mm_set1_epi8('<');
    const __m128i ampersand = _mm_set1_epi8('&');
    const __m128i third = _mm_set1_epi8(other);
    const __m128i blank = _mm_set1_epi8(' ');
    for (;; text += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
        // Bytes from 0x80 on are negative.
        const __m128i found = _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(bytes, less), _mm_cmpeq_epi8(bytes, ampersand)),
                                           _mm_or_si128(_mm_cmpeq_epi8(bytes, third), _mm_cmplt_epi8(bytes, blank)));
        const auto mask = static_cast<unsigned>(_mm_movemask_epi8(found));
        if (mask != 0) return text + __builtin_ctz(mask);
    }
#elif defined(__ARM_NEON) && defined(__aarch64__) && !defined(IMSXML_PLAIN_SCAN)
    for (;; text += 16) {
        const int8x16_t bytes = vld1q_s8(reinterpret_cast<const std::int8_t*>(text));
        const uint8x16_t found = vorrq_u8(
            vorrq_u8(vceqq_s8(bytes, vdupq_n_s8('<')), vceqq_s8(bytes, vdupq_n_s8('&'))),
            vorrq_u8(vceqq_s8(bytes, vdupq_n_s8(static_cast<std::int8_t>(other))), vcltq_s8(bytes, vdupq_n_s8(' '))));
        // Four bits of each byte.
        const std::uint64_t mask = vget_lane_u64(vreinterpret_u64_u8(vshrn_n_u16(vreinterpretq_u16_u8(found), 4)), 0);
        if (mask != 0) return text + (__builtin_ctzll(mask) >> 2);
    }
#else
    for (;; ++text) {
        const char letter = *text;
        if (letter == '<' || letter == '&' || letter == other || static_cast<signed char>(letter) < ' ') return text;
    }
#endif
}

/// The first byte from `text` on that is `byte` or a NUL; there has to be one.
inline char* ixNextOf(char* text, char byte) {
#if defined(__SSE2__) && !defined(IMSXML_PLAIN_SCAN)
    const __m128i wanted = _mm_set1_epi8(byte);
    for (;; text += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
        const __m128i found = _mm_or_si128(_mm_cmpeq_epi8(bytes, wanted), _mm_cmpeq_epi8(bytes, _mm_setzero_si128()));
        const auto mask = static_cast<unsigned>(_mm_movemask_epi8(found));
        if (mask != 0) return text + __builtin_ctz(mask);
    }
#elif defined(__ARM_NEON) && defined(__aarch64__) && !defined(IMSXML_PLAIN_SCAN)
    for (;; text += 16) {
        const int8x16_t bytes = vld1q_s8(reinterpret_cast<const std::int8_t*>(text));
        const uint8x16_t found =
            vorrq_u8(vceqq_s8(bytes, vdupq_n_s8(static_cast<std::int8_t>(byte))), vceqzq_s8(bytes));
        const std::uint64_t mask = vget_lane_u64(vreinterpret_u64_u8(vshrn_n_u16(vreinterpretq_u16_u8(found), 4)), 0);
        if (mask != 0) return text + (__builtin_ctzll(mask) >> 2);
    }
#else
    while (*text != byte && *text != '\0') ++text;
    return text;
#endif
}

/// Copies `length` bytes. @return false when `byte` is among them; what is at `to` is then of no use.
inline bool ixCopyUpTo(char* to, const char* from, std::size_t length, char byte) {
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    constexpr std::uint64_t kHighs = 0x8080808080808080U;
    constexpr std::size_t kWord = sizeof(std::uint64_t);
    const std::uint64_t pattern = kOnes * static_cast<unsigned char>(byte);
    std::uint64_t found = 0;
    const auto copy = [&](std::size_t at) {
        std::uint64_t word = 0;
        std::memcpy(&word, from + at, kWord);
        std::memcpy(to + at, &word, kWord);
        word ^= pattern;
        found |= (word - kOnes) & ~word;
    };
    if (length < kWord) {
        bool isFound = false;
        for (std::size_t i = 0; i < length; ++i) isFound = isFound || (to[i] = from[i]) == byte;
        return !isFound;
    }
    for (std::size_t i = 0; i + kWord <= length; i += kWord) copy(i);
    // The last word may have been copied in part already.
    copy(length - kWord);
    return (found & kHighs) == 0;
}

/// memcpy for names and the like, which are short: not worth a call.
inline void ixCopyShort(char* to, const char* from, std::size_t length) {
    // Two words overlap where the length is none of a word.
    const auto copyEnds = [&](auto word) {
        std::memcpy(&word, from, sizeof word);
        auto last = word;
        std::memcpy(&last, from + length - sizeof word, sizeof word);
        std::memcpy(to, &word, sizeof word);
        std::memcpy(to + length - sizeof word, &last, sizeof word);
    };
    if (length > 16) {
        std::memcpy(to, from, length);
    } else if (length >= 8) {
        copyEnds(std::uint64_t{0});
    } else if (length >= 4) {
        copyEnds(std::uint32_t{0});
    } else {
        for (std::size_t i = 0; i < length; ++i) to[i] = from[i];
    }
}

/// True when eight bytes stand for themselves in texts and in attributes: ASCII without control characters, "&", "<",
/// ">" and quotes.
inline bool ixArePlain8(const char* text) {
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    constexpr std::uint64_t kHighs = 0x8080808080808080U;
    std::uint64_t word = 0;
    std::memcpy(&word, text, sizeof word);
    std::uint64_t special = word | (word - kOnes * 0x20);
    constexpr unsigned char kSpecial[] = {'&', '<', '>', '"'};
    for (const unsigned char letter : kSpecial) {
        const std::uint64_t same = word ^ kOnes * letter;
        special |= (same - kOnes) & ~same;
    }
    return (special & kHighs) == 0;
}

/// The same of sixteen bytes.
inline bool ixArePlain16(const char* text) {
#if defined(__SSE2__) && !defined(IMSXML_PLAIN_SCAN)
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
    // "<" and ">" differ in one bit.
    const __m128i angles = _mm_cmpeq_epi8(_mm_or_si128(bytes, _mm_set1_epi8(2)), _mm_set1_epi8('>'));
    const __m128i others =
        _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('&')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('"')));
    const __m128i found = _mm_or_si128(_mm_or_si128(angles, others), _mm_cmplt_epi8(bytes, _mm_set1_epi8(' ')));
    return _mm_movemask_epi8(found) == 0;
#else
    return ixArePlain8(text) && ixArePlain8(text + 8);
#endif
}

#endif
