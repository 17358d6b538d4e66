/// @file
/// The base of the schemas' decoders: turns the tokenizer's events into objects.
#ifndef IX_XML_FAMILY_DECODER_H
#define IX_XML_FAMILY_DECODER_H

#include "XMLStack.h"
#include "XmlCommon.h"
#include "XmlDecoder.h"
#include "XmlElementSupport.h"
#include "XmlHooks.h"
#include "XmlNamespaceTable.h"

/// What a decoder compares names with.
enum class XmlNamePolicy {
    Mapped,    ///< The document's prefixes replaced by the schema's canonical ones, as far as they are known.
    Stripped,  ///< The local names.
    Raw        ///< The names as they stand in the document.
};

/// A name that a decoder knows: a local name, and the prefix it may or must have.
struct XmlKnownName {
    enum Prefix { None, Optional, Required };

    XmlName local;
    Prefix use = None;
    e_XmlStrRef prefix = IX_STR_IX_NULL;

    constexpr XmlKnownName(XmlName name) : local(name) {}
    constexpr XmlKnownName(e_XmlStrRef name) : local(name) {}
    constexpr XmlKnownName(XmlExtraName name) : local(name) {}
    constexpr XmlKnownName(XmlName name, Prefix prefixUse, e_XmlStrRef prefixName)
        : local(name), use(prefixUse), prefix(prefixName) {}
};

/// An element that a decoder makes an object of. Rows are made by the functions below; those of one name stand
/// together.
struct XmlContainerRow {
    enum Role {
        Root,   ///< Becomes the result and goes on the stack.
        Child,  ///< Offered to the object on top; goes on the stack when that takes it.
        Text,   ///< A child whose end tag offers it its text, under "/" and the local name, before anything is popped.
        Leaf    ///< Offered to the object on top; never on the stack.
    };

    XmlKnownName name;
    Role role;
    const XmlClass* made;              ///< Class of the object.
    bool endsAnything;                 ///< The end tag pops whatever is on top, and not only an object of the class.
    int line;                          ///< Source line of the row, under which the object is registered; 0 in a
                                       ///< shared table: `XmlDecoderInfo::pairLine`.
    const XmlClass* parent = nullptr;  ///< The row counts only while an object of this class is on top; NULL: always.
    const char* endsAs = nullptr;      ///< The class that the end tag asks for in place of that of `made`; NULL: none.
    /// Makes the object, where that needs its name as compared; NULL: `made` does.
    XMLElement* (*make)(const char* name, const char* source, int line) = nullptr;

    /// @name What else a row may say
    /// @{
    constexpr XmlContainerRow Inside(const XmlClass& top) const {
        return ixWith(*this, &XmlContainerRow::parent, &top);
    }
    constexpr XmlContainerRow EndsAs(const char* className) const {
        return ixWith(EndsItsOwn(), &XmlContainerRow::endsAs, className);
    }
    constexpr XmlContainerRow EndsAnything() const { return ixWith(*this, &XmlContainerRow::endsAnything, true); }
    constexpr XmlContainerRow EndsItsOwn() const { return ixWith(*this, &XmlContainerRow::endsAnything, false); }
    constexpr XmlContainerRow MadeBy(XMLElement* (*maker)(const char* name, const char* source, int line)) const {
        return ixWith(*this, &XmlContainerRow::make, maker);
    }
    /// A source line that is fixed from outside.
    constexpr XmlContainerRow At(int fixed) const { return ixWith(*this, &XmlContainerRow::line, fixed); }
    /// @}
};

/// The functions that make the rows of containers.
namespace XmlContainer {

template <class Element>
constexpr XmlContainerRow Make(XmlContainerRow::Role role, XmlKnownName name, int line) {
    return {name, role, &Element::kClass, role == XmlContainerRow::Root, line};
}

/// A root, whose end tag pops whatever is on top.
template <class Element>
constexpr XmlContainerRow Root(XmlKnownName name, int line = __builtin_LINE()) {
    return Make<Element>(XmlContainerRow::Root, name, line);
}
template <class Element>
constexpr XmlContainerRow Child(XmlKnownName name, int line = __builtin_LINE()) {
    return Make<Element>(XmlContainerRow::Child, name, line);
}
/// A child with a text of its own.
template <class Element>
constexpr XmlContainerRow Text(XmlKnownName name, int line = __builtin_LINE()) {
    return Make<Element>(XmlContainerRow::Text, name, line);
}
template <class Element>
constexpr XmlContainerRow Leaf(XmlKnownName name, int line = __builtin_LINE()) {
    return Make<Element>(XmlContainerRow::Leaf, name, line);
}

}  // namespace XmlContainer

/// The rows of a decoder, and where those of each name begin.
struct XmlContainerTable {
    const XmlContainerRow* rows = nullptr;
    std::size_t count = 0;
    const std::uint8_t* firstOf =
        nullptr;  ///< By the number of the local name: the first row's place and one; 0: none.
};

