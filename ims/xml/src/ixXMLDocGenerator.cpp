#include "ixXMLDocGenerator.h"

#include <cstring>

namespace {

constexpr char kQuote[] = "&quot;";
constexpr std::size_t kQuoteLength = sizeof kQuote - 1;

}  // namespace

/// Appends what fits. The length is kept, so that the cost of a piece does not depend on how full the buffer is.
inline void IxXMLDocGenerator::Append(const char* text, std::size_t length) {
    const std::size_t room = kCapacity - 1 - m_length;
    if (length > room) {
        m_bTruncated = true;
        std::memcpy(m_pBuffer + m_length, text, room);
        m_length += room;
    } else {
        std::memcpy(m_pBuffer + m_length, text, length);
        m_length += length;
    }
    m_pBuffer[m_length] = '\0';
}

inline void IxXMLDocGenerator::Append(const char* text) { Append(text, std::strlen(text)); }

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
    Append("\n", 1);
    StartTag(name, open);
}

void IxXMLDocGenerator::ixStartElementWithoutNL(const char* name, int open) {
    if (m_pBuffer == nullptr || name == nullptr) return;
    StartTag(name, open);
}

void IxXMLDocGenerator::StartTag(const char* name, int open) {
    Append("<", 1);
    AppendPrefixed(m_pDefaultPrefix, name);
    Append(open == 1 ? " " : ">", 1);
    m_iStartTagOpen = open;
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

void IxXMLDocGenerator::AppendPrefixed(const char* prefix, const char* name) {
    if (prefix != nullptr) {
        Append(prefix);
        Append(":", 1);
    }
    Append(name);
}

void IxXMLDocGenerator::AppendValue(const char* value) {
    Append("=\"", 2);
    const std::size_t length = __strlen(value);
    if (length != 0 && std::memchr(value, '"', length) != nullptr) {
        char* const escaped = escapeString(value);
        if (escaped != nullptr) Append(escaped);
        __free(escaped);
    } else if (length != 0) {
        Append(value, length);
    }
    Append("\"", 1);
}

void IxXMLDocGenerator::EndAttribute(int selfEnd, int close, bool blank) {
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
