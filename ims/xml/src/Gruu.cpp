#include "Gruu.h"

#include "XMLGruu.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_pub_gruu>(IX_STR_PUB_GRUU),
    // Required: the end tag of a temporary GRUU is not recognised, so it pops nothing (no class has an empty name).
    Root<ix_temp_gruu>(IX_STR_TEMP_GRUU).EndsAs(""),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    info.texts.noElement = {3, "<XML Module>: XMLGruuDecoder: n_strElement is NULL"};
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLGruuDecoder", "m_strDup or m_PassName");
    info.texts.noAttribute = {3, "<XML Module>: XMLGruuDecoder: n_strElement or n_strAttr is NULL"};
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLGruuDecoder", "m_strDup");
    info.texts.noObject = {3, "<XML Module>: New Failed at element = \"%s\""};
    info.texts.noPair = {3, "<XML Module>: New Failed at any attribute = \"%s\""};
    info.texts.pairRefused = {3, "<XML Module>: Any attribute is not allowed for attribute = \"%s\""};
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLGruuDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLGruuDecoder::XMLGruuDecoder() : XmlFamilyDecoder(kInfo) {}
