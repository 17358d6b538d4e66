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

/// Where each name is found: its number, and that of the next name with the same slot.
struct Index {
    std::int16_t first[kSlots] = {};
    std::int16_t next[kXmlNameCount] = {};
    std::uint8_t length[kXmlNameCount] = {};

    constexpr Index() {
        for (std::int16_t& entry : first) entry = XmlName::kUnknown;
        // Backwards, so that the lower one of two equal names is found. The first entry stands for no name.
        for (int i = kXmlNameCount - 1; i > 0; --i) {
            length[i] = static_cast<std::uint8_t>(LengthOf(kTexts[i]));
            std::int16_t& entry = first[SlotOf(kTexts[i], length[i])];
            next[i] = entry;
            entry = static_cast<std::int16_t>(i);
        }
    }
};
constexpr Index kIndex;

}  // namespace

XmlName::XmlName(const char* text, std::size_t length) : number(kIndex.first[SlotOf(text, length)]) {
    while (number != kUnknown && (kIndex.length[number] != length || std::memcmp(Text(), text, length) != 0)) {
        number = kIndex.next[number];
    }
}

const char* XmlName::Text() const {
    if (number >= kXmlStrRefCount) return kExtraNames[number - kXmlStrRefCount];
    return number >= 0 ? ix_xml_common_array_definition::arrXmlStrRef[number] : nullptr;
}
