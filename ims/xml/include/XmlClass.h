/// @file
/// The description of an element class: one constant from which its names, release, comparison, printing and regular
/// hooks follow.
///
/// A description has a row for each field. The row says what the field is in the document (an attribute, an element
/// with a text, repeated children ...), and through a pointer to the data member where it is in the object. Pointers to
/// members are converted to ones of the base class, so that one piece of code reaches the members of every class.
#ifndef IX_XML_CLASS_H
#define IX_XML_CLASS_H

#include <climits>
#include <cstdint>
#include <type_traits>

#include "XMLCommonDef.h"
#include "XmlNames.h"
#include "XmlNamespaces.h"

class XmlDescribedElement;
class XmlDescribedObject;
class ix_empty_element_type;

/// A row or a description that says one thing more.
template <class Row, class Value, class Given>
constexpr Row ixWith(Row row, Value Row::*member, Given value) {
    row.*member = value;
    return row;
}

/// What the data member of a field holds. Its type is in parentheses.
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
    Presence,       ///< Owned `ix_empty_element_type`, or of a class derived from it, whose presence is the
                    ///< information.
    None            ///< There is no data member.
};

/// What a field is in the document.
enum class XmlRole : unsigned char {
    Attribute,     ///< An attribute of the element's start tag.
    Dropped,       ///< An attribute that the root of a document does not keep; it has no member.
    OwnText,       ///< The text of the element itself, taken at its own end tag (`XmlClass::element`).
    Element,       ///< An element with a text, number, flag or word.
    Words,         ///< An element whose text is a list of words with white space between them.
    Texts,         ///< Repeated elements with a text each.
    Child,         ///< One child of one class.
    OneOf,         ///< One child, whose class follows from its name.
    Children,      ///< Repeated children of one class.
    Mixed,         ///< Children of several classes in document order; the class of each follows from its name.
    Attributes,    ///< All other attributes.
    Declarations,  ///< The namespaces that a document declares.
    Others         ///< Objects that no other row takes.
};

/// The texts of an enumeration, in rows of a fixed width.
struct IX_XML_EXPORT XmlEnumeration {
    const char* rows;
    std::size_t width;
    int count;
    bool exact = false;  ///< A text has to be a word of the enumeration; else it stands for the first it begins with.
    int reach = 0;       ///< How many rows reading looks at, where that are not `count`; 0: `count`.

    const char* TextOf(long long value) const {
        return value >= 0 && value < count ? rows + static_cast<std::size_t>(value) * width : nullptr;
    }
    /// The row that a text of a document stands for; behind the last one that is looked at when there is none.
    int Read(const char* text) const;

    /// The first row that is exactly `text`; `count` for none, and for NULL.
    int IndexOf(const char* text) const;
    /// The first row that `text` begins with; `count` for none, and for NULL.
    int IndexOfPrefix(const char* text) const;
};

/// How the text of a flag is read.
enum class XmlFlag : unsigned char {
    TrueOrNot,        ///< 1 for "true", 0 for every other text.
    TrueOrFalse,      ///< 1 for "true", 0 for "false"; every other text leaves the flag as it is.
    TrueFalseOrUnset  ///< 1 for "true", 0 for "false"; every other text makes it 'not set'.
};

/// @name Pointers to data members, as a row holds them
/// @{
using XmlTextMember = char* XMLElement::*;
using XmlIntMember = int XMLElement::*;
using XmlUnsignedMember = unsigned int XMLElement::*;
using XmlInt64Member = std::int64_t XMLElement::*;
using XmlListMember = IxSingleElementList* XMLElement::*;
/// Reads a child, whose member has the child's own type.
using XmlChildReader = XMLElement* (*)(const XMLElement& parent);
/// Stores a child, which is of the member's class.
using XmlChildWriter = void (*)(XMLElement& parent, XMLElement* child);
/// @}

/// The 'not set' value of a number that has none: the field is always shown.
constexpr long long kXmlAlwaysSet = LLONG_MIN;

struct XmlClass;

/// The class that an entry of a mixed list has under a name.
struct XmlNamedClass {
    XmlName name;
    const XmlClass* description;
    XmlNamespace ns = XmlNamespace::Parent;
};

