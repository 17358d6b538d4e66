#include "Gruu.h"

#include "XMLGruu.h"

namespace {

const char kSourceFile[] = "ims/xml/src/Gruu";

constexpr XmlOldKnownName kPubGruu = {IX_STR_PUB_GRUU};
constexpr XmlOldKnownName kTempGruu = {IX_STR_TEMP_GRUU};

constexpr XmlOldContainerRow kContainers[] = {
    {kPubGruu, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_pub_gruu)},
    // Required: the end tag of a temporary GRUU is not recognised, so it pops nothing (no class has an empty name).
    {kTempGruu, XmlOldContainerRow::Root, "", IX_OLD_CREATOR(ix_temp_gruu)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kPubGruu, IX_STR_URI},
    {kTempGruu, IX_STR_URI},
    {kTempGruu, IX_STR_FIRST_CSEQ},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlOldNamePolicy::Stripped;
    info.attributePolicy = XmlOldAttributePolicy::Top;
    info.texts.noElement = {3, kSchemaCode, __LINE__, "<XML Module>: XMLGruuDecoder: n_strElement is NULL"};
    info.texts.noAttribute = {3, kSchemaCode, __LINE__,
                              "<XML Module>: XMLGruuDecoder: n_strElement or n_strAttr is NULL"};
    info.texts.noObject = {3, kSchemaCode, __LINE__, "<XML Module>: New Failed at element = \"%s\""};
    info.texts.noPair = {3, kSchemaCode, __LINE__, "<XML Module>: New Failed at any attribute = \"%s\""};
    info.texts.pairRefused = {3, kSchemaCode, __LINE__,
                              "<XML Module>: Any attribute is not allowed for attribute = \"%s\""};
    info.texts.removeTagNoMemory = IX_OLD_REMOVE_TAG_TEXT("XMLGruuDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLGruuDecoder::XMLGruuDecoder() : XmlOldFamilyDecoder(kInfo) {}

int XMLGruuDecoder::OtherElement(char* /*name*/, char* /*text*/) { return 0; }
