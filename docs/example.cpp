#include <cstdio>

#include "XMLCommunicationWaiting.h"

int main() {
    XMLContext* context = XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    XMLElement* root = context->createUnMarshaller()->UnMarshall("<communication-waiting active=\"false\"/>");
    if (root == nullptr) return 1;  // not complete and balanced, or another document
    auto* service = static_cast<ix_communication_waiting*>(root);
    std::printf("call waiting is %s\n", service->mActive != 0 ? "on" : "off");
    service->setActiveValue(1);
    std::printf("%s\n", context->createMarshaller()->Marshall(root));
    XMLFactory::DeleteElement(root);
    XMLFactory::deleteContext(context);
}
