#include "XMLCommunicationWaiting.h"

#include <iterator>

#include "CommunicationWaiting.h"
#include "XmlElementSupport.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLCommunicationWaiting";

// Required: the source lines of this family are fixed; the others show their own.
constexpr XmlOldUnMarshallerInfo UnMarshallerInfo() {
    XmlOldUnMarshallerInfo info;
    info.source = kSourceFile;
    info.createDecoder = [](int line) -> XmlOldFamilyDecoder* { return IX_NEW_AT(line, XMLCommunicationWaitingDecoder); };
    info.textTokenizerLine = 431;
    info.textDecoderLine = 433;
    info.fileTokenizerLine = 468;
    info.fileDecoderLine = 470;
    info.noCopy = {4, kSchemaCode, 426, "<XML Module>: StrDup failed in CommunicationWaitingUnMarshaller::UnMarshall"};
    return info;
}
constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(Communication_waitingMarshaller, AddCommunication_waitingElementToXml, ix_communication_waiting)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info;
    info.source = kSourceFile;
    info.writers = kWriters;
    info.writerCount = std::size(kWriters);
    info.namespaces = kCommunicationWaitingNamespaces;
    info.namespaceCount = kCommunicationWaitingNamespaceCount;
    info.noFirstNamespace = {
        2, kSchemaCode, 117,
        "Communication_waitingMarshaller :: Communication_waitingMarshaller: Malloc cannot allocate memory"};
    info.noNamespace = {
        2, kSchemaCode, 120,
        "Communication_waitingMarshaller :: Communication_waitingMarshaller: Malloc cannot allocate memory"};
    info.entered = {3, kSchemaCode, 283, "<XML Module>: Communication_waitingMarshaller :: Marshall"};
    info.deleting = {3, kSchemaCode, 288,
                     "<XML Module>: Communication_waitingMarshaller :: Marshall: Deleting mCommunicationWaitingXml"};
    info.written = {2, kSchemaCode, 313, "<XML Module>: Communication_waitingMarshaller XML %s"};
    info.failed = {2, kSchemaCode, 301, "<XML Module>: Communication_waitingMarshaller XML Failed!"};
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kAddElement = {2, kSchemaCode, 194, "<XML Module>: AddCommunication_waitingElementToXml"};

}  // namespace

int ix_communication_waiting::ProcessUnMarshall(char* /*name*/, char* /*text*/, XMLElement* /*child*/) { return 1; }

int ix_communication_waiting::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    // Required: what comes without a pair is taken for the switch. Of the decoder, only that does.
    if (pair == nullptr) return setActiveValue(ixNameIs(value, IX_STR_TRUE) ? 1 : 0);
    // An `active` of some child element arrives as a pair and is not kept.
    if (ixNameIs(attribute, IX_STR_ACTIVE)) return 1;
    ix_AttributeValuePair* const extension = ixAsPair(pair);
    if (extension != nullptr) addExtension(extension);
    return 1;
}

const char* ix_communication_waiting::SourceFile() const { return kSourceFile; }

XMLElement* CommunicationWaitingDataBinder::CreateRootElement() { return IX_NEW_AT(403, ix_communication_waiting); }

const XmlOldUnMarshallerInfo& CommunicationWaitingUnMarshaller::Info() const { return kUnMarshallerInfo; }

Communication_waitingMarshaller::Communication_waitingMarshaller() : XmlServiceMarshaller(kMarshallerInfo) {}

int Communication_waitingMarshaller::AddCommunication_waitingElementToXml(ix_communication_waiting* element) {
    ixLog(kSourceFile, kAddElement);
    if (element == nullptr) return 0;
    AddServiceStart(IX_STR_COMMUNICATION_WAITING, *element, Attribute::SelfClosing);
    return 1;
}

XmlOldFamilyMarshaller* CommunicationWaitingContext::NewMarshaller() {
    return IX_NEW_AT(331, Communication_waitingMarshaller);
}

XmlOldFamilyUnMarshaller* CommunicationWaitingContext::NewUnMarshaller() {
    return IX_NEW_AT(380, CommunicationWaitingUnMarshaller);
}

XMLObjectFactory* CommunicationWaitingContext::NewBinderFactory() {
    return IX_NEW_AT(389, CommunicationWaitingDataBinder);
}
