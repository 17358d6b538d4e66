// The command imsxml, run as a user runs it, in a folder of its own.
#ifndef TOOL_TEST_H
#define TOOL_TEST_H

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "XmlTest.h"

namespace tool {

struct Result {
    int status;
    std::string output;
    std::string errors;
};

inline const char kWaiting[] =
    R"(<ss:communication-waiting xmlns:ss="http://uri.etsi.org/ngn/params/xml/simservs/xcap" active="true"/>)";
inline const char kOtherPrefix[] =
    R"(<x:communication-waiting xmlns:x="http://uri.etsi.org/ngn/params/xml/simservs/xcap" active="false"/>)";
inline const char kGruu[] = R"(<gr:pub-gruu xmlns:gr="urn:ietf:params:xml:ns:gruuinfo" uri="sip:a@b;gr=1&amp;2"/>)";
inline const char kGruuLine[] =
    R"({"schema":"gruu","file":"gruu","root":{"class":"ix_pub_gruu","uri":"sip:a@b;gr=1&2"}})"
    "\n";

/// Runs the tool in a folder of its own, so that messages show plain file names.
class ToolTest : public testing::Test {
  protected:
    ToolTest() : m_folder(testing::TempDir() + "imsxml-tool-" + std::to_string(getpid())) {
        std::filesystem::create_directories(m_folder);
        Write("waiting", kWaiting);
        Write("other", kOtherPrefix);
        Write("gruu", kGruu);
    }
    ~ToolTest() override { std::filesystem::remove_all(m_folder); }

    void Write(const std::string& name, const std::string& text) {
        std::ofstream(m_folder + '/' + name, std::ios::binary) << text;
    }

    Result Run(const std::string& arguments) { return Shell("imsxml " + arguments); }

    /// Runs a line of the shell, to which the tool is "imsxml".
    Result Shell(const std::string& line) {
        // Documents that fail leave their tree to nobody.
        const std::string command =
            "cd '" + m_folder +
            "' && export ASAN_OPTIONS=detect_leaks=0 && imsxml() { '" IMSXML_TOOL "' \"$@\"; } && " + line;
        const int status =
            std::system(("( " + command + " ) >'" + m_folder + "/out' 2>'" + m_folder + "/err'").c_str());
        return {WEXITSTATUS(status), ReadFile(m_folder + "/out"), ReadFile(m_folder + "/err")};
    }

    static constexpr const char* kNoTerminal = "no terminal";

    /// What the tool prints to a terminal.
    std::string OnTerminal(const std::string& arguments) {
        const int screen = posix_openpt(O_RDWR | O_NOCTTY);
        if (screen < 0 || grantpt(screen) != 0 || unlockpt(screen) != 0) return kNoTerminal;
        const std::string name = ptsname(screen);
        // Held open, so that nothing is lost when the tool has ended.
        const int terminal = open(name.c_str(), O_RDWR | O_NOCTTY);
        Run(arguments + " >" + name);
        char text[4096];
        const ssize_t length = read(screen, text, sizeof text);
        close(terminal);
        close(screen);
        std::string printed(text, length > 0 ? static_cast<std::size_t>(length) : 0);
        printed.erase(std::remove(printed.begin(), printed.end(), '\r'), printed.end());
        return printed;
    }

    std::string m_folder;
};

}  // namespace tool

#endif