/// One field of an element class. Rows are made by the functions below.
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
    XmlName name;  ///< Element or attribute; `IX_STR_IX_NULL`: the role has none.
    Member member;
    long long notSet = 0;                         ///< Flags, numbers, enumerations: the value that means 'not set'.
    const XmlEnumeration* enumeration = nullptr;  ///< Enumerations only.
    const char* key = nullptr;                    ///< What the field is called where no name of the document does.

    XmlRole role = XmlRole::Element;
    XmlFlag flag = XmlFlag::TrueOrNot;       ///< Flags only.
    bool nearest = false;                    ///< Unsigned numbers: what does not fit becomes the nearest that does.
    bool leavesEarlier = false;              ///< What was there is not freed when a document gives it twice.
    int line = 0;                            ///< Source line of the row, under which a list of it is registered.
    const XmlClass* description = nullptr;   ///< Class of the child, or of each entry.
    const XmlNamedClass* entries = nullptr;  ///< Classes by name, where there are several.
    std::size_t entryCount = 0;
    XmlChildWriter store = nullptr;          ///< Children only.
    XmlNamespace ns = XmlNamespace::Parent;  ///< Elements: where the standard has the name.
    bool mandatory = false;                  ///< The standard demands it.
    bool takesTurns = false;                 ///< Lists: its entries alternate with those of the next row.

    const char* Name() const { return key != nullptr ? key : name.Text(); }

    /// @name What else a row may say
    /// @{
    /// The value that means 'not set', in place of 0.
    constexpr XmlField NotSet(long long value) const { return ixWith(*this, &XmlField::notSet, value); }
    /// No value means 'not set': the field is always shown.
    constexpr XmlField Always() const { return NotSet(kXmlAlwaysSet); }
    constexpr XmlField Nearest() const { return ixWith(*this, &XmlField::nearest, true); }
    constexpr XmlField LeavesEarlier() const { return ixWith(*this, &XmlField::leavesEarlier, true); }
    constexpr XmlField Key(const char* text) const { return ixWith(*this, &XmlField::key, text); }
    /// The namespace that the standard has the element in, where that is not the one of the element around it.
    constexpr XmlField In(XmlNamespace standard) const { return ixWith(*this, &XmlField::ns, standard); }
    /// The standard demands the attribute or the element.
    constexpr XmlField Mandatory() const { return ixWith(*this, &XmlField::mandatory, true); }
    /// The entries of the list alternate with those of the next row.
    constexpr XmlField TakesTurns() const { return ixWith(*this, &XmlField::takesTurns, true); }
    /// A source line that is fixed from outside.
    constexpr XmlField At(int fixed) const { return ixWith(*this, &XmlField::line, fixed); }
    /// @}
};

/// No class has as many rows, those of its bases counted.
constexpr std::size_t kXmlMostRows = 64;

/// The fields of a class.
struct XmlFieldTable {
    static constexpr unsigned kSlots = kXmlMostRows;

    const XmlFieldTable* base;  ///< Those of the base class, which come first; NULL: none.
    const XmlField* fields;
    std::size_t count;
    const char* source = nullptr;  ///< Path of the file that the rows stand in.
    bool hasUnnamed = false;       ///< There are rows without a name that take what is offered ...
    bool hasEntries = false;       ///< ... and rows with a name for each class.
    /// Rows, by their places, that a document has to say something about: the standard demands it, or the field has no
    /// 'not set' value.
    std::uint64_t told = 0;
    std::uint64_t attributes = 0;  ///< Rows, by their places, that stand in the start tag.
    std::uint64_t owning = 0;      ///< Rows, by their places, whose fields own something ...
    std::uint64_t parents = 0;     ///< ... and those of children and lists of children.
    /// The place of a row and one, from the slot of its name on; 0: no further row of that slot's names.
    std::uint8_t slots[kSlots] = {};

    static constexpr unsigned SlotOf(XmlName name) { return static_cast<unsigned>(name.number) % kSlots; }
    static constexpr unsigned Behind(unsigned slot) { return (slot + 1) % kSlots; }
    constexpr void Index() {
        for (std::size_t i = 0; i < count; ++i) {
            unsigned slot = SlotOf(fields[i].name);
            while (slots[slot] != 0) slot = Behind(slot);
            slots[slot] = static_cast<std::uint8_t>(i + 1);
        }
    }
    /// The first row of a known name, not of the base class, that `fits`; NULL: there is none.
    template <class Predicate>
    const XmlField* Find(XmlName name, Predicate fits) const {
        for (unsigned slot = SlotOf(name); slots[slot] != 0; slot = Behind(slot)) {
            const XmlField& row = fields[slots[slot] - 1];
            if (row.name == name && fits(row)) return &row;
        }
        return nullptr;
    }
};

