// The supplementary services: communication waiting, communication diversion, and simservs with all of them.
#include "BenchDocuments.h"
#include "BenchFamilies.h"

namespace services {

constexpr char kServiceUri[] = "http://uri.etsi.org/ngn/params/xml/simservs/xcap";
constexpr char kPolicyUri[] = "urn:ietf:params:xml:ns:common-policy";

constexpr std::string_view kBooleans[] = {"false", "true"};
constexpr std::string_view kReveal[] = {"false", "not-reveal-GRUU", "true"};

struct One {
    std::string id;
};
constexpr RecordField kOneFields[] = {RecordAttribute<&One::id>("id")};
constexpr RecordType kOneType(kOneFields);

struct Except {
    std::string domain;
    std::string id;
};
constexpr RecordField kExceptFields[] = {
    RecordAttribute<&Except::domain>("domain"),
    RecordAttribute<&Except::id>("id"),
};
constexpr RecordType kExceptType(kExceptFields);

struct Many {
    std::string domain;
    std::vector<Except> excepts;
};
constexpr RecordField kManyFields[] = {
    RecordAttribute<&Many::domain>("domain"),
    RecordChild<&Many::excepts>("cp:except", kExceptType),
};
constexpr RecordType kManyType(kManyFields);

struct Identity {
    std::vector<One> ones;
    std::vector<Many> manies;
};
constexpr RecordField kIdentityFields[] = {
    RecordChild<&Identity::ones>("cp:one", kOneType),
    RecordChild<&Identity::manies>("cp:many", kManyType),
};
constexpr RecordType kIdentityType(kIdentityFields);

struct Sphere {
    std::string value;
};
constexpr RecordField kSphereFields[] = {RecordAttribute<&Sphere::value>("value")};
constexpr RecordType kSphereType(kSphereFields);

struct Validity {
    std::vector<std::string> from;
    std::vector<std::string> until;
};
constexpr RecordField kValidityFields[] = {
    RecordText<&Validity::from>("cp:from"),
    RecordText<&Validity::until>("cp:until"),
};
constexpr RecordType kValidityType(kValidityFields);

struct Conditions {
    std::vector<Identity> identities;
    std::vector<Sphere> spheres;
    std::vector<Validity> validities;
    bool ruleDeactivated = false;
    bool anonymous = false;
    bool communicationDiverted = false;
    bool notRegistered = false;
    bool busy = false;
    bool noAnswer = false;
    bool notReachable = false;
    bool roaming = false;
    bool international = false;
    bool internationalExHc = false;
    std::vector<std::string> media;
    std::vector<std::string> presenceStatus;
};
constexpr RecordField kConditionsFields[] = {
    RecordChild<&Conditions::identities>("cp:identity", kIdentityType),
    RecordChild<&Conditions::spheres>("cp:sphere", kSphereType),
    RecordChild<&Conditions::validities>("cp:validity", kValidityType),
    RecordText<&Conditions::ruleDeactivated>("ss:rule-deactivated"),
    RecordText<&Conditions::anonymous>("ss:anonymous"),
    RecordText<&Conditions::communicationDiverted>("ss:communication-diverted"),
    RecordText<&Conditions::notRegistered>("ss:not-registered"),
    RecordText<&Conditions::busy>("ss:busy"),
    RecordText<&Conditions::noAnswer>("ss:no-answer"),
    RecordText<&Conditions::notReachable>("ss:not-reachable"),
    RecordText<&Conditions::roaming>("ss:roaming"),
    RecordText<&Conditions::international>("ss:international"),
    RecordText<&Conditions::internationalExHc>("ss:international-exHC"),
    RecordText<&Conditions::media>("ss:media"),
    RecordText<&Conditions::presenceStatus>("ss:presence-status"),
};
constexpr RecordType kConditionsType(kConditionsFields);

struct ForwardTo {
    std::string target;
    Word<kBooleans> notifyCaller;
    Word<kReveal> revealIdentityToCaller;
    Word<kReveal> revealServedUserIdentityToCaller;
    Word<kBooleans> notifyServedUser;
    Word<kBooleans> notifyServedUserOnOutboundCall;
    Word<kReveal> revealIdentityToTarget;
};
constexpr RecordField kForwardToFields[] = {
    RecordText<&ForwardTo::target>("ss:target"),
    RecordText<&ForwardTo::notifyCaller>("ss:notify-caller"),
    RecordText<&ForwardTo::revealIdentityToCaller>("ss:reveal-identity-to-caller"),
    RecordText<&ForwardTo::revealServedUserIdentityToCaller>("ss:reveal-served-user-identity-to-caller"),
    RecordText<&ForwardTo::notifyServedUser>("ss:notify-served-user"),
    RecordText<&ForwardTo::notifyServedUserOnOutboundCall>("ss:notify-served-user-on-outbound-call"),
    RecordText<&ForwardTo::revealIdentityToTarget>("ss:reveal-identity-to-target"),
};
constexpr RecordType kForwardToType(kForwardToFields);

struct Actions {
    std::optional<ForwardTo> forwardTo;
    Word<kBooleans> allow;
};
constexpr RecordField kActionsFields[] = {
    RecordChild<&Actions::forwardTo>("ss:forward-to", kForwardToType),
    RecordText<&Actions::allow>("ss:allow"),
};
constexpr RecordType kActionsType(kActionsFields);

struct Rule {
    std::string id;
    std::optional<Conditions> conditions;
    std::optional<Actions> actions;
    bool transformations = false;
};
constexpr RecordField kRuleFields[] = {
    RecordAttribute<&Rule::id>("id"),
    RecordChild<&Rule::conditions>("cp:conditions", kConditionsType),
    RecordChild<&Rule::actions>("cp:actions", kActionsType),
    RecordText<&Rule::transformations>("cp:transformations"),
};
constexpr RecordType kRuleType(kRuleFields);

struct Ruleset {
    std::vector<Rule> rules;
};
constexpr RecordField kRulesetFields[] = {RecordChild<&Ruleset::rules>("cp:rule", kRuleType)};
constexpr RecordType kRulesetType(kRulesetFields);

/// Waiting and the presentation of identities.
struct Service {
    Word<kBooleans> active;
    Pairs extensions;
};
constexpr RecordField kServiceFields[] = {
    RecordAttribute<&Service::active>("active"),
    RecordOthers<&Service::extensions>(),
};
constexpr RecordType kServiceType(kServiceFields);

/// Barring and diversion.
struct RuleService {
    Word<kBooleans> active;
    Pairs extensions;
    unsigned noReplyTimer = 0;
    std::optional<Ruleset> ruleset;
};
constexpr RecordField kRuleServiceFields[] = {
    RecordAttribute<&RuleService::active>("active"),
    RecordOthers<&RuleService::extensions>(),
    RecordText<&RuleService::noReplyTimer>("ss:NoReplyTimer"),
    RecordChild<&RuleService::ruleset>("cp:ruleset", kRulesetType),
};
constexpr RecordType kRuleServiceType(kRuleServiceFields);

struct Simservs {
    std::vector<RuleService> incomingBarring;
    std::vector<RuleService> outgoingBarring;
    std::vector<RuleService> diversion;
    std::vector<Service> waiting;
    std::vector<Service> originatingIdentity;
    std::vector<Service> terminatingIdentity;
};
constexpr RecordField kSimservsFields[] = {
    RecordConstant("xmlns:ss", kServiceUri),
    RecordConstant("xmlns:cp", kPolicyUri),
    RecordChild<&Simservs::incomingBarring>("ss:incoming-communication-barring", kRuleServiceType),
    RecordChild<&Simservs::outgoingBarring>("ss:outgoing-communication-barring", kRuleServiceType),
    RecordChild<&Simservs::diversion>("ss:communication-diversion", kRuleServiceType),
    RecordChild<&Simservs::waiting>("ss:communication-waiting", kServiceType),
    RecordChild<&Simservs::originatingIdentity>("ss:originating-identity-presentation", kServiceType),
    RecordChild<&Simservs::terminatingIdentity>("ss:terminating-identity-presentation", kServiceType),
};
constexpr RecordType kSimservsType(kSimservsFields);

constexpr BenchFamily kWaiting =
    MakeFamily<Service>(IX_XML_SCHEMA_COMMUNICATION_WAITING, {"ss:communication-waiting", kServiceType, true});
constexpr BenchFamily kDiversion = MakeFamily<RuleService>(IX_XML_SCHEMA_COMMUNICATION_DIVERSION,
                                                           {"ss:communication-diversion", kRuleServiceType, true});
constexpr BenchFamily kSimservs = MakeFamily<Simservs>(IX_XML_SCHEMA_SIMSERVS, {"ss:simservs", kSimservsType, true});

std::string MakeWaiting(std::size_t /*size*/) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<ss:communication-waiting xmlns:ss=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\" "
           "active=\"true\"/>\n";
}

