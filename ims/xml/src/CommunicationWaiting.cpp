#include "CommunicationWaiting.h"

#include "XMLCommunicationWaiting.h"

namespace {

using namespace XmlContainer;

// Required: the source lines of this family are fixed; the others show their own.

constexpr XmlContainerRow kContainers[] = {
    Root<ix_communication_waiting>({IX_STR_COMMUNICATION_WAITING, XmlKnownName::Optional, IX_STR_SS}).At(314),
};

constexpr XmlDecoderTexts Texts() {
    XmlDecoderTexts texts;
    texts.noElement = {3, "<XML Module>XMLCommunicationWaitingDecoder :: ProcessElement: n_strElement is NULL", 285};
    texts.noElementName = {
        3, "<XML Module>XMLCommunicationWaitingDecoder :: ProcessElement: m_strDup or m_PassName is NULL", 303};
    texts.noAttribute = {3, "<XML Module>XMLCommunicationWaitingDecoder :: ProcessAttribute: n_strElement is NULL",
                         342};
    texts.noAttributeName = {3, "<XML Module>XMLCommunicationWaitingDecoder :: ProcessAttribute: m_strDup is NULL",
                             349};
    texts.noFirstNamespace = {
        2, "XMLCommunicationWaitingDecoder :: XMLCommunicationWaitingDecoder: Malloc cannot allocate memory", 43};
    texts.noNamespace = {
        2, "XMLCommunicationWaitingDecoder :: XMLCommunicationWaitingDecoder: Malloc cannot allocate memory", 46};
    // Required: the texts of the prefix operations name other decoders.
    texts.changeTagNoMemory = {
        2, kDecoderCode, 100,
        "XMLCommunicationDiversionDecoder :: XMLChangeNamespaceTag Malloc unable to allocate memory"};
    texts.changeEndTagNoMemory = {
        2, kDecoderCode, 130,
        "XMLCommunicationDiversionDecoder :: XMLChangeNamespaceTag Malloc unable to allocate memory"};
    texts.mappedTagNoMemory = {2, kDecoderCode, 166, "XmlDecoder:: m_strDup: Malloc unable to allocate memory"};
    texts.mappedEndTagNoMemory = {2, kDecoderCode, 183, "XmlDecoder:: m_strDup: Malloc unable to allocate memory"};
    texts.removeTagNoMemory = {
        2, kDecoderCode, 210,
        "XMLCommunicationDiversionDecoder :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory"};
    return texts;
}

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource, 372);
    info.names = XmlNamePolicy::Mapped;
    info.attributes = XmlAttributePolicy::Top;
    info.texts = Texts();
    info.namespaces = kCommunicationWaitingNamespaces;
    info.namespaceCount = kCommunicationWaitingNamespaceCount;
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

const XmlNamespaceRow kCommunicationWaitingNamespaces[kCommunicationWaitingNamespaceCount] = {
    {IX_STR_SS, IX_STR_IX_NULL, IX_STR_HTTP_URI_ETSI_ORG_NGN_PARAMS_XML_SIMSERVS_XCAP},
    {IX_STR_CP, IX_STR_CP, IX_STR_URN_IETF_PARAMS_XML_NS_COMMON_POLICY},
    {IX_STR_OCP, IX_STR_OCP, IX_STR_URN_OMA_XML_XDM_COMMON_POLICY},
};

XMLCommunicationWaitingDecoder::XMLCommunicationWaitingDecoder() : XmlFamilyDecoder(kInfo) {}
