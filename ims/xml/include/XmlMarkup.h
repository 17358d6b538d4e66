/// @file
/// Texts with characters that markup is made of. The marshallers write texts as they stand, so that what comes from a
/// user has to be escaped before it is set; the unmarshallers resolve the five predefined entities in attribute values
/// and leave the texts of elements as the document has them.
///
/// These functions are for applications: the library does not use them. Their strings are made by the application's
/// `operator new`, not by the platform layer.
#ifndef IX_XML_MARKUP_H
#define IX_XML_MARKUP_H

#include <cstddef>
#include <string>
#include <string_view>

/// `text` for a document: "&", "<" and ">" become entities. The double quote, which only attribute values have to
/// escape, is the marshallers' business.
inline std::string XmlEscaped(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char letter : text) {
        if (letter == '&') {
            escaped += "&amp;";
        } else if (letter == '<') {
            escaped += "&lt;";
        } else if (letter == '>') {
            escaped += "&gt;";
        } else {
            escaped += letter;
        }
    }
    return escaped;
}

/// What XmlUnescaped is made of.
namespace xmlmarkup {

/// Appends a character as UTF-8. @return false for a number that is none.
inline bool AppendCharacter(std::string& text, unsigned long character) {
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character == 0 || character > 0x10FFFF || isSurrogate) return false;
    const auto tail = [&text, character](int shift) {
        text += static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0U | (character >> 6));
        tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0U | (character >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0U | (character >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
    return true;
}

/// Appends the character of a reference, "#228" or "#xE4". @return false when `name` is no such reference.
inline bool AppendReference(std::string& text, std::string_view name) {
    if (name.size() < 2 || name[0] != '#') return false;
    const bool isHex = name[1] == 'x';
    const unsigned long base = isHex ? 16 : 10;
    const std::string_view digits = name.substr(isHex ? 2 : 1);
    unsigned long character = 0;
    for (const char letter : digits) {
        const std::size_t digit = std::string_view("0123456789abcdefABCDEF").find(letter);
        if (digit >= (isHex ? 22 : 10) || character > 0x10FFFF) return false;
        character = character * base + (digit < 16 ? digit : digit - 6);
    }
    return !digits.empty() && AppendCharacter(text, character);
}

}  // namespace xmlmarkup

/// `text` without the white space around it.
inline std::string_view XmlTrimmed(std::string_view text) {
    constexpr char kSpace[] = " \t\r\n";
    const std::size_t begin = text.find_first_not_of(kSpace);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(kSpace) - begin + 1);
}

/// A text of an element as people read it: the predefined entities and the character references (as UTF-8) resolved.
/// What is neither stays as it is.
inline std::string XmlUnescaped(std::string_view rest) {
    struct Entity {
        std::string_view name;
        char letter;
    };
    constexpr Entity kEntities[] = {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}};
    constexpr std::size_t kLongestReference = 16;
    std::string plain;
    plain.reserve(rest.size());
    for (std::size_t at = 0; at < rest.size(); ++at) {
        const std::size_t end = rest[at] == '&' ? rest.substr(at, kLongestReference).find(';') : std::string_view::npos;
        const std::string_view name = end != std::string_view::npos ? rest.substr(at + 1, end - 1) : std::string_view();
        bool resolved = !name.empty() && xmlmarkup::AppendReference(plain, name);
        for (const Entity& entity : kEntities) {
            if (resolved || name != entity.name) continue;
            plain += entity.letter;
            resolved = true;
        }
        if (resolved) {
            at += end;
        } else {
            plain += rest[at];
        }
    }
    return plain;
}

/// The same. NULL: an empty text.
inline std::string XmlUnescaped(const char* text) {
    return XmlUnescaped(std::string_view(text != nullptr ? text : ""));
}

/// The same without the white space around it, which documents have where they are indented. What references stand for
/// stays. The standard profile has resolved the references already: `XmlTrimmed` does there.
inline std::string XmlPlainText(const char* text) { return XmlUnescaped(XmlTrimmed(text != nullptr ? text : "")); }

#endif
