/// @file
/// The regular hooks: what a described element does with what a document offers it.
///
/// - A text element's end tag stores its text, number, flag or word; its start tag says nothing yet.
/// - A child is taken when it is of the row's class, in place of an earlier one, which is deleted; else refused.
/// - An attribute is stored when it comes without a pair; a pair is refused under a name that has a row, and goes to
///   the other attributes else.
/// - A missing text leaves the field as it is. What no row takes is answered as `XmlAnswers` says.
#ifndef IX_XML_HOOKS_H
#define IX_XML_HOOKS_H

#include "XmlClass.h"

/// The name of a start tag, or of an end tag, which begins with "/".
struct IX_XML_EXPORT XmlTag {
    char* text;  ///< As it is offered to hooks; NULL: no name.
    bool isEnd;
    XmlName name;  ///< Without the "/".

    explicit XmlTag(char* tag) : XmlTag(tag, tag != nullptr ? __strlen(tag) : 0) {}
    XmlTag(char* tag, std::size_t length);
    XmlTag(char* tag, bool ends, XmlName resolved) : text(tag), isEnd(ends), name(resolved) {}
    /// True for the start tag of the element.
    bool Starts(XmlName element) const { return !isEnd && name == element; }
    /// True for its end tag.
    bool Ends(XmlName element) const { return isEnd && name == element; }
};

/// What became of an object or a pair that an element was offered, or of a tag or an attribute alone.
enum class XmlAnswer {
    Refused,  ///< It stays with the caller.
    Ignored,  ///< Nobody keeps it; the hook answers 1 all the same.
    Taken     ///< It belongs to the element, or its text was stored.
};

class IX_XML_EXPORT XmlHooks {
  public:
    /// @name What an element of any class answers
    /// Where a class has the regular hook, no name is compared once more.
    /// @{
    static XmlAnswer OfferTo(XMLElement& receiver, const XmlTag& tag, char* text, XMLElement* child);
    static XmlAnswer OfferAttributeTo(XMLElement& receiver, const XmlTag& attribute, char* value, XMLAttribute* pair);
    /// @}

    /// @name The regular hooks
    /// @{
    /// @param child the object that is offered; NULL: none.
    static XmlAnswer Offer(XMLElement& element, const XmlClass& description, const XmlTag& tag, const char* text,
                           XMLElement* child);
    static XmlAnswer OfferAttribute(XMLElement& element, const XmlClass& description, XmlName name,
                                    const char* attribute, const char* value, XMLAttribute* pair);
    /// @}

    /// Stores the value of an attribute that comes without a pair, or drops it. NULL leaves the field as it is.
    static XmlAnswer TakeAttribute(XMLElement& element, const XmlField& row, const char* value);

    /// The row of an attribute; NULL: the class does not know it.
    static const XmlField* AttributeRow(const XmlClass& description, XmlName name);

    /// The first row of a role; NULL: the class has none.
    static const XmlField* RowOf(const XmlClass& description, XmlRole role);

    /// Appends `entry` to the list of `row`, which is created on first use. @return false without memory, when the
    /// entry stays with the caller and no list is created.
    static bool Append(XMLElement& element, const XmlField& row, void* entry);
    /// The same for a copy of the `length` characters at `text`.
    static bool AppendText(XMLElement& element, const XmlField& row, const char* text, std::size_t length);
};

#endif
