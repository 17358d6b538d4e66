/// @file
/// A decoded tree as an outline for people.
#ifndef IMSXML_TOOL_OUTLINE_H
#define IMSXML_TOOL_OUTLINE_H

#include <string>

#include "Json.h"

/// Writes trees as indented lines: an object's class in bold, its fields below it, or on the same line when they are
/// few and short.
class Outline {
  public:
    explicit Outline(bool colour) : m_colour(colour) {}

    /// Appends a heading, for a document among several.
    void AddTitle(const std::string& file, const std::string& schema);
    /// Appends the tree that `ToJson` made.
    void AddTree(const Json& root);

    const std::string& Text() const { return m_text; }
    /// True when bytes that are not UTF-8 were replaced.
    bool HasReplaced() const { return m_replaced; }

  private:
    void AddObject(const std::string& label, const Json& object, std::size_t depth);
    void AddField(const std::string& label, const Json& value, std::size_t depth);
    void AddList(const std::string& label, const Json& list, std::size_t depth);
    void AddLine(const std::string& line, std::size_t depth);
    bool FitsOnLine(const Json& object, std::size_t used);
    std::string Value(const Json& value);
    std::string Name(const Json& name);
    std::string Bold(const std::string& text) const;
    std::string Dim(const std::string& text) const;

    bool m_colour;
    bool m_replaced = false;
    std::string m_text;
};

#endif
