#include "Diff.h"

#include <cstdio>
#include <optional>

#include "Infoset.h"
#include "Input.h"
#include "Runner.h"

namespace {

/// NULL after a message.
std::optional<InfoElement> Read(const std::string& name) {
    Document document{name, {}};
    try {
        document.text = ReadText(name);
        return ReadInfoset(document.text);
    } catch (const DocumentError& error) {
        std::fprintf(stderr, "%s\n", document.Describe(error).c_str());
        return std::nullopt;
    }
}

}  // namespace

int RunDiff(const std::vector<std::string>& files) {
    constexpr int kDifferent = 1;
    std::optional<InfoElement> before = Read(files[0]);
    std::optional<InfoElement> after = Read(files[1]);
    if (!before || !after) return kWrongUsage;
    std::string text;
    for (const std::string& line : Differences(std::move(*before), std::move(*after))) text += line + '\n';
    return Print(text) != kDone ? kWrongUsage : text.empty() ? kDone : kDifferent;
}