/// @name Tables of containers
/// @{
struct XmlContainerIndex {
    std::uint8_t firstOf[kXmlNameCount] = {};
};

template <std::size_t count>
constexpr XmlContainerIndex ixIndexOf(const XmlContainerRow (&rows)[count]) {
    static_assert(count < 256, "a place fits into a byte");
    XmlContainerIndex index;
    for (std::size_t i = count; i > 0; --i) index.firstOf[rows[i - 1].name.local.number] = static_cast<std::uint8_t>(i);
    return index;
}

/// The index of the rows `rows`, made once at compile time.
template <const auto& rows>
constexpr XmlContainerIndex kXmlContainerIndex = ixIndexOf(rows);

template <const auto& rows>
constexpr XmlContainerTable ixContainers() {
    return {rows, sizeof rows / sizeof *rows, kXmlContainerIndex<rows>.firstOf};
}
/// @}

/// Who gets the attributes of an element. Those that the receiver's class has a row for come as they are, when the
/// element is the one that the receiver stands for; all others as a pair.
enum class XmlAttributePolicy {
    Top,         ///< The object on top of the stack, whatever element it stands for.
    Own,         ///< The object of the element itself, if it has one on the stack.
    OwnNoPairs,  ///< ... and only the known attributes.
    RootPairs    ///< ... and unknown ones only when the element is a root.
};

/// The log lines of a decoder; those left out are not logged.
struct XmlDecoderTexts {
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
struct XmlDecoderInfo {
    const char* source = nullptr;
    XmlNamePolicy names = XmlNamePolicy::Raw;
    XmlAttributePolicy attributes = XmlAttributePolicy::Own;
    XmlDecoderTexts texts{};
    XmlContainerTable containers{};
    const XmlContainerTable* shared = nullptr;  ///< Containers that count, too.
    const XmlNamespaceRow* namespaces = nullptr;
    std::size_t namespaceCount = 0;
    int pairLine = 0;            ///< Source line under which attribute pairs are registered, and shared containers.
    bool wrapsNameSize = false;  ///< Room for a name without prefix is counted in 16 bits: a longer one is cut.
};

/// What most decoders are: a table of containers `rows`.
template <const auto& rows>
constexpr XmlDecoderInfo ixDecoderInfo(const char* source, int line = __builtin_LINE()) {
    XmlDecoderInfo info;
    info.source = source;
    info.containers = ixContainers<rows>();
    info.pairLine = line;
    return info;
}

/// @name The log lines of most decoders
/// Their texts name the decoder, and a device sees the formats, so each is a literal of its own.
/// @{

/// About a name that could not be copied without its prefix. It names the decoder that the namespace operations were
/// taken from.
#define IX_REMOVE_TAG_TEXT(origin) \
    XmlLogText(2, kDecoderCode, __LINE__, origin " :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory")
/// About events without an element ...
#define IX_NO_ELEMENT_TEXT(decoder) \
    XmlLogText(3, "<XML Module>" decoder " :: ProcessElement: n_strElement is NULL", __LINE__)
#define IX_NO_ATTRIBUTE_TEXT(decoder) \
    XmlLogText(3, "<XML Module>" decoder " :: ProcessAttribute: n_strElement is NULL", __LINE__)
/// ... and about missing names, which name the copies of the names that the decoder works on.
#define IX_NO_ELEMENT_NAME_TEXT(decoder, copies) \
    XmlLogText(3, "<XML Module>" decoder " :: ProcessElement: " copies " is NULL", __LINE__)
#define IX_NO_ATTRIBUTE_NAME_TEXT(decoder, copy) \
    XmlLogText(3, "<XML Module>" decoder " :: ProcessAttribute: " copy " is NULL", __LINE__)
/// @}

/// Start tags of known elements create an object; end tags take it off the stack again. Any other element goes to the
/// object on top of the stack.
///
/// When it ends, the decoder frees accepted children that their parent did not keep, and roots that a later root
/// replaced. It never frees the result.
class IX_XML_EXPORT XmlFamilyDecoder : public XmlDecoderSchema {
  public:
    ~XmlFamilyDecoder() override;

    int Reserved() override { return 0; }
    int ProcessAttribute(char* element, char* attribute, char* value) override;
    int ProcessElement(char* element, char* text) override;
    int ProcessEndOfStartTag(char* element) override;
    XMLElement* GetSessionData() override { return m_pSessionData; }

