/// @file
/// The list behind every repeated child element of a document tree.
#ifndef IX_XML_LIST_H
#define IX_XML_LIST_H

#include "XmlPlatform.h"

/// One entry of an `IxSingleElementList`.
struct IxSingleElementNode {
    void* key;                  ///< The payload; not owned by the list.
    IxSingleElementNode* next;  ///< NULL at the end.
};

/// Singly linked list of untyped pointers. It owns its nodes and never what the keys point to; the element that holds
/// the list frees them (`ix_xml_common_methods`).
///
/// The count has 16 bits: a list takes more than 65535 entries and keeps all of them, but the count then starts again
/// at 0, so that entries past it are reached only by walking the nodes.
class IX_XML_EXPORT IxSingleElementList : public XmlHeapObject {
  public:
    IxSingleElementList();
    ~IxSingleElementList();
    IxSingleElementList(const IxSingleElementList&) = delete;
    IxSingleElementList& operator=(const IxSingleElementList&) = delete;

    /// Appends `key`, which may be NULL or stand in the list already. @return 1, or 0 without memory, the list
    /// unchanged.
    unsigned int Add(void* key);

    /// Unlinks the first node that holds `key`. A NULL key is never found. @return 1, or 0.
    unsigned int Remove(void* key);

    /// Puts `key` in front of the first node that holds `before`. @return 1, or 0 without memory and when there is no
    /// such node, the list unchanged.
    unsigned int InsertBefore(void* key, const void* before);

    /// Puts `with` in place of the first `key`. @return 1, or 0 when there is none.
    unsigned int Replace(const void* key, void* with);

    /// True when a node holds `key`. A NULL key is never found.
    bool Has(const void* key) const;

    /// The key at a zero-based index, or NULL. Walks from the head: to visit all entries, use `XmlEntries`.
    void* GetKeyAtIndex(unsigned short index) const;

    /// The first node, or NULL when the list is empty.
    IxSingleElementNode* GetPtrToListHead() const;

    /// Always NULL.
    IxSingleElementNode* GetPtrToListEnd() const;

    /// The number of entries, modulo 65536.
    unsigned short GetCount() const { return m_iListCount; }

    /// The node appended last, or NULL when the list is empty.
    IxSingleElementNode* LastNode() const { return m_pLast; }

    /// Moves all nodes of `other` to the end of this list, in order.
    void TakeNodesOf(IxSingleElementList& other);
    /// True when another list has taken the nodes of this one: unlike a list that has become empty, it is no news for
    /// the log.
    bool WasTaken() const { return m_bTaken; }

    unsigned short m_iListCount = 0;  ///< The number of entries, modulo 65536; to be read only.

  private:
    IxSingleElementNode* Find(const void* key, IxSingleElementNode*& before) const;

    IxSingleElementNode* m_pHead = nullptr;
    IxSingleElementNode* m_pLast = nullptr;
    bool m_bTaken = false;
};

/// The first node, or NULL for an empty list and for none. Unlike `GetPtrToListHead` it does not log an empty list.
inline const IxSingleElementNode* ixNodesOf(const IxSingleElementList* list) {
    return list != nullptr && list->LastNode() != nullptr ? list->GetPtrToListHead() : nullptr;
}

/// The entries of a list for a loop: `for (ix_contact* contact : XmlEntries<ix_contact>(list))`. NULL has none. An
/// entry that an application has put in can be NULL.
template <class Entry>
class XmlEntries {
  public:
    class Iterator {
      public:
        explicit Iterator(const IxSingleElementNode* node) : m_pNode(node) {}
        Entry* operator*() const { return static_cast<Entry*>(m_pNode->key); }
        Iterator& operator++() {
            m_pNode = m_pNode->next;
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_pNode != other.m_pNode; }

      private:
        const IxSingleElementNode* m_pNode;
    };

    explicit XmlEntries(const IxSingleElementList* list) : m_pFirst(ixNodesOf(list)) {}
    Iterator begin() const { return Iterator(m_pFirst); }
    Iterator end() const { return Iterator(nullptr); }

  private:
    const IxSingleElementNode* m_pFirst;
};

#endif
