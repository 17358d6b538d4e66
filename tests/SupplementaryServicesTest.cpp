// The supplementary services: what no sample shows. Bad input, fragments, exact log lines, and the oddities that
// callers rely on.
#include <functional>

#include "CommunicationBarring.h"
#include "CommunicationDiversion.h"
#include "FamilyTest.h"
#include "OriginatingIdentityPresentation.h"
#include "XMLCommunicationBarring.h"
#include "XMLCommunicationDiversion.h"
#include "XMLCommunicationWaiting.h"
#include "XMLFile.h"
#include "XMLOriginatingIdentityPresentation.h"
#include "XMLSimservs.h"
#include "XMLTerminatingIdentityPresentation.h"
#include "XmlFields.h"

namespace {

constexpr eXMLSchemaID kDiversion = IX_XML_SCHEMA_COMMUNICATION_DIVERSION;
constexpr eXMLSchemaID kBarring = IX_XML_SCHEMA_COMMUNICATION_BARRING;
constexpr eXMLSchemaID kSimservs = IX_XML_SCHEMA_SIMSERVS;

class IdentityPresentationTest : public FamilyTest {};

TEST_F(IdentityPresentationTest, TheSwitchIsTheAttributeAndExactlyTrue) {
    const struct {
        const char* text;
        const char* active;
    } cases[] = {
        {"<originating-identity-presentation/>", "true"},
        {"<any:originating-identity-presentation active=\"false\"/>", "false"},
        {"<any:ss:originating-identity-presentation active=\"false\"/>", "false"},
        {"<any:x:originating-identity-presentation active=\"false\"/>", "(null)"},
        {"<originating-identity-presentation active=\"TRUE\"/>", "false"},
        {"<originating-identity-presentation active=\"\"/>", "false"},
        {"<originating-identity-presentation><active>false</active></originating-identity-presentation>", "true"},
        {"<originating-identity-presentation><a active=\"false\"/></originating-identity-presentation>", "true"},
        {"<terminating-identity-presentation active=\"true\"/>", "(null)"},
        {"<originating-identity-presentation-restriction/>", "(null)"},
    };
    for (const auto& c : cases) EXPECT_EQ(Field(IX_XML_SCHEMA_OIP, c.text, "/active"), c.active) << c.text;
    EXPECT_EQ(Field(IX_XML_SCHEMA_TIP, cases[0].text, "/active"), "(null)");
}

TEST_F(IdentityPresentationTest, EveryStepIsLogged) {
    const OwnedContext context(IX_XML_SCHEMA_TIP);
    const OwnedElement root(context->createBinderFactory()->CreateRootElement());
    XMLMarshaller* const marshaller = context->createMarshaller();
    marshaller->Marshall(root.get());
    ClearLog();
    EXPECT_STREQ(marshaller->Marshall(root.get()), "<ss:terminating-identity-presentation  active=\"true\"/>");
    EXPECT_EQ(
        Texts(),
        (Strings{"<XML Module>: TIPMarshaller :: Marshall", "<XML Module>: TIPMarshaller :: Marshall: Deleting mTIPXml",
                 "<XML Module>: AddTerminatingIdentityPresentationElementToXml",
                 "<XML Module>: TIPMarshaller XML <ss:terminating-identity-presentation  active=\"true\"/>"}));
    ClearLog();
    EXPECT_EQ(context->createUnMarshaller()->UnMarshall("<a>"), nullptr);
    EXPECT_TRUE(Logged("<XML Module>: TIPUnMarshaller::UnMarshall: pstring is <a>"));
    EXPECT_EQ(Log().back().text, "<XML Module>: XML Decode Failed");
    ix_originating_identity_presentation other;
    EXPECT_EQ(marshaller->Marshall(&other), nullptr);
    EXPECT_TRUE(Logged("<XML Module>: TIPMarshaller XML Failed!"));
    // The first allocation is the name, the second the pair.
    XMLOIPDecoder decoder;
    char element[] = "originating-identity-presentation";
    char name[] = "xmlns";
    EXPECT_EQ(decoder.ProcessElement(element, nullptr), 0);
    ixDplHostFailAllocation(1);
    EXPECT_EQ(decoder.ProcessAttribute(element, name, name), 0);
    EXPECT_EQ(Log().back().text,
              "<XML Module>: New Failed at any attribute level with element = \"originating-identity-presentation\"");
    EXPECT_EQ(decoder.ProcessAttribute(nullptr, name, name), -1);
    EXPECT_EQ(Log().back().text, "<XML Module>XMLOIPDecoder :: ProcessAttribute: n_strElement is NULL");
    OwnedElement(decoder.GetSessionData());
}

TEST_F(IdentityPresentationTest, TheSimservTypeTakesWhatItsClassesIgnore) {
    class Service : public ix_ns_xcap_simservType {
    } service;
    ix_terminating_identity_presentation tip;
    char active[] = "active";
    char no[] = "false";
    char other[] = "other";
    ix_AttributeValuePair pair;
    EXPECT_EQ(service.ProcessUnMarshallAttribute(active, no, &pair), 0);
    class NamelessPair : public ix_AttributeValuePair {
      public:
        const char* ClassName() const override { return nullptr; }
    } nameless;
    EXPECT_EQ(service.ProcessUnMarshallAttribute(other, no, &nameless), 0);
    EXPECT_EQ(service.mExtensionList, nullptr);
    EXPECT_EQ(service.ProcessUnMarshall(nullptr, no, nullptr), 1);
    EXPECT_EQ(service.ProcessUnMarshall(active, other, nullptr), 1);
    EXPECT_EQ(service.mActive, 1);
    EXPECT_EQ(service.ProcessUnMarshall(active, no, nullptr), 1);
    EXPECT_EQ(service.mActive, 0);
    EXPECT_EQ(service.ProcessUnMarshall(active, no, &service), 0);
    EXPECT_EQ(service.ProcessUnMarshall(other, no, nullptr), 1);
    EXPECT_EQ(Log().back().text, "Cannot accommodate the element other with value false");
    auto* const child = static_cast<ix_string*>(ixTrack(14, "test", 1, new ix_string, sizeof(ix_string)));
    EXPECT_EQ(tip.ProcessUnMarshall(other, no, child), 1);
    EXPECT_EQ(tip.mAnyList, nullptr);
    EXPECT_EQ(service.ProcessUnMarshall(other, no, child), 1);
    EXPECT_EQ(service.mAnyList->GetCount(), 1);
}

TEST_F(IdentityPresentationTest, TheAttributesAreRegisteredUnderTheServicesOwnFile) {
    const struct {
        eXMLSchemaID id;
        std::string root;
        std::string source;
    } cases[] = {
        {IX_XML_SCHEMA_COMMUNICATION_WAITING, "communication-waiting", "ims/xml/src/XMLCommunicationWaiting"},
        {IX_XML_SCHEMA_OIP, "originating-identity-presentation", "ims/xml/src/XMLOriginatingIdentityPresentation"},
        {IX_XML_SCHEMA_TIP, "terminating-identity-presentation", "ims/xml/src/XMLTerminatingIdentityPresentation"},
        {kDiversion, "communication-diversion", "ims/xml/src/XMLCommunicationDiversion"},
        {kBarring, "outgoing-communication-barring", "ims/xml/src/XMLCommunicationBarring"},
    };
    for (const auto& c : cases) {
        const OwnedElement root(Decode(c.id, "<" + c.root + " xmlns=\"x\"/>"));
        ASSERT_NE(root.get(), nullptr);
        struct Search {
            const void* list;
            std::string found;
        } search = {static_cast<ix_ns_xcap_simservType*>(root.get())->mExtensionList, ""};
        ixDplHostVisitLedger(
            [](const ixDplHostBlock& block, void* context) {
                auto* const looked = static_cast<Search*>(context);
                if (block.pointer == looked->list) looked->found = block.source;
            },
            &search);
        EXPECT_EQ(search.found, c.source);
    }
}

class RulesTest : public FamilyTest {
  protected:
    /// A diversion document around the conditions of its only rule, converted: the text between the tags of the rule.
    std::string ConvertConditions(const std::string& conditions) {
        const std::string before =
            "<ss:communication-diversion  active=\"true\">\n<cp:ruleset>\n<cp:rule id=\"r\">\n<cp:conditions>";
        const std::string after = "</cp:rule></cp:ruleset></ss:communication-diversion>";
        const std::string text =
            Convert(kDiversion, "<communication-diversion><cp:ruleset><cp:rule id=\"r\"><cp:conditions>" + conditions +
                                    "</cp:conditions></cp:rule></cp:ruleset></communication-diversion>");
        EXPECT_EQ(text.substr(0, before.size()), before);
        EXPECT_EQ(text.substr(text.size() - after.size()), after);
        return text.substr(before.size(), text.size() - before.size() - after.size());
    }
};

TEST_F(RulesTest, ConditionsEndWhereSomethingMandatoryIsMissing) {
    const std::string end = "</cp:conditions>";
    const struct {
        std::string conditions;
        std::string written;
        std::string log;
    } cases[] = {
        {"<cp:identity/><busy/>", "\n<cp:identity>",
         "<XML Module>: Identity element - m_OneListCount: 0, m_ManyListCount: 0"},
        {"<cp:identity><cp:one/></cp:identity>", "\n<cp:identity>\n<cp:one ",
         "<XML Module>: One element's - Id attribute is mandatory"},
        {"<cp:sphere/><busy/>", "\n<cp:sphere ", "<XML Module>: Sphere element's - Value attribute is mandatory"},
        {"<cp:validity><cp:from>a</cp:from><cp:until>b</cp:until><cp:from>c</cp:from></cp:validity>", "\n<cp:validity>",
         "<XML Module>: Validity element - m_fromListCount: 2, m_untilListCount: 1"},
        {"<cp:validity/>", "\n<cp:validity>",
         "<XML Module>: Validity element - m_fromListCount: 0, m_untilListCount: 0"},
        // Nothing closes the tag of a `many` without domain, or of an `except` without id.
        {"<cp:identity><cp:many><cp:except domain=\"d\"/></cp:many></cp:identity>",
         "\n<cp:identity>\n<cp:many \n<cp:except domain=\"d\"</cp:except></cp:many></cp:identity>" + end, ""},
        {"<unknown>text</unknown>", end, "Cannot accommodate the element /unknown with value text"},
        {"<cp:one id=\"x\"/><media>a<busy/>b</media>", "\n<ss:media>b</ss:media>" + end, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.conditions);
        ClearLog();
        EXPECT_EQ(ConvertConditions(c.conditions), c.written);
        EXPECT_TRUE(c.log.empty() || Logged(c.log));
    }
}

TEST_F(RulesTest, ARuleIsBuiltWithAllConditions) {
    CommunicationDiversionDataBinder binder;
    const OwnedElement owner(binder.CreateRuleTypeElement());
    auto* const rule = ixAs<ix_ns_common_policy_ruleType>(owner.get());
    ASSERT_NE(rule, nullptr);
    rule->setIdValue("r");
    auto* const conditions = binder.CreateConditionsTypeElement();
    rule->setConditionsValue(conditions);
    auto* const identity = binder.CreateIdentityTypeElement();
    conditions->addIdentity(identity);
    auto* const one = binder.CreateOneTypeElement();
    one->setIdValue("sip:ann@a.example");
    EXPECT_EQ(identity->addOne(one), 1);
    auto* const many = binder.CreateManyTypeElement();
    many->setDomainValue("a.example");
    EXPECT_EQ(identity->addMany(many), 1);
    auto* const except = binder.CreateExceptTypeElement();
    except->setIdValue("sip:bob@a.example");
    EXPECT_EQ(many->addExcept(except), 1);
    auto* const sphere = binder.CreateSphereTypeElement();
    sphere->setValueValue("work");
    EXPECT_EQ(conditions->addSphere(sphere), 1);
    auto* const validity = binder.CreateValidityTypeElement();
    EXPECT_EQ(conditions->addValidity(validity), 1);
    auto* const from = binder.CreateStringElement();
    from->setValueValue("2026-01-01T00:00:00Z");
    EXPECT_EQ(validity->addFrom(from), 1);
    auto* const until = binder.CreateStringElement();
    until->setValueValue("2026-02-01T00:00:00Z");
    EXPECT_EQ(validity->addUntil(until), 1);
    auto* const media = binder.CreateMediaTypeElement();
    media->setMediaValue("audio");
    EXPECT_EQ(conditions->addOtherCondition(media), 1);
    // Of these only the tree knows.
    EXPECT_EQ(one->addExtension(binder.CreateStringElement()), 1);
    EXPECT_EQ(many->addExtension(binder.CreateStringElement()), 1);
    EXPECT_EQ(identity->addExtension(binder.CreateStringElement()), 1);
    const std::string written = Write(kDiversion, rule);
    EXPECT_EQ(
        written,
        "<cp:rule id=\"r\">\n<cp:conditions>\n<cp:identity>\n<cp:one id=\"sip:ann@a.example\"/>\n"
        "<cp:many domain=\"a.example\">\n<cp:except id=\"sip:bob@a.example\"></cp:except></cp:many></cp:identity>\n"
        "<cp:sphere value=\"work\"></cp:sphere>\n"
        "<cp:validity>\n<cp:from>2026-01-01T00:00:00Z</cp:from>\n<cp:until>2026-02-01T00:00:00Z</cp:until>"
        "</cp:validity>\n<ss:media>audio</ss:media></cp:conditions></cp:rule>");
    const OwnedElement again(Decode(kDiversion, written));
    EXPECT_EQ(Write(kDiversion, again.get()), written);
}

TEST_F(RulesTest, TheWalkOverManySharesItsCounterWithTheExceptions) {
    const struct {
        std::vector<int> exceptions;  ///< Of each entry.
        Strings written;
    } cases[] = {{{0, 0, 0}, {"0", "1", "2"}}, {{2, 0, 0, 0}, {"0", "3"}}, {{0, 3, 0, 0, 0}, {"0", "1", "4"}}};
    for (const auto& c : cases) {
        std::string many;
        for (std::size_t i = 0; i < c.exceptions.size(); ++i) {
            many += "<cp:many domain=\"" + std::to_string(i) + "\">";
            for (int n = 0; n < c.exceptions[i]; ++n) many += "<cp:except id=\"x\"/>";
            many += "</cp:many>";
        }
        const std::string written = ConvertConditions("<cp:identity>" + many + "</cp:identity>");
        Strings domains;
        for (std::size_t at = written.find("many domain=\""); at != std::string::npos;
             at = written.find("many domain=\"", at + 1)) {
            domains.push_back(written.substr(at + 13, 1));
        }
        EXPECT_EQ(domains, c.written);
    }
}

TEST_F(RulesTest, ARuleWithoutIdCutsTheRulesetShort) {
    EXPECT_EQ(Convert(kBarring,
                      "<outgoing-communication-barring><cp:ruleset><cp:rule id=\"1\"/><cp:rule/>"
                      "<cp:rule id=\"3\"/></cp:ruleset></outgoing-communication-barring>"),
              "<ss:outgoing-communication-barring  active=\"true\">\n<cp:ruleset>\n<cp:rule id=\"1\"></cp:rule>\n"
              "<cp:rule </ss:outgoing-communication-barring>");
    EXPECT_TRUE(Logged("<XML Module>: AddRuleElementToXml Rule ID mandatory"));
    EXPECT_TRUE(Logged("<XML Module>: AddRuleSetElementToXml Rule ID mandatory"));
    // Alone, it is the document, which fails.
    ix_ns_common_policy_ruleType rule;
    EXPECT_EQ(Write(kBarring, &rule), "(null)");
    EXPECT_EQ(Log().back().text, "<XML Module>: Communication_barringMarshaller XML Failed!");
}

TEST_F(RulesTest, FragmentsAreReadAndWrittenAlone) {
    const struct {
        eXMLSchemaID id;
        const char* text;
        const char* written;
    } cases[] = {
        {kDiversion, "<forward-to><target>t</target></forward-to>",
         "<ss:forward-to>\n<ss:target>t</ss:target></ss:forward-to>"},
        {kDiversion, "<cp:conditions><ss:busy/></cp:conditions>", "<cp:conditions>\n<ss:busy/></cp:conditions>"},
        {kDiversion, "<cp:transformations><ss:busy/></cp:transformations>", "<cp:actions>\n<ss:busy/></cp:actions>"},
        {kDiversion, "<cp:ruleset/>", "<cp:ruleset></cp:ruleset>"},
        {kDiversion, "<roaming/>", "<ss:roaming/>"},
        {kDiversion, "<media>audio</media>", "(null)"},
        {kDiversion, "<NoReplyTimer>20</NoReplyTimer>", "(null)"},
        {kDiversion, "<ruleset/>", "(null)"},
        {kBarring, "<cp:except id=\"i\" domain=\"d\"/>", "<except domain=\"d\" id=\"i\"></except>"},
        {kBarring, "<cp:except domain=\"d\"/>", "<except domain=\"d\"</except>"},
        {kBarring, "<allow>true</allow>", "(null)"},
        {kBarring, "<cp:actions><allow>true</allow><allow>TRUE</allow><media/><target/></cp:actions>",
         "<cp:actions>\n<ss:allow>true</ss:allow>\n<ss:allow>false</ss:allow>\n<ss:media></ss:media></cp:actions>"},
    };
    for (const auto& c : cases) EXPECT_EQ(Convert(c.id, c.text), c.written) << c.text;
    const OwnedElement timer(CommunicationDiversionDataBinder().CreateNoReplyTimerElement());
    EXPECT_EQ(Write(kDiversion, timer.get()), "<ss:NoReplyTimer>0</ss:NoReplyTimer>");
}

TEST_F(RulesTest, TheTimerIsTakenInFrontOfTheRulesetWithinItsBounds) {
    const std::string start = "<communication-diversion>";
    const std::string end = "</communication-diversion>";
    for (const auto& [text, value] : std::vector<std::pair<std::string, std::string>>{
             {"4", "0"}, {"5", "5"}, {"180", "180"}, {"181", "0"}, {"-20", "0"}, {"20s", "20"}, {"", "0"}}) {
        EXPECT_EQ(Field(kDiversion, start + "<NoReplyTimer>" + text + "</NoReplyTimer>" + end, "/NoReplyTimer/text"),
                  value);
    }
    EXPECT_EQ(Field(kDiversion, start + "<cp:ruleset/><NoReplyTimer>20</NoReplyTimer>" + end, "/NoReplyTimer"),
              "(absent)");
    // The same goes for a second ruleset, and for a rule outside of any.
    EXPECT_EQ(Field(kDiversion, start + "<cp:ruleset/><cp:ruleset><cp:rule id=\"a\"/></cp:ruleset>" + end,
                    "/ruleset/rule/0/id"),
              "a");
    EXPECT_EQ(Field(kDiversion, start + "<cp:rule id=\"a\"/>" + end, "/ruleset"), "(absent)");
}

TEST_F(RulesTest, ElementsTakeOnlyWhatIsTheirs) {
    ix_ns_common_policy_ruleset ruleset;
    ix_ns_common_policy_ruleType rule;
    ix_ns_common_policy_conditionsType conditions;
    ix_ns_common_policy_identityType identity;
    ix_ns_common_policy_oneType one;
    ix_ns_common_policy_manyType many;
    ix_ns_common_policy_exceptType except;
    ix_ns_common_policy_sphereType sphere;
    ix_ns_common_policy_validityType validity;
    ix_ns_common_policy_extensibleType extensible;
    ix_ns_xcap_media_type media;
    ix_presence_status_activity_type presence;
    ix_ns_xcap_forward_to_type forward;
    ix_allow_action_type allow;
    ix_incoming_communication_barring barring;
    ix_communication_diversion diversion;
    const struct {
        XMLElement* element;
        const char* name;
        XMLElement* child;
        int answer;
    } cases[] = {
        {&ruleset, "rule", &one, 0},
        {&ruleset, "other", nullptr, 0},
        {&ruleset, nullptr, nullptr, 1},
        {&rule, "conditions", &rule, 0},
        {&rule, "actions", nullptr, 0},
        {&rule, "other", &extensible, 0},
        {&rule, nullptr, &extensible, 1},
        {&conditions, "identity", &one, 0},
        {&conditions, "sphere", nullptr, 0},
        {&conditions, "x", nullptr, 1},
        {&identity, "one", &many, 0},
        {&identity, "many", nullptr, 0},
        {&identity, "x", nullptr, 1},
        {&one, "x", nullptr, 1},
        {&many, "except", &one, 0},
        {&many, "x", nullptr, 1},
        {&except, "x", &one, 1},
        {&sphere, "x", &one, 1},
        {&validity, "from", nullptr, 1},
        {&validity, "/from", &one, 0},
        {&validity, "x", nullptr, 1},
        {&extensible, nullptr, &one, 1},
        {&extensible, "x", nullptr, 1},
        {&media, "/media", &one, 0},
        {&media, "x", nullptr, 1},
        {&presence, "/presence-status", &one, 0},
        {&forward, "target", nullptr, 1},
        {&forward, "/target", &one, 0},
        {&forward, "x", nullptr, 0},
        {&forward, nullptr, nullptr, 0},
        {&allow, "/allow", &one, 0},
        {&allow, "allow", nullptr, 1},
        {&barring, "ruleset", &one, 0},
        {&barring, "ruleset", nullptr, 0},
        {&barring, "x", &one, 1},
        {&diversion, "/NoReplyTimer", &one, 0},
    };
    for (const auto& c : cases) {
        std::string name = c.name != nullptr ? c.name : "";
        char text[] = "text";
        EXPECT_EQ(c.element->ProcessUnMarshall(c.name != nullptr ? name.data() : nullptr, text, c.child), c.answer)
            << c.element->ClassName() << " " << name;
    }
    // Attributes never come as pairs, but those of a root.
    char id[] = "id";
    char domain[] = "domain";
    char value[] = "value";
    ix_AttributeValuePair pair;
    const std::pair<XMLElement*, char*> attributes[] = {{&rule, id},       {&one, id},    {&many, domain},
                                                        {&except, domain}, {&except, id}, {&sphere, value}};
    for (const auto& [element, name] : attributes) {
        EXPECT_EQ(element->ProcessUnMarshallAttribute(name, value, &pair), 0);
        EXPECT_EQ(element->ProcessUnMarshallAttribute(name, nullptr, nullptr), 1);
        char other[] = "other";
        EXPECT_EQ(element->ProcessUnMarshallAttribute(other, value, nullptr), 1);
    }
}

// A value that is set twice is not freed, for callers that hold the earlier one.
TEST_F(RulesTest, AFieldSetTwiceLeavesItsFirstValue) {
    {
        ix_ns_common_policy_ruleType rule;
        EXPECT_EQ(rule.setIdValue("first"), 1);
        EXPECT_EQ(rule.setIdValue(nullptr), 1);
        EXPECT_EQ(rule.setIdValue("second"), 1);
        EXPECT_STREQ(rule.mId, "second");
        ixDplHostFailAllocation(1);
        EXPECT_EQ(rule.setIdValue("third"), 0);
        EXPECT_STREQ(rule.mId, "second");
    }
    EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 1U);
    {
        ix_ns_common_policy_ruleset earlier;
        ix_outgoing_communication_barring barring;
        EXPECT_EQ(barring.setRulesetValue(&earlier), 1);
        EXPECT_EQ(barring.setRulesetValue(CommunicationBarringDataBinder().CreateRuleSetElement()), 1);
        EXPECT_EQ(barring.setRulesetValue(nullptr), 1);
        EXPECT_NE(barring.mRuleset, nullptr);
    }
    EXPECT_EQ(Field(kDiversion, "<cp:rule><cp:conditions/><cp:conditions><busy/></cp:conditions></cp:rule>",
                    "/conditions/any/0/name"),
              "busy");
    ExpectLeftBehind(1);
    EXPECT_EQ(Field(kBarring, "<incoming-communication-barring active=\"no\" ss:active=\"false\"/>", "/active"),
              "true");
}

