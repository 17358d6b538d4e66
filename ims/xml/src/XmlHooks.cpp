#include "XmlHooks.h"

#include <climits>
#include <cstring>

#include "XmlCommon.h"
#include "XmlFields.h"

namespace {

XmlAnswer AnswerOf(int answer) { return answer != 0 ? XmlAnswer::Ignored : XmlAnswer::Refused; }

XmlAnswer TakenIf(bool taken) { return taken ? XmlAnswer::Taken : XmlAnswer::Refused; }

unsigned int ToUnsigned(const char* text, bool nearest) {
    const std::int64_t value = __atoi64(text);
    if (nearest && value < 0) return 0;
    if (nearest && value > UINT_MAX) return UINT_MAX;
    return static_cast<unsigned int>(value);
}

bool LeavesEarlier(const XmlField& row) { return row.leavesEarlier && !XmlTidy::IsOn(); }

void StoreFlag(int& field, const XmlField& row, const char* text) {
    const bool isTrue = std::strcmp(text, "true") == 0;
    if (row.flag == XmlFlag::TrueOrNot || isTrue || std::strcmp(text, "false") == 0) {
        field = isTrue ? 1 : 0;
    } else if (row.flag == XmlFlag::TrueFalseOrUnset) {
        field = static_cast<int>(row.notSet);
    }
}

/// Stores the text of a field that is no list and no child. @return false without memory.
bool StoreValue(XMLElement& element, const XmlField& row, const char* text) {
    switch (row.kind) {
        case XmlFieldKind::Text: {
            char*& field = element.*row.member.text;
            return (LeavesEarlier(row) ? ixOverwriteText(field, text) : ixSetText(field, text)) != 0;
        }
        case XmlFieldKind::Flag:
            StoreFlag(element.*row.member.number, row, text);
            return true;
        case XmlFieldKind::Number:
            element.*row.member.number = __atoi(text);
            return true;
        case XmlFieldKind::Unsigned:
            element.*row.member.unsignedNumber = ToUnsigned(text, row.nearest);
            return true;
        case XmlFieldKind::Number64:
            element.*row.member.number64 = __atoi64(text);
            return true;
        case XmlFieldKind::Enumeration:
            element.*row.member.number = row.enumeration->Read(text);
            return true;
        default:
            return false;
    }
}

/// Replaces a list of words by those of `text`. @return false without memory, when the earlier list is kept.
bool StoreWords(XMLElement& element, const XmlField& row, const char* text) {
    IxSingleElementList*& field = element.*row.member.list;
    IxSingleElementList* const earlier = field;
    field = nullptr;
    bool stored = true;
    while (stored && *text != '\0') {
        const char* const word = text;
        while (*text != '\0' && !XmlCommon::IsSpace(*text)) ++text;
        const auto length = static_cast<std::size_t>(text - word);
        stored = length == 0 || XmlHooks::AppendText(element, row, word, length);
        while (XmlCommon::IsSpace(*text)) ++text;
    }
    ix_xml_common_methods::DeleteTextList(stored ? earlier : field);
    if (!stored) field = earlier;
    return stored;
}

XmlAnswer TakeText(XMLElement& element, const XmlField& row, const XmlTag& tag, const char* text, const void* child) {
    if (child != nullptr) return XmlAnswer::Refused;
    if (!tag.isEnd || text == nullptr) return XmlAnswer::Ignored;
    switch (row.role) {
        case XmlRole::Words:
            return TakenIf(StoreWords(element, row, text));
        case XmlRole::Texts:
            return TakenIf(XmlHooks::AppendText(element, row, text, __strlen(text)));
        default:
            return TakenIf(StoreValue(element, row, text));
    }
}

XmlAnswer TakeChild(XMLElement& element, const XmlClass& description, const XmlField& row, const XmlClass& expected,
                    XMLElement* child) {
    const XmlAnswers& answers = description.answers;
    if (child == nullptr) {
        ixLog(description.source, answers.noChild);
        return XmlAnswer::Refused;
    }
    if (!ixIsClass(child, expected)) {
        const char* const name = child->ClassName();
        ixLog(description.source, name != nullptr ? answers.otherChild : answers.namelessChild, name);
        return name == nullptr ? AnswerOf(answers.nameless) : XmlAnswer::Refused;
    }
    if (row.store == nullptr) return TakenIf(XmlHooks::Append(element, row, child));
    XMLElement* const earlier = row.member.child(element);
    row.store(element, child);
    if (earlier != child && !LeavesEarlier(row)) ixDelete(earlier);
    return XmlAnswer::Taken;
}

/// The class that an entry has under a name; NULL: there is none.
const XmlClass* ClassNamed(const XmlField& row, XmlName name) {
    for (std::size_t i = 0; i < row.entryCount; ++i) {
        if (row.entries[i].name == name) return row.entries[i].description;
    }
    return nullptr;
}

/// Something that is offered to an element.
struct Place {
    XMLElement& element;
    const XmlClass& description;
    const XmlTag& tag;
    const char* text;
    XMLElement* child;

