/// @file
/// Small blocks that were freed, kept for the next allocations of the same thread.
///
/// A document is hundreds of small blocks that come and go together. The C library's allocator merges them when they
/// have gone and splits them up again for the next document, which takes up to a third of the time of a document.
#ifndef IX_DPL_BLOCK_CACHE_H
#define IX_DPL_BLOCK_CACHE_H

#include <cstddef>
#include <cstdlib>
#include <new>

// A sanitizer has to see every block come and go, in its true size. How much room a block has, only some C libraries
// tell.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || !defined(__GLIBC__)
#define IX_DPL_KEEPS_NONE 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define IX_DPL_KEEPS_NONE 1
#endif
#endif

#ifndef IX_DPL_KEEPS_NONE
#include <malloc.h>
#endif

/// The cache of a thread. Its blocks are blocks of the C library, and can be freed as such at any time.
///
/// Every thread's cache begins as zeros, when it keeps nothing. It opens with the first block that is given, and is
/// closed for good before the thread ends: what is freed later is not kept.
class BlockCache {
  public:
    /// A block of at least `size` bytes, new where none is kept; NULL without memory.
    void* Take(std::size_t size) {
        if (!kKeeps) return std::malloc(size != 0 ? size : 1);
        const std::size_t kind = size <= kSmallest ? 0 : (size - kSmallest + kStep - 1) / kStep;
        if (kind >= kKinds) return std::malloc(size);
        Block* const block = m_first[kind];
        // All blocks of a kind are of its full size, so that each serves for each.
        if (block == nullptr) return std::malloc(kSmallest + kind * kStep);
        m_first[kind] = block->next;
        ++m_room;
        return block;
    }

    /// Keeps `pointer`, which is not NULL, or frees it.
    void Give(void* pointer) {
        // Below the smallest kind, the difference is a huge number.
        const std::size_t kind = (RoomOf(pointer) - kSmallest) / kStep;
        if (!kKeeps || kind >= kKinds || (m_room == 0 && !Open())) {
            std::free(pointer);
            return;
        }
        --m_room;
        m_first[kind] = new (pointer) Block{m_first[kind]};
    }

    /// The cache of this thread.
    static BlockCache& Mine() {
#ifdef __GLIBC__
        // Its address is computed without a call of the dynamic linker. The 144 bytes fit the room that glibc spares
        // for libraries which are loaded later.
        [[gnu::tls_model("initial-exec")]]
#endif
        static thread_local BlockCache cache;
        return cache;
    }

  private:
    struct Block {
        Block* next;
    };
    /// Closes the cache of its thread when that ends.
    struct Closer {
        ~Closer() { Mine().Close(); }
    };

    static constexpr std::size_t kSmallest = 24;  ///< Sizes that the C library's blocks have on a 64-bit machine ...
    static constexpr std::size_t kStep = 16;
    static constexpr std::size_t kKinds = 16;   ///< ... up to 264 bytes.
    static constexpr std::size_t kRoom = 4096;  ///< The most blocks that a thread keeps.
#ifdef IX_DPL_KEEPS_NONE
    static constexpr bool kKeeps = false;
    static std::size_t RoomOf(void* /*block*/) { return 0; }
#else
    static constexpr bool kKeeps = true;
    static std::size_t RoomOf(void* block) { return malloc_usable_size(block); }
#endif

    [[gnu::noinline]] bool Open() {
        if (m_opened) return false;
        static thread_local Closer closer;
        static_cast<void>(&closer);
        m_opened = true;
        m_room = kRoom;
        return true;
    }

    void Close() {
        m_room = 0;
        for (Block*& first : m_first) {
            while (first != nullptr) {
                Block* const next = first->next;
                std::free(first);
                first = next;
            }
        }
    }

    Block* m_first[kKinds] = {};
    std::size_t m_room = 0;  ///< How many more blocks can be kept.
    bool m_opened = false;
};

#endif
