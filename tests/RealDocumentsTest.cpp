// The documents of other senders, read in place; skipped where their folder is missing.
#include <map>
#include <set>

#include "FamilyTest.h"
#include "XmlFields.h"

namespace {

/// What becomes of a tree that is written and read again.
enum class Again {
    Same,   ///< It is equal.
    Less,   ///< Something is lost.
    Never,  ///< It cannot be written.
    None    ///< There is no tree.
};

/// Fields that a person reads in a document, by JSON pointer into the tree: text as it is, anything else as JSON.
struct Expectation {
    eXMLSchemaID id;
    const char* file;
    Again again;
    std::map<std::string, std::string> fields;
    bool binder = false;  ///< Decoded and written with the document's own declarations as binder.
};

const Expectation kExpectations[] = {
    {IX_XML_SCHEMA_COMMUNICATION_WAITING,
     "communication-waiting/default-namespace-handwritten.xml",
     Again::Same,
     {{"/active", "false"}, {"/attributes/0/value", "http://uri.etsi.org/ngn/params/xml/simservs/xcap"}}},
    {IX_XML_SCHEMA_COMMUNICATION_WAITING,
     "communication-waiting/prefixed-self-closing-no-declaration.xml",
     Again::Same,
     {{"/active", "true"}}},
    {IX_XML_SCHEMA_COMMUNICATION_WAITING,
     "communication-waiting/unprefixed-crlf-end-tag.xml",
     Again::Same,
     {{"/active", "true"}}},
    {IX_XML_SCHEMA_OIP, "oip/prefixed-self-closing.xml", Again::Same, {{"/active", "true"}}},
    {IX_XML_SCHEMA_OIP, "oip/unprefixed-blank-before-slash.xml", Again::Same, {{"/active", "true"}}},
    {IX_XML_SCHEMA_TIP,
     "tip/default-namespace-handwritten.xml",
     Again::Same,
     {{"/active", "true"}, {"/attributes/0/name", "xmlns"}}},
    {IX_XML_SCHEMA_TIP, "tip/prefixed-inactive.xml", Again::Same, {{"/active", "false"}}},
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION,
     "communication-diversion/empty-xmlns-two-rules.xml",
     Again::Same,
     {{"/active", "true"},
      {"/NoReplyTimer/text", "19"},
      {"/attributes/0/name", "xmlns"},
      {"/ruleset/rule/0/id", "rule1"},
      {"/ruleset/rule/0/conditions/any/0/text", "video"},
      {"/ruleset/rule/0/conditions/any/1/name", "international"},
      {"/ruleset/rule/1/conditions/any/0/name", "not-reachable"},
      {"/ruleset/rule/1/actions/any/0/target", "sip:15555500819@ims.example.com"}}},
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION,
     "communication-diversion/long-twelve-rules-media.xml",
     Again::Same,
     {{"/NoReplyTimer/text", "25"},
      {"/ruleset/rule/0/id", "call-diversion-busy-audio"},
      {"/ruleset/rule/1/actions/any/0/notify-served-user", "false"},
      {"/ruleset/rule/1/actions/any/0/notify-served-user-on-outbound-call", "false"},
      {"/ruleset/rule/11/actions/any/0/target", "tel:+15555567890"},
      {"/ruleset/rule/11/actions/any/0/reveal-identity-to-caller", "true"},
      {"/ruleset/rule/11/actions/any/0/reveal-identity-to-target", "false"}}},
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION,
     "communication-diversion/mixed-prefix-pretty-printed.xml",
     Again::Same,
     {{"/active", "false"},
      {"/NoReplyTimer/text", "20"},
      {"/ruleset/rule/0/conditions/any/0/name", "busy"},
      {"/ruleset/rule/0/actions/any/0/target", "sip:abc@example.com"}},
     true},
    // The prefixed attribute is not the switch.
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION,
     "communication-diversion/prefixed-active-attribute.xml",
     Again::Same,
     {{"/active", "true"},
      {"/attributes/0/name", "ss:active"},
      {"/ruleset/rule/0/id", "CFU"},
      {"/ruleset/rule/0/actions/any/0/target", "tel:+15555509749"}}},
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION,
     "communication-diversion/prefixed-one-rule-no-media.xml",
     Again::Same,
     {{"/ruleset/rule/0/id", "call-diversion-unconditional"},
      {"/ruleset/rule/0/conditions/any/0/name", "rule-deactivated"},
      {"/ruleset/rule/0/actions/any/0/target", "tel:+15555567890"}}},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING,
     "communication-barring/incoming-empty-conditions.xml",
     Again::Same,
     {{"/class", "incoming-communication-barring"},
      {"/ruleset/rule/0/conditions/class", "ix_ns_common_policy_conditionsType"},
      {"/ruleset/rule/0/actions/any/0/text", "true"}}},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING,
     "communication-barring/incoming-six-rules-video.xml",
     Again::Same,
     {{"/ruleset/rule/0/id", "call-barring-all-incoming"},
      {"/ruleset/rule/5/conditions/any/1/name", "anonymous"},
      {"/ruleset/rule/5/conditions/any/2/text", "video"},
      {"/ruleset/rule/5/actions/any/0/text", "false"}}},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING,
     "communication-barring/incoming-unknown-condition-with-text.xml",
     Again::Same,
     {{"/ruleset/rule/1/conditions/any/1/text", "sub-etheric"},
      {"/ruleset/rule/2/conditions/any/0/name", "roaming"},
      {"/ruleset/rule/2/conditions/any/1/name", "international-exHC"},
      {"/ruleset/rule/2/actions/any/0/text", "true"}}},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING,
     "communication-barring/incoming-with-namespaces.xml",
     Again::Same,
     {{"/attributes/1/value", "urn:ietf:params:xml:ns:common-policy"}, {"/ruleset/rule/0/actions/any/0/text", "true"}},
     true},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING,
     "communication-barring/outgoing-prefixed-media.xml",
     Again::Same,
     {{"/class", "outgoing-communication-barring"},
      {"/ruleset/rule/0/id", "call-barring-all-outgoing-audio"},
      {"/ruleset/rule/3/conditions/any/1/name", "international-exHC"},
      {"/ruleset/rule/3/actions/any/0/text", "false"}}},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING,
     "communication-barring/outgoing-pretty-printed.xml",
     Again::Same,
     {{"/ruleset/rule/0/conditions/any/0/name", "international"}, {"/ruleset/rule/0/actions/any/0/text", "true"}}},
    {IX_XML_SCHEMA_SIMSERVS,
     "simservs/empty-xmlns-three-services.xml",
     Again::Same,
     {{"/service/0/class", "incoming-communication-barring"},
      {"/service/1/active", "false"},
      {"/service/2/ruleset/rule/1/actions/any/0/target", "sip:15555500819@ims.example.com"},
      {"/service/3/class", "originating-identity-presentation"},
      {"/service/3/active", "false"}}},
    {IX_XML_SCHEMA_SIMSERVS,
     "simservs/identity-services-blank-before-gt.xml",
     Again::Same,
     {{"/service/0/class", "originating-identity-presentation"}, {"/service/0/active", "true"}}},
    // The media type is what is left of an element that describes what the server can do.
    {IX_XML_SCHEMA_SIMSERVS,
     "simservs/long-all-services-namespaces.xml",
     Again::Less,
     {{"/service/0/class", "incoming-communication-barring"},
      {"/service/0/ruleset/rule/5/conditions/any/1/name", "anonymous"},
      {"/service/2/NoReplyTimer/text", "25"},
      {"/service/2/ruleset/rule/11/actions/any/0/target", "tel:+15555567890"},
      {"/service/3/class", "ix_ns_xcap_media_type"},
      {"/service/4/class", "communication-waiting"},
      {"/service/6/class", "terminating-identity-presentation"},
      {"/service/6/active", "false"}}},
    {IX_XML_SCHEMA_SIMSERVS,
     "simservs/mmtel-test-blanks.xml",
     Again::Same,
     {{"/service/0/ruleset/rule/0/actions/any/0/text", "true"},
      {"/service/2/NoReplyTimer/text", "19"},
      {"/service/2/ruleset/rule/0/conditions/any/0/name", "busy"},
      {"/service/3/active", "true"}}},
    {IX_XML_SCHEMA_SIMSERVS,
     "simservs/two-services-pretty-printed.xml",
     Again::Same,
     {{"/service/1/class", "outgoing-communication-barring"},
      {"/service/1/ruleset/rule/0/conditions/any/0/name", "international"}}},
    {IX_XML_SCHEMA_SIMSERVS,
     "simservs/xdms-default-one-line.xml",
     Again::Same,
     {{"/service/0/ruleset/rule/0/id", "rule0"},
      {"/service/2/NoReplyTimer/text", "30"},
      {"/service/3/class", "originating-identity-presentation"},
      {"/service/4", "null"}},
     true},
    {IX_XML_SCHEMA_XCAP_ERROR,
     "xcap-error/cannot-delete-phrase-one-line.xml",
     Again::Same,
     {{"/class", "ix_xcap_error"}, {"/error/class", "ix_cannot_delete"}, {"/error/phrase", "Cannot Delete"}}},
    {IX_XML_SCHEMA_XCAP_ERROR,
     "xcap-error/no-parent-ancestor-server-body.xml",
     Again::Same,
     {{"/error/class", "ix_no_parent"},
      {"/error/phrase", "null"},
      {"/error/ancestor", "http://xcap.example.com:8080/pres-rules/users/put"}}},
    {IX_XML_SCHEMA_XCAP_ERROR,
     "xcap-error/rfc4825-uniqueness-failure.xml",
     Again::Same,
     {{"/error/class", "ix_uniqueness_failure"},
      {"/error/exists/0/field", "rls-services/service/@uri"},
      {"/error/exists/0/alt-value", R"(["sip:mybuddies@example.com"])"},
      {"/error/exists/1", "null"}}},
    {IX_XML_SCHEMA_XCAP_ERROR,
     "xcap-error/single-quoted-cannot-insert.xml",
     Again::Same,
     {{"/error/class", "ix_cannot_insert"}, {"/error/phrase", "the element exists already"}}},
    {IX_XML_SCHEMA_XCAP_ERROR,
     "xcap-error/uniqueness-failure-one-line.xml",
     Again::Same,
     {{"/error/exists/0/field", "field"}, {"/error/exists/0/alt-value", R"(["sip:entry@example.com"])"}}},
    {IX_XML_SCHEMA_XCAP_DIRECTORY,
     "xcap-directory/last-modified-epoch-and-size.xml",
     Again::Same,
     {{"/folder/0/auid", "resource-lists"},
      {"/folder/0/entry/0/uri", "http://xcap.example.com/resource-lists/users/sip:alice@example.com/index"},
      {"/folder/0/entry/0/etag", "pqr999"},
      {"/folder/0/entry/0/last-modified", "1279068803188"},
      {"/folder/0/entry/0/size", "2738"},
      {"/folder/0/entry/0/attributes", "null"},
      {"/folder/1/auid", "groups"},
      {"/folder/1/entry/0/etag", "abc123"},
      {"/folder/1/entry/0/size", "null"},
      {"/folder/2", "null"}}},
    {IX_XML_SCHEMA_XCAP_DIRECTORY,
     "xcap-directory/oma-xdm-core-example.xml",
     Again::Same,
     {{"/folder/0/auid", "resource-lists"},
      {"/folder/0/entry/0/etag", "pqr999"},
      {"/folder/1/auid", "groups"},
      {"/folder/1/entry/0/uri",
       "http://xcap.example.com/org.openmobilealliance.groups/users/sip:alice@example.com/skiing"},
      {"/folder/1/entry/1/uri",
       "http://xcap.example.com/org.openmobilealliance.groups/users/sip:alice@example.com/shopping"},
      {"/folder/1/entry/1/etag", "def456"},
      {"/folder/1/entry/2", "null"}}},
    // The version is never read.
    {IX_XML_SCHEMA_CALL_WAITING_INDICATION,
     "call-waiting-indication/3gpp-ims-call-waiting-handwritten.xml",
     Again::Same,
     {{"/class", "ix_3gpp_ims"},
      {"/version", "null"},
      {"/alternative-service/class", "ix_ns_call_waiting_indication_alternative_service"},
      {"/alternative-service/action/call-waiting-indication", "true"}}},
    {IX_XML_SCHEMA_CW_INDICATION,
     "call-waiting-indication/ims-3gpp-restoration-empty-reason.xml",
     Again::Same,
     {{"/class", "ix_ims_3gpp"},
      {"/version", "1"},
      {"/alternative-service/type", "restoration"},
      {"/alternative-service/reason", ""},
      {"/alternative-service/action", "initial-registration"},
      {"/service-info", "null"}}},
    // The reason comes back without content.
    {IX_XML_SCHEMA_CW_INDICATION,
     "call-waiting-indication/ims-3gpp-restoration-no-reason.xml",
     Again::Less,
     {{"/version", "1"},
      {"/alternative-service/type", "restoration"},
      {"/alternative-service/reason", "null"},
      {"/alternative-service/action", "initial-registration"}}},
    {IX_XML_SCHEMA_CW_INDICATION,
     "call-waiting-indication/ims-3gpp-service-info.xml",
     Again::Same,
     {{"/version", "null"}, {"/alternative-service", "null"}, {"/service-info", "banana"}}},
    {IX_XML_SCHEMA_GRUU,
     "gruu/pub-gruu-default-namespace-handwritten.xml",
     Again::Same,
     {{"/class", "ix_pub_gruu"}, {"/uri", "sip:user@example.com;gr=urn:uuid:f81d4fae-7dec-11d0-a765-00a0c91e6bf6"}}},
    {IX_XML_SCHEMA_GRUU,
     "gruu/pub-gruu-prefixed.xml",
     Again::Same,
     {{"/uri", "sip:user1_public1@home1.net;gr=urn:uuid:f81d4fae-7dec-11d0-a765-00a0c91e6bf6"}}},
    {IX_XML_SCHEMA_GRUU,
     "gruu/temp-gruu-fragment.xml",
     Again::Same,
     {{"/class", "ix_temp_gruu"}, {"/first-cseq", "54301"}}},
    {IX_XML_SCHEMA_REGINFO,
     "reginfo/conformance-four-registrations.xml",
     Again::Same,
     {{"/version", "0"},
      {"/state", "full"},
      {"/registration/0/aor", "sip:user1_public1@example.com"},
      {"/registration/1/aor", "tel:+15555550100"},
      {"/registration/1/contact/0/event", "created"},
      {"/registration/3/id", "a103"},
      {"/registration/3/contact/0/id", "983"},
      {"/registration/3/contact/0/uri", "sip:[2001:db8::1]:5060"},
      {"/registration/4", "null"}}},
    {IX_XML_SCHEMA_REGINFO,
     "reginfo/long-twelve-contacts-all-events.xml",
     Again::Same,
     {{"/version", "7"},
      {"/registration/0/id", "0x7f45bcb30000"},
      {"/registration/0/contact/0/expires", "3600"},
      {"/registration/0/contact/0/unknown-param/0/name", "+g.3gpp.smsip"},
      {"/registration/0/contact/0/unknown-param/0/text", ""},
      {"/registration/0/contact/4/state", "terminated"},
      {"/registration/0/contact/4/event", "expired"},
      {"/registration/0/contact/4/expires", "null"},
      {"/registration/0/contact/8/event", "rejected"},
      {"/registration/0/contact/11/event", "created"},
      {"/registration/0/contact/11/expires", "3457"},
      {"/registration/0/contact/11/q", "1.000"},
      {"/registration/0/contact/11/unknown-param/2/text", "\"1.0\""},
      {"/registration/0/contact/11/unknown-param/3/text", "\"&lt;urn:gsma:imei:35622411-483841-0&gt;\""},
      {"/registration/0/contact/12", "null"}}},
    {IX_XML_SCHEMA_REGINFO,
     "reginfo/network-deregistration.xml",
     Again::Same,
     {{"/version", "1"},
      {"/registration/0/aor", "sip:001010123456789@ims.mnc001.mcc001.3gppnetwork.org"},
      {"/registration/0/state", "terminated"},
      {"/registration/0/contact/0/id", "76"},
      {"/registration/0/contact/0/event", "deactivated"},
      {"/registration/0/contact/0/uri", "sip:001010123456789@192.0.2.10:5060"}}},
    // Attributes that no standard knows are not part of the tree.
    {IX_XML_SCHEMA_REGINFO,
     "reginfo/pbx-nonstandard-attributes.xml",
     Again::Same,
     {{"/registration/0/id", "a1"},
      {"/registration/0/contact/0/expires", "3556"},
      {"/registration/0/contact/0/callid", "tr82sgp1tibeef092uv0"},
      {"/registration/0/contact/0/cseq", "3"},
      {"/registration/0/contact/0/user_agent", "null"},
      {"/registration/0/contact/2/event", "unregistered"},
      {"/registration/0/contact/2/uri", "sip:10090@10.0.0.9:5060"}}},
    {IX_XML_SCHEMA_REGINFO,
     "reginfo/rfc3680-two-contacts.xml",
     Again::Same,
     {{"/registration/0/id", "as9"},
      {"/registration/0/contact/0/duration-registered", "7322"},
      {"/registration/0/contact/0/q", "0.8"},
      {"/registration/0/contact/1/event", "expired"},
      {"/registration/0/contact/1/duration-registered", "3600"},
      {"/registration/0/contact/1/uri", "sip:user@university.edu"}}},
    {IX_XML_SCHEMA_REGINFO,
     "reginfo/two-devices-imei-instance.xml",
     Again::Same,
     {{"/registration/0/aor", "sip:+15555550000@ims.example"},
      {"/registration/0/contact/0/id", "watch"},
      {"/registration/0/contact/0/unknown-param/0/text", "\"&lt;urn:gsma:imei:490154203237518&gt;\""},
      {"/registration/0/contact/1/id", "phone"},
      {"/registration/0/contact/1/uri", "sip:+15555550000@10.0.0.1:5060;transport=tcp"},
      {"/registration/0/contact/1/unknown-param/0/name", "+sip.instance"}}},
    {IX_XML_SCHEMA_REGINFO,
     "reginfo/unknown-params-broken-escape.xml",
     Again::Same,
     {{"/registration/0/contact/0/expires", "3600"},
      {"/registration/0/contact/0/unknown-param/1/text",
       "urn0X0.0041FB74E7B54P-1022urn-70X0P+03gpp-application.ims.iari.gsma-vs"},
      {"/registration/0/contact/0/unknown-param/5/text", "en,fr"},
      {"/registration/0/contact/0/unknown-param/7/name", "expires"},
      {"/registration/0/contact/0/unknown-param/7/text", "600000"},
      {"/registration/0/contact/0/unknown-param/8", "null"}}},
};

