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

/// A document of about `size` bytes: `head`, then `piece` again and again, a number in place of each `#`, then `tail`.
std::string GrownDocument(const char* head, const std::string& piece, const char* tail, std::size_t size);

/// Has libexpat parse `text` with the handlers of a context. Aborts the process when the text is not well-formed,
/// because a comparison with a parser that gave up says nothing.
void ParseWithExpat(const std::string& text, void* context, XML_StartElementHandler start, XML_EndElementHandler end,
                    XML_CharacterDataHandler data);

/// The memory functions of the above.
extern const XML_Memory_Handling_Suite kCountedMemory;

/// Reports bytes per second, for `size` bytes in every iteration.
void CountBytes(benchmark::State& state, std::size_t size);

/// Runs `step` once. @return the heap allocations that were made in it, by whichever library.
double CountAllocations(const std::function<void()>& step);

#endif
