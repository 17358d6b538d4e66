// Resource lists, RLS services and RLMI: what their samples do not show.
#include "ResourceLists.h"

#include "FamilyTest.h"
#include "Rlmi.h"
#include "RlsServices.h"
#include "XMLResourceList.h"
#include "XMLRlmi.h"
#include "XMLRlsServices.h"

namespace {

class ListsTest : public FamilyTest {
  protected:
    struct Case {
        eXMLSchemaID id;
        const char* text;
        const char* pointer;
        const char* value;
    };

    void ExpectFields(const std::vector<Case>& cases) {
        for (const Case& c : cases) EXPECT_EQ(Field(c.id, c.text, c.pointer), c.value) << c.text << ' ' << c.pointer;
    }

    ResourceListsDataBinder m_binder;
};

TEST_F(ListsTest, WhatIsFiledWhere) {
    constexpr eXMLSchemaID lists = IX_XML_SCHEMA_RESOURCE_LISTS;
    constexpr eXMLSchemaID services = IX_XML_SCHEMA_RLS_SERVICES;
    constexpr eXMLSchemaID rlmi = IX_XML_SCHEMA_LIST;
    ExpectFields({
        // Names are taken as they stand.
        {lists, "<rl:resource-lists><list/></rl:resource-lists>", "", "(null)"},
        {lists, "<list><entry uri=\"u\"/></list>", "", "(null)"},
        {lists, "<resource-lists><rl:list/><list/></resource-lists>", "/list/1", "(absent)"},
        {services, "<rs:rls-services/>", "", "(null)"},
        {services, "<rls-services><rs:service uri=\"u\"/></rls-services>", "/service", "(absent)"},
        {services, "<rls-services><service><list/></service></rls-services>", "/service/0/list", "(absent)"},
        {rlmi, "<rlmi:list uri=\"u\"/>", "", "(null)"},
        {rlmi, "<list><rlmi:name>n</rlmi:name></list>", "/name", "(absent)"},
        // The insides of what has no place do not reach the element around it.
        {lists, "<resource-lists><list name=\"a\"><entry uri=\"u\"><list name=\"b\"/></entry></list></resource-lists>",
         "/list/0/name", "a"},
        {lists, "<resource-lists><list><entry uri=\"u\"><x uri=\"v\"/></entry></list></resource-lists>",
         "/list/0/children/0/uri", "u"},
        {services, "<rls-services><service uri=\"u\"><entry uri=\"v\"/><rl:entry uri=\"w\"/></service></rls-services>",
         "/service/0/uri", "u"},
        {rlmi, "<list><resource><resource uri=\"inner\"/></resource></list>", "/resource/0/uri", "(absent)"},
        // The last one stays.
        {lists,
         "<resource-lists><list name=\"a\"/><resource-lists><list name=\"b\"/></resource-lists></resource-lists>",
         "/list/0/name", "b"},
        {services, "<rls-services><service><rl:list name=\"a\"/><rl:list name=\"b\"/></service></rls-services>",
         "/service/0/list/name", "b"},
        {services,
         "<rls-services><service><packages><package>a</package></packages><packages/></service></rls-services>",
         "/service/0/packages/package", "(absent)"},
        // A state is known by its beginning, a flag only as a whole; a version is the nearest one there is.
        {rlmi, "<list><resource><instance state=\"terminated;x\"/></resource></list>", "/resource/0/instance/0/state",
         "terminated"},
        {rlmi, "<list><resource><instance state=\"activ\"/></resource></list>", "/resource/0/instance/0/state",
         "(absent)"},
        {rlmi, "<list><resource><instance state=\"Active\"/></resource></list>", "/resource/0/instance/0/state",
         "(absent)"},
        {rlmi, "<list fullState=\"true \"/>", "/fullState", "false"},
        {rlmi, "<list version=\" 12th\"/>", "/version", "12"},
        {rlmi, "<list version=\"4294967296\"/>", "/version", "0"},
        {rlmi, "<list version=\"none\"/>", "/version", "0"},
    });
}

TEST_F(ListsTest, ContentWithoutAPlaceIsLogged) {
    const OwnedElement lists(
        Decode(IX_XML_SCHEMA_RESOURCE_LISTS,
               "<resource-lists><list> <x>1</x><entry uri=\"u\">2<list/></entry> </list></resource-lists>"));
    const Strings listLines = {"2 Cannot accommodate the element x with value (null)",
                               "2 Cannot accommodate the element /x with value 1",
                               "2 Cannot accommodate the element list with value (null)",
                               "2 Cannot accommodate the element /list with value ",
                               "2 Cannot accommodate the element /entry with value ",
                               "2 Cannot accommodate the element /list with value  "};
    EXPECT_EQ(NewLinesOf("XMLResourceList"), listLines);
    const OwnedElement services(Decode(
        IX_XML_SCHEMA_RLS_SERVICES,
        "<rls-services><service><x/><resource-list>r</resource-list><package>p</package></service></rls-services>"));
    const Strings serviceLines = {"2 Cannot accommodate the element x with value (null)",
                                  "2 Cannot accommodate the element /x with value ",
                                  "2 Cannot accommodate the element resource-list with value (null)",
                                  "2 Cannot accommodate the element package with value (null)"};
    EXPECT_EQ(NewLinesOf("XMLRlsServices"), serviceLines);
}

TEST_F(ListsTest, EventsWithoutNamesAreRejected) {
    XMLResourceListsDecoder lists;
    XMLRlsServicesDecoder services;
    XMLListDecoder rlmi;
    const struct {
        XmlDecoderSchema* decoder;
        const char* file;
        std::string family;
    } cases[] = {
        {&lists, "ResourceLists", "ResourceLists"}, {&services, "RlsServices", "RlsServices"}, {&rlmi, "Rlmi", "List"}};
    char name[] = "list";
    for (const auto& c : cases) {
        EXPECT_EQ(c.decoder->ProcessElement(nullptr, name), -1);
        EXPECT_EQ(c.decoder->ProcessAttribute(name, nullptr, name), -1);
        const std::string decoder = "XML" + c.family + "Decoder";
        const Strings expected = {"3 <XML Module>" + decoder + " :: ProcessElement: n_strElement is NULL",
                                  "3 <XML Module>" + decoder + " :: ProcessAttribute: n_strElement is NULL"};
        EXPECT_EQ(NewLinesOf(c.file), expected);
    }
}

// What stands in a text, objects among it, reaches neither the text nor the element around it.
TEST_F(ListsTest, ATextIsItsOwn) {
    constexpr eXMLSchemaID lists = IX_XML_SCHEMA_RESOURCE_LISTS;
    constexpr eXMLSchemaID services = IX_XML_SCHEMA_RLS_SERVICES;
    const std::string list =
        "<resource-lists><list name=\"l\"><display-name><display-name>b</display-name><entry uri=\"u\">"
        "<display-name>c</display-name></entry>a</display-name><entry uri=\"v\"/></list></resource-lists>";
    const std::string service =
        "<rls-services><service><packages><package><package>b</package><display-name>c</display-name>a</package>"
        "<package>d</package></packages></service></rls-services>";
    ExpectFields({
        {lists, list.c_str(), "/list/0/display-name/text", "a"},
        {lists, list.c_str(), "/list/0/children/0/uri", "v"},
        {services, service.c_str(), "/service/0/packages/package/0/text", "a"},
        {services, service.c_str(), "/service/0/packages/package/1/text", "d"},
    });
}

// The stack of objects under construction holds the root and 99 lists; the end tags of the lists past it pop others.
TEST_F(ListsTest, ListsAreReadAsDeepAsTheStackGoes) {
    const auto document = [](int depth) {
        std::string text = "<resource-lists>";
        for (int i = 1; i <= depth; ++i) text += "<list name=\"" + std::to_string(i) + "\">";
        for (int i = 1; i <= depth; ++i) text += "</list>";
        return text + "</resource-lists>";
    };
    std::string last = "/list/0";
    for (int i = 1; i < 99; ++i) last += "/children/0";
    EXPECT_EQ(Field(IX_XML_SCHEMA_RESOURCE_LISTS, document(99), last + "/name"), "99");
    EXPECT_FALSE(Logged("stack overflow\n"));
    EXPECT_EQ(Field(IX_XML_SCHEMA_RESOURCE_LISTS, document(100), last + "/children/0/class"), "ix_listType");
    EXPECT_EQ(Field(IX_XML_SCHEMA_RESOURCE_LISTS, document(101), last + "/children/1/class"), "ix_listType");
    EXPECT_TRUE(Logged("stack overflow\n"));
}

TEST_F(ListsTest, AListTakesMoreEntriesThanItsCountCanTell) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    std::string text = "<resource-lists><list>";
    for (int i = 0; i < 70000; ++i) text += "<entry uri=\"u\"/>";
    const OwnedElement root(
        Decode(IX_XML_SCHEMA_RESOURCE_LISTS, text + "<list name=\"last\"/></list></resource-lists>"));
    ASSERT_NE(root.get(), nullptr);
    const auto* const list = static_cast<ix_listType*>(root.as<ix_resource_lists>()->mListList->GetKeyAtIndex(0));
    EXPECT_EQ(list->mChildren->GetCount(), 70001 - 65536);
    int entries = 0;
    for (const IxSingleElementNode* node = list->mChildren->GetPtrToListHead(); node != nullptr; node = node->next) {
        ++entries;
    }
    EXPECT_EQ(entries, 70001);
    EXPECT_STREQ(static_cast<ix_listType*>(list->mChildren->LastNode()->key)->mName, "last");
}

