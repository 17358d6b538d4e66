#include "XmlOldFamily.h"

#include <climits>
#include <cstring>

#include "XMLFile.h"
#include "XmlElementSupport.h"
#include "XmlFields.h"

namespace {

const IxSingleElementList* NamespacesOf(XMLObject* binder) { return XmlNamespaceBinder::DeclarationsOf(binder); }

/// Copies the rows of a schema and logs where the copy ended short.
void BuildNamespaces(XmlNamespaceTable& table, const XmlNamespaceRow* rows, std::size_t count, const char* source,
                     const XmlLogText& noFirst, const XmlLogText& noLater) {
    const std::size_t built = table.Build(rows, count);
    if (built < count) ixLog(source, built == 0 ? noFirst : noLater);
}

/// The rows of a decoder and those that it shares, as one table. NULL: behind its end.
const XmlOldContainerRow* ContainerAt(const XmlOldDecoderInfo& decoder, std::size_t row) {
    const XmlOldDecoderInfo* info = &decoder;
    for (; info != nullptr && row >= info->containerCount; info = info->shared) row -= info->containerCount;
    return info != nullptr ? &info->containers[row] : nullptr;
}

const XmlOldAttributeRow* AttributeAt(const XmlOldDecoderInfo& decoder, std::size_t row) {
    const XmlOldDecoderInfo* info = &decoder;
    for (; info != nullptr && row >= info->attributeCount; info = info->shared) row -= info->attributeCount;
    return info != nullptr ? &info->attributes[row] : nullptr;
}

}  // namespace

/// `name` without the prefix, when it has it, and NULL when it must have it and has not.
char* XmlOldKnownName::BehindPrefix(char* name) const {
    const char* expected = ix_xml_common_array_definition::getStringName(prefix);
    char* behind = name;
    for (; *expected != '\0' && *behind == *expected; ++expected) ++behind;
    if (*expected == '\0' && *behind == ':') return behind + 1;
    return use == Required ? nullptr : name;
}

void XmlOldRowIndex::Add(std::size_t row, const XmlOldKnownName& name, unsigned other) {
    if (row >= kBits) return;
    if (name.use != XmlOldKnownName::Required) Add(row, Key(name.Local()) + other);
    if (name.use == XmlOldKnownName::None) return;
    const char* const prefix = ix_xml_common_array_definition::getStringName(name.prefix);
    Add(row, Key(prefix[0], prefix[1] != '\0' ? prefix[1] : ':') + other);
}

XmlOldFamilyDecoder::XmlOldFamilyDecoder(const XmlOldDecoderInfo& info) : m_info(info) {
    const XmlOldContainerRow* container = nullptr;
    for (std::size_t i = 0; (container = ContainerAt(info, i)) != nullptr; ++i) m_containers.Add(i, container->name);
    const XmlOldAttributeRow* attribute = nullptr;
    for (std::size_t i = 0; (attribute = AttributeAt(info, i)) != nullptr; ++i) {
        m_attributes.Add(i, attribute->element,
                         XmlOldRowIndex::Key(ix_xml_common_array_definition::getStringName(attribute->attribute)));
    }
    BuildNamespaces(m_namespaces, info.namespaces, info.namespaceCount, info.source, info.texts.noFirstNamespace,
                    info.texts.noNamespace);
}

XmlOldFamilyDecoder::~XmlOldFamilyDecoder() {
    for (std::size_t i = 0; i < m_orphanCount; ++i) IX_DELETE(m_orphans[i]);
    __free(m_orphans);
}

int XmlOldFamilyDecoder::SetNameSpaceBinderInfo(XMLObject* binder) {
    m_namespaces.Bind(NamespacesOf(binder));
    return 1;
}

