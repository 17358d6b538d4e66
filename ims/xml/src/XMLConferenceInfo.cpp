#include "XMLConferenceInfo.h"

#include <iterator>

#include "ConferenceInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLConferenceInfo";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLConferenceInfoDecoder, "ConferenceInfoUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {ix_conference_type::kClassName,
     [](XmlOldFamilyMarshaller& self, XMLElement* root) -> int {
         return static_cast<Conference_infoMarshall&>(self).AddConferenceInfoElementToXml(
             static_cast<ix_conference_type*>(root), IX_STR_CONFERENCE_INFO);
     }},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    info.entersFirst = true;
    IX_OLD_MARSHALL_TEXTS(info, "Conference_infoMarshall", "mConferenceInfoXml");
    // Required: the text is spelt like this.
    info.noRoot = {3, kSchemaCode, __LINE__, "<XML Module>: Conference_infoMarshall :: Marshall: Receiven NULL Object"};
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kAddConferenceInfo = {2, kSchemaCode, __LINE__, "<XML Module>: AddConferenceInfoElementToXml"};
constexpr XmlLogText kNoEntity = {4, kSchemaCode, __LINE__,
                                  "<XML Module>: AddConferenceInfoElementToXml entity attribute is mandatory"};
constexpr XmlLogText kSidebarFailed = {2, kSchemaCode, __LINE__,
                                       "<XML Module>: Add Sidebars_by_val ElementToXml fail @ tempNum: %d "};
constexpr XmlLogText kAddDescription = {2, kSchemaCode, __LINE__, "<XML Module>: AddConferenceDescriptionElementToXml"};
constexpr XmlLogText kAddHostInfo = {2, kSchemaCode, __LINE__, "<XML Module>: AddHostInfoElementToXml"};
constexpr XmlLogText kAddState = {2, kSchemaCode, __LINE__, "<XML Module>: AddConferenceStateElementToXml"};
constexpr XmlLogText kAddUsers = {2, kSchemaCode, __LINE__, "<XML Module>: AddIUsersElementToXml"};
constexpr XmlLogText kUserFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddIUsersElementToXml tempNum: %d "};
// Required: the text is spelt like this.
constexpr XmlLogText kAddUser = {2, kSchemaCode, __LINE__, "<XML Module>: AddUserElementToXkjml"};
constexpr XmlLogText kAddEndPoint = {2, kSchemaCode, __LINE__, "<XML Module>: AddEndPointElementToXml"};
constexpr XmlLogText kMediaFailed = {2, kSchemaCode, __LINE__,
                                     "<XML Module>: issue in Media Element number [tempNum: %d] "};
constexpr XmlLogText kAddMedia = {2, kSchemaCode, __LINE__, "<XML Module>: AddMediaElementToXml"};
constexpr XmlLogText kNoId = {4, kSchemaCode, __LINE__, "<XML Module>: AddMediaElementToXml: id attribute mandatory "};
constexpr XmlLogText kAddSip = {2, kSchemaCode, __LINE__, "<XML Module>: AddSipElementToXml"};
constexpr XmlLogText kAddExecution = {2, kSchemaCode, __LINE__, "<XML Module>: AddExecutionTypeElementToXml"};
constexpr XmlLogText kAddUris = {2, kSchemaCode, __LINE__, "<XML Module>: AddUrisTypeElementToXml"};
constexpr XmlLogText kUriFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddUrisTypeElementToXml tempNum: %d "};
constexpr XmlLogText kAddUri = {2, kSchemaCode, __LINE__, "<XML Module>: AddUriTypeElementToXml"};
constexpr XmlLogText kAddConferenceMedia = {2, kSchemaCode, __LINE__,
                                            "<XML Module>: AddConferenceMediaTypeElementToXml"};
constexpr XmlLogText kNoLabel = {
    4, kSchemaCode, __LINE__, "<XML Module>: AddConferenceMediaTypeElementToXml: label attribute mandatory tempNum:%d"};
constexpr XmlLogText kMediumFailed = {2, kSchemaCode, __LINE__,
                                      "<XML Module>: AddConferenceMediaTypeElementToXml tempNum: %d "};
constexpr XmlLogText kAddMedium = {2, kSchemaCode, __LINE__, "<XML Module>: AddConferenceMediumTypeElementToXml"};

// Contiguous: the words of one enumeration follow those of another.
constexpr char kWords[][100] = {
    "dialed-in",    "dialed-out",  "focus-owner",                  // joining methods
    "recvonly",     "sendonly",    "sendrecv",        "inactive",  // media status
    "pending",      "dialing-out", "dialing-in",      "alerting",  // endpoint status ...
    "on-hold",      "connected",   "muted-via-focus", "disconnecting",
    "disconnected",                            // ... to here
    "full",         "partial",     "deleted",  // states
};
constexpr char kDisconnectionWords[][100] = {"departed", "booted", "failed", "busy"};
constexpr std::size_t kWordSize = sizeof kWords[0];

constexpr std::size_t kFirstMediaStatus = IX_CONFERENCE_JOINING_NOT_SET;
constexpr std::size_t kFirstEndpointStatus = kFirstMediaStatus + IX_CONFERENCE_MEDIA_NOT_SET;
constexpr std::size_t kFirstState = kFirstEndpointStatus + IX_CONFERENCE_ENDPOINT_NOT_SET;
static_assert(kFirstState + IX_CONFERENCE_STATE_NOT_SET == std::size(kWords), "each word belongs to an enumeration");

constexpr XmlEnumeration kJoiningMethods = {kWords[0], kWordSize, IX_CONFERENCE_JOINING_NOT_SET};
constexpr XmlEnumeration kMediaStatus = {kWords[kFirstMediaStatus], kWordSize, IX_CONFERENCE_MEDIA_NOT_SET};
constexpr XmlEnumeration kEndpointStatus = {kWords[kFirstEndpointStatus], kWordSize, IX_CONFERENCE_ENDPOINT_NOT_SET};
constexpr XmlEnumeration kStates = {kWords[kFirstState], kWordSize, IX_CONFERENCE_STATE_NOT_SET};
constexpr XmlEnumeration kDisconnectionMethods = {kDisconnectionWords[0], kWordSize,
                                                  IX_CONFERENCE_DISCONNECTION_NOT_SET};

int AppendWord(IxSingleElementList*& list, const char* word) {
    return ixAppendText(list, word, __strlen(word), kSourceFile, __LINE__);
}

