/// @file
/// RLS services (RFC 4826): the services of a resource list server, each a list that is subscribed to as one.
///
/// - Root element: `rls-services`, with `service` elements. A service has a URI, a reference to a resource list
///   (`resource-list`) or a list of its own (the elements of XMLResourceList.h), and the event packages it stands for.
/// - Namespaces: urn:ietf:params:xml:ns:rls-services, urn:ietf:params:xml:ns:resource-lists for the elements of a list.
///   The first one is written; neither is expected.
/// - Prefixes: names are compared as they stand. `rl:list`, `rl:external`, `rl:entry` and `rl:entry-ref` are recognised
///   with exactly this prefix, all others, `display-name` among them, without one.
/// - Read and written. A service's own list is read and never written; the attributes of all elements but `service` and
///   those of its list are lost, and so are unknown elements.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_RLS_SERVICES_H
#define IX_XML_RLS_SERVICES_H

#include "XMLResourceList.h"
#include "XmlFamily.h"

/// The element `package`: an event package ("presence"), its text.
class IX_XML_EXPORT ix_ns_rls_services_packageType : public ix_string {
  public:
    static const XmlClass kClass;

    ix_ns_rls_services_packageType() : ix_string(kClass) {}
};

/// The element `packages`. Anything but packages is refused.
class IX_XML_EXPORT ix_ns_rls_services_packagesType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_rls_services_packagesType() : XmlDescribedElement(kClass) {}
    ~ix_ns_rls_services_packagesType() override { ixRelease(*this, kClass); }

    /// Takes over a list of `ix_ns_rls_services_packageType`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setPackageListValue(IxSingleElementList* list) { return ixSetList(*this, mPackageList, list); }
    /// Appends `package`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addPackage(ix_ns_rls_services_packageType* package) { return ixAdd(*this, mPackageList, package); }

    IxSingleElementList* mPackageList = nullptr;  ///< Owned, as are its `ix_ns_rls_services_packageType`s, in document
                                                  ///< order. NULL: none.
};

/// The element `service`. Content that has no place is logged and ignored.
class IX_XML_EXPORT ix_ns_rls_services_serviceType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_rls_services_serviceType() : XmlDescribedElement(kClass) {}
    ~ix_ns_rls_services_serviceType() override { ixRelease(*this, kClass); }

    /// Copies `uri`; NULL clears it. @return 1, or 0 without memory, the earlier URI kept.
    int setResourceListValue(const char* uri) { return ixSetText(mResourceList, uri); }
    /// Takes over `list` in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setListValue(ix_listType* list) { return ixSetChild(mList, list); }
    /// The list, which stays with the element; NULL: none.
    IxSingleElementList* getAnyAttributeValue() const { return mAnyAttribute; }
    /// Takes over a list of `ix_AttributeValuePair`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setAnyAttributeValue(IxSingleElementList* list) { return ixSetList(*this, mAnyAttribute, list); }
    /// Appends a pair, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyAttribute(ix_AttributeValuePair* pair) { return ixAdd(*this, mAnyAttribute, pair); }
    /// Takes over `packages` in place of earlier ones, which are deleted; NULL: none. @return 1.
    int setPackagesValue(ix_ns_rls_services_packagesType* packages) { return ixSetChild(mPackages, packages); }
    /// Copies `uri`; NULL clears it. @return 1, or 0 without memory, the earlier URI kept.
    int setUriValue(const char* uri) { return ixSetText(mUri, uri); }

    char* mResourceList = nullptr;                         ///< Owned; the URI of a list held elsewhere. NULL: not set.
    ix_listType* mList = nullptr;                          ///< Owned; the list of the service itself. Never written.
                                                           ///< NULL: none.
    IxSingleElementList* mAnyAttribute = nullptr;          ///< Owned `ix_AttributeValuePair`s: all other attributes.
                                                           ///< NULL: none.
    ix_ns_rls_services_packagesType* mPackages = nullptr;  ///< Owned; NULL: none.
    char* mUri = nullptr;  ///< Owned; the URI to subscribe to. NULL: not set. Mandatory in a written document.
};

/// The element `rls-services`. Anything but services is refused.
class IX_XML_EXPORT ix_rls_services : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_RLS_SERVICES, class RlsServicesDataBinder>;

    ix_rls_services() : XmlDescribedObject(kClass) {}
    ~ix_rls_services() override { ixRelease(*this, kClass); }

    /// Takes over a list of `ix_ns_rls_services_serviceType`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setServiceListValue(IxSingleElementList* list) { return ixSetList(*this, mServiceList, list); }
    /// Appends `service`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addService(ix_ns_rls_services_serviceType* service) { return ixAdd(*this, mServiceList, service); }

    IxSingleElementList* mServiceList = nullptr;  ///< Owned, as are its `ix_ns_rls_services_serviceType`s, in document
                                                  ///< order. NULL: none.
};

/// Creates the elements, which the caller links; NULL without memory. Those of a list come from
/// `ResourceListsDataBinder`.
class IX_XML_EXPORT RlsServicesDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_rls_services`.
    XMLElement* CreateRootElement() override;
    ix_ns_rls_services_serviceType* CreateServiceElement();
    ix_ns_rls_services_packagesType* CreatePackagesElement();
    ix_ns_rls_services_packageType* CreatePackageElement();
};

class IX_XML_EXPORT RlsServicesUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    RlsServicesUnMarshaller();
};

/// Writes the XML declaration and the document; not at all when a service lacks its URI.
class IX_XML_EXPORT RlsServicesMarshaller : public XmlFamilyMarshaller {
  public:
    RlsServicesMarshaller();

    /// @return 1, or 0 for NULL or when a service cannot be written.
    int AddRlsServicesElementToXml(ix_rls_services* services);
    /// @return 1, or 0 for NULL or without a URI, or when the packages cannot be written.
    int AddServiceElementToXml(ix_ns_rls_services_serviceType* service);
    /// @return 1, or 0 for NULL.
    int AddPackagesElementToXml(ix_ns_rls_services_packagesType* packages);
    /// @return 1, or 0 for NULL.
    int AddPackageElementToXml(ix_ns_rls_services_packageType* package);
};

class IX_XML_EXPORT RlsServicesContext : public XmlFamilyContext {
  public:
    RlsServicesContext();
};

#endif
