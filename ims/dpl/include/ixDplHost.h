/// @file
/// Controls of the host implementation of the device platform layer: where log lines go, what memory is alive, and
/// which allocation is to fail. The XML library never includes this; tests, tools and applications on a POSIX host do.
#ifndef IX_DPL_HOST_H
#define IX_DPL_HOST_H

#include <cstddef>
#include <cstdio>

#include "ixDpl.h"

/// @name Log sink
/// @{

/// One log line, its arguments already put in. Valid during the call of the sink.
struct ixDplHostLogLine {
    int level;
    int code;
    const char* source;
    int line;
    const char* text;  ///< At most `kIxDplHostLogLimit` characters; a longer text is cut and ends in "...".
};

/// Receives log lines, from whichever thread logs.
using ixDplHostLogSink = void (*)(const ixDplHostLogLine& line, void* context);

constexpr std::size_t kIxDplHostLogLimit = 40000;
constexpr unsigned kIxDplHostAllLevels = 0x1e;  ///< Levels 1 to 4.

/// Sends the levels of `levelMask` (bit n stands for level n) to `sink`. NULL or a mask of 0: nothing is logged, which
/// is the default. A sink that is replaced may still finish a call on another thread.
IX_DPL_EXPORT void ixDplHostSetLogSink(ixDplHostLogSink sink, void* context, unsigned levelMask);
/// @}

/// @name Memory ledger
/// Off by default. While it is on, it knows every object registered with `trmemlog_add` and every block of the memory
/// functions. It starts empty each time it is turned on, so blocks older than that are unknown to it.
/// @{

IX_DPL_EXPORT void ixDplHostEnableLedger(bool on);

/// A registered object that is alive.
struct ixDplHostBlock {
    int module;
    const char* source;
    int line;
    const void* pointer;
    std::size_t size;
};

struct ixDplHostLedgerTotals {
    std::size_t liveObjects;      ///< Registered and not unregistered.
    std::size_t liveHeapBlocks;   ///< Blocks of the memory functions that were not freed.
    std::size_t doubleRemovals;   ///< Unregistered twice.
    std::size_t unknownRemovals;  ///< Unregistered, but never registered, or under another module.
};

IX_DPL_EXPORT ixDplHostLedgerTotals ixDplHostLedger();

/// Calls `visit` for every live object, oldest first. The ledger is locked meanwhile, so `visit` must call nothing of
/// the platform layer that takes or frees memory.
IX_DPL_EXPORT void ixDplHostVisitLedger(void (*visit)(const ixDplHostBlock& block, void* context), void* context);

/// One line a live object, then the totals.
IX_DPL_EXPORT void ixDplHostDumpLedger(std::FILE* file);

/// Frees every live heap block without running destructors, and forgets all live objects. For programs that go on after
/// an operation that leaves memory to nobody.
IX_DPL_EXPORT void ixDplHostReleaseHeap();
/// @}

/// @name Allocation counting and failure
/// @{

/// Starts counting allocations at 0; from then on the `first`-th one and the `count - 1` that follow it fail. `first`
/// 0: none fails.
IX_DPL_EXPORT void ixDplHostFailAllocation(unsigned long first, unsigned long count = 1);

/// Allocations since `ixDplHostFailAllocation`, failed ones included.
IX_DPL_EXPORT unsigned long ixDplHostAllocations();

/// Stops counting and failing.
IX_DPL_EXPORT void ixDplHostStopCounting();
/// @}

#endif
