#include "Scenario.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

namespace {

constexpr std::size_t kColumns = 110;

std::string Flat(const Json& json) {
    if (!json.is_structured()) return json.dump();
    std::string text;
    for (const auto& [key, value] : json.items()) {
        text += (text.empty() ? "" : ", ") + (json.is_object() ? Json(key).dump() + ": " : "") + Flat(value);
    }
    return json.is_object() ? "{" + text + "}" : "[" + text + "]";
}

/// Quotes for apostrophes and the other way round, so that documents need no backslashes in JSON.
std::string Swapped(std::string text) {
    for (char& c : text) c = c == '"' ? '\'' : c == '\'' ? '"' : c;
    return text;
}

/// A text, or the pieces of one.
std::string Joined(const Json& json) {
    if (!json.is_array()) return Swapped(json.get<std::string>());
    std::string text;
    for (const Json& piece : json) text += piece.get<std::string>();
    return Swapped(text);
}

/// A long text in pieces, which begin with a line end or a tag.
Json InPieces(const Json& json) {
    if (!json.is_string()) return json;
    const std::string text = Swapped(json.get<std::string>());
    constexpr std::size_t kPiece = 95;
    if (text.size() <= kPiece) return text;
    Json pieces = Json::array();
    for (std::size_t begin = 0, end = 0; begin < text.size(); begin = end) {
        end = text.size() - begin <= kPiece ? text.size() : text.find_last_of("\n<", begin + kPiece);
        if (end <= begin) end = std::min(text.find_first_of("\n<", begin + 1), text.size());
        if (end < text.size() && text[end] == '<' && text[end - 1] == '\n') --end;
        if (end <= begin) end = begin + 2;
        pieces.push_back(text.substr(begin, end - begin));
    }
    return pieces;
}

/// A tree with other values at some places; null takes a field away.
Json Changed(Json tree, const Json& changes) {
    for (const auto& [pointer, value] : changes.items()) {
        const Json::json_pointer place(pointer);
        if (value.is_null()) {
            tree.at(place.parent_pointer()).erase(place.back());
        } else {
            tree[place] = value;
        }
    }
    return tree;
}

bool EndsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void ReplaceEnd(std::string& line, const std::string& end, const char* name) {
    if (!end.empty() && EndsWith(line, end)) line.replace(line.size() - end.size(), end.size(), name);
}

}  // namespace

std::string Shown(const LogLine& line) {
    const std::string code = line.code != 6070 ? ':' + std::to_string(line.code) : "";
    return std::to_string(line.level) + code + ' ' + line.text;
}

std::string ShownWithSource(const LogLine& line) {
    static const std::set<std::string> numbered = {"CommunicationWaiting", "XMLCommunicationWaiting", "XMLStack"};
    const std::string source = line.source.substr(line.source.rfind('/') + 1);
    const std::string number = numbered.count(source) != 0 ? ':' + std::to_string(line.line) : "";
    return source + number + ' ' + Shown(line);
}

Strings Outcome::Lines(const std::string& text, bool withSource) const {
    Strings lines;
    for (const LogLine& line : log) {
        std::string shown = withSource ? ShownWithSource(line) : Shown(line);
        if (written.is_string()) ReplaceEnd(shown, written.get<std::string>(), "{written}");
        ReplaceEnd(shown, text, "{text}");
        lines.push_back(shown);
    }
    return lines;
}

Scenario::Scenario(Json& data, const Json& file) : m_data(data) {
    m_tree = data.value("tree", Json());
    if (m_tree.is_string()) m_tree = file.at("trees").at(m_tree.get<std::string>());
    if (data.contains("change")) m_tree = Changed(m_tree, data["change"]);
    if (data.contains("in")) m_frame = file.at("frames").at(data["in"].get<std::string>());
    if (data.contains("sample")) m_text = ReadFile(PROJECT_DIR "/samples/" + Sample() + ".xml");
    if (data.contains("text") && !data["text"].is_null()) m_text = Joined(data["text"]);
    m_hasDocument = HasText() && !(data.contains("text") && data["text"].is_null());
    if (m_frame.contains("text")) m_text = Joined(m_frame.at("text")[0]) + m_text + Joined(m_frame.at("text")[1]);
    if (data.contains("binder")) m_binder = data["binder"].is_boolean() ? m_text : Joined(data["binder"]);
}

std::string Scenario::Name() const {
    if (!Sample().empty()) return Sample();
    return m_data.contains("name") ? m_data["name"].get<std::string>() : HasText() ? m_text : Flat(m_data);
}

/// What was written between the begin and the end of the frame; null: there is something else around it.
Json Scenario::Inside(const Json& written) const {
    if (!m_frame.contains("written") || !written.is_string()) return {};
    const std::string begin = Joined(m_frame["written"][0]);
    const std::string end = Joined(m_frame["written"][1]);
    const auto text = written.get<std::string>();
    if (text.size() < begin.size() + end.size() || text.compare(0, begin.size(), begin) != 0) return {};
    return EndsWith(text, end) ? Json(text.substr(begin.size(), text.size() - begin.size() - end.size())) : Json();
}

/// What stands at the frame's place in the tree.
Json Scenario::TreeOf(const Outcome& outcome) const {
    const Json::json_pointer place(m_frame.value("at", ""));
    return outcome.tree.contains(place) ? outcome.tree.at(place) : Json();
}

