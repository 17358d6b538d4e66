// The documents in SIP messages and MIME multiparts: imsxml decode --sip.
#ifdef IMSXML_TOOL

#include <random>
#include <sstream>

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

std::string WithCrLf(const std::string& text) { return Replaced(text, "\n", "\r\n"); }

std::string Request(const std::string& fields, const std::string& body) {
    return "MESSAGE sip:+15550142@ims.example.net SIP/2.0\nMax-Forwards: 70\n" + fields + '\n' + body;
}

/// A request with a multipart whose boundary is "b".
std::string Multipart(const std::string& body) { return Request("Content-Type: multipart/mixed;boundary=b\n", body); }

/// Of each line of the output the part and the text of its document: "#1=idle #2.1=active".
std::string Parts(const std::string& output) {
    const std::string file = "\"file\":\"m", state = "\"state\":\"";
    std::istringstream lines(output);
    std::string parts;
    for (std::string line; std::getline(lines, line);) {
        const auto cut = [&line](const std::string& key) {
            const std::size_t at = line.find(key);
            return at == std::string::npos
                       ? "?"
                       : line.substr(at + key.size(), line.find('"', at + key.size()) - at - key.size());
        };
        parts += (parts.empty() ? "" : " ") + cut(file) + '=' + cut(state);
    }
    return parts;
}

class ToolSipTest : public tool::ToolTest {
  protected:
    Result Decode(const std::string& message, const std::string& arguments = "") {
        Write("m", message);
        return Run("decode --sip " + arguments + " m");
    }

    /// Expects the same of a message with either line end, and with both.
    /// @param errors what the standard error has, without the name of the file; "": nothing.
    void Expect(const std::string& message, int status, const std::string& parts, const std::string& errors) {
        std::string mixed = WithCrLf(message);
        for (std::size_t at = 0; (at = mixed.find("\r\n", at)) != std::string::npos; ++at) {
            at = mixed.find("\r\n", at + 2);
            if (at == std::string::npos) break;
            mixed.erase(at, 1);
        }
        for (const std::string& text : {message, WithCrLf(message), mixed}) {
            SCOPED_TRACE(text.substr(0, 500));
            const Result result = Decode(text);
            EXPECT_EQ(result.status, status);
            EXPECT_EQ(Parts(result.output), parts);
            EXPECT_EQ(result.errors, errors.empty() ? "" : "m:" + Replaced(errors, "\n", "\nm:") + '\n');
        }
    }
};

}  // namespace

TEST_F(ToolSipTest, TheSamples) {
    const struct {
        const char* name;
        std::vector<std::pair<const char*, const char*>> parts;
    } samples[] = {{"message-imdn", {{"#1.1", "imdn"}}},
                   {"notify-reginfo", {{"#1", "reginfo"}}},
                   {"notify-rlmi", {{"#1", "rlmi"}, {"#2", "presence"}}}};
    for (const auto& sample : samples) {
        const std::string file = PROJECT_DIR "/samples/sip/" + std::string(sample.name) + ".sip";
        for (const char* profile : {"device", "standard"}) {
            const Result result = Run("decode --sip --profile " + std::string(profile) + " '" + file + '\'');
            EXPECT_EQ(result.status, 0) << file;
            EXPECT_EQ(result.errors, "");
            std::istringstream lines(result.output);
            std::string line;
            for (const auto& [part, schema] : sample.parts) {
                std::getline(lines, line);
                const std::string start = R"({"schema":")" + std::string(schema) + R"(","file":")" + file + part + '"';
                EXPECT_EQ(line.substr(0, start.size()), start);
            }
            EXPECT_FALSE(std::getline(lines, line)) << line;
        }
    }
}

