#include "ixXMLDocGenerator.h"

#include <cstring>

#include "XMLCommonDef.h"
#include "XmlScan.h"

namespace {

constexpr char kQuote[] = "&quot;";
constexpr std::size_t kQuoteLength = sizeof kQuote - 1;

}  // namespace

/// What of a piece fits.
[[gnu::noinline]] void IxXMLDocGenerator::AppendCut(const char* text, std::size_t length) {
    const std::size_t room = kCapacity - 1 - m_length;
    if (length > room) {
        m_bTruncated = true;
        length = room;
    }
    std::memcpy(m_pBuffer + m_length, text, length);
    m_length += length;
    m_pBuffer[m_length] = '\0';
}

/// The length is kept, so that the cost of a piece does not depend on how full the buffer is.
inline void IxXMLDocGenerator::Append(const char* text, std::size_t length) {
    if (length > kCapacity - 1 - m_length) {
        AppendCut(text, length);
        return;
    }
    std::memcpy(m_pBuffer + m_length, text, length);
    m_length += length;
    m_pBuffer[m_length] = '\0';
}

inline void IxXMLDocGenerator::Append(const char* text) { Append(text, std::strlen(text)); }

/// The same for a name. Most are fixed strings, which have room behind them: they are copied in words, without a call.
inline void IxXMLDocGenerator::AppendName(const char* name) {
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
    const auto& table = ix_xml_common_array_definition::arrXmlStrRef;
    const std::size_t offset = reinterpret_cast<std::uintptr_t>(name) - reinterpret_cast<std::uintptr_t>(&table[0][0]);
    if (offset < sizeof table && kCapacity - m_length > sizeof table[0]) {
        char* to = m_pBuffer + m_length;
        // A row is longer than its text by more than a word.
        for (;; name += sizeof(std::uint64_t), to += sizeof(std::uint64_t)) {
            std::uint64_t word = 0;
            std::memcpy(&word, name, sizeof word);
            std::memcpy(to, &word, sizeof word);
            const std::uint64_t nul = (word - 0x0101010101010101U) & ~word & 0x8080808080808080U;
            if (nul == 0) continue;
            m_length = static_cast<std::size_t>(to - m_pBuffer) + (static_cast<std::size_t>(__builtin_ctzll(nul)) >> 3);
            return;
        }
    }
#endif
    Append(name);
}

inline void IxXMLDocGenerator::AppendPrefixed(const char* prefix, const char* name) {
    if (prefix != nullptr) {
        Append(prefix);
        Append(":", 1);
    }
    AppendName(name);
}

inline void IxXMLDocGenerator::AppendValue(const char* value) {
    Append("=\"", 2);
    const std::size_t length = value != nullptr ? std::strlen(value) : 0;
    if (length < kCapacity - 1 - m_length && ixCopyUpTo(m_pBuffer + m_length, value, length, '"')) {
        m_length += length;
    } else if (length != 0 && std::strchr(value, '"') != nullptr) {
        char* const escaped = escapeString(value);
        if (escaped != nullptr) Append(escaped);
        __free(escaped);
    } else if (length != 0) {
        Append(value, length);
    }
    Append("\"", 1);
}

/// Behind the "<".
inline void IxXMLDocGenerator::StartTag(const char* name, int open) {
    AppendPrefixed(m_pDefaultPrefix, name);
    Append(open == 1 ? " " : ">", 1);
    m_iStartTagOpen = open;
}

inline void IxXMLDocGenerator::EndAttribute(int selfEnd, int close, bool blank) {
    if (selfEnd == 1) {
        Append("/>", 2);
    } else if (close == 1) {
        Append(">", 1);
    } else {
        if (blank) Append(" ", 1);
        return;
    }
    m_iStartTagOpen = 0;
}

IxXMLDocGenerator::~IxXMLDocGenerator() { ixDeInitXmlDoc(); }

