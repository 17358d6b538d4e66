#include "XmlDecoder.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "XmlScan.h"

namespace {

/// A line with the event number of the tokenizer and a source line that is fixed.
constexpr XmlLogText Line(int level, int line, const char* text) { return {level, kDecoderCode, line, text}; }

/// Nodes of the open names are registered as if `BuddyLinkList::Append` had made them.
const char kNodeSourceFile[] = "ims/xml/src/XmlCommon";
constexpr int kNodeLine = 22;

/// What a step of the scan says to `Decode`, beside IX_XML_ERROR and IX_XML_INCOMPLETE (return it, state kept).
enum Step { kGoOn = 2, kTagDone = 3, kSyntaxError = 4 };

/// A set of byte values.
class ByteSet {
  public:
    constexpr ByteSet(const char* bytes, std::size_t most) : m_has() {
        for (std::size_t i = 0; i < most && bytes[i] != '\0'; ++i) m_has[static_cast<unsigned char>(bytes[i])] = kHas;
        m_has[0] = kNul;
    }
    bool Has(char byte) const { return m_has[static_cast<unsigned char>(byte)] == kHas; }
    /// The first byte of `text` that the set has, or the NUL.
    char* EndOf(char* text) const {
        while (m_has[static_cast<unsigned char>(*text)] == 0) ++text;
        return text;
    }

  private:
    static constexpr unsigned char kHas = 1;
    static constexpr unsigned char kNul = 2;

    unsigned char m_has[256];
};

constexpr std::size_t kMostDelimiters = 32;
constexpr ByteSet kSpaces(" \t\r\n", kMostDelimiters);
constexpr ByteSet kNameEnds("\"'= \t\r\n", kMostDelimiters);
constexpr ByteSet kTagNameEnds("> \t\r\n", kMostDelimiters);
constexpr ByteSet kTagNameStops(":> \t\r\n", kMostDelimiters);

/// memchr for a byte that is usually near: the first words are looked at here, without a call.
char* FindByte(char* from, const char* last, char byte) {
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    constexpr std::uint64_t kHighs = 0x8080808080808080U;
    constexpr int kNearWords = 4;
    const std::uint64_t pattern = kOnes * static_cast<unsigned char>(byte);
    for (int i = 0; i < kNearWords && last - from >= 8; ++i, from += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, from, sizeof word);
        word ^= pattern;
        const std::uint64_t found = (word - kOnes) & ~word & kHighs;
        if (found == 0) continue;
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
        return from + (__builtin_ctzll(found) >> 3);
#else
        break;
#endif
    }
    return static_cast<char*>(std::memchr(from, byte, static_cast<std::size_t>(last - from)));
}

/// memcmp for two names, mostly short ones, which have just been written: looked at in words, they come straight from
/// where they were written to.
bool SameBytes(const char* left, const char* right, std::size_t length) {
    for (; length >= sizeof(std::uint64_t); length -= sizeof(std::uint64_t)) {
        std::uint64_t words[2];
        std::memcpy(&words[0], left, sizeof words[0]);
        std::memcpy(&words[1], right, sizeof words[1]);
        if (words[0] != words[1]) return false;
        left += sizeof words[0];
        right += sizeof words[1];
    }
    for (; length != 0; --length) {
        if (*left++ != *right++) return false;
    }
    return true;
}

/// Cuts off the token in front of `end`: the end of the text, or a delimiter that becomes the NUL of the token.
void EndToken(char* end, char** rest) {
    if (*end != '\0') *end++ = '\0';
    *rest = end;
}

char* CutToken(char* text, const ByteSet& delimiters, char** rest) {
    while (delimiters.Has(*text)) ++text;
    if (*text == '\0') {
        *rest = text;
        return nullptr;
    }
    EndToken(delimiters.EndOf(text), rest);
    return text;
}

/// `CutToken` with one delimiter. `end` is the NUL of the text.
char* CutAt(char* text, char delimiter, char* end, char** rest) {
    while (*text == delimiter) ++text;
    if (text == end) {
        *rest = end;
        return nullptr;
    }
    char* const found = FindByte(text, end, delimiter);
    EndToken(found != nullptr ? found : end, rest);
    return text;
}

