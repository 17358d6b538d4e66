#include "XMLConferenceInfo.h"

#include <iterator>

#include "ConferenceInfo.h"

namespace {

using namespace XmlRow;

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

constexpr XmlField kContainerFields[] = {
    Attributes<&ix_conference_containerType::mExtraAttributeList>(),
};
constexpr XmlField kStatefulFields[] = {
    Attribute<&ix_conference_statefulType::mState>(IX_STR_STATE, kStates),
};
constexpr XmlField kExecutionFields[] = {
    Element<&ix_execution_type::mWhen>(IX_STR_WHEN),
    Element<&ix_execution_type::mReason>(IX_STR_REASON),
    Element<&ix_execution_type::mBy>(IX_STR_BY),
};
constexpr XmlField kUriFields[] = {
    Element<&ix_uri_type::mUri>(IX_STR_URI).Mandatory(),
    Element<&ix_uri_type::mDisplayText>(IX_STR_DISPLAY_TEXT),
    Element<&ix_uri_type::mPurpose>(IX_STR_PURPOSE),
    Child<&ix_uri_type::mModified>(IX_STR_MODIFIED),
};
constexpr XmlField kUrisFields[] = {
    Children<&ix_uris_type::mEntryList, ix_uri_type>(IX_STR_ENTRY),
};
constexpr XmlField kMediumFields[] = {
    Attribute<&ix_conference_medium_type::mLabel>(IX_STR_LABEL).Mandatory(),
    Element<&ix_conference_medium_type::mDisplayText>(IX_STR_DISPLAY_TEXT),
    Element<&ix_conference_medium_type::mType>(IX_STR_TYPE),
    Element<&ix_conference_medium_type::mStatus>(IX_STR_STATUS, kMediaStatus),
};
constexpr XmlField kConferenceMediaFields[] = {
    Children<&ix_conference_media_type::mEntryList, ix_conference_medium_type>(IX_STR_ENTRY),
};
constexpr XmlField kDescriptionFields[] = {
    Element<&ix_conference_description_type::mDisplayText>(IX_STR_DISPLAY_TEXT),
    Element<&ix_conference_description_type::mSubject>(IX_STR_SUBJECT),
    Element<&ix_conference_description_type::mFreeText>(IX_STR_FREE_TEXT),
    Words<&ix_conference_description_type::mKeywords>(IX_STR_KEYWORDS),
    Child<&ix_conference_description_type::mConfUris>(IX_STR_CONF_URIS),
    Child<&ix_conference_description_type::mServiceUris>(IX_STR_SERVICE_URIS),
    Element<&ix_conference_description_type::mMaximumUserCount>(IX_STR_MAXIMUM_USER_COUNT),
    Child<&ix_conference_description_type::mAvailableMedia>(IX_STR_AVAILABLE_MEDIA),
};
constexpr XmlField kHostFields[] = {
    Element<&ix_host_type::mDisplayText>(IX_STR_DISPLAY_TEXT),
    Element<&ix_host_type::mWebPage>(IX_STR_WEB_PAGE),
    Child<&ix_host_type::mUris>(IX_STR_URIS),
};
constexpr XmlField kConferenceStateFields[] = {
    Element<&ix_conference_state_type::mUserCount>(IX_STR_USER_COUNT),
    Element<&ix_conference_state_type::mActive>(IX_STR_ACTIVE, XmlFlag::TrueOrNot).Always(),
    Element<&ix_conference_state_type::mLocked>(IX_STR_LOCKED, XmlFlag::TrueOrNot).Always(),
};
constexpr XmlField kRolesFields[] = {
    Texts<&ix_user_roles_type::mEntryList>(IX_STR_ENTRY).Mandatory(),
};
constexpr XmlField kSipFields[] = {
    Element<&ix_sip_dialog_id_type::mDisplayText>(IX_STR_DISPLAY_TEXT),
    Element<&ix_sip_dialog_id_type::mCallId>(IX_STR_CALL_ID),
    Element<&ix_sip_dialog_id_type::mFromTag>(IX_STR_FROM_TAG),
    Element<&ix_sip_dialog_id_type::mToTag>(IX_STR_TO_TAG),
};
constexpr XmlField kCallFields[] = {
    Child<&ix_call_type::mSip>(IX_STR_SIP).Mandatory(),
};
constexpr XmlField kMediaFields[] = {
    Attribute<&ix_media_type::mId>(IX_STR_ID).Mandatory(),
    Element<&ix_media_type::mDisplayText>(IX_STR_DISPLAY_TEXT),
    Element<&ix_media_type::mType>(IX_STR_TYPE),
    Element<&ix_media_type::mLabel>(IX_STR_LABEL),
    Element<&ix_media_type::mSrcId>(IX_STR_SRC_ID),
    Element<&ix_media_type::mStatus>(IX_STR_STATUS, kMediaStatus),
};
constexpr XmlField kEndpointFields[] = {
    Attribute<&ix_endpoint_type::mEntity>(IX_STR_ENTITY),
    Element<&ix_endpoint_type::mDisplayText>(IX_STR_DISPLAY_TEXT),
    Child<&ix_endpoint_type::mReferred>(IX_STR_REFERRED),
    Element<&ix_endpoint_type::mStatus>(IX_STR_STATUS, kEndpointStatus),
    Element<&ix_endpoint_type::mJoiningMethod>(IX_STR_JOINING_METHOD, kJoiningMethods),
    Child<&ix_endpoint_type::mJoiningInfo>(IX_STR_JOINING_INFO),
    Element<&ix_endpoint_type::mDisconnectionMethod>(IX_STR_DISCONNECTION_METHOD, kDisconnectionMethods),
    Child<&ix_endpoint_type::mDisconnectionInfo>(IX_STR_DISCONNECTION_INFO),
    Children<&ix_endpoint_type::mMediaList, ix_media_type>(IX_STR_MEDIA),
    Child<&ix_endpoint_type::mCallInfo>(IX_STR_CALL_INFO),
};
constexpr XmlField kUserFields[] = {
    Attribute<&ix_user_type::mEntity>(IX_STR_ENTITY),
    Element<&ix_user_type::mDisplayText>(IX_STR_DISPLAY_TEXT),
    Child<&ix_user_type::mAssociatedAors>(IX_STR_ASSOCIATED_AORS),
    Child<&ix_user_type::mRoles>(IX_STR_ROLES),
    Words<&ix_user_type::mLanguages>(IX_STR_LANGUAGES),
    Element<&ix_user_type::mCascadedFocus>(IX_STR_CASCADED_FOCUS),
    Children<&ix_user_type::mEndpointList, ix_endpoint_type>(IX_STR_ENDPOINT),
};
constexpr XmlField kUsersFields[] = {
    Children<&ix_users_type::mUserList, ix_user_type>(IX_STR_USER),
};
constexpr XmlField kSidebarsFields[] = {
    Children<&ix_sidebars_by_val_type::mEntryList, ix_conference_type>(IX_STR_ENTRY),
};
constexpr XmlField kConferenceFields[] = {
    Dropped(IX_STR_XMLNS),
    Attribute<&ix_conference_type::mEntity>(IX_STR_ENTITY).Mandatory(),
    Attribute<&ix_conference_type::mVersion>(IX_STR_VERSION),
    Child<&ix_conference_type::mConferenceDescription>(IX_STR_CONFERENCE_DESCRIPTION),
    Child<&ix_conference_type::mHostInfo>(IX_STR_HOST_INFO),
    Child<&ix_conference_type::mConferenceState>(IX_STR_CONFERENCE_STATE),
    Child<&ix_conference_type::mUsers>(IX_STR_USERS),
    Child<&ix_conference_type::mSidebarsByRef>(IX_STR_SIDEBARS_BY_REF),
    Child<&ix_conference_type::mSidebarsByVal>(IX_STR_SIDEBARS_BY_VAL),
};

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLConferenceInfoDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in ConferenceInfoUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    {&ix_conference_type::kClass,
     [](XmlFamilyMarshaller& self, XMLElement* root) -> int {
         return static_cast<Conference_infoMarshall&>(self).AddConferenceInfoElementToXml(
             ixAs<ix_conference_type>(root), IX_STR_CONFERENCE_INFO);
     }},
};

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info =
        ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("Conference_infoMarshall", "mConferenceInfoXml"));
    info.entersFirst = true;
    // Required: the text is spelt like this.
    info.noRoot = {3, "<XML Module>: Conference_infoMarshall :: Marshall: Receiven NULL Object"};
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

