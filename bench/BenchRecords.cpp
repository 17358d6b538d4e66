#include "BenchRecords.h"

#include <cstdlib>
#include <cstring>
#include <pugixml.hpp>
#include <rapidxml/rapidxml.hpp>

#include "BenchDocuments.h"

namespace {

bool NameIs(const char* name, const char* expected) { return *name == *expected && std::strcmp(name, expected) == 0; }

const char* LocalName(const char* name) {
    const char* const colon = std::strchr(name, ':');
    return colon != nullptr ? colon + 1 : name;
}

bool IsRoot(const char* name, const RecordRoot& root) {
    return root.anyPrefix ? NameIs(LocalName(name), LocalName(root.name)) : NameIs(name, root.name);
}

/// The row of a child element, or NULL.
const RecordField* FindElement(const RecordType& type, const char* name, bool anyPrefix) {
    const char* const compared = anyPrefix ? LocalName(name) : name;
    for (const RecordField* field = type.elements; field != type.end; ++field) {
        if (NameIs(compared, anyPrefix ? field->local : field->name)) return field;
    }
    return nullptr;
}

void TakeAttribute(const RecordType& type, void* record, const char* name, const char* value) {
    const RecordField* field = type.fields;
    while (field != type.elements && !NameIs(name, field->name)) ++field;
    if (field == type.elements) field = type.others;
    if (field != nullptr && field->take != nullptr) field->take(record, value, name);
}

/// Fills the struct of a root while libexpat parses.
class ExpatReader {
  public:
    ExpatReader(const RecordRoot& root, void* record) : m_root(root), m_record(record) {}

    void Start(const char* name, const char** attributes) {
        if (m_unknown != 0) {
            ++m_unknown;
        } else if (m_open.empty()) {
            if (!IsRoot(name, m_root)) std::abort();
            Open(m_root.type, m_record, attributes);
        } else {
            const Element& parent = m_open.back();
            const RecordField* const field =
                parent.type != nullptr ? FindElement(*parent.type, name, m_root.anyPrefix) : nullptr;
            if (field == nullptr) {
                m_unknown = 1;
            } else if (field->kind == RecordField::Record) {
                Open(*field->type, field->add(parent.record), attributes);
            } else {
                m_text.clear();
                m_open.push_back({nullptr, parent.record, field});
            }
        }
    }

    void Data(const char* text, int length) {
        if (m_unknown == 0 && !m_open.empty() && m_open.back().text != nullptr) {
            m_text.append(text, static_cast<std::size_t>(length));
        }
    }

    void End() {
        if (m_unknown != 0) {
            --m_unknown;
            return;
        }
        const Element& element = m_open.back();
        if (element.text != nullptr) element.text->take(element.record, m_text, "");
        m_open.pop_back();
    }

  private:
    struct Element {
        const RecordType* type;  ///< NULL: it stands for a value.
        void* record;
        const RecordField* text;  ///< What its text fills; NULL: nothing.
    };

    void Open(const RecordType& type, void* record, const char** attributes) {
        m_open.push_back({&type, record, type.content});
        m_text.clear();
        for (; *attributes != nullptr; attributes += 2) TakeAttribute(type, record, attributes[0], attributes[1]);
    }

    const RecordRoot& m_root;
    void* m_record;
    std::vector<Element> m_open;
    std::string m_text;
    unsigned m_unknown = 0;  ///< Open elements from the outermost one that has no row.
};

void FillFromNode(const pugi::xml_node& node, const RecordType& type, bool anyPrefix, void* record) {
    for (auto attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute()) {
        TakeAttribute(type, record, attribute.name(), attribute.value());
    }
    if (type.content != nullptr) type.content->take(record, node.child_value(), "");
    for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
        const RecordField* const field =
            child.type() == pugi::node_element ? FindElement(type, child.name(), anyPrefix) : nullptr;
        if (field == nullptr) continue;
        if (field->kind == RecordField::Record) {
            FillFromNode(child, *field->type, anyPrefix, field->add(record));
        } else {
            field->take(record, child.child_value(), "");
        }
    }
}