/// The name that a tag begins with, and has behind it a delimiter or `end`. Nothing of the tag has been changed yet:
/// what has just been written is slow to read in larger units.
XmlElementName NameIn(char* tag, char* end) {
    XmlElementName name;
    char* const stop = kTagNameStops.EndOf(tag);
    char* const found = *stop == ':' ? kTagNameEnds.EndOf(stop) : stop;
    name.length = static_cast<std::size_t>((found < end ? found : end) - tag);
    if (name.length == 0) return name;
    name.text = tag;
    name.isResolved = true;
    name.whole = XmlName::OfPadded(tag, name.length);
    name.local = name.whole;
    if (*stop == ':') {
        name.prefixLength = static_cast<std::size_t>(stop + 1 - tag);
        name.local = XmlName::OfPadded(stop + 1, name.length - name.prefixLength);
    }
    return name;
}

}  // namespace

int XmlDecoderSchema::ReservedLast() { return 0; }

XmlDecoder::XmlDecoder() { InitXmlDecoder(); }

XmlDecoder::~XmlDecoder() { ResetXmlDecoder(); }

void XmlDecoder::InitXmlDecoder() {
    if (m_pElementStack == nullptr) {
        m_pElementStack = BuddyLinkList::Create(nullptr, kSource, 100);
    }
    FreePending();
    m_DecodeState = IX_XML_PARSE_INIT;
}

void XmlDecoder::FreePending() {
    __free(m_pPending);
    m_pPending = nullptr;
    m_pendingLength = 0;
    m_pendingSize = 0;
    m_tagBegin = 0;
    m_tagSearched = 0;
}

void XmlDecoder::ResetXmlDecoder() {
    FreePending();
    if (m_pElementStack == nullptr) return;
    FreeOpenNames();
    ixDelete(m_pElementStack, kTokenizerModule);
    m_pElementStack = nullptr;
}

/// Joins `text` to what the last call left. The buffer of a document that comes in many pieces grows in steps, so that
/// small pieces do not copy it again and again.
bool XmlDecoder::AppendToPending(const char* text, std::size_t length) {
    const std::size_t needed = m_pendingLength + length + 1;
    if (needed > INT_MAX) return false;
    if (needed > m_pendingSize) {
        const std::size_t size = m_pendingLength == 0 || needed > 2 * m_pendingSize ? needed : 2 * m_pendingSize;
        char* const joined = static_cast<char*>(__malloc(size + kXmlScanPadding));
        if (joined == nullptr) return false;
        if (m_pendingLength != 0) std::memcpy(joined, m_pPending, m_pendingLength);
        __free(m_pPending);
        m_pPending = joined;
        m_pendingSize = size;
    }
    const void* const nul = std::memchr(text, '\0', length);
    if (nul != nullptr) length = static_cast<std::size_t>(static_cast<const char*>(nul) - text);
    std::memcpy(m_pPending + m_pendingLength, text, length);
    m_pendingLength += length;
    m_pPending[m_pendingLength] = '\0';
    return true;
}

/// Keeps the pending text from `rest` on for the next call. The "<" at `begin` has no ">" behind it so far.
int XmlDecoder::KeepFrom(char* rest, char* begin) {
    ixLog(kSource, Line(3, 459, "<XML Decoder>:IX_XML_PARSE_CONTINUE ret:IX_XML_INCOMPLETE "));
    m_DecodeState = IX_XML_PARSE_CONTINUE;
    const auto offset = static_cast<std::size_t>(rest - m_pPending);
    m_tagBegin = static_cast<std::size_t>(begin - rest);
    m_pendingLength -= offset;
    m_tagSearched = m_pendingLength;
    if (offset == 0) return IX_XML_INCOMPLETE;
    // Required: cannot happen with a well-formed buffer; a buffer that is not must not be used any further.
    if (m_pendingLength + 1 > m_pendingSize) {
        ixLog(kSource,
              XmlLogText(4, kBufferCheckCode, 467, "ixDplMemsmove - src1_size buffer size less than src2_size size"));
        std::exit(EXIT_FAILURE);
    }
    __memmove(m_pPending, rest, m_pendingLength + 1);
    return IX_XML_INCOMPLETE;
}

