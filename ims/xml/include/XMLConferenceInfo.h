/// @file
/// Conference information (RFC 4575): the state of a conference, as its focus notifies it.
///
/// - Root element: `conference-info`; each `entry` of `sidebars-by-val` is a conference in its turn.
/// - Namespace: urn:ietf:params:xml:ns:conference-info. It is not expected; it is written as the default namespace.
/// - Prefixes: none. Names are compared as they stand, so elements with a prefix are not recognised.
/// - Read and written, with the attributes that the schema does not know. Elements that it does not know are lost, and
///   so are the attributes of text elements, repeated elements that may occur once (but for the last), counts and
///   versions of 0, words of an enumeration that it does not have, and the white space around keywords and languages.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_CONFERENCE_INFO_H
#define IX_XML_CONFERENCE_INFO_H

#include "XmlFamily.h"

/// @name Enumerations
/// The value behind the last word means 'not set', and so does any other value that has no word. A text stands for the
/// first word that it begins with.
/// @{

/// What a notification says of an element.
enum eConferenceInfoState {
    IX_CONFERENCE_STATE_FULL,
    IX_CONFERENCE_STATE_PARTIAL,
    IX_CONFERENCE_STATE_DELETED,
    IX_CONFERENCE_STATE_NOT_SET
};

/// How an endpoint came into the conference.
enum eConferenceJoiningMethod {
    IX_CONFERENCE_JOINING_DIALED_IN,
    IX_CONFERENCE_JOINING_DIALED_OUT,
    IX_CONFERENCE_JOINING_FOCUS_OWNER,
    IX_CONFERENCE_JOINING_NOT_SET
};

/// Direction of a media stream.
enum eConferenceMediaStatus {
    IX_CONFERENCE_MEDIA_RECVONLY,
    IX_CONFERENCE_MEDIA_SENDONLY,
    IX_CONFERENCE_MEDIA_SENDRECV,
    IX_CONFERENCE_MEDIA_INACTIVE,
    IX_CONFERENCE_MEDIA_NOT_SET
};

enum eConferenceEndpointStatus {
    IX_CONFERENCE_ENDPOINT_PENDING,
    IX_CONFERENCE_ENDPOINT_DIALING_OUT,
    IX_CONFERENCE_ENDPOINT_DIALING_IN,
    IX_CONFERENCE_ENDPOINT_ALERTING,
    IX_CONFERENCE_ENDPOINT_ON_HOLD,
    IX_CONFERENCE_ENDPOINT_CONNECTED,
    IX_CONFERENCE_ENDPOINT_MUTED_VIA_FOCUS,
    IX_CONFERENCE_ENDPOINT_DISCONNECTING,
    IX_CONFERENCE_ENDPOINT_DISCONNECTED,
    IX_CONFERENCE_ENDPOINT_NOT_SET
};

/// Why an endpoint left the conference.
enum eConferenceDisconnectionMethod {
    IX_CONFERENCE_DISCONNECTION_DEPARTED,
    IX_CONFERENCE_DISCONNECTION_BOOTED,
    IX_CONFERENCE_DISCONNECTION_FAILED,
    IX_CONFERENCE_DISCONNECTION_BUSY,
    IX_CONFERENCE_DISCONNECTION_NOT_SET
};
/// @}

/// @name Elements
/// Texts, children and lists are owned; NULL: not set. A setter copies a text, takes over a child or list in place of
/// an earlier one, which is freed, and stores a number. It answers 1, or 0 without memory for a text, when the earlier
/// text is kept. An `add` operation appends to a list, which it creates; it answers 1, or 0 for NULL or without
/// memory, when an object stays with the caller.
/// @{

/// What all elements share: attributes that the schema does not know.
class IX_XML_EXPORT ix_conference_containerType : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ~ix_conference_containerType() override { ixRelease(*this, kClass); }

    int setExtraAttributeListValue(IxSingleElementList* list) { return ixSetList(*this, mExtraAttributeList, list); }
    int addExtraAttribute(ix_AttributeValuePair* pair) { return ixAdd(*this, mExtraAttributeList, pair); }

    IxSingleElementList* mExtraAttributeList = nullptr;  ///< `ix_AttributeValuePair`s, in the order of the tag.

  protected:
    explicit ix_conference_containerType(const XmlClass& description) : XmlDescribedElement(description) {}
};

