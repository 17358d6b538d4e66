/// @file
/// The device platform layer: everything the XML library takes from the device it runs on.
///
/// The library takes memory, log, files and the text functions below from here, and nothing else of the system but the
/// plain functions of the C library that need none of it (such as memcpy). A device replaces them all by linking its
/// own library in place of the host implementation that comes with the project (ixDplHost.h controls that one). The
/// library itself does without `__strcmp`, `__strlcpy`, `__strlcat`, `__strlncpy` and `__strcspn`; they are there for
/// what else runs on the layer.
///
/// The functions have C++ linkage on purpose: the C library exports a `__strdup` of its own, and a function of the same
/// linkage name would replace it for the whole process.
///
/// Every function may be called from several threads at once. None may throw: the library is compiled without
/// exceptions.
#ifndef IX_DPL_H
#define IX_DPL_H

#include <cstddef>
#include <cstdint>

#define IX_DPL_EXPORT __attribute__((visibility("default")))

/// @name Logging
/// @{

/// Writes one line to the device's log.
///
/// The level is no severity: a document that is read and written without a fault fills levels 1 to 3. Sources are those
/// of ims/xml/src.
///
/// | To see | Level | Code | Source | Text |
/// |---|---|---|---|---|
/// | that memory ran out | 2, 3, 4 | 6053, 6070 | all | "failed", "allocate", "Buffer is NULL" |
/// | what a document to be written lacks | 1, 3, 4 | 6070 | XML... of the schema | "mandatory", "required" |
/// | which step of the writing failed | 2, 4 | 6070 | XML... of the schema | "Failed", "fail @" |
/// | which element is being written | 2 | 6070 | XML... of the schema | "Add...ElementToXml" |
/// | whole documents, as read or written | 2 | 6070 | XML... of the schema | "XML <", "pstring" |
/// | that a text was complete and balanced | 3 | 6053 | XmlDecoder | "Decoder Success" |
/// | that it was not, within simservs | 2 | 6070 | XMLSimservs | "XML Decode Failure" |
/// | attributes that cannot be cut | 2 | 6053 | XmlDecoder | "Attribute list invalid" |
/// | that elements are nested too deep | 2 | 6070 | XMLStack | "stack overflow" |
/// | what of a document has no place | 2, 3 | 6070 | all | "accommodate", "not supported", "not allowed" |
/// | files that cannot be opened | 2 | 6070 | XMLFile | "Error", "Unable", "failed" |
/// | why the tokenizer ends the process | 4 | 6052 | XmlDecoder | "less than" |
/// | the pace of the tokenizer, tag by tag | 2 | 6053 | XmlDecoder | "DecodeAttributes", "n_count" |
/// | lists that grow | 3 | 6070 | XMLList | "m_iListCount" |
///
/// The arguments are subscribers' data: whole documents, and names and values out of them, with addresses, identities
/// and keys. A log that is kept, or that leaves the device, must not have level 2; what the host's filter calls a fault
/// (`ixDplHostKindOf`) has nothing of a document but names of elements and attributes.
///
/// @param level 1 rare traces, 2 results and resource problems, 3 progress and rejected input, 4 failed duplications
/// and allocations, missing mandatory fields.
/// @param code event number: 6070 schema families, containers and generator; 6053 tokenizer and namespace operations;
/// 6052 the tokenizer's buffer check.
/// @param source path of the source file without extension, for example "ims/xml/src/XmlDecoder".
/// @param line line in that file.
/// @param format printf-style text with at most three conversions. Never text of a document.
/// @param argument1,argument2,argument3 one machine word each: a number, or a pointer to a NUL-terminated text. 0 where
/// the format has fewer conversions. A 0 for %s prints "(null)".
IX_DPL_EXPORT void ixLogModuleEventSimple(int level, int code, const char* source, int line, const char* format,
                                          std::uintptr_t argument1, std::uintptr_t argument2, std::uintptr_t argument3);
/// @}

/// @name Memory tracking
/// Every object that the library creates is registered right after its creation and unregistered right before its
/// deletion, so that a device can tell at any time what is alive and where it was made.
/// @{

/// Registers an object. @param module 14 for documents, factories and common code, 1 for the tokenizer's own objects.
IX_DPL_EXPORT void trmemlog_add(int module, const char* source, int line, void* pointer, std::size_t size);

/// Unregisters an object that was registered under the same module.
IX_DPL_EXPORT void trmemlog_remove(int module, void* pointer);
/// @}

/// @name Memory
/// All memory of the library comes from here, that of its objects included.
/// @{

/// `size` bytes, or NULL. The contents are undefined. A size of 0 yields a block that may be freed.
IX_DPL_EXPORT void* __malloc(std::size_t size);

/// `count * size` zero bytes, or NULL, also when the product overflows.
IX_DPL_EXPORT void* __calloc(std::size_t count, std::size_t size);

/// Frees a block of `__malloc`, `__calloc` or `__strdup`; NULL is ignored.
IX_DPL_EXPORT void __free(void* pointer);

/// Fills `size` bytes; returns `destination`.
IX_DPL_EXPORT void* __memset(void* destination, int value, std::size_t size);

