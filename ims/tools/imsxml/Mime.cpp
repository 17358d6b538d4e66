#include "Mime.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <utility>

namespace {

constexpr char kBlanks[] = " \t";
constexpr char kLineEnds[] = " \t\r\n";
constexpr int kMostDepth = 10;

char Lower(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

/// True when the texts are the same but for their case.
bool IsWord(std::string_view text, std::string_view word) {
    return text.size() == word.size() && std::equal(text.begin(), text.end(), word.begin(),
                                                    [](char left, char right) { return Lower(left) == Lower(right); });
}

bool BeginsWord(std::string_view text, std::string_view word) { return IsWord(text.substr(0, word.size()), word); }

std::string_view Trim(std::string_view text) {
    text = text.substr(0, text.find_last_not_of(kLineEnds) + 1);
    return text.substr(std::min(text.size(), text.find_first_not_of(kLineEnds)));
}

std::string_view WithoutParameters(std::string_view field) { return Trim(field.substr(0, field.find(';'))); }

bool IsToken(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char byte) {
        return byte > ' ' && byte < '\x7f' &&
               std::string_view("()<>@,;:\\\"/[]?={}").find(byte) == std::string_view::npos;
    });
}

/// The name of a header field; "": the line is none.
std::string_view FieldName(std::string_view line) {
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos) return {};
    const std::string_view name = line.substr(0, line.substr(0, colon).find_last_not_of(kBlanks) + 1);
    return IsToken(name) ? name : std::string_view();
}

bool IsStartLine(std::string_view line) {
    constexpr std::string_view kVersion = "SIP/2.0";
    line = Trim(line);
    if (BeginsWord(line, "SIP/2.0 ")) return true;
    const std::size_t blank = line.find(' ');
    return line.size() > kVersion.size() && IsToken(line.substr(0, blank)) && line.rfind(' ') != blank &&
           line[line.size() - kVersion.size() - 1] == ' ' &&
           IsWord(line.substr(line.size() - kVersion.size()), kVersion);
}

/// A line, and where it ends.
struct Line {
    std::string_view text;  ///< Without its end.
    std::size_t next;       ///< Where the next one begins.
};

/// What a head says of the body behind it.
struct Head {
    std::string type;
    std::string length;
    std::string encoding;
    std::string transfer;
    std::size_t body = 0;
};

/// The value in `head` of the field with this name; NULL: nobody asks for it, or it is there already.
std::string* NewField(Head& head, std::string_view name) {
    const std::pair<std::string_view, std::string&> fields[] = {{"Content-Type", head.type},
                                                                {"c", head.type},
                                                                {"Content-Length", head.length},
                                                                {"l", head.length},
                                                                {"Content-Encoding", head.encoding},
                                                                {"e", head.encoding},
                                                                {"Content-Transfer-Encoding", head.transfer}};
    for (const auto& [known, value] : fields) {
        if (IsWord(name, known)) return value.empty() ? &value : nullptr;
    }
    return nullptr;
}

/// True for a body that has parts.
bool HasParts(const Head& head) {
    return BeginsWord(head.type, "multipart/") || IsWord(WithoutParameters(head.type), "message/cpim");
}

bool IsOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(), [word](std::string_view known) { return IsWord(word, known); });
}

/// How a body is encoded that nobody decodes; "": it is not.
std::string UnknownEncoding(const Head& head) {
    if (!IsOneOf(head.encoding, {"", "identity"})) return "Content-Encoding " + head.encoding;
    if (IsOneOf(head.transfer, {"", "7bit", "8bit", "binary"})) return "";
    // What has parts is not encoded as a whole, says the standard.
    const bool isKnown = IsOneOf(head.transfer, {"base64", "quoted-printable"}) && !HasParts(head);
    return isKnown ? "" : "Content-Transfer-Encoding " + head.transfer;
}

