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

/// What a line of the library tells. Its level does not say it; see `ixLogModuleEventSimple`.
enum ixDplHostLogKind {
    kIxDplHostProgress,  ///< What is being done. Some lines are whole documents.
    kIxDplHostRejected,  ///< An element or attribute of a document that no class has a place for, and that is lost.
    kIxDplHostFault      ///< No memory, something mandatory missing, a file or a text that cannot be read or written.
};

/// The kind of a line, by its text.
IX_DPL_EXPORT ixDplHostLogKind ixDplHostKindOf(const ixDplHostLogLine& line);

/// Which lines `ixDplHostFilterLog` hands on, and to whom.
struct ixDplHostLogFilter {
    ixDplHostLogSink sink;
    void* context;           ///< Of `sink`.
    ixDplHostLogKind least;  ///< Lines of this kind and of those behind it.
};

/// A sink that hands on only what matters:
///
///     ixDplHostLogFilter filter = {MySink, nullptr, kIxDplHostFault};
///     ixDplHostSetLogSink(ixDplHostFilterLog, &filter, kIxDplHostAllLevels);
///
/// @param filter an `ixDplHostLogFilter`, which has to live as long as it is set.
IX_DPL_EXPORT void ixDplHostFilterLog(const ixDplHostLogLine& line, void* filter);

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

/// What was done to an object, or to a block of memory, that must not be done.
enum ixDplHostMisuseKind {
    kIxDplHostDoubleRemoval,   ///< An object was unregistered twice: deleted twice.
    kIxDplHostUnknownRemoval,  ///< It was never registered, or before the ledger was turned on.
    kIxDplHostOtherModule,     ///< It was registered under another module.
    kIxDplHostDoubleFree       ///< A block of the memory functions was freed twice.
};

/// One such case. Objects are counted in the order of their registration, from 1.
struct ixDplHostMisuse {
    ixDplHostMisuseKind kind;
    int module;  ///< That the object was unregistered under; 0 for blocks.
    const void* pointer;
    const ixDplHostBlock* object;  ///< Which object was there last, and where it was made; NULL: none that is known.
    unsigned long number;          ///< Of that object.
    unsigned long newest;          ///< Number of the newest object when it was unregistered first; 0: it was not.
    void* const* trace;            ///< The calls that led there, the innermost first, if they are traced.
    std::size_t depth;             ///< How many calls these are.
};

/// Calls `handler` for each misuse at once, while what led to it can still be seen: the process may not live much
/// longer. As in `ixDplHostVisitLedger`, the ledger is locked meanwhile. NULL: nobody is called, which is the default.
IX_DPL_EXPORT void ixDplHostSetMisuseHandler(void (*handler)(const ixDplHostMisuse& misuse, void* context),
                                             void* context);

/// Calls `visit` for the first `kIxDplHostMostMisuses` since the ledger was turned on, oldest first, likewise.
IX_DPL_EXPORT void ixDplHostVisitMisuses(void (*visit)(const ixDplHostMisuse& misuse, void* context), void* context);

constexpr std::size_t kIxDplHostMostMisuses = 100;

/// Remembers from now on by which calls each object was unregistered. Off by default: it makes the ledger several times
/// as slow, and needs a C library that tells them.
IX_DPL_EXPORT void ixDplHostTraceRemovals(bool on);

/// A line about the misuse, and one for each call of its trace.
IX_DPL_EXPORT void ixDplHostPrintMisuse(std::FILE* file, const ixDplHostMisuse& misuse);

/// One line a live object, then each misuse as `ixDplHostPrintMisuse` tells it, then the totals.
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

/// How many allocations of the calling thread have failed since it began, for a caller whose callees do not tell.
IX_DPL_EXPORT unsigned long ixDplHostFailedAllocations();

/// Stops counting and failing.
IX_DPL_EXPORT void ixDplHostStopCounting();
/// @}

#endif
