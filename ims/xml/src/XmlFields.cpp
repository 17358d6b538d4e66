#include "XmlFields.h"

#include <cstring>

namespace {

/// The lists below an entry are emptied into `list` before the entry goes, so that the depth of a tree is not the depth
/// of the calls.
void DeleteElement(void* entry, IxSingleElementList& list) {
    XMLElement* const element = static_cast<XMLElement*>(entry);
    XmlFields::HandOverChildLists(element, list);
    ixDelete(element);
}

void DeletePair(void* entry, IxSingleElementList& /*list*/) {
    ix_AttributeValuePair* const pair = static_cast<ix_AttributeValuePair*>(entry);
    ixDelete(pair);
}

void DeleteText(void* entry, IxSingleElementList& /*list*/) { FreeElement(entry); }

/// Hands every entry to `end`, which may append to the list, then deletes the list.
void DeleteList(IxSingleElementList* list, void (*end)(void* entry, IxSingleElementList& list)) {
    if (list == nullptr) return;
    const IxSingleElementNode* node = list->WasTaken() ? nullptr : list->GetPtrToListHead();
    for (; node != nullptr; node = node->next) {
        if (node->key != nullptr) end(node->key, *list);
    }
    ixDelete(list);
}

bool TextsEqual(const char* left, const char* right) {
    if (left == nullptr || right == nullptr) return left == right;
    return std::strcmp(left, right) == 0;
}

bool PairsEqual(const void* left, const void* right) {
    if (left == nullptr || right == nullptr) return left == right;
    const auto* one = static_cast<const ix_AttributeValuePair*>(left);
    const auto* other = static_cast<const ix_AttributeValuePair*>(right);
    return TextsEqual(one->mName, other->mName) && TextsEqual(one->mValue, other->mValue);
}

bool EntriesEqual(XmlFieldKind kind, const void* left, const void* right) {
    switch (kind) {
        case XmlFieldKind::TextList:
            return TextsEqual(static_cast<const char*>(left), static_cast<const char*>(right));
        case XmlFieldKind::AttributeList:
            return PairsEqual(left, right);
        default:
            return XmlFields::Equal(static_cast<const XMLElement*>(left), static_cast<const XMLElement*>(right));
    }
}

bool EndsWith(const IxSingleElementList* list, const void* key) {
    const IxSingleElementNode* const last = list != nullptr ? list->LastNode() : nullptr;
    return last != nullptr && last->key == key;
}

bool ListsEqual(XmlFieldKind kind, const IxSingleElementList* left, const IxSingleElementList* right) {
    const IxSingleElementNode* one = ixNodesOf(left);
    const IxSingleElementNode* other = ixNodesOf(right);
    while (one != nullptr && other != nullptr) {
        if (!EntriesEqual(kind, one->key, other->key)) return false;
        one = one->next;
        other = other->next;
    }
    return one == other;
}

bool FieldsEqual(const XMLElement& left, const XMLElement& right, const XmlField& field) {
    switch (field.kind) {
        case XmlFieldKind::Text:
            return TextsEqual(XmlFields::Text(left, field), XmlFields::Text(right, field));
        case XmlFieldKind::Child:
        case XmlFieldKind::Presence:
            return XmlFields::Equal(XmlFields::Child(left, field), XmlFields::Child(right, field));
        case XmlFieldKind::ChildList:
        case XmlFieldKind::TextList:
        case XmlFieldKind::AttributeList:
            return ListsEqual(field.kind, XmlFields::List(left, field), XmlFields::List(right, field));
        default:
            return XmlFields::Number(left, field) == XmlFields::Number(right, field);
    }
}

}  // namespace

void ix_xml_common_methods::DeleteElementList(IxSingleElementList* list) { DeleteList(list, DeleteElement); }

void ix_xml_common_methods::DeleteAttributeList(IxSingleElementList* list) { DeleteList(list, DeletePair); }

void ix_xml_common_methods::DeleteTextList(IxSingleElementList* list) { DeleteList(list, DeleteText); }

const char* XmlFields::Text(const XMLElement& element, const XmlField& field) {
    return field.kind == XmlFieldKind::Text ? element.*field.member.text : nullptr;
}

long long XmlFields::Number(const XMLElement& element, const XmlField& field) {
    switch (field.kind) {
        case XmlFieldKind::Flag:
        case XmlFieldKind::Number:
        case XmlFieldKind::Enumeration:
            return element.*field.member.number;
        case XmlFieldKind::Unsigned:
            return element.*field.member.unsignedNumber;
        case XmlFieldKind::Number64:
            return element.*field.member.number64;
        default:
            return 0;
    }
}

XMLElement* XmlFields::Child(const XMLElement& element, const XmlField& field) {
    const bool holds = field.kind == XmlFieldKind::Child || field.kind == XmlFieldKind::Presence;
    return holds ? field.member.child(element) : nullptr;
}

IxSingleElementList* XmlFields::List(const XMLElement& element, const XmlField& field) {
    switch (field.kind) {
        case XmlFieldKind::ChildList:
        case XmlFieldKind::TextList:
        case XmlFieldKind::AttributeList:
            return element.*field.member.list;
        default:
            return nullptr;
    }
}

