/// @file
/// Resource lists (RFC 4826): lists of contacts that a user keeps on an XCAP server.
///
/// - Root element: `resource-lists`, with `list` elements. A list holds, in any order and to any depth, `entry`,
///   `entry-ref`, `external` and further `list` elements; each of the four may have a `display-name`.
/// - Namespace: urn:ietf:params:xml:ns:resource-lists. It is written, and not expected.
/// - Prefixes: names are compared as they stand, so an element with a prefix is not recognised.
/// - Read and written. The attributes of `resource-lists` and of `display-name` and unknown elements are lost. Of
///   lists more than 99 levels deep in a document the attributes are lost, and their content is filed in outer lists
///   (XmlCodeGenStack).
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_RESOURCE_LIST_H
#define IX_XML_RESOURCE_LIST_H

#include "XmlFamily.h"

/// The element `display-name`: a name for people, its text. It takes no attributes.
class IX_XML_EXPORT ix_display_nameType : public ix_string {
  public:
    static const XmlClass kClass;

    ix_display_nameType() : ix_string(kClass) {}
};

/// What a list and its members share. Content that has no place is logged and ignored.
class IX_XML_EXPORT ix_listMemberType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ~ix_listMemberType() override { ixRelease(*this, kClass); }

    /// The list, which stays with the element; NULL: none.
    IxSingleElementList* getAnyAttributeValue() const { return mAnyAttribute; }
    /// Takes over a list of `ix_AttributeValuePair`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setAnyAttributeValue(IxSingleElementList* list) { return ixSetList(*this, mAnyAttribute, list); }
    /// Appends a pair, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyAttribute(ix_AttributeValuePair* pair) { return ixAdd(*this, mAnyAttribute, pair); }
    /// Takes over `name` in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setDisplayNameValue(ix_display_nameType* name) { return ixSetChild(mDisplayName, name); }

    IxSingleElementList* mAnyAttribute = nullptr;  ///< Owned `ix_AttributeValuePair`s: all other attributes. NULL:
                                                   ///< none. A list that is empty leaves the written start tag open.
    ix_display_nameType* mDisplayName = nullptr;   ///< Owned; NULL: none.

  protected:
    explicit ix_listMemberType(const XmlClass& description) : XmlDescribedElement(description) {}
};

/// The element `entry`: one contact.
class IX_XML_EXPORT ix_entryType : public ix_listMemberType {
  public:
    static const XmlClass kClass;

    ix_entryType() : ix_listMemberType(kClass) {}
    ~ix_entryType() override { ixRelease(*this, kClass); }

    /// Copies `uri`; NULL clears it. @return 1, or 0 without memory, the earlier URI kept.
    int setUriValue(const char* uri) { return ixSetText(mUri, uri); }

    char* mUri = nullptr;  ///< Owned; NULL: not set. An entry without it is not written.
};

/// The element `entry-ref`: a contact by reference to an entry of another list.
class IX_XML_EXPORT ix_entry_refType : public ix_listMemberType {
  public:
    static const XmlClass kClass;

    ix_entry_refType() : ix_listMemberType(kClass) {}
    ~ix_entry_refType() override { ixRelease(*this, kClass); }

    /// Copies `ref`; NULL clears it. @return 1, or 0 without memory, the earlier reference kept.
    int setRefValue(const char* ref) { return ixSetText(mRef, ref); }

    char* mRef = nullptr;  ///< Owned; a relative XCAP URI. NULL: not set. A reference without it is not written.
};

/// The element `external`: a list of another server.
class IX_XML_EXPORT ix_externalType : public ix_listMemberType {
  public:
    static const XmlClass kClass;

    ix_externalType() : ix_listMemberType(kClass) {}
    ~ix_externalType() override { ixRelease(*this, kClass); }

    /// Copies `anchor`; NULL clears it. @return 1, or 0 without memory, the earlier anchor kept.
    int setAnchorValue(const char* anchor) { return ixSetText(mAnchor, anchor); }

    char* mAnchor = nullptr;  ///< Owned; the absolute URI of the list. NULL: not set.
};

/// The element `list`.
class IX_XML_EXPORT ix_listType : public ix_listMemberType {
  public:
    static const XmlClass kClass;

