#include "CommunicationDiversion.h"

#include "SimservsRules.h"
#include "XMLCommunicationDiversion.h"

namespace {

const char kSourceFile[] = "ims/xml/src/CommunicationDiversion";

constexpr XmlLogText kNoLocalName = {
    3, kSchemaCode, __LINE__, "<XML Module>XMLCommunicationDiversionDecoder :: ProcessAnyElement: m_PassName is NULL"};

constexpr XmlKnownName kRoot = {IX_STR_COMMUNICATION_DIVERSION, XmlKnownName::Optional, IX_STR_SS};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_communication_diversion)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixRuleServiceDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLCommunicationDiversionDecoder", "m_strDup",
                             "XMLCommunicationDiversionDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLCommunicationDiversionDecoder::XMLCommunicationDiversionDecoder() : XmlFamilyDecoder(kInfo) {}

int XMLCommunicationDiversionDecoder::OtherElement(char* name, char* text) {
    if (PassName() == nullptr) {
        ixLog(kSourceFile, kNoLocalName);
        return -1;
    }
    return XmlFamilyDecoder::OtherElement(name, text);
}