/// Replaces a list of words by those of `text`. @return 1, or 0 without memory, the earlier list kept.
int SplitWords(IxSingleElementList*& field, const char* text) {
    IxSingleElementList* words = nullptr;
    while (text != nullptr && *text != '\0') {
        const char* const word = text;
        while (*text != '\0' && !XmlCommon::IsSpace(*text)) ++text;
        const auto length = static_cast<std::size_t>(text - word);
        if (length != 0 && ixAppendText(words, word, length, kSourceFile, __LINE__) == 0) {
            ix_xml_common_methods::DeleteTextList(words);
            return 0;
        }
        while (XmlCommon::IsSpace(*text)) ++text;
    }
    return ixSetTextList(field, words);
}

const char* BooleanText(int flag) {
    return ix_xml_common_array_definition::getStringName(flag == 1 ? IX_STR_TRUE : IX_STR_FALSE);
}

/// What a class answers for an element that it does not know: a text is ignored, an object refused.
int Unknown(const XMLElement* child) { return child == nullptr ? 1 : 0; }

constexpr XmlField kContainerFields[] = {
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_conference_containerType::mExtraAttributeList), 0,
     nullptr, "attributes"},
};
constexpr XmlFieldTable kContainerTable = {nullptr, kContainerFields, std::size(kContainerFields)};

constexpr XmlField kStatefulFields[] = {
    {XmlFieldKind::Enumeration, IX_STR_STATE, XmlIntMember(&ix_conference_statefulType::mState),
     IX_CONFERENCE_STATE_NOT_SET, &kStates},
};
constexpr XmlFieldTable kStatefulTable = {&kContainerTable, kStatefulFields, std::size(kStatefulFields)};

