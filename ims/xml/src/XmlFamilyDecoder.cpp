#include "XmlFamilyDecoder.h"

#include <algorithm>
#include <cstring>

namespace {

/// `name` behind the prefix of `known`; NULL when it has another one, or none.
char* BehindPrefix(const XmlKnownName& known, char* name) {
    const char* expected = ix_xml_common_array_definition::getStringName(known.prefix);
    for (; *expected != '\0' && *name == *expected; ++expected) ++name;
    return *expected == '\0' && *name == ':' ? name + 1 : nullptr;
}

/// The first colon of a name, or its end. Names are short: not worth a call.
const char* FindColon(const char* name, const char* end) {
    while (name != end && *name != ':') ++name;
    return name;
}

/// Longer names go through the operations, whose results can be cut.
constexpr std::size_t kLongestPlain = 1000;

}  // namespace

XmlFamilyDecoder::XmlFamilyDecoder(const XmlDecoderInfo& info) : m_info(info) {
    const std::size_t built = m_namespaces.Build(info.namespaces, info.namespaceCount);
    if (built < info.namespaceCount) {
        ixLog(info.source, built == 0 ? info.texts.noFirstNamespace : info.texts.noNamespace);
    }
}

XmlFamilyDecoder::~XmlFamilyDecoder() {
    for (std::size_t i = 0; i < m_orphanCount; ++i) ixDelete(m_orphans[i]);
    __free(m_orphans);
}

int XmlFamilyDecoder::SetNameSpaceBinderInfo(XMLObject* binder) {
    m_namespaces.Bind(XmlNamespaceBinder::DeclarationsOf(binder));
    return 1;
}

int XmlFamilyDecoder::XMLChangeNamespaceTag(const char* tag) {
    m_pMappedTag = nullptr;
    return tag != nullptr ? MapPrefix(const_cast<char*>(tag), std::strlen(tag), nullptr) : 0;
}

/// @param known what the tokenizer knows of the name: a tag that stays as it is then needs no copy. The memory for one
/// is needed all the same. NULL: nothing.
int XmlFamilyDecoder::MapPrefix(char* tag, std::size_t length, const XmlElementName* known) {
    m_pMappedTag = nullptr;
    const bool isEnd = *tag == '/';
    if (!m_mappedText.Reserve(length + 2)) {
        ixLog(m_info.source, isEnd ? m_info.texts.changeEndTagNoMemory : m_info.texts.changeTagNoMemory);
        return 0;
    }
    const char* const name = isEnd ? tag + 1 : tag;
    const char* const end = tag + length;
    const char* const colon = known == nullptr           ? FindColon(name, end)
                              : known->prefixLength != 0 ? name + known->prefixLength - 1
                                                         : end;
    const auto ownLength = static_cast<std::size_t>(colon - name);
    const XmlNamespaceTable::Entry* const entry =
        colon != end ? m_namespaces.FindDocumentPrefix(name, ownLength) : nullptr;
    const char* const prefix = entry != nullptr ? entry->canonicalPrefix : "";
    const std::size_t prefixLength = std::strlen(prefix);
    if (prefixLength == 0 || (prefixLength == ownLength && std::memcmp(prefix, name, ownLength) == 0)) {
        m_pMappedTag = known != nullptr ? tag : m_mappedText.Text();
        if (known == nullptr) std::memcpy(m_pMappedTag, tag, length + 1);
        return 1;
    }
    const auto localSize = static_cast<std::size_t>(end - colon) + 1;
    if (!m_mappedText.Reserve(prefixLength + localSize + 2)) {
        ixLog(m_info.source, isEnd ? m_info.texts.mappedEndTagNoMemory : m_info.texts.mappedTagNoMemory);
        return 0;
    }
    char* to = m_mappedText.Text();
    if (isEnd) *to++ = '/';
    to = std::copy_n(prefix, prefixLength, to);
    std::memcpy(to, colon, localSize);
    m_pMappedTag = m_mappedText.Text();
    return 1;
}

int XmlFamilyDecoder::XMLRemoveNameSpaceTag(const char* tag) {
    m_pPassName = nullptr;
    if (tag != nullptr) return RemovePrefix(const_cast<char*>(tag), std::strlen(tag), nullptr);
    ixLog(m_info.source, m_info.texts.removeTagNoTag);
    return 0;
}