/// What the elements share that can be sent in part.
class IX_XML_EXPORT ix_conference_statefulType : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    int setStateValue(int state) { return ixSetNumber(mState, state); }

    int mState = IX_CONFERENCE_STATE_NOT_SET;  ///< `eConferenceInfoState`.

  protected:
    explicit ix_conference_statefulType(const XmlClass& description) : ix_conference_containerType(description) {}
};

/// Who did something to a conference, when and why: `modified`, `referred`, `joining-info`, `disconnection-info`.
class IX_XML_EXPORT ix_execution_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_execution_type() : ix_conference_containerType(kClass) {}
    ~ix_execution_type() override { ixRelease(*this, kClass); }

    int setWhenValue(const char* when) { return ixSetText(mWhen, when); }
    int setReasonValue(const char* reason) { return ixSetText(mReason, reason); }
    int setByValue(const char* by) { return ixSetText(mBy, by); }

    char* mWhen = nullptr;  ///< Date and time, as RFC 3339 writes them.
    char* mReason = nullptr;
    char* mBy = nullptr;  ///< URI of who did it.
};

/// An `entry` of a list of URIs.
class IX_XML_EXPORT ix_uri_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_uri_type() : ix_conference_containerType(kClass) {}
    ~ix_uri_type() override { ixRelease(*this, kClass); }

    int setUriValue(const char* uri) { return ixSetText(mUri, uri); }
    int setDisplayTextValue(const char* text) { return ixSetText(mDisplayText, text); }
    int setPurposeValue(const char* purpose) { return ixSetText(mPurpose, purpose); }
    int setModifiedValue(ix_execution_type* modified) { return ixSetChild(mModified, modified); }

    char* mUri = nullptr;
    char* mDisplayText = nullptr;
    char* mPurpose = nullptr;  ///< "participation", "streaming", "web-page" and others.
    ix_execution_type* mModified = nullptr;
};

/// A list of URIs: `conf-uris`, `service-uris`, `uris`, `associated-aors`, `sidebars-by-ref`.
class IX_XML_EXPORT ix_uris_type : public ix_conference_statefulType {
  public:
    static const XmlClass kClass;

    ix_uris_type() : ix_conference_statefulType(kClass) {}
    ~ix_uris_type() override { ixRelease(*this, kClass); }

    int setEntryListValue(IxSingleElementList* list) { return ixSetList(*this, mEntryList, list); }
    int addEntry(ix_uri_type* entry) { return ixAdd(*this, mEntryList, entry); }

    IxSingleElementList* mEntryList = nullptr;  ///< `ix_uri_type`s.
};

/// An `entry` of `available-media`: a medium that the conference offers.
class IX_XML_EXPORT ix_conference_medium_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_conference_medium_type() : ix_conference_containerType(kClass) {}
    ~ix_conference_medium_type() override { ixRelease(*this, kClass); }

    int setLabelValue(const char* label) { return ixSetText(mLabel, label); }
    int setDisplayTextValue(const char* text) { return ixSetText(mDisplayText, text); }
    int setTypeValue(const char* type) { return ixSetText(mType, type); }
    int setStatusValue(int status) { return ixSetNumber(mStatus, status); }

    char* mLabel = nullptr;  ///< Mandatory in a written document.
    char* mDisplayText = nullptr;
    char* mType = nullptr;                      ///< "audio", "video" and so on.
    int mStatus = IX_CONFERENCE_MEDIA_NOT_SET;  ///< `eConferenceMediaStatus`.
};

/// The element `available-media`.
class IX_XML_EXPORT ix_conference_media_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_conference_media_type() : ix_conference_containerType(kClass) {}
    ~ix_conference_media_type() override { ixRelease(*this, kClass); }

    int setEntryListValue(IxSingleElementList* list) { return ixSetList(*this, mEntryList, list); }
    int addEntry(ix_conference_medium_type* entry) { return ixAdd(*this, mEntryList, entry); }

    IxSingleElementList* mEntryList = nullptr;  ///< `ix_conference_medium_type`s.
};

