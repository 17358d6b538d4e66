#include <atomic>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <map>
#include <mutex>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#if __has_include(<execinfo.h>)
#include <execinfo.h>
#define IX_DPL_HAS_TRACES 1
#endif

#include "ixDplBlockCache.h"
#include "ixDplHost.h"

namespace {

/// What the memory functions have to do beside their work; 0 is the fast way.
enum Mode : unsigned { kLedger = 1, kCounting = 2 };
std::atomic<unsigned> mode{0};

std::atomic<unsigned long> allocations{0};
std::atomic<unsigned long> firstFailure{0};
std::atomic<unsigned long> failures{0};

using Trace = std::vector<void*>;

/// The calls that led to the caller. Nothing where the C library does not tell.
[[gnu::noinline]] Trace TakeTrace() {
#ifdef IX_DPL_HAS_TRACES
    void* calls[20];
    constexpr int kOwn = 2;  // This function and the one that takes it.
    const int depth = backtrace(calls, static_cast<int>(std::size(calls)));
    return depth > kOwn ? Trace(calls + kOwn, calls + depth) : Trace();
#else
    return {};
#endif
}

/// An object that was unregistered.
struct Removal {
    ixDplHostBlock object;
    unsigned long number;
    unsigned long newest;  ///< Number of the newest object then; 0: the object is alive.
    Trace trace;
};

struct Misuse {
    ixDplHostMisuseKind kind;
    int module;
    const void* pointer;
    bool isKnown;
    Removal last;  ///< Of the object that was there last, if it is known.

    ixDplHostMisuse View() const {
        return {kind,        module,      pointer,           isKnown ? &last.object : nullptr,
                last.number, last.newest, last.trace.data(), last.trace.size()};
    }
};

/// The ledger. The number of an entry gives the order of registration.
struct Ledger {
    std::mutex mutex;
    unsigned long newest = 0;
    bool traces = false;
    void (*handler)(const ixDplHostMisuse& misuse, void* context) = nullptr;
    void* handlerContext = nullptr;
    std::map<unsigned long, ixDplHostBlock> live;
    std::unordered_map<const void*, unsigned long> numbers;
    std::unordered_map<const void*, Removal> removed;
    std::unordered_set<void*> heap;
    std::unordered_set<const void*> freed;
    std::vector<Misuse> misuses;
    std::size_t doubleRemovals = 0;
    std::size_t unknownRemovals = 0;

    void Clear() {
        live.clear();
        numbers.clear();
        removed.clear();
        heap.clear();
        freed.clear();
        misuses.clear();
        newest = 0;
        doubleRemovals = 0;
        unknownRemovals = 0;
    }

    /// @param last what is known of the object; NULL: nothing.
    void Report(ixDplHostMisuseKind kind, int module, const void* pointer, const Removal* last) {
        const Misuse misuse = {kind, module, pointer, last != nullptr, last != nullptr ? *last : Removal{}};
        if (misuses.size() < kIxDplHostMostMisuses) misuses.push_back(misuse);
        if (handler != nullptr) handler(misuse.View(), handlerContext);
    }