constexpr XmlField kExecutionFields[] = {
    {XmlFieldKind::Text, IX_STR_WHEN, XmlTextMember(&ix_execution_type::mWhen)},
    {XmlFieldKind::Text, IX_STR_REASON, XmlTextMember(&ix_execution_type::mReason)},
    {XmlFieldKind::Text, IX_STR_BY, XmlTextMember(&ix_execution_type::mBy)},
};
constexpr XmlField kUriFields[] = {
    {XmlFieldKind::Text, IX_STR_URI, XmlTextMember(&ix_uri_type::mUri)},
    {XmlFieldKind::Text, IX_STR_DISPLAY_TEXT, XmlTextMember(&ix_uri_type::mDisplayText)},
    {XmlFieldKind::Text, IX_STR_PURPOSE, XmlTextMember(&ix_uri_type::mPurpose)},
    {XmlFieldKind::Child, IX_STR_MODIFIED, IX_CHILD_MEMBER(ix_uri_type, mModified)},
};
constexpr XmlField kUrisFields[] = {
    {XmlFieldKind::ChildList, IX_STR_ENTRY, XmlListMember(&ix_uris_type::mEntryList)},
};
constexpr XmlField kMediumFields[] = {
    {XmlFieldKind::Text, IX_STR_LABEL, XmlTextMember(&ix_conference_medium_type::mLabel)},
    {XmlFieldKind::Text, IX_STR_DISPLAY_TEXT, XmlTextMember(&ix_conference_medium_type::mDisplayText)},
    {XmlFieldKind::Text, IX_STR_TYPE, XmlTextMember(&ix_conference_medium_type::mType)},
    {XmlFieldKind::Enumeration, IX_STR_STATUS, XmlIntMember(&ix_conference_medium_type::mStatus),
     IX_CONFERENCE_MEDIA_NOT_SET, &kMediaStatus},
};
constexpr XmlField kConferenceMediaFields[] = {
    {XmlFieldKind::ChildList, IX_STR_ENTRY, XmlListMember(&ix_conference_media_type::mEntryList)},
};
constexpr XmlField kDescriptionFields[] = {
    {XmlFieldKind::Text, IX_STR_DISPLAY_TEXT, XmlTextMember(&ix_conference_description_type::mDisplayText)},
    {XmlFieldKind::Text, IX_STR_SUBJECT, XmlTextMember(&ix_conference_description_type::mSubject)},
    {XmlFieldKind::Text, IX_STR_FREE_TEXT, XmlTextMember(&ix_conference_description_type::mFreeText)},
    {XmlFieldKind::TextList, IX_STR_KEYWORDS, XmlListMember(&ix_conference_description_type::mKeywords)},
    {XmlFieldKind::Child, IX_STR_CONF_URIS, IX_CHILD_MEMBER(ix_conference_description_type, mConfUris)},
    {XmlFieldKind::Child, IX_STR_SERVICE_URIS, IX_CHILD_MEMBER(ix_conference_description_type, mServiceUris)},
    {XmlFieldKind::Unsigned, IX_STR_MAXIMUM_USER_COUNT,
     XmlUnsignedMember(&ix_conference_description_type::mMaximumUserCount)},
    {XmlFieldKind::Child, IX_STR_AVAILABLE_MEDIA, IX_CHILD_MEMBER(ix_conference_description_type, mAvailableMedia)},
};
constexpr XmlField kHostFields[] = {
    {XmlFieldKind::Text, IX_STR_DISPLAY_TEXT, XmlTextMember(&ix_host_type::mDisplayText)},
    {XmlFieldKind::Text, IX_STR_WEB_PAGE, XmlTextMember(&ix_host_type::mWebPage)},
    {XmlFieldKind::Child, IX_STR_URIS, IX_CHILD_MEMBER(ix_host_type, mUris)},
};
constexpr XmlField kConferenceStateFields[] = {
    {XmlFieldKind::Unsigned, IX_STR_USER_COUNT, XmlUnsignedMember(&ix_conference_state_type::mUserCount)},
    {XmlFieldKind::Flag, IX_STR_ACTIVE, XmlIntMember(&ix_conference_state_type::mActive), kXmlAlwaysSet},
    {XmlFieldKind::Flag, IX_STR_LOCKED, XmlIntMember(&ix_conference_state_type::mLocked), kXmlAlwaysSet},
};
constexpr XmlField kRolesFields[] = {
    {XmlFieldKind::TextList, IX_STR_ENTRY, XmlListMember(&ix_user_roles_type::mEntryList)},
};
constexpr XmlField kSipFields[] = {
    {XmlFieldKind::Text, IX_STR_DISPLAY_TEXT, XmlTextMember(&ix_sip_dialog_id_type::mDisplayText)},
    {XmlFieldKind::Text, IX_STR_CALL_ID, XmlTextMember(&ix_sip_dialog_id_type::mCallId)},
    {XmlFieldKind::Text, IX_STR_FROM_TAG, XmlTextMember(&ix_sip_dialog_id_type::mFromTag)},
    {XmlFieldKind::Text, IX_STR_TO_TAG, XmlTextMember(&ix_sip_dialog_id_type::mToTag)},
};
constexpr XmlField kCallFields[] = {
    {XmlFieldKind::Child, IX_STR_SIP, IX_CHILD_MEMBER(ix_call_type, mSip)},
};
constexpr XmlField kMediaFields[] = {
    {XmlFieldKind::Text, IX_STR_ID, XmlTextMember(&ix_media_type::mId)},
    {XmlFieldKind::Text, IX_STR_DISPLAY_TEXT, XmlTextMember(&ix_media_type::mDisplayText)},
    {XmlFieldKind::Text, IX_STR_TYPE, XmlTextMember(&ix_media_type::mType)},
    {XmlFieldKind::Text, IX_STR_LABEL, XmlTextMember(&ix_media_type::mLabel)},
    {XmlFieldKind::Text, IX_STR_SRC_ID, XmlTextMember(&ix_media_type::mSrcId)},
    {XmlFieldKind::Enumeration, IX_STR_STATUS, XmlIntMember(&ix_media_type::mStatus), IX_CONFERENCE_MEDIA_NOT_SET,
     &kMediaStatus},
};
constexpr XmlField kEndpointFields[] = {
    {XmlFieldKind::Text, IX_STR_ENTITY, XmlTextMember(&ix_endpoint_type::mEntity)},
    {XmlFieldKind::Text, IX_STR_DISPLAY_TEXT, XmlTextMember(&ix_endpoint_type::mDisplayText)},
    {XmlFieldKind::Child, IX_STR_REFERRED, IX_CHILD_MEMBER(ix_endpoint_type, mReferred)},
    {XmlFieldKind::Enumeration, IX_STR_STATUS, XmlIntMember(&ix_endpoint_type::mStatus), IX_CONFERENCE_ENDPOINT_NOT_SET,
     &kEndpointStatus},
    {XmlFieldKind::Enumeration, IX_STR_JOINING_METHOD, XmlIntMember(&ix_endpoint_type::mJoiningMethod),
     IX_CONFERENCE_JOINING_NOT_SET, &kJoiningMethods},
    {XmlFieldKind::Child, IX_STR_JOINING_INFO, IX_CHILD_MEMBER(ix_endpoint_type, mJoiningInfo)},
    {XmlFieldKind::Enumeration, IX_STR_DISCONNECTION_METHOD, XmlIntMember(&ix_endpoint_type::mDisconnectionMethod),
     IX_CONFERENCE_DISCONNECTION_NOT_SET, &kDisconnectionMethods},
    {XmlFieldKind::Child, IX_STR_DISCONNECTION_INFO, IX_CHILD_MEMBER(ix_endpoint_type, mDisconnectionInfo)},
    {XmlFieldKind::ChildList, IX_STR_MEDIA, XmlListMember(&ix_endpoint_type::mMediaList)},
    {XmlFieldKind::Child, IX_STR_CALL_INFO, IX_CHILD_MEMBER(ix_endpoint_type, mCallInfo)},
};
constexpr XmlField kUserFields[] = {
    {XmlFieldKind::Text, IX_STR_ENTITY, XmlTextMember(&ix_user_type::mEntity)},
    {XmlFieldKind::Text, IX_STR_DISPLAY_TEXT, XmlTextMember(&ix_user_type::mDisplayText)},
    {XmlFieldKind::Child, IX_STR_ASSOCIATED_AORS, IX_CHILD_MEMBER(ix_user_type, mAssociatedAors)},
    {XmlFieldKind::Child, IX_STR_ROLES, IX_CHILD_MEMBER(ix_user_type, mRoles)},
    {XmlFieldKind::TextList, IX_STR_LANGUAGES, XmlListMember(&ix_user_type::mLanguages)},
    {XmlFieldKind::Text, IX_STR_CASCADED_FOCUS, XmlTextMember(&ix_user_type::mCascadedFocus)},
    {XmlFieldKind::ChildList, IX_STR_ENDPOINT, XmlListMember(&ix_user_type::mEndpointList)},
};
constexpr XmlField kUsersFields[] = {
    {XmlFieldKind::ChildList, IX_STR_USER, XmlListMember(&ix_users_type::mUserList)},
};
constexpr XmlField kSidebarsFields[] = {
    {XmlFieldKind::ChildList, IX_STR_ENTRY, XmlListMember(&ix_sidebars_by_val_type::mEntryList)},
};
constexpr XmlField kConferenceFields[] = {
    {XmlFieldKind::Text, IX_STR_ENTITY, XmlTextMember(&ix_conference_type::mEntity)},
    {XmlFieldKind::Unsigned, IX_STR_VERSION, XmlUnsignedMember(&ix_conference_type::mVersion)},
    {XmlFieldKind::Child, IX_STR_CONFERENCE_DESCRIPTION, IX_CHILD_MEMBER(ix_conference_type, mConferenceDescription)},
    {XmlFieldKind::Child, IX_STR_HOST_INFO, IX_CHILD_MEMBER(ix_conference_type, mHostInfo)},
    {XmlFieldKind::Child, IX_STR_CONFERENCE_STATE, IX_CHILD_MEMBER(ix_conference_type, mConferenceState)},
    {XmlFieldKind::Child, IX_STR_USERS, IX_CHILD_MEMBER(ix_conference_type, mUsers)},
    {XmlFieldKind::Child, IX_STR_SIDEBARS_BY_REF, IX_CHILD_MEMBER(ix_conference_type, mSidebarsByRef)},
    {XmlFieldKind::Child, IX_STR_SIDEBARS_BY_VAL, IX_CHILD_MEMBER(ix_conference_type, mSidebarsByVal)},
};

}  // namespace

