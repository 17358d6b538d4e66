// A platform layer of a device with little: a fixed arena for memory, a counter for the log, no files, no C library
// memory. It is written from ixDpl.h alone, so whatever the library needs beyond that interface does not link. One
// thread.
#include "OtherDpl.h"

#include <cstring>
#include <limits>

#include "ixDpl.h"

namespace {

constexpr std::size_t kArenaSize = 512 * 1024;
constexpr std::size_t kAlignment = alignof(std::max_align_t);

/// In front of every block. The blocks lie one behind the other and fill the arena.
struct alignas(kAlignment) Header {
    std::size_t size;  ///< Of the block with its header.
    bool taken;
};

alignas(kAlignment) unsigned char g_arena[kArenaSize];
bool g_ready = false;
bool g_exhausted = false;
std::size_t g_liveBlocks = 0;
std::size_t g_allocations = 0;
long g_liveObjects = 0;
std::size_t g_logLines = 0;
std::size_t g_opens = 0;

Header* At(std::size_t offset) { return reinterpret_cast<Header*>(g_arena + offset); }

void Prepare() {
    if (g_ready) return;
    g_ready = true;
    *At(0) = {kArenaSize, false};
}

/// Joins the free blocks behind a free one to it.
void Join(std::size_t offset) {
    Header* const block = At(offset);
    while (offset + block->size < kArenaSize && !At(offset + block->size)->taken) {
        block->size += At(offset + block->size)->size;
    }
}

/// First fit.
void* Take(std::size_t size) {
    if (g_exhausted || size > kArenaSize) return nullptr;
    Prepare();
    const std::size_t needed = sizeof(Header) + (size + kAlignment - 1) / kAlignment * kAlignment;
    for (std::size_t offset = 0; offset < kArenaSize; offset += At(offset)->size) {
        Header* const block = At(offset);
        if (block->taken) continue;
        Join(offset);
        if (block->size < needed) continue;
        if (block->size - needed > sizeof(Header)) {
            *At(offset + needed) = {block->size - needed, false};
            block->size = needed;
        }
        block->taken = true;
        ++g_liveBlocks;
        ++g_allocations;
        return g_arena + offset + sizeof(Header);
    }
    return nullptr;
}

}  // namespace

namespace other_dpl {

bool InArena(const void* pointer) {
    const auto address = reinterpret_cast<std::uintptr_t>(pointer);
    const auto start = reinterpret_cast<std::uintptr_t>(g_arena);
    return address >= start && address < start + kArenaSize;
}

std::size_t LiveBlocks() { return g_liveBlocks; }

std::size_t Allocations() { return g_allocations; }

long LiveObjects() { return g_liveObjects; }

std::size_t LogLines() { return g_logLines; }

std::size_t Opens() { return g_opens; }

void SetExhausted(bool exhausted) { g_exhausted = exhausted; }

}  // namespace other_dpl

void ixLogModuleEventSimple(int /*level*/, int /*code*/, const char* /*source*/, int /*line*/, const char* /*format*/,
                            std::uintptr_t /*argument1*/, std::uintptr_t /*argument2*/, std::uintptr_t /*argument3*/) {
    ++g_logLines;
}

void trmemlog_add(int /*module*/, const char* /*source*/, int /*line*/, void* /*pointer*/, std::size_t /*size*/) {
    ++g_liveObjects;
}

void trmemlog_remove(int /*module*/, void* /*pointer*/) { --g_liveObjects; }

void* __malloc(std::size_t size) { return Take(size); }

void* __calloc(std::size_t count, std::size_t size) {
    if (size != 0 && count > std::numeric_limits<std::size_t>::max() / size) return nullptr;
    void* const block = Take(count * size);
    if (block != nullptr) std::memset(block, 0, count * size);
    return block;
}

void __free(void* pointer) {
    if (pointer == nullptr) return;
    Header* const block = reinterpret_cast<Header*>(static_cast<unsigned char*>(pointer) - sizeof(Header));
    block->taken = false;
    --g_liveBlocks;
}

int ixDplIODeviceOpen(ixDplIODevice* device, const char* /*name*/, int /*access*/, int /*option*/) {
    ++g_opens;
    device->handle = 0;
    device->pSpecificInfo = nullptr;
    return other_dpl::kNoFiles;
}

int ixDplIODeviceRead(ixDplIODevice* /*device*/, void* /*buffer*/, std::uint32_t /*size*/, std::int32_t* count) {
    *count = 0;
    return other_dpl::kNoFiles;
}

int ixDplIODeviceWrite(ixDplIODevice* /*device*/, const void* /*buffer*/, std::uint32_t /*size*/, std::int32_t* written,
                       int /*option*/) {
    *written = 0;
    return other_dpl::kNoFiles;
}

int ixDplIODeviceClose(ixDplIODevice* /*device*/) { return 0; }