/// The element `conference-description`: what a conference is about, and how to reach it.
class IX_XML_EXPORT ix_conference_description_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_conference_description_type() : ix_conference_containerType(kClass) {}
    ~ix_conference_description_type() override { ixRelease(*this, kClass); }

    int setDisplayTextValue(const char* text) { return ixSetText(mDisplayText, text); }
    int setSubjectValue(const char* subject) { return ixSetText(mSubject, subject); }
    int setFreeTextValue(const char* text) { return ixSetText(mFreeText, text); }
    int setKeywordsValue(IxSingleElementList* keywords) { return ixSetList(*this, mKeywords, keywords); }
    int addKeyword(const char* keyword) { return ixAddText(*this, mKeywords, keyword); }
    int setConfUrisValue(ix_uris_type* uris) { return ixSetChild(mConfUris, uris); }
    int setServiceUrisValue(ix_uris_type* uris) { return ixSetChild(mServiceUris, uris); }
    int setMaximumUserCountValue(unsigned int count) { return ixSetNumber(mMaximumUserCount, count); }
    int setAvailableMediaValue(ix_conference_media_type* media) { return ixSetChild(mAvailableMedia, media); }

    char* mDisplayText = nullptr;
    char* mSubject = nullptr;
    char* mFreeText = nullptr;
    IxSingleElementList* mKeywords = nullptr;  ///< Texts, one a word.
    ix_uris_type* mConfUris = nullptr;         ///< Where to join or follow the conference.
    ix_uris_type* mServiceUris = nullptr;      ///< Web page, recording and so on.
    unsigned int mMaximumUserCount = 0;        ///< 0: not set.
    ix_conference_media_type* mAvailableMedia = nullptr;
};

/// The element `host-info`: who hosts the conference.
class IX_XML_EXPORT ix_host_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_host_type() : ix_conference_containerType(kClass) {}
    ~ix_host_type() override { ixRelease(*this, kClass); }

    int setDisplayTextValue(const char* text) { return ixSetText(mDisplayText, text); }
    int setWebPageValue(const char* page) { return ixSetText(mWebPage, page); }
    int setUrisValue(ix_uris_type* uris) { return ixSetChild(mUris, uris); }

    char* mDisplayText = nullptr;
    char* mWebPage = nullptr;  ///< URI.
    ix_uris_type* mUris = nullptr;
};

/// The element `conference-state`.
class IX_XML_EXPORT ix_conference_state_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_conference_state_type() : ix_conference_containerType(kClass) {}
    ~ix_conference_state_type() override { ixRelease(*this, kClass); }

    int setUserCountValue(unsigned int count) { return ixSetNumber(mUserCount, count); }
    int setActiveValue(int active) { return ixSetNumber(mActive, active); }
    int setLockedValue(int locked) { return ixSetNumber(mLocked, locked); }

    unsigned int mUserCount = 0;  ///< 0: not set.
    int mActive = 0;              ///< 1: the conference has begun. Always written.
    int mLocked = 0;              ///< 1: nobody can join. Always written.
};

/// The element `roles` of a user.
class IX_XML_EXPORT ix_user_roles_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_user_roles_type() : ix_conference_containerType(kClass) {}
    ~ix_user_roles_type() override { ixRelease(*this, kClass); }

    int setEntryListValue(IxSingleElementList* list) { return ixSetList(*this, mEntryList, list); }
    int addEntry(const char* role) { return ixAddText(*this, mEntryList, role); }

    IxSingleElementList* mEntryList = nullptr;  ///< Texts, such as "participant".
};

/// The element `sip` of `call-info`: the dialog between endpoint and focus.
class IX_XML_EXPORT ix_sip_dialog_id_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_sip_dialog_id_type() : ix_conference_containerType(kClass) {}
    ~ix_sip_dialog_id_type() override { ixRelease(*this, kClass); }

    int setDisplayTextValue(const char* text) { return ixSetText(mDisplayText, text); }
    int setCallIdValue(const char* id) { return ixSetText(mCallId, id); }
    int setFromTagValue(const char* tag) { return ixSetText(mFromTag, tag); }
    int setToTagValue(const char* tag) { return ixSetText(mToTag, tag); }

    char* mDisplayText = nullptr;
    char* mCallId = nullptr;
    char* mFromTag = nullptr;
    char* mToTag = nullptr;
};

