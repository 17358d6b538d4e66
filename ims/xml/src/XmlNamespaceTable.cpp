#include "XmlNamespaceTable.h"

#include <cstring>

constexpr XmlClass XmlNamespaceBinder::kClass = ixClass<XmlNamespaceBinder>("", "", kSource);

const IxSingleElementList* XmlNamespaceBinder::DeclarationsOf(const XMLObject* object) {
    const XmlClass* description = object != nullptr ? object->Class() : nullptr;
    while (description != nullptr && description != &kClass) description = description->parent;
    return description != nullptr ? static_cast<const XmlNamespaceBinder*>(object)->getNameSpaceInfo() : nullptr;
}

XmlNamespaceTable::~XmlNamespaceTable() {
    while (m_pFirst != nullptr) {
        Entry* const next = m_pFirst->next;
        __free(m_pFirst->ownPrefix);
        __free(m_pFirst);
        m_pFirst = next;
    }
}

std::size_t XmlNamespaceTable::Build(const XmlNamespaceRow* rows, std::size_t count) {
    Entry** link = &m_pFirst;
    for (std::size_t i = 0; i < count; ++i) {
        *link = CreateEntry(rows[i]);
        if (*link == nullptr) return i;
        link = &(*link)->next;
    }
    return count;
}

/// An entry and the copies of its texts are one block.
XmlNamespaceTable::Entry* XmlNamespaceTable::CreateEntry(const XmlNamespaceRow& row) {
    const bool hasPrefix = row.documentPrefix != IX_STR_IX_NULL;
    const char* const texts[] = {ix_xml_common_array_definition::getStringName(row.canonicalPrefix),
                                 ix_xml_common_array_definition::getStringName(row.uri),
                                 hasPrefix ? ix_xml_common_array_definition::getStringName(row.documentPrefix) : ""};
    std::size_t size = sizeof(Entry);
    for (const char* text : texts) size += std::strlen(text) + 1;
    auto* const entry = static_cast<Entry*>(__malloc(size));
    if (entry == nullptr) return nullptr;
    char* to = reinterpret_cast<char*>(entry + 1);
    const char* copies[3];
    for (int i = 0; i < 3; ++i) {
        const std::size_t length = std::strlen(texts[i]) + 1;
        std::memcpy(to, texts[i], length);
        copies[i] = to;
        to += length;
    }
    *entry = {copies[0], hasPrefix ? copies[2] : nullptr, copies[1], nullptr, nullptr};
    return entry;
}

bool XmlNamespaceTable::Bind(const IxSingleElementList* list) {
    bool bound = true;
    for (const auto* const pair : XmlEntries<ix_AttributeValuePair>(list)) {
        if (pair == nullptr || pair->mValue == nullptr) continue;
        Entry* entry = m_pFirst;
        while (entry != nullptr && std::strcmp(entry->uri, pair->mValue) != 0) entry = entry->next;
        if (entry != nullptr && !SetDocumentPrefix(*entry, pair->mName)) bound = false;
    }
    return bound;
}

bool XmlNamespaceTable::SetDocumentPrefix(Entry& entry, const char* prefix) {
    char* const copy = prefix != nullptr ? __strdup(prefix) : nullptr;
    if (prefix != nullptr && copy == nullptr) return false;
    __free(entry.ownPrefix);
    entry.ownPrefix = copy;
    entry.documentPrefix = copy;
    return true;
}

const XmlNamespaceTable::Entry* XmlNamespaceTable::FindDocumentPrefix(const char* prefix, std::size_t length) const {
    for (const Entry* entry = m_pFirst; entry != nullptr; entry = entry->next) {
        if (entry->documentPrefix == nullptr) continue;
        // Prefixes are short: not worth a call.
        std::size_t i = 0;
        while (i < length && entry->documentPrefix[i] == prefix[i]) ++i;
        if (i == length && entry->documentPrefix[i] == '\0') return entry;
    }
    return nullptr;
}

const XmlNamespaceTable::Entry* XmlNamespaceTable::FindCanonicalPrefix(const char* prefix) const {
    const Entry* entry = m_pFirst;
    while (entry != nullptr && std::strcmp(entry->canonicalPrefix, prefix) != 0) entry = entry->next;
    return entry;
}