    /// The last object at an address that was unregistered; NULL: none.
    const Removal* RemovalOf(const void* pointer) const {
        const auto found = removed.find(pointer);
        return found != removed.end() ? &found->second : nullptr;
    }
};

/// Never destroyed: objects of static storage may still free memory while the process ends.
Ledger& TheLedger() {
    static Ledger* const ledger = new Ledger;
    return *ledger;
}

bool LedgerIsOn() { return (mode.load(std::memory_order_relaxed) & kLedger) != 0; }

/// True when the allocation that is about to be made is one that has to fail.
bool CountAndFail() {
    const unsigned long number = allocations.fetch_add(1, std::memory_order_relaxed) + 1;
    const unsigned long first = firstFailure.load(std::memory_order_relaxed);
    return first != 0 && number >= first && number - first < failures.load(std::memory_order_relaxed);
}

[[gnu::noinline]] void* Allocate(std::size_t size, bool zeroed) {
    const unsigned now = mode.load(std::memory_order_relaxed);
    const bool fails = (now & kCounting) != 0 && CountAndFail();
    if (size == 0) size = 1;
    void* const block = BlockCache::Counted(fails ? nullptr : zeroed ? std::calloc(1, size) : std::malloc(size));
    if ((now & kLedger) != 0 && block != nullptr) {
        Ledger& ledger = TheLedger();
        const std::lock_guard<std::mutex> lock(ledger.mutex);
        ledger.heap.insert(block);
        ledger.freed.erase(block);
    }
    return block;
}

// What the ledger does stands apart from the functions that ask whether it is on: those are called all the time.

[[gnu::noinline]] void RemoveFromHeap(void* pointer) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    if (ledger.heap.erase(pointer) != 0) {
        ledger.freed.insert(pointer);
    } else if (ledger.freed.count(pointer) != 0) {
        // Others are older than the ledger.
        ledger.Report(kIxDplHostDoubleFree, 0, pointer, ledger.RemovalOf(pointer));
    }
}

[[gnu::noinline]] void Register(const ixDplHostBlock& block) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    const unsigned long number = ++ledger.newest;
    const auto known = ledger.numbers.find(block.pointer);
    if (known != ledger.numbers.end()) ledger.live.erase(known->second);
    ledger.numbers[block.pointer] = number;
    ledger.live[number] = block;
    ledger.removed.erase(block.pointer);
}

[[gnu::noinline]] void Unregister(int module, const void* pointer) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    const auto known = ledger.numbers.find(pointer);
    if (known == ledger.numbers.end()) {
        const Removal* const last = ledger.RemovalOf(pointer);
        ++(last != nullptr ? ledger.doubleRemovals : ledger.unknownRemovals);
        ledger.Report(last != nullptr ? kIxDplHostDoubleRemoval : kIxDplHostUnknownRemoval, module, pointer, last);
        return;
    }
    const auto block = ledger.live.find(known->second);
    Removal removal = {block->second, known->second, 0, {}};
    if (block->second.module != module) {
        ++ledger.unknownRemovals;
        ledger.Report(kIxDplHostOtherModule, module, pointer, &removal);
    }
    removal.newest = ledger.newest;
    if (ledger.traces) removal.trace = TakeTrace();
    ledger.live.erase(block);
    ledger.numbers.erase(known);
    ledger.removed.insert_or_assign(pointer, std::move(removal));
}

void PrintTrace(std::FILE* file, const ixDplHostMisuse& misuse) {
#ifdef IX_DPL_HAS_TRACES
    if (misuse.depth == 0) return;
    char** const names = backtrace_symbols(misuse.trace, static_cast<int>(misuse.depth));
    for (std::size_t i = 0; names != nullptr && i < misuse.depth; ++i) std::fprintf(file, "  by %s\n", names[i]);
    std::free(names);
#else
    (void)file;
    (void)misuse;
#endif
}

}  // namespace

void* __malloc(std::size_t size) {
    if (mode.load(std::memory_order_relaxed) != 0) return Allocate(size, false);
    return BlockCache::Take(size);
}

void* __calloc(std::size_t count, std::size_t size) {
    if (size != 0 && count > static_cast<std::size_t>(-1) / size) return nullptr;
    return Allocate(count * size, true);
}

void __free(void* pointer) {
    if (pointer == nullptr) return;
    if (mode.load(std::memory_order_relaxed) == 0) {
        BlockCache::Give(pointer);
        return;
    }
    if (LedgerIsOn()) RemoveFromHeap(pointer);
    BlockCache::Give(pointer);
}

void trmemlog_add(int module, const char* source, int line, void* pointer, std::size_t size) {
    if (LedgerIsOn() && pointer != nullptr) Register({module, source, line, pointer, size});
}

