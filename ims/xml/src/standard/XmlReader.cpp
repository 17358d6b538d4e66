#include "XmlReader.h"

#include <climits>

#include "../XmlScan.h"

namespace {

/// What a byte can be in a name.
enum : unsigned char { kNameStart = 1, kNameInside = 2 };

struct ByteKinds {
    unsigned char of[256] = {};

    constexpr ByteKinds() {
        for (int i = 0; i < 256; ++i) {
            const bool isLetter = (i >= 'a' && i <= 'z') || (i >= 'A' && i <= 'Z') || i == '_';
            const bool isInside = isLetter || (i >= '0' && i <= '9') || i == '-' || i == '.';
            of[i] = static_cast<unsigned char>((isLetter ? kNameStart : 0) | (isInside ? kNameInside : 0));
        }
    }
};
constexpr ByteKinds kBytes;

struct Range {
    unsigned long first, last;
};

/// Characters beyond ASCII that begin names ...
constexpr Range kStartRanges[] = {{0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},
                                  {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
                                  {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};
/// ... and that can stand inside of them.
constexpr Range kInsideRanges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t count>
bool IsIn(const Range (&ranges)[count], unsigned long character) {
    for (const Range& range : ranges) {
        if (character >= range.first && character <= range.last) return true;
    }
    return false;
}

bool IsXmlCharacter(unsigned long character) {
    if (character < 0x20) return character == '\t' || character == '\n' || character == '\r';
    return character <= 0xD7FF || (character >= 0xE000 && character <= 0xFFFD) ||
           (character >= 0x10000 && character <= 0x10FFFF);
}

/// The character at `text`; `text` moves behind it. 0: it is none, or an incomplete one.
unsigned long CharacterAt(const char*& text, const char* end) {
    const auto first = static_cast<unsigned char>(*text++);
    if (first < 0x80) return first;
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || end - text < more) return 0;
    unsigned long character = first & (0x3FU >> more);
    for (int i = 0; i < more; ++i) {
        const auto next = static_cast<unsigned char>(*text++);
        if ((next & 0xC0U) != 0x80U) return 0;
        character = character << 6 | (next & 0x3FU);
    }
    constexpr unsigned long kLeast[] = {0, 0x80, 0x800, 0x10000};
    return character >= kLeast[more] ? character : 0;
}

char* WriteCharacter(char* to, unsigned long character) {
    if (character < 0x80) {
        *to++ = static_cast<char>(character);
        return to;
    }
    const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    constexpr unsigned kFirst[] = {0, 0xC0, 0xE0, 0xF0};
    *to++ = static_cast<char>(kFirst[more] | character >> (6 * more));
    for (int i = more - 1; i >= 0; --i) *to++ = static_cast<char>(0x80U | (character >> (6 * i) & 0x3FU));
    return to;
}

/// The end of a name without colon; `text` when there is none.
template <class Character>
Character* NameEnd(Character* text, const char* end) {
    Character* at = text;
    while (at < end) {
        const auto byte = static_cast<unsigned char>(*at);
        const bool isFirst = at == text;
        if (byte < 0x80) {
            if ((kBytes.of[byte] & (isFirst ? kNameStart : kNameInside)) == 0) break;
            ++at;
            continue;
        }
        const char* behind = at;
        const unsigned long character = CharacterAt(behind, end);
        if (!IsIn(kStartRanges, character) && (isFirst || !IsIn(kInsideRanges, character))) break;
        at += behind - at;
    }
    return at;
}

/// True for the ASCII characters that begin names.
inline bool Begins(char letter) { return (kBytes.of[static_cast<unsigned char>(letter)] & kNameStart) != 0; }

/// Behind the ASCII characters from `text` on that can stand inside of names.
inline char* InsideEnd(char* text) {
    while ((kBytes.of[static_cast<unsigned char>(*text)] & kNameInside) != 0) ++text;
    return text;
}

/// The end of a name in a text that ends with a NUL.
inline char* NameEndIn(char* text, const char* end) {
    if (!Begins(*text)) return NameEnd(text, end);
    char* const at = InsideEnd(text + 1);
    return static_cast<unsigned char>(*at) < 0x80 ? at : NameEnd(text, end);
}

/// The character of the reference whose "&" stands at `text`, which moves behind its ";". 0: it is none.
unsigned long ReferenceAt(const char*& text) {
    const char* at = text + 1;
    unsigned long character = 0;
    if (*at == '#') {
        const bool isHex = *++at == 'x';
        if (isHex) ++at;
        const char* const digits = at;
        for (;; ++at) {
            unsigned digit = 16;
            if (*at >= '0' && *at <= '9') digit = static_cast<unsigned>(*at - '0');
            if (isHex && *at >= 'a' && *at <= 'f') digit = static_cast<unsigned>(*at - 'a') + 10;
            if (isHex && *at >= 'A' && *at <= 'F') digit = static_cast<unsigned>(*at - 'A') + 10;
            if (digit >= 16) break;
            character = character * (isHex ? 16 : 10) + digit;
            if (character > 0x10FFFF) return 0;
        }
        if (at == digits || *at != ';' || !IsXmlCharacter(character)) return 0;
        text = at + 1;
        return character;
    }
    constexpr struct {
        const char* name;
        std::size_t length;
        unsigned char character;
    } kPredefined[] = {{"amp;", 4, '&'}, {"lt;", 3, '<'}, {"gt;", 3, '>'}, {"quot;", 5, '"'}, {"apos;", 5, '\''}};
    for (const auto& entity : kPredefined) {
        if (std::strncmp(at, entity.name, entity.length) != 0) continue;
        text = at + entity.length;
        return entity.character;
    }
    return 0;
}

constexpr char kNoCharacter[] = "not a character of XML in UTF-8";
constexpr char kXmlWord[] = "xml";
constexpr char kXmlnsWord[] = "xmlns";

/// memcmp for names, which are short: not worth a call.
bool AreSame(const char* one, const char* other, std::size_t length) {
    std::uint64_t words[2];
    for (; length >= sizeof words[0]; length -= sizeof words[0]) {
        std::memcpy(&words[0], one, sizeof words[0]);
        std::memcpy(&words[1], other, sizeof words[0]);
        if (words[0] != words[1]) return false;
        one += sizeof words[0];
        other += sizeof words[0];
    }
    while (length != 0 && *one == *other) {
        ++one;
        ++other;
        --length;
    }
    return length == 0;
}

bool Is(const XmlSlice& slice, const char* word) {
    return slice.length == std::strlen(word) && std::memcmp(slice.text, word, slice.length) == 0;
}

bool IsInAnyCase(const XmlSlice& slice, const char* lower) {
    if (slice.length != std::strlen(lower)) return false;
    for (std::size_t i = 0; i < slice.length; ++i) {
        const char letter = slice.text[i];
        if ((letter >= 'A' && letter <= 'Z' ? letter + 0x20 : letter) != lower[i]) return false;
    }
    return true;
}

bool AppendText(XmlArray<char>& to, const char* text) { return to.Append(text, std::strlen(text)); }

}  // namespace

unsigned* XmlNameTable::SlotOf(const XmlSlice& name) const {
    std::uint32_t hash = 2166136261U;
    for (std::size_t i = 0; i < name.length; ++i) {
        hash = (hash ^ static_cast<unsigned char>(name.text[i])) * 16777619U;
    }
    std::size_t slot = hash & (m_size - 1);
    while (m_slots[slot] != 0 && !(m_names[m_slots[slot] - 1] == name)) slot = (slot + 1) & (m_size - 1);
    return &m_slots[slot];
}

bool XmlNameTable::Grow() {
    const std::size_t size = m_size == 0 ? kFew : 4 * m_size;
    auto* const slots = m_size == 0 ? m_few : static_cast<unsigned*>(__malloc(size * sizeof(unsigned)));
    if (slots == nullptr) return false;
    std::memset(slots, 0, size * sizeof(unsigned));
    if (m_size > kFew) __free(m_slots);
    m_slots = slots;
    m_size = size;
    for (std::size_t i = 0; i < m_names.Count(); ++i) *SlotOf(m_names[i]) = static_cast<unsigned>(i + 1);
    return true;
}

unsigned XmlNameTable::Intern(const XmlSlice& name) {
    if (2 * m_names.Count() >= m_size && !Grow()) return kNoMemory;
    unsigned* const slot = SlotOf(name);
    if (*slot == 0) {
        if (!m_names.Add(name)) return kNoMemory;
        *slot = static_cast<unsigned>(m_names.Count());
    }
    return *slot - 1;
}

unsigned XmlNameTable::Find(const XmlSlice& name) const {
    const unsigned number = m_size != 0 ? *SlotOf(name) : 0;
    return number != 0 ? number - 1 : kNone;
}

bool XmlUriTable::Intern(const XmlSlice& text, XmlUri& uri) {
    for (std::size_t i = 0; i < kXmlNamespaceCount; ++i) {
        const XmlNamespaceInfo& known = kXmlNamespaces[i];
        if (known.length != text.length || std::memcmp(known.uri, text.text, text.length) != 0) continue;
        uri = static_cast<XmlUri>(i);
        return true;
    }
    const unsigned number = m_others.Intern(text);
    uri = static_cast<XmlUri>(kXmlNamespaceCount + number);
    return number != XmlNameTable::kNoMemory;
}

XmlSlice XmlUriTable::Text(XmlUri uri) const {
    if (uri >= kXmlNamespaceCount) return m_others[uri - kXmlNamespaceCount];
    return {const_cast<char*>(kXmlNamespaces[uri].uri), kXmlNamespaces[uri].length};
}

XmlReader::~XmlReader() {
    for (std::size_t i = 0; i < m_kept.Count(); ++i) __free(m_kept[i]);
    __free(m_copy);
}

// --- Text ------------------------------------------------------------------------------------------------------------

const char* XmlReader::ValidEnd(const char* text, std::size_t length) {
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    constexpr std::uint64_t kHighs = 0x8080808080808080U;
    const char* const end = text + length;
    while (text < end) {
        // Eight printable ASCII characters at a time.
        while (end - text >= 8) {
            std::uint64_t word = 0;
            std::memcpy(&word, text, sizeof word);
            if (((word | (word - kOnes * 0x20)) & kHighs) != 0) break;
            text += sizeof word;
        }
        if (text == end) break;
        const char* behind = text;
        const unsigned long character = CharacterAt(behind, end);
        if (!IsXmlCharacter(character)) return text;
        text = behind;
    }
    return end;
}

bool XmlReader::IsName(const char* text, std::size_t length) {
    return length != 0 && NameEnd(text, text + length) == text + length;
}

bool XmlReader::IsBlank(const XmlSlice& text) {
    std::size_t i = 0;
    while (i < text.length && IsSpace(text.text[i])) ++i;
    return i == text.length;
}

void XmlReader::Decode(XmlSlice& text, bool isAttribute) {
    const char* from = text.text;
    const char* const end = from + text.length;
    char* to = text.text;
    while (from < end) {
        if (*from == '&') {
            to = WriteCharacter(to, ReferenceAt(from));
        } else {
            *to++ = isAttribute && IsSpace(*from) ? ' ' : *from;
            ++from;
        }
    }
    text.length = static_cast<std::size_t>(to - text.text);
}

void XmlReader::Locate(const char* place, int& line, int& column) {
    const auto offset = static_cast<std::size_t>(place - m_copy);
    if (m_counted == nullptr || offset < m_countedCopy) {
        m_counted = m_given;
        m_countedCopy = 0;
        m_line = 1;
        m_column = 1;
    }
    for (; m_countedCopy < offset && m_counted < m_givenEnd; ++m_counted, ++m_countedCopy) {
        const bool isPair = *m_counted == '\r' && m_counted + 1 < m_givenEnd && m_counted[1] == '\n';
        if (isPair) ++m_counted;
        if (*m_counted == '\n' || *m_counted == '\r') {
            ++m_line;
            m_column = 1;
        } else if ((static_cast<unsigned char>(*m_counted) & 0xC0U) != 0x80U) {
            ++m_column;
        }
    }
    line = m_line;
    column = m_column;
}

XmlReader::Event XmlReader::Fail(const char* text, const char* place) {
    if (m_problem.text != nullptr) return kFailed;
    m_problem.text = text;
    if (place != nullptr) Locate(place, m_problem.line, m_problem.column);
    return kFailed;
}

bool XmlReader::Begin(const char* text, std::size_t length) {
    if (length >= 3 && std::memcmp(text, "\xEF\xBB\xBF", 3) == 0) {
        text += 3;
        length -= 3;
    }
    m_copy = length < INT_MAX ? static_cast<char*>(__malloc(length + 1 + kXmlScanPadding)) : nullptr;
    if (m_copy == nullptr) return RefuseMemory();
    m_given = text;
    m_givenEnd = text + length;
    char* to = m_copy;
    const char* const end = text + length;
    while (text < end) {
        const void* const found = std::memchr(text, '\r', static_cast<std::size_t>(end - text));
        const char* const stop = found != nullptr ? static_cast<const char*>(found) : end;
        std::memcpy(to, text, static_cast<std::size_t>(stop - text));
        to += stop - text;
        text = stop;
        if (stop == end) break;
        *to++ = '\n';
        text += stop + 1 < end && stop[1] == '\n' ? 2 : 1;
    }
    std::memset(to, 0, 1 + kXmlScanPadding);
    m_at = m_copy;
    m_end = to;
    const bool declares = IsAt("<?xml") && IsSpace(m_at[5]);
    return !declares || Declaration();
}

// --- Namespaces ------------------------------------------------------------------------------------------------------

char* XmlReader::Keep(const char* text, std::size_t length) {
    char* const copy = static_cast<char*>(__malloc(length + 1));
    if (copy == nullptr || !m_kept.Add(copy)) {
        __free(copy);
        FailMemory();
        return nullptr;
    }
    std::memcpy(copy, text, length);
    return copy;
}

/// The number of a namespace whose text is not in the copy, or not as it is.
bool XmlReader::InternCopy(const char* text, std::size_t length, bool isRaw, XmlUri& uri) {
    XmlSlice kept = {Keep(text, length), length};
    if (kept.text == nullptr) return false;
    kept.text[length] = '\0';
    if (isRaw) Decode(kept, true);
    return m_uris.Intern(kept, uri) || RefuseMemory();
}

bool XmlReader::Bind(const XmlSlice& prefix, XmlUri uri) {
    const unsigned number = prefix.length == 0 ? 0 : m_prefixes.Intern(prefix) + 1;
    if (number == XmlNameTable::kNoMemory + 1 && prefix.length != 0) return RefuseMemory();
    while (m_bound.Count() <= number) {
        if (!m_bound.Add(0)) return RefuseMemory();
    }
    if (!m_bindings.Add({number, m_bound[number], uri})) return RefuseMemory();
    m_bound[number] = static_cast<unsigned>(m_bindings.Count());
    if (number == 0) m_default = uri;
    return true;
}

bool XmlReader::Declare(const char* prefix, std::size_t prefixLength, const char* uri, std::size_t uriLength) {
    XmlUri number = 0;
    XmlSlice name = {Keep(prefix, prefixLength), prefixLength};
    return name.text != nullptr && InternCopy(uri, uriLength, false, number) && Bind(name, number);
}

bool XmlReader::BindDeclaration(XmlReaderAttribute& attribute) {
    XmlUri uri = 0;
    const bool isKnown = attribute.isRaw ? InternCopy(attribute.value.text, attribute.value.length, true, uri)
                                         : m_uris.Intern(attribute.value, uri) || RefuseMemory();
    if (!isKnown) return false;
    XmlSlice prefix = attribute.prefix.length != 0 ? attribute.local : XmlSlice();
    const bool isXml = Is(prefix, kXmlWord);
    if (Is(prefix, kXmlnsWord) || uri == ixUri(XmlNamespace::Xmlns) || isXml != (uri == ixUri(XmlNamespace::Xml))) {
        return Refuse("a prefix that must not be declared so", attribute.local.text);
    }
    if (prefix.length != 0 && uri == 0) {
        return Refuse("a prefix is declared without namespace", attribute.local.text);
    }
    return isXml || Bind(prefix, uri);
}

bool XmlReader::UriOf(const XmlSlice& prefix, XmlUri& uri) {
    // Prefixes repeat.
    const bool isLast = prefix.length == m_lastPrefix.length && AreSame(prefix.text, m_lastPrefix.text, prefix.length);
    const unsigned number = isLast ? m_lastNumber : m_prefixes.Find(prefix);
    if (number != XmlNameTable::kNone && m_bound[number + 1] != 0) {
        uri = m_bindings[m_bound[number + 1] - 1].uri;
        m_lastPrefix = prefix;
        m_lastNumber = number;
        return true;
    }
    uri = ixUri(XmlNamespace::Xml);
    return Is(prefix, kXmlWord) || Refuse("a prefix is not declared", prefix.text);
}

/// Gives the names of the start tag their namespaces.
bool XmlReader::Resolve() {
    const std::size_t count = m_attributes.Count();
    for (std::size_t i = 0; i < count && m_isQualified; ++i) {
        XmlReaderAttribute& attribute = m_attributes[i];
        if (attribute.declares && !BindDeclaration(attribute)) return false;
    }
    m_uri = m_default;
    if (m_prefix.length != 0 && !UriOf(m_prefix, m_uri)) return false;
    for (std::size_t i = 0; i < count && m_isQualified; ++i) {
        XmlReaderAttribute& attribute = m_attributes[i];
        if (attribute.prefix.length == 0) continue;
        if (attribute.declares) {
            attribute.uri = ixUri(XmlNamespace::Xmlns);
        } else if (!UriOf(attribute.prefix, attribute.uri)) {
            return false;
        }
    }
    return count < 2 || !HasTwins();
}

/// Two attributes of one name. Few are compared with each other, many are looked up.
bool XmlReader::HasTwins() {
    const std::size_t count = m_attributes.Count();
    constexpr std::size_t kFew = 8;
    if (count <= kFew) {
        for (std::size_t i = 1; i < count; ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                const XmlReaderAttribute& one = m_attributes[i];
                const XmlReaderAttribute& other = m_attributes[j];
                if (one.local.length == other.local.length && one.uri == other.uri &&
                    AreSame(one.local.text, other.local.text, one.local.length)) {
                    return !Refuse("an attribute is given twice", one.local.text);
                }
            }
        }
        return false;
    }
    // Attributes of one local name are chained.
    XmlNameTable names;
    XmlArray<std::size_t> last;
    XmlArray<std::size_t> before;
    for (std::size_t i = 0; i < count; ++i) {
        const XmlReaderAttribute& one = m_attributes[i];
        const unsigned number = names.Intern(one.local);
        if (number == XmlNameTable::kNoMemory) return !RefuseMemory();
        if (number >= last.Count() && !last.Add(count)) return !RefuseMemory();
        if (!before.Add(last[number])) return !RefuseMemory();
        for (std::size_t j = before[i]; j != count; j = before[j]) {
            if (m_attributes[j].uri == one.uri) {
                return !Refuse("an attribute is given twice", one.local.text);
            }
        }
        last[number] = i;
    }
    return false;
}