TEST_F(ListsTest, ATreeOfAnyDepthIsWrittenAndReleased) {
    ixDplHostSetLogSink(nullptr, nullptr, 0);
    const OwnedElement root(m_binder.CreateRootElement());
    ix_listType* list = m_binder.CreateListType();
    ASSERT_EQ(root.as<ix_resource_lists>()->addList(list), 1);
    std::string starts;
    for (int i = 0; i < 100000; ++i) {
        ix_listType* const inner = m_binder.CreateListType();
        ASSERT_EQ(list->addChild(inner), 1);
        list = inner;
        starts += "\n<list>";
    }
    Resource_listsMarshall marshaller;
    const std::string text = marshaller.Marshall(root.get());
    EXPECT_EQ(text.size(), 32767U);
    EXPECT_EQ(marshaller.IsTruncated(), 1);
    const std::size_t first = text.find("\n<list>");
    EXPECT_EQ(text.substr(first), starts.substr(0, 32767 - first));
    // Without memory for the text there is nothing to descend for.
    ixDplHostFailAllocation(1);
    EXPECT_EQ(marshaller.Marshall(root.get()), nullptr);
    ixDplHostStopCounting();
}

TEST_F(ListsTest, WhatIsMissingIsLoggedAndLeftOut) {
    const OwnedElement root(
        Decode(IX_XML_SCHEMA_RESOURCE_LISTS,
               "<resource-lists><list name=\"l\"><entry/><entry-ref/><external/></list></resource-lists>"));
    IxSingleElementList* const lists = root.as<ix_resource_lists>()->mListList;
    lists->Add(nullptr);
    ASSERT_EQ(root.as<ix_resource_lists>()->addList(m_binder.CreateListType()), 1);
    Resource_listsMarshall marshaller;
    ClearLog();
    const std::string start =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<resource-lists  xmlns=\"urn:ietf:params:xml:ns:resource-lists\"  "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"  xmlns:cp=\"urn:ietf:params:xml:ns:copycontrol\">";
    const std::string text =
        start + "\n<list  name=\"l\">\n<external></external></list>\n<list></list></resource-lists>";
    EXPECT_EQ(marshaller.Marshall(root.get()), text);
    Strings expected = {"3 <XML Module>: Resource_listsMarshall :: Marshall",
                        "2 <XML Module>: AddResource_listsElementToXml",
                        "2 <XML Module>: AddListElementToXml",
                        "2 <XML Module>: AddEntryElementToXml",
                        "4 <XML Module>: AddEntryElementToXml Uri mandatory attribute",
                        "2 <XML Module>: AddEntryRefElementToXml",
                        "4 <XML Module>: AddEntryRefElementToXml attribute: ref mandatory attribute",
                        "2 <XML Module>: AddExternalElementToXml",
                        "2 <XML Module>: AddListElementToXml",
                        "2 <XML Module>: AddResource_listsElementToXml tempNum: 1 ",
                        "2 <XML Module>: AddListElementToXml",
                        "2 <XML Module>: Resource_listsMarshall XML " + text};
    EXPECT_EQ(NewLinesOf("XMLResourceList"), expected);
    const OwnedElement empty(m_binder.CreateRootElement());
    EXPECT_EQ(marshaller.Marshall(empty.get()), start + "</resource-lists>");
    EXPECT_EQ(NewLinesOf("XMLResourceList")[1],
              "3 <XML Module>: Resource_listsMarshall :: Marshall: Deleting mResourceListsXml");
    EXPECT_EQ(marshaller.Marshall(nullptr), nullptr);
    expected = {"3 <XML Module>: Resource_listsMarshall :: Marshall: Received Object is NULL"};
    EXPECT_EQ(NewLinesOf("XMLResourceList"), expected);
    ix_string other;
    EXPECT_EQ(marshaller.Marshall(&other), nullptr);
    EXPECT_EQ(NewLinesOf("XMLResourceList").back(), "2 <XML Module>: Resource_listsMarshall XML Failed!");
}

