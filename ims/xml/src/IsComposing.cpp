#include "IsComposing.h"

#include "XMLIsComposing.h"

namespace {

const char kSourceFile[] = "ims/xml/src/IsComposing";

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_ISCOMPOSING}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_isComposing)},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers);
    info.names = XmlOldNamePolicy::Stripped;
    // Required: attributes are offered as if they were elements, which the root knows none of; so each is logged, and
    // none is kept.
    info.attributePolicy = XmlOldAttributePolicy::AsElements;
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLIsComposingDecoder::XMLIsComposingDecoder() : XmlOldFamilyDecoder(kInfo) {}
