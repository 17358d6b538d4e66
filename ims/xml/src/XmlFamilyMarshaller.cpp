#include "XmlFamilyMarshaller.h"

#include <cstring>

XmlFamilyMarshaller::XmlFamilyMarshaller(const XmlMarshallerInfo& info) : m_info(info) {
    const std::size_t built = m_namespaces.Build(info.namespaces, info.namespaceCount);
    if (built < info.namespaceCount) Log(built == 0 ? info.noFirstNamespace : info.noNamespace);
}

XmlFamilyMarshaller::~XmlFamilyMarshaller() { __free(m_pXml); }

int XmlFamilyMarshaller::SetNameSpaceBinderInfo(XMLObject* binder) {
    return m_namespaces.Bind(XmlNamespaceBinder::DeclarationsOf(binder)) ? 1 : 0;
}

char* XmlFamilyMarshaller::Marshall(XMLElement* root) {
    if (!Begin(root)) return nullptr;
    m_bTruncated = false;
    m_bGivenUp = false;
    m_generator.ixInitXmlDoc();
    if (m_info.writesDeclaration) m_generator.ixAddHeader(ixString(IX_STR_1_0), ixString(IX_STR_UTF_8));
    const int result = AddRootElementToXml(root) != 0 && !m_bGivenUp ? KeepGeneratedText() : 0;
    m_generator.ixDeInitXmlDoc();
    if (result == 0) {
        const XmlWriterRow* const row = FindWriter(root);
        Log(row != nullptr && row->failed.format != nullptr ? row->failed : m_info.texts.failed);
        return nullptr;
    }
    Log(m_info.texts.written, m_pXml);
    return m_pXml;
}

bool XmlFamilyMarshaller::Begin(XMLElement* root) {
    if (m_info.entersFirst) Log(m_info.texts.entered);
    if (root == nullptr || root->ClassName() == nullptr) {
        if (root == nullptr) Log(m_info.noRoot);
        return false;
    }
    if (!m_info.entersFirst) Log(m_info.texts.entered);
    DeleteText();
    return true;
}

const XmlWriterRow* XmlFamilyMarshaller::FindWriter(const XMLElement* root) const {
    for (std::size_t i = 0; i < m_info.writerCount; ++i) {
        if (ixIsClass(root, *m_info.writers[i].description)) return &m_info.writers[i];
    }
    return nullptr;
}

int XmlFamilyMarshaller::AddRootElementToXml(XMLElement* root) {
    const XmlWriterRow* const row = FindWriter(root);
    return row != nullptr ? row->write(*this, root) : 0;
}

