/// @file
/// A walk through the tags of a document with the library's own tokenizer, for what the library does not tell: which
/// root a document has, and where it stops being one.
#ifndef IMSXML_JSON_SCANNER_H
#define IMSXML_JSON_SCANNER_H

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Document.h"
#include "XmlDecoder.h"

/// A tag for a message that has one line: "<name>", cut when it is long, line feeds as blanks.
std::string TagText(std::string_view name);
/// Any other text of a document, in double quotes.
std::string QuotedText(std::string_view text);

struct OpenElement {
    std::string name;  ///< As written, prefix included.
    std::size_t offset;

    std::string_view Local() const;
};

struct RootElement : OpenElement {
    std::vector<std::pair<std::string, std::string>> attributes;

    std::string_view Prefix() const;
    /// The namespace that the element's own declarations give it; none: its prefix is not declared there.
    std::optional<std::string> Namespace() const;
};

/// Gives a text to the tokenizer tag by tag, so that the tag it stumbles over is known.
class Scanner : public XmlDecoderSchema {
  public:
    explicit Scanner(const std::string& text);

    /// Goes to the end of the root's start tag. @return false when there is none, or a fault comes before it.
    bool FindRoot();
    /// Goes on to the next start tag with this local name. @return false when there is none up to the root's end or the
    /// first fault.
    bool FindElement(std::string_view local);
    /// Goes to the end of the root element, or to the first fault. @return true for the former.
    bool FindEnd();

    const std::optional<RootElement>& Root() const { return m_root; }
    const std::vector<OpenElement>& Open() const { return m_open; }
    /// The tag looked at last, between "<" and ">", and the offset of its "<".
    std::string_view Tag() const;
    std::size_t TagOffset() const { return m_tag; }
    /// True when the tokenizer refused that tag; false when the text ran out.
    bool Refused() const { return m_result == IX_XML_ERROR; }

    int Reserved() override { return 0; }
    int ProcessAttribute(char* element, char* attribute, char* value) override;
    int ProcessElement(char* element, char* text) override;
    int ProcessEndOfStartTag(char* element) override;
    XMLElement* GetSessionData() override { return nullptr; }

  private:
    bool Next();

    const std::string& m_text;
    XmlDecoder m_tokenizer;
    std::size_t m_next = 0;         ///< Where the next piece begins.
    std::size_t m_tag = kNoOffset;  ///< The "<" of the last piece that had one ...
    std::size_t m_tagEnd = 0;       ///< ... and its ">".
    int m_result = IX_XML_INCOMPLETE;
    std::vector<OpenElement> m_open;
    std::vector<std::pair<std::string, std::string>> m_attributes;  ///< Of the root's start tag.
    std::optional<RootElement> m_root;
    std::string_view m_wanted;  ///< Local name that `FindElement` looks for.
    bool m_found = false;
};

#endif