    bool IsMissing() const { return child == nullptr && description.answers.missingIsUnknown; }
};

/// @return false when the row, which has the tag's name, says nothing to it.
bool TakeByName(const Place& place, const XmlField& row, XmlAnswer& answer) {
    switch (row.role) {
        case XmlRole::Element:
        case XmlRole::Words:
        case XmlRole::Texts:
            if (!place.tag.isEnd && place.description.answers.startsAreUnknown) return false;
            answer = TakeText(place.element, row, place.tag, place.text, place.child);
            return true;
        case XmlRole::Attribute:
            if (!place.description.answers.attributesAreTags || place.tag.isEnd) return false;
            if (place.child != nullptr) return true;
            answer = place.text == nullptr ? XmlAnswer::Ignored : TakenIf(StoreValue(place.element, row, place.text));
            return true;
        case XmlRole::Child:
        case XmlRole::Children:
            if (place.tag.isEnd || place.IsMissing()) return false;
            answer = TakeChild(place.element, place.description, row, *row.description, place.child);
            return true;
        default:
            return false;
    }
}

/// The same for the rows that have no name of their own.
bool TakeByClass(const Place& place, XmlAnswer& answer) {
    for (const XmlFieldTable* table = &place.description.table; table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count && table->hasUnnamed; ++i) {
            const XmlField& row = table->fields[i];
            if (row.role == XmlRole::OwnText && place.tag.Ends(place.description.element)) {
                answer = TakeText(place.element, row, place.tag, place.text, place.child);
                return true;
            }
            const bool isEntry = row.role == XmlRole::OneOf || row.role == XmlRole::Mixed;
            if (!isEntry || place.tag.isEnd || place.IsMissing()) continue;
            const XmlClass* const expected = ClassNamed(row, place.tag.name);
            if (expected == nullptr) continue;
            answer = TakeChild(place.element, place.description, row, *expected, place.child);
            return true;
        }
    }
    return false;
}

XmlAnswer OfferUnknown(XMLElement& element, const XmlClass& description, const XmlTag& tag, const char* text,
                       XMLElement* child) {
    const XmlAnswers& answers = description.answers;
    const XmlField* const others = child != nullptr ? XmlHooks::RowOf(description, XmlRole::Others) : nullptr;
    if (others != nullptr) return TakenIf(XmlHooks::Append(element, *others, child));
    ixLog(description.source, child != nullptr ? answers.unknownObject : answers.unknown, tag.text, text);
    return AnswerOf(child != nullptr ? answers.object : answers.event);
}

}  // namespace

XmlTag::XmlTag(char* tag, std::size_t length)
    : text(tag), isEnd(tag != nullptr && *tag == '/'), name(tag + (isEnd ? 1 : 0), length - (isEnd ? 1 : 0)) {}

XmlAnswer XmlHooks::Offer(XMLElement& element, const XmlClass& description, const XmlTag& tag, const char* text,
                          XMLElement* child) {
    ixLog(description.source, description.answers.entered);
    if (tag.text == nullptr && description.answers.needsName) return XmlAnswer::Ignored;
    if (tag.name.IsKnown()) {
        const Place place = {element, description, tag, text, child};
        XmlAnswer answer = XmlAnswer::Refused;
        const auto isTaken = [&](const XmlField& row) { return TakeByName(place, row, answer); };
        for (const XmlFieldTable* table = &description.table; table != nullptr; table = table->base) {
            if (table->Find(tag.name, isTaken) != nullptr) return answer;
        }
        if (TakeByClass(place, answer)) return answer;
    }
    return OfferUnknown(element, description, tag, text, child);
}