// What an application puts into a list by mistake is taken for nothing, and no writer looks into it.
TEST_F(RulesTest, ForeignEntriesEndTheListsThatMayFail) {
    ix_string foreign;
    const auto listOf = [](std::initializer_list<void*> entries) {
        auto* const list = static_cast<IxSingleElementList*>(
            ixTrack(14, "test", 1, new IxSingleElementList, sizeof(IxSingleElementList)));
        for (void* entry : entries) list->Add(entry);
        return list;
    };
    const auto borrowed = [](IxSingleElementList*& list) {
        IxSingleElementList* const own = list;
        list = nullptr;
        ixDelete(own);
    };
    ix_ns_common_policy_ruleset ruleset;
    ix_ns_common_policy_conditionsType conditions;
    ix_ns_common_policy_identityType identity;
    ix_ns_common_policy_oneType one;
    ix_ns_common_policy_manyType many;
    ix_ns_common_policy_validityType validity;
    ix_ns_common_policy_extensibleType actions;
    const struct {
        XMLElement* root;
        IxSingleElementList*& list;
        void* entry;
        const char* written;
    } cases[] = {
        {&ruleset, ruleset.mRuleList, &foreign, "(null)"},
        {&ruleset, ruleset.mRuleList, nullptr, "(null)"},
        {&conditions, conditions.mIdentityList, &foreign, "(null)"},
        {&conditions, conditions.mSphereList, nullptr, "(null)"},
        {&conditions, conditions.mValidityList, &one, "(null)"},
        {&conditions, conditions.mOtherConditionsList, &foreign, "<cp:conditions></cp:conditions>"},
        {&actions, actions.mElementList, nullptr, "<cp:actions></cp:actions>"},
    };
    for (const auto& c : cases) {
        for (const eXMLSchemaID id : {kDiversion, kBarring}) {
            c.list = listOf({c.entry});
            EXPECT_EQ(Write(id, c.root), c.written) << c.root->ClassName();
            borrowed(c.list);
        }
    }
    EXPECT_TRUE(Logged("<XML Module>: AddRuleSetElementToXml Rule ID mandatory"));
    // The walk over `many` and its exceptions cannot fail; a date of another class is one without a text.
    conditions.mIdentityList = listOf({&identity});
    identity.mManyList = listOf({&foreign, nullptr, &many});
    many.mExceptList = listOf({&foreign, nullptr});
    conditions.mValidityList = listOf({&validity});
    validity.mFromList = listOf({&one});
    validity.mUntilList = listOf({nullptr});
    EXPECT_EQ(Write(kDiversion, &conditions),
              "<cp:conditions>\n<cp:identity>\n<cp:many </cp:many></cp:identity>\n<cp:validity>\n<cp:from></cp:from>\n"
              "<cp:until></cp:until></cp:validity></cp:conditions>");
    identity.mOneList = listOf({&many});
    EXPECT_EQ(Write(kDiversion, &conditions), "(null)");
    for (IxSingleElementList** list :
         {&conditions.mIdentityList, &conditions.mValidityList, &identity.mManyList, &identity.mOneList,
          &many.mExceptList, &validity.mFromList, &validity.mUntilList}) {
        borrowed(*list);
    }
}