/// What the regular hooks answer and log for what no row takes. A log line without a format is not logged.
struct XmlAnswers {
    int object = 0;                  ///< Answer to an object under a name that no row has: 0 refused, 1 ignored ...
    int event = 1;                   ///< ... to a tag without an object ...
    int attribute = 1;               ///< ... to an attribute without a pair ...
    int pair = 1;                    ///< ... and to one with a pair.
    int lostPair = 0;                ///< Answer to a pair that there is no memory to keep, or that is none.
    int nameless = 0;                ///< Answer to an object without a class name under the name of a child.
    bool needsName = false;          ///< A call without a name does nothing and answers 1.
    bool startsAreUnknown = false;   ///< The start tag of a text element is as unknown as any other.
    bool attributesAreTags = false;  ///< An attribute comes as a start tag does, its value as the text.
    bool missingIsUnknown = false;   ///< So is the start tag of a child without the child.
    XmlLogText entered{};            ///< At each call for a tag or an object.
    XmlLogText attributeEntered{};   ///< At each call for an attribute.
    XmlLogText unknown{};            ///< A tag without an object that no row takes: its name and text ...
    XmlLogText unknownObject{};      ///< ... one with an object ...
    XmlLogText unknownAttribute{};   ///< ... and an attribute: its name.
    XmlLogText noAttribute{};        ///< An attribute without a name; none: `unknownAttribute`.
    XmlLogText noChild{};            ///< Under the name of a child: no object ...
    XmlLogText namelessChild{};      ///< ... one without a class name ...
    XmlLogText otherChild{};         ///< ... and one of another class: its class name.
};

/// The answers of a class that ignores objects under names that no row has.
constexpr XmlAnswers ixIgnoring() {
    XmlAnswers answers;
    answers.object = 1;
    return answers;
}

/// The same of one that also ignores objects without a class name, and those under the name of a text element, and that
/// logs each call of its hooks.
constexpr XmlAnswers ixTracing(const XmlLogText& entered, const XmlLogText& attributeEntered) {
    XmlAnswers answers = ixIgnoring();
    answers.nameless = 1;
    answers.startsAreUnknown = true;
    answers.entered = entered;
    answers.attributeEntered = attributeEntered;
    return answers;
}

/// An element class.
struct XmlClass {
    const char* name;                                     ///< What `ClassName` answers.
    const char* base;                                     ///< What `BaseClassName` answers.
    const char* type;                                     ///< What `TypeName` answers.
    const char* source;                                   ///< Source path for log lines and the memory tracker.
    XMLElement* (*create)(const char* source, int line);  ///< A new, registered object; NULL: the class is abstract.
    XmlFieldTable table;
    XmlAnswers answers;
    const XmlClass* parent = nullptr;    ///< The base class, when it has a description.
    XmlName element = IX_STR_IX_NULL;    ///< The element that the class stands for, where that is always the same.
    const XmlField* ownText = nullptr;   ///< The row of the element's own text, if it is one of this class.
    const char* also = nullptr;          ///< What else the standard has; NULL: nothing that matters.
    bool isUnordered = false;            ///< Its standard lets the children come in any order.
    bool isRoot = true;                  ///< Objects: what `IsRootElement` answers.
    bool takesByRows = false;            ///< `ProcessUnMarshall` is the regular one ...
    bool takesAttributesByRows = false;  ///< ... and so is `ProcessUnMarshallAttribute`.

    /// The row of the element's own text; NULL: it has none.
    const XmlField* OwnText() const {
        const XmlClass* of = this;
        while (of->ownText == nullptr && of->parent != nullptr) of = of->parent;
        return of->ownText;
    }
    /// A class that is no root although its base is `XMLObject`.
    constexpr XmlClass NoRoot() const { return ixWith(*this, &XmlClass::isRoot, false); }
    /// Elements and attributes that the standard has as well, and no field holds; separated by blanks.
    constexpr XmlClass Also(const char* names) const { return ixWith(*this, &XmlClass::also, names); }
    /// A class whose standard lets the children come in any order.
    constexpr XmlClass Unordered() const { return ixWith(*this, &XmlClass::isUnordered, true); }
    /// The element that objects of the class stand for.
    constexpr XmlClass Of(XmlName standsFor) const { return ixWith(*this, &XmlClass::element, standsFor); }
};