// --- Markup ----------------------------------------------------------------------------------------------------------

XmlReader::Event XmlReader::Next(bool wantsBlanks) {
    if (m_closesItself) {
        m_closesItself = false;
        Close();
        return kEnd;
    }
    if (m_problem.text != nullptr) return kFailed;
    for (;;) {
        m_place = m_at;
        if (*m_at != '<') {
            if (m_open.Count() != 0) {
                if (!wantsBlanks) SkipSpaces();
                if (wantsBlanks || *m_at != '<') {
                    m_at = m_place;
                    return TextRun();
                }
                continue;
            }
            SkipSpaces();
            if (m_at == m_end) return m_hasRoot ? kDone : Fail("no root element", m_at);
            if (*m_at != '<') return Fail("text outside of the root element", m_at);
            continue;
        }
        if (m_at[1] == '/') return End();
        bool isGood = false;
        if (m_at[1] == '?') {
            isGood = Instruction();
        } else if (m_at[1] != '!') {
            return Start();
        } else if (IsAt("<!--")) {
            isGood = Comment();
        } else if (m_open.Count() != 0) {
            return CharacterData() ? kText : kFailed;
        } else {
            isGood = DocType();
        }
        if (!isGood) return kFailed;
    }
}

bool XmlReader::QName(XmlSlice& prefix, XmlSlice& local) {
    char* const begin = m_at;
    char* at = NameEndIn(begin, m_end);
    prefix.length = 0;
    local = {begin, static_cast<std::size_t>(at - begin)};
    if (*at == ':' && at != begin) {
        prefix = local;
        char* const behind = at + 1;
        at = NameEndIn(behind, m_end);
        local = {behind, static_cast<std::size_t>(at - behind)};
    }
    m_at = at;
    return local.length != 0 && *at != ':';
}

