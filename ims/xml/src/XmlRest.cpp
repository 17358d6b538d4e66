#include "XmlRest.h"

#include <algorithm>
#include <cstring>

#include "XmlClass.h"

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

/// The first entry from `item` on that is at `field`.
const XmlRestItem* FirstAt(const XmlRestItem* item, const XmlField* field) {
    while (item != nullptr && item->field != field) item = item->next;
    return item;
}

const char* LocalOf(const char* name) {
    const char* const colon = std::strchr(name, ':');
    return colon != nullptr ? colon + 1 : name;
}

/// The entries at the field of the first ones, in order.
bool AreEqualAt(const XmlRestItem* one, const XmlRestItem* other) {
    while (one != nullptr && other != nullptr) {
        const bool isSame = one->kind == other->kind && one->isInside == other->isInside && one->held == other->held &&
                            std::strcmp(one->namespaceUri, other->namespaceUri) == 0 &&
                            std::strcmp(LocalOf(one->name), LocalOf(other->name)) == 0 &&
                            TextsEqual(one->text, other->text);
        if (!isSame) return false;
        one = FirstAt(one->next, one->field);
        other = FirstAt(other->next, other->field);
    }
    return one == other;
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

void XmlRest::MoveEntry(const XmlField& field, const void* from, const void* to) {
    for (XmlRestItem* item = m_pFirst; item != nullptr; item = item->next) {
        if (item->field != &field || item->entry != from) continue;
        // The place of an entry that has gone may become that of a new one, which has nothing to do with it; that of
        // the item is taken.
        if (to == nullptr) to = item;
        item->entry = to;
    }
}

bool XmlRest::Equal(const XmlRest* left, const XmlRest* right) {
    const XmlRestItem* const one = left != nullptr ? left->First() : nullptr;
    const XmlRestItem* const other = right != nullptr ? right->First() : nullptr;
    if (one == nullptr || other == nullptr) return one == other;
    // A document need not have its children in the order of the schema, in which they are written: only what is at one
    // field has an order.
    std::size_t count = 0;
    for (const XmlRestItem* item = one; item != nullptr; item = item->next) ++count;
    for (const XmlRestItem* item = other; item != nullptr; item = item->next) --count;
    if (count != 0) return false;
    const XmlField* compared[kXmlMostRows];
    std::size_t fields = 0;
    for (const XmlRestItem* item = one; item != nullptr; item = item->next) {
        if (std::find(compared, compared + fields, item->field) != compared + fields) continue;
        if (!AreEqualAt(item, FirstAt(other, item->field))) return false;
        if (fields < kXmlMostRows) compared[fields++] = item->field;
    }
    return true;
}
