// Conference information: what no sample shows.
#include "ConferenceInfo.h"
#include "FamilyTest.h"
#include "XMLConferenceInfo.h"

namespace {

constexpr eXMLSchemaID kId = IX_XML_SCHEMA_CONFERENCE_INFO;
const std::string kStart =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<conference-info  xmlns=\"urn:ietf:params:xml:ns:conference-info\" ";

class ConferenceInfoTest : public FamilyTest {
  protected:
    /// A conference with this content.
    static std::string Document(const std::string& content) {
        return "<conference-info entity=\"e\">" + content + "</conference-info>";
    }

    /// What is written for a conference with this content, without its own tags.
    static std::string Content(const std::string& content) {
        const std::string text = Convert(kId, Document(content));
        const std::string begin = kStart + " entity=\"e\">";
        const std::string end = "</conference-info>";
        if (text.compare(0, begin.size(), begin) != 0) return text;
        return text.substr(begin.size(), text.size() - begin.size() - end.size());
    }

    /// For trees so large that their log lines are only in the way.
    static void WithoutLog() { ixDplHostSetLogSink(nullptr, nullptr, 0); }

    ConferenceInfoDataBinder m_binder;
};

TEST_F(ConferenceInfoTest, EveryCreatorMakesAnEmptyObjectOfItsClass) {
    const struct {
        XMLElement* element;
        const char* className;
        const char* typeName;
    } cases[] = {
        {m_binder.CreateRootElement(), "ix_conference_type", "ConferneceInfo:ConferenceType"},
        {m_binder.CreateConferenceInfoType(), "ix_conference_type", "ConferneceInfo:ConferenceType"},
        {m_binder.CreateConferenceDescriptionType(), "ix_conference_description_type",
         "ConferneceInfo:ConferenceDescriptionType"},
        {m_binder.CreateHostType(), "ix_host_type", "ConferneceInfo:HostType"},
        {m_binder.CreateConferenceStateType(), "ix_conference_state_type", "ConferneceInfo:ConferenceStateType"},
        {m_binder.CreateUsersType(), "ix_users_type", "ConferneceInfo:UsersType"},
        {m_binder.CreateUserType(), "ix_user_type", "ConferneceInfo:UserType"},
        {m_binder.CreateUserRolesType(), "ix_user_roles_type", "ConferenceInfo:UserRolesType"},
        {m_binder.CreateEndPointType(), "ix_endpoint_type", "ConferneceInfo:EndpointType"},
        {m_binder.CreateMediaType(), "ix_media_type", "ConferneceInfo:MediaType"},
        {m_binder.CreateCallType(), "ix_call_type", "ConferneceInfo:CallType"},
        {m_binder.CreateSIPDialogIDType(), "ix_sip_dialog_id_type", "ConferenceInfo:SipDialogIdType"},
        {m_binder.CreateExecutionType(), "ix_execution_type", "ConferneceInfo:ExecutionType"},
        {m_binder.CreateURIsType(), "ix_uris_type", "ConferneceInfo:UrisType"},
        {m_binder.CreateURIType(), "ix_uri_type", "ConferneceInfo:UriType"},
        {m_binder.CreateConferenceMedaiType(), "ix_conference_media_type", "ConferneceInfo:ConferenceMediaType"},
        {m_binder.CreateConferenceMediumType(), "ix_conference_medium_type", "ConferneceInfo:ConferenceMediumType"},
        {m_binder.CreateSideBarsByValueType(), "ix_sidebars_by_val_type", "ConferneceInfo:SidebarsByValType"},
    };
    for (const auto& c : cases) {
        const OwnedElement owned(c.element);
        EXPECT_STREQ(c.element->ClassName(), c.className);
        EXPECT_STREQ(c.element->TypeName(), c.typeName);
        EXPECT_STREQ(c.element->BaseClassName(), "XMLElement");
        nlohmann::ordered_json empty = {{"class", c.className}};
        if (std::string(c.className) == "ix_conference_state_type") {
            empty["active"] = false;
            empty["locked"] = false;
        }
        EXPECT_EQ(TreeOf(c.element), empty);
    }
}

TEST_F(ConferenceInfoTest, EveryWordHasItsPlace) {
    const struct {
        const char* before;
        const char* after;
        const char* pointer;
        Strings words;
        int notSet;
    } cases[] = {
        {"<users state=\"", "\"></users>", "/users/state", {"full", "partial", "deleted"}, 3},
        {"<users><user><endpoint><joining-method>",
         "</joining-method></endpoint></user></users>",
         "/users/user/0/endpoint/0/joining-method",
         {"dialed-in", "dialed-out", "focus-owner"},
         3},
        {"<users><user><endpoint><media id=\"1\"><status>",
         "</status></media></endpoint></user></users>",
         "/users/user/0/endpoint/0/media/0/status",
         {"recvonly", "sendonly", "sendrecv", "inactive"},
         4},
        {"<conference-description><available-media><entry label=\"1\"><status>",
         "</status></entry></available-media></conference-description>",
         "/conference-description/available-media/entry/0/status",
         {"recvonly", "sendonly", "sendrecv", "inactive"},
         4},
        {"<users><user><endpoint><status>",
         "</status></endpoint></user></users>",
         "/users/user/0/endpoint/0/status",
         {"pending", "dialing-out", "dialing-in", "alerting", "on-hold", "connected", "muted-via-focus",
          "disconnecting", "disconnected"},
         9},
        {"<users><user><endpoint><disconnection-method>",
         "</disconnection-method></endpoint></user></users>",
         "/users/user/0/endpoint/0/disconnection-method",
         {"departed", "booted", "failed", "busy"},
         4},
    };
    for (const auto& c : cases) {
        for (const std::string& word : c.words) {
            // A text that begins with the word stands for it, too.
            for (const std::string& text : {word, word + "-x"}) {
                EXPECT_EQ(Field(kId, Document(c.before + text + c.after), c.pointer), word);
            }
            EXPECT_NE(Content(c.before + word + c.after).find(word), std::string::npos) << word;
        }
        // Words of the enumeration next to it, and words with something in front, are none.
        for (const char* const text : {"", "Full", " full", "focus", "regular", " busy"}) {
            const std::string document = Document(c.before + std::string(text) + c.after);
            EXPECT_EQ(Field(kId, document, c.pointer), "(absent)") << document;
        }
    }
}

TEST_F(ConferenceInfoTest, AValueWithoutAWordIsNotWritten) {
    for (const int value : {-1, 3, 4, 9, 100}) {
        ix_conference_type root;
        root.setEntityValue("e");
        root.setStateValue(value);
        root.setUsersValue(m_binder.CreateUsersType());
        root.mUsers->setStateValue(value);
        ix_user_type* const user = m_binder.CreateUserType();
        root.mUsers->addUser(user);
        user->setStateValue(value);
        ix_endpoint_type* const endpoint = m_binder.CreateEndPointType();
        user->addEndpoint(endpoint);
        endpoint->setStateValue(value);
        endpoint->setJoiningMethodValue(value);
        endpoint->setStatusValue(value < 9 ? -1 : value);
        endpoint->setDisconnectionMethodValue(value < 4 ? -1 : value);
        root.setSidebarsByRefValue(m_binder.CreateURIsType());
        root.mSidebarsByRef->setStateValue(value);
        root.setSidebarsByValValue(m_binder.CreateSideBarsByValueType());
        root.mSidebarsByVal->setStateValue(value);
        EXPECT_EQ(Write(kId, &root),
                  kStart +
                      " entity=\"e\">\n<users>\n<user>\n<endpoint></endpoint></user></users>\n<sidebars-by-ref>"
                      "</sidebars-by-ref>\n<sidebars-by-val></sidebars-by-val></conference-info>");
    }
}

TEST_F(ConferenceInfoTest, ReadsAndWritesWhatTheSchemaLeavesOpen) {
    const struct {
        const char* content;
        const char* written;
    } cases[] = {
        // Booleans are always written, and on for exactly "true" and 1.
        {"<conference-state/>",
         "\n<conference-state>\n<active>false</active>\n<locked>false</locked></conference-state>"},
        {"<conference-state><active>TRUE</active><locked>true </locked></conference-state>",
         "\n<conference-state>\n<active>false</active>\n<locked>false</locked></conference-state>"},
        // Counts of 0 are not set; others are held in 32 bits.
        {"<conference-description><maximum-user-count>0</maximum-user-count></conference-description>",
         "\n<conference-description></conference-description>"},
        {"<conference-description><maximum-user-count>4294967297</maximum-user-count></conference-description>",
         "\n<conference-description>\n<maximum-user-count>1</maximum-user-count></conference-description>"},
        // Words are separated by white space of any kind and joined by single blanks.
        {"<conference-description><keywords>\r\none\ttwo  three </keywords></conference-description>",
         "\n<conference-description>\n<keywords>one two three</keywords></conference-description>"},
        {"<conference-description><keywords>old</keywords><keywords> </keywords></conference-description>",
         "\n<conference-description></conference-description>"},
        // An element that may occur once is replaced by its last occurrence.
        {"<host-info><web-page>a</web-page></host-info><host-info/>", "\n<host-info></host-info>"},
        // Names are compared with their prefix, which is none.
        {"<ci:host-info/><host-info><x:web-page>a</x:web-page></host-info>", "\n<host-info></host-info>"},
        // An object in a place where it does not belong is refused.
        {"<user/><endpoint/><sip/><uris/><modified/><host-info/>", "\n<host-info></host-info>"},
        {"<users><users/><entry/><roles/></users>", "\n<users></users>"},
        {"<users><user><roles><user/><entry>a</entry><entry><b/></entry></roles></user></users>",
         "\n<users>\n<user>\n<roles>\n<entry>a</entry>\n<entry></entry></roles></user></users>"},
        // Its end, though, is that of an object of its class that is on top.
        {"<users><user><user/><endpoint/></user><user entity=\"a\"/></users>",
         "\n<users>\n<user></user>\n<user  entity=\"a\"></user></users>"},
        {"<entry/><host-info/>", ""},
        // An attribute that is known on another element is an extra one.
        {"<host-info state=\"full\" entity=\"a\" version=\"1\" xmlns=\"urn:x\"/>",
         "\n<host-info  state=\"full\"  entity=\"a\"  version=\"1\"  xmlns=\"urn:x\"></host-info>"},
        {"<sidebars-by-val><entry entity=\"s\" label=\"1\" version=\"-1\"/></sidebars-by-val>",
         "\n<sidebars-by-val>\n<entry  version=\"4294967295\"  label=\"1\"  entity=\"s\"></entry></sidebars-by-val>"},
        {"<sidebars-by-ref entity=\"a\"><entry label=\"1\" entity=\"b\"/></sidebars-by-ref>",
         "\n<sidebars-by-ref  entity=\"a\">\n<entry  label=\"1\"  entity=\"b\"></entry></sidebars-by-ref>"},
    };
    for (const auto& c : cases) EXPECT_EQ(Content(c.content), c.written) << c.content;
}

TEST_F(ConferenceInfoTest, OtherRootsAndPrefixesYieldNull) {
    EXPECT_EQ(Decode(kId, "<ci:conference-info xmlns:ci=\"urn:ietf:params:xml:ns:conference-info\"/>"), nullptr);
    EXPECT_EQ(Decode(kId, "<users><user/></users>"), nullptr);
    EXPECT_EQ(Decode(kId, "<entry entity=\"e\"/>"), nullptr);
    XMLConferenceInfoDecoder decoder;
    char name[] = "users";
    EXPECT_EQ(decoder.ProcessElement(nullptr, nullptr), -1);
    EXPECT_TRUE(Logged("<XML Module>XMLConferenceInfoDecoder :: ProcessElement: n_strElement is NULL"));
    EXPECT_EQ(decoder.ProcessAttribute(name, nullptr, name), -1);
    EXPECT_TRUE(Logged("<XML Module>XMLConferenceInfoDecoder :: ProcessAttribute: n_strElement is NULL"));
}

TEST_F(ConferenceInfoTest, MarshallerNamesWhatFailed) {
    const Strings failed = {"<XML Module>: Conference_infoMarshall XML Failed!"};
    const struct {
        const char* text;
        Strings log;
    } cases[] = {
        {"<conference-info/>", {"<XML Module>: AddConferenceInfoElementToXml entity attribute is mandatory"}},
        {"<conference-info entity=\"e\"><conference-description><available-media><entry label=\"1\"/><entry/>"
         "</available-media></conference-description></conference-info>",
         {"<XML Module>: AddConferenceMediaTypeElementToXml: label attribute mandatory tempNum:1"}},
        {"<conference-info entity=\"e\"><users><user/><user><endpoint><media id=\"1\"/><media/></endpoint></user>"
         "</users></conference-info>",
         {"<XML Module>: AddMediaElementToXml: id attribute mandatory ",
          "<XML Module>: issue in Media Element number [tempNum: 1] ",
          "<XML Module>: AddIUsersElementToXml tempNum: 1 "}},
    };
    for (const auto& c : cases) {
        const OwnedElement root(Decode(kId, c.text));
        ClearLog();
        EXPECT_EQ(Write(kId, root.get()), "(null)");
        // Behind the lines that say which element is being written.
        Strings log = Texts();
        Strings expected = c.log;
        expected.insert(expected.end(), failed.begin(), failed.end());
        log.erase(log.begin(), log.end() - static_cast<std::ptrdiff_t>(std::min(log.size(), expected.size())));
        EXPECT_EQ(log, expected) << c.text;
    }
    ClearLog();
    EXPECT_EQ(Write(kId, nullptr), "(null)");
    const Strings noRoot = {"<XML Module>: Conference_infoMarshall :: Marshall",
                            "<XML Module>: Conference_infoMarshall :: Marshall: Receiven NULL Object"};
    EXPECT_EQ(Texts(), noRoot);
    ix_user_type other;
    EXPECT_EQ(Write(kId, &other), "(null)");
    EXPECT_TRUE(Logged(failed[0]));
}

TEST_F(ConferenceInfoTest, LogsEachWriterAndFreesTheLastText) {
    const OwnedElement root(Decode(kId, Document("<users><user/></users>")));
    Conference_infoMarshall marshaller;
    const std::string text = marshaller.Marshall(root.get());
    ClearLog();
    EXPECT_EQ(marshaller.Marshall(root.get()), text);
    std::string lines;
    for (const LogLine& line : LogOf("XMLConferenceInfo")) lines += std::to_string(line.level) + " " + line.text + "\n";
    EXPECT_EQ(lines,
              "3 <XML Module>: Conference_infoMarshall :: Marshall\n"
              "3 <XML Module>: Conference_infoMarshall :: Marshall: Deleting mConferenceInfoXml\n"
              "2 <XML Module>: AddConferenceInfoElementToXml\n"
              "2 <XML Module>: AddIUsersElementToXml\n"
              "2 <XML Module>: AddUserElementToXkjml\n"
              "2 <XML Module>: Conference_infoMarshall XML " +
                  text + "\n");
    // The writers of the other elements, on their own.
    EXPECT_EQ(marshaller.AddConferenceInfoElementToXml(nullptr, IX_STR_ENTRY), 0);
    EXPECT_EQ(marshaller.AddConferenceDescriptionElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddHostInfoElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddConferenceStateElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddIUsersElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddUserElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddEndPointElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddMediaElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddSipElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddExecutionTypeElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddUrisTypeElementToXml(nullptr, IX_STR_URIS), 0);
    EXPECT_EQ(marshaller.AddUriTypeElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddConferenceMediaTypeElementToXml(nullptr), 0);
    EXPECT_EQ(marshaller.AddConferenceMediumTypeElementToXml(nullptr), 0);
}

TEST_F(ConferenceInfoTest, ASidebarThatCannotBeWrittenLeavesNoText) {
    ClearLog();
    EXPECT_EQ(
        Content("<sidebars-by-val state=\"full\"><entry entity=\"1\"/><entry><host-info/></entry>"
                "<entry entity=\"3\"><host-info/><users><user><endpoint><media/></endpoint></user></users></entry>"
                "<entry entity=\"4\"><sidebars-by-val a=\"b\"><entry/></sidebars-by-val></entry></sidebars-by-val>"),
        "\n<sidebars-by-val  state=\"full\">\n<entry  entity=\"1\"></entry>\n<entry  entity=\"4\">"
        "\n<sidebars-by-val  a=\"b\"></sidebars-by-val></entry></sidebars-by-val>");
    Strings failures;
    for (const std::string& text : Texts()) {
        if (text.find("Sidebars_by_val") != std::string::npos) failures.push_back(text);
    }
    const Strings expected = {"<XML Module>: Add Sidebars_by_val ElementToXml fail @ tempNum: 1 ",
                              "<XML Module>: Add Sidebars_by_val ElementToXml fail @ tempNum: 2 ",
                              "<XML Module>: Add Sidebars_by_val ElementToXml fail @ tempNum: 0 "};
    EXPECT_EQ(failures, expected);
}

// A sidebar that fails past the capacity must not leave the mark of the cut on what is written behind it.
TEST_F(ConferenceInfoTest, ALongSidebarThatFailsDoesNotCutTheText) {
    const std::string subject =
        "<conference-description><subject>" + std::string(40000, 'x') +
        "</subject></conference-description><users><user><endpoint><media/></endpoint></user></users>";
    const OwnedElement root(Decode(kId, Document("<sidebars-by-val><entry entity=\"1\">" + subject +
                                                 "</entry><entry entity=\"2\"/></sidebars-by-val>")));
    Conference_infoMarshall marshaller;
    EXPECT_STREQ(marshaller.Marshall(root.get()),
                 (kStart + " entity=\"e\">\n<sidebars-by-val>\n<entry  entity=\"2\"></entry></sidebars-by-val>"
                           "</conference-info>")
                     .c_str());
    EXPECT_EQ(marshaller.IsTruncated(), 0);
}

TEST_F(ConferenceInfoTest, AttributesThatCannotBeWrittenLeaveTheTagClosed) {
    ix_conference_type root;
    root.setEntityValue("e");
    root.setHostInfoValue(m_binder.CreateHostType());
    root.setUsersValue(m_binder.CreateUsersType());
    root.mUsers->setStateValue(IX_CONFERENCE_STATE_FULL);
    for (XMLElement* const element :
         {static_cast<XMLElement*>(root.mHostInfo), static_cast<XMLElement*>(root.mUsers)}) {
        auto* const container = static_cast<ix_conference_containerType*>(element);
        container->addExtraAttribute(nullptr);
        container->addExtraAttribute(ixCreatePair(nullptr, "v", "test", 1));
    }
    EXPECT_EQ(Write(kId, &root), kStart +
                                     " entity=\"e\">\n<host-info></host-info>\n<users  state=\"full\"></users>"
                                     "</conference-info>");
    root.mUsers->addExtraAttribute(ixCreatePair("n", nullptr, "test", 1));
    root.mUsers->addExtraAttribute(nullptr);
    EXPECT_EQ(Write(kId, &root), kStart +
                                     " entity=\"e\">\n<host-info></host-info>\n<users  state=\"full\"  n=\"\">"
                                     "</users></conference-info>");
}

TEST_F(ConferenceInfoTest, BuiltListsPassToTheirElement) {
    ix_conference_type root;
    root.setEntityValue("e");
    root.setConferenceDescriptionValue(m_binder.CreateConferenceDescriptionType());
    root.setUsersValue(m_binder.CreateUsersType());
    ix_user_type* const user = m_binder.CreateUserType();
    ASSERT_EQ(root.mUsers->addUser(user), 1);
    for (int i = 0; i < 2; ++i) {
        root.mConferenceDescription->setKeywordsValue(m_binder.CreateKeywordsType());
        user->setLanguagesValue(m_binder.CreateUserLanguagesType());
        user->setRolesValue(m_binder.CreateUserRolesType());
        EXPECT_EQ(user->addLanguage("en"), 1);
        EXPECT_EQ(user->mRoles->addEntry("a role"), 1);
    }
    // What is no word is passed over, and a list without words is not written.
    EXPECT_EQ(root.mConferenceDescription->mKeywords->Add(nullptr), 1U);
    EXPECT_EQ(user->mLanguages->Add(nullptr), 1U);
    EXPECT_EQ(user->addLanguage("fr"), 1);
    EXPECT_EQ(user->addLanguage(nullptr), 0);
    EXPECT_EQ(user->mRoles->addEntry(nullptr), 0);
    EXPECT_EQ(Write(kId, &root),
              kStart +
                  " entity=\"e\">\n<conference-description></conference-description>\n<users>\n<user>\n<roles>\n"
                  "<entry>a role</entry></roles>\n<languages>en fr</languages></user></users></conference-info>");
    EXPECT_EQ(root.mConferenceDescription->addKeyword("one"), 1);
    EXPECT_EQ(root.mConferenceDescription->addKeyword("two"), 1);
    EXPECT_NE(Write(kId, &root).find("\n<keywords>one two</keywords>"), std::string::npos);
    ix_conference_media_type* const media = m_binder.CreateConferenceMedaiType();
    root.mConferenceDescription->setAvailableMediaValue(media);
    ix_conference_medium_type* const medium = m_binder.CreateConferenceMediumType();
    medium->setLabelValue("1");
    EXPECT_EQ(media->addEntry(medium), 1);
    root.setSidebarsByRefValue(m_binder.CreateURIsType());
    ix_uri_type* const uri = m_binder.CreateURIType();
    uri->setUriValue("sip:s");
    EXPECT_EQ(root.mSidebarsByRef->addEntry(uri), 1);
    const std::string written = Write(kId, &root);
    EXPECT_NE(written.find("<available-media>\n<entry  label=\"1\"></entry></available-media>"), std::string::npos);
    EXPECT_NE(written.find("<sidebars-by-ref>\n<entry>\n<uri>sip:s</uri></entry></sidebars-by-ref>"), std::string::npos)
        << written;
    ixDplHostFailAllocation(1);
    EXPECT_EQ(user->addLanguage("de"), 0);
    ixDplHostFailAllocation(2);
    EXPECT_EQ(user->addLanguage("de"), 0);
}

TEST_F(ConferenceInfoTest, DocumentsDeeperThanTheStackAreReadAsFarAsItGoes) {
    std::string text = Document("");
    for (int i = 0; i < 70; ++i) {
        text.insert(text.rfind("</conf"), "<sidebars-by-val><entry entity=\"s\">");
    }
    for (int i = 0; i < 70; ++i) text.insert(text.rfind("</conf"), "</entry></sidebars-by-val>");
    const OwnedElement root(Decode(kId, text));
    ASSERT_NE(root.get(), nullptr);
    EXPECT_TRUE(Logged("stack overflow\n"));
    EXPECT_NE(Write(kId, root.get()), "(null)");
}

TEST_F(ConferenceInfoTest, ATreeOfAnyDepthIsWrittenAndReleased) {
    WithoutLog();
    constexpr int kDepth = 100000;
    ix_conference_type* const root = m_binder.CreateConferenceInfoType();
    const OwnedElement owned(root);
    ix_conference_type* last = root;
    last->setEntityValue("e");
    for (int i = 0; i < kDepth; ++i) {
        last->setSidebarsByValValue(m_binder.CreateSideBarsByValueType());
        ix_conference_type* const next = m_binder.CreateConferenceInfoType();
        last->mSidebarsByVal->addEntry(next);
        last = next;
        last->setEntityValue("e");
    }
    Conference_infoMarshall marshaller;
    const char* const text = marshaller.Marshall(root);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(std::string(text).size(), IxXMLDocGenerator::kCapacity - 1);
    EXPECT_EQ(marshaller.IsTruncated(), 1);
    // Without memory for the text nothing can be written at all.
    ixDplHostFailAllocation(1);
    EXPECT_EQ(marshaller.Marshall(root), nullptr);
    ixDplHostStopCounting();
}

TEST_F(ConferenceInfoTest, AListLongerThanItsCountIsReadWhole) {
    WithoutLog();
    constexpr int kUsers = 65536 + 3;
    std::string content = "<users>";
    for (int i = 0; i < kUsers; ++i) content += "<user entity=\"" + std::to_string(i) + "\"/>";
    const OwnedElement root(Decode(kId, Document(content + "</users>")));
    ASSERT_NE(root.get(), nullptr);
    const IxSingleElementList* const list = root.as<ix_conference_type>()->mUsers->mUserList;
    EXPECT_EQ(list->GetCount(), 3);
    int count = 0;
    for (const IxSingleElementNode* node = list->GetPtrToListHead(); node != nullptr; node = node->next) {
        EXPECT_EQ(static_cast<ix_user_type*>(node->key)->mEntity, std::to_string(count++));
    }
    EXPECT_EQ(count, kUsers);
    EXPECT_EQ(Write(kId, root.get()).size(), IxXMLDocGenerator::kCapacity - 1);
}

TEST_F(ConferenceInfoTest, TheDemonstrationIsADocumentOrNothing) {
    const std::string expected =
        kStart +
        " state=\"full\"  version=\"1\"  entity=\"sip:conference@example.com\">\n<conference-description>\n"
        "<subject>Demonstration</subject></conference-description>\n<conference-state>\n<user-count>1</user-count>\n"
        "<active>true</active>\n<locked>false</locked></conference-state>\n<users>\n"
        "<user  entity=\"sip:alice@example.com\">\n<display-text>Alice</display-text>\n"
        "<endpoint  entity=\"sip:alice@192.0.2.1\">\n<status>connected</status>\n"
        "<joining-method>dialed-in</joining-method>\n<media  id=\"1\">\n<type>audio</type>\n"
        "<status>sendrecv</status></media></endpoint></user></users></conference-info>";
    bool reached = true;
    for (unsigned long failing = 1; reached; ++failing) {
        ixDplHostFailAllocation(failing);
        char* const text = TestConference_infoMarshall();
        reached = ixDplHostAllocations() >= failing;
        ixDplHostStopCounting();
        EXPECT_EQ(text != nullptr ? text : "", reached ? "" : expected) << failing;
        FreeElement(text);
        EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 0U) << failing;
    }
}

}  // namespace
