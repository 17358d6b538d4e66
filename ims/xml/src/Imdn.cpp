#include "Imdn.h"

#include "XMLImdn.h"

namespace {

const char kSourceFile[] = "ims/xml/src/Imdn";

constexpr XmlKnownName kImdn = {IX_STR_IMDN};
constexpr XmlKnownName kProcessingNotification = {IX_STR_PROESSING_NOTIFICATION, XmlKnownName::None, IX_STR_IX_NULL,
                                                  kProcessingNotificationElement};

constexpr XmlContainerRow kContainers[] = {
    {kImdn, XmlContainerRow::Root, nullptr, IX_CREATOR(ix_imdn)},
    {{IX_STR_DELIVERY_NOTIFICATION}, XmlContainerRow::Child, IX_OBJECT(ix_delivery_notification)},
    {{IX_STR_DISPLAY_NOTIFICATION}, XmlContainerRow::Child, IX_OBJECT(ix_display_notification)},
    {kProcessingNotification, XmlContainerRow::Child, IX_OBJECT(ix_processing_notification)},
    {{IX_STR_STATUS}, XmlContainerRow::Child, IX_OBJECT(ix_status)},
    {{IX_STR_DELIVERED}, XmlContainerRow::Leaf, nullptr, IX_CREATOR(ix_delivered)},
    {{IX_STR_FAILED}, XmlContainerRow::Leaf, nullptr, IX_CREATOR(ix_failed)},
    {{IX_STR_DISPLAYED}, XmlContainerRow::Leaf, nullptr, IX_CREATOR(ix_displayed)},
    {{IX_STR_PROCESSED}, XmlContainerRow::Leaf, nullptr, IX_CREATOR(ix_processed)},
    {{IX_STR_STORED}, XmlContainerRow::Leaf, nullptr, IX_CREATOR(ix_stored)},
    {{IX_STR_FORBIDDEN}, XmlContainerRow::Leaf, nullptr, IX_CREATOR(ix_forbidden)},
    {{IX_STR_ERROR}, XmlContainerRow::Leaf, nullptr, IX_CREATOR(ix_error)},
};

constexpr XmlAttributeRow kAttributes[] = {
    // The marshaller writes the namespace itself.
    {kImdn, IX_STR_XMLNS, true},
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlNamePolicy::Stripped;
    info.attributePolicy = XmlAttributePolicy::Top;
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLImdnDecoder::XMLImdnDecoder() : XmlFamilyDecoder(kInfo) {}