TEST_F(RulesTest, BarringNeedsADirectionAndSaysWhatItDoes) {
    const OwnedContext context(kBarring);
    auto* const binder = static_cast<CommunicationBarringDataBinder*>(context->createBinderFactory());
    EXPECT_EQ(binder->CreateRootElement(), nullptr);
    EXPECT_EQ(binder->setCBType(XML_CB_NONE), 0);
    EXPECT_EQ(Texts(), (Strings{"<XML Module>: in CommunicationBarringDataBinder::setCBType  3",
                                "<XML Module>: CB Type is invalid "}));
    EXPECT_EQ(binder->setCBType(XML_CB_OUTGOING), 1);
    EXPECT_EQ(binder->setCBType(static_cast<XML_COMMUNICATION_BARRING_TYPE>(0)), 0);
    const OwnedElement outgoing(binder->CreateRootElement());
    EXPECT_EQ(binder->setCBType(XML_CB_INCOMING), 1);
    const OwnedElement incoming(binder->CreateRootElement());
    EXPECT_STREQ(outgoing.get()->ClassName(), "outgoing-communication-barring");
    EXPECT_STREQ(incoming.get()->TypeName(), "IncomingComunicationBarring");
    ix_ns_common_policy_ruleset* const ruleset = binder->CreateRuleSetElement();
    ix_ns_common_policy_ruleType* const rule = binder->CreateRuleTypeElement();
    ix_ns_common_policy_conditionsType* const conditions = binder->CreateConditionsTypeElement();
    ix_ns_common_policy_extensibleType* const actions = binder->CreateActionsTypeElement();
    ix_ns_common_policy_identityType* const identity = binder->CreateIdentityTypeElement();
    ix_ns_common_policy_oneType* const one = binder->CreateOneTypeElement();
    ix_ns_common_policy_sphereType* const sphere = binder->CreateSphereTypeElement();
    ix_empty_element_type* const flag = binder->CreateEmptyTypeElement();
    incoming.as<ix_incoming_communication_barring>()->setRulesetValue(ruleset);
    ruleset->addRule(rule);
    rule->setIdValue("r1");
    rule->setConditionsValue(conditions);
    rule->setActionsValue(actions);
    rule->setTransformationsValue(binder->CreateTransformationsTypeElement());
    conditions->addIdentity(identity);
    identity->addOne(one);
    one->setIdValue("sip:a\"b@example.net");
    conditions->addSphere(sphere);
    sphere->setValueValue("home");
    conditions->addOtherCondition(flag);
    actions->addElement(binder->CreateAllowTypeElement());
    XMLMarshaller* const marshaller = context->createMarshaller();
    EXPECT_STREQ(marshaller->Marshall(incoming.get()),
                 "<ss:incoming-communication-barring  active=\"true\">\n<cp:ruleset>\n<cp:rule id=\"r1\">\n"
                 "<cp:conditions>\n<cp:identity>\n<cp:one id=\"sip:a&quot;b@example.net\"/></cp:identity>\n"
                 "<cp:sphere value=\"home\"></cp:sphere></cp:conditions>\n<cp:actions>\n"
                 "<ss:allow>false</ss:allow></cp:actions>\n<cp:transformations></cp:transformations></cp:rule>"
                 "</cp:ruleset></ss:incoming-communication-barring>");
    ClearLog();
    EXPECT_STREQ(marshaller->Marshall(outgoing.get()),
                 "<ss:outgoing-communication-barring  active=\"true\"></ss:outgoing-communication-barring>");
    EXPECT_EQ(Texts(), (Strings{"<XML Module>: Communication_barringMarshaller :: Marshall: Deleting mCbXml",
                                "<XML Module>: Communication_barringMarshaller :: Marshall",
                                "<XML Module>: Addoutgoing_communication_barringElementToXml",
                                "<XML Module>: Communication_barringMarshaller XML <ss:outgoing-communication-barring  "
                                "active=\"true\"></ss:outgoing-communication-barring>"}));
}

