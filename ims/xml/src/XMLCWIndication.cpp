#include "XMLCWIndication.h"

#include "CWIndication.h"

// Required: texts of this file name the classes of the call waiting indication family.
namespace {

using namespace XmlRow;

constexpr XmlField kServiceFields[] = {
    Element<&ix_alternative_service::mType>(IX_STR_TYPE).Mandatory(),
    Element<&ix_alternative_service::mReason>(IX_STR_REASON).Mandatory(),
    Element<&ix_alternative_service::mAction>(IX_STR_ACTION),
};
constexpr XmlAnswers kServiceAnswers = ixTracing({2, "In ix_alternative_service::ProcessUnMarshall"},
                                                 {2, "In ix_alternative_service::ProcessUnMarshallAttribute"});

constexpr XmlField kRootFields[] = {
    Child<&ix_ims_3gpp::mAlternativeService>(IX_STR_ALTERNATIVE_SERVICE),
    Element<&ix_ims_3gpp::mServiceInfo>(IX_STR_SERVICE_INFO),
};
constexpr XmlAnswers kRootAnswers =
    ixTracing({2, "In ix_ims_3gpp::ProcessUnMarshall"}, {2, "In ix_3gpp_ims::ProcessUnMarshallAttribute"});

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLCWIndicationDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in CallWaitingIndicationUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&CWIndicationMarshaller::AddIms3gppElementToXml>(),
};
constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info = ixMarshallerInfo(
        kSource, kWriters, IX_MARSHALL_TEXTS("CallWaitingIndicationMarshaller", "mCallWaitingIndicationXml"));
    info.writesDeclaration = false;
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

}  // namespace

constexpr XmlClass ix_alternative_service::kClass = ixClass<ix_alternative_service>(
    "ix_alternative_service", "AlternativeService", kSource, kServiceFields, kServiceAnswers);
constexpr XmlClass ix_ims_3gpp::kClass = ixDerived(
    ixClass<ix_ims_3gpp>("ix_ims_3gpp", "Ims3gpp", kSource, kRootFields, kRootAnswers), ix_imsBodyType::kClass);

XMLElement* CWIndicationDataBinder::CreateRootElement() { return ixNew<ix_ims_3gpp>(kSource); }
ix_alternative_service* CWIndicationDataBinder::CreateAlternativeServiceElement() {
    return ixNew<ix_alternative_service>(kSource);
}

CWIndicationUnMarshaller::CWIndicationUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

CWIndicationMarshaller::CWIndicationMarshaller() : XmlImsBodyMarshaller(kMarshallerInfo) {}

CWIndicationContext::CWIndicationContext()
    : XmlFamilyContext(ixFamily<CWIndicationMarshaller, CWIndicationUnMarshaller, CWIndicationDataBinder>(kSource)) {}

int CWIndicationMarshaller::AddIms3gppElementToXml(ix_ims_3gpp* element) {
    if (!Enter(element, {2, "<XML Module>: AddIms3gppElementToXml"})) return 0;
    StartRoot(IX_STR_IMS_3GPP, *element);
    if (element->mAlternativeService != nullptr && !AddAlternativeServiceElementToXml(element->mAlternativeService)) {
        return ReleaseAndFail(
            {2, "<XML Module>: CallWaitingIndicationMarshaller XML Failed at AddAlternativeServiceElementToXml!"});
    }
    AddTextElement(IX_STR_SERVICE_INFO, element->mServiceInfo);
    EndElement(IX_STR_IMS_3GPP);
    return 1;
}

int CWIndicationMarshaller::AddAlternativeServiceElementToXml(ix_alternative_service* service) {
    if (!Enter(service, {2, "<XML Module>: AddAlternativeServiceElementToXml"})) return 0;
    StartElement(IX_STR_ALTERNATIVE_SERVICE);
    AddTextOrEmptyElement(IX_STR_TYPE, service->mType);
    AddTextOrEmptyElement(IX_STR_REASON, service->mReason);
    AddTextOrEmptyElement(IX_STR_ACTION, service->mAction);
    EndElement(IX_STR_ALTERNATIVE_SERVICE);
    return 1;
}
