/// @file
/// Small blocks, cut from one range of addresses, for the documents of each thread.
///
/// A document is hundreds of small blocks that come and go together. The C library's allocator merges them when they
/// have gone and splits them up again for the next document, which takes a third of the time of a small document, and
/// more of a large one.
#ifndef IX_DPL_BLOCK_CACHE_H
#define IX_DPL_BLOCK_CACHE_H

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

// A sanitizer has to see every block come and go, in its true size.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || __SIZEOF_POINTER__ < 8
#define IX_DPL_KEEPS_NONE 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define IX_DPL_KEEPS_NONE 1
#endif
#endif

/// The small blocks of one thread.
///
/// The range is 1 GiB of addresses, of which only what is used takes memory. It is cut into chunks, a chunk into blocks
/// of one size, so that the address of a block tells its size and whose it is. A chunk whose blocks have all gone is
/// cut anew, so that the blocks of the next large document lie side by side again; what a thread has too many of goes
/// to the others and back to the system. A block that another thread frees waits until its own thread needs blocks.
///
/// It steps back, so that every block is one of the C library: in a sanitizer build, under valgrind, with
/// `IMSXML_PLAIN_MALLOC` in the environment, on a 32-bit machine, and when the range is used up.
class BlockCache {
  public:
    /// A block of at least `size` bytes; NULL without memory.
    static void* Take(std::size_t size) {
#ifndef IX_DPL_KEEPS_NONE
        BlockCache* const mine = s_pMine;
        const std::size_t kind = (size + kStep - 1) / kStep;
        if (mine != nullptr && kind < kKinds) {
            Chunk& chunk = *mine->m_current[kind];
            Block* const block = chunk.free;
            if (block != nullptr) {
                chunk.free = block->next;
                ++chunk.used;
                return block;
            }
        }
#endif
        return TakeNew(size);
    }

    /// Frees `pointer`, which is not NULL: a block of `Take` or of the C library.
    static void Give(void* pointer) {
#ifndef IX_DPL_KEEPS_NONE
        const std::uintptr_t offset =
            reinterpret_cast<std::uintptr_t>(pointer) - s_begin.load(std::memory_order_relaxed);
        if (offset < kRange) {
            Chunk& chunk = s_chunks[offset / kChunk];
            if (chunk.owner != s_pMine) {
                GiveBack(chunk, pointer);
                return;
            }
            auto* const block = static_cast<Block*>(pointer);
            block->next = chunk.free;
            chunk.free = block;
            if (--chunk.used <= chunk.told) Tell(chunk);
            return;
        }
#endif
        std::free(pointer);
    }

    /// Counts an allocation without a result. @return `block`.
    static void* Counted(void* block) {
        if (block == nullptr) ++s_failed;
        return block;
    }
    /// How many allocations of this thread have failed.
    static unsigned long Failed() { return s_failed; }

  private:
    static void* TakeNew(std::size_t size);

    static inline thread_local unsigned long s_failed = 0;
#ifndef IX_DPL_KEEPS_NONE
    struct Block {
        Block* next;
    };
    /// A piece of the range.
    struct Chunk {
        Block* free;  ///< Blocks that have been cut and are free.
        BlockCache* owner;
        unsigned used;
        /// `Tell` is called when so few blocks are used: none; any number while the chunk is in no list.
        unsigned told;
        unsigned kind;
        char* rest;     ///< What has not been cut yet.
        Chunk* before;  ///< In the list that it is in: those of its kind with free blocks, or those without any used.
        Chunk* next;
    };
    /// Leaves the cache of its thread to another one when that ends.
    struct Closer {
        ~Closer();
    };
    struct Shared;

    static constexpr std::size_t kStep = 16;
    static constexpr std::size_t kKinds = 33;  ///< Up to 512 bytes; the first is of no bytes and stays empty.
    static constexpr std::size_t kChunk = std::size_t{1} << 16;
    static constexpr std::size_t kRange = std::size_t{1} << 30;
    static constexpr unsigned kMostEmpty = 64;  ///< Chunks without used blocks that a thread keeps.

    BlockCache();

    static bool Open();
    static bool Reserve();
    static void GiveBack(Chunk& chunk, void* pointer);
    static void Tell(Chunk& chunk);
    static char* BeginOf(const Chunk& chunk);
    bool Refill(unsigned kind);
    Chunk* NewChunk();
    void TakeBack();
    static bool Cut(Chunk& chunk);

    Chunk* m_current[kKinds];  ///< That blocks are taken from; never NULL.
    Chunk* m_partly[kKinds];   ///< Others with free blocks.
    Chunk* m_empty;
    unsigned m_emptyCount;
    std::atomic<Block*> m_back;  ///< What other threads have freed.
    BlockCache* m_pNext;         ///< The next one whose thread has ended.

    static Shared s_shared;
    static Chunk s_chunks[kRange / kChunk];
    /// Where the range begins; where no block is, as long as there is none.
    static inline std::atomic<std::uintptr_t> s_begin{~std::uintptr_t{0} >> 1};
#ifdef __GLIBC__
    // Its address is computed without a call of the dynamic linker.
    [[gnu::tls_model("initial-exec")]]
#endif
    static inline thread_local BlockCache* s_pMine = nullptr;  ///< NULL: not open yet, or closed.
    static inline thread_local bool s_isClosed = false;
#endif
};

#endif