/// A conference deeper than this is past the capacity of the text, whatever it holds.
constexpr int kMostDepth = IxXMLDocGenerator::kCapacity / sizeof "<sidebars-by-val><entry entity=\"\">";

e_XmlStrRef BooleanName(int flag) { return flag == 1 ? IX_STR_TRUE : IX_STR_FALSE; }

template <class Type, std::size_t count>
constexpr XmlClass Container(const char* name, const char* type, const XmlField (&fields)[count]) {
    return ixDerived(ixClass<Type>(name, type, kSource, fields), ix_conference_containerType::kClass);
}

template <class Type, std::size_t count>
constexpr XmlClass Stateful(const char* name, const char* type, const XmlField (&fields)[count]) {
    return ixDerived(ixClass<Type>(name, type, kSource, fields), ix_conference_statefulType::kClass);
}

}  // namespace

constexpr XmlClass ix_conference_containerType::kClass =
    ixClass<ix_conference_containerType>("", "", kSource, kContainerFields);
constexpr XmlClass ix_conference_statefulType::kClass = ixDerived(
    ixClass<ix_conference_statefulType>("", "", kSource, kStatefulFields), ix_conference_containerType::kClass);

// Required: the type names are spelt like this, all but two of them.
constexpr XmlClass ix_execution_type::kClass =
    Container<ix_execution_type>("ix_execution_type", "ConferneceInfo:ExecutionType", kExecutionFields);
