#include "JsonTree.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <new>

#include "Json.h"
#include "Schema.h"
#include "Text.h"
#include "XmlElementSupport.h"
#include "XmlFields.h"
#include "XmlHooks.h"

namespace {

/// As in the standard profile's reader.
constexpr std::size_t kDeepest = 1000;

[[noreturn]] void Fail(const JsonPlace* place, const JsonValue& value, const std::string& message) {
    throw DocumentError{kNotDecoded, (place != nullptr ? place->Path() + ": " : "") + message, value.offset};
}

const char* NameOf(JsonValue::Kind kind) {
    constexpr const char* kNames[] = {"null",   "true or false", "a number", "a number",
                                      "a text", "an array",      "an object"};
    return kNames[static_cast<int>(kind)];
}

void Require(const JsonPlace* place, const JsonValue& value, JsonValue::Kind kind) {
    if (value.kind == kind) return;
    Fail(place, value, std::string(NameOf(kind)) + " is expected here and not " + NameOf(value.kind));
}

/// What an operation of the library says that fails only without memory.
void RequireMemory(bool isDone) {
    if (!isDone) throw std::bad_alloc();
}

const char* TextOf(const JsonPlace& place, const JsonValue& value) {
    Require(&place, value, JsonValue::Kind::Text);
    if (value.text.find('\0') != std::string::npos) Fail(&place, value, "there is a NUL in the text");
    return value.text.c_str();
}

const char* TextOrNull(const JsonPlace& place, const JsonValue& value) {
    return value.kind == JsonValue::Kind::Null ? nullptr : TextOf(place, value);
}

std::vector<std::string_view> WordsOf(std::string_view words) {
    std::vector<std::string_view> list;
    while (!words.empty()) {
        list.push_back(words.substr(0, words.find(' ')));
        words.remove_prefix(std::min(words.size(), list.back().size() + 1));
    }
    return list;
}

std::string NearestOf(std::string_view word, const std::vector<std::string_view>& words) {
    std::vector<Candidate> candidates;
    candidates.reserve(words.size());
    for (const std::string_view each : words) candidates.emplace_back(each, std::string(each));
    return Nearest(word, candidates);
}

[[noreturn]] void FailName(const JsonPlace& place, const JsonValue& value, const std::string& whose,
                           const std::vector<std::string_view>& names) {
    Fail(&place, value, whose + " has no such key; the nearest: " + NearestOf(value.name, names));
}

/// Refuses a name that an object has had already. As all before it are known, there are few.
void RefuseSecond(const JsonPlace& place, const JsonValue& object, const JsonValue& member) {
    if (object.Find(member.name) != &member) Fail(&place, member, "is given twice");
}

/// Refuses other names than `names`.
void CheckNames(const JsonPlace* around, const JsonValue& object, const std::string& whose,
                const std::vector<std::string_view>& names) {
    Require(around, object, JsonValue::Kind::Object);
    for (const JsonValue& member : object.values) {
        const JsonPlace place = {around, member.name.c_str(), 0};
        if (std::find(names.begin(), names.end(), member.name) == names.end()) FailName(place, member, whose, names);
        RefuseSecond(place, object, member);
    }
}

const JsonValue& Member(const JsonPlace* around, const JsonValue& object, const char* name) {
    const JsonValue* const member = object.Find(name);
    if (member == nullptr) Fail(around, object, '"' + std::string(name) + "\" is missing");
    return *member;
}

bool IsEmptyElement(const XmlClass& description) {
    return &description == &ix_empty_element_type::kClass || description.parent == &ix_empty_element_type::kClass;
}

class TreeBuilder {
  public:
    TreeBuilder(const XmlSchemaInfo& schema, eXMLProfile profile)
        : m_schema(schema), m_profile(profile), m_classes(ClassesOf(schema)) {}

    XmlOwned<> Root(const JsonPlace& place, const JsonValue& value) { return Element(place, value, nullptr, 0); }