/// @param known as above.
int XmlFamilyDecoder::RemovePrefix(char* tag, std::size_t length, const XmlElementName* known) {
    m_pPassName = nullptr;
    std::size_t size = length + 2;
    // Required: some decoders count the size in 16 bits, so that of a name of 65534 characters and more only the
    // beginning is there. It is cut to its room, never written past it.
    if (m_info.wrapsNameSize) size = static_cast<std::uint16_t>(size);
    if (!m_passText.Reserve(size)) {
        ixLog(m_info.source, m_info.texts.removeTagNoMemory);
        return 0;
    }
    const bool isEnd = *tag == '/';
    if (known != nullptr && (known->prefixLength == 0 || !isEnd)) {
        m_pPassName = tag + known->prefixLength;
        return 1;
    }
    const char* const end = tag + (length < size ? length : size - (size != 0 ? 1 : 0));
    char* to = m_passText.Text();
    m_pPassName = to;
    const char* name = tag;
    if (isEnd && name != end) *to++ = *name++;
    const char* const colon = FindColon(name, end);
    if (colon != end) name = colon + 1;
    const auto localLength = static_cast<std::size_t>(end - name);
    std::memcpy(to, name, localLength);
    to[localLength] = '\0';
    return 1;
}

/// The name as the tables of the schema have it; NULL without memory.
/// @param known see `MapPrefix`.
char* XmlFamilyDecoder::ComparedName(char* element, std::size_t length, const XmlElementName* known) {
    switch (m_info.names) {
        case XmlNamePolicy::Mapped:
            MapPrefix(element, length, known);
            return m_pMappedTag;
        case XmlNamePolicy::Stripped:
            RemovePrefix(element, length, known);
            return m_pPassName;
        default:
            return element;
    }
}

/// The number of a name as it is compared.
/// @param known what the tokenizer knows of it as `element`; NULL: nothing.
XmlName XmlFamilyDecoder::ComparedNumber(const char* name, const char* element, const XmlElementName* known) const {
    if (known != nullptr && m_info.names == XmlNamePolicy::Stripped) return known->local;
    if (known != nullptr && name == element) return known->whole;
    if (*name == '/') ++name;
    return {name, std::strlen(name)};
}

std::size_t XmlFamilyDecoder::LengthOf(const char* name) const {
    return m_pTokenizer != nullptr ? m_pTokenizer->LengthOf(name) : std::strlen(name);
}

int XmlFamilyDecoder::ProcessElement(char* element, char* text) {
    if (element == nullptr) {
        ixLog(m_info.source, m_info.texts.noElement);
        return -1;
    }
    m_started.isOpen = false;
    m_started.row = nullptr;
    m_started.own = nullptr;
    const std::size_t length = LengthOf(element);
    const XmlElementName* known = m_pTokenizer != nullptr ? m_pTokenizer->ElementOf(element) : nullptr;
    if (length > kLongestPlain) known = nullptr;
    // Where names are compared with their prefix, the local name is at hand as well.
    const bool ready = m_info.names != XmlNamePolicy::Mapped || RemovePrefix(element, length, known) != 0;
    char* const name = ready ? ComparedName(element, length, known) : nullptr;
    if (name == nullptr) {
        m_pPassName = nullptr;
        m_pMappedTag = nullptr;
        ixLog(m_info.source, m_info.texts.noElementName);
        return -1;
    }
    const bool isEnd = *name == '/';
    const XmlTag tag(name, isEnd, ComparedNumber(name, element, known));
    if (isEnd) return EndElement(tag, text);
    KeepStarted(element, length);
    return StartElement(tag);
}

void XmlFamilyDecoder::KeepStarted(const char* element, std::size_t length) {
    m_started.reported = IsReported(element) ? element : nullptr;
    m_started.isOpen = m_started.reported != nullptr || m_started.name.Reserve(length + 1);
    if (m_started.isOpen && m_started.reported == nullptr) {
        std::memcpy(m_started.name.Text(), element, length + 1);
    }
}

/// True when `element` is the name of the last start tag. The tokenizer reports both of one text. Other callers may use
/// one buffer for all names: there it is judged by its characters.
bool XmlFamilyDecoder::IsStarted(const char* element, const char* attribute) const {
    if (!m_started.isOpen) return false;
    if (m_started.reported != nullptr) return m_started.reported == element && IsReported(attribute);
    return std::strcmp(m_started.name.Text(), element) == 0;
}

int XmlFamilyDecoder::ProcessAttribute(char* element, char* attribute, char* value) {
    if (element == nullptr || attribute == nullptr) {
        ixLog(m_info.source, m_info.texts.noAttribute);
        return -1;
    }
    // White space at the end of a tag arrives as an attribute without a name.
    if (*attribute == '\0') return 0;
    const XmlContainerRow* row = m_started.row;
    if (!IsStarted(element, attribute)) {
        char* const name = ComparedName(element, std::strlen(element), nullptr);
        if (name == nullptr) {
            ixLog(m_info.source, m_info.texts.noAttributeName);
            return -1;
        }
        XmlTag local(name);
        row = FindContainer(XmlTag(name), local);
    }
    const XmlAttributePolicy policy = m_info.attributes;
    XMLElement* const receiver = policy == XmlAttributePolicy::Top ? Top() : m_started.own;
    if (receiver == nullptr) return 0;
    const XmlTag tag(attribute, false, XmlName(attribute, LengthOf(attribute)));
    const XmlField* const known = KnownRow(row, *receiver, tag.name);
    if (known != nullptr) return value != nullptr ? KnownAttribute(*receiver, *known, tag, value) : 0;
    if (policy == XmlAttributePolicy::OwnNoPairs) return 0;
    if (policy == XmlAttributePolicy::RootPairs && (row == nullptr || row->role != XmlContainerRow::Root)) return 0;
    return OtherAttribute(*receiver, tag, value);
}

