/// @file
/// The family template: what the classes of every schema have in common, once.
///
/// A schema is served by a context, a binder factory, an unmarshaller, a decoder, a marshaller and its element classes.
/// Each takes what is particular to it from a plain struct of constants: source path, log texts, namespaces, element
/// tables. The first families to read are GRUU (XMLGruu.h) and RCS terms (XMLRcsTermsInfo.h);
/// docs/adding-a-schema.md builds one from nothing.
#ifndef IX_OLD_XML_FAMILY_H
#define IX_OLD_XML_FAMILY_H

#include <iterator>

#include "XMLFactory.h"
#include "XMLStack.h"
#include "XmlCommon.h"
#include "XmlDecoder.h"
#include "XmlElementSupport.h"
#include "XmlNamespaceTable.h"
#include "ixXMLDocGenerator.h"

class XmlOldFamilyDecoder;

/// @name Decoder
/// @{

/// What a decoder compares names with.
enum class XmlOldNamePolicy {
    Mapped,    ///< The document's prefixes replaced by the schema's canonical ones, as far as they are known.
    Stripped,  ///< The local names.
    Raw        ///< The names as they stand in the document.
};

/// A name that a decoder knows: a local name, and the prefix it may or must have.
struct XmlOldKnownName {
    enum Prefix { None, Optional, Required };

    e_XmlStrRef local;
    Prefix use = None;
    e_XmlStrRef prefix = IX_STR_IX_NULL;
    const char* spelling = nullptr;  ///< The local name itself, where the string table does not have it.

    static constexpr XmlOldKnownName Of(const char* spelling) {
        return {IX_STR_IX_NULL, None, IX_STR_IX_NULL, spelling};
    }
    const char* Local() const {
        return spelling != nullptr ? spelling : ix_xml_common_array_definition::getStringName(local);
    }
    /// The local part of `name`, when that is this name with a prefix that it may have; NULL otherwise.
    char* LocalPartOf(char* name) const {
        if (use != None) name = BehindPrefix(name);
        return ixNameIs(name, Local()) ? name : nullptr;
    }
    bool Matches(char* name) const { return LocalPartOf(name) != nullptr; }

  private:
    char* BehindPrefix(char* name) const;
};

/// Which rows of a table a name can belong to: a bit for each row, found by the first two letters of the name. The rows
/// behind the 64th have no bit, so that each of them has to be looked at.
class XmlOldRowIndex {
  public:
    static unsigned Key(const char* name) { return Key(name[0], name[0] != '\0' ? name[1] : '\0'); }
    /// Adds the row of `name`. Where a row is that of two names, `other` is the key of the second one, and the row is
    /// looked for with the sum of both keys.
    void Add(std::size_t row, const XmlOldKnownName& name, unsigned other = 0);
    /// The first row from `from` on that can be the one of a name with the key `key`.
    std::size_t Next(unsigned key, std::size_t from) const {
        if (from >= kBits) return from;
        const std::uint64_t rows = m_rows[key % std::size(m_rows)] >> from;
        return rows != 0 ? from + static_cast<std::size_t>(__builtin_ctzll(rows)) : kBits;
    }

  private:
    static constexpr std::size_t kBits = 64;

    static unsigned Key(char first, char second) {
        return static_cast<unsigned char>(first) + 5U * static_cast<unsigned char>(second);
    }
    void Add(std::size_t row, unsigned key) { m_rows[key % std::size(m_rows)] |= std::uint64_t{1} << row; }

    std::uint64_t m_rows[32] = {};
};

/// An element that a decoder makes an object of.
struct XmlOldContainerRow {
    enum Role {
        Root,   ///< Becomes the result and goes on the stack.
        Child,  ///< Offered to the object on top; goes on the stack when that takes it.
        Text,   ///< A child whose end tag offers it its text, under "/" and the local name, before anything is popped.
        Leaf    ///< Offered to the object on top; never on the stack.
    };

