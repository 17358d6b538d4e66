// What the samples of the XCAP error and the XCAP directory do not show.
#include <cctype>

#include "FamilyTest.h"
#include "XMLXcapDirectory.h"
#include "XMLXcapError.h"
#include "XcapDirectory.h"
#include "XcapError.h"

namespace {

const std::string kErrorStart =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xcap-error  xmlns=\"urn:ietf:params:xml:ns:xcap-error\"  "
    "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"  "
    "xsi:schemaLocation=\"urn:ietf:params:xml:ns:xcap-error\">";
const std::string kErrorEnd = "</xcap-error>";
const std::string kDirectoryStart = "<xcap-directory  xmlns=\"urn:oma:xml:xdm:xcap-directory\">";
const std::string kDirectoryEnd = "</xcap-directory>";

class XcapTest : public FamilyTest {
  protected:
    /// Level and text, without "<XML Module>: ", of the lines that a binding file has logged since the last call.
    Strings Said(const std::string& file) {
        const std::string mark = "<XML Module>: ";
        for (const LogLine& line : LogOf(file)) EXPECT_EQ(line.code, 6070);
        Strings lines = NewLinesOf(file);
        for (std::string& line : lines) {
            EXPECT_EQ(line.find(mark), 2U) << line;
            line.erase(2, mark.size());
        }
        return lines;
    }
};

class XcapErrorTest : public XcapTest {};

template <auto create>
XMLElement* WithPhrase(XcapErrorDataBinder& binder) {
    auto* const condition = (binder.*create)();
    condition->setPhraseValue("\"p\"");
    return condition;
}

const struct {
    std::string element;
    const char* typeName;
    XMLElement* (*create)(XcapErrorDataBinder& binder);
} kConditions[] = {
    {"schema-validation-error", "SchemaValidationError",
     WithPhrase<&XcapErrorDataBinder::CreateSchema_validation_errorElement>},
    {"not-xml-frag", "NotXmlFrag", WithPhrase<&XcapErrorDataBinder::CreateNot_xml_fragElement>},
    {"no-parent", "NoParent", WithPhrase<&XcapErrorDataBinder::CreateNo_parentElement>},
    {"cannot-insert", "CannotInsert", WithPhrase<&XcapErrorDataBinder::CreateCannot_insertElement>},
    {"not-xml-att-value", "NotXmlAttValue", WithPhrase<&XcapErrorDataBinder::CreateNot_xml_att_valueElement>},
    {"uniqueness-failure", "UniquenessFailure", WithPhrase<&XcapErrorDataBinder::CreateUniqueness_failureElement>},
    {"not-well-formed", "NotWellFormed", WithPhrase<&XcapErrorDataBinder::CreateNot_well_formedElement>},
    {"constraint-failure", "ConstraintFailure", WithPhrase<&XcapErrorDataBinder::CreateConstraint_failureElement>},
    {"cannot-delete", "CannotDelete", WithPhrase<&XcapErrorDataBinder::CreateCannot_deleteElement>},
    {"not-utf-8", "NotUtf8", WithPhrase<&XcapErrorDataBinder::CreateNot_utf_8Element>},
    {"extension", "Extension",
     [](XcapErrorDataBinder& binder) -> XMLElement* { return binder.CreateExtensionElement(); }},
};

TEST_F(XcapErrorTest, EveryConditionIsBuiltWrittenAndReadAlike) {
    XcapErrorDataBinder binder;
    for (const auto& c : kConditions) {
        SCOPED_TRACE(c.element);
        const bool isExtension = c.element == "extension";
        std::string name = c.element;
        for (char& letter : name) letter = letter == '-' ? '_' : letter;
        const OwnedElement root(binder.CreateRootElement());
        root.as<ix_xcap_error>()->setErrorValue(c.create(binder));
        EXPECT_EQ(root.as<ix_xcap_error>()->mError->ClassName(), "ix_" + name);
        EXPECT_STREQ(root.as<ix_xcap_error>()->mError->TypeName(), c.typeName);
        const std::string phrase = isExtension ? "" : "  phrase=\"&quot;p&quot;\"";
        const std::string written = kErrorStart + "\n<" + c.element + phrase + "></" + c.element + ">" + kErrorEnd;
        ClearLog();
        EXPECT_EQ(Write(IX_XML_SCHEMA_XCAP_ERROR, root.get()), written);
        name[0] = static_cast<char>(std::toupper(name[0]));
        const Strings lines = {"3 Xcap_ErrorMarshall :: Marshall", "2 AddXcap_errorElementToXmlErrorElementToXml",
                               (isExtension ? "2" : "3") + (" Xcap_ErrorMarshall::Add" + name) + "ElementToXml",
                               "2 Xcap_ErrorMarshall XML " + written};
        EXPECT_EQ(Said("XMLXcapError"), lines);
        const OwnedElement again(Decode(IX_XML_SCHEMA_XCAP_ERROR, written));
        EXPECT_EQ(TreeOf(again.get()), TreeOf(root.get()));
        // Without a phrase the start tag is a plain one.
        EXPECT_EQ(Convert(IX_XML_SCHEMA_XCAP_ERROR, "<xcap-error><" + c.element + "/></xcap-error>"),
                  kErrorStart + "\n<" + c.element + "></" + c.element + ">" + kErrorEnd);
    }
}

TEST_F(XcapErrorTest, ARootIsWrittenWithoutACondition) {
    XcapErrorDataBinder binder;
    const OwnedElement root(binder.CreateRootElement());
    EXPECT_EQ(Write(IX_XML_SCHEMA_XCAP_ERROR, root.get()), kErrorStart + kErrorEnd);
    // An object that is no condition is kept and left out.
    root.as<ix_xcap_error>()->setErrorValue(binder.CreateNo_parentElement());
    root.as<ix_xcap_error>()->setErrorValue(binder.CreateExistsElement());
    EXPECT_EQ(Write(IX_XML_SCHEMA_XCAP_ERROR, root.get()), kErrorStart + kErrorEnd);
}

TEST_F(XcapErrorTest, EveryValueInUseIsWrittenAndAMissingOneLogged) {
    XcapErrorDataBinder binder;
    ix_xcap_error root;
    ix_uniqueness_failure* const failure = binder.CreateUniqueness_failureElement();
    root.setErrorValue(failure);
    ix_exists* const first = binder.CreateExistsElement();
    first->setFieldValue("a");
    first->setAltValueListValue(binder.CreateList());
    first->addAltValue("x");
    first->addAltValue("y");
    EXPECT_EQ(first->addAltValue(nullptr), 0);
    failure->setExistsListValue(binder.CreateList());
    failure->addExists(first);
    failure->mExistsList->Add(nullptr);
    failure->mExistsList->Add(binder.CreateNo_parentElement());
    EXPECT_EQ(failure->addExists(nullptr), 0);
    failure->addExists(binder.CreateExistsElement());
    ClearLog();
    const std::string written = Write(IX_XML_SCHEMA_XCAP_ERROR, &root);
    EXPECT_EQ(written, kErrorStart +
                           "\n<uniqueness-failure>\n<exists  field=\"a\">\n<alt-value>x</alt-value>\n"
                           "<alt-value>y</alt-value></exists>\n<exists></exists></uniqueness-failure>" +
                           kErrorEnd);
    const Strings lines = {"3 Xcap_ErrorMarshall :: Marshall",
                           "2 AddXcap_errorElementToXmlErrorElementToXml",
                           "3 Xcap_ErrorMarshall::AddUniqueness_failureElementToXml",
                           "2 Xcap_ErrorMarshall::AddExistsElementToXml",
                           "2 Xcap_ErrorMarshall::AddExistsElementToXml",
                           "2 AddExistsElementToXml tempNum: 1 ",
                           "2 Xcap_ErrorMarshall::AddExistsElementToXml",
                           "2 AddExistsElementToXml tempNum: 2 ",
                           "2 Xcap_ErrorMarshall::AddExistsElementToXml",
                           "2 Xcap_ErrorMarshall XML " + written};
    EXPECT_EQ(Said("XMLXcapError"), lines);
    // A list that is set anew takes the place of the earlier one, empty or not.
    first->setAltValueListValue(binder.CreateList());
    failure->setExistsListValue(nullptr);
    EXPECT_EQ(Write(IX_XML_SCHEMA_XCAP_ERROR, &root),
              kErrorStart + "\n<uniqueness-failure></uniqueness-failure>" + kErrorEnd);
}

TEST_F(XcapErrorTest, WithoutMemoryAFieldStaysAsItWas) {
    ix_no_parent noParent;
    ASSERT_EQ(noParent.setAncestorValue("kept"), 1);
    ix_exists exists;
    ix_uniqueness_failure failure;
    // The copy, the list, its node.
    for (unsigned long failing = 1; failing <= 3; ++failing) {
        ixDplHostFailAllocation(failing, 3);
        EXPECT_EQ(exists.addAltValue("x"), 0) << failing;
    }
    ixDplHostFailAllocation(1, 3);
    EXPECT_EQ(noParent.setAncestorValue("other"), 0);
    EXPECT_EQ(failure.addExists(&exists), 0);
    ixDplHostStopCounting();
    EXPECT_STREQ(noParent.mAncestor, "kept");
    EXPECT_EQ(exists.addAltValue("x"), 1);
    EXPECT_EQ(exists.mAltValueList->GetCount(), 1);
}

TEST_F(XcapErrorTest, ContentsOfAnExtensionAreNotKeptHoweverDeep) {
    std::string text;
    for (int i = 0; i < 150; ++i) text += "<extension><exists field=\"f\"><no-parent>";
    for (int i = 0; i < 150; ++i) text += "<ancestor>a</ancestor></no-parent></exists></extension>";
    EXPECT_EQ(Convert(IX_XML_SCHEMA_XCAP_ERROR, "<xcap-error>" + text + "</xcap-error>"),
              kErrorStart + "\n<extension></extension>" + kErrorEnd);
    EXPECT_TRUE(Logged("stack overflow\n"));
}

class XcapDirectoryTest : public XcapTest {};

TEST_F(XcapDirectoryTest, AnEntryWithoutUriOrEntityTagFailsTheDocument) {
    const Strings start = {"3 XcapDirectoryMarshaller :: Marshall", "2 AddXcapDirectoryElementToXml",
                           "2 AddFolderElementToXml", "2 AddEntryElementToXml"};
    const struct {
        const char* entry;
        Strings lines;
    } cases[] = {{"<entry etag=\"e\" size=\"1\"/>", {"4 AddEntryElementToXml URI mandatory attribute"}},
                 {"<entry uri=\"u\" size=\"1\"/>", {"4 AddEntryElementToXml ETAG mandatory attribute"}},
                 {"<entry uri=\"u\" etag=\"e\"/><entry URI=\"u\"/>",
                  {"2 AddEntryElementToXml", "4 AddEntryElementToXml URI mandatory attribute"}}};
    for (const auto& c : cases) {
        ClearLog();
        EXPECT_EQ(Convert(IX_XML_SCHEMA_XCAP_DIRECTORY, "<xcap-directory><folder auid=\"a\">" + std::string(c.entry) +
                                                            "</folder><folder auid=\"b\"/></xcap-directory>"),
                  "(null)");
        Strings expected = start;
        expected.insert(expected.end(), c.lines.begin(), c.lines.end());
        for (const char* const line : {"2 AddEntryElementToXml XML Failed!", "2 AddFolderElementToXml XML Failed!",
                                       "2 XcapDirectoryMarshaller XML Failed!"}) {
            expected.emplace_back(line);
        }
        EXPECT_EQ(Said("XMLXcapDirectory"), expected);
    }
}

TEST_F(XcapDirectoryTest, ABuiltDirectoryIsWritten) {
    XcapDirectoryDataBinder binder;
    const OwnedElement root(binder.CreateRootElement());
    EXPECT_EQ(Write(IX_XML_SCHEMA_XCAP_DIRECTORY, root.get()), kDirectoryStart + kDirectoryEnd);
    ix_folder* const folder = binder.CreateFolderElement();
    root.as<ix_xcap_directory>()->addFolder(folder);
    ClearLog();
    const std::string written = kDirectoryStart + "\n<folder  auid=\"\"></folder>" + kDirectoryEnd;
    EXPECT_EQ(Write(IX_XML_SCHEMA_XCAP_DIRECTORY, root.get()), written);
    const Strings lines = {"3 XcapDirectoryMarshaller :: Marshall", "2 AddXcapDirectoryElementToXml",
                           "2 AddFolderElementToXml", "4 AddFolderElementToXml AUID mandatory attribute",
                           "2 XcapDirectoryMarshaller XML " + written};
    EXPECT_EQ(Said("XMLXcapDirectory"), lines);
    ix_entry* const entry = binder.CreateEntryElement();
    folder->addEntry(entry);
    folder->setAuidValue("a");
    entry->setUriValue("u");
    entry->setLastModifiedValue("t");
    entry->setSizeValue(12);
    entry->setEtagValue("e");
    EXPECT_EQ(Write(IX_XML_SCHEMA_XCAP_DIRECTORY, root.get()),
              kDirectoryStart +
                  "\n<folder  auid=\"a\">\n<entry  uri=\"u\"  last-modified=\"t\"  size=\"12\"  etag=\"e\"/></folder>" +
                  kDirectoryEnd);
    folder->setEntryListValue(nullptr);
    folder->setErrorCodeValue("404");
    EXPECT_EQ(Write(IX_XML_SCHEMA_XCAP_DIRECTORY, root.get()),
              kDirectoryStart + "\n<folder  auid=\"a\">\n<error-code>404</error-code></folder>" + kDirectoryEnd);
    root.as<ix_xcap_directory>()->setFolderListValue(nullptr);
    EXPECT_EQ(Write(IX_XML_SCHEMA_XCAP_DIRECTORY, root.get()), kDirectoryStart + kDirectoryEnd);
}

// Both families.
TEST_F(XcapTest, HooksRefuseWhatTheyCannotKeep) {
    ix_xcap_error error;
    ix_no_parent noParent;
    ix_uniqueness_failure failure;
    ix_exists exists;
    ix_xcap_directory directory;
    ix_folder folder;
    ix_entry entry;
    ExpectAnswers({{error, "no-parent", nullptr, 0},
                   {error, "no-parent", &exists, 0},
                   {error, "exists", &exists, 1},
                   {error, "error-element", nullptr, 1},
                   {noParent, "/ancestor", nullptr, 1, "kept"},
                   {noParent, "/ancestor", &entry, 0, "other"},
                   {noParent, "/ancestor", nullptr, 1},
                   {noParent, "ancestor", nullptr, 1, "other"},
                   {failure, "exists", nullptr, 0},
                   {failure, "exists", &noParent, 0},
                   {failure, "no-parent", &noParent, 1},
                   {exists, "/alt-value", &entry, 0, "other"},
                   {exists, "/alt-value", nullptr, 1},
                   {exists, "/other", nullptr, 1, "other"},
                   {directory, "folder", nullptr, 0},
                   {directory, "folder", &entry, 0},
                   {directory, "entry", &entry, 1},
                   {folder, "entry", nullptr, 0},
                   {folder, "entry", &directory, 0},
                   {folder, "folder", &folder, 1},
                   {folder, "/error-code", nullptr, 1, "kept"},
                   {folder, "/error-code", nullptr, 1},
                   {folder, "/error-code", &entry, 0, "other"},
                   {folder, "error-code", nullptr, 1, "other"},
                   {folder, "error-code", &entry, 1, "other"}});
    ix_AttributeValuePair pair;
    const struct {
        XMLElement& to;
        const char* name;
        int answerWithPair;
    } attributes[] = {
        {noParent, "phrase", 0}, {exists, "field", 0},        {folder, "auid", 1}, {entry, "uri", 0},
        {entry, "etag", 0},      {entry, "last-modified", 0}, {entry, "size", 0},
    };
    for (const auto& c : attributes) {
        SCOPED_TRACE(c.name);
        char* const name = const_cast<char*>(c.name);
        char value[] = "17";
        char other[] = "18";
        EXPECT_EQ(c.to.ProcessUnMarshallAttribute(name, value, nullptr), 1);
        EXPECT_EQ(c.to.ProcessUnMarshallAttribute(name, nullptr, nullptr), 1);
        EXPECT_EQ(c.to.ProcessUnMarshallAttribute(name, other, &pair), c.answerWithPair);
        char unknown[] = "unknown";
        EXPECT_EQ(c.to.ProcessUnMarshallAttribute(unknown, other, nullptr), 1);
    }
    nlohmann::ordered_json trees = nlohmann::ordered_json::array();
    for (const XMLElement* const element :
         std::initializer_list<XMLElement*>{&error, &noParent, &failure, &exists, &directory, &folder, &entry}) {
        trees.push_back(TreeOf(element));
    }
    EXPECT_EQ(trees, nlohmann::ordered_json::parse(R"([
        {"class": "ix_xcap_error"}, {"class": "ix_no_parent", "phrase": "17", "ancestor": "kept"},
        {"class": "ix_uniqueness_failure"}, {"class": "ix_exists", "field": "17"}, {"class": "ix_xcap_directory"},
        {"class": "ix_folder", "auid": "17", "error-code": "kept"},
        {"class": "ix_entry", "uri": "17", "last-modified": "17", "size": 17, "etag": "17"}])"));
}

TEST_F(XcapTest, BadInputGivesAClearAnswer) {
    const struct {
        eXMLSchemaID id;
        const char* file;
        std::string root;
        const char* marshaller;
        Strings noRoot;
        const char* kept;
    } cases[] = {
        {IX_XML_SCHEMA_XCAP_ERROR,
         "XMLXcapError",
         "xcap-error",
         "Xcap_ErrorMarshall",
         {"3 Xcap_ErrorMarshall :: Marshall: Received Object is NULL"},
         "mXcapErrorXml"},
        {IX_XML_SCHEMA_XCAP_DIRECTORY,
         "XMLXcapDirectory",
         "xcap-directory",
         "XcapDirectoryMarshaller",
         {},
         "mXcapDirectoryXml"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.root);
        EXPECT_EQ(Decode(c.id, ""), nullptr);
        EXPECT_EQ(Decode(c.id, "<no-parent/>"), nullptr);
        EXPECT_EQ(Decode(c.id, "<folder><entry/></folder>"), nullptr);
        EXPECT_EQ(Decode(c.id, "<" + c.root + "s/>"), nullptr);
        EXPECT_EQ(Decode(c.id, "<" + c.root + "></other>"), nullptr);
        ExpectLeftBehind(1);
        const OwnedContext context(c.id);
        XMLMarshaller* const marshaller = context->createMarshaller();
        const OwnedElement root(context->createBinderFactory()->CreateRootElement());
        ClearLog();
        EXPECT_EQ(marshaller->Marshall(nullptr), nullptr);
        EXPECT_EQ(Said(c.file), c.noRoot);
        EXPECT_NE(marshaller->Marshall(root.get()), nullptr);
        Said(c.file);
        ix_string other;
        EXPECT_EQ(marshaller->Marshall(&other), nullptr);
        const std::string name = c.marshaller;
        const Strings lines = {"3 " + name + " :: Marshall", "3 " + name + " :: Marshall: Deleting " + c.kept,
                               "2 " + name + " XML Failed!"};
        EXPECT_EQ(Said(c.file), lines);
        ixDplHostFailAllocation(1);
        EXPECT_EQ(context->createUnMarshaller(), nullptr);
    }
}

TEST_F(XcapTest, DecodersRefuseEventsWithoutNames) {
    XMLXcapErrorDecoder error;
    XMLXcapDirectoryDecoder directory;
    const struct {
        XmlDecoderSchema& decoder;
        std::string name;
    } cases[] = {{error, "XMLXcapErrorDecoder"}, {directory, "XMLXcapDirectoryDecoder"}};
    for (const auto& c : cases) {
        const std::string prefix = "<XML Module>" + c.name + " :: ";
        const std::string noMemory = c.name + " :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory";
        const Strings expected = {prefix + "ProcessElement: n_strElement is NULL",
                                  prefix + "ProcessAttribute: n_strElement is NULL",
                                  noMemory,
                                  prefix + "ProcessElement: m_strDup or m_PassName is NULL",
                                  noMemory,
                                  prefix + "ProcessAttribute: m_strDup is NULL"};
        EXPECT_EQ(RefusedEvents(c.decoder), expected);
    }
}

}  // namespace
