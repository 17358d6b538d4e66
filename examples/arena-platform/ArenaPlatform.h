// A platform layer for a device that gives each of its threads one piece of memory for documents, keeps its log in
// memory, and has no files.
#ifndef ARENA_PLATFORM_H
#define ARENA_PLATFORM_H

#include <cstddef>

/// Memory handed out from front to back. A freed block is used again as soon as all blocks behind it are free, too;
/// with the last block of a document, all of the memory is.
class Arena {
  public:
    /// The memory stays with the caller. @param memory aligned for any type.
    Arena(void* memory, std::size_t size) : m_memory(static_cast<unsigned char*>(memory)), m_size(size) {}
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    /// @return NULL when there is no room for `size` bytes.
    void* Take(std::size_t size);
    void GiveBack(void* block);

    std::size_t Used() const { return m_used; }
    /// The most that was ever used.
    std::size_t Peak() const { return m_peak; }
    /// True once there was no room. A document decoded meanwhile may lack elements.
    bool RanOut() const { return m_ranOut; }

  private:
    struct Header;
    Header* At(std::size_t offset) const { return reinterpret_cast<Header*>(m_memory + offset); }

    unsigned char* m_memory;
    std::size_t m_size;
    std::size_t m_used = 0;
    std::size_t m_last = 0;  ///< Where the last block begins, while any memory is used.
    std::size_t m_peak = 0;
    bool m_ranOut = false;
};

/// The arena of the calling thread, which has to free what it made itself; NULL, as at first: there is no memory.
void UseArena(Arena* arena);

/// The log of the calling thread: its lines since the last `ClearLog`, as far as there is room.
const char* Log();
void ClearLog();

#endif