    XmlOldKnownName name;
    Role role;
    const char* className;  ///< The end tag pops an object of this class only; NULL: whatever is on top.
    /// A new object, registered under `source`; `name` as compared. NULL: no memory.
    XMLElement* (*create)(const char* name, const char* source);
    const char* parentClass = nullptr;  ///< The row counts only while an object of this class is on top; NULL: always.
};

/// The creator of a row: a new `type`, registered with the line of the row.
#define IX_OLD_CREATOR(type)                                              \
    [](const char* /*name*/, const char* source) -> XMLElement* {         \
        return IX_TRACKED_NEW(kSchemaModule, source, __LINE__, type, ()); \
    }

/// The two columns of a row that tell a class, `type`, and how to make an object of it.
#define IX_OLD_OBJECT(type) type::kClassName, IX_OLD_CREATOR(type)

/// An attribute that a decoder gives to an object without making a pair of it.
struct XmlOldAttributeRow {
    XmlOldKnownName element;
    e_XmlStrRef attribute;
    bool ignored = false;             ///< It is not given to anybody.
    const char* className = nullptr;  ///< The row counts only for an object of this class; NULL: for any.
};

/// Who gets the attributes of an element.
enum class XmlOldAttributePolicy {
    Top,         ///< The object on top of the stack, whatever element it stands for.
    Own,         ///< The object of the element itself, if it has one on the stack.
    OwnNoPairs,  ///< ... and only the known attributes.
    RootPairs,   ///< ... and unknown ones only when the element is a root.
    TopTwice,    ///< The object on top; known attributes twice, the second time as a pair.
    AsElements   ///< The object on top, through `ProcessUnMarshall`, known or not.
};

/// The log lines of a decoder; those left out are not logged.
struct XmlOldDecoderTexts {
    XmlLogText noElement{};             ///< ProcessElement without a name.
    XmlLogText noElementName{};         ///< ... or without memory for the name it compares with.
    XmlLogText noAttribute{};           ///< ProcessAttribute without element or attribute name.
    XmlLogText noAttributeName{};       ///< ... or without memory for the element name it compares with.
    XmlLogText noObject{};              ///< An element object could not be created; the name.
    XmlLogText noPair{};                ///< An attribute pair could not be created; the attribute name ...
    XmlLogText noPairOf{};              ///< ... or the name of its element.
    XmlLogText pairRefused{};           ///< The object refused the pair; the attribute name.
    XmlLogText noFirstNamespace{};      ///< No memory for the first row of the namespace table ...
    XmlLogText noNamespace{};           ///< ... or for a later one.
    XmlLogText changeTagNoMemory{};     ///< XMLChangeNamespaceTag, start tags ...
    XmlLogText changeEndTagNoMemory{};  ///< ... and end tags.
    XmlLogText mappedTagNoMemory{};     ///< XMLChangeNamespaceTag, for the mapped name: start tags ...
    XmlLogText mappedEndTagNoMemory{};  ///< ... and end tags.
    XmlLogText removeTagNoMemory{};     ///< XMLRemoveNameSpaceTag ...
    XmlLogText removeTagNoTag{};        ///< ... and without a tag.
};

/// What is particular to the decoder of a schema.
struct XmlOldDecoderInfo {
    const char* source = nullptr;
    XmlOldNamePolicy names = XmlOldNamePolicy::Raw;
    bool handsOnLocalNames = false;  ///< Elements without an object are handed on without prefix, mapped or not.
    bool takesFragments = false;     ///< Any container may be the outermost element and is the result then.
    bool wrapsNameSize = false;      ///< Room for a name without prefix is counted in 16 bits: a longer one is cut.
    XmlOldAttributePolicy attributePolicy = XmlOldAttributePolicy::Own;
    XmlOldDecoderTexts texts{};
    const XmlOldContainerRow* containers = nullptr;
    std::size_t containerCount = 0;
    const XmlOldAttributeRow* attributes = nullptr;
    std::size_t attributeCount = 0;
    const XmlNamespaceRow* namespaces = nullptr;
    std::size_t namespaceCount = 0;
    int pairLine = 0;                           ///< Source line under which attribute pairs are registered.
    const XmlOldDecoderInfo* shared = nullptr;  ///< Its containers and attributes count, too; the rest of it does not.
};

