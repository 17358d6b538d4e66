/// @file
/// Small blocks, cut from one range of addresses and kept by each thread for its next allocations.
///
/// A document is hundreds of small blocks that come and go together. The C library's allocator merges them when they
/// have gone and splits them up again for the next document, which takes a third of the time of a small document, and
/// most of that of a large one.
#ifndef IX_DPL_BLOCK_CACHE_H
#define IX_DPL_BLOCK_CACHE_H

#include <atomic>
#include <cstddef>
#include <cstdint>

// A sanitizer has to see every block come and go, in its true size.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || __SIZEOF_POINTER__ < 8
#define IX_DPL_KEEPS_NONE 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define IX_DPL_KEEPS_NONE 1
#endif
#endif

/// The small blocks of one thread. A block may be freed by another thread than the one that took it.
///
/// The range is 1 GiB of addresses, of which only what is used takes memory. It is cut into chunks, a chunk into blocks
/// of one kind, so that the address of a block tells its size. What a thread has too many of goes in batches to all
/// threads. The memory serves again and is not given back to the system.
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
            Kind& blocks = mine->m_kinds[kind];
            Block* const block = blocks.first;
            if (block != nullptr) {
                blocks.first = block->next;
                --blocks.count;
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
        BlockCache* const mine = s_pMine;
        if (offset < kRange && mine != nullptr) {
            Kind& blocks = mine->m_kinds[s_kinds[offset / kChunk].load(std::memory_order_relaxed)];
            auto* const block = static_cast<Block*>(pointer);
            block->next = blocks.first;
            blocks.first = block;
            if (++blocks.count >= kBatch) blocks.Hand();
            return;
        }
#endif
        GiveOther(pointer);
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
    static void GiveOther(void* pointer);

    static inline thread_local unsigned long s_failed = 0;
#ifndef IX_DPL_KEEPS_NONE
    struct Block {
        Block* next;
        Block* nextBatch;  ///< First block of a batch that all threads share.
    };
    /// The free blocks of one size.
    struct Kind {
        Block* first;
        Block* full;      ///< A batch more, so that a thread at the limit does not share at each block. NULL: none.
        unsigned count;   ///< Of the list at `first`, or more.
        unsigned number;  ///< In `m_kinds`.
        char* rest;       ///< What has not been cut yet.
        char* restEnd;

        void Hand();
        bool Refill();
        bool Cut();
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
    static constexpr std::size_t kBatch = 512;

    static bool Open();
    static bool Reserve();
    static char* NewChunk(unsigned kind);
    static void Share(unsigned kind, Block* batch);

    Kind m_kinds[kKinds];
    BlockCache* m_pNext;  ///< The next one whose thread has ended.

    static Shared s_shared;
    /// Where the range begins; where no block is, as long as there is none.
    static inline std::atomic<std::uintptr_t> s_begin{~std::uintptr_t{0} >> 1};
    static inline std::atomic<unsigned char> s_kinds[kRange / kChunk];  ///< By chunk.
#ifdef __GLIBC__
    // Its address is computed without a call of the dynamic linker.
    [[gnu::tls_model("initial-exec")]]
#endif
    static inline thread_local BlockCache* s_pMine = nullptr;  ///< NULL: not open yet, or closed.
    static inline thread_local bool s_isClosed = false;
#endif
};

#endif
