/// @file
/// What the element classes of the library are made of: the described bases, the words in which setters and hooks are
/// written, and the generic classes that several schemas share.
#ifndef IX_XML_ELEMENT_SUPPORT_H
#define IX_XML_ELEMENT_SUPPORT_H

#include <cstring>

#include "XmlClass.h"

/// @name Described classes
/// A class passes its description on to one of the bases; names and hooks follow from it. Its destructor calls
/// `ixRelease`.
/// @{

/// Base of the element classes.
class IX_XML_EXPORT XmlDescribedElement : public XMLElement {
  public:
    explicit XmlDescribedElement(const XmlClass& description) : XMLElement(&description) {}

    const char* ClassName() const override { return m_pClass->name; }
    const char* BaseClassName() const override { return m_pClass->base; }
    const char* TypeName() const override { return m_pClass->type; }
    int Reserved() const override { return 0; }
    /// As the rows say (XmlHooks.h).
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    /// As the rows say.
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;
};

/// Base of those that can stand at the root of a document.
class IX_XML_EXPORT XmlDescribedObject : public XMLObject {
  public:
    explicit XmlDescribedObject(const XmlClass& description) : XMLObject(&description) {}

    const char* ClassName() const override { return m_pClass->name; }
    const char* BaseClassName() const override { return m_pClass->base; }
    const char* TypeName() const override { return m_pClass->type; }
    int Reserved() const override { return 0; }
    /// As the rows say (XmlHooks.h).
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    /// As the rows say.
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;
    int IsRootElement() const override { return m_pClass->isRoot ? 1 : 0; }
};

/// Frees what the fields of the class own; those of its base class are freed by that one's destructor.
IX_XML_EXPORT void ixRelease(XMLElement& element, const XmlClass& description);
/// @}

/// @name Names
/// @{

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
/// @}

/// @name Setters
/// @{

/// Stores a flag, a number or an enumerator. @return 1.
template <class Field, class Value>
int ixSetNumber(Field& field, Value value) {
    field = value;
    return 1;
}

/// Replaces an owned child by `child`, which passes to the element; the earlier one is deleted. NULL clears the field.
/// @return 1.
template <class Element>
int ixSetChild(Element*& field, Element* child) {
    if (field != child) ixDelete(field);
    field = child;
    return 1;
}

/// Stores a copy of a text as `ixOverwriteText` does; NULL changes nothing. @return 1, or 0 without memory.
inline int ixOverwriteWithText(char*& field, const char* text) {
    return text != nullptr ? ixOverwriteText(field, text) : 1;
}

/// Stores a child or a list, which passes to the element; NULL changes nothing.
/// Required: an earlier one is not freed, for callers that still hold it. @return 1.
template <class Child>
int ixOverwriteChild(Child*& field, Child* child) {
    if (child != nullptr) field = child;
    return 1;
}

/// Replaces the list `field` of `element` by `list`, which passes to the element with its entries; the earlier one is
/// deleted with its own. NULL clears the field. @return 1.
IX_XML_EXPORT int ixSetList(const XMLElement& element, IxSingleElementList*& field, IxSingleElementList* list);

/// Appends `entry`, which passes to the element, to the list `field` of `element`, which is created on first use.
/// @return 1, or 0 for NULL or without memory, when the entry stays with the caller and no list is created.
IX_XML_EXPORT int ixAdd(XMLElement& element, IxSingleElementList* const& field, void* entry);

/// The same for a copy of a text.
IX_XML_EXPORT int ixAddText(XMLElement& element, IxSingleElementList* const& field, const char* text);
/// @}

/// @name Generic classes
/// @{

/// An element whose content is one text.
class IX_XML_EXPORT ix_string : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_string() : ix_string(kClass) {}
    ~ix_string() override { ixRelease(*this, kClass); }

    /// Copies `value`; NULL clears the text. @return 1, or 0 without memory, the earlier text kept.
    int setValueValue(const char* value) { return ixSetText(mValue, value); }
    /// The same.
    int setTextValue(const char* value) { return ixSetText(mValue, value); }

    char* mValue = nullptr;  ///< Owned; NULL: not set.

  protected:
    /// For a class of an element of its own.
    explicit ix_string(const XmlClass& description) : XmlDescribedElement(description) {}
};

/// An element without content, whose presence is the information.
class IX_XML_EXPORT ix_empty_element_type : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_empty_element_type() : XmlDescribedElement(kClass) {}
    ~ix_empty_element_type() override { ixRelease(*this, kClass); }

    /// Copies the element's name; NULL clears it. @return 1, or 0 without memory, the earlier name kept.
    int setNameValue(const char* name) { return ixSetText(mName, name); }
    /// @return 1.
    int setPresentValue(int present) { return ixSetNumber(mPresent, present); }

    char* mName = nullptr;  ///< Owned; the name the element is written with. NULL: not set.
    int mPresent = 0;       ///< 1 present, 0 absent.

  protected:
    /// For a class of an element of its own, which is present as soon as there is an object.
    explicit ix_empty_element_type(const XmlClass& description) : XmlDescribedElement(description), mPresent(1) {}
};

/// An element without content that is present under the name `name` (copied), registered under `source` and `line`;
/// NULL without memory.
IX_XML_EXPORT ix_empty_element_type* ixCreateEmptyElement(const char* name, const char* source,
                                                          int line = __builtin_LINE());
/// @}

#endif