/// The element `call-info` of an endpoint.
class IX_XML_EXPORT ix_call_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_call_type() : ix_conference_containerType(kClass) {}
    ~ix_call_type() override { ixRelease(*this, kClass); }

    int setSipValue(ix_sip_dialog_id_type* sip) { return ixSetChild(mSip, sip); }

    ix_sip_dialog_id_type* mSip = nullptr;
};

/// The element `media` of an endpoint: one media stream.
class IX_XML_EXPORT ix_media_type : public ix_conference_containerType {
  public:
    static const XmlClass kClass;

    ix_media_type() : ix_conference_containerType(kClass) {}
    ~ix_media_type() override { ixRelease(*this, kClass); }

    int setIdValue(const char* id) { return ixSetText(mId, id); }
    int setDisplayTextValue(const char* text) { return ixSetText(mDisplayText, text); }
    int setTypeValue(const char* type) { return ixSetText(mType, type); }
    int setLabelValue(const char* label) { return ixSetText(mLabel, label); }
    int setSrcIdValue(const char* id) { return ixSetText(mSrcId, id); }
    int setStatusValue(int status) { return ixSetNumber(mStatus, status); }

    char* mId = nullptr;  ///< Mandatory in a written document.
    char* mDisplayText = nullptr;
    char* mType = nullptr;                      ///< "audio", "video" and so on.
    char* mLabel = nullptr;                     ///< Of the medium in `available-media`.
    char* mSrcId = nullptr;                     ///< The RTP synchronisation source.
    int mStatus = IX_CONFERENCE_MEDIA_NOT_SET;  ///< `eConferenceMediaStatus`.
};

/// The element `endpoint` of a user: one device or session.
class IX_XML_EXPORT ix_endpoint_type : public ix_conference_statefulType {
  public:
    static const XmlClass kClass;

    ix_endpoint_type() : ix_conference_statefulType(kClass) {}
    ~ix_endpoint_type() override { ixRelease(*this, kClass); }

    int setEntityValue(const char* entity) { return ixSetText(mEntity, entity); }
    int setDisplayTextValue(const char* text) { return ixSetText(mDisplayText, text); }
    int setReferredValue(ix_execution_type* referred) { return ixSetChild(mReferred, referred); }
    int setStatusValue(int status) { return ixSetNumber(mStatus, status); }
    int setJoiningMethodValue(int method) { return ixSetNumber(mJoiningMethod, method); }
    int setJoiningInfoValue(ix_execution_type* info) { return ixSetChild(mJoiningInfo, info); }
    int setDisconnectionMethodValue(int method) { return ixSetNumber(mDisconnectionMethod, method); }
    int setDisconnectionInfoValue(ix_execution_type* info) { return ixSetChild(mDisconnectionInfo, info); }
    int setMediaListValue(IxSingleElementList* list) { return ixSetList(*this, mMediaList, list); }
    int addMedia(ix_media_type* media) { return ixAdd(*this, mMediaList, media); }
    int setCallInfoValue(ix_call_type* info) { return ixSetChild(mCallInfo, info); }

    char* mEntity = nullptr;  ///< URI.
    char* mDisplayText = nullptr;
    ix_execution_type* mReferred = nullptr;
    int mStatus = IX_CONFERENCE_ENDPOINT_NOT_SET;        ///< `eConferenceEndpointStatus`.
    int mJoiningMethod = IX_CONFERENCE_JOINING_NOT_SET;  ///< `eConferenceJoiningMethod`.
    ix_execution_type* mJoiningInfo = nullptr;
    int mDisconnectionMethod = IX_CONFERENCE_DISCONNECTION_NOT_SET;  ///< `eConferenceDisconnectionMethod`.
    ix_execution_type* mDisconnectionInfo = nullptr;
    IxSingleElementList* mMediaList = nullptr;  ///< `ix_media_type`s.
    ix_call_type* mCallInfo = nullptr;
};

/// The element `user`: a participant.
class IX_XML_EXPORT ix_user_type : public ix_conference_statefulType {
  public:
    static const XmlClass kClass;

    ix_user_type() : ix_conference_statefulType(kClass) {}
    ~ix_user_type() override { ixRelease(*this, kClass); }

