/// @file
/// The streaming tokenizer, and the interface through which it reports to the decoder of one schema.
///
/// The tokenizer is small and lenient: no DTD, no CDATA, no processing instructions, no character references, no
/// namespace processing, and therefore no entity expansion beyond the five predefined ones in attribute values. Text is
/// reported only with the end tag that follows it.
#ifndef IX_XML_DECODER_H
#define IX_XML_DECODER_H

#include "XMLCommonDef.h"
#include "XmlCommon.h"
#include "XmlNames.h"
#include "XmlPlatform.h"

/// Receives the events of one document.
///
/// The calls for each construct, in order:
/// - `<name a="x">`: `ProcessElement(name, NULL)`, `ProcessAttribute(name, a, x)` for each attribute,
///   `ProcessEndOfStartTag(name)`;
/// - `<name a="x"/>`: the same, then `ProcessElement("/name", "")`;
/// - `</name>`: `ProcessElement("/name", text)`, with the raw text since the last tag or comment;
/// - a declaration or comment: none.
///
/// Names are as written, prefix included. All texts are valid during the call only.
class IX_XML_EXPORT XmlDecoderSchema : public XmlHeapObject {
  public:
    XmlDecoderSchema() = default;
    virtual ~XmlDecoderSchema() = default;
    XmlDecoderSchema(const XmlDecoderSchema&) = delete;
    XmlDecoderSchema& operator=(const XmlDecoderSchema&) = delete;

    /// Always 0; never called.
    virtual int Reserved() = 0;

    /// An attribute of the element just started, its value with the predefined entities replaced. White space between
    /// the name and "=" stays part of the name. White space between the last value and the end of the tag yields one
    /// more call with an empty name and value.
    /// @return 0 handled, -1 rejected; the tokenizer goes on either way.
    virtual int ProcessAttribute(char* element, char* attribute, char* value) = 0;

    /// A start tag (`text` NULL), before its attributes, or an end tag (`element` with a leading "/").
    /// @return 0 handled, -1 rejected; the tokenizer goes on either way.
    virtual int ProcessElement(char* element, char* text) = 0;

    /// The start tag is complete.
    virtual int ProcessEndOfStartTag(char* element) = 0;

    /// The root element built so far, or NULL. After a successful decode the caller owns it.
    virtual XMLElement* GetSessionData() = 0;

    /// Always 0; keeps its place in the table of virtual operations.
    virtual int ReservedLast();
};

/// State of a tokenizer.
enum eXmlDecodeState {
    IX_XML_PARSE_INIT = 0,      ///< Fresh or initialised again.
    IX_XML_PARSE_CONTINUE = 1,  ///< The text ran out before the document ended.
    IX_XML_PARSE_ERROR = 2,     ///< A syntax or resource error; later calls fail at once.
    IX_XML_PARSE_COMPLETE = 3   ///< The root element was closed.
};

/// Results of `XmlDecoder::Decode`.
enum eXmlDecodeResult {
    IX_XML_SUCCESS = 0,     ///< The document is complete.
    IX_XML_INCOMPLETE = 1,  ///< All text was used; call again with more.
    IX_XML_ERROR = -1       ///< Bad input, or no memory.
};

/// The name of an element. The tokenizer looks at it once, in the start tag; the end tag has the same.
struct XmlElementName {
    char* text = nullptr;          ///< In the start tag; NULL: not looked at yet, or the tag has gone.
    std::size_t length = 0;        ///< Prefix included.
    std::size_t prefixLength = 0;  ///< With the colon; 0: no prefix.
    XmlName whole = IX_STR_IX_NULL;
    XmlName local = IX_STR_IX_NULL;  ///< What stands behind the prefix.
    bool isResolved = false;         ///< All but text and length is known.
};

/// The tokenizer. One object decodes one document, given at once or in pieces; one thread uses it.
class IX_XML_EXPORT XmlDecoder : public XmlHeapObject {
  public:
    XmlDecoder();
    ~XmlDecoder();
    XmlDecoder(const XmlDecoder&) = delete;
    XmlDecoder& operator=(const XmlDecoder&) = delete;

    /// Makes an erroneous or finished tokenizer ready for a new document. Names left open stay open.
    void InitXmlDecoder();
    /// Frees the pending text and all open names. Only `InitXmlDecoder` makes the tokenizer usable again.
    void ResetXmlDecoder();
    /// Sets the receiver of the events, which stays with the caller. Call it before `Decode`.
    void SetSchemaDecoder(XmlDecoderSchema* decoder) { m_pSchemaDecoder = decoder; }
    /// The length of the name that is being reported, if `name` is that; else counted. A receiver spares the counting.
    std::size_t LengthOf(const char* name) const { return IsReported(name) ? m_event.length : __strlen(name); }
    /// True while `name` is being reported: an element with its "/", or an attribute.
    bool IsReported(const char* name) const { return name == m_event.text; }
    /// The element whose name, with its "/", is being reported, if that is `name`; NULL: nothing is known of it.
    const XmlElementName* ElementOf(const char* name) const { return IsReported(name) ? m_event.element : nullptr; }

