#include "ixDplBlockCache.h"

#include <cstdlib>

#ifdef IX_DPL_KEEPS_NONE

void* BlockCache::TakeNew(std::size_t size) { return Counted(std::malloc(size != 0 ? size : 1)); }

void BlockCache::GiveOther(void* pointer) { std::free(pointer); }

#else

#include <sys/mman.h>

#include <cstring>
#include <mutex>
#include <new>

namespace {

/// True when something has to see every block: a user, or valgrind, which shows in what is loaded first.
bool WantsPlainBlocks() {
    if (std::getenv("IMSXML_PLAIN_MALLOC") != nullptr) return true;
    const char* const loaded = std::getenv("LD_PRELOAD");
    return loaded != nullptr && std::strstr(loaded, "vgpreload") != nullptr;
}

/// Guards what the threads share. A lock is taken for hundreds of blocks at a time.
std::mutex sharedMutex;

}  // namespace

/// What the threads share. It is constant at first and never destroyed: threads may end after it.
struct BlockCache::Shared {
    Block* batches[kKinds];
    BlockCache* closed;  ///< The caches of threads that have ended, for those that come.
    std::size_t chunks;  ///< That have been given out.
};
BlockCache::Shared BlockCache::s_shared;

bool BlockCache::Reserve() {
    if (WantsPlainBlocks()) return false;
    void* const range =
        mmap(nullptr, kRange, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (range == MAP_FAILED) return false;
    s_begin.store(reinterpret_cast<std::uintptr_t>(range), std::memory_order_relaxed);
    return true;
}

BlockCache::Closer::~Closer() {
    const std::lock_guard<std::mutex> lock(sharedMutex);
    s_pMine->m_pNext = s_shared.closed;
    s_shared.closed = s_pMine;
    s_pMine = nullptr;
    s_isClosed = true;
}

bool BlockCache::Open() {
    static const bool hasRange = Reserve();
    if (!hasRange || s_isClosed) return false;
    {
        const std::lock_guard<std::mutex> lock(sharedMutex);
        s_pMine = s_shared.closed;
        if (s_pMine != nullptr) s_shared.closed = s_pMine->m_pNext;
    }
    if (s_pMine == nullptr) {
        void* const place = std::calloc(1, sizeof(BlockCache));
        if (place == nullptr) return false;
        s_pMine = new (place) BlockCache;
        for (unsigned i = 0; i < kKinds; ++i) s_pMine->m_kinds[i].number = i;
    }
    static thread_local Closer closer;
    static_cast<void>(&closer);
    return true;
}

/// A chunk of the range; NULL when there is none left.
char* BlockCache::NewChunk(unsigned kind) {
    const std::lock_guard<std::mutex> lock(sharedMutex);
    if (s_shared.chunks == kRange / kChunk) return nullptr;
    s_kinds[s_shared.chunks].store(static_cast<unsigned char>(kind), std::memory_order_relaxed);
    return reinterpret_cast<char*>(s_begin.load(std::memory_order_relaxed)) + kChunk * s_shared.chunks++;
}

void BlockCache::Share(unsigned kind, Block* batch) {
    const std::lock_guard<std::mutex> lock(sharedMutex);
    batch->nextBatch = s_shared.batches[kind];
    s_shared.batches[kind] = batch;
}

/// Puts a full list aside, and what was there before to all threads.
void BlockCache::Kind::Hand() {
    if (full != nullptr) Share(number, full);
    full = first;
    first = nullptr;
    count = 0;
}

/// Sees to it that there are blocks: those put aside, those that threads share, new ones. @return false without memory.
bool BlockCache::Kind::Refill() {
    // The cache of another thread may have been opened just now.
    if (first != nullptr) return true;
    count = kBatch;
    first = full;
    full = nullptr;
    if (first == nullptr) {
        const std::lock_guard<std::mutex> lock(sharedMutex);
        first = s_shared.batches[number];
        if (first != nullptr) s_shared.batches[number] = first->nextBatch;
    }
    return first != nullptr || Cut();
}

/// Cuts new blocks, in the order of their addresses, about a page of them.
bool BlockCache::Kind::Cut() {
    constexpr std::size_t kPage = 4096;
    const std::size_t size = kStep * number;
    if (rest == restEnd) {
        rest = NewChunk(number);
        restEnd = rest != nullptr ? rest + kChunk / size * size : nullptr;
    }
    Block** link = &first;
    for (count = 0; rest != restEnd && count * size < kPage; ++count, rest += size) {
        *link = new (rest) Block;
        link = &(*link)->next;
    }
    *link = nullptr;
    return first != nullptr;
}

void* BlockCache::TakeNew(std::size_t size) {
    if (size == 0) size = 1;
    const std::size_t kind = (size + kStep - 1) / kStep;
    const bool isSmall = kind < kKinds && (s_pMine != nullptr || Open());
    return isSmall && s_pMine->m_kinds[kind].Refill() ? Take(size) : Counted(std::malloc(size));
}

void BlockCache::GiveOther(void* pointer) {
    const std::uintptr_t offset = reinterpret_cast<std::uintptr_t>(pointer) - s_begin.load(std::memory_order_relaxed);
    if (offset >= kRange) {
        std::free(pointer);
    } else if (Open()) {
        Give(pointer);
    } else {
        // The thread is about to end.
        auto* const block = static_cast<Block*>(pointer);
        block->next = nullptr;
        Share(s_kinds[offset / kChunk].load(std::memory_order_relaxed), block);
    }
}

#endif