TEST_F(RulesTest, AFlagIsWrittenOnlyWhenPresent) {
    ix_empty_element_type flag;
    flag.setNameValue("busy");
    EXPECT_EQ(Write(kBarring, &flag), "(null)");
    EXPECT_TRUE(Logged("Communication_barringMarshaller::AddEmptyElementtoXml: Received empty present false"));
    flag.setPresentValue(1);
    EXPECT_EQ(Write(kDiversion, &flag), "<ss:busy/>");
    ix_empty_element_type nameless;
    nameless.setPresentValue(1);
    EXPECT_EQ(Write(kDiversion, &nameless), "(null)");
    // The tag is put together in a buffer of fixed size.
    flag.setNameValue(std::string(150, 'b').c_str());
    EXPECT_EQ(Write(kDiversion, &flag), "<ss:" + std::string(98, 'b') + "/>");
    Communication_diversionMarshaller marshaller;
    EXPECT_EQ(marshaller.AddEmptyElementtoXml(nullptr), 0);
    EXPECT_TRUE(Logged("Communication_diversionMarshaller::AddEmptyElementtoXml: Received empty element is NULL"));
    ix_ns_xcap_forward_to_type forward;
    forward.setRevealIdentityToCallerValue(-5);
    forward.setRevealIdentityToTargetValue(9);
    EXPECT_EQ(Write(kDiversion, &forward), "<ss:forward-to></ss:forward-to>");
}

