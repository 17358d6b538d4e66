#include "XMLRlsServices.h"

#include "RlsServices.h"

namespace {

using namespace XmlRow;

constexpr XmlField kPackagesFields[] = {
    Children<&ix_ns_rls_services_packagesType::mPackageList, ix_ns_rls_services_packageType>(IX_STR_PACKAGE),
};

constexpr XmlField kServiceFields[] = {
    Attribute<&ix_ns_rls_services_serviceType::mUri>(IX_STR_URI).Mandatory(),
    Attributes<&ix_ns_rls_services_serviceType::mAnyAttribute>(),
    Element<&ix_ns_rls_services_serviceType::mResourceList>(IX_STR_RESOURCE_LIST),
    Child<&ix_ns_rls_services_serviceType::mList>(IX_STR_LIST),
    Child<&ix_ns_rls_services_serviceType::mPackages>(IX_STR_PACKAGES),
};

constexpr XmlField kRlsServicesFields[] = {
    Children<&ix_rls_services::mServiceList, ix_ns_rls_services_serviceType>(IX_STR_SERVICE),
};

/// An object in a package belongs to no tree, but it takes what stands in it, so that the package does not get that.
constexpr XmlAnswers PackageAnswers() {
    XmlAnswers answers;
    answers.object = 1;
    return answers;
}

constexpr XmlAnswers ServiceAnswers() {
    XmlAnswers answers;
    answers.object = 1;
    answers.startsAreUnknown = true;
    answers.missingIsUnknown = true;
    answers.unknown = {2, "Cannot accommodate the element %s with value %s"};
    answers.unknownObject = answers.unknown;
    return answers;
}

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLRlsServicesDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in RlsServicesUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&RlsServicesMarshaller::AddRlsServicesElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("RlsServicesMarshaller", "mRlsServicesXml"));

}  // namespace

constexpr XmlClass ix_ns_rls_services_packageType::kClass = ixDerived(
    ixClass<ix_ns_rls_services_packageType>("ix_ns_rls_services_packageType", "packageType", kSource, PackageAnswers())
        .Of(IX_STR_PACKAGE),
    ix_string::kClass);
constexpr XmlClass ix_ns_rls_services_packagesType::kClass = ixClass<ix_ns_rls_services_packagesType>(
    "ix_ns_rls_services_packagesType", "packagesType", kSource, kPackagesFields);
constexpr XmlClass ix_ns_rls_services_serviceType::kClass = ixClass<ix_ns_rls_services_serviceType>(
    "ix_ns_rls_services_serviceType", "serviceType", kSource, kServiceFields, ServiceAnswers());
constexpr XmlClass ix_rls_services::kClass =
    ixClass<ix_rls_services>("ix_rls_services", "rls-services", kSource, kRlsServicesFields);

XMLElement* RlsServicesDataBinder::CreateRootElement() { return ixNew<ix_rls_services>(kSource); }
ix_ns_rls_services_serviceType* RlsServicesDataBinder::CreateServiceElement() {
    return ixNew<ix_ns_rls_services_serviceType>(kSource);
}
ix_ns_rls_services_packagesType* RlsServicesDataBinder::CreatePackagesElement() {
    return ixNew<ix_ns_rls_services_packagesType>(kSource);
}
ix_ns_rls_services_packageType* RlsServicesDataBinder::CreatePackageElement() {
    return ixNew<ix_ns_rls_services_packageType>(kSource);
}

RlsServicesUnMarshaller::RlsServicesUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

RlsServicesMarshaller::RlsServicesMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

RlsServicesContext::RlsServicesContext()
    : XmlFamilyContext(ixFamily<RlsServicesMarshaller, RlsServicesUnMarshaller, RlsServicesDataBinder>(kSource)) {}

int RlsServicesMarshaller::AddRlsServicesElementToXml(ix_rls_services* services) {
    if (!Enter(services, {2, "<XML Module>: AddRlsServicesElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_RLS_SERVICES);
    tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_RLS_SERVICES);
    tag.Close();
    if (!AddChildren<&RlsServicesMarshaller::AddServiceElementToXml>(
            services->mServiceList, {2, "<XML Module>: AddServiceElementToXml XML Failed!"})) {
        return 0;
    }
    EndElement(IX_STR_RLS_SERVICES);
    return 1;
}

int RlsServicesMarshaller::AddServiceElementToXml(ix_ns_rls_services_serviceType* service) {
    if (!Enter(service, {2, "<XML Module>: AddServiceElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_SERVICE);
    tag.AddAll(service->mAnyAttribute);
    if (service->mUri == nullptr) {
        tag.LeaveOpen();
        return Fail({4, "<XML Module>: AddServiceElementToXml Uri mandatory attribute"});
    }
    tag.Add(IX_STR_URI, service->mUri);
    tag.Close();
    AddTextElement(IX_STR_RESOURCE_LIST, service->mResourceList);
    // Required: the service's own list is not written, and that is no failure.
    if (service->mPackages != nullptr && AddPackagesElementToXml(service->mPackages) == 0) {
        return ReleaseAndFail({2, "<XML Module>: AddPackagesElementToXml XML Failed!"});
    }
    EndElement(IX_STR_SERVICE);
    return 1;
}

int RlsServicesMarshaller::AddPackagesElementToXml(ix_ns_rls_services_packagesType* packages) {
    // Required: the packages are announced as a service.
    if (!Enter(packages, {2, "<XML Module>: AddServiceElementToXml"})) return 0;
    StartElement(IX_STR_PACKAGES);
    if (!AddChildren<&RlsServicesMarshaller::AddPackageElementToXml>(
            packages->mPackageList, {2, "<XML Module>: AddPackageElementToXml XML Failed!"})) {
        return 0;
    }
    EndElement(IX_STR_PACKAGES);
    return 1;
}

int RlsServicesMarshaller::AddPackageElementToXml(ix_ns_rls_services_packageType* package) {
    if (!Enter(package, {2, "<XML Module>: AddPackageElementToXml"})) return 0;
    AddTextOrEmptyElement(IX_STR_PACKAGE, package->mValue);
    return 1;
}
