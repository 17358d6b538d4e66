#include "XmlBinding.h"

#include <climits>

#include "XmlElementSupport.h"
#include "XmlFields.h"
#include "XmlHooks.h"

namespace {

XmlSlice Trimmed(XmlSlice text) {
    while (text.length != 0 && XmlReader::IsSpace(*text.text)) {
        ++text.text;
        --text.length;
    }
    while (text.length != 0 && XmlReader::IsSpace(text.text[text.length - 1])) --text.length;
    return text;
}

bool Is(const XmlSlice& text, const char* word) {
    std::size_t i = 0;
    while (i < text.length && text.text[i] == word[i]) ++i;
    return i == text.length && word[i] == '\0';
}

bool ReadNumber(const XmlSlice& text, long long least, long long most, long long& value) {
    const bool isNegative = text.length != 0 && *text.text == '-';
    std::size_t i = isNegative || (text.length != 0 && *text.text == '+') ? 1 : 0;
    if (i == text.length) return false;
    value = 0;
    for (; i < text.length; ++i) {
        const int digit = text.text[i] - '0';
        if (digit < 0 || digit > 9 || __builtin_mul_overflow(value, 10LL, &value)) return false;
        if (__builtin_add_overflow(value, static_cast<long long>(isNegative ? -digit : digit), &value)) return false;
    }
    return value >= least && value <= most;
}

/// A copy with a NUL behind it; NULL without memory.
char* CopyOf(const XmlSlice& text) {
    char* const copy = static_cast<char*>(__malloc(text.length + 1));
    if (copy == nullptr) return nullptr;
    if (text.length != 0) std::memcpy(copy, text.text, text.length);
    copy[text.length] = '\0';
    return copy;
}

bool IsList(const XmlField& row) { return row.kind == XmlFieldKind::ChildList || row.kind == XmlFieldKind::TextList; }

bool TakesText(const XMLElement& element) {
    return element.Class() != nullptr && element.Class()->OwnText() != nullptr;
}

/// An attribute's name with its prefix.
XmlSlice WholeName(const XmlReaderAttribute& attribute) {
    if (attribute.prefix.length == 0) return attribute.local;
    return {attribute.prefix.text,
            static_cast<std::size_t>(attribute.local.text - attribute.prefix.text) + attribute.local.length};
}

}  // namespace

// --- Values ----------------------------------------------------------------------------------------------------------

bool ixReadValue(const XmlField& row, XmlSlice text, long long& value) {
    text = Trimmed(text);
    switch (row.kind) {
        case XmlFieldKind::Flag:
            value = Is(text, "true") || Is(text, "1") ? 1 : 0;
            return value != 0 || Is(text, "false") || Is(text, "0");
        case XmlFieldKind::Enumeration:
            for (value = 0; value < row.enumeration->count; ++value) {
                if (Is(text, row.enumeration->TextOf(value))) return true;
            }
            return false;
        case XmlFieldKind::Unsigned:
            return ReadNumber(text, 0, UINT_MAX, value);
        case XmlFieldKind::Number:
            return ReadNumber(text, INT_MIN, INT_MAX, value);
        default:
            return ReadNumber(text, LLONG_MIN, LLONG_MAX, value);
    }
}

// --- Rows ------------------------------------------------------------------------------------------------------------

XmlBinding::Place XmlBinding::FindElement(const XmlClass& description, XmlName name) {
    const auto isElement = [](const XmlField& row) {
        return row.role == XmlRole::Element || row.role == XmlRole::Words || row.role == XmlRole::Texts ||
               row.role == XmlRole::Child || row.role == XmlRole::Children;
    };
    std::size_t first = 0;
    for (const XmlFieldTable* table = &description.table; table != nullptr; table = table->base) {
        const XmlField* const row = table->Find(name, isElement);
        if (row != nullptr) return {row, nullptr, first + static_cast<std::size_t>(row - table->fields)};
        for (std::size_t i = 0; i < table->count && table->hasEntries; ++i) {
            const XmlField& mixed = table->fields[i];
            for (std::size_t k = 0; k < mixed.entryCount; ++k) {
                if (mixed.entries[k].name == name) return {&mixed, &mixed.entries[k], first + i};
            }
        }
        first += table->count;
    }
    return {};
}

XmlBinding::Place XmlBinding::FindAttribute(const XmlClass& description, XmlName name) {
    std::size_t first = 0;
    for (const XmlFieldTable* table = &description.table; table != nullptr; table = table->base) {
        const XmlField* const row =
            table->Find(name, [](const XmlField& field) { return field.role == XmlRole::Attribute; });
        if (row != nullptr) return {row, nullptr, first + static_cast<std::size_t>(row - table->fields)};
        first += table->count;
    }
    return {};
}

