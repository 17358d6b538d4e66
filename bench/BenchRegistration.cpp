// Registration information and the GRUUs.
#include <cstdint>

#include "BenchDocuments.h"
#include "BenchFamilies.h"

namespace registration {

constexpr std::string_view kDocumentStates[] = {"full", "partial"};
constexpr std::string_view kRegistrationStates[] = {"init", "active", "terminated"};
constexpr std::string_view kContactStates[] = {"active", "terminated"};
constexpr std::string_view kContactEvents[] = {"registered",  "created",   "refreshed",    "shortened", "expired",
                                               "deactivated", "probation", "unregistered", "rejected"};

struct Gruu {
    std::string uri;
    std::int64_t firstCseq = 0;
};
constexpr RecordField kGruuFields[] = {
    RecordAttribute<&Gruu::firstCseq>("first-cseq"),
    RecordAttribute<&Gruu::uri>("uri"),
};
constexpr RecordType kGruuType(kGruuFields);

struct UnknownParam {
    std::string name;
    std::string value;
};
constexpr RecordField kParamFields[] = {
    RecordAttribute<&UnknownParam::name>("name"),
    RecordContent<&UnknownParam::value>(),
};
constexpr RecordType kParamType(kParamFields);

struct Contact {
    Word<kContactStates> state;
    Word<kContactEvents> event;
    std::int64_t durationRegistered = 0;
    std::int64_t expires = 0;
    std::int64_t retryAfter = 0;
    std::string id;
    std::string q;
    std::string callid;
    std::int64_t cseq = 0;
    std::string uri;
    std::string displayName;
    std::vector<UnknownParam> unknownParams;
    std::optional<Gruu> pubGruu;
    std::optional<Gruu> tempGruu;
};
constexpr RecordField kContactFields[] = {
    RecordAttribute<&Contact::state>("state"),
    RecordAttribute<&Contact::event>("event"),
    RecordAttribute<&Contact::durationRegistered>("duration-registered"),
    RecordAttribute<&Contact::expires>("expires"),
    RecordAttribute<&Contact::retryAfter>("retry-after"),
    RecordAttribute<&Contact::id>("id"),
    RecordAttribute<&Contact::q>("q"),
    RecordAttribute<&Contact::callid>("callid"),
    RecordAttribute<&Contact::cseq>("cseq"),
    RecordText<&Contact::uri>("uri"),
    RecordText<&Contact::displayName>("display-name"),
    RecordChild<&Contact::unknownParams>("unknown-param", kParamType),
    RecordChild<&Contact::pubGruu>("gr:pub-gruu", kGruuType),
    RecordChild<&Contact::tempGruu>("gr:temp-gruu", kGruuType),
};
constexpr RecordType kContactType(kContactFields);

struct Registration {
    std::string aor;
    std::string id;
    Word<kRegistrationStates> state;
    std::vector<Contact> contacts;
};
constexpr RecordField kRegistrationFields[] = {
    RecordAttribute<&Registration::aor>("aor"),
    RecordAttribute<&Registration::id>("id"),
    RecordAttribute<&Registration::state>("state"),
    RecordChild<&Registration::contacts>("contact", kContactType),
};
constexpr RecordType kRegistrationType(kRegistrationFields);

struct Reginfo {
    unsigned version = 0;
    Word<kDocumentStates> state;
    std::vector<Registration> registrations;
};
constexpr RecordField kReginfoFields[] = {
    RecordConstant("xmlns", "urn:ietf:params:xml:ns:reginfo"),
    RecordConstant("xmlns:gr", "urn:ietf:params:xml:ns:gruuinfo"),
    RecordAttribute<&Reginfo::version>("version"),
    RecordAttribute<&Reginfo::state>("state"),
    RecordChild<&Reginfo::registrations>("registration", kRegistrationType),
};
constexpr RecordType kReginfoType(kReginfoFields);

constexpr BenchFamily kReginfo = MakeFamily<Reginfo>(IX_XML_SCHEMA_REGINFO, {"reginfo", kReginfoType, true});
constexpr BenchFamily kTempGruu = MakeFamily<Gruu>(IX_XML_SCHEMA_GRUU, {"temp-gruu", kGruuType, true});

/// A user's identities, each with a contact of its own and one of an implicit registration.
std::string MakeReginfo(std::size_t size) {
    return GrownDocument(
        "<?xml version=\"1.0\"?>\n"
        "<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\" xmlns:gr=\"urn:ietf:params:xml:ns:gruuinfo\""
        " version=\"3\" state=\"full\">\n",
        R"(	<registration aor="sip:+1555010#@ims.example.net" id="0x7f21c8a0#" state="active">
		<contact id="0x7f21c8a0#c1" state="active" event="registered" expires="599970" q="1.000" callid="k#a84b4c76e66710@198.51.100.17" cseq="16392">
			<uri>sip:+1555010#@198.51.100.17:31112;transport=tcp</uri>
			<display-name>Subscriber #</display-name>
			<unknown-param name="+g.3gpp.icsi-ref">"urn%3Aurn-7%3A3gpp-service.ims.icsi.mmtel"</unknown-param>
			<unknown-param name="+sip.instance">"&lt;urn:gsma:imei:90420156-02#-0&gt;"</unknown-param>
			<gr:pub-gruu uri="sip:+1555010#@ims.example.net;gr=urn:gsma:imei:90420156-02#-0"/>
		</contact>
		<contact id="0x7f21c8a0#c2" state="terminated" event="expired" duration-registered="7322">
			<uri>sip:+1555010#@198.51.100.18:31112;transport=tcp</uri>
		</contact>
	</registration>
	<registration aor="tel:+1555010#" id="0x7f21c8b0#" state="active">
		<contact id="0x7f21c8b0#c1" state="active" event="created" expires="599970">
			<uri>sip:+1555010#@198.51.100.17:31112;transport=tcp</uri>
		</contact>
	</registration>
)",
        "</reginfo>\n", size);
}

std::string MakeTempGruu(std::size_t /*size*/) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<temp-gruu uri=\"sip:tgruu.7hs==jd7vnzga5w7fajsc7-ajd6fabz0f8g5@example.com;gr\" first-cseq=\"54301\"/>\n";
}

}  // namespace registration

void AddRegistrationDocuments() {
    AddDocument("gruu", registration::kTempGruu, registration::MakeTempGruu);
    AddSizes("reginfo", registration::kReginfo, registration::MakeReginfo);
    AddGrowth("reginfo", registration::kReginfo, registration::MakeReginfo);
}
