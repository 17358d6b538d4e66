// Documents as JSON, through the C interface, next to decoding and releasing alone: what the way to C costs.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "BenchDocuments.h"
#include "XMLReginfo.h"
#include "XmlDocument.h"
#include "imsxml.h"

namespace {

const std::string& Body() {
    static const std::string body = GrownDocument(
        "<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\" version=\"3\" state=\"full\">",
        "<registration aor=\"sip:+1555#@ims.example.net\" id=\"a#\" state=\"active\"><contact id=\"c#\" "
        "state=\"active\" "
        "event=\"registered\" expires=\"599970\" q=\"1.000\"><uri>sip:+1555#@198.51.100.17:31112;transport=tcp</uri>"
        "</contact></registration>\n",
        "</reginfo>", 2048);
    return body;
}

void Decode(benchmark::State& state) {
    const auto profile = static_cast<eXMLProfile>(state.range(0));
    for (auto _ : state) {
        XmlDocument<ix_reginfo> document(profile);
        if (!document.Read(Body().data(), Body().size())) std::abort();
        benchmark::DoNotOptimize(document.Get());
    }
    CountBytes(state, Body().size());
}
BENCHMARK(Decode)->Name("json/decode-alone")->Arg(IX_XML_PROFILE_DEVICE)->Arg(IX_XML_PROFILE_STANDARD);

void DecodeToJson(benchmark::State& state) {
    for (auto _ : state) {
        char* json = nullptr;
        const int status =
            imsxml_decode(Body().data(), Body().size(), "reginfo", static_cast<int>(state.range(0)), &json);
        if (status != IMSXML_OK) std::abort();
        imsxml_free(json);
    }
    CountBytes(state, Body().size());
}
BENCHMARK(DecodeToJson)->Name("json/imsxml_decode")->Arg(IX_XML_PROFILE_DEVICE)->Arg(IX_XML_PROFILE_STANDARD);

void EncodeFromJson(benchmark::State& state) {
    const auto profile = static_cast<int>(state.range(0));
    char* json = nullptr;
    if (imsxml_decode(Body().data(), Body().size(), "reginfo", profile, &json) != IMSXML_OK) std::abort();
    const std::string tree = json;
    imsxml_free(json);
    for (auto _ : state) {
        char* text = nullptr;
        if (imsxml_encode(tree.data(), tree.size(), nullptr, profile, &text) != IMSXML_OK) std::abort();
        imsxml_free(text);
    }
    CountBytes(state, Body().size());
}
BENCHMARK(EncodeFromJson)->Name("json/imsxml_encode")->Arg(IX_XML_PROFILE_DEVICE)->Arg(IX_XML_PROFILE_STANDARD);

}  // namespace
