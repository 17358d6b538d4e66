/// @file
/// The names of the documents as numbers, so that a name is compared once and then only its number.
#ifndef IX_XML_NAMES_H
#define IX_XML_NAMES_H

#include <cstddef>

#include "XMLCommonDef.h"

/// Names that the fixed strings do not have, numbered behind them.
enum XmlExtraName {
    kXmlNameParm = kXmlStrRefCount,
    kXmlNameCharacteristic,
    kXmlNameWapProvisioningdoc,
    kXmlNameVolteConfigInfo,
    kXmlNameProcessingNotification,
    kXmlNameWillingness,
    kXmlNameSessionParticipation,
    kXmlNameOverridingWillingness,
    kXmlNameRegistrationState,
    kXmlNameBarringState,
    kXmlNameBarring,
    kXmlNameCount
};

/// A name by its number.
struct IX_XML_EXPORT XmlName {
    static constexpr int kUnknown = -1;

    /// Two texts have two numbers; the lower one stands for both.
    constexpr XmlName(e_XmlStrRef entry)
        : number(entry == IX_STR_ALLOW_2      ? IX_STR_ALLOW
                 : entry == IX_STR_SIMSERVS_2 ? IX_STR_SIMSERVS
                                              : entry) {}
    constexpr XmlName(XmlExtraName entry) : number(entry) {}
    /// The name that is the `length` characters at `text`; unknown when no document has it.
    XmlName(const char* text, std::size_t length);
    /// The same, faster: 16 bytes can be read from `text` on, whatever its length.
    static XmlName OfPadded(const char* text, std::size_t length);

    /// NULL for an unknown name.
    const char* Text() const;
    /// Of the text.
    std::size_t Length() const;
    constexpr bool IsKnown() const { return number != kUnknown; }
    constexpr bool operator==(XmlName other) const { return number == other.number; }
    constexpr bool operator!=(XmlName other) const { return number != other.number; }

    int number;
};

#endif