/// The row of `receiver` for `attribute`; NULL: there is none, or it does not stand for the element of `row`. Only a
/// root drops attributes.
const XmlField* XmlFamilyDecoder::KnownRow(const XmlContainerRow* row, const XMLElement& receiver, XmlName attribute) {
    if (row == nullptr || row->made != receiver.Class()) return nullptr;
    const XmlField* const known = XmlHooks::AttributeRow(*row->made, attribute);
    const bool isKept = known == nullptr || known->role != XmlRole::Dropped || row->role == XmlContainerRow::Root;
    return isKept ? known : nullptr;
}

int XmlFamilyDecoder::ProcessEndOfStartTag(char* /*element*/) { return 0; }

/// The first row of a local name, in the schema's own table or in the one that it shares; NULL: there is none.
const XmlContainerRow* XmlFamilyDecoder::FirstRow(XmlName local) const {
    if (!local.IsKnown() || m_info.containers.firstOf == nullptr) return nullptr;
    const unsigned own = m_info.containers.firstOf[local.number];
    if (own != 0) return &m_info.containers.rows[own - 1];
    const unsigned shared = m_info.shared != nullptr ? m_info.shared->firstOf[local.number] : 0;
    return shared != 0 ? &m_info.shared->rows[shared - 1] : nullptr;
}

/// The row of the same name behind `row`; NULL: it was the last one.
const XmlContainerRow* XmlFamilyDecoder::NextRow(const XmlContainerRow* row) const {
    const XmlContainerTable& own = m_info.containers;
    const bool isOwn = row >= own.rows && row < own.rows + own.count;
    const XmlContainerRow* const end = isOwn ? own.rows + own.count : m_info.shared->rows + m_info.shared->count;
    return row + 1 != end && row[1].name.local == row->name.local ? row + 1 : nullptr;
}

/// True when the tag is that of `row`. @param local out: the tag as it is offered, without the prefix.
bool XmlFamilyDecoder::Matches(const XmlContainerRow& row, const XmlTag& tag, XmlTag& local) {
    const XmlKnownName& known = row.name;
    if (known.use != XmlKnownName::Required && known.local == tag.name) {
        local = tag;
        return true;
    }
    if (known.use == XmlKnownName::None) return false;
    char* const name = tag.text + (tag.isEnd ? 1 : 0);
    char* const behind = BehindPrefix(known, name);
    if (behind == nullptr) return false;
    local = XmlTag(behind, tag.isEnd, known.local);
    return std::strcmp(behind, known.local.Text()) == 0;
}

/// The first row that a tag can belong to, by what stands behind its prefix, if it has one.
const XmlContainerRow* XmlFamilyDecoder::FirstRow(const XmlTag& tag) const {
    if (tag.name.IsKnown()) return FirstRow(tag.name);
    const char* const colon = std::strchr(tag.text, ':');
    return colon != nullptr ? FirstRow(XmlName(colon + 1, std::strlen(colon + 1))) : nullptr;
}

/// The row of a start tag. @param local out: the tag without its prefix.
const XmlContainerRow* XmlFamilyDecoder::FindContainer(const XmlTag& tag, XmlTag& local) const {
    for (const XmlContainerRow* row = FirstRow(tag); row != nullptr; row = NextRow(row)) {
        if (!Matches(*row, tag, local)) continue;
        if (row->parent == nullptr || ixIsClass(Top(), *row->parent)) return row;
    }
    return nullptr;
}

int XmlFamilyDecoder::StartElement(const XmlTag& tag) {
    XmlTag local = tag;
    const XmlContainerRow* const row = FindContainer(tag, local);
    m_started.row = row;
    if (row == nullptr) return OtherElement(tag, nullptr);
    const bool isResult = IsResult(*row);
    if (!isResult && m_stack.empty()) return 0;
    const int line = row->line != 0 ? row->line : m_info.pairLine;
    XMLElement* const object =
        row->make != nullptr ? row->make(local.text, m_info.source, line) : row->made->create(m_info.source, line);
    if (object == nullptr) {
        ixLog(m_info.source, m_info.texts.noObject, tag.text);
        return 0;
    }
    if (isResult ? !SetSessionData(object) : !Offer(*Top(), local, object)) return 0;
    if (row->role != XmlContainerRow::Leaf || isResult) Push(object);
    return 0;
}