XmlReader::Event XmlReader::Start() {
    char* const begin = ++m_at;
    if (!QName(m_prefix, m_local)) return Fail("not the name of an element", m_at);
    if (m_open.Count() == 0 && m_hasRoot) return Fail("a second root element", begin);
    if (m_open.Count() == kDeepest) return Fail("more than 1000 open elements", begin);
    if (!m_open.Add({begin, static_cast<std::size_t>(m_at - begin), m_bindings.Count()})) return FailMemory();
    if (!Attributes() || !Resolve()) return kFailed;
    if (!m_hasRoot) m_rootUri = m_uri;
    m_hasRoot = true;
    return kStart;
}

/// An attribute as most are: ` name="value"` with nothing in it that has to be looked at again. @return false: nothing
/// was read.
bool XmlReader::PlainAttribute() {
    char* const begin = m_at + 1;
    if (*m_at != ' ' || !Begins(*begin)) return false;
    char* local = begin;
    char* end = InsideEnd(begin + 1);
    if (*end == ':' && Begins(end[1])) {
        local = end + 1;
        end = InsideEnd(local + 1);
    }
    const char quote = end[0] == '=' ? end[1] : '\0';
    if (quote != '"' && quote != '\'') return false;
    char* const value = end + 2;
    char* const close = ixNextSpecial(value, quote);
    XmlReaderAttribute* const attribute = *close == quote ? m_attributes.Room(1) : nullptr;
    if (attribute == nullptr) return false;
    attribute->prefix = {begin, local != begin ? static_cast<std::size_t>(local - begin) - 1 : 0};
    attribute->local = {local, static_cast<std::size_t>(end - local)};
    attribute->value = {value, static_cast<std::size_t>(close - value)};
    attribute->uri = 0;
    attribute->isRaw = false;
    NoteDeclaration(*attribute);
    m_at = close + 1;
    return true;
}