/// @name Classes of objects
/// @{

/// The rows of an element's class; NULL: it has no description.
inline const XmlFieldTable* ixRowsOf(const XMLElement& element) {
    return element.Class() != nullptr ? &element.Class()->table : nullptr;
}

/// True when `element` is an object of the class, or of one that an application has derived from it, and says so by its
/// name. NULL is of no class.
IX_XML_EXPORT bool ixIsClass(const XMLElement* element, const XmlClass& description);

/// True when `element` is an object of the class `Element`. NULL is of no class. A class that an application has
/// derived from `Element` and calls otherwise is none.
template <class Element>
bool ixIs(const XMLElement* element) {
    return ixIsClass(element, Element::kClass);
}

/// `element` as an object of the class `Element`; NULL when it is none, or NULL.
template <class Element>
Element* ixAs(XMLElement* element) {
    return ixIs<Element>(element) ? static_cast<Element*>(element) : nullptr;
}
template <class Element>
const Element* ixAs(const XMLElement* element) {
    return ixIs<Element>(element) ? static_cast<const Element*>(element) : nullptr;
}
/// @}

/// @name Descriptions
/// @{

/// A new object of the class `Element`, registered under `source` and `line`; NULL without memory.
template <class Element>
XMLElement* ixCreate(const char* source, int line) {
    return ixNew<Element>(source, line);
}

/// The creator of a class; NULL for an abstract one.
template <class Element>
constexpr auto ixCreatorOf() -> XMLElement* (*)(const char*, int) {
    if constexpr (std::is_abstract_v<Element> || !std::is_default_constructible_v<Element>) {
        return nullptr;
    } else {
        return ixCreate<Element>;
    }
}

/// True when the class `Element` has the hook of one of the two described bases.
template <class Hook>
constexpr bool ixIsRegular(Hook /*hook*/) {
    return std::is_same_v<Hook, int (XmlDescribedElement::*)(char*, char*, XMLElement*)> ||
           std::is_same_v<Hook, int (XmlDescribedObject::*)(char*, char*, XMLElement*)> ||
           std::is_same_v<Hook, int (XmlDescribedElement::*)(char*, char*, XMLAttribute*)> ||
           std::is_same_v<Hook, int (XmlDescribedObject::*)(char*, char*, XMLAttribute*)>;
}

/// The description of a class without fields of its own.
template <class Element>
constexpr XmlClass ixClass(const char* name, const char* type, const char* source, const XmlAnswers& answers = {}) {
    XmlClass description = {name,
                            std::is_base_of_v<XMLObject, Element> ? "XMLObject" : "XMLElement",
                            type,
                            source,
                            ixCreatorOf<Element>(),
                            {nullptr, nullptr, 0, source},
                            answers};
    description.takesByRows = ixIsRegular(&Element::ProcessUnMarshall);
    description.takesAttributesByRows = ixIsRegular(&Element::ProcessUnMarshallAttribute);
    return description;
}

/// The description of a class with fields, in the order in which its standard writes them.
template <class Element, std::size_t count>
constexpr XmlClass ixClass(const char* name, const char* type, const char* source, const XmlField (&rows)[count],
                           const XmlAnswers& answers = {}) {
    XmlClass description = ixClass<Element>(name, type, source, answers);
    description.table.fields = rows;
    description.table.count = count;
    static_assert(count < XmlFieldTable::kSlots, "there is a free slot");
    description.table.Index();
    for (const XmlField& row : rows) {
        const bool isUnnamed = row.role == XmlRole::OwnText || row.role == XmlRole::OneOf || row.role == XmlRole::Mixed;
        description.table.hasUnnamed = description.table.hasUnnamed || isUnnamed;
        if (row.role == XmlRole::OwnText) description.ownText = &row;
        description.table.hasEntries = description.table.hasEntries || row.entryCount != 0;
        const std::uint64_t bit = std::uint64_t{1} << (&row - rows);
        const bool isChild = row.kind == XmlFieldKind::Child || row.kind == XmlFieldKind::ChildList;
        const bool isOwner = isChild || row.kind == XmlFieldKind::Text || row.kind == XmlFieldKind::Presence ||
                             row.kind == XmlFieldKind::TextList || row.kind == XmlFieldKind::AttributeList;
        const bool isAttribute = row.role == XmlRole::Attribute || row.role == XmlRole::Attributes ||
                                 row.role == XmlRole::Dropped || row.role == XmlRole::Declarations;
        if (isAttribute) description.table.attributes |= bit;
        if (isChild) description.table.parents |= bit;
        if (isOwner) description.table.owning |= bit;
        const bool isTold = row.mandatory || row.notSet == kXmlAlwaysSet;
        if (isTold) description.table.told |= bit;
    }
    return description;
}

