/// @file
/// The reader of the standard profile: XML 1.0 (fifth edition) with namespaces, one pass over a private copy of the
/// text. It refuses a DOCTYPE with an internal subset, references to other than the predefined entities and to
/// characters, other encodings than UTF-8, and more than 1,000 open elements: nothing is ever expanded or fetched.
#ifndef IX_XML_READER_H
#define IX_XML_READER_H

#include <cstdint>
#include <cstring>

#include "XMLFactory.h"
#include "XmlNamespaces.h"

/// Characters of a text.
struct XmlSlice {
    char* text = nullptr;
    std::size_t length = 0;

    bool operator==(const XmlSlice& other) const {
        return length == other.length && std::memcmp(text, other.text, length) == 0;
    }
};

/// A growing array of plain values, the first `few` in place.
template <class Value, std::size_t few = 16>
class XmlArray {
  public:
    XmlArray() = default;
    ~XmlArray() { FreeBlock(); }
    XmlArray(const XmlArray&) = delete;
    XmlArray& operator=(const XmlArray&) = delete;

    std::size_t Count() const { return m_count; }
    Value& operator[](std::size_t i) { return m_values[i]; }
    const Value& operator[](std::size_t i) const { return m_values[i]; }
    Value& Last() { return m_values[m_count - 1]; }
    void Cut(std::size_t count) { m_count = count; }
    /// @return false without memory.
    bool Add(const Value& value) {
        if (m_count == m_size && !Grow(1)) return false;
        m_values[m_count++] = value;
        return true;
    }
    bool Append(const Value* values, std::size_t count) {
        Value* const to = Room(count);
        if (to != nullptr && count != 0) std::memcpy(to, values, count * sizeof(Value));
        return to != nullptr || count == 0;
    }
    Value* Values() { return m_values; }
    /// Adds `count` values that the caller then sets; NULL without memory.
    Value* Room(std::size_t count) {
        if (m_count + count > m_size && !Grow(count)) return nullptr;
        m_count += count;
        return m_values + m_count - count;
    }
    /// The block, which passes to the caller; the array is empty then.
    Value* Release() {
        static_assert(few == 0, "none of the values are in place");
        Value* const values = m_values;
        m_values = nullptr;
        m_count = 0;
        m_size = 0;
        return values;
    }

  private:
    [[gnu::noinline]] bool Grow(std::size_t count) {
        const std::size_t size = 2 * m_size > m_count + count ? 2 * m_size : m_count + count + 15;
        auto* const grown = static_cast<Value*>(__malloc(size * sizeof(Value)));
        if (grown == nullptr) return false;
        if (m_count != 0) std::memcpy(static_cast<void*>(grown), m_values, m_count * sizeof(Value));
        FreeBlock();
        m_values = grown;
        m_size = size;
        return true;
    }

    void FreeBlock() {
        if (m_size > few) __free(m_values);
    }

    alignas(Value) char m_few[few * sizeof(Value) + 1];
    Value* m_values = few != 0 ? reinterpret_cast<Value*>(m_few) : nullptr;
    std::size_t m_count = 0;
    std::size_t m_size = few;
};

/// Names by their characters: numbers from 0 on. The texts stay with the caller.
class XmlNameTable {
  public:
    XmlNameTable() = default;
    ~XmlNameTable() {
        if (m_size > kFew) __free(m_slots);
    }
    XmlNameTable(const XmlNameTable&) = delete;
    XmlNameTable& operator=(const XmlNameTable&) = delete;

    static constexpr unsigned kNoMemory = ~0U;
    static constexpr unsigned kNone = ~0U - 1;
    /// The number of a name, a new one if it is new; `kNoMemory`.
    unsigned Intern(const XmlSlice& name);
    /// The number of a name, or `kNone`.
    unsigned Find(const XmlSlice& name) const;
    std::size_t Count() const { return m_names.Count(); }
    const XmlSlice& operator[](std::size_t number) const { return m_names[number]; }

