#include "XmlNames.h"

#include <cstdint>
#include <cstring>

namespace {

constexpr const char* kExtraNames[] = {
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

/// A few characters tell most names apart.
constexpr std::size_t SlotOf(const char* text, std::size_t length) {
    if (length == 0) return 0;
    const auto first = static_cast<unsigned char>(text[0]);
    const auto middle = static_cast<unsigned char>(text[length / 2]);
    const auto last = static_cast<unsigned char>(text[length - 1]);
    return (first * 31U + middle * 7U + last * 131U + length * 17U) % kSlots;
}

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

    constexpr Index() : slots{}, next{} {
        // Backwards, so that the lower one of two equal names is found.
        for (int i = kXmlNameCount - 1; i > 0; --i) {
            const std::size_t length = LengthOf(kTexts[i]);
            Slot& slot = slots[SlotOf(kTexts[i], length)];
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

}  // namespace

XmlName::XmlName(const char* text, std::size_t length) : number(kUnknown) {
    const Slot* slot = &kIndex.slots[SlotOf(text, length)];
    while (slot->number != kUnknown) {
        if (slot->length == length && std::memcmp(TextOf(slot->number), text, length) == 0) {
            number = slot->number;
            return;
        }
        slot = &kIndex.next[slot->number];
    }
}

const char* XmlName::Text() const { return number != kUnknown ? TextOf(number) : nullptr; }