TEST_F(ToolSipTest, PartsArePrintedAsFilesAre) {
    const std::string message = Multipart("--b\n" + kType + '\n' + Typing("idle") + "\n--b--\n");
    EXPECT_EQ(Decode(message).output,
              R"({"schema":"is-composing","file":"m#1","root":{"class":"ix_isComposing","state":"idle"}})"
              "\n");
    EXPECT_EQ(Decode(message, "--format tree").output, "# m#1 (is-composing)\nix_isComposing  state = \"idle\"\n");
    Write("request", message);
    EXPECT_EQ(Run("decode --sip - <request").output.find(R"({"schema":"is-composing","file":"-#1")"), 0U);
    // Every file is tried, and the worst status counts.
    Write("bad", "no message");
    const Result result = Run("decode --sip bad request missing");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "bad:1:1: neither a start line of SIP nor a header field\nmissing: No such file or directory\n");
    EXPECT_NE(result.output.find("request#1"), std::string::npos);
    EXPECT_EQ(Run("decode --sip --schema gruu request").status, 2);
}

TEST_F(ToolSipTest, HeadsInAllTheirSpellings) {
    const std::string heads[] = {
        kType,
        "c: application/im-iscomposing+xml\n",
        "CONTENT-TYPE \t:Application/IM-isComposing+XML ; charset=\"utf-8\"\n",
        "Content-Type:\n application/im-iscomposing+xml\n",
        "Content-Type: application/im-iscomposing+xml\n\t;charset=utf-8\n ;a=\"b\\\"; c\"\n",
        "Subject: folded\n Content-Type: application/sdp\n" + kType,
        "no header field\n" + kType + "Content-Type: application/sdp\n",
        kType + "e: identity\nContent-Transfer-Encoding: 8BIT\n",
    };
    for (const std::string& head : heads) Expect(Request(head, Typing("idle")), 0, "#1=idle", "");
    const std::string messages[] = {
        "SIP/2.0 200 OK\n" + kType + '\n' + Typing("idle"),
        "\n\n\xef\xbb\xbf" + kType + '\n' + Typing("idle"),
        "\xef\xbb\xbf\nsip/2.0 200\n" + kType + '\n' + Typing("idle"),
        "Mime-Version : 1.0\n" + kType + '\n' + Typing("idle") + '\n',
    };
    for (const std::string& message : messages) {
        // A mark of the encoding stands at the beginning or is none.
        if (message[0] == '\n') {
            Expect(message, 1, "", "3:1: neither a start line of SIP nor a header field");
        } else {
            Expect(message, 0, "#1=idle", "");
        }
    }
}

TEST_F(ToolSipTest, Multiparts) {
    const std::string one = "\n" + Typing("one"), two = "\n" + Typing("two");
    const struct {
        std::string type;
        std::string body;
        int status;
        std::string parts;
        std::string errors;
    } table[] = {
        {"mixed; boundary=b", "--b\n" + kType + one + "\n--b\n" + kType + two + "\n--b--\n", 0, "#1=one #2=two", ""},
        // What stands before and behind is of no part.
        {"related;boundary = \"b\"",
         "--a\n--b1\n-- b\n--b --\npre\n--b \n" + kType + one + "\n--b-- \n--b\n" + kType + two, 0, "#1=one", ""},
        {"signed;a=\";boundary=a\";boundary=\"b \\\"c\"", "--b \"c\n" + kType + one + "\n--b \"\n--b \"c--", 0,
         "#1=one", ""},
        {"mixed;boundary=b",
         "--b\n" + kType + one + "\n--b\nc: application/sdp\n\nv=0\n--b\n\nv\n--b\n--b\n" + kType + two + "\n--b--", 0,
         "#1=one #5=two",
         " part 2: application/sdp is no document of a schema\n part 3: there is no content type\n"
         " part 4: there is no content type"},
        {"mixed;boundary=b", "--b\n" + kType + one + "\n--b\n" + kType + two, 0, "#1=one #2=two",
         "12:46: warning: the multipart has no final boundary"},
        {"Alternative;Boundary=b",
         "--b\nc: multipart/mixed;boundary=bb\n\n--bb\n" + kType + one +
             "\n--bb--\n--b\nc: multipart/x;boundary=bb\n\n--bb\n" + kType + two + "\n--b--\n",
         0, "#1.1=one #2.1=two", "19:46: warning: the multipart has no final boundary"},
        {"mixed;boundary=b",
         "--b\nc: message/CPIM\n\nFrom: a\nNS: imdn\n\n" + kType + "Content-ID: 1\n" + one + "\n--b--", 0, "#1.1=one",
         ""},
        {"mixed;boundary=b", "--b\nc: message/cpim\n\nFrom: a\n--b\nc: text/plain\n--b--", 1, "",
         " part 1.1: there is no content type\n part 2: text/plain is no document of a schema\n"
         " no part has a content type that a schema has"},
        {"mixed;boundary=\"b\n\t c\"", "--b c\n" + kType + one + "\n--b c--", 0, "#1=one", ""},
        {"mixed", "--b\n" + kType + one + "\n--b--", 1, "", "5:1: part 1: the multipart has no boundary"},
        {"mixed;boundary=\"\"", "--\n--", 1, "", "5:1: part 1: the multipart has no boundary"},
        {"mixed;boundary=b", "--c\n" + kType + one + "\n--c--", 1, "",
         "5:1: part 1: the boundary of the multipart does not occur"},
        {"mixed;boundary=b", "--b--", 1, "", "5:1: part 1: the multipart has no part"},
        {"mixed;boundary=b", "--b\nc: multipart/mixed;boundary=c\n\n\n--b\n" + kType + one + "\n--b--", 1, "#2=one",
         "8:1: part 1: the boundary of the multipart does not occur"},
    };
    for (const auto& row : table) {
        Expect(Request("Content-Type: multipart/" + row.type + '\n', row.body), row.status, row.parts, row.errors);
    }
    // The body alone says its boundary, too.
    Expect("--b\n" + kType + one + "\n--b--\n", 0, "#1=one", "");
}

TEST_F(ToolSipTest, PartsAreNestedTenDeep) {
    for (const int depth : {10, 11}) {
        std::string body = kType + '\n' + Typing("deep"), name = "m";
        for (int i = 0; i < depth; ++i) {
            const std::string boundary = 'b' + std::to_string(i);
            body = "Content-Type: multipart/mixed;boundary=" + boundary + "\n\n--" + boundary + '\n' + body + "\n--" +
                   boundary + "--";
        }
        const std::string path = ".1.1.1.1.1.1.1.1.1";
        if (depth == 10) {
            Expect(body, 0, "#1" + path + "=deep", "");
        } else {
            Expect(body, 1, "", "33:1: part 1" + path + ": parts are nested more than 10 deep");
        }
    }
}

TEST_F(ToolSipTest, Encodings) {
    const struct {
        std::string fields;
        std::string body;
        const char* parts;
        const char* errors;
    } table[] = {
        {"Content-Transfer-Encoding: BASE64", "PGlzQ29tcG9zaW5nPjxzdGF0\n ZT5pZGxlPC9zdGF0ZT48L2lz\nQ29tcG9zaW5nPg==\n",
         "#1=idle", ""},
        {"Content-Transfer-Encoding: base64", "PGlzQ29tcG9zaW5nPjxzdGF0ZT5pZGxlPC9zdGF0ZT48L2lzQ29tcG9zaW5nPg",
         "#1=idle", ""},
        {"Content-Transfer-Encoding: base64", "PGlz\nQ29-cG9z", "", "7:4: part 1: this is no base64"},
        {"Content-Transfer-Encoding: base64", "PGlz\nPg==PGlz", "", "7:5: part 1: this is no base64"},
        {"Content-Transfer-Encoding: base64", "=PGlz", "", "6:1: part 1: this is no base64"},
        {"Content-Transfer-Encoding: base64", "PGlzP", "", "6:5: part 1: this is no base64"},
        {"Content-Transfer-Encoding: base64", "PGE+CjxiPjwvYT4=", "",
         "6:1: part 1: decoded from base64:2:4: end tag </a> does not match <b> opened at 2:1"},
        {"Content-Transfer-Encoding: base64", "", "", "6:1: part 1: decoded from base64:1:1: the part is empty"},
        {"Content-Transfer-Encoding: quoted-printable",
         "<isComposing x=3D\"1\">=  \n<state>i=64le=\n=\n</state>  \n</isComposing>=", "#1=idle", ""},
        {"Content-Transfer-Encoding: quoted-printable", "<isComposing\n x=\"1\"/>", "",
         "7:3: part 1: this is no quoted-printable"},
        {"Content-Transfer-Encoding: uuencode", Typing("idle"), "",
         "6:1: part 1: Content-Transfer-Encoding uuencode is not decoded"},
        {"e: gzip", "\x1f\x8b", "", "6:1: part 1: Content-Encoding gzip is not decoded"},
    };
    for (const auto& row : table) {
        Expect(Request(kType + row.fields + '\n', row.body), *row.parts != '\0' ? 0 : 1, row.parts, row.errors);
    }
    // What has parts cannot be looked into, what is of no schema need not be.
    Expect(Request("c: multipart/mixed;boundary=b\nContent-Transfer-Encoding: base64\n", "LS1i"), 1, "",
           "6:1: part 1: Content-Transfer-Encoding base64 is not decoded");
    Expect(Multipart("--b\nc: text/plain\ne: gzip\n\nx\n--b\n" + kType + '\n' + Typing("idle") + "\n--b--"), 0,
           "#2=idle", " part 1: text/plain is no document of a schema");
}

// White space at the end of a quoted-printable line is lost on the way, unless it is written as digits.
TEST_F(ToolSipTest, BlanksOfQuotedPrintable) {
    const std::string body = "<isComposing><state> a \t\r\nb=20\r\nc \n=\r\n d=0D=0A</state></isComposing>";
    const Result result = Decode(Request(kType + "Content-Transfer-Encoding: quoted-printable\n", body));
    EXPECT_EQ(Parts(result.output), "#1= a\\r\\nb \\r\\nc\\n d\\r\\n");
}

TEST_F(ToolSipTest, MessagesOneBehindTheOther) {
    const auto request = [](const std::string& text, std::size_t length) {
        return Request(kType + "l : " + std::to_string(length) + '\n', Typing(text));
    };
    const std::size_t length = Typing("one").size();
    const std::string one = request("one", length), two = request("two", length);
    const std::string warning = "6:1: warning: Content-Length says more than the 45 bytes that follow";
    const struct {
        std::string file;
        int status;
        const char* parts;
        std::string errors;
    } table[] = {
        {one + two, 0, "#1#1=one #2#1=two", ""},
        {one + "\n\n" + two + "\n", 0, "#1#1=one #2#1=two", ""},
        {one + "SIP/2.0 200 OK\nContent-Length: 0\n\n" + two, 0, "#1#1=one #3#1=two", ""},
        {one + "NOTIFY sip:a SIP/2.0\nc: multipart/mixed;boundary=b\n\n--b\n\nx\n--b\n" + kType + '\n' + Typing("two") +
             "\n--b--",
         0, "#1#1=one #2#2=two", "message 2, part 1: there is no content type"},
        {one + "\nSIP/2.0 200 OK\n" + kType + "\n<a>", 1, "#1#1=one",
         "10:4: message 2, part 1: <a> opened at 10:1 is never closed"},
        {one + "<!-- more -->", 0, "#1=one",
         "6:46: warning: what is behind the Content-Length is no message, and left out"},
        {request("one", length + 1), 0, "#1=one", warning},
        {Request(kType + "l: 99999999999999999999999999\n", Typing("one")), 0, "#1=one", warning},
        {Request(kType + "l: -1\n", Typing("one")), 0, "#1=one", "6:1: warning: Content-Length is no number"},
        {request("one", 9), 1, "",
         "6:10: warning: what is behind the Content-Length is no message, and left out\n6:1: part 1: the text ends "
         "inside "
         "this tag"},
        {request("one", 0), 1, "",
         "6:1: warning: what is behind the Content-Length is no message, and left out\n6:1: part 1: the part is empty"},
        {"SIP/2.0 200 OK\nl: 0\n", 1, "", " no part has a content type that a schema has"},
        {"SIP/2.0 200 OK", 1, "", " no part has a content type that a schema has"},
        {"SIP/2.0 200 OK\n" + kType, 1, "", "3:1: part 1: the part is empty"},
        {"SIP/2.0 200 OK\n\n" + Typing("one"), 1, "",
         " part 1: there is no content type\n no part has a content type that a schema has"},
    };
    for (const auto& row : table) {
        std::string errors = row.errors;
        if (errors.find("message ") == 0) errors.insert(0, " ");
        Expect(row.file, row.status, row.parts, errors);
    }
}

TEST_F(ToolSipTest, FaultsHaveTheirPlaceInTheFile) {
    const std::string open =
        "<isComposing\nxmlns=\"urn:ietf:params:xml:ns:im-iscomposing\">\n<state>\xc3\xa9</stat></isComposing>";
    const std::string message = Multipart("--b\n" + kType + '\n' + open + "\n--b\nc: application/pidf+xml\n\n" +
                                          Typing("two") + "\n--b\n" + kType + '\n' + Typing("three") + "\n--b--");
    Expect(message, 1, "#3=three",
           "10:9: part 1: end tag </stat> does not match <state> opened at 10:1\n"
           "14:1: part 2: root element <isComposing> is not <presence> of schema presence, but of schema is-composing");
    const Result standard = Decode(message, "--profile standard");
    EXPECT_EQ(standard.status, 1);
    EXPECT_EQ(standard.errors.find("m:10:9: part 1: not the end tag of the open element\nm:14:"), 0U)
        << standard.errors;
    Expect(Request(kType, "hello"), 1, "", "5:1: part 1: no element found; this is no XML document");
    EXPECT_EQ(Decode(Request("c: application/vnd.3gpp.cw+xml\n", "<3gpp-ims/>"), "--profile standard").errors,
              "m:5:1: part 1: schema call-waiting-indication has no standard profile\n");
}

TEST_F(ToolSipTest, AnyBytesAreTaken) {
    const std::string nul(1, '\0');
    const std::string good = "\n--b\n" + kType + '\n' + Typing("good") + "\n--b--";
    const std::string audio = "--b\nc: audio/x\n\n" + nul + "\xff\xfe\n" + nul + "\n--b" + nul;
    EXPECT_EQ(Parts(Decode(Multipart(audio + good)).output), "#2=good");
    const Result result = Decode(Multipart("--b\n" + kType + "\n<a>" + nul + "</a>" + good));
    EXPECT_EQ(Parts(result.output), "#2=good");
    EXPECT_EQ(result.errors, "m:8:4: part 1: NUL byte at offset 3, where the decoder would stop\n");
    const Result bytes = Decode(Request(kType, Typing("a\xff")));
    EXPECT_EQ(Parts(bytes.output), "#1=a\xef\xbf\xbd");
    EXPECT_EQ(bytes.errors, "m#1: warning: bytes that are not UTF-8 were replaced\n");
    // A message has one line, and nothing that a terminal obeys.
    const Result type = Decode(Request("c: a/\x1b[2J" + std::string(200, 'b') + '\n', "x"));
    EXPECT_EQ(type.errors.find("m: part 1: a/ [2Jbbb"), 0U) << type.errors;
    EXPECT_LT(type.errors.find("bbb... is no document of a schema\n"), 100U);
}

TEST_F(ToolSipTest, WhatIsNoMessage) {
    const std::pair<std::string, const char*> table[] = {
        {"", "m: the file is empty\n"},
        {"\r\n \r\n", "m:3:1: neither a start line of SIP nor a header field\n"},
        {" <a/>", "m:1:2: this is a document and no message; leave out --sip\n"},
        {"MESSAGE SIP/2.0\n\n", "m:1:1: neither a start line of SIP nor a header field\n"},
        {"--", "m:1:1: neither a start line of SIP nor a header field\n"},
        {std::string("\0\0", 2), "m:1:1: neither a start line of SIP nor a header field\n"},
    };
    for (const auto& [text, errors] : table) {
        const Result result = Decode(text);
        EXPECT_EQ(result.status, 1) << text;
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, errors);
    }
}

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
