// Who is registered, and where: reads the body of a "reg" event notification (RFC 3680) and lists the contacts of every
// address of record with state, event, expiry and GRUUs.
//
// usage: reginfo-contacts [FILE]
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

#include "XMLReginfo.h"

namespace {

/// The first entry of a list. An element without entries has no list at all.
const IxSingleElementNode* First(const IxSingleElementList* list) {
    return list != nullptr ? list->GetPtrToListHead() : nullptr;
}

/// A field that the document may lack.
const char* Text(const char* text) {
    return text != nullptr ? text : "(none)";
}

/// The document's word for an enumerated field of `element`, as the field table of its class has it.
const char* Word(const XMLElement& element, const char* name) {
    const XmlFieldTable* const table = element.FieldTable();
    for (std::size_t i = 0; table != nullptr && i < table->count; ++i) {
        const XmlField& field = table->fields[i];
        if (field.enumeration == nullptr || std::strcmp(field.Name(), name) != 0) continue;
        return Text(field.enumeration->TextOf(XmlFields::Number(element, field)));
    }
    return Text(nullptr);
}

void Print(const ix_ns_reginfo_contact& contact) {
    std::printf("  %s: %s, %s", Text(contact.mUri), Word(contact, "state"), Word(contact, "event"));
    if (contact.mExpires != 0) std::printf(", expires in %lld s", static_cast<long long>(contact.mExpires));
    std::printf("\n");
    // This list holds whatever the contact has besides its own elements: each entry says of which class it is.
    for (const IxSingleElementNode* node = First(contact.mAnyElementList); node != nullptr; node = node->next) {
        const auto* const element = static_cast<const XMLElement*>(node->key);
        if (ixIs<ix_pub_gruu>(element)) {
            std::printf("    public GRUU %s\n", Text(static_cast<const ix_pub_gruu*>(element)->mUri));
        } else if (ixIs<ix_temp_gruu>(element)) {
            std::printf("    temporary GRUU %s\n", Text(static_cast<const ix_temp_gruu*>(element)->mUri));
        }
    }
}

/// Lists are walked node by node: by index, every step would start at the head again.
void Print(const ix_reginfo& reginfo) {
    for (const IxSingleElementNode* node = First(reginfo.mRegistrationList); node != nullptr; node = node->next) {
        const auto& registration = *static_cast<const ix_registration*>(node->key);
        std::printf("%s: %s\n", Text(registration.mAor), Word(registration, "state"));
        for (const IxSingleElementNode* inner = First(registration.mContactList); inner; inner = inner->next) {
            Print(*static_cast<const ix_ns_reginfo_contact*>(inner->key));
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    const char* const name = argc > 1 ? argv[1] : "samples/reginfo/rich.xml";
    std::ifstream file(name, std::ios::binary);
    const std::string body{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};

    XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_REGINFO);
    XMLUnMarshaller* const reader = context != nullptr ? context->createUnMarshaller() : nullptr;
    XMLElement* const root = reader != nullptr ? reader->UnMarshall(body.c_str()) : nullptr;
    // The schema has one root element, so its class is known.
    if (root != nullptr) Print(*static_cast<const ix_reginfo*>(root));
    if (root == nullptr) std::fprintf(stderr, "%s: no complete registration information\n", name);
    XMLFactory::DeleteElement(root);
    XMLFactory::deleteContext(context);
    return root != nullptr ? 0 : 1;
}