// Required: an extra-attribute list that is empty leaves the start tag open.
TEST_F(ListsTest, AnEmptyListOfAttributesLeavesTheStartTagOpen) {
    const OwnedElement root(Decode(IX_XML_SCHEMA_RESOURCE_LISTS,
                                   "<resource-lists><list a=\"1\"><entry uri=\"u\" b=\"2\"/></list></resource-lists>"));
    auto* const list = static_cast<ix_listType*>(root.as<ix_resource_lists>()->mListList->GetKeyAtIndex(0));
    for (ix_listMemberType* const member :
         {static_cast<ix_listMemberType*>(list), static_cast<ix_listMemberType*>(list->mChildren->GetKeyAtIndex(0))}) {
        auto* const pair = static_cast<ix_AttributeValuePair*>(member->getAnyAttributeValue()->GetKeyAtIndex(0));
        ASSERT_EQ(member->mAnyAttribute->Remove(pair), 1U);
        ixDelete(pair);
    }
    const std::string text = Write(IX_XML_SCHEMA_RESOURCE_LISTS, root.get());
    EXPECT_EQ(text.substr(text.find("\n<list")), "\n<list \n<entry  uri=\"u\" </entry></list></resource-lists>");
    // Where there are entries, but none that can be written, the tag is closed.
    ASSERT_EQ(list->addAnyAttribute(ixCreatePair(nullptr, "v", "test", __LINE__)), 1);
    ASSERT_EQ(static_cast<ix_entryType*>(list->mChildren->GetKeyAtIndex(0))->mAnyAttribute->Add(nullptr), 1U);
    const std::string closed = Write(IX_XML_SCHEMA_RESOURCE_LISTS, root.get());
    EXPECT_EQ(closed.substr(closed.find("\n<list")), "\n<list>\n<entry  uri=\"u\"></entry></list></resource-lists>");
}