int XmlDecoder::Decode(const char* text, int length) {
    ixLog(kSource, Line(2, 180, "XmlDecoder::n_count = %d"), length);
    if (text == nullptr || length <= 0) {
        ixLog(kSource, Line(2, 183, "XmlDecoder::Decode n_strXML is null"));
        return IX_XML_ERROR;
    }
    if (m_DecodeState == IX_XML_PARSE_COMPLETE) {
        ixLog(kSource, Line(2, 189, "XmlDecoder::Decode m_DecodeState = IX_XML_PARSE_COMPLETE ret IX_XML_SUCCESS"));
        return IX_XML_SUCCESS;
    }
    if (m_DecodeState == IX_XML_PARSE_ERROR) return IX_XML_ERROR;
    if (!AppendToPending(text, static_cast<std::size_t>(length))) return IX_XML_ERROR;

    char* scan = m_pPending;
    const char* const last = m_pPending + m_pendingLength;
    // What the last call has searched in vain is not searched again.
    char* begin = scan + m_tagBegin;
    char* behind = scan + m_tagSearched;
    m_tagBegin = 0;
    m_tagSearched = 0;
    for (;;) {
        m_iSelfClosing = 0;
        begin = ixNextOf(begin, '<');
        if (begin == last) {
            m_DecodeState = IX_XML_PARSE_CONTINUE;
            m_pPending[0] = '\0';
            m_pendingLength = 0;
            ixLog(kSource, Line(3, 476, "<XML Decoder>:IX_XML_PARSE_CONTINUE ret:IX_XML_INCOMPLETE"));
            return IX_XML_INCOMPLETE;
        }
        if (behind <= begin) behind = begin + 1;
        char* const end = ixNextOf(behind, '>');
        if (end == last) return KeepFrom(scan, begin);
        const int step = DecodeTag(scan, begin, end);
        if (step == kSyntaxError) {
            m_DecodeState = IX_XML_PARSE_ERROR;
            ResetXmlDecoder();
            return IX_XML_ERROR;
        }
        scan = end + 1;
        begin = scan;
        behind = scan;
        if (step == IX_XML_ERROR || step == IX_XML_INCOMPLETE) {
            // The bad end tag is behind us; what follows it stays for a caller that goes on all the same.
            m_pendingLength = static_cast<std::size_t>(last - scan);
            __memmove(m_pPending, scan, m_pendingLength + 1);
            return step;
        }
        if (step == kTagDone && !HasOpenElements()) {
            m_DecodeState = IX_XML_PARSE_COMPLETE;
            ixLog(kSource, Line(3, 450, "<XML Decoder>:Decoder Success"));
            return IX_XML_SUCCESS;
        }
    }
}

/// One tag, from its "<" at `begin` to its ">" at `end`, which becomes a NUL. The text before it starts at `scan`.
int XmlDecoder::DecodeTag(char* scan, char* begin, char* end) {
    char* const content = begin + 1;
    const bool isComment = *content == '!' && std::strncmp(content, "!--", 3) == 0;
    if (*content == '?' || *content == '/' || isComment) {
        *end = '\0';
        return *content == '/' ? DecodeEndTag(scan, begin, end) : DecodeDeclaration(content, end);
    }
    char* const behind = end[-1] == '/' ? end - 1 : end;
    XmlElementName name = NameIn(content, behind);
    *end = '\0';
    return behind != end ? DecodeSelfClosingTag(name, content, end) : DecodeStartTag(name, content, end);
}

/// A declaration stands before the root element only. A comment ends at the first ">", so one that contains a ">" is
/// not recognised as complete.
int XmlDecoder::DecodeDeclaration(const char* content, const char* end) {
    if (*content == '?') return end[-1] == '?' && !HasOpenElements() ? kGoOn : kSyntaxError;
    return end - content > 4 && end[-1] == '-' && end[-2] == '-' ? kGoOn : kSyntaxError;
}

