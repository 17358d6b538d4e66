#include "Infoset.h"

#include <expat.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

#include "Scanner.h"
#include "Text.h"
#include "XmlNamespaces.h"

namespace {

/// Between namespace and local name in what the parser reports. No document can have it.
constexpr char kSeparator = '\x01';

/// As many elements inside one another as the standard profile takes.
constexpr std::size_t kMostOpen = 1000;

constexpr char kInstanceNamespace[] = "http://www.w3.org/2001/XMLSchema-instance";
constexpr char kXmlNamespace[] = "http://www.w3.org/XML/1998/namespace";

/// Parts of services leave the prefixes of these to the rest of their document, where servers bind them as is usual.
constexpr XmlNamespace kServiceNamespaces[] = {XmlNamespace::Simservs, XmlNamespace::CommonPolicy,
                                               XmlNamespace::OmaCommonPolicy};

struct Name {
    std::string uri;
    std::string local;

    explicit Name(std::string_view reported) {
        const std::size_t separator = reported.find(kSeparator);
        const bool hasUri = separator != std::string_view::npos;
        if (hasUri) uri = reported.substr(0, separator);
        local = hasUri ? reported.substr(separator + 1) : reported;
    }
};

/// Reads one text. What is reported to it must not be left by an exception: the parser is C.
class InfosetReader {
  public:
    explicit InfosetReader(const std::string& text);

    bool Read();
    InfoElement TakeRoot() { return std::move(m_root); }
    DocumentError Fault() const;

    /// True when the reading ended at a prefix that is not declared.
    bool LacksPrefix() const { return XML_GetErrorCode(m_parser.get()) == XML_ERROR_UNBOUND_PREFIX; }
    /// The root's "<", also where that tag is at fault.
    std::size_t RootOffset() const { return m_rootOffset != kNoOffset ? m_rootOffset : Offset(); }
    /// True when the root declares the prefix.
    bool RootDeclares(const std::string& prefix) const { return m_rootPrefixes.count(prefix) != 0; }

  private:
    std::size_t Offset() const { return static_cast<std::size_t>(XML_GetCurrentByteIndex(m_parser.get())); }
    void Stop(const std::string& fault);
    void Start(const char* name, const char** attributes);
    void End();

