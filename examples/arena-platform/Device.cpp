// The parts of ixDpl.h that are log and files. The log is a text in memory; files there are none.
#include <cerrno>
#include <cstring>

#include "ArenaPlatform.h"
#include "ixDpl.h"

namespace {

/// Room for a line. A longer one is cut: some show a whole document.
constexpr std::size_t kLineSize = 120;
thread_local char t_log[2000];

/// Appends `word` as the conversion `conversion` shows it; the library uses %s and %d.
void AppendWord(char (&line)[kLineSize], char conversion, std::uintptr_t word) {
    char digits[24];
    const char* text = reinterpret_cast<const char*>(word);
    if (conversion == 's' && text == nullptr) text = "(null)";
    if (conversion != 's') text = __itoaL(static_cast<std::intptr_t>(word), digits, sizeof digits, 10);
    __strlcat(line, text, sizeof line);
}

}  // namespace

const char* Log() { return t_log; }

void ClearLog() { t_log[0] = '\0'; }

/// Keeps rejected input and failed allocations, without the many lines of the lists. The words say nothing of their
/// types, so the C library's formatting cannot take them.
void ixLogModuleEventSimple(int level, int /*code*/, const char* source, int /*line*/, const char* format,
                            std::uintptr_t argument1, std::uintptr_t argument2, std::uintptr_t argument3) {
    if (level < 3 || std::strcmp(source, "ims/xml/src/XMLList") == 0) return;
    const std::uintptr_t words[] = {argument1, argument2, argument3};
    std::size_t next = 0;
    char line[kLineSize] = "";
    for (const char* at = format; *at != '\0'; ++at) {
        if (*at == '%' && at[1] != '\0' && next < 3) {
            AppendWord(line, *++at, words[next++]);
        } else {
            const char plain[] = {*at, '\0'};
            __strlcat(line, plain, sizeof line);
        }
    }
    __strlcat(t_log, line, sizeof t_log);
    __strlcat(t_log, "\n", sizeof t_log);
}

int ixDplIODeviceOpen(ixDplIODevice* device, const char* /*name*/, int /*access*/, int /*option*/) {
    device->handle = 0;
    device->pSpecificInfo = nullptr;
    return ENOSYS;
}

int ixDplIODeviceRead(ixDplIODevice* /*device*/, void* /*buffer*/, std::uint32_t /*size*/, std::int32_t* count) {
    *count = 0;
    return ENOSYS;
}

int ixDplIODeviceWrite(ixDplIODevice* /*device*/, const void* /*buffer*/, std::uint32_t /*size*/, std::int32_t* written,
                       int /*option*/) {
    *written = 0;
    return ENOSYS;
}

int ixDplIODeviceClose(ixDplIODevice* /*device*/) { return 0; }