Json Scenario::Actual(const std::string& key, const Json& expected, const Outcome& outcome) const {
    const Strings lines = outcome.Lines(m_text, false);
    const auto isLogged = [&](const Json& line) {
        return std::find(lines.begin(), lines.end(), Swapped(line.get<std::string>())) != lines.end();
    };
    Json actual;
    if (key == "tree") {
        actual = TreeOf(outcome);
    } else if (key == "fields") {
        for (const auto& [pointer, value] : expected.items()) {
            const Json::json_pointer place(pointer);
            const Json tree = TreeOf(outcome);
            actual[pointer] = tree.contains(place) ? tree.at(place) : Json();
        }
    } else if (key == "written") {
        actual = InPieces(outcome.written);
    } else if (key == "inside") {
        actual = InPieces(Inside(outcome.written));
    } else if (key == "log" && expected.is_object()) {
        actual = Json::object();
        for (const auto& [form, wanted] : expected.items()) {
            for (const Json& line : wanted) {
                if (isLogged(line) == (form == "contains")) actual[form].push_back(line);
            }
        }
    } else if (key == "log") {
        actual = Json::array();
        for (const std::string& line : lines) actual.push_back(Swapped(line));
    }
    return actual;
}

void Scenario::Expect(const Outcome& outcome, bool isWritten, bool update) {
    const bool isNew = !m_data.contains("expect");
    Json expected = isNew ? Json::object() : m_data["expect"];
    if (isNew && update) {
        if (HasText()) expected["tree"] = nullptr;
        if (isWritten) expected[Inside(outcome.written).is_null() ? "written" : "inside"] = nullptr;
        if (!HasText()) expected["log"] = nullptr;
    }
    Json actual = Json::object();
    const bool decoded = !HasText() || !outcome.tree.is_null();
    const bool comparesAgain = expected.contains("written") || expected.contains("inside");
    for (const auto& [key, value] : expected.items()) {
        if (key == "decoded" || key == "left" || key == "again") continue;
        if (decoded || key == "log") actual[key] = Actual(key, value, outcome);
    }
    if (!decoded) actual["decoded"] = false;
    if (comparesAgain && outcome.written.is_string() && !outcome.again) actual["again"] = false;
    if (outcome.blocks != 0) actual["left"] = {outcome.objects, outcome.blocks};
    if (update) {
        if (Text() != nullptr) m_data["text"] = InPieces(Joined(m_data["text"]));
        m_data["expect"] = actual;
        return;
    }
    for (const auto& [key, value] : actual.items()) {
        EXPECT_EQ(Pretty(value), expected.contains(key) ? Pretty(expected[key]) : "nothing") << key;
    }
    for (const auto& [key, value] : expected.items()) EXPECT_TRUE(actual.contains(key)) << key;
}

ScenarioFile::ScenarioFile(eXMLSchemaID id) {
    const std::string name = XMLFactory::SchemaInfo(id)->name;
    m_path = PROJECT_DIR "/tests/scenarios/" + name + ".json";
    m_file = Json::parse(ReadFile(m_path));
    for (const std::string& sample : FilesBelow(PROJECT_DIR "/samples/" + name)) {
        const std::string stem = std::filesystem::path(sample).stem();
        m_samples.push_back({{"sample", name + '/' + stem}, {"binder", true}});
    }
    for (Json* const list : {&m_samples, &m_file["scenarios"]}) {
        for (Json& data : *list) m_scenarios.emplace_back(data, m_file);
    }
}

std::string ScenarioFile::Framed(const Json& row, const std::string& text) const {
    Json data = {{"text", Swapped(text)}};
    if (row.contains("in")) data["in"] = row["in"];
    return Scenario(data, m_file).Text();
}

Json ScenarioFile::About(const std::string& key, const std::string& name) const {
    const Json about = m_file.value(key, Json());
    return name.empty() ? about : about.is_object() ? about.value(name, Json()) : Json();
}

void ScenarioFile::Save() const { std::ofstream(m_path, std::ios::binary) << Pretty(m_file) << '\n'; }

std::string Pretty(const Json& json, std::size_t indent, std::size_t before) {
    const std::string flat = Flat(json);
    if (!json.is_structured() || json.empty() || (indent != 0 && indent + before + flat.size() < kColumns)) return flat;
    const std::string margin(indent + 2, ' ');
    std::string text;
    std::string line;
    for (const auto& [key, value] : json.items()) {
        const std::string name = json.is_object() ? Json(key).dump() + ": " : "";
        const std::string entry = name + Pretty(value, indent + 2, name.size() + 1);
        // Short entries of an array share lines.
        const bool fits = json.is_array() && !line.empty() && entry.size() < kColumns / 2 && line.size() < kColumns / 2;
        if (fits && indent + line.size() + entry.size() + 5 < kColumns) {
            line += ", " + entry;
            continue;
        }
        if (!line.empty()) text += '\n' + margin + line + ',';
        line = entry;
    }
    text += '\n' + margin + line + '\n' + std::string(indent, ' ');
    return json.is_object() ? "{" + text + "}" : "[" + text + "]";
}

std::string InLines(const Strings& lines) {
    std::string text;
    for (const std::string& line : lines) text += (text.empty() ? "" : "\n") + line;
    return text;
}

bool UpdatesExpected() { return std::getenv("IMSXML_UPDATE_EXPECTED") != nullptr; }

void ExpectFile(const std::string& path, const std::string& text) {
    if (UpdatesExpected()) {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::filesystem::remove(path);
        if (!text.empty()) std::ofstream(path, std::ios::binary) << text << '\n';
    }
    if (text.empty()) {
        EXPECT_FALSE(std::filesystem::exists(path)) << path;
    } else {
        EXPECT_EQ(text + "\n", ReadFile(path)) << path;
    }
}