// The list of attributes has memory and its first node has none: an empty list would leave the start tag open.
TEST_F(ListsTest, WithoutMemoryForItsFirstEntryThereIsNoList) {
    const OwnedElement root(Decode(IX_XML_SCHEMA_RESOURCE_LISTS, "<resource-lists><list/></resource-lists>"));
    auto* const list = static_cast<ix_listType*>(root.as<ix_resource_lists>()->mListList->GetKeyAtIndex(0));
    ix_AttributeValuePair* const pair = ixCreatePair("a", "1", "test", __LINE__);
    ixDplHostFailAllocation(2);
    EXPECT_EQ(list->addAnyAttribute(pair), 0);
    ixDplHostStopCounting();
    ixDelete(pair);
    EXPECT_NE(Write(IX_XML_SCHEMA_RESOURCE_LISTS, root.get()).find("\n<list></list>"), std::string::npos);
}

// Required: the beginning of a class name selects the writer of a child.
TEST_F(ListsTest, AChildIsWrittenByTheBeginningOfItsClassName) {
    struct Named : ix_string {
        const char* ClassName() const override { return mValue; }
    };
    struct Marshaller : Resource_listsMarshall {
        Marshaller() { m_generator.ixInitXmlDoc(); }
        const char* Text() const { return m_generator.ixGetXmlDoc(); }
    };
    const struct {
        const char* name;
        Strings lines;
    } cases[] = {
        {"ix_list", {"2 <XML Module>: AddListElementToXml"}},
        {"ix_ext", {"2 <XML Module>: AddExternalElementToXml"}},
        {"ix_entryT", {"2 <XML Module>: AddEntryElementToXml"}},
        {"ix_entry_", {"2 <XML Module>: AddEntryRefElementToXml"}},
        {"ix_listTypes", {}},
        {nullptr, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name != nullptr ? c.name : "no name");
        Named child;
        ASSERT_EQ(child.setValueValue(c.name), 1);
        ix_listType list;
        EXPECT_EQ(list.addChild(&child), 0);
        ASSERT_EQ(ixAppend(list.mChildren, &child, "test", __LINE__), 1);
        Marshaller marshaller;
        ClearLog();
        EXPECT_EQ(marshaller.AddListElementToXml(&list), 1);
        EXPECT_STREQ(marshaller.Text(), "\n<list></list>");
        Strings expected = {"2 <XML Module>: AddListElementToXml"};
        expected.insert(expected.end(), c.lines.begin(), c.lines.end());
        EXPECT_EQ(NewLinesOf("XMLResourceList"), expected);
        list.mChildren->Remove(&child);
    }
}

