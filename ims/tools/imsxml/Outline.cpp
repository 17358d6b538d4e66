#include "Outline.h"

#include <algorithm>
#include <string_view>

#include "Text.h"

namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kMostColumns = 100;

// What stands between ESC "[" and "m".
constexpr char kHeading[] = "1";
constexpr char kName[] = "36";
constexpr char kAside[] = "2";

/// Name of the lists whose entries have no name of their own.
constexpr char kAny[] = "any";

/// Name of what no field holds.
constexpr char kRest[] = "rest";

bool IsString(const Json& object, const char* key) {
    const auto field = object.find(key);
    return field != object.end() && field->is_string();
}

/// True for an element that is no more than a text.
bool IsText(const Json& value) {
    return value.is_object() && value.size() == 2 && value.contains("class") && IsString(value, "text");
}

/// True for an element that is no more than a name and a value.
bool IsSetting(const Json& value) {
    return value.is_object() && value.size() == 3 && value.contains("class") && IsString(value, "name") &&
           IsString(value, "value") && value["name"] != "";
}

/// True when a class says no more than the name of the element: "ix_display_name" for "display-name".
bool IsImplied(std::string_view className, std::string_view name) {
    if (className.size() < name.size()) return false;
    const std::string_view end = className.substr(className.size() - name.size());
    const bool whole = end.size() == className.size() || className[className.size() - name.size() - 1] == '_';
    return whole && std::equal(end.begin(), end.end(), name.begin(),
                               [](char left, char right) { return left == (right == '-' ? '_' : right); });
}

/// True for the attributes of an element, and for what is told like them: texts, also of children that are no more.
bool IsAttribute(const std::string& name, const Json& value) {
    if (!value.is_array()) return !value.is_object() || IsText(value);
    // Attribute pairs are the only objects without a class, but for what no field holds.
    return name != kRest && std::all_of(value.begin(), value.end(), [](const Json& entry) {
               return !entry.is_object() || !entry.contains("class") || IsText(entry);
           });
}

/// The columns that a text takes, its colours left out.
std::size_t Columns(std::string_view text) {
    std::size_t columns = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\033')
            i = text.find('m', i);
        else if ((static_cast<unsigned char>(text[i]) & 0xc0U) != 0x80U)
            ++columns;
    }
    return columns;
}

}  // namespace

void Outline::AddTitle(const std::string& file, const std::string& schema) {
    AddLine(Styled(kAside, "# " + Unquoted(file) + " (" + schema + ')'), 0);
}

void Outline::AddTree(const Json& root) {
    auto field = root.begin();
    const std::string head = Styled(kHeading, Unquoted(*field++));
    AddObject(head, root, field, 0);
}

/// @param field the first field that is not part of the head.
void Outline::AddObject(const std::string& head, const Json& object, const Json::const_iterator& field,
                        std::size_t depth) {
    std::string line = head;
    bool fits = true;
    for (auto next = field; next != object.end() && fits; ++next) {
        fits = !next->is_structured();
        if (fits) line += "  " + Assignment(next.key(), *next);
    }
    if (fits && depth * kIndent + Columns(line) <= kMostColumns) {
        AddLine(line, depth);
        return;
    }
    AddLine(head, depth);
    // Among many children an attribute behind them is overlooked.
    for (const bool isAttribute : {true, false}) {
        for (auto next = field; next != object.end(); ++next) {
            if (IsAttribute(next.key(), *next) == isAttribute) AddField(next.key(), *next, depth + 1);
        }
    }
}

void Outline::AddElement(const std::string& name, const Json& element, std::size_t depth) {
    auto field = element.begin();
    const std::string className = field->is_string() ? field->get<std::string>() : "";
    ++field;
    std::string head = Styled(kName, name);
    if (!IsImplied(className, name)) head += Styled(kAside, ": " + Unquoted(className));
    if (field != element.end() && field->is_string() &&
        std::find(std::begin(kIdentities), std::end(kIdentities), field.key()) != std::end(kIdentities)) {
        head += ' ' + Styled(kHeading, Value(*field));
        ++field;
    }
    AddObject(head, element, field, depth);
}

void Outline::AddField(const std::string& name, const Json& value, std::size_t depth) {
    if (value.is_array()) {
        AddList(name, value, depth);
    } else if (IsText(value)) {
        // What an element of any kind is, only its class tells.
        const std::string kind = name == kAny ? Styled(kAside, ": " + Unquoted(value["class"])) : "";
        AddLine(Styled(kName, name) + kind + " = " + Value(value["text"]), depth);
    } else if (value.is_object()) {
        AddElement(name, value, depth);
    } else {
        AddLine(Assignment(name, value), depth);
    }
}

void Outline::AddList(const std::string& name, const Json& list, std::size_t depth) {
    if (name == kRest) {
        AddLine(Styled(kName, name), depth);
        for (const Json& entry : list) AddRest(entry, depth + 1);
        return;
    }
    // Attribute pairs are the only other objects without a class.
    const bool hasAttributes = std::any_of(
        list.begin(), list.end(), [](const Json& entry) { return entry.is_object() && !entry.contains("class"); });
    if (hasAttributes) AddLine(Styled(kName, name), depth);
    for (const Json& entry : list) {
        if (hasAttributes) {
            AddAttribute(entry, depth + 1);
        } else if (IsSetting(entry)) {
            AddLine(Assignment(entry["name"], entry["value"]), depth);
        } else {
            AddField(name, entry, depth);
        }
    }
}

/// Only the default namespace has no name.
void Outline::AddAttribute(const Json& pair, std::size_t depth) {
    const bool isNamed = pair.is_object() && pair["name"].is_string();
    AddLine(
        Assignment(isNamed ? pair["name"].get<std::string>() : "(default)", pair.is_object() ? pair["value"] : pair),
        depth);
}

/// Kind, name, text, and where it is: `attribute xml:lang = "en" in display-name`.
void Outline::AddRest(const Json& entry, std::size_t depth) {
    std::string line = Styled(kName, Unquoted(entry["kind"]));
    if (entry.contains("name")) line += ' ' + Styled(kName, Unquoted(entry["name"]));
    line += " = " + Value(entry.contains("text") ? entry["text"] : entry["namespace"]);
    for (const char* const place : {"at", "in"}) {
        if (entry.contains(place)) line += Styled(kAside, std::string(" ") + place + ' ' + Unquoted(entry[place]));
    }
    AddLine(line, depth);
}

void Outline::AddLine(const std::string& line, std::size_t depth) {
    m_text.append(depth * kIndent, ' ');
    m_text += line;
    m_text += '\n';
}

std::string Outline::Assignment(const std::string& name, const Json& value) const {
    return Styled(kName, Unquoted(name)) + " = " + Value(value);
}

/// Escapes keep a text on its line, and a terminal from obeying it.
std::string Outline::Value(const Json& value) const { return WithoutControls(value.dump()); }

/// The same without quotes.
std::string Outline::Unquoted(const Json& text) const {
    const std::string quoted = Value(text);
    return text.is_string() ? quoted.substr(1, quoted.size() - 2) : quoted;
}

std::string Outline::Styled(const char* style, const std::string& text) const {
    return m_colour ? std::string("\033[") + style + 'm' + text + "\033[0m" : text;
}