/// Copies `size` bytes between areas that may overlap; returns `destination`.
IX_DPL_EXPORT void* __memmove(void* destination, const void* source, std::size_t size);
/// @}

/// @name Text
/// NUL-terminated 8-bit texts. None of these accepts NULL unless it says so.
/// @{

/// A copy made with `__malloc`, or NULL when there is no memory or `text` is NULL.
IX_DPL_EXPORT char* __strdup(const char* text);

/// The number of characters before the NUL; 0 for NULL.
IX_DPL_EXPORT std::size_t __strlen(const char* text);

/// Compares as unsigned bytes; less than, equal to or greater than 0.
IX_DPL_EXPORT int __strcmp(const char* left, const char* right);

/// As `__strcmp`, over at most `count` characters.
IX_DPL_EXPORT int __strncmp(const char* left, const char* right, std::size_t count);

/// Copies as much of `source` as fits into `size` bytes with its NUL. Returns the length of `source`; a result of
/// `size` or more means that the copy was cut. Nothing is written when `size` is 0.
IX_DPL_EXPORT std::size_t __strlcpy(char* destination, const char* source, std::size_t size);

/// Appends within a buffer of `size` bytes in all, as `__strlcpy` copies. Returns the length it tried to make.
IX_DPL_EXPORT std::size_t __strlcat(char* destination, const char* source, std::size_t size);

/// Copies at most `count` characters of `source`, and no more than fit into `size` bytes with the NUL that is always
/// written. Stops at a NUL. Returns `destination`.
IX_DPL_EXPORT char* __strlncpy(char* destination, std::size_t size, const char* source, std::size_t count);

/// The first `character` in `text` (its NUL included), or NULL.
IX_DPL_EXPORT char* __strchr(const char* text, int character);

/// The first occurrence of `part` in `text`, or NULL.
IX_DPL_EXPORT char* __strstr(const char* text, const char* part);

/// The length of the start of `text` that holds none of the characters of `reject`.
IX_DPL_EXPORT std::size_t __strcspn(const char* text, const char* reject);

/// Decimal text to number: white space, a sign, digits; what follows is ignored. 0 without digits or for NULL; the
/// nearest value that an `int` holds when the number does not fit.
IX_DPL_EXPORT int __atoi(const char* text);

/// As `__atoi`, for 64 bits.
IX_DPL_EXPORT std::int64_t __atoi64(const char* text);

/// Number to text in `radix` (2 to 36, letters in lower case) within `size` bytes, NUL included. Returns `buffer`,
/// which holds an empty text when the digits do not fit or the radix is unknown; NULL for a NULL buffer or a size of 0.
IX_DPL_EXPORT char* __itoaL(std::int64_t value, char* buffer, std::size_t size, int radix);
/// @}

/// @name Files
/// @{

/// What `ixDplIODeviceOpen` reports of a file. Owned by the platform layer, valid until the device is closed.
struct ixDplIOSpecificInfo {
    std::uint32_t attributes;  ///< Platform's own; 0 on the host.
    std::uint32_t fileSize;    ///< Size in bytes when the file was opened.
};

/// An IO device. The caller sets the first word to 0, the second to `IX_DPL_IO_FILE` and the others to 0 before the
/// first open, and passes it by address to every call.
struct ixDplIODevice {
    std::uintptr_t handle;               ///< 0 while closed.
    std::uintptr_t type;                 ///< `IX_DPL_IO_FILE`.
    std::uintptr_t reserved;             ///< 0.
    ixDplIOSpecificInfo* pSpecificInfo;  ///< Set by a successful open, NULL while closed.
    std::uintptr_t reserved2;            ///< 0.
    std::uintptr_t reserved3;            ///< 0.
};

/// The device is a file named by a path.
constexpr std::uintptr_t IX_DPL_IO_FILE = 2;

/// Access of `ixDplIODeviceOpen`.
/// @{
constexpr int IX_DPL_IO_READ = 3;        ///< An existing file, read only.
constexpr int IX_DPL_IO_WRITE = 4;       ///< Created when missing, emptied when present.
constexpr int IX_DPL_IO_READ_WRITE = 5;  ///< Created when missing, contents kept.
/// @}

/// Opens `name`. Opening a device that is open closes it first. @param option 0.
/// @return 0, or the system's error number; the device is then closed.
IX_DPL_EXPORT int ixDplIODeviceOpen(ixDplIODevice* device, const char* name, int access, int option);

/// Reads up to `size` bytes from the device's position.
/// @param count in: ignored on the host; out: the bytes read, fewer than `size` only at the end of the file.
/// @return 0, or the system's error number.
IX_DPL_EXPORT int ixDplIODeviceRead(ixDplIODevice* device, void* buffer, std::uint32_t size, std::int32_t* count);

/// Writes `size` bytes at the device's position. @param written out: the bytes written. @param option 1: all of them,
/// or an error. @return 0, or the system's error number.
IX_DPL_EXPORT int ixDplIODeviceWrite(ixDplIODevice* device, const void* buffer, std::uint32_t size,
                                     std::int32_t* written, int option);

/// Closes the device; closing a closed one does nothing. @return 0, or the system's error number.
IX_DPL_EXPORT int ixDplIODeviceClose(ixDplIODevice* device);
/// @}

#endif
