/// @file
/// Helpers of element classes: the words in which their hooks and setters are written.
#ifndef IX_XML_ELEMENT_SUPPORT_H
#define IX_XML_ELEMENT_SUPPORT_H

#include <cstring>

#include "XMLCommonDef.h"

/// True when `name` is exactly `expected`, which is not NULL.
inline bool ixNameIs(const char* name, const char* expected) {
    return name != nullptr && *name == *expected && std::strcmp(name, expected) == 0;
}

/// True when `name` is exactly the fixed string `entry`.
inline bool ixNameIs(const char* name, e_XmlStrRef entry) {
    return ixNameIs(name, ix_xml_common_array_definition::arrXmlStrRef[entry]);
}

/// True when `name` is the end tag of the element `entry`: "/" and the fixed string.
inline bool ixEndNameIs(const char* name, e_XmlStrRef entry) {
    return name != nullptr && *name == '/' && ixNameIs(name + 1, entry);
}

/// True when `element` is an object of the class `className`. NULL is of no class.
inline bool ixIsClass(const XMLElement* element, const char* className) {
    const char* const own = element != nullptr ? element->ClassName() : nullptr;
    // Mostly both are the same constant.
    return own != nullptr && (own == className || std::strcmp(own, className) == 0);
}

/// True when `element` is an object of the class `Element`, by its name. NULL is of no class. `Element` has to declare
/// a `kClassName`: one that it inherits is the name of its base.
template <class Element>
bool ixIs(const XMLElement* element) {
    return ixIsClass(element, Element::kClassName);
}

/// `element` as an object of the class `Element`, which it is by its name; NULL when it is none, or NULL.
template <class Element>
Element* ixAs(XMLElement* element) {
    return ixIs<Element>(element) ? static_cast<Element*>(element) : nullptr;
}
template <class Element>
const Element* ixAs(const XMLElement* element) {
    return ixIs<Element>(element) ? static_cast<const Element*>(element) : nullptr;
}

/// True for an object that has no class name, which a hook answers with 1 and does not take.
inline bool ixIsNameless(const XMLElement* element) { return element != nullptr && element->ClassName() == nullptr; }

/// `attribute` as a pair, or NULL when it is none.
IX_XML_EXPORT ix_AttributeValuePair* ixAsPair(XMLAttribute* attribute);

/// Replaces an owned text by a copy of `text`; NULL clears it.
/// @return 1, or 0 without memory, the earlier text kept.
IX_XML_EXPORT int ixSetText(char*& field, const char* text);

/// Copies the text or value that a hook was offered into `field`; `object` is what it was offered with.
/// @return 1, also for NULL, which changes nothing; 0 with an object, or without memory.
inline int ixTakeText(char*& field, const char* text, const void* object) {
    if (object != nullptr) return 0;
    return text != nullptr ? ixSetText(field, text) : 1;
}

/// Decimal text to number as `__atoi` does it, within the limits of the type: 0 for a negative one.
IX_XML_EXPORT unsigned int ixToUnsigned(const char* text);

/// Stores a flag, a number or an enumerator. @return 1.
template <class Field, class Value>
int ixSetNumber(Field& field, Value value) {
    field = value;
    return 1;
}

/// Puts a copy of `text`, or NULL for NULL, in the place of an owned text.
/// Required: an earlier text is not freed, for callers that still hold it. @return 1, or 0 without memory.
IX_XML_EXPORT int ixOverwriteText(char*& field, const char* text);

/// `ixOverwriteText`, unless `text` is NULL. @return 1, or 0 without memory.
inline int ixOverwriteWithText(char*& field, const char* text) {
    return text != nullptr ? ixOverwriteText(field, text) : 1;
}

/// Stores a child or list, which passes to the element; NULL changes nothing.
/// Required: an earlier one is not freed, for callers that still hold it. @return 1.
template <class Child>
int ixOverwriteChild(Child*& field, Child* child) {
    if (child != nullptr) field = child;
    return 1;
}

/// Replaces an owned child by `child`, which passes to the element; the earlier one is deleted. NULL clears the field.
/// @return 1.
template <class Element>
int ixSetChild(Element*& field, Element* child) {
    if (field != child) IX_DELETE(field);
    field = child;
    return 1;
}

/// Takes over `child` as `ixSetChild` does, when it is an object of the field's class.
/// @return 1, or 0 for NULL and any other class.
template <class Element>
int ixTakeChild(Element*& field, XMLElement* child) {
    return ixIs<Element>(child) ? ixSetChild(field, static_cast<Element*>(child)) : 0;
}

/// Replaces an owned list of owned elements by `list`, which passes to the element; the earlier one is deleted. NULL
/// clears the field. @return 1.
IX_XML_EXPORT int ixSetElementList(IxSingleElementList*& field, IxSingleElementList* list);

/// Replaces an owned list of attribute pairs by `list`, which passes to the element; the earlier one is deleted. NULL
/// clears the field. @return 1.
IX_XML_EXPORT int ixSetAttributeList(IxSingleElementList*& field, IxSingleElementList* list);

/// Replaces an owned list of owned texts by `list`, which passes to the element; the earlier one is deleted. NULL
/// clears the field. @return 1.
IX_XML_EXPORT int ixSetTextList(IxSingleElementList*& field, IxSingleElementList* list);

/// Appends `entry` to a list that is created on first use and registered under `source` and `line`.
/// @return 1, or 0 without memory, when the entry stays with the caller and no list is created.
IX_XML_EXPORT int ixAppend(IxSingleElementList*& list, void* entry, const char* source, int line);

/// `ixAppend` for `child` when it is an object of the class `Element`.
/// @return 1, or 0 for NULL, any other class and without memory, when it stays with the caller.
template <class Element>
int ixTakeInto(IxSingleElementList*& list, XMLElement* child, const char* source, int line) {
    return ixIs<Element>(child) ? ixAppend(list, child, source, line) : 0;
}

/// Appends a copy of the `length` characters at `text` as `ixAppend` does. @return 1, or 0 for NULL or without memory.
IX_XML_EXPORT int ixAppendText(IxSingleElementList*& list, const char* text, std::size_t length, const char* source,
                               int line);

/// A pair with copies of both texts, NULL for NULL, registered under `source` and `line`; NULL without memory.
IX_XML_EXPORT ix_AttributeValuePair* ixCreatePair(const char* name, const char* value, const char* source, int line);

/// An element without content that is present under the name `name` (copied), registered under `source` and `line`;
/// NULL without memory.
IX_XML_EXPORT ix_empty_element_type* ixCreateEmptyElement(const char* name, const char* source, int line);

#endif
