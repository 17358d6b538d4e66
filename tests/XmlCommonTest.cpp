#include "XmlCommon.h"

#include <cstring>

#include "XmlTest.h"

namespace {

class XmlCommonTest : public XmlTest {};

/// What one helper makes of a text, "(null)" for NULL.
std::string Result(char* (*helper)(char*), std::string text) {
    const char* const result = helper(&text[0]);
    return result != nullptr ? result : "(null)";
}

TEST_F(XmlCommonTest, HelpersWorkInPlace) {
    char* (*const skip)(char*) = &XmlCommon::SkipSpaces;
    char* (*const trim)(char*) = &XmlCommon::TrimSpaces;
    char* (*const unquote)(char*) = &XmlCommon::RemoveQuotes;
    char* (*const begin)(char*) = &XmlCommon::LocateBeginElement;
    char* (*const end)(char*) = &XmlCommon::LocateEndElement;
    char* (*const right)(char*) = [](char* text) {
        XmlCommon::TrimRightSingle(text);
        return text;
    };
    struct {
        char* (*helper)(char*);
        const char *text, *result;
    } const table[] = {{skip, "\t\r\n x ", "x "},
                       {skip, "  ", ""},
                       {skip, "", ""},
                       {skip, "\v x", "\v x"},
                       {skip, "\xa0x", "\xa0x"},
                       {trim, " x ", "x "},  // Leading white space only.
                       {right, "x  ", "x "},
                       {right, "x\t", "x\t"},
                       {right, " ", ""},
                       {right, "", ""},
                       {unquote, "\"x\"", "x"},
                       {unquote, "x\"", "x"},
                       {unquote, "\"x", "x"},
                       {unquote, "'x'", "'x'"},
                       {unquote, "\"\"", ""},
                       {unquote, "\"", ""},
                       {unquote, "\"\"x\"\"", "\"x\""},
                       {unquote, "", ""},
                       {begin, "a<b<c", "<b<c"},
                       {begin, "a>b", "(null)"},
                       {end, "a<b>c>", ">c>"},
                       {end, "", "(null)"}};
    for (const auto& row : table) EXPECT_EQ(Result(row.helper, row.text), row.result) << '[' << row.text << ']';
    for (const auto helper : {skip, trim, unquote, begin, end, right}) EXPECT_EQ(helper(nullptr), nullptr);
}

TEST_F(XmlCommonTest, AnAddressIsAnEmailUnlessItNamesAnAor) {
    EXPECT_EQ(XmlCommon::IsEmailFormat("a@b"), 1);
    EXPECT_EQ(XmlCommon::IsEmailFormat("a@b;aor=c@d"), 0);
    EXPECT_EQ(XmlCommon::IsEmailFormat("aor="), 0);
    EXPECT_EQ(XmlCommon::IsEmailFormat("a.b"), 0);
    EXPECT_EQ(XmlCommon::IsEmailFormat(nullptr), 0);
}

// Names come in all lengths; the text moves to the heap when it outgrows its own room, and must not come back smaller.
TEST_F(XmlCommonTest, WorkTextsGrowAndKeepTheirSizeWithoutMemory) {
    XmlWorkText text;
    ixDplHostFailAllocation(0);
    ASSERT_TRUE(text.Reserve(64));
    EXPECT_EQ(ixDplHostAllocations(), 0U);
    std::memset(text.Text(), 'x', 64);
    ixDplHostFailAllocation(1);
    EXPECT_FALSE(text.Reserve(65));
    EXPECT_EQ(text.Text()[63], 'x');
    ASSERT_TRUE(text.Reserve(1000));
    std::memset(text.Text(), 'y', 1000);
    ASSERT_TRUE(text.Reserve(10));
    EXPECT_EQ(text.Text()[999], 'y');
    EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 1U);
}

}  // namespace
