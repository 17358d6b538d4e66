/// @file
/// Resource list meta-information (RFC 4662): the part of a notification that tells the state of each resource of a
/// list subscription.
///
/// - Root element: `list`, with `name` and `resource` elements; a resource has `name` and `instance` elements.
/// - Namespace: urn:ietf:params:xml:ns:rlmi. It is written, and not expected.
/// - Prefixes: names are compared as they stand, so an element with a prefix is not recognised.
/// - Read and written. The `cid` and the other attributes of the list are read and never written: a list with a `cid`
///   is written with a second declaration of the namespace in its place, which makes the text no well-formed XML. The
///   attributes of names and unknown elements are lost.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_RLMI_H
#define IX_XML_RLMI_H

#include "XmlFamily.h"

/// The element `name`: a name for people, its text. Its language is not kept.
class IX_XML_EXPORT ix_name : public ix_string {
  public:
    static const XmlClass kClass;

    ix_name() : ix_string(kClass) {}
};

/// State of an instance.
enum eRlmiInstanceState {
    IX_RLMI_INSTANCE_ACTIVE,
    IX_RLMI_INSTANCE_PENDING,
    IX_RLMI_INSTANCE_TERMINATED,
    IX_RLMI_INSTANCE_NOT_SET
};

/// The element `instance`: one subscription to a resource. It has no content; what stands in one is ignored.
class IX_XML_EXPORT ix_instance : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_instance() : XmlDescribedElement(kClass) {}
    ~ix_instance() override { ixRelease(*this, kClass); }

    /// Takes over a list of `ix_AttributeValuePair`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setAnyAttributeValue(IxSingleElementList* list) { return ixSetList(*this, mAnyAttribute, list); }
    /// Appends a pair, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyAttribute(ix_AttributeValuePair* pair) { return ixAdd(*this, mAnyAttribute, pair); }
    /// Copies `reason`; NULL clears it. @return 1, or 0 without memory, the earlier reason kept.
    int setReasonValue(const char* reason) { return ixSetText(mReason, reason); }
    /// Copies `cid`; NULL clears it. @return 1, or 0 without memory, the earlier one kept.
    int setCidValue(const char* cid) { return ixSetText(mCid, cid); }
    /// Copies `id`; NULL clears it. @return 1, or 0 without memory, the earlier one kept.
    int setIdValue(const char* id) { return ixSetText(mId, id); }
    /// @param state one of `eRlmiInstanceState`. @return 1.
    int setStateValue(int state) { return ixSetNumber(mState, state); }

    IxSingleElementList* mAnyAttribute = nullptr;  ///< Owned `ix_AttributeValuePair`s: all other attributes. NULL:
                                                   ///< none.
    char* mReason = nullptr;                       ///< Owned; why it was terminated. NULL: not set.
    char* mCid = nullptr;                   ///< Owned; the Content-ID of the body part with the state. NULL: not set.
    char* mId = nullptr;                    ///< Owned; NULL: not set. Mandatory in a written document.
    int mState = IX_RLMI_INSTANCE_NOT_SET;  ///< One of `eRlmiInstanceState`. Mandatory in a written document.
};

/// The element `resource`: a member of the list. Anything but names and instances is refused.
class IX_XML_EXPORT ix_resource : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_resource() : XmlDescribedElement(kClass) {}
    ~ix_resource() override { ixRelease(*this, kClass); }

    /// Takes over a list of `ix_AttributeValuePair`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setAnyAttributeValue(IxSingleElementList* list) { return ixSetList(*this, mAnyAttribute, list); }
    /// Appends a pair, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyAttribute(ix_AttributeValuePair* pair) { return ixAdd(*this, mAnyAttribute, pair); }
    /// Copies `uri`; NULL clears it. @return 1, or 0 without memory, the earlier URI kept.
    int setUriValue(const char* uri) { return ixSetText(mUri, uri); }
    /// Takes over a list of `ix_name`s in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setNameListValue(IxSingleElementList* list) { return ixSetList(*this, mNameList, list); }
    /// Appends `name`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addName(ix_name* name) { return ixAdd(*this, mNameList, name); }
    /// Takes over a list of `ix_instance`s in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setInstanceListValue(IxSingleElementList* list) { return ixSetList(*this, mInstanceList, list); }
    /// Appends `instance`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addInstance(ix_instance* instance) { return ixAdd(*this, mInstanceList, instance); }

    IxSingleElementList* mAnyAttribute = nullptr;  ///< Owned `ix_AttributeValuePair`s: all other attributes. NULL:
                                                   ///< none.
    char* mUri = nullptr;                          ///< Owned; NULL: not set. Mandatory in a written document.
    IxSingleElementList* mNameList = nullptr;      ///< Owned, as are its `ix_name`s, in document order. NULL: none.
    IxSingleElementList* mInstanceList = nullptr;  ///< Owned, as are its `ix_instance`s, in document order. NULL: none.
};