/// Cuts a value off the parameters of a header field, quotes and escapes undone.
std::string CutValue(std::string_view& rest) {
    if (rest.empty() || rest[0] != '"') {
        const std::string_view value = rest.substr(0, rest.find(';'));
        rest.remove_prefix(value.size());
        return std::string(Trim(value));
    }
    std::string value;
    std::size_t at = 1;
    for (; at < rest.size() && rest[at] != '"'; ++at) {
        if (rest[at] == '\\' && at + 1 < rest.size()) ++at;
        value += rest[at];
    }
    rest.remove_prefix(std::min(rest.size(), at + 1));
    rest.remove_prefix(std::min(rest.size(), rest.find(';')));
    return value;
}

/// The parameter of a header field; "": it has none.
std::string Parameter(std::string_view field, std::string_view name) {
    std::string_view rest = field.substr(std::min(field.size(), field.find(';')));
    while (!rest.empty()) {
        rest.remove_prefix(1);
        const std::string_view found = Trim(rest.substr(0, rest.find_first_of("=;")));
        rest.remove_prefix(std::min(rest.size(), rest.find_first_of("=;")));
        if (rest.empty() || rest[0] == ';') continue;
        rest.remove_prefix(std::min(rest.size(), rest.find_first_not_of(kLineEnds, 1)));
        std::string value = CutValue(rest);
        if (IsWord(found, name)) return value;
    }
    return "";
}

int HexValue(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    const char lower = Lower(digit);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// @return where the text is no base64; its size: nowhere.
std::size_t DecodeBase64(std::string_view text, std::string& decoded) {
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::uint8_t values[256];
    std::fill(std::begin(values), std::end(values), std::uint8_t{64});
    for (std::size_t i = 0; i < kDigits.size(); ++i) {
        values[static_cast<unsigned char>(kDigits[i])] = static_cast<std::uint8_t>(i);
    }
    decoded.reserve(text.size() / 4 * 3);
    unsigned bits = 0;
    unsigned count = 0;
    bool isOver = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (std::string_view(kLineEnds).find(text[i]) != std::string_view::npos) continue;
        const unsigned value = values[static_cast<unsigned char>(text[i])];
        isOver = isOver || (text[i] == '=' && count >= 2);
        if (isOver && text[i] == '=') continue;
        if (isOver || value == 64) return i;
        bits = bits << 6U | value;
        if (++count != 1) decoded += static_cast<char>(bits >> (8 - 2 * count) & 0xffU);
        count %= 4;
    }
    // One digit is no byte.
    return count == 1 && !text.empty() ? text.size() - 1 : text.size();
}

/// The same for quoted-printable.
std::size_t DecodeQuoted(std::string_view text, std::string& decoded) {
    decoded.reserve(text.size());
    // Blanks at the end of a line are no part of it, unless they are written as digits.
    std::size_t kept = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n') {
            const bool isCrLf = decoded.size() > kept && decoded.back() == '\r';
            if (isCrLf) decoded.pop_back();
            while (decoded.size() > kept && (decoded.back() == ' ' || decoded.back() == '\t')) decoded.pop_back();
            decoded += isCrLf ? "\r\n" : "\n";
            kept = decoded.size();
        } else if (text[i] != '=') {
            decoded += text[i];
        } else if (i + 2 < text.size() && HexValue(text[i + 1]) >= 0 && HexValue(text[i + 2]) >= 0) {
            decoded += static_cast<char>(HexValue(text[i + 1]) * 16 + HexValue(text[i + 2]));
            kept = decoded.size();
            i += 2;
        } else {
            const std::size_t end = std::min(text.size(), text.find_first_not_of(" \t\r", i + 1));
            if (end < text.size() && text[end] != '\n') return i;
            kept = decoded.size();
            i = end;
        }
    }
    return text.size();
}

class Reader {
  public:
    explicit Reader(std::string_view text) : m_text(text) {}

    MimeFile Read();

  private:
    Line LineAt(std::size_t at, std::size_t end) const;
    Head ReadHead(std::size_t at, std::size_t end) const;
    bool ReadFirst(std::size_t at);
    std::size_t ReadMessage(std::size_t at);
    std::size_t EndOfBody(const Head& head);
    void ReadEntity(const Head& head, std::size_t end, const std::string& name, int depth);
    std::string Open(const Head& head, std::size_t end, const std::string& name, int depth);
    std::string ReadMultipart(const std::string& boundary, std::size_t at, std::size_t end, const std::string& name,
                              int depth);
    std::size_t EndBefore(std::size_t delimiter, std::size_t begin) const;
    void Decode(MimePart& part, const Head& head, std::size_t end);
    MimeRemark Remark(std::string text, std::size_t at);