constexpr XmlClass ix_uri_type::kClass = Container<ix_uri_type>("ix_uri_type", "ConferneceInfo:UriType", kUriFields);
constexpr XmlClass ix_uris_type::kClass =
    Stateful<ix_uris_type>("ix_uris_type", "ConferneceInfo:UrisType", kUrisFields);
constexpr XmlClass ix_conference_medium_type::kClass = Container<ix_conference_medium_type>(
    "ix_conference_medium_type", "ConferneceInfo:ConferenceMediumType", kMediumFields);
constexpr XmlClass ix_conference_media_type::kClass = Container<ix_conference_media_type>(
    "ix_conference_media_type", "ConferneceInfo:ConferenceMediaType", kConferenceMediaFields);
constexpr XmlClass ix_conference_description_type::kClass = Container<ix_conference_description_type>(
    "ix_conference_description_type", "ConferneceInfo:ConferenceDescriptionType", kDescriptionFields);
constexpr XmlClass ix_host_type::kClass =
    Container<ix_host_type>("ix_host_type", "ConferneceInfo:HostType", kHostFields);
constexpr XmlClass ix_conference_state_type::kClass = Container<ix_conference_state_type>(
    "ix_conference_state_type", "ConferneceInfo:ConferenceStateType", kConferenceStateFields);
constexpr XmlClass ix_user_roles_type::kClass =
    Container<ix_user_roles_type>("ix_user_roles_type", "ConferenceInfo:UserRolesType", kRolesFields);
constexpr XmlClass ix_sip_dialog_id_type::kClass =
    Container<ix_sip_dialog_id_type>("ix_sip_dialog_id_type", "ConferenceInfo:SipDialogIdType", kSipFields);
constexpr XmlClass ix_call_type::kClass =
    Container<ix_call_type>("ix_call_type", "ConferneceInfo:CallType", kCallFields);
constexpr XmlClass ix_media_type::kClass =
    Container<ix_media_type>("ix_media_type", "ConferneceInfo:MediaType", kMediaFields);
constexpr XmlClass ix_endpoint_type::kClass =
    Stateful<ix_endpoint_type>("ix_endpoint_type", "ConferneceInfo:EndpointType", kEndpointFields);
constexpr XmlClass ix_user_type::kClass =
    Stateful<ix_user_type>("ix_user_type", "ConferneceInfo:UserType", kUserFields);
constexpr XmlClass ix_users_type::kClass =
    Stateful<ix_users_type>("ix_users_type", "ConferneceInfo:UsersType", kUsersFields);
constexpr XmlClass ix_sidebars_by_val_type::kClass =
    Stateful<ix_sidebars_by_val_type>("ix_sidebars_by_val_type", "ConferneceInfo:SidebarsByValType", kSidebarsFields);