  private:
    const XmlClass& ClassOf(const JsonPlace& place, const JsonValue& value, const XmlField* row) const;
    XmlOwned<> Element(const JsonPlace& place, const JsonValue& value, const XmlField* row, std::size_t depth) const;
    void Field(XMLElement& element, const XmlField& row, const JsonPlace& place, const JsonValue& value,
               std::size_t depth) const;
    void Entry(XMLElement& element, const XmlField& row, const JsonPlace& place, const JsonValue& value,
               std::size_t depth) const;
    void Number(XMLElement& element, const XmlField& row, const JsonPlace& place, const JsonValue& value) const;
    long long NumberOf(const XmlField& row, const JsonPlace& place, const JsonValue& value) const;
    long long WordOf(const XmlField& row, const JsonPlace& place, const JsonValue& value) const;
    void Rest(XMLElement& element, const JsonPlace& place, const JsonValue& value) const;
    void RestItem(XMLElement& element, const JsonPlace& place, const JsonValue& value) const;

    const XmlSchemaInfo& m_schema;
    eXMLProfile m_profile;
    std::vector<const XmlClass*> m_classes;
};

const XmlClass& TreeBuilder::ClassOf(const JsonPlace& place, const JsonValue& value, const XmlField* row) const {
    const JsonValue& member = Member(&place, value, "class");
    const JsonPlace at = {&place, "class", 0};
    const std::string_view name = TextOf(at, member);
    if (row != nullptr && row->description != nullptr && name == row->description->name) return *row->description;
    std::vector<std::string_view> names;
    for (const XmlClass* const known :
         row != nullptr ? ClassesAt(*row, m_profile, m_classes) : RootClassesOf(m_schema, m_profile)) {
        if (name == known->name) return *known;
        names.emplace_back(known->name);
    }
    Fail(&at, member,
         "no object of the class " + QuotedText(name) + " stands here; the nearest: " + NearestOf(name, names));
}

/// The row of a name; throws if there is none.
const XmlField& RowOf(const XMLElement& element, const char* name, const JsonPlace& place, const JsonValue& value) {
    const XmlField* const known = XmlFields::Find(element, name);
    if (known != nullptr && known->kind != XmlFieldKind::None) return *known;
    std::vector<std::string_view> names;
    for (const XmlFieldTable* table = ixRowsOf(element); table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            if (table->fields[i].kind != XmlFieldKind::None) names.emplace_back(table->fields[i].Name());
        }
    }
    names.emplace_back("rest");
    Fail(&place, value,
         std::string(element.ClassName()) + " has no field " + QuotedText(name) +
             "; the nearest: " + NearestOf(name, names));
}

XmlOwned<> TreeBuilder::Element(const JsonPlace& place, const JsonValue& value, const XmlField* row,
                                std::size_t depth) const {
    Require(&place, value, JsonValue::Kind::Object);
    if (depth == kDeepest) Fail(&place, value, "is within 1000 elements");
    const XmlClass& description = ClassOf(place, value, row);
    XmlOwned<> element(description.create(description.source, __LINE__));
    RequireMemory(element != nullptr);
    if (IsEmptyElement(description)) static_cast<ix_empty_element_type&>(*element).mPresent = 1;
    const JsonValue* rest = nullptr;
    for (const JsonValue& member : value.values) {
        const JsonPlace at = {&place, member.name.c_str(), 0};
        RefuseSecond(at, value, member);
        if (member.name == "rest") {
            rest = &member;
        } else if (member.name != "class") {
            Field(*element, RowOf(*element, member.name.c_str(), at, member), at, member, depth);
        }
    }
    // It speaks of entries of the lists.
    if (rest != nullptr) Rest(*element, {&place, "rest", 0}, *rest);
    return element;
}

