/// @file
/// The stack of the objects under construction that every schema decoder keeps.
#ifndef IX_XML_STACK_H
#define IX_XML_STACK_H

#include "XmlPlatform.h"

/// Fixed stack of untyped pointers; it owns none of them. A document nested deeper than its capacity is not refused:
/// the objects past it are dropped with a log line, and the end tags then pop what lies below.
class IX_XML_EXPORT XmlCodeGenStack {
  public:
    static constexpr int kCapacity = 100;

    /// Stores `item` on top; a full stack logs and drops it.
    void push(void* item);
    /// Forgets the top item; an empty stack only logs.
    void pop();
    /// The top item; an empty stack logs and answers NULL.
    void* top() const;
    bool empty() const { return m_iTop == -1; }
    /// Required: the index of the top item, one less than the number of items, -1 when empty.
    int size() const { return m_iTop; }

  private:
    void* m_items[kCapacity];
    int m_iTop = -1;
};

#endif