int XmlDecoder::DecodeEndTag(char* text, char* begin, char* end) {
    const char* const name = begin + 2;
    if (!HasOpenElements()) {
        ixLog(kSource, Line(3, 360, "<XML Decoder>:stack is empty when decodeBegin is not"));
        return IX_XML_ERROR;
    }
    const OpenName& last = LastOpenName();
    const char* const open = static_cast<const char*>(last.node.m_pData);
    const auto length = static_cast<std::size_t>(end - name);
    if (open == nullptr || last.name.length != length || !SameBytes(open, name, length)) {
        if (open != nullptr)
            ixLog(
                kSource,
                Line(3, 342, "<XML Decoder>:stack mismatch happened when stored value is \"%s\" and ret:IX_XML_ERROR"),
                open);
        return IX_XML_ERROR;
    }
    *begin = '\0';
    if (m_pSchemaDecoder != nullptr) {
        // Required: memory for a copy of the name is taken here, and its failure told, although "/name" stands in the
        // buffer as it is needed.
        char* const endName = begin + 1;
        if (!m_endName.Reserve(length + 2)) {
            ixLog(kSource, Line(2, 323, "<XML Decoder>XmlDecoder:: pStrEndElement: Malloc unable to allocate memory"));
            return IX_XML_ERROR;
        }
        if (ReportElement(last.name, endName, text) != 0)
            ixLog(kSource,
                  Line(3, 331, "<XML Decoder>:ProcessElement(pStrEndElement, start) failed when pStrEndElement=\"%s\""),
                  endName);
    }
    DropLastOpenName();
    return kTagDone;
}

int XmlDecoder::DecodeSelfClosingTag(XmlElementName& name, char* content, char* end) {
    end[-1] = '\0';
    m_iSelfClosing = 1;
    const int result = SplitAttributes(content, end - 1, name);
    m_iSelfClosing = 0;
    if (result != IX_XML_ERROR) return kTagDone;
    ixLog(kSource, Line(3, 374, "<XML Decoder>:Decoder Failed in DecodeAttributes and ret:IX_XML_PARSE_ERROR"));
    return kSyntaxError;
}

int XmlDecoder::DecodeStartTag(XmlElementName& name, char* content, char* end) {
    const int result = SplitAttributes(content, end, name);
    if (result == IX_XML_ERROR) {
        ixLog(kSource, Line(3, 401, "<XML Decoder>:Decoder Failed in DecodeAttributes"));
        return kSyntaxError;
    }
    if (m_pSchemaDecoder != nullptr) {
        if (result == 1) ReportElement(name, name.text, nullptr);
        m_pSchemaDecoder->ProcessEndOfStartTag(name.text);
    }
    if (!PushName(name)) {
        ixLog(kSource,
              Line(3, 439, "<XML Decoder>:Decoder Failed as stack is not empty at end, reason: IX_XML_PARSE_ERROR"));
        return kSyntaxError;
    }
    // Required: kept although skipping white space never yields NULL here.
    if (XmlCommon::SkipSpaces(end + 1) == nullptr) {
        m_DecodeState = IX_XML_PARSE_CONTINUE;
        ixLog(kSource,
              Line(3, 428, "<XML Decoder>:Decoder Failed as stack is not empty at end, reason: IX_XML_INCOMPLETE"));
        return IX_XML_INCOMPLETE;
    }
    return kTagDone;
}

int XmlDecoder::DecodeAttributes(char* tagContent) {
    if (tagContent == nullptr) {
        ixLog(kSource, Line(2, 501, "XmlDecoder::DecodeAttributes n_strAttrList is null"));
        return IX_XML_ERROR;
    }
    XmlElementName name;
    return SplitAttributes(tagContent, tagContent + __strlen(tagContent), name);
}

