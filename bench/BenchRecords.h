// What a user of another library has in place of a tree: plain structs of `std::string`. A table for each struct says
// which attribute or element fills which member. By the tables libexpat and pugixml fill the structs and tinyxml2
// writes them, at the cost of code by hand: names are compared one after the other, as in a chain of `if`.
//
// Structs stand in a namespace with a name: of those in one without, g++ 12 takes rows of two files for the same.
#ifndef BENCH_RECORDS_H
#define BENCH_RECORDS_H

#include <tinyxml2.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// @name Members
/// A member is a text, a number, a `bool` that an element sets by its presence, one of these, a struct, an optional
/// struct, or a vector of texts, of structs or of variants of structs. An empty text and the number 0 are not written.
/// @{

/// One of the words of an enumeration, as its index; -1: not set, or another word.
template <const auto& Words>
struct Word {
    int index = -1;
};

/// A text, taken apart at white space.
struct SplitText {
    std::vector<std::string> words;
};

/// Attributes that have no member of their own, with their names.
using Pairs = std::vector<std::pair<std::string, std::string>>;
/// @}

struct RecordType;

/// What fills a member. `RecordAttribute` and the functions behind it make the rows.
struct RecordField {
    enum Kind {
        Attribute,
        Others,    ///< The attributes that have no row.
        Constant,  ///< An attribute that is written, and dropped on reading.
        Content,   ///< The text of the element itself.
        Text,      ///< A child element that stands for one value.
        Record     ///< A child element that stands for a struct.
    };

    constexpr RecordField(Kind fieldKind, const char* fieldName) : kind(fieldKind), name(fieldName), local(fieldName) {
        for (const char* at = fieldName; *at != '\0'; ++at) {
            if (*at == ':') local = at + 1;
        }
    }

    Kind kind;
    const char* name;   ///< With the prefix that it is written with.
    const char* local;  ///< Without it.
    /// Stores a value; `attribute` is the name of an attribute without row.
    void (*take)(void* record, std::string_view text, const char* attribute) = nullptr;
    /// The struct for a child element to fill.
    void* (*add)(void* record) = nullptr;
    void (*write)(const RecordField& field, const void* record, tinyxml2::XMLPrinter& printer) = nullptr;
    const RecordType* type = nullptr;  ///< Of a child element.
    const char* value = "";            ///< Of a constant.
};

/// The rows of a struct: attributes, content, child elements.
struct RecordType {
    template <std::size_t Count>
    constexpr explicit RecordType(const RecordField (&rows)[Count]) : fields(rows), end(rows + Count), elements(rows) {
        for (const RecordField& row : rows) {
            if (row.kind != RecordField::Text && row.kind != RecordField::Record) elements = &row + 1;
            if (row.kind == RecordField::Content) content = &row;
            if (row.kind == RecordField::Others) others = &row;
        }
    }

    const RecordField* fields;
    const RecordField* end;
    const RecordField* elements;  ///< The first child element.
    const RecordField* content = nullptr;
    const RecordField* others = nullptr;
};

/// The root element of a document.
struct RecordRoot {
    const char* name;
    const RecordType& type;
    bool anyPrefix;  ///< Elements are known by their local names; otherwise by their names as they stand.
};

/// @name Readers
/// They fill the struct of the root, and abort the process when the text is not well-formed or has another root,
/// because a comparison with a reader that gave up says nothing.
/// @{
using RecordReader = void (*)(const std::string& text, const RecordRoot& root, void* record);
void ReadWithExpat(const std::string& text, const RecordRoot& root, void* record);
void ReadWithPugixml(const std::string& text, const RecordRoot& root, void* record);
void ReadWithRapidxml(const std::string& text, const RecordRoot& root, void* record);
/// @}

/// Writes the struct of an element `name`.
void WriteWithTinyxml2(const char* name, const RecordType& type, const void* record, tinyxml2::XMLPrinter& printer);

/// @name How each kind of member is read and written
/// @{
template <class Value>
constexpr bool kIsNumber = std::is_integral_v<Value> && !std::is_same_v<Value, bool>;

inline void TakeValue(std::string& member, std::string_view text, const char* /*attribute*/) { member.assign(text); }

template <class Number, class = std::enable_if_t<kIsNumber<Number>>>
void TakeValue(Number& member, std::string_view text, const char* /*attribute*/) {
    std::from_chars(text.data(), text.data() + text.size(), member);
}

template <const auto& Words>
void TakeValue(Word<Words>& member, std::string_view text, const char* /*attribute*/) {
    const auto found = std::find(std::begin(Words), std::end(Words), text);
    if (found != std::end(Words)) member.index = static_cast<int>(found - std::begin(Words));
}

inline void TakeValue(bool& member, std::string_view /*text*/, const char* /*attribute*/) { member = true; }

inline void TakeValue(std::vector<std::string>& member, std::string_view text, const char* /*attribute*/) {
    member.emplace_back(text);
}

void TakeValue(SplitText& member, std::string_view text, const char* attribute);

inline void TakeValue(Pairs& member, std::string_view text, const char* attribute) {
    member.emplace_back(attribute, text);
}

/// Writes an attribute, the content or an element with a text.
void WriteValue(const RecordField& field, const char* text, tinyxml2::XMLPrinter& printer);

inline void WriteMember(const RecordField& field, const std::string& member, tinyxml2::XMLPrinter& printer) {
    if (!member.empty()) WriteValue(field, member.c_str(), printer);
}

