#include "CommunicationWaiting.h"

#include <iterator>

#include "XMLCommunicationWaiting.h"

namespace {

const char kSourceFile[] = "ims/xml/src/CommunicationWaiting";

// Required: the source lines of this family are fixed; the others show their own.
constexpr XmlOldKnownName kRoot = {IX_STR_COMMUNICATION_WAITING, XmlOldKnownName::Optional, IX_STR_SS};

constexpr XmlOldContainerRow kContainers[] = {
    {kRoot, XmlOldContainerRow::Root, nullptr,
     [](const char*, const char*) -> XMLElement* { return IX_NEW_AT(314, ix_communication_waiting); }},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info;
    info.source = kSourceFile;
    info.names = XmlOldNamePolicy::Mapped;
    info.attributePolicy = XmlOldAttributePolicy::Top;
    info.containers = kContainers;
    info.containerCount = std::size(kContainers);
    info.attributes = kAttributes;
    info.attributeCount = std::size(kAttributes);
    info.namespaces = kCommunicationWaitingNamespaces;
    info.namespaceCount = kCommunicationWaitingNamespaceCount;
    info.pairLine = 372;
    info.texts.noElement = {3, kSchemaCode, 285,
                            "<XML Module>XMLCommunicationWaitingDecoder :: ProcessElement: n_strElement is NULL"};
    info.texts.noElementName = {
        3, kSchemaCode, 303,
        "<XML Module>XMLCommunicationWaitingDecoder :: ProcessElement: m_strDup or m_PassName is NULL"};
    info.texts.noAttribute = {3, kSchemaCode, 342,
                              "<XML Module>XMLCommunicationWaitingDecoder :: ProcessAttribute: n_strElement is NULL"};
    info.texts.noAttributeName = {3, kSchemaCode, 349,
                                  "<XML Module>XMLCommunicationWaitingDecoder :: ProcessAttribute: m_strDup is NULL"};
    info.texts.noFirstNamespace = {
        2, kSchemaCode, 43,
        "XMLCommunicationWaitingDecoder :: XMLCommunicationWaitingDecoder: Malloc cannot allocate memory"};
    info.texts.noNamespace = {
        2, kSchemaCode, 46,
        "XMLCommunicationWaitingDecoder :: XMLCommunicationWaitingDecoder: Malloc cannot allocate memory"};
    // Required: the texts of the prefix operations name other decoders.
    info.texts.changeTagNoMemory = {
        2, kDecoderCode, 100,
        "XMLCommunicationDiversionDecoder :: XMLChangeNamespaceTag Malloc unable to allocate memory"};
    info.texts.changeEndTagNoMemory = {
        2, kDecoderCode, 130,
        "XMLCommunicationDiversionDecoder :: XMLChangeNamespaceTag Malloc unable to allocate memory"};
    info.texts.mappedTagNoMemory = {2, kDecoderCode, 166, "XmlDecoder:: m_strDup: Malloc unable to allocate memory"};
    info.texts.mappedEndTagNoMemory = {2, kDecoderCode, 183, "XmlDecoder:: m_strDup: Malloc unable to allocate memory"};
    info.texts.removeTagNoMemory = {
        2, kDecoderCode, 210,
        "XMLCommunicationDiversionDecoder :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory"};
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

const XmlNamespaceRow kCommunicationWaitingNamespaces[kCommunicationWaitingNamespaceCount] = {
    {IX_STR_SS, IX_STR_IX_NULL, IX_STR_HTTP_URI_ETSI_ORG_NGN_PARAMS_XML_SIMSERVS_XCAP},
    {IX_STR_CP, IX_STR_CP, IX_STR_URN_IETF_PARAMS_XML_NS_COMMON_POLICY},
    {IX_STR_OCP, IX_STR_OCP, IX_STR_URN_OMA_XML_XDM_COMMON_POLICY},
};

XMLCommunicationWaitingDecoder::XMLCommunicationWaitingDecoder() : XmlOldFamilyDecoder(kInfo) {}
