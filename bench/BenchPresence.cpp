// Presence and resource lists.
#include "BenchDocuments.h"
#include "BenchFamilies.h"

namespace presence {

constexpr std::string_view kBasics[] = {"open", "closed"};
constexpr std::string_view kBooleans[] = {"false", "true"};

struct ServiceDescription {
    std::string serviceId;
    std::string version;
    std::string description;
};
constexpr RecordField kServiceDescriptionFields[] = {
    RecordText<&ServiceDescription::serviceId>("op:service-id"),
    RecordText<&ServiceDescription::version>("op:version"),
    RecordText<&ServiceDescription::description>("op:description"),
};
constexpr RecordType kServiceDescriptionType(kServiceDescriptionFields);

struct Supported {
    bool full = false;
};
constexpr RecordField kSupportedFields[] = {RecordText<&Supported::full>("caps:full")};
constexpr RecordType kSupportedType(kSupportedFields);

struct Duplex {
    std::optional<Supported> supported;
};
constexpr RecordField kDuplexFields[] = {RecordChild<&Duplex::supported>("caps:supported", kSupportedType)};
constexpr RecordType kDuplexType(kDuplexFields);

struct Servcaps {
    Word<kBooleans> audio;
    std::optional<Duplex> duplex;
};
constexpr RecordField kServcapsFields[] = {
    RecordText<&Servcaps::audio>("caps:audio"),
    RecordChild<&Servcaps::duplex>("caps:duplex", kDuplexType),
};
constexpr RecordType kServcapsType(kServcapsFields);

struct Status {
    Word<kBasics> basic;
};
constexpr RecordField kStatusFields[] = {RecordText<&Status::basic>("basic")};
constexpr RecordType kStatusType(kStatusFields);

struct Contact {
    std::string priority;
    std::string uri;
};
constexpr RecordField kContactFields[] = {
    RecordAttribute<&Contact::priority>("priority"),
    RecordContent<&Contact::uri>(),
};
constexpr RecordType kContactType(kContactFields);

struct Tuple {
    std::string id;
    std::optional<Status> status;
    std::vector<ServiceDescription> serviceDescriptions;
    std::vector<Servcaps> servcaps;
    std::optional<Contact> contact;
    std::vector<std::string> notes;
    std::string timestamp;
};
constexpr RecordField kTupleFields[] = {
    RecordAttribute<&Tuple::id>("id"),
    RecordChild<&Tuple::status>("status", kStatusType),
    RecordChild<&Tuple::serviceDescriptions>("op:service-description", kServiceDescriptionType),
    RecordChild<&Tuple::servcaps>("caps:servcaps", kServcapsType),
    RecordChild<&Tuple::contact>("contact", kContactType),
    RecordText<&Tuple::notes>("note"),
    RecordText<&Tuple::timestamp>("timestamp"),
};
constexpr RecordType kTupleType(kTupleFields);

struct Presence {
    std::string entity;
    std::vector<Tuple> tuples;
    std::vector<std::string> notes;
};
constexpr RecordField kPresenceFields[] = {
    RecordConstant("xmlns", "urn:ietf:params:xml:ns:pidf"),
    RecordConstant("xmlns:op", "urn:oma:xml:prs:pidf:oma-pres"),
    RecordConstant("xmlns:caps", "urn:ietf:params:xml:ns:pidf:caps"),
    RecordAttribute<&Presence::entity>("entity"),
    RecordChild<&Presence::tuples>("tuple", kTupleType),
    RecordText<&Presence::notes>("note"),
};
constexpr RecordType kPresenceType(kPresenceFields);

struct Entry {
    std::string uri;
    Pairs others;
    std::string displayName;
};
constexpr RecordField kEntryFields[] = {
    RecordAttribute<&Entry::uri>("uri"),
    RecordOthers<&Entry::others>(),
    RecordText<&Entry::displayName>("display-name"),
};
constexpr RecordType kEntryType(kEntryFields);

struct EntryRef {
    std::string ref;
    Pairs others;
    std::string displayName;
};
constexpr RecordField kEntryRefFields[] = {
    RecordAttribute<&EntryRef::ref>("ref"),
    RecordOthers<&EntryRef::others>(),
    RecordText<&EntryRef::displayName>("display-name"),
};
constexpr RecordType kEntryRefType(kEntryRefFields);

struct External {
    std::string anchor;
    Pairs others;
    std::string displayName;
};
constexpr RecordField kExternalFields[] = {
    RecordAttribute<&External::anchor>("anchor"),
    RecordOthers<&External::others>(),
    RecordText<&External::displayName>("display-name"),
};
constexpr RecordType kExternalType(kExternalFields);

struct List {
    std::string name;
    Pairs others;
    std::string displayName;
    std::vector<std::variant<Entry, EntryRef, External, List>> members;
};
extern const RecordType kListType;
constexpr RecordField kListFields[] = {
    RecordAttribute<&List::name>("name"),
    RecordOthers<&List::others>(),
    RecordText<&List::displayName>("display-name"),
    RecordChoice<&List::members, Entry>("entry", kEntryType),
    RecordChoice<&List::members, EntryRef>("entry-ref", kEntryRefType),
    RecordChoice<&List::members, External>("external", kExternalType),
    RecordChoice<&List::members, List>("list", kListType),
};
constexpr RecordType kListType(kListFields);

struct ResourceLists {
    std::vector<List> lists;
};
constexpr RecordField kResourceListsFields[] = {
    RecordConstant("xmlns", "urn:ietf:params:xml:ns:resource-lists"),
    RecordConstant("xmlns:cp", "urn:ietf:params:xml:ns:copycontrol"),
    RecordChild<&ResourceLists::lists>("list", kListType),
};
constexpr RecordType kResourceListsType(kResourceListsFields);

constexpr BenchFamily kPresence = MakeFamily<Presence>(IX_XML_SCHEMA_PRESENCE, {"presence", kPresenceType, true});
constexpr BenchFamily kResourceLists =
    MakeFamily<ResourceLists>(IX_XML_SCHEMA_RESOURCE_LISTS, {"resource-lists", kResourceListsType, false});

/// The services of a user, as a presence server composes them of all devices.
std::string MakePresence(std::size_t size) {
    return GrownDocument(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<presence xmlns=\"urn:ietf:params:xml:ns:pidf\" xmlns:op=\"urn:oma:xml:prs:pidf:oma-pres\""
        " xmlns:caps=\"urn:ietf:params:xml:ns:pidf:caps\" entity=\"tel:+15550100\">\n",
        R"(  <tuple id="chat#">
    <status>
      <basic>open</basic>
    </status>
    <op:service-description>
      <op:service-id>org.openmobilealliance:IM-session</op:service-id>
      <op:version>2.0</op:version>
    </op:service-description>
    <contact>tel:+1555010#</contact>
    <timestamp>2026-03-09T18:05:00Z</timestamp>
  </tuple>
  <tuple id="call#">
    <status>
      <basic>closed</basic>
    </status>
    <op:service-description>
      <op:service-id>org.3gpp.urn:urn-7:3gpp-service.ims.icsi.mmtel</op:service-id>
      <op:version>1.0</op:version>
      <op:description>Voice and video calls</op:description>
    </op:service-description>
    <caps:servcaps>
      <caps:audio>true</caps:audio>
      <caps:duplex>
        <caps:supported>
          <caps:full/>
        </caps:supported>
      </caps:duplex>
    </caps:servcaps>
    <contact priority="0.7">sip:+1555010#@ims.example.net;user=phone</contact>
    <note>Back on Monday</note>
    <timestamp>2026-03-09T18:05:01+01:00</timestamp>
  </tuple>
)",
        "</presence>\n", size);
}

