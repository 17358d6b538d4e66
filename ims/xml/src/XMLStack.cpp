#include "XMLStack.h"

namespace {}  // namespace

void XmlCodeGenStack::push(void* item) {
    if (m_iTop == kCapacity - 1) {
        ixLog(kSource, {2, "stack overflow\n", 15});
        return;
    }
    m_items[++m_iTop] = item;
}

void XmlCodeGenStack::pop() {
    if (empty()) {
        ixLog(kSource, {2, "stack underflow\n", 29});
        return;
    }
    --m_iTop;
}

void* XmlCodeGenStack::top() const {
    if (empty()) {
        ixLog(kSource, {2, "stack is empty\n", 41});
        return nullptr;
    }
    return m_items[m_iTop];
}
