/// @file
/// Registration information (RFC 3680): the registrations of a user, the body of a "reg" event notification; with the
/// GRUUs of RFC 5628 in the contacts.
///
/// - Root element: `reginfo`, with registrations, which have contacts.
/// - Namespaces: urn:ietf:params:xml:ns:reginfo and, for `pub-gruu` and `temp-gruu`, urn:ietf:params:xml:ns:gruuinfo.
///   They are not expected, and always written.
/// - Prefixes: removed; any prefix will do. Written: none, and "gr" for the GRUUs.
/// - Read and written. Other attributes are refused with a log line and lost. Of the unknown elements, those that are
///   known in another place are kept in a list and not written, the others are logged and lost.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_REGINFO_H
#define IX_XML_REGINFO_H

#include "XMLGruu.h"
#include "XmlFamily.h"

/// What a document tells. A text counts as the word that it begins with.
enum ix_reginfo_state_type_enum {
    IX_REGINFO_STATE_FULL,     ///< "full": all registrations.
    IX_REGINFO_STATE_PARTIAL,  ///< "partial": those that changed.
    IX_REGINFO_STATE_UNSET     ///< Not set; also what any other text is read as.
};

/// State of a registration: "init", "active", "terminated". Any text that does not begin with one of the first two is
/// read as terminated.
enum ix_registration_state_type_enum {
    IX_REGISTRATION_STATE_INIT,
    IX_REGISTRATION_STATE_ACTIVE,
    IX_REGISTRATION_STATE_TERMINATED,
    IX_REGISTRATION_STATE_UNSET  ///< Not set.
};

/// State of a contact: "active", "terminated". A text that begins with "registered" is read as
/// `IX_CONTACT_STATE_UNSET`, any other as the number behind it.
enum ix_contact_state_type_enum {
    IX_CONTACT_STATE_ACTIVE,
    IX_CONTACT_STATE_TERMINATED,
    IX_CONTACT_STATE_UNSET  ///< Not set, as are all numbers behind it.
};

/// What brought a contact into its state; the texts are the names in small letters. A text that begins with "init" is
/// read as `IX_CONTACT_EVENT_UNSET`, any other as the number behind it.
enum ix_contact_event_type_enum {
    IX_CONTACT_EVENT_REGISTERED,
    IX_CONTACT_EVENT_CREATED,
    IX_CONTACT_EVENT_REFRESHED,
    IX_CONTACT_EVENT_SHORTENED,
    IX_CONTACT_EVENT_EXPIRED,
    IX_CONTACT_EVENT_DEACTIVATED,
    IX_CONTACT_EVENT_PROBATION,
    IX_CONTACT_EVENT_UNREGISTERED,
    IX_CONTACT_EVENT_REJECTED,
    IX_CONTACT_EVENT_UNSET  ///< Not set, as are all numbers behind it.
};

/// The element `unknown-param`: a parameter of the Contact header field that has no attribute of its own. It takes its
/// name and its text; anything else is refused with a log line.
class IX_XML_EXPORT ix_unknown_param : public XmlDescribedObject {
  public:
    static const XmlClass kClass;

    ix_unknown_param() : XmlDescribedObject(kClass) {}
    ~ix_unknown_param() override { ixRelease(*this, kClass); }

    /// Copies `value`; NULL clears it. @return 1, or 0 without memory, the earlier value kept.
    int setValueValue(const char* value) { return ixSetText(mValue, value); }
    /// The same.
    int setTextValue(const char* value) { return ixSetText(mValue, value); }
    /// Copies `name`; NULL clears it. @return 1, or 0 without memory, the earlier name kept.
    int setNameValue(const char* name) { return ixSetText(mName, name); }

    char* mValue = nullptr;  ///< Owned, as it stood in the document; NULL: not set, written as one blank.
    char* mName = nullptr;   ///< Owned; NULL: not set. Mandatory in a written document.
};

