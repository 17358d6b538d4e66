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
    for (IxSingleElementNode* node = m_pHead; node != nullptr; before = node, node = node->next) {
        if (node->key == nullptr || node->key != key) continue;
        (before == nullptr ? m_pHead : before->next) = node->next;
        if (node == m_pLast) m_pLast = before;
        __free(node);
        --m_iListCount;
        return 1;
    }
    ixLog(kSource, {4, "<XML Module> IxSingleElementList::Remove: Entry not found in the list", 178});
    return 0;
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
