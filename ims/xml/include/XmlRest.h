/// @file
/// What the standard profile keeps of a document beside the fields of its classes.
#ifndef IX_XML_REST_H
#define IX_XML_REST_H

#include "XmlPlatform.h"

struct XmlField;

/// What an entry of a rest is.
enum class XmlRestKind : unsigned char {
    Attribute,  ///< An attribute that no field takes: `namespaceUri`, `name`, and `text`, its value.
    Element,    ///< An element that no field takes: `text` is all of it as XML, with every declaration it needs.
    Text,       ///< A text between the children, or behind the value of a field: `text`, without references.
    Value,      ///< What a field was given and does not hold: an unknown word, a number with letters, its 'not set'
                ///< value. `text` NULL: nothing, although the field has no 'not set' value or its standard demands it.
                ///< It is written as long as the field has the value `held`.
    Namespace   ///< The element, or that of `field`, came in the namespace `namespaceUri`, which is not its own.
};

/// One entry of a rest. The rest owns the texts.
struct XmlRestItem {
    XmlRestKind kind;
    bool isInside;                ///< It belongs to the element of `field`, not to that of the object.
    const XmlField* field;        ///< The field that it stands behind, inside of, or that it is about. NULL: none.
    const void* entry;            ///< If `field` is a list: the entry. It is compared only. NULL: none.
    long long held;               ///< Values: what the field held then.
    const char* namespaceUri;     ///< "": no namespace.
    const char* name;             ///< Attributes; with the prefix that it came with. Else "".
    const char* text;             ///< NULL only where `Value` says so.
    XmlRestItem* next = nullptr;  ///< In document order; NULL at the end.
};

/// The rest of an element, in document order. `XMLElement::Rest` leads to it.
///
/// The standard profile's writer puts elements and texts where they came, behind the child that they followed; behind
/// the last of its name if that has gone.
class IX_XML_EXPORT XmlRest : public XmlHeapObject {
  public:
    XmlRest() = default;
    ~XmlRest() { Clear(); }
    XmlRest(const XmlRest&) = delete;
    XmlRest& operator=(const XmlRest&) = delete;

    /// The first entry; NULL: none.
    const XmlRestItem* First() const { return m_pFirst; }
    bool IsEmpty() const { return m_pFirst == nullptr; }
    /// Removes all entries. What no field holds is lost with them.
    void Clear();
    /// Removes one entry of this rest, which ends with it.
    void Remove(const XmlRestItem* item);

    /// @name Additions
    /// Texts are copied. @return 1, or 0 for NULL and without memory. What is no XML makes the writer fail.
    /// @{
    /// @param namespaceUri "": none. @param name its prefix is used if it is free.
    int AddAttribute(const char* namespaceUri, const char* name, const char* value);
    /// An element behind all children. @param xml one element with the declarations it needs.
    int AddElement(const char* xml);
    /// @}

    /// For the reader. @return the new last entry; NULL without memory.
    XmlRestItem* Append(const XmlRestItem& item, std::size_t nameLength, std::size_t textLength);
    /// Says that what `Append` has added comes from an application, and is to be checked when it is written.
    void MarkChanged() { m_isChanged = true; }
    /// True when an application has added something.
    bool IsChanged() const { return m_isChanged; }
    /// The last entry; NULL: none.
    XmlRestItem* Last() const { return m_pLast; }
    /// For the reader: names the entry of a list that what stands inside of `field` behind `before` belongs to.
    void SetEntry(XmlRestItem* before, const XmlField& field, const void* entry);
    /// What stands behind or inside of the entry `from` of a list goes over to `to`; NULL: to none, and stays where it
    /// is between the others.
    void MoveEntry(const XmlField& field, const void* from, const void* to);
    /// For copies: an application has added something if it has in `other`.
    void SetChangedAs(const XmlRest& other) { m_isChanged = other.m_isChanged; }
    /// For comparisons: the same entries in the same order at each field. Prefixes do not count.
    static bool Equal(const XmlRest* left, const XmlRest* right);

  private:
    XmlRestItem* m_pFirst = nullptr;
    XmlRestItem* m_pLast = nullptr;
    bool m_isChanged = false;
};

#endif
