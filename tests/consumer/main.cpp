// What a user of the library does first: read a document, change it, write it.
#include <cstdio>

#include "XMLCommunicationWaiting.h"

namespace {

const char kBody[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<communication-waiting xmlns=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\" active=\"true\"/>";

/// @return the exit code.
int Flip(XMLContext& context) {
    XMLUnMarshaller* const reader = context.createUnMarshaller();
    XMLMarshaller* const writer = context.createMarshaller();
    if (reader == nullptr || writer == nullptr) return 2;
    XMLElement* const root = reader->UnMarshall(kBody);
    if (root == nullptr) return 3;
    auto* const service = static_cast<ix_communication_waiting*>(root);
    service->setActiveValue(service->mActive != 0 ? 0 : 1);
    const char* const text = writer->Marshall(root);
    if (text != nullptr) std::puts(text);
    XMLFactory::DeleteElement(root);
    return text != nullptr ? 0 : 4;
}

}  // namespace

int main() {
    XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    if (context == nullptr) return 1;
    const int result = Flip(*context);
    XMLFactory::deleteContext(context);
    return result;
}