void XmlReader::NoteDeclaration(XmlReaderAttribute& attribute) {
    const XmlSlice& name = attribute.prefix.length != 0 ? attribute.prefix : attribute.local;
    attribute.declares = *name.text == 'x' && Is(name, kXmlnsWord);
    m_isQualified = m_isQualified || attribute.declares || attribute.prefix.length != 0;
}

/// Up to the end of the tag.
bool XmlReader::Attributes() {
    m_attributes.Cut(0);
    m_isQualified = false;
    for (;;) {
        while (PlainAttribute()) {
        }
        const bool hasSpace = IsSpace(*m_at);
        SkipSpaces();
        if (*m_at == '>') {
            ++m_at;
            return true;
        }
        if (*m_at == '/' && m_at[1] == '>') {
            m_at += 2;
            m_closesItself = true;
            return true;
        }
        if (m_at == m_end) return Refuse("the document ends within a tag", m_at);
        if (!hasSpace) return Refuse("no white space before an attribute", m_at);
        if (!m_attributes.Add({})) return RefuseMemory();
        XmlReaderAttribute& attribute = m_attributes.Last();
        if (!QName(attribute.prefix, attribute.local)) return Refuse("not the name of an attribute", m_at);
        NoteDeclaration(attribute);
        if (!Value(attribute)) return false;
    }
}

