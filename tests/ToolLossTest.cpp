// That the ways to see losses agree: imsxml diff, lost and convert --strict. What they print are cases
// (tests/tool/loss.txt).
#ifdef IMSXML_TOOL

#include "ToolTest.h"

namespace {

using tool::Result;

using ToolLossTest = tool::ToolTest;

/// The files of a folder that hold documents.
std::vector<std::string> DocumentsBelow(const std::string& folder) {
    std::vector<std::string> documents;
    for (const std::string& file : FilesBelow(folder)) {
        if (file.substr(file.size() - 4) == ".xml") documents.push_back(file);
    }
    return documents;
}

}  // namespace

TEST_F(ToolLossTest, DiffRefusesWhatIsTooDeep) {
    std::string text;
    for (int i = 0; i < 1001; ++i) text = "<a>" + text + "</a>";
    Write("deep", text);
    EXPECT_EQ(Run("diff deep deep").errors.substr(0, 44), "deep:1:3001: more than 1000 open elements\nde");
}

// Three ways to the same answer: the losses, a strict conversion, and the written text, read once more and compared.
TEST_F(ToolLossTest, LostAgreesWithConvertAndDiff) {
    const std::string real = PROJECT_DIR "/../shared/samples";
    std::vector<std::string> files = DocumentsBelow(real);
    for (const std::string& file : DocumentsBelow(PROJECT_DIR "/samples")) files.push_back(file);
    std::string names;
    for (const std::string& file : files) names += " '" + file + '\'';
    for (const std::string profile : {" --profile device", " --profile standard"}) {
        const Result lost = Run("lost" + profile + names);
        const std::string told = '\n' + lost.output + lost.errors;
        const std::string strict = '\n' + Run("convert --strict" + profile + names + " >/dev/null").errors;
        for (const std::string& file : files) {
            SCOPED_TRACE(file + profile);
            const Result written = Run("convert" + profile + " '" + file + '\'');
            Write("written", written.output);
            const bool isSame = written.status == 0 && Run("diff '" + file + "' written").status == 0;
            // Behind the name there is a place or a blank.
            EXPECT_EQ(isSame, told.find('\n' + file + ':') == std::string::npos);
            EXPECT_EQ(isSame, strict.find('\n' + file + ':') == std::string::npos);
            // What other senders write goes through the standard profile as it is.
            const bool isReal = file.find(real) == 0 && profile == " --profile standard";
            EXPECT_TRUE(!isReal || written.status != 0 || isSame);
        }
    }
}

#endif
