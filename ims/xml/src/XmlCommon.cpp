#include "XmlCommon.h"

void XmlCommon::TrimRightSingle(char* text) {
    const std::size_t length = __strlen(text);
    if (length > 0 && text[length - 1] == ' ') text[length - 1] = '\0';
}

char* XmlCommon::RemoveQuotes(char* text) {
    if (text == nullptr) return nullptr;
    if (*text == '"') ++text;
    const std::size_t length = __strlen(text);
    if (length > 0 && text[length - 1] == '"') text[length - 1] = '\0';
    return text;
}

int XmlCommon::IsEmailFormat(const char* text) {
    if (text == nullptr || __strstr(text, "aor=") != nullptr) return 0;
    return __strchr(text, '@') != nullptr ? 1 : 0;
}

char* XmlCommon::LocateBeginElement(char* text) { return text != nullptr ? __strchr(text, '<') : nullptr; }

char* XmlCommon::LocateEndElement(char* text) { return text != nullptr ? __strchr(text, '>') : nullptr; }

XmlWorkText::~XmlWorkText() {
    if (m_pText != m_short) __free(m_pText);
}

bool XmlWorkText::Grow(std::size_t size) {
    const std::size_t grown = size > 2 * m_size ? size : 2 * m_size;
    char* const text = static_cast<char*>(__malloc(grown));
    if (text == nullptr) return false;
    if (m_pText != m_short) __free(m_pText);
    m_pText = text;
    m_size = grown;
    return true;
}

BuddyLinkList* BuddyLinkList::Create(void* data, const char* source, int line) {
    void* const node = new (std::nothrow) BuddyLinkList(data);
    return static_cast<BuddyLinkList*>(ixTrack(kTokenizerModule, source, line, node, sizeof(BuddyLinkList)));
}

BuddyLinkList* BuddyLinkList::Append(void* data) {
    BuddyLinkList* const node = Create(data, kSource, 22);
    if (node != nullptr) m_pNext = node;
    return node;
}

BuddyLinkList* BuddyLinkList::SeekEnd() {
    BuddyLinkList* last = this;
    while (last->m_pNext != nullptr) last = last->m_pNext;
    return last;
}

BuddyLinkList* BuddyLinkList::RemoveLast() {
    if (m_pNext == nullptr) return nullptr;
    BuddyLinkList* before = this;
    while (before->m_pNext->m_pNext != nullptr) before = before->m_pNext;
    BuddyLinkList* const last = before->m_pNext;
    before->m_pNext = nullptr;
    return last;
}

void BuddyLinkList::FreeList(void (*callback)(void*)) {
    BuddyLinkList* node = m_pNext;
    while (node != nullptr) {
        BuddyLinkList* const next = node->m_pNext;
        if (callback != nullptr) callback(node->m_pData);
        ixDelete(node, kTokenizerModule);
        node = next;
    }
}