/// The field table of a class, and the end of its objects, which follows from it.
#define IX_CONFERENCE_FIELDS(type, base, fields)                                      \
    static constexpr XmlFieldTable type##_table = {&base, fields, std::size(fields)}; \
    type::~type() { XmlFields::Release(this, type##_table); }                         \
    const XmlFieldTable* type::FieldTable() const { return &type##_table; }

IX_CONFERENCE_FIELDS(ix_execution_type, kContainerTable, kExecutionFields)
IX_CONFERENCE_FIELDS(ix_uri_type, kContainerTable, kUriFields)
IX_CONFERENCE_FIELDS(ix_uris_type, kStatefulTable, kUrisFields)
IX_CONFERENCE_FIELDS(ix_conference_medium_type, kContainerTable, kMediumFields)
IX_CONFERENCE_FIELDS(ix_conference_media_type, kContainerTable, kConferenceMediaFields)
IX_CONFERENCE_FIELDS(ix_conference_description_type, kContainerTable, kDescriptionFields)
IX_CONFERENCE_FIELDS(ix_host_type, kContainerTable, kHostFields)
IX_CONFERENCE_FIELDS(ix_conference_state_type, kContainerTable, kConferenceStateFields)
IX_CONFERENCE_FIELDS(ix_user_roles_type, kContainerTable, kRolesFields)
IX_CONFERENCE_FIELDS(ix_sip_dialog_id_type, kContainerTable, kSipFields)
IX_CONFERENCE_FIELDS(ix_call_type, kContainerTable, kCallFields)
IX_CONFERENCE_FIELDS(ix_media_type, kContainerTable, kMediaFields)
IX_CONFERENCE_FIELDS(ix_endpoint_type, kStatefulTable, kEndpointFields)
IX_CONFERENCE_FIELDS(ix_user_type, kStatefulTable, kUserFields)
IX_CONFERENCE_FIELDS(ix_users_type, kStatefulTable, kUsersFields)
IX_CONFERENCE_FIELDS(ix_sidebars_by_val_type, kStatefulTable, kSidebarsFields)
IX_CONFERENCE_FIELDS(ix_conference_type, kStatefulTable, kConferenceFields)

ix_conference_containerType::~ix_conference_containerType() { XmlFields::Release(this, kContainerTable); }

const XmlFieldTable* ix_conference_containerType::FieldTable() const { return &kContainerTable; }

int ix_conference_containerType::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/, XMLAttribute* pair) {
    ix_AttributeValuePair* const extra = ixAsPair(pair);
    return extra != nullptr ? addExtraAttribute(extra) : 0;
}

int ix_conference_containerType::addExtraAttribute(ix_AttributeValuePair* pair) {
    return ixAppend(mExtraAttributeList, pair, kSourceFile, __LINE__);
}

const XmlFieldTable* ix_conference_statefulType::FieldTable() const { return &kStatefulTable; }

int ix_conference_statefulType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_STATE)) return setStateValue(kStates.IndexOfPrefix(value));
    return ix_conference_containerType::ProcessUnMarshallAttribute(attribute, value, pair);
}

int ix_execution_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_WHEN)) return setWhenValue(text);
    if (ixEndNameIs(name, IX_STR_REASON)) return setReasonValue(text);
    if (ixEndNameIs(name, IX_STR_BY)) return setByValue(text);
    return Unknown(child);
}

int ix_uri_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_URI)) return setUriValue(text);
    if (ixEndNameIs(name, IX_STR_DISPLAY_TEXT)) return setDisplayTextValue(text);
    if (ixEndNameIs(name, IX_STR_PURPOSE)) return setPurposeValue(text);
    if (ixNameIs(name, IX_STR_MODIFIED)) return ixTakeChild(mModified, child);
    return Unknown(child);
}

int ix_uris_type::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_ENTRY)) return ixTakeInto<ix_uri_type>(mEntryList, child, kSourceFile, __LINE__);
    return Unknown(child);
}

int ix_uris_type::addEntry(ix_uri_type* entry) { return ixAppend(mEntryList, entry, kSourceFile, __LINE__); }

int ix_conference_medium_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_DISPLAY_TEXT)) return setDisplayTextValue(text);
    if (ixEndNameIs(name, IX_STR_TYPE)) return setTypeValue(text);
    if (ixEndNameIs(name, IX_STR_STATUS)) return setStatusValue(kMediaStatus.IndexOfPrefix(text));
    return Unknown(child);
}

int ix_conference_medium_type::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_LABEL)) return setLabelValue(value);
    return ix_conference_containerType::ProcessUnMarshallAttribute(attribute, value, pair);
}

int ix_conference_media_type::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_ENTRY))
        return ixTakeInto<ix_conference_medium_type>(mEntryList, child, kSourceFile, __LINE__);
    return Unknown(child);
}

int ix_conference_media_type::addEntry(ix_conference_medium_type* entry) {
    return ixAppend(mEntryList, entry, kSourceFile, __LINE__);
}

int ix_conference_description_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_DISPLAY_TEXT)) return setDisplayTextValue(text);
    if (ixEndNameIs(name, IX_STR_SUBJECT)) return setSubjectValue(text);
    if (ixEndNameIs(name, IX_STR_FREE_TEXT)) return setFreeTextValue(text);
    if (ixEndNameIs(name, IX_STR_KEYWORDS)) return SplitWords(mKeywords, text);
    if (ixNameIs(name, IX_STR_CONF_URIS)) return ixTakeChild(mConfUris, child);
    if (ixNameIs(name, IX_STR_SERVICE_URIS)) return ixTakeChild(mServiceUris, child);
    if (ixEndNameIs(name, IX_STR_MAXIMUM_USER_COUNT)) return setMaximumUserCountValue(ixToUnsigned(text));
    if (ixNameIs(name, IX_STR_AVAILABLE_MEDIA)) return ixTakeChild(mAvailableMedia, child);
    return Unknown(child);
}

int ix_conference_description_type::addKeyword(const char* keyword) { return AppendWord(mKeywords, keyword); }

int ix_host_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_DISPLAY_TEXT)) return setDisplayTextValue(text);
    if (ixEndNameIs(name, IX_STR_WEB_PAGE)) return setWebPageValue(text);
    if (ixNameIs(name, IX_STR_URIS)) return ixTakeChild(mUris, child);
    return Unknown(child);
}

int ix_conference_state_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_USER_COUNT)) return setUserCountValue(ixToUnsigned(text));
    if (ixEndNameIs(name, IX_STR_ACTIVE)) return setActiveValue(ixNameIs(text, IX_STR_TRUE) ? 1 : 0);
    if (ixEndNameIs(name, IX_STR_LOCKED)) return setLockedValue(ixNameIs(text, IX_STR_TRUE) ? 1 : 0);
    return Unknown(child);
}

int ix_user_roles_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_ENTRY)) return addEntry(text);
    return Unknown(child);
}

int ix_user_roles_type::addEntry(const char* role) { return AppendWord(mEntryList, role); }

int ix_sip_dialog_id_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_DISPLAY_TEXT)) return setDisplayTextValue(text);
    if (ixEndNameIs(name, IX_STR_CALL_ID)) return setCallIdValue(text);
    if (ixEndNameIs(name, IX_STR_FROM_TAG)) return setFromTagValue(text);
    if (ixEndNameIs(name, IX_STR_TO_TAG)) return setToTagValue(text);
    return Unknown(child);
}

