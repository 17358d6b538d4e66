#include "Json.h"

#include <cstring>

#include "XmlElementSupport.h"
#include "XmlFields.h"

namespace {

void WriteEntry(JsonText& json, XmlFieldKind kind, const void* entry) {
    if (entry == nullptr) return json.Null();
    switch (kind) {
        case XmlFieldKind::TextList:
            return json.String(static_cast<const char*>(entry));
        case XmlFieldKind::AttributeList: {
            const auto& pair = *static_cast<const ix_AttributeValuePair*>(entry);
            json.Begin('{');
            json.Member("name", pair.mName);
            json.Member("value", pair.mValue);
            return json.End('}');
        }
        default:
            return WriteTree(json, *static_cast<const XMLElement*>(entry));
    }
}

void WriteNumber(JsonText& json, const XmlField& field, long long value) {
    const char* const word = field.kind == XmlFieldKind::Enumeration ? field.enumeration->TextOf(value) : nullptr;
    if (word != nullptr) {
        json.String(word);
    } else if (field.kind == XmlFieldKind::Flag) {
        json.Flag(value != 0);
    } else {
        json.Number(value);
    }
}

void WriteField(JsonText& json, const XMLElement& element, const XmlField& field) {
    switch (field.kind) {
        case XmlFieldKind::Text:
            return json.String(XmlFields::Text(element, field));
        case XmlFieldKind::Child:
            return WriteTree(json, *XmlFields::Child(element, field));
        case XmlFieldKind::Presence: {
            const XMLElement& child = *XmlFields::Child(element, field);
            return IsMerePresence(child, field) ? json.Flag(true) : WriteTree(json, child);
        }
        case XmlFieldKind::ChildList:
        case XmlFieldKind::TextList:
        case XmlFieldKind::AttributeList:
            json.Begin('[');
            for (const auto* entry : XmlEntries<const void>(XmlFields::List(element, field))) {
                WriteEntry(json, field.kind, entry);
            }
            return json.End(']');
        default:
            return WriteNumber(json, field, XmlFields::Number(element, field));
    }
}

/// Some writers tell a list without entries from no list.
bool IsShown(const XMLElement& element, const XmlField& field) {
    return XmlFields::IsSet(element, field) || IsAlwaysShown(field) || XmlFields::List(element, field) != nullptr ||
           IsWordless(field, XmlFields::Number(element, field));
}

void WriteFields(JsonText& json, const XMLElement& element, const XmlFieldTable& table) {
    if (table.base != nullptr) WriteFields(json, element, *table.base);
    for (std::size_t i = 0; i < table.count; ++i) {
        const XmlField& field = table.fields[i];
        if (!IsShown(element, field)) continue;
        json.Key(field.Name());
        WriteField(json, element, field);
    }
}

/// Where an entry is in its list; -1: it has gone.
long long IndexOf(const XMLElement& element, const XmlField& field, const void* entry) {
    long long index = 0;
    for (const auto* other : XmlEntries<const void>(XmlFields::List(element, field))) {
        if (other == entry) return index;
        ++index;
    }
    return -1;
}

bool IsNumeric(XmlFieldKind kind) {
    return kind == XmlFieldKind::Flag || kind == XmlFieldKind::Number || kind == XmlFieldKind::Unsigned ||
           kind == XmlFieldKind::Number64 || kind == XmlFieldKind::Enumeration;
}

void WriteRestItem(JsonText& json, const XMLElement& element, const XmlRestItem& item) {
    json.Begin('{');
    json.Member("kind", kRestShapes[static_cast<int>(item.kind)].kind);
    if (item.field != nullptr) json.Member(item.isInside ? "in" : "at", item.field->Name());
    if (item.entry != nullptr) {
        const long long index = item.field != nullptr ? IndexOf(element, *item.field, item.entry) : -1;
        if (item.field == nullptr) json.Member("behind", kBehindAll);
        if (index >= 0) json.Member("behind", index);
    }
    if (*item.namespaceUri != '\0' || item.kind == XmlRestKind::Namespace) json.Member("namespace", item.namespaceUri);
    if (*item.name != '\0') json.Member("name", item.name);
    if (item.kind != XmlRestKind::Namespace) json.Member("text", item.text);
    const bool isHeld = item.kind == XmlRestKind::Value && item.field != nullptr && IsNumeric(item.field->kind);
    if (isHeld && item.held != item.field->notSet) {
        json.Key("held");
        WriteNumber(json, *item.field, item.held);
    }
    json.End('}');
}

/// What of a document no field holds.
void WriteRest(JsonText& json, const XMLElement& element) {
    json.Key("rest");
    json.Begin('[');
    for (const XmlRestItem* item = element.Rest()->First(); item != nullptr; item = item->next) {
        WriteRestItem(json, element, *item);
    }
    json.End(']');
}

}  // namespace

bool IsWordless(const XmlField& field, long long value) {
    return field.kind == XmlFieldKind::Enumeration && value == field.enumeration->reach &&
           value > field.enumeration->count;
}

bool IsAlwaysShown(const XmlField& field) {
    const XmlFieldTable& presence = ix_empty_element_type::kClass.table;
    const bool isOfPresence = &field >= presence.fields && &field < presence.fields + presence.count;
    return isOfPresence && field.kind == XmlFieldKind::Flag;
}

bool IsMerePresence(const XMLElement& element, const XmlField& field) {
    const bool isRest = element.Rest() != nullptr && !element.Rest()->IsEmpty();
    if (element.Class() != field.description || isRest) return false;
    const auto& empty = static_cast<const ix_empty_element_type&>(element);
    const bool isNamed = field.description == &ix_empty_element_type::kClass;
    const bool isItsName =
        empty.mName == nullptr ? !isNamed : isNamed && std::strcmp(empty.mName, field.name.Text()) == 0;
    return isItsName && empty.mPresent == 1;
}

void WriteTree(JsonText& json, const XMLElement& element) {
    json.Begin('{');
    json.Member("class", element.ClassName());
    const XmlFieldTable* const table = ixRowsOf(element);
    if (table != nullptr) WriteFields(json, element, *table);
    if (element.Rest() != nullptr && !element.Rest()->IsEmpty()) WriteRest(json, element);
    json.End('}');
}

void WriteDocument(JsonText& json, const char* schema, const char* file, const XMLElement& root) {
    json.Begin('{');
    json.Member("schema", schema);
    if (file != nullptr) json.Member("file", file);
    json.Key("root");
    WriteTree(json, root);
    json.End('}');
}

Json ToJson(const XMLElement& element, bool& replaced) {
    JsonText text(-1);
    WriteTree(text, element);
    replaced = replaced || text.HasReplaced();
    return Json::parse(text.Text());
}