/// True for what the standard has and the class does not.
bool XmlBinding::IsAlso(const Frame& frame, const XmlSlice& name) {
    const XmlClass* const description = frame.element->Class();
    const char* at = frame.field == nullptr && description != nullptr ? description->also : nullptr;
    while (at != nullptr) {
        const char* const end = std::strchr(at, ' ');
        const std::size_t length = end != nullptr ? static_cast<std::size_t>(end - at) : std::strlen(at);
        if (length == name.length && std::memcmp(at, name.text, length) == 0) return true;
        at = end != nullptr ? end + 1 : nullptr;
    }
    return false;
}

/// A child whose row stands before that of a child before it.
void XmlBinding::CheckOrder(Frame& frame, const Place& place, const XmlSlice& name) const {
    const XmlClass& description = *frame.element->Class();
    if (description.isUnordered) return;
    std::size_t order = place.at;
    std::size_t before = 0;
    for (const XmlFieldTable* table = &description.table; table != nullptr; table = table->base) {
        if (order >= before + table->count) {
            before += table->count;
            continue;
        }
        // Rows of the bases come first.
        order -= before;
        for (const XmlFieldTable* base = table->base; base != nullptr; base = base->base) order += base->count;
        break;
    }
    const bool isTurn = place.row->takesTurns && order + 1 == frame.order;
    if (order < frame.order && !isTurn) Find("is out of place", name);
    if (order > frame.order || isTurn) frame.order = order;
}

/// Without a namespace on the root local names alone count. The main namespace, and none, stand for those of a
/// standard.
bool XmlBinding::TakesNamespace(XmlUri uri, XmlUri expected, XmlUri proper) const {
    return uri == expected || uri == proper || uri == m_main || uri == 0 || m_rootUri == 0;
}

// --- Rest ------------------------------------------------------------------------------------------------------------

bool XmlBinding::Keep(XMLElement& element, const XmlRestItem& item, std::size_t nameLength, std::size_t textLength) {
    XmlRest* const rest = element.MakeRest();
    const bool isKept = rest != nullptr && rest->Append(item, nameLength, textLength) != nullptr;
    return isKept || m_reader.RefuseMemory();
}

bool XmlBinding::KeepNamespace(XMLElement& element, const XmlField* field) {
    const XmlSlice uri = m_reader.UriText(m_reader.Uri());
    // The texts of namespaces are not always ended by a NUL.
    m_piece.Cut(0);
    if (!m_piece.Append(uri.text, uri.length) || !m_piece.Add('\0')) return m_reader.RefuseMemory();
    return Keep(element, {XmlRestKind::Namespace, field != nullptr, field, nullptr, 0, m_piece.Values(), "", ""}, 0, 0);
}

/// Keeps an element that no field takes.
bool XmlBinding::KeepPiece(Frame& frame) {
    m_piece.Cut(0);
    if (!m_reader.Skip(m_piece)) return false;
    const bool isInside = frame.field != nullptr;
    // Behind the element's own text, if there was any before it.
    const bool isBehindText = frame.takesText && !isInside && frame.text.text != nullptr && frame.lastField == nullptr;
    if (isBehindText) frame.lastField = frame.element->Class()->OwnText();
    return Keep(*frame.element,
                {XmlRestKind::Element, isInside, isInside ? frame.field : frame.lastField,
                 isInside ? nullptr : frame.lastEntry, 0, "", "", m_piece.Values()},
                0, m_piece.Count());
}

// --- Reading ---------------------------------------------------------------------------------------------------------

XMLElement* XmlBinding::Read() {
    bool isGood = Root();
    while (isGood) {
        switch (m_reader.Next(WantsBlanks())) {
            case XmlReader::kStart:
                isGood = m_pDeclarations != nullptr ? AddDeclarations() : Start();
                break;
            case XmlReader::kEnd:
                isGood = m_pDeclarations != nullptr || End();
                break;
            case XmlReader::kText:
                isGood = m_pDeclarations != nullptr || Text();
                break;
            case XmlReader::kDone:
                return m_pRoot;
            default:
                isGood = false;
        }
    }
    ixDelete(m_pRoot);
    return nullptr;
}

