#include "CommunicationBarring.h"

#include "SimservsRules.h"
#include "XMLCommunicationBarring.h"

namespace {

const char kSourceFile[] = "ims/xml/src/CommunicationBarring";

constexpr XmlKnownName kIncoming = {IX_STR_INCOMING_COMMUNICATION_BARRING, XmlKnownName::Optional, IX_STR_SS};
constexpr XmlKnownName kOutgoing = {IX_STR_OUTGOING_COMMUNICATION_BARRING, XmlKnownName::Optional, IX_STR_SS};
constexpr XmlKnownName kAllow = {IX_STR_ALLOW, XmlKnownName::Optional, IX_STR_SS};

constexpr XmlContainerRow kContainers[] = {
    {kIncoming, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_incoming_communication_barring)},
    {kOutgoing, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_outgoing_communication_barring)},
    {kAllow, XmlContainerRow::Text, IX_OBJECT(ix_allow_action_type)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kIncoming, IX_STR_ACTIVE},
    {kOutgoing, IX_STR_ACTIVE},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixRuleServiceDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    // Required: the texts of the namespace operations name the diversion decoder.
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLCommunicationBarringDecoder", "m_strDup",
                             "XMLCommunicationDiversionDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLCommunicationBarringDecoder::XMLCommunicationBarringDecoder() : XmlFamilyDecoder(kInfo) {}