    /// Says whose events are to come; it knows the lengths of the names. Without one they are counted.
    void SetTokenizer(const XmlDecoder* tokenizer) { m_pTokenizer = tokenizer; }
    /// Takes over the prefixes of a binder (see `XMLContext::SetNamespaceBinder`). NULL, or a binder without
    /// namespaces, changes nothing. @return 1.
    int SetNameSpaceBinderInfo(XMLObject* binder);
    /// Maps the prefix of `tag` (with or without a leading "/") to the canonical one. @return 1, the result in
    /// `MappedTag`; 0 for NULL or without memory.
    int XMLChangeNamespaceTag(const char* tag);
    /// Removes the prefix. @return 1, the result in `PassName`; 0 for NULL or without memory.
    int XMLRemoveNameSpaceTag(const char* tag);
    /// Result of the last `XMLChangeNamespaceTag`; NULL before it, or when it failed. After an event it can stand in
    /// the tokenizer's text, up to the next event.
    char* MappedTag() const { return m_pMappedTag; }
    /// Result of the last `XMLRemoveNameSpaceTag`; NULL before it, or when it failed. After an event as above.
    char* PassName() const { return m_pPassName; }

  protected:
    explicit XmlFamilyDecoder(const XmlDecoderInfo& info);

    /// A start tag, its name as the decoder compares it.
    virtual int StartElement(const XmlTag& tag);
    virtual int EndElement(const XmlTag& tag, char* text);
    /// An element that is none of the containers: goes to the object on top of the stack.
    virtual int OtherElement(const XmlTag& tag, char* text);
    /// An attribute that `receiver` has a row for, of the very element that it stands for.
    virtual int KnownAttribute(XMLElement& receiver, const XmlField& row, const XmlTag& attribute, char* value);
    /// Any other attribute: goes to `receiver` as a pair.
    virtual int OtherAttribute(XMLElement& receiver, const XmlTag& attribute, char* value);
    /// The object of a start tag may be the result. The default: when it is that of a root.
    virtual bool IsResult(const XmlContainerRow& row) const { return row.role == XmlContainerRow::Root; }

    /// The length of a name in the event that is being handled.
    std::size_t LengthOf(const char* name) const;
    /// The object on top of the stack, or NULL.
    XMLElement* Top() const { return m_stack.empty() ? nullptr : static_cast<XMLElement*>(m_stack.top()); }
    /// Puts a new object on the stack; the attributes that follow are its own. A full stack drops it.
    void Push(XMLElement* object);
    /// Takes the object on top off the stack, if it is of the class.
    void Pop(const XmlClass& description);
    /// Offers a new object to `receiver`. One that is refused is deleted, and goes off the stack if it was pushed
    /// before. @return true when it was taken.
    bool Offer(XMLElement& receiver, const XmlTag& tag, XMLElement* object);
    /// Makes `root` the result in place of an earlier one, which the decoder then frees when it ends. @return false
    /// without memory, when the earlier one stays and `root` is deleted.
    bool SetSessionData(XMLElement* root);

  private:
    /// The start tag whose attributes come next.
    struct StartTag {
        bool isOpen = false;                   ///< There is one.
        const char* reported = nullptr;        ///< Its name in the events of the tokenizer; NULL: it is none of them.
        XmlWorkText name;                      ///< A copy for attributes that other callers bring.
        const XmlContainerRow* row = nullptr;  ///< Of its name; NULL: no container.
        XMLElement* own = nullptr;             ///< The object that it put on the stack, if it did.
    };

    const XmlContainerRow* FirstRow(XmlName local) const;
    const XmlContainerRow* FirstRow(const XmlTag& tag) const;
    const XmlContainerRow* NextRow(const XmlContainerRow* row) const;
    static bool Matches(const XmlContainerRow& row, const XmlTag& tag, XmlTag& local);
    const XmlContainerRow* FindContainer(const XmlTag& tag, XmlTag& local) const;
    static const XmlField* KnownRow(const XmlContainerRow* row, const XMLElement& receiver, XmlName attribute);
    bool EndContainer(const XmlContainerRow& row, const XmlTag& tag, char* text, bool& offered);
    bool IsReported(const char* name) const { return m_pTokenizer != nullptr && m_pTokenizer->IsReported(name); }
    int MapPrefix(char* tag, std::size_t length, const XmlElementName* known);
    int RemovePrefix(char* tag, std::size_t length, const XmlElementName* known);
    char* ComparedName(char* element, std::size_t length, const XmlElementName* known);
    XmlName ComparedNumber(const char* name, const char* element, const XmlElementName* known) const;
    void KeepStarted(const char* element, std::size_t length);
    bool IsStarted(const char* element, const char* attribute) const;
    bool KeepOrphan(XMLElement* object);

    XmlCodeGenStack m_stack;
    XMLElement* m_pSessionData = nullptr;
    StartTag m_started;
    XmlNamespaceTable m_namespaces;
    char* m_pMappedTag = nullptr;
    char* m_pPassName = nullptr;
    const XmlDecoder* m_pTokenizer = nullptr;

    const XmlDecoderInfo& m_info;
    XmlWorkText m_mappedText;
    XmlWorkText m_passText;
    XMLElement** m_orphans = nullptr;
    std::size_t m_orphanCount = 0;
    std::size_t m_orphanSize = 0;
};

#endif