int XmlOldFamilyDecoder::XMLChangeNamespaceTag(const char* tag) {
    m_pMappedTag = nullptr;
    m_pStarted = nullptr;
    if (tag == nullptr) return 0;
    const bool isEnd = *tag == '/';
    const std::size_t length = std::strlen(tag);
    if (!m_mappedText.Reserve(length + 2)) {
        ixLog(m_info.source, isEnd ? m_info.texts.changeEndTagNoMemory : m_info.texts.changeTagNoMemory);
        return 0;
    }
    const char* const name = isEnd ? tag + 1 : tag;
    const char* const colon = std::strchr(name, ':');
    const XmlNamespaceTable::Entry* const entry =
        colon != nullptr ? m_namespaces.FindDocumentPrefix(name, static_cast<std::size_t>(colon - name)) : nullptr;
    if (entry == nullptr || *entry->canonicalPrefix == '\0') {
        std::memcpy(m_mappedText.Text(), tag, length + 1);
        m_pMappedTag = m_mappedText.Text();
        return 1;
    }
    const std::size_t prefixLength = std::strlen(entry->canonicalPrefix);
    const std::size_t localSize = std::strlen(colon) + 1;
    if (!m_mappedText.Reserve(prefixLength + localSize + 2)) {
        ixLog(m_info.source, isEnd ? m_info.texts.mappedEndTagNoMemory : m_info.texts.mappedTagNoMemory);
        return 0;
    }
    char* to = m_mappedText.Text();
    if (isEnd) *to++ = '/';
    std::memcpy(to, entry->canonicalPrefix, prefixLength);
    std::memcpy(to + prefixLength, colon, localSize);
    m_pMappedTag = m_mappedText.Text();
    return 1;
}

int XmlOldFamilyDecoder::XMLRemoveNameSpaceTag(const char* tag) {
    m_pPassName = nullptr;
    m_pStarted = nullptr;
    if (tag == nullptr) {
        ixLog(m_info.source, m_info.texts.removeTagNoTag);
        return 0;
    }
    const std::size_t length = std::strlen(tag);
    std::size_t size = length + 2;
    // Required: some decoders count the size in 16 bits, so that of a name of 65534 characters and more only the
    // beginning is there. It is cut to its room, never written past it.
    if (m_info.wrapsNameSize) size = static_cast<std::uint16_t>(size);
    if (!m_passText.Reserve(size)) {
        ixLog(m_info.source, m_info.texts.removeTagNoMemory);
        return 0;
    }
    const char* const end = tag + (length < size ? length : size - (size != 0 ? 1 : 0));
    char* to = m_passText.Text();
    if (*tag == '/' && tag != end) *to++ = *tag++;
    const void* const colon = std::memchr(tag, ':', static_cast<std::size_t>(end - tag));
    if (colon != nullptr) tag = static_cast<const char*>(colon) + 1;
    std::memcpy(to, tag, static_cast<std::size_t>(end - tag));
    to[end - tag] = '\0';
    m_pPassName = m_passText.Text();
    return 1;
}

/// The name as the tables of the schema have it; NULL without memory.
char* XmlOldFamilyDecoder::ComparedName(char* element) {
    switch (m_info.names) {
        case XmlOldNamePolicy::Mapped:
            XMLChangeNamespaceTag(element);
            return m_pMappedTag;
        case XmlOldNamePolicy::Stripped:
            XMLRemoveNameSpaceTag(element);
            return m_pPassName;
        default:
            return element;
    }
}

/// `ComparedName` for the attributes of a start tag. They come with the very name that the start tag came with, so what
/// that was compared as is at hand.
char* XmlOldFamilyDecoder::NameOfAttributes(char* element) {
    return element == m_pStarted ? m_pStartedName : ComparedName(element);
}

int XmlOldFamilyDecoder::ProcessElement(char* element, char* text) {
    if (element == nullptr) {
        ixLog(m_info.source, m_info.texts.noElement);
        return -1;
    }
    // Where names are compared with their prefix, the local name is at hand as well.
    const bool ready = m_info.names != XmlOldNamePolicy::Mapped || XMLRemoveNameSpaceTag(element) != 0;
    char* const name = ready ? ComparedName(element) : nullptr;
    if (name == nullptr) {
        m_pPassName = nullptr;
        m_pMappedTag = nullptr;
        ixLog(m_info.source, m_info.texts.noElementName);
        return -1;
    }
    m_pOwn = nullptr;
    const bool isEnd = *name == '/';
    m_pStarted = isEnd ? nullptr : element;
    m_pStartedName = name;
    return isEnd ? EndElement(name, text) : StartElement(name);
}

