#include "XMLRlsServices.h"

#include <iterator>

#include "RlsServices.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLRlsServices";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLRlsServicesDecoder, "RlsServicesUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(RlsServicesMarshaller, AddRlsServicesElementToXml, ix_rls_services)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    IX_OLD_MARSHALL_TEXTS(info, "RlsServicesMarshaller", "mRlsServicesXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kCannotAccommodate = {2, kSchemaCode, __LINE__, "Cannot accommodate the element %s with value %s"};
constexpr XmlLogText kAddRlsServices = {2, kSchemaCode, __LINE__, "<XML Module>: AddRlsServicesElementToXml"};
constexpr XmlLogText kServiceFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddServiceElementToXml XML Failed!"};
constexpr XmlLogText kAddService = {2, kSchemaCode, __LINE__, "<XML Module>: AddServiceElementToXml"};
constexpr XmlLogText kNoUri = {4, kSchemaCode, __LINE__,
                               "<XML Module>: AddServiceElementToXml Uri mandatory attribute"};
constexpr XmlLogText kPackagesFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddPackagesElementToXml XML Failed!"};
// Required: the packages are announced as a service.
constexpr XmlLogText kAddPackages = {2, kSchemaCode, __LINE__, "<XML Module>: AddServiceElementToXml"};
constexpr XmlLogText kPackageFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddPackageElementToXml XML Failed!"};
constexpr XmlLogText kAddPackage = {2, kSchemaCode, __LINE__, "<XML Module>: AddPackageElementToXml"};

constexpr XmlField kPackagesFields[] = {
    {XmlFieldKind::ChildList, IX_STR_PACKAGE, XmlListMember(&ix_ns_rls_services_packagesType::mPackageList)},
};
constexpr XmlFieldTable kPackagesTable = {nullptr, kPackagesFields, std::size(kPackagesFields)};

constexpr XmlField kServiceFields[] = {
    {XmlFieldKind::Text, IX_STR_RESOURCE_LIST, XmlTextMember(&ix_ns_rls_services_serviceType::mResourceList)},
    {XmlFieldKind::Child, IX_STR_LIST, IX_CHILD_MEMBER(ix_ns_rls_services_serviceType, mList)},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_ns_rls_services_serviceType::mAnyAttribute), 0,
     nullptr, "attributes"},
    {XmlFieldKind::Child, IX_STR_PACKAGES, IX_CHILD_MEMBER(ix_ns_rls_services_serviceType, mPackages)},
    {XmlFieldKind::Text, IX_STR_URI, XmlTextMember(&ix_ns_rls_services_serviceType::mUri)},
};
constexpr XmlFieldTable kServiceTable = {nullptr, kServiceFields, std::size(kServiceFields)};

constexpr XmlField kRlsServicesFields[] = {
    {XmlFieldKind::ChildList, IX_STR_SERVICE, XmlListMember(&ix_rls_services::mServiceList)},
};
constexpr XmlFieldTable kRlsServicesTable = {nullptr, kRlsServicesFields, std::size(kRlsServicesFields)};

}  // namespace

int ix_ns_rls_services_packageType::ProcessUnMarshall(char* name, char* text, XMLElement* /*child*/) {
    return ixEndNameIs(name, IX_STR_PACKAGE) ? setValueValue(text) : 1;
}

ix_ns_rls_services_packagesType::~ix_ns_rls_services_packagesType() { XmlFields::Release(this, kPackagesTable); }

const XmlFieldTable* ix_ns_rls_services_packagesType::FieldTable() const { return &kPackagesTable; }

int ix_ns_rls_services_packagesType::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (child == nullptr) return 1;
    return ixNameIs(name, IX_STR_PACKAGE)
               ? ixTakeInto<ix_ns_rls_services_packageType>(mPackageList, child, kSourceFile, __LINE__)
               : 0;
}

int ix_ns_rls_services_packagesType::addPackage(ix_ns_rls_services_packageType* package) {
    return package != nullptr ? ixAppend(mPackageList, package, kSourceFile, __LINE__) : 0;
}

ix_ns_rls_services_serviceType::~ix_ns_rls_services_serviceType() { XmlFields::Release(this, kServiceTable); }

const XmlFieldTable* ix_ns_rls_services_serviceType::FieldTable() const { return &kServiceTable; }

int ix_ns_rls_services_serviceType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (child == nullptr && ixEndNameIs(name, IX_STR_RESOURCE_LIST)) return setResourceListValue(text);
    if (child != nullptr && ixNameIs(name, IX_STR_LIST)) return ixTakeChild(mList, child);
    if (child != nullptr && ixNameIs(name, IX_STR_PACKAGES)) return ixTakeChild(mPackages, child);
    ixLog(kSourceFile, kCannotAccommodate, name, text);
    return 1;
}