TEST_F(RulesTest, DecodersRefuseEventsWithoutNames) {
    /// Calls what a decoder derived from it might call before there was any element.
    class Diversion : public XMLCommunicationDiversionDecoder {
      public:
        int OtherElementFirst(char* name) { return OtherElement(XmlTag(name), nullptr); }
    } diversion;
    XMLCommunicationBarringDecoder barring;
    const struct {
        XmlDecoderSchema& decoder;
        std::string name;
    } cases[] = {{diversion, "XMLCommunicationDiversionDecoder"}, {barring, "XMLCommunicationBarringDecoder"}};
    for (const auto& c : cases) {
        const std::string prefix = "<XML Module>" + c.name + " :: ";
        // The namespace operations of both name the same decoder.
        const std::string origin = "XMLCommunicationDiversionDecoder :: ";
        const Strings expected = {prefix + "ProcessElement: n_strElement is NULL",
                                  prefix + "ProcessAttribute: n_strElement is NULL",
                                  origin + "XMLRemoveNameSpaceTag: Malloc unable to allocate memory",
                                  prefix + "ProcessElement: m_strDup or m_PassName is NULL",
                                  origin + "XMLChangeNamespaceTag Malloc unable to allocate memory",
                                  prefix + "ProcessAttribute: m_strDup is NULL"};
        EXPECT_EQ(RefusedEvents(c.decoder), expected);
    }
    char name[] = "x";
    EXPECT_EQ(diversion.OtherElementFirst(name), -1);
    EXPECT_EQ(Log().back().text,
              "<XML Module>XMLCommunicationDiversionDecoder :: ProcessAnyElement: m_PassName is NULL");
}

