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

bool IsList(const XmlField& row) {
    return row.kind == XmlFieldKind::ChildList || row.kind == XmlFieldKind::TextList ||
           row.kind == XmlFieldKind::AttributeList;
}

/// Copies a tree object by object, so that its depth is not the depth of the calls.
class Copier {
  public:
    Copier() = default;
    ~Copier() {
        while (m_pNext != nullptr) Drop();
    }
    Copier(const Copier&) = delete;
    Copier& operator=(const Copier&) = delete;

    XMLElement* Copy(const XMLElement& root) {
        XMLElement* const copy = Begin(root);
        bool isCopied = copy != nullptr;
        while (isCopied && m_pNext != nullptr) {
            const XMLElement& from = *m_pNext->from;
            XMLElement& to = *m_pNext->to;
            Drop();
            isCopied = CopyFields(from, to) && (from.Rest() == nullptr || CopyRest(from, to));
        }
        if (isCopied) return copy;
        ixDelete(copy);
        return nullptr;
    }

  private:
    /// An object whose copy has no content yet.
    struct Begun {
        const XMLElement* from;
        XMLElement* to;
        Begun* next;
    };

    void Drop() {
        Begun* const next = m_pNext->next;
        __free(m_pNext);
        m_pNext = next;
    }

    XMLElement* Begin(const XMLElement& from);
    bool CopyFields(const XMLElement& from, XMLElement& to);
    bool CopyField(const XMLElement& from, XMLElement& to, const XmlField& row);
    bool CopyList(const XMLElement& from, XMLElement& to, const XmlField& row);
    bool CopyEntry(XmlFieldKind kind, const void* entry, IxSingleElementList& list);
    static bool CopyRest(const XMLElement& from, XMLElement& to);
    static void MapEntries(const XMLElement& from, XMLElement& to, const XmlField& row);

    Begun* m_pNext = nullptr;
};

/// A new object of the class of `from`, which gets its content later.
XMLElement* Copier::Begin(const XMLElement& from) {
    const XmlClass* const description = from.Class();
    if (description == nullptr || description->create == nullptr) return nullptr;
    void* const block = __malloc(sizeof(Begun));
    XMLElement* const to = block != nullptr ? description->create(description->source, __LINE__) : nullptr;
    // A class that an application has derived has members that no row knows.
    if (to == nullptr || !TextsEqual(to->ClassName(), from.ClassName())) {
        __free(block);
        ixDelete(to);
        return nullptr;
    }
    m_pNext = new (block) Begun{&from, to, m_pNext};
    return to;
}

bool Copier::CopyFields(const XMLElement& from, XMLElement& to) {
    for (const XmlFieldTable* table = ixRowsOf(from); table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            if (!CopyField(from, to, table->fields[i])) return false;
        }
    }
    return true;
}

bool Copier::CopyField(const XMLElement& from, XMLElement& to, const XmlField& row) {
    switch (row.kind) {
        case XmlFieldKind::Text:
            return ixSetText(to.*row.member.text, from.*row.member.text) != 0;
        case XmlFieldKind::Flag:
        case XmlFieldKind::Number:
        case XmlFieldKind::Enumeration:
        case XmlFieldKind::Unsigned:
        case XmlFieldKind::Number64:
            XmlFields::SetNumber(to, row, XmlFields::Number(from, row));
            return true;
        case XmlFieldKind::Child:
        case XmlFieldKind::Presence: {
            const XMLElement* const child = row.member.child(from);
            XMLElement* const copy = child != nullptr ? Begin(*child) : nullptr;
            if (copy != nullptr) row.store(to, copy);
            return copy != nullptr || child == nullptr;
        }
        case XmlFieldKind::None:
            return true;
        default:
            return CopyList(from, to, row);
    }
}

bool Copier::CopyList(const XMLElement& from, XMLElement& to, const XmlField& row) {
    const IxSingleElementList* const entries = from.*row.member.list;
    // A list without entries is something else than none: some writers tell them apart.
    if (entries == nullptr) return true;
    auto* const list = ixNew<IxSingleElementList>(XmlFields::SourceOf(from, row), row.line);
    if (list == nullptr) return false;
    to.*row.member.list = list;
    for (const IxSingleElementNode* node = ixNodesOf(entries); node != nullptr; node = node->next) {
        if (!CopyEntry(row.kind, node->key, *list)) return false;
    }
    return true;
}

