#include <cstdio>

#include "XMLCommunicationWaiting.h"
#include "XmlDocument.h"

int main() {
    XmlDocument<ix_communication_waiting> document(IX_XML_PROFILE_STANDARD);
    if (!document.Read("<communication-waiting active=\"false\"/>")) return std::puts(document.Problem()), 1;
    std::printf("call waiting is %s\n", document->mActive != 0 ? "on" : "off");
    document->setActiveValue(1);
    const char* const text = document.Write();
    std::puts(text != nullptr ? text : document.Problem());
}