int ix_ns_rls_services_serviceType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_URI)) return setUriValue(value);
    return addAnyAttribute(ixAsPair(pair));
}

int ix_ns_rls_services_serviceType::addAnyAttribute(ix_AttributeValuePair* pair) {
    return pair != nullptr ? ixAppend(mAnyAttribute, pair, kSourceFile, __LINE__) : 0;
}

ix_rls_services::~ix_rls_services() { XmlFields::Release(this, kRlsServicesTable); }

const XmlFieldTable* ix_rls_services::FieldTable() const { return &kRlsServicesTable; }

int ix_rls_services::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (child == nullptr) return 1;
    return ixNameIs(name, IX_STR_SERVICE)
               ? ixTakeInto<ix_ns_rls_services_serviceType>(mServiceList, child, kSourceFile, __LINE__)
               : 0;
}

int ix_rls_services::addService(ix_ns_rls_services_serviceType* service) {
    return service != nullptr ? ixAppend(mServiceList, service, kSourceFile, __LINE__) : 0;
}

XMLElement* RlsServicesDataBinder::CreateRootElement() { return IX_NEW(ix_rls_services); }

ix_ns_rls_services_serviceType* RlsServicesDataBinder::CreateServiceElement() {
    return IX_NEW(ix_ns_rls_services_serviceType);
}

ix_ns_rls_services_packagesType* RlsServicesDataBinder::CreatePackagesElement() {
    return IX_NEW(ix_ns_rls_services_packagesType);
}

ix_ns_rls_services_packageType* RlsServicesDataBinder::CreatePackageElement() {
    return IX_NEW(ix_ns_rls_services_packageType);
}

RlsServicesMarshaller::RlsServicesMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int RlsServicesMarshaller::AddRlsServicesElementToXml(ix_rls_services* services) {
    ixLog(kSourceFile, kAddRlsServices);
    if (services == nullptr) return 0;
    StartElementOpen(IX_STR_RLS_SERVICES);
    AddAttribute(IX_STR_XMLNS,
                 ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_RLS_SERVICES),
                 Attribute::Closing);
    if (AddChildList(services->mServiceList,
                     IX_OLD_WRITER(RlsServicesMarshaller, AddServiceElementToXml, ix_ns_rls_services_serviceType),
                     kServiceFailed) == 0) {
        return 0;
    }
    EndElement(IX_STR_RLS_SERVICES);
    return 1;
}

int RlsServicesMarshaller::AddServiceElementToXml(ix_ns_rls_services_serviceType* service) {
    ixLog(kSourceFile, kAddService);
    if (service == nullptr) return 0;
    StartElementOpen(IX_STR_SERVICE);
    AddAttributeList(service->mAnyAttribute);
    if (service->mUri == nullptr) {
        ixLog(kSourceFile, kNoUri);
        return 0;
    }
    AddAttribute(IX_STR_URI, service->mUri, Attribute::Closing);
    AddTextElement(IX_STR_RESOURCE_LIST, service->mResourceList);
    // Required: the service's own list is not written, and that is no failure.
    if (service->mPackages != nullptr && AddPackagesElementToXml(service->mPackages) == 0) {
        return ReleaseAndFail(kPackagesFailed);
    }
    EndElement(IX_STR_SERVICE);
    return 1;
}

int RlsServicesMarshaller::AddPackagesElementToXml(ix_ns_rls_services_packagesType* packages) {
    ixLog(kSourceFile, kAddPackages);
    if (packages == nullptr) return 0;
    StartElement(IX_STR_PACKAGES);
    if (AddChildList(packages->mPackageList,
                     IX_OLD_WRITER(RlsServicesMarshaller, AddPackageElementToXml, ix_ns_rls_services_packageType),
                     kPackageFailed) == 0) {
        return 0;
    }
    EndElement(IX_STR_PACKAGES);
    return 1;
}

int RlsServicesMarshaller::AddPackageElementToXml(ix_ns_rls_services_packageType* package) {
    ixLog(kSourceFile, kAddPackage);
    if (package == nullptr) return 0;
    AddTextOrEmptyElement(IX_STR_PACKAGE, package->mValue);
    return 1;
}

IX_OLD_FAMILY(RlsServicesContext, RlsServicesMarshaller, RlsServicesUnMarshaller, RlsServicesDataBinder);
