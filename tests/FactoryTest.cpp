// The registry of schemas, and what every schema offers beside reading and writing.
#include <set>
#include <sstream>
#include <string>

#include "Classes.h"
#include "Scenario.h"
#include "XMLConferenceInfo.h"
#include "XMLFile.h"
#include "XMLIsComposing.h"
#include "XMLResourceList.h"

namespace {

class FactoryTest : public XmlTest {};

TEST_F(FactoryTest, KnowsEverySchemaAndAnswersNullForTheRest) {
    std::set<std::string> names;
    for (int id = -1; id <= kXmlSchemaCount; ++id) {
        const XmlOwnedContext context(XMLFactory::newInstance(static_cast<eXMLSchemaID>(id)));
        const XmlSchemaInfo* const info = XMLFactory::SchemaInfo(id);
        const bool reserved = id < 0 || id == 6 || id == 8 || id >= kXmlSchemaCount;
        ASSERT_EQ(info == nullptr, reserved) << id;
        EXPECT_EQ(context.get() == nullptr, reserved) << id;
        EXPECT_TRUE(info == nullptr || (info->id == id && names.insert(info->name).second)) << id;
    }
    EXPECT_EQ(names.size(), 26U);
    XMLFactory::deleteContext(nullptr);
    XMLFactory::DeleteElement(nullptr);
}

TEST_F(FactoryTest, AContextDeletesWhatItCreatedButNoTree) {
    XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    const XmlOwned<> root(context->createBinderFactory()->CreateRootElement());
    context->createMarshaller();
    context->createUnMarshaller();
    XMLFactory::deleteContext(context);
    EXPECT_EQ(ixDplHostLedger().liveObjects, 1U);
    EXPECT_STREQ(root.get()->ClassName(), "communication-waiting");
}

TEST_F(FactoryTest, TheReadmeShowsTheExampleThatIsBuilt) {
    const std::string readme = ReadFile(PROJECT_DIR "/README.md");
    EXPECT_NE(readme.find("```cpp\n" + ReadFile(PROJECT_DIR "/docs/example.cpp") + "```\n"), std::string::npos);
}

// Three documents are built by functions of their own; without memory, none.
TEST_F(FactoryTest, BuildsItsExamplesWholeOrNotAtAll) {
    const struct {
        const char* name;
        char* (*build)();
    } rows[] = {{"is-composing", &TestIsComposingMarshall},
                {"conference-info", &TestConference_infoMarshall},
                {"resource-lists", &TestResource_listsMarshall}};
    for (const auto& row : rows) {
        bool reached = true;
        for (unsigned long failing = 1; reached; ++failing) {
            SCOPED_TRACE(failing);
            ixDplHostFailAllocation(failing);
            char* const text = row.build();
            reached = ixDplHostAllocations() >= failing;
            ixDplHostStopCounting();
            EXPECT_EQ(text == nullptr, reached);
            if (text != nullptr)
                ExpectFile(PROJECT_DIR "/tests/expected/" + std::string(row.name) + "/example.xml", text);
            FreeElement(text);
            EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 0U);
        }
    }
}

TEST(ContentTypeTest, ParametersCaseAndBlanksDoNotCount) {
    const std::pair<const char*, int> table[] = {
        {"application/reginfo+xml", IX_XML_SCHEMA_REGINFO},
        {" \tApplication/PIDF+XML ;charset=utf-8", IX_XML_SCHEMA_PRESENCE},
        {"message/imdn+xml\r\n", IX_XML_SCHEMA_IMDN},
        {"application/oma-directory+xml", IX_XML_SCHEMA_XCAP_DIRECTORY},
        {"application/vnd.oma.xcap-directory+xml", IX_XML_SCHEMA_XCAP_DIRECTORY},
        {"application/xcap-el+xml", -1},
        {"application/reginfo+xm", -1},
        {"application/reginfo+xml2", -1},
        {"application/reginfo+xml application/pidf+xml", -1},
        {"application/reginfo", -1},
        {";charset=utf-8", -1},
        {"", -1},
        {nullptr, -1},
    };
    for (const auto& [type, schema] : table) {
        EXPECT_EQ(XMLFactory::SchemaForContentType(type), schema) << (type != nullptr ? type : "NULL");
    }
    // No type is that of two schemas.
    for (int id = 0; id < kXmlSchemaCount; ++id) {
        const XmlSchemaInfo* const schema = XMLFactory::SchemaInfo(id);
        std::istringstream types(schema != nullptr ? schema->contentTypes : "");
        for (std::string type; types >> type;) EXPECT_EQ(XMLFactory::SchemaForContentType(type.c_str()), id) << type;
    }
}

class SchemaTest : public XmlTest, public testing::WithParamInterface<eXMLSchemaID> {};

INSTANTIATE_TEST_SUITE_P(Schemas, SchemaTest, testing::ValuesIn(AllSchemas()), SchemaName);

TEST_P(SchemaTest, HasThreeSamples) {
    const std::string folder = PROJECT_DIR "/samples/" + std::string(XMLFactory::SchemaInfo(GetParam())->name);
    EXPECT_GE(FilesBelow(folder).size(), 3U);
}

TEST_P(SchemaTest, HasAContextWithItsParts) {
    const XmlSchemaInfo& schema = *XMLFactory::SchemaInfo(GetParam());
    const XmlOwnedContext context(XMLFactory::newInstance(GetParam()));
    ixDplHostFailAllocation(1, 3);
    EXPECT_EQ(context->createUnMarshaller(), nullptr);
    EXPECT_EQ(context->createMarshaller(), nullptr);
    EXPECT_EQ(context->createBinderFactory(), nullptr);
    ixDplHostStopCounting();
    EXPECT_EQ(context->SetNamespaceBinder(nullptr) != 0, schema.takesBinder);
    EXPECT_EQ(context->createUnMarshaller()->UnMarshall(static_cast<XMLFile*>(nullptr)), nullptr);
    EXPECT_EQ(context->createMarshaller() != nullptr, schema.writes);
    XMLObjectFactory* const factory = context->createBinderFactory();
    const XmlOwned<> root(factory->CreateRootElement());
    // Which of two roots is wanted, these factories have to be told first.
    const bool isTold = GetParam() == IX_XML_SCHEMA_GRUU || GetParam() == IX_XML_SCHEMA_COMMUNICATION_BARRING;
    EXPECT_EQ(root.get() == nullptr, isTold);
    ixDplHostFailAllocation(1);
    EXPECT_EQ(factory->CreateRootElement(), nullptr);
    ixDplHostStopCounting();
}

}  // namespace