bool Copier::CopyEntry(XmlFieldKind kind, const void* entry, IxSingleElementList& list) {
    if (entry == nullptr) return list.Add(nullptr) != 0;
    if (kind == XmlFieldKind::TextList) {
        char* const copy = __strdup(static_cast<const char*>(entry));
        if (copy != nullptr && list.Add(copy) != 0) return true;
        __free(copy);
    } else if (kind == XmlFieldKind::AttributeList) {
        const auto& pair = *static_cast<const ix_AttributeValuePair*>(entry);
        ix_AttributeValuePair* const copy = ixCreatePair(pair.mName, pair.mValue, kSource);
        if (copy != nullptr && list.Add(copy) != 0) return true;
        ixDelete(copy);
    } else {
        XMLElement* const copy = Begin(*static_cast<const XMLElement*>(entry));
        if (copy != nullptr && list.Add(copy) != 0) return true;
        ixDelete(copy);
    }
    return false;
}

bool Copier::CopyRest(const XMLElement& from, XMLElement& to) {
    const XmlRest& rest = *from.Rest();
    XmlRest* const copy = to.MakeRest();
    if (copy == nullptr) return false;
    copy->SetChangedAs(rest);
    for (const XmlRestItem* item = rest.First(); item != nullptr; item = item->next) {
        const std::size_t length = item->text != nullptr ? std::strlen(item->text) : 0;
        XmlRestItem* const added = copy->Append(*item, std::strlen(item->name), length);
        if (added == nullptr) return false;
        // Behind all children.
        if (item->field == nullptr && item->entry != nullptr) added->entry = copy;
    }
    for (const XmlFieldTable* table = ixRowsOf(from); table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            if (IsList(table->fields[i])) MapEntries(from, to, table->fields[i]);
        }
    }
    return true;
}

/// A place in a list, and the same in its copy.
struct Places {
    const IxSingleElementNode* node;
    const IxSingleElementNode* copy;

    /// Goes on to where `entry` is. @return false when that is not from here on.
    bool Find(const void* entry) {
        for (; node != nullptr; node = node->next, copy = copy->next) {
            if (node->key == entry) return true;
        }
        return false;
    }
};

/// Has what the rest keeps at the entries of a list refer to those of the copy.
void Copier::MapEntries(const XMLElement& from, XMLElement& to, const XmlField& row) {
    const Places first = {ixNodesOf(from.*row.member.list), ixNodesOf(to.*row.member.list)};
    Places at = first;
    const void* entry = nullptr;
    const void* entryCopy = nullptr;
    auto* copy = const_cast<XmlRestItem*>(to.Rest()->First());
    for (const XmlRestItem* item = from.Rest()->First(); item != nullptr; item = item->next, copy = copy->next) {
        if (item->field != &row || item->entry == nullptr) continue;
        if (item->entry != entry) {
            entry = item->entry;
            // Rest and list have the same order, but for what an application has moved. One that has gone has no entry
            // in the copy either; see XmlRest::MoveEntry.
            bool isThere = entry != item && at.Find(entry);
            if (!isThere && entry != item) {
                at = first;
                isThere = at.Find(entry);
            }
            entryCopy = isThere ? at.copy->key : copy;
            if (at.node == nullptr) at = first;
        }
        copy->entry = entryCopy;
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

void XmlFields::SetNumber(XMLElement& element, const XmlField& field, long long value) {
    if (field.kind == XmlFieldKind::Unsigned) {
        element.*field.member.unsignedNumber = static_cast<unsigned int>(value);
    } else if (field.kind == XmlFieldKind::Number64) {
        element.*field.member.number64 = value;
    } else {
        element.*field.member.number = static_cast<int>(value);
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
            if (IsList(row) && &(element.*row.member.list) == &list) return &row;
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

XMLElement* XmlFields::Copy(const XMLElement& element) { return Copier().Copy(element); }

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