bool XmlBinding::Root() {
    if (m_reader.Next() != XmlReader::kStart) return false;
    m_main = ixUri(ixMainNamespace(m_schema));
    m_rootUri = m_reader.Uri();
    const XmlRoot root = ixRootOf(m_schema, m_reader.Local());
    if (root.description == nullptr) return m_reader.Refuse("not a root element of the schema", m_reader.Place());
    const XmlUri proper = ixUri(root.ns);
    m_pDeclarations = XmlHooks::RowOf(*root.description, XmlRole::Declarations);
    if (m_pDeclarations == nullptr && m_rootUri != proper && m_rootUri != 0 && m_rootUri != m_main) {
        return m_reader.Refuse("the root element is of another namespace", m_reader.Place());
    }
    m_pRoot = root.description->create(root.description->source, __LINE__);
    if (m_pRoot == nullptr) return m_reader.RefuseMemory();
    if (m_pDeclarations != nullptr) return AddDeclarations();
    if (m_rootUri != proper && !KeepNamespace(*m_pRoot, nullptr)) return false;
    if (!m_frames.Add(
            {m_pRoot, nullptr, m_rootUri, proper, 0, nullptr, nullptr, nullptr, {}, TakesText(*m_pRoot), 0})) {
        return m_reader.RefuseMemory();
    }
    return Attributes(m_frames.Last());
}

bool XmlBinding::Start() {
    Frame& top = m_frames.Last();
    if (!KeepText(top)) return false;
    const XmlSlice& local = m_reader.Local();
    const XmlName name = XmlName::OfPadded(local.text, local.length);
    const bool isKnown = top.field == nullptr && name.IsKnown() && top.element->Class() != nullptr;
    const Place place = isKnown ? FindElement(*top.element->Class(), name) : Place();
    if (place.row == nullptr) {
        const bool isOwn = m_reader.Uri() == top.uri || m_reader.Uri() == top.proper || m_reader.Uri() == 0;
        if ((isOwn && !IsAlso(top, local)) || top.field != nullptr) Find("is not an element of the standard", local);
        return KeepPiece(top);
    }
    const XmlNamespace ns = place.entry != nullptr ? place.entry->ns : place.row->ns;
    const bool isOfParent = ns == XmlNamespace::Parent;
    const XmlUri proper = isOfParent ? top.proper : ixUri(ns);
    const XmlUri expected = isOfParent ? top.uri : proper;
    if (!TakesNamespace(m_reader.Uri(), expected, proper)) {
        if (m_reader.Uri() == top.uri || m_reader.Uri() == top.proper)
            Find("is an element of another namespace", local);
        return KeepPiece(top);
    }
    if (!IsList(*place.row) && (top.seen & place.Bit()) != 0) {
        Find("is given twice", local);
        // It stays behind the one that counts.
        top.lastField = place.row;
        top.lastEntry = nullptr;
        return KeepPiece(top);
    }
    top.seen |= place.Bit();
    if (m_pFindings != nullptr) CheckOrder(top, place, local);
    const bool isValue =
        place.row->role == XmlRole::Element || place.row->role == XmlRole::Words || place.row->role == XmlRole::Texts;
    return isValue ? OpenField(top, place, proper) : OpenObject(top, place, proper);
}

bool XmlBinding::OpenField(Frame& parent, const Place& place, XmlUri proper) {
    XMLElement& element = *parent.element;
    const XmlUri uri = m_reader.Uri();
    const XmlUri expected = place.row->ns == XmlNamespace::Parent ? parent.uri : proper;
    XmlSlice text;
    if (uri == expected && m_reader.AttributeCount() == 0 && m_reader.TextAlone(text)) {
        return TakeValue(parent, *place.row, text, nullptr);
    }
    XmlRest* const rest = element.Rest();
    Frame frame = {&element, place.row, uri, proper, 0, nullptr, nullptr, rest != nullptr ? rest->Last() : nullptr,
                   {},       true};
    if (uri != expected && !KeepNamespace(element, place.row)) return false;
    if (m_reader.AttributeCount() != 0 && !Attributes(frame)) return false;
    return m_frames.Add(frame) || m_reader.RefuseMemory();
}

bool XmlBinding::OpenObject(Frame& parent, const Place& place, XmlUri proper) {
    const XmlField& row = *place.row;
    const XmlClass& description = place.entry != nullptr ? *place.entry->description : *row.description;
    XMLElement* const child = description.create(description.source, row.line);
    if (child == nullptr) return m_reader.RefuseMemory();
    if (row.store != nullptr) {
        row.store(*parent.element, child);
    } else if (!XmlHooks::Append(*parent.element, row, child)) {
        ixDelete(child);
        return m_reader.RefuseMemory();
    }
    parent.lastField = &row;
    parent.lastEntry = IsList(row) ? child : nullptr;
    const bool isFlag = &description == &ix_empty_element_type::kClass;
    if (isFlag) {
        auto& flag = static_cast<ix_empty_element_type&>(*child);
        flag.mPresent = 1;
        flag.mName = CopyOf(m_reader.Local());
        if (flag.mName == nullptr) return m_reader.RefuseMemory();
    }
    const XmlNamespace ns = place.entry != nullptr ? place.entry->ns : row.ns;
    const XmlUri uri = m_reader.Uri();
    if (uri != (ns == XmlNamespace::Parent ? parent.uri : proper) && !KeepNamespace(*child, nullptr)) return false;
    if (!m_frames.Add({child, nullptr, uri, proper, 0, nullptr, nullptr, nullptr, {}, TakesText(*child), 0})) {
        return m_reader.RefuseMemory();
    }
    return m_reader.AttributeCount() == 0 || Attributes(m_frames.Last());
}

