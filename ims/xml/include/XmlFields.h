/// @file
/// What works from the description of an element class: looking at fields, release, comparison.
#ifndef IX_XML_FIELDS_H
#define IX_XML_FIELDS_H

#include "XmlClass.h"

/// Ends of lists. Each deletes the entries and then the list; NULL is ignored, and so are NULL entries.
class IX_XML_EXPORT ix_xml_common_methods {
  public:
    /// The entries are `XMLElement` objects, deleted with all that is below them. Safe for trees of any depth.
    static void DeleteElementList(IxSingleElementList* list);
    /// The entries are `ix_AttributeValuePair` objects.
    static void DeleteAttributeList(IxSingleElementList* list);
    /// The entries are texts.
    static void DeleteTextList(IxSingleElementList* list);
};

/// Operations on the fields of an element.
class IX_XML_EXPORT XmlFields {
  public:
    /// @name Reading one field; `element` must be of the class that `field` belongs to.
    /// @{
    static const char* Text(const XMLElement& element, const XmlField& field);
    /// Flags, numbers and enumerations.
    static long long Number(const XMLElement& element, const XmlField& field);
    /// Children and presence elements.
    static XMLElement* Child(const XMLElement& element, const XmlField& field);
    static IxSingleElementList* List(const XMLElement& element, const XmlField& field);
    /// Stores a flag, a number or an enumerator, which fits.
    static void SetNumber(XMLElement& element, const XmlField& field, long long value);
    /// True unless the field is NULL, an empty list, its 'not set' value, or a value that its enumeration has no text
    /// for.
    static bool IsSet(const XMLElement& element, const XmlField& field);
    /// @}

    /// The field of that name, as `XmlField::Name` tells it; NULL: the class has none.
    static const XmlField* Find(const XMLElement& element, const char* name);

    /// The document's word for an enumerated field; NULL: it is not set, or the class has none of that name.
    static const char* Word(const XMLElement& element, const char* name);

    /// The row of a list by its data member; NULL: the class has none.
    static const XmlField* RowOf(const XMLElement& element, const IxSingleElementList* const& list);

    /// Path of the file that a row of the element's class stands in.
    static const char* SourceOf(const XMLElement& element, const XmlField& row);

    /// Frees what the fields of `table` own, not those of its base.
    static void Release(XMLElement* element, const XmlFieldTable& table);

    /// Deletes a list of `row` with its entries. NULL is ignored.
    static void DeleteList(const XmlField& row, IxSingleElementList* list);

    /// True when `child` is the value of a child field, or the last entry of a child list. A class without a table is
    /// taken to hold whatever it has accepted.
    static bool HoldsChild(const XMLElement& element, const XMLElement* child);

    /// True when `pair` is the last entry of an attribute list, or the class has no table.
    static bool HoldsAttribute(const XMLElement& element, const XMLAttribute* pair);

    /// Moves the entries of all child lists of `element`, and of the elements that its child fields hold, to the end of
    /// `list`, so that a tree can be deleted without a call for every level.
    static void HandOverChildLists(XMLElement* element, IxSingleElementList& list);

    /// A copy of `element` with all that is below it: fields, lists, rests. Safe for trees of any depth. It belongs to
    /// the caller. @return NULL without memory, and when an object below is of no class of the library.
    static XMLElement* Copy(const XMLElement& element);

    /// True when both trees have the same classes, the same fields and the same rests. NULL equals NULL only.
    static bool Equal(const XMLElement* left, const XMLElement* right);
};

#endif