/// The rules of a subscriber: all calls, off; busy; no answer; out of reach; and one caller at work.
constexpr char kDiversionRules[] = R"(    <cp:ruleset>
      <cp:rule id="unconditional">
        <cp:conditions>
          <ss:rule-deactivated/>
        </cp:conditions>
        <cp:actions>
          <ss:forward-to>
            <ss:target>tel:+15550142</ss:target>
            <ss:notify-caller>true</ss:notify-caller>
          </ss:forward-to>
        </cp:actions>
      </cp:rule>
      <cp:rule id="busy">
        <cp:conditions>
          <ss:busy/>
          <ss:media>audio</ss:media>
        </cp:conditions>
        <cp:actions>
          <ss:forward-to>
            <ss:target>sip:voicemail@ims.example.net</ss:target>
          </ss:forward-to>
        </cp:actions>
      </cp:rule>
      <cp:rule id="no-answer">
        <cp:conditions>
          <ss:no-answer/>
          <ss:media>audio</ss:media>
          <ss:media>video</ss:media>
        </cp:conditions>
        <cp:actions>
          <ss:forward-to>
            <ss:target>sip:voicemail@ims.example.net</ss:target>
            <ss:notify-caller>false</ss:notify-caller>
            <ss:reveal-identity-to-caller>not-reveal-GRUU</ss:reveal-identity-to-caller>
            <ss:notify-served-user>true</ss:notify-served-user>
          </ss:forward-to>
        </cp:actions>
      </cp:rule>
      <cp:rule id="not-reachable">
        <cp:conditions>
          <ss:not-registered/>
          <ss:not-reachable/>
        </cp:conditions>
        <cp:actions>
          <ss:forward-to>
            <ss:target>tel:+15550143</ss:target>
          </ss:forward-to>
        </cp:actions>
      </cp:rule>
      <cp:rule id="work">
        <cp:conditions>
          <cp:identity>
            <cp:one id="sip:alice@ims.example.net"/>
          </cp:identity>
          <cp:sphere value="work"/>
          <cp:validity>
            <cp:from>2026-01-01T08:00:00Z</cp:from>
            <cp:until>2026-06-30T18:00:00Z</cp:until>
          </cp:validity>
        </cp:conditions>
        <cp:actions>
          <ss:forward-to>
            <ss:target>sip:reception@ims.example.net</ss:target>
          </ss:forward-to>
        </cp:actions>
      </cp:rule>
    </cp:ruleset>
)";

