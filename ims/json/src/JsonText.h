/// @file
/// JSON as text, written piece by piece.
#ifndef IMSXML_JSON_TEXT_WRITER_H
#define IMSXML_JSON_TEXT_WRITER_H

#include <cstddef>
#include <string>
#include <string_view>

/// A text that grows by a piece a call. Commas, line feeds and blanks come by themselves.
class JsonText {
  public:
    /// @param indent blanks a level; -1: one line.
    explicit JsonText(int indent) : m_indent(indent) {}

    /// @param bracket of an object or an array.
    void Begin(char bracket);
    void End(char bracket);
    void Key(std::string_view name);
    /// @param text NULL: null.
    void String(const char* text);
    void Number(long long value);
    void Flag(bool value);
    void Null();

    /// @name A key with its value
    /// @{
    void Member(const char* name, const char* text);
    void Member(const char* name, long long value);
    void Member(const char* name, bool value);
    /// @}

    const std::string& Text() const { return m_text; }
    /// True when bytes that are not UTF-8 were replaced.
    bool HasReplaced() const { return m_replaced; }

  private:
    void Item();
    void NewLine();
    void Quoted(std::string_view text);

    int m_indent;
    std::size_t m_depth = 0;
    bool m_isFirst = true;  ///< In the object or array that is open.
    bool m_isBehindKey = false;
    bool m_replaced = false;
    std::string m_text;
};

#endif