/// What most decoders are: a table of containers, and one of attributes.
template <std::size_t containerCount>
constexpr XmlOldDecoderInfo ixOldDecoderInfo(const char* source, int line,
                                             const XmlOldContainerRow (&containers)[containerCount]) {
    XmlOldDecoderInfo info;
    info.source = source;
    info.containers = containers;
    info.containerCount = containerCount;
    info.pairLine = line;
    return info;
}

template <std::size_t containerCount, std::size_t attributeCount>
constexpr XmlOldDecoderInfo ixOldDecoderInfo(const char* source, int line,
                                             const XmlOldContainerRow (&containers)[containerCount],
                                             const XmlOldAttributeRow (&attributes)[attributeCount]) {
    XmlOldDecoderInfo info = ixOldDecoderInfo(source, line, containers);
    info.attributes = attributes;
    info.attributeCount = attributeCount;
    return info;
}

/// The line about a name that could not be copied without its prefix. It names the decoder that the namespace
/// operations were taken from.
#define IX_OLD_REMOVE_TAG_TEXT(origin) \
    { 2, kDecoderCode, __LINE__, origin " :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory" }

/// The two lines about events without an element, which name the decoder.
#define IX_OLD_DECODER_NULL_TEXTS(texts, decoder)                                                    \
    do {                                                                                             \
        (texts).noElement = {3, kSchemaCode, __LINE__,                                               \
                             "<XML Module>" decoder " :: ProcessElement: n_strElement is NULL"};     \
        (texts).noAttribute = {3, kSchemaCode, __LINE__,                                             \
                               "<XML Module>" decoder " :: ProcessAttribute: n_strElement is NULL"}; \
    } while (false)

/// The four lines about missing names, which name the decoder and the copies of the names that it works on.
#define IX_OLD_DECODER_TEXTS(texts, decoder, elementName, attributeName)                                      \
    do {                                                                                                      \
        IX_OLD_DECODER_NULL_TEXTS(texts, decoder);                                                            \
        (texts).noElementName = {3, kSchemaCode, __LINE__,                                                    \
                                 "<XML Module>" decoder " :: ProcessElement: " elementName " is NULL"};       \
        (texts).noAttributeName = {3, kSchemaCode, __LINE__,                                                  \
                                   "<XML Module>" decoder " :: ProcessAttribute: " attributeName " is NULL"}; \
    } while (false)

/// Base of the decoders: turns the tokenizer's events into objects.
///
/// Start tags of known elements create an object; end tags take it off the stack again. Any other element goes to the
/// object on top of the stack. Attributes go where `XmlOldAttributePolicy` says: one that the decoder knows as it is,
/// any other as a pair.
///
/// When it ends, the decoder frees accepted children that their parent did not keep, and roots that a later root
/// replaced. It never frees the result.
class IX_XML_EXPORT XmlOldFamilyDecoder : public XmlDecoderSchema {
  public:
    ~XmlOldFamilyDecoder() override;

    int Reserved() override { return 0; }
    int ProcessAttribute(char* element, char* attribute, char* value) override;
    int ProcessElement(char* element, char* text) override;
    int ProcessEndOfStartTag(char* element) override;
    XMLElement* GetSessionData() override { return m_pSessionData; }

    /// Takes over the prefixes of a binder (see `XMLContext::SetNamespaceBinder`). NULL, or a binder without
    /// namespaces, changes nothing. @return 1.
    int SetNameSpaceBinderInfo(XMLObject* binder);
    /// Maps the prefix of `tag` (with or without a leading "/") to the canonical one. @return 1, the result in
    /// `MappedTag`; 0 for NULL or without memory.
    int XMLChangeNamespaceTag(const char* tag);
    /// Removes the prefix. @return 1, the result in `PassName`; 0 for NULL or without memory.
    int XMLRemoveNameSpaceTag(const char* tag);
    /// Result of the last `XMLChangeNamespaceTag`; NULL before it, or when it failed.
    char* MappedTag() const { return m_pMappedTag; }
    /// Result of the last `XMLRemoveNameSpaceTag`; NULL before it, or when it failed.
    char* PassName() const { return m_pPassName; }