  private:
    unsigned* SlotOf(const XmlSlice& name) const;
    bool Grow();

    XmlArray<XmlSlice> m_names;
    static constexpr std::size_t kFew = 32;

    unsigned m_few[kFew];
    unsigned* m_slots = nullptr;  ///< A number and one; 0: free.
    std::size_t m_size = 0;
};

/// The number of a namespace: one of `XmlNamespace`, or behind them in the order in which a document declares them.
using XmlUri = unsigned;
constexpr XmlUri ixUri(XmlNamespace known) { return static_cast<XmlUri>(known); }

/// The namespaces of a document by their numbers. The texts of those that `XmlNamespace` does not have stay with the
/// caller.
class XmlUriTable {
  public:
    /// @return false without memory.
    bool Intern(const XmlSlice& text, XmlUri& uri);
    XmlSlice Text(XmlUri uri) const;

  private:
    XmlNameTable m_others;
};

/// An attribute of a start tag.
struct XmlReaderAttribute {
    XmlSlice prefix;
    XmlSlice local;
    XmlSlice value;      ///< As written; `XmlReader::Decode` makes it what it means.
    XmlUri uri = 0;      ///< Of a name without prefix: none.
    bool isRaw = false;  ///< The value is not what it means.
    bool declares = false;
};

class XmlReader {
  public:
    enum Event {
        kStart,
        kEnd,
        kText,
        kDone,   ///< The document is complete.
        kFailed  ///< See `Problem`.
    };
    static constexpr std::size_t kDeepest = 1000;

    XmlReader() = default;
    ~XmlReader();
    XmlReader(const XmlReader&) = delete;
    XmlReader& operator=(const XmlReader&) = delete;

    /// Binds a prefix before the document does. @return false without memory.
    bool Declare(const char* prefix, std::size_t prefixLength, const char* uri, std::size_t uriLength);
    /// Takes a copy of a document. @return false for what is no text, and without memory.
    bool Begin(const char* text, std::size_t length);
    /// A tag that closes itself is a start and an end.
    /// @param wantsBlanks whether a text of white space alone is reported, too.
    Event Next(bool wantsBlanks = false);

    /// Reads the rest of the element whose start was reported last, if that is no more than a text without mistakes and
    /// the end tag, so that neither is reported. @param text out: what it means. @return false: nothing was read.
    bool TextAlone(XmlSlice& text);

    /// @name The last start
    /// @{
    const XmlSlice& Local() const { return m_local; }
    XmlUri Uri() const { return m_uri; }
    std::size_t AttributeCount() const { return m_attributes.Count(); }
    XmlReaderAttribute& Attribute(std::size_t i) { return m_attributes[i]; }
    /// @}

    /// Reads over the rest of the element whose start was reported last, so that its end is not reported.
    /// @param piece out: all of it, with the declarations that it needs. @return false: see `Problem`.
    bool Skip(XmlArray<char>& piece);

    /// @name The last text
    /// @{
    const XmlSlice& Text() const { return m_text; }
    bool IsRaw() const { return m_isRaw; }
    /// @}

    /// Replaces references in place, and in attributes white space by blanks.
    static void Decode(XmlSlice& text, bool isAttribute);
    static bool IsSpace(char letter) { return letter == ' ' || letter == '\n' || letter == '\t' || letter == '\r'; }
    static bool IsBlank(const XmlSlice& text);
    /// True for a name without colon.
    static bool IsName(const char* text, std::size_t length);
    /// The first character that XML does not have, or `text + length`.
    static const char* ValidEnd(const char* text, std::size_t length);

    /// The characters of a namespace of this document.
    XmlSlice UriText(XmlUri uri) const { return m_uris.Text(uri); }
    /// Where the last event begins.
    const char* Place() const { return m_place; }
    /// Line and column of a place, from 1 on. Places that follow each other are found in one pass.
    void Locate(const char* place, int& line, int& column);