bool XmlReader::Value(XmlReaderAttribute& attribute) {
    SkipSpaces();
    if (*m_at != '=') return Refuse("no \"=\" behind the name of an attribute", m_at);
    ++m_at;
    SkipSpaces();
    const char quote = *m_at;
    if (quote != '"' && quote != '\'') return Refuse("an attribute without quotes", m_at);
    attribute.value.text = ++m_at;
    for (;;) {
        m_at = ixNextSpecial(m_at, quote);
        if (*m_at == quote) break;
        const bool wasRaw = attribute.isRaw;
        attribute.isRaw = true;
        if (*m_at == '<') return Refuse("\"<\" in an attribute", m_at);
        const bool isSpace = IsSpace(*m_at);
        if (*m_at != '&' && !isSpace) {
            attribute.isRaw = wasRaw;
            if (!StepOver()) return false;
            continue;
        }
        char* const behind = isSpace ? m_at + 1 : ReferenceEnd(m_at);
        if (behind == nullptr) return Refuse("a reference to no character", m_at);
        m_at = behind;
    }
    attribute.value.length = static_cast<std::size_t>(m_at - attribute.value.text);
    ++m_at;
    return true;
}

/// Behind the character at `m_at`, at which a scan has stopped. @return false: it is none.
bool XmlReader::StepOver() {
    if (m_at == m_end) return Refuse("the document ends too early", m_at);
    const char* behind = m_at;
    if (!IsXmlCharacter(CharacterAt(behind, m_end))) return Refuse(kNoCharacter, m_at);
    m_at += behind - m_at;
    return true;
}

