#include <algorithm>
#include <iterator>
#include <string_view>

#include "ixDplHost.h"

namespace {

constexpr std::string_view kModule = "<XML Module>";

// What a document is asked for without having a place for it. Names of its elements follow, which are not looked at.
constexpr std::string_view kRejections[] = {
    "Cannot accommodate the ",  "cannot accommodate any element", "is not supported when ", "is NULL when ",
    "AnyElement not supported", "Any attribute is not allowed",   "while ClassName is ",    "is left out",
};

constexpr std::string_view kFaults[] = {
    "ailed",        "fail @", "Failure",   "mandatory", "required",      "annot allocate", "nable to",
    " Error ",      "nvalid", "not found", "issue in",  "ty element - ", "overflow",       "underflow",
    "UnSuccessful", " NULL",  "is Null",   "is null",   "less than",
};

// An element that may be missing.
constexpr std::string_view kAbsent[] = {"empty element is NULL"};

/// True when one of the `pieces` is in `text`.
template <std::size_t count>
bool HasOneOf(std::string_view text, const std::string_view (&pieces)[count]) {
    return std::any_of(std::begin(pieces), std::end(pieces),
                       [text](std::string_view piece) { return text.find(piece) != std::string_view::npos; });
}

}  // namespace

ixDplHostLogKind ixDplHostKindOf(const ixDplHostLogLine& line) {
    std::string_view text = line.text;
    if (text.substr(0, kModule.size()) == kModule) text.remove_prefix(kModule.size());
    // From here on it is a document, which may have any word in it.
    text = text.substr(0, text.find('<'));
    if (HasOneOf(text, kRejections)) return kIxDplHostRejected;
    return HasOneOf(text, kFaults) && !HasOneOf(text, kAbsent) ? kIxDplHostFault : kIxDplHostProgress;
}

void ixDplHostFilterLog(const ixDplHostLogLine& line, void* filter) {
    const auto& chosen = *static_cast<const ixDplHostLogFilter*>(filter);
    if (ixDplHostKindOf(line) >= chosen.least) chosen.sink(line, chosen.context);
}
