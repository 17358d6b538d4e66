// Who is registered, and where: reads the body of a "reg" event notification (RFC 3680) and lists the contacts of every
// address of record with state, event, expiry and GRUUs.
//
// usage: reginfo-contacts [FILE]
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "XMLReginfo.h"
#include "XmlFields.h"

namespace {

/// A field that the document may lack.
const char* Text(const char* text) { return text != nullptr ? text : "(none)"; }

/// The document's word for an enumerated field.
const char* Word(const XMLElement& element, const char* field) { return Text(XmlFields::Word(element, field)); }

void Print(const ix_ns_reginfo_contact& contact) {
    std::printf("  %s: %s, %s", Text(contact.mUri), Word(contact, "state"), Word(contact, "event"));
    if (contact.mExpires != 0) std::printf(", expires in %lld s", static_cast<long long>(contact.mExpires));
    std::printf("\n");
    // This list holds whatever the contact has besides its own elements: each entry says of which class it is.
    for (const XMLElement* element : XmlEntries<XMLElement>(contact.mAnyElementList)) {
        if (const auto* gruu = ixAs<ix_pub_gruu>(element)) std::printf("    public GRUU %s\n", Text(gruu->mUri));
        if (const auto* gruu = ixAs<ix_temp_gruu>(element)) std::printf("    temporary GRUU %s\n", Text(gruu->mUri));
    }
}

void Print(const ix_reginfo& reginfo) {
    for (const auto* registration : XmlEntries<ix_registration>(reginfo.mRegistrationList)) {
        std::printf("%s: %s\n", Text(registration->mAor), Word(*registration, "state"));
        for (const auto* contact : XmlEntries<ix_ns_reginfo_contact>(registration->mContactList)) Print(*contact);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const char* const name = argc > 1 ? argv[1] : "samples/reginfo/rich.xml";
    std::ifstream file(name, std::ios::binary);
    const std::string body{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};

    const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_REGINFO));
    XMLUnMarshaller* const reader = context != nullptr ? context->createUnMarshaller() : nullptr;
    const XmlOwned<> root(reader != nullptr ? reader->UnMarshall(body.c_str()) : nullptr);
    const auto* const reginfo = ixAs<ix_reginfo>(root.get());
    if (reginfo == nullptr) {
        std::fprintf(stderr, "%s: no complete registration information\n", name);
        return 1;
    }
    Print(*reginfo);
}
