/// @file
/// Presence document (PIDF, RFC 3863) with the OMA service description (XMLOmaPres.h) and the service capabilities of
/// RFC 5196 (XMLCaps.h).
///
/// - Root element: `presence`, with the attribute `entity`, tuples and notes.
/// - Namespace: urn:ietf:params:xml:ns:pidf. The three namespaces are always written, and never expected.
/// - Prefixes: removed when read; written are none for PIDF, `op` and `caps` for the extensions.
/// - Read and written: tuples with `id`, `basic`, `contact` and its `priority`, `timestamp`, notes, service
///   descriptions and capabilities; notes of the presentity.
/// - Lost: all other elements and attributes, the language of a note, namespace declarations, and what stands in a
///   `status` beside `basic`.
///
/// Because names are compared without prefix, elements of other namespaces that have the local name of one of ours are
/// taken for it where they meet an object that takes it: a `note` of a person or device becomes one of the presentity,
/// a `basic` below a `status` its value.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_PRESENCE_H
#define IX_XML_PRESENCE_H

#include "XMLCaps.h"
#include "XMLOmaPres.h"
#include "XmlFamily.h"

/// The element `note`: a comment for people.
class IX_XML_EXPORT ix_note : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_note() : XmlDescribedElement(kClass) {}
    ~ix_note() override { ixRelease(*this, kClass); }

    /// Copies `text`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setTextValue(const char* text) { return ixSetText(mText, text); }

    char* mText = nullptr;  ///< The element's own text. Owned; NULL: not set.
};

/// The element `contact`: where a tuple can be reached.
class IX_XML_EXPORT ix_contact : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_contact() : XmlDescribedElement(kClass) {}
    ~ix_contact() override { ixRelease(*this, kClass); }

    /// Each copies its text; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setValueValue(const char* value) { return ixSetText(mValue, value); }
    int setPriorityValue(const char* priority) { return ixSetText(mPriority, priority); }

    char* mValue = nullptr;     ///< The element's own text, a URI. Owned; NULL: not set.
    char* mPriority = nullptr;  ///< Attribute `priority`, "0" to "1", as it stands. Owned; NULL: not set.
};

/// Its own namespace, because other schemas have a class of the same name.
namespace PresenceNameSpace {

/// The element `status` of a tuple. The status of a disposition notification (XMLImdn.h) has the same class name, and
/// is another class all the same: `ixIs` and `ixAs` tell them apart.
class IX_XML_EXPORT ix_status : public XmlDescribedElement {
  public:
    static const XmlClass kClass;
    static constexpr int kNotSet = 2;

    ix_status() : XmlDescribedElement(kClass) {}
    ~ix_status() override { ixRelease(*this, kClass); }

    /// @return 1.
    int setBasicValue(int basic) { return ixSetNumber(mBasic, basic); }
    /// Takes over the list in place of the earlier one, which is deleted; NULL: none. @return 1.
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    /// Appends an element, which then belongs to this one. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }

    int mBasic = kNotSet;  ///< Element `basic`: 0 "open", 1 "closed", `kNotSet`. Longer words count by their beginning.
    IxSingleElementList* mAnyElementList = nullptr;  ///< Other children. Owned, not written; NULL: none.
};

}  // namespace PresenceNameSpace

/// The element `tuple`: one way to communicate with the presentity.
class IX_XML_EXPORT ix_tuple : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_tuple() : XmlDescribedElement(kClass) {}
    ~ix_tuple() override { ixRelease(*this, kClass); }

    /// Each takes over its object in place of the earlier one, which is deleted; NULL: none. @return 1.
    int setStatusValue(PresenceNameSpace::ix_status* status) { return ixSetChild(mStatus, status); }
    int setContactValue(ix_contact* contact) { return ixSetChild(mContact, contact); }
    /// Each copies its text; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setTimestampValue(const char* timestamp) { return ixSetText(mTimestamp, timestamp); }
    int setIdValue(const char* id) { return ixSetText(mId, id); }
    /// Each takes over its list in place of the earlier one, which is deleted; NULL: none. @return 1.
    int setNoteListValue(IxSingleElementList* list) { return ixSetList(*this, mNoteList, list); }
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    /// Each appends an element, which then belongs to the tuple. @return 1, or 0 for NULL or without memory, when it
    /// stays with the caller.
    int addNote(ix_note* note) { return ixAdd(*this, mNoteList, note); }
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }

    PresenceNameSpace::ix_status* mStatus = nullptr;  ///< Owned; NULL: none.
    ix_contact* mContact = nullptr;                   ///< Owned; NULL: none.
    char* mTimestamp = nullptr;                       ///< Element `timestamp`, as it stands. Owned; NULL: not set.
    IxSingleElementList* mNoteList = nullptr;         ///< Owned `ix_note`s; NULL: none.
    /// Other children: `ix_ns_oma_pres_service_description`s and `ix_ns_caps_servcaps`s are written, in their order,
    /// and no others. Owned; NULL: none.
    IxSingleElementList* mAnyElementList = nullptr;
    char* mId = nullptr;  ///< Attribute `id`. Owned; NULL: not set. Mandatory in a written document.
};

