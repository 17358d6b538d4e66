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

/// The path of a source file as log and memory tracker show it: from `ims` on, without extension.
class XmlSourcePath {
  public:
    template <std::size_t size>
    constexpr explicit XmlSourcePath(const char (&path)[size]) {
        std::size_t from = 0;
        std::size_t end = size - 1;
        for (std::size_t i = 0; i + 3 < size; ++i) {
            const bool isRoot = path[i] == 'i' && path[i + 1] == 'm' && path[i + 2] == 's' && path[i + 3] == '/';
            if (isRoot && (i == 0 || path[i - 1] == '/')) from = i;
            if (path[i] == '.') end = i;
        }
        for (std::size_t i = from; i < end && i - from < sizeof m_text - 1; ++i) m_text[i - from] = path[i];
    }
    constexpr operator const char*() const { return m_text; }

  private:
    char m_text[100] = {};
};

namespace {
/// The path of the source file that includes this one. Each has its own, so inline functions do not use it.
constexpr XmlSourcePath kSource(__BASE_FILE__);  // NOLINT(misc-definitions-in-headers)
}  // namespace

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
/// deletion.
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

/// A new `Object`, registered under the source path `source` and the line of the call; NULL without memory.
template <class Object>
Object* ixNew(const char* source, int line = __builtin_LINE(), int module = kSchemaModule) {
    return static_cast<Object*>(ixTrack(module, source, line, new (std::nothrow) Object, sizeof(Object)));
}

/// Unregisters and deletes an object; NULL is ignored.
template <class Object>
void ixDelete(Object* object, int module = kSchemaModule) {
    if (object == nullptr) return;
    trmemlog_remove(module, object);
    delete object;
}

/// While one lives, what the device profile leaves to nobody is freed on its thread: the tree of a document that fails,
/// and what a field held before a document gave it once more. For programs that go on after broken documents.
class IX_XML_EXPORT XmlTidy {
  public:
    XmlTidy();
    ~XmlTidy();
    XmlTidy(const XmlTidy&) = delete;
    XmlTidy& operator=(const XmlTidy&) = delete;

    /// True while one lives on this thread.
    static bool IsOn();
};
/// @}

/// @name Log lines
/// @{

/// Event numbers.
enum XmlLogCode {
    kBufferCheckCode = 6052,  ///< The tokenizer's buffer check that ends the process.
    kDecoderCode = 6053,      ///< The tokenizer and the namespace operations.
    kSchemaCode = 6070        ///< Schema families, containers and the document generator.
};

/// A log line: `{3, "text"}` where it is logged.
struct XmlLogText {
    short level = 0;               ///< As the platform layer has it (ixDpl.h), 1 to 4.
    short code = kSchemaCode;      ///< One of `XmlLogCode`.
    int line = 0;                  ///< Source line the log shows: that of the statement, unless it is fixed.
    const char* format = nullptr;  ///< printf-style, at most three conversions; NULL: nothing is logged.

    constexpr XmlLogText() = default;
    constexpr XmlLogText(int textLevel, const char* text, int textLine = __builtin_LINE())
        : XmlLogText(textLevel, kSchemaCode, textLine, text) {}
    constexpr XmlLogText(int textLevel, int textCode, int textLine, const char* text)
        : level(static_cast<short>(textLevel)), code(static_cast<short>(textCode)), line(textLine), format(text) {}
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