  protected:
    explicit XmlOldFamilyDecoder(const XmlOldDecoderInfo& info);

    /// A start tag, its name as the decoder compares it.
    virtual int StartElement(char* name);
    /// An end tag; `name` begins with "/".
    virtual int EndElement(char* name, char* text);
    /// An element that is none of the containers: goes to the object on top of the stack.
    virtual int OtherElement(char* name, char* text);
    /// An attribute that is not known: goes to `receiver` as a pair.
    virtual int OtherAttribute(XMLElement& receiver, char* attribute, char* value);

    /// The object on top of the stack, or NULL.
    XMLElement* Top() const { return m_stack.empty() ? nullptr : static_cast<XMLElement*>(m_stack.top()); }
    /// Puts a new object on the stack; the attributes that follow are its own. A full stack drops it.
    void Push(XMLElement* object);
    /// Takes the object on top off the stack, if it is of the class `className`.
    void Pop(const char* className);
    /// Offers a new object to `receiver`, under the name `name`. One that is refused is deleted, and goes off the stack
    /// if it was pushed before. @return true when it was taken.
    bool Offer(XMLElement& receiver, char* name, XMLElement* object);
    /// Makes `root` the result in place of an earlier one, which the decoder then frees when it ends. @return false
    /// without memory, when the earlier one stays and `root` is deleted.
    bool SetSessionData(XMLElement* root);

  private:
    const XmlOldContainerRow* FindContainer(char* name, char** local) const;
    const XmlOldAttributeRow* FindAttribute(char* element, const char* attribute, const XMLElement* receiver) const;
    bool EndContainer(const XmlOldContainerRow& row, char* name, char* text, bool& offered);
    char* ComparedName(char* element);
    char* NameOfAttributes(char* element);
    bool KeepOrphan(XMLElement* object);

    XmlCodeGenStack m_stack;
    XMLElement* m_pSessionData = nullptr;
    XMLElement* m_pOwn = nullptr;      ///< The object that the last start tag put on the stack, if it did.
    const char* m_pStarted = nullptr;  ///< The name that came with the last event, when that was a start tag ...
    char* m_pStartedName = nullptr;    ///< ... and what it was compared as.
    bool m_bOwnIsRoot = false;
    XmlNamespaceTable m_namespaces;
    char* m_pMappedTag = nullptr;
    char* m_pPassName = nullptr;

    const XmlOldDecoderInfo& m_info;
    XmlOldRowIndex m_containers;  ///< Of the rows of `m_info` and then those that it shares.
    XmlOldRowIndex m_attributes;
    XmlWorkText m_mappedText;
    XmlWorkText m_passText;
    XMLElement** m_orphans = nullptr;
    std::size_t m_orphanCount = 0;
    std::size_t m_orphanSize = 0;
};
/// @}

/// @name Unmarshaller
/// @{

/// What is particular to the unmarshaller of a schema. Log lines left out are not logged.
struct XmlOldUnMarshallerInfo {
    const char* source = nullptr;
    XmlOldFamilyDecoder* (*createDecoder)(int line) = nullptr;  ///< Registers the object under `line`.
    int textTokenizerLine = 0;                                  ///< Source lines of the two objects made for a text ...
    int textDecoderLine = 0;
    int fileTokenizerLine = 0;  ///< ... and for a file.
    int fileDecoderLine = 0;
    XmlLogText textEntered{};  ///< With the document's text.
    XmlLogText textCopied{};   ///< With the document's text, once it was duplicated.
    XmlLogText fileEntered{};  ///< With the document's text, once it was read.
    XmlLogText noCopy{};       ///< The text could not be duplicated.
    XmlLogText decoded{};
    XmlLogText notDecoded{};
};

