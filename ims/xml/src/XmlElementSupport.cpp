#include "XmlElementSupport.h"

#include <climits>
#include <cstring>

ix_AttributeValuePair* ixAsPair(XMLAttribute* attribute) {
    const char* const own = attribute != nullptr ? attribute->ClassName() : nullptr;
    if (own == nullptr || std::strcmp(own, ix_AttributeValuePair::kClassName) != 0) return nullptr;
    return static_cast<ix_AttributeValuePair*>(attribute);
}

int ixSetText(char*& field, const char* text) {
    char* copy = nullptr;
    if (text != nullptr) {
        copy = __strdup(text);
        if (copy == nullptr) return 0;
    }
    __free(field);
    field = copy;
    return 1;
}

int ixOverwriteText(char*& field, const char* text) {
    char* const copy = text != nullptr ? __strdup(text) : nullptr;
    if (text != nullptr && copy == nullptr) return 0;
    field = copy;
    return 1;
}

unsigned int ixToUnsigned(const char* text) {
    const std::int64_t value = __atoi64(text);
    if (value < 0) return 0;
    return value > UINT_MAX ? UINT_MAX : static_cast<unsigned int>(value);
}

int ixSetElementList(IxSingleElementList*& field, IxSingleElementList* list) {
    if (field != list) ix_xml_common_methods::DeleteElementList(field);
    field = list;
    return 1;
}

int ixSetAttributeList(IxSingleElementList*& field, IxSingleElementList* list) {
    if (field != list) ix_xml_common_methods::DeleteAttributeList(field);
    field = list;
    return 1;
}

int ixSetTextList(IxSingleElementList*& field, IxSingleElementList* list) {
    if (field != list) ix_xml_common_methods::DeleteTextList(field);
    field = list;
    return 1;
}

int ixAppend(IxSingleElementList*& list, void* entry, const char* source, int line) {
    if (list != nullptr) return list->Add(entry) != 0 ? 1 : 0;
    // A list without an entry is something else than no list: some writers tell them apart.
    IxSingleElementList* created = IX_TRACKED_NEW(kSchemaModule, source, line, IxSingleElementList, ());
    if (created != nullptr && created->Add(entry) != 0) {
        list = created;
        return 1;
    }
    IX_DELETE(created);
    return 0;
}

int ixAppendText(IxSingleElementList*& list, const char* text, std::size_t length, const char* source, int line) {
    char* const copy = text != nullptr ? static_cast<char*>(__malloc(length + 1)) : nullptr;
    if (copy == nullptr) return 0;
    std::memcpy(copy, text, length);
    copy[length] = '\0';
    if (ixAppend(list, copy, source, line) != 0) return 1;
    __free(copy);
    return 0;
}

ix_AttributeValuePair* ixCreatePair(const char* name, const char* value, const char* source, int line) {
    ix_AttributeValuePair* const pair = IX_TRACKED_NEW(kSchemaModule, source, line, ix_AttributeValuePair, ());
    if (pair == nullptr) return nullptr;
    if (pair->setNameValue(name) != 0 && pair->setValueValue(value) != 0) return pair;
    IX_DELETE(pair);
    return nullptr;
}

ix_empty_element_type* ixCreateEmptyElement(const char* name, const char* source, int line) {
    ix_empty_element_type* const element = IX_TRACKED_NEW(kSchemaModule, source, line, ix_empty_element_type, ());
    if (element == nullptr) return nullptr;
    element->setPresentValue(1);
    if (element->setNameValue(name) != 0) return element;
    IX_DELETE(element);
    return nullptr;
}
