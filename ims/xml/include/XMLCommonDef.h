/// @file
/// The object model: the abstract bases of every element class, attribute pairs, and the table of fixed strings
/// (element and attribute names, literal values, prefixes, namespace URIs).
#ifndef IX_XML_COMMON_DEF_H
#define IX_XML_COMMON_DEF_H

#include "XMLList.h"
#include "XmlPlatform.h"
#include "XmlRest.h"

class XMLAttribute;
struct XmlClass;

/// One XML element as an object. A document in memory is a tree of these; a parent owns its children, its lists and its
/// texts, and deleting the root (`XMLFactory::DeleteElement`) frees the whole tree.
class IX_XML_EXPORT XMLElement : public XmlHeapObject {
  public:
    /// @param description what the framework works from (XmlClass.h); NULL: it does nothing with the fields.
    explicit XMLElement(const XmlClass* description = nullptr) : m_pClass(description) {}
    virtual ~XMLElement() {
        if (m_pRest != nullptr) delete m_pRest;
    }
    XMLElement(const XMLElement&) = delete;
    XMLElement& operator=(const XMLElement&) = delete;

    /// The class's own name ("ix_string"), or the local name of the element that the class is bound to.
    virtual const char* ClassName() const = 0;
    /// "XMLElement" or "XMLObject".
    virtual const char* BaseClassName() const = 0;
    /// The name of the schema type.
    virtual const char* TypeName() const = 0;
    /// Always 0; keeps its place in the table of virtual operations.
    virtual int Reserved() const = 0;

    /// Offers content while a document is decoded: a start tag (`name`, no text), an end tag (`name` with a leading "/"
    /// and the raw text before it), or a child object that this element is to own.
    /// @return 1 handled or ignored, 0 refused; a refused child stays with the caller.
    virtual int ProcessUnMarshall(char* name, char* text, XMLElement* child);

    /// Offers an attribute while a document is decoded. `pair` is NULL for an attribute the decoder knows, else an
    /// object with both texts that this element may take over.
    /// @return 1 handled or ignored, 0 refused; a refused pair stays with the caller.
    virtual int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair);

    /// The description of the class, or NULL when it has none.
    const XmlClass* Class() const { return m_pClass; }

    /// What a document had in this element and no field holds: read and written by the standard profile only. It
    /// belongs to the element. NULL: nothing.
    XmlRest* Rest() const { return m_pRest; }
    /// The same, made if there is none; NULL without memory.
    XmlRest* MakeRest();

  protected:
    const XmlClass* m_pClass;  ///< Not owned.

  private:
    XmlRest* m_pRest = nullptr;
};

/// Base of the element classes that can stand at the root of a document, and of some others.
class IX_XML_EXPORT XMLObject : public XMLElement {
  public:
    explicit XMLObject(const XmlClass* description = nullptr) : XMLElement(description) {}

    /// 1 for the root of a document.
    virtual int IsRootElement() const = 0;
};

/// Base of attribute groups. Not an element.
class IX_XML_EXPORT XMLAttribute : public XmlHeapObject {
  public:
    XMLAttribute() = default;
    virtual ~XMLAttribute() = default;
    XMLAttribute(const XMLAttribute&) = delete;
    XMLAttribute& operator=(const XMLAttribute&) = delete;

    virtual const char* ClassName() const = 0;
    /// "XMLAttribute".
    virtual const char* BaseClassName() const = 0;
    virtual const char* TypeName() const = 0;
    /// Always 0.
    virtual int Reserved() const = 0;
};

/// One attribute: a name and its value.
class IX_XML_EXPORT ix_AttributeValuePair : public XMLAttribute {
  public:
    static constexpr char kClassName[] = "ix_AttributeValuePair";

    ~ix_AttributeValuePair() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLAttribute"; }
    const char* TypeName() const override { return "AttributeValuePair"; }
    int Reserved() const override { return 0; }

    /// Copies the name; NULL clears it. @return 1, or 0 without memory, the earlier name kept.
    int setNameValue(const char* name);
    /// Copies the value; NULL clears it. @return 1, or 0 without memory, the earlier value kept.
    int setValueValue(const char* value);

    char* mName = nullptr;   ///< Owned; NULL: not set (the default namespace in a list of namespaces).
    char* mValue = nullptr;  ///< Owned; NULL: not set.
};

/// A pair with copies of both texts, NULL for NULL, registered under `source` and `line`; NULL without memory.
IX_XML_EXPORT ix_AttributeValuePair* ixCreatePair(const char* name, const char* value, const char* source,
                                                  int line = __builtin_LINE());

/// `attribute` as a pair, or NULL when it is none.
IX_XML_EXPORT ix_AttributeValuePair* ixAsPair(XMLAttribute* attribute);

/// Index of a fixed string. The names follow the texts; the numbers are part of the interface.
enum e_XmlStrRef {
#define IX_STRING(number, name, text) IX_STR_##name = number,
#include "XmlStringTable.inc"
};

/// Number of fixed strings.
constexpr int kXmlStrRefCount = IX_STR_URN_IETF_PARAMS_XML_NS_GRUUINFO + 1;

/// The table of fixed strings, usable at any time.
class IX_XML_EXPORT ix_xml_common_array_definition : public XmlHeapObject {
  public:
    /// The texts, padded with NULs.
    static const char arrXmlStrRef[kXmlStrRefCount][100];

    /// The text of an entry. No range check: pass enumerators only.
    static const char* getStringName(e_XmlStrRef entry) { return arrXmlStrRef[entry]; }

    /// Creates the marker object on the first call and returns it on every call; NULL without memory. Not guarded
    /// against first calls from two threads at once. The table does not need it.
    static ix_xml_common_array_definition* CreateArrayInstance();
    /// Deletes the marker object.
    static void ReleaseArrayInstance();

    /// The marker object, or NULL.
    static ix_xml_common_array_definition* m_pXmlStrRef;
};

/// The text of a fixed string.
inline const char* ixString(e_XmlStrRef entry) { return ix_xml_common_array_definition::getStringName(entry); }

/// Frees a text of the platform layer's memory; NULL is ignored. The free function of lists of plain texts.
IX_XML_EXPORT void FreeElement(void* text);

/// @name Texts that an object owns
/// @{
/// Replaces a text by a copy of `text`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
IX_XML_EXPORT int ixSetText(char*& field, const char* text);
/// The same, but the earlier text is not freed.
/// Required: callers of some setters still hold it.
IX_XML_EXPORT int ixOverwriteText(char*& field, const char* text);
/// @}

#endif