/// DecodeAttributes for a tag whose NUL stands at `end`; also yields the element's name.
int XmlDecoder::SplitAttributes(char* content, char* end, XmlElementName& name) {
    // Unescaping works on a copy of a value. Its memory is taken before the first event of the tag.
    if (!m_unescapeCopy.Reserve(static_cast<std::size_t>(end - content) + 1)) {
        ixLog(kSource, Line(2, 510, "XmlDecoder:: pStrAttrCheck: Malloc unable to allocate memory"));
        return IX_XML_ERROR;
    }
    char* rest = nullptr;
    if (name.text != nullptr) {
        EndToken(name.text + name.length, &rest);
    } else {
        name.text = CutToken(content, kSpaces, &rest);
        if (name.text == nullptr) {
            m_DecodeState = IX_XML_PARSE_ERROR;
            return IX_XML_ERROR;
        }
        // The delimiter behind the name is a NUL by now, if there was one.
        name.length = static_cast<std::size_t>((rest[-1] == '\0' ? rest - 1 : rest) - name.text);
    }
    const char* token = rest;
    while (*token == '=') ++token;
    if ((*token != '\0' || m_iSelfClosing == 1) && m_pSchemaDecoder != nullptr) {
        ReportElement(name, name.text, nullptr);
    }
    // Required: memory for a copy of the list is taken here, and its failure told, although the check needs no copy.
    if (!m_attributeList.Reserve(static_cast<std::size_t>(end - rest) + 1)) {
        // Required: this one line has the event number of the schema families.
        ixLog(kSource, {2, "XmlDecoder:: Malloc failed, Unable to validate attributeList", 540});
        return IX_XML_ERROR;
    }
    AttributePlaces attributes;
    const int valid = ValidateList(rest, end, attributes);
    ixLog(kSource, Line(2, 547, "XmlDecoder:: DecodeAttributes %d"), valid);
    if (valid != 0) {
        ixLog(kSource, Line(2, 552, "XmlDecoder:: DecodeAttributes - Attribute list invalid"));
        return IX_XML_ERROR;
    }
    if (m_pSchemaDecoder == nullptr) return 0;
    if (rest == end) return m_iSelfClosing == 1 ? ReportSelfClosingEnd(name, rest) : 1;
    const bool hasEntities = std::memchr(rest, '&', static_cast<std::size_t>(end - rest)) != nullptr;
    if (attributes.isComplete && attributes.count != 0) return ReportPlaces(name, attributes, hasEntities);
    return ReportAttributes(name, rest, end, hasEntities);
}

/// @param name that of `element`, with "/" before it for the end.
int XmlDecoder::ReportElement(const XmlElementName& element, char* name, char* text) {
    const bool isEnd = name != element.text;
    m_event = {name, element.length + (isEnd ? 1 : 0), element.isResolved ? &element : nullptr};
    const int result = m_pSchemaDecoder->ProcessElement(name, text);
    m_event = {};
    return result;
}

void XmlDecoder::ReportAttribute(const XmlElementName& element, char* name, std::size_t length, char* value) {
    m_event = {name, length, nullptr};
    m_pSchemaDecoder->ProcessAttribute(element.text, name, value);
    m_event = {};
}

/// The events of attributes whose places are known.
int XmlDecoder::ReportPlaces(const XmlElementName& name, const AttributePlaces& attributes, bool hasEntities) {
    // All ends first: what has just been written is slow to read in larger units.
    for (std::size_t i = 0; i < attributes.count; ++i) {
        *attributes.places[i].equals = '\0';
        *attributes.places[i].close = '\0';
    }
    for (std::size_t i = 0; i < attributes.count; ++i) {
        const auto& place = attributes.places[i];
        if (hasEntities) UnescapeXml(place.value);
        ReportAttribute(name, place.name, static_cast<std::size_t>(place.equals - place.name), place.value);
    }
    char* const rest = XmlCommon::SkipSpaces(attributes.rest);
    if (rest != attributes.rest) ReportAttribute(name, rest, 0, rest);
    return m_iSelfClosing == 1 ? ReportSelfClosingEnd(name, rest) : 0;
}

/// The events of any list: names run up to the next "=", even over a value whose attribute has no name.
int XmlDecoder::ReportAttributes(const XmlElementName& name, char* rest, char* end, bool hasEntities) {
    int result = 0;
    do {
        char* attribute = CutAt(rest, '=', end, &rest);
        if (attribute == nullptr) {
            result = 1;
            break;
        }
        attribute = XmlCommon::SkipSpaces(attribute);
        rest = XmlCommon::SkipSpaces(rest);
        char* value = nullptr;
        const char quote = *rest == '\'' ? '\'' : '"';
        if (rest[0] == quote && rest[1] == quote) {
            // An empty value: its first quote becomes its NUL.
            value = rest;
            *value = '\0';
            rest += 2;
        } else {
            value = CutAt(rest, quote, end, &rest);
            if (value == nullptr) value = end;
        }
        if (hasEntities) UnescapeXml(value);
        ReportAttribute(name, attribute, __strlen(attribute), value);
    } while (*rest != '\0');
    return m_iSelfClosing == 1 ? ReportSelfClosingEnd(name, rest) : result;
}

