#include "BootstrappingInfo.h"

#include <iterator>

#include "XMLBootstrappingInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/BootstrappingInfo";

constexpr XmlContainerRow kContainers[] = {
    {{IX_STR_BOOTSTRAPPINGINFO}, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_bootstrappinginfo)},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info;
    info.source = kSourceFile;
    info.names = XmlNamePolicy::Stripped;
    info.wrapsNameSize = true;
    info.attributePolicy = XmlAttributePolicy::Top;
    info.containers = kContainers;
    info.containerCount = std::size(kContainers);
    info.pairLine = __LINE__;
    info.texts.noElement = {3, kSchemaCode, __LINE__,
                            "<XML Module>XMLBootstrappingInfoDecoder :: ProcessElement: n_strElement is NULL"};
    info.texts.noElementName = {3, kSchemaCode, __LINE__,
                                "<XML Module>XMLBootstrappingInfoDecoder :: ProcessElement: m_PassName is NULL"};
    info.texts.noAttribute = {3, kSchemaCode, __LINE__,
                              "<XML Module>XMLBootstrappingInfoDecoder :: ProcessAttribute: n_strElement is NULL"};
    info.texts.noAttributeName = {3, kSchemaCode, __LINE__,
                                  "<XML Module>XMLBootstrappingInfoDecoder :: ProcessAttribute: m_PassName is NULL"};
    info.texts.noObject = {3, kSchemaCode, __LINE__, "<XML Module>: New Failed at element = \"%s\""};
    info.texts.noPair = {3, kSchemaCode, __LINE__,
                         "<XML Module>: New Failed at any attribute level with element = \"%s\""};
    info.texts.removeTagNoTag = {2, kSchemaCode, __LINE__,
                                 "XMLBootstrappingInfoDecoder :: XMLRemoveNameSpaceTag: n_strElement is NULL"};
    // Required: this line alone has the event number of the tokenizer.
    info.texts.removeTagNoMemory = {
        2, kDecoderCode, __LINE__,
        "XMLBootstrappingInfoDecoder :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory"};
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLBootstrappingInfoDecoder::XMLBootstrappingInfoDecoder() : XmlFamilyDecoder(kInfo) {}
