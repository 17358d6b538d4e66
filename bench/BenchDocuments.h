// Documents for the benchmarks, and the drivers of the libraries that they are measured against.
#ifndef BENCH_DOCUMENTS_H
#define BENCH_DOCUMENTS_H

#include <benchmark/benchmark.h>
#include <expat.h>

#include <cstddef>
#include <functional>
#include <string>

/// A registration list of about `size` bytes: attributes, texts, indentation, as event bodies have them.
std::string FlatDocument(std::size_t size);

/// `depth` elements, each inside the one before.
std::string NestedDocument(std::size_t depth);

/// A communication waiting document as a network returns it.
extern const char kCommunicationWaiting[];
/// A temporary GRUU.
extern const char kTempGruu[];

/// Has libexpat parse `text` with the handlers of a context. Aborts the process when the text is not well-formed,
/// because a comparison with a parser that gave up says nothing.
void ParseWithExpat(const std::string& text, void* context, XML_StartElementHandler start, XML_EndElementHandler end,
                    XML_CharacterDataHandler data);

/// Reports bytes per second of `text`.
void CountBytes(benchmark::State& state, const std::string& text);

/// Runs `step` once and reports the allocations that the library makes in it.
void CountAllocations(benchmark::State& state, const std::function<void()>& step);

#endif