constexpr XmlClass ix_conference_type::kClass =
    Stateful<ix_conference_type>("ix_conference_type", "ConferneceInfo:ConferenceType", kConferenceFields);

XMLElement* ConferenceInfoDataBinder::CreateRootElement() { return CreateConferenceInfoType(); }
ix_conference_type* ConferenceInfoDataBinder::CreateConferenceInfoType() { return ixNew<ix_conference_type>(kSource); }
ix_user_roles_type* ConferenceInfoDataBinder::CreateUserRolesType() { return ixNew<ix_user_roles_type>(kSource); }
ix_sip_dialog_id_type* ConferenceInfoDataBinder::CreateSIPDialogIDType() {
    return ixNew<ix_sip_dialog_id_type>(kSource);
}
IxSingleElementList* ConferenceInfoDataBinder::CreateUserLanguagesType() { return ixNew<IxSingleElementList>(kSource); }
ix_media_type* ConferenceInfoDataBinder::CreateMediaType() { return ixNew<ix_media_type>(kSource); }
IxSingleElementList* ConferenceInfoDataBinder::CreateKeywordsType() { return ixNew<IxSingleElementList>(kSource); }
ix_execution_type* ConferenceInfoDataBinder::CreateExecutionType() { return ixNew<ix_execution_type>(kSource); }
ix_uri_type* ConferenceInfoDataBinder::CreateURIType() { return ixNew<ix_uri_type>(kSource); }
ix_uris_type* ConferenceInfoDataBinder::CreateURIsType() { return ixNew<ix_uris_type>(kSource); }
ix_conference_medium_type* ConferenceInfoDataBinder::CreateConferenceMediumType() {
    return ixNew<ix_conference_medium_type>(kSource);
}
ix_conference_media_type* ConferenceInfoDataBinder::CreateConferenceMedaiType() {
    return ixNew<ix_conference_media_type>(kSource);
}
ix_conference_description_type* ConferenceInfoDataBinder::CreateConferenceDescriptionType() {
    return ixNew<ix_conference_description_type>(kSource);
}
ix_call_type* ConferenceInfoDataBinder::CreateCallType() { return ixNew<ix_call_type>(kSource); }
ix_endpoint_type* ConferenceInfoDataBinder::CreateEndPointType() { return ixNew<ix_endpoint_type>(kSource); }
ix_user_type* ConferenceInfoDataBinder::CreateUserType() { return ixNew<ix_user_type>(kSource); }
ix_users_type* ConferenceInfoDataBinder::CreateUsersType() { return ixNew<ix_users_type>(kSource); }
ix_host_type* ConferenceInfoDataBinder::CreateHostType() { return ixNew<ix_host_type>(kSource); }
ix_conference_state_type* ConferenceInfoDataBinder::CreateConferenceStateType() {
    return ixNew<ix_conference_state_type>(kSource);
}
ix_sidebars_by_val_type* ConferenceInfoDataBinder::CreateSideBarsByValueType() {
    return ixNew<ix_sidebars_by_val_type>(kSource);
}

ConferenceInfoUnMarshaller::ConferenceInfoUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

Conference_infoMarshall::Conference_infoMarshall() : XmlFamilyMarshaller(kMarshallerInfo) {}

ConferenceInfoContext::ConferenceInfoContext()
    : XmlFamilyContext(
          ixFamily<Conference_infoMarshall, ConferenceInfoUnMarshaller, ConferenceInfoDataBinder>(kSource)) {}

int Conference_infoMarshall::AddConferenceInfoElementToXml(ix_conference_type* conference, e_XmlStrRef name) {
    if (!Enter(conference, {2, "<XML Module>: AddConferenceInfoElementToXml"})) return 0;
    if (conference->mEntity == nullptr) {
        return Fail({4, "<XML Module>: AddConferenceInfoElementToXml entity attribute is mandatory"});
    }
    // Where nothing more can be written, there is no need to go deeper.
    if (m_generator.IsTruncated() || m_depth >= kMostDepth) return 1;
    ++m_depth;
    const int result = AddConference(*conference, name);
    --m_depth;
    return result;
}

