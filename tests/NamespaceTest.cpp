#include "CommunicationWaiting.h"
#include "XMLCommunicationWaiting.h"
#include "XMLSchemaNameSpaceRetrieval.h"
#include "XmlElementSupport.h"
#include "XmlTest.h"

namespace {

constexpr char kSimservs[] = "http://uri.etsi.org/ngn/params/xml/simservs/xcap";
constexpr char kCommonPolicy[] = "urn:ietf:params:xml:ns:common-policy";
constexpr char kOmaCommonPolicy[] = "urn:oma:xml:xdm:common-policy";

/// A prefix (NULL: the default namespace) and a URI.
using Declaration = std::pair<const char*, const char*>;

struct Mapping {
    const char *tag, *mapped;
};

class NamespaceTest : public XmlTest {
  protected:
    /// Binds the declarations to a decoder, and checks what the tags become.
    static void ExpectMapped(const std::vector<Declaration>& declarations, const std::vector<Mapping>& mappings) {
        XMLCommunicationWaitingDecoder decoder;
        {
            ix_schema_namespace_retrieval binder;
            for (const Declaration& declaration : declarations) {
                binder.addNameSpaceInfo(ixCreatePair(declaration.first, declaration.second, "test"));
            }
            EXPECT_EQ(decoder.SetNameSpaceBinderInfo(&binder), 1);
        }
        for (const Mapping& mapping : mappings) {
            EXPECT_EQ(decoder.XMLChangeNamespaceTag(mapping.tag), 1);
            EXPECT_STREQ(decoder.MappedTag(), mapping.mapped) << mapping.tag;
        }
    }
};

TEST_F(NamespaceTest, WithoutABinderTagsStayAsTheyAre) {
    std::vector<Mapping> mappings;
    for (const char* tag : {"cp:rule", "/cp:rule", "ocp:rule", "ss:communication-waiting", "x:communication-waiting",
                            "rule", "/rule", "", "/", ":x", "a:b:c"}) {
        mappings.push_back({tag, tag});
    }
    ExpectMapped({}, mappings);
    ExpectMapped({{"x", "urn:unknown"}, {"cp", "urn:unknown:too"}}, mappings);
}

TEST_F(NamespaceTest, TheDocumentsPrefixesBecomeTheCanonicalOnes) {
    ExpectMapped({{"x", kSimservs}, {"common", kCommonPolicy}, {"y", "urn:unknown"}},
                 {{"x:communication-waiting", "ss:communication-waiting"},
                  {"/x:communication-waiting", "/ss:communication-waiting"},
                  {"common:rule", "cp:rule"},
                  {"/common:rule", "/cp:rule"},
                  {"x:a:b", "ss:a:b"},
                  {"x:", "ss:"},
                  {"/x:", "/ss:"},
                  // Neither part of a prefix nor more than one, and not where there is none.
                  {"xx:a", "xx:a"},
                  {"comm:a", "comm:a"},
                  {"X:a", "X:a"},
                  {":a", ":a"},
                  {"x", "x"},
                  {"y:a", "y:a"},
                  {"ss:a", "ss:a"}});
    // A document may use the schema's prefixes for other namespaces.
    ExpectMapped({{"cp", kSimservs}, {"ss", kOmaCommonPolicy}, {"ocp", kCommonPolicy}},
                 {{"cp:a", "ss:a"}, {"ss:a", "ocp:a"}, {"/ocp:a", "/cp:a"}});
}

TEST_F(NamespaceTest, TheLastDeclarationOfANamespaceCounts) {
    ExpectMapped({{"y", kSimservs}, {"z", kSimservs}}, {{"z:a", "ss:a"}, {"y:a", "y:a"}});
    // A default namespace has no prefix, so that no tag is mapped any more.
    ExpectMapped({{"y", kSimservs}, {nullptr, kSimservs}, {nullptr, nullptr}}, {{"y:a", "y:a"}, {":a", ":a"}});
}

TEST_F(NamespaceTest, ABinderWithoutNamespacesChangesNothing) {
    XMLCommunicationWaitingDecoder decoder;
    ix_schema_namespace_retrieval binder;
    ix_communication_waiting other;
    EXPECT_EQ(decoder.SetNameSpaceBinderInfo(nullptr), 1);
    EXPECT_EQ(decoder.SetNameSpaceBinderInfo(&binder), 1);
    EXPECT_EQ(decoder.SetNameSpaceBinderInfo(&other), 1);
    ix_AttributeValuePair* const pair = ixCreatePair("x", kSimservs, "test");
    binder.addNameSpaceInfo(pair);
    binder.mNameSpaceInfo->Remove(pair);
    EXPECT_EQ(decoder.SetNameSpaceBinderInfo(&binder), 1);
    EXPECT_EQ(decoder.XMLChangeNamespaceTag("x:a"), 1);
    EXPECT_STREQ(decoder.MappedTag(), "x:a");
    ixDelete(pair);
}

TEST_F(NamespaceTest, PrefixesAreRemoved) {
    const Mapping table[] = {{"ss:rule", "rule"},
                             {"/ss:rule", "/rule"},
                             {"a:b:c", "b:c"},
                             {"/a:b:c", "/b:c"},
                             {"rule", "rule"},
                             {"/rule", "/rule"},
                             {":x", "x"},
                             {"a:", ""},
                             {"/a:", "/"},
                             {"/", "/"},
                             {"", ""}};
    XMLCommunicationWaitingDecoder decoder;
    for (const Mapping& row : table) {
        EXPECT_EQ(decoder.XMLRemoveNameSpaceTag(row.tag), 1);
        EXPECT_STREQ(decoder.PassName(), row.mapped) << row.tag;
    }
}

}  // namespace
