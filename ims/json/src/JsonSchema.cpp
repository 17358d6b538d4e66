#include "JsonSchema.h"

#include "Json.h"
#include "JsonTree.h"
#include "Schema.h"

namespace {

/// Writes the schemas of the classes of a kind of documents.
class SchemaWriter {
  public:
    explicit SchemaWriter(const XmlSchemaInfo& schema) : m_schema(schema), m_classes(ClassesOf(schema)) {}

    std::string Document();

  private:
    void Type(const char* name);
    void OneOf(const std::vector<const XmlClass*>& classes);
    void Reference(const char* name);
    void Class(const XmlClass& description);
    void Fields(const XmlFieldTable& table);
    void Field(const XmlField& row);
    void Words(const XmlField& row);
    void Range(const XmlField& row);
    void Entries(const XmlField& row);
    void Presence(const XmlField& row);
    void TextOrNull();
    void Pair();
    void Rest();
    void RestKind(const JsonRestShape& shape);
    void RestKey(const std::string& key, bool canBeNull);
    void OpenObject();
    void CloseObject(std::string_view required);

    const XmlSchemaInfo& m_schema;
    std::vector<const XmlClass*> m_classes;
    JsonText m_json{2};
};

void SchemaWriter::Type(const char* name) {
    m_json.Begin('{');
    m_json.Member("type", name);
    m_json.End('}');
}

void SchemaWriter::Reference(const char* name) {
    m_json.Begin('{');
    m_json.Member("$ref", (std::string("#/$defs/") + name).c_str());
    m_json.End('}');
}

void SchemaWriter::OneOf(const std::vector<const XmlClass*>& classes) {
    if (classes.size() == 1) return Reference(classes[0]->name);
    m_json.Begin('{');
    m_json.Key("anyOf");
    m_json.Begin('[');
    for (const XmlClass* const description : classes) Reference(description->name);
    m_json.End(']');
    m_json.End('}');
}

/// Begins the schema of an object, whose properties are to follow.
void SchemaWriter::OpenObject() {
    m_json.Begin('{');
    m_json.Member("type", "object");
    m_json.Key("properties");
    m_json.Begin('{');
}

/// @param required the properties that there have to be, separated by blanks.
void SchemaWriter::CloseObject(std::string_view required) {
    m_json.End('}');
    m_json.Key("required");
    m_json.Begin('[');
    while (!required.empty()) {
        const std::string name(required.substr(0, required.find(' ')));
        m_json.String(name.c_str());
        required.remove_prefix(std::min(required.size(), name.size() + 1));
    }
    m_json.End(']');
    m_json.Member("additionalProperties", false);
    m_json.End('}');
}

void SchemaWriter::TextOrNull() {
    m_json.Begin('{');
    m_json.Key("type");
    m_json.Begin('[');
    m_json.String("string");
    m_json.String("null");
    m_json.End(']');
    m_json.End('}');
}

void SchemaWriter::Pair() {
    OpenObject();
    for (const char* const name : {"name", "value"}) {
        m_json.Key(name);
        TextOrNull();
    }
    CloseObject("name value");
}

void SchemaWriter::Words(const XmlField& row) {
    m_json.Begin('{');
    m_json.Key("enum");
    m_json.Begin('[');
    for (int i = 0; i < row.enumeration->count; ++i) m_json.String(row.enumeration->TextOf(i));
    if (IsWordless(row, row.enumeration->reach)) m_json.Number(row.enumeration->reach);
    m_json.End(']');
    m_json.End('}');
}

void SchemaWriter::Range(const XmlField& row) {
    const JsonRange range = RangeOf(row.kind);
    m_json.Begin('{');
    m_json.Member("type", "integer");
    m_json.Member("minimum", range.least);
    m_json.Member("maximum", range.most);
    m_json.End('}');
}

void SchemaWriter::Entries(const XmlField& row) {
    m_json.Begin('{');
    m_json.Member("type", "array");
    m_json.Key("items");
    if (row.kind == XmlFieldKind::TextList) {
        Type("string");
    } else if (row.kind == XmlFieldKind::AttributeList) {
        Pair();
    } else {
        OneOf(ClassesAt(row, IX_XML_PROFILE_DEVICE, m_classes));
    }
    m_json.End('}');
}

void SchemaWriter::Presence(const XmlField& row) {
    m_json.Begin('{');
    m_json.Key("anyOf");
    m_json.Begin('[');
    m_json.Begin('{');
    m_json.Member("const", true);
    m_json.End('}');
    Reference(row.description->name);
    m_json.End(']');
    m_json.End('}');
}

void SchemaWriter::Field(const XmlField& row) {
    switch (row.kind) {
        case XmlFieldKind::Text:
            return Type("string");
        case XmlFieldKind::Flag:
            return Type("boolean");
        case XmlFieldKind::Enumeration:
            return Words(row);
        case XmlFieldKind::Child:
            return OneOf(ClassesAt(row, IX_XML_PROFILE_DEVICE, m_classes));
        case XmlFieldKind::Presence:
            return Presence(row);
        case XmlFieldKind::ChildList:
        case XmlFieldKind::TextList:
        case XmlFieldKind::AttributeList:
            return Entries(row);
        default:
            return Range(row);
    }
}

void SchemaWriter::Fields(const XmlFieldTable& table) {
    if (table.base != nullptr) Fields(*table.base);
    for (std::size_t i = 0; i < table.count; ++i) {
        if (table.fields[i].kind == XmlFieldKind::None) continue;
        m_json.Key(table.fields[i].Name());
        Field(table.fields[i]);
    }
}

void SchemaWriter::Class(const XmlClass& description) {
    m_json.Key(description.name);
    OpenObject();
    m_json.Key("class");
    m_json.Begin('{');
    m_json.Member("const", description.name);
    m_json.End('}');
    Fields(description.table);
    m_json.Key("rest");
    Reference("rest");
    CloseObject("class");
}

void SchemaWriter::RestKey(const std::string& key, bool canBeNull) {
    m_json.Key(key);
    if (key == "behind") {
        m_json.Begin('{');
        m_json.Key("anyOf");
        m_json.Begin('[');
        m_json.Begin('{');
        m_json.Member("type", "integer");
        m_json.Member("minimum", 0LL);
        m_json.End('}');
        m_json.Begin('{');
        m_json.Member("const", kBehindAll);
        m_json.End('}');
        m_json.End(']');
        m_json.End('}');
    } else if (key == "held") {
        // As the field, whichever it is.
        m_json.Begin('{');
        m_json.Key("type");
        m_json.Begin('[');
        for (const char* const type : {"boolean", "integer", "string"}) m_json.String(type);
        m_json.End(']');
        m_json.End('}');
    } else if (key == "text" && canBeNull) {
        TextOrNull();
    } else {
        Type("string");
    }
}

void SchemaWriter::RestKind(const JsonRestShape& shape) {
    OpenObject();
    m_json.Key("kind");
    m_json.Begin('{');
    m_json.Member("const", shape.kind);
    m_json.End('}');
    const bool isValue = &shape == &kRestShapes[static_cast<int>(XmlRestKind::Value)];
    for (std::string_view keys = shape.keys; !keys.empty();) {
        const std::string key(keys.substr(0, keys.find(' ')));
        RestKey(key, isValue);
        keys.remove_prefix(std::min(keys.size(), key.size() + 1));
    }
    CloseObject(std::string("kind ") + shape.required);
}

void SchemaWriter::Rest() {
    m_json.Key("rest");
    m_json.Begin('{');
    m_json.Member("type", "array");
    m_json.Key("items");
    m_json.Begin('{');
    m_json.Key("anyOf");
    m_json.Begin('[');
    for (const JsonRestShape& shape : kRestShapes) RestKind(shape);
    m_json.End(']');
    m_json.End('}');
    m_json.End('}');
}

std::string SchemaWriter::Document() {
    m_json.Begin('{');
    m_json.Member("$schema", "https://json-schema.org/draft/2020-12/schema");
    m_json.Member("title", (std::string("Documents of the schema ") + m_schema.name).c_str());
    m_json.Member("type", "object");
    m_json.Key("properties");
    m_json.Begin('{');
    m_json.Key("schema");
    m_json.Begin('{');
    m_json.Member("const", m_schema.name);
    m_json.End('}');
    m_json.Key("file");
    Type("string");
    m_json.Key("root");
    OneOf(RootClassesOf(m_schema, IX_XML_PROFILE_DEVICE));
    m_json.End('}');
    m_json.Key("required");
    m_json.Begin('[');
    for (const char* const name : {"schema", "root"}) m_json.String(name);
    m_json.End(']');
    m_json.Member("additionalProperties", false);
    m_json.Key("$defs");
    m_json.Begin('{');
    for (const XmlClass* const description : m_classes) Class(*description);
    Rest();
    m_json.End('}');
    m_json.End('}');
    return m_json.Text() + '\n';
}

}  // namespace

std::string JsonSchemaOf(const XmlSchemaInfo& schema) { return SchemaWriter(schema).Document(); }
