// A provisioning document as settings: prints one `path/name = value` a line. The path is made of the types of the
// characteristics around a parm.
//
// usage: provisioning-values [FILE]
#include <cstdio>

#include "XMLWapProvisioningDoc.h"
#include "XmlDocument.h"

static const char* Text(const char* text) { return text != nullptr ? text : "(none)"; }

/// No tree is deeper than the 100 elements that the library has under construction at a time, so that the recursion is
/// bounded whatever the file holds.
static void Print(const IxSingleElementList* characteristics, const std::string& path) {
    for (const auto* group : XmlEntries<ix_characteristic>(characteristics)) {
        const std::string inside = path + Text(group->mType) + '/';
        for (const auto* parm : XmlEntries<ix_parm>(group->mParmList)) {
            std::printf("%s%s", inside.c_str(), Text(parm->mName));
            // Some settings count by their presence and have no value, which is not the same as an empty one.
            if (parm->mValue != nullptr) std::printf(" = %s", parm->mValue);
            std::printf("\n");
        }
        Print(group->mCharacteristicList, inside);
    }
}

int main(int argc, char** argv) {
    const char* const name = argc > 1 ? argv[1] : "samples/wap-provisioning/typical.xml";
    XmlDocument<ix_wap_provisioning_doc> document;
    if (!document.ReadFile(name)) return std::fprintf(stderr, "%s: %s\n", name, document.Problem()), 1;
    Print(document->mCharacteristicList, "");
}