const XmlField* XmlHooks::RowOf(const XmlClass& description, XmlRole role) {
    for (const XmlFieldTable* table = &description.table; table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) {
            if (table->fields[i].role == role) return &table->fields[i];
        }
    }
    return nullptr;
}

const XmlField* XmlHooks::AttributeRow(const XmlClass& description, XmlName name) {
    if (!name.IsKnown()) return nullptr;
    const auto isAttribute = [](const XmlField& row) {
        return row.role == XmlRole::Attribute || row.role == XmlRole::Dropped;
    };
    const XmlField* row = nullptr;
    for (const XmlFieldTable* table = &description.table; table != nullptr && row == nullptr; table = table->base) {
        row = table->Find(name, isAttribute);
    }
    return row;
}

XmlAnswer XmlHooks::TakeAttribute(XMLElement& element, const XmlField& row, const char* value) {
    ixLog(element.Class()->source, element.Class()->answers.attributeEntered);
    if (row.role == XmlRole::Dropped || value == nullptr) return XmlAnswer::Ignored;
    return TakenIf(StoreValue(element, row, value));
}

XmlAnswer XmlHooks::OfferAttribute(XMLElement& element, const XmlClass& description, XmlName name,
                                   const char* attribute, const char* value, XMLAttribute* pair) {
    const XmlAnswers& answers = description.answers;
    const XmlField* const known = AttributeRow(description, name);
    if (known != nullptr && pair == nullptr) return TakeAttribute(element, *known, value);
    ixLog(description.source, answers.attributeEntered);
    if (known != nullptr && known->role != XmlRole::Dropped) return XmlAnswer::Refused;
    const XmlField* const others = pair != nullptr ? RowOf(description, XmlRole::Attributes) : nullptr;
    if (others != nullptr) {
        ix_AttributeValuePair* const other = ixAsPair(pair);
        const bool isKept = other != nullptr && Append(element, *others, other);
        return isKept ? XmlAnswer::Taken : AnswerOf(answers.lostPair);
    }
    const bool isNameless = attribute == nullptr && answers.noAttribute.format != nullptr;
    ixLog(description.source, isNameless ? answers.noAttribute : answers.unknownAttribute, attribute);
    return AnswerOf(pair != nullptr ? answers.pair : answers.attribute);
}

XmlAnswer XmlHooks::OfferTo(XMLElement& receiver, const XmlTag& tag, char* text, XMLElement* child) {
    const XmlClass* const description = receiver.Class();
    if (description != nullptr && description->takesByRows) return Offer(receiver, *description, tag, text, child);
    if (receiver.ProcessUnMarshall(tag.text, text, child) == 0) return XmlAnswer::Refused;
    return XmlFields::HoldsChild(receiver, child) ? XmlAnswer::Taken : XmlAnswer::Ignored;
}

XmlAnswer XmlHooks::OfferAttributeTo(XMLElement& receiver, const XmlTag& attribute, char* value, XMLAttribute* pair) {
    const XmlClass* const description = receiver.Class();
    if (description != nullptr && description->takesAttributesByRows) {
        return OfferAttribute(receiver, *description, attribute.name, attribute.text, value, pair);
    }
    if (receiver.ProcessUnMarshallAttribute(attribute.text, value, pair) == 0) return XmlAnswer::Refused;
    return XmlFields::HoldsAttribute(receiver, pair) ? XmlAnswer::Taken : XmlAnswer::Ignored;
}

bool XmlHooks::Append(XMLElement& element, const XmlField& row, void* entry) {
    IxSingleElementList*& list = element.*row.member.list;
    if (list != nullptr) return list->Add(entry) != 0;
    // A list without an entry is something else than no list: some writers tell them apart.
    auto* const created = ixNew<IxSingleElementList>(XmlFields::SourceOf(element, row), row.line);
    if (created == nullptr || created->Add(entry) == 0) {
        ixDelete(created);
        return false;
    }
    list = created;
    return true;
}

bool XmlHooks::AppendText(XMLElement& element, const XmlField& row, const char* text, std::size_t length) {
    char* const copy = text != nullptr ? static_cast<char*>(__malloc(length + 1)) : nullptr;
    if (copy == nullptr) return false;
    std::memcpy(copy, text, length);
    copy[length] = '\0';
    if (Append(element, row, copy)) return true;
    __free(copy);
    return false;
}
