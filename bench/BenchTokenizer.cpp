// The tokenizer alone, with a decoder that does nothing, next to libexpat with empty handlers and pugixml.
#include <cstdlib>
#include <pugixml.hpp>

#include "BenchDocuments.h"
#include "XmlDecoder.h"

namespace {

class NothingDecoder : public XmlDecoderSchema {
  public:
    int Reserved() override { return 0; }
    int ProcessAttribute(char*, char*, char*) override { return 0; }
    int ProcessElement(char*, char*) override { return 0; }
    int ProcessEndOfStartTag(char*) override { return 0; }
    XMLElement* GetSessionData() override { return nullptr; }
};

void Tokenize(const std::string& text) {
    XmlDecoder tokenizer;
    NothingDecoder decoder;
    tokenizer.SetSchemaDecoder(&decoder);
    if (tokenizer.Decode(text.data(), static_cast<int>(text.size())) != IX_XML_SUCCESS) std::abort();
}

void TokenizeWithExpat(const std::string& text) {
    ParseWithExpat(
        text, nullptr, [](void*, const XML_Char*, const XML_Char**) {}, [](void*, const XML_Char*) {},
        [](void*, const XML_Char*, int) {});
}

void TokenizeWithPugixml(const std::string& text) {
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size())) std::abort();
}

void Run(benchmark::State& state, std::string (*make)(std::size_t), void (*tokenize)(const std::string&)) {
    const std::string text = make(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) tokenize(text);
    CountBytes(state, text.size());
    state.counters["allocations"] = CountAllocations([&] { tokenize(text); });
}

BENCHMARK_CAPTURE(Run, tokenizer_imsxml, FlatDocument, Tokenize)
    ->Name("tokenizer/imsxml")
    ->RangeMultiplier(16)
    ->Range(1 << 10, 1 << 24);
BENCHMARK_CAPTURE(Run, tokenizer_expat, FlatDocument, TokenizeWithExpat)
    ->Name("tokenizer/expat")
    ->RangeMultiplier(16)
    ->Range(1 << 10, 1 << 24);
BENCHMARK_CAPTURE(Run, tokenizer_pugixml, FlatDocument, TokenizeWithPugixml)
    ->Name("tokenizer/pugixml")
    ->RangeMultiplier(16)
    ->Range(1 << 10, 1 << 24);
BENCHMARK_CAPTURE(Run, nested_imsxml, NestedDocument, Tokenize)->Name("nested/imsxml")->Arg(100)->Arg(100000);
BENCHMARK_CAPTURE(Run, nested_expat, NestedDocument, TokenizeWithExpat)->Name("nested/expat")->Arg(100)->Arg(100000);

}  // namespace