int ix_call_type::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_SIP)) return ixTakeChild(mSip, child);
    return Unknown(child);
}

int ix_media_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_DISPLAY_TEXT)) return setDisplayTextValue(text);
    if (ixEndNameIs(name, IX_STR_TYPE)) return setTypeValue(text);
    if (ixEndNameIs(name, IX_STR_LABEL)) return setLabelValue(text);
    if (ixEndNameIs(name, IX_STR_SRC_ID)) return setSrcIdValue(text);
    if (ixEndNameIs(name, IX_STR_STATUS)) return setStatusValue(kMediaStatus.IndexOfPrefix(text));
    return Unknown(child);
}

int ix_media_type::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_ID)) return setIdValue(value);
    return ix_conference_containerType::ProcessUnMarshallAttribute(attribute, value, pair);
}

int ix_endpoint_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_DISPLAY_TEXT)) return setDisplayTextValue(text);
    if (ixNameIs(name, IX_STR_REFERRED)) return ixTakeChild(mReferred, child);
    if (ixEndNameIs(name, IX_STR_STATUS)) return setStatusValue(kEndpointStatus.IndexOfPrefix(text));
    if (ixEndNameIs(name, IX_STR_JOINING_METHOD)) return setJoiningMethodValue(kJoiningMethods.IndexOfPrefix(text));
    if (ixNameIs(name, IX_STR_JOINING_INFO)) return ixTakeChild(mJoiningInfo, child);
    if (ixEndNameIs(name, IX_STR_DISCONNECTION_METHOD)) {
        return setDisconnectionMethodValue(kDisconnectionMethods.IndexOfPrefix(text));
    }
    if (ixNameIs(name, IX_STR_DISCONNECTION_INFO)) return ixTakeChild(mDisconnectionInfo, child);
    if (ixNameIs(name, IX_STR_MEDIA)) return ixTakeInto<ix_media_type>(mMediaList, child, kSourceFile, __LINE__);
    if (ixNameIs(name, IX_STR_CALL_INFO)) return ixTakeChild(mCallInfo, child);
    return Unknown(child);
}

int ix_endpoint_type::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_ENTITY)) return setEntityValue(value);
    return ix_conference_statefulType::ProcessUnMarshallAttribute(attribute, value, pair);
}

int ix_endpoint_type::addMedia(ix_media_type* media) { return ixAppend(mMediaList, media, kSourceFile, __LINE__); }

int ix_user_type::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_DISPLAY_TEXT)) return setDisplayTextValue(text);
    if (ixNameIs(name, IX_STR_ASSOCIATED_AORS)) return ixTakeChild(mAssociatedAors, child);
    if (ixNameIs(name, IX_STR_ROLES)) return ixTakeChild(mRoles, child);
    if (ixEndNameIs(name, IX_STR_LANGUAGES)) return SplitWords(mLanguages, text);
    if (ixEndNameIs(name, IX_STR_CASCADED_FOCUS)) return setCascadedFocusValue(text);
    if (ixNameIs(name, IX_STR_ENDPOINT))
        return ixTakeInto<ix_endpoint_type>(mEndpointList, child, kSourceFile, __LINE__);
    return Unknown(child);
}

int ix_user_type::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_ENTITY)) return setEntityValue(value);
    return ix_conference_statefulType::ProcessUnMarshallAttribute(attribute, value, pair);
}

int ix_user_type::addLanguage(const char* language) { return AppendWord(mLanguages, language); }

int ix_user_type::addEndpoint(ix_endpoint_type* endpoint) {
    return ixAppend(mEndpointList, endpoint, kSourceFile, __LINE__);
}

int ix_users_type::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_USER)) return ixTakeInto<ix_user_type>(mUserList, child, kSourceFile, __LINE__);
    return Unknown(child);
}

int ix_users_type::addUser(ix_user_type* user) { return ixAppend(mUserList, user, kSourceFile, __LINE__); }

int ix_sidebars_by_val_type::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_ENTRY)) return ixTakeInto<ix_conference_type>(mEntryList, child, kSourceFile, __LINE__);
    return Unknown(child);
}

int ix_sidebars_by_val_type::addEntry(ix_conference_type* entry) {
    return ixAppend(mEntryList, entry, kSourceFile, __LINE__);
}

int ix_conference_type::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_CONFERENCE_DESCRIPTION)) return ixTakeChild(mConferenceDescription, child);
    if (ixNameIs(name, IX_STR_HOST_INFO)) return ixTakeChild(mHostInfo, child);
    if (ixNameIs(name, IX_STR_CONFERENCE_STATE)) return ixTakeChild(mConferenceState, child);
    if (ixNameIs(name, IX_STR_USERS)) return ixTakeChild(mUsers, child);
    if (ixNameIs(name, IX_STR_SIDEBARS_BY_REF)) return ixTakeChild(mSidebarsByRef, child);
    if (ixNameIs(name, IX_STR_SIDEBARS_BY_VAL)) return ixTakeChild(mSidebarsByVal, child);
    return Unknown(child);
}

int ix_conference_type::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_ENTITY)) return setEntityValue(value);
    if (pair == nullptr && ixNameIs(attribute, IX_STR_VERSION)) return setVersionValue(ixToUnsigned(value));
    return ix_conference_statefulType::ProcessUnMarshallAttribute(attribute, value, pair);
}

XMLElement* ConferenceInfoDataBinder::CreateRootElement() { return CreateConferenceInfoType(); }

/// A creator of the binder factory.
#define IX_CONFERENCE_CREATOR(operation, type) \
    type* ConferenceInfoDataBinder::operation() { return IX_NEW(type); }

