#include "BootstrappingInfo.h"

#include "XMLBootstrappingInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/BootstrappingInfo";

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_BOOTSTRAPPINGINFO}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_bootstrappinginfo)},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers);
    info.names = XmlOldNamePolicy::Stripped;
    info.wrapsNameSize = true;
    info.attributePolicy = XmlOldAttributePolicy::Top;
    IX_OLD_DECODER_TEXTS(info.texts, "XMLBootstrappingInfoDecoder", "m_PassName", "m_PassName");
    info.texts.noObject = {3, kSchemaCode, __LINE__, "<XML Module>: New Failed at element = \"%s\""};
    info.texts.noPair = {3, kSchemaCode, __LINE__,
                         "<XML Module>: New Failed at any attribute level with element = \"%s\""};
    info.texts.removeTagNoTag = {2, kSchemaCode, __LINE__,
                                 "XMLBootstrappingInfoDecoder :: XMLRemoveNameSpaceTag: n_strElement is NULL"};
    // Required: this line alone has the event number of the tokenizer.
    info.texts.removeTagNoMemory = IX_OLD_REMOVE_TAG_TEXT("XMLBootstrappingInfoDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLBootstrappingInfoDecoder::XMLBootstrappingInfoDecoder() : XmlOldFamilyDecoder(kInfo) {}