std::string MakeDiversion(std::size_t /*size*/) {
    return std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ss:communication-diversion xmlns:ss=\"") +
           kServiceUri + "\" xmlns:cp=\"" + kPolicyUri +
           "\" active=\"true\">\n    <ss:NoReplyTimer>20</ss:NoReplyTimer>\n" + kDiversionRules +
           "</ss:communication-diversion>\n";
}

/// A barring service with one rule.
std::string Barring(const std::string& service, const std::string& id, const std::string& condition) {
    return "  <ss:" + service + " active=\"true\">\n    <cp:ruleset>\n      <cp:rule id=\"" + id +
           "\">\n        <cp:conditions>\n          <ss:" + condition +
           "/>\n        </cp:conditions>\n        <cp:actions>\n          <ss:allow>false</ss:allow>\n"
           "        </cp:actions>\n      </cp:rule>\n    </cp:ruleset>\n  </ss:" +
           service + ">\n";
}

/// Ten services, four of which the library does not have and leaves out, as the structs do.
std::string MakeSimservs(std::size_t /*size*/) {
    return std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ss:simservs xmlns:ss=\"") + kServiceUri +
           "\" xmlns:cp=\"" + kPolicyUri + "\">\n" +
           "  <ss:originating-identity-presentation active=\"true\"/>\n"
           "  <ss:originating-identity-presentation-restriction active=\"true\">\n"
           "    <ss:default-behaviour>presentation-not-restricted</ss:default-behaviour>\n"
           "  </ss:originating-identity-presentation-restriction>\n"
           "  <ss:terminating-identity-presentation active=\"true\"/>\n"
           "  <ss:terminating-identity-presentation-restriction active=\"false\">\n"
           "    <ss:default-behaviour>presentation-restricted</ss:default-behaviour>\n"
           "  </ss:terminating-identity-presentation-restriction>\n"
           "  <ss:communication-diversion active=\"true\">\n    <ss:NoReplyTimer>20</ss:NoReplyTimer>\n" +
           kDiversionRules + "  </ss:communication-diversion>\n" +
           Barring("incoming-communication-barring", "abroad", "roaming") +
           Barring("outgoing-communication-barring", "international", "international") +
           "  <ss:communication-waiting active=\"true\"/>\n"
           "  <ss:flexible-alerting-default active=\"false\"/>\n"
           "  <ss:flexible-alerting-specific active=\"false\"/>\n"
           "</ss:simservs>\n";
}

}  // namespace services

void AddServiceDocuments() {
    AddDocument("waiting", services::kWaiting, services::MakeWaiting);
    AddDocument("diversion", services::kDiversion, services::MakeDiversion);
    AddDocument("simservs", services::kSimservs, services::MakeSimservs);
}
