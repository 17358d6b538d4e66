#include "CallWaitingIndication.h"

#include "XMLCallWaitingIndication.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_3gpp_ims>(IX_STR_3GPP_IMS),
    // Required: the class is spelled so that its objects are never recognised. The alternative service stays on the
    // stack behind its end tag, takes what follows in the root, and is popped in place of the root.
    Child<ix_ns_call_waiting_indication_alternative_service>(IX_STR_ALTERNATIVE_SERVICE)
        .EndsAs("ix_ns_call_waiting_indiaction_alternative_service"),
    Child<ix_ns_call_waiting_indication_action>(IX_STR_ACTION),
    Leaf<ix_empty_element_type>(IX_STR_CALL_WAITING_INDICATION)
        .MadeBy([](const char* name, const char* source, int line) -> XMLElement* {
            return ixCreateEmptyElement(name, source, line);
        }),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLCallWaitingIndicationDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLCallWaitingIndicationDecoder", "m_strDup or m_PassName");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLCallWaitingIndicationDecoder");
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLCallWaitingIndicationDecoder", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLCallWaitingIndicationDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

// Required: the attribute is one of another document, so that the version of the root only ever comes as a pair, which
// the root does not take.
XMLCallWaitingIndicationDecoder::XMLCallWaitingIndicationDecoder()
    : XmlImsBodyDecoder(kInfo, IX_STR_PRESENCE, IX_STR_ENTITY) {}

int XMLCallWaitingIndicationDecoder::EndElement(const XmlTag& tag, char* text) {
    if (tag.name == IX_STR_CALL_WAITING_INDICATION) return OtherElement(tag, text);
    return XmlFamilyDecoder::EndElement(tag, text);
}
