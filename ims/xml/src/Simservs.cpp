#include "Simservs.h"

#include <cstring>
#include "XMLSimservs.h"

namespace {

const char kSourceFile[] = "ims/xml/src/Simservs";

constexpr XmlContainerRow kContainers[] = {
    {{IX_STR_SIMSERVS, XmlKnownName::Optional, IX_STR_SS}, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_Simservs)},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers);
    info.names = XmlNamePolicy::Mapped;
    info.attributePolicy = XmlAttributePolicy::OwnNoPairs;
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLSimservsDecoder", "m_strDup", "XMLSimservsDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLSimservsDecoder::XMLSimservsDecoder() : XmlFamilyDecoder(kInfo) {}

int XMLSimservsDecoder::StartElement(char* name) {
    // Required: the comparison stops one letter early, so "simserv" is a root as well.
    char full[] = "simservs";
    return XmlFamilyDecoder::StartElement(std::strcmp(name, "simserv") == 0 ? full : name);
}
