#include "XmlElementSupport.h"

#include <cstring>

#include "XmlFields.h"
#include "XmlHooks.h"

namespace {

int Take(XMLElement& element, char* name, const char* text, XMLElement* child) {
    return XmlHooks::Offer(element, *element.Class(), XmlTag(name), text, child) != XmlAnswer::Refused ? 1 : 0;
}

int TakeAttribute(XMLElement& element, const char* attribute, const char* value, XMLAttribute* pair) {
    const XmlName name(attribute != nullptr ? attribute : "", attribute != nullptr ? std::strlen(attribute) : 0);
    return XmlHooks::OfferAttribute(element, *element.Class(), name, attribute, value, pair) != XmlAnswer::Refused ? 1
                                                                                                                   : 0;
}

using namespace XmlRow;

constexpr XmlField kStringFields[] = {
    OwnText<&ix_string::mValue>(),
};
constexpr XmlField kEmptyElementFields[] = {
    Attribute<&ix_empty_element_type::mName>(IX_STR_IX_NULL).Key("name"),
    Attribute<&ix_empty_element_type::mPresent>(IX_STR_IX_NULL, XmlFlag::TrueOrNot).Key("present"),
};

}  // namespace

int XmlDescribedElement::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    return Take(*this, name, text, child);
}

int XmlDescribedElement::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    return TakeAttribute(*this, attribute, value, pair);
}

int XmlDescribedObject::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    return Take(*this, name, text, child);
}

int XmlDescribedObject::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    return TakeAttribute(*this, attribute, value, pair);
}

void ixRelease(XMLElement& element, const XmlClass& description) { XmlFields::Release(&element, description.table); }

int ixSetList(const XMLElement& element, IxSingleElementList*& field, IxSingleElementList* list) {
    const XmlField* const row = XmlFields::RowOf(element, field);
    if (field != list && row != nullptr) XmlFields::DeleteList(*row, field);
    field = list;
    return 1;
}

int ixAdd(XMLElement& element, IxSingleElementList* const& field, void* entry) {
    const XmlField* const row = XmlFields::RowOf(element, field);
    return row != nullptr && entry != nullptr && XmlHooks::Append(element, *row, entry) ? 1 : 0;
}

int ixAddText(XMLElement& element, IxSingleElementList* const& field, const char* text) {
    const XmlField* const row = XmlFields::RowOf(element, field);
    return row != nullptr && text != nullptr && XmlHooks::AppendText(element, *row, text, std::strlen(text)) ? 1 : 0;
}

constexpr XmlClass ix_string::kClass = ixClass<ix_string>("ix_string", "string_class", kSource, kStringFields);

constexpr XmlClass ix_empty_element_type::kClass = ixClass<ix_empty_element_type>(
    "ix_empty_element_type", "empty_element", kSource, kEmptyElementFields, ixIgnoring());

ix_empty_element_type* ixCreateEmptyElement(const char* name, const char* source, int line) {
    auto* const element = ixNew<ix_empty_element_type>(source, line);
    if (element == nullptr) return nullptr;
    element->setPresentValue(1);
    if (element->setNameValue(name) != 0) return element;
    ixDelete(element);
    return nullptr;
}
