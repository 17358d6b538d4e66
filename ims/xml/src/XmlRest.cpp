#include "XmlRest.h"

#include <cstring>

namespace {

/// Copies a text into a block, with a NUL, and moves `to` behind it.
const char* CopyTo(char*& to, const char* text, std::size_t length) {
    if (text == nullptr) return nullptr;
    char* const copy = to;
    std::memcpy(copy, text, length);
    copy[length] = '\0';
    to += length + 1;
    return copy;
}

bool TextsEqual(const char* left, const char* right) {
    return left == nullptr || right == nullptr ? left == right : std::strcmp(left, right) == 0;
}

}  // namespace

void XmlRest::Clear() {
    while (m_pFirst != nullptr) {
        XmlRestItem* const next = m_pFirst->next;
        __free(m_pFirst);
        m_pFirst = next;
    }
    m_pLast = nullptr;
}

void XmlRest::Remove(const XmlRestItem* item) {
    XmlRestItem* before = nullptr;
    for (XmlRestItem* at = m_pFirst; at != nullptr; before = at, at = at->next) {
        if (at != item) continue;
        (before != nullptr ? before->next : m_pFirst) = at->next;
        if (m_pLast == at) m_pLast = before;
        __free(at);
        return;
    }
}

XmlRestItem* XmlRest::Append(const XmlRestItem& item, std::size_t nameLength, std::size_t textLength) {
    const std::size_t uriLength = std::strlen(item.namespaceUri);
    // An entry and its texts are one block.
    void* const block = __malloc(sizeof(XmlRestItem) + uriLength + nameLength + textLength + 3);
    if (block == nullptr) return nullptr;
    auto* const added = new (block) XmlRestItem(item);
    char* to = static_cast<char*>(block) + sizeof(XmlRestItem);
    added->namespaceUri = CopyTo(to, item.namespaceUri, uriLength);
    added->name = CopyTo(to, item.name, nameLength);
    added->text = CopyTo(to, item.text, textLength);
    added->next = nullptr;
    (m_pLast != nullptr ? m_pLast->next : m_pFirst) = added;
    m_pLast = added;
    return added;
}

int XmlRest::AddAttribute(const char* namespaceUri, const char* name, const char* value) {
    if (namespaceUri == nullptr || name == nullptr || value == nullptr) return 0;
    m_isChanged = true;
    const XmlRestItem item = {XmlRestKind::Attribute, false, nullptr, nullptr, 0, namespaceUri, name, value};
    return Append(item, std::strlen(name), std::strlen(value)) != nullptr ? 1 : 0;
}

int XmlRest::AddElement(const char* xml) {
    if (xml == nullptr) return 0;
    m_isChanged = true;
    const XmlRestItem item = {XmlRestKind::Element, false, nullptr, this, 0, "", "", xml};
    return Append(item, 0, std::strlen(xml)) != nullptr ? 1 : 0;
}

void XmlRest::SetEntry(XmlRestItem* before, const XmlField& field, const void* entry) {
    for (XmlRestItem* item = before != nullptr ? before->next : m_pFirst; item != nullptr; item = item->next) {
        if (item->isInside && item->field == &field) item->entry = entry;
    }
}

bool XmlRest::Equal(const XmlRest* left, const XmlRest* right) {
    const XmlRestItem* one = left != nullptr ? left->First() : nullptr;
    const XmlRestItem* other = right != nullptr ? right->First() : nullptr;
    for (; one != nullptr && other != nullptr; one = one->next, other = other->next) {
        const bool isSame = one->kind == other->kind && one->isInside == other->isInside &&
                            one->field == other->field && one->held == other->held &&
                            TextsEqual(one->namespaceUri, other->namespaceUri) && TextsEqual(one->name, other->name) &&
                            TextsEqual(one->text, other->text);
        if (!isSame) return false;
    }
    return one == other;
}
