/// @file
/// The family template: what the classes of every schema have in common, once.
///
/// A schema is served by a context, a binder factory, an unmarshaller, a decoder, a marshaller and its element classes.
/// Each takes what is particular to it from a constant: element classes their description (XmlClass.h), the decoder a
/// table of containers (XmlFamilyDecoder.h), the marshaller a table of writers (XmlFamilyMarshaller.h). The first
/// family to read is RLMI (XMLRlmi.h); docs/adding-a-schema.md builds one from nothing.
#ifndef IX_XML_FAMILY_H
#define IX_XML_FAMILY_H

#include "XMLFactory.h"
#include "XmlFamilyDecoder.h"
#include "XmlFamilyMarshaller.h"

/// A new object of a class of the family, registered under `source` and `line`; NULL without memory.
template <class Base>
using XmlCreator = Base* (*)(const char* source, int line);

template <class Base, class Made>
Base* ixMake(const char* source, int line) {
    return ixNew<Made>(source, line);
}

/// @name Unmarshaller
/// @{

/// What is particular to the unmarshaller of a schema. Log lines left out are not logged.
struct XmlUnMarshallerInfo {
    const char* source = nullptr;
    XmlCreator<XmlFamilyDecoder> createDecoder = nullptr;
    int textTokenizerLine = 0;  ///< Source lines of the two objects made for a text ...
    int textDecoderLine = 0;
    int fileTokenizerLine = 0;  ///< ... and for a file.
    int fileDecoderLine = 0;
    XmlLogText noCopy{};       ///< The text could not be duplicated.
    XmlLogText textCopied{};   ///< With the document's text, once it was duplicated.
    XmlLogText fileEntered{};  ///< With the document's text, once it was read.
    XmlLogText decoded{};
    XmlLogText notDecoded{};
};

/// What most unmarshallers are: a decoder class, and the line about a text that could not be duplicated.
template <class Decoder>
constexpr XmlUnMarshallerInfo ixUnMarshallerInfo(const char* source, const XmlLogText& noCopy,
                                                 int line = __builtin_LINE()) {
    XmlUnMarshallerInfo info;
    info.source = source;
    info.createDecoder = ixMake<XmlFamilyDecoder, Decoder>;
    info.textTokenizerLine = info.textDecoderLine = line;
    info.fileTokenizerLine = info.fileDecoderLine = line;
    info.noCopy = noCopy;
    return info;
}

/// Base of the unmarshallers: wires a tokenizer to a decoder, decodes, and hands over the root.
class IX_XML_EXPORT XmlFamilyUnMarshaller : public XMLUnMarshaller {
  public:
    XMLElement* UnMarshall(const char* text) override;
    XMLElement* UnMarshall(XMLFile* file) override;

    /// Namespace binder for the decoders to come; stays with the caller.
    void SetNamespaceBinder(XMLObject* binder) { m_pNamespaceBinder = binder; }

  protected:
    explicit XmlFamilyUnMarshaller(const XmlUnMarshallerInfo& info) : m_info(info) {}

    /// Decodes `text` with a new tokenizer and a new decoder. @param complete out: the text is complete and balanced.
    /// @return the root, or NULL; also NULL when the text is complete and holds no root of the schema.
    XMLElement* Decode(const char* text, int tokenizerLine, int decoderLine, XMLObject* binder, bool& complete);

    XMLObject* NamespaceBinder() const { return m_pNamespaceBinder; }
    const XmlUnMarshallerInfo& Info() const { return m_info; }

  private:
    const XmlUnMarshallerInfo& m_info;
    XMLObject* m_pNamespaceBinder = nullptr;
};
/// @}

/// @name Context
/// @{

/// What the context of a schema creates.
struct XmlFamily {
    const char* source;
    XmlCreator<XmlFamilyMarshaller> createMarshaller;  ///< NULL: the schema is only read.
    XmlCreator<XmlFamilyUnMarshaller> createUnMarshaller;
    XmlCreator<XMLObjectFactory> createBinderFactory;
    int marshallerLine;  ///< Source lines that the three are registered under.
    int unMarshallerLine;
    int binderFactoryLine;
};

template <class Marshaller, class UnMarshaller, class BinderFactory>
constexpr XmlFamily ixFamily(const char* source, int line = __builtin_LINE()) {
    return {source,
            ixMake<XmlFamilyMarshaller, Marshaller>,
            ixMake<XmlFamilyUnMarshaller, UnMarshaller>,
            ixMake<XMLObjectFactory, BinderFactory>,
            line,
            line,
            line};
}

/// A schema that is only read.
template <class UnMarshaller, class BinderFactory>
constexpr XmlFamily ixReadFamily(const char* source, int line = __builtin_LINE()) {
    return {source, nullptr, ixMake<XmlFamilyUnMarshaller, UnMarshaller>, ixMake<XMLObjectFactory, BinderFactory>, line,
            line,   line};
}

/// Base of the contexts.
class IX_XML_EXPORT XmlFamilyContext : public XMLContext {
  public:
    XMLMarshaller* createMarshaller() override;
    XMLUnMarshaller* createUnMarshaller() override;
    XMLObjectFactory* createBinderFactory() override;

  protected:
    explicit XmlFamilyContext(const XmlFamily& family) : m_family(family) {}

    /// A new marshaller, which nobody owns yet; NULL without memory, or when there is none.
    XmlFamilyMarshaller* NewMarshaller() const;
    XmlFamilyUnMarshaller* NewUnMarshaller() const;

  private:
    const XmlFamily m_family;
};

/// Base of the contexts of the supplementary services, which take a namespace binder.
class IX_XML_EXPORT XmlBinderContext : public XmlFamilyContext {
  public:
    XMLMarshaller* createMarshaller() override;
    XMLUnMarshaller* createUnMarshaller() override;
    int SetNamespaceBinder(XMLObject* binder) override;

  protected:
    using XmlFamilyContext::XmlFamilyContext;

  private:
    XMLObject* m_pNamespaceBinder = nullptr;  ///< Not owned.
};
/// @}

#endif
