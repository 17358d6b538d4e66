/// @file
/// The prefixes that a decoder or marshaller knows: its own, and what the document at hand calls them.
#ifndef IX_XML_NAMESPACE_TABLE_H
#define IX_XML_NAMESPACE_TABLE_H

#include "XmlElementSupport.h"

/// One namespace of a schema, as a constant.
struct XmlNamespaceRow {
    e_XmlStrRef canonicalPrefix;  ///< The prefix that the schema's own comparisons use.
    e_XmlStrRef documentPrefix;   ///< The prefix assumed until a binder says otherwise; `IX_STR_IX_NULL`: none.
    e_XmlStrRef uri;
};

/// Base of the object that serves as namespace binder: the declarations of a document.
class IX_XML_EXPORT XmlNamespaceBinder : public XmlDescribedObject {
  public:
    static const XmlClass kClass;

    /// The declarations, `ix_AttributeValuePair`s of prefix and URI, which stay with the binder; NULL: none.
    virtual IxSingleElementList* getNameSpaceInfo() const = 0;

    /// Those of an object, when it is a binder; NULL else.
    static const IxSingleElementList* DeclarationsOf(const XMLObject* object);

  protected:
    explicit XmlNamespaceBinder(const XmlClass& description) : XmlDescribedObject(description) {}
};

/// A chain of namespaces, copied from constants, whose document prefixes can be replaced.
class IX_XML_EXPORT XmlNamespaceTable {
  public:
    struct Entry {
        const char* canonicalPrefix;
        const char* documentPrefix;  ///< NULL: none.
        const char* uri;
        char* ownPrefix;  ///< The document prefix when a binder replaced it; owned.
        Entry* next;
    };

    XmlNamespaceTable() = default;
    ~XmlNamespaceTable();
    XmlNamespaceTable(const XmlNamespaceTable&) = delete;
    XmlNamespaceTable& operator=(const XmlNamespaceTable&) = delete;

    /// Copies the rows. @return the number of rows copied; fewer than `count` when memory ran out.
    std::size_t Build(const XmlNamespaceRow* rows, std::size_t count);

    /// For every pair of `list` (prefix, URI) in order: the first entry with that URI takes the prefix, NULL included.
    /// Unknown URIs are passed over. @return false when a prefix could not be copied; its entry keeps the earlier one.
    bool Bind(const IxSingleElementList* list);

    /// The entry that the document calls by the `length` characters at `prefix`, or NULL.
    const Entry* FindDocumentPrefix(const char* prefix, std::size_t length) const;

    /// The entry of a canonical prefix, or NULL.
    const Entry* FindCanonicalPrefix(const char* prefix) const;

  private:
    static Entry* CreateEntry(const XmlNamespaceRow& row);
    static bool SetDocumentPrefix(Entry& entry, const char* prefix);

    Entry* m_pFirst = nullptr;
};

#endif
