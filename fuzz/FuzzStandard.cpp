// The standard profile. libexpat with namespaces is the oracle: it accepts what the reader accepts, but for what the
// reader refuses on purpose, and reports the same elements, attributes and texts. What a schema reads is written so
// that it reads the same, and nothing leaks, whatever allocation fails.
//
// First byte: the schema. Second byte: 0, or the allocation that fails. The rest is the document.
#include <expat.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "XMLFactory.h"
#include "XmlFields.h"
#include "ixDplHost.h"
#include "standard/XmlReader.h"

namespace {

/// The events of a document: elements and attributes by namespace and local name, and texts.
class Events {
  public:
    void Start(const std::string& name, std::vector<std::string> attributes) {
        EndText();
        std::sort(attributes.begin(), attributes.end());
        m_text += '<' + name + '\n';
        for (const std::string& attribute : attributes) m_text += '@' + attribute + '\n';
    }
    void End() {
        EndText();
        m_text += "/\n";
    }
    void Text(const char* text, std::size_t length) { m_run.append(text, length); }
    const std::string& All() const { return m_text; }

  private:
    /// A comment or a reference in a text is no event.
    void EndText() {
        if (!m_run.empty()) m_text += '"' + m_run + "\"\n";
        m_run.clear();
    }

    std::string m_text;
    std::string m_run;
};

/// Between namespace and name: no character of a document.
constexpr char kSeparator = '\1';

/// True when libexpat accepts a document.
bool ReadByExpat(const std::string& text, Events& events) {
    XML_ParserStruct* const parser = XML_ParserCreateNS(nullptr, kSeparator);
    XML_SetUserData(parser, &events);
    XML_SetElementHandler(
        parser,
        [](void* context, const XML_Char* name, const XML_Char** attributes) {
            std::vector<std::string> all;
            for (; *attributes != nullptr; attributes += 2) {
                all.push_back(std::string(attributes[0]) + '=' + attributes[1]);
            }
            static_cast<Events*>(context)->Start(name, all);
        },
        [](void* context, const XML_Char* /*name*/) { static_cast<Events*>(context)->End(); });
    XML_SetCharacterDataHandler(parser, [](void* context, const XML_Char* data, int length) {
        static_cast<Events*>(context)->Text(data, static_cast<std::size_t>(length));
    });
    const bool isGood = XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) == XML_STATUS_OK;
    XML_ParserFree(parser);
    return isGood;
}

std::string NameOf(const XmlReader& reader, XmlUri uri, const XmlSlice& local) {
    const XmlSlice text = reader.UriText(uri);
    const std::string name(local.text, local.length);
    return text.length != 0 ? std::string(text.text, text.length) + kSeparator + name : name;
}

/// @return what the reader has against a document; "": nothing.
std::string ReadByReader(const std::string& text, Events& events) {
    XmlReader reader;
    if (!reader.Begin(text.data(), text.size())) return reader.Problem()->text;
    for (;;) {
        switch (reader.Next(true)) {
            case XmlReader::kStart: {
                std::vector<std::string> all;
                for (std::size_t i = 0; i < reader.AttributeCount(); ++i) {
                    XmlReaderAttribute& attribute = reader.Attribute(i);
                    if (attribute.declares) continue;
                    if (attribute.isRaw) XmlReader::Decode(attribute.value, true);
                    all.push_back(NameOf(reader, attribute.uri, attribute.local) + '=' +
                                  std::string(attribute.value.text, attribute.value.length));
                }
                events.Start(NameOf(reader, reader.Uri(), reader.Local()), all);
                break;
            }
            case XmlReader::kEnd:
                events.End();
                break;
            case XmlReader::kText: {
                XmlSlice run = reader.Text();
                if (reader.IsRaw()) XmlReader::Decode(run, false);
                events.Text(run.text, run.length);
                break;
            }
            case XmlReader::kDone:
                return "";
            default:
                return reader.Problem()->text;
        }
    }
}

[[noreturn]] void Fail(const char* what, const std::string& text) {
    std::fprintf(stderr, "%s:\n%s\n", what, text.c_str());
    std::abort();
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
    Events expected;
    Events events;
    const bool isWellFormed = ReadByExpat(text, expected);
    const std::string problem = ReadByReader(text, events);
    if (problem.empty() != isWellFormed && !IsKnownDifference(problem, text)) {
        Fail(problem.empty() ? "libexpat refuses it" : problem.c_str(), text);
    }
    if (problem.empty() && isWellFormed && events.All() != expected.All()) {
        Fail("libexpat reads something else", text + '\n' + events.All() + "\n---\n" + expected.All());
    }
    ReadAndWrite(static_cast<eXMLSchemaID>(data[0] % kXmlSchemaCount), text, data[1]);
    ixDplHostReleaseHeap();
    return 0;
}
