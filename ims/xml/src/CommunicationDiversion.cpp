#include "CommunicationDiversion.h"

#include "XMLCommunicationDiversion.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_communication_diversion>({IX_STR_COMMUNICATION_DIVERSION, XmlKnownName::Optional, IX_STR_SS}),
};

constexpr XmlDecoderInfo kInfo = ixRuleServiceDecoderInfo(
    ixDecoderInfo<kContainers>(kSource),
    IX_SERVICE_DECODER_TEXTS("XMLCommunicationDiversionDecoder", "XMLCommunicationDiversionDecoder", "m_strDup",
                             "XMLCommunicationDiversionDecoder"));

}  // namespace

XMLCommunicationDiversionDecoder::XMLCommunicationDiversionDecoder() : XmlRuleDecoder(kInfo) {}

int XMLCommunicationDiversionDecoder::OtherElement(const XmlTag& tag, char* text) {
    if (PassName() == nullptr) {
        ixLog(kSource, {3, "<XML Module>XMLCommunicationDiversionDecoder :: ProcessAnyElement: m_PassName is NULL"});
        return -1;
    }
    return XmlRuleDecoder::OtherElement(tag, text);
}