// Whatever an application puts into a list, the writers go on or fail; none of them crashes.
TEST_F(ListsTest, ForeignEntriesAreWrittenAsIfTheyWereMissing) {
    struct Named : ix_string {
        const char* ClassName() const override { return mValue; }
    };
    const auto foreign = [](const char* className) -> XMLElement* {
        auto* const element = ixNew<Named>(kSource);
        EXPECT_EQ(element->setValueValue(className), 1);
        return element;
    };
    // NULL, an object of another class, one without a class name, and one that only bears the right one.
    for (int kind = 0; kind < 4; ++kind) {
        SCOPED_TRACE(kind);
        const auto entry = [&](const char* right) {
            const char* const names[] = {nullptr, "ix_string", nullptr, right};
            return kind != 0 ? foreign(names[kind]) : nullptr;
        };
        const OwnedElement lists(Decode(IX_XML_SCHEMA_RESOURCE_LISTS, "<resource-lists><list/></resource-lists>"));
        IxSingleElementList* const outer = lists.as<ix_resource_lists>()->mListList;
        auto* const list = static_cast<ix_listType*>(outer->GetKeyAtIndex(0));
        ASSERT_EQ(list->addChild(m_binder.CreateExternalType()), 1);
        ASSERT_EQ(list->mChildren->Add(entry("ix_entryType")), 1U);
        ASSERT_EQ(outer->Add(entry("ix_listType")), 1U);
        ClearLog();
        const std::string text = Write(IX_XML_SCHEMA_RESOURCE_LISTS, lists.get());
        EXPECT_EQ(text.substr(text.find("\n<list")), "\n<list>\n<external></external></list></resource-lists>");
        EXPECT_TRUE(Logged("<XML Module>: AddResource_listsElementToXml tempNum: 1 "));
        const OwnedElement services(
            Decode(IX_XML_SCHEMA_RLS_SERVICES,
                   "<rls-services><service uri=\"u\"><packages><package/></packages></service></rls-services>"));
        IxSingleElementList* const all = services.as<ix_rls_services>()->mServiceList;
        auto* const service = static_cast<ix_ns_rls_services_serviceType*>(all->GetKeyAtIndex(0));
        ASSERT_EQ(all->Add(entry("ix_ns_rls_services_serviceType")), 1U);
        ClearLog();
        EXPECT_EQ(Write(IX_XML_SCHEMA_RLS_SERVICES, services.get()), "(null)");
        EXPECT_TRUE(Logged("<XML Module>: AddServiceElementToXml XML Failed!"));
        ASSERT_EQ(service->mPackages->mPackageList->Add(entry("ix_ns_rls_services_packageType")), 1U);
        ClearLog();
        EXPECT_EQ(Write(IX_XML_SCHEMA_RLS_SERVICES, services.get()), "(null)");
        EXPECT_TRUE(Logged("<XML Module>: AddPackageElementToXml XML Failed!"));
        EXPECT_TRUE(Logged("<XML Module>: AddPackagesElementToXml XML Failed!"));
    }
}

