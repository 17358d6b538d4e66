/// @file
/// JSON that was read, with the places where its values stand.
#ifndef IMSXML_JSON_VALUE_H
#define IMSXML_JSON_VALUE_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// A value, and the name that it has in an object.
///
/// Its end needs no memory, unlike that of the JSON library's own values, and so it can come when there is none.
struct JsonValue {
    enum class Kind : unsigned char { Null, Flag, Number, Fraction, Text, Array, Object };

    Kind kind = Kind::Null;
    std::size_t offset = 0;  ///< Of its first character, or of that of its name.
    long long number = 0;    ///< Flags, too.
    std::string name{};
    std::string text{};
    std::vector<JsonValue> values{};  ///< Of an array, or of an object.

    /// The value of that name; NULL: none.
    const JsonValue* Find(std::string_view key) const;
};

/// Where a value is in the values around it; NULL around the outermost.
struct JsonPlace {
    const JsonPlace* around;
    const char* name;   ///< NULL: an entry of an array ...
    std::size_t index;  ///< ... and which.

    /// `root.registration[0].contact[1].state`, for example.
    std::string Path() const;
};

/// Reads the next value of a text.
/// @param at in: where to begin; out: behind the value.
/// @return false: there is nothing but white space. Throws `DocumentError` for what is no JSON.
bool ReadJson(std::string_view text, std::size_t& at, JsonValue& value);

#endif