template <class Number, class = std::enable_if_t<kIsNumber<Number>>>
void WriteMember(const RecordField& field, const Number& member, tinyxml2::XMLPrinter& printer) {
    char digits[24] = {};
    std::to_chars(std::begin(digits), std::end(digits), member);
    if (member != 0) WriteValue(field, digits, printer);
}

template <const auto& Words>
void WriteMember(const RecordField& field, const Word<Words>& member, tinyxml2::XMLPrinter& printer) {
    if (member.index >= 0) WriteValue(field, Words[member.index].data(), printer);
}

inline void WriteMember(const RecordField& field, bool member, tinyxml2::XMLPrinter& printer) {
    if (member) WriteValue(field, "", printer);
}

inline void WriteMember(const RecordField& /*field*/, const Pairs& member, tinyxml2::XMLPrinter& printer) {
    for (const auto& [name, value] : member) printer.PushAttribute(name.c_str(), value.c_str());
}

inline void WriteMember(const RecordField& field, const std::vector<std::string>& member,
                        tinyxml2::XMLPrinter& printer) {
    for (const std::string& text : member) WriteValue(field, text.c_str(), printer);
}

void WriteMember(const RecordField& field, const SplitText& member, tinyxml2::XMLPrinter& printer);

template <class Record>
void* AddRecord(Record& member) {
    return &member;
}

template <class Record>
void* AddRecord(std::optional<Record>& member) {
    return &member.emplace();
}

template <class Record>
void* AddRecord(std::vector<Record>& member) {
    return &member.emplace_back();
}

template <class Record>
void WriteRecords(const RecordField& field, const Record& member, tinyxml2::XMLPrinter& printer) {
    WriteWithTinyxml2(field.name, *field.type, &member, printer);
}

template <class Record>
void WriteRecords(const RecordField& field, const std::optional<Record>& member, tinyxml2::XMLPrinter& printer) {
    if (member.has_value()) WriteWithTinyxml2(field.name, *field.type, &*member, printer);
}

template <class Record>
void WriteRecords(const RecordField& field, const std::vector<Record>& member, tinyxml2::XMLPrinter& printer) {
    for (const Record& record : member) WriteWithTinyxml2(field.name, *field.type, &record, printer);
}
/// @}

/// Reaches a member through a pointer to its struct.
template <auto Member>
struct RecordMember;

template <class Struct, class Value, Value Struct::*Member>
struct RecordMember<Member> {
    using Type = Value;
    static Value& Of(void* record) { return static_cast<Struct*>(record)->*Member; }
    static const Value& Of(const void* record) { return static_cast<const Struct*>(record)->*Member; }
};

/// @name Rows
/// @{
template <auto Member>
constexpr RecordField RecordValue(RecordField::Kind kind, const char* name) {
    RecordField field(kind, name);
    field.take = [](void* record, std::string_view text, const char* attribute) {
        TakeValue(RecordMember<Member>::Of(record), text, attribute);
    };
    field.write = [](const RecordField& self, const void* record, tinyxml2::XMLPrinter& printer) {
        WriteMember(self, RecordMember<Member>::Of(record), printer);
    };
    return field;
}

template <auto Member>
constexpr RecordField RecordAttribute(const char* name) {
    return RecordValue<Member>(RecordField::Attribute, name);
}

template <auto Member>
constexpr RecordField RecordOthers() {
    return RecordValue<Member>(RecordField::Others, "");
}

template <auto Member>
constexpr RecordField RecordContent() {
    return RecordValue<Member>(RecordField::Content, "");
}

template <auto Member>
constexpr RecordField RecordText(const char* name) {
    return RecordValue<Member>(RecordField::Text, name);
}

template <auto Member>
constexpr RecordField RecordChild(const char* name, const RecordType& type) {
    RecordField field(RecordField::Record, name);
    field.add = [](void* record) { return AddRecord(RecordMember<Member>::Of(record)); };
    field.write = [](const RecordField& self, const void* record, tinyxml2::XMLPrinter& printer) {
        WriteRecords(self, RecordMember<Member>::Of(record), printer);
    };
    field.type = &type;
    return field;
}

/// A child element that stands for one alternative of the variants in a vector. The rows of all alternatives stand one
/// behind the other, in the order of the variant.
template <auto Member, class Alternative>
constexpr RecordField RecordChoice(const char* name, const RecordType& type) {
    RecordField field(RecordField::Record, name);
    field.add = [](void* record) -> void* {
        return &std::get<Alternative>(RecordMember<Member>::Of(record).emplace_back(std::in_place_type<Alternative>));
    };
    field.type = &type;
    using Variant = typename RecordMember<Member>::Type::value_type;
    if constexpr (std::is_same_v<Alternative, std::variant_alternative_t<0, Variant>>) {
        // The vector is written in its own order, so by one of the rows.
        field.write = [](const RecordField& self, const void* record, tinyxml2::XMLPrinter& printer) {
            for (const Variant& member : RecordMember<Member>::Of(record)) {
                const RecordField& row = (&self)[member.index()];
                std::visit([&](const auto& of) { WriteWithTinyxml2(row.name, *row.type, &of, printer); }, member);
            }
        };
    }
    return field;
}

constexpr RecordField RecordConstant(const char* name, const char* value) {
    RecordField field(RecordField::Constant, name);
    field.value = value;
    field.write = [](const RecordField& self, const void* /*record*/, tinyxml2::XMLPrinter& printer) {
        printer.PushAttribute(self.name, self.value);
    };
    return field;
}
/// @}

#endif
