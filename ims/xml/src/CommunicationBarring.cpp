#include "CommunicationBarring.h"

#include "SimservsRules.h"
#include "XMLCommunicationBarring.h"

namespace {

const char kSourceFile[] = "ims/xml/src/CommunicationBarring";

constexpr XmlOldKnownName kIncoming = {IX_STR_INCOMING_COMMUNICATION_BARRING, XmlOldKnownName::Optional, IX_STR_SS};
constexpr XmlOldKnownName kOutgoing = {IX_STR_OUTGOING_COMMUNICATION_BARRING, XmlOldKnownName::Optional, IX_STR_SS};
constexpr XmlOldKnownName kAllow = {IX_STR_ALLOW, XmlOldKnownName::Optional, IX_STR_SS};

constexpr XmlOldContainerRow kContainers[] = {
    {kIncoming, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_incoming_communication_barring)},
    {kOutgoing, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_outgoing_communication_barring)},
    {kAllow, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_allow_action_type)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kIncoming, IX_STR_ACTIVE},
    {kOutgoing, IX_STR_ACTIVE},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixRuleServiceDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    // Required: the texts of the namespace operations name the diversion decoder.
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLCommunicationBarringDecoder", "m_strDup",
                             "XMLCommunicationDiversionDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLCommunicationBarringDecoder::XMLCommunicationBarringDecoder() : XmlOldFamilyDecoder(kInfo) {}
