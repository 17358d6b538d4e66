// The part of ixDpl.h that is memory, on an arena.
#include <cstring>
#include <limits>

#include "ArenaPlatform.h"
#include "ixDpl.h"

namespace {

thread_local Arena* t_arena = nullptr;

}  // namespace

/// In front of every block.
struct alignas(std::max_align_t) Arena::Header {
    std::size_t previous;  ///< Where the block before begins.
    bool free;
};

void* Arena::Take(std::size_t size) {
    const std::size_t needed = (sizeof(Header) + size + alignof(Header) - 1) / alignof(Header) * alignof(Header);
    if (size > m_size || needed > m_size - m_used) {
        m_ranOut = true;
        return nullptr;
    }
    *At(m_used) = {m_last, false};
    m_last = m_used;
    m_used += needed;
    if (m_used > m_peak) m_peak = m_used;
    return At(m_last) + 1;
}

void Arena::GiveBack(void* block) {
    (static_cast<Header*>(block) - 1)->free = true;
    while (m_used != 0 && At(m_last)->free) {
        m_used = m_last;
        m_last = At(m_last)->previous;
    }
}

void UseArena(Arena* arena) { t_arena = arena; }

void* __malloc(std::size_t size) { return t_arena != nullptr ? t_arena->Take(size) : nullptr; }

void* __calloc(std::size_t count, std::size_t size) {
    if (size != 0 && count > std::numeric_limits<std::size_t>::max() / size) return nullptr;
    void* const block = __malloc(count * size);
    if (block != nullptr) std::memset(block, 0, count * size);
    return block;
}

void __free(void* block) {
    if (block != nullptr && t_arena != nullptr) t_arena->GiveBack(block);
}

// What is alive can be read off the arena, so nothing is written down.
void trmemlog_add(int /*module*/, const char* /*source*/, int /*line*/, void* /*object*/, std::size_t /*size*/) {}
void trmemlog_remove(int /*module*/, void* /*object*/) {}
