// A message has arrived, and later somebody reads it: writes the two disposition notifications (RFC 5438) that its
// sender asked for, 'delivered' and 'displayed'.
//
// usage: imdn-answer [MESSAGE-ID [DATETIME]]    as in the CPIM headers imdn.Message-ID and DateTime of the message
#include <cstdio>
#include <string>

#include "XMLImdn.h"
#include "XmlMarkup.h"

namespace {

/// Each element is hung into the tree as soon as it is made; all `set` operations for children take them over for good.
bool SetDelivered(IMDNDataBinder& binder, ix_imdn& imdn) {
    ix_delivery_notification* const notification = binder.CreateDeliverNotification();
    if (notification == nullptr) return false;
    imdn.setDeliveryNotificationValue(notification);
    ix_status* const status = binder.CreateStatus();
    if (status == nullptr) return false;
    notification->setStatusValue(status);
    status->setDeliveredValue(binder.CreateDeliveredElement());
    return status->mDelivered != nullptr;
}

bool SetDisplayed(IMDNDataBinder& binder, ix_imdn& imdn) {
    // Of several notifications only the first is written, so the one before has to go.
    imdn.setDeliveryNotificationValue(nullptr);
    ix_display_notification* const notification = binder.CreateDisplayNotification();
    if (notification == nullptr) return false;
    imdn.setDisplayNotificationValue(notification);
    ix_status* const status = binder.CreateStatus();
    if (status == nullptr) return false;
    notification->setStatusValue(status);
    status->setDisplayedValue(binder.CreateDisplayedElement());
    return status->mDisplayed != nullptr;
}

/// The text belongs to the marshaller, and is gone with its next one.
bool Send(XMLMarshaller& writer, ix_imdn& imdn) {
    const char* const text = writer.Marshall(&imdn);
    if (text == nullptr || writer.IsTruncated() != 0) return false;
    std::printf("%s\n", text);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    // The library writes texts as they stand, and a message id may have "&" in it.
    const std::string id = XmlEscaped(argc > 1 ? argv[1] : "b81f&7Qz2c9");
    const std::string datetime = XmlEscaped(argc > 2 ? argv[2] : "2024-03-05T08:41:07.250+01:00");

    const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_IMDN));
    if (context == nullptr) return 1;
    // The factory of a schema has creators of its own behind the common one.
    auto* const binder = static_cast<IMDNDataBinder*>(context->createBinderFactory());
    XMLMarshaller* const writer = context->createMarshaller();
    const XmlOwned<> root(binder != nullptr && writer != nullptr ? binder->CreateRootElement() : nullptr);
    auto* const imdn = ixAs<ix_imdn>(root.get());
    const bool sent = imdn != nullptr && imdn->setMessageIdValue(id.c_str()) != 0 &&
                      imdn->setDatetimeValue(datetime.c_str()) != 0 && SetDelivered(*binder, *imdn) &&
                      Send(*writer, *imdn) && SetDisplayed(*binder, *imdn) && Send(*writer, *imdn);
    return sent ? 0 : 1;
}