void TreeBuilder::Field(XMLElement& element, const XmlField& row, const JsonPlace& place, const JsonValue& value,
                        std::size_t depth) const {
    switch (row.kind) {
        case XmlFieldKind::Text:
            return RequireMemory(ixSetText(element.*row.member.text, TextOf(place, value)) != 0);
        case XmlFieldKind::Child:
            return row.store(element, Element(place, value, &row, depth + 1).release());
        case XmlFieldKind::Presence: {
            if (value.kind == JsonValue::Kind::Object) {
                return row.store(element, Element(place, value, &row, depth + 1).release());
            }
            if (value.kind != JsonValue::Kind::Flag || value.number == 0) {
                Fail(&place, value, "true or an object is expected here");
            }
            XmlOwned<> child(row.description->create(row.description->source, row.line));
            RequireMemory(child != nullptr);
            auto& empty = static_cast<ix_empty_element_type&>(*child);
            empty.mPresent = 1;
            const bool isNamed = row.description == &ix_empty_element_type::kClass;
            RequireMemory(!isNamed || empty.setNameValue(row.name.Text()) != 0);
            return row.store(element, child.release());
        }
        case XmlFieldKind::ChildList:
        case XmlFieldKind::TextList:
        case XmlFieldKind::AttributeList: {
            Require(&place, value, JsonValue::Kind::Array);
            if (value.values.empty()) {
                IxSingleElementList*& list = element.*row.member.list;
                list = ixNew<IxSingleElementList>(XmlFields::SourceOf(element, row), row.line);
                RequireMemory(list != nullptr);
            }
            for (std::size_t i = 0; i < value.values.size(); ++i) {
                Entry(element, row, {&place, nullptr, i}, value.values[i], depth);
            }
            return;
        }
        default:
            return Number(element, row, place, value);
    }
}

void TreeBuilder::Entry(XMLElement& element, const XmlField& row, const JsonPlace& place, const JsonValue& value,
                        std::size_t depth) const {
    if (value.kind == JsonValue::Kind::Null) return RequireMemory(XmlHooks::Append(element, row, nullptr));
    if (row.kind == XmlFieldKind::TextList) {
        const char* const text = TextOf(place, value);
        return RequireMemory(XmlHooks::AppendText(element, row, text, value.text.size()));
    }
    if (row.kind == XmlFieldKind::ChildList) {
        XmlOwned<> child = Element(place, value, &row, depth + 1);
        RequireMemory(XmlHooks::Append(element, row, child.get()));
        static_cast<void>(child.release());
        return;
    }
    CheckNames(&place, value, "an attribute", {"name", "value"});
    const char* const name = TextOrNull({&place, "name", 0}, Member(&place, value, "name"));
    const char* const text = TextOrNull({&place, "value", 0}, Member(&place, value, "value"));
    ix_AttributeValuePair* const pair = ixCreatePair(name, text, element.Class()->source, row.line);
    const bool isStored = pair != nullptr && XmlHooks::Append(element, row, pair);
    if (!isStored) ixDelete(pair);
    RequireMemory(isStored);
}

long long TreeBuilder::WordOf(const XmlField& row, const JsonPlace& place, const JsonValue& value) const {
    const bool isNumber = value.kind == JsonValue::Kind::Number && m_profile == IX_XML_PROFILE_DEVICE;
    if (isNumber && IsWordless(row, value.number)) return value.number;
    const long long word = row.enumeration->IndexOf(TextOf(place, value));
    if (word != row.enumeration->count) return word;
    std::vector<std::string_view> words;
    words.reserve(static_cast<std::size_t>(row.enumeration->count));
    for (int i = 0; i < row.enumeration->count; ++i) words.emplace_back(row.enumeration->TextOf(i));
    Fail(&place, value,
         QuotedText(value.text) + " is no word of the enumeration; the nearest: " + NearestOf(value.text, words));
}

