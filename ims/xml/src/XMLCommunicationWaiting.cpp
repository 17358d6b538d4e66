#include "XMLCommunicationWaiting.h"

#include "CommunicationWaiting.h"

namespace {

using namespace XmlRow;

// Required: the source lines of this family are fixed; the others show their own.

constexpr XmlField kFields[] = {
    Attribute<&ix_ns_xcap_simservType::mActive>(IX_STR_ACTIVE, XmlFlag::TrueOrNot).Always(),
    Attributes<&ix_ns_xcap_simservType::mExtensionList>().At(42),
};

constexpr XmlUnMarshallerInfo UnMarshallerInfo() {
    XmlUnMarshallerInfo info = ixUnMarshallerInfo<XMLCommunicationWaitingDecoder>(
        kSource, {4, "<XML Module>: StrDup failed in CommunicationWaitingUnMarshaller::UnMarshall", 426});
    info.textTokenizerLine = 431;
    info.textDecoderLine = 433;
    info.fileTokenizerLine = 468;
    info.fileDecoderLine = 470;
    return info;
}
constexpr XmlUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&Communication_waitingMarshaller::AddCommunication_waitingElementToXml>(),
};

constexpr XmlMarshallTexts kMarshallTexts = {
    {3, "<XML Module>: Communication_waitingMarshaller :: Marshall", 283},
    {3, "<XML Module>: Communication_waitingMarshaller :: Marshall: Deleting mCommunicationWaitingXml", 288},
    {2, "<XML Module>: Communication_waitingMarshaller XML %s", 313},
    {2, "<XML Module>: Communication_waitingMarshaller XML Failed!", 301},
};

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info = ixMarshallerInfo(kSource, kWriters, kMarshallTexts);
    info.writesDeclaration = false;
    info.namespaces = kCommunicationWaitingNamespaces;
    info.namespaceCount = kCommunicationWaitingNamespaceCount;
    info.noFirstNamespace = {
        2, "Communication_waitingMarshaller :: Communication_waitingMarshaller: Malloc cannot allocate memory", 117};
    info.noNamespace = {
        2, "Communication_waitingMarshaller :: Communication_waitingMarshaller: Malloc cannot allocate memory", 120};
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlFamily kFamily = {
    kSource,
    ixMake<XmlFamilyMarshaller, Communication_waitingMarshaller>,
    ixMake<XmlFamilyUnMarshaller, CommunicationWaitingUnMarshaller>,
    ixMake<XMLObjectFactory, CommunicationWaitingDataBinder>,
    331,
    380,
    389,
};

}  // namespace

constexpr XmlClass ix_communication_waiting::kClass = ixServiceClass(
    ixClass<ix_communication_waiting>("communication-waiting", "CommunicationWaiting", kSource, kFields, ixIgnoring())
        .Of(IX_STR_COMMUNICATION_WAITING));

int ix_communication_waiting::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    // Required: what comes without a pair is taken for the switch. Of the decoder, only that does.
    if (pair == nullptr) return setActiveValue(ixNameIs(value, IX_STR_TRUE) ? 1 : 0);
    // Required: nothing is refused. An `active` of some child element arrives as a pair, and nobody keeps it.
    ix_ns_xcap_simservType::ProcessUnMarshallAttribute(attribute, value, pair);
    return 1;
}

XMLElement* CommunicationWaitingDataBinder::CreateRootElement() {
    return ixNew<ix_communication_waiting>(kSource, 403);
}

CommunicationWaitingUnMarshaller::CommunicationWaitingUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

Communication_waitingMarshaller::Communication_waitingMarshaller() : XmlServiceMarshaller(kMarshallerInfo) {}

CommunicationWaitingContext::CommunicationWaitingContext() : XmlBinderContext(kFamily) {}

int Communication_waitingMarshaller::AddCommunication_waitingElementToXml(ix_communication_waiting* element) {
    return AddSwitch({2, "<XML Module>: AddCommunication_waitingElementToXml", 194}, IX_STR_COMMUNICATION_WAITING,
                     element);
}
