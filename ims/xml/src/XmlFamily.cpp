#include "XmlFamily.h"

#include <climits>

#include "XMLFile.h"

XMLElement* XmlFamilyUnMarshaller::UnMarshall(const char* text) {
    if (text == nullptr) return nullptr;
    char* const copy = __strdup(text);
    if (copy == nullptr) {
        ixLog(m_info.source, m_info.noCopy);
        return nullptr;
    }
    ixLog(m_info.source, m_info.textCopied, copy);
    bool complete = false;
    XMLElement* const root =
        Decode(copy, m_info.textTokenizerLine, m_info.textDecoderLine, m_pNamespaceBinder, complete);
    __free(copy);
    return root;
}

XMLElement* XmlFamilyUnMarshaller::UnMarshall(XMLFile* file) {
    const char* const text = file != nullptr ? file->Read() : nullptr;
    if (text == nullptr) return nullptr;
    ixLog(m_info.source, m_info.fileEntered, text);
    bool complete = false;
    return Decode(text, m_info.fileTokenizerLine, m_info.fileDecoderLine, m_pNamespaceBinder, complete);
}

XMLElement* XmlFamilyUnMarshaller::Decode(const char* text, int tokenizerLine, int decoderLine, XMLObject* binder,
                                          bool& complete) {
    auto* const tokenizer = ixNew<XmlDecoder>(m_info.source, tokenizerLine);
    XmlFamilyDecoder* const decoder = m_info.createDecoder(m_info.source, decoderLine);
    XMLElement* root = nullptr;
    complete = false;
    if (tokenizer != nullptr && decoder != nullptr) {
        if (binder != nullptr) decoder->SetNameSpaceBinderInfo(binder);
        tokenizer->SetSchemaDecoder(decoder);
        decoder->SetTokenizer(tokenizer);
        const std::size_t length = __strlen(text);
        complete = length <= INT_MAX && tokenizer->Decode(text, static_cast<int>(length)) == IX_XML_SUCCESS;
        ixLog(m_info.source, complete ? m_info.decoded : m_info.notDecoded);
        // Required: the tree of a document that could not be decoded to its end is left to nobody, and not freed here,
        // unless the application wants that.
        root = complete || XmlTidy::IsOn() ? decoder->GetSessionData() : nullptr;
    }
    ixDelete(decoder);
    ixDelete(tokenizer);
    if (!complete) ixDelete(root);
    return complete ? root : nullptr;
}

XmlFamilyMarshaller* XmlFamilyContext::NewMarshaller() const {
    return m_family.createMarshaller != nullptr ? m_family.createMarshaller(m_family.source, m_family.marshallerLine)
                                                : nullptr;
}

XmlFamilyUnMarshaller* XmlFamilyContext::NewUnMarshaller() const {
    return m_family.createUnMarshaller(m_family.source, m_family.unMarshallerLine);
}

XMLMarshaller* XmlFamilyContext::createMarshaller() {
    m_pMarshaller = NewMarshaller();
    return m_pMarshaller;
}

XMLUnMarshaller* XmlFamilyContext::createUnMarshaller() {
    m_pUnMarshaller = NewUnMarshaller();
    return m_pUnMarshaller;
}

XMLObjectFactory* XmlFamilyContext::createBinderFactory() {
    m_pBinderFactory = m_family.createBinderFactory(m_family.source, m_family.binderFactoryLine);
    return m_pBinderFactory;
}

XMLMarshaller* XmlBinderContext::createMarshaller() {
    XmlFamilyMarshaller* marshaller = NewMarshaller();
    if (marshaller != nullptr && m_pNamespaceBinder != nullptr &&
        marshaller->SetNameSpaceBinderInfo(m_pNamespaceBinder) == 0) {
        ixDelete(marshaller);
        marshaller = nullptr;
    }
    m_pMarshaller = marshaller;
    return marshaller;
}

XMLUnMarshaller* XmlBinderContext::createUnMarshaller() {
    XmlFamilyUnMarshaller* const unMarshaller = NewUnMarshaller();
    if (unMarshaller != nullptr && m_pNamespaceBinder != nullptr) unMarshaller->SetNamespaceBinder(m_pNamespaceBinder);
    m_pUnMarshaller = unMarshaller;
    return unMarshaller;
}

int XmlBinderContext::SetNamespaceBinder(XMLObject* binder) {
    if (binder != nullptr) m_pNamespaceBinder = binder;
    return 1;
}