    std::string_view m_text;
    MimeFile m_file;
    // Places are asked for from the front to the back, so that lines are counted once.
    std::size_t m_counted = 0;
    std::size_t m_lineStart = 0;
    int m_line = 1;
};

Line Reader::LineAt(std::size_t at, std::size_t end) const {
    std::string_view text = m_text.substr(at, end - at);
    const std::size_t feed = text.find('\n');
    const std::size_t next = feed == std::string_view::npos ? end : at + feed + 1;
    text = text.substr(0, feed);
    if (!text.empty() && text.back() == '\r') text.remove_suffix(1);
    return {text, next};
}

MimeRemark Reader::Remark(std::string text, std::size_t at) {
    for (; m_counted < at; ++m_counted) {
        if (m_text[m_counted] != '\n') continue;
        ++m_line;
        m_lineStart = m_counted + 1;
    }
    return {std::move(text), m_line, static_cast<int>(at - m_lineStart) + 1};
}

Head Reader::ReadHead(std::size_t at, std::size_t end) const {
    Head head;
    std::string* value = nullptr;
    while (at < end) {
        const Line line = LineAt(at, end);
        at = line.next;
        if (line.text.empty()) break;
        // A blank in front continues the line above.
        if (line.text[0] == ' ' || line.text[0] == '\t') {
            if (value != nullptr) value->append(value->empty() ? "" : " ").append(Trim(line.text));
            continue;
        }
        value = NewField(head, FieldName(line.text));
        if (value != nullptr) *value = Trim(line.text.substr(line.text.find(':') + 1));
    }
    head.body = at;
    return head;
}

/// Takes a body over, decoded.
void Reader::Decode(MimePart& part, const Head& head, std::size_t end) {
    const std::string_view text = m_text.substr(head.body, end - head.body);
    const bool isBase64 = IsWord(head.transfer, "base64");
    if (!isBase64 && !IsWord(head.transfer, "quoted-printable")) {
        part.text = text;
        return;
    }
    part.encoding = isBase64 ? "base64" : "quoted-printable";
    const std::size_t stop = isBase64 ? DecodeBase64(text, part.text) : DecodeQuoted(text, part.text);
    if (stop != text.size()) part.problem = Remark("this is no " + part.encoding, head.body + stop);
}

std::size_t Reader::EndBefore(std::size_t delimiter, std::size_t begin) const {
    // The line end in front belongs to the delimiter.
    if (delimiter > begin) --delimiter;
    if (delimiter > begin && m_text[delimiter - 1] == '\r') --delimiter;
    return delimiter;
}

/// @return what is wrong; "": nothing.
std::string Reader::ReadMultipart(const std::string& boundary, std::size_t at, std::size_t end, const std::string& name,
                                  int depth) {
    constexpr std::size_t kNone = std::string_view::npos;
    const std::string delimiter = "--" + boundary;
    std::size_t begin = kNone;
    int count = 0;
    const auto add = [&](std::size_t partEnd) {
        const std::string number = std::to_string(++count);
        ReadEntity(ReadHead(begin, partEnd), partEnd, name.empty() ? number : name + '.' + number, depth);
    };
    while (at < end) {
        const Line line = LineAt(at, end);
        std::string_view rest = line.text.substr(std::min(line.text.size(), delimiter.size()));
        const bool isLast = rest.substr(0, 2) == "--";
        if (isLast) rest.remove_prefix(2);
        if (line.text.substr(0, delimiter.size()) == delimiter && Trim(rest).empty()) {
            if (begin != kNone) add(EndBefore(at, begin));
            if (isLast) return begin != kNone ? "" : "the multipart has no part";
            begin = line.next;
        }
        at = line.next;
    }
    if (begin == kNone) return "the boundary of the multipart does not occur";
    add(end);
    m_file.warnings.push_back(Remark("the multipart has no final boundary", end));
    return "";
}

