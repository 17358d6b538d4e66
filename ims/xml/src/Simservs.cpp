#include "Simservs.h"

#include <cstring>

#include "XMLSimservs.h"
#include "XMLSimservsXcap.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_Simservs>({IX_STR_SIMSERVS, XmlKnownName::Optional, IX_STR_SS}),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixServiceDecoderInfo(
        ixDecoderInfo<kContainers>(kSource),
        IX_SERVICE_DECODER_TEXTS("XMLSimservsDecoder", "XMLSimservsDecoder", "m_strDup", "XMLSimservsDecoder"));
    info.attributes = XmlAttributePolicy::OwnNoPairs;
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLSimservsDecoder::XMLSimservsDecoder() : XmlFamilyDecoder(kInfo) {}

int XMLSimservsDecoder::StartElement(const XmlTag& tag) {
    if (*tag.text != 's') return XmlFamilyDecoder::StartElement(tag);
    // Required: a name is compared over its own length, or over that of "simserv" when it is shorter. So the beginnings
    // "simserv" and "ss:sims" to "ss:simserv" are roots as well.
    char root[] = "simservs";
    constexpr std::size_t kLeast = sizeof "simserv" - 1;
    const std::size_t own = std::strlen(tag.text);
    const std::size_t length = own > kLeast ? own : kLeast;
    const bool isRoot = std::strncmp(tag.text, root, length) == 0 || std::strncmp(tag.text, "ss:simservs", length) == 0;
    return XmlFamilyDecoder::StartElement(isRoot ? XmlTag(root) : tag);
}