bool XmlFields::IsSet(const XMLElement& element, const XmlField& field) {
    switch (field.kind) {
        case XmlFieldKind::Text:
            return Text(element, field) != nullptr;
        case XmlFieldKind::Child:
        case XmlFieldKind::Presence:
            return Child(element, field) != nullptr;
        case XmlFieldKind::ChildList:
        case XmlFieldKind::TextList:
        case XmlFieldKind::AttributeList:
            return ixNodesOf(List(element, field)) != nullptr;
        case XmlFieldKind::Enumeration:
            return Number(element, field) != field.notSet &&
                   field.enumeration->TextOf(Number(element, field)) != nullptr;
        default:
            return Number(element, field) != field.notSet;
    }
}

const XmlField* XmlFields::Find(const XMLElement& element, const char* name) {
    if (name == nullptr) return nullptr;
    for (const XmlFieldTable* table = ixRowsOf(element); table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            if (std::strcmp(table->fields[i].Name(), name) == 0) return &table->fields[i];
        }
    }
    return nullptr;
}

const XmlField* XmlFields::RowOf(const XMLElement& element, const IxSingleElementList* const& list) {
    for (const XmlFieldTable* table = ixRowsOf(element); table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            const XmlField& row = table->fields[i];
            const bool isList = row.kind == XmlFieldKind::ChildList || row.kind == XmlFieldKind::TextList ||
                                row.kind == XmlFieldKind::AttributeList;
            if (isList && &(element.*row.member.list) == &list) return &row;
        }
    }
    return nullptr;
}

const char* XmlFields::SourceOf(const XMLElement& element, const XmlField& row) {
    const XmlFieldTable* table = ixRowsOf(element);
    while (table != nullptr && (&row < table->fields || &row >= table->fields + table->count)) table = table->base;
    return table != nullptr ? table->source : nullptr;
}

const char* XmlFields::Word(const XMLElement& element, const char* name) {
    const XmlField* const field = Find(element, name);
    const bool hasWord = field != nullptr && field->kind == XmlFieldKind::Enumeration && IsSet(element, *field);
    return hasWord ? field->enumeration->TextOf(Number(element, *field)) : nullptr;
}

void XmlFields::Release(XMLElement* element, const XmlFieldTable& table) {
    for (std::uint64_t rest = table.owning; rest != 0; rest &= rest - 1) {
        const XmlField& field = table.fields[__builtin_ctzll(rest)];
        switch (field.kind) {
            case XmlFieldKind::Text:
                __free(element->*field.member.text);
                break;
            case XmlFieldKind::Child:
            case XmlFieldKind::Presence: {
                XMLElement* const child = field.member.child(*element);
                ixDelete(child);
                break;
            }
            case XmlFieldKind::ChildList:
            case XmlFieldKind::TextList:
            case XmlFieldKind::AttributeList:
                DeleteList(field, element->*field.member.list);
                break;
            default:
                break;
        }
    }
}

void XmlFields::DeleteList(const XmlField& row, IxSingleElementList* list) {
    if (row.kind == XmlFieldKind::ChildList) ix_xml_common_methods::DeleteElementList(list);
    if (row.kind == XmlFieldKind::TextList) ix_xml_common_methods::DeleteTextList(list);
    if (row.kind == XmlFieldKind::AttributeList) ix_xml_common_methods::DeleteAttributeList(list);
}

bool XmlFields::HoldsChild(const XMLElement& element, const XMLElement* child) {
    const XmlFieldTable* table = ixRowsOf(element);
    if (table == nullptr) return true;
    for (; table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            const XmlField& field = table->fields[i];
            if (field.kind == XmlFieldKind::ChildList ? EndsWith(element.*field.member.list, child)
                                                      : Child(element, field) == child) {
                return true;
            }
        }
    }
    return false;
}

bool XmlFields::HoldsAttribute(const XMLElement& element, const XMLAttribute* pair) {
    const XmlFieldTable* table = ixRowsOf(element);
    if (table == nullptr) return true;
    for (; table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            const XmlField& field = table->fields[i];
            if (field.kind == XmlFieldKind::AttributeList && EndsWith(element.*field.member.list, pair)) return true;
        }
    }
    return false;
}

void XmlFields::HandOverChildLists(XMLElement* element, IxSingleElementList& list) {
    for (const XmlFieldTable* table = ixRowsOf(*element); table != nullptr; table = table->base) {
        for (std::uint64_t rest = table->parents; rest != 0; rest &= rest - 1) {
            const XmlField& field = table->fields[__builtin_ctzll(rest)];
            if (field.kind == XmlFieldKind::Child) {
                XMLElement* const child = field.member.child(*element);
                if (child != nullptr) HandOverChildLists(child, list);
            } else if (element->*field.member.list != nullptr) {
                list.TakeNodesOf(*(element->*field.member.list));
            }
        }
    }
}

bool XmlFields::Equal(const XMLElement* left, const XMLElement* right) {
    if (left == nullptr || right == nullptr) return left == right;
    if (!TextsEqual(left->ClassName(), right->ClassName()) || ixRowsOf(*left) != ixRowsOf(*right)) return false;
    for (const XmlFieldTable* table = ixRowsOf(*left); table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            if (!FieldsEqual(*left, *right, table->fields[i])) return false;
        }
    }
    return XmlRest::Equal(left->Rest(), right->Rest());
}