bool XmlBinding::Attributes(Frame& frame) {
    const std::size_t count = m_reader.AttributeCount();
    for (std::size_t i = 0; i < count; ++i) {
        XmlReaderAttribute& attribute = m_reader.Attribute(i);
        if (attribute.declares) continue;
        if (attribute.isRaw) XmlReader::Decode(attribute.value, true);
        if (!Attribute(frame, attribute)) return false;
    }
    return true;
}

/// @param name without text: the pair has none.
bool XmlBinding::AddPair(XMLElement& element, const XmlField& row, const XmlSlice& name, const XmlSlice& value) {
    auto* const pair = ixNew<ix_AttributeValuePair>(element.Class()->source, row.line);
    if (pair == nullptr) return m_reader.RefuseMemory();
    pair->mName = name.text != nullptr ? CopyOf(name) : nullptr;
    pair->mValue = CopyOf(value);
    const bool isGood = pair->mValue != nullptr && (pair->mName != nullptr || name.text == nullptr);
    if (isGood && XmlHooks::Append(element, row, pair)) return true;
    ixDelete(pair);
    return m_reader.RefuseMemory();
}

bool XmlBinding::AddDeclarations() {
    for (std::size_t i = 0; i < m_reader.AttributeCount(); ++i) {
        XmlReaderAttribute& attribute = m_reader.Attribute(i);
        if (!attribute.declares) continue;
        XmlSlice prefix;
        if (attribute.prefix.length != 0) prefix = attribute.local;
        if (attribute.isRaw) XmlReader::Decode(attribute.value, true);
        if (!AddPair(*m_pRoot, *m_pDeclarations, prefix, attribute.value)) return false;
    }
    return true;
}

bool XmlBinding::Attribute(Frame& frame, XmlReaderAttribute& attribute) {
    XMLElement& element = *frame.element;
    const XmlSlice& value = attribute.value;
    const bool isOwn = attribute.prefix.length == 0 && frame.field == nullptr && element.Class() != nullptr;
    if (isOwn) {
        const XmlClass& description = *element.Class();
        const XmlName name = XmlName::OfPadded(attribute.local.text, attribute.local.length);
        const Place place = name.IsKnown() ? FindAttribute(description, name) : Place();
        // Markers of presence have fields of their own under names that no document has.
        if (place.row != nullptr && &description != &ix_empty_element_type::kClass &&
            description.parent != &ix_empty_element_type::kClass) {
            frame.seen |= place.Bit();
            return StoreValue(element, *place.row, value, attribute.local.text);
        }
        const XmlField* const others = XmlHooks::RowOf(description, XmlRole::Attributes);
        if (others != nullptr) return AddPair(element, *others, attribute.local, value);
    }
    if (m_pFindings != nullptr && attribute.uri == 0 && !IsAlso(frame, attribute.local))
        Find("is not an attribute of the standard", attribute.local, attribute.local.text);
    const XmlSlice uri = m_reader.UriText(attribute.uri);
    const XmlSlice name = WholeName(attribute);
    m_piece.Cut(0);
    if (!m_piece.Append(uri.text, uri.length) || !m_piece.Add('\0')) return m_reader.RefuseMemory();
    return Keep(element,
                {XmlRestKind::Attribute, frame.field != nullptr, frame.field, nullptr, 0, m_piece.Values(), name.text,
                 value.text},
                name.length, value.length);
}

bool XmlBinding::Text() {
    Frame& top = m_frames.Last();
    XmlSlice text = m_reader.Text();
    if (m_reader.IsRaw()) XmlReader::Decode(text, false);
    if (top.text.text == nullptr) {
        top.text = text;
    } else {
        // What stood between two runs has been read: the second one moves behind the first.
        std::memmove(top.text.text + top.text.length, text.text, text.length);
        top.text.length += text.length;
    }
    return true;
}