/// The element `presence`: what is known of one presentity.
class IX_XML_EXPORT ix_presence : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_PRESENCE, class PresenceDataBinder>;

    ix_presence() : XmlDescribedObject(kClass) {}
    ~ix_presence() override { ixRelease(*this, kClass); }

    /// Each takes over its list in place of the earlier one, which is deleted; NULL: none. @return 1.
    int setTupleListValue(IxSingleElementList* list) { return ixSetList(*this, mTupleList, list); }
    int setNoteListValue(IxSingleElementList* list) { return ixSetList(*this, mNoteList, list); }
    /// Copies `entity`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setEntityValue(const char* entity) { return ixSetText(mEntity, entity); }
    /// Each appends an element, which then belongs to the document. @return 1, or 0 for NULL or without memory, when it
    /// stays with the caller.
    int addTuple(ix_tuple* tuple) { return ixAdd(*this, mTupleList, tuple); }
    int addNote(ix_note* note) { return ixAdd(*this, mNoteList, note); }

    IxSingleElementList* mTupleList = nullptr;  ///< Owned `ix_tuple`s; NULL: none.
    IxSingleElementList* mNoteList = nullptr;   ///< Owned `ix_note`s; NULL: none.
    char* mEntity = nullptr;  ///< Attribute `entity`, the presentity's URI. Owned; NULL: not set. Mandatory in a
                              ///< written document.
};

class IX_XML_EXPORT PresenceDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_presence`, empty; NULL without memory.
    XMLElement* CreateRootElement() override;
    /// @name New objects for the tree, empty; NULL without memory.
    /// @{
    ix_tuple* CreateTupleElement();
    PresenceNameSpace::ix_status* CreateStatusElement();
    ix_contact* CreateContactElement();
    ix_note* CreateNoteElement();
    ix_ns_oma_pres_service_description* CreateServiceDescriptionElement();
    ix_ns_caps_servcaps* CreateServcapsElement();
    ix_ns_caps_duplextype* CreateDuplexElement();
    ix_ns_caps_duplextypes* CreateDuplexTypesElement();
    ix_string* CreateStringElement();
    /// @}
};

class IX_XML_EXPORT PresenceUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    PresenceUnMarshaller();
};

/// Writes the XML declaration and the document. A tuple is written in the order status, extensions, contact, timestamp,
/// notes. Whatever fails gives up the whole document at once.
class IX_XML_EXPORT PresenceMarshaller : public XmlFamilyMarshaller {
  public:
    PresenceMarshaller();

    /// @return 1, or 0 for NULL, without an entity, or when a child fails.
    int AddPresenceElementToXml(ix_presence* presence);
    /// @return 1, or 0 for NULL, without an id, or when a child fails.
    int AddTupleElementToXml(ix_tuple* tuple);
    /// @name Parts of a tuple. @return 1, or 0 for NULL.
    /// @{
    int AddStatusElementToXml(PresenceNameSpace::ix_status* element);
    int AddContactElementToXml(ix_contact* element);
    int AddNoteElementToXml(ix_note* element);
    /// @}
    /// @name Extensions, with prefix; afterwards no prefix is set. @return 1, or 0 for NULL or without memory for a
    /// prefix.
    /// @{
    int AddServiceDescriptionElementToXml(ix_ns_oma_pres_service_description* element);
    int AddServcapsElementToXml(ix_ns_caps_servcaps* element);
    int AddDuplexElementToXml(ix_ns_caps_duplextype* element);
    /// The kinds of duplex, one element each.
    int AddDuplexTypesElementToXml(ix_ns_caps_duplextypes* element);
    /// @}

  private:
    int AddNotes(const IxSingleElementList* notes);
    int AddExtension(XMLElement* element);
    int AddSupport(e_XmlStrRef name, ix_ns_caps_duplextypes* element);
    void AddFlag(e_XmlStrRef name, int flag);
    void AddKind(e_XmlStrRef name, const ix_string* kind);
};

class IX_XML_EXPORT PresenceContext : public XmlFamilyContext {
  public:
    PresenceContext();
};

#endif