    const std::string& m_text;
    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> m_parser;
    std::vector<InfoElement> m_open;
    InfoElement m_root;
    std::size_t m_rootOffset = kNoOffset;
    std::set<std::string> m_rootPrefixes;
    std::string m_fault;                    ///< Found here and not by the parser ...
    std::size_t m_faultOffset = kNoOffset;  ///< ... which goes on before it stops.
};

InfosetReader::InfosetReader(const std::string& text)
    : m_text(text), m_parser(XML_ParserCreateNS(nullptr, kSeparator), XML_ParserFree) {
    if (m_parser == nullptr) throw DocumentError{kNotDecoded, "no memory"};
    XML_SetUserData(m_parser.get(), this);
    XML_SetElementHandler(
        m_parser.get(),
        [](void* reader, const char* name, const char** attributes) {
            static_cast<InfosetReader*>(reader)->Start(name, attributes);
        },
        [](void* reader, const char* /*name*/) { static_cast<InfosetReader*>(reader)->End(); });
    XML_SetCharacterDataHandler(m_parser.get(), [](void* reader, const char* piece, int length) {
        static_cast<InfosetReader*>(reader)->m_open.back().text.append(piece, static_cast<std::size_t>(length));
    });
    XML_SetStartNamespaceDeclHandler(m_parser.get(), [](void* reader, const char* prefix, const char* /*uri*/) {
        auto& self = *static_cast<InfosetReader*>(reader);
        if (self.m_rootOffset == kNoOffset && prefix != nullptr) self.m_rootPrefixes.insert(prefix);
    });
    XML_SetSkippedEntityHandler(m_parser.get(), [](void* reader, const char* name, int isParameter) {
        if (isParameter == 0) static_cast<InfosetReader*>(reader)->Stop("unknown entity " + QuotedText(name));
    });
}

bool InfosetReader::Read() {
    constexpr std::size_t kPiece = std::size_t{1} << 20U;
    for (std::size_t at = 0;; at += kPiece) {
        const bool isLast = m_text.size() - at <= kPiece;
        const auto size = static_cast<int>(isLast ? m_text.size() - at : kPiece);
        if (XML_Parse(m_parser.get(), m_text.data() + at, size, isLast ? 1 : 0) != XML_STATUS_OK) return false;
        if (isLast) return true;
    }
}

DocumentError InfosetReader::Fault() const {
    if (!m_fault.empty()) return {kNotDecoded, m_fault, m_faultOffset};
    std::size_t offset = Offset();
    const XML_Error error = XML_GetErrorCode(m_parser.get());
    // A "&" that begins no reference is found out behind the name that follows it.
    const std::size_t reference = std::string_view(m_text).substr(0, offset).find_last_of("& \t\r\n\"'=;<>");
    const bool isReference = reference != std::string::npos && m_text[reference] == '&';
    if (error == XML_ERROR_INVALID_TOKEN && isReference) offset = reference;
    std::string_view rest = std::string_view(m_text).substr(std::min(offset, m_text.size()));
    rest = rest.substr(0, rest.find_first_of("\r\n"));
    switch (error) {
        // The parser stands where these are, and does not name them.
        case XML_ERROR_INVALID_TOKEN:
            return {kNotDecoded, "unexpected " + QuotedText(rest), offset};
        case XML_ERROR_UNBOUND_PREFIX:
            return {kNotDecoded, "a prefix is not declared in " + QuotedText(rest.substr(0, rest.find('>') + 1)),
                    offset};
        default:
            return {kNotDecoded, XML_ErrorString(error), offset};
    }
}

void InfosetReader::Stop(const std::string& fault) {
    if (!m_fault.empty()) return;
    m_fault = fault;
    m_faultOffset = Offset();
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void InfosetReader::Start(const char* name, const char** attributes) {
    if (m_rootOffset == kNoOffset) m_rootOffset = Offset();
    if (m_open.size() == kMostOpen) return Stop("more than " + std::to_string(kMostOpen) + " open elements");
    Name own(name);
    InfoElement element{std::move(own.uri), std::move(own.local), {}, {}, {}};
    for (; *attributes != nullptr; attributes += 2) {
        Name of(attributes[0]);
        if (of.uri == kInstanceNamespace && of.local == "schemaLocation") continue;
        element.attributes.push_back({std::move(of.uri), std::move(of.local), attributes[1]});
    }
    m_open.push_back(std::move(element));
}

void InfosetReader::End() {
    InfoElement element = std::move(m_open.back());
    m_open.pop_back();
    if (m_open.empty()) {
        m_root = std::move(element);
    } else {
        m_open.back().children.push_back(std::move(element));
    }
}

/// A text as a line shows it.
std::string Trimmed(std::string_view text) {
    std::string trimmed;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find_first_of(kSpaces), text.size());
        if (length != 0) trimmed.append(trimmed.empty() ? "" : " ").append(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return trimmed;
}

/// What a text means: spellings of one number or truth are the same.
std::string Meaning(std::string_view text) {
    std::string meaning = Trimmed(text);
    if (meaning == "true") return "1";
    if (meaning == "false") return "0";
    const std::size_t sign = Begins(meaning, "+") || Begins(meaning, "-") ? 1 : 0;
    if (meaning.size() == sign || meaning.find_first_not_of("0123456789", sign) != std::string::npos) return meaning;
    const std::size_t digits = std::min(meaning.find_first_not_of('0', sign), meaning.size() - 1);
    return (meaning[0] == '-' ? "-" : "") + meaning.substr(digits);
}

/// Stands behind the path of what is of another namespace than usual.
std::string Note(const std::string& uri, const std::string& usual) {
    return uri.empty() || uri == usual ? "" : " (" + WithoutControls(uri) + ')';
}

std::string Quoted(std::string_view value) {
    std::string quoted = "\"";
    for (const char byte : WithoutControls(Trimmed(value))) quoted.append(byte == '"' ? "\\" : "").append(1, byte);
    return quoted + '"';
}

std::string FullName(const std::string& uri, const std::string& name) { return uri + kSeparator + name; }

using Siblings = std::vector<const InfoElement*>;

/// Gives each element the namespace that it counts in, and its digest.
void Prepare(InfoElement& element, const std::string& main) {
    constexpr std::hash<std::string> kHash;
    if (main.empty() || element.uri.empty()) element.uri = main;
    std::size_t digest = kHash(FullName(element.uri, element.name) + kSeparator + Meaning(element.text));
    // Neither attributes nor siblings of different names are in order.
    for (const InfoAttribute& attribute : element.attributes) {
        digest += kHash(FullName(attribute.uri, attribute.name) + kSeparator + Meaning(attribute.value));
    }
    std::map<std::string, std::size_t> groups;
    for (InfoElement& child : element.children) {
        Prepare(child, main);
        std::size_t& group = groups[FullName(child.uri, child.name)];
        group = group * 31 + child.digest;
    }
    for (const auto& [name, group] : groups) digest += kHash(name) * 31 + group * 37;
    element.digest = digest * 41;
}

bool HaveOneDigest(const InfoElement& left, const InfoElement& right) { return left.digest == right.digest; }

/// True when both are told from their siblings by the same value.
bool HaveOneIdentity(const InfoElement& left, const InfoElement& right) {
    const auto valueOf = [](const InfoElement& element, std::string_view name) {
        const auto found = std::find_if(element.attributes.begin(), element.attributes.end(),
                                        [name](const InfoAttribute& attribute) { return attribute.name == name; });
        return found != element.attributes.end() ? found->value : "";
    };
    for (const std::string_view name : kIdentities) {
        const std::string value = valueOf(left, name);
        if (!value.empty()) return value == valueOf(right, name);
    }
    return false;
}

class Comparison {
  public:
    explicit Comparison(std::string main) : m_main(std::move(main)) {}

    void Compare(const InfoElement& before, const InfoElement& after, const std::string& path);
    std::vector<std::string> TakeLines() { return std::move(m_lines); }

  private:
    struct Group {
        Siblings before, after;
    };
    /// Siblings of one name that are not paired yet: [from, to) of each side.
    struct Range {
        std::size_t before, beforeEnd, after, afterEnd;
    };
    using Alike = bool (*)(const InfoElement& left, const InfoElement& right);

    void CompareAttributes(const InfoElement& before, const InfoElement& after, const std::string& path);
    void Pair(const Group& group, Range range, int step, const std::string& path);
    void PairLeft(const Group& group, Range range, const std::string& path);
    void TellValue(const std::string& place, const std::string* before, const std::string* after);
    void TellElement(const std::string& place, const InfoElement& element, const char* what);

    std::string m_main;
    std::vector<std::string> m_lines;
};

void Comparison::TellValue(const std::string& place, const std::string* before, const std::string* after) {
    const bool isChange = before != nullptr && after != nullptr;
    if (isChange && Meaning(*before) == Meaning(*after)) return;
    std::string line = place + ": " + Quoted(before != nullptr ? *before : *after);
    line += isChange ? " became " + Quoted(*after) : before != nullptr ? " is lost" : " was added";
    m_lines.push_back(std::move(line));
}

/// What is no more than a text is told with it.
void Comparison::TellElement(const std::string& place, const InfoElement& element, const char* what) {
    const bool isText = element.children.empty() && !Trimmed(element.text).empty();
    m_lines.push_back(place + Note(element.uri, m_main) + (isText ? ": " + Quoted(element.text) : "") + what);
}

void Comparison::CompareAttributes(const InfoElement& before, const InfoElement& after, const std::string& path) {
    const auto find = [](const std::vector<InfoAttribute>& attributes, const InfoAttribute& wanted) {
        const auto found = std::find_if(attributes.begin(), attributes.end(), [&wanted](const InfoAttribute& other) {
            return other.name == wanted.name && other.uri == wanted.uri;
        });
        return found != attributes.end() ? &found->value : nullptr;
    };
    const auto place = [&](const InfoAttribute& attribute) {
        if (attribute.uri == kXmlNamespace) return path + "/@xml:" + attribute.name;
        return path + "/@" + attribute.name + Note(attribute.uri, "");
    };
    for (const InfoAttribute& attribute : before.attributes) {
        TellValue(place(attribute), &attribute.value, find(after.attributes, attribute));
    }
    for (const InfoAttribute& attribute : after.attributes) {
        if (find(before.attributes, attribute) == nullptr) TellValue(place(attribute), nullptr, &attribute.value);
    }
}

void Comparison::Compare(const InfoElement& before, const InfoElement& after, const std::string& path) {
    CompareAttributes(before, after, path);
    const bool hadText = !Trimmed(before.text).empty();
    const bool hasText = !Trimmed(after.text).empty();
    if (hadText || hasText) {
        TellValue(path + "/text()", hadText ? &before.text : nullptr, hasText ? &after.text : nullptr);
    }
    std::vector<Group> groups;
    std::map<std::string, std::size_t> numbers;
    const auto groupOf = [&](const InfoElement& child) -> Group& {
        const auto [entry, isNew] = numbers.emplace(FullName(child.uri, child.name), groups.size());
        if (isNew) groups.emplace_back();
        return groups[entry->second];
    };
    for (const InfoElement& child : before.children) groupOf(child).before.push_back(&child);
    for (const InfoElement& child : after.children) groupOf(child).after.push_back(&child);
    for (const Group& group : groups) {
        const InfoElement& first = group.before.empty() ? *group.after[0] : *group.before[0];
        Pair(group, {0, group.before.size(), 0, group.after.size()}, 0, path + '/' + first.name);
    }
}

/// Pairs what says the same, then what is told by the same identity, then what is left, so that an entry that has gone
/// does not make a change of each that stood behind it.
void Comparison::Pair(const Group& group, Range range, int step, const std::string& path) {
    constexpr Alike kSteps[] = {HaveOneDigest, HaveOneIdentity};
    if (step == static_cast<int>(std::size(kSteps))) return PairLeft(group, range, path);
    const auto alike = [&](std::size_t before, std::size_t after) {
        return kSteps[step](*group.before[before], *group.after[after]);
    };
    Range middle = range;
    while (middle.before < middle.beforeEnd && middle.after < middle.afterEnd && alike(middle.before, middle.after)) {
        ++middle.before;
        ++middle.after;
    }
    while (middle.before < middle.beforeEnd && middle.after < middle.afterEnd &&
           alike(middle.beforeEnd - 1, middle.afterEnd - 1)) {
        --middle.beforeEnd;
        --middle.afterEnd;
    }
    const std::size_t rows = middle.beforeEnd - middle.before;
    const std::size_t columns = middle.afterEnd - middle.after;
    PairLeft(group, {range.before, middle.before, range.after, middle.after}, path);
    // The longest common sequence, as far as its table fits.
    constexpr std::size_t kMostCells = std::size_t{1} << 20U;
    const bool fits = rows != 0 && columns != 0 && rows < kMostCells / columns;
    std::vector<unsigned> longest(fits ? (rows + 1) * (columns + 1) : 0);
    const auto cell = [&](std::size_t row, std::size_t column) -> unsigned& {
        return longest[row * (columns + 1) + column];
    };
    for (std::size_t row = fits ? rows : 0; row-- > 0;) {
        for (std::size_t column = columns; column-- > 0;) {
            cell(row, column) = alike(middle.before + row, middle.after + column)
                                    ? cell(row + 1, column + 1) + 1
                                    : std::max(cell(row + 1, column), cell(row, column + 1));
        }
    }
    Range gap = {middle.before, middle.before, middle.after, middle.after};
    for (std::size_t row = 0, column = 0; fits && row < rows && column < columns;) {
        if (alike(middle.before + row, middle.after + column)) {
            Pair(group, gap, step + 1, path);
            const std::size_t left = middle.before + row++;
            const std::size_t right = middle.after + column++;
            PairLeft(group, {left, left + 1, right, right + 1}, path);
            gap = {left + 1, left + 1, right + 1, right + 1};
        } else if (cell(row + 1, column) >= cell(row, column + 1)) {
            gap.beforeEnd = middle.before + ++row;
        } else {
            gap.afterEnd = middle.after + ++column;
        }
    }
    gap.beforeEnd = middle.beforeEnd;
    gap.afterEnd = middle.afterEnd;
    Pair(group, gap, step + 1, path);
    PairLeft(group, {middle.beforeEnd, range.beforeEnd, middle.afterEnd, range.afterEnd}, path);
}

/// Pairs a range in order and tells what is left on one side.
void Comparison::PairLeft(const Group& group, Range range, const std::string& path) {
    const bool areMany = std::max(group.before.size(), group.after.size()) > 1;
    const auto place = [&](std::size_t number) {
        return path + (areMany ? '[' + std::to_string(number + 1) + ']' : "");
    };
    for (; range.before < range.beforeEnd && range.after < range.afterEnd; ++range.before, ++range.after) {
        Compare(*group.before[range.before], *group.after[range.after], place(range.before));
    }
    for (; range.before < range.beforeEnd; ++range.before) {
        TellElement(place(range.before), *group.before[range.before], " is lost");
    }
    for (; range.after < range.afterEnd; ++range.after) {
        TellElement(place(range.after), *group.after[range.after], " was added");
    }
}

}  // namespace

InfoElement ReadInfoset(const std::string& text) {
    InfosetReader reader(text);
    if (reader.Read()) return reader.TakeRoot();
    if (!reader.LacksPrefix()) throw DocumentError(reader.Fault());
    std::string declarations;
    for (const XmlNamespace known : kServiceNamespaces) {
        const XmlNamespaceInfo& info = kXmlNamespaces[static_cast<std::size_t>(known)];
        if (reader.RootDeclares(info.prefix)) continue;
        declarations.append(" xmlns:").append(info.prefix).append("=\"").append(info.uri).append("\"");
    }
    const std::size_t at = std::min(text.find_first_of(" \t\r\n/>", reader.RootOffset()), text.size());
    std::string complete = text;
    complete.insert(at, declarations);
    InfosetReader again(complete);
    if (again.Read()) return again.TakeRoot();
    DocumentError fault = again.Fault();
    // Of the text as it is.
    if (fault.offset != kNoOffset && fault.offset > at) fault.offset -= declarations.size();
    throw DocumentError(fault);
}

std::vector<std::string> Differences(InfoElement before, InfoElement after) {
    const std::string main = before.uri;
    Prepare(before, main);
    Prepare(after, main);
    const std::string path = '/' + before.name;
    if (before.name != after.name || before.uri != after.uri) {
        return {path + " became /" + after.name + Note(after.uri, main)};
    }
    Comparison comparison(main);
    comparison.Compare(before, after, path);
    return comparison.TakeLines();
}
