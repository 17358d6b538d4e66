/// @file
/// Field tables: each element class describes its data members once, as constants, and clean-up, comparison and
/// printing work from the description.
///
/// A row holds a pointer to a data member, converted to one of the base class, so that one piece of code can reach the
/// members of every class without templates. A table must only be used with objects of the class that it belongs to,
/// which `XMLElement::FieldTable` guarantees.
#ifndef IX_XML_FIELDS_H
#define IX_XML_FIELDS_H

#include <climits>
#include <cstring>

#include "XMLCommonDef.h"

/// What a field holds. The type of the data member is in parentheses.
enum class XmlFieldKind : unsigned char {
    Text,           ///< Owned text (`char*`).
    Flag,           ///< True or false (`int`).
    Number,         ///< Number (`int`).
    Unsigned,       ///< Number (`unsigned int`).
    Number64,       ///< Number (`std::int64_t`).
    Enumeration,    ///< Index of a text (`int`).
    Child,          ///< Owned element (pointer to a class derived from `XMLElement`).
    ChildList,      ///< Owned list of owned elements (`IxSingleElementList*`).
    TextList,       ///< Owned list of owned texts.
    AttributeList,  ///< Owned list of owned `ix_AttributeValuePair` objects.
    Presence        ///< Owned `ix_empty_element_type` whose presence is the information.
};

/// The texts of an enumeration, in rows of a fixed width.
struct XmlEnumeration {
    const char* rows;
    std::size_t width;
    int count;

    const char* TextOf(long long value) const {
        return value >= 0 && value < count ? rows + static_cast<std::size_t>(value) * width : nullptr;
    }

    /// The first row that is exactly `text`; `count` for none, and for NULL.
    int IndexOf(const char* text) const {
        int index = 0;
        while (index < count && (text == nullptr || std::strcmp(text, TextOf(index)) != 0)) ++index;
        return index;
    }

    /// The first row that `text` begins with; `count` for none, and for NULL.
    int IndexOfPrefix(const char* text) const {
        int index = 0;
        while (index < count &&
               (text == nullptr || std::strncmp(text, TextOf(index), std::strlen(TextOf(index))) != 0)) {
            ++index;
        }
        return index;
    }
};

/// Pointers to data members, as the table holds them.
using XmlTextMember = char* XMLElement::*;
using XmlIntMember = int XMLElement::*;
using XmlUnsignedMember = unsigned int XMLElement::*;
using XmlInt64Member = std::int64_t XMLElement::*;
using XmlListMember = IxSingleElementList* XMLElement::*;
/// Reads a child, whose member has the child's own type.
using XmlChildReader = XMLElement* (*)(const XMLElement& parent);

/// The reader of the member `member` of the class `type`.
#define IX_CHILD_MEMBER(type, member) \
    XmlChildReader([](const XMLElement& element) -> XMLElement* { return static_cast<const type&>(element).member; })

/// The 'not set' value of a number that has none: the field is always shown.
constexpr long long kXmlAlwaysSet = LLONG_MIN;

/// One field of an element class.
struct IX_XML_EXPORT XmlField {
    union Member {
        XmlTextMember text;
        XmlIntMember number;
        XmlUnsignedMember unsignedNumber;
        XmlInt64Member number64;
        XmlListMember list;
        XmlChildReader child;
        constexpr Member(XmlTextMember member) : text(member) {}
        constexpr Member(XmlIntMember member) : number(member) {}
        constexpr Member(XmlUnsignedMember member) : unsignedNumber(member) {}
        constexpr Member(XmlInt64Member member) : number64(member) {}
        constexpr Member(XmlListMember member) : list(member) {}
        constexpr Member(XmlChildReader reader) : child(reader) {}
    };

    XmlFieldKind kind;
    e_XmlStrRef name;  ///< Element or attribute name; `IX_STR_IX_NULL`: see `key`.
    Member member;
    long long notSet = 0;                         ///< Flags, numbers, enumerations: the value that means 'not set'.
    const XmlEnumeration* enumeration = nullptr;  ///< Enumerations only.
    const char* key = nullptr;  ///< Name of a field that no XML name stands for: "text", "attributes".

    const char* Name() const { return key != nullptr ? key : ix_xml_common_array_definition::getStringName(name); }
};

/// The fields of a class in declaration order.
struct XmlFieldTable {
    const XmlFieldTable* base;  ///< Table of the base class, whose fields come first; NULL: none.
    const XmlField* fields;
    std::size_t count;
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
    /// True unless the field is NULL, an empty list, its 'not set' value, or a value that its enumeration has no text
    /// for.
    static bool IsSet(const XMLElement& element, const XmlField& field);
    /// @}

    /// The field of that name, as `XmlField::Name` tells it; NULL: the class has none.
    static const XmlField* Find(const XMLElement& element, const char* name);

    /// The document's word for an enumerated field; NULL: it is not set, or the class has none of that name.
    static const char* Word(const XMLElement& element, const char* name);

    /// Frees what the fields of `table` own, not those of its base. Every destructor of an element class calls it with
    /// the class's own table.
    static void Release(XMLElement* element, const XmlFieldTable& table);

    /// True when `child` is the value of a child field, or the last entry of a child list. A class without a table is
    /// taken to hold whatever it has accepted.
    static bool HoldsChild(const XMLElement& element, const XMLElement* child);

    /// True when `pair` is the last entry of an attribute list, or the class has no table.
    static bool HoldsAttribute(const XMLElement& element, const XMLAttribute* pair);

    /// Moves the entries of all child lists of `element`, and of the elements that its child fields hold, to the end of
    /// `list`, so that a tree can be deleted without a call for every level.
    static void HandOverChildLists(XMLElement* element, IxSingleElementList& list);

    /// True when both trees have the same classes and the same fields. NULL equals NULL only.
    static bool Equal(const XMLElement* left, const XMLElement* right);
};

#endif
