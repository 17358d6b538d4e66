/// @file
/// A decoded tree as an outline for people.
#ifndef IMSXML_TOOL_OUTLINE_H
#define IMSXML_TOOL_OUTLINE_H

#include <string>

#include "Json.h"

/// Writes trees as indented lines.
///
/// - A field is `name = value`. So is a child that is no more than a text, and an entry of a list that is no more than
///   a name and a value.
/// - Any other element begins with its XML name, its class where the name does not tell it, and the field that
///   distinguishes it from its siblings. Its fields follow on the same line when all of them are plain and fit,
///   otherwise below it: attributes and texts first, then children.
class Outline {
  public:
    explicit Outline(bool colour) : m_colour(colour) {}

    /// Appends a heading, for a document among several.
    void AddTitle(const std::string& file, const std::string& schema);
    /// Appends the tree that `ToJson` made.
    void AddTree(const Json& root);

    const std::string& Text() const { return m_text; }

  private:
    void AddObject(const std::string& head, const Json& object, const Json::const_iterator& field, std::size_t depth);
    void AddElement(const std::string& name, const Json& element, std::size_t depth);
    void AddField(const std::string& name, const Json& value, std::size_t depth);
    void AddList(const std::string& name, const Json& list, std::size_t depth);
    void AddRest(const Json& entry, std::size_t depth);
    void AddAttribute(const Json& pair, std::size_t depth);
    void AddLine(const std::string& line, std::size_t depth);
    std::string Assignment(const std::string& name, const Json& value) const;
    std::string Value(const Json& value) const;
    std::string Unquoted(const Json& text) const;
    std::string Styled(const char* style, const std::string& text) const;

    bool m_colour;
    std::string m_text;
};

#endif
