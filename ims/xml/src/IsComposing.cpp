#include "IsComposing.h"

#include "XMLIsComposing.h"

namespace {

const char kSourceFile[] = "ims/xml/src/IsComposing";

constexpr XmlContainerRow kContainers[] = {
    {{IX_STR_ISCOMPOSING}, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_isComposing)},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers);
    info.names = XmlNamePolicy::Stripped;
    // Required: attributes are offered as if they were elements, which the root knows none of; so each is logged, and
    // none is kept.
    info.attributePolicy = XmlAttributePolicy::AsElements;
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLIsComposingDecoder::XMLIsComposingDecoder() : XmlFamilyDecoder(kInfo) {}
