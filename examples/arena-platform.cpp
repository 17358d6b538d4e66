// The library on a platform layer of the device's own (arena-platform/), linked in place of the host's: reads a
// document and writes it back with all memory taken from one arena, and tells how much that was. Then the same with a
// document that breaks off, and with too little memory.
#include <cstdio>

#include "XMLReginfo.h"
#include "XmlDocument.h"
#include "arena-platform/ArenaPlatform.h"

alignas(std::max_align_t) static unsigned char g_memory[64 * 1024];

static bool Convert(const std::string& body) {
    XmlDocument<ix_reginfo> document;
    const char* const text = document.Read(body.c_str()) ? document.Write() : nullptr;
    std::printf("%s\n", text != nullptr ? text : document.Problem());
    return text != nullptr;
}

/// Converts `body` with `size` bytes of memory. The arena ends with its document, and with it whatever the tree of a
/// broken one has left behind: a device that gives each document an arena of its own cannot lose memory.
static bool Try(const std::string& body, std::size_t size) {
    Arena arena(g_memory, size);
    UseArena(&arena);
    ClearLog();
    const bool isConverted = Convert(body);
    std::printf("-- at most %zu bytes used, %zu bytes left behind%s\n%s", arena.Peak(), arena.Used(),
                arena.RanOut() ? ", ran out" : "", Log());
    UseArena(nullptr);
    return isConverted && !arena.RanOut();
}

int main() {
    const std::string body = "<reginfo version=\"3\" state=\"partial\"></reginfo>";
    return !Try(body.substr(0, 38), sizeof g_memory) && !Try(body, 1000) && Try(body, sizeof g_memory) ? 0 : 1;
}