/// What is read over has to consist of characters, too.
bool XmlReader::AreCharacters(const char* begin, const char* end) {
    const char* const valid = ValidEnd(begin, static_cast<std::size_t>(end - begin));
    return valid == end || Refuse(kNoCharacter, valid);
}

char* XmlReader::ReferenceEnd(char* text) {
    const char* behind = text;
    return ReferenceAt(behind) != 0 ? text + (behind - text) : nullptr;
}

XmlReader::Event XmlReader::End() {
    m_at += 2;
    if (m_open.Count() == 0) return Fail("an end tag without start tag", m_place);
    const Open& open = m_open.Last();
    const auto left = static_cast<std::size_t>(m_end - m_at);
    if (left < open.length || !AreSame(m_at, open.name, open.length)) {
        return Fail("not the end tag of the open element", m_place);
    }
    m_at += open.length;
    SkipSpaces();
    if (*m_at != '>') return Fail("not the end tag of the open element", m_place);
    ++m_at;
    Close();
    return kEnd;
}

void XmlReader::Close() {
    const std::size_t bindings = m_open.Last().bindings;
    for (std::size_t i = m_bindings.Count(); i > bindings; --i) {
        const Binding& binding = m_bindings[i - 1];
        m_bound[binding.prefix] = binding.shadowed;
        if (binding.prefix == 0) m_default = binding.shadowed != 0 ? m_bindings[binding.shadowed - 1].uri : 0;
    }
    m_bindings.Cut(bindings);
    m_open.Cut(m_open.Count() - 1);
}

XmlReader::Event XmlReader::TextRun() {
    m_text.text = m_at;
    m_isRaw = false;
    for (;;) {
        m_at = ixNextSpecial(m_at, ']');
        if (*m_at == '<') break;
        if (*m_at != ']' && *m_at != '&') {
            if (!StepOver()) return kFailed;
            continue;
        }
        if (*m_at == ']') {
            if (m_at[1] == ']' && m_at[2] == '>') return Fail("\"]]>\" in a text", m_at);
            ++m_at;
            continue;
        }
        m_isRaw = true;
        char* const behind = ReferenceEnd(m_at);
        if (behind == nullptr) return Fail("a reference to no character", m_at);
        m_at = behind;
    }
    m_text.length = static_cast<std::size_t>(m_at - m_text.text);
    return kText;
}

bool XmlReader::TextAlone(XmlSlice& text) {
    text = {m_at, 0};
    if (m_closesItself) {
        m_closesItself = false;
        Close();
        return true;
    }
    // All that has to be looked at twice is left to the other functions.
    char* const end = ixNextSpecial(m_at, ']');
    const Open& open = m_open.Last();
    if (*end != '<' || end[1] != '/' || static_cast<std::size_t>(m_end - end) < open.length + 3) return false;
    char* const behind = end + 2 + open.length;
    if (*behind != '>' || !AreSame(end + 2, open.name, open.length)) return false;
    text.length = static_cast<std::size_t>(end - m_at);
    m_at = behind + 1;
    Close();
    return true;
}

