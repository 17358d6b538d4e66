// Goes when no family uses it any more.
#ifndef IX_XML_ELEMENT_SUPPORT_OLD_H
#define IX_XML_ELEMENT_SUPPORT_OLD_H

inline bool ixIsClass(const XMLElement* element, const char* className) { return ixIsClassOld(element, className); }
inline bool ixNameIs(const char* name, XmlName expected) { return ixNameIs(name, expected.Text()); }
/// True for an object that has no class name, which a hook answers with 1 and does not take.
inline bool ixIsNameless(const XMLElement* element) { return element != nullptr && element->ClassName() == nullptr; }

/// Copies the text or value that a hook was offered into `field`; `object` is what it was offered with.
/// @return 1, also for NULL, which changes nothing; 0 with an object, or without memory.
inline int ixTakeText(char*& field, const char* text, const void* object) {
    if (object != nullptr) return 0;
    return text != nullptr ? ixSetText(field, text) : 1;
}

/// Decimal text to number as `__atoi` does it, within the limits of the type: 0 for a negative one.
IX_XML_EXPORT unsigned int ixToUnsigned(const char* text);

/// `ixOverwriteText`, unless `text` is NULL. @return 1, or 0 without memory.
inline int ixOverwriteWithText(char*& field, const char* text) {
    return text != nullptr ? ixOverwriteText(field, text) : 1;
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

#endif
