/// @file
/// A document of one kind as one object: it reads, holds and writes it, and says why when it cannot.
///
/// ```cpp
/// XmlDocument<ix_reginfo> document(IX_XML_PROFILE_STANDARD);
/// if (!document.Read(text)) std::puts(document.Problem());
/// ```
///
/// A program needs this header and that of its schema, which has the class of the root. With them come fields
/// (XmlFields.h), changes (XmlEdit.h), escaped texts (XmlMarkup.h) and rests (XmlRest.h).
#ifndef IX_XML_DOCUMENT_H
#define IX_XML_DOCUMENT_H

#include <utility>

#include "XMLFactory.h"
#include "XmlEdit.h"
#include "XmlFields.h"
#include "XmlMarkup.h"

/// What documents of all kinds have in common.
///
/// Operations that answer false or NULL leave a problem; the others clear it.
class IX_XML_EXPORT XmlDocumentBase {
  public:
    /// @name Reading. The new tree takes the place of an earlier one. On failure there is none.
    /// @{
    bool Read(const char* text);
    /// The `length` characters at `text`, which need no NUL behind them. The device profile reads up to the first NUL
    /// among them.
    bool Read(const char* text, std::size_t length);
    /// A file of the platform layer, by its name.
    bool ReadFile(const char* fileName);
    /// @}

    /// A new root without content takes the place of an earlier tree.
    bool Create();

    /// @return the text of the document, which belongs to this object until its next `Write` or its end; NULL when it
    /// cannot be written, and when it is longer than the device profile writes (`XMLMarshaller::IsTruncated`).
    const char* Write() { return WriteTree(m_root.get()); }
    /// The same for a part of the tree, where the schema writes parts alone: a rule, a condition ...
    const char* Write(XMLElement& part) { return WriteTree(&part); }

    /// True when there is a tree.
    explicit operator bool() const { return m_root != nullptr; }

    /// Why the last operation failed: "line 3, column 14: " where the place is known, and what is wrong; "" when it did
    /// not. It belongs to this object. The device profile knows no places, and its log lines tell more.
    const char* Problem() const { return m_problem; }
    /// Where, from 1 on; 0: it has no place in a text.
    int Line() const { return m_line; }
    int Column() const { return m_column; }

    /// As `XMLContext::SetNamespaceBinder`, at any time: the root of a `XmlDocument<ix_schema_namespace_retrieval>`,
    /// which must live as long as this one reads or writes. NULL: none. What `Factory` and `Write` have yielded ends.
    /// @return false when the schema takes none in this profile.
    bool SetNamespaceBinder(XMLObject* binder);

  protected:
    XmlDocumentBase(eXMLSchemaID schema, eXMLProfile profile, const XmlClass& root)
        : m_schema(schema), m_profile(profile), m_pClass(&root) {}
    XmlDocumentBase(XmlDocumentBase&& other) noexcept;
    XmlDocumentBase& operator=(XmlDocumentBase&& other) noexcept;
    ~XmlDocumentBase() = default;

    XMLObjectFactory* BinderFactory();
    /// Takes over a tree; NULL: none.
    void SetTree(XMLElement* root) { m_root.reset(root); }
    XMLElement* Tree() const { return m_root.get(); }
    XMLElement* ReleaseTree() { return m_root.release(); }

  private:
    static constexpr std::size_t kLongestProblem = 256;

    XMLContext* Context();
    XMLUnMarshaller* Reader();
    XMLMarshaller* Writer();
    const char* WriteTree(XMLElement* root);
    bool Keep(XMLElement* root, const XMLUnMarshaller& reader);
    bool Fail(const XmlProblem& problem);
    bool Fail(const char* what) { return Fail({0, 0, what}); }
    void Say(const char* text, std::size_t length);
    void Say(const char* text);
    void SayNumber(int number);
    void Clear();

    eXMLSchemaID m_schema;
    eXMLProfile m_profile;
    const XmlClass* m_pClass;
    XMLObject* m_pBinder = nullptr;  ///< Not owned.
    XmlOwnedContext m_context;       ///< Made when it is needed, as are the three below, which belong to it.
    XMLUnMarshaller* m_pReader = nullptr;
    XMLMarshaller* m_pWriter = nullptr;
    XMLObjectFactory* m_pFactory = nullptr;
    XmlOwned<> m_root;
    int m_line = 0;
    int m_column = 0;
    char m_problem[kLongestProblem] = {};
};

/// A document whose root is of the class `Root`. It can be moved; one that was moved has no tree.
template <class Root>
class XmlDocument : public XmlDocumentBase {
  public:
    using Binder = typename Root::Document::Factory;  ///< The class of its schema's binder factory.

    explicit XmlDocument(eXMLProfile profile = IX_XML_PROFILE_DEVICE)
        : XmlDocumentBase(Root::Document::kSchema, profile, Root::kClass) {}

    /// The root; NULL: there is no tree.
    Root* Get() const { return static_cast<Root*>(Tree()); }
    Root* operator->() const { return Get(); }
    Root& operator*() const { return *Get(); }

    /// Takes over a tree in place of an earlier one, which is deleted; NULL: none.
    void Set(XmlOwned<Root> root) { SetTree(root.release()); }
    /// The tree, which then belongs to the caller.
    XmlOwned<Root> Release() { return XmlOwned<Root>(static_cast<Root*>(ReleaseTree())); }

    /// Creates the elements of the schema. It belongs to this object. NULL: see `Problem`.
    Binder* Factory() { return static_cast<Binder*>(BinderFactory()); }
};

/// A copy of `element` with all that is below it. NULL: see `XmlFields::Copy`.
template <class Element>
XmlOwned<Element> ixCopy(const Element& element) {
    return XmlOwned<Element>(static_cast<Element*>(XmlFields::Copy(element)));
}

/// Takes `entry` out of a list, with all that is below it. NULL: it is not in the list.
template <class Entry>
XmlOwned<Entry> ixTake(XMLElement& element, IxSingleElementList* const& list, Entry* entry) {
    return XmlOwned<Entry>(XmlEdit::Take(element, list, entry) != nullptr ? entry : nullptr);
}

#endif
