// Bootstrapping information and RCS terms information: what the samples do not show.
#include "BootstrappingInfo.h"
#include "FamilyTest.h"
#include "RcsTermsInfo.h"
#include "XMLBootstrappingInfo.h"
#include "XMLRcsTermsInfo.h"
#include "XmlElementSupport.h"

namespace {

constexpr eXMLSchemaID kBootstrapping = IX_XML_SCHEMA_BOOTSTRAPPING_INFO;
constexpr eXMLSchemaID kTerms = IX_XML_SCHEMA_RCS_TERMS_INFO;
constexpr char kDeclaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

class BootstrappingTest : public FamilyTest {};

TEST_F(BootstrappingTest, PrefixesAreRemovedWithinSixteenBits) {
    // Required: the size of a name and two more is counted in 16 bits; what does not fit is cut off.
    const std::string longest(65533, 'n');
    const struct {
        std::string name;
        std::string local;
    } cases[] = {{"btid", "btid"},
                 {"bsf:btid", "btid"},
                 {"/bsf:btid", "/btid"},
                 {"a:b:c", "b:c"},
                 {"/", "/"},
                 {"bsf:", ""},
                 {"/bsf:", "/"},
                 {":btid", "btid"},
                 {"", ""},
                 {longest, longest},
                 {longest + "n", ""},             // room for nothing
                 {longest + "nn", ""},            // ... for the NUL
                 {"/:" + longest + "n", "/"},     // ... for "/", ":" comes behind it
                 {"/:b:" + longest + "n", "/b"},  // ... for "/:b"
                 {std::string(65540, 'p') + ":btid", "pppppppppp"}};
    XMLBootstrappingInfoDecoder decoder;
    for (const auto& c : cases) {
        ASSERT_EQ(decoder.XMLRemoveNameSpaceTag(c.name.c_str()), 1);
        EXPECT_EQ(decoder.PassName(), c.local) << c.name.size();
    }
    EXPECT_EQ(Field(kBootstrapping,
                    "<BootstrappingInfo><" + std::string(70000, 'p') + ":btid>x</" + std::string(70000, 'p') +
                        ":btid></BootstrappingInfo>",
                    "/btid"),
              "(absent)");
}

TEST_F(BootstrappingTest, DecoderSaysWhatIsMissing) {
    const std::string mark = "3 <XML Module>XMLBootstrappingInfoDecoder :: ";
    XMLBootstrappingInfoDecoder decoder;
    char root[] = "g:BootstrappingInfo";
    char attribute[] = "xmlns:g";
    std::string large(100, 'n');
    EXPECT_EQ(decoder.ProcessElement(nullptr, nullptr), -1);
    EXPECT_EQ(decoder.ProcessAttribute(nullptr, attribute, attribute), -1);
    EXPECT_EQ(decoder.ProcessAttribute(root, nullptr, attribute), -1);
    EXPECT_EQ(decoder.XMLRemoveNameSpaceTag(nullptr), 0);
    Strings lines = {mark + "ProcessElement: n_strElement is NULL", mark + "ProcessAttribute: n_strElement is NULL",
                     mark + "ProcessAttribute: n_strElement is NULL",
                     "2 XMLBootstrappingInfoDecoder :: XMLRemoveNameSpaceTag: n_strElement is NULL"};
    EXPECT_EQ(NewLinesOf("BootstrappingInfo"), lines);

    const auto fails = [](int result, int expected) {
        EXPECT_GE(ixDplHostAllocations(), 1U);
        ixDplHostStopCounting();
        EXPECT_EQ(result, expected);
    };
    ixDplHostFailAllocation(1);
    fails(decoder.ProcessElement(large.data(), nullptr), -1);
    EXPECT_EQ(Log().front().code, 6053);
    EXPECT_EQ(Log().back().code, 6070);
    ixDplHostFailAllocation(1);
    fails(decoder.ProcessAttribute(large.data(), attribute, attribute), -1);
    EXPECT_EQ(decoder.PassName(), nullptr);
    ixDplHostFailAllocation(1);
    fails(decoder.ProcessElement(root, nullptr), 0);
    EXPECT_EQ(decoder.GetSessionData(), nullptr);
    EXPECT_EQ(decoder.ProcessElement(root, nullptr), 0);
    ixDplHostFailAllocation(1);
    fails(decoder.ProcessAttribute(root, attribute, attribute), 0);
    const std::string noMemory =
        "2 XMLBootstrappingInfoDecoder :: XMLRemoveNameSpaceTag: Malloc unable to allocate memory";
    lines = {noMemory,
             mark + "ProcessElement: m_PassName is NULL",
             noMemory,
             mark + "ProcessAttribute: m_PassName is NULL",
             "3 <XML Module>: New Failed at element = \"BootstrappingInfo\"",
             "3 <XML Module>: New Failed at any attribute level with element = \"xmlns:g\""};
    EXPECT_EQ(NewLinesOf("BootstrappingInfo"), lines);
    const OwnedElement result(decoder.GetSessionData());
    EXPECT_NE(result.get(), nullptr);
}

TEST_F(BootstrappingTest, OtherElementsAreLoggedAndOtherObjectsKept) {
    const OwnedElement root(Decode(kBootstrapping, "<BootstrappingInfo><g:key a=\"1\">%s</g:key></BootstrappingInfo>"));
    const Strings lines = {"2 Cannot accommodate the element key with value (null)",
                           "2 Cannot accommodate the element /key with value %s"};
    EXPECT_EQ(NewLinesOf("XMLBootstrappingInfo"), lines);
    auto* const info = root.as<ix_bootstrappinginfo>();
    ix_string refused;
    EXPECT_EQ(Offer(*info, "/btid", "x", &refused), 0);
    EXPECT_EQ(Offer(*info, "/lifetime", "x", &refused), 0);
    ixDplHostFailAllocation(2);  // the first one is that of the child
    XMLElement* const child = ixCreateEmptyElement(nullptr, "test", 1);
    EXPECT_EQ(Offer(*info, "key", nullptr, child), 0);
    ixDplHostStopCounting();
    EXPECT_EQ(Offer(*info, "key", nullptr, child), 1);
    EXPECT_EQ(info->mAnyElementList->GetCount(), 1);
    EXPECT_EQ(Offer(*info, "/btid", "x", nullptr) + Offer(*info, "/btid", nullptr, nullptr), 2);
    EXPECT_STREQ(info->mBtid, "x");
    EXPECT_EQ(NewLinesOf("XMLBootstrappingInfo"), Strings());
    EXPECT_EQ(info->setAnyElementListValue(nullptr), 1);
}

TEST_F(BootstrappingTest, MissingTextsAreLoggedAndNoFailure) {
    const std::string mark = "<XML Module>: ";
    const std::string begin = std::string(kDeclaration) + "<BootstrappingInfo  xmlns=\"uri:3gpp-gba\">";
    const Strings noBtid = {"1 " + mark + "BootstrappingInfoElement btid not present"};
    const Strings noLifetime = {"1 " + mark + "BootstrappingInfoElement lifetime not present"};
    const Strings btid = {"2 " + mark + "AddBtidElementToXml"};
    const Strings lifetime = {"2 " + mark + "AddLifetimeElementToXml"};
    const struct {
        const char* btid;
        const char* lifetime;
        const char* content;
        Strings lines;
    } cases[] = {{nullptr, nullptr, "", {noBtid[0], noLifetime[0]}},
                 {"b", nullptr, "\n<btid>b</btid>", {btid[0], noLifetime[0]}},
                 {nullptr, "", "\n<lifetime></lifetime>", {noBtid[0], lifetime[0]}}};
    const OwnedContext context(kBootstrapping);
    XMLMarshaller* const marshaller = context->createMarshaller();
    const OwnedElement root(context->createBinderFactory()->CreateRootElement());
    auto* const info = root.as<ix_bootstrappinginfo>();
    Strings expected = {"3 " + mark + "BootstrappingInfoMarshaller :: Marshall"};
    for (const auto& c : cases) {
        EXPECT_EQ(info->setBtidValue(c.btid) + info->setLifetimeValue(c.lifetime), 2);
        const std::string text = begin + c.content + "</BootstrappingInfo>";
        EXPECT_STREQ(marshaller->Marshall(info), text.c_str());
        Strings lines = expected;
        lines.push_back("2 " + mark + "AddBootstrappingInfoElementToXml");
        lines.insert(lines.end(), c.lines.begin(), c.lines.end());
        lines.push_back("2 " + mark + "BootstrappingInfoMarshaller XML " + text);
        EXPECT_EQ(NewLinesOf("XMLBootstrappingInfo"), lines);
        if (expected.size() == 1) {
            expected.push_back("3 " + mark + "BootstrappingInfoMarshaller :: Marshall: Deleting mBootstrappingInfoXml");
        }
    }
    EXPECT_EQ(marshaller->Marshall(nullptr), nullptr);
    ix_string other;
    EXPECT_EQ(marshaller->Marshall(&other), nullptr);
    const Strings lines = {expected[0], "3 " + mark + "BootstrappingInfoMarshaller pObj is NULL",  // no root
                           expected[0], expected[1], "2 " + mark + "BootstrappingInfoMarshaller XML Failed!"};
    EXPECT_EQ(NewLinesOf("XMLBootstrappingInfo"), lines);
}

class TermsTest : public FamilyTest {};

TEST_F(TermsTest, HooksTraceThemselvesAndTakeTheirOwn) {
    const std::string root = "2 In ix_rcs_terms_info::ProcessUnMarshall";
    const std::string term = "2 In ix_ns_rcs_terms_info_term::ProcessUnMarshall";
    const OwnedElement decoded(
        Decode(kTerms,
               "<rcs-terms-info version=\"1\" a=\"\"><termsVersion version=\"2\">3</termsVersion>"
               "<term version=\"4\"><title/></term></rcs-terms-info>"));
    const Strings lines = {root + "Attribute",
                           root + "Attribute",  // version, a
                           root,
                           root + "Attribute",
                           root,  // termsVersion, version, /termsVersion
                           root,
                           term + "Attribute",  // term, version
                           term,
                           term};  // title, /title
    EXPECT_EQ(NewLinesOf("XMLRcsTermsInfo"), lines);
    EXPECT_STREQ(decoded.as<ix_rcs_terms_info>()->mVersion, "1");

    ix_rcs_terms_info info;
    ix_ns_rcs_terms_info_term entry;
    ExpectTakesItsChildOnly(info, "term");
    ExpectTakesText(info, "termsVersion", info.mTermsVersion);
    ExpectTakesText(entry, "title", entry.mTitle);
    ExpectTakesText(entry, "url", entry.mUrl);
    ix_AttributeValuePair pair;
    EXPECT_EQ(OfferAttribute(info, "version", "1"), 1);
    EXPECT_EQ(OfferAttribute(info, "version", nullptr), 1);
    EXPECT_EQ(OfferAttribute(info, "versions", "2"), 1);
    EXPECT_EQ(OfferAttribute(info, "version", "3", &pair), 0);
    EXPECT_STREQ(info.mVersion, "1");
}

TEST_F(TermsTest, AFailedTermFailsTheDocument) {
    const std::string mark = "<XML Module>: ";
    const OwnedContext context(kTerms);
    auto* const binder = static_cast<RcsTermsInfoDataBinder*>(context->createBinderFactory());
    const OwnedElement root(binder->CreateRootElement());
    auto* const info = root.as<ix_rcs_terms_info>();
    auto* const term = binder->CreateTermElement();
    EXPECT_EQ(term->setTitleValue("t"), 1);
    EXPECT_EQ(info->addTerm(term), 1);
    EXPECT_EQ(info->addTerm(binder->CreateTermElement()), 1);
    XMLMarshaller* const marshaller = context->createMarshaller();
    const std::string text =
        std::string(kDeclaration) + "<rcs-terms-info>\n<term>\n<title>t</title></term>\n<term></term></rcs-terms-info>";
    EXPECT_STREQ(marshaller->Marshall(info), text.c_str());
    Strings lines = {"3 " + mark + "RcsTermsInfoMarshaller :: Marshall", "2 " + mark + "AddRcsTermsInfoElementToXml",
                     "2 " + mark + "AddTermElementToXml", "2 " + mark + "AddTermElementToXml",
                     "2 " + mark + "RcsTermsInfoMarshaller XML " + text};
    EXPECT_EQ(NewLinesOf("XMLRcsTermsInfo"), lines);

    // A list of a caller's own may hold another element.
    EXPECT_EQ(ixAppend(info->mTerms, ixCreateEmptyElement("term", "test", 1), "test", 1), 1);
    EXPECT_EQ(marshaller->Marshall(info), nullptr);
    lines.pop_back();
    lines.insert(lines.begin() + 1, "3 " + mark + "RcsTermsInfoMarshaller :: Marshall: Deleting mRcsTermsInfoXml");
    lines.push_back("2 " + mark + "AddTermElementToXml");
    lines.push_back("2 " + mark + "AddTermElementToXml XML Failed!");
    lines.push_back("2 " + mark + "RcsTermsInfoMarshaller XML Failed!");
    EXPECT_EQ(NewLinesOf("XMLRcsTermsInfo"), lines);
    EXPECT_EQ(info->setTermsValue(nullptr), 1);
    EXPECT_EQ(Write(kTerms, info), std::string(kDeclaration) + "<rcs-terms-info></rcs-terms-info>");
    ClearLog();
    EXPECT_EQ(marshaller->Marshall(nullptr), nullptr);
    EXPECT_EQ(NewLinesOf("XMLRcsTermsInfo"), Strings());
}

TEST_F(TermsTest, EventsWithoutNamesAreLogged) {
    XMLRcsTermsInfoDecoder decoder;
    char name[] = "term";
    EXPECT_EQ(decoder.ProcessElement(nullptr, nullptr), -1);
    EXPECT_EQ(decoder.ProcessAttribute(nullptr, name, name), -1);
    EXPECT_EQ(decoder.ProcessAttribute(name, nullptr, name), -1);
    EXPECT_EQ(decoder.ProcessElement(name, nullptr), 0);
    EXPECT_EQ(decoder.GetSessionData(), nullptr);
    const Strings lines = {"2 In XMLRcsTermsInfoDecoder :: ProcessElement, Element name is NULL",
                           "2 In XMLRcsTermsInfoDecoder :: ProcessAttribute, Element name is NULL",
                           "2 In XMLRcsTermsInfoDecoder :: ProcessAttribute, Element name is NULL"};
    EXPECT_EQ(NewLinesOf("RcsTermsInfo"), lines);
}

TEST_F(TermsTest, OtherDocumentsHaveNoTree) {
    for (const eXMLSchemaID id : {kBootstrapping, kTerms}) {
        for (const char* const text : {"", "<a/>", "<term/>", "<btid>b</btid>"}) EXPECT_EQ(Decode(id, text), nullptr);
    }
}

}  // namespace
