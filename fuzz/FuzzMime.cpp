// The reader of messages. Whatever the bytes, it ends; what it says of places is in the text, and a part that is not
// decoded stands in the text where the reader says.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string_view>
#include <utility>

#include "Mime.h"

namespace {

[[noreturn]] void Fail(const char* what, std::string_view text) {
    std::fprintf(stderr, "%s:\n%.*s\n", what, static_cast<int>(text.size()), text.data());
    std::abort();
}

/// What begins with a line of a text, counted from 1 on.
std::string_view FromLine(std::string_view text, int line) {
    while (--line > 0) text.remove_prefix(std::min(text.size(), text.find('\n')) + 1);
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const int lines = 1 + static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    const auto check = [&](const MimeRemark& remark) {
        if (remark.text.empty()) return;
        if (remark.line < 1 || remark.line > lines || remark.column < 1) Fail("no place in the text", text);
        // One behind a line may be meant, but no more.
        const std::string_view rest = FromLine(text, remark.line);
        if (static_cast<std::size_t>(remark.column) > rest.size() + 1) Fail("behind the text", text);
    };
    const MimeFile file = ReadMime(text);
    check(file.problem);
    for (const MimeRemark& warning : file.warnings) check(warning);
    std::set<std::pair<int, std::string>> names;
    for (const MimePart& part : file.parts) {
        check(part.problem);
        if (part.message < 1 || part.message > file.messages) Fail("a part of no message", text);
        if (!names.emplace(part.message, part.name).second) Fail("two parts with one name", text);
        if (part.line < 1 || part.line > lines) Fail("a part outside of the text", text);
        if (!part.encoding.empty() || part.text.empty()) continue;
        const std::string_view line = FromLine(text, part.line);
        if (line.substr(0, part.text.size()) != part.text) Fail("a part that stands elsewhere", text);
    }
    if (file.messages != 0 && !file.problem.text.empty()) Fail("messages, and none", text);
    return 0;
}