constexpr XmlOldUnMarshallerInfo ixOldUnMarshallerInfo(const char* source, int line,
                                                       XmlOldFamilyDecoder* (*createDecoder)(int line),
                                                       const char* noCopy) {
    XmlOldUnMarshallerInfo info;
    info.source = source;
    info.createDecoder = createDecoder;
    info.textTokenizerLine = info.textDecoderLine = line;
    info.fileTokenizerLine = info.fileDecoderLine = line;
    info.noCopy = {4, kSchemaCode, line, noCopy};
    return info;
}

/// What most unmarshallers are: a decoder class, and their name in the line about a text that could not be copied.
#define IX_OLD_UNMARSHALLER_INFO(decoder, unMarshaller)                                                   \
    ixOldUnMarshallerInfo(                                                                                \
        kSourceFile, __LINE__, [](int line) -> XmlOldFamilyDecoder* { return IX_NEW_AT(line, decoder); }, \
        "<XML Module>: StrDup failed in " unMarshaller "::UnMarshall")

/// Base of the unmarshallers: wires a tokenizer to a decoder, decodes, and hands over the root.
class IX_XML_EXPORT XmlOldFamilyUnMarshaller : public XMLUnMarshaller {
  public:
    XMLElement* UnMarshall(const char* text) override;
    XMLElement* UnMarshall(XMLFile* file) override;

    /// Namespace binder for the decoders to come; stays with the caller.
    void SetNamespaceBinder(XMLObject* binder) { m_pNamespaceBinder = binder; }

  protected:
    virtual const XmlOldUnMarshallerInfo& Info() const = 0;

    /// Decodes `text` with a new tokenizer and a new decoder. @param complete out: the text is complete and balanced.
    /// @return the root, or NULL; also NULL when the text is complete and holds no root of the schema.
    XMLElement* Decode(const char* text, int tokenizerLine, int decoderLine, XMLObject* binder, bool& complete);

    XMLObject* NamespaceBinder() const { return m_pNamespaceBinder; }

  private:
    XMLObject* m_pNamespaceBinder = nullptr;
};
/// @}

/// @name Marshaller
/// @{

class XmlOldFamilyMarshaller;

/// Writes an element, which is of the class that the caller expects. @return 1, or 0.
using XmlOldWriter = int (*)(XmlOldFamilyMarshaller& self, XMLElement* element);

/// The writer that is the operation `operation` of the marshaller class `marshaller`, for elements of the class `type`.
#define IX_OLD_WRITER(marshaller, operation, type)                                      \
    [](XmlOldFamilyMarshaller& writer, XMLElement* written) -> int {                    \
        return static_cast<marshaller&>(writer).operation(static_cast<type*>(written)); \
    }

/// The two columns of a table that tell a class, `type`, and its writer.
#define IX_OLD_WRITER_OF(marshaller, operation, type) type::kClassName, IX_OLD_WRITER(marshaller, operation, type)

/// An element that `Marshall` accepts.
struct XmlOldWriterRow {
    const char* className;
    XmlOldWriter write;
    XmlLogText failed{};  ///< Logged in place of `XmlOldMarshallerInfo::failed`.
};

/// What is particular to the marshaller of a schema. Log lines left out are not logged.
struct XmlOldMarshallerInfo {
    const char* source = nullptr;
    bool writesDeclaration =
        false;                  ///< Version "1.0", encoding "UTF-8". Without one, the text starts at the root element.
    bool entersFirst = false;   ///< `entered` is logged before the root is looked at.
    bool deletesFirst = false;  ///< `deleting` is logged before `entered`.
    const XmlOldWriterRow* writers = nullptr;
    std::size_t writerCount = 0;
    const XmlNamespaceRow* namespaces = nullptr;
    std::size_t namespaceCount = 0;
    XmlLogText noFirstNamespace{};  ///< No memory for the first row of the namespace table ...
    XmlLogText noNamespace{};       ///< ... or for a later one.
    XmlLogText entered{};
    XmlLogText noRoot{};       ///< The root is NULL.
    XmlLogText noClassName{};  ///< The root has no class name.
    XmlLogText deleting{};     ///< The text of the last call is freed.
    XmlLogText written{};      ///< With the text.
    XmlLogText failed{};
};