const std::string kFolder = PROJECT_DIR "/../shared/samples/";

class RealDocumentsTest : public FamilyTest {
  protected:
    void SetUp() override {
        if (FilesBelow(kFolder).empty()) GTEST_SKIP() << "no folder of real documents";
    }

    static void ExpectFields(const nlohmann::ordered_json& tree, const std::map<std::string, std::string>& fields) {
        for (const auto& [pointer, value] : fields) {
            const nlohmann::ordered_json::json_pointer place(pointer);
            const auto found = tree.contains(place) ? tree.at(place) : nlohmann::ordered_json();
            EXPECT_EQ(found.is_string() ? found.get<std::string>() : found.dump(), value) << pointer;
        }
    }

    static Again WrittenAgain(eXMLSchemaID id, XMLElement* root, XMLObject* binder) {
        if (root == nullptr) return Again::None;
        const std::string written = Write(id, root, binder);
        if (written == "(null)") return Again::Never;
        const OwnedElement again(Decode(id, written, binder));
        return XmlFields::Equal(root, again.get()) ? Again::Same : Again::Less;
    }
};

TEST_F(RealDocumentsTest, DecodeAsExpected) {
    for (const Expectation& expected : kExpectations) {
        SCOPED_TRACE(expected.file);
        const std::string text = ReadFile(kFolder + expected.file);
        {
            const OwnedElement binder(expected.binder ? Binder(text) : nullptr);
            const OwnedElement root(Decode(expected.id, text, binder.as<XMLObject>()));
            ExpectFields(TreeOf(root.get()), expected.fields);
            EXPECT_EQ(WrittenAgain(expected.id, root.get(), binder.as<XMLObject>()), expected.again);
        }
        // What a document that fails half-way leaves behind, or the text of one that was cut.
        if (expected.again == Again::None || expected.again == Again::Less) ixDplHostReleaseHeap();
    }
}

