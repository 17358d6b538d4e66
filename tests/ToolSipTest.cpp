// Large and damaged SIP messages and MIME multiparts; the others are cases (tests/tool/sip.txt).
#ifdef IMSXML_TOOL

#include <random>

#include "ToolTest.h"

namespace {

using tool::Result;

const std::string kType = "Content-Type: application/im-iscomposing+xml\n";

/// A document that its text tells from others.
std::string Typing(const std::string& state) { return "<isComposing><state>" + state + "</state></isComposing>"; }

std::string Replaced(const std::string& text, const std::string& from, const std::string& to) {
    std::string replaced;
    std::size_t at = 0;
    for (std::size_t next = 0; (next = text.find(from, at)) != std::string::npos; at = next + from.size()) {
        replaced.append(text, at, next - at).append(to);
    }
    return replaced + text.substr(at);
}

std::string Request(const std::string& fields, const std::string& body) {
    return "MESSAGE sip:+15550142@ims.example.net SIP/2.0\nMax-Forwards: 70\n" + fields + '\n' + body;
}

/// A request with a multipart whose boundary is "b".
std::string Multipart(const std::string& body) { return Request("Content-Type: multipart/mixed;boundary=b\n", body); }

class ToolSipTest : public tool::ToolTest {
  protected:
    Result Decode(const std::string& message, const std::string& arguments = "") {
        Write("m", message);
        return Run("decode --sip " + arguments + " m");
    }
};

}  // namespace

TEST_F(ToolSipTest, TimeGrowsWithTheBytesAlone) {
    constexpr int kParts = 100000;
    const std::string known = "--b\n" + kType + '\n';
    std::string parts, lines;
    for (int i = 0; i < kParts; ++i) {
        parts += i % 100 != 0 ? "--b\nc: a/b\nContent-Transfer-Encoding: base64\n\n?\n"
                              : known + (i % 200 != 0 ? "<a>\n" : Typing("idle") + '\n');
    }
    const Result result = Decode(Multipart(parts + "--b--"), "--timeout 60");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), kParts / 200);
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), kParts - kParts / 200);
    // Each part opens another multipart, whose boundary nearly occurs in each line.
    const std::string boundary(60, '-');
    while (lines.size() < (16U << 20U)) lines += std::string(61, '-') + ".\n";
    std::string head = "c: multipart/mixed;boundary=" + boundary;
    for (int i = 0; i < 9; ++i) {
        head = "c: multipart/mixed;boundary=b" + std::to_string(i) + "\n\n--b" + std::to_string(i) + '\n' + head;
    }
    EXPECT_EQ(Decode(head + "\n\n" + lines, "--timeout 60").status, 1);
    // As many messages, folded lines and parameters.
    std::string messages;
    for (int i = 0; i < kParts; ++i) messages += "SIP/2.0 200 OK\nl: 1\nc: a/b\n\nx";
    EXPECT_EQ(Decode(messages, "--timeout 60").status, 1);
    const std::string folded = Replaced(std::string(4U << 20U, 'a'), "aa", "\n ;a=\"b\\");
    EXPECT_EQ(Decode(Request("c: multipart/mixed" + folded + '\n', "x"), "--timeout 60").status, 1);
}

TEST_F(ToolSipTest, NoMutationBringsItDown) {
    std::vector<std::string> seeds;
    for (const std::string& file : FilesBelow(PROJECT_DIR "/samples/sip")) seeds.push_back(ReadFile(file));
    seeds.push_back(Multipart("--b\n" + kType + "Content-Transfer-Encoding: base64\n\nPGlz=\n--b\n" + kType +
                              "Content-Transfer-Encoding: quoted-printable\n\na=3D=\n \n--b--"));
    const std::string pieces[] = {"\n",   "\r", "--", "=",    ":",     ";", "\"", "\\", std::string(1, '\0'),
                                  "\xff", "<",  " ",  "\n\n", "\n--b", "99"};
    std::mt19937 random(1);
    const auto below = [&random](std::size_t count) { return random() % count; };
    std::string names;
    constexpr int kFiles = 300;
    for (int i = 0; i < kFiles; ++i) {
        std::string text = seeds[below(seeds.size())];
        for (std::size_t changes = 1 + below(6); changes != 0; --changes) {
            const std::size_t at = below(text.size() + 1);
            // The heads are short, and most of what is read.
            const std::size_t place = below(2) == 0 ? at : at % 700 % (text.size() + 1);
            text.replace(place, below(4), pieces[below(std::size(pieces))]);
        }
        if (below(4) == 0) text.resize(below(text.size() + 1));
        names += " m" + std::to_string(i);
        Write(names.substr(names.rfind(' ') + 1), text);
    }
    const Result result = Run("decode --sip" + names);
    EXPECT_EQ(result.status, 1);
    for (const char* fault : {"crashed", "ended the process", "ERROR", "runtime error", "no result"}) {
        EXPECT_EQ(result.errors.find(fault), std::string::npos) << result.errors;
    }
    EXPECT_GT(std::count(result.output.begin(), result.output.end(), '\n'), kFiles / 5);
}

#endif