/// Reports "/name": the "/" takes the place of the "<", or of white space behind it.
int XmlDecoder::ReportSelfClosingEnd(const XmlElementName& name, char* rest) {
    m_pSchemaDecoder->ProcessEndOfStartTag(name.text);
    // Required: memory for a copy of the name is taken here, and its failure told, although no copy is needed.
    if (!m_endName.Reserve(name.length + 2)) {
        ixLog(kSource, Line(2, 627, "XmlDecoder:: pStrEndElement: Malloc unable to allocate memory"));
        return IX_XML_ERROR;
    }
    char* const endName = name.text - 1;
    *endName = '/';
    ReportElement(name, endName, rest);
    m_iSelfClosing = 0;
    return 0;
}

int XmlDecoder::ValidateAttributeList(char* list) {
    if (list == nullptr) return -1;
    AttributePlaces attributes;
    return ValidateList(list, list + __strlen(list), attributes);
}

void XmlDecoder::AttributePlaces::Add(char* name, char* equals, char* value, char* close) {
    isComplete = isComplete && count < kMost && name != equals;
    if (!isComplete) return;
    places[count++] = {name, equals, value, close};
    rest = close + 1;
}

/// ValidateAttributeList for a list whose NUL stands at `end`: names, which may be empty, each with "=" and a quoted
/// value behind it, and white space between all of these.
int XmlDecoder::ValidateList(char* text, const char* end, AttributePlaces& attributes) {
    for (text = XmlCommon::SkipSpaces(text); text != end; text = XmlCommon::SkipSpaces(text)) {
        char* const name = text;
        char* const equals = XmlCommon::SkipSpaces(kNameEnds.EndOf(text));
        if (*equals != '=') return -1;
        text = XmlCommon::SkipSpaces(equals + 1);
        const char quote = *text;
        if (quote != '"' && quote != '\'') return -1;
        char* const close = FindByte(text + 1, end, quote);
        if (close == nullptr) return -1;
        attributes.Add(name, equals, text + 1, close);
        text = close + 1;
    }
    return 0;
}

unsigned int XmlDecoder::PushElement(const char* name) {
    XmlElementName open;
    open.text = const_cast<char*>(name);
    open.length = __strlen(name);
    return PushName(open) ? 1 : 0;
}

bool XmlDecoder::PushName(const XmlElementName& name) {
    if (m_pElementStack == nullptr) return false;
    const std::size_t length = name.length;
    const bool isLong = length >= sizeof m_firstNames.names[0].text;
    char* text = isLong ? static_cast<char*>(__malloc(length + 1)) : nullptr;
    OpenName* const open = isLong && text == nullptr ? nullptr : NextOpenName();
    if (open == nullptr) {
        FreeElement(text);
        ixLog(kSource, Line(2, 121, "XmlDecoder::PushElement"));
        return false;
    }
    if (!isLong && name.text != nullptr) text = open->text;
    if (text != nullptr) {
        // Without its NUL, which has just been written.
        std::memcpy(text, name.text, length);
        text[length] = '\0';
    }
    open->name = name;
    // The tag goes with the text that it stands in, and another name may come to its place.
    open->name.text = nullptr;
    open->node.m_pData = text;
    open->node.m_pNext = nullptr;
    ++m_openIndex;
    ++m_openCount;
    NodeBefore()->m_pNext = &open->node;
    trmemlog_add(kTokenizerModule, kNodeSourceFile, kNodeLine, &open->node, sizeof open->node);
    return true;
}

/// The slot for one more name, or NULL without memory. Blocks stay for the names to come once they are there.
XmlDecoder::OpenName* XmlDecoder::NextOpenName() {
    if (m_openIndex < std::size(m_openNames->names)) return &m_openNames->names[m_openIndex];
    if (m_openNames->next == nullptr) {
        void* const place = __malloc(sizeof(OpenNames));
        if (place == nullptr) return nullptr;
        m_openNames->next = new (place) OpenNames;
        m_openNames->next->before = m_openNames;
    }
    m_openNames = m_openNames->next;
    m_openIndex = 0;
    return &m_openNames->names[0];
}