    /// Decodes up to `length` characters of `text`, or fewer if a NUL comes first. The text is copied and not changed.
    ///
    /// A piece may end anywhere. What follows its last ">" is kept if it holds a "<", and dropped otherwise, even if it
    /// is the beginning of a text that the next piece would complete.
    /// @return one of `eXmlDecodeResult`. Text behind the root element is not looked at.
    int Decode(const char* text, int length);

    /// Splits the inside of a start tag, which is modified, and reports it.
    /// @return 1 no attributes (the element itself was not reported), 0 reported, -1 malformed or no memory.
    int DecodeAttributes(char* tagContent);
    /// Checks what follows the name in a start tag. @return 0 valid, -1 invalid.
    int ValidateAttributeList(char* list);

    /// Appends a copy of `name` to the open names. NULL is appended as NULL. @return 1, or 0 without memory.
    unsigned int PushElement(const char* name);
    /// Removes the last open name. The caller frees the node's text (`FreeElement`) and deletes the node, after
    /// unregistering it (module 1). @return NULL when no name is open, or without memory, when the name stays open.
    BuddyLinkList* PopElement();
    /// True while an element is open.
    bool HasOpenElements() const { return m_openCount != 0; }

    /// Cuts the next token out of `text`. `delimiters` counts up to 32 characters.
    /// @param rest out: behind the delimiter that ended the token, or the end of the text.
    /// @return the token, never empty; NULL when there is none, or when `text` or `delimiters` is NULL, which leaves
    /// `rest` alone as well.
    char* N_strtok(char* text, const char* delimiters, char** rest);
    /// Skips leading white space and cuts off trailing white space.
    char* TrimSpaces(char* text);
    /// Replaces the five predefined entities in place, "&amp;" last.
    void UnescapeXml(char* text);
    /// Replaces every `entity` in `text` in place.
    void UnescapeXmlString(char* text, const char* entity, char replacement);

    int m_DecodeState = IX_XML_PARSE_INIT;  ///< One of `eXmlDecodeState`.

  private:
    /// An open name. Its text is in place when it is short.
    struct OpenName {
        BuddyLinkList node{nullptr};
        XmlElementName name;
        char text[40];
    };
    /// Open names come in blocks, so that a deep document takes few of them and none ever moves.
    struct OpenNames {
        OpenName names[16];
        OpenNames* before = nullptr;
        OpenNames* next = nullptr;
    };

    /// The name in the event that is being reported; none between events.
    struct EventName {
        const char* text = nullptr;
        std::size_t length = 0;
        const XmlElementName* element = nullptr;  ///< NULL: an attribute, or a tag of the caller's.
    };

    /// Where the attributes of a tag stand. They are noted while the list is checked, if they are few and each has a
    /// name.
    struct AttributePlaces {
        static constexpr std::size_t kMost = 16;
        struct {
            char* name;
            char* equals;
            char* value;
            char* close;
        } places[kMost];
        std::size_t count = 0;
        bool isComplete = true;
        char* rest = nullptr;  ///< White space behind the last one.

        void Add(char* name, char* equals, char* value, char* close);
    };

    bool AppendToPending(const char* text, std::size_t length);
    void FreePending();
    int KeepFrom(char* rest, char* begin);
    int DecodeTag(char* scan, char* begin, char* end);
    int DecodeDeclaration(const char* content, const char* end);
    int DecodeEndTag(char* text, char* begin, char* end);
    int DecodeSelfClosingTag(XmlElementName& name, char* content, char* end);
    int DecodeStartTag(XmlElementName& name, char* content, char* end);
    int SplitAttributes(char* content, char* end, XmlElementName& name);
    static int ValidateList(char* text, const char* end, AttributePlaces& attributes);
    int ReportAttributes(const XmlElementName& name, char* rest, char* end, bool hasEntities);
    int ReportPlaces(const XmlElementName& name, const AttributePlaces& attributes, bool hasEntities);
    int ReportElement(const XmlElementName& element, char* name, char* text);
    void ReportAttribute(const XmlElementName& element, char* name, std::size_t length, char* value);
    int ReportSelfClosingEnd(const XmlElementName& name, char* rest);
    bool PushName(const XmlElementName& name);
    OpenName* NextOpenName();
    OpenName& LastOpenName() const { return m_openNames->names[m_openIndex - 1]; }
    BuddyLinkList* NodeBefore() const;
    void FreeOpenNames();
    void DropLastOpenName();

    BuddyLinkList* m_pElementStack = nullptr;  ///< Sentinel of the open names; NULL after an error.
    char* m_pPending = nullptr;                ///< Text of this call behind what the last call left.
    XmlDecoderSchema* m_pSchemaDecoder = nullptr;
    int m_iSelfClosing = 0;  ///< 1 while a tag of the form <name .../> is decoded.

    std::size_t m_pendingLength = 0;
    std::size_t m_pendingSize = 0;
    std::size_t m_tagBegin = 0;     ///< Where the "<" of the pending text stands ...
    std::size_t m_tagSearched = 0;  ///< ... and up to where no ">" follows it.

    std::size_t m_openCount = 0;
    std::size_t m_openIndex = 0;  ///< Names of the last block that are open; at least 1 while any name is.
    OpenNames* m_openNames = &m_firstNames;
    OpenNames m_firstNames;

    XmlWorkText m_unescapeCopy;
    XmlWorkText m_attributeList;
    XmlWorkText m_endName;
    EventName m_event;
};

#endif