bool XmlReader::CharacterData() {
    constexpr char kBegin[] = "<![CDATA[";
    if (!IsAt(kBegin)) return Refuse("markup that an element must not have", m_at);
    char* const begin = m_at + sizeof kBegin - 1;
    char* const end = std::strstr(begin, "]]>");
    if (end == nullptr) return Refuse("a CDATA section without end", m_at);
    m_text = {begin, static_cast<std::size_t>(end - begin)};
    m_isRaw = false;
    m_at = end + 3;
    return AreCharacters(begin, end);
}

bool XmlReader::Comment() {
    char* const end = std::strstr(m_at + 4, "--");
    if (end == nullptr || end[2] != '>') return Refuse("a comment without end, or with \"--\"", m_at);
    const char* const begin = m_at;
    m_at = end + 3;
    return AreCharacters(begin, end);
}

bool XmlReader::Instruction() {
    char* const begin = m_at;
    XmlSlice prefix;
    XmlSlice target;
    m_at += 2;
    const bool isName = QName(prefix, target) && prefix.length == 0;
    const bool isReserved = IsInAnyCase(target, kXmlWord);
    char* const end = std::strstr(m_at, "?>");
    if (!isName || isReserved || end == nullptr || (end != m_at && !IsSpace(*m_at))) {
        return Refuse("not a processing instruction", begin);
    }
    m_at = end + 2;
    return AreCharacters(begin, end);
}

/// `name="value"` of the XML declaration, if it is next.
bool XmlReader::Pseudo(const char* name, XmlSlice& value) {
    char* const begin = m_at;
    SkipSpaces();
    if (begin == m_at || !IsAt(name)) {
        m_at = begin;
        return false;
    }
    m_at += std::strlen(name);
    SkipSpaces();
    if (*m_at != '=') return false;
    ++m_at;
    SkipSpaces();
    const char quote = *m_at;
    char* const close = quote == '"' || quote == '\'' ? std::strchr(m_at + 1, quote) : nullptr;
    if (close == nullptr) return false;
    value = {m_at + 1, static_cast<std::size_t>(close - m_at - 1)};
    m_at = close + 1;
    return true;
}

bool XmlReader::Declaration() {
    m_at += 5;
    XmlSlice value;
    bool isGood = Pseudo("version", value) && value.length > 2 && std::strncmp(value.text, "1.", 2) == 0;
    for (std::size_t i = 2; isGood && i < value.length; ++i) isGood = value.text[i] >= '0' && value.text[i] <= '9';
    if (isGood && Pseudo("encoding", value)) {
        const bool isKnown = IsInAnyCase(value, "utf-8") || IsInAnyCase(value, "us-ascii");
        if (!isKnown) return Refuse("another encoding than UTF-8", value.text);
    }
    if (isGood && Pseudo("standalone", value)) isGood = Is(value, "yes") || Is(value, "no");
    SkipSpaces();
    if (!isGood || !IsAt("?>")) return Refuse("not an XML declaration", m_at);
    m_at += 2;
    return true;
}

/// A document type without declarations of its own is read over.
bool XmlReader::DocType() {
    constexpr char kBegin[] = "<!DOCTYPE";
    char* const begin = m_at;
    XmlSlice prefix;
    XmlSlice name;
    if (!IsAt(kBegin) || m_hasRoot || m_hasDocType) return Refuse("markup that is none", begin);
    m_hasDocType = true;
    m_at += sizeof kBegin - 1;
    bool isGood = IsSpace(*m_at);
    SkipSpaces();
    isGood = isGood && QName(prefix, name);
    const bool hasSpace = IsSpace(*m_at);
    SkipSpaces();
    int literals = IsAt("SYSTEM") ? 1 : IsAt("PUBLIC") ? 2 : 0;
    bool isPublic = literals == 2;
    if (literals != 0) {
        isGood = isGood && hasSpace;
        m_at += 6;
    }
    for (; isGood && literals != 0; --literals) {
        isGood = IsSpace(*m_at);
        SkipSpaces();
        char* const close = *m_at == '"' || *m_at == '\'' ? std::strchr(m_at + 1, *m_at) : nullptr;
        isGood = isGood && close != nullptr;
        for (char* at = m_at + 1; isGood && isPublic && at < close; ++at) {
            const auto byte = static_cast<unsigned char>(*at);
            isGood = (kBytes.of[byte] & kNameInside) != 0 || (byte < 0x80 && std::strchr(" \n'()+,/:=?;!*#@$%", byte));
        }
        isPublic = false;
        if (isGood) m_at = close + 1;
    }
    if (isGood) SkipSpaces();
    if (isGood && *m_at == '[') return Refuse("a document type with declarations", m_at);
    if (!isGood || *m_at != '>') return Refuse("not a document type", begin);
    ++m_at;
    return AreCharacters(begin, m_at);
}

