#include "Simservs.h"

#include <cstring>
#include "XMLSimservs.h"

namespace {

const char kSourceFile[] = "ims/xml/src/Simservs";

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_SIMSERVS, XmlOldKnownName::Optional, IX_STR_SS}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_Simservs)},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers);
    info.names = XmlOldNamePolicy::Mapped;
    info.attributePolicy = XmlOldAttributePolicy::OwnNoPairs;
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    IX_SERVICE_DECODER_TEXTS(info.texts, "XMLSimservsDecoder", "m_strDup", "XMLSimservsDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLSimservsDecoder::XMLSimservsDecoder() : XmlOldFamilyDecoder(kInfo) {}

int XMLSimservsDecoder::StartElement(char* name) {
    // Required: a name is compared over its own length, or over that of "simserv" when it is shorter. So the beginnings
    // "simserv" and "ss:sims" to "ss:simserv" are roots as well.
    char root[] = "simservs";
    constexpr std::size_t kLeast = sizeof "simserv" - 1;
    const std::size_t own = std::strlen(name);
    const std::size_t length = own > kLeast ? own : kLeast;
    const bool isRoot = std::strncmp(name, root, length) == 0 || std::strncmp(name, "ss:simservs", length) == 0;
    return XmlOldFamilyDecoder::StartElement(isRoot ? root : name);
}
