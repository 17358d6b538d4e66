#include "XmlEdit.h"

#include <cstring>

#include "XmlFields.h"
#include "XmlHooks.h"

namespace {

/// True when a list of the row may hold objects of the class of `entry`.
bool Takes(const XmlField& row, const XMLElement* entry) {
    if (row.role == XmlRole::Others) return true;
    if (row.description != nullptr) return ixIsClass(entry, *row.description);
    for (std::size_t i = 0; i < row.entryCount; ++i) {
        if (ixIsClass(entry, *row.entries[i].description)) return true;
    }
    return false;
}

/// The row of a list of this kind; NULL: the element has none.
const XmlField* RowOf(const XMLElement& element, IxSingleElementList* const& list, XmlFieldKind kind) {
    const XmlField* const row = XmlFields::RowOf(element, list);
    return row != nullptr && row->kind == kind ? row : nullptr;
}

bool Has(const IxSingleElementList* list, const void* entry) { return list != nullptr && list->Has(entry); }

bool InsertInto(XMLElement& element, const XmlField& row, void* entry, const void* before) {
    IxSingleElementList* const list = element.*row.member.list;
    if (Has(list, entry)) return false;
    if (before == nullptr) return XmlHooks::Append(element, row, entry);
    return list != nullptr && list->InsertBefore(entry, before) != 0;
}

void Delete(XmlFieldKind kind, void* entry) {
    if (kind == XmlFieldKind::TextList) {
        FreeElement(entry);
    } else if (kind == XmlFieldKind::AttributeList) {
        ixDelete(static_cast<ix_AttributeValuePair*>(entry));
    } else {
        ixDelete(static_cast<XMLElement*>(entry));
    }
}

/// What the rest keeps behind an entry goes with what comes in its place; NULL: stays.
void MoveRest(const XMLElement& element, const XmlField& row, const void* entry, const void* with) {
    if (element.Rest() != nullptr) element.Rest()->MoveEntry(row, entry, with);
}

bool ReplaceIn(XMLElement& element, const XmlField& row, const void* entry, void* with) {
    IxSingleElementList* const list = element.*row.member.list;
    if (list == nullptr || list->Has(with) || list->Replace(entry, with) == 0) return false;
    MoveRest(element, row, entry, with);
    Delete(row.kind, const_cast<void*>(entry));
    return true;
}

/// Puts `entry` in front of `at`, or in its place.
bool Put(XMLElement& element, IxSingleElementList* const& list, XmlFieldKind kind, void* entry, const void* at,
         bool replaces) {
    const XmlField* const row = entry != nullptr ? RowOf(element, list, kind) : nullptr;
    if (row == nullptr || (kind == XmlFieldKind::ChildList && !Takes(*row, static_cast<XMLElement*>(entry))))
        return false;
    return replaces ? ReplaceIn(element, *row, at, entry) : InsertInto(element, *row, entry, at);
}

int PutText(XMLElement& element, IxSingleElementList* const& list, const char* text, const void* at, bool replaces) {
    char* const copy = text != nullptr ? __strdup(text) : nullptr;
    if (Put(element, list, XmlFieldKind::TextList, copy, at, replaces)) return 1;
    __free(copy);
    return 0;
}

bool TakeOut(const XMLElement& element, const XmlField& row, void* entry) {
    IxSingleElementList* const list = element.*row.member.list;
    if (list == nullptr || list->Remove(entry) == 0) return false;
    MoveRest(element, row, entry, nullptr);
    return true;
}

/// The pair of that name; NULL: there is none.
ix_AttributeValuePair* PairNamed(const IxSingleElementList* list, const char* name) {
    for (auto* pair : XmlEntries<ix_AttributeValuePair>(list)) {
        if (pair != nullptr && ixNameIs(pair->mName, name)) return pair;
    }
    return nullptr;
}

ix_empty_element_type* FlagNamed(const IxSingleElementList* list, const char* name) {
    for (auto* entry : XmlEntries<XMLElement>(list)) {
        auto* const flag = ixAs<ix_empty_element_type>(entry);
        if (flag != nullptr && ixNameIs(flag->mName, name)) return flag;
    }
    return nullptr;
}

}  // namespace

int XmlEdit::Insert(XMLElement& element, IxSingleElementList* const& list, XMLElement* entry, const void* before) {
    return Put(element, list, XmlFieldKind::ChildList, entry, before, false) ? 1 : 0;
}

int XmlEdit::Insert(XMLElement& element, IxSingleElementList* const& list, ix_AttributeValuePair* entry,
                    const void* before) {
    return Put(element, list, XmlFieldKind::AttributeList, entry, before, false) ? 1 : 0;
}

int XmlEdit::Insert(XMLElement& element, IxSingleElementList* const& list, const char* text, const void* before) {
    return PutText(element, list, text, before, false);
}