int XmlOldFamilyDecoder::ProcessAttribute(char* element, char* attribute, char* value) {
    if (element == nullptr || attribute == nullptr) {
        ixLog(m_info.source, m_info.texts.noAttribute);
        return -1;
    }
    // White space at the end of a tag arrives as an attribute without a name.
    if (*attribute == '\0') return 0;
    char* const name = NameOfAttributes(element);
    if (name == nullptr) {
        ixLog(m_info.source, m_info.texts.noAttributeName);
        return -1;
    }
    if (m_stack.empty()) return 0;
    const XmlOldAttributePolicy policy = m_info.attributePolicy;
    if (policy == XmlOldAttributePolicy::AsElements) {
        Top()->ProcessUnMarshall(attribute, value, nullptr);
        return 0;
    }
    const bool toTop = policy == XmlOldAttributePolicy::Top || policy == XmlOldAttributePolicy::TopTwice;
    XMLElement* const receiver = toTop ? Top() : m_pOwn;
    if (receiver == nullptr) return 0;
    const XmlOldAttributeRow* const known = FindAttribute(name, attribute, receiver);
    if (known != nullptr) {
        if (value != nullptr && !known->ignored) receiver->ProcessUnMarshallAttribute(attribute, value, nullptr);
        if (policy != XmlOldAttributePolicy::TopTwice) return 0;
    }
    if (policy == XmlOldAttributePolicy::OwnNoPairs) return 0;
    if (policy == XmlOldAttributePolicy::RootPairs && !m_bOwnIsRoot) return 0;
    return OtherAttribute(*receiver, attribute, value);
}

int XmlOldFamilyDecoder::ProcessEndOfStartTag(char* /*element*/) { return 0; }

/// The row of a start tag. @param local out: the local part of its name.
const XmlOldContainerRow* XmlOldFamilyDecoder::FindContainer(char* name, char** local) const {
    const unsigned key = XmlOldRowIndex::Key(name);
    const XmlOldContainerRow* row = nullptr;
    for (std::size_t i = 0; (row = ContainerAt(m_info, i = m_containers.Next(key, i))) != nullptr; ++i) {
        *local = row->name.LocalPartOf(name);
        if (*local == nullptr) continue;
        if (row->parentClass == nullptr || (!m_stack.empty() && ixIsClass(Top(), row->parentClass))) return row;
    }
    return nullptr;
}

const XmlOldAttributeRow* XmlOldFamilyDecoder::FindAttribute(char* element, const char* attribute,
                                                             const XMLElement* receiver) const {
    const unsigned key = XmlOldRowIndex::Key(element) + XmlOldRowIndex::Key(attribute);
    const XmlOldAttributeRow* row = nullptr;
    for (std::size_t i = 0; (row = AttributeAt(m_info, i = m_attributes.Next(key, i))) != nullptr; ++i) {
        if (!ixNameIs(attribute, row->attribute) || !row->element.Matches(element)) continue;
        if (row->className == nullptr || ixIsClass(receiver, row->className)) return row;
    }
    return nullptr;
}

int XmlOldFamilyDecoder::StartElement(char* name) {
    char* local = nullptr;
    const XmlOldContainerRow* const row = FindContainer(name, &local);
    if (row == nullptr) return OtherElement(name, nullptr);
    const bool isRoot = row->role == XmlOldContainerRow::Root;
    // Where a part of a document may be the result, a root inside another one is a part like any other.
    const bool isResult = m_info.takesFragments ? m_stack.empty() : isRoot;
    if (!isResult && m_stack.empty()) return 0;
    XMLElement* const object = row->create(name, m_info.source);
    if (object == nullptr) {
        ixLog(m_info.source, m_info.texts.noObject, name);
        return 0;
    }
    if (isResult ? !SetSessionData(object) : !Offer(*Top(), local, object)) return 0;
    if (row->role == XmlOldContainerRow::Leaf && !isResult) return 0;
    Push(object);
    m_bOwnIsRoot = isRoot;
    return 0;
}

