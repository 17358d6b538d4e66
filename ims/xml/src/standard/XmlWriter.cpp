#include "XmlWriter.h"

#include "../XmlScan.h"
#include "XmlElementSupport.h"
#include "XmlFields.h"
#include "XmlHooks.h"

namespace {

XmlSlice SliceOf(const char* text) { return {const_cast<char*>(text), text != nullptr ? std::strlen(text) : 0}; }

/// What stands behind the colon, if there is one.
XmlSlice LocalOf(const char* name) {
    const char* const colon = std::strchr(name, ':');
    return SliceOf(colon != nullptr ? colon + 1 : name);
}

XmlSlice DigitsOf(long long value, char (&digits)[24]) {
    char* at = digits + sizeof digits;
    auto rest = static_cast<unsigned long long>(value);
    if (value < 0) rest = 0 - rest;
    do {
        *--at = static_cast<char>('0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    if (value < 0) *--at = '-';
    return {at, static_cast<std::size_t>(digits + sizeof digits - at)};
}

/// The next entry from `item` on that belongs to the child of `row` and `entry`: inside of it or behind it.
const XmlRestItem* NextOf(const XmlRestItem* item, const XmlField& row) {
    while (item != nullptr && (item->field != &row || (item->kind == XmlRestKind::Value && !item->isInside))) {
        item = item->next;
    }
    return item;
}

/// True while `item` is of the same child as the first of its run.
bool IsOf(const XmlRestItem* item, const XmlRestItem& first) {
    return item != nullptr && item->field == first.field && item->entry == first.entry;
}

const XmlRestItem* FirstOf(const XMLElement& element) {
    return element.Rest() != nullptr ? element.Rest()->First() : nullptr;
}

/// What becomes of a byte.
enum Escape : unsigned char { kPlain, kCheck, kAmp, kLt, kGt, kCr, kInAttributes, kQuot = kInAttributes, kLf, kTab };
constexpr const char* kEntities[] = {"", "", "&amp;", "&lt;", "&gt;", "&#13;", "&quot;", "&#10;", "&#9;"};

struct Escapes {
    Escape of[256] = {};

    constexpr Escapes() {
        for (int i = 0; i < 256; ++i) of[i] = i >= 0x80 || i < 0x20 ? kCheck : kPlain;
        of[static_cast<int>('&')] = kAmp;
        of[static_cast<int>('<')] = kLt;
        of[static_cast<int>('>')] = kGt;
        of[static_cast<int>('\r')] = kCr;
        of[static_cast<int>('"')] = kQuot;
        of[static_cast<int>('\n')] = kLf;
        of[static_cast<int>('\t')] = kTab;
    }
};
constexpr Escapes kEscapes;

XmlSlice SliceOf(XmlName name) { return {const_cast<char*>(name.Text()), name.Length()}; }

bool IsFlag(const XMLElement& element) { return element.Class() == &ix_empty_element_type::kClass; }

/// True for a field that nothing has to be written for: the usual case, told without more ado.
bool IsAbsent(const XMLElement& element, const XmlField& row) {
    if (row.mandatory || row.takesTurns || element.Rest() != nullptr) return false;
    switch (row.kind) {
        case XmlFieldKind::Text:
            return element.*row.member.text == nullptr;
        case XmlFieldKind::ChildList:
        case XmlFieldKind::TextList:
        case XmlFieldKind::AttributeList:
            return element.*row.member.list == nullptr;
        case XmlFieldKind::Child:
        case XmlFieldKind::Presence:
            return row.member.child(element) == nullptr;
        default:
            return XmlFields::Number(element, row) == row.notSet;
    }
}

/// Copies a text as long as its bytes stand for themselves. @return how many do.
std::size_t CopyPlain(char* to, const char* text, std::size_t length) {
    std::size_t i = 0;
    if (length >= 16) {
        for (; i + 16 <= length && ixArePlain16(text + i); i += 16) std::memcpy(to + i, text + i, 16);
        // The last sixteen overlap those before.
        const std::size_t last = length - 16;
        if (i > last && ixArePlain16(text + last)) {
            std::memcpy(to + last, text + last, 16);
            return length;
        }
    } else if (length >= 8 && ixArePlain8(text) && ixArePlain8(text + length - 8)) {
        std::memcpy(to, text, 8);
        std::memcpy(to + length - 8, text + length - 8, 8);
        return length;
    }
    for (; i < length && kEscapes.of[static_cast<unsigned char>(text[i])] == kPlain; ++i) to[i] = text[i];
    return i;
}

}  // namespace

XmlWriter::~XmlWriter() {
    for (std::size_t i = 0; i < m_made.Count(); ++i) __free(m_made[i]);
}

bool XmlWriter::Fail(const char* what, const XmlSlice& element, const char* name) {
    if (m_problem[0] != '\0') return false;
    std::size_t at = 0;
    const auto add = [&](const char* text, std::size_t length) {
        for (std::size_t i = 0; i < length && at + 1 < sizeof m_problem; ++i) m_problem[at++] = text[i];
    };
    if (element.length != 0) {
        add("<", 1);
        add(element.text, element.length);
        add("> ", 2);
    }
    add(what, std::strlen(what));
    if (name != nullptr) {
        add(" ", 1);
        add(name, std::strlen(name));
    }
    return false;
}

// --- Document --------------------------------------------------------------------------------------------------------

char* XmlWriter::Write(const XMLElement* root) {
    if (root == nullptr) {
        Fail("there is no root", {});
    } else if (Root(*root) && (m_text.Add('\0') || FailMemory())) {
        if (!m_isChanged) return m_text.Release();
        XmlReader check;
        XmlReader::Event event = check.Begin(m_text.Values(), m_text.Count() - 1) ? check.Next() : XmlReader::kFailed;
        while (event != XmlReader::kDone && event != XmlReader::kFailed) event = check.Next();
        if (event == XmlReader::kDone) return m_text.Release();
        Fail("what was added to a rest is not well-formed:", {}, check.Problem()->text);
    }
    return nullptr;
}

bool XmlWriter::Root(const XMLElement& root) {
    const XmlRoot known = root.Class() != nullptr ? ixRootOf(m_schema, *root.Class()) : XmlRoot();
    if (known.description == nullptr) return Fail("is not the class of a root:", {}, root.ClassName());
    m_rootUri = ixUri(known.ns);
    for (const XmlRestItem* item = FirstOf(root); item != nullptr; item = item->next) {
        if (item->kind == XmlRestKind::Namespace && !item->isInside && !UriOf(item->namespaceUri, m_rootUri))
            return false;
    }
    if (!Put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n")) return false;
    const std::size_t at = m_text.Count() + 1 + known.name.length;
    return Object(root, {known.name, XmlNamespace::Parent}, {m_rootUri, m_rootUri, 0}) && Declarations(at);
}

/// Declares on the root what has been used.
bool XmlWriter::Declarations(std::size_t at) {
    const std::size_t end = m_text.Count();
    const auto declare = [&](const XmlSlice& prefix, XmlUri uri) {
        const XmlSlice text = m_uris.Text(uri);
        return Put(prefix.length != 0 ? " xmlns:" : " xmlns") && Put(prefix) && Put("=\"") && Escaped(text, true) &&
               Put("\"");
    };
    if (m_rootUri != 0 && !declare({}, m_rootUri)) return false;
    for (std::size_t i = 0; i < m_prefixes.Count(); ++i) {
        const bool isDeclared = m_prefixes[i].isUsed && i != ixUri(XmlNamespace::Xml);
        if (isDeclared && !declare(m_prefixes[i].text, static_cast<XmlUri>(i))) return false;
    }
    // They were made behind the text, and go to their place by way of a copy behind both.
    const std::size_t length = m_text.Count() - end;
    if (m_text.Room(length) == nullptr) return FailMemory();
    char* const text = m_text.Values();
    std::memcpy(text + end + length, text + end, length);
    std::memmove(text + at + length, text + at, end - at);
    std::memcpy(text + at, text + end + length, length);
    m_text.Cut(end + length);
    return true;
}

// --- Names -----------------------------------------------------------------------------------------------------------

bool XmlWriter::UriOf(const char* text, XmlUri& uri) {
    // Attributes of one namespace often come in numbers.
    if (m_lastUri != 0 && std::strcmp(text, m_lastUriText) == 0) {
        uri = m_lastUri;
        return true;
    }
    if (!m_uris.Intern(SliceOf(text), uri)) return FailMemory();
    m_lastUri = uri;
    m_lastUriText = text;
    return true;
}

/// @param isNew out: nothing else has the prefix. @return false without memory.
bool XmlWriter::Take(const XmlSlice& prefix, bool& isNew) {
    const std::size_t before = m_taken.Count();
    if (m_taken.Intern(prefix) == XmlNameTable::kNoMemory) return FailMemory();
    isNew = m_taken.Count() != before;
    return true;
}

/// The prefix of a namespace: the usual one, the one that is wanted, or a new one.
bool XmlWriter::PrefixOf(XmlUri uri, const XmlSlice& wanted, XmlSlice& prefix) {
    while (m_prefixes.Count() <= uri) {
        if (!m_prefixes.Add({})) return FailMemory();
    }
    if (!m_prefixes[uri].isUsed) {
        XmlSlice text = uri < kXmlNamespaceCount ? SliceOf(kXmlNamespaces[uri].prefix) : wanted;
        bool isNew = false;
        if (m_taken.Count() == 0 && !Take(SliceOf("xml"), isNew)) return false;
        if (m_taken.Count() == 1 && !Take(SliceOf("xmlns"), isNew)) return false;
        isNew = uri == ixUri(XmlNamespace::Xml);
        if (!isNew && !Take(text, isNew)) return false;
        while (!isNew) {
            auto* const made = static_cast<char*>(__malloc(sizeof m_number + 1));
            if (made == nullptr || !m_made.Add(made)) {
                __free(made);
                return FailMemory();
            }
            const XmlSlice digits = DigitsOf(static_cast<long long>(m_made.Count()), m_number);
            made[0] = 'n';
            std::memcpy(made + 1, digits.text, digits.length);
            text = {made, digits.length + 1};
            if (!Take(text, isNew)) return false;
        }
        m_prefixes[uri] = {text, true};
    }
    prefix = m_prefixes[uri].text;
    return true;
}

/// @param nameAt out: where the name stands, so that the end tag can have it, too.
bool XmlWriter::Start(const XmlSlice& local, XmlUri uri, XmlUri& defaultUri, std::size_t& nameAt,
                      std::size_t& nameLength) {
    XmlSlice prefix;
    if (uri != defaultUri && uri != 0 && !PrefixOf(uri, SliceOf("x"), prefix)) return false;
    const std::size_t prefixLength = prefix.length != 0 ? prefix.length + 1 : 0;
    nameLength = prefixLength + local.length;
    char* to = m_text.Room(nameLength + 1);
    if (to == nullptr) return FailMemory();
    *to++ = '<';
    nameAt = m_text.Count() - nameLength;
    if (prefixLength != 0) {
        ixCopyShort(to, prefix.text, prefix.length);
        to[prefix.length] = ':';
    }
    ixCopyShort(to + prefixLength, local.text, local.length);
    if (uri == 0 && defaultUri != 0) {
        defaultUri = 0;
        return Put(" xmlns=\"\"");
    }
    return true;
}

/// Ends an element. @param content where it begins: an element without any closes itself.
bool XmlWriter::Close(std::size_t content, std::size_t nameAt, std::size_t nameLength) {
    if (m_text.Count() == content) {
        m_text.Cut(content - 1);
        return Put("/>");
    }
    char* const to = m_text.Room(nameLength + 3);
    if (to == nullptr) return FailMemory();
    to[0] = '<';
    to[1] = '/';
    ixCopyShort(to + 2, m_text.Values() + nameAt, nameLength);
    to[nameLength + 2] = '>';
    return true;
}

bool XmlWriter::Escaped(const XmlSlice& text, bool isAttribute) {
    // Usually there is nothing to do, and the text is copied while it is looked at.
    char* const to = m_text.Room(text.length);
    if (to == nullptr) return text.length == 0 || FailMemory();
    const std::size_t plain = CopyPlain(to, text.text, text.length);
    if (plain == text.length) return true;
    m_text.Cut(m_text.Count() - (text.length - plain));
    const char* from = text.text + plain;
    const char* const end = text.text + text.length;
    for (const char* at = from; at < end;) {
        while (end - at >= 16 && ixArePlain16(at)) at += 16;
        if (at == end) break;
        const Escape escape = kEscapes.of[static_cast<unsigned char>(*at)];
        if (escape == kPlain || (escape >= kInAttributes && !isAttribute)) {
            ++at;
            continue;
        }
        if (escape == kCheck) {
            // All that is not ASCII up to here and beyond, until something else has to be done.
            const char* behind = at;
            while (behind < end && kEscapes.of[static_cast<unsigned char>(*behind)] == kCheck) ++behind;
            if (XmlReader::ValidEnd(at, static_cast<std::size_t>(behind - at)) != behind) {
                return Fail("a text is not XML in UTF-8", {});
            }
            at = behind;
            continue;
        }
        if (!Put(from, static_cast<std::size_t>(at - from)) || !Put(kEntities[escape])) return false;
        from = ++at;
    }
    return Put(from, static_cast<std::size_t>(end - from));
}

/// How a child is called. @return false: there is no place for it.
bool XmlWriter::NameOf(const XmlField& row, const XMLElement& child, Name& name) {
    const auto* const flag = IsFlag(child) ? static_cast<const ix_empty_element_type*>(&child) : nullptr;
    if (row.description != nullptr) {
        name = {SliceOf(row.name), row.ns};
        return child.Class() == row.description || ixIsClass(&child, *row.description);
    }
    for (std::size_t i = 0; i < row.entryCount; ++i) {
        const XmlNamedClass& entry = row.entries[i];
        if (child.Class() != entry.description) continue;
        name = {SliceOf(entry.name), entry.ns};
        if (flag == nullptr) return true;
        if (flag->mName != nullptr && LocalOf(flag->mName) == name.local) return true;
    }
    if (flag == nullptr || flag->mName == nullptr) return false;
    // A presence that the standard does not know: as the application calls it.
    name.local = LocalOf(flag->mName);
    name.ns = row.ns;
    for (std::size_t i = ixUri(XmlNamespace::Simservs); i < kXmlNamespaceCount; ++i) {
        const std::size_t length = std::strlen(kXmlNamespaces[i].prefix);
        const bool isPrefix = std::strncmp(flag->mName, kXmlNamespaces[i].prefix, length) == 0;
        if (isPrefix && flag->mName[length] == ':') name.ns = static_cast<XmlNamespace>(i);
    }
    return XmlReader::IsName(name.local.text, name.local.length);
}

// --- Elements --------------------------------------------------------------------------------------------------------

bool XmlWriter::Object(const XMLElement& element, const Name& name, const Around& around) {
    if (around.depth == XmlReader::kDeepest) return Fail("is within 1000 elements", name.local);
    const XmlClass& description = *element.Class();
    const XmlRest* const rest = element.Rest();
    XmlUri uri = name.ns == XmlNamespace::Parent ? around.uri : ixUri(name.ns);
    for (const XmlRestItem* item = FirstOf(element); item != nullptr; item = item->next) {
        const bool isOwn = item->kind == XmlRestKind::Namespace && !item->isInside;
        if (isOwn && !UriOf(item->namespaceUri, uri)) return false;
    }
    m_isChanged = m_isChanged || (rest != nullptr && rest->IsChanged());
    Around inside = {uri, around.defaultUri, around.depth + 1};
    std::size_t nameAt = 0;
    std::size_t nameLength = 0;
    if (!Start(name.local, uri, inside.defaultUri, nameAt, nameLength)) return false;
    if (!IsFlag(element) && description.parent != &ix_empty_element_type::kClass &&
        !Attributes(element, description.table, name.local)) {
        return false;
    }
    for (const XmlRestItem* item = FirstOf(element); item != nullptr; item = item->next) {
        if (item->kind == XmlRestKind::Attribute && !item->isInside && !RestAttribute(*item)) return false;
    }
    if (!Put(">")) return false;
    const std::size_t content = m_text.Count();
    // What came before all children.
    for (const XmlRestItem* item = FirstOf(element); item != nullptr; item = item->next) {
        if (item->field == nullptr && item->entry == nullptr && !Piece(*item, inside.defaultUri)) return false;
    }
    if (!Children(element, description.table, name.local, inside)) return false;
    for (const XmlRestItem* item = FirstOf(element); item != nullptr; item = item->next) {
        if (item->field == nullptr && item->entry != nullptr && !Piece(*item, inside.defaultUri)) return false;
    }
    return Close(content, nameAt, nameLength);
}

bool XmlWriter::Piece(const XmlRestItem& item, XmlUri defaultUri) {
    if (item.kind == XmlRestKind::Text) return Escaped(SliceOf(item.text), false);
    if (item.kind != XmlRestKind::Element) return true;
    // Its first declaration goes without saying where it is that of the default namespace here.
    const XmlSlice uri = m_uris.Text(defaultUri);
    const char* const name = item.text + std::strcspn(item.text, " \t\n/>");
    constexpr char kBegin[] = " xmlns=\"";
    const char* const declared = name + sizeof kBegin - 1;
    const bool declares = std::strncmp(name, kBegin, sizeof kBegin - 1) == 0 &&
                          std::strncmp(declared, uri.text, uri.length) == 0 && declared[uri.length] == '"';
    if (!declares) return Put(item.text);
    return Put(item.text, static_cast<std::size_t>(name - item.text)) && Put(declared + uri.length + 1);
}

/// What stands behind a child.
bool XmlWriter::Behind(const XmlRestItem* run, const Around& inside) {
    for (const XmlRestItem* item = run; item != nullptr && IsOf(item, *run); item = NextOf(item->next, *run->field)) {
        if (!item->isInside && !Piece(*item, inside.defaultUri)) return false;
    }
    return true;
}

/// The entry of the rest about what a field was given, if that still counts. NULL: the field is written.
const XmlRestItem* XmlWriter::Given(const XMLElement& element, const XmlField& row) {
    for (const XmlRestItem* item = FirstOf(element); item != nullptr; item = item->next) {
        if (item->kind != XmlRestKind::Value || item->field != &row) continue;
        const bool isObject = row.kind == XmlFieldKind::Text || row.kind == XmlFieldKind::Child ||
                              row.kind == XmlFieldKind::Presence || row.kind == XmlFieldKind::ChildList ||
                              row.kind == XmlFieldKind::TextList;
        const bool isSame = isObject ? !XmlFields::IsSet(element, row) : XmlFields::Number(element, row) == item->held;
        return isSame ? item : nullptr;
    }
    return nullptr;
}

/// The text of a field that holds a value. @param isSet out: there is something to write.
bool XmlWriter::ValueText(const XMLElement& element, const XmlField& row, XmlSlice& text, bool& isSet) {
    if (row.kind == XmlFieldKind::Text && FirstOf(element) == nullptr) {
        const char* const value = element.*row.member.text;
        isSet = value != nullptr;
        if (isSet) text = SliceOf(value);
        return isSet || !row.mandatory;
    }
    const XmlRestItem* const given = FirstOf(element) != nullptr ? Given(element, row) : nullptr;
    isSet = given != nullptr ? given->text != nullptr : XmlFields::IsSet(element, row);
    if (!isSet) return given != nullptr || !row.mandatory;
    if (given != nullptr) {
        text = SliceOf(given->text);
        return true;
    }
    const long long number = XmlFields::Number(element, row);
    switch (row.kind) {
        case XmlFieldKind::Text:
            text = SliceOf(XmlFields::Text(element, row));
            break;
        case XmlFieldKind::Flag:
            text = SliceOf(number != 0 ? "true" : "false");
            break;
        case XmlFieldKind::Enumeration:
            text = SliceOf(row.enumeration->TextOf(number));
            break;
        default:
            text = DigitsOf(number, m_number);
    }
    return true;
}

bool XmlWriter::Attributes(const XMLElement& element, const XmlFieldTable& table, const XmlSlice& name) {
    if (table.base != nullptr && !Attributes(element, *table.base, name)) return false;
    for (std::uint64_t rest = table.attributes; rest != 0; rest &= rest - 1) {
        const XmlField& row = table.fields[__builtin_ctzll(rest)];
        if (IsAbsent(element, row)) continue;
        if (row.role == XmlRole::Attributes && !OtherAttributes(element, row)) return false;
        if (row.role != XmlRole::Attribute) continue;
        XmlSlice text;
        bool isSet = false;
        if (!ValueText(element, row, text, isSet)) return Fail("has no attribute", name, row.Name());
        if (!isSet) continue;
        if (!Attribute(SliceOf(row.name), text)) return false;
    }
    return true;
}

bool XmlWriter::Attribute(const XmlSlice& name, const XmlSlice& value) {
    char* const to = m_text.Room(name.length + 3);
    if (to == nullptr) return FailMemory();
    to[0] = ' ';
    ixCopyShort(to + 1, name.text, name.length);
    to[name.length + 1] = '=';
    to[name.length + 2] = '"';
    return Escaped(value, true) && (m_text.Add('"') || FailMemory());
}

/// The pairs of a list. Declarations among them are not taken over: the writer makes its own.
bool XmlWriter::OtherAttributes(const XMLElement& element, const XmlField& row) {
    XmlNameTable names;
    for (const auto* pair : XmlEntries<ix_AttributeValuePair>(XmlFields::List(element, row))) {
        if (pair == nullptr || pair->mName == nullptr) continue;
        const XmlSlice name = SliceOf(pair->mName);
        if (std::strncmp(pair->mName, "xmlns", 5) == 0 && (name.length == 5 || pair->mName[5] == ':')) continue;
        if (!XmlReader::IsName(name.text, name.length)) return Fail("is not the name of an attribute:", {}, name.text);
        const XmlField* const known = XmlHooks::AttributeRow(*element.Class(), XmlName(name.text, name.length));
        const unsigned number = names.Intern(name);
        if (number == XmlNameTable::kNoMemory) return FailMemory();
        if (number + 1 != names.Count() || known != nullptr) {
            m_isChanged = true;  // Whether there are two is seen when the text is read.
        }
        const XmlSlice value = SliceOf(pair->mValue != nullptr ? pair->mValue : "");
        if (!Attribute(name, value)) return false;
    }
    return true;
}

bool XmlWriter::RestAttribute(const XmlRestItem& item) {
    const XmlSlice local = LocalOf(item.name);
    if (!XmlReader::IsName(local.text, local.length)) return Fail("is not the name of an attribute:", {}, item.name);
    XmlUri uri = 0;
    if (!UriOf(item.namespaceUri, uri) || !Put(" ")) return false;
    if (uri != 0) {
        const auto length = static_cast<std::size_t>(local.text - item.name);
        const XmlSlice wanted = length != 0 ? XmlSlice{const_cast<char*>(item.name), length - 1} : SliceOf("x");
        XmlSlice prefix;
        if (!PrefixOf(uri, XmlReader::IsName(wanted.text, wanted.length) ? wanted : SliceOf("x"), prefix)) return false;
        if (!Put(prefix) || !Put(":")) return false;
    }
    return Put(local) && Put("=\"") && Escaped(SliceOf(item.text), true) && Put("\"");
}

bool XmlWriter::Children(const XMLElement& element, const XmlFieldTable& table, const XmlSlice& name,
                         const Around& inside) {
    if (table.base != nullptr && !Children(element, *table.base, name, inside)) return false;
    for (std::size_t i = 0; i < table.count; ++i) {
        const XmlField& row = table.fields[i];
        if ((table.attributes >> i & 1) != 0 || IsAbsent(element, row)) continue;
        if (!Field(element, row, name, inside)) return false;
        if (row.takesTurns) ++i;
    }
    return true;
}

bool XmlWriter::Field(const XMLElement& element, const XmlField& row, const XmlSlice& name, const Around& inside) {
    const XmlRestItem* const run = NextOf(FirstOf(element), row);
    switch (row.role) {
        case XmlRole::OwnText: {
            XmlSlice text;
            bool isSet = false;
            if (!ValueText(element, row, text, isSet)) return Fail("has no text", name);
            if (isSet && !Escaped(text, false)) return false;
            return run == nullptr || Behind(run, inside);
        }
        case XmlRole::Element: {
            XmlSlice text;
            bool isSet = false;
            if (!ValueText(element, row, text, isSet)) return Fail("has no element", name, row.Name());
            if (isSet && !Value(row, run, text, inside)) return false;
            return run == nullptr || Behind(run, inside);
        }
        case XmlRole::Words: {
            const XmlRestItem* const given = Given(element, row);
            XmlArray<char> words;
            for (const char* const word : XmlEntries<const char>(XmlFields::List(element, row))) {
                if (word == nullptr) continue;
                if (words.Count() != 0 && !words.Add(' ')) return FailMemory();
                if (!words.Append(word, std::strlen(word))) return FailMemory();
            }
            const XmlSlice text = given != nullptr
                                      ? SliceOf(given->text)
                                      : XmlSlice{words.Count() != 0 ? words.Values() : nullptr, words.Count()};
            if (text.text != nullptr && !Value(row, run, text, inside)) return false;
            return run == nullptr || Behind(run, inside);
        }
        case XmlRole::Child:
        case XmlRole::OneOf: {
            const XMLElement* const child = XmlFields::Child(element, row);
            if (child == nullptr && row.mandatory && Given(element, row) == nullptr) {
                return Fail("has no element", name, row.Name());
            }
            if (child != nullptr && !Child(element, row, *child, inside)) return false;
            return run == nullptr || Behind(run, inside);
        }
        case XmlRole::Texts:
        case XmlRole::Children:
        case XmlRole::Mixed:
        case XmlRole::Others: {
            const bool isMissing = row.mandatory && !XmlFields::IsSet(element, row) && Given(element, row) == nullptr;
            return isMissing ? Fail("has no element", name, row.Name())
                             : List(element, row, row.takesTurns ? &row + 1 : nullptr, inside);
        }
        default:
            return true;
    }
}

bool XmlWriter::OpenList(const XMLElement& element, const XmlField& row, Entries& entries) {
    entries.row = &row;
    entries.node = ixNodesOf(XmlFields::List(element, row));
    entries.run = NextOf(FirstOf(element), row);
    for (const IxSingleElementNode* node = entries.node; node != nullptr && entries.run != nullptr; node = node->next) {
        const XmlSlice key = {reinterpret_cast<char*>(const_cast<void**>(&node->key)), sizeof node->key};
        if (entries.here.Intern(key) == XmlNameTable::kNoMemory) return FailMemory();
    }
    return true;
}

/// The next entry with what stands behind it. What stood behind one that has gone comes first.
bool XmlWriter::NextEntry(const XMLElement& element, Entries& entries, const Around& inside) {
    const IxSingleElementNode* const node = entries.node;
    const XmlField& row = *entries.row;
    entries.node = node->next;
    while (entries.run != nullptr) {
        const XmlSlice key = {reinterpret_cast<char*>(const_cast<void**>(&entries.run->entry)), sizeof node->key};
        if (entries.here.Find(key) != XmlNameTable::kNone) break;
        if (!LeaveRun(entries, inside)) return false;
    }
    if (node->key == nullptr) return true;
    // It will be deleted twice.
    if (node->next != nullptr && node->next->key == node->key) {
        return Fail("has an entry twice in the list", SliceOf(element.ClassName()), row.Name());
    }
    const bool isAbout = entries.run != nullptr && entries.run->entry == node->key;
    const bool isWritten =
        row.role == XmlRole::Texts
            ? Value(row, isAbout ? entries.run : nullptr, SliceOf(static_cast<const char*>(node->key)), inside)
            : Child(element, row, *static_cast<const XMLElement*>(node->key), inside);
    return isWritten && (!isAbout || LeaveRun(entries, inside));
}

/// Writes what stands behind an entry, and goes on to the next of which there is something.
bool XmlWriter::LeaveRun(Entries& entries, const Around& inside) {
    const XmlRestItem* const run = entries.run;
    if (!Behind(run, inside)) return false;
    while (IsOf(entries.run, *run)) entries.run = NextOf(entries.run->next, *entries.row);
    return true;
}

bool XmlWriter::CloseList(Entries& entries, const Around& inside) {
    while (entries.run != nullptr) {
        if (!LeaveRun(entries, inside)) return false;
    }
    return true;
}

/// @param other a list whose entries take turns with those of `row`; NULL: none.
bool XmlWriter::List(const XMLElement& element, const XmlField& row, const XmlField* other, const Around& inside) {
    Entries entries;
    Entries others;
    if (!OpenList(element, row, entries)) return false;
    if (other != nullptr && !OpenList(element, *other, others)) return false;
    while (entries.node != nullptr || others.node != nullptr) {
        if (entries.node != nullptr && !NextEntry(element, entries, inside)) return false;
        if (others.node != nullptr && !NextEntry(element, others, inside)) return false;
    }
    return CloseList(entries, inside) && CloseList(others, inside);
}

bool XmlWriter::Child(const XMLElement& parent, const XmlField& row, const XMLElement& child, const Around& inside) {
    Name name;
    if (IsFlag(child) && static_cast<const ix_empty_element_type&>(child).mPresent == 0) {
        ixLog(kSource, {3, "<XML Module>: XmlWriter: a flag of %s is not present, and not written"},
              parent.ClassName());
        return true;
    }
    if (child.Class() == nullptr || !NameOf(row, child, name)) {
        return Fail("has no place for an object of the class", SliceOf(parent.ClassName()), child.ClassName());
    }
    return Object(child, name, inside);
}

/// The element of a value. @param run what the rest has inside of it and behind it.
bool XmlWriter::Value(const XmlField& row, const XmlRestItem* run, const XmlSlice& text, const Around& inside) {
    XmlUri uri = row.ns == XmlNamespace::Parent ? inside.uri : ixUri(row.ns);
    const auto forAll = [&](XmlRestKind kind, const auto& call) {
        for (const XmlRestItem* item = run; item != nullptr && IsOf(item, *run); item = NextOf(item->next, row)) {
            if (item->isInside && item->kind == kind && !call(*item)) return false;
        }
        return true;
    };
    if (!forAll(XmlRestKind::Namespace, [&](const XmlRestItem& item) { return UriOf(item.namespaceUri, uri); })) {
        return false;
    }
    XmlUri defaultUri = inside.defaultUri;
    std::size_t nameAt = 0;
    std::size_t nameLength = 0;
    if (!Start(SliceOf(row.name), uri, defaultUri, nameAt, nameLength)) return false;
    const auto attribute = [&](const XmlRestItem& item) { return RestAttribute(item); };
    if (!forAll(XmlRestKind::Attribute, attribute) || !Put(">")) return false;
    const std::size_t content = m_text.Count();
    const auto piece = [&](const XmlRestItem& item) { return Piece(item, defaultUri); };
    return Escaped(text, false) && forAll(XmlRestKind::Element, piece) && Close(content, nameAt, nameLength);
}