IX_CONFERENCE_CREATOR(CreateConferenceInfoType, ix_conference_type)
IX_CONFERENCE_CREATOR(CreateUserRolesType, ix_user_roles_type)
IX_CONFERENCE_CREATOR(CreateSIPDialogIDType, ix_sip_dialog_id_type)
IX_CONFERENCE_CREATOR(CreateUserLanguagesType, IxSingleElementList)
IX_CONFERENCE_CREATOR(CreateMediaType, ix_media_type)
IX_CONFERENCE_CREATOR(CreateKeywordsType, IxSingleElementList)
IX_CONFERENCE_CREATOR(CreateExecutionType, ix_execution_type)
IX_CONFERENCE_CREATOR(CreateURIType, ix_uri_type)
IX_CONFERENCE_CREATOR(CreateURIsType, ix_uris_type)
IX_CONFERENCE_CREATOR(CreateConferenceMediumType, ix_conference_medium_type)
IX_CONFERENCE_CREATOR(CreateConferenceMedaiType, ix_conference_media_type)
IX_CONFERENCE_CREATOR(CreateConferenceDescriptionType, ix_conference_description_type)
IX_CONFERENCE_CREATOR(CreateCallType, ix_call_type)
IX_CONFERENCE_CREATOR(CreateEndPointType, ix_endpoint_type)
IX_CONFERENCE_CREATOR(CreateUserType, ix_user_type)
IX_CONFERENCE_CREATOR(CreateUsersType, ix_users_type)
IX_CONFERENCE_CREATOR(CreateHostType, ix_host_type)
IX_CONFERENCE_CREATOR(CreateConferenceStateType, ix_conference_state_type)
IX_CONFERENCE_CREATOR(CreateSideBarsByValueType, ix_sidebars_by_val_type)

Conference_infoMarshall::Conference_infoMarshall() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int Conference_infoMarshall::AddConferenceInfoElementToXml(ix_conference_type* conference, e_XmlStrRef name) {
    ixLog(kSourceFile, kAddConferenceInfo);
    if (conference == nullptr) return 0;
    if (conference->mEntity == nullptr) {
        ixLog(kSourceFile, kNoEntity);
        return 0;
    }
    // Where nothing more can be written, there is no need to go deeper.
    if (m_generator.Text() == nullptr || m_generator.IsTruncated()) return 1;
    StartElementOpen(name);
    if (name == IX_STR_CONFERENCE_INFO) {
        AddAttribute(IX_STR_XMLNS,
                     ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_CONFERENCE_INFO),
                     Attribute::Open);
    }
    const char* const state = kStates.TextOf(conference->mState);
    if (state != nullptr) AddAttribute(IX_STR_STATE, state, Attribute::Open);
    if (conference->mVersion != 0) AddDecimalAttribute(IX_STR_VERSION, conference->mVersion, Attribute::Open);
    AddAttributeList(conference->mExtraAttributeList);
    AddAttribute(IX_STR_ENTITY, conference->mEntity, Attribute::Closing);
    if (conference->mConferenceDescription != nullptr &&
        AddConferenceDescriptionElementToXml(conference->mConferenceDescription) == 0) {
        return 0;
    }
    if (conference->mHostInfo != nullptr && AddHostInfoElementToXml(conference->mHostInfo) == 0) return 0;
    if (conference->mConferenceState != nullptr) AddConferenceStateElementToXml(conference->mConferenceState);
    if (conference->mUsers != nullptr && AddIUsersElementToXml(conference->mUsers) == 0) return 0;
    if (conference->mSidebarsByRef != nullptr &&
        AddUrisTypeElementToXml(conference->mSidebarsByRef, IX_STR_SIDEBARS_BY_REF) == 0) {
        return 0;
    }
    if (conference->mSidebarsByVal != nullptr) AddSidebars(*conference->mSidebarsByVal);
    EndElement(name);
    return 1;
}

/// A start tag with the attributes that there are: state, entity, extra attributes.
void Conference_infoMarshall::StartContainer(e_XmlStrRef name, const ix_conference_containerType& element,
                                             const char* state, const char* entity) {
    const bool hasExtras = LastAttribute(element.mExtraAttributeList) != nullptr;
    if (state == nullptr && entity == nullptr && !hasExtras) {
        StartElement(name);
        return;
    }
    StartElementOpen(name);
    const Attribute last = hasExtras ? Attribute::Open : Attribute::Closing;
    if (state != nullptr) AddAttribute(IX_STR_STATE, state, entity != nullptr ? Attribute::Open : last);
    if (entity != nullptr) AddAttribute(IX_STR_ENTITY, entity, last);
    AddAttributeList(element.mExtraAttributeList, Attribute::Closing);
}

void Conference_infoMarshall::AddSidebars(const ix_sidebars_by_val_type& sidebars) {
    StartContainer(IX_STR_SIDEBARS_BY_VAL, sidebars, kStates.TextOf(sidebars.mState));
    int index = 0;
    for (auto* const sidebar : XmlEntries<ix_conference_type>(sidebars.mEntryList)) {
        const IxXMLDocGenerator::Place before = m_generator.Here();
        if (sidebar != nullptr && AddConferenceInfoElementToXml(sidebar, IX_STR_ENTRY) == 0) {
            ixLog(kSourceFile, kSidebarFailed, index);
            m_generator.CutBack(before);
        }
        ++index;
    }
    EndElement(IX_STR_SIDEBARS_BY_VAL);
}

int Conference_infoMarshall::AddConferenceDescriptionElementToXml(ix_conference_description_type* description) {
    ixLog(kSourceFile, kAddDescription);
    if (description == nullptr) return 0;
    StartContainer(IX_STR_CONFERENCE_DESCRIPTION, *description);
    AddTextElement(IX_STR_DISPLAY_TEXT, description->mDisplayText);
    AddTextElement(IX_STR_SUBJECT, description->mSubject);
    AddTextElement(IX_STR_FREE_TEXT, description->mFreeText);
    AddWords(IX_STR_KEYWORDS, description->mKeywords);
    if (description->mConfUris != nullptr && AddUrisTypeElementToXml(description->mConfUris, IX_STR_CONF_URIS) == 0) {
        return 0;
    }
    if (description->mServiceUris != nullptr &&
        AddUrisTypeElementToXml(description->mServiceUris, IX_STR_SERVICE_URIS) == 0) {
        return 0;
    }
    if (description->mMaximumUserCount != 0) {
        AddDecimalElement(IX_STR_MAXIMUM_USER_COUNT, description->mMaximumUserCount);
    }
    if (description->mAvailableMedia != nullptr &&
        AddConferenceMediaTypeElementToXml(description->mAvailableMedia) == 0) {
        return 0;
    }
    EndElement(IX_STR_CONFERENCE_DESCRIPTION);
    return 1;
}

int Conference_infoMarshall::AddConferenceMediaTypeElementToXml(ix_conference_media_type* media) {
    ixLog(kSourceFile, kAddConferenceMedia);
    if (media == nullptr) return 0;
    StartContainer(IX_STR_AVAILABLE_MEDIA, *media);
    int index = 0;
    for (auto* const medium : XmlEntries<ix_conference_medium_type>(media->mEntryList)) {
        if (medium != nullptr && AddMediumEntry(medium, index) == 0) return 0;
        ++index;
    }
    EndElement(IX_STR_AVAILABLE_MEDIA);
    return 1;
}