int XmlOldFamilyDecoder::EndElement(char* name, char* text) {
    bool isContainer = false;
    bool offered = false;
    const unsigned key = XmlOldRowIndex::Key(name + 1);
    const XmlOldContainerRow* row = nullptr;
    for (std::size_t i = 0; (row = ContainerAt(m_info, i = m_containers.Next(key, i))) != nullptr; ++i) {
        if (!row->name.Matches(name + 1)) continue;
        isContainer = true;
        // Where a name stands for objects of several classes, the class on top says which one ends.
        if (EndContainer(*row, name, text, offered)) return 0;
    }
    return isContainer ? 0 : OtherElement(name, text);
}

/// @param offered in and out: the text was offered. @return true when an object was popped.
bool XmlOldFamilyDecoder::EndContainer(const XmlOldContainerRow& row, char* name, char* text, bool& offered) {
    if (row.role == XmlOldContainerRow::Leaf) return false;
    if (row.role == XmlOldContainerRow::Text && !offered) {
        OtherElement(name, text);
        offered = true;
    }
    if (row.className != nullptr && (m_stack.empty() || !ixIsClass(Top(), row.className))) return false;
    m_stack.pop();
    return true;
}

int XmlOldFamilyDecoder::OtherElement(char* name, char* text) {
    XMLElement* const top = Top();
    if (top != nullptr) top->ProcessUnMarshall(m_info.handsOnLocalNames ? m_pPassName : name, text, nullptr);
    return 0;
}

int XmlOldFamilyDecoder::OtherAttribute(XMLElement& receiver, char* attribute, char* value) {
    ix_AttributeValuePair* const pair = ixCreatePair(attribute, value, m_info.source, m_info.pairLine);
    if (pair == nullptr) {
        ixLog(m_info.source, m_info.texts.noPair, attribute);
        ixLog(m_info.source, m_info.texts.noPairOf,
              m_info.names == XmlOldNamePolicy::Mapped ? m_pMappedTag : m_pPassName);
        return 0;
    }
    const bool taken = receiver.ProcessUnMarshallAttribute(attribute, value, pair) != 0;
    if (!taken) ixLog(m_info.source, m_info.texts.pairRefused, attribute);
    if (!taken || !XmlFields::HoldsAttribute(receiver, pair)) IX_DELETE(pair);
    return 0;
}

void XmlOldFamilyDecoder::Push(XMLElement* object) {
    m_stack.push(object);
    m_pOwn = Top() == object ? object : nullptr;
    m_bOwnIsRoot = false;
}

void XmlOldFamilyDecoder::Pop(const char* className) {
    if (!m_stack.empty() && ixIsClass(Top(), className)) m_stack.pop();
}

bool XmlOldFamilyDecoder::SetSessionData(XMLElement* root) {
    // An earlier root may still be on the stack, so it can go only with the decoder.
    if (m_pSessionData != nullptr && !KeepOrphan(m_pSessionData)) {
        IX_DELETE(root);
        return false;
    }
    m_pSessionData = root;
    return true;
}

bool XmlOldFamilyDecoder::Offer(XMLElement& receiver, char* name, XMLElement* object) {
    const bool taken = receiver.ProcessUnMarshall(name, nullptr, object) != 0;
    if (taken && (XmlFields::HoldsChild(receiver, object) || KeepOrphan(object))) return true;
    if (Top() == object) m_stack.pop();
    m_pOwn = nullptr;
    IX_DELETE(object);
    return false;
}

