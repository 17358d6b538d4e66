#include "XMLCallWaitingIndication.h"

#include "CallWaitingIndication.h"

namespace {

using namespace XmlRow;

constexpr XmlField kActionFields[] = {
    Child<&ix_ns_call_waiting_indication_action::mCallWaitingIndication>(IX_STR_CALL_WAITING_INDICATION),
};
constexpr XmlAnswers kActionAnswers =
    ixTracing({2, "In ix_ns_call_waiting_indication_action::ProcessUnMarshall"},
              {2, "In ix_ns_call_waiting_indication_action::ProcessUnMarshallAttribute"});

constexpr XmlField kServiceFields[] = {
    Child<&ix_ns_call_waiting_indication_alternative_service::mAction>(IX_STR_ACTION),
};
constexpr XmlAnswers kServiceAnswers =
    ixTracing({2, "In ix_ns_call_waiting_indication_alternative_service::ProcessUnMarshall"},
              {2, "In ix_ns_call_waiting_indication_alternative_service::ProcessUnMarshallAttribute"});

constexpr XmlField kRootFields[] = {
    Child<&ix_3gpp_ims::mAlternativeService>(IX_STR_ALTERNATIVE_SERVICE),
};
constexpr XmlAnswers kRootAnswers =
    ixTracing({2, "In ix_3gpp_ims::ProcessUnMarshall"}, {2, "In ix_3gpp_ims::ProcessUnMarshallAttribute"});

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLCallWaitingIndicationDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in CallWaitingIndicationUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&CallWaitingIndicationMarshaller::Add3gppImsElementToXml>(),
};
constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info = ixMarshallerInfo(
        kSource, kWriters, IX_MARSHALL_TEXTS("CallWaitingIndicationMarshaller", "mCallWaitingIndicationXml"));
    info.writesDeclaration = false;
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

}  // namespace

constexpr XmlClass ix_ns_call_waiting_indication_action::kClass = ixClass<ix_ns_call_waiting_indication_action>(
    "ix_ns_call_waiting_indication_action", "Action", kSource, kActionFields, kActionAnswers);
constexpr XmlClass ix_ns_call_waiting_indication_alternative_service::kClass =
    ixClass<ix_ns_call_waiting_indication_alternative_service>("ix_ns_call_waiting_indication_alternative_service",
                                                               "AlternativeService", kSource, kServiceFields,
                                                               kServiceAnswers);
constexpr XmlClass ix_3gpp_ims::kClass = ixDerived(
    ixClass<ix_3gpp_ims>("ix_3gpp_ims", "3gppIms", kSource, kRootFields, kRootAnswers), ix_imsBodyType::kClass);

XMLElement* CallWaitingIndicationDataBinder::CreateRootElement() { return ixNew<ix_3gpp_ims>(kSource); }
ix_ns_call_waiting_indication_alternative_service* CallWaitingIndicationDataBinder::CreateAlternativeServiceElement() {
    return ixNew<ix_ns_call_waiting_indication_alternative_service>(kSource);
}
ix_ns_call_waiting_indication_action* CallWaitingIndicationDataBinder::CreateActionElement() {
    return ixNew<ix_ns_call_waiting_indication_action>(kSource);
}
ix_empty_element_type* CallWaitingIndicationDataBinder::CreateCallWaitingIndicationElement() {
    return ixCreateEmptyElement(ixString(IX_STR_CALL_WAITING_INDICATION), kSource);
}

CallWaitingIndicationUnMarshaller::CallWaitingIndicationUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

CallWaitingIndicationMarshaller::CallWaitingIndicationMarshaller() : XmlImsBodyMarshaller(kMarshallerInfo) {}

CallWaitingIndicationContext::CallWaitingIndicationContext()
    : XmlFamilyContext(
          ixFamily<CallWaitingIndicationMarshaller, CallWaitingIndicationUnMarshaller, CallWaitingIndicationDataBinder>(
              kSource)) {}

int CallWaitingIndicationMarshaller::Add3gppImsElementToXml(ix_3gpp_ims* element) {
    if (!Enter(element, {2, "<XML Module>: Add3gppImsElementToXml"})) return 0;
    StartRoot(IX_STR_3GPP_IMS, *element);
    if (element->mAlternativeService != nullptr && !AddAlternativeServiceElementToXml(element->mAlternativeService)) {
        return ReleaseAndFail(
            {2, "<XML Module>: CallWaitingIndicationMarshaller XML Failed at AddAlternativeServiceElementToXml!"});
    }
    EndElement(IX_STR_3GPP_IMS);
    return 1;
}

int CallWaitingIndicationMarshaller::AddAlternativeServiceElementToXml(
    ix_ns_call_waiting_indication_alternative_service* service) {
    if (!Enter(service, {2, "<XML Module>: AddAlternativeServiceElementToXml"})) return 0;
    StartElement(IX_STR_ALTERNATIVE_SERVICE);
    if (service->mAction != nullptr && !AddActionElementToXml(service->mAction)) {
        return ReleaseAndFail({2, "<XML Module>: AddActionElementToXml XML Failed!"});
    }
    EndElement(IX_STR_ALTERNATIVE_SERVICE);
    return 1;
}

int CallWaitingIndicationMarshaller::AddActionElementToXml(ix_ns_call_waiting_indication_action* action) {
    if (!Enter(action, {2, "<XML Module>: AddActionElementToXml"})) return 0;
    StartElement(IX_STR_ACTION);
    ix_empty_element_type* const indication = action->mCallWaitingIndication;
    if (indication != nullptr && !AddCallWaitingIndicationElementToXml(indication)) {
        return ReleaseAndFail({2, "<XML Module>: AddCallWaitingIndicationElementToXml XML Failed!"});
    }
    EndElement(IX_STR_ACTION);
    return 1;
}

int CallWaitingIndicationMarshaller::AddCallWaitingIndicationElementToXml(ix_empty_element_type* indication) {
    if (!Enter(indication, {2, "<XML Module>: AddCallWaitingIndicationElementToXml"})) return 0;
    if (indication->mPresent == 0) {
        return Fail(
            {3, "CallWaitingIndicationMarshaller::AddCallWaitingIndicationElementToXml: Received empty present false"});
    }
    // Required: one without a name writes nothing, and is no failure.
    m_generator.ixStartElementSelfEnding(indication->mName);
    return 1;
}
