#include <atomic>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <unordered_map>
#include <unordered_set>

#include "ixDplBlockCache.h"
#include "ixDplHost.h"

namespace {

/// What the memory functions have to do beside their work; 0 is the fast way.
enum Mode : unsigned { kLedger = 1, kCounting = 2 };
std::atomic<unsigned> mode{0};

std::atomic<unsigned long> allocations{0};
std::atomic<unsigned long> firstFailure{0};
std::atomic<unsigned long> failures{0};

/// The ledger. The number of an entry gives the order of registration.
struct Ledger {
    std::mutex mutex;
    unsigned long next = 0;
    std::map<unsigned long, ixDplHostBlock> live;
    std::unordered_map<const void*, unsigned long> numbers;
    std::unordered_set<const void*> removed;
    std::unordered_set<void*> heap;
    std::size_t doubleRemovals = 0;
    std::size_t unknownRemovals = 0;

    void Clear() {
        live.clear();
        numbers.clear();
        removed.clear();
        heap.clear();
        doubleRemovals = 0;
        unknownRemovals = 0;
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
    if ((now & kCounting) != 0 && CountAndFail()) return nullptr;
    if (size == 0) size = 1;
    void* const block = zeroed ? std::calloc(1, size) : std::malloc(size);
    if ((now & kLedger) != 0 && block != nullptr) {
        Ledger& ledger = TheLedger();
        const std::lock_guard<std::mutex> lock(ledger.mutex);
        ledger.heap.insert(block);
    }
    return block;
}

// What the ledger does stands apart from the functions that ask whether it is on: those are called all the time.

[[gnu::noinline]] void RemoveFromHeap(void* pointer) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    ledger.heap.erase(pointer);
}

[[gnu::noinline]] void Register(const ixDplHostBlock& block) {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    const unsigned long number = ledger.next++;
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
        ++(ledger.removed.count(pointer) != 0 ? ledger.doubleRemovals : ledger.unknownRemovals);
        return;
    }
    const auto block = ledger.live.find(known->second);
    if (block->second.module != module) ++ledger.unknownRemovals;
    ledger.live.erase(block);
    ledger.numbers.erase(known);
    ledger.removed.insert(pointer);
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

void ixDplHostDumpLedger(std::FILE* file) {
    ixDplHostVisitLedger(
        [](const ixDplHostBlock& block, void* context) {
            std::fprintf(static_cast<std::FILE*>(context), "module %d %s:%d %zu bytes at %p\n", block.module,
                         block.source, block.line, block.size, block.pointer);
        },
        file);
    const ixDplHostLedgerTotals totals = ixDplHostLedger();
    std::fprintf(file, "%zu objects and %zu heap blocks alive, %zu double and %zu unknown removals\n",
                 totals.liveObjects, totals.liveHeapBlocks, totals.doubleRemovals, totals.unknownRemovals);
}

void ixDplHostReleaseHeap() {
    Ledger& ledger = TheLedger();
    const std::lock_guard<std::mutex> lock(ledger.mutex);
    for (void* block : ledger.heap) std::free(block);
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

void ixDplHostStopCounting() { mode.fetch_and(~static_cast<unsigned>(kCounting), std::memory_order_relaxed); }
