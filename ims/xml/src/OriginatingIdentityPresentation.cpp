#include "OriginatingIdentityPresentation.h"

#include <iterator>

#include "XMLOriginatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/OriginatingIdentityPresentation";

constexpr XmlKnownName kRoot = {IX_STR_ORIGINATING_IDENTITY_PRESENTATION};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_originating_identity_presentation)},
};

constexpr XmlAttributeRow kAttributes[] = {
    {kRoot, IX_STR_ACTIVE},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info;
    info.source = kSourceFile;
    info.names = XmlNamePolicy::Stripped;
    info.attributePolicy = XmlAttributePolicy::Top;
    info.containers = kContainers;
    info.containerCount = std::size(kContainers);
    info.attributes = kAttributes;
    info.attributeCount = std::size(kAttributes);
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    info.pairLine = __LINE__;
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLOIPDecoder", "m_PassName", "XMLOIPDecoder");
    info.texts.noFirstNamespace = {
        2, kSchemaCode, __LINE__,
        "XMLOIPDecoder :: XMLOriginatingIdentityPresentationDecoder: Malloc cannot allocate memory"};
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLOIPDecoder::XMLOIPDecoder() : XmlFamilyDecoder(kInfo) {}
