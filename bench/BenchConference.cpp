// Conference information.
#include "BenchDocuments.h"
#include "BenchFamilies.h"

namespace conference {

constexpr std::string_view kBooleans[] = {"false", "true"};
constexpr std::string_view kStates[] = {"full", "partial", "deleted"};
constexpr std::string_view kMediaStatus[] = {"recvonly", "sendonly", "sendrecv", "inactive"};
constexpr std::string_view kJoiningMethods[] = {"dialed-in", "dialed-out", "focus-owner"};
constexpr std::string_view kDisconnectionMethods[] = {"departed", "booted", "failed", "busy"};
constexpr std::string_view kEndpointStatus[] = {"pending",         "dialing-out",   "dialing-in",
                                                "alerting",        "on-hold",       "connected",
                                                "muted-via-focus", "disconnecting", "disconnected"};

struct Execution {
    Pairs others;
    std::string when;
    std::string reason;
    std::string by;
};
constexpr RecordField kExecutionFields[] = {
    RecordOthers<&Execution::others>(),
    RecordText<&Execution::when>("when"),
    RecordText<&Execution::reason>("reason"),
    RecordText<&Execution::by>("by"),
};
constexpr RecordType kExecutionType(kExecutionFields);

struct Uri {
    Pairs others;
    std::string uri;
    std::string displayText;
    std::string purpose;
    std::optional<Execution> modified;
};
constexpr RecordField kUriFields[] = {
    RecordOthers<&Uri::others>(),
    RecordText<&Uri::uri>("uri"),
    RecordText<&Uri::displayText>("display-text"),
    RecordText<&Uri::purpose>("purpose"),
    RecordChild<&Uri::modified>("modified", kExecutionType),
};
constexpr RecordType kUriType(kUriFields);

struct Uris {
    Word<kStates> state;
    Pairs others;
    std::vector<Uri> entries;
};
constexpr RecordField kUrisFields[] = {
    RecordAttribute<&Uris::state>("state"),
    RecordOthers<&Uris::others>(),
    RecordChild<&Uris::entries>("entry", kUriType),
};
constexpr RecordType kUrisType(kUrisFields);

struct Medium {
    std::string label;
    Pairs others;
    std::string displayText;
    std::string type;
    Word<kMediaStatus> status;
};
constexpr RecordField kMediumFields[] = {
    RecordAttribute<&Medium::label>("label"),
    RecordOthers<&Medium::others>(),
    RecordText<&Medium::displayText>("display-text"),
    RecordText<&Medium::type>("type"),
    RecordText<&Medium::status>("status"),
};
constexpr RecordType kMediumType(kMediumFields);

struct AvailableMedia {
    Pairs others;
    std::vector<Medium> entries;
};
constexpr RecordField kAvailableMediaFields[] = {
    RecordOthers<&AvailableMedia::others>(),
    RecordChild<&AvailableMedia::entries>("entry", kMediumType),
};
constexpr RecordType kAvailableMediaType(kAvailableMediaFields);

struct Description {
    Pairs others;
    std::string displayText;
    std::string subject;
    std::string freeText;
    SplitText keywords;
    std::optional<Uris> confUris;
    std::optional<Uris> serviceUris;
    unsigned maximumUserCount = 0;
    std::optional<AvailableMedia> availableMedia;
};
constexpr RecordField kDescriptionFields[] = {
    RecordOthers<&Description::others>(),
    RecordText<&Description::displayText>("display-text"),
    RecordText<&Description::subject>("subject"),
    RecordText<&Description::freeText>("free-text"),
    RecordText<&Description::keywords>("keywords"),
    RecordChild<&Description::confUris>("conf-uris", kUrisType),
    RecordChild<&Description::serviceUris>("service-uris", kUrisType),
    RecordText<&Description::maximumUserCount>("maximum-user-count"),
    RecordChild<&Description::availableMedia>("available-media", kAvailableMediaType),
};
constexpr RecordType kDescriptionType(kDescriptionFields);

struct HostInfo {
    Pairs others;
    std::string displayText;
    std::string webPage;
    std::optional<Uris> uris;
};
constexpr RecordField kHostInfoFields[] = {
    RecordOthers<&HostInfo::others>(),
    RecordText<&HostInfo::displayText>("display-text"),
    RecordText<&HostInfo::webPage>("web-page"),
    RecordChild<&HostInfo::uris>("uris", kUrisType),
};
constexpr RecordType kHostInfoType(kHostInfoFields);

struct State {
    Pairs others;
    unsigned userCount = 0;
    Word<kBooleans> active;
    Word<kBooleans> locked;
};
constexpr RecordField kStateFields[] = {
    RecordOthers<&State::others>(),
    RecordText<&State::userCount>("user-count"),
    RecordText<&State::active>("active"),
    RecordText<&State::locked>("locked"),
};
constexpr RecordType kStateType(kStateFields);

struct Media {
    std::string id;
    Pairs others;
    std::string displayText;
    std::string type;
    std::string label;
    std::string srcId;
    Word<kMediaStatus> status;
};
constexpr RecordField kMediaFields[] = {
    RecordAttribute<&Media::id>("id"),
    RecordOthers<&Media::others>(),
    RecordText<&Media::displayText>("display-text"),
    RecordText<&Media::type>("type"),
    RecordText<&Media::label>("label"),
    RecordText<&Media::srcId>("src-id"),
    RecordText<&Media::status>("status"),
};
constexpr RecordType kMediaType(kMediaFields);

struct Sip {
    Pairs others;
    std::string displayText;
    std::string callId;
    std::string fromTag;
    std::string toTag;
};
constexpr RecordField kSipFields[] = {
    RecordOthers<&Sip::others>(),        RecordText<&Sip::displayText>("display-text"),
    RecordText<&Sip::callId>("call-id"), RecordText<&Sip::fromTag>("from-tag"),
    RecordText<&Sip::toTag>("to-tag"),
};
constexpr RecordType kSipType(kSipFields);

struct CallInfo {
    Pairs others;
    std::optional<Sip> sip;
};
constexpr RecordField kCallInfoFields[] = {
    RecordOthers<&CallInfo::others>(),
    RecordChild<&CallInfo::sip>("sip", kSipType),
};
constexpr RecordType kCallInfoType(kCallInfoFields);

struct Endpoint {
    std::string entity;
    Word<kStates> state;
    Pairs others;
    std::string displayText;
    std::optional<Execution> referred;
    Word<kEndpointStatus> status;
    Word<kJoiningMethods> joiningMethod;
    std::optional<Execution> joiningInfo;
    Word<kDisconnectionMethods> disconnectionMethod;
    std::optional<Execution> disconnectionInfo;
    std::vector<Media> media;
    std::optional<CallInfo> callInfo;
};
constexpr RecordField kEndpointFields[] = {
    RecordAttribute<&Endpoint::entity>("entity"),
    RecordAttribute<&Endpoint::state>("state"),
    RecordOthers<&Endpoint::others>(),
    RecordText<&Endpoint::displayText>("display-text"),
    RecordChild<&Endpoint::referred>("referred", kExecutionType),
    RecordText<&Endpoint::status>("status"),
    RecordText<&Endpoint::joiningMethod>("joining-method"),
    RecordChild<&Endpoint::joiningInfo>("joining-info", kExecutionType),
    RecordText<&Endpoint::disconnectionMethod>("disconnection-method"),
    RecordChild<&Endpoint::disconnectionInfo>("disconnection-info", kExecutionType),
    RecordChild<&Endpoint::media>("media", kMediaType),
    RecordChild<&Endpoint::callInfo>("call-info", kCallInfoType),
};
constexpr RecordType kEndpointType(kEndpointFields);

struct Roles {
    Pairs others;
    std::vector<std::string> entries;
};
constexpr RecordField kRolesFields[] = {
    RecordOthers<&Roles::others>(),
    RecordText<&Roles::entries>("entry"),
};
constexpr RecordType kRolesType(kRolesFields);

struct User {
    std::string entity;
    Word<kStates> state;
    Pairs others;
    std::string displayText;
    std::optional<Uris> associatedAors;
    std::optional<Roles> roles;
    SplitText languages;
    std::string cascadedFocus;
    std::vector<Endpoint> endpoints;
};
constexpr RecordField kUserFields[] = {
    RecordAttribute<&User::entity>("entity"),
    RecordAttribute<&User::state>("state"),
    RecordOthers<&User::others>(),
    RecordText<&User::displayText>("display-text"),
    RecordChild<&User::associatedAors>("associated-aors", kUrisType),
    RecordChild<&User::roles>("roles", kRolesType),
    RecordText<&User::languages>("languages"),
    RecordText<&User::cascadedFocus>("cascaded-focus"),
    RecordChild<&User::endpoints>("endpoint", kEndpointType),
};
constexpr RecordType kUserType(kUserFields);

struct Users {
    Word<kStates> state;
    Pairs others;
    std::vector<User> users;
};
constexpr RecordField kUsersFields[] = {
    RecordAttribute<&Users::state>("state"),
    RecordOthers<&Users::others>(),
    RecordChild<&Users::users>("user", kUserType),
};
constexpr RecordType kUsersType(kUsersFields);

struct Conference;

struct Sidebars {
    Word<kStates> state;
    Pairs others;
    std::vector<Conference> entries;
};

struct Conference {
    std::string entity;
    Word<kStates> state;
    unsigned version = 0;
    Pairs others;
    std::optional<Description> description;
    std::optional<HostInfo> hostInfo;
    std::optional<State> conferenceState;
    std::optional<Users> users;
    std::optional<Uris> sidebarsByRef;
    std::optional<Sidebars> sidebarsByVal;
};

extern const RecordType kConferenceType;
constexpr RecordField kSidebarsFields[] = {
    RecordAttribute<&Sidebars::state>("state"),
    RecordOthers<&Sidebars::others>(),
    RecordChild<&Sidebars::entries>("entry", kConferenceType),
};
constexpr RecordType kSidebarsType(kSidebarsFields);

constexpr RecordField kConferenceFields[] = {
    RecordConstant("xmlns", "urn:ietf:params:xml:ns:conference-info"),
    RecordAttribute<&Conference::entity>("entity"),
    RecordAttribute<&Conference::state>("state"),
    RecordAttribute<&Conference::version>("version"),
    RecordOthers<&Conference::others>(),
    RecordChild<&Conference::description>("conference-description", kDescriptionType),
    RecordChild<&Conference::hostInfo>("host-info", kHostInfoType),
    RecordChild<&Conference::conferenceState>("conference-state", kStateType),
    RecordChild<&Conference::users>("users", kUsersType),
    RecordChild<&Conference::sidebarsByRef>("sidebars-by-ref", kUrisType),
    RecordChild<&Conference::sidebarsByVal>("sidebars-by-val", kSidebarsType),
};
constexpr RecordType kConferenceType(kConferenceFields);

constexpr BenchFamily kConference =
    MakeFamily<Conference>(IX_XML_SCHEMA_CONFERENCE_INFO, {"conference-info", kConferenceType, false});

/// A conference that grows: a user who talks and one who has left, again and again.
std::string MakeConference(std::size_t size) {
    return GrownDocument(R"(<?xml version="1.0" encoding="UTF-8"?>
<conference-info xmlns="urn:ietf:params:xml:ns:conference-info" entity="sip:conf-7731@mrfc.example.net" state="full" version="3">
	<conference-description>
		<subject>Weekly planning, room two</subject>
		<keywords>planning weekly</keywords>
		<maximum-user-count>60</maximum-user-count>
	</conference-description>
	<conference-state>
		<user-count>2</user-count>
		<active>true</active>
		<locked>false</locked>
	</conference-state>
	<users state="full">
)",
                         R"(		<user entity="tel:+1555010#" state="full">
			<display-text>Rosa Marlow</display-text>
			<roles>
				<entry>moderator</entry>
				<entry>participant</entry>
			</roles>
			<endpoint entity="sip:+1555010#@ims.example.net;gr=urn:uuid:3c1e#" state="full">
				<status>connected</status>
				<joining-method>dialed-in</joining-method>
				<media id="1">
					<type>audio</type>
					<src-id>87#</src-id>
					<status>sendrecv</status>
				</media>
			</endpoint>
		</user>
		<user entity="tel:+1555011#" state="full">
			<display-text>Jun Okabe's phone</display-text>
			<endpoint entity="sip:+1555011#@ims.example.net">
				<status>disconnected</status>
				<disconnection-method>departed</disconnection-method>
				<disconnection-info>
					<when>2031-05-11T08:15:00Z</when>
					<by>tel:+1555011#</by>
				</disconnection-info>
			</endpoint>
		</user>
)",
                         "	</users>\n</conference-info>\n", size);
}

}  // namespace conference

void AddConferenceDocuments() { AddSizes("conference-info", conference::kConference, conference::MakeConference); }