TEST_F(RealDocumentsTest, DeclareTheirNamespaces) {
    // Every real document goes through the namespace retrieval. These are the ones that the tokenizer does not take.
    const std::set<std::string> notTaken = {"doctype-small-handwritten.xml", "cdata-and-charref-handwritten.xml"};
    const std::map<std::string, std::size_t> declarations = {{"geolocation-nine-declarations.xml", 7},
                                                             {"presence-schema-location.xml", 5},
                                                             {"simservs-three-declarations.xml", 3},
                                                             {"long-all-services-namespaces.xml", 14}};
    for (const std::string& file : FilesBelow(kFolder)) {
        const std::string name = file.substr(file.rfind('/') + 1);
        if (name == "README.md") continue;
        {
            const OwnedElement root(Binder(ReadFile(file)));
            EXPECT_EQ(root.get() == nullptr, notTaken.count(name) != 0) << file;
            const auto expected = declarations.find(name);
            if (root.get() != nullptr && expected != declarations.end()) {
                const XmlField& field = root.get()->FieldTable()->fields[0];
                EXPECT_EQ(XmlFields::List(*root.get(), field)->GetCount(), expected->second) << file;
            }
        }
        // A document that is not taken leaves its root behind, with or without declarations.
        EXPECT_EQ(ixDplHostLedger().liveObjects != 0, notTaken.count(name) != 0) << file;
        ixDplHostReleaseHeap();
    }
}

}  // namespace
