/// @file
/// The text writer that every marshaller uses.
#ifndef IX_XML_DOC_GENERATOR_H
#define IX_XML_DOC_GENERATOR_H

#include "XmlCommon.h"
#include "XmlPlatform.h"

/// Writes XML text into one buffer of fixed size, piece by piece. It keeps no track of nesting and checks nothing: the
/// caller writes in document order and is responsible for balance.
///
/// Without a buffer (before `ixInitXmlDoc`, after `ixDeInitXmlDoc`, or when there was no memory for it) every operation
/// does nothing; so do those that take a name when it is NULL. No operation reports failure.
///
/// Attribute values have their double quotes written as "&quot;"; nothing else is escaped, in values or in text
/// content. The attribute writers differ in their blanks: `ixStartAttribute` writes none around an unprefixed attribute
/// and relies on the one that an open start tag ends with, so that it can write only one attribute a tag; the other two
/// write one before the attribute and, unless they close the tag, one behind it.
class IX_XML_EXPORT IxXMLDocGenerator : public XmlHeapObject {
  public:
    /// Size of the buffer, its NUL included. What does not fit is cut off; see `IsTruncated`.
    static constexpr std::size_t kCapacity = 32768;

    IxXMLDocGenerator() = default;
    ~IxXMLDocGenerator();
    IxXMLDocGenerator(const IxXMLDocGenerator&) = delete;
    IxXMLDocGenerator& operator=(const IxXMLDocGenerator&) = delete;

    /// Allocates the buffer and clears every field, unless that is done already.
    void ixInitXmlDoc();
    /// Frees buffer and default prefix. May be called again.
    void ixDeInitXmlDoc();
    /// Empties the buffer. The default prefix is forgotten.
    void ixResetHeader();

    /// Writes the XML declaration into an empty buffer, once. NULL: version "1.0", encoding "ISO-8859-15".
    void ixAddHeader(const char* version, const char* encoding);
    /// Line feed and a comment, with one blank behind the text. NULL: nothing.
    void ixAddComment(const char* text);
    /// Sets the prefix of the element names that follow (copied); NULL: none. Without memory for the copy there is
    /// none, either.
    void ixSetXmlNamespace(const char* prefix);
    /// The prefix, which stays with the generator; NULL: none.
    const char* XmlNamespace() const { return m_pDefaultPrefix; }

    /// Line feed and start tag. `open` 1: the tag stays open for attributes, behind a blank.
    void ixStartElement(const char* name, int open);
    /// The same without the line feed.
    void ixStartElementWithoutNL(const char* name, int open);
    /// Line feed and an element without attributes and content.
    void ixStartElementSelfEnding(const char* name);
    /// Closes an open start tag, then line feed and a start tag with a prefix and its declaration. Without prefix or
    /// URI as `ixStartElement`.
    void ixStartElementNs(const char* name, const char* prefix, const char* uri, int open);

    /// The tag's only attribute. Does nothing unless a start tag is open. `usePrefix` 1: with the default prefix.
    /// `selfEnd` 1 ends the element, else `close` 1 ends the start tag.
    void ixStartAttribute(const char* name, const char* value, int usePrefix, int selfEnd, int close);
    /// An attribute with a prefix of its own; NULL: as `ixStartAttribute`. Does nothing unless a start tag is open.
    void ixStartAttributeNs(const char* name, const char* value, const char* prefix, int selfEnd, int close);
    /// An attribute whose name is `name`, or `name` and ":" and `prefix`, as in xmlns:ss="...". Written in any state.
    void ixAddNameSpacePrefixToXml(const char* name, const char* value, const char* prefix, int selfEnd, int close);

    /// Closes an open start tag, then writes `data` as it is; one blank for NULL.
    void ixXmlSetData(const char* data);
    /// End tag, on the same line.
    void ixEndXmlElement(const char* name);
    /// Line feed and end tag, with `prefix` or else the default prefix.
    void ixEndXmlElementNs(const char* name, const char* prefix);

    /// The buffer, filled up with zeros, which stays with the generator; NULL without one.
    char* ixGetXmlDoc() const;
    /// The text alone.
    const char* Text() const { return m_pBuffer; }
    /// The number of characters in the buffer.
    std::size_t Length() const { return m_length; }
    /// True when text was cut off since the buffer was last empty.
    bool IsTruncated() const { return m_bTruncated; }

    /// A place in the text, to come back to.
    struct Place {
        std::size_t length;
        int startTagOpen;
        bool truncated;
    };
    /// The end of the text as it is now.
    Place Here() const { return {m_length, m_iStartTagOpen, m_bTruncated}; }
    /// Takes away what was written behind `place`.
    void CutBack(const Place& place);

    /// A copy of `value` with its double quotes replaced, to be freed by the caller (`FreeElement`); NULL for NULL or
    /// without memory.
    char* escapeString(const char* value) const;

  private:
    void Append(const char* text, std::size_t length);
    void Append(const char* text);
    void AppendCut(const char* text, std::size_t length);
    void AppendName(const char* name);
    void AppendPrefixed(const char* prefix, const char* name);
    void AppendValue(const char* value);
    void StartTag(const char* name, int open);
    void EndAttribute(int selfEnd, int close, bool blank);
    void ClearFields();

    int m_iInitialised = 0;
    int m_iHeaderWritten = 0;
    int m_iHeaderOverride = 0;  ///< 1: a header may be added to a buffer that is not empty. Never set here.
    int m_iStartTagOpen = 0;
    char* m_pBuffer = nullptr;
    char* m_pDefaultPrefix = nullptr;
    std::size_t m_length = 0;
    bool m_bTruncated = false;
    mutable bool m_bZeroFilled = false;  ///< The buffer holds zeros behind its text.
};

#endif