TEST_F(RulesTest, WritersAnswerZeroForNull) {
    Communication_diversionMarshaller diversion;
    Communication_barringMarshaller barring;
    Communication_waitingMarshaller waiting;
    OIPMarshaller oip;
    TIPMarshaller tip;
    const int answers[] = {diversion.AddCommunication_diversionElementToXml(nullptr),
                           diversion.AddForwardToElementtoXml(nullptr),
                           diversion.AddRuleSetElementToXml(nullptr),
                           diversion.AddRuleElementToXml(nullptr),
                           diversion.AddConditionsElementToXml(nullptr),
                           diversion.AddActionsElementToXml(nullptr),
                           diversion.AddTransformationsElementToXml(nullptr),
                           barring.AddExceptElementToXml(nullptr),
                           barring.AddIncoming_communication_barringElementToXml(nullptr),
                           barring.AddOutgoing_communication_barringElementToXml(nullptr),
                           waiting.AddCommunication_waitingElementToXml(nullptr),
                           oip.AddOIPElementToXml(nullptr),
                           tip.AddTIPElementToXml(nullptr)};
    for (const int answer : answers) EXPECT_EQ(answer, 0);
    EXPECT_EQ(diversion.AddNoReplyTimerElementToXml(nullptr), 1);
}

TEST_F(RulesTest, HostileDocumentsAreSurvived) {
    const auto nested = [](const std::string& start, const std::string& end, int depth) {
        std::string text;
        for (int i = 0; i < depth; ++i) text += start;
        for (int i = 0; i < depth; ++i) text += end;
        return text;
    };
    for (const std::string& text :
         {nested("<cp:conditions>", "</cp:conditions>", 10000), nested("<cp:except>", "</cp:except>", 10000),
          nested("<cp:many><cp:one>", "</cp:one></cp:many>", 5000), nested("<forward-to>", "</forward-to>", 10000)}) {
        for (const eXMLSchemaID id : {kDiversion, kBarring}) {
            const OwnedElement root(Decode(id, text));
            EXPECT_NE(root.get(), nullptr);
            ClearLog();
        }
    }
    std::string many = "<cp:ruleset>" + std::string(16 << 20, ' ');
    for (int i = 0; i < 1000; ++i) many += "<cp:rule id=\"r\"><cp:conditions><busy/></cp:conditions></cp:rule>";
    const OwnedElement ruleset(Decode(kDiversion, many + "</cp:ruleset>"));
    EXPECT_EQ(ruleset.as<ix_ns_common_policy_ruleset>()->mRuleList->GetCount(), 1000);
    XMLContext* const context = XMLFactory::newInstance(kDiversion);
    XMLMarshaller* const marshaller = context->createMarshaller();
    EXPECT_NE(marshaller->Marshall(ruleset.get()), nullptr);
    EXPECT_EQ(marshaller->IsTruncated(), 1);
    XMLFactory::deleteContext(context);
}

