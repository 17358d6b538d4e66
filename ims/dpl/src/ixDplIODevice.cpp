#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

#include "ixDpl.h"

namespace {

/// The handle is the descriptor plus one, because 0 means closed and is a valid descriptor.
int Descriptor(const ixDplIODevice* device) { return static_cast<int>(device->handle) - 1; }

int OpenFlags(int access) {
    switch (access) {
        case IX_DPL_IO_READ:
            return O_RDONLY;
        case IX_DPL_IO_WRITE:
            return O_WRONLY | O_CREAT | O_TRUNC;
        case IX_DPL_IO_READ_WRITE:
            return O_RDWR | O_CREAT;
        default:
            return -1;
    }
}

/// Regular files only: the size of anything else is not known before it is read.
int FileSize(int descriptor, std::uint32_t* size) {
    struct stat status {};
    if (fstat(descriptor, &status) != 0) return errno;
    if (S_ISDIR(status.st_mode)) return EISDIR;
    if (!S_ISREG(status.st_mode)) return EINVAL;
    if (status.st_size > INT_MAX) return EFBIG;
    *size = static_cast<std::uint32_t>(status.st_size);
    return 0;
}

}  // namespace

int ixDplIODeviceOpen(ixDplIODevice* device, const char* name, int access, int /*option*/) {
    if (device == nullptr || name == nullptr) return EINVAL;
    ixDplIODeviceClose(device);
    const int flags = OpenFlags(access);
    if (flags < 0) return EINVAL;
    // O_NONBLOCK keeps a pipe or terminal of that name from blocking the open; regular files do not know it.
    const int descriptor = open(name, flags | O_CLOEXEC | O_NONBLOCK, 0666);
    if (descriptor < 0) return errno;
    std::uint32_t size = 0;
    int result = FileSize(descriptor, &size);
    ixDplIOSpecificInfo* info = nullptr;
    if (result == 0) {
        info = static_cast<ixDplIOSpecificInfo*>(__malloc(sizeof *info));
        if (info == nullptr) result = ENOMEM;
    }
    if (result != 0) {
        close(descriptor);
        return result;
    }
    *info = {0, size};
    device->handle = static_cast<std::uintptr_t>(descriptor) + 1;
    device->pSpecificInfo = info;
    return 0;
}

int ixDplIODeviceRead(ixDplIODevice* device, void* buffer, std::uint32_t size, std::int32_t* count) {
    if (device == nullptr || device->handle == 0 || buffer == nullptr || count == nullptr) return EINVAL;
    *count = 0;
    if (size > INT_MAX) return EFBIG;
    while (static_cast<std::uint32_t>(*count) < size) {
        const ssize_t got =
            read(Descriptor(device), static_cast<char*>(buffer) + *count, size - static_cast<std::uint32_t>(*count));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return errno;
        if (got == 0) break;
        *count += static_cast<std::int32_t>(got);
    }
    return 0;
}

int ixDplIODeviceWrite(ixDplIODevice* device, const void* buffer, std::uint32_t size, std::int32_t* written,
                       int /*option*/) {
    if (device == nullptr || device->handle == 0 || buffer == nullptr || written == nullptr) return EINVAL;
    *written = 0;
    if (size > INT_MAX) return EFBIG;
    while (static_cast<std::uint32_t>(*written) < size) {
        const ssize_t put = write(Descriptor(device), static_cast<const char*>(buffer) + *written,
                                  size - static_cast<std::uint32_t>(*written));
        if (put < 0 && errno == EINTR) continue;
        if (put < 0) return errno;
        *written += static_cast<std::int32_t>(put);
    }
    return 0;
}

int ixDplIODeviceClose(ixDplIODevice* device) {
    if (device == nullptr) return EINVAL;
    int result = 0;
    if (device->handle != 0 && close(Descriptor(device)) != 0) result = errno;
    __free(device->pSpecificInfo);
    device->handle = 0;
    device->pSpecificInfo = nullptr;
    return result;
}