int Conference_infoMarshall::AddConference(const ix_conference_type& conference, e_XmlStrRef name) {
    XmlStartTag tag(*this, name);
    if (name == IX_STR_CONFERENCE_INFO) tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_CONFERENCE_INFO);
    tag.Add(IX_STR_STATE, kStates.TextOf(conference.mState));
    if (conference.mVersion != 0) tag.AddDecimal(IX_STR_VERSION, conference.mVersion);
    tag.AddAll(conference.mExtraAttributeList);
    tag.Add(IX_STR_ENTITY, conference.mEntity);
    tag.Close();
    if (conference.mConferenceDescription != nullptr &&
        AddConferenceDescriptionElementToXml(conference.mConferenceDescription) == 0) {
        return 0;
    }
    if (conference.mHostInfo != nullptr && AddHostInfoElementToXml(conference.mHostInfo) == 0) return 0;
    if (conference.mConferenceState != nullptr) AddConferenceStateElementToXml(conference.mConferenceState);
    if (conference.mUsers != nullptr && AddIUsersElementToXml(conference.mUsers) == 0) return 0;
    if (conference.mSidebarsByRef != nullptr &&
        AddUrisTypeElementToXml(conference.mSidebarsByRef, IX_STR_SIDEBARS_BY_REF) == 0) {
        return 0;
    }
    if (conference.mSidebarsByVal != nullptr) AddSidebars(*conference.mSidebarsByVal);
    EndElement(name);
    return 1;
}

/// A start tag with the attributes that there are.
void Conference_infoMarshall::StartContainer(e_XmlStrRef name, const ix_conference_containerType& element, int state,
                                             const char* entity) {
    XmlStartTag tag(*this, name);
    tag.Add(IX_STR_STATE, kStates.TextOf(state));
    tag.Add(IX_STR_ENTITY, entity);
    tag.AddAll(element.mExtraAttributeList);
    tag.Close();
}

void Conference_infoMarshall::StartContainer(e_XmlStrRef name, const ix_conference_containerType& element) {
    StartContainer(name, element, IX_CONFERENCE_STATE_NOT_SET, nullptr);
}

void Conference_infoMarshall::AddSidebars(const ix_sidebars_by_val_type& sidebars) {
    StartContainer(IX_STR_SIDEBARS_BY_VAL, sidebars, sidebars.mState, nullptr);
    int index = 0;
    for (auto* const sidebar : XmlEntries<XMLElement>(sidebars.mEntryList)) {
        const IxXMLDocGenerator::Place before = m_generator.Here();
        if (AddConferenceInfoElementToXml(ixAs<ix_conference_type>(sidebar), IX_STR_ENTRY) == 0) {
            Log({2, "<XML Module>: Add Sidebars_by_val ElementToXml fail @ tempNum: %d "}, index);
            m_generator.CutBack(before);
        }
        ++index;
    }
    EndElement(IX_STR_SIDEBARS_BY_VAL);
}

int Conference_infoMarshall::AddConferenceDescriptionElementToXml(ix_conference_description_type* description) {
    if (!Enter(description, {2, "<XML Module>: AddConferenceDescriptionElementToXml"})) return 0;
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
    if (!Enter(media, {2, "<XML Module>: AddConferenceMediaTypeElementToXml"})) return 0;
    StartContainer(IX_STR_AVAILABLE_MEDIA, *media);
    int index = 0;
    for (auto* const medium : XmlEntries<XMLElement>(media->mEntryList)) {
        if (AddMediumEntry(ixAs<ix_conference_medium_type>(medium), index) == 0) return 0;
        ++index;
    }
    EndElement(IX_STR_AVAILABLE_MEDIA);
    return 1;
}

int Conference_infoMarshall::AddMediumEntry(ix_conference_medium_type* medium, int index) {
    if (medium != nullptr) {
        if (medium->mLabel == nullptr) {
            return Fail({4, "<XML Module>: AddConferenceMediaTypeElementToXml: label attribute mandatory tempNum:%d"},
                        index);
        }
        XmlStartTag tag(*this, IX_STR_ENTRY);
        tag.AddAll(medium->mExtraAttributeList);
        tag.Add(IX_STR_LABEL, medium->mLabel);
        tag.Close();
    }
    if (AddConferenceMediumTypeElementToXml(medium) == 0) {
        return Fail({2, "<XML Module>: AddConferenceMediaTypeElementToXml tempNum: %d "}, index);
    }
    EndElement(IX_STR_ENTRY);
    return 1;
}

