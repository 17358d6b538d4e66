/// @file
/// The base of the schemas' marshallers, and the words in which their writers are written.
#ifndef IX_XML_FAMILY_MARSHALLER_H
#define IX_XML_FAMILY_MARSHALLER_H

#include "XMLFactory.h"
#include "XmlElementSupport.h"
#include "XmlNamespaceTable.h"
#include "ixXMLDocGenerator.h"

class XmlFamilyMarshaller;

/// @name Writers
/// @{

/// Writes an element. One of another class than the writer's is none. @return 1, or 0.
using XmlWriter = int (*)(XmlFamilyMarshaller& self, XMLElement* element);

/// What a writer operation `int Marshaller::operation(Element*)` says by its type.
template <auto operation>
struct XmlWriterOf;

template <class Marshaller, class Element, int (Marshaller::*operation)(Element*)>
struct XmlWriterOf<operation> {
    using Written = Element;
    static int Write(XmlFamilyMarshaller& self, XMLElement* element) {
        return (static_cast<Marshaller&>(self).*operation)(ixAs<Element>(element));
    }
};

/// An element that `Marshall` accepts.
struct XmlWriterRow {
    const XmlClass* description;
    XmlWriter write;
    XmlLogText failed{};  ///< Logged in place of `XmlMarshallerInfo::failed`.
};

/// The row of a writer operation, for the class of its argument.
template <auto operation>
constexpr XmlWriterRow ixWriter(const XmlLogText& failed = {}) {
    return {&XmlWriterOf<operation>::Written::kClass, XmlWriterOf<operation>::Write, failed};
}
/// @}

/// The four lines that every call of `Marshall` may log.
struct XmlMarshallTexts {
    XmlLogText entered;
    XmlLogText deleting;  ///< The text of the last call is freed.
    XmlLogText written;   ///< With the text.
    XmlLogText failed;
};

/// Their texts in most families, which name the marshaller and its kept text. A device sees the formats, so each is a
/// literal of its own.
#define IX_MARSHALL_TEXTS(marshaller, kept)                                            \
    XmlMarshallTexts {                                                                 \
        {3, "<XML Module>: " marshaller " :: Marshall", __LINE__},                     \
            {3, "<XML Module>: " marshaller " :: Marshall: Deleting " kept, __LINE__}, \
            {2, "<XML Module>: " marshaller " XML %s", __LINE__},                      \
            {2, "<XML Module>: " marshaller " XML Failed!", __LINE__},                 \
    }

/// What is particular to the marshaller of a schema. Log lines left out are not logged.
struct XmlMarshallerInfo {
    const char* source = nullptr;
    bool writesDeclaration = true;  ///< Version "1.0", encoding "UTF-8". Without one, the text starts at the root.
    bool entersFirst = false;       ///< `entered` is logged before the root is looked at.
    const XmlWriterRow* writers = nullptr;
    std::size_t writerCount = 0;
    const XmlNamespaceRow* namespaces = nullptr;
    std::size_t namespaceCount = 0;
    XmlLogText noFirstNamespace{};  ///< No memory for the first row of the namespace table ...
    XmlLogText noNamespace{};       ///< ... or for a later one.
    XmlLogText noRoot{};            ///< The root is NULL.
    XmlMarshallTexts texts{};
};

/// What most marshallers are: the elements of a table.
template <std::size_t count>
constexpr XmlMarshallerInfo ixMarshallerInfo(const char* source, const XmlWriterRow (&writers)[count],
                                             const XmlMarshallTexts& texts) {
    XmlMarshallerInfo info;
    info.source = source;
    info.writers = writers;
    info.writerCount = count;
    info.texts = texts;
    return info;
}

/// Keeps the generator and the last text.
class IX_XML_EXPORT XmlFamilyMarshaller : public XMLMarshaller {
  public:
    ~XmlFamilyMarshaller() override;

    char* Marshall(XMLElement* root) override;
    int Reserved() override { return 0; }
    int IsTruncated() const override { return m_bTruncated ? 1 : 0; }

    /// Takes over the prefixes of a binder, as `XmlFamilyDecoder::SetNameSpaceBinderInfo` does. @return 1, or 0 without
    /// memory, when the marshaller would write other prefixes than the binder's.
    int SetNameSpaceBinderInfo(XMLObject* binder);

  protected:
    friend class XmlStartTag;

    explicit XmlFamilyMarshaller(const XmlMarshallerInfo& info);

    /// What comes before writing: logs the entry, refuses NULL and frees the earlier text. @return false for NULL.
    virtual bool Begin(XMLElement* root);
    /// Writes the document: with the writer of the root's class, and not at all when there is none. @return 1, or 0.
    virtual int AddRootElementToXml(XMLElement* root);

    /// @name Log lines
    /// @{
    void Log(const XmlLogText& text, XmlLogArgument argument1 = 0, XmlLogArgument argument2 = 0) const {
        ixLog(m_info.source, text, argument1, argument2);
    }
    /// Logs the entry of a writer. @return false for NULL, which no writer takes.
    bool Enter(const void* element, const XmlLogText& text) const {
        Log(text);
        return element != nullptr;
    }
    /// Logs why a writer fails. @return 0.
    int Fail(const XmlLogText& text, XmlLogArgument argument1 = 0, XmlLogArgument argument2 = 0) const {
        Log(text, argument1, argument2);
        return 0;
    }
    /// The same, after giving up the document: what follows writes nothing.
    int ReleaseAndFail(const XmlLogText& text);
    /// @}