// --- Pieces ----------------------------------------------------------------------------------------------------------

/// Notes a prefix that a piece uses and something around it declares.
bool XmlReader::Need(const XmlSlice& prefix, std::size_t outer) {
    const unsigned found = prefix.length != 0 ? m_prefixes.Find(prefix) : 0;
    if (found == XmlNameTable::kNone) return true;
    const unsigned number = prefix.length != 0 ? found + 1 : 0;
    const unsigned binding = number < m_bound.Count() ? m_bound[number] : 0;
    // Without a binding there is no prefix of that name, and no default namespace.
    if (binding > outer || (binding == 0 && number != 0)) return true;
    while (m_asked.Count() <= number) {
        if (!m_asked.Add(0)) return RefuseMemory();
    }
    if (m_asked[number] == m_pieces) return true;
    m_asked[number] = m_pieces;
    return m_needed.Add(number) || RefuseMemory();
}

/// Values may be names, too: whatever looks like a prefix counts.
bool XmlReader::NeedMentioned(const char* text, const char* end, std::size_t outer) {
    const char* begin = text;
    for (const char* at = text; at < end; ++at) {
        const auto byte = static_cast<unsigned char>(*at);
        if (byte == ':' && at != begin) {
            const XmlSlice prefix = {const_cast<char*>(begin), static_cast<std::size_t>(at - begin)};
            if (!Need(prefix, outer)) return false;
        }
        if (byte < 0x80 && (kBytes.of[byte] & kNameInside) == 0) begin = at + 1;
    }
    return true;
}

bool XmlReader::NeedOfStart(std::size_t outer) {
    if (!Need(m_prefix, outer)) return false;
    for (std::size_t i = 0; i < m_attributes.Count(); ++i) {
        const XmlReaderAttribute& attribute = m_attributes[i];
        if (attribute.declares) continue;
        if (attribute.prefix.length != 0 && !Need(attribute.prefix, outer)) return false;
        const char* const value = attribute.value.text;
        if (!NeedMentioned(value, value + attribute.value.length, outer)) return false;
    }
    return true;
}

/// @return false without memory.
bool XmlReader::PutDeclaration(XmlArray<char>& piece, unsigned prefix) const {
    const unsigned binding = prefix < m_bound.Count() ? m_bound[prefix] : 0;
    const XmlUri uri = binding != 0 ? m_bindings[binding - 1].uri : 0;
    if (uri == 0 && m_rootUri == 0) return true;
    bool isGood = AppendText(piece, prefix != 0 ? " xmlns:" : " xmlns");
    if (prefix != 0) isGood = isGood && piece.Append(m_prefixes[prefix - 1].text, m_prefixes[prefix - 1].length);
    isGood = isGood && AppendText(piece, "=\"");
    const XmlSlice text = UriText(uri);
    for (std::size_t i = 0; i < text.length && isGood; ++i) {
        const char letter = text.text[i];
        isGood = letter == '&'   ? AppendText(piece, "&amp;")
                 : letter == '<' ? AppendText(piece, "&lt;")
                 : letter == '"' ? AppendText(piece, "&quot;")
                                 : piece.Add(letter);
    }
    return isGood && piece.Add('"');
}

bool XmlReader::Skip(XmlArray<char>& piece) {
    const std::size_t depth = m_open.Count();
    const char* const begin = m_open.Last().name;
    const char* const nameEnd = begin + m_open.Last().length;
    const std::size_t outer = m_open.Last().bindings;
    ++m_pieces;
    m_needed.Cut(0);
    if (!NeedOfStart(outer)) return false;
    while (m_open.Count() >= depth) {
        const Event event = Next();
        if (event == kFailed) return false;
        if (event == kStart && !NeedOfStart(outer)) return false;
        if (event == kText && !NeedMentioned(m_text.text, m_text.text + m_text.length, outer)) return false;
    }
    bool isGood = piece.Add('<') && piece.Append(begin, static_cast<std::size_t>(nameEnd - begin));
    // The default namespace comes first: the writer leaves it out where it is declared anyway.
    for (std::size_t i = 0; i < m_needed.Count(); ++i)
        isGood = isGood && (m_needed[i] != 0 || PutDeclaration(piece, 0));
    for (std::size_t i = 0; i < m_needed.Count(); ++i) {
        isGood = isGood && (m_needed[i] == 0 || PutDeclaration(piece, m_needed[i]));
    }
    isGood = isGood && piece.Append(nameEnd, static_cast<std::size_t>(m_at - nameEnd));
    return isGood || RefuseMemory();
}
