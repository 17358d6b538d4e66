/// @file
/// Makes a tree of what the standard profile's reader reports, by the descriptions of the classes.
#ifndef IX_XML_BINDING_H
#define IX_XML_BINDING_H

#include "XmlClass.h"
#include "XmlReader.h"
#include "XmlRoots.h"

/// What is wrong in a document that is read all the same.
class XmlFindings {
  public:
    virtual void Add(const char* place, const char* what, const XmlSlice& name) = 0;

  protected:
    ~XmlFindings() = default;
};

class XmlBinding {
  public:
    /// @param findings NULL: nobody asks.
    XmlBinding(const XmlSchemaInfo& schema, XmlReader& reader, XmlFindings* findings = nullptr)
        : m_schema(schema), m_reader(reader), m_pFindings(findings) {}

    /// @return the root, which belongs to the caller; NULL: `XmlReader::Problem` says why.
    XMLElement* Read();

  private:
    /// An open element: of an object, or of a field that holds a value.
    struct Frame {
        XMLElement* element;        ///< The object, or that of the field.
        const XmlField* field;      ///< NULL: an object.
        XmlUri uri;                 ///< The namespace it came in ...
        XmlUri proper;              ///< ... and that of its standard.
        std::uint64_t seen;         ///< Rows of the class that the document has said something about.
        const XmlField* lastField;  ///< Of the child before ...
        const void* lastEntry;      ///< ... and its entry in a list.
        XmlRestItem* kept;          ///< A field: the rest before it.
        XmlSlice text;
        bool takesText = false;
        std::size_t order = 0;  ///< The place of the last child's row among all rows, those of bases first.
    };
    /// A row that takes an element or an attribute.
    struct Place {
        const XmlField* row = nullptr;
        const XmlNamedClass* entry = nullptr;
        std::size_t at = 0;  ///< Among all rows of the class, its own first.

        std::uint64_t Bit() const { return std::uint64_t{1} << at; }
    };

    bool Root();
    bool Start();
    bool Text();
    bool KeepText(Frame& frame) { return frame.takesText || frame.text.text == nullptr || KeepOther(frame); }
    bool KeepOther(Frame& frame);
    /// White space counts within a text only.
    bool WantsBlanks() const {
        if (m_frames.Count() == 0) return false;
        const Frame& top = m_frames[m_frames.Count() - 1];
        return top.takesText || top.text.text != nullptr;
    }
    bool End();
    bool AddPair(XMLElement& element, const XmlField& row, const XmlSlice& name, const XmlSlice& value);
    bool AddDeclarations();
    bool Attributes(Frame& frame);
    bool Attribute(Frame& frame, XmlReaderAttribute& attribute);
    bool OpenObject(Frame& parent, const Place& place, XmlUri proper);
    bool OpenField(Frame& parent, const Place& place, XmlUri proper);
    bool KeepPiece(Frame& frame);
    bool Keep(XMLElement& element, const XmlRestItem& item, std::size_t nameLength, std::size_t textLength);
    bool KeepNamespace(XMLElement& element, const XmlField* field);
    bool CloseObject(Frame& frame);
    bool CloseField(Frame& frame);
    bool TakeValue(Frame& parent, const XmlField& row, XmlSlice text, const Frame* inside);
    bool StoreValue(XMLElement& element, const XmlField& row, const XmlSlice& text, const char* place = nullptr);
    bool StoreWords(XMLElement& element, const XmlField& row, const XmlSlice& text);
    static bool IsAlso(const Frame& frame, const XmlSlice& name);
    void CheckOrder(Frame& frame, const Place& place, const XmlSlice& name) const;
    bool TakesNamespace(XmlUri uri, XmlUri expected, XmlUri proper) const;
    static Place FindElement(const XmlClass& description, XmlName name);
    static Place FindAttribute(const XmlClass& description, XmlName name);
    /// @param place NULL: where the last event begins.
    void Find(const char* what, const XmlSlice& name, const char* place = nullptr) const {
        if (m_pFindings != nullptr) m_pFindings->Add(place != nullptr ? place : m_reader.Place(), what, name);
    }

    const XmlSchemaInfo& m_schema;
    XmlReader& m_reader;
    XmlFindings* m_pFindings;
    XMLElement* m_pRoot = nullptr;
    const XmlField* m_pDeclarations = nullptr;  ///< The row of a root that wants nothing else.
    XmlUri m_main = 0;
    XmlUri m_rootUri = 0;
    XmlArray<Frame> m_frames;
    XmlArray<char> m_piece;
};

/// @name Values
/// @{
/// The number that a text is. @return false when it is none, or does not fit into the row's field.
bool ixReadValue(const XmlField& row, XmlSlice text, long long& value);
/// @}

#endif
