/// @file
/// Small shared pieces: string helpers, a reusable work text, and the chain of open element names.
#ifndef IX_XML_COMMON_H
#define IX_XML_COMMON_H

#include "XmlPlatform.h"

/// String helpers. All work in place on NUL-terminated text.
class IX_XML_EXPORT XmlCommon {
  public:
    /// True for a blank, tab, line feed or carriage return.
    static bool IsSpace(char byte) {
        // One comparison for most characters.
        return static_cast<unsigned char>(byte) <= ' ' && (byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r');
    }
    /// The first character that is not a blank, tab, line feed or carriage return; NULL for NULL.
    static char* SkipSpaces(char* text) {
        if (text == nullptr) return nullptr;
        while (IsSpace(*text)) ++text;
        return text;
    }
    /// The same: only leading white space is skipped.
    static char* TrimSpaces(char* text) { return SkipSpaces(text); }
    /// Removes the last character if it is a blank.
    static void TrimRightSingle(char* text);
    /// The text without a double quote at its start and one at its end; NULL for NULL.
    static char* RemoveQuotes(char* text);
    /// 0 if the text contains "aor=", else 1 if it contains "@", else 0. 0 for NULL.
    static int IsEmailFormat(const char* text);
    /// The first "<", or NULL.
    static char* LocateBeginElement(char* text);
    /// The first ">", or NULL.
    static char* LocateEndElement(char* text);
};

/// A text buffer that is kept from use to use, so that a step repeated for every tag takes memory only when a tag is
/// longer than all before it, and none at all while tags are short.
class IX_XML_EXPORT XmlWorkText {
  public:
    XmlWorkText() = default;
    ~XmlWorkText();
    XmlWorkText(const XmlWorkText&) = delete;
    XmlWorkText& operator=(const XmlWorkText&) = delete;

    /// Makes room for `size` bytes. What the buffer held is lost when it grows. @return false without memory; the
    /// buffer then keeps its old size.
    bool Reserve(std::size_t size) { return size <= m_size || Grow(size); }
    char* Text() { return m_pText; }
    const char* Text() const { return m_pText; }

  private:
    bool Grow(std::size_t size);

    char m_short[64];
    char* m_pText = m_short;
    std::size_t m_size = sizeof m_short;
};

/// A chain of names, used by the tokenizer for the open elements: node and list at once. A list is addressed through a
/// leading object, the sentinel, whose own data is not part of it.
class IX_XML_EXPORT BuddyLinkList : public XmlHeapObject {
  public:
    explicit BuddyLinkList(void* data) : m_pData(data) {}
    BuddyLinkList(const BuddyLinkList&) = delete;
    BuddyLinkList& operator=(const BuddyLinkList&) = delete;

    /// A new node, registered under `source` and `line`; NULL without memory.
    static BuddyLinkList* Create(void* data, const char* source, int line);

    /// Makes a new node with `data` the next of this one; a node that was next before is no longer linked. To append at
    /// the end, call it on `SeekEnd()`. @return the node, or NULL without memory.
    BuddyLinkList* Append(void* data);
    /// The last object of the chain, this one when it has no next.
    BuddyLinkList* SeekEnd();
    /// Unlinks and returns the last node, which then belongs to the caller; NULL when there is none.
    BuddyLinkList* RemoveLast();
    /// Deletes every node after this object, handing its data to `callback` first when there is one. This object keeps
    /// its next, which is then stale: delete it right after.
    void FreeList(void (*callback)(void*));

    void* m_pData;                     ///< Not owned.
    BuddyLinkList* m_pNext = nullptr;  ///< NULL at the end.
};

#endif
