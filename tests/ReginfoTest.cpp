// Registration information: what the samples do not show. Bad input, failures, required oddities, size.
#include <functional>
#include <sstream>

#include "FamilyTest.h"
#include "ReginfoDecoder.h"
#include "XMLReginfo.h"
#include "XmlFields.h"

namespace {

class ReginfoTest : public FamilyTest {
  protected:
    static XMLElement* Decode(const std::string& text) { return FamilyTest::Decode(IX_XML_SCHEMA_REGINFO, text); }
    static std::string Field(const std::string& text, const std::string& pointer) {
        return FamilyTest::Field(IX_XML_SCHEMA_REGINFO, text, pointer);
    }
    /// A document with one registration, and one contact in it.
    static std::string Document(const std::string& content) {
        return "<reginfo state=\"full\"><registration aor=\"a\" id=\"r\" state=\"active\">" + content +
               "</registration></reginfo>";
    }
    static std::string Contact(const std::string& content) {
        return Document("<contact state=\"active\" event=\"created\" id=\"c\">" + content + "</contact>");
    }
    /// "level text" of the family's own lines since the last call, without the mark that most of them begin with.
    Strings NewLines() {
        const std::string mark = "<XML Module>: ";
        Strings lines;
        for (const LogLine& line : Log()) {
            const std::size_t begin = line.text.rfind(mark, 0) == 0 ? mark.size() : 0;
            if (line.source.find("Reginfo") == std::string::npos) continue;
            lines.push_back(std::to_string(line.level) + ' ' + line.text.substr(begin));
        }
        ClearLog();
        return lines;
    }
    /// The entry of a writer is its name alone.
    static Strings WithoutEntries(const Strings& lines) {
        Strings others;
        for (const std::string& line : lines) {
            const bool isEntry = line.rfind("2 Add", 0) == 0 && line.find(' ', 2) == std::string::npos;
            if (!isEntry) others.push_back(line);
        }
        return others;
    }
    /// For documents that are too large to keep what they log.
    static void LogNothing() { ixDplHostSetLogSink(nullptr, nullptr, 0); }
};

TEST_F(ReginfoTest, WordsAreLookedForInTheRowsOfTheirReach) {
    ix_reginfo reginfo;
    ix_registration registration;
    ix_ns_reginfo_contact contact;
    const struct {
        XMLElement& element;
        const char* attribute;
        const int& field;
        int unset;
        const char* words;
    } cases[] = {
        {reginfo, "state", reginfo.mState, 2,
         "partial=1,full=0,fullness=0,partially=1,ful=2,Full=2, full=2,active=2,=2"},
        // Required: any word but the first two is taken as terminated.
        {registration, "state", registration.mState, 3, "init=0,initial=0,active=1,terminated=2,expired=2,=2"},
        // Required: the reach is one row past the states, and one past the events.
        {contact, "state", contact.mState, 2, "active=0,terminated=1,registered=2,registeredly=2,created=3,init=3,=3"},
        {contact, "event", contact.mEvent, 9, "registered=0,rejected=8,init=9,initial=9,active=10,terminated=10,=10"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.field, c.unset);
        std::istringstream words(c.words);
        for (std::string word; std::getline(words, word, ',');) {
            const std::size_t end = word.find('=');
            EXPECT_EQ(OfferAttribute(c.element, c.attribute, word.substr(0, end).c_str()), 1);
            EXPECT_EQ(c.field, std::stoi(word.substr(end + 1))) << c.element.ClassName() << ' ' << word;
        }
        const int without = c.field;
        EXPECT_EQ(OfferAttribute(c.element, c.attribute, nullptr), 1);
        EXPECT_EQ(c.field, without);
    }
    // Whatever its number, a value without a word is not shown as set.
    EXPECT_EQ(TreeOf(&contact).dump(), R"({"class":"ix_ns_reginfo_contact"})");
}

TEST_F(ReginfoTest, NumbersHave64BitsAndVersionsThoseOfAnUnsigned) {
    const struct {
        const char* text;
        std::int64_t number;
        unsigned version;
    } cases[] = {{"9223372036854775808", INT64_MAX, 4294967295U},
                 {"-9223372036854775808", INT64_MIN, 0},
                 {"4294967295", 4294967295, 4294967295U},
                 {" \n7s", 7, 7},
                 {"s7", 0, 0},
                 {"", 0, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        ix_reginfo reginfo;
        EXPECT_EQ(OfferAttribute(reginfo, "version", c.text) + OfferAttribute(reginfo, "version", nullptr), 2);
        EXPECT_EQ(reginfo.mVersion, c.version);
        ix_ns_reginfo_contact contact;
        const char* const names[] = {"duration-registered", "expires", "retry-after", "cseq"};
        for (const char* const name : names) EXPECT_EQ(OfferAttribute(contact, name, c.text), 1);
        for (const std::int64_t number :
             {contact.mDurationRegistered, contact.mExpires, contact.mRetryAfter, contact.mCseq}) {
            EXPECT_EQ(number, c.number);
        }
    }
}

TEST_F(ReginfoTest, WhatAClassDoesNotTakeIsLogged) {
    ix_reginfo reginfo;
    ix_registration registration;
    ix_ns_reginfo_contact contact;
    ix_unknown_param param;
    NamelessElement nameless;
    ix_string other;
    const struct {
        XMLElement& element;
        const char* child;  ///< The element that it lists by name, and its class.
        const char* childClass;
        int unknown;  ///< The answer to an unknown element.
    } cases[] = {{reginfo, "registration", "ix_registration", 1},
                 {registration, "contact", "ix_ns_reginfo_contact", 1},
                 {contact, "unknown-param", "ix_unknown_param", 1},
                 {param, nullptr, nullptr, 0}};
    for (const auto& c : cases) {
        const std::string hook = "3 " + std::string(c.element.ClassName()) + "::ProcessUnMarshall";
        if (c.child != nullptr) {
            EXPECT_EQ(Offer(c.element, c.child, nullptr, nullptr), 0);
            EXPECT_EQ(Offer(c.element, c.child, nullptr, &nameless), 0);
            EXPECT_EQ(Offer(c.element, c.child, nullptr, &other), 0);
            const Strings expected = {
                hook + ": n_Object is Null", hook + ": pElementName is Null",
                hook + ": pElementName is ix_string while ClassName is " + std::string(c.childClass)};
            EXPECT_EQ(NewLines(), expected);
        }
        EXPECT_EQ(Offer(c.element, "/vendor", "text", nullptr), c.unknown);
        EXPECT_EQ(OfferAttribute(c.element, "path", ""), 0);
        EXPECT_EQ(OfferAttribute(c.element, nullptr, ""), 0);
        const Strings expected = {hook + " Cannot accommodate the element /vendor",
                                  hook + "Attribute Cannot accommodate the attribute path",
                                  hook + "Attribute n_strAttribute is NULL"};
        EXPECT_EQ(NewLines(), expected);
    }
    // The end tags of a contact's texts come with a text and without an object.
    EXPECT_EQ(Offer(contact, "/uri", nullptr, nullptr), 1);
    EXPECT_EQ(Offer(contact, "/uri", "x", &other), 0);
    EXPECT_EQ(contact.mUri, nullptr);
    EXPECT_EQ(contact.mAnyElementList, nullptr);
}

TEST_F(ReginfoTest, EventsWithoutNamesOrMemoryAreRejected) {
    XMLReginfoDecoder decoder;
    char name[] = "reginfo";
    char end[] = "/unknown-param";
    std::string longName(100, 'x');
    EXPECT_EQ(decoder.ProcessElement(nullptr, nullptr), -1);
    EXPECT_EQ(decoder.ProcessAttribute(nullptr, name, name), -1);
    EXPECT_EQ(decoder.ProcessAnyElement(nullptr, nullptr), nullptr);
    ixDplHostFailAllocation(1, 2);
    EXPECT_EQ(decoder.ProcessElement(longName.data(), nullptr), -1);
    EXPECT_EQ(decoder.ProcessAttribute(longName.data(), name, name), -1);
    ixDplHostStopCounting();
    EXPECT_EQ(LogOf("ReginfoDecoder")[3].code, 6053);
    // With nothing open, elements are dropped without a word.
    EXPECT_EQ(decoder.ProcessElement(end, name), 0);
    EXPECT_EQ(decoder.ProcessElement(end + 1, nullptr), 0);
    EXPECT_EQ(decoder.GetSessionData(), nullptr);
    const std::string noMemory =
        "2 XMLCommunicationDiversionDecoder :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory";
    const Strings expected = {"3 In XMLReginfoDecoder :: ProcessElement, Element name is NULL",
                              "3 In XMLReginfoDecoder :: ProcessAttribute, Element name is NULL",
                              "3 In XMLReginfoDecoder :: ProcessAnyElement, Element name is NULL",
                              noMemory,
                              "3 <XML Module>XMLReginfoDecoder :: ProcessElement: m_PassName is NULL",
                              noMemory,
                              "3 <XML Module>XMLReginfoDecoder :: ProcessAttribute: m_PassName is NULL"};
    EXPECT_EQ(Log().size(), expected.size());
    EXPECT_EQ(NewLines(), expected);
}

TEST_F(ReginfoTest, NamesAreCutWhereTheirSizeWraps) {
    // Required: the room for a name is its length and two, counted in 16 bits. 65542 leaves room for "reginfo".
    for (const std::size_t length : {65533U, 65534U, 65535U, 65542U}) {
        const std::string name = "reginfo" + std::string(length - 7, 'x');
        const OwnedElement root(Decode("<" + name + " version=\"5\"></" + name + ">"));
        EXPECT_EQ(root.get() != nullptr, length == 65542U) << length;
    }
}

TEST_F(ReginfoTest, ElementsInTheWrongPlaceDoNoHarm) {
    const struct {
        std::string text;
        const char* pointer;
        const char* value;
    } cases[] = {
        // Refused by the parameter, and gone; what encloses it goes on.
        {Contact("<unknown-param name=\"n\"><gr:temp-gruu uri=\"u\" name=\"m\"/><contact name=\"d\"/>v</unknown-param>"
                 "<uri>x</uri>"),
         "/registration/0/contact",
         R"([{"class":"ix_ns_reginfo_contact","state":"active","event":"created","id":"c","uri":"x",)"
         R"("unknown-param":[{"class":"ix_unknown_param","name":"n","text":"v"}]}])"},
        // A parameter in a parameter is refused, too; then its end tag ends the outer one, and that one's the contact.
        {Contact("<unknown-param name=\"n\"><unknown-param name=\"m\">v</unknown-param>w</unknown-param><uri>x</uri>"),
         "/registration/0/contact",
         R"([{"class":"ix_ns_reginfo_contact","state":"active","event":"created","id":"c",)"
         R"("unknown-param":[{"class":"ix_unknown_param","name":"n","text":"v"}]}])"},
        // A GRUU takes any child and keeps none.
        {Contact("<pub-gruu uri=\"u\"><pub-gruu uri=\"v\"/><contact/><x>y</x></pub-gruu><uri>x</uri>"),
         "/registration/0/contact/0/any", R"([{"class":"ix_pub_gruu","uri":"u"}])"},
        {Contact("<pub-gruu uri=\"u\"/><uri>x</uri>"), "/registration/0/contact/0/uri", "x"},
        {Document("<unknown-param name=\"n\">v</unknown-param>"), "/registration/0/any/0/text", "v"},
        {"<reginfo><registration id=\"1\"/><reginfo version=\"9\"/></reginfo>", "/version", "9"},
        // Attributes of elements that are no objects are nobody's.
        {Contact("<uri id=\"d\">x</uri><y:z id=\"e\"/>"), "/registration/0/contact/0/id", "c"},
        {"<list><unknown-param/><reginfo version=\"2\"/></list>", "/version", "2"},
        {"<registration aor=\"a\"/>", "", "(null)"},
    };
    for (const auto& c : cases) EXPECT_EQ(Field(c.text, c.pointer), c.value) << c.text;
    EXPECT_FALSE(Logged("stack underflow\n"));
}

/// A document to damage: one registration, one contact, one parameter, both kinds of GRUU.
struct Tree {
    ReginfoDataBinder binder;
    OwnedElement owner{binder.CreateRootElement()};
    ix_reginfo& reginfo = *owner.as<ix_reginfo>();
    ix_registration& registration = *binder.CreateRegistrationElement();
    ix_ns_reginfo_contact& contact = *binder.CreateContactElement();
    ix_unknown_param& param = *binder.CreateUnknownParamElement();
    ix_pub_gruu& pub = *binder.CreatePubGruuElement();
    ix_temp_gruu& temp = *binder.CreateTempGruuElement();

    Tree() {
        reginfo.setStateValue(IX_REGINFO_STATE_FULL);
        reginfo.addRegistration(&registration);
        registration.setAorValue("tel:+15550100");
        registration.setIdValue("a7");
        registration.setStateValue(IX_REGISTRATION_STATE_ACTIVE);
        registration.addContact(&contact);
        contact.setStateValue(IX_CONTACT_STATE_ACTIVE);
        contact.setEventValue(IX_CONTACT_EVENT_REGISTERED);
        contact.setExpiresValue(3600);
        contact.setIdValue("c1");
        contact.setUriValue("sip:192.0.2.4");
        contact.addUnknownParam(&param);
        param.setNameValue("audio");
        contact.addAnyElement(&pub);
        pub.setUriValue("sip:192.0.2.4;gr=urn:uuid:1");
        contact.addAnyElement(&temp);
        temp.setUriValue("sip:t;gr");
    }
};

const std::string kHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<reginfo  xmlns=\"urn:ietf:params:xml:ns:reginfo\"  "
    "xmlns:gr=\"urn:ietf:params:xml:ns:gruuinfo\"  version=\"0\"  state=\"full\">";
const std::string kRegistration = kHead + "\n<registration  aor=\"tel:+15550100\"  id=\"a7\"  state=\"active\">";
const std::string kContact =
    "\n<contact  state=\"active\"  event=\"registered\"  expires=\"3600\"  id=\"c1\">\n<uri>sip:192.0.2.4</uri>";
// A value that is not set is written as one blank.
const std::string kParam = kContact + "\n<unknown-param  name=\"audio\"> </unknown-param>";
const std::string kTail = "</contact></registration></reginfo>";
const std::string kGruus =
    "\n<gr:pub-gruu  uri=\"sip:192.0.2.4;gr=urn:uuid:1\"/>\n<gr:temp-gruu  first-cseq=\"0\"  uri=\"sip:t;gr\"/>" +
    kTail;

TEST_F(ReginfoTest, WritersSayWhatIsMissing) {
    const struct {
        std::function<void(Tree& t)> damage;
        Strings log;       ///< What is logged but the entries, and before the failures that follow from it.
        int failed;        ///< How many writers around it fail.
        std::string text;  ///< Empty: none.
    } cases[] = {
        {[](Tree&) {}, {}, 0, kRegistration + kParam + kGruus},
        {[](Tree& t) { t.reginfo.setRegistrationListValue(nullptr); }, {}, 0, kHead + "</reginfo>"},
        {[](Tree& t) { t.reginfo.setStateValue(IX_REGINFO_STATE_UNSET); },
         {"1 AddReginfoElementToXml state is required"},
         0,
         ""},
        {[](Tree& t) { t.registration.setAorValue(nullptr); },
         {"4 AddRegistrationElementToXml aor is required"},
         1,
         ""},
        // Required: the id of a registration is not tested.
        {[](Tree& t) { t.registration.setIdValue(nullptr); },
         {},
         0,
         kHead + "\n<registration  aor=\"tel:+15550100\"  id=\"\"  state=\"active\">" + kParam + kGruus},
        {[](Tree& t) { t.registration.setStateValue(IX_REGISTRATION_STATE_UNSET); },
         {"1 AddRegistrationElementToXml state is required"},
         1,
         ""},
        {[](Tree& t) { OfferAttribute(t.contact, "state", "registered"); },
         {"1 AddReginfoContactElementToXml state is required"},
         2,
         ""},
        {[](Tree& t) { OfferAttribute(t.contact, "event", "init"); },
         {"1 AddReginfoContactElementToXml event is required"},
         2,
         ""},
        {[](Tree& t) { t.contact.mEvent = -1; }, {"1 AddReginfoContactElementToXml event is required"}, 2, ""},
        {[](Tree& t) { t.contact.setIdValue(nullptr); }, {"4 AddReginfoContactElementToXml id is required"}, 2, ""},
        {[](Tree& t) { t.param.setNameValue(nullptr); }, {"4 AddUnknownParamElementToXml name is required"}, 3, ""},
        // Required: GRUUs without URI are left unterminated in a document that is written all the same.
        {[](Tree& t) { t.pub.setUriValue(nullptr), t.temp.setUriValue(nullptr); },
         {"3 AddPubGruuElementToXml: Uri is a mandatory attribute",
          "3 AddTempGruuElementToXml: Uri is a mandatory attribute"},
         0,
         kRegistration + kParam + "\n<gr:pub-gruu \n<gr:temp-gruu  first-cseq=\"0\" " + kTail},
        {[](Tree& t) {
             t.contact.setUnknownParamListValue(nullptr), t.contact.setAnyElementListValue(nullptr);
             t.contact.addAnyElement(t.binder.CreateContactElement());
             t.registration.addAnyElement(t.binder.CreatePubGruuElement());
             t.reginfo.addAnyElement(t.binder.CreatePubGruuElement());
         },
         {"2 AddUnknownParamElementToXml cannot accommodate any element classname: ix_ns_reginfo_contact",
          "2 pRegistration: AnyElement not supported", "2 pReginfo: AnyElement not supported"},
         0,
         kRegistration + kContact + kTail},
        // What an application puts into the lists is none of the writer's, or nothing at all.
        {[](Tree& t) {
             t.contact.setUnknownParamListValue(nullptr), t.contact.setAnyElementListValue(nullptr);
             t.contact.addAnyElement(ixNew<ix_ns_gruuinfo_pubGruu>("test")), t.contact.mAnyElementList->Add(nullptr);
         },
         {"2 AddUnknownParamElementToXml cannot accommodate any element classname: ix_ns_gruuinfo_pubGruu",
          "2 AddUnknownParamElementToXml cannot accommodate any element classname: (null)"},
         0,
         kRegistration + kContact + kTail},
        {[](Tree& t) { t.contact.mUnknownParamList->Add(nullptr); }, {}, 3, ""},
        {[](Tree& t) { t.contact.mUnknownParamList->Add(t.binder.CreatePubGruuElement()); }, {}, 3, ""},
        {[](Tree& t) { t.registration.mContactList->Add(nullptr); }, {}, 2, ""},
        {[](Tree& t) { t.registration.mContactList->Add(t.binder.CreatePubGruuElement()); }, {}, 2, ""},
        {[](Tree& t) { t.reginfo.mRegistrationList->Add(nullptr); }, {}, 1, ""},
        {[](Tree& t) { t.reginfo.mRegistrationList->Add(t.binder.CreatePubGruuElement()); }, {}, 1, ""},
    };
    const char* const around[] = {"4 AddUnknownParamElementToXml Failed", "4 AddReginfoContactElementToXml Failed",
                                  "4 AddRegistrationElementToXml Failed"};
    for (const auto& c : cases) {
        Tree tree;
        c.damage(tree);
        ClearLog();
        EXPECT_EQ(Write(IX_XML_SCHEMA_REGINFO, &tree.reginfo), c.text.empty() ? "(null)" : c.text);
        Strings expected = c.log;
        expected.insert(expected.begin(), "2 ReginfoMarshaller :: Marshall");
        expected.insert(expected.end(), std::end(around) - c.failed, std::end(around));
        expected.push_back(c.text.empty() ? "4 ReginfoMarshaller XML Failed!" : "2 ReginfoMarshaller XML " + c.text);
        EXPECT_EQ(WithoutEntries(NewLines()), expected);
    }
}

TEST_F(ReginfoTest, EveryWriterLogsItsEntry) {
    Tree tree;
    ClearLog();
    Write(IX_XML_SCHEMA_REGINFO, &tree.reginfo);
    Strings lines = NewLines();
    lines.pop_back();
    const Strings expected = {"2 ReginfoMarshaller :: Marshall", "2 AddReginfoElementToXml",
                              "2 AddRegistrationElementToXml",   "2 AddReginfoContactElementToXml",
                              "2 AddUnknownParamElementToXml",   "2 AddPubGruuElementToXml",
                              "2 AddTempGruuElementToXml"};
    EXPECT_EQ(lines, expected);
}

TEST_F(ReginfoTest, MarshallerTakesOneRootAndDeletesItsLastText) {
    const OwnedContext context(IX_XML_SCHEMA_REGINFO);
    XMLMarshaller* const marshaller = context->createMarshaller();
    Tree tree;
    ASSERT_NE(marshaller->Marshall(&tree.reginfo), nullptr);
    ClearLog();
    EXPECT_EQ(marshaller->Marshall(nullptr), nullptr);
    EXPECT_EQ(marshaller->Marshall(&tree.registration), nullptr);
    const Strings expected = {"2 ReginfoMarshaller :: Marshall",
                              "2 ReginfoMarshaller :: Marshall: Deleting mReginfoXml",
                              "4 ReginfoMarshaller XML Failed!"};
    EXPECT_EQ(NewLines(), expected);
}

TEST_F(ReginfoTest, EveryFieldOfABuiltTreeComesBack) {
    Tree tree;
    tree.reginfo.setVersionValue(4000000000U);
    tree.contact.setDisplayNameValue("name");
    tree.contact.setDurationRegisteredValue(1);
    tree.contact.setRetryAfterValue(-2);
    tree.contact.setQValue("0.8");
    tree.contact.setCallidValue("i");
    tree.contact.setCseqValue(INT64_MAX);
    tree.param.setValueValue("\"v\"");
    tree.temp.setFirstCseqValue(INT64_MAX);
    // A list may move from one element to another.
    ix_registration& second = *tree.binder.CreateRegistrationElement();
    second.addContact(tree.binder.CreateContactElement());
    second.setContactListValue(tree.registration.mContactList);
    tree.registration.mContactList = nullptr;
    second.setAorValue("b");
    second.setIdValue("");
    second.setStateValue(IX_REGISTRATION_STATE_INIT);
    tree.reginfo.addRegistration(&second);
    const OwnedElement again(Decode(Write(IX_XML_SCHEMA_REGINFO, &tree.reginfo)));
    EXPECT_TRUE(XmlFields::Equal(&tree.reginfo, again.get())) << TreeOf(again.get());
}

TEST_F(ReginfoTest, ContactsPastTheCountOfTheListAreInItsNodes) {
    LogNothing();
    for (const std::size_t count : {65000U, 70000U}) {
        std::string contacts;
        for (std::size_t i = 0; i + 1 < count; ++i) contacts += "<contact/>";
        const OwnedElement root(Decode(Document(contacts + "<contact id=\"last\"/>")));
        ASSERT_NE(root.get(), nullptr);
        const auto& registration =
            *static_cast<ix_registration*>(root.as<ix_reginfo>()->mRegistrationList->GetPtrToListHead()->key);
        EXPECT_EQ(registration.mContactList->GetCount(), count % 65536);
        std::size_t walked = 0;
        const char* id = nullptr;
        for (const auto* node = registration.mContactList->GetPtrToListHead(); node != nullptr; node = node->next) {
            id = static_cast<ix_ns_reginfo_contact*>(node->key)->mId;
            ++walked;
        }
        EXPECT_EQ(walked, count);
        EXPECT_STREQ(id, "last");
    }
}

TEST_F(ReginfoTest, ADocumentOf16MiBTakesWhatItHolds) {
    LogNothing();
    const std::string contact =
        "<contact state=\"active\" event=\"created\" expires=\"60\" id=\"c\"><uri>sip:" + std::string(800, 'u') +
        "</uri><unknown-param name=\"n\">v</unknown-param></contact>\n";
    std::size_t last = 0;
    unsigned long before = 0;
    for (const std::size_t count : {std::size_t(500), std::size_t(1000), (std::size_t(1) << 24) / contact.size() + 1}) {
        std::string contacts;
        for (std::size_t i = 0; i < count; ++i) contacts += contact;
        ixDplHostFailAllocation(0);
        const OwnedElement root(Decode(Document(contacts)));
        const unsigned long allocations = ixDplHostAllocations();
        ixDplHostStopCounting();
        ASSERT_NE(root.get(), nullptr);
        // A contact and its parameter: two objects, two nodes, one list, four texts.
        EXPECT_TRUE(last == 0 || allocations - before == 9 * (count - last)) << allocations - before;
        before = allocations;
        last = count;
    }
}

TEST_F(ReginfoTest, HostileDocumentsEnd) {
    LogNothing();
    const auto repeat = [](const std::string& text) {
        std::string all;
        for (int i = 0; i < 5000; ++i) all += text;
        return all;
    };
    for (const char* const name : {"registration", "contact", "unknown-param", "gr:temp-gruu", "reginfo", "vendor"}) {
        const std::string begin = "<" + std::string(name) + " id=\"i\" uri=\"u\" version=\"1\">";
        const std::string end = "</" + std::string(name) + ">";
        // Nested, side by side, and never closed.
        for (const std::string& content : {repeat(begin) + repeat(end), repeat(begin + end)}) {
            const OwnedElement root(Decode(Contact(content)));
            EXPECT_NE(root.get(), nullptr) << name;
        }
        EXPECT_EQ(Decode(Contact(repeat(begin))), nullptr) << name;
        ixDplHostReleaseHeap();
    }
    EXPECT_EQ(Field("<reginfo " + repeat("version=\"1\" ") + "version=\"2\"/>", "/version"), "2");
}

}  // namespace