int Conference_infoMarshall::AddMediumEntry(ix_conference_medium_type* medium, int index) {
    if (medium->mLabel == nullptr) {
        ixLog(kSourceFile, kNoLabel, index);
        return 0;
    }
    StartElementOpen(IX_STR_ENTRY);
    AddAttributeList(medium->mExtraAttributeList);
    AddAttribute(IX_STR_LABEL, medium->mLabel, Attribute::Closing);
    if (AddConferenceMediumTypeElementToXml(medium) == 0) {
        ixLog(kSourceFile, kMediumFailed, index);
        return 0;
    }
    EndElement(IX_STR_ENTRY);
    return 1;
}

int Conference_infoMarshall::AddConferenceMediumTypeElementToXml(ix_conference_medium_type* medium) {
    ixLog(kSourceFile, kAddMedium);
    if (medium == nullptr) return 0;
    AddTextElement(IX_STR_DISPLAY_TEXT, medium->mDisplayText);
    AddTextElement(IX_STR_TYPE, medium->mType);
    AddTextElement(IX_STR_STATUS, kMediaStatus.TextOf(medium->mStatus));
    return 1;
}

int Conference_infoMarshall::AddHostInfoElementToXml(ix_host_type* host) {
    ixLog(kSourceFile, kAddHostInfo);
    if (host == nullptr) return 0;
    StartContainer(IX_STR_HOST_INFO, *host);
    AddTextElement(IX_STR_DISPLAY_TEXT, host->mDisplayText);
    AddTextElement(IX_STR_WEB_PAGE, host->mWebPage);
    if (host->mUris != nullptr && AddUrisTypeElementToXml(host->mUris, IX_STR_URIS) == 0) return 0;
    EndElement(IX_STR_HOST_INFO);
    return 1;
}

int Conference_infoMarshall::AddConferenceStateElementToXml(ix_conference_state_type* state) {
    ixLog(kSourceFile, kAddState);
    if (state == nullptr) return 0;
    StartContainer(IX_STR_CONFERENCE_STATE, *state);
    if (state->mUserCount != 0) AddDecimalElement(IX_STR_USER_COUNT, state->mUserCount);
    AddTextElement(IX_STR_ACTIVE, BooleanText(state->mActive));
    AddTextElement(IX_STR_LOCKED, BooleanText(state->mLocked));
    EndElement(IX_STR_CONFERENCE_STATE);
    return 1;
}

int Conference_infoMarshall::AddIUsersElementToXml(ix_users_type* users) {
    ixLog(kSourceFile, kAddUsers);
    if (users == nullptr) return 0;
    StartContainer(IX_STR_USERS, *users, kStates.TextOf(users->mState));
    if (AddChildList(users->mUserList, IX_OLD_WRITER(Conference_infoMarshall, AddUserElementToXml, ix_user_type),
                     kUserFailed) == 0) {
        return 0;
    }
    EndElement(IX_STR_USERS);
    return 1;
}

int Conference_infoMarshall::AddUserElementToXml(ix_user_type* user) {
    ixLog(kSourceFile, kAddUser);
    if (user == nullptr) return 0;
    StartContainer(IX_STR_USER, *user, kStates.TextOf(user->mState), user->mEntity);
    AddTextElement(IX_STR_DISPLAY_TEXT, user->mDisplayText);
    if (user->mAssociatedAors != nullptr &&
        AddUrisTypeElementToXml(user->mAssociatedAors, IX_STR_ASSOCIATED_AORS) == 0) {
        return 0;
    }
    if (user->mRoles != nullptr) AddRoles(*user->mRoles);
    AddWords(IX_STR_LANGUAGES, user->mLanguages);
    AddTextElement(IX_STR_CASCADED_FOCUS, user->mCascadedFocus);
    if (AddChildList(user->mEndpointList,
                     IX_OLD_WRITER(Conference_infoMarshall, AddEndPointElementToXml, ix_endpoint_type)) == 0) {
        return 0;
    }
    EndElement(IX_STR_USER);
    return 1;
}

void Conference_infoMarshall::AddRoles(const ix_user_roles_type& roles) {
    StartContainer(IX_STR_ROLES, roles);
    for (const auto* const role : XmlEntries<const char>(roles.mEntryList)) AddTextElement(IX_STR_ENTRY, role);
    EndElement(IX_STR_ROLES);
}

/// One element for all words, with single blanks between them; nothing for none.
void Conference_infoMarshall::AddWords(e_XmlStrRef name, const IxSingleElementList* words) {
    bool started = false;
    for (const auto* const word : XmlEntries<const char>(words)) {
        if (word == nullptr) continue;
        if (started) {
            m_generator.ixXmlSetData(ix_xml_common_array_definition::getStringName(IX_STR_BLANK));
        } else {
            StartElement(name);
            started = true;
        }
        m_generator.ixXmlSetData(word);
    }
    if (started) EndElement(name);
}

int Conference_infoMarshall::AddEndPointElementToXml(ix_endpoint_type* endpoint) {
    ixLog(kSourceFile, kAddEndPoint);
    if (endpoint == nullptr) return 0;
    StartContainer(IX_STR_ENDPOINT, *endpoint, kStates.TextOf(endpoint->mState), endpoint->mEntity);
    AddTextElement(IX_STR_DISPLAY_TEXT, endpoint->mDisplayText);
    AddExecution(IX_STR_REFERRED, endpoint->mReferred);
    AddTextElement(IX_STR_STATUS, kEndpointStatus.TextOf(endpoint->mStatus));
    AddTextElement(IX_STR_JOINING_METHOD, kJoiningMethods.TextOf(endpoint->mJoiningMethod));
    AddExecution(IX_STR_JOINING_INFO, endpoint->mJoiningInfo);
    AddTextElement(IX_STR_DISCONNECTION_METHOD, kDisconnectionMethods.TextOf(endpoint->mDisconnectionMethod));
    AddExecution(IX_STR_DISCONNECTION_INFO, endpoint->mDisconnectionInfo);
    if (AddChildList(endpoint->mMediaList, IX_OLD_WRITER(Conference_infoMarshall, AddMediaElementToXml, ix_media_type),
                     kMediaFailed) == 0) {
        return 0;
    }
    if (endpoint->mCallInfo != nullptr) AddCallInfo(*endpoint->mCallInfo);
    EndElement(IX_STR_ENDPOINT);
    return 1;
}

void Conference_infoMarshall::AddExecution(e_XmlStrRef name, ix_execution_type* execution) {
    if (execution == nullptr) return;
    StartContainer(name, *execution);
    AddExecutionTypeElementToXml(execution);
    EndElement(name);
}