/// The element `contact`: a binding of an address of record to a device. Elements and attributes that it does not know
/// are logged; the attributes are refused.
class IX_XML_EXPORT ix_ns_reginfo_contact : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_reginfo_contact() : XmlDescribedElement(kClass) {}
    ~ix_ns_reginfo_contact() override { ixRelease(*this, kClass); }

    /// @name Texts are copied; NULL clears them. @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setUriValue(const char* uri) { return ixSetText(mUri, uri); }
    int setDisplayNameValue(const char* displayName) { return ixSetText(mDisplayName, displayName); }
    int setIdValue(const char* id) { return ixSetText(mId, id); }
    int setQValue(const char* q) { return ixSetText(mQ, q); }
    int setCallidValue(const char* callid) { return ixSetText(mCallid, callid); }
    /// @}
    /// @name Numbers. @return 1.
    /// @{
    int setStateValue(ix_contact_state_type_enum state) { return ixSetNumber(mState, state); }
    int setEventValue(ix_contact_event_type_enum event) { return ixSetNumber(mEvent, event); }
    int setDurationRegisteredValue(std::int64_t seconds) { return ixSetNumber(mDurationRegistered, seconds); }
    int setExpiresValue(std::int64_t seconds) { return ixSetNumber(mExpires, seconds); }
    int setRetryAfterValue(std::int64_t seconds) { return ixSetNumber(mRetryAfter, seconds); }
    int setCseqValue(std::int64_t cseq) { return ixSetNumber(mCseq, cseq); }
    /// @}
    /// @name Lists pass to the element; the earlier one is deleted. NULL: none. @return 1.
    /// @{
    int setUnknownParamListValue(IxSingleElementList* list) { return ixSetList(*this, mUnknownParamList, list); }
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    /// @}
    /// @name Append an element, which then belongs to this one. @return 1, or 0 for NULL or without memory, when it
    /// stays with the caller.
    /// @{
    int addUnknownParam(ix_unknown_param* param) { return ixAdd(*this, mUnknownParamList, param); }
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }
    /// @}

    char* mUri = nullptr;                              ///< Owned; NULL: not set.
    char* mDisplayName = nullptr;                      ///< Owned; NULL: not set.
    IxSingleElementList* mUnknownParamList = nullptr;  ///< Owned `ix_unknown_param` objects; NULL: none.
    int mState = IX_CONTACT_STATE_UNSET;               ///< `ix_contact_state_type_enum`, from 2 on: not set. Mandatory.
    int mEvent = IX_CONTACT_EVENT_UNSET;               ///< `ix_contact_event_type_enum`, from 9 on: not set. Mandatory.
    std::int64_t mDurationRegistered = 0;              ///< Seconds; 0: not set.
    std::int64_t mExpires = 0;                         ///< Seconds that are left; 0: not set.
    std::int64_t mRetryAfter = 0;                      ///< Seconds to wait after a probation; 0: not set.
    char* mId = nullptr;                               ///< Owned; NULL: not set. Mandatory in a written document.
    char* mQ = nullptr;                                ///< Owned, the preference as text ("0.8"); NULL: not set.
    char* mCallid = nullptr;                           ///< Owned; NULL: not set.
    std::int64_t mCseq = 0;                            ///< Of the last REGISTER request; 0: not set.
    IxSingleElementList* mAnyElementList = nullptr;    ///< Owned elements of other classes: `ix_pub_gruu` and
                                                       ///< `ix_temp_gruu`; others are not written. NULL: none.
};

/// The element `registration`: an address of record and its contacts. Elements and attributes that it does not know are
/// logged; the attributes are refused.
class IX_XML_EXPORT ix_registration : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_registration() : XmlDescribedElement(kClass) {}
    ~ix_registration() override { ixRelease(*this, kClass); }

    /// @name Texts are copied; NULL clears them. @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setAorValue(const char* aor) { return ixSetText(mAor, aor); }
    int setIdValue(const char* id) { return ixSetText(mId, id); }
    /// @}
    /// @return 1.
    int setStateValue(ix_registration_state_type_enum state) { return ixSetNumber(mState, state); }
    /// @name Lists pass to the element; the earlier one is deleted. NULL: none. @return 1.
    /// @{
    int setContactListValue(IxSingleElementList* list) { return ixSetList(*this, mContactList, list); }
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    /// @}
    /// @name Append an element, which then belongs to this one. @return 1, or 0 for NULL or without memory, when it
    /// stays with the caller.
    /// @{
    int addContact(ix_ns_reginfo_contact* contact) { return ixAdd(*this, mContactList, contact); }
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }
    /// @}

    /// Owned `ix_ns_reginfo_contact` objects in document order; NULL: none. The list takes any number of them, but its
    /// count has 16 bits and starts again at 0 after 65535: walk it with `XmlEntries`, which is also the way to visit
    /// them all in linear time.
    IxSingleElementList* mContactList = nullptr;
    char* mAor = nullptr;  ///< Owned; the address of record, a URI. NULL: not set. Mandatory in a written document.
    char* mId = nullptr;   ///< Owned; NULL: not set, written as an empty text.
    int mState = IX_REGISTRATION_STATE_UNSET;        ///< `ix_registration_state_type_enum`, from 3 on: not set. An
                                                     ///< unknown word is read as terminated. Mandatory.
    IxSingleElementList* mAnyElementList = nullptr;  ///< Owned elements of other classes, not written; NULL: none.
};