class SimservsTest : public FamilyTest {
  protected:
    /// The classes of the services that a document is found to have.
    Strings Services(const std::string& text, XMLObject* binder = nullptr) {
        const OwnedElement root(Decode(kSimservs, text, binder));
        if (root.get() == nullptr) return {"(null)"};
        const nlohmann::ordered_json tree = TreeOf(root.get());
        Strings classes;
        if (!tree.contains("service")) return classes;
        for (const auto& service : tree["service"]) classes.push_back(service["class"]);
        return classes;
    }
};

TEST_F(SimservsTest, ServicesAreCutOutByTheirNames) {
    const std::string oip = "originating-identity-presentation";
    const std::string cw = "communication-waiting";
    const std::string cdiv = "communication-diversion";
    const struct {
        const char* content;
        Strings services;
    } cases[] = {
        {"", {}},
        {"<ss:terminating-identity-presentation active=\"true\"/><originating-identity-presentation/>",
         {oip, "terminating-identity-presentation"}},
        {"<communication-waiting active=\"true\"></communication-waiting>", {cw}},
        // The empty one ends at its own "/>", though the name comes again.
        {"<communication-diversion/><x/><communication-diversion active=\"false\"></communication-diversion>",
         {cdiv, cdiv}},
        // A name in an attribute value takes the element around it, one that is no service drops it.
        {"<x y=\"communication-waiting\"/><originating-identity-presentation-restriction active=\"true\"/>", {}},
        {"<!-- communication-waiting --><communication-waiting/>", {cw}},
        // A name may come together at the place of a cut, one that was looked for before as well.
        {"<communi<communication-diversion/>cation-waiting/>", {cdiv, cw}},
        {"<incoming-communi<communication-waiting/>cation-barring/>", {"incoming-communication-barring", cw}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Services("<simservs>" + std::string(c.content) + "</simservs>"), c.services) << c.content;
        ixDplHostReleaseHeap();
    }
    for (const std::string name : {"simserv", "ss:simserv", "ss:sims"}) {
        EXPECT_EQ(Services("<" + name + "><communication-waiting/></" + name + ">"), Strings{cw}) << name;
    }
    for (const std::string name : {"services", "simser", "simservs1", "ss:sim", "ss:simservs1"}) {
        EXPECT_EQ(Services("<" + name + "><communication-waiting/></" + name + ">"), Strings{"(null)"}) << name;
    }
    EXPECT_EQ(Services("<simservs><communication-waiting/>"), Strings{"(null)"});
    ExpectLeftBehind(1);
    EXPECT_TRUE(Logged("<XML Module>: XML Decode Failed"));
    const std::string foreign =
        "<m:simservs "
        "xmlns:m=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\"><communication-waiting/></m:simservs>";
    EXPECT_EQ(Services(foreign), Strings{"(null)"});
    const OwnedElement binder(Binder(foreign));
    EXPECT_EQ(Services(foreign, binder.as<XMLObject>()), Strings{cw});
    const OwnedContext context(kSimservs);
    XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
    EXPECT_EQ(unMarshaller->UnMarshall(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_EQ(unMarshaller->UnMarshall(static_cast<XMLFile*>(nullptr)), nullptr);
    XMLFile file(PROJECT_DIR "/samples/simservs/typical.xml", eXMLFileRead);
    const OwnedElement read(unMarshaller->UnMarshall(&file));
    EXPECT_NE(read.get(), nullptr);
    file.CloseFile();
}

TEST_F(SimservsTest, TenServicesOfAKindAreRead) {
    std::string text = "<simservs>";
    for (int i = 0; i < 30; ++i) text += "<communication-diversion/><communication-waiting/>";
    EXPECT_EQ(Services(text + "</simservs>").size(), 20U);
    EXPECT_TRUE(Logged(
        "<XML Module>: XML SimservsUnmarshall more than ten services of a kind: communication-waiting is left out"));
}

TEST_F(SimservsTest, ACutLeavesOneCharacterTooManyUnlessItReachesTheEnd) {
    SimservsUnMarshaller unMarshaller;
    const struct {
        std::string text;
        int at;
        int length;
        const char* piece;
        const char* left;
    } cases[] = {{"abcdefgh", 2, 2, "cde", "abfghf"},
                 {"abcdefgh", 0, 0, "a", "bcdefghh"},
                 {"abcdefgh", 5, 2, "fgh", "abcde"},
                 {"abcdefgh", 4, 2, "efg", "abcdhf"}};
    for (auto c : cases) {
        char* piece = nullptr;
        EXPECT_STREQ(unMarshaller.replaceSubStringWithNull(c.text.data(), &piece, c.at, c.length), c.left);
        EXPECT_STREQ(piece, c.piece);
        __free(piece);
    }
    // What cannot be cut leaves all as it was: characters that are not there, and any without memory.
    std::string text = "abc";
    char* piece = nullptr;
    for (const auto& [at, length] : {std::pair{-1, 1}, {0, -1}, {0, 3}, {3, 0}, {4, 0}}) {
        EXPECT_STREQ(unMarshaller.replaceSubStringWithNull(text.data(), &piece, at, length), "abc");
    }
    EXPECT_EQ(unMarshaller.replaceSubStringWithNull(nullptr, &piece, 0, 0), nullptr);
    EXPECT_STREQ(unMarshaller.replaceSubStringWithNull(text.data(), nullptr, 0, 0), "abc");
    ixDplHostFailAllocation(1);
    EXPECT_STREQ(unMarshaller.replaceSubStringWithNull(text.data(), &piece, 0, 1), "abc");
    EXPECT_EQ(piece, nullptr);
}

TEST_F(SimservsTest, WithoutMemoryForAPieceNothingIsDecoded) {
    const std::string noPiece =
        "<XML Module>: SimservsUnMarshaller :: replaceSubStringWithNull malloc failed returning pString";
    for (unsigned long failing = 1; !Logged(noPiece); ++failing) {
        ASSERT_LT(failing, 50U);
        const OwnedContext context(kSimservs);
        XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
        ClearLog();
        ixDplHostFailAllocation(failing);
        const OwnedElement root(unMarshaller->UnMarshall("<simservs><communication-waiting/></simservs>"));
        ixDplHostStopCounting();
    }
    const Strings texts = Texts();
    EXPECT_EQ(texts[texts.size() - 2], noPiece);
    EXPECT_EQ(texts.back(), "<XML Module>: XML Decode Failed pstring NULL");
    ixDplHostReleaseHeap();
}

TEST_F(SimservsTest, EveryStepIsLogged) {
    ClearLog();
    Services("<simservs><outgoing-communication-barring/><originating-identity-presentation-restriction/></simservs>");
    EXPECT_EQ(
        [&] {
            Strings texts;
            for (const LogLine& line : LogOf("XMLSimservs")) texts.push_back(line.text);
            return texts;
        }(),
        (Strings{"<XML Module>: SimservsContext :: SetNamespaceBinder", "<XML Module>: XML Decode Success",
                 "<XML Module>: XML SimservsUnmarshall Success replace Substring Outgoing Communication Barring ",
                 "<XML Module>: XML SimservsUnmarshall Success replace Substring OIP ",
                 "<XML Module>: XML Decode Success",
                 "<XML Module>: XML Decode Success in Communication Barring (Outgoing)",
                 "<XML Module>: XML Decode Failure in poip"}));
    // Without memory for one of the arrays of pieces.
    const OwnedContext context(kSimservs);
    XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
    ixDplHostFailAllocation(3);
    EXPECT_EQ(unMarshaller->UnMarshall("<simservs/>"), nullptr);
    EXPECT_EQ(Log().back().text,
              "<XML Module>: Malloc failed in SimservsUnMarshaller::UnMarshall pCommunicationWaiting");
    XMLMarshaller* const marshaller = context->createMarshaller();
    XMLObjectFactory* const factory = context->createBinderFactory();
    const OwnedElement root(factory->CreateRootElement());
    ix_ns_xcap_media_type* const other = new ix_ns_xcap_media_type;
    ixTrack(14, "test", 1, other, sizeof *other);
    root.as<ix_Simservs>()->addService(factory->CreateRootElement());
    root.as<ix_Simservs>()->addService(other);
    EXPECT_EQ(root.as<ix_Simservs>()->addService(nullptr), 0);
    root.as<ix_Simservs>()->mServiceList->Add(nullptr);
    const OwnedContext oip(IX_XML_SCHEMA_OIP);
    root.as<ix_Simservs>()->addService(oip->createBinderFactory()->CreateRootElement());
    ClearLog();
    const std::string shell =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<simservs  xmlns=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\"  "
        "xmlns:ss=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\"  "
        "xmlns:cp=\"urn:ietf:params:xml:ns:common-policy\"  xmlns:ocp=\"urn:oma:xml:xdm:common-policy\">";
    const std::string text = marshaller->Marshall(root.get());
    EXPECT_EQ(text, shell + "<ss:originating-identity-presentation  active=\"true\"/></simservs>");
    EXPECT_EQ(Texts().front(), "<XML Module>: SimservsMarshaller :: Marshall");
    EXPECT_TRUE(Logged("<XML Module>: SimservsMarshaller XML - OIP Marshalling Success"));
    EXPECT_TRUE(Logged("<XML Module>: SimservsMarshaller GetKeyAtIndex failed"));
    EXPECT_EQ(Texts().back(), "<XML Module>: SimservsMarshaller XML " + text);
    root.as<ix_Simservs>()->setServiceValue(nullptr);
    EXPECT_EQ(marshaller->Marshall(root.get()), shell + "</simservs>");
    EXPECT_TRUE(Logged("<XML Module>: SimservsMarshaller :: Marshall: Deleting SimservsXml"));
}

TEST_F(SimservsTest, InsertsInFrontOfTheFirstEndTag) {
    SimservsMarshaller marshaller;
    char* text = marshaller.InsertString(__strdup("<a><b></b></a>"), "<c/>");
    EXPECT_STREQ(text, "<a><b><c/></b></a>");
    EXPECT_EQ(marshaller.InsertString(text, nullptr), nullptr);
    EXPECT_EQ(Log().back().text, "SimservsMarshaller :: InsertString mSimservsXml or pString NULL ");
    ixDplHostFailAllocation(1);
    EXPECT_EQ(marshaller.InsertString(text, "<d/>"), text);
    __free(text);
    text = __strdup("<a/>");
    EXPECT_EQ(marshaller.InsertString(text, "<d/>"), nullptr);
    __free(text);
}

TEST_F(SimservsTest, SaysWhenAServiceWasCut) {
    std::string rules;
    for (int i = 0; i < 2000; ++i) rules += "<cp:rule id=\"r\"/>";
    const OwnedElement root(Decode(kSimservs, "<simservs><communication-diversion><cp:ruleset>" + rules +
                                                  "</cp:ruleset></communication-diversion></simservs>"));
    const OwnedContext context(kSimservs);
    XMLMarshaller* const marshaller = context->createMarshaller();
    EXPECT_NE(marshaller->Marshall(root.get()), nullptr);
    EXPECT_EQ(marshaller->IsTruncated(), 1);
}

}  // namespace