long long TreeBuilder::NumberOf(const XmlField& row, const JsonPlace& place, const JsonValue& value) const {
    if (row.kind == XmlFieldKind::Enumeration) return WordOf(row, place, value);
    if (row.kind == XmlFieldKind::Flag) {
        Require(&place, value, JsonValue::Kind::Flag);
        return value.number;
    }
    const JsonRange range = RangeOf(row.kind);
    if (value.kind != JsonValue::Kind::Fraction) Require(&place, value, JsonValue::Kind::Number);
    if (value.kind == JsonValue::Kind::Fraction || value.number < range.least || value.number > range.most) {
        Fail(&place, value,
             "a whole number from " + std::to_string(range.least) + " to " + std::to_string(range.most) +
                 " is expected here");
    }
    return value.number;
}

/// What means 'not set' would not be written. The standard profile keeps it beside the field, as its reader does.
void TreeBuilder::Number(XMLElement& element, const XmlField& row, const JsonPlace& place,
                         const JsonValue& value) const {
    const long long number = NumberOf(row, place, value);
    XmlFields::SetNumber(element, row, number);
    if (number != row.notSet || IsAlwaysShown(row)) return;
    const std::string digits = std::to_string(number);
    if (m_profile == IX_XML_PROFILE_DEVICE) {
        Fail(&place, value, digits + " means that there is no such value, and the device profile would not write it");
    }
    const XmlRestItem item = {XmlRestKind::Value, false, &row, nullptr, number, "", "", digits.c_str()};
    XmlRest* const rest = element.MakeRest();
    RequireMemory(rest != nullptr && rest->Append(item, 0, digits.size()) != nullptr);
}

void TreeBuilder::Rest(XMLElement& element, const JsonPlace& place, const JsonValue& value) const {
    if (m_profile == IX_XML_PROFILE_DEVICE)
        Fail(&place, value, "the device profile writes no rest, the standard profile does");
    Require(&place, value, JsonValue::Kind::Array);
    for (std::size_t i = 0; i < value.values.size(); ++i) RestItem(element, {&place, nullptr, i}, value.values[i]);
    if (element.Rest() != nullptr) element.Rest()->MarkChanged();
}

/// The entry of a list that an entry of the rest stands behind or belongs to.
const void* EntryAt(const XMLElement& element, const XmlField* row, const JsonPlace& place, const JsonValue& value) {
    if (row == nullptr && value.kind == JsonValue::Kind::Text && value.text == kBehindAll) return &element;
    Require(&place, value, JsonValue::Kind::Number);
    const IxSingleElementList* const list = row != nullptr ? XmlFields::List(element, *row) : nullptr;
    long long index = value.number;
    for (const auto* entry : XmlEntries<const void>(list)) {
        if (index-- == 0) return entry;
    }
    Fail(&place, value, "there is no such entry");
}

/// The kind of a rest, which has the keys of that kind.
XmlRestKind RestKindOf(const JsonPlace& place, const JsonValue& value) {
    Require(&place, value, JsonValue::Kind::Object);
    const JsonValue& member = Member(&place, value, "kind");
    const JsonPlace at = {&place, "kind", 0};
    const std::string_view word = TextOf(at, member);
    std::vector<std::string_view> kinds;
    for (const JsonRestShape& shape : kRestShapes) kinds.emplace_back(shape.kind);
    const auto kind = static_cast<std::size_t>(std::find(kinds.begin(), kinds.end(), word) - kinds.begin());
    if (kind == kinds.size()) {
        Fail(&at, member, QuotedText(word) + " is no kind of rest; the nearest: " + NearestOf(word, kinds));
    }
    std::vector<std::string_view> keys = WordsOf(kRestShapes[kind].keys);
    keys.emplace_back("kind");
    CheckNames(&place, value, "a rest of this kind", keys);
    for (const std::string_view key : WordsOf(kRestShapes[kind].required)) {
        Member(&place, value, std::string(key).c_str());
    }
    return static_cast<XmlRestKind>(kind);
}