/// The root element `reginfo`. Elements and attributes that it does not know are logged; the attributes are refused.
class IX_XML_EXPORT ix_reginfo : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_REGINFO, class ReginfoDataBinder>;

    ix_reginfo() : XmlDescribedObject(kClass) {}
    ~ix_reginfo() override { ixRelease(*this, kClass); }

    /// @name Numbers. @return 1.
    /// @{
    int setStateValue(ix_reginfo_state_type_enum state) { return ixSetNumber(mState, state); }
    int setVersionValue(unsigned int version) { return ixSetNumber(mVersion, version); }
    /// @}
    /// @name Lists pass to the element; the earlier one is deleted. NULL: none. @return 1.
    /// @{
    int setRegistrationListValue(IxSingleElementList* list) { return ixSetList(*this, mRegistrationList, list); }
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    /// @}
    /// @name Append an element, which then belongs to this one. @return 1, or 0 for NULL or without memory, when it
    /// stays with the caller.
    /// @{
    int addRegistration(ix_registration* registration) { return ixAdd(*this, mRegistrationList, registration); }
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }
    /// @}

    IxSingleElementList* mRegistrationList = nullptr;  ///< Owned `ix_registration` objects in document order; NULL:
                                                       ///< none. Past 65535 of them as in `mContactList`.
    int mState = IX_REGINFO_STATE_UNSET;               ///< `ix_reginfo_state_type_enum`, from 2 on: not set. Mandatory.
    unsigned int mVersion = 0;  ///< One more in each notification of a subscription. Always written.
    IxSingleElementList* mAnyElementList = nullptr;  ///< Owned elements of other classes, not written; NULL: none.
};

class IX_XML_EXPORT ReginfoDataBinder : public XMLObjectFactory {
  public:
    /// @name New objects with every field at its default; NULL without memory. They belong to the caller.
    /// @{
    XMLElement* CreateRootElement() override;
    ix_registration* CreateRegistrationElement();
    ix_ns_reginfo_contact* CreateContactElement();
    ix_unknown_param* CreateUnknownParamElement();
    ix_pub_gruu* CreatePubGruuElement();
    ix_temp_gruu* CreateTempGruuElement();
    /// @}
};

class IX_XML_EXPORT ReginfoUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    ReginfoUnMarshaller();
};

/// Writes the XML declaration and the document.
class IX_XML_EXPORT ReginfoMarshaller : public XmlFamilyMarshaller {
  public:
    ReginfoMarshaller();

    /// @name Writers. @return 1, or 0 for NULL, or when a mandatory field is missing, here or below. A list entry that
    /// is NULL or of another class fails its element, too.
    /// @{
    int AddReginfoElementToXml(ix_reginfo* reginfo);
    int AddRegistrationElementToXml(ix_registration* registration);
    /// Of the elements of other classes, GRUUs are written; the others are skipped with a log line.
    int AddReginfoContactElementToXml(ix_ns_reginfo_contact* contact);
    int AddUnknownParamElementToXml(ix_unknown_param* param);
    /// Without a URI the start tag stays unterminated, and the contact around it is written all the same.
    int AddPubGruuElementToXml(ix_pub_gruu* gruu);
    /// As `AddPubGruuElementToXml`.
    int AddTempGruuElementToXml(ix_temp_gruu* gruu);
    /// @}

  private:
    int AddContactStartTag(const ix_ns_reginfo_contact& contact);
    void AddAnyElementToXml(XMLElement* element);
};

class IX_XML_EXPORT ReginfoContext : public XmlFamilyContext {
  public:
    ReginfoContext();
};

#endif
