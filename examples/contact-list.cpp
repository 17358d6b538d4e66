// A list of contacts for an XCAP server (RFC 4826): builds the document and writes it by the public standards.
//
// usage: contact-list [URI...]
#include <cstdio>

#include "XMLResourceList.h"
#include "XmlDocument.h"

int main(int argc, char** argv) {
    XmlDocument<ix_resource_lists> document(IX_XML_PROFILE_STANDARD);
    if (!document.Create()) return 1;  // no memory
    auto* const list = ixAddNew<ix_listType>(*document, document->mListList);
    bool isBuilt = list != nullptr && list->setNameValue("friends & family") != 0;
    for (int i = 1; isBuilt && i < argc; ++i) {
        auto* const entry = ixAddNew<ix_entryType>(*list, list->mChildren);
        isBuilt = entry != nullptr && entry->setUriValue(argv[i]) != 0;
    }
    if (!isBuilt) return 1;
    const char* const text = document.Write();
    std::printf("%s\n", text != nullptr ? text : document.Problem());
    return text != nullptr ? 0 : 1;
}
