#include "Imdn.h"

#include "XMLImdn.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_imdn>(IX_STR_IMDN),
    Child<ix_delivery_notification>(IX_STR_DELIVERY_NOTIFICATION),
    Child<ix_display_notification>(IX_STR_DISPLAY_NOTIFICATION),
    Child<ix_processing_notification>(kXmlNameProcessingNotification),
    Child<ix_status>(IX_STR_STATUS),
    Leaf<ix_delivered>(IX_STR_DELIVERED),
    Leaf<ix_failed>(IX_STR_FAILED),
    Leaf<ix_displayed>(IX_STR_DISPLAYED),
    Leaf<ix_processed>(IX_STR_PROCESSED),
    Leaf<ix_stored>(IX_STR_STORED),
    Leaf<ix_forbidden>(IX_STR_FORBIDDEN),
    Leaf<ix_error>(IX_STR_ERROR),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::Top;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLImdnDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLImdnDecoder", "m_strDup or m_PassName");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLImdnDecoder");
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLImdnDecoder", "m_strDup");
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLImdnDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLImdnDecoder::XMLImdnDecoder() : XmlFamilyDecoder(kInfo) {}
