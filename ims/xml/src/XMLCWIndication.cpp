#include "XMLCWIndication.h"

#include <iterator>

#include "CWIndication.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLCWIndication";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = ixImsBodyUnMarshallerInfo(
    kSourceFile, __LINE__, [](int line) -> XmlOldFamilyDecoder* { return IX_NEW_AT(line, XMLCWIndicationDecoder); });

constexpr XmlOldWriterRow kWriter = {IX_OLD_WRITER_OF(CWIndicationMarshaller, AddIms3gppElementToXml, ix_ims_3gpp)};
constexpr XmlOldMarshallerInfo kMarshallerInfo = ixImsBodyMarshallerInfo(kSourceFile, __LINE__, kWriter);

constexpr XmlLogText kRootHook = {2, kSchemaCode, __LINE__, "In ix_ims_3gpp::ProcessUnMarshall"};
constexpr XmlLogText kServiceHook = {2, kSchemaCode, __LINE__, "In ix_alternative_service::ProcessUnMarshall"};
constexpr XmlLogText kServiceAttributeHook = {2, kSchemaCode, __LINE__,
                                              "In ix_alternative_service::ProcessUnMarshallAttribute"};
constexpr XmlLogText kAddRoot = {2, kSchemaCode, __LINE__, "<XML Module>: AddIms3gppElementToXml"};
constexpr XmlLogText kAddService = ixImsBodyAddAlternativeService(__LINE__);
constexpr XmlLogText kServiceFailed = ixImsBodyAlternativeServiceFailed(__LINE__);

constexpr XmlField kServiceFields[] = {
    {XmlFieldKind::Text, IX_STR_ACTION, XmlTextMember(&ix_alternative_service::mAction)},
    {XmlFieldKind::Text, IX_STR_TYPE, XmlTextMember(&ix_alternative_service::mType)},
    {XmlFieldKind::Text, IX_STR_REASON, XmlTextMember(&ix_alternative_service::mReason)},
};
constexpr XmlFieldTable kServiceTable = {nullptr, kServiceFields, std::size(kServiceFields)};

constexpr XmlField kRootFields[] = {
    kImsBodyVersionField,
    {XmlFieldKind::Child, IX_STR_ALTERNATIVE_SERVICE, IX_CHILD_MEMBER(ix_ims_3gpp, mAlternativeService)},
    {XmlFieldKind::Text, IX_STR_SERVICE_INFO, XmlTextMember(&ix_ims_3gpp::mServiceInfo)},
};
constexpr XmlFieldTable kRootTable = {nullptr, kRootFields, std::size(kRootFields)};

}  // namespace

ix_alternative_service::~ix_alternative_service() { XmlFields::Release(this, kServiceTable); }

const XmlFieldTable* ix_alternative_service::FieldTable() const { return &kServiceTable; }

int ix_alternative_service::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    ixLog(kSourceFile, kServiceHook);
    if (ixEndNameIs(name, IX_STR_TYPE)) return ixTakeText(mType, text, child);
    if (ixEndNameIs(name, IX_STR_ACTION)) return ixTakeText(mAction, text, child);
    if (ixEndNameIs(name, IX_STR_REASON)) return ixTakeText(mReason, text, child);
    return 1;
}

int ix_alternative_service::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/, XMLAttribute* /*pair*/) {
    ixLog(kSourceFile, kServiceAttributeHook);
    return 1;
}

ix_ims_3gpp::~ix_ims_3gpp() { XmlFields::Release(this, kRootTable); }

const XmlFieldTable* ix_ims_3gpp::FieldTable() const { return &kRootTable; }

int ix_ims_3gpp::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    ixLog(kSourceFile, kRootHook);
    if (ixEndNameIs(name, IX_STR_SERVICE_INFO)) return ixTakeText(mServiceInfo, text, child);
    if (!ixNameIs(name, IX_STR_ALTERNATIVE_SERVICE) || ixIsNameless(child)) return 1;
    return ixTakeChild(mAlternativeService, child);
}

const char* ix_ims_3gpp::SourceFile() const { return kSourceFile; }

XMLElement* CWIndicationDataBinder::CreateRootElement() { return IX_NEW(ix_ims_3gpp); }

ix_alternative_service* CWIndicationDataBinder::CreateAlternativeServiceElement() {
    return IX_NEW(ix_alternative_service);
}

CWIndicationMarshaller::CWIndicationMarshaller() : XmlImsBodyMarshaller(kMarshallerInfo) {}

int CWIndicationMarshaller::AddIms3gppElementToXml(ix_ims_3gpp* element) {
    ixLog(kSourceFile, kAddRoot);
    if (element == nullptr) return 0;
    StartRoot(IX_STR_IMS_3GPP, *element);
    ix_alternative_service* const service = element->mAlternativeService;
    if (service != nullptr && AddAlternativeServiceElementToXml(service) == 0) return ReleaseAndFail(kServiceFailed);
    AddTextElement(IX_STR_SERVICE_INFO, element->mServiceInfo);
    EndElement(IX_STR_IMS_3GPP);
    return 1;
}

int CWIndicationMarshaller::AddAlternativeServiceElementToXml(ix_alternative_service* service) {
    ixLog(kSourceFile, kAddService);
    if (service == nullptr) return 0;
    StartElement(IX_STR_ALTERNATIVE_SERVICE);
    AddTextOrEmptyElement(IX_STR_TYPE, service->mType);
    AddTextOrEmptyElement(IX_STR_REASON, service->mReason);
    AddTextOrEmptyElement(IX_STR_ACTION, service->mAction);
    EndElement(IX_STR_ALTERNATIVE_SERVICE);
    return 1;
}

IX_OLD_FAMILY(CWIndicationContext, CWIndicationMarshaller, CWIndicationUnMarshaller, CWIndicationDataBinder);