    int setEntityValue(const char* entity) { return ixSetText(mEntity, entity); }
    int setDisplayTextValue(const char* text) { return ixSetText(mDisplayText, text); }
    int setAssociatedAorsValue(ix_uris_type* aors) { return ixSetChild(mAssociatedAors, aors); }
    int setRolesValue(ix_user_roles_type* roles) { return ixSetChild(mRoles, roles); }
    int setLanguagesValue(IxSingleElementList* languages) { return ixSetList(*this, mLanguages, languages); }
    int addLanguage(const char* language) { return ixAddText(*this, mLanguages, language); }
    int setCascadedFocusValue(const char* focus) { return ixSetText(mCascadedFocus, focus); }
    int setEndpointListValue(IxSingleElementList* list) { return ixSetList(*this, mEndpointList, list); }
    int addEndpoint(ix_endpoint_type* endpoint) { return ixAdd(*this, mEndpointList, endpoint); }

    char* mEntity = nullptr;  ///< URI.
    char* mDisplayText = nullptr;
    ix_uris_type* mAssociatedAors = nullptr;
    ix_user_roles_type* mRoles = nullptr;
    IxSingleElementList* mLanguages = nullptr;     ///< Texts, one a language tag.
    char* mCascadedFocus = nullptr;                ///< URI of the conference that the user stands for.
    IxSingleElementList* mEndpointList = nullptr;  ///< `ix_endpoint_type`s.
};

/// The element `users`.
class IX_XML_EXPORT ix_users_type : public ix_conference_statefulType {
  public:
    static const XmlClass kClass;

    ix_users_type() : ix_conference_statefulType(kClass) {}
    ~ix_users_type() override { ixRelease(*this, kClass); }

    int setUserListValue(IxSingleElementList* list) { return ixSetList(*this, mUserList, list); }
    int addUser(ix_user_type* user) { return ixAdd(*this, mUserList, user); }

    IxSingleElementList* mUserList = nullptr;  ///< `ix_user_type`s.
};

class ix_conference_type;

/// The element `sidebars-by-val`: conferences beside the conference.
class IX_XML_EXPORT ix_sidebars_by_val_type : public ix_conference_statefulType {
  public:
    static const XmlClass kClass;

    ix_sidebars_by_val_type() : ix_conference_statefulType(kClass) {}
    ~ix_sidebars_by_val_type() override { ixRelease(*this, kClass); }

    int setEntryListValue(IxSingleElementList* list) { return ixSetList(*this, mEntryList, list); }
    int addEntry(ix_conference_type* entry) { return ixAdd(*this, mEntryList, entry); }

    IxSingleElementList* mEntryList = nullptr;  ///< `ix_conference_type`s.
};

/// The element `conference-info`, and each `entry` of `sidebars-by-val`.
class IX_XML_EXPORT ix_conference_type : public ix_conference_statefulType {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_CONFERENCE_INFO, class ConferenceInfoDataBinder>;

    ix_conference_type() : ix_conference_statefulType(kClass) {}
    ~ix_conference_type() override { ixRelease(*this, kClass); }

    int setEntityValue(const char* entity) { return ixSetText(mEntity, entity); }
    int setVersionValue(unsigned int version) { return ixSetNumber(mVersion, version); }
    int setConferenceDescriptionValue(ix_conference_description_type* description) {
        return ixSetChild(mConferenceDescription, description);
    }
    int setHostInfoValue(ix_host_type* host) { return ixSetChild(mHostInfo, host); }
    int setConferenceStateValue(ix_conference_state_type* state) { return ixSetChild(mConferenceState, state); }
    int setUsersValue(ix_users_type* users) { return ixSetChild(mUsers, users); }
    int setSidebarsByRefValue(ix_uris_type* sidebars) { return ixSetChild(mSidebarsByRef, sidebars); }
    int setSidebarsByValValue(ix_sidebars_by_val_type* sidebars) { return ixSetChild(mSidebarsByVal, sidebars); }

    char* mEntity = nullptr;    ///< URI. Mandatory in a written document.
    unsigned int mVersion = 0;  ///< Counts the notifications; 0: not set.
    ix_conference_description_type* mConferenceDescription = nullptr;
    ix_host_type* mHostInfo = nullptr;
    ix_conference_state_type* mConferenceState = nullptr;
    ix_users_type* mUsers = nullptr;
    ix_uris_type* mSidebarsByRef = nullptr;
    ix_sidebars_by_val_type* mSidebarsByVal = nullptr;
};
/// @}

