// The standard profile. libexpat with namespaces is the oracle: it accepts what the reader accepts, but for what the
// reader refuses on purpose. What a schema reads is written so that it reads the same, and nothing leaks, whatever
// allocation fails.
//
// First byte: the schema. Second byte: 0, or the allocation that fails. The rest is the document.
#include <expat.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "XMLFactory.h"
#include "XmlFields.h"
#include "ixDplHost.h"

namespace {

/// True when libexpat accepts a document.
bool IsWellFormed(const std::string& text) {
    // It refuses namespaces with the separator in them: one that is no character.
    XML_ParserStruct* const parser = XML_ParserCreateNS(nullptr, '\1');
    const bool isGood = XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) == XML_STATUS_OK;
    XML_ParserFree(parser);
    return isGood;
}

[[noreturn]] void Fail(const char* what, const std::string& text) {
    std::fprintf(stderr, "%s:\n%s\n", what, text.c_str());
    std::abort();
}

/// What the reader says of a text; "": it is XML with namespaces.
std::string ProblemOf(const std::string& text) {
    const XmlOwnedContext context(
        XMLFactory::newInstance(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, IX_XML_PROFILE_STANDARD));
    XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
    const XmlOwned<> root(unMarshaller->UnMarshall(text.data(), text.size()));
    return root != nullptr ? "" : unMarshaller->Problem()->text;
}

/// True for a document that only one of the two refuses.
bool IsKnownDifference(const std::string& problem, const std::string& text) {
    // Other encodings, documents types and their entities, depth. libexpat has the names of the fourth edition and no
    // other version than 1.0, and takes a NUL for the end of nothing.
    for (const char* const known : {"encoding", "document type", "reference", "open elements", "declaration"}) {
        if (problem.find(known) != std::string::npos) return true;
    }
    if (text.find("<!DOCTYPE") != std::string::npos || text.find("<?xml") != std::string::npos) return true;
    for (const char letter : text) {
        if (static_cast<unsigned char>(letter) >= 0x80) return true;
    }
    return false;
}

void ReadAndWrite(eXMLSchemaID id, const std::string& text, unsigned long failing) {
    const XmlOwnedContext context(XMLFactory::newInstance(id, IX_XML_PROFILE_STANDARD));
    if (context == nullptr) return;
    XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
    XMLMarshaller* const marshaller = context->createMarshaller();
    const std::size_t before = ixDplHostLedger().liveHeapBlocks;
    {
        if (failing != 0) ixDplHostFailAllocation(failing);
        const XmlOwned<> root(unMarshaller->UnMarshall(text.data(), text.size()));
        ixDplHostStopCounting();
        if (root == nullptr && unMarshaller->Problem() == nullptr) Fail("refused without a problem", text);
        if (root != nullptr && marshaller != nullptr) {
            const char* const written = marshaller->Marshall(root.get());
            if (written == nullptr) Fail("read, but not written", text);
            const std::string copy = written;
            const XmlOwned<> again(unMarshaller->UnMarshall(copy.c_str()));
            if (again == nullptr) Fail("written, but not read", text + '\n' + copy);
            if (!XmlFields::Equal(root.get(), again.get()))
                Fail("reads otherwise than it was written", text + '\n' + copy);
            if (marshaller->Marshall(again.get()) != copy) Fail("written otherwise", text + '\n' + copy);
        }
    }
    XMLFactory::Validate(id, text.data(), text.size(), nullptr, nullptr);
    // One text stays with the marshaller.
    if (ixDplHostLedger().liveHeapBlocks > before + 1) Fail("memory is left behind", text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    ixDplHostEnableLedger(true);
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
    const std::string problem = ProblemOf(text);
    if (problem.empty() != IsWellFormed(text) && !IsKnownDifference(problem, text)) {
        Fail(problem.empty() ? "libexpat refuses it" : problem.c_str(), text);
    }
    ReadAndWrite(static_cast<eXMLSchemaID>(data[0] % kXmlSchemaCount), text, data[1]);
    ixDplHostReleaseHeap();
    return 0;
}