/// The participants of conference calls: mostly entries, some lists and references.
std::string MakeResourceLists(std::size_t size) {
    return GrownDocument(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<resource-lists xmlns=\"urn:ietf:params:xml:ns:resource-lists\"\n"
        "    xmlns:cp=\"urn:ietf:params:xml:ns:copycontrol\">\n",
        R"(  <list name="call-#">
    <display-name>Call #</display-name>
    <entry uri="sip:carla#@ims.example.net" cp:copyControl="to"/>
    <entry uri="tel:+1555010#" cp:copyControl="cc">
      <display-name>Dmitri #</display-name>
    </entry>
    <entry uri="sip:+1555011#@ims.example.net;user=phone" cp:copyControl="cc" cp:anonymize="true"/>
    <entry uri="sip:ines#@ims.example.net">
      <display-name>Ines</display-name>
    </entry>
    <list name="on-site">
      <entry-ref ref="resource-lists/users/sip:ruth@ims.example.net/index/~~/resource-lists/list%5b@name=%22team%22%5d">
        <display-name>Omar, by reference</display-name>
      </entry-ref>
      <entry uri="sip:lee#@ims.example.net"/>
    </list>
    <external anchor="https://xdm.example.org/resource-lists/users/sip:ruth@ims.example.net/index">
      <display-name>Guests</display-name>
    </external>
  </list>
)",
        "</resource-lists>\n", size);
}

}  // namespace presence

void AddPresenceDocuments() {
    AddSizes("presence", presence::kPresence, presence::MakePresence);
    AddSizes("resource-lists", presence::kResourceLists, presence::MakeResourceLists);
}