TEST_F(ListsTest, ListsPassToTheElementAndReplaceTheEarlierOne) {
    const OwnedElement owner(m_binder.CreateListType());
    auto* const list = owner.as<ix_listType>();
    for (const char* const uri : {"sip:first@example.net", "sip:second@example.net"}) {
        ix_entryType* const entry = m_binder.CreateEntryType();
        ASSERT_EQ(entry->setUriValue(uri), 1);
        IxSingleElementList* children = nullptr;
        ASSERT_EQ(ixAppend(children, entry, "test", __LINE__), 1);
        EXPECT_EQ(list->setChildrenValue(children), 1);
        IxSingleElementList* others = nullptr;
        ASSERT_EQ(ixAppend(others, m_binder.CreateRootElement(), "test", __LINE__), 1);
        EXPECT_EQ(list->setAnyElementListValue(others), 1);
        IxSingleElementList* pairs = nullptr;
        ASSERT_EQ(ixAppend(pairs, ixCreatePair("u", uri, "test", __LINE__), "test", __LINE__), 1);
        EXPECT_EQ(list->setAnyAttributeValue(pairs), 1);
    }
    EXPECT_EQ(TreeOf(list).dump(),
              "{\"class\":\"ix_listType\",\"attributes\":[{\"name\":\"u\",\"value\":\"sip:second@example.net\"}],"
              "\"children\":[{\"class\":\"ix_entryType\",\"uri\":\"sip:second@example.net\"}],"
              "\"any\":[{\"class\":\"ix_resource_lists\"}]}");
    // What cannot be kept stays with the caller.
    EXPECT_EQ(list->addChild(nullptr), 0);
    EXPECT_EQ(list->addAnyElement(nullptr), 0);
    EXPECT_EQ(list->addAnyAttribute(nullptr), 0);
    ix_resource_lists root;
    EXPECT_EQ(root.addList(nullptr), 0);
    // A known name is refused with an object of another class.
    ix_resource_lists other;
    for (const char* const known : {"list", "entry", "entry-ref", "external", "display-name"}) {
        std::string name = known;
        EXPECT_EQ(list->ProcessUnMarshall(name.data(), nullptr, &other), 0) << known;
        EXPECT_EQ(root.ProcessUnMarshall(name.data(), nullptr, &other), 0) << known;
    }
}

TEST_F(ListsTest, TheSampleBuilderShowsEveryElement) {
    const std::string expected =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<resource-lists  xmlns=\"urn:ietf:params:xml:ns:resource-lists\"  "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"  xmlns:cp=\"urn:ietf:params:xml:ns:copycontrol\">\n"
        "<list  name=\"friends\">\n<display-name>Friends</display-name>\n"
        "<entry  uri=\"sip:alice@example.net\"  cp:copyControl=\"to\">\n<display-name>Alice</display-name></entry>\n"
        "<list  name=\"family\">\n"
        "<entry-ref  ref=\"resource-lists/users/sip:bob@example.net/index\"></entry-ref></list>\n"
        "<external  anchor=\"http://xcap.example.org/lists/club\">\n<display-name>Club</display-name></external>"
        "</list></resource-lists>";
    unsigned long failing = 1;
    for (bool reached = true; reached; ++failing) {
        ixDplHostFailAllocation(failing);
        char* const text = TestResource_listsMarshall();
        reached = ixDplHostAllocations() >= failing;
        ixDplHostStopCounting();
        EXPECT_EQ(text == nullptr, reached) << failing;
        EXPECT_TRUE(text == nullptr || text == expected) << text;
        FreeElement(text);
        EXPECT_EQ(ixDplHostLedger().liveObjects, 0U) << failing;
    }
    EXPECT_GT(failing, 30U);
}

