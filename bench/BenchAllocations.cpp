// Counting of heap allocations: our library counts its own, the others are counted here. libexpat and pugixml are given
// counting functions; tinyxml2 and the structs allocate with `new`.
#include <cstdlib>
#include <new>
#include <pugixml.hpp>

#include "BenchDocuments.h"
#include "ixDplHost.h"

namespace {

std::size_t allocations = 0;

void* CountedMalloc(std::size_t size) {
    ++allocations;
    return std::malloc(size);
}

void* CountedRealloc(void* block, std::size_t size) {
    ++allocations;
    return std::realloc(block, size);
}

}  // namespace

const XML_Memory_Handling_Suite kCountedMemory = {CountedMalloc, CountedRealloc, std::free};

void* operator new(std::size_t size) {
    void* const block = CountedMalloc(size != 0 ? size : 1);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

void operator delete(void* block) noexcept { std::free(block); }

void operator delete(void* block, std::size_t /*size*/) noexcept { std::free(block); }

double CountAllocations(const std::function<void()>& step) {
    const pugi::allocation_function allocate = pugi::get_memory_allocation_function();
    const pugi::deallocation_function release = pugi::get_memory_deallocation_function();
    pugi::set_memory_management_functions(CountedMalloc, std::free);
    ixDplHostFailAllocation(0);
    allocations = 0;
    step();
    const std::size_t counted = allocations + ixDplHostAllocations();
    ixDplHostStopCounting();
    pugi::set_memory_management_functions(allocate, release);
    return static_cast<double>(counted);
}
