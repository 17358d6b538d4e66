#include "Imdn.h"

#include "XMLImdn.h"

namespace {

const char kSourceFile[] = "ims/xml/src/Imdn";

constexpr XmlOldKnownName kImdn = {IX_STR_IMDN};
constexpr XmlOldKnownName kProcessingNotification = {IX_STR_PROESSING_NOTIFICATION, XmlOldKnownName::None, IX_STR_IX_NULL,
                                                  kProcessingNotificationElement};

constexpr XmlOldContainerRow kContainers[] = {
    {kImdn, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_imdn)},
    {{IX_STR_DELIVERY_NOTIFICATION}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_delivery_notification)},
    {{IX_STR_DISPLAY_NOTIFICATION}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_display_notification)},
    {kProcessingNotification, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_processing_notification)},
    {{IX_STR_STATUS}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_status)},
    {{IX_STR_DELIVERED}, XmlOldContainerRow::Leaf, nullptr, IX_OLD_CREATOR(ix_delivered)},
    {{IX_STR_FAILED}, XmlOldContainerRow::Leaf, nullptr, IX_OLD_CREATOR(ix_failed)},
    {{IX_STR_DISPLAYED}, XmlOldContainerRow::Leaf, nullptr, IX_OLD_CREATOR(ix_displayed)},
    {{IX_STR_PROCESSED}, XmlOldContainerRow::Leaf, nullptr, IX_OLD_CREATOR(ix_processed)},
    {{IX_STR_STORED}, XmlOldContainerRow::Leaf, nullptr, IX_OLD_CREATOR(ix_stored)},
    {{IX_STR_FORBIDDEN}, XmlOldContainerRow::Leaf, nullptr, IX_OLD_CREATOR(ix_forbidden)},
    {{IX_STR_ERROR}, XmlOldContainerRow::Leaf, nullptr, IX_OLD_CREATOR(ix_error)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    // The marshaller writes the namespace itself.
    {kImdn, IX_STR_XMLNS, true},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlOldNamePolicy::Stripped;
    info.attributePolicy = XmlOldAttributePolicy::Top;
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLImdnDecoder::XMLImdnDecoder() : XmlOldFamilyDecoder(kInfo) {}
