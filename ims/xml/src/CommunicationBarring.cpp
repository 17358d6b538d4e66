#include "CommunicationBarring.h"

#include "XMLCommunicationBarring.h"

namespace {

using namespace XmlContainer;

constexpr XmlKnownName Service(e_XmlStrRef name) { return {name, XmlKnownName::Optional, IX_STR_SS}; }

constexpr XmlContainerRow kContainers[] = {
    Root<ix_incoming_communication_barring>(Service(IX_STR_INCOMING_COMMUNICATION_BARRING)),
    Root<ix_outgoing_communication_barring>(Service(IX_STR_OUTGOING_COMMUNICATION_BARRING)),
    Text<ix_allow_action_type>(Service(IX_STR_ALLOW)),
};

// Required: the texts of the namespace operations name the diversion decoder.
constexpr XmlDecoderInfo kInfo = ixRuleServiceDecoderInfo(
    ixDecoderInfo<kContainers>(kSource),
    IX_SERVICE_DECODER_TEXTS("XMLCommunicationBarringDecoder", "XMLCommunicationBarringDecoder", "m_strDup",
                             "XMLCommunicationDiversionDecoder"));

}  // namespace

XMLCommunicationBarringDecoder::XMLCommunicationBarringDecoder() : XmlRuleDecoder(kInfo) {}
