// Who is registered, and where: reads the body of a "reg" event notification (RFC 3680) and lists the contacts of every
// address of record with state and event.
//
// usage: reginfo-contacts [FILE]
#include <cstdio>

#include "XMLReginfo.h"
#include "XmlDocument.h"

/// A field that the document may lack.
static const char* Text(const char* text) { return text != nullptr ? text : "(none)"; }

int main(int argc, char** argv) {
    const char* const name = argc > 1 ? argv[1] : "samples/reginfo/rich.xml";
    XmlDocument<ix_reginfo> document;
    if (!document.ReadFile(name)) return std::fprintf(stderr, "%s: %s\n", name, document.Problem()), 1;
    for (const auto* registration : XmlEntries<ix_registration>(document->mRegistrationList)) {
        std::printf("%s: %s\n", Text(registration->mAor), Text(XmlFields::Word(*registration, "state")));
        for (const auto* contact : XmlEntries<ix_ns_reginfo_contact>(registration->mContactList)) {
            const char* const event = XmlFields::Word(*contact, "event");
            std::printf("  %s: %s\n", XmlPlainText(contact->mUri).c_str(), Text(event));
            // This list holds whatever the contact has besides its own elements: each entry says of which class it is.
            for (const XMLElement* element : XmlEntries<XMLElement>(contact->mAnyElementList)) {
                if (const auto* gruu = ixAs<ix_pub_gruu>(element))
                    std::printf("    public GRUU %s\n", Text(gruu->mUri));
            }
        }
    }
}