int Conference_infoMarshall::AddConferenceMediumTypeElementToXml(ix_conference_medium_type* medium) {
    if (!Enter(medium, {2, "<XML Module>: AddConferenceMediumTypeElementToXml"})) return 0;
    AddTextElement(IX_STR_DISPLAY_TEXT, medium->mDisplayText);
    AddTextElement(IX_STR_TYPE, medium->mType);
    AddTextElement(IX_STR_STATUS, kMediaStatus.TextOf(medium->mStatus));
    return 1;
}

int Conference_infoMarshall::AddHostInfoElementToXml(ix_host_type* host) {
    if (!Enter(host, {2, "<XML Module>: AddHostInfoElementToXml"})) return 0;
    StartContainer(IX_STR_HOST_INFO, *host);
    AddTextElement(IX_STR_DISPLAY_TEXT, host->mDisplayText);
    AddTextElement(IX_STR_WEB_PAGE, host->mWebPage);
    if (host->mUris != nullptr && AddUrisTypeElementToXml(host->mUris, IX_STR_URIS) == 0) return 0;
    EndElement(IX_STR_HOST_INFO);
    return 1;
}

int Conference_infoMarshall::AddConferenceStateElementToXml(ix_conference_state_type* state) {
    if (!Enter(state, {2, "<XML Module>: AddConferenceStateElementToXml"})) return 0;
    StartContainer(IX_STR_CONFERENCE_STATE, *state);
    if (state->mUserCount != 0) AddDecimalElement(IX_STR_USER_COUNT, state->mUserCount);
    AddTextElement(IX_STR_ACTIVE, ixString(BooleanName(state->mActive)));
    AddTextElement(IX_STR_LOCKED, ixString(BooleanName(state->mLocked)));
    EndElement(IX_STR_CONFERENCE_STATE);
    return 1;
}

int Conference_infoMarshall::AddIUsersElementToXml(ix_users_type* users) {
    if (!Enter(users, {2, "<XML Module>: AddIUsersElementToXml"})) return 0;
    StartContainer(IX_STR_USERS, *users, users->mState, nullptr);
    if (AddChildren<&Conference_infoMarshall::AddUserElementToXml>(
            users->mUserList, {2, "<XML Module>: AddIUsersElementToXml tempNum: %d "}) == 0) {
        return 0;
    }
    EndElement(IX_STR_USERS);
    return 1;
}

int Conference_infoMarshall::AddUserElementToXml(ix_user_type* user) {
    if (!Enter(user, {2, "<XML Module>: AddUserElementToXkjml"})) return 0;
    StartContainer(IX_STR_USER, *user, user->mState, user->mEntity);
    AddTextElement(IX_STR_DISPLAY_TEXT, user->mDisplayText);
    if (user->mAssociatedAors != nullptr &&
        AddUrisTypeElementToXml(user->mAssociatedAors, IX_STR_ASSOCIATED_AORS) == 0) {
        return 0;
    }
    if (user->mRoles != nullptr) AddRoles(*user->mRoles);
    AddWords(IX_STR_LANGUAGES, user->mLanguages);
    AddTextElement(IX_STR_CASCADED_FOCUS, user->mCascadedFocus);
    if (AddChildren<&Conference_infoMarshall::AddEndPointElementToXml>(user->mEndpointList) == 0) {
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
            m_generator.ixXmlSetData(ixString(IX_STR_BLANK));
        } else {
            StartElement(name);
            started = true;
        }
        m_generator.ixXmlSetData(word);
    }
    if (started) EndElement(name);
}

