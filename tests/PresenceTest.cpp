// Presence documents and their extensions: what no sample shows.
#include "Presence.h"

#include "FamilyTest.h"
#include "XMLImdn.h"
#include "XMLPresence.h"

namespace {

constexpr eXMLSchemaID kId = IX_XML_SCHEMA_PRESENCE;

const std::string kStart =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<presence  xmlns=\"urn:ietf:params:xml:ns:pidf\"  "
    "xmlns:op=\"urn:oma:xml:prs:pidf:oma-pres\"  xmlns:caps=\"urn:ietf:params:xml:ns:pidf:caps\"  entity=\"e\">";

std::string InTuple(const std::string& content) {
    return "<presence entity=\"e\"><tuple id=\"t\">" + content + "</tuple></presence>";
}

class PresenceTest : public FamilyTest {};

TEST_F(PresenceTest, BasicCountsByItsBeginning) {
    const struct {
        const char* text;
        const char* basic;
    } cases[] = {{"open", "open"}, {"opened", "open"},    {"closed;", "closed"}, {"ope", "(absent)"},
                 {"", "(absent)"}, {" open", "(absent)"}, {"OPEN", "(absent)"},  {"<x/>closed", "closed"}};
    for (const auto& c : cases) {
        EXPECT_EQ(
            Field(kId, InTuple("<status><basic>" + std::string(c.text) + "</basic></status>"), "/tuple/0/status/basic"),
            c.basic)
            << c.text;
    }
}

// Without its prefix a foreign name may be one of ours: it counts where the object on top takes it.
TEST_F(PresenceTest, ForeignNamesCountWhereTheyAreTaken) {
    const struct {
        std::string content;
        const char* pointer;
        const char* value;
    } cases[] = {
        {"<status><basic>open</basic><op:willingness><op:basic>closed</op:basic></op:willingness></status>",
         "/tuple/0/status/basic", "closed"},
        {"<status><basic>open</basic></status><op:willingness><op:basic>closed</op:basic></op:willingness>",
         "/tuple/0/status/basic", "open"},
        {"<status><basic>open</basic></status><x:a><x:status><basic>closed</basic></x:status></x:a>",
         "/tuple/0/status/basic", "closed"},
        {"<x:card><x:contact x:priority=\"1\" priority=\"2\">c</x:contact></x:card>", "/tuple/0/contact/priority", "2"},
        {"<x:when><x:timestamp>1</x:timestamp></x:when>", "/tuple/0/timestamp", "1"},
        {"<op:service-description><x:y><x:version>2</x:version></x:y></op:service-description>",
         "/tuple/0/any/0/version", "2"},
        {"<version>2</version>", "/tuple/0/any", "(absent)"},
        // What a refused object of the same class leaves: the inner end tag ends the outer object.
        {"<note><note>inner</note></note><timestamp>1</timestamp>", "/tuple/0/note/0/text", "inner"},
        {"<note><note>inner</note></note><timestamp>1</timestamp>", "/tuple/0/timestamp", "1"},
        {"<contact>sip:<status/>a</contact>", "/tuple/0/status", "(absent)"},
        {"<caps:servcaps><caps:schemes><caps:supported><caps:s>sip</caps:s></caps:supported></caps:schemes>"
         "<caps:audio>true</caps:audio></caps:servcaps><timestamp>1</timestamp>",
         "/tuple/0/any/0/audio", "true"},
    };
    for (const auto& c : cases) EXPECT_EQ(Field(kId, InTuple(c.content), c.pointer), c.value) << c.content;
}

TEST_F(PresenceTest, UnknownElementsAreLoggedAndDropped) {
    ClearLog();
    EXPECT_EQ(Convert(kId, InTuple("<caps:video>true</caps:video>")),
              kStart + "\n<tuple  id=\"t\"></tuple></presence>");
    Strings unknown;
    for (const LogLine& line : LogOf("Presence")) unknown.push_back(line.text);
    const Strings each = {"<XML Module>XMLPresenceDecoder :: ProcessAnyElement is not supported when video",
                          "<XML Module>XMLPresenceDecoder :: m_any is NULL when video",
                          "<XML Module>XMLPresenceDecoder :: ProcessAnyElement is not supported when /video",
                          "<XML Module>XMLPresenceDecoder :: m_any is NULL when /video"};
    EXPECT_EQ(unknown, each);
    EXPECT_EQ(LogOf("Presence").at(1).level, 3);
    ClearLog();
    EXPECT_EQ(Convert(kId, InTuple("<status><basic>open</basic></status><op:service-id>s</op:service-id>")),
              kStart + "\n<tuple  id=\"t\">\n<status>\n<basic>open</basic></status></tuple></presence>");
    // Start tags of texts are offered as well; a timestamp's is the only one that is expected.
    Strings refused;
    for (const LogLine& line : LogOf("XMLPresence")) {
        if (line.text.find("Cannot accommodate") == 0) refused.push_back(line.text);
    }
    const Strings all = {
        "Cannot accommodate the element basic with value (null)", "Cannot accommodate the element /status with value ",
        "Cannot accommodate the element service-id with value (null)",
        "Cannot accommodate the element /service-id with value s", "Cannot accommodate the element /tuple with value "};
    EXPECT_EQ(refused, all);
}

TEST_F(PresenceTest, DecoderRefusesEventsWithoutNames) {
    XMLPresenceDecoder decoder;
    const Strings refused = {
        "<XML Module>XMLPresenceDecoder :: ProcessElement: n_strElement is NULL",
        "<XML Module>XMLPresenceDecoder :: ProcessAttribute: n_strElement is NULL",
        "XMLPresenceDecoder :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory",
        "<XML Module>XMLPresenceDecoder :: ProcessElement: m_PassName is NULL",
        "XMLPresenceDecoder :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory",
        "<XML Module>XMLPresenceDecoder :: ProcessAttribute: m_PassName is NULL ",
    };
    EXPECT_EQ(RefusedEvents(decoder), refused);
    ClearLog();
    char root[] = "presence";
    char text[] = "version";
    char end[] = "/version";
    EXPECT_EQ(decoder.ProcessAnyElement(nullptr, nullptr), nullptr);
    EXPECT_EQ(decoder.ProcessElement(text, nullptr), 0);  // nothing is open yet
    EXPECT_EQ(decoder.ProcessElement(root, nullptr), 0);
    EXPECT_EQ(decoder.ProcessAnyElement(root, nullptr), nullptr);  // none of an extension
    const OwnedElement result(decoder.GetSessionData());
    EXPECT_EQ(decoder.ProcessAnyElement(end, text), result.get());
    const Strings logged = {"3 XMLPresenceDecoder :: ProcessAnyElement: n_strElement is NULL",
                            "3 <XML Module>XMLPresenceDecoder :: m_any is NULL when version",
                            "3 <XML Module>XMLPresenceDecoder :: ProcessAnyElement is not supported when presence"};
    EXPECT_EQ(NewLinesOf("Presence"), logged);
}

TEST_F(PresenceTest, ObjectsOfOtherClassesAreRefused) {
    ix_presence presence;
    ix_tuple tuple;
    ix_note note;
    ix_ns_caps_servcaps servcaps;
    ix_ns_caps_duplextype duplex;
    ix_ns_oma_pres_service_description description;
    ix_string other;
    ::ix_status otherStatus;  // of the same name
    EXPECT_EQ(presence.addTuple(nullptr) + presence.addNote(nullptr) + tuple.addNote(nullptr), 0);
    EXPECT_EQ(tuple.addAnyElement(nullptr), 0);
    ExpectAnswers({{presence, "tuple", &other, 0},
                   {presence, "note", nullptr, 0},
                   {presence, "other", &other, 0},
                   {tuple, "status", &other, 0},
                   {tuple, "contact", nullptr, 0},
                   {tuple, "note", nullptr, 0},
                   {tuple, "note", &tuple, 0},
                   {tuple, "status", &otherStatus, 0},
                   {note, "other", &other, 0},
                   {servcaps, "duplex", &other, 0},
                   {servcaps, "other", &duplex, 0},
                   {duplex, "supported", &servcaps, 0},
                   {duplex, "notsupported", nullptr, 0},
                   {description, "x", &other, 0}});
    EXPECT_EQ(TreeOf(&presence).size() + TreeOf(&tuple).size() + TreeOf(&servcaps).size(), 3U);  // the class alone
}

TEST_F(PresenceTest, ValueClassesParseTheirEndTags) {
    ix_ns_oma_pres_willingness willingness;
    ix_ns_oma_pres_session_participation participation;
    ix_ns_oma_pres_overriding_willingness overriding;
    ix_ns_oma_pres_registration_state registration;
    ix_ns_oma_pres_barring_state barring;
    const struct {
        XMLElement& element;
        const char* name;
        const char* text;
        const char* tree;
    } cases[] = {
        {willingness, "/basic", "open", R"({"class":"ix_ns_oma_pres_willingness","basic":"open"})"},
        {willingness, "/basic", "shut", R"({"class":"ix_ns_oma_pres_willingness"})"},
        {participation, "/basic", "closed", R"({"class":"ix_ns_oma_pres_session_participation","basic":"closed"})"},
        {overriding, "/basic", "opening", R"({"class":"ix_ns_oma_pres_overriding_willingness","basic":"open"})"},
        {overriding, "/other", "closed", R"({"class":"ix_ns_oma_pres_overriding_willingness","basic":"open"})"},
        {registration, "/registration-state", "terminated",
         R"({"class":"ix_ns_oma_pres_registration_state","text":"terminated"})"},
        {registration, "/barring", "active", R"({"class":"ix_ns_oma_pres_registration_state","text":"terminated"})"},
        {registration, "/registration-state", nullptr,
         R"({"class":"ix_ns_oma_pres_registration_state","text":"terminated"})"},
        {registration, "/registration-state", "", R"({"class":"ix_ns_oma_pres_registration_state"})"},
        {barring, "/barring", "active", R"({"class":"ix_ns_oma_pres_barring_state","text":"active"})"},
        {barring, "/barring-state", "terminated", R"({"class":"ix_ns_oma_pres_barring_state","text":"active"})"},
        {barring, "/barring", "none", R"({"class":"ix_ns_oma_pres_barring_state"})"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Offer(c.element, c.name, c.text), 1) << c.name;
        EXPECT_EQ(TreeOf(&c.element).dump(), c.tree);
    }
    EXPECT_EQ(Texts(), Strings{"Cannot accommodate the element /other with value closed"});
}

// A document with everything in it that is written but not read.
TEST_F(PresenceTest, WritesWhatIsBuilt) {
    const OwnedContext context(kId);
    auto* const binder = static_cast<PresenceDataBinder*>(context->createBinderFactory());
    const OwnedElement root(binder->CreateRootElement());
    XMLMarshaller* const marshaller = context->createMarshaller();
    root.as<ix_presence>()->setEntityValue("e");
    EXPECT_EQ(marshaller->Marshall(root.get()), kStart + "</presence>");

    ix_ns_caps_servcaps* const servcaps = binder->CreateServcapsElement();
    EXPECT_EQ(Offer(*servcaps, "/audio", "false"), 1);
    EXPECT_EQ(Offer(*servcaps, "/video", "true"), 1);
    EXPECT_EQ(servcaps->setDuplexValue(binder->CreateDuplexElement()), 1);
    for (const char* const name : {"notsupported", "supported"}) {
        ix_ns_caps_duplextypes* const kinds = binder->CreateDuplexTypesElement();
        EXPECT_EQ(Offer(*servcaps->mDuplex, name, nullptr, kinds), 1);
        EXPECT_EQ(kinds->setSendOnlyValue(binder->CreateStringElement()), 1);
    }
    for (const char* const name : {"/receive-only", "/full", "/half", "/send-only", "/half"}) {
        EXPECT_EQ(Offer(*servcaps->mDuplex->mSupported, name, name + 1), 1);
    }
    ix_tuple* const tuple = binder->CreateTupleElement();
    tuple->setIdValue("t");
    tuple->setStatusValue(binder->CreateStatusElement());
    tuple->mStatus->setBasicValue(7);
    tuple->setContactValue(binder->CreateContactElement());
    EXPECT_EQ(tuple->addNote(binder->CreateNoteElement()), 1);
    EXPECT_EQ(tuple->addAnyElement(servcaps), 1);
    EXPECT_EQ(tuple->addAnyElement(binder->CreateNoteElement()), 1);
    EXPECT_EQ(tuple->addAnyElement(binder->CreateServiceDescriptionElement()), 1);
    EXPECT_EQ(root.as<ix_presence>()->addTuple(tuple), 1);
    ClearLog();
    const std::string expected =
        kStart +
        "\n<tuple  id=\"t\">\n<status></status>\n<caps:servcaps>\n<caps:audio>false</caps:audio>\n<caps:duplex>"
        "\n<caps:supported>\n<caps:full>full</caps:full>\n<caps:half>half</caps:half>"
        "\n<caps:receive-only>receive-only</caps:receive-only>\n<caps:send-only>send-only</caps:send-only>"
        "</caps:supported>\n<caps:notsupported>\n<caps:send-only></caps:send-only></caps:notsupported></caps:duplex>"
        "\n<caps:video>true</caps:video></caps:servcaps>\n<op:service-description></op:service-description>"
        "\n<contact></contact>\n<note></note></tuple></presence>";
    EXPECT_EQ(marshaller->Marshall(root.get()), expected);
    const Strings log = {"<XML Module>: PresenceMarshaller :: Marshall",
                         "<XML Module>: PresenceMarshaller :: Marshall: Deleting mPresenceXml",
                         "<XML Module>: AddPresenceElementToXml",
                         "<XML Module>: AddTupleElementToXml",
                         "<XML Module>: AddStatusElementToXml",
                         "<XML Module>: AddServcapsElementToXml",
                         "<XML Module>: AddDuplexElementToXml",
                         "<XML Module>: AddDuplexTypesElementToXml",
                         "<XML Module>: AddDuplexTypesElementToXml",
                         "<XML Module>: AddServiceDescriptionElementToXml",
                         "<XML Module>: AddContactElementToXml",
                         "<XML Module>: AddNoteElementToXml",
                         "<XML Module>: IsComposingMarshaller XML " + expected};
    EXPECT_EQ(Texts(), log);
    // Outside of `Marshall` nothing is written, and the answers are the same.
    EXPECT_EQ(static_cast<PresenceMarshaller*>(marshaller)->AddTupleElementToXml(tuple), 1);
    // Any other word unsets a flag.
    EXPECT_EQ(Offer(*servcaps, "/video", "True") + Offer(*servcaps, "/audio", ""), 2);
    EXPECT_EQ(servcaps->mAudio + servcaps->mVideo, 4);
}

// Each writer on the way out gives up the document and says which child failed.
TEST_F(PresenceTest, FailuresAreLoggedFromTheInsideOut) {
    ix_string other;
    const OwnedContext context(kId);
    const OwnedElement root(
        Decode(kId, InTuple("<caps:servcaps><caps:duplex><caps:supported/></caps:duplex></caps:servcaps>"
                            "<op:service-description/>")));
    ASSERT_NE(root.get(), nullptr);
    XMLMarshaller* const marshaller = context->createMarshaller();
    // The allocations of a document: buffer, prefixes in the order in which they are set, text.
    const Strings failures[] = {
        {},
        {"AddServcapsElementToXml", "AddTupleElementToXml"},
        {"AddDuplexElementToXml", "AddServcapsElementToXml", "AddTupleElementToXml"},
        {"AddServcapsElementToXml", "AddTupleElementToXml"},
        {"AddServiceDescriptionElementToXml", "AddTupleElementToXml"},
        {},
    };
    const auto expect = [&](XMLElement* element, const Strings& writers, const Strings& before = {}) {
        ClearLog();
        EXPECT_EQ(marshaller->Marshall(element), nullptr);
        ixDplHostStopCounting();
        Strings logged;
        for (const std::string& text : Texts()) {
            if (text.find("<XML Module>: Add") != 0) logged.push_back(text);  // no entry of a writer
        }
        Strings lines = {"<XML Module>: PresenceMarshaller :: Marshall"};
        lines.insert(lines.end(), before.begin(), before.end());
        for (const std::string& writer : writers) {
            lines.push_back("<XML Module>: PresenceMarshaller XML Failed at " + writer + "!");
        }
        lines.emplace_back("<XML Module>: PresenceMarshaller XML Failed!");
        EXPECT_EQ(logged, lines);
    };
    unsigned long failing = 0;
    for (const Strings& writers : failures) {
        ixDplHostFailAllocation(++failing);
        expect(root.get(), writers);
    }
    static_cast<ix_tuple*>(root.as<ix_presence>()->mTupleList->GetKeyAtIndex(0))->setIdValue(nullptr);
    expect(root.get(), {"AddTupleElementToXml"});
    root.as<ix_presence>()->setEntityValue(nullptr);
    expect(root.get(), {}, {"PresenceMarshaller :: AddPresenceElementToXml: Entity is mandatory attribute"});
    EXPECT_EQ(Log()[2].level, 3);
    EXPECT_EQ(Log()[2].code, 6053);
    expect(&other, {});
    ClearLog();
    EXPECT_EQ(marshaller->Marshall(nullptr), nullptr);
    EXPECT_TRUE(Log().empty());
    root.as<ix_presence>()->setEntityValue("e");
    // An entry of another class is none of its writer's.
    EXPECT_EQ(root.as<ix_presence>()->mTupleList->Add(ixNew<ix_note>("test")), 1);
    static_cast<ix_tuple*>(root.as<ix_presence>()->mTupleList->GetKeyAtIndex(0))->setIdValue("t");
    expect(root.get(), {"AddTupleElementToXml"});
    root.as<ix_presence>()->setTupleListValue(nullptr);
    EXPECT_EQ(marshaller->Marshall(root.get()), kStart + "</presence>");
}

}  // namespace