/// The field that a rest is in or at.
void TakeField(const XMLElement& element, const JsonPlace& place, const JsonValue& value, XmlRestItem& item) {
    for (const char* const key : {"in", "at"}) {
        const JsonValue* const field = value.Find(key);
        if (field == nullptr) continue;
        const JsonPlace at = {&place, key, 0};
        if (item.field != nullptr) Fail(&at, *field, "a rest is in a field or at one");
        item.field = &RowOf(element, TextOf(at, *field), at, *field);
        item.isInside = std::strcmp(key, "in") == 0;
    }
    const JsonValue* const behind = value.Find("behind");
    if (behind != nullptr) item.entry = EntryAt(element, item.field, {&place, "behind", 0}, *behind);
}

void TreeBuilder::RestItem(XMLElement& element, const JsonPlace& place, const JsonValue& value) const {
    XmlRestItem item = {RestKindOf(place, value), false, nullptr, nullptr, 0, "", "", ""};
    TakeField(element, place, value, item);
    std::size_t lengths[] = {0, 0, 0};
    const char** const texts[] = {&item.namespaceUri, &item.name, &item.text};
    const char* const keys[] = {"namespace", "name", "text"};
    for (std::size_t i = 0; i < 3; ++i) {
        const JsonValue* const member = value.Find(keys[i]);
        if (member == nullptr) continue;
        const JsonPlace at = {&place, keys[i], 0};
        const bool canBeNull = item.kind == XmlRestKind::Value;
        *texts[i] = canBeNull ? TextOrNull(at, *member) : TextOf(at, *member);
        lengths[i] = member->text.size();
    }
    if (item.kind == XmlRestKind::Value && item.field != nullptr) {
        const JsonValue* const held = value.Find("held");
        const long long notSet = item.field->notSet != kXmlAlwaysSet ? item.field->notSet : 0;
        item.held = held != nullptr ? NumberOf(*item.field, {&place, "held", 0}, *held) : notSet;
    }
    XmlRest* const rest = element.MakeRest();
    RequireMemory(rest != nullptr && rest->Append(item, lengths[1], lengths[2]) != nullptr);
}

}  // namespace

JsonRange RangeOf(XmlFieldKind kind) {
    if (kind == XmlFieldKind::Unsigned) return {0, UINT_MAX};
    if (kind == XmlFieldKind::Number) return {INT_MIN, INT_MAX};
    return {LLONG_MIN, LLONG_MAX};
}

std::vector<const XmlClass*> ClassesAt(const XmlField& row, eXMLProfile profile,
                                       const std::vector<const XmlClass*>& all) {
    if (row.description != nullptr) return {row.description};
    std::vector<const XmlClass*> classes;
    const auto add = [&](const XmlClass* description) {
        if (std::find(classes.begin(), classes.end(), description) == classes.end()) classes.push_back(description);
    };
    for (std::size_t i = 0; i < row.entryCount; ++i) add(row.entries[i].description);
    if (row.role != XmlRole::Others) return classes;
    // A presence goes by its own name.
    add(&ix_empty_element_type::kClass);
    if (profile == IX_XML_PROFILE_DEVICE) std::for_each(all.begin(), all.end(), add);
    return classes;
}

JsonDocument ToTree(const JsonValue& document, const JsonPlace* place, const XmlSchemaInfo* named,
                    eXMLProfile profile) {
    CheckNames(place, document, "a document", {"schema", "file", "root"});
    const JsonPlace file = {place, "file", 0};
    if (document.Find("file") != nullptr) TextOf(file, *document.Find("file"));
    const JsonValue* const name = named == nullptr ? &Member(place, document, "schema") : document.Find("schema");
    const JsonPlace there = {place, "schema", 0};
    const XmlSchemaInfo* const said = name != nullptr ? FindSchema(TextOf(there, *name)) : nullptr;
    if (name != nullptr && said == nullptr) Fail(&there, *name, NoSchema(name->text));
    const XmlSchemaInfo& schema = named != nullptr ? *named : *said;
    const JsonPlace root = {place, "root", 0};
    return {&schema, TreeBuilder(schema, profile).Root(root, Member(place, document, "root"))};
}