/// What most marshallers are: a declaration, and the elements of a table.
template <std::size_t count>
constexpr XmlOldMarshallerInfo ixOldMarshallerInfo(const char* source, const XmlOldWriterRow (&writers)[count]) {
    XmlOldMarshallerInfo info;
    info.source = source;
    info.writesDeclaration = true;
    info.writers = writers;
    info.writerCount = count;
    return info;
}

/// The four lines that every call of `Marshall` may log, which name the marshaller and its kept text.
#define IX_OLD_MARSHALL_TEXTS(info, marshaller, kept)                                                             \
    do {                                                                                                          \
        (info).entered = {3, kSchemaCode, __LINE__, "<XML Module>: " marshaller " :: Marshall"};                  \
        (info).deleting = {3, kSchemaCode, __LINE__, "<XML Module>: " marshaller " :: Marshall: Deleting " kept}; \
        (info).written = {2, kSchemaCode, __LINE__, "<XML Module>: " marshaller " XML %s"};                       \
        (info).failed = {2, kSchemaCode, __LINE__, "<XML Module>: " marshaller " XML Failed!"};                   \
    } while (false)

/// Base of the marshallers: keeps the generator and the last text, and offers short writers for a schema's own.
class IX_XML_EXPORT XmlOldFamilyMarshaller : public XMLMarshaller {
  public:
    ~XmlOldFamilyMarshaller() override;

    char* Marshall(XMLElement* root) override;
    int Reserved() override { return 0; }
    int IsTruncated() const override { return m_bTruncated ? 1 : 0; }

    /// Takes over the prefixes of a binder, as `XmlOldFamilyDecoder::SetNameSpaceBinderInfo` does. @return 1, or 0
    /// without memory, when the marshaller would write other prefixes than the binder's.
    int SetNameSpaceBinderInfo(XMLObject* binder);

  protected:
    /// How an attribute ends.
    enum class Attribute {
        Open,        ///< More attributes follow.
        Closing,     ///< The start tag is closed.
        SelfClosing  ///< The element is closed.
    };

    explicit XmlOldFamilyMarshaller(const XmlOldMarshallerInfo& info);

    /// Writes the document: with the writer of the root's class, and not at all when there is none. @return 1, or 0.
    virtual int AddRootElementToXml(XMLElement* root);

    /// @name Writers, through the generator. Names are entries of the string table.
    /// @{
    void StartElement(e_XmlStrRef name);
    /// A start tag that attributes follow.
    void StartElementOpen(e_XmlStrRef name);
    void EndElement(e_XmlStrRef name);
    /// An element with a text; nothing for NULL.
    void AddTextElement(e_XmlStrRef name, const char* text);
    /// An element with a text, without content for NULL.
    void AddTextOrEmptyElement(e_XmlStrRef name, const char* text);
    void AddDecimalElement(e_XmlStrRef name, std::int64_t value);
    void AddAttribute(e_XmlStrRef name, const char* value, Attribute end);
    /// `prefix` and `name` as the field has it: xmlns:`prefix`, or the attribute `name`:`prefix` of another namespace.
    void AddPrefixedAttribute(e_XmlStrRef name, e_XmlStrRef prefix, const char* value, Attribute end);
    void AddDecimalAttribute(e_XmlStrRef name, std::int64_t value, Attribute end);
    /// The only attribute of its tag, one blank before it.
    void AddOnlyAttribute(e_XmlStrRef name, const char* value, Attribute end);
    /// The last pair of a list that has a name, so that it can be written; NULL: none.
    static const ix_AttributeValuePair* LastAttribute(const IxSingleElementList* list);
    /// Each pair that has a name as an attribute, the last one with `end`.
    void AddAttributeList(const IxSingleElementList* list, Attribute end = Attribute::Open);
    /// Calls `add` for each entry in order until one answers 0, whose index `failedChild` then logs. NULL entries are
    /// passed over. @return 1, or 0.
    int AddChildList(const IxSingleElementList* list, XmlOldWriter add, const XmlLogText& failedChild = {});
    /// Logs `text` of a failed child, after giving up the document. @return 0.
    int ReleaseAndFail(const XmlLogText& text);
    /// @}

