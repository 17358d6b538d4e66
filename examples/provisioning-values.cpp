// A provisioning document as settings: reads it from disk with XMLFile and prints one `path/name = value` a line. The
// path is made of the types of the characteristics around a parm.
//
// usage: provisioning-values [FILE]
#include <cstdio>
#include <string>

#include "XMLFile.h"
#include "XMLWapProvisioningDoc.h"

namespace {

const char* Text(const char* text) { return text != nullptr ? text : "(none)"; }

void Print(const ix_parm& parm, const std::string& path) {
    std::printf("%s%s", path.c_str(), Text(parm.mName));
    // Some settings count by their presence and have no value, which is not the same as an empty one.
    if (parm.mValue != nullptr) std::printf(" = %s", parm.mValue);
    std::printf("\n");
}

/// No tree is deeper than the 100 elements that the library has under construction at a time, so that the recursion is
/// bounded whatever the file holds.
void Print(const IxSingleElementList* characteristics, const std::string& path) {
    for (const auto* group : XmlEntries<ix_characteristic>(characteristics)) {
        const std::string inside = path + Text(group->mType) + '/';
        for (const auto* parm : XmlEntries<ix_parm>(group->mParmList)) Print(*parm, inside);
        Print(group->mCharacteristicList, inside);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const char* const name = argc > 1 ? argv[1] : "samples/wap-provisioning/typical.xml";
    const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_WAP_PROVISIONING_DOC));
    XMLUnMarshaller* const reader = context != nullptr ? context->createUnMarshaller() : nullptr;
    XMLFile file(name, eXMLFileRead);
    const XmlOwned<> root(reader != nullptr ? reader->UnMarshall(&file) : nullptr);
    // The tree holds copies. The file is open until it is closed: its destructor does not do it.
    file.CloseFile();
    const auto* const document = ixAs<ix_wap_provisioning_doc>(root.get());
    if (document == nullptr) {
        std::fprintf(stderr, "%s: no readable and complete provisioning document\n", name);
        return 1;
    }
    Print(document->mCharacteristicList, "");
}
