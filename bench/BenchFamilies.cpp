// Whole documents: decode and release, and encode, next to libexpat and pugixml with extraction into plain structs.
#include <cstdlib>
#include <cstring>
#include <pugixml.hpp>

#include "BenchDocuments.h"
#include "XMLFactory.h"

namespace {

struct Family {
    eXMLSchemaID id;
    const char* text;
    void (*expat)(const std::string& text);
    void (*pugixml)(const std::string& text);
};

struct Waiting {
    bool active = false;
    std::string declaration;
};

void WaitingWithExpat(const std::string& text) {
    Waiting waiting;
    ParseWithExpat(
        text, &waiting,
        [](void* context, const XML_Char* name, const XML_Char** attributes) {
            if (std::strcmp(name, "ss:communication-waiting") != 0) return;
            auto& to = *static_cast<Waiting*>(context);
            for (; *attributes != nullptr; attributes += 2) {
                if (std::strcmp(attributes[0], "active") == 0) {
                    to.active = std::strcmp(attributes[1], "true") == 0;
                } else {
                    to.declaration = attributes[1];
                }
            }
        },
        [](void*, const XML_Char*) {}, [](void*, const XML_Char*, int) {});
    if (!waiting.active) std::abort();
}

void WaitingWithPugixml(const std::string& text) {
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size())) std::abort();
    const pugi::xml_node root = document.child("ss:communication-waiting");
    const Waiting waiting{std::strcmp(root.attribute("active").value(), "true") == 0,
                          root.attribute("xmlns:ss").value()};
    if (!waiting.active) std::abort();
}

struct Gruu {
    std::string uri;
    long long firstCseq = 0;
};

void GruuWithExpat(const std::string& text) {
    Gruu gruu;
    ParseWithExpat(
        text, &gruu,
        [](void* context, const XML_Char* name, const XML_Char** attributes) {
            if (std::strcmp(name, "temp-gruu") != 0) return;
            auto& to = *static_cast<Gruu*>(context);
            for (; *attributes != nullptr; attributes += 2) {
                if (std::strcmp(attributes[0], "uri") == 0) to.uri = attributes[1];
                if (std::strcmp(attributes[0], "first-cseq") == 0) to.firstCseq = std::atoll(attributes[1]);
            }
        },
        [](void*, const XML_Char*) {}, [](void*, const XML_Char*, int) {});
    if (gruu.firstCseq != 54301) std::abort();
}

void GruuWithPugixml(const std::string& text) {
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size())) std::abort();
    const pugi::xml_node root = document.child("temp-gruu");
    const Gruu gruu{root.attribute("uri").value(), root.attribute("first-cseq").as_llong()};
    if (gruu.firstCseq != 54301) std::abort();
}

constexpr Family kWaiting = {IX_XML_SCHEMA_COMMUNICATION_WAITING, kCommunicationWaiting, WaitingWithExpat,
                             WaitingWithPugixml};
constexpr Family kGruu = {IX_XML_SCHEMA_GRUU, kTempGruu, GruuWithExpat, GruuWithPugixml};

void Decode(benchmark::State& state, const Family& family) {
    XMLContext* const context = XMLFactory::newInstance(family.id);
    XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
    const auto step = [&] {
        XMLElement* const root = unMarshaller->UnMarshall(family.text);
        if (root == nullptr) std::abort();
        XMLFactory::DeleteElement(root);
    };
    for (auto _ : state) step();
    CountBytes(state, family.text);
    CountAllocations(state, step);
    XMLFactory::deleteContext(context);
}

void DecodePeer(benchmark::State& state, const Family& family, void (*extract)(const std::string&)) {
    const std::string text = family.text;
    for (auto _ : state) extract(text);
    CountBytes(state, text);
}

void Encode(benchmark::State& state, const Family& family) {
    XMLContext* const context = XMLFactory::newInstance(family.id);
    XMLElement* const root = context->createUnMarshaller()->UnMarshall(family.text);
    XMLMarshaller* const marshaller = context->createMarshaller();
    std::string text;
    for (auto _ : state) {
        const char* const written = marshaller->Marshall(root);
        benchmark::DoNotOptimize(written);
        if (text.empty()) text = written;
    }
    CountBytes(state, text);
    CountAllocations(state, [&] { marshaller->Marshall(root); });
    XMLFactory::DeleteElement(root);
    XMLFactory::deleteContext(context);
}

void EncodeWithPugixml(benchmark::State& state, const Family& family) {
    struct Writer : pugi::xml_writer {
        std::string text;
        void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
    };
    pugi::xml_document document;
    document.load_string(family.text);
    std::size_t size = 0;
    for (auto _ : state) {
        Writer writer;
        document.save(writer, "", pugi::format_raw);
        size = writer.text.size();
        benchmark::DoNotOptimize(writer.text.data());
    }
    CountBytes(state, std::string(size, ' '));
}

BENCHMARK_CAPTURE(Decode, waiting_decode_imsxml, kWaiting)->Name("waiting-decode/imsxml");
BENCHMARK_CAPTURE(DecodePeer, waiting_decode_expat, kWaiting, kWaiting.expat)->Name("waiting-decode/expat");
BENCHMARK_CAPTURE(DecodePeer, waiting_decode_pugixml, kWaiting, kWaiting.pugixml)->Name("waiting-decode/pugixml");
BENCHMARK_CAPTURE(Encode, waiting_encode_imsxml, kWaiting)->Name("waiting-encode/imsxml");
BENCHMARK_CAPTURE(EncodeWithPugixml, waiting_encode_pugixml, kWaiting)->Name("waiting-encode/pugixml");
BENCHMARK_CAPTURE(Decode, gruu_decode_imsxml, kGruu)->Name("gruu-decode/imsxml");
BENCHMARK_CAPTURE(DecodePeer, gruu_decode_expat, kGruu, kGruu.expat)->Name("gruu-decode/expat");
BENCHMARK_CAPTURE(DecodePeer, gruu_decode_pugixml, kGruu, kGruu.pugixml)->Name("gruu-decode/pugixml");
BENCHMARK_CAPTURE(Encode, gruu_encode_imsxml, kGruu)->Name("gruu-encode/imsxml");
BENCHMARK_CAPTURE(EncodeWithPugixml, gruu_encode_pugixml, kGruu)->Name("gruu-encode/pugixml");

}  // namespace
