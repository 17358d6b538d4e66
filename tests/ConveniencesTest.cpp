// What the headers offer to applications around the object model: owners, casts, lists as ranges, words, escaped texts.
#include "XMLConferenceInfo.h"
#include "XMLReginfo.h"
#include "XmlFields.h"
#include "XmlMarkup.h"
#include "XmlTest.h"

namespace {

class ConveniencesTest : public XmlTest {
  protected:
    /// Reads `text` with a context that is gone afterwards.
    static XmlOwned<> Read(eXMLSchemaID schema, const char* text) {
        const XmlOwnedContext context(XMLFactory::newInstance(schema));
        return XmlOwned<>(context->createUnMarshaller()->UnMarshall(text));
    }
};

TEST_F(ConveniencesTest, TreesAreOwnedCastAndWalked) {
    const XmlOwned<> root = Read(IX_XML_SCHEMA_REGINFO,
                                 "<reginfo version=\"0\" state=\"full\"><registration aor=\"a\" id=\"1\"/>"
                                 "<registration aor=\"b\" id=\"2\" state=\"active\"/></reginfo>");
    const XMLElement* const element = root.get();
    EXPECT_EQ(ixAs<ix_conference_type>(element), nullptr);
    EXPECT_EQ(ixAs<ix_reginfo>(static_cast<XMLElement*>(nullptr)), nullptr);
    const auto* const reginfo = ixAs<ix_reginfo>(element);
    ASSERT_NE(reginfo, nullptr);
    std::string addresses;
    for (const auto* registration : XmlEntries<ix_registration>(reginfo->mRegistrationList)) {
        addresses += registration->mAor;
    }
    EXPECT_EQ(addresses, "ab");
    for (const auto* registration : XmlEntries<ix_registration>(nullptr)) FAIL() << registration->mAor;
    const IxSingleElementList empty;
    for (const auto* registration : XmlEntries<ix_registration>(&empty)) FAIL() << registration->mAor;
}

TEST_F(ConveniencesTest, FieldsAreFoundByNameAndEnumerationsHaveWords) {
    const XmlOwned<> root = Read(
        IX_XML_SCHEMA_REGINFO, "<reginfo version=\"0\" state=\"partial\"><registration aor=\"a\" id=\"1\"/></reginfo>");
    ASSERT_NE(root, nullptr);
    EXPECT_STREQ(XmlFields::Word(*root, "state"), "partial");
    EXPECT_EQ(XmlFields::Word(*root, "version"), nullptr) << "a number";
    EXPECT_EQ(XmlFields::Word(*root, "nothing"), nullptr);
    EXPECT_EQ(XmlFields::Word(*root, nullptr), nullptr);
    const XmlField* const field = XmlFields::Find(*root, "version");
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(XmlFields::Number(*root, *field), 0);
    const XmlOwned<ix_registration> unset(ixNew<ix_registration>("test"));
    EXPECT_EQ(XmlFields::Word(*unset, "state"), nullptr) << "not set";
}

TEST_F(ConveniencesTest, EscapedTextsComeBackAsTheyWere) {
    EXPECT_EQ(XmlEscaped("a<b> & \"c\" 'd'"), "a&lt;b&gt; &amp; \"c\" 'd'");
    for (const char* text : {"", "&", "&amp;", "]]>", "<&>&lt;", "&#38;", "\xc3\xa4 \"'"}) {
        EXPECT_EQ(XmlUnescaped(XmlEscaped(text).c_str()), text);
    }
    EXPECT_EQ(XmlUnescaped(nullptr), "");
    struct {
        const char *text, *plain;
    } const table[] = {
        {"&lt;&gt;&amp;&quot;&apos;", "<>&\"'"},
        {"&amp;lt;", "&lt;"},  // Once only.
        {"&#228;&#xE4;&#xe4;", "\xc3\xa4\xc3\xa4\xc3\xa4"},
        {"&#x0010FFFF;&#00000228;", "\xf4\x8f\xbf\xbf\xc3\xa4"},
        {"&#8364;&#x1F600;", "\xe2\x82\xac\xf0\x9f\x98\x80"},
        {"&#x7FF;&#x800;&#xFFFF;&#x10FFFF;", "\xdf\xbf\xe0\xa0\x80\xef\xbf\xbf\xf4\x8f\xbf\xbf"},
        // No characters, and no references.
        {"&#0;&#xD800;&#x110000;&#99999999;", "&#0;&#xD800;&#x110000;&#99999999;"},
        {"&#;&#x;&#-1;&#1a;&#xG;&;", "&#;&#x;&#-1;&#1a;&#xG;&;"},
        {"&copy;&LT;&lt", "&copy;&LT;&lt"},
        {"& &amp", "& &amp"},
        {"&a&amp;", "&a&"},
    };
    for (const auto& row : table) EXPECT_EQ(XmlUnescaped(row.text), row.plain) << row.text;
}

}  // namespace
