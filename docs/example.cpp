#include <cstdio>

#include "XMLCommunicationWaiting.h"

int main() {
    const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING));
    XMLUnMarshaller* const reader = context != nullptr ? context->createUnMarshaller() : nullptr;
    XMLMarshaller* const writer = context != nullptr ? context->createMarshaller() : nullptr;
    if (reader == nullptr || writer == nullptr) return 1;  // no memory
    const XmlOwned<> root(reader->UnMarshall("<communication-waiting active=\"false\"/>"));
    auto* const service = ixAs<ix_communication_waiting>(root.get());
    if (service == nullptr) return 1;  // not complete and balanced, or another document
    std::printf("call waiting is %s\n", service->mActive != 0 ? "on" : "off");
    service->setActiveValue(1);
    const char* const text = writer->Marshall(service);
    if (text == nullptr) return 1;  // no memory, or something mandatory is missing
    std::printf("%s\n", text);
}