void trmemlog_remove(int module, void* pointer) {
    if (LedgerIsOn() && pointer != nullptr) Unregister(module, pointer);
}

void ixDplHostEnableLedger(bool on) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    ledger.Clear();
    if (on) {
        mode.fetch_or(kLedger, std::memory_order_relaxed);
    } else {
        mode.fetch_and(~static_cast<unsigned>(kLedger), std::memory_order_relaxed);
    }
}

ixDplHostLedgerTotals ixDplHostLedger() {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    return {ledger.live.size(), ledger.heap.size(), ledger.doubleRemovals, ledger.unknownRemovals};
}

void ixDplHostVisitLedger(void (*visit)(const ixDplHostBlock& block, void* context), void* context) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    for (const auto& entry : ledger.live) visit(entry.second, context);
}

void ixDplHostSetMisuseHandler(void (*handler)(const ixDplHostMisuse& misuse, void* context), void* context) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    ledger.handler = handler;
    ledger.handlerContext = context;
}

void ixDplHostVisitMisuses(void (*visit)(const ixDplHostMisuse& misuse, void* context), void* context) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    for (const Misuse& misuse : ledger.misuses) visit(misuse.View(), context);
}

void ixDplHostTraceRemovals(bool on) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    ledger.traces = on;
}

void ixDplHostPrintMisuse(std::FILE* file, const ixDplHostMisuse& misuse) {
    constexpr const char* kTexts[] = {"deleted twice", "deleted, but not registered", "deleted under another module",
                                      "freed twice"};
    std::fprintf(file, "%s: %p", kTexts[misuse.kind], misuse.pointer);
    if (misuse.kind != kIxDplHostDoubleFree) std::fprintf(file, " under module %d", misuse.module);
    if (misuse.object != nullptr) {
        std::fprintf(file, ", object %lu of module %d %s:%d %zu bytes", misuse.number, misuse.object->module,
                     misuse.object->source, misuse.object->line, misuse.object->size);
    }
    if (misuse.newest != 0) std::fprintf(file, ", deleted first when %lu was the newest", misuse.newest);
    std::fputc('\n', file);
    PrintTrace(file, misuse);
}

void ixDplHostDumpLedger(std::FILE* file) {
    ixDplHostVisitLedger(
        [](const ixDplHostBlock& block, void* context) {
            std::fprintf(static_cast<std::FILE*>(context), "module %d %s:%d %zu bytes at %p\n", block.module,
                         block.source, block.line, block.size, block.pointer);
        },
        file);
    ixDplHostVisitMisuses([](const ixDplHostMisuse& misuse,
                             void* context) { ixDplHostPrintMisuse(static_cast<std::FILE*>(context), misuse); },
                          file);
    const ixDplHostLedgerTotals totals = ixDplHostLedger();
    std::fprintf(file, "%zu objects and %zu heap blocks alive, %zu double and %zu unknown removals\n",
                 totals.liveObjects, totals.liveHeapBlocks, totals.doubleRemovals, totals.unknownRemovals);
}

void ixDplHostReleaseHeap() {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    for (void* block : ledger.heap) std::free(block);
    ledger.freed.insert(ledger.heap.begin(), ledger.heap.end());
    ledger.heap.clear();
    ledger.live.clear();
    ledger.numbers.clear();
}

void ixDplHostFailAllocation(unsigned long first, unsigned long count) {
    allocations.store(0, std::memory_order_relaxed);
    firstFailure.store(first, std::memory_order_relaxed);
    failures.store(count, std::memory_order_relaxed);
    mode.fetch_or(kCounting, std::memory_order_relaxed);
}

unsigned long ixDplHostAllocations() { return allocations.load(std::memory_order_relaxed); }

unsigned long ixDplHostFailedAllocations() { return BlockCache::Failed(); }

void ixDplHostStopCounting() { mode.fetch_and(~static_cast<unsigned>(kCounting), std::memory_order_relaxed); }
