#include "XMLList.h"

namespace {

// Required: the two pointer operations log the text of GetKeyAtIndex.
constexpr char kEmptyText[] =
    "IxSingleElementList::GetKeyAtIndex: Head itself is null and No item is there to be removed";

}  // namespace

IxSingleElementList::IxSingleElementList() {
    ixLog(kSource, {3, "<XML Module>: IxSingleElementList::IxSingleElementList", 35});
}

IxSingleElementList::~IxSingleElementList() {
    // Required: the destructor logs the constructor's text.
    ixLog(kSource, {3, "<XML Module>: IxSingleElementList::IxSingleElementList", 56});
    while (m_pHead != nullptr) {
        IxSingleElementNode* const next = m_pHead->next;
        __free(m_pHead);
        m_pHead = next;
    }
}

unsigned int IxSingleElementList::Add(void* key) {
    ixLog(kSource, {3, "<XML Module>: IxSingleElementList::Add", 82});
    const bool first = m_pHead == nullptr;
    auto* const node = static_cast<IxSingleElementNode*>(__malloc(sizeof(IxSingleElementNode)));
    if (node == nullptr) {
        ixLog(kSource, first ? XmlLogText(4, "<XML Module>: IxSingleElementList:Add m_pHead Buffer is NULL", 122)
                             : XmlLogText(4, "<XML Module>: IxSingleElementList:Add pTravNode Buffer is NULL", 105));
        return 0;
    }
    node->key = key;
    node->next = nullptr;
    (first ? m_pHead : m_pLast->next) = node;
    m_pLast = node;
    ++m_iListCount;
    ixLog(kSource,
          first ? XmlLogText(3, "<XML Module>: m_iListCount: %d", 117)
                : XmlLogText(3, "<XML Module>: m_iListCount: %d", 100),
          static_cast<int>(m_iListCount));
    return 1;
}

unsigned int IxSingleElementList::Remove(void* key) {
    ixLog(kSource, {3, "<XML Module>: IxSingleElementList::Remove", 142});
    if (m_pHead == nullptr) {
        ixLog(kSource, {4, "<XML Module> IxSingleElementList::Remove: Head itself is null", 146});
        return 0;
    }
    IxSingleElementNode* before = nullptr;
    IxSingleElementNode* const node = Find(key, before);
    if (node != nullptr) {
        (before == nullptr ? m_pHead : before->next) = node->next;
        if (node == m_pLast) m_pLast = before;
        __free(node);
        --m_iListCount;
        return 1;
    }
    ixLog(kSource, {4, "<XML Module> IxSingleElementList::Remove: Entry not found in the list", 178});
    return 0;
}

/// The first node that holds `key`; NULL: there is none. @param before out: the one in front of it; NULL: it is the
/// first.
IxSingleElementNode* IxSingleElementList::Find(const void* key, IxSingleElementNode*& before) const {
    before = nullptr;
    for (IxSingleElementNode* node = m_pHead; node != nullptr; before = node, node = node->next) {
        if (node->key != nullptr && node->key == key) return node;
    }
    return nullptr;
}

unsigned int IxSingleElementList::InsertBefore(void* key, const void* before) {
    IxSingleElementNode* ahead = nullptr;
    IxSingleElementNode* const behind = Find(before, ahead);
    if (behind == nullptr) {
        ixLog(kSource, {4, "<XML Module> IxSingleElementList::InsertBefore: Entry not found in the list"});
        return 0;
    }
    auto* const node = static_cast<IxSingleElementNode*>(__malloc(sizeof(IxSingleElementNode)));
    if (node == nullptr) {
        ixLog(kSource, {4, "<XML Module>: IxSingleElementList::InsertBefore: node is NULL"});
        return 0;
    }
    node->key = key;
    node->next = behind;
    (ahead == nullptr ? m_pHead : ahead->next) = node;
    ++m_iListCount;
    return 1;
}

unsigned int IxSingleElementList::Replace(const void* key, void* with) {
    IxSingleElementNode* before = nullptr;
    IxSingleElementNode* const node = Find(key, before);
    if (node == nullptr) {
        ixLog(kSource, {4, "<XML Module> IxSingleElementList::Replace: Entry not found in the list"});
        return 0;
    }
    node->key = with;
    return 1;
}

bool IxSingleElementList::Has(const void* key) const {
    IxSingleElementNode* before = nullptr;
    return Find(key, before) != nullptr;
}

void* IxSingleElementList::GetKeyAtIndex(unsigned short index) const {
    if (m_pHead == nullptr) {
        ixLog(kSource, {4, kEmptyText, 198});
        return nullptr;
    }
    // Required: the index one past the end passes this check; its walk ends at no node, without a message.
    if (m_iListCount < index) {
        ixLog(kSource, {4, "IxSingleElementList::GetKeyAtIndex: Invalid index", 206});
        return nullptr;
    }
    const IxSingleElementNode* node = m_pHead;
    for (unsigned short at = 0; at < index && node != nullptr; ++at) node = node->next;
    return node != nullptr ? node->key : nullptr;
}

IxSingleElementNode* IxSingleElementList::GetPtrToListHead() const {
    if (m_pHead == nullptr) ixLog(kSource, {4, kEmptyText, 238});
    return m_pHead;
}

// Required: NULL in every case; LastNode() is the operation that answers.
IxSingleElementNode* IxSingleElementList::GetPtrToListEnd() const {
    if (m_pHead == nullptr) ixLog(kSource, {4, kEmptyText, 265});
    return nullptr;
}

void IxSingleElementList::TakeNodesOf(IxSingleElementList& other) {
    if (other.m_pHead == nullptr) return;
    (m_pHead == nullptr ? m_pHead : m_pLast->next) = other.m_pHead;
    m_pLast = other.m_pLast;
    m_iListCount = static_cast<unsigned short>(m_iListCount + other.m_iListCount);
    other.m_bTaken = true;
    other.m_pHead = nullptr;
    other.m_pLast = nullptr;
    other.m_iListCount = 0;
}
