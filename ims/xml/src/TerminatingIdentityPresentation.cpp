#include "TerminatingIdentityPresentation.h"

#include <iterator>

#include "XMLTerminatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/TerminatingIdentityPresentation";

constexpr XmlKnownName kRoot = {IX_STR_TERMINATING_IDENTITY_PRESENTATION};

constexpr XmlContainerRow kContainers[] = {
    {kRoot, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_terminating_identity_presentation)},
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
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLTIPDecoder", "m_PassName", "XMLTIPDecoder");
    info.texts.noFirstNamespace = {
        2, kSchemaCode, __LINE__,
        "XMLTIPDecoder :: XMLTerminatingIdentityPresentationDecoder: Malloc cannot allocate memory"};
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLTIPDecoder::XMLTIPDecoder() : XmlFamilyDecoder(kInfo) {}