    /// @name Elements. Names are entries of the string table; a start tag with attributes is an `XmlStartTag`.
    /// @{
    void StartElement(e_XmlStrRef name);
    void EndElement(e_XmlStrRef name);
    /// An element with a text; nothing for NULL.
    void AddTextElement(e_XmlStrRef name, const char* text);
    /// An element with a text, without content for NULL.
    void AddTextOrEmptyElement(e_XmlStrRef name, const char* text);
    void AddDecimalElement(e_XmlStrRef name, std::int64_t value);
    /// Writes each entry with a writer operation of the marshaller, in order, until one answers 0, whose index `failed`
    /// then logs. What is NULL or of another class than the writer's is handed to it as NULL. @return 1, or 0.
    template <auto operation>
    int AddChildren(const IxSingleElementList* list, const XmlLogText& failed = {}) {
        return AddChildList(list, ixWriter<operation>(failed));
    }
    int AddChildList(const IxSingleElementList* list, const XmlWriterRow& writer);
    /// Logs that an object stands where nothing is written of its class.
    void LogForeign(const XMLElement& element) const;
    /// @}

    /// Makes the document prefix of a canonical prefix, if it has one, that of the elements that follow. Without memory
    /// the names would be others, so the document is given up.
    void SetElementPrefix(e_XmlStrRef canonicalPrefix) { SetPrefix(AddNameSpaceChange(canonicalPrefix)); }
    /// The same for a prefix that no binder changes. @return 1, or 0 without memory.
    int SetFixedElementPrefix(e_XmlStrRef prefix) { return SetPrefix(ixString(prefix)); }
    /// The elements that follow have no prefix.
    void ClearElementPrefix() { m_generator.ixSetXmlNamespace(nullptr); }

    /// `Marshall` will answer NULL, whatever the writers answer.
    void GiveUp() { m_bGivenUp = true; }

    /// @name The text of the last call
    /// @{
    /// Passes to the caller, who gives back what takes its place.
    char* TakeText();
    void KeepText(char* text) { m_pXml = text; }
    /// Frees it, with the log line, if there is one.
    void DeleteText();
    /// @}

    /// The source path for log lines.
    const char* Source() const { return m_info.source; }
    const XmlMarshallTexts& Texts() const { return m_info.texts; }

    /// The document prefix of a canonical prefix, which stays with the marshaller; NULL when there is none.
    const char* AddNameSpaceChange(e_XmlStrRef canonicalPrefix) const;

    IxXMLDocGenerator m_generator;

  private:
    int SetPrefix(const char* prefix);
    const XmlWriterRow* FindWriter(const XMLElement* root) const;
    int KeepGeneratedText();

    const XmlMarshallerInfo& m_info;
    char* m_pXml = nullptr;  ///< The last text; owned.
    bool m_bTruncated = false;
    bool m_bGivenUp = false;
    XmlNamespaceTable m_namespaces;
};

/// A start tag, attribute by attribute. One is held back, so that the last one closes the tag; without any the tag is
/// a plain one. The element prefix is that of the first attribute's time.
class IX_XML_EXPORT XmlStartTag {
  public:
    XmlStartTag(XmlFamilyMarshaller& marshaller, e_XmlStrRef name)
        : m_generator(marshaller.m_generator), m_pName(ixString(name)) {}
    XmlStartTag(const XmlStartTag&) = delete;
    XmlStartTag& operator=(const XmlStartTag&) = delete;

    /// @name Attributes; nothing for a NULL value. The texts are kept until the next attribute, or the end.
    /// @{
    void Add(e_XmlStrRef name, const char* value);
    void Add(e_XmlStrRef name, e_XmlStrRef value) { Add(name, ixString(value)); }
    void AddDecimal(e_XmlStrRef name, std::int64_t value);
    /// `name`:`prefix` as the attribute's name: xmlns:`prefix`, or an attribute of another namespace.
    void AddPrefixed(e_XmlStrRef name, e_XmlStrRef prefix, e_XmlStrRef value);
    /// Each pair that has a name.
    void AddAll(const IxSingleElementList* list);
    /// The tag's only attribute, with a single blank before it.
    void AddOnly(e_XmlStrRef name, const char* value);
    /// @}

    /// @name The end of the tag
    /// @{
    void Close() { End(false, true); }
    /// Ends the element, too.
    void SelfClose() { End(true, false); }
    /// Required: some start tags are never ended.
    void LeaveOpen() { End(false, false); }
    /// @}

  private:
    void Hold(const char* name, const char* value, const char* prefix, bool isOnly);
    void End(bool ofElement, bool ofTag);

    IxXMLDocGenerator& m_generator;
    const char* m_pName;
    bool m_isStarted = false;
    bool m_isOnly = false;
    const char* m_pHeldName = nullptr;  ///< The attribute that is held back; NULL: none.
    const char* m_pHeldValue = nullptr;
    const char* m_pHeldPrefix = nullptr;
    char m_digits[2][32];  ///< Of the attribute that is held back, and of the next one.
    int m_digitsUsed = 0;
};

#endif