TEST_F(ListsTest, AServiceWithoutUriFailsTheDocument) {
    const OwnedElement root(
        Decode(IX_XML_SCHEMA_RLS_SERVICES,
               "<rls-services><service uri=\"u\"><packages><package>p</package></packages></service>"
               "<service x=\"y\"><resource-list>r</resource-list></service></rls-services>"));
    RlsServicesMarshaller marshaller;
    ClearLog();
    EXPECT_EQ(marshaller.Marshall(root.get()), nullptr);
    // Required: the packages are announced as a service.
    Strings expected = {"3 <XML Module>: RlsServicesMarshaller :: Marshall",
                        "2 <XML Module>: AddRlsServicesElementToXml",
                        "2 <XML Module>: AddServiceElementToXml",
                        "2 <XML Module>: AddServiceElementToXml",
                        "2 <XML Module>: AddPackageElementToXml",
                        "2 <XML Module>: AddServiceElementToXml",
                        "4 <XML Module>: AddServiceElementToXml Uri mandatory attribute",
                        "2 <XML Module>: AddServiceElementToXml XML Failed!",
                        "2 <XML Module>: RlsServicesMarshaller XML Failed!"};
    EXPECT_EQ(NewLinesOf("XMLRlsServices"), expected);
    RlsServicesDataBinder binder;
    const OwnedElement built(binder.CreateRootElement());
    const std::string start =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<rls-services  xmlns=\"urn:ietf:params:xml:ns:rls-services\">";
    EXPECT_EQ(marshaller.Marshall(built.get()), start + "</rls-services>");
    ix_ns_rls_services_serviceType* const service = binder.CreateServiceElement();
    ASSERT_EQ(built.as<ix_rls_services>()->addService(service), 1);
    ASSERT_EQ(service->setUriValue("u"), 1);
    ASSERT_EQ(service->setListValue(m_binder.CreateListType()), 1);
    ASSERT_EQ(service->setPackagesValue(binder.CreatePackagesElement()), 1);
    ASSERT_EQ(service->mPackages->addPackage(binder.CreatePackageElement()), 1);
    ClearLog();
    const std::string text = start +
                             "\n<service  uri=\"u\">\n<packages>\n<package></package></packages></service>"
                             "</rls-services>";
    EXPECT_EQ(marshaller.Marshall(built.get()), text);
    expected = {"3 <XML Module>: RlsServicesMarshaller :: Marshall",
                "3 <XML Module>: RlsServicesMarshaller :: Marshall: Deleting mRlsServicesXml",
                "2 <XML Module>: AddRlsServicesElementToXml",
                "2 <XML Module>: AddServiceElementToXml",
                "2 <XML Module>: AddServiceElementToXml",
                "2 <XML Module>: AddPackageElementToXml",
                "2 <XML Module>: RlsServicesMarshaller XML " + text};
    EXPECT_EQ(NewLinesOf("XMLRlsServices"), expected);
    EXPECT_EQ(marshaller.Marshall(nullptr), nullptr);
    EXPECT_TRUE(Log().empty());
}