int Conference_infoMarshall::AddEndPointElementToXml(ix_endpoint_type* endpoint) {
    if (!Enter(endpoint, {2, "<XML Module>: AddEndPointElementToXml"})) return 0;
    StartContainer(IX_STR_ENDPOINT, *endpoint, endpoint->mState, endpoint->mEntity);
    AddTextElement(IX_STR_DISPLAY_TEXT, endpoint->mDisplayText);
    AddExecution(IX_STR_REFERRED, endpoint->mReferred);
    AddTextElement(IX_STR_STATUS, kEndpointStatus.TextOf(endpoint->mStatus));
    AddTextElement(IX_STR_JOINING_METHOD, kJoiningMethods.TextOf(endpoint->mJoiningMethod));
    AddExecution(IX_STR_JOINING_INFO, endpoint->mJoiningInfo);
    AddTextElement(IX_STR_DISCONNECTION_METHOD, kDisconnectionMethods.TextOf(endpoint->mDisconnectionMethod));
    AddExecution(IX_STR_DISCONNECTION_INFO, endpoint->mDisconnectionInfo);
    if (AddChildren<&Conference_infoMarshall::AddMediaElementToXml>(
            endpoint->mMediaList, {2, "<XML Module>: issue in Media Element number [tempNum: %d] "}) == 0) {
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
    if (!Enter(media, {2, "<XML Module>: AddMediaElementToXml"})) return 0;
    if (media->mId == nullptr) {
        return Fail({4, "<XML Module>: AddMediaElementToXml: id attribute mandatory "});
    }
    XmlStartTag tag(*this, IX_STR_MEDIA);
    tag.AddAll(media->mExtraAttributeList);
    tag.Add(IX_STR_ID, media->mId);
    tag.Close();
    AddTextElement(IX_STR_DISPLAY_TEXT, media->mDisplayText);
    AddTextElement(IX_STR_TYPE, media->mType);
    AddTextElement(IX_STR_LABEL, media->mLabel);
    AddTextElement(IX_STR_SRC_ID, media->mSrcId);
    AddTextElement(IX_STR_STATUS, kMediaStatus.TextOf(media->mStatus));
    EndElement(IX_STR_MEDIA);
    return 1;
}

int Conference_infoMarshall::AddSipElementToXml(ix_sip_dialog_id_type* sip) {
    if (!Enter(sip, {2, "<XML Module>: AddSipElementToXml"})) return 0;
    StartContainer(IX_STR_SIP, *sip);
    AddTextElement(IX_STR_DISPLAY_TEXT, sip->mDisplayText);
    AddTextElement(IX_STR_CALL_ID, sip->mCallId);
    AddTextElement(IX_STR_FROM_TAG, sip->mFromTag);
    AddTextElement(IX_STR_TO_TAG, sip->mToTag);
    EndElement(IX_STR_SIP);
    return 1;
}

int Conference_infoMarshall::AddExecutionTypeElementToXml(ix_execution_type* execution) {
    if (!Enter(execution, {2, "<XML Module>: AddExecutionTypeElementToXml"})) return 0;
    AddTextElement(IX_STR_WHEN, execution->mWhen);
    AddTextElement(IX_STR_REASON, execution->mReason);
    AddTextElement(IX_STR_BY, execution->mBy);
    return 1;
}

int Conference_infoMarshall::AddUrisTypeElementToXml(ix_uris_type* uris, e_XmlStrRef name) {
    if (!Enter(uris, {2, "<XML Module>: AddUrisTypeElementToXml"})) return 0;
    StartContainer(name, *uris, uris->mState, nullptr);
    if (AddChildren<&Conference_infoMarshall::AddUriEntry>(
            uris->mEntryList, {2, "<XML Module>: AddUrisTypeElementToXml tempNum: %d "}) == 0) {
        return 0;
    }
    EndElement(name);
    return 1;
}

int Conference_infoMarshall::AddUriEntry(ix_uri_type* uri) {
    if (uri != nullptr) StartContainer(IX_STR_ENTRY, *uri);
    if (AddUriTypeElementToXml(uri) == 0) return 0;
    EndElement(IX_STR_ENTRY);
    return 1;
}

int Conference_infoMarshall::AddUriTypeElementToXml(ix_uri_type* uri) {
    if (!Enter(uri, {2, "<XML Module>: AddUriTypeElementToXml"})) return 0;
    AddTextElement(IX_STR_URI, uri->mUri);
    AddTextElement(IX_STR_DISPLAY_TEXT, uri->mDisplayText);
    AddTextElement(IX_STR_PURPOSE, uri->mPurpose);
    AddExecution(IX_STR_MODIFIED, uri->mModified);
    return 1;
}

namespace {

/// Appends a new object to the list of `owner`, or deletes it. @return it, or NULL without memory.
template <class Owner, class Child>
Child* AddNew(Owner* owner, int (Owner::*add)(Child*), Child* child) {
    if (owner != nullptr && child != nullptr && (owner->*add)(child) != 0) return child;
    ixDelete(child);
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
    ixDelete(conference);
    return text;
}
