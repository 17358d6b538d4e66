/// @file
/// Writes a tree as its standard says: the schema's order, its main namespace as default namespace, usual prefixes for
/// the others, declared on the root when they are used.
#ifndef IX_XML_WRITER_H
#define IX_XML_WRITER_H

#include "XmlBinding.h"
#include "XmlRest.h"

class XmlWriter {
  public:
    explicit XmlWriter(const XmlSchemaInfo& schema) : m_schema(schema), m_main(ixUri(ixMainNamespace(schema))) {}
    ~XmlWriter();
    XmlWriter(const XmlWriter&) = delete;
    XmlWriter& operator=(const XmlWriter&) = delete;

    static constexpr std::size_t kLongestProblem = 200;

    /// @return the text, to be freed with `__free`; NULL: see `Problem`.
    char* Write(const XMLElement* root);
    /// Why there is no text.
    const char* Problem() const { return m_problem; }

  private:
    /// What the element around one is.
    struct Around {
        XmlUri uri;         ///< Its namespace.
        XmlUri defaultUri;  ///< The default namespace within it.
        std::size_t depth;
    };
    /// How the element of an object is called.
    struct Name {
        XmlSlice local;
        XmlNamespace ns = XmlNamespace::Parent;
    };
    /// A list that is being written.
    struct Entries {
        const XmlField* row = nullptr;
        const IxSingleElementNode* node = nullptr;  ///< The next one.
        const XmlRestItem* run = nullptr;           ///< What the rest has behind the next entry that has anything.
        XmlNameTable here;                          ///< All entries, when there is a rest: some may have gone.
    };
    /// A prefix that the text uses.
    struct Prefix {
        XmlSlice text;
        bool isUsed = false;
    };

    bool Root(const XMLElement& root);
    bool Declarations(std::size_t at);
    bool Object(const XMLElement& element, const Name& name, const Around& around);
    bool Attributes(const XMLElement& element, const XmlFieldTable& table, const XmlSlice& name);
    bool Attribute(const XmlSlice& name, const XmlSlice& value);
    bool OtherAttributes(const XMLElement& element, const XmlField& row);
    bool RestAttribute(const XmlRestItem& item);
    bool Children(const XMLElement& element, const XmlFieldTable& table, const XmlSlice& name, const Around& inside);
    bool Field(const XMLElement& element, const XmlField& row, const XmlSlice& name, const Around& inside);
    bool OpenList(const XMLElement& element, const XmlField& row, Entries& entries);
    bool NextEntry(const XMLElement& element, Entries& entries, const Around& inside);
    bool LeaveRun(Entries& entries, const Around& inside);
    bool CloseList(Entries& entries, const Around& inside);
    bool List(const XMLElement& element, const XmlField& row, const XmlField* other, const Around& inside);
    bool Child(const XMLElement& parent, const XmlField& row, const XMLElement& child, const Around& inside);
    bool Value(const XmlField& row, const XmlRestItem* run, const XmlSlice& text, const Around& inside);
    bool Behind(const XmlRestItem* run, const Around& inside);
    bool Piece(const XmlRestItem& item, XmlUri defaultUri);
    bool NameOf(const XmlField& row, const XMLElement& child, Name& name);
    bool ValueText(const XMLElement& element, const XmlField& row, XmlSlice& text, bool& isSet);
    static const XmlRestItem* Given(const XMLElement& element, const XmlField& row);
    bool Start(const XmlSlice& local, XmlUri uri, XmlUri& defaultUri, std::size_t& nameAt, std::size_t& nameLength);
    bool Close(std::size_t content, std::size_t nameAt, std::size_t nameLength);
    bool UriOf(const char* text, XmlUri& uri);
    bool Take(const XmlSlice& prefix, bool& isNew);
    bool PrefixOf(XmlUri uri, const XmlSlice& wanted, XmlSlice& prefix);
    bool Escaped(const XmlSlice& text, bool isAttribute);
    bool Put(const char* text, std::size_t length) { return m_text.Append(text, length) || FailMemory(); }
    bool Put(const char* text) { return Put(text, std::strlen(text)); }
    bool Put(const XmlSlice& text) { return Put(text.text, text.length); }
    bool Fail(const char* what, const XmlSlice& element, const char* name = nullptr);
    bool FailMemory() { return Fail("no memory", {}); }

    const XmlSchemaInfo& m_schema;
    XmlUri m_main;
    XmlUri m_rootUri = 0;
    XmlArray<char, 0> m_text;
    XmlUriTable m_uris;
    XmlUri m_lastUri = 0;  ///< The one that was asked for last; 0: none.
    const char* m_lastUriText = nullptr;
    XmlArray<Prefix> m_prefixes;  ///< By number of the namespace.
    XmlNameTable m_taken;         ///< Prefixes that stand for something.
    XmlArray<char*> m_made;       ///< Texts of prefixes that are made up.
    char m_number[24] = {};
    bool m_isChanged = false;  ///< An application has added to a rest: the text is read once more.
    char m_problem[kLongestProblem] = {};
};

#endif