/// The root element `list`. Anything but names and resources is refused.
class IX_XML_EXPORT ix_list : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_LIST, class ListDataBinder>;

    ix_list() : XmlDescribedObject(kClass) {}
    ~ix_list() override { ixRelease(*this, kClass); }

    /// Takes over a list of `ix_name`s in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setNameListValue(IxSingleElementList* list) { return ixSetList(*this, mNameList, list); }
    /// Appends `name`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addName(ix_name* name) { return ixAdd(*this, mNameList, name); }
    /// Takes over a list of `ix_resource`s in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setResourceListValue(IxSingleElementList* list) { return ixSetList(*this, mResourceList, list); }
    /// Appends `resource`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addResource(ix_resource* resource) { return ixAdd(*this, mResourceList, resource); }
    /// Copies `uri`; NULL clears it. @return 1, or 0 without memory, the earlier URI kept.
    int setUriValue(const char* uri) { return ixSetText(mUri, uri); }
    /// @return 1.
    int setVersionValue(unsigned int version) { return ixSetNumber(mVersion, version); }
    /// @return 1.
    int setFullStateValue(int fullState) { return ixSetNumber(mFullState, fullState); }
    /// Copies `cid`; NULL clears it. @return 1, or 0 without memory, the earlier one kept.
    int setCidValue(const char* cid) { return ixSetText(mCid, cid); }
    /// Takes over a list of `ix_AttributeValuePair`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setAnyAttributeValue(IxSingleElementList* list) { return ixSetList(*this, mAnyAttribute, list); }
    /// Appends a pair, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyAttribute(ix_AttributeValuePair* pair) { return ixAdd(*this, mAnyAttribute, pair); }

    IxSingleElementList* mNameList = nullptr;      ///< Owned, as are its `ix_name`s, in document order. NULL: none.
    IxSingleElementList* mResourceList = nullptr;  ///< Owned, as are its `ix_resource`s, in document order. NULL: none.
    char* mUri = nullptr;                          ///< Owned; the URI of the list. NULL: not set. Mandatory in a
                                                   ///< written document.
    unsigned int mVersion = 0;                     ///< Counts the notifications of a subscription. Always written.
    int mFullState = 0;                            ///< 1: all resources are listed, else those that changed. Always
                                                   ///< written.
    char* mCid = nullptr;                          ///< Owned; the Content-ID of the body part with the state of the
                                                   ///< list itself. Never written. NULL: not set.
    IxSingleElementList* mAnyAttribute = nullptr;  ///< Owned `ix_AttributeValuePair`s: all other attributes, namespace
                                                   ///< declarations among them. Never written. NULL: none.
};

/// Creates the elements, which the caller links; NULL without memory.
class IX_XML_EXPORT ListDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_list`.
    XMLElement* CreateRootElement() override;
    ix_resource* CreateResourceElement();
    ix_instance* CreateInstanceElement();
    ix_name* CreateNameElement();
};

class IX_XML_EXPORT ListUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    ListUnMarshaller();
};

/// Writes the XML declaration and the document; not at all when a mandatory attribute is missing.
class IX_XML_EXPORT ListMarshaller : public XmlFamilyMarshaller {
  public:
    ListMarshaller();

    /// @return 1, or 0 for NULL, without a URI, or when a name or resource cannot be written.
    int AddListElementToXml(ix_list* list);
    /// @return 1, or 0 for NULL, without a URI, or when a name or instance cannot be written.
    int AddResourceElementToXml(ix_resource* resource);
    /// @return 1, or 0 for NULL, without an id or a state.
    int AddInstanceElementToXml(ix_instance* instance);
    /// @return 1, or 0 for NULL.
    int AddNameElementToXml(ix_name* name);

  private:
    int AddNames(const IxSingleElementList* names);
};

class IX_XML_EXPORT ListContext : public XmlFamilyContext {
  public:
    ListContext();
};

#endif
