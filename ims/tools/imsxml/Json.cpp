#include "Json.h"

#include "XmlFields.h"

namespace {

Json TextOrNull(const char* text) { return text != nullptr ? Json(text) : Json(); }

Json EntryToJson(XmlFieldKind kind, const void* entry) {
    if (entry == nullptr) return {};
    switch (kind) {
        case XmlFieldKind::TextList:
            return static_cast<const char*>(entry);
        case XmlFieldKind::AttributeList: {
            const auto& pair = *static_cast<const ix_AttributeValuePair*>(entry);
            return {{"name", TextOrNull(pair.mName)}, {"value", TextOrNull(pair.mValue)}};
        }
        default:
            return ToJson(*static_cast<const XMLElement*>(entry));
    }
}

Json ListToJson(XmlFieldKind kind, const IxSingleElementList& list) {
    Json array = Json::array();
    for (const auto* entry : XmlEntries<const void>(&list)) array.push_back(EntryToJson(kind, entry));
    return array;
}

Json FieldToJson(const XMLElement& element, const XmlField& field) {
    switch (field.kind) {
        case XmlFieldKind::Text:
            return XmlFields::Text(element, field);
        case XmlFieldKind::Flag:
            return XmlFields::Number(element, field) != 0;
        case XmlFieldKind::Enumeration:
            return field.enumeration->TextOf(XmlFields::Number(element, field));
        case XmlFieldKind::Child:
            return ToJson(*XmlFields::Child(element, field));
        case XmlFieldKind::Presence:
            return true;
        case XmlFieldKind::ChildList:
        case XmlFieldKind::TextList:
        case XmlFieldKind::AttributeList:
            return ListToJson(field.kind, *XmlFields::List(element, field));
        default:
            return XmlFields::Number(element, field);
    }
}

void AddFields(Json& object, const XMLElement& element, const XmlFieldTable& table) {
    if (table.base != nullptr) AddFields(object, element, *table.base);
    for (std::size_t i = 0; i < table.count; ++i) {
        const XmlField& field = table.fields[i];
        if (XmlFields::IsSet(element, field)) object[field.Name()] = FieldToJson(element, field);
    }
}

const char* KindName(XmlRestKind kind) {
    constexpr const char* kNames[] = {"attribute", "element", "text", "value", "namespace"};
    return kNames[static_cast<int>(kind)];
}

/// What of a document no field holds.
Json RestToJson(const XmlRest& rest) {
    Json array = Json::array();
    for (const XmlRestItem* item = rest.First(); item != nullptr; item = item->next) {
        Json entry = {{"kind", KindName(item->kind)}};
        if (item->field != nullptr) entry[item->isInside ? "in" : "at"] = item->field->Name();
        if (*item->namespaceUri != '\0' || item->kind == XmlRestKind::Namespace)
            entry["namespace"] = item->namespaceUri;
        if (*item->name != '\0') entry["name"] = item->name;
        if (item->kind != XmlRestKind::Namespace) entry["text"] = TextOrNull(item->text);
        array.push_back(std::move(entry));
    }
    return array;
}

}  // namespace

Json ToJson(const XMLElement& element) {
    Json object = {{"class", TextOrNull(element.ClassName())}};
    const XmlFieldTable* const table = ixRowsOf(element);
    if (table != nullptr) AddFields(object, element, *table);
    if (element.Rest() != nullptr && !element.Rest()->IsEmpty()) object["rest"] = RestToJson(*element.Rest());
    return object;
}

std::string ToText(const Json& json, int indent, bool& replaced) {
    try {
        return json.dump(indent);
    } catch (const Json::type_error&) {
        replaced = true;
        return json.dump(indent, ' ', false, Json::error_handler_t::replace);
    }
}