/// Keeps the text before a child, or before the end, of an element that has no place for it.
bool XmlBinding::KeepOther(Frame& frame) {
    const XmlSlice text = frame.text;
    frame.text = {};
    if (XmlReader::IsBlank(text)) return true;
    Find("is a text between elements", text);
    return Keep(*frame.element, {XmlRestKind::Text, false, frame.lastField, frame.lastEntry, 0, "", "", text.text}, 0,
                text.length);
}

bool XmlBinding::End() {
    // It stays as it is until another one is added.
    Frame& frame = m_frames.Last();
    m_frames.Cut(m_frames.Count() - 1);
    return frame.field != nullptr ? CloseField(frame) : CloseObject(frame);
}

bool XmlBinding::CloseField(Frame& frame) { return TakeValue(m_frames.Last(), *frame.field, frame.text, &frame); }

/// The value of a field. @param inside the element's own frame; NULL: there was nothing but the text.
bool XmlBinding::TakeValue(Frame& parent, const XmlField& row, XmlSlice text, const Frame* inside) {
    XMLElement& element = *parent.element;
    if (text.text == nullptr) text.text = const_cast<char*>("");
    parent.lastField = &row;
    parent.lastEntry = nullptr;
    if (row.role == XmlRole::Words) return StoreWords(element, row, text);
    if (row.role != XmlRole::Texts) return StoreValue(element, row, text);
    if (!XmlHooks::AppendText(element, row, text.text, text.length)) return m_reader.RefuseMemory();
    parent.lastEntry = XmlFields::List(element, row)->LastNode()->key;
    if (inside != nullptr && element.Rest() != nullptr) element.Rest()->SetEntry(inside->kept, row, parent.lastEntry);
    return true;
}

bool XmlBinding::StoreWords(XMLElement& element, const XmlField& row, const XmlSlice& text) {
    std::size_t i = 0;
    while (i < text.length) {
        while (i < text.length && XmlReader::IsSpace(text.text[i])) ++i;
        const std::size_t begin = i;
        while (i < text.length && !XmlReader::IsSpace(text.text[i])) ++i;
        if (i != begin && !XmlHooks::AppendText(element, row, text.text + begin, i - begin)) {
            return m_reader.RefuseMemory();
        }
    }
    if (XmlFields::IsSet(element, row)) return true;
    return Keep(element, {XmlRestKind::Value, false, &row, nullptr, 0, "", "", text.text}, 0, text.length);
}

/// What does not fit leaves the field as it is.
bool XmlBinding::StoreValue(XMLElement& element, const XmlField& row, const XmlSlice& text, const char* place) {
    if (row.kind == XmlFieldKind::Text) {
        char* const copy = CopyOf(text);
        if (copy == nullptr) return m_reader.RefuseMemory();
        __free(element.*row.member.text);
        element.*row.member.text = copy;
        return true;
    }
    long long value = 0;
    const bool fits = ixReadValue(row, text, value);
    if (fits) XmlFields::SetNumber(element, row, value);
    if (fits && value != row.notSet) return true;
    if (!fits) {
        Find(row.kind == XmlFieldKind::Flag          ? "is neither true nor false"
             : row.kind == XmlFieldKind::Enumeration ? "is not a word of the standard"
                                                     : "is not a number that fits",
             text, place);
    }
    return Keep(element, {XmlRestKind::Value, false, &row, nullptr, XmlFields::Number(element, row), "", "", text.text},
                0, text.length);
}

bool XmlBinding::CloseObject(Frame& frame) {
    XMLElement& element = *frame.element;
    const XmlClass* const description = element.Class();
    if (!KeepText(frame)) return false;
    if (description == nullptr) return true;
    const XmlField* const ownText = description->OwnText();
    if (ownText != nullptr) {
        if (frame.text.text == nullptr) frame.text.text = const_cast<char*>("");
        if (!StoreValue(element, *ownText, frame.text)) return false;
    }
    std::uint64_t seen = frame.seen;
    for (const XmlFieldTable* table = &description->table; table != nullptr; table = table->base) {
        const std::uint64_t missing = table->told & ~seen;
        for (std::size_t i = 0; missing >> i != 0; ++i) {
            const XmlField& row = table->fields[i];
            if ((missing >> i & 1) == 0 || row.role == XmlRole::OwnText) continue;
            if (row.mandatory) Find("is missing", {const_cast<char*>(row.Name()), std::strlen(row.Name())});
            const XmlRestItem item = {
                XmlRestKind::Value, false, &row, nullptr, XmlFields::Number(element, row), "", "", nullptr};
            if (!Keep(element, item, 0, 0)) return false;
        }
        seen >>= table->count;
    }
    return true;
}