    Event Fail(const char* text, const char* place);
    Event FailMemory() { return Fail("no memory", nullptr); }
    /// The same for steps. @return false.
    bool Refuse(const char* text, const char* place) { return Fail(text, place) != kFailed; }
    bool RefuseMemory() { return FailMemory() != kFailed; }
    /// NULL: nothing has failed.
    const XmlProblem* Problem() const { return m_problem.text != nullptr ? &m_problem : nullptr; }

  private:
    struct Open {
        char* name;  ///< With its prefix.
        std::size_t length;
        std::size_t bindings;  ///< Before it.
    };
    struct Binding {
        unsigned prefix;    ///< In `m_prefixes`; 0: the default namespace.
        unsigned shadowed;  ///< The binding before, and one; 0: none.
        XmlUri uri;
    };

    Event Start();
    Event End();
    Event TextRun();
    bool Attributes();
    bool PlainAttribute();
    void NoteDeclaration(XmlReaderAttribute& attribute);
    bool Value(XmlReaderAttribute& attribute);
    bool Resolve();
    bool HasTwins();
    bool BindDeclaration(XmlReaderAttribute& attribute);
    bool Bind(const XmlSlice& prefix, XmlUri uri);
    bool InternCopy(const char* text, std::size_t length, bool isRaw, XmlUri& uri);
    char* Keep(const char* text, std::size_t length);
    void Close();
    bool UriOf(const XmlSlice& prefix, XmlUri& uri);
    bool QName(XmlSlice& prefix, XmlSlice& local);
    static char* ReferenceEnd(char* text);
    bool StepOver();
    bool AreCharacters(const char* begin, const char* end);
    bool CharacterData();
    bool Comment();
    bool Instruction();
    bool Declaration();
    bool DocType();
    bool Pseudo(const char* name, XmlSlice& value);
    bool IsAt(const char* word) const { return std::strncmp(m_at, word, std::strlen(word)) == 0; }
    void SkipSpaces() {
        while (IsSpace(*m_at)) ++m_at;
    }
    bool Need(const XmlSlice& prefix, std::size_t outer);
    bool NeedMentioned(const char* text, const char* end, std::size_t outer);
    bool NeedOfStart(std::size_t outer);
    bool PutDeclaration(XmlArray<char>& piece, unsigned prefix) const;

    char* m_copy = nullptr;
    char* m_at = nullptr;
    char* m_end = nullptr;
    char* m_place = nullptr;
    XmlArray<Open> m_open;
    XmlArray<Binding> m_bindings;
    XmlNameTable m_prefixes;
    XmlArray<unsigned> m_bound;  ///< By prefix: its binding and one; 0: none.
    XmlUriTable m_uris;
    XmlArray<char*> m_kept;  ///< Texts of namespaces that are not in the copy as they are.
    XmlArray<XmlReaderAttribute> m_attributes;
    bool m_isQualified = false;  ///< Of the last start: some attribute has a prefix, or declares one.
    XmlSlice m_lastPrefix;       ///< That was looked up last, with success ...
    unsigned m_lastNumber = 0;   ///< ... and its number.
    XmlUri m_default = 0;
    XmlUri m_rootUri = 0;
    XmlArray<unsigned> m_needed;  ///< Prefixes that a piece needs declared ...
    XmlArray<unsigned> m_asked;   ///< ... and by prefix the number of the piece that was last asked for it.
    unsigned m_pieces = 0;
    XmlSlice m_prefix;
    XmlSlice m_local;
    XmlUri m_uri = 0;
    XmlSlice m_text;
    bool m_isRaw = false;
    bool m_closesItself = false;
    bool m_hasRoot = false;
    bool m_hasDocType = false;
    XmlProblem m_problem = {0, 0, nullptr};

    /// The text as it came: the copy is changed where references are replaced. How far lines have been counted in it.
    const char* m_given = nullptr;
    const char* m_givenEnd = nullptr;
    const char* m_counted = nullptr;
    std::size_t m_countedCopy = 0;
    int m_line = 1;
    int m_column = 1;
};

#endif