    ix_listType() : ix_listMemberType(kClass) {}
    ~ix_listType() override { ixRelease(*this, kClass); }

    /// Copies `name`; NULL clears it. @return 1, or 0 without memory, the earlier name kept.
    int setNameValue(const char* name) { return ixSetText(mName, name); }
    /// Takes over a list of children in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setChildrenValue(IxSingleElementList* list) { return ixSetList(*this, mChildren, list); }
    /// Appends `child`, an `ix_entryType`, `ix_entry_refType`, `ix_externalType` or `ix_listType`, which then belongs
    /// to the list. @return 1, or 0 for NULL, any other class, or without memory, when it stays with the caller.
    int addChild(XMLElement* child);
    /// Takes over a list of elements in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    /// Appends `element`, which then belongs to the list. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }

    char* mName = nullptr;                           ///< Owned; unique among its sisters. NULL: not set.
    IxSingleElementList* mChildren = nullptr;        ///< Owned, as are the entries, which are of the four classes above
                                                     ///< in document order. NULL: none. Its count has 16 bits:
                                                     ///< walk a list of more than 65535 with `XmlEntries`.
    IxSingleElementList* mAnyElementList = nullptr;  ///< Owned, as are the entries: children of other classes, which
                                                     ///< only the RLS services yield. Never written. NULL: none.
};

/// The element `resource-lists`. Anything but lists is refused.
class IX_XML_EXPORT ix_resource_lists : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_RESOURCE_LISTS, class ResourceListsDataBinder>;

    ix_resource_lists() : XmlDescribedObject(kClass) {}
    ~ix_resource_lists() override { ixRelease(*this, kClass); }

    /// Takes over a list of `ix_listType`s in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setListListValue(IxSingleElementList* list) { return ixSetList(*this, mListList, list); }
    /// Appends `list`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addList(ix_listType* list) { return ixAdd(*this, mListList, list); }

    IxSingleElementList* mListList = nullptr;  ///< Owned, as are its `ix_listType`s, in document order. NULL: none.
};

/// Creates the elements, which the caller links; NULL without memory.
class IX_XML_EXPORT ResourceListsDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_resource_lists`.
    XMLElement* CreateRootElement() override;
    ix_listType* CreateListType();
    ix_entryType* CreateEntryType();
    ix_entry_refType* CreateEntryRefType();
    ix_externalType* CreateExternalType();
    ix_display_nameType* CreateDisplayNameType();
};

class IX_XML_EXPORT ResourceListsUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    ResourceListsUnMarshaller();
};

/// Writes the XML declaration and the document, always with the namespaces `xsi` and `cp` declared. An entry or
/// reference that lacks its mandatory attribute is logged and left out.
///
/// Lists are written by a call for each level, but only as long as the text has room: each level takes at least the
/// seven characters of its start tag, so there are never more than 4,681 calls, however deep a tree is.
class IX_XML_EXPORT Resource_listsMarshall : public XmlFamilyMarshaller {
  public:
    Resource_listsMarshall();

    /// @return 1, or 0 for NULL.
    int AddResource_listsElementToXml(ix_resource_lists* lists);
    /// @return 1, or 0 for NULL.
    int AddListElementToXml(ix_listType* list);
    /// @return 1, or 0 for NULL or without a URI, when nothing is written.
    int AddEntryElementToXml(ix_entryType* entry);
    /// @return 1, or 0 for NULL or without a reference, when nothing is written.
    int AddEntryRefElementToXml(ix_entry_refType* reference);
    /// @return 1, or 0 for NULL.
    int AddExternalElementToXml(ix_externalType* external);

  private:
    void StartMember(e_XmlStrRef name, e_XmlStrRef attribute, const char* value, const ix_listMemberType& member);
    void AddChild(XMLElement* child);
};

class IX_XML_EXPORT ResourceListsContext : public XmlFamilyContext {
  public:
    ResourceListsContext();
};

/// Builds and writes a fixed document that has every element once. @return a text that the caller frees
/// (`FreeElement`); NULL without memory.
IX_XML_EXPORT char* TestResource_listsMarshall();

#endif