void IxXMLDocGenerator::ClearFields() {
    m_iHeaderWritten = 0;
    m_iHeaderOverride = 0;
    m_iStartTagOpen = 0;
    m_pDefaultPrefix = nullptr;
    m_length = 0;
    m_bTruncated = false;
    m_bZeroFilled = false;
}

void IxXMLDocGenerator::ixInitXmlDoc() {
    if (m_iInitialised != 0) return;
    ClearFields();
    m_pBuffer = static_cast<char*>(__malloc(kCapacity));
    if (m_pBuffer != nullptr) *m_pBuffer = '\0';
    m_iInitialised = 1;
}

void IxXMLDocGenerator::ixDeInitXmlDoc() {
    if (m_iInitialised == 0) return;
    __free(m_pBuffer);
    __free(m_pDefaultPrefix);
    m_pBuffer = nullptr;
    m_iInitialised = 0;
    ClearFields();
}

void IxXMLDocGenerator::ixResetHeader() {
    if (m_pBuffer == nullptr) return;
    __memset(m_pBuffer, 0, kCapacity);
    // Required: the prefix is forgotten, not freed, by a reset.
    ClearFields();
    m_bZeroFilled = true;
}

void IxXMLDocGenerator::ixAddHeader(const char* version, const char* encoding) {
    if (m_pBuffer == nullptr || m_iHeaderWritten == 1) return;
    if (m_length != 0 && m_iHeaderOverride != 1) return;
    m_length = 0;
    Append("<?xml version=\"");
    Append(version != nullptr ? version : "1.0");
    Append("\" encoding=\"");
    Append(encoding != nullptr ? encoding : "ISO-8859-15");
    Append("\"?>");
    m_iHeaderWritten = 1;
}

void IxXMLDocGenerator::ixAddComment(const char* text) {
    if (m_pBuffer == nullptr || text == nullptr) return;
    Append("\n<!--");
    Append(text);
    Append(" -->");
}

void IxXMLDocGenerator::ixSetXmlNamespace(const char* prefix) {
    if (m_pBuffer == nullptr) return;
    // Marshallers set the prefix for every element, and mostly it is the same.
    if (prefix != nullptr && m_pDefaultPrefix != nullptr && std::strcmp(prefix, m_pDefaultPrefix) == 0) return;
    __free(m_pDefaultPrefix);
    m_pDefaultPrefix = prefix != nullptr ? __strdup(prefix) : nullptr;
}

void IxXMLDocGenerator::ixStartElement(const char* name, int open) {
    if (m_pBuffer == nullptr || name == nullptr) return;
    Append("\n<", 2);
    StartTag(name, open);
}

void IxXMLDocGenerator::ixStartElementWithoutNL(const char* name, int open) {
    if (m_pBuffer == nullptr || name == nullptr) return;
    Append("<", 1);
    StartTag(name, open);
}

void IxXMLDocGenerator::ixStartElementSelfEnding(const char* name) {
    if (m_pBuffer == nullptr || name == nullptr) return;
    Append("\n<", 2);
    AppendPrefixed(m_pDefaultPrefix, name);
    Append("/>", 2);
}

void IxXMLDocGenerator::ixStartElementNs(const char* name, const char* prefix, const char* uri, int open) {
    if (m_pBuffer == nullptr || name == nullptr) return;
    if (m_iStartTagOpen == 1) Append(">", 1);
    if (prefix == nullptr || uri == nullptr) {
        ixStartElement(name, open);
        return;
    }
    Append("\n<", 2);
    AppendPrefixed(prefix, name);
    Append(" xmlns:");
    Append(prefix);
    Append("=\"", 2);
    Append(uri);
    Append(open == 1 ? "\" " : "\">", 2);
    m_iStartTagOpen = open;
}

