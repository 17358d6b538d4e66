#include "XMLCommonDef.h"

#include <cstring>

int XMLElement::ProcessUnMarshall(char* /*name*/, char* /*text*/, XMLElement* /*child*/) { return 1; }

int XMLElement::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/, XMLAttribute* /*pair*/) { return 1; }

XmlRest* XMLElement::MakeRest() {
    if (m_pRest == nullptr) m_pRest = new (std::nothrow) XmlRest;
    return m_pRest;
}

ix_AttributeValuePair::~ix_AttributeValuePair() {
    __free(mName);
    __free(mValue);
}

int ix_AttributeValuePair::setNameValue(const char* name) { return ixSetText(mName, name); }

int ix_AttributeValuePair::setValueValue(const char* value) { return ixSetText(mValue, value); }

ix_AttributeValuePair* ixCreatePair(const char* name, const char* value, const char* source, int line) {
    auto* const pair = ixNew<ix_AttributeValuePair>(source, line);
    if (pair == nullptr) return nullptr;
    if (pair->setNameValue(name) != 0 && pair->setValueValue(value) != 0) return pair;
    ixDelete(pair);
    return nullptr;
}

ix_AttributeValuePair* ixAsPair(XMLAttribute* attribute) {
    const char* const own = attribute != nullptr ? attribute->ClassName() : nullptr;
    if (own == nullptr || std::strcmp(own, ix_AttributeValuePair::kClassName) != 0) return nullptr;
    return static_cast<ix_AttributeValuePair*>(attribute);
}

ix_xml_common_array_definition* ix_xml_common_array_definition::m_pXmlStrRef = nullptr;

ix_xml_common_array_definition* ix_xml_common_array_definition::CreateArrayInstance() {
    // Required: its source line is fixed.
    if (m_pXmlStrRef == nullptr) m_pXmlStrRef = ixNew<ix_xml_common_array_definition>(kSource, 304);
    return m_pXmlStrRef;
}

void ix_xml_common_array_definition::ReleaseArrayInstance() {
    ixDelete(m_pXmlStrRef);
    m_pXmlStrRef = nullptr;
}

void FreeElement(void* text) {
    if (text != nullptr) __free(text);
}

int ixSetText(char*& field, const char* text) {
    char* const earlier = field;
    if (ixOverwriteText(field, text) == 0) return 0;
    __free(earlier);
    return 1;
}

int ixOverwriteText(char*& field, const char* text) {
    char* const copy = text != nullptr ? __strdup(text) : nullptr;
    if (text != nullptr && copy == nullptr) return 0;
    field = copy;
    return 1;
}

const char ix_xml_common_array_definition::arrXmlStrRef[kXmlStrRefCount][100] = {
#define IX_STRING(number, name, text) text,
#include "XmlStringTable.inc"
};

namespace {

constexpr bool NumbersAreInOrder() {
    int expected = 0;
#define IX_STRING(number, name, text) \
    if (number != expected++) return false;
#include "XmlStringTable.inc"
    return expected == kXmlStrRefCount;
}
static_assert(NumbersAreInOrder(), "the number of a row is its place");

}  // namespace