void Conference_infoMarshall::AddCallInfo(const ix_call_type& info) {
    StartContainer(IX_STR_CALL_INFO, info);
    if (info.mSip != nullptr) AddSipElementToXml(info.mSip);
    EndElement(IX_STR_CALL_INFO);
}

int Conference_infoMarshall::AddMediaElementToXml(ix_media_type* media) {
    ixLog(kSourceFile, kAddMedia);
    if (media == nullptr) return 0;
    if (media->mId == nullptr) {
        ixLog(kSourceFile, kNoId);
        return 0;
    }
    StartElementOpen(IX_STR_MEDIA);
    AddAttributeList(media->mExtraAttributeList);
    AddAttribute(IX_STR_ID, media->mId, Attribute::Closing);
    AddTextElement(IX_STR_DISPLAY_TEXT, media->mDisplayText);
    AddTextElement(IX_STR_TYPE, media->mType);
    AddTextElement(IX_STR_LABEL, media->mLabel);
    AddTextElement(IX_STR_SRC_ID, media->mSrcId);
    AddTextElement(IX_STR_STATUS, kMediaStatus.TextOf(media->mStatus));
    EndElement(IX_STR_MEDIA);
    return 1;
}

int Conference_infoMarshall::AddSipElementToXml(ix_sip_dialog_id_type* sip) {
    ixLog(kSourceFile, kAddSip);
    if (sip == nullptr) return 0;
    StartContainer(IX_STR_SIP, *sip);
    AddTextElement(IX_STR_DISPLAY_TEXT, sip->mDisplayText);
    AddTextElement(IX_STR_CALL_ID, sip->mCallId);
    AddTextElement(IX_STR_FROM_TAG, sip->mFromTag);
    AddTextElement(IX_STR_TO_TAG, sip->mToTag);
    EndElement(IX_STR_SIP);
    return 1;
}

int Conference_infoMarshall::AddExecutionTypeElementToXml(ix_execution_type* execution) {
    ixLog(kSourceFile, kAddExecution);
    if (execution == nullptr) return 0;
    AddTextElement(IX_STR_WHEN, execution->mWhen);
    AddTextElement(IX_STR_REASON, execution->mReason);
    AddTextElement(IX_STR_BY, execution->mBy);
    return 1;
}

int Conference_infoMarshall::AddUrisTypeElementToXml(ix_uris_type* uris, e_XmlStrRef name) {
    ixLog(kSourceFile, kAddUris);
    if (uris == nullptr) return 0;
    StartContainer(name, *uris, kStates.TextOf(uris->mState));
    if (AddChildList(uris->mEntryList, IX_OLD_WRITER(Conference_infoMarshall, AddUriEntry, ix_uri_type), kUriFailed) == 0) {
        return 0;
    }
    EndElement(name);
    return 1;
}

int Conference_infoMarshall::AddUriEntry(ix_uri_type* uri) {
    StartContainer(IX_STR_ENTRY, *uri);
    const int result = AddUriTypeElementToXml(uri);
    EndElement(IX_STR_ENTRY);
    return result;
}

int Conference_infoMarshall::AddUriTypeElementToXml(ix_uri_type* uri) {
    ixLog(kSourceFile, kAddUri);
    if (uri == nullptr) return 0;
    AddTextElement(IX_STR_URI, uri->mUri);
    AddTextElement(IX_STR_DISPLAY_TEXT, uri->mDisplayText);
    AddTextElement(IX_STR_PURPOSE, uri->mPurpose);
    AddExecution(IX_STR_MODIFIED, uri->mModified);
    return 1;
}

IX_OLD_FAMILY(ConferenceInfoContext, Conference_infoMarshall, ConferenceInfoUnMarshaller, ConferenceInfoDataBinder);

namespace {

/// Appends a new object to the list of `owner`, or deletes it. @return it, or NULL without memory.
template <class Owner, class Child>
Child* AddNew(Owner* owner, int (Owner::*add)(Child*), Child* child) {
    if (owner != nullptr && child != nullptr && (owner->*add)(child) != 0) return child;
    IX_DELETE(child);
    return nullptr;
}

/// The demonstration: one user with one audio stream. @return 1, or 0 without memory.
int Assemble(ConferenceInfoDataBinder& binder, ix_conference_type& conference) {
    conference.setConferenceDescriptionValue(binder.CreateConferenceDescriptionType());
    conference.setConferenceStateValue(binder.CreateConferenceStateType());
    conference.setUsersValue(binder.CreateUsersType());
    ix_user_type* const user = AddNew(conference.mUsers, &ix_users_type::addUser, binder.CreateUserType());
    ix_endpoint_type* const endpoint = AddNew(user, &ix_user_type::addEndpoint, binder.CreateEndPointType());
    ix_media_type* const media = AddNew(endpoint, &ix_endpoint_type::addMedia, binder.CreateMediaType());
    if (conference.mConferenceDescription == nullptr || conference.mConferenceState == nullptr || media == nullptr) {
        return 0;
    }
    conference.setStateValue(IX_CONFERENCE_STATE_FULL);
    conference.setVersionValue(1);
    conference.mConferenceState->setUserCountValue(1);
    conference.mConferenceState->setActiveValue(1);
    endpoint->setStatusValue(IX_CONFERENCE_ENDPOINT_CONNECTED);
    endpoint->setJoiningMethodValue(IX_CONFERENCE_JOINING_DIALED_IN);
    media->setStatusValue(IX_CONFERENCE_MEDIA_SENDRECV);
    const bool texts = conference.setEntityValue("sip:conference@example.com") != 0 &&
                       conference.mConferenceDescription->setSubjectValue("Demonstration") != 0 &&
                       user->setEntityValue("sip:alice@example.com") != 0 && user->setDisplayTextValue("Alice") != 0 &&
                       endpoint->setEntityValue("sip:alice@192.0.2.1") != 0 && media->setIdValue("1") != 0 &&
                       media->setTypeValue("audio") != 0;
    return texts ? 1 : 0;
}

}  // namespace

char* TestConference_infoMarshall() {
    ConferenceInfoDataBinder binder;
    Conference_infoMarshall marshaller;
    ix_conference_type* conference = binder.CreateConferenceInfoType();
    const bool complete = conference != nullptr && Assemble(binder, *conference) != 0;
    char* const text = complete ? __strdup(marshaller.Marshall(conference)) : nullptr;
    IX_DELETE(conference);
    return text;
}
