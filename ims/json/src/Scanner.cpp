#include "Scanner.h"

#include "Text.h"

std::string TagText(std::string_view name) { return '<' + Short(name) + '>'; }

std::string QuotedText(std::string_view text) { return '"' + Short(text) + '"'; }

std::string_view RootElement::Prefix() const {
    const std::size_t colon = name.find(':');
    return colon == std::string::npos ? std::string_view() : std::string_view(name).substr(0, colon);
}

std::string_view OpenElement::Local() const { return std::string_view(name).substr(name.find(':') + 1); }

std::optional<std::string> RootElement::Namespace() const {
    const std::string declaration = Prefix().empty() ? "xmlns" : "xmlns:" + std::string(Prefix());
    for (const auto& [attribute, value] : attributes) {
        if (attribute == declaration) return value;
    }
    return std::nullopt;
}

Scanner::Scanner(const std::string& text) : m_text(text) { m_tokenizer.SetSchemaDecoder(this); }

bool Scanner::FindRoot() {
    while (!m_root && Next()) {
    }
    return m_root.has_value() && !Refused();
}

bool Scanner::FindElement(std::string_view local) {
    m_wanted = local;
    m_found = false;
    while (!m_found && m_result == IX_XML_INCOMPLETE && Next()) {
    }
    return m_found;
}

bool Scanner::FindEnd() {
    while (m_result == IX_XML_INCOMPLETE && Next()) {
    }
    return m_result == IX_XML_SUCCESS;
}

std::string_view Scanner::Tag() const {
    return m_tag == kNoOffset ? std::string_view() : std::string_view(m_text).substr(m_tag + 1, m_tagEnd - m_tag - 1);
}

/// Gives the text up to the next ">". Each piece has one tag at most, and none is looked at twice.
bool Scanner::Next() {
    const std::size_t end = m_text.find('>', m_next);
    const std::size_t tag = m_text.find('<', m_next);
    if (end == std::string::npos) {
        if (tag != std::string::npos) {
            m_tag = tag;
            m_tagEnd = m_text.size();
        }
        m_next = m_text.size();
        return false;
    }
    if (tag > end) {
        // Only text, which the tokenizer would drop.
        m_next = tag == std::string::npos ? m_text.size() : tag;
        return tag != std::string::npos;
    }
    m_tag = tag;
    m_tagEnd = end;
    m_result = m_tokenizer.Decode(m_text.data() + tag, static_cast<int>(end + 1 - tag));
    m_next = end + 1;
    // The tokenizer takes a section of the form <!...> for a start tag whose end never comes.
    if (!m_open.empty() && m_open.back().name[0] == '!') m_result = IX_XML_ERROR;
    return m_result == IX_XML_INCOMPLETE;
}

int Scanner::ProcessAttribute(char* /*element*/, char* attribute, char* value) {
    if (!m_root && *attribute != '\0') m_attributes.emplace_back(TrimEnd(attribute), value);
    return 0;
}

int Scanner::ProcessElement(char* element, char* /*text*/) {
    if (*element == '/' && !m_open.empty()) m_open.pop_back();
    return 0;
}

int Scanner::ProcessEndOfStartTag(char* element) {
    m_open.push_back({element, m_tag});
    m_found = m_found || m_open.back().Local() == m_wanted;
    if (!m_root) m_root = RootElement{m_open.back(), std::move(m_attributes)};
    return 0;
}
