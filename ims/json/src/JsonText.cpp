#include "JsonText.h"

#include <algorithm>
#include <nlohmann/json.hpp>

void JsonText::Begin(char bracket) {
    Item();
    m_text += bracket;
    ++m_depth;
    m_isFirst = true;
}

void JsonText::End(char bracket) {
    --m_depth;
    if (!m_isFirst) NewLine();
    m_text += bracket;
    m_isFirst = false;
}

void JsonText::Key(std::string_view name) {
    Item();
    Quoted(name);
    m_text += m_indent < 0 ? ":" : ": ";
    m_isBehindKey = true;
}

void JsonText::String(const char* text) {
    if (text == nullptr) return Null();
    Item();
    Quoted(text);
}

void JsonText::Number(long long value) {
    Item();
    m_text += std::to_string(value);
}

void JsonText::Flag(bool value) {
    Item();
    m_text += value ? "true" : "false";
}

void JsonText::Null() {
    Item();
    m_text += "null";
}

void JsonText::Member(const char* name, const char* text) {
    Key(name);
    String(text);
}

void JsonText::Member(const char* name, long long value) {
    Key(name);
    Number(value);
}

void JsonText::Member(const char* name, bool value) {
    Key(name);
    Flag(value);
}

/// What stands before a key, or before a value without one.
void JsonText::Item() {
    if (!m_isBehindKey && m_depth != 0) {
        if (!m_isFirst) m_text += ',';
        NewLine();
    }
    m_isBehindKey = false;
    m_isFirst = false;
}

void JsonText::NewLine() {
    if (m_indent >= 0) m_text.append(1, '\n').append(m_depth * static_cast<std::size_t>(m_indent), ' ');
}

void JsonText::Quoted(std::string_view text) {
    // Most texts stand for themselves.
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code >= 0x20 && code < 0x7f && byte != '"' && byte != '\\';
    });
    if (isPlain) {
        m_text.append(1, '"').append(text).append(1, '"');
        return;
    }
    const nlohmann::json string(text);
    try {
        m_text += string.dump();
    } catch (const nlohmann::json::type_error&) {
        m_replaced = true;
        m_text += string.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    }
}