/// @return why an entity with parts cannot be opened; "": it was.
std::string Reader::Open(const Head& head, std::size_t end, const std::string& name, int depth) {
    if (depth == kMostDepth) return "parts are nested more than " + std::to_string(kMostDepth) + " deep";
    if (BeginsWord(head.type, "multipart/")) {
        const std::string boundary = Parameter(head.type, "boundary");
        if (boundary.empty()) return "the multipart has no boundary";
        return ReadMultipart(boundary, head.body, end, name, depth + 1);
    }
    // Behind its own headers there are those of the content.
    const Head cpim = ReadHead(head.body, end);
    ReadEntity(ReadHead(cpim.body, end), end, (name.empty() ? "1" : name) + ".1", depth + 1);
    return "";
}

/// @param name "" for what is no part of anything.
void Reader::ReadEntity(const Head& head, std::size_t end, const std::string& name, int depth) {
    MimePart part{m_file.messages,
                  name.empty() ? "1" : name,
                  std::string(WithoutParameters(head.type)),
                  "",
                  Remark("", head.body).line,
                  "",
                  HasParts(head),
                  {}};
    std::string problem = UnknownEncoding(head);
    if (!problem.empty()) {
        problem += " is not decoded";
    } else if (part.hasParts) {
        problem = Open(head, end, name, depth);
        if (problem.empty()) return;
    } else {
        Decode(part, head, end);
    }
    if (!problem.empty()) part.problem = {problem, part.line, 1};
    m_file.parts.push_back(std::move(part));
}

std::size_t Reader::EndOfBody(const Head& head) {
    const std::size_t all = m_text.size() - head.body;
    if (head.length.empty()) return m_text.size();
    std::size_t length = 0;
    for (const char digit : head.length) {
        if (digit < '0' || digit > '9') {
            m_file.warnings.push_back(Remark("Content-Length is no number", head.body));
            return m_text.size();
        }
        // More than the file has is enough.
        if (length <= all) length = length * 10 + static_cast<std::size_t>(digit - '0');
    }
    if (length <= all) return head.body + length;
    m_file.warnings.push_back(
        Remark("Content-Length says more than the " + std::to_string(all) + " bytes that follow", head.body));
    return m_text.size();
}

/// @return where it ends.
std::size_t Reader::ReadMessage(std::size_t at) {
    ++m_file.messages;
    const Head head = ReadHead(at, m_text.size());
    const std::size_t end = EndOfBody(head);
    if (end != head.body || !head.type.empty()) ReadEntity(head, end, "", 0);
    return end;
}

/// Reads what can only stand at the beginning. @return false when messages follow.
bool Reader::ReadFirst(std::size_t at) {
    const std::string_view line = LineAt(at, m_text.size()).text;
    if (IsStartLine(line) || !FieldName(line).empty()) return false;
    std::string problem = "neither a start line of SIP nor a header field";
    if (line.substr(0, 1) == "<") problem = "this is a document and no message; leave out --sip";
    // The body of a multipart says its boundary, too.
    const std::size_t length = line.find_last_not_of(kLineEnds) + 1;
    if (length > 2 && line.substr(0, 2) == "--") {
        ++m_file.messages;
        problem = ReadMultipart(std::string(line.substr(2, length - 2)), at, m_text.size(), "", 1);
    }
    if (!problem.empty()) m_file.problem = Remark(problem, at);
    return true;
}

MimeFile Reader::Read() {
    constexpr std::string_view kMark = "\xef\xbb\xbf";
    std::size_t at = m_text.substr(0, kMark.size()) == kMark ? kMark.size() : 0;
    const auto skip = [&] { at = std::min(m_text.size(), m_text.find_first_not_of(kLineEnds, at)); };
    skip();
    if (ReadFirst(at)) return std::move(m_file);
    for (;;) {
        at = ReadMessage(at);
        skip();
        if (at == m_text.size()) break;
        if (!IsStartLine(LineAt(at, m_text.size()).text)) {
            m_file.warnings.push_back(Remark("what is behind the Content-Length is no message, and left out", at));
            break;
        }
    }
    return std::move(m_file);
}

}  // namespace

MimeFile ReadMime(std::string_view text) { return Reader(text).Read(); }