/// Copies the generator's text. Without a declaration, the line feed in front of the root element is left out.
int XmlFamilyMarshaller::KeepGeneratedText() {
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

int XmlFamilyMarshaller::ReleaseAndFail(const XmlLogText& text) {
    m_generator.ixDeInitXmlDoc();
    return Fail(text);
}

void XmlFamilyMarshaller::StartElement(e_XmlStrRef name) { m_generator.ixStartElement(ixString(name), 0); }

void XmlFamilyMarshaller::EndElement(e_XmlStrRef name) { m_generator.ixEndXmlElement(ixString(name)); }

void XmlFamilyMarshaller::AddTextElement(e_XmlStrRef name, const char* text) {
    if (text != nullptr) AddTextOrEmptyElement(name, text);
}

void XmlFamilyMarshaller::AddTextOrEmptyElement(e_XmlStrRef name, const char* text) {
    StartElement(name);
    if (text != nullptr) m_generator.ixXmlSetData(text);
    EndElement(name);
}

void XmlFamilyMarshaller::AddDecimalElement(e_XmlStrRef name, std::int64_t value) {
    char digits[32];
    AddTextElement(name, __itoaL(value, digits, sizeof digits, 10));
}

int XmlFamilyMarshaller::AddChildList(const IxSingleElementList* list, const XmlWriterRow& writer) {
    int index = 0;
    for (const IxSingleElementNode* node = ixNodesOf(list); node != nullptr; node = node->next, ++index) {
        auto* const child = static_cast<XMLElement*>(node->key);
        // It will be deleted twice.
        const bool isTwice = child != nullptr && node->next != nullptr && node->next->key == child;
        if (isTwice) Log({4, "<XML Module>: XmlFamilyMarshaller: entry %d is in its list twice"}, index);
        if (writer.write(*this, child) != 0) continue;
        if (child != nullptr && !ixIsClass(child, *writer.description)) LogForeign(*child);
        return Fail(writer.failed, index);
    }
    return 1;
}

void XmlFamilyMarshaller::LogForeign(const XMLElement& element) const {
    const char* const name = element.ClassName();
    Log({4, "<XML Module>: XmlFamilyMarshaller: no place for an object of the class %s"}, name != nullptr ? name : "");
}

const char* XmlFamilyMarshaller::AddNameSpaceChange(e_XmlStrRef canonicalPrefix) const {
    const XmlNamespaceTable::Entry* const entry = m_namespaces.FindCanonicalPrefix(ixString(canonicalPrefix));
    return entry != nullptr ? entry->documentPrefix : nullptr;
}

int XmlFamilyMarshaller::SetPrefix(const char* prefix) {
    m_generator.ixSetXmlNamespace(prefix);
    // Without a buffer nothing is written, so that no name can be wrong.
    const bool isWriting = m_generator.Text() != nullptr;
    if (prefix == nullptr || !isWriting || m_generator.XmlNamespace() != nullptr) return 1;
    GiveUp();
    return 0;
}

char* XmlFamilyMarshaller::TakeText() {
    char* const text = m_pXml;
    m_pXml = nullptr;
    return text;
}

void XmlFamilyMarshaller::DeleteText() {
    if (m_pXml == nullptr) return;
    Log(m_info.texts.deleting);
    __free(TakeText());
}

void XmlStartTag::Add(e_XmlStrRef name, const char* value) {
    if (value != nullptr) Hold(ixString(name), value, nullptr, false);
}

void XmlStartTag::AddDecimal(e_XmlStrRef name, std::int64_t value) {
    m_digitsUsed = 1 - m_digitsUsed;
    char* const digits = m_digits[m_digitsUsed];
    Add(name, __itoaL(value, digits, sizeof m_digits[0], 10));
}

void XmlStartTag::AddPrefixed(e_XmlStrRef name, e_XmlStrRef prefix, e_XmlStrRef value) {
    Hold(ixString(name), ixString(value), ixString(prefix), false);
}

void XmlStartTag::AddAll(const IxSingleElementList* list) {
    for (const auto* const pair : XmlEntries<ix_AttributeValuePair>(list)) {
        if (pair != nullptr && pair->mName != nullptr) Hold(pair->mName, pair->mValue, nullptr, false);
    }
}

void XmlStartTag::AddOnly(e_XmlStrRef name, const char* value) {
    if (value != nullptr) Hold(ixString(name), value, nullptr, true);
}

/// Writes the attribute that was held back, and holds this one back.
void XmlStartTag::Hold(const char* name, const char* value, const char* prefix, bool isOnly) {
    if (!m_isStarted) m_generator.ixStartElement(m_pName, 1);
    m_isStarted = true;
    if (m_pHeldName != nullptr) m_generator.ixAddNameSpacePrefixToXml(m_pHeldName, m_pHeldValue, m_pHeldPrefix, 0, 0);
    m_pHeldName = name;
    m_pHeldValue = value;
    m_pHeldPrefix = prefix;
    m_isOnly = isOnly;
}

void XmlStartTag::End(bool ofElement, bool ofTag) {
    if (m_pHeldName == nullptr) {
        if (ofElement) {
            m_generator.ixStartElementSelfEnding(m_pName);
        } else {
            m_generator.ixStartElement(m_pName, ofTag ? 0 : 1);
        }
    } else if (m_isOnly) {
        m_generator.ixStartAttribute(m_pHeldName, m_pHeldValue, 0, ofElement ? 1 : 0, ofTag ? 1 : 0);
    } else {
        m_generator.ixAddNameSpacePrefixToXml(m_pHeldName, m_pHeldValue, m_pHeldPrefix, ofElement ? 1 : 0,
                                              ofTag ? 1 : 0);
    }
    m_pHeldName = nullptr;
}
