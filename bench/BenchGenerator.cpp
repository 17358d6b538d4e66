// The text writer: the cost of a piece must not depend on how full the buffer is.
#include <benchmark/benchmark.h>

#include "ixXMLDocGenerator.h"

namespace {

/// Writes `state.range(0)` elements of 33 characters, so that the last argument fills the buffer.
void Append(benchmark::State& state) {
    IxXMLDocGenerator generator;
    int64_t bytes = 0;
    for (auto _ : state) {
        generator.ixInitXmlDoc();
        for (int64_t i = 0; i < state.range(0); ++i) {
            generator.ixStartElement("entry", 1);
            generator.ixAddNameSpacePrefixToXml("uri", "sip:a", nullptr, 0, 1);
            generator.ixXmlSetData("text");
            generator.ixEndXmlElement("entry");
        }
        bytes += static_cast<int64_t>(generator.Length());
        generator.ixDeInitXmlDoc();
    }
    state.SetBytesProcessed(bytes);
}
BENCHMARK(Append)->Name("generator/imsxml")->RangeMultiplier(4)->Range(16, 992);

}  // namespace
