#include "ixDplBlockCache.h"

#include <cstdlib>

#ifdef IX_DPL_KEEPS_NONE

void* BlockCache::TakeNew(std::size_t size) { return Counted(std::malloc(size != 0 ? size : 1)); }

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

/// Guards what the threads share. A lock is taken for a chunk at a time.
std::mutex sharedMutex;

constexpr unsigned kAnyNumber = ~0U;

}  // namespace

/// What the threads share. It is constant at first and never destroyed: threads may end after it.
struct BlockCache::Shared {
    Chunk none;          ///< In place of a chunk where there is none yet: it has no free block.
    Chunk* empty;        ///< Chunks that threads had too many of.
    BlockCache* closed;  ///< The caches of threads that have ended, for those that come.
    std::size_t chunks;  ///< That have been given out.
};
BlockCache::Shared BlockCache::s_shared;
BlockCache::Chunk BlockCache::s_chunks[kRange / kChunk];

namespace {

/// Lists of chunks, of which each is in one at most.
template <class Chunk>
void Link(Chunk*& list, Chunk& chunk) {
    chunk.before = nullptr;
    chunk.next = list;
    if (list != nullptr) list->before = &chunk;
    list = &chunk;
}

template <class Chunk>
Chunk* Unlink(Chunk*& list, Chunk& chunk) {
    (chunk.before != nullptr ? chunk.before->next : list) = chunk.next;
    if (chunk.next != nullptr) chunk.next->before = chunk.before;
    return &chunk;
}

}  // namespace

bool BlockCache::Reserve() {
    if (WantsPlainBlocks()) return false;
    void* const range =
        mmap(nullptr, kRange, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (range == MAP_FAILED) return false;
    s_begin.store(reinterpret_cast<std::uintptr_t>(range), std::memory_order_relaxed);
    return true;
}

BlockCache::BlockCache() : m_partly{}, m_empty(nullptr), m_emptyCount(0), m_back(nullptr), m_pNext(nullptr) {
    for (Chunk*& current : m_current) current = &s_shared.none;
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
        void* const place = std::malloc(sizeof(BlockCache));
        if (place == nullptr) return false;
        s_pMine = new (place) BlockCache;
    }
    static thread_local Closer closer;
    static_cast<void>(&closer);
    return true;
}

char* BlockCache::BeginOf(const Chunk& chunk) {
    return reinterpret_cast<char*>(s_begin.load(std::memory_order_relaxed)) +
           kChunk * static_cast<std::size_t>(&chunk - s_chunks);
}

/// A chunk without used blocks; NULL when there is none left.
BlockCache::Chunk* BlockCache::NewChunk() {
    if (m_empty != nullptr) {
        --m_emptyCount;
        return Unlink(m_empty, *m_empty);
    }
    const std::lock_guard<std::mutex> lock(sharedMutex);
    if (s_shared.empty != nullptr) return Unlink(s_shared.empty, *s_shared.empty);
    return s_shared.chunks != kRange / kChunk ? &s_chunks[s_shared.chunks++] : nullptr;
}

/// Cuts new blocks, in the order of their addresses, about a page of them. @return false when nothing is left.
bool BlockCache::Cut(Chunk& chunk) {
    constexpr std::size_t kPage = 4096;
    const std::size_t size = kStep * chunk.kind;
    const char* const end = BeginOf(chunk) + kChunk / size * size;
    Block** link = &chunk.free;
    for (std::size_t cut = 0; chunk.rest != end && cut < kPage; cut += size, chunk.rest += size) {
        *link = new (chunk.rest) Block;
        link = &(*link)->next;
    }
    *link = nullptr;
    return chunk.free != nullptr;
}

/// Takes back what other threads have freed.
void BlockCache::TakeBack() {
    Block* block = m_back.exchange(nullptr, std::memory_order_acquire);
    while (block != nullptr) {
        Block* const next = block->next;
        Give(block);
        block = next;
    }
}

/// Sees to it that the current chunk of a kind has a free block. @return false without memory.
bool BlockCache::Refill(unsigned kind) {
    TakeBack();
    // The cache of another thread may have been opened just now, or something has come back.
    Chunk*& current = m_current[kind];
    if (current->free != nullptr) return true;
    if (current != &s_shared.none) {
        if (Cut(*current)) return true;
        current->told = kAnyNumber;
        current = &s_shared.none;
    }
    if (m_partly[kind] != nullptr) {
        current = Unlink(m_partly[kind], *m_partly[kind]);
        return true;
    }
    Chunk* const chunk = NewChunk();
    if (chunk == nullptr) return false;
    *chunk = {nullptr, this, 0, 0, kind, BeginOf(*chunk), nullptr, nullptr};
    current = chunk;
    return Cut(*chunk);
}

/// A chunk has its first free block again, or no used one any more.
void BlockCache::Tell(Chunk& chunk) {
    BlockCache& mine = *s_pMine;
    Chunk*& partly = mine.m_partly[chunk.kind];
    if (mine.m_current[chunk.kind] == &chunk) return;
    if (chunk.told != 0) {
        chunk.told = 0;
        Link(partly, chunk);
    }
    if (chunk.used != 0) return;
    Unlink(partly, chunk);
    if (mine.m_emptyCount != kMostEmpty) {
        ++mine.m_emptyCount;
        Link(mine.m_empty, chunk);
        return;
    }
    madvise(BeginOf(chunk), kChunk, MADV_DONTNEED);
    const std::lock_guard<std::mutex> lock(sharedMutex);
    Link(s_shared.empty, chunk);
}

/// Hands a block to the thread that it is of.
void BlockCache::GiveBack(Chunk& chunk, void* pointer) {
    auto* const block = static_cast<Block*>(pointer);
    std::atomic<Block*>& back = chunk.owner->m_back;
    block->next = back.load(std::memory_order_relaxed);
    while (!back.compare_exchange_weak(block->next, block, std::memory_order_release, std::memory_order_relaxed)) {
    }
}

void* BlockCache::TakeNew(std::size_t size) {
    if (size == 0) size = 1;
    const std::size_t kind = (size + kStep - 1) / kStep;
    const bool isSmall = kind < kKinds && (s_pMine != nullptr || Open());
    return isSmall && s_pMine->Refill(static_cast<unsigned>(kind)) ? Take(size) : Counted(std::malloc(size));
}

#endif
