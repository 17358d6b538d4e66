#include "CommunicationDiversion.h"

#include "SimservsRules.h"
#include "XMLCommunicationDiversion.h"

namespace {

const char kSourceFile[] = "ims/xml/src/CommunicationDiversion";

constexpr XmlLogText kNoLocalName = {
    3, kSchemaCode, __LINE__, "<XML Module>XMLCommunicationDiversionDecoder :: ProcessAnyElement: m_PassName is NULL"};

constexpr XmlOldKnownName kRoot = {IX_STR_COMMUNICATION_DIVERSION, XmlOldKnownName::Optional, IX_STR_SS};

constexpr XmlOldContainerRow kContainers[] = {
    {kRoot, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_communication_diversion)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixRuleServiceDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLCommunicationDiversionDecoder", "m_strDup",
                             "XMLCommunicationDiversionDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLCommunicationDiversionDecoder::XMLCommunicationDiversionDecoder() : XmlOldFamilyDecoder(kInfo) {}

int XMLCommunicationDiversionDecoder::OtherElement(char* name, char* text) {
    if (PassName() == nullptr) {
        ixLog(kSourceFile, kNoLocalName);
        return -1;
    }
    return XmlOldFamilyDecoder::OtherElement(name, text);
}
