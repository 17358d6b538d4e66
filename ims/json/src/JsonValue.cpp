#include "JsonValue.h"

#include <climits>
#include <nlohmann/json.hpp>
#include <utility>

#include "Document.h"
#include "Text.h"

namespace {

using Library = nlohmann::json;

/// More than 1000 elements within each other, each in an array or not, are refused before.
constexpr std::size_t kDeepest = 2100;

/// A place in a text, which the copies of the iterator share: it tells how far a text was read.
class Cursor {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    explicit Cursor(const char** at) : m_at(at) {}
    reference operator*() const { return **m_at; }
    Cursor& operator++() {
        ++*m_at;
        return *this;
    }
    Cursor operator++(int) { return ++*this; }
    bool operator==(const Cursor& other) const { return *m_at == *other.m_at; }
    bool operator!=(const Cursor& other) const { return !(*this == other); }

  private:
    const char** m_at;
};

/// Builds the value that the JSON library reports.
class Builder {
  public:
    Builder(std::string_view text, const char* const& at)
        : m_text(text), m_at(at), m_begin(Offset()), m_behind(m_begin) {}

    bool null() { return Add(JsonValue::Kind::Null, 0); }
    bool boolean(bool value) { return Add(JsonValue::Kind::Flag, value ? 1 : 0); }
    bool number_integer(Library::number_integer_t value) { return Add(JsonValue::Kind::Number, value); }
    bool number_unsigned(Library::number_unsigned_t value) {
        const bool fits = value <= static_cast<Library::number_unsigned_t>(LLONG_MAX);
        return Add(fits ? JsonValue::Kind::Number : JsonValue::Kind::Fraction,
                   fits ? static_cast<long long>(value) : 0);
    }
    bool number_float(Library::number_float_t /*value*/, const std::string& /*text*/) {
        return Add(JsonValue::Kind::Fraction, 0);
    }
    bool string(std::string& text) {
        JsonValue value = New(JsonValue::Kind::Text);
        value.text = std::move(text);
        return Take(std::move(value));
    }
    bool binary(Library::binary_t& /*value*/) { return false; }
    bool start_object(std::size_t /*count*/) { return Open(JsonValue::Kind::Object); }
    bool start_array(std::size_t /*count*/) { return Open(JsonValue::Kind::Array); }
    bool end_object() { return Close(); }
    bool end_array() { return Close(); }
    bool key(std::string& name) {
        m_nameOffset = Start();
        m_behind = Offset();
        m_name = std::move(name);
        return true;
    }
    bool parse_error(std::size_t position, const std::string& /*token*/, const Library::exception& error) {
        // What the library says begins with its own name, and with a place that does not count what was read before.
        const std::string_view said = error.what();
        const std::size_t what = said.find(": ");
        const std::string message(what != std::string_view::npos ? said.substr(what + 2) : said);
        // The end of the text counts as a character, too.
        throw DocumentError{kNotDecoded, "no JSON: " + WithoutControls(message), m_begin + position - 1};
    }

    JsonValue& Value() { return m_done; }

  private:
    std::size_t Offset() const { return static_cast<std::size_t>(m_at - m_text.data()); }
    /// Where the token that was just read begins.
    std::size_t Start() const { return std::min(m_text.find_first_not_of(" \t\r\n,:", m_behind), m_text.size()); }
    JsonValue New(JsonValue::Kind kind) {
        JsonValue value;
        value.kind = kind;
        value.offset = Start();
        if (!m_open.empty() && m_open.back().kind == JsonValue::Kind::Object) {
            value.name = std::move(m_name);
            value.offset = m_nameOffset;
        }
        m_behind = Offset();
        return value;
    }
    bool Add(JsonValue::Kind kind, long long number) {
        JsonValue value = New(kind);
        value.number = number;
        return Take(std::move(value));
    }
    bool Take(JsonValue&& value) {
        if (m_open.empty()) {
            m_done = std::move(value);
        } else {
            m_open.back().values.push_back(std::move(value));
        }
        return true;
    }
    bool Open(JsonValue::Kind kind) {
        m_open.push_back(New(kind));
        if (m_open.size() <= kDeepest) return true;
        throw DocumentError{kNotDecoded, "nested too deep: more than 1000 elements within each other",
                            m_open.back().offset};
    }
    bool Close() {
        m_behind = Offset();
        JsonValue value = std::move(m_open.back());
        m_open.pop_back();
        return Take(std::move(value));
    }

    std::string_view m_text;
    const char* const& m_at;
    std::size_t m_begin;
    std::size_t m_behind;          ///< Where the last token ended.
    std::size_t m_nameOffset = 0;  ///< The name that the next value has, and its offset.
    std::string m_name;
    std::vector<JsonValue> m_open;
    JsonValue m_done;
};

}  // namespace

const JsonValue* JsonValue::Find(std::string_view key) const {
    for (const JsonValue& value : values) {
        if (value.name == key) return &value;
    }
    return nullptr;
}

std::string JsonPlace::Path() const {
    const std::string before = around != nullptr ? around->Path() : "";
    if (name == nullptr) return before + '[' + std::to_string(index) + ']';
    return before + (before.empty() ? "" : ".") + Short(name);
}

bool ReadJson(std::string_view text, std::size_t& at, JsonValue& value) {
    at = std::min(text.find_first_not_of(kSpaces, at), text.size());
    if (at == text.size()) return false;
    const char* place = text.data() + at;
    const char* end = text.data() + text.size();
    Builder builder(text, place);
    Library::sax_parse(Cursor(&place), Cursor(&end), &builder, Library::input_format_t::json, false);
    at = static_cast<std::size_t>(place - text.data());
    value = std::move(builder.Value());
    return true;
}
