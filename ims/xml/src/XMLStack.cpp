#include "XMLStack.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLStack";

constexpr XmlLogText kOverflow = {2, kSchemaCode, 15, "stack overflow\n"};
constexpr XmlLogText kUnderflow = {2, kSchemaCode, 29, "stack underflow\n"};
constexpr XmlLogText kEmpty = {2, kSchemaCode, 41, "stack is empty\n"};

}  // namespace

void XmlCodeGenStack::push(void* item) {
    if (m_iTop == kCapacity - 1) {
        ixLog(kSourceFile, kOverflow);
        return;
    }
    m_items[++m_iTop] = item;
}

void XmlCodeGenStack::pop() {
    if (empty()) {
        ixLog(kSourceFile, kUnderflow);
        return;
    }
    --m_iTop;
}

void* XmlCodeGenStack::top() const {
    if (empty()) {
        ixLog(kSourceFile, kEmpty);
        return nullptr;
    }
    return m_items[m_iTop];
}
