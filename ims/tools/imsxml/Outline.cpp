#include "Outline.h"

#include <algorithm>

namespace {

constexpr std::size_t kIndent = 2;

/// True for a list of attribute pairs, which are the only objects without a class.
bool HasPairs(const Json& list) {
    return std::any_of(list.begin(), list.end(),
                       [](const Json& entry) { return entry.is_object() && !entry.contains("class"); });
}

}  // namespace

void Outline::AddTitle(const std::string& file, const std::string& schema) {
    AddLine(Dim("# " + Name(file) + " (" + schema + ')'), 0);
}

void Outline::AddTree(const Json& root) {
    AddObject("", root, 0);
}

void Outline::AddObject(const std::string& label, const Json& object, std::size_t depth) {
    const std::string name = Name(object["class"]);
    const std::string head = label.empty() ? Bold(name) : label + ": " + Bold(name);
    if (FitsOnLine(object, depth * kIndent + label.size() + name.size())) {
        std::string line = head;
        for (const auto& [key, value] : object.items()) {
            if (key != "class") line += "  " + Name(key) + " = " + Value(value);
        }
        AddLine(line, depth);
        return;
    }
    AddLine(head, depth);
    for (const auto& [key, value] : object.items()) {
        if (key != "class") AddField(Name(key), value, depth + 1);
    }
}

/// True when the fields are few and plain, and the line stays readable.
bool Outline::FitsOnLine(const Json& object, std::size_t used) {
    constexpr std::size_t kMostFields = 3;
    constexpr std::size_t kMostColumns = 100;
    if (object.size() - 1 > kMostFields) return false;
    for (const auto& [key, value] : object.items()) {
        if (value.is_structured()) return false;
        if (key != "class") used += key.size() + Value(value).size() + 5;
    }
    return used <= kMostColumns;
}

void Outline::AddField(const std::string& label, const Json& value, std::size_t depth) {
    if (value.is_array()) {
        AddList(label, value, depth);
    } else if (value.is_object()) {
        AddObject(label, value, depth);
    } else {
        AddLine(label + " = " + Value(value), depth);
    }
}

void Outline::AddList(const std::string& label, const Json& list, std::size_t depth) {
    if (HasPairs(list)) {
        AddLine(label, depth);
        for (const Json& entry : list) {
            // Only the default namespace has no name.
            const std::string name = entry.is_null() || entry["name"].is_null() ? "(default)" : Name(entry["name"]);
            AddLine(name + " = " + (entry.is_null() ? "null" : Value(entry["value"])), depth + 1);
        }
        return;
    }
    std::size_t number = 0;
    for (const Json& entry : list) AddField(label + '[' + std::to_string(++number) + ']', entry, depth);
}

void Outline::AddLine(const std::string& line, std::size_t depth) {
    m_text.append(depth * kIndent, ' ');
    m_text += line;
    m_text += '\n';
}

/// JSON's escapes keep a text on its line, and a terminal from obeying it.
std::string Outline::Value(const Json& value) {
    return ToText(value, -1, m_replaced);
}

/// The same without quotes.
std::string Outline::Name(const Json& name) {
    const std::string text = Value(name);
    return name.is_string() ? text.substr(1, text.size() - 2) : text;
}

std::string Outline::Bold(const std::string& text) const {
    return m_colour ? "\033[1m" + text + "\033[0m" : text;
}

std::string Outline::Dim(const std::string& text) const {
    return m_colour ? "\033[2m" + text + "\033[0m" : text;
}
