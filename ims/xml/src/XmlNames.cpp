#include "XmlNames.h"

#include <cstdint>
#include <cstring>

namespace {

constexpr char kExtraNames[][100] = {
    "parm",        "characteristic",        "wap-provisioningdoc",    "volte-config-info",  "processing-notification",
    "willingness", "session-participation", "overriding-willingness", "registration-state", "barring-state",
    "barring"};
static_assert(sizeof kExtraNames / sizeof *kExtraNames == kXmlNameCount - kXmlStrRefCount, "a text for each number");

constexpr std::size_t kSlots = 1024;

constexpr std::size_t LengthOf(const char* text) {
    std::size_t length = 0;
    while (text[length] != '\0') ++length;
    return length;
}

constexpr std::uint64_t Byte(const char* text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

/// Compilers make one load of each.
constexpr std::uint64_t Load4(const char* text) {
    return Byte(text, 0) | Byte(text, 1) << 8 | Byte(text, 2) << 16 | Byte(text, 3) << 24;
}
constexpr std::uint64_t Load8(const char* text) { return Load4(text) | Load4(text + 4) << 32; }

/// The bits of the first `count` bytes of a word.
constexpr std::uint64_t BytesOf(std::size_t count) { return count < 8 ? (std::uint64_t{1} << 8 * count) - 1 : ~0ULL; }

/// The words of a name of up to 16 characters, NULs behind its end; of a longer one its beginning and its end.
struct Ends {
    static constexpr std::size_t kMost = 16;
    struct Masks {
        std::uint64_t first[kMost + 1] = {};
        std::uint64_t last[kMost + 1] = {};

        constexpr Masks() {
            for (std::size_t i = 0; i <= kMost; ++i) {
                first[i] = BytesOf(i);
                last[i] = BytesOf(i > 8 ? i - 8 : 0);
            }
        }
    };
    static const Masks kMasks;

    std::uint64_t first = 0;
    std::uint64_t last = 0;

    constexpr Ends() = default;
    constexpr Ends(const char* text, std::size_t length) {
        if (length >= 8) {
            first = Load8(text);
            if (length > 8) last = Load8(text + length - 8);
            if (length > 8 && length < kMost) last >>= 8 * (kMost - length);
        } else if (length >= 4) {
            first = Load4(text) | Load4(text + length - 4) << (8 * (length - 4));
        } else if (length > 0) {
            first = Byte(text, 0) | Byte(text, length / 2) << (8 * (length / 2)) |
                    Byte(text, length - 1) << (8 * (length - 1));
        }
    }
    /// The same of at most 16 characters, without a look at their number: 16 bytes can be read.
    static Ends OfPadded(const char* text, std::size_t length) {
        Ends ends;
        ends.first = Load8(text) & kMasks.first[length];
        ends.last = Load8(text + 8) & kMasks.last[length];
        return ends;
    }
    constexpr bool operator==(const Ends& other) const { return first == other.first && last == other.last; }
    constexpr std::size_t Slot() const { return ((first ^ last << 7) * 0x9e3779b97f4a7c15U) >> 54; }
};
constexpr Ends::Masks Ends::kMasks;
static_assert(kSlots == std::size_t{1} << (64 - 54), "the upper bits number the slots");

/// For the index only, which is made at compile time.
constexpr const char* kTexts[kXmlNameCount] = {
#define IX_STRING(number, name, text) text,
#include "XmlStringTable.inc"
    kExtraNames[0], kExtraNames[1], kExtraNames[2], kExtraNames[3], kExtraNames[4],  kExtraNames[5],
    kExtraNames[6], kExtraNames[7], kExtraNames[8], kExtraNames[9], kExtraNames[10],
};

/// What a slot holds: a name, and how to look on. The first fixed string stands for no name.
struct Slot {
    std::int16_t number = XmlName::kUnknown;
    std::uint8_t length = 0;
};

struct Index {
    Slot slots[kSlots];
    Slot next[kXmlNameCount];  ///< The next name with the same slot.
    Ends ends[kXmlNameCount];
    std::uint8_t lengths[kXmlNameCount];

    constexpr Index() : slots{}, next{}, ends{}, lengths{} {
        // Backwards, so that the lower one of two equal names is found.
        for (int i = kXmlNameCount - 1; i > 0; --i) {
            const std::size_t length = LengthOf(kTexts[i]);
            lengths[i] = static_cast<std::uint8_t>(length);
            ends[i] = Ends(kTexts[i], length);
            Slot& slot = slots[ends[i].Slot()];
            next[i] = slot;
            slot.number = static_cast<std::int16_t>(i);
            slot.length = static_cast<std::uint8_t>(length);
        }
    }
};
constexpr Index kIndex;

const char* TextOf(int number) {
    return number < kXmlStrRefCount ? ix_xml_common_array_definition::arrXmlStrRef[number]
                                    : kExtraNames[number - kXmlStrRefCount];
}

/// A name that is longer than its beginning and its end.
[[gnu::noinline]] int NumberOfLong(const char* text, std::size_t length, const Ends& ends) {
    const Slot* slot = &kIndex.slots[ends.Slot()];
    for (; slot->number != XmlName::kUnknown; slot = &kIndex.next[slot->number]) {
        if (slot->length == length && std::memcmp(TextOf(slot->number), text, length) == 0) break;
    }
    return slot->number;
}

int NumberOfShort(std::size_t length, const Ends& ends) {
    const Slot* slot = &kIndex.slots[ends.Slot()];
    for (; slot->number != XmlName::kUnknown; slot = &kIndex.next[slot->number]) {
        if (slot->length == length && kIndex.ends[slot->number] == ends) break;
    }
    return slot->number;
}

}  // namespace

XmlName::XmlName(const char* text, std::size_t length) {
    const Ends ends(text, length);
    number = length > Ends::kMost ? NumberOfLong(text, length, ends) : NumberOfShort(length, ends);
}

XmlName XmlName::OfPadded(const char* text, std::size_t length) {
    if (length > Ends::kMost) return {text, length};
    XmlName name(IX_STR_IX_NULL);
    name.number = NumberOfShort(length, Ends::OfPadded(text, length));
    return name;
}

const char* XmlName::Text() const { return number != kUnknown ? TextOf(number) : nullptr; }

std::size_t XmlName::Length() const { return number != kUnknown ? kIndex.lengths[number] : 0; }