/// The node that the last open name is linked to: that of the name before it, or the sentinel.
BuddyLinkList* XmlDecoder::NodeBefore() const {
    if (m_openCount == 1) return m_pElementStack;
    if (m_openIndex > 1) return &m_openNames->names[m_openIndex - 2].node;
    return &m_openNames->before->names[std::size(m_openNames->names) - 1].node;
}

void XmlDecoder::DropLastOpenName() {
    OpenName& last = LastOpenName();
    NodeBefore()->m_pNext = nullptr;
    trmemlog_remove(kTokenizerModule, &last.node);
    if (last.node.m_pData != last.text) FreeElement(last.node.m_pData);
    --m_openCount;
    --m_openIndex;
    if (m_openIndex == 0 && m_openNames->before != nullptr) {
        m_openNames = m_openNames->before;
        m_openIndex = std::size(m_openNames->names);
    }
}

BuddyLinkList* XmlDecoder::PopElement() {
    if (!HasOpenElements()) return nullptr;
    // The caller frees node and text one by one, so it gets them as blocks of their own.
    const OpenName& last = LastOpenName();
    char* const text = __strdup(static_cast<const char*>(last.node.m_pData));
    const bool copied = text != nullptr || last.node.m_pData == nullptr;
    BuddyLinkList* const node = copied ? BuddyLinkList::Create(text, kNodeSourceFile, kNodeLine) : nullptr;
    if (node == nullptr) {
        FreeElement(text);
        return nullptr;
    }
    DropLastOpenName();
    return node;
}

void XmlDecoder::FreeOpenNames() {
    while (HasOpenElements()) DropLastOpenName();
    m_openNames = &m_firstNames;
    m_openIndex = 0;
    OpenNames* block = m_firstNames.next;
    m_firstNames.next = nullptr;
    while (block != nullptr) {
        OpenNames* const next = block->next;
        __free(block);
        block = next;
    }
}

char* XmlDecoder::N_strtok(char* text, const char* delimiters, char** rest) {
    if (text == nullptr || delimiters == nullptr) {
        ixLog(kSource, Line(2, 844, "XmlDecoder::N_strtok incomming params are null"));
        return nullptr;
    }
    return CutToken(text, ByteSet(delimiters, kMostDelimiters), rest);
}

char* XmlDecoder::TrimSpaces(char* text) {
    text = XmlCommon::SkipSpaces(text);
    if (text == nullptr) return nullptr;
    char* end = text + __strlen(text);
    while (end > text && XmlCommon::IsSpace(end[-1])) --end;
    *end = '\0';
    return text;
}

void XmlDecoder::UnescapeXml(char* text) {
    if (text == nullptr || __strchr(text, '&') == nullptr) return;
    UnescapeXmlString(text, "&quot;", '"');
    UnescapeXmlString(text, "&gt;", '>');
    UnescapeXmlString(text, "&lt;", '<');
    UnescapeXmlString(text, "&apos;", '\'');
    UnescapeXmlString(text, "&amp;", '&');
}

void XmlDecoder::UnescapeXmlString(char* text, const char* entity, char replacement) {
    if (text == nullptr || entity == nullptr || *entity == '\0') return;
    char* const first = __strstr(text, entity);
    if (first == nullptr) return;
    const std::size_t size = __strlen(text) + 1;
    if (!m_unescapeCopy.Reserve(size)) {
        ixLog(kSource, Line(2, 929, "XmlDecoder::DecodeAttributes  OUT OF MEMORY!!!! "));
        return;
    }
    std::memcpy(m_unescapeCopy.Text(), text, size);
    const std::size_t entityLength = __strlen(entity);
    const char* from = m_unescapeCopy.Text() + (first - text);
    char* to = first;
    for (const char* next = from; next != nullptr; next = __strstr(from, entity)) {
        std::memcpy(to, from, static_cast<std::size_t>(next - from));
        to += next - from;
        *to++ = replacement;
        from = next + entityLength;
    }
    std::memcpy(to, from, __strlen(from) + 1);
}
