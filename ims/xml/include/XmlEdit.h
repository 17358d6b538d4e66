/// @file
/// What an application changes in a tree, in one call each: entries of lists, flags, attributes, declarations of
/// namespaces, new elements.
///
/// A list is given as the data member of its element: `XmlEdit::Remove(*ruleset, ruleset->mRuleList, rule)`. What is
/// put in belongs to the element from then on. Operations that answer 0 or NULL have changed nothing, and what was to
/// be put in is still the caller's.
#ifndef IX_XML_EDIT_H
#define IX_XML_EDIT_H

#include "XmlElementSupport.h"

class IX_XML_EXPORT XmlEdit {
  public:
    /// @name Entries of a list
    /// Each answers 1, or 0 without memory, for NULL, for an object that the list has already or whose class has no
    /// place in it, and when `before` or `entry` is not in the list.
    /// @{
    /// @param before the entry that the new one comes in front of; NULL: it comes last.
    static int Insert(XMLElement& element, IxSingleElementList* const& list, XMLElement* entry,
                      const void* before = nullptr);
    static int Insert(XMLElement& element, IxSingleElementList* const& list, ix_AttributeValuePair* entry,
                      const void* before = nullptr);
    /// A copy of a text.
    static int Insert(XMLElement& element, IxSingleElementList* const& list, const char* text,
                      const void* before = nullptr);
    /// Deletes `entry`, with all below it, and puts `with` in its place. What a rest keeps behind it stays there.
    static int Replace(XMLElement& element, IxSingleElementList* const& list, const void* entry, XMLElement* with);
    static int Replace(XMLElement& element, IxSingleElementList* const& list, const void* entry,
                       ix_AttributeValuePair* with);
    static int Replace(XMLElement& element, IxSingleElementList* const& list, const void* entry, const char* text);
    /// Deletes `entry`, with all below it.
    static int Remove(XMLElement& element, IxSingleElementList* const& list, const void* entry);
    /// Takes `entry` out of the list. @return `entry`, which then belongs to the caller; NULL when it is not in it.
    static XMLElement* Take(XMLElement& element, IxSingleElementList* const& list, XMLElement* entry);
    /// @}

    /// @name Flags: elements whose presence is the information
    /// @param present false: the flag goes, if it is there. @return 1, or 0 without memory, and when the element has no
    /// such flag.
    /// @{
    /// One among the entries of a list, such as the condition `busy`.
    static int SetFlag(XMLElement& element, IxSingleElementList* const& list, const char* name, bool present = true);
    /// One with a field of its own, by its name in the document, such as `delivered`.
    static int SetFlag(XMLElement& element, const char* name, bool present = true);
    /// @}

    /// @name Attributes that no field of its own holds, where a class keeps such
    /// @return 1, or 0 without memory, when the class keeps none, and for a name that it knows.
    /// @{
    /// @param value copied; NULL: the attribute goes, if it is there.
    static int SetAttribute(XMLElement& element, const char* name, const char* value);
    /// Declares a namespace on a root that writes what it is given, in the device profile: that of a supplementary
    /// service. The standard profile declares what it uses, and leaves these out.
    /// @param prefix "" or NULL: the default namespace.
    static int Declare(XMLElement& element, const char* prefix, const char* uri);
    /// @}

    /// A new object of a class, which belongs to the caller; NULL without memory, and for an abstract class.
    static XMLElement* New(const XmlClass& description);
    /// The same, appended to a list.
    static XMLElement* Add(XMLElement& element, IxSingleElementList* const& list, const XmlClass& description);
};

/// A new `Entry` at the end of a list: `ixAddNew<ix_registration>(*reginfo, reginfo->mRegistrationList)`. It belongs to
/// the element. @return NULL without memory, and when the list has no place for one.
template <class Entry>
Entry* ixAddNew(XMLElement& element, IxSingleElementList* const& list) {
    return static_cast<Entry*>(XmlEdit::Add(element, list, Entry::kClass));
}

/// The child in a field, a new one if there is none: `ixMake(rule->mConditions)`. @return NULL without memory.
template <class Child>
Child* ixMake(Child*& field) {
    if (field == nullptr) field = static_cast<Child*>(XmlEdit::New(Child::kClass));
    return field;
}

#endif
