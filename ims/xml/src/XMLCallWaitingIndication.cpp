#include "XMLCallWaitingIndication.h"

#include <iterator>

#include "CallWaitingIndication.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLCallWaitingIndication";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = ixImsBodyUnMarshallerInfo(
    kSourceFile, __LINE__,
    [](int line) -> XmlOldFamilyDecoder* { return IX_NEW_AT(line, XMLCallWaitingIndicationDecoder); });

constexpr XmlOldWriterRow kWriter = {IX_OLD_WRITER_OF(CallWaitingIndicationMarshaller, Add3gppImsElementToXml, ix_3gpp_ims)};
constexpr XmlOldMarshallerInfo kMarshallerInfo = ixImsBodyMarshallerInfo(kSourceFile, __LINE__, kWriter);

constexpr XmlLogText kRootHook = {2, kSchemaCode, __LINE__, "In ix_3gpp_ims::ProcessUnMarshall"};
constexpr XmlLogText kServiceHook = {2, kSchemaCode, __LINE__,
                                     "In ix_ns_call_waiting_indication_alternative_service::ProcessUnMarshall"};
constexpr XmlLogText kServiceAttributeHook = {
    2, kSchemaCode, __LINE__, "In ix_ns_call_waiting_indication_alternative_service::ProcessUnMarshallAttribute"};
constexpr XmlLogText kActionHook = {2, kSchemaCode, __LINE__,
                                    "In ix_ns_call_waiting_indication_action::ProcessUnMarshall"};
constexpr XmlLogText kActionAttributeHook = {2, kSchemaCode, __LINE__,
                                             "In ix_ns_call_waiting_indication_action::ProcessUnMarshallAttribute"};
constexpr XmlLogText kAddRoot = {2, kSchemaCode, __LINE__, "<XML Module>: Add3gppImsElementToXml"};
constexpr XmlLogText kAddService = ixImsBodyAddAlternativeService(__LINE__);
constexpr XmlLogText kAddAction = {2, kSchemaCode, __LINE__, "<XML Module>: AddActionElementToXml"};
constexpr XmlLogText kAddIndication = {2, kSchemaCode, __LINE__, "<XML Module>: AddCallWaitingIndicationElementToXml"};
constexpr XmlLogText kServiceFailed = ixImsBodyAlternativeServiceFailed(__LINE__);
constexpr XmlLogText kActionFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddActionElementToXml XML Failed!"};
constexpr XmlLogText kIndicationFailed = {2, kSchemaCode, __LINE__,
                                          "<XML Module>: AddCallWaitingIndicationElementToXml XML Failed!"};
constexpr XmlLogText kNotPresent = {
    3, kSchemaCode, __LINE__,
    "CallWaitingIndicationMarshaller::AddCallWaitingIndicationElementToXml: Received empty present false"};

constexpr XmlField kActionFields[] = {
    {XmlFieldKind::Presence, IX_STR_CALL_WAITING_INDICATION,
     IX_CHILD_MEMBER(ix_ns_call_waiting_indication_action, mCallWaitingIndication)},
};
constexpr XmlFieldTable kActionTable = {nullptr, kActionFields, std::size(kActionFields)};

constexpr XmlField kServiceFields[] = {
    {XmlFieldKind::Child, IX_STR_ACTION, IX_CHILD_MEMBER(ix_ns_call_waiting_indication_alternative_service, mAction)},
};
constexpr XmlFieldTable kServiceTable = {nullptr, kServiceFields, std::size(kServiceFields)};

constexpr XmlField kRootFields[] = {
    kImsBodyVersionField,
    {XmlFieldKind::Child, IX_STR_ALTERNATIVE_SERVICE, IX_CHILD_MEMBER(ix_3gpp_ims, mAlternativeService)},
};
constexpr XmlFieldTable kRootTable = {nullptr, kRootFields, std::size(kRootFields)};

}  // namespace

ix_ns_call_waiting_indication_action::~ix_ns_call_waiting_indication_action() {
    XmlFields::Release(this, kActionTable);
}

const XmlFieldTable* ix_ns_call_waiting_indication_action::FieldTable() const { return &kActionTable; }

int ix_ns_call_waiting_indication_action::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    ixLog(kSourceFile, kActionHook);
    if (!ixNameIs(name, IX_STR_CALL_WAITING_INDICATION) || ixIsNameless(child)) return 1;
    return ixTakeChild(mCallWaitingIndication, child);
}

int ix_ns_call_waiting_indication_action::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/,
                                                                     XMLAttribute* /*pair*/) {
    ixLog(kSourceFile, kActionAttributeHook);
    return 1;
}

