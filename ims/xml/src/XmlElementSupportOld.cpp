#include "XmlElementSupport.h"
#include "XmlFields.h"

#include <climits>

bool ixIsClassOld(const XMLElement* element, const char* className) {
    const char* const own = element != nullptr ? element->ClassName() : nullptr;
    return own != nullptr && (own == className || std::strcmp(own, className) == 0);
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
