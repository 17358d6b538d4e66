#include "CommunicationDiversion.h"

#include <iterator>

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
    XmlDecoderInfo info;
    info.source = kSourceFile;
    info.names = XmlNamePolicy::Mapped;
    info.handsOnLocalNames = true;
    info.takesFragments = true;
    info.attributePolicy = XmlAttributePolicy::RootPairs;
    info.containers = kContainers;
    info.containerCount = std::size(kContainers);
    info.attributes = kAttributes;
    info.attributeCount = std::size(kAttributes);
    info.shared = &kRuleDecoderInfo;
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    info.pairLine = __LINE__;
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLCommunicationDiversionDecoder", "m_strDup",
                             "XMLCommunicationDiversionDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLCommunicationDiversionDecoder::XMLCommunicationDiversionDecoder() : XmlFamilyDecoder(kInfo) {}
