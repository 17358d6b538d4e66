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
#ifndef IX_XML_RLS_SERVICES_H
#define IX_XML_RLS_SERVICES_H

#include "XMLResourceList.h"
#include "XmlElementSupport.h"
#include "XmlOldFamily.h"
#include "XmlFields.h"

/// The element `package`: an event package ("presence"), its text.
class IX_XML_EXPORT ix_ns_rls_services_packageType : public ix_string {
  public:
    static constexpr char kClassName[] = "ix_ns_rls_services_packageType";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "packageType"; }
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
};

/// The element `packages`. Anything but packages is refused.
class IX_XML_EXPORT ix_ns_rls_services_packagesType : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_ns_rls_services_packagesType";

    ~ix_ns_rls_services_packagesType() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "packagesType"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over a list of `ix_ns_rls_services_packageType`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setPackageListValue(IxSingleElementList* list) { return ixSetElementList(mPackageList, list); }
    /// Appends `package`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addPackage(ix_ns_rls_services_packageType* package);

    IxSingleElementList* mPackageList = nullptr;  ///< Owned, as are its `ix_ns_rls_services_packageType`s, in document
                                                  ///< order. NULL: none.
};

/// The element `service`. Content that has no place is logged and ignored.
class IX_XML_EXPORT ix_ns_rls_services_serviceType : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_ns_rls_services_serviceType";

    ~ix_ns_rls_services_serviceType() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "serviceType"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Copies `uri`; NULL clears it. @return 1, or 0 without memory, the earlier URI kept.
    int setResourceListValue(const char* uri) { return ixSetText(mResourceList, uri); }
    /// Takes over `list` in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setListValue(ix_listType* list) { return ixSetChild(mList, list); }
    /// Takes over a list of `ix_AttributeValuePair`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setAnyAttributeValue(IxSingleElementList* list) { return ixSetAttributeList(mAnyAttribute, list); }
    /// Appends a pair, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyAttribute(ix_AttributeValuePair* pair);
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
class IX_XML_EXPORT ix_rls_services : public XMLObject {
  public:
    static constexpr char kClassName[] = "ix_rls_services";

    ~ix_rls_services() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLObject"; }
    const char* TypeName() const override { return "rls-services"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over a list of `ix_ns_rls_services_serviceType`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setServiceListValue(IxSingleElementList* list) { return ixSetElementList(mServiceList, list); }
    /// Appends `service`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addService(ix_ns_rls_services_serviceType* service);

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

class IX_XML_EXPORT RlsServicesUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override;
};

/// Writes the XML declaration and the document; not at all when a service lacks its URI.
class IX_XML_EXPORT RlsServicesMarshaller : public XmlOldFamilyMarshaller {
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

class IX_XML_EXPORT RlsServicesContext : public XmlOldFamilyContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override;
    XmlOldFamilyUnMarshaller* NewUnMarshaller() override;
    XMLObjectFactory* NewBinderFactory() override;
};

#endif
