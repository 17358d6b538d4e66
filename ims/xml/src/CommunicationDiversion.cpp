#include "CommunicationDiversion.h"

#include "SimservsRules.h"
#include "XMLCommunicationDiversion.h"

namespace {

const char kSourceFile[] = "ims/xml/src/CommunicationDiversion";

constexpr XmlKnownName kRoot = {IX_STR_COMMUNICATION_DIVERSION, XmlKnownName::Optional, IX_STR_SS};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_communication_diversion)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixServiceDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.handsOnLocalNames = true;
    info.takesFragments = true;
    info.attributePolicy = XmlAttributePolicy::RootPairs;
    info.shared = &kRuleDecoderInfo;
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLCommunicationDiversionDecoder", "m_strDup",
                             "XMLCommunicationDiversionDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLCommunicationDiversionDecoder::XMLCommunicationDiversionDecoder() : XmlFamilyDecoder(kInfo) {}