ix_ns_call_waiting_indication_alternative_service::~ix_ns_call_waiting_indication_alternative_service() {
    XmlFields::Release(this, kServiceTable);
}

const XmlFieldTable* ix_ns_call_waiting_indication_alternative_service::FieldTable() const { return &kServiceTable; }

int ix_ns_call_waiting_indication_alternative_service::ProcessUnMarshall(char* name, char* /*text*/,
                                                                         XMLElement* child) {
    ixLog(kSourceFile, kServiceHook);
    if (!ixNameIs(name, IX_STR_ACTION) || ixIsNameless(child)) return 1;
    return ixTakeChild(mAction, child);
}

int ix_ns_call_waiting_indication_alternative_service::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/,
                                                                                  XMLAttribute* /*pair*/) {
    ixLog(kSourceFile, kServiceAttributeHook);
    return 1;
}

ix_3gpp_ims::~ix_3gpp_ims() { XmlFields::Release(this, kRootTable); }

const XmlFieldTable* ix_3gpp_ims::FieldTable() const { return &kRootTable; }

int ix_3gpp_ims::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    ixLog(kSourceFile, kRootHook);
    if (!ixNameIs(name, IX_STR_ALTERNATIVE_SERVICE) || ixIsNameless(child)) return 1;
    return ixTakeChild(mAlternativeService, child);
}

const char* ix_3gpp_ims::SourceFile() const { return kSourceFile; }

XMLElement* CallWaitingIndicationDataBinder::CreateRootElement() { return IX_NEW(ix_3gpp_ims); }

ix_ns_call_waiting_indication_alternative_service* CallWaitingIndicationDataBinder::CreateAlternativeServiceElement() {
    return IX_NEW(ix_ns_call_waiting_indication_alternative_service);
}

ix_ns_call_waiting_indication_action* CallWaitingIndicationDataBinder::CreateActionElement() {
    return IX_NEW(ix_ns_call_waiting_indication_action);
}

ix_empty_element_type* CallWaitingIndicationDataBinder::CreateCallWaitingIndicationElement() {
    return ixCreateEmptyElement(ix_xml_common_array_definition::getStringName(IX_STR_CALL_WAITING_INDICATION),
                                kSourceFile, __LINE__);
}

CallWaitingIndicationMarshaller::CallWaitingIndicationMarshaller() : XmlImsBodyMarshaller(kMarshallerInfo) {}

int CallWaitingIndicationMarshaller::Add3gppImsElementToXml(ix_3gpp_ims* element) {
    ixLog(kSourceFile, kAddRoot);
    if (element == nullptr) return 0;
    StartRoot(IX_STR_3GPP_IMS, *element);
    ix_ns_call_waiting_indication_alternative_service* const service = element->mAlternativeService;
    if (service != nullptr && AddAlternativeServiceElementToXml(service) == 0) return ReleaseAndFail(kServiceFailed);
    EndElement(IX_STR_3GPP_IMS);
    return 1;
}

int CallWaitingIndicationMarshaller::AddAlternativeServiceElementToXml(
    ix_ns_call_waiting_indication_alternative_service* service) {
    ixLog(kSourceFile, kAddService);
    if (service == nullptr) return 0;
    StartElement(IX_STR_ALTERNATIVE_SERVICE);
    if (service->mAction != nullptr && AddActionElementToXml(service->mAction) == 0) {
        return ReleaseAndFail(kActionFailed);
    }
    EndElement(IX_STR_ALTERNATIVE_SERVICE);
    return 1;
}

int CallWaitingIndicationMarshaller::AddActionElementToXml(ix_ns_call_waiting_indication_action* action) {
    ixLog(kSourceFile, kAddAction);
    if (action == nullptr) return 0;
    StartElement(IX_STR_ACTION);
    ix_empty_element_type* const indication = action->mCallWaitingIndication;
    if (indication != nullptr && AddCallWaitingIndicationElementToXml(indication) == 0) {
        return ReleaseAndFail(kIndicationFailed);
    }
    EndElement(IX_STR_ACTION);
    return 1;
}

int CallWaitingIndicationMarshaller::AddCallWaitingIndicationElementToXml(ix_empty_element_type* indication) {
    ixLog(kSourceFile, kAddIndication);
    if (indication == nullptr) return 0;
    if (indication->mPresent == 0) {
        ixLog(kSourceFile, kNotPresent);
        return 0;
    }
    if (indication->mName == nullptr) return 0;
    m_generator.ixStartElementSelfEnding(indication->mName);
    return 1;
}

IX_OLD_FAMILY(CallWaitingIndicationContext, CallWaitingIndicationMarshaller, CallWaitingIndicationUnMarshaller,
          CallWaitingIndicationDataBinder);
