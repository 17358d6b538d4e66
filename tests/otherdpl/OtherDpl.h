// What the tests see of the other platform layer.
#ifndef OTHER_DPL_H
#define OTHER_DPL_H

#include <cstddef>

namespace other_dpl {

/// True when `pointer` points into the arena, where all memory comes from.
bool InArena(const void* pointer);
/// Blocks taken and not yet freed.
std::size_t LiveBlocks();
/// Blocks ever taken.
std::size_t Allocations();
/// Objects registered with the memory tracker and not yet unregistered.
long LiveObjects();
/// Lines written to the log.
std::size_t LogLines();
/// Attempts to open a file, all of which fail with this error number.
std::size_t Opens();
constexpr int kNoFiles = 38;
/// Makes every allocation fail, or ends that.
void SetExhausted(bool exhausted);

}  // namespace other_dpl

#endif
