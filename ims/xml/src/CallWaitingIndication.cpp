#include "CallWaitingIndication.h"

#include "XMLCallWaitingIndication.h"

namespace {

const char kSourceFile[] = "ims/xml/src/CallWaitingIndication";

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_3GPP_IMS}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_3gpp_ims)},
    // Required: the class is spelled so that its objects are never recognised. The alternative service stays on the
    // stack behind its end tag, takes what follows in the root, and is popped in place of the root.
    {{IX_STR_ALTERNATIVE_SERVICE},
     XmlOldContainerRow::Child,
     "ix_ns_call_waiting_indiaction_alternative_service",
     IX_OLD_CREATOR(ix_ns_call_waiting_indication_alternative_service)},
    {{IX_STR_ACTION}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_call_waiting_indication_action)},
    {{IX_STR_CALL_WAITING_INDICATION},
     XmlOldContainerRow::Leaf,
     nullptr,
     [](const char* name, const char* source) -> XMLElement* { return ixCreateEmptyElement(name, source, __LINE__); }},
};

// Required: the known attribute is one of another document, so that the version of the root only ever comes as a pair,
// which the root does not take.
constexpr XmlOldAttributeRow kAttribute = {{IX_STR_PRESENCE}, IX_STR_ENTITY};

constexpr XmlOldDecoderInfo kInfo = ixImsBodyDecoderInfo(kSourceFile, __LINE__, kContainers, kAttribute);

}  // namespace

XMLCallWaitingIndicationDecoder::XMLCallWaitingIndicationDecoder() : XmlOldFamilyDecoder(kInfo) {}

int XMLCallWaitingIndicationDecoder::EndElement(char* name, char* text) {
    const bool isIndication = ixEndNameIs(name, IX_STR_CALL_WAITING_INDICATION);
    return isIndication ? OtherElement(name, text) : XmlOldFamilyDecoder::EndElement(name, text);
}
