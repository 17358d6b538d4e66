#include "XMLList.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLList";

constexpr XmlLogText kCreated = {3, kSchemaCode, 35, "<XML Module>: IxSingleElementList::IxSingleElementList"};
// Required: the destructor logs the constructor's text.
constexpr XmlLogText kDestroyed = {3, kSchemaCode, 56, "<XML Module>: IxSingleElementList::IxSingleElementList"};
constexpr XmlLogText kAdd = {3, kSchemaCode, 82, "<XML Module>: IxSingleElementList::Add"};
constexpr XmlLogText kCount = {3, kSchemaCode, 100, "<XML Module>: m_iListCount: %d"};
constexpr XmlLogText kCountOfFirst = {3, kSchemaCode, 117, "<XML Module>: m_iListCount: %d"};
constexpr XmlLogText kNoNode = {4, kSchemaCode, 105, "<XML Module>: IxSingleElementList:Add pTravNode Buffer is NULL"};
constexpr XmlLogText kNoFirstNode = {4, kSchemaCode, 122,
                                     "<XML Module>: IxSingleElementList:Add m_pHead Buffer is NULL"};
constexpr XmlLogText kRemove = {3, kSchemaCode, 142, "<XML Module>: IxSingleElementList::Remove"};
constexpr XmlLogText kRemoveFromEmpty = {4, kSchemaCode, 146,
                                         "<XML Module> IxSingleElementList::Remove: Head itself is null"};
constexpr XmlLogText kRemoveNotFound = {4, kSchemaCode, 178,
                                        "<XML Module> IxSingleElementList::Remove: Entry not found in the list"};
// Required: the two pointer operations log the text of GetKeyAtIndex.
constexpr char kEmptyText[] =
    "IxSingleElementList::GetKeyAtIndex: Head itself is null and No item is there to be removed";
constexpr XmlLogText kIndexInEmpty = {4, kSchemaCode, 198, kEmptyText};
constexpr XmlLogText kHeadOfEmpty = {4, kSchemaCode, 238, kEmptyText};
constexpr XmlLogText kEndOfEmpty = {4, kSchemaCode, 265, kEmptyText};
constexpr XmlLogText kInvalidIndex = {4, kSchemaCode, 206, "IxSingleElementList::GetKeyAtIndex: Invalid index"};

}  // namespace

IxSingleElementList::IxSingleElementList() { ixLog(kSourceFile, kCreated); }

IxSingleElementList::~IxSingleElementList() {
    ixLog(kSourceFile, kDestroyed);
    while (m_pHead != nullptr) {
        IxSingleElementNode* const next = m_pHead->next;
        __free(m_pHead);
        m_pHead = next;
    }
}

unsigned int IxSingleElementList::Add(void* key) {
    ixLog(kSourceFile, kAdd);
    const bool first = m_pHead == nullptr;
    auto* const node = static_cast<IxSingleElementNode*>(__malloc(sizeof(IxSingleElementNode)));
    if (node == nullptr) {
        ixLog(kSourceFile, first ? kNoFirstNode : kNoNode);
        return 0;
    }
    node->key = key;
    node->next = nullptr;
    (first ? m_pHead : m_pLast->next) = node;
    m_pLast = node;
    ++m_iListCount;
    ixLog(kSourceFile, first ? kCountOfFirst : kCount, static_cast<int>(m_iListCount));
    return 1;
}

unsigned int IxSingleElementList::Remove(void* key) {
    ixLog(kSourceFile, kRemove);
    if (m_pHead == nullptr) {
        ixLog(kSourceFile, kRemoveFromEmpty);
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
    ixLog(kSourceFile, kRemoveNotFound);
    return 0;
}

void* IxSingleElementList::GetKeyAtIndex(unsigned short index) const {
    if (m_pHead == nullptr) {
        ixLog(kSourceFile, kIndexInEmpty);
        return nullptr;
    }
    // Required: the index one past the end passes this check; its walk ends at no node, without a message.
    if (m_iListCount < index) {
        ixLog(kSourceFile, kInvalidIndex);
        return nullptr;
    }
    const IxSingleElementNode* node = m_pHead;
    for (unsigned short at = 0; at < index && node != nullptr; ++at) node = node->next;
    return node != nullptr ? node->key : nullptr;
}

IxSingleElementNode* IxSingleElementList::GetPtrToListHead() const {
    if (m_pHead == nullptr) ixLog(kSourceFile, kHeadOfEmpty);
    return m_pHead;
}

// Required: NULL in every case; LastNode() is the operation that answers.
IxSingleElementNode* IxSingleElementList::GetPtrToListEnd() const {
    if (m_pHead == nullptr) ixLog(kSourceFile, kEndOfEmpty);
    return nullptr;
}

void IxSingleElementList::TakeNodesOf(IxSingleElementList& other) {
    if (other.m_pHead == nullptr) return;
    (m_pHead == nullptr ? m_pHead : m_pLast->next) = other.m_pHead;
    m_pLast = other.m_pLast;
    m_iListCount = static_cast<unsigned short>(m_iListCount + other.m_iListCount);
    other.m_pHead = nullptr;
    other.m_pLast = nullptr;
    other.m_iListCount = 0;
}