int XmlFamilyDecoder::EndElement(const XmlTag& tag, char* text) {
    bool isContainer = false;
    bool offered = false;
    XmlTag local = tag;
    for (const XmlContainerRow* row = FirstRow(tag); row != nullptr; row = NextRow(row)) {
        if (!Matches(*row, tag, local)) continue;
        isContainer = true;
        // Where a name stands for objects of several classes, the class on top says which one ends.
        if (EndContainer(*row, tag, text, offered)) return 0;
    }
    return isContainer ? 0 : OtherElement(tag, text);
}

/// @param offered in and out: the text was offered. @return true when an object was popped.
bool XmlFamilyDecoder::EndContainer(const XmlContainerRow& row, const XmlTag& tag, char* text, bool& offered) {
    if (row.role == XmlContainerRow::Leaf) return false;
    if (row.role == XmlContainerRow::Text && !offered) {
        OtherElement(tag, text);
        offered = true;
    }
    if (!row.endsAnything) {
        const char* const expected = row.endsAs != nullptr ? row.endsAs : row.made->name;
        const char* const own = Top() != nullptr ? Top()->ClassName() : nullptr;
        if (own == nullptr || (own != expected && std::strcmp(own, expected) != 0)) return false;
    }
    m_stack.pop();
    return true;
}

int XmlFamilyDecoder::OtherElement(const XmlTag& tag, char* text) {
    XMLElement* const top = Top();
    if (top != nullptr) XmlHooks::OfferTo(*top, tag, text, nullptr);
    return 0;
}

int XmlFamilyDecoder::KnownAttribute(XMLElement& receiver, const XmlField& row, const XmlTag& attribute, char* value) {
    if (receiver.Class()->takesAttributesByRows) {
        XmlHooks::TakeAttribute(receiver, row, value);
    } else {
        receiver.ProcessUnMarshallAttribute(attribute.text, value, nullptr);
    }
    return 0;
}

int XmlFamilyDecoder::OtherAttribute(XMLElement& receiver, const XmlTag& attribute, char* value) {
    ix_AttributeValuePair* const pair = ixCreatePair(attribute.text, value, m_info.source, m_info.pairLine);
    if (pair == nullptr) {
        ixLog(m_info.source, m_info.texts.noPair, attribute.text);
        ixLog(m_info.source, m_info.texts.noPairOf, m_info.names == XmlNamePolicy::Mapped ? m_pMappedTag : m_pPassName);
        return 0;
    }
    const XmlAnswer answer = XmlHooks::OfferAttributeTo(receiver, attribute, value, pair);
    if (answer == XmlAnswer::Refused) ixLog(m_info.source, m_info.texts.pairRefused, attribute.text);
    if (answer != XmlAnswer::Taken) ixDelete(pair);
    return 0;
}

void XmlFamilyDecoder::Push(XMLElement* object) {
    m_stack.push(object);
    m_started.own = Top() == object ? object : nullptr;
}

void XmlFamilyDecoder::Pop(const XmlClass& description) {
    if (ixIsClass(Top(), description)) m_stack.pop();
}

bool XmlFamilyDecoder::SetSessionData(XMLElement* root) {
    // An earlier root may still be on the stack, so it can go only with the decoder.
    if (m_pSessionData != nullptr && !KeepOrphan(m_pSessionData)) {
        ixDelete(root);
        return false;
    }
    m_pSessionData = root;
    return true;
}

bool XmlFamilyDecoder::Offer(XMLElement& receiver, const XmlTag& tag, XMLElement* object) {
    const XmlAnswer answer = XmlHooks::OfferTo(receiver, tag, nullptr, object);
    if (answer == XmlAnswer::Taken || (answer == XmlAnswer::Ignored && KeepOrphan(object))) return true;
    if (Top() == object) m_stack.pop();
    m_started.own = nullptr;
    ixDelete(object);
    return false;
}

/// Remembers an object that no tree owns. @return false without memory.
bool XmlFamilyDecoder::KeepOrphan(XMLElement* object) {
    if (m_orphanCount == m_orphanSize) {
        const std::size_t size = m_orphanSize == 0 ? 8 : 2 * m_orphanSize;
        auto* const grown = static_cast<XMLElement**>(__malloc(size * sizeof(XMLElement*)));
        if (grown == nullptr) return false;
        if (m_orphanCount != 0) std::memcpy(grown, m_orphans, m_orphanCount * sizeof(XMLElement*));
        __free(m_orphans);
        m_orphans = grown;
        m_orphanSize = size;
    }
    m_orphans[m_orphanCount++] = object;
    return true;
}
