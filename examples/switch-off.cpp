// What an XCAP client does: reads a whole simservs document (3GPP TS 24.623), switches communication waiting off, and
// writes it back with everything else as it came, whatever the library knows of it.
//
// usage: switch-off [FILE]
#include <cstdio>

#include "XMLSimservs.h"
#include "XmlDocument.h"

int main(int argc, char** argv) {
    const char* const name = argc > 1 ? argv[1] : "samples/simservs/typical.xml";
    XmlDocument<ix_Simservs> document(IX_XML_PROFILE_STANDARD);
    if (!document.ReadFile(name)) return std::fprintf(stderr, "%s: %s\n", name, document.Problem()), 1;
    for (auto* service : XmlEntries<XMLElement>(document->mServiceList)) {
        if (auto* const waiting = ixAs<ix_communication_waiting>(service)) waiting->setActiveValue(0);
    }
    const char* const text = document.Write();
    if (text == nullptr) return std::fprintf(stderr, "%s: %s\n", name, document.Problem()), 1;
    std::printf("%s\n", text);
}