int XmlEdit::Replace(XMLElement& element, IxSingleElementList* const& list, const void* entry, XMLElement* with) {
    return Put(element, list, XmlFieldKind::ChildList, with, entry, true) ? 1 : 0;
}

int XmlEdit::Replace(XMLElement& element, IxSingleElementList* const& list, const void* entry,
                     ix_AttributeValuePair* with) {
    return Put(element, list, XmlFieldKind::AttributeList, with, entry, true) ? 1 : 0;
}

int XmlEdit::Replace(XMLElement& element, IxSingleElementList* const& list, const void* entry, const char* text) {
    return PutText(element, list, text, entry, true);
}

int XmlEdit::Remove(XMLElement& element, IxSingleElementList* const& list, const void* entry) {
    const XmlField* const row = XmlFields::RowOf(element, list);
    void* const removed = const_cast<void*>(entry);
    if (row == nullptr || !TakeOut(element, *row, removed)) return 0;
    Delete(row->kind, removed);
    return 1;
}

XMLElement* XmlEdit::Take(XMLElement& element, IxSingleElementList* const& list, XMLElement* entry) {
    const XmlField* const row = RowOf(element, list, XmlFieldKind::ChildList);
    return row != nullptr && TakeOut(element, *row, entry) ? entry : nullptr;
}

int XmlEdit::SetFlag(XMLElement& element, IxSingleElementList* const& list, const char* name, bool present) {
    if (name == nullptr || RowOf(element, list, XmlFieldKind::ChildList) == nullptr) return 0;
    ix_empty_element_type* const there = FlagNamed(list, name);
    if (!present) return there != nullptr ? Remove(element, list, there) : 1;
    if (there != nullptr) return there->setPresentValue(1);
    ix_empty_element_type* const flag = ixCreateEmptyElement(name, kSource);
    if (Insert(element, list, flag) != 0) return 1;
    ixDelete(flag);
    return 0;
}

int XmlEdit::SetFlag(XMLElement& element, const char* name, bool present) {
    const XmlField* const row = XmlFields::Find(element, name);
    if (row == nullptr || row->kind != XmlFieldKind::Presence) return 0;
    XMLElement* const there = row->member.child(element);
    const bool isNamed = row->description == &ix_empty_element_type::kClass;
    if (present && there != nullptr) {
        return isNamed ? static_cast<ix_empty_element_type*>(there)->setPresentValue(1) : 1;
    }
    XMLElement* flag = nullptr;
    if (present) {
        flag = isNamed ? ixCreateEmptyElement(name, kSource) : New(*row->description);
        if (flag == nullptr) return 0;
    }
    row->store(element, flag);
    ixDelete(there);
    return 1;
}

int XmlEdit::SetAttribute(XMLElement& element, const char* name, const char* value) {
    const XmlClass* const description = name != nullptr ? element.Class() : nullptr;
    const XmlField* const row = description != nullptr ? XmlHooks::RowOf(*description, XmlRole::Attributes) : nullptr;
    if (row == nullptr || XmlHooks::AttributeRow(*description, XmlName(name, std::strlen(name))) != nullptr) return 0;
    IxSingleElementList* const& list = element.*row->member.list;
    ix_AttributeValuePair* const there = PairNamed(list, name);
    if (value == nullptr) return there != nullptr ? Remove(element, list, there) : 1;
    if (there != nullptr) return there->setValueValue(value);
    ix_AttributeValuePair* const pair = ixCreatePair(name, value, kSource);
    if (Insert(element, list, pair) != 0) return 1;
    ixDelete(pair);
    return 0;
}

int XmlEdit::Declare(XMLElement& element, const char* prefix, const char* uri) {
    constexpr char kDeclaration[] = "xmlns:";
    constexpr std::size_t kLength = sizeof kDeclaration - 1;
    const std::size_t length = prefix != nullptr ? std::strlen(prefix) : 0;
    auto* const name = static_cast<char*>(__malloc(kLength + length + 1));
    if (name == nullptr) return 0;
    std::memcpy(name, kDeclaration, kLength);
    if (length != 0) std::memcpy(name + kLength, prefix, length);
    // Without a prefix there is no colon.
    name[length != 0 ? kLength + length : kLength - 1] = '\0';
    const int result = uri != nullptr ? SetAttribute(element, name, uri) : 0;
    __free(name);
    return result;
}

XMLElement* XmlEdit::New(const XmlClass& description) {
    return description.create != nullptr ? description.create(description.source, __LINE__) : nullptr;
}

XMLElement* XmlEdit::Add(XMLElement& element, IxSingleElementList* const& list, const XmlClass& description) {
    XMLElement* const entry = New(description);
    if (Insert(element, list, entry) != 0) return entry;
    ixDelete(entry);
    return nullptr;
}