void FillFromNode(const rapidxml::xml_node<>& node, const RecordType& type, bool anyPrefix, void* record) {
    for (const auto* attribute = node.first_attribute(); attribute != nullptr;
         attribute = attribute->next_attribute()) {
        TakeAttribute(type, record, attribute->name(), attribute->value());
    }
    if (type.content != nullptr) type.content->take(record, node.value(), "");
    for (const auto* child = node.first_node(); child != nullptr; child = child->next_sibling()) {
        const RecordField* const field =
            child->type() == rapidxml::node_element ? FindElement(type, child->name(), anyPrefix) : nullptr;
        if (field == nullptr) continue;
        if (field->kind == RecordField::Record) {
            FillFromNode(*child, *field->type, anyPrefix, field->add(record));
        } else {
            field->take(record, child->value(), "");
        }
    }
}

}  // namespace

void ReadWithExpat(const std::string& text, const RecordRoot& root, void* record) {
    ExpatReader reader(root, record);
    ParseWithExpat(
        text, &reader,
        [](void* context, const XML_Char* name, const XML_Char** attributes) {
            static_cast<ExpatReader*>(context)->Start(name, attributes);
        },
        [](void* context, const XML_Char* /*name*/) { static_cast<ExpatReader*>(context)->End(); },
        [](void* context, const XML_Char* data, int length) {
            static_cast<ExpatReader*>(context)->Data(data, length);
        });
}

void ReadWithPugixml(const std::string& text, const RecordRoot& root, void* record) {
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size())) std::abort();
    const pugi::xml_node node = document.document_element();
    if (!IsRoot(node.name(), root)) std::abort();
    FillFromNode(node, root.type, root.anyPrefix, record);
}

void ReadWithRapidxml(const std::string& text, const RecordRoot& root, void* record) {
    // It reads within the text; the copy and the memory of the tree stay from document to document.
    static std::string copy;
    static rapidxml::xml_document<> document;
    copy = text;
    document.clear();
    document.parse<rapidxml::parse_default>(copy.data());
    const rapidxml::xml_node<>* node = document.first_node();
    while (node->type() != rapidxml::node_element) node = node->next_sibling();
    if (!IsRoot(node->name(), root)) std::abort();
    FillFromNode(*node, root.type, root.anyPrefix, record);
}

void WriteWithTinyxml2(const char* name, const RecordType& type, const void* record, tinyxml2::XMLPrinter& printer) {
    printer.OpenElement(name, true);
    for (const RecordField* field = type.fields; field != type.end; ++field) {
        if (field->write != nullptr) field->write(*field, record, printer);
    }
    printer.CloseElement(true);
}

void WriteValue(const RecordField& field, const char* text, tinyxml2::XMLPrinter& printer) {
    if (field.kind == RecordField::Attribute) {
        printer.PushAttribute(field.name, text);
        return;
    }
    if (field.kind == RecordField::Text) printer.OpenElement(field.name, true);
    if (*text != '\0') printer.PushText(text);
    if (field.kind == RecordField::Text) printer.CloseElement(true);
}

void TakeValue(SplitText& member, std::string_view text, const char* /*attribute*/) {
    constexpr std::string_view kWhiteSpace = " \t\r\n";
    std::size_t start = text.find_first_not_of(kWhiteSpace);
    while (start != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(kWhiteSpace, start), text.size());
        member.words.emplace_back(text.substr(start, end - start));
        start = text.find_first_not_of(kWhiteSpace, end);
    }
}

void WriteMember(const RecordField& field, const SplitText& member, tinyxml2::XMLPrinter& printer) {
    std::string text;
    for (const std::string& word : member.words) text += text.empty() ? word : ' ' + word;
    if (!text.empty()) WriteValue(field, text.c_str(), printer);
}
