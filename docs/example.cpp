#include <cstdio>

#include "XMLCommunicationWaiting.h"

int main() {
    const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING));
    const XmlOwned<> root(context->createUnMarshaller()->UnMarshall("<communication-waiting active=\"false\"/>"));
    auto* const service = ixAs<ix_communication_waiting>(root.get());
    if (service == nullptr) return 1;  // not complete and balanced, or another document
    std::printf("call waiting is %s\n", service->mActive != 0 ? "on" : "off");
    service->setActiveValue(1);
    std::printf("%s\n", context->createMarshaller()->Marshall(service));
}