    /// Makes the document prefix of a canonical prefix, if it has one, that of the elements that follow. Without memory
    /// the names would be others, so the document is given up.
    void SetElementPrefix(e_XmlStrRef canonicalPrefix);
    /// The same for a prefix that no binder changes. @return 1, or 0 without memory.
    int SetFixedElementPrefix(e_XmlStrRef prefix);
    /// The elements that follow have no prefix.
    void ClearElementPrefix() { m_generator.ixSetXmlNamespace(nullptr); }

    /// `Marshall` will answer NULL, whatever the writers answer.
    void GiveUp() { m_bGivenUp = true; }

    /// The kept text passes to the caller, who gives back what takes its place (`KeepText`).
    char* TakeText();
    void KeepText(char* text) { m_pXml = text; }

    /// The source path for log lines.
    const char* Source() const { return m_info.source; }

    /// The document prefix of a canonical prefix, which stays with the marshaller; NULL when there is none.
    const char* AddNameSpaceChange(e_XmlStrRef canonicalPrefix) const;

    IxXMLDocGenerator m_generator;

  private:
    int SetPrefix(const char* prefix);
    const XmlOldWriterRow* FindWriter(const XMLElement* root) const;
    int KeepGeneratedText();

    const XmlOldMarshallerInfo& m_info;
    char* m_pXml = nullptr;  ///< The last text; owned.
    bool m_bTruncated = false;
    bool m_bGivenUp = false;
    XmlNamespaceTable m_namespaces;
};
/// @}

/// @name Context
/// @{

/// Base of the contexts.
class IX_XML_EXPORT XmlOldFamilyContext : public XMLContext {
  public:
    XMLMarshaller* createMarshaller() override;
    XMLUnMarshaller* createUnMarshaller() override;
    XMLObjectFactory* createBinderFactory() override;

  protected:
    /// @name New, registered objects of the schema; NULL when there are none.
    /// @{
    virtual XmlOldFamilyMarshaller* NewMarshaller() = 0;
    virtual XmlOldFamilyUnMarshaller* NewUnMarshaller() = 0;
    virtual XMLObjectFactory* NewBinderFactory() = 0;
    /// @}
};

/// Base of the contexts of the supplementary services, which take a namespace binder.
class IX_XML_EXPORT XmlOldBinderContext : public XmlOldFamilyContext {
  public:
    XMLMarshaller* createMarshaller() override;
    XMLUnMarshaller* createUnMarshaller() override;
    int SetNamespaceBinder(XMLObject* binder) override;

  private:
    XMLObject* m_pNamespaceBinder = nullptr;  ///< Not owned.
};

/// The objects of a schema that is only read: what its context creates, and the constants of its unmarshaller.
#define IX_OLD_READING_FAMILY(context, unMarshaller, binderFactory)                        \
    XmlOldFamilyUnMarshaller* context::NewUnMarshaller() { return IX_NEW(unMarshaller); }  \
    XMLObjectFactory* context::NewBinderFactory() { return IX_NEW(binderFactory); }        \
    const XmlOldUnMarshallerInfo& unMarshaller::Info() const { return kUnMarshallerInfo; } \
    static_assert(true, "takes the semicolon")

/// The same of a schema that is written, too.
#define IX_OLD_FAMILY(context, marshaller, unMarshaller, binderFactory)             \
    XmlOldFamilyMarshaller* context::NewMarshaller() { return IX_NEW(marshaller); } \
    IX_OLD_READING_FAMILY(context, unMarshaller, binderFactory)
/// @}

#endif