/// Remembers an object that no tree owns. @return false without memory.
bool XmlOldFamilyDecoder::KeepOrphan(XMLElement* object) {
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

XMLElement* XmlOldFamilyUnMarshaller::UnMarshall(const char* text) {
    if (text == nullptr) return nullptr;
    const XmlOldUnMarshallerInfo& info = Info();
    ixLog(info.source, info.textEntered, text);
    char* const copy = __strdup(text);
    if (copy == nullptr) {
        ixLog(info.source, info.noCopy);
        return nullptr;
    }
    ixLog(info.source, info.textCopied, copy);
    bool complete = false;
    XMLElement* const root = Decode(copy, info.textTokenizerLine, info.textDecoderLine, m_pNamespaceBinder, complete);
    __free(copy);
    return root;
}

XMLElement* XmlOldFamilyUnMarshaller::UnMarshall(XMLFile* file) {
    const char* const text = file != nullptr ? file->Read() : nullptr;
    if (text == nullptr) return nullptr;
    const XmlOldUnMarshallerInfo& info = Info();
    ixLog(info.source, info.fileEntered, text);
    bool complete = false;
    return Decode(text, info.fileTokenizerLine, info.fileDecoderLine, m_pNamespaceBinder, complete);
}

XMLElement* XmlOldFamilyUnMarshaller::Decode(const char* text, int tokenizerLine, int decoderLine, XMLObject* binder,
                                             bool& complete) {
    const XmlOldUnMarshallerInfo& info = Info();
    XmlDecoder* const tokenizer = IX_TRACKED_NEW(kSchemaModule, info.source, tokenizerLine, XmlDecoder, ());
    XmlOldFamilyDecoder* const decoder = info.createDecoder(decoderLine);
    XMLElement* root = nullptr;
    complete = false;
    if (tokenizer != nullptr && decoder != nullptr) {
        if (binder != nullptr) decoder->SetNameSpaceBinderInfo(binder);
        tokenizer->SetSchemaDecoder(decoder);
        const std::size_t length = __strlen(text);
        complete = length <= INT_MAX && tokenizer->Decode(text, static_cast<int>(length)) == IX_XML_SUCCESS;
        ixLog(info.source, complete ? info.decoded : info.notDecoded);
        // Required: the tree of a document that could not be decoded to its end is left to nobody, and not freed here.
        if (complete) root = decoder->GetSessionData();
    }
    IX_DELETE(decoder);
    IX_DELETE(tokenizer);
    return root;
}

XmlOldFamilyMarshaller::XmlOldFamilyMarshaller(const XmlOldMarshallerInfo& info) : m_info(info) {
    BuildNamespaces(m_namespaces, info.namespaces, info.namespaceCount, info.source, info.noFirstNamespace,
                    info.noNamespace);
}

XmlOldFamilyMarshaller::~XmlOldFamilyMarshaller() { __free(m_pXml); }

int XmlOldFamilyMarshaller::SetNameSpaceBinderInfo(XMLObject* binder) {
    return m_namespaces.Bind(NamespacesOf(binder)) ? 1 : 0;
}

char* XmlOldFamilyMarshaller::Marshall(XMLElement* root) {
    if (m_info.entersFirst) ixLog(m_info.source, m_info.entered);
    if (root == nullptr) {
        ixLog(m_info.source, m_info.noRoot);
        return nullptr;
    }
    if (root->ClassName() == nullptr) {
        ixLog(m_info.source, m_info.noClassName);
        return nullptr;
    }
    if (!m_info.entersFirst && !m_info.deletesFirst) ixLog(m_info.source, m_info.entered);
    if (m_pXml != nullptr) {
        ixLog(m_info.source, m_info.deleting);
        __free(m_pXml);
        m_pXml = nullptr;
    }
    if (m_info.deletesFirst) ixLog(m_info.source, m_info.entered);
    m_bTruncated = false;
    m_bGivenUp = false;
    m_generator.ixInitXmlDoc();
    if (m_info.writesDeclaration) {
        m_generator.ixAddHeader(ix_xml_common_array_definition::getStringName(IX_STR_1_0),
                                ix_xml_common_array_definition::getStringName(IX_STR_UTF_8));
    }
    const int result = AddRootElementToXml(root) != 0 && !m_bGivenUp ? KeepGeneratedText() : 0;
    m_generator.ixDeInitXmlDoc();
    if (result == 0) {
        const XmlOldWriterRow* const row = FindWriter(root);
        ixLog(m_info.source, row != nullptr && row->failed.format != nullptr ? row->failed : m_info.failed);
        return nullptr;
    }
    ixLog(m_info.source, m_info.written, m_pXml);
    return m_pXml;
}

const XmlOldWriterRow* XmlOldFamilyMarshaller::FindWriter(const XMLElement* root) const {
    for (std::size_t i = 0; i < m_info.writerCount; ++i) {
        if (ixIsClass(root, m_info.writers[i].className)) return &m_info.writers[i];
    }
    return nullptr;
}

int XmlOldFamilyMarshaller::AddRootElementToXml(XMLElement* root) {
    const XmlOldWriterRow* const row = FindWriter(root);
    return row != nullptr ? row->write(*this, root) : 0;
}

/// Copies the generator's text. Without a declaration, the line feed in front of the root element is left out.
int XmlOldFamilyMarshaller::KeepGeneratedText() {
    const char* text = m_generator.Text();
    if (text == nullptr) return 0;
    const std::size_t left = !m_info.writesDeclaration && *text != '\0' ? 1 : 0;
    const std::size_t size = m_generator.Length() + 1 - left;
    m_bTruncated = m_generator.IsTruncated();
    m_pXml = static_cast<char*>(__malloc(size));
    if (m_pXml == nullptr) return 0;
    std::memcpy(m_pXml, text + left, size);
    return 1;
}

void XmlOldFamilyMarshaller::StartElement(e_XmlStrRef name) {
    m_generator.ixStartElement(ix_xml_common_array_definition::getStringName(name), 0);
}

void XmlOldFamilyMarshaller::StartElementOpen(e_XmlStrRef name) {
    m_generator.ixStartElement(ix_xml_common_array_definition::getStringName(name), 1);
}

void XmlOldFamilyMarshaller::EndElement(e_XmlStrRef name) {
    m_generator.ixEndXmlElement(ix_xml_common_array_definition::getStringName(name));
}

void XmlOldFamilyMarshaller::AddTextElement(e_XmlStrRef name, const char* text) {
    if (text != nullptr) AddTextOrEmptyElement(name, text);
}

void XmlOldFamilyMarshaller::AddTextOrEmptyElement(e_XmlStrRef name, const char* text) {
    StartElement(name);
    if (text != nullptr) m_generator.ixXmlSetData(text);
    EndElement(name);
}

void XmlOldFamilyMarshaller::AddDecimalElement(e_XmlStrRef name, std::int64_t value) {
    char digits[32];
    AddTextElement(name, __itoaL(value, digits, sizeof digits, 10));
}

void XmlOldFamilyMarshaller::AddAttribute(e_XmlStrRef name, const char* value, Attribute end) {
    m_generator.ixAddNameSpacePrefixToXml(ix_xml_common_array_definition::getStringName(name), value, nullptr,
                                          end == Attribute::SelfClosing ? 1 : 0, end == Attribute::Closing ? 1 : 0);
}

void XmlOldFamilyMarshaller::AddPrefixedAttribute(e_XmlStrRef name, e_XmlStrRef prefix, const char* value,
                                                  Attribute end) {
    m_generator.ixAddNameSpacePrefixToXml(ix_xml_common_array_definition::getStringName(name), value,
                                          ix_xml_common_array_definition::getStringName(prefix),
                                          end == Attribute::SelfClosing ? 1 : 0, end == Attribute::Closing ? 1 : 0);
}

void XmlOldFamilyMarshaller::AddDecimalAttribute(e_XmlStrRef name, std::int64_t value, Attribute end) {
    char digits[32];
    AddAttribute(name, __itoaL(value, digits, sizeof digits, 10), end);
}

void XmlOldFamilyMarshaller::AddOnlyAttribute(e_XmlStrRef name, const char* value, Attribute end) {
    m_generator.ixStartAttribute(ix_xml_common_array_definition::getStringName(name), value, 0,
                                 end == Attribute::SelfClosing ? 1 : 0, end == Attribute::Closing ? 1 : 0);
}

const ix_AttributeValuePair* XmlOldFamilyMarshaller::LastAttribute(const IxSingleElementList* list) {
    const ix_AttributeValuePair* last = nullptr;
    for (const auto* const pair : XmlEntries<ix_AttributeValuePair>(list)) {
        if (pair != nullptr && pair->mName != nullptr) last = pair;
    }
    return last;
}

void XmlOldFamilyMarshaller::AddAttributeList(const IxSingleElementList* list, Attribute end) {
    const ix_AttributeValuePair* const last = LastAttribute(list);
    if (last == nullptr) return;
    for (const auto* const pair : XmlEntries<ix_AttributeValuePair>(list)) {
        if (pair == nullptr) continue;
        const Attribute ending = pair == last ? end : Attribute::Open;
        m_generator.ixAddNameSpacePrefixToXml(pair->mName, pair->mValue, nullptr,
                                              ending == Attribute::SelfClosing ? 1 : 0,
                                              ending == Attribute::Closing ? 1 : 0);
    }
}

int XmlOldFamilyMarshaller::AddChildList(const IxSingleElementList* list, XmlOldWriter add,
                                         const XmlLogText& failedChild) {
    int index = 0;
    for (auto* const child : XmlEntries<XMLElement>(list)) {
        if (child != nullptr && add(*this, child) == 0) {
            ixLog(m_info.source, failedChild, index);
            return 0;
        }
        ++index;
    }
    return 1;
}

int XmlOldFamilyMarshaller::ReleaseAndFail(const XmlLogText& text) {
    m_generator.ixDeInitXmlDoc();
    ixLog(m_info.source, text);
    return 0;
}

const char* XmlOldFamilyMarshaller::AddNameSpaceChange(e_XmlStrRef canonicalPrefix) const {
    const XmlNamespaceTable::Entry* const entry =
        m_namespaces.FindCanonicalPrefix(ix_xml_common_array_definition::getStringName(canonicalPrefix));
    return entry != nullptr ? entry->documentPrefix : nullptr;
}

void XmlOldFamilyMarshaller::SetElementPrefix(e_XmlStrRef canonicalPrefix) {
    SetPrefix(AddNameSpaceChange(canonicalPrefix));
}

int XmlOldFamilyMarshaller::SetFixedElementPrefix(e_XmlStrRef prefix) {
    return SetPrefix(ix_xml_common_array_definition::getStringName(prefix));
}

int XmlOldFamilyMarshaller::SetPrefix(const char* prefix) {
    m_generator.ixSetXmlNamespace(prefix);
    if (prefix == nullptr || m_generator.XmlNamespace() != nullptr) return 1;
    GiveUp();
    return 0;
}

char* XmlOldFamilyMarshaller::TakeText() {
    char* const text = m_pXml;
    m_pXml = nullptr;
    return text;
}

XMLMarshaller* XmlOldFamilyContext::createMarshaller() {
    m_pMarshaller = NewMarshaller();
    return m_pMarshaller;
}

XMLUnMarshaller* XmlOldFamilyContext::createUnMarshaller() {
    m_pUnMarshaller = NewUnMarshaller();
    return m_pUnMarshaller;
}

XMLObjectFactory* XmlOldFamilyContext::createBinderFactory() {
    m_pBinderFactory = NewBinderFactory();
    return m_pBinderFactory;
}

XMLMarshaller* XmlOldBinderContext::createMarshaller() {
    XmlOldFamilyMarshaller* marshaller = NewMarshaller();
    if (marshaller != nullptr && m_pNamespaceBinder != nullptr &&
        marshaller->SetNameSpaceBinderInfo(m_pNamespaceBinder) == 0) {
        IX_DELETE(marshaller);
        marshaller = nullptr;
    }
    m_pMarshaller = marshaller;
    return marshaller;
}

XMLUnMarshaller* XmlOldBinderContext::createUnMarshaller() {
    XmlOldFamilyUnMarshaller* const unMarshaller = NewUnMarshaller();
    if (unMarshaller != nullptr && m_pNamespaceBinder != nullptr) unMarshaller->SetNamespaceBinder(m_pNamespaceBinder);
    m_pUnMarshaller = unMarshaller;
    return unMarshaller;
}

int XmlOldBinderContext::SetNamespaceBinder(XMLObject* binder) {
    if (binder != nullptr) m_pNamespaceBinder = binder;
    return 1;
}
