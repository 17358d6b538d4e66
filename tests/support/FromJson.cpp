#include "FromJson.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "XmlElementSupport.h"
#include "XmlFields.h"
#include "XmlHooks.h"

namespace {

using Json = nlohmann::ordered_json;

void Require(bool condition, const std::string& what) {
    if (!condition) throw std::runtime_error(what);
}

void Collect(const XmlClass* description, std::vector<const XmlClass*>& classes) {
    if (description == nullptr || std::find(classes.begin(), classes.end(), description) != classes.end()) return;
    classes.push_back(description);
    for (const XmlFieldTable* table = &description->table; table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            const XmlField& row = table->fields[i];
            Collect(row.description, classes);
            for (std::size_t entry = 0; entry < row.entryCount; ++entry)
                Collect(row.entries[entry].description, classes);
        }
    }
}

const XmlClass& ClassNamed(eXMLSchemaID schema, const std::string& name) {
    for (const int id : {static_cast<int>(schema), -1}) {
        for (int other = 0; other < kXmlSchemaCount; ++other) {
            if (id >= 0 && other != id) continue;
            for (const XmlClass* const description : ClassesOf(static_cast<eXMLSchemaID>(other))) {
                if (name == description->name) return *description;
            }
        }
    }
    throw std::runtime_error("no class " + name);
}

void StoreEntry(eXMLSchemaID schema, XMLElement& element, const XmlField& row, const Json& entry) {
    if (row.kind == XmlFieldKind::TextList) {
        const std::string text = entry;
        Require(XmlHooks::AppendText(element, row, text.c_str(), text.size()), row.Name());
        return;
    }
    void* object = nullptr;
    if (row.kind == XmlFieldKind::AttributeList && !entry.is_null()) {
        const auto text = [&entry](const char* key) {
            return entry.at(key).is_null() ? "" : entry.at(key).get<std::string>();
        };
        object = ixCreatePair(entry.at("name").is_null() ? nullptr : text("name").c_str(),
                              entry.at("value").is_null() ? nullptr : text("value").c_str(), "FromJson");
    } else if (!entry.is_null()) {
        object = FromJson(schema, entry);
    }
    Require(XmlHooks::Append(element, row, object), row.Name());
}

void StoreChild(eXMLSchemaID schema, XMLElement& element, const XmlField& row, const Json& value) {
    XMLElement* const child =
        value.is_boolean() ? ixCreateEmptyElement(row.Name(), "FromJson") : FromJson(schema, value);
    Require(row.description == nullptr || ixIsClass(child, *row.description),
            std::string(row.Name()) + ": other class");
    row.store(element, child);
}

void StoreField(eXMLSchemaID schema, XMLElement& element, const XmlField& row, const Json& value) {
    switch (row.kind) {
        case XmlFieldKind::Text:
            ixSetText(element.*row.member.text, value.get<std::string>().c_str());
            break;
        case XmlFieldKind::Flag:
            element.*row.member.number = value.is_boolean() ? (value.get<bool>() ? 1 : 0) : value.get<int>();
            break;
        case XmlFieldKind::Number:
            element.*row.member.number = value;
            break;
        case XmlFieldKind::Unsigned:
            element.*row.member.unsignedNumber = value;
            break;
        case XmlFieldKind::Number64:
            element.*row.member.number64 = value;
            break;
        case XmlFieldKind::Enumeration:
            element.*row.member.number =
                value.is_number() ? value.get<int>() : row.enumeration->IndexOf(value.get<std::string>().c_str());
            break;
        case XmlFieldKind::Child:
        case XmlFieldKind::Presence:
            StoreChild(schema, element, row, value);
            break;
        case XmlFieldKind::ChildList:
        case XmlFieldKind::TextList:
        case XmlFieldKind::AttributeList:
            for (const Json& entry : value) StoreEntry(schema, element, row, entry);
            // An empty list is something else than none.
            if (value.empty() && element.*row.member.list == nullptr) {
                element.*row.member.list = ixNew<IxSingleElementList>("FromJson");
            }
            break;
        default:
            throw std::runtime_error(row.Name());
    }
}

}  // namespace

std::vector<const XmlClass*> ClassesOf(eXMLSchemaID schema) {
    std::vector<const XmlClass*> classes;
    const XmlSchemaInfo* const info = XMLFactory::SchemaInfo(schema);
    for (const XmlClass* const* root = info != nullptr ? info->roots : nullptr; root != nullptr && *root != nullptr;
         ++root) {
        Collect(*root, classes);
    }
    return classes;
}

XMLElement* FromJson(eXMLSchemaID schema, const Json& object) {
    const std::string name = object.at("class");
    const XmlClass& description = ClassNamed(schema, name);
    Require(description.create != nullptr, name + " is abstract");
    XmlOwned<> element(description.create("FromJson", __LINE__));
    for (const auto& [key, value] : object.items()) {
        if (key == "class") continue;
        const XmlField* const row = XmlFields::Find(*element, key.c_str());
        Require(row != nullptr, name + " has no field " + key);
        StoreField(schema, *element, *row, value);
    }
    return element.release();
}
