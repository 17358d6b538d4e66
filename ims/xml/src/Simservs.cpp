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
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Mapped;
    info.attributes = XmlAttributePolicy::OwnNoPairs;
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    XmlDecoderTexts& texts = info.texts;
    texts.noElement = IX_NO_ELEMENT_TEXT("XMLSimservsDecoder");
    texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLSimservsDecoder", "m_strDup or m_PassName");
    texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLSimservsDecoder");
    texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLSimservsDecoder", "m_strDup");
    texts.noObject = {3, "<XML Module>: New Failed at element = \"%s\""};
    texts.noFirstNamespace = {2, "XMLSimservsDecoder :: XMLSimservsDecoder: Malloc cannot allocate memory"};
    texts.noNamespace = texts.noFirstNamespace;
    texts.changeTagNoMemory = {2, kDecoderCode, __LINE__,
                               "XMLSimservsDecoder :: XMLChangeNamespaceTag Malloc unable to allocate memory"};
    texts.changeEndTagNoMemory = texts.changeTagNoMemory;
    texts.mappedTagNoMemory = {2, kDecoderCode, __LINE__, "XmlDecoder:: m_strDup: Malloc unable to allocate memory"};
    texts.mappedEndTagNoMemory = texts.mappedTagNoMemory;
    texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLSimservsDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLSimservsDecoder::XMLSimservsDecoder() : XmlFamilyDecoder(kInfo) {}

int XMLSimservsDecoder::StartElement(const XmlTag& tag) {
    // Required: a name is compared over its own length, or over that of "simserv" when it is shorter. So the beginnings
    // "simserv" and "ss:sims" to "ss:simserv" are roots as well.
    char root[] = "simservs";
    constexpr std::size_t kLeast = sizeof "simserv" - 1;
    const std::size_t own = std::strlen(tag.text);
    const std::size_t length = own > kLeast ? own : kLeast;
    const bool isRoot = std::strncmp(tag.text, root, length) == 0 || std::strncmp(tag.text, "ss:simservs", length) == 0;
    return XmlFamilyDecoder::StartElement(isRoot ? XmlTag(root) : tag);
}