/// Each creator makes one new, empty object, which belongs to the caller; NULL without memory.
class IX_XML_EXPORT ConferenceInfoDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_conference_type`.
    XMLElement* CreateRootElement() override;

    ix_conference_type* CreateConferenceInfoType();
    ix_user_roles_type* CreateUserRolesType();
    ix_sip_dialog_id_type* CreateSIPDialogIDType();
    /// An empty list, for `setLanguagesValue`.
    IxSingleElementList* CreateUserLanguagesType();
    ix_media_type* CreateMediaType();
    /// An empty list, for `setKeywordsValue`.
    IxSingleElementList* CreateKeywordsType();
    ix_execution_type* CreateExecutionType();
    ix_uri_type* CreateURIType();
    ix_uris_type* CreateURIsType();
    ix_conference_medium_type* CreateConferenceMediumType();
    /// Required: the operation is spelt like this.
    ix_conference_media_type* CreateConferenceMedaiType();
    ix_conference_description_type* CreateConferenceDescriptionType();
    ix_call_type* CreateCallType();
    ix_endpoint_type* CreateEndPointType();
    ix_user_type* CreateUserType();
    ix_users_type* CreateUsersType();
    ix_host_type* CreateHostType();
    ix_conference_state_type* CreateConferenceStateType();
    ix_sidebars_by_val_type* CreateSideBarsByValueType();
};

class IX_XML_EXPORT ConferenceInfoUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    ConferenceInfoUnMarshaller();
};

/// Writes the XML declaration and the conference, without prefixes. A sidebar that cannot be written is left out; any
/// other element that lacks a mandatory attribute fails the document.
///
/// The writers answer 1, or 0 for NULL and for an element that cannot be written.
class IX_XML_EXPORT Conference_infoMarshall : public XmlFamilyMarshaller {
  public:
    Conference_infoMarshall();

    /// Writes a conference as the element `name`. Sidebars that would begin past the capacity are not looked at, so
    /// that the depth of the calls is bounded by it, whatever the depth of the tree.
    int AddConferenceInfoElementToXml(ix_conference_type* conference, e_XmlStrRef name);
    int AddConferenceDescriptionElementToXml(ix_conference_description_type* description);
    int AddHostInfoElementToXml(ix_host_type* host);
    int AddConferenceStateElementToXml(ix_conference_state_type* state);
    int AddIUsersElementToXml(ix_users_type* users);
    int AddUserElementToXml(ix_user_type* user);
    int AddEndPointElementToXml(ix_endpoint_type* endpoint);
    int AddMediaElementToXml(ix_media_type* media);
    int AddSipElementToXml(ix_sip_dialog_id_type* sip);
    /// The content only: the element that it stands in is the caller's.
    int AddExecutionTypeElementToXml(ix_execution_type* execution);
    /// Writes a list of URIs as the element `name`.
    int AddUrisTypeElementToXml(ix_uris_type* uris, e_XmlStrRef name);
    /// The content only.
    int AddUriTypeElementToXml(ix_uri_type* uri);
    int AddConferenceMediaTypeElementToXml(ix_conference_media_type* media);
    /// The content only.
    int AddConferenceMediumTypeElementToXml(ix_conference_medium_type* medium);

  private:
    void StartContainer(e_XmlStrRef name, const ix_conference_containerType& element, int state, const char* entity);
    void StartContainer(e_XmlStrRef name, const ix_conference_containerType& element);
    int AddConference(const ix_conference_type& conference, e_XmlStrRef name);
    void AddSidebars(const ix_sidebars_by_val_type& sidebars);
    int AddUriEntry(ix_uri_type* uri);
    int AddMediumEntry(ix_conference_medium_type* medium, int index);
    void AddExecution(e_XmlStrRef name, ix_execution_type* execution);
    void AddCallInfo(const ix_call_type& info);
    void AddRoles(const ix_user_roles_type& roles);
    void AddWords(e_XmlStrRef name, const IxSingleElementList* words);

    int m_depth = 0;  ///< Of the conference that is written.
};

class IX_XML_EXPORT ConferenceInfoContext : public XmlFamilyContext {
  public:
    ConferenceInfoContext();
};

/// Assembles a small conference with the operations above and writes it.
/// @return the text, which the caller frees (`FreeElement`); NULL without memory.
IX_XML_EXPORT char* TestConference_infoMarshall();

#endif
