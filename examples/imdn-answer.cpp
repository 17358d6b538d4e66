// A message has arrived: writes the disposition notification 'delivered' (RFC 5438) that its sender asked for.
//
// usage: imdn-answer [MESSAGE-ID [DATETIME]]    as in the CPIM headers imdn.Message-ID and DateTime of the message
#include <cstdio>

#include "XMLImdn.h"
#include "XmlDocument.h"

int main(int argc, char** argv) {
    // The device profile writes texts as they stand, and a message id may have "&" in it.
    const std::string id = XmlEscaped(argc > 1 ? argv[1] : "b81f&7Qz2c9");
    const std::string datetime = XmlEscaped(argc > 2 ? argv[2] : "2024-03-05T08:41:07.250+01:00");
    XmlDocument<ix_imdn> document;
    auto* const notification = document.Create() ? ixMake(document->mDeliveryNotification) : nullptr;
    // What is made is a part of the tree at once: nothing is lost when memory runs out.
    ix_status* const status = notification != nullptr ? ixMake(notification->mStatus) : nullptr;
    const bool isBuilt = status != nullptr && XmlEdit::SetFlag(*status, "delivered") != 0 &&
                         document->setMessageIdValue(id.c_str()) != 0 &&
                         document->setDatetimeValue(datetime.c_str()) != 0;
    if (!isBuilt) return 1;  // no memory
    const char* const text = document.Write();
    std::printf("%s\n", text != nullptr ? text : document.Problem());
    return text != nullptr ? 0 : 1;
}
