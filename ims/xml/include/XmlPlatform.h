/// @file
/// What every class of the library takes from the device platform layer (ixDpl.h): memory, the memory tracker, log
/// lines.
#ifndef IX_XML_PLATFORM_H
#define IX_XML_PLATFORM_H

#include <cstddef>
#include <cstdint>
#include <new>

#include "ixDpl.h"

#define IX_XML_EXPORT __attribute__((visibility("default")))

/// Base of every class whose objects are created with `new`: their memory comes from the platform layer, like that of
/// all texts and lists. Where there is none, a `new` expression of such a class yields NULL; it never throws.
class IX_XML_EXPORT XmlHeapObject {
  public:
    static void* operator new(std::size_t size) noexcept;
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
    static void* operator new(std::size_t /*size*/, void* place) noexcept { return place; }
    static void operator delete(void* object) noexcept;
    static void operator delete(void* object, const std::nothrow_t&) noexcept;
    static void operator delete(void* /*object*/, void* /*place*/) noexcept {}

  protected:
    XmlHeapObject() = default;
    ~XmlHeapObject() = default;
};

/// @name Tracked objects
/// Every object made with `new` is registered with the memory tracker at once and unregistered right before its
/// deletion. The macros expect the constant `kSourceFile` of the including source file, its path without extension.
/// @{

/// Module numbers of the memory tracker.
enum XmlModule {
    kTokenizerModule = 1,  ///< The tokenizer's own objects.
    kSchemaModule = 14     ///< Documents, factories and common code.
};

/// Registers `object`, when there is one, and returns it.
inline void* ixTrack(int module, const char* source, int line, void* object, std::size_t size) {
    if (object != nullptr) trmemlog_add(module, source, line, object, size);
    return object;
}

#define IX_TRACKED_NEW(module, source, line, type, arguments) \
    static_cast<type*>(ixTrack(module, source, line, new (std::nothrow) type arguments, sizeof(type)))

/// A new object registered with a source line that is fixed from outside.
#define IX_NEW_AT(line, type) IX_TRACKED_NEW(kSchemaModule, kSourceFile, line, type, ())

/// A new object registered with the line of this very call.
#define IX_NEW(type) IX_NEW_AT(__LINE__, type)

#define IX_TRACKED_DELETE(module, object)    \
    do {                                     \
        if ((object) != nullptr) {           \
            trmemlog_remove(module, object); \
            delete (object);                 \
        }                                    \
    } while (false)

#define IX_DELETE(object) IX_TRACKED_DELETE(kSchemaModule, object)
/// @}

/// @name Log lines
/// @{

/// Event numbers.
enum XmlLogCode {
    kBufferCheckCode = 6052,  ///< The tokenizer's buffer check that ends the process.
    kDecoderCode = 6053,      ///< The tokenizer and the namespace operations.
    kSchemaCode = 6070        ///< Schema families, containers and the document generator.
};

/// A log line as a constant. A file keeps all of its lines in one block at its top.
struct XmlLogText {
    int level;           ///< As the platform layer has it (ixDpl.h), 1 to 4.
    int code;            ///< One of `XmlLogCode`.
    int line;            ///< Source line the log shows.
    const char* format;  ///< printf-style, at most three conversions; NULL: this line is not logged.
};

/// One argument of a log line, as the machine word that the platform layer takes.
struct XmlLogArgument {
    std::uintptr_t word;

    XmlLogArgument(const char* text) : word(reinterpret_cast<std::uintptr_t>(text)) {}
    XmlLogArgument(int number) : word(static_cast<std::uintptr_t>(static_cast<std::intptr_t>(number))) {}
    XmlLogArgument(unsigned number) : word(number) {}
};

/// Logs `text` as a line of the file `source`.
inline void ixLog(const char* source, const XmlLogText& text, XmlLogArgument argument1 = 0,
                  XmlLogArgument argument2 = 0, XmlLogArgument argument3 = 0) {
    if (text.format == nullptr) return;
    ixLogModuleEventSimple(text.level, text.code, source, text.line, text.format, argument1.word, argument2.word,
                           argument3.word);
}
/// @}

#endif