/// The same, of a class whose base class `parent` has fields, too.
constexpr XmlClass ixDerived(XmlClass description, const XmlClass& parent) {
    description.parent = &parent;
    description.table.base = &parent.table;
    return description;
}
/// @}

/// The functions that make rows. The data member is given as template argument; one that does not fit does not compile.
namespace XmlRow {

template <auto member>
struct MemberOf;

template <class Owner, class Value, Value Owner::*member>
struct MemberOf<member> {
    using Type = Value;

    static XMLElement* Get(const XMLElement& parent) { return static_cast<const Owner&>(parent).*member; }
    static void Set(XMLElement& parent, XMLElement* child) {
        static_cast<Owner&>(parent).*member = static_cast<Value>(child);
    }
};

template <auto member>
using TypeOf = typename MemberOf<member>::Type;

constexpr XmlField Make(XmlRole role, XmlFieldKind kind, XmlName name, XmlField::Member member, int line) {
    XmlField row = {kind, name, member};
    row.role = role;
    row.line = line;
    return row;
}

/// A text or a number, by the type of the member.
template <auto member>
constexpr XmlField Value(XmlRole role, XmlName name, int line) {
    using Type = TypeOf<member>;
    if constexpr (std::is_same_v<Type, char*>) {
        return Make(role, XmlFieldKind::Text, name, static_cast<XmlTextMember>(member), line);
    } else if constexpr (std::is_same_v<Type, unsigned int>) {
        return Make(role, XmlFieldKind::Unsigned, name, static_cast<XmlUnsignedMember>(member), line);
    } else if constexpr (std::is_same_v<Type, std::int64_t>) {
        return Make(role, XmlFieldKind::Number64, name, static_cast<XmlInt64Member>(member), line);
    } else {
        return Make(role, XmlFieldKind::Number, name, static_cast<XmlIntMember>(member), line);
    }
}

template <auto member>
constexpr XmlField FlagValue(XmlRole role, XmlName name, XmlFlag reading, int line) {
    XmlField row = Make(role, XmlFieldKind::Flag, name, static_cast<XmlIntMember>(member), line);
    row.flag = reading;
    return row;
}

/// The value behind the last word means 'not set'.
template <auto member>
constexpr XmlField WordValue(XmlRole role, XmlName name, const XmlEnumeration& words, int line) {
    XmlField row = Make(role, XmlFieldKind::Enumeration, name, static_cast<XmlIntMember>(member), line);
    row.enumeration = &words;
    row.notSet = words.count;
    return row;
}

template <auto member>
constexpr XmlField List(XmlRole role, XmlFieldKind kind, XmlName name, int line) {
    return Make(role, kind, name, static_cast<XmlListMember>(member), line);
}

/// @name An attribute: a text or number, a flag, a word
/// @{
template <auto member>
constexpr XmlField Attribute(XmlName name, int line = __builtin_LINE()) {
    return Value<member>(XmlRole::Attribute, name, line);
}
template <auto member>
constexpr XmlField Attribute(XmlName name, XmlFlag reading, int line = __builtin_LINE()) {
    return FlagValue<member>(XmlRole::Attribute, name, reading, line);
}
template <auto member>
constexpr XmlField Attribute(XmlName name, const XmlEnumeration& words, int line = __builtin_LINE()) {
    return WordValue<member>(XmlRole::Attribute, name, words, line);
}
/// @}

/// An attribute that the root of a document does not keep, as its marshaller writes its own.
constexpr XmlField Dropped(XmlName name, int line = __builtin_LINE()) {
    return Make(XmlRole::Dropped, XmlFieldKind::None, name, XmlTextMember(nullptr), line);
}

/// @name An element with a text or number, a flag, a word
/// @{
template <auto member>
constexpr XmlField Element(XmlName name, int line = __builtin_LINE()) {
    return Value<member>(XmlRole::Element, name, line);
}
template <auto member>
constexpr XmlField Element(XmlName name, XmlFlag reading, int line = __builtin_LINE()) {
    return FlagValue<member>(XmlRole::Element, name, reading, line);
}
template <auto member>
constexpr XmlField Element(XmlName name, const XmlEnumeration& words, int line = __builtin_LINE()) {
    return WordValue<member>(XmlRole::Element, name, words, line);
}
/// @}

/// @name The element's own text: a text or number, a flag, a word
/// @{
template <auto member>
constexpr XmlField OwnText(int line = __builtin_LINE()) {
    return Value<member>(XmlRole::OwnText, IX_STR_IX_NULL, line).Key("text");
}
template <auto member>
constexpr XmlField OwnText(XmlFlag reading, int line = __builtin_LINE()) {
    return FlagValue<member>(XmlRole::OwnText, IX_STR_IX_NULL, reading, line).Key("text");
}
template <auto member>
constexpr XmlField OwnText(const XmlEnumeration& words, int line = __builtin_LINE()) {
    return WordValue<member>(XmlRole::OwnText, IX_STR_IX_NULL, words, line).Key("text");
}
/// @}

/// An element whose text is a list of words.
template <auto member>
constexpr XmlField Words(XmlName name, int line = __builtin_LINE()) {
    return List<member>(XmlRole::Words, XmlFieldKind::TextList, name, line);
}

/// Repeated elements with a text each.
template <auto member>
constexpr XmlField Texts(XmlName name, int line = __builtin_LINE()) {
    return List<member>(XmlRole::Texts, XmlFieldKind::TextList, name, line);
}

/// One child, of the class that the member points to.
template <auto member>
constexpr XmlField Child(XmlName name, int line = __builtin_LINE()) {
    using Pointee = std::remove_pointer_t<TypeOf<member>>;
    constexpr bool isPresence = std::is_base_of_v<ix_empty_element_type, Pointee>;
    XmlField row = Make(XmlRole::Child, isPresence ? XmlFieldKind::Presence : XmlFieldKind::Child, name,
                        XmlChildReader(MemberOf<member>::Get), line);
    row.store = MemberOf<member>::Set;
    row.description = &Pointee::kClass;
    return row;
}

/// One child, whose class follows from its name.
template <auto member, std::size_t count>
constexpr XmlField OneOf(const char* key, const XmlNamedClass (&classes)[count], int line = __builtin_LINE()) {
    XmlField row =
        Make(XmlRole::OneOf, XmlFieldKind::Child, IX_STR_IX_NULL, XmlChildReader(MemberOf<member>::Get), line);
    row.store = MemberOf<member>::Set;
    row.key = key;
    row.entries = classes;
    row.entryCount = count;
    return row;
}

/// Repeated children of the class `Entry`.
template <auto member, class Entry>
constexpr XmlField Children(XmlName name, int line = __builtin_LINE()) {
    XmlField row = List<member>(XmlRole::Children, XmlFieldKind::ChildList, name, line);
    row.description = &Entry::kClass;
    return row;
}

/// Children of several classes in document order.
template <auto member, std::size_t count>
constexpr XmlField Mixed(const char* key, const XmlNamedClass (&classes)[count], int line = __builtin_LINE()) {
    XmlField row = List<member>(XmlRole::Mixed, XmlFieldKind::ChildList, IX_STR_IX_NULL, line);
    row.key = key;
    row.entries = classes;
    row.entryCount = count;
    return row;
}

/// All other attributes.
template <auto member>
constexpr XmlField Attributes(int line = __builtin_LINE()) {
    return List<member>(XmlRole::Attributes, XmlFieldKind::AttributeList, IX_STR_IX_NULL, line).Key("attributes");
}

/// The namespaces that a document declares.
template <auto member>
constexpr XmlField Declarations(int line = __builtin_LINE()) {
    return List<member>(XmlRole::Declarations, XmlFieldKind::AttributeList, IX_STR_IX_NULL, line).Key("xmlns");
}

/// Objects that no other row takes.
template <auto member>
constexpr XmlField Others(int line = __builtin_LINE()) {
    return List<member>(XmlRole::Others, XmlFieldKind::ChildList, IX_STR_IX_NULL, line).Key("any");
}

/// The same, with the classes that the schema knows among them.
template <auto member, std::size_t count>
constexpr XmlField Others(const XmlNamedClass (&classes)[count], int line = __builtin_LINE()) {
    XmlField row = Others<member>(line);
    row.entries = classes;
    row.entryCount = count;
    return row;
}

}  // namespace XmlRow

#endif
