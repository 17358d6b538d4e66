// The library on a platform layer of the device's own (arena-platform/), linked in place of the host's: reads a
// document and writes it back with all memory taken from one arena, and tells how much that was. Then the same with a
// document that breaks off, and with too little memory.
//
// usage: arena-platform [FILE]    registration information (RFC 3680)
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "XMLReginfo.h"
#include "arena-platform/ArenaPlatform.h"

namespace {

alignas(std::max_align_t) unsigned char g_memory[64 * 1024];

/// Reads `body` and prints what the library writes for it. @return false when it cannot be read or written.
bool Convert(const std::string& body) {
    XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_REGINFO);
    XMLUnMarshaller* const reader = context != nullptr ? context->createUnMarshaller() : nullptr;
    XMLMarshaller* const writer = context != nullptr ? context->createMarshaller() : nullptr;
    XMLElement* const root = reader != nullptr ? reader->UnMarshall(body.c_str()) : nullptr;
    const char* const text = writer != nullptr && root != nullptr ? writer->Marshall(root) : nullptr;
    const bool written = text != nullptr && writer->IsTruncated() == 0;
    if (written) std::printf("%s\n", text);
    XMLFactory::DeleteElement(root);
    XMLFactory::deleteContext(context);
    return written;
}

/// Converts `body` with `size` bytes of memory. The arena ends with its document, and with it whatever the tree of a
/// broken one has left behind: a device that gives each document an arena of its own cannot lose memory.
bool Try(const char* what, const std::string& body, std::size_t size) {
    Arena arena(g_memory, size);
    UseArena(&arena);
    ClearLog();
    const bool converted = Convert(body);
    std::printf("-- %s: %s, at most %zu bytes used, %zu bytes left behind%s\n%s", what,
                converted ? "converted" : "no document", arena.Peak(), arena.Used(), arena.RanOut() ? ", ran out" : "",
                Log());
    UseArena(nullptr);
    return converted && !arena.RanOut();
}

}  // namespace

int main(int argc, char** argv) {
    std::ifstream file(argc > 1 ? argv[1] : "samples/reginfo/typical.xml", std::ios::binary);
    const std::string body{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};

    const bool whole = Try("the whole document", body, sizeof g_memory);
    const bool half = Try("half of it", body.substr(0, body.size() / 2), sizeof g_memory);
    const bool cramped = Try("with too little memory", body, 1000);
    return whole && !half && !cramped ? 0 : 1;
}