void IxXMLDocGenerator::ixStartAttribute(const char* name, const char* value, int usePrefix, int selfEnd, int close) {
    if (m_pBuffer == nullptr || name == nullptr || m_iStartTagOpen != 1) return;
    const bool prefixed = usePrefix == 1 && m_pDefaultPrefix != nullptr;
    if (prefixed) Append(" ", 1);
    // An empty default prefix writes no colon here.
    AppendPrefixed(prefixed && *m_pDefaultPrefix != '\0' ? m_pDefaultPrefix : nullptr, name);
    AppendValue(value);
    EndAttribute(selfEnd, close, false);
}

void IxXMLDocGenerator::ixStartAttributeNs(const char* name, const char* value, const char* prefix, int selfEnd,
                                           int close) {
    if (m_pBuffer == nullptr || name == nullptr || m_iStartTagOpen != 1) return;
    if (prefix == nullptr) {
        ixStartAttribute(name, value, 0, selfEnd, close);
        return;
    }
    Append(" ", 1);
    AppendPrefixed(prefix, name);
    AppendValue(value);
    EndAttribute(selfEnd, close, true);
}

void IxXMLDocGenerator::ixAddNameSpacePrefixToXml(const char* name, const char* value, const char* prefix, int selfEnd,
                                                  int close) {
    if (m_pBuffer == nullptr || name == nullptr) return;
    Append(" ", 1);
    // Here the prefix is what is declared, so it follows the name: xmlns:ss.
    AppendPrefixed(prefix != nullptr ? name : nullptr, prefix != nullptr ? prefix : name);
    AppendValue(value);
    EndAttribute(selfEnd, close, true);
}

void IxXMLDocGenerator::ixXmlSetData(const char* data) {
    if (m_pBuffer == nullptr) return;
    if (m_iStartTagOpen == 1) Append(">", 1);
    Append(data != nullptr ? data : " ");
    m_iStartTagOpen = 0;
}

void IxXMLDocGenerator::ixEndXmlElement(const char* name) {
    if (m_pBuffer == nullptr || name == nullptr) return;
    Append("</", 2);
    AppendPrefixed(m_pDefaultPrefix, name);
    Append(">", 1);
    m_iStartTagOpen = 0;
}

void IxXMLDocGenerator::ixEndXmlElementNs(const char* name, const char* prefix) {
    if (m_pBuffer == nullptr || name == nullptr) return;
    Append("\n</", 3);
    AppendPrefixed(prefix != nullptr ? prefix : m_pDefaultPrefix, name);
    Append(">", 1);
    m_iStartTagOpen = 0;
}

char* IxXMLDocGenerator::ixGetXmlDoc() const {
    // Zeros behind the text are for those who are handed the buffer; it takes less time to write a document than them.
    if (m_pBuffer != nullptr && !m_bZeroFilled) {
        __memset(m_pBuffer + m_length, 0, kCapacity - m_length);
        m_bZeroFilled = true;
    }
    return m_pBuffer;
}

void IxXMLDocGenerator::CutBack(const Place& place) {
    if (m_pBuffer == nullptr || place.length > m_length) return;
    m_length = place.length;
    m_pBuffer[m_length] = '\0';
    m_bZeroFilled = false;
    m_iStartTagOpen = place.startTagOpen;
    m_bTruncated = place.truncated;
}

char* IxXMLDocGenerator::escapeString(const char* value) const {
    if (value == nullptr) return nullptr;
    std::size_t size = 1;
    for (const char* at = value; *at != '\0'; ++at) size += *at == '"' ? kQuoteLength : 1;
    char* const escaped = static_cast<char*>(__malloc(size));
    if (escaped == nullptr) {
        ixLog(kSource, {2, "IxXMLDocGenerator :: escapeString malloc failed", 880});
        return nullptr;
    }
    char* to = escaped;
    for (const char* at = value; *at != '\0'; ++at) {
        if (*at == '"') {
            std::memcpy(to, kQuote, kQuoteLength);
            to += kQuoteLength;
        } else {
            *to++ = *at;
        }
    }
    *to = '\0';
    return escaped;
}