TEST_F(ListsTest, AListTellsWhatItLacks) {
    ListDataBinder binder;
    const OwnedElement root(binder.CreateRootElement());
    auto* const list = root.as<ix_list>();
    ListMarshaller marshaller;
    const std::string resourceLine = "2 <XML Module>: AddResourceElementToXml";
    const std::string instanceLine = "2 <XML Module>: AddInstanceElementToXml";
    const std::string resourceFailed = "2 <XML Module>: AddResourceElementToXml XML Failed!";
    const std::string instanceFailed = "2 <XML Module>: AddInstanceElementToXml XML Failed!";
    ix_resource* const resource = binder.CreateResourceElement();
    ix_instance* const instance = binder.CreateInstanceElement();
    ASSERT_EQ(list->addName(binder.CreateNameElement()), 1);
    ASSERT_EQ(list->addResource(resource), 1);
    ASSERT_EQ(resource->addInstance(instance), 1);
    // Each attempt fails further on, and then the missing attribute is set.
    const struct {
        Strings lines;
        int (*repair)(ix_list& list, ix_resource& resource, ix_instance& instance);
    } attempts[] = {
        {{"4 <XML Module>: AddListElementToXml Uri mandatory attribute"},
         [](ix_list& l, ix_resource&, ix_instance&) { return l.setUriValue("l"); }},
        {{"2 <XML Module>: AddNameElementToXml", resourceLine,
          "4 <XML Module>: AddResourceElementToXml Uri mandatory attribute", resourceFailed},
         [](ix_list&, ix_resource& r, ix_instance&) { return r.setUriValue("r"); }},
        {{"2 <XML Module>: AddNameElementToXml", resourceLine, instanceLine,
          "4 <XML Module>: AddInstanceElementToXml Id mandatory attribute", instanceFailed, resourceFailed},
         [](ix_list&, ix_resource&, ix_instance& i) { return i.setIdValue("i"); }},
        {{"2 <XML Module>: AddNameElementToXml", resourceLine, instanceLine,
          "4 <XML Module>: AddInstanceElementToXml state mandatory attribute", instanceFailed, resourceFailed},
         [](ix_list&, ix_resource&, ix_instance& i) { return i.setStateValue(7); }},
        {{"2 <XML Module>: AddNameElementToXml", resourceLine, instanceLine,
          "4 <XML Module>: AddInstanceElementToXml state mandatory attribute", instanceFailed, resourceFailed},
         [](ix_list&, ix_resource&, ix_instance& i) { return i.setStateValue(IX_RLMI_INSTANCE_PENDING); }},
    };
    for (const auto& attempt : attempts) {
        ClearLog();
        EXPECT_EQ(marshaller.Marshall(list), nullptr);
        Strings expected = {"3 <XML Module>: ListMarshaller :: Marshall", "2 <XML Module>: AddListElementToXml"};
        expected.insert(expected.end(), attempt.lines.begin(), attempt.lines.end());
        expected.push_back("2 <XML Module>: ListMarshaller XML Failed!");
        EXPECT_EQ(NewLinesOf("XMLRlmi"), expected);
        ASSERT_EQ(attempt.repair(*list, *resource, *instance), 1);
    }
    const auto text = [](const std::string& xmlns, const std::string& fullState) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<list " + xmlns +
               " uri=\"l\"  version=\"0\"  fullState=\"" + fullState +
               "\">\n<name></name>\n<resource  uri=\"r\">\n<instance  id=\"i\"  state=\"pending\"></instance>" +
               "</resource></list>";
    };
    const std::string xmlns = " xmlns=\"urn:ietf:params:xml:ns:rlmi\" ";
    EXPECT_EQ(marshaller.Marshall(list), text(xmlns, "false"));
    // Required: a cid is written as a second declaration of the namespace. A flag is on for exactly 1.
    ASSERT_EQ(list->setCidValue("c"), 1);
    ASSERT_EQ(list->setFullStateValue(2), 1);
    EXPECT_EQ(marshaller.Marshall(list), text(xmlns + xmlns, "false"));
    EXPECT_TRUE(Logged("<XML Module>: ListMarshaller :: Marshall: Deleting mListXml"));
    ASSERT_EQ(list->setFullStateValue(1), 1);
    EXPECT_EQ(marshaller.Marshall(list), text(xmlns + xmlns, "true"));
    EXPECT_TRUE(Logged("<XML Module>: ListMarshaller XML " + text(xmlns + xmlns, "true")));
}

}  // namespace
