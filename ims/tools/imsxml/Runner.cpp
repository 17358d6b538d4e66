#include "Runner.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

#ifdef __linux__
#include <sys/prctl.h>
#endif

#include "Input.h"
#include "Library.h"

namespace {

/// Added to what a child reports, so that an `exit` deep in the library is not taken for a report.
constexpr int kReported = 64;

/// What a child reports when nobody takes its output any more.
constexpr int kOutputLost = kTimeLimit + 1;

void PrintError(const std::string& line) { std::fprintf(stderr, "%s\n", line.c_str()); }

/// Prints what `write` writes to a file, each line behind the name of the document.
template <class Write>
void PrintLines(const std::string& name, Write write) {
    char* text = nullptr;
    std::size_t size = 0;
    std::FILE* const file = open_memstream(&text, &size);
    if (file == nullptr) return;
    write(file);
    std::fclose(file);
    for (const char* line = text; *line != '\0';) {
        const auto length = static_cast<int>(std::strcspn(line, "\n"));
        std::fprintf(stderr, "%s: %.*s\n", name.c_str(), length, line);
        line += length + (line[length] == '\n' ? 1 : 0);
    }
    std::free(text);
}

/// What is deleted wrongly is told at once: the process may not live to its end.
void OpenLedger(const std::string& name) {
    ixDplHostEnableLedger(true);
    ixDplHostTraceRemovals(true);
    ixDplHostSetMisuseHandler(
        [](const ixDplHostMisuse& misuse, void* context) {
            PrintLines(*static_cast<const std::string*>(context),
                       [&misuse](std::FILE* file) { ixDplHostPrintMisuse(file, misuse); });
        },
        const_cast<std::string*>(&name));
}

/// @param input the text of the standard input, when that is the document.
int RunCommand(Command command, const Options& options, const std::string& name, const std::string* input,
               const Progress& progress, std::string& output) {
    Document document{name, {}};
    int status = kDone;
    if (options.leaks) OpenLedger(name);
    try {
        document.text = input != nullptr ? *input : ReadText(name);
        // Other parts of a message may have any bytes.
        options.sip ? RequireLength(document.text) : RequireText(document.text);
        progress.Enter(Stage::Decoding);
        output = command(document, options, progress);
    } catch (const DocumentError& error) {
        if (!error.message.empty()) PrintError(document.Describe(error));
        status = error.status;
        output = error.output;
    } catch (const std::exception& error) {
        PrintError(name + ": " + error.what());
        status = kNotDecoded;
    }
    if (options.leaks) PrintLines(name, ixDplHostDumpLedger);
    return status;
}

int StatusOf(int childStatus, const std::string& name) {
    if (WIFEXITED(childStatus) && WEXITSTATUS(childStatus) >= kReported) return WEXITSTATUS(childStatus) - kReported;
    if (WIFSIGNALED(childStatus)) {
        const int number = WTERMSIG(childStatus);
        PrintError(name + ": the decoder crashed (signal " + std::to_string(number) + ", " + strsignal(number) + ')');
    } else {
        PrintError(name + ": the decoder ended the process (status " + std::to_string(WEXITSTATUS(childStatus)) + ')');
    }
    return kNotDecoded;
}

std::string TimeMessage(Stage stage, double seconds) {
    char number[32];
    std::snprintf(number, sizeof number, "%g", seconds);
    const std::string start = std::string("no result after ") + number + " s: ";
    switch (stage) {
        case Stage::Reading:
            return start + "the file did not come to its end; it may need a longer --timeout";
        case Stage::Decoding:
            return start + "the document makes the decoder run without end, or it needs a longer --timeout";
        default:
            return start + "decoded, but writing it runs without end, or it needs a longer --timeout";
    }
}

/// A child that runs without end must not outlive the one that would end it.
void EndWithParent(pid_t parent) {
#ifdef __linux__
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
    if (getppid() != parent) _exit(kReported + kNotDecoded);
}

int RunInChild(Command command, const Options& options, const std::string& name, const std::string* input) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw DocumentError{kWrongUsage, std::strerror(errno)};
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child < 0) throw DocumentError{kWrongUsage, std::strerror(errno)};
    if (child == 0) {
        close(ends[0]);
        EndWithParent(parent);
        std::string output;
        int status = RunCommand(command, options, name, input, Progress(ends[1]), output);
        // The clock stops here: a reader of the output may take its time.
        close(ends[1]);
        if (Print(output) != kDone) status = kOutputLost;
        _exit(kReported + status);
    }
    close(ends[1]);
    Stage stage = Stage::Reading;
    const bool inTime = WaitForEnd(ends[0], options.timeout, stage);
    close(ends[0]);
    if (!inTime) kill(child, SIGKILL);
    int childStatus = 0;
    while (waitpid(child, &childStatus, 0) < 0 && errno == EINTR) {
    }
    if (inTime) return StatusOf(childStatus, name);
    PrintError(name + ": " + TimeMessage(stage, options.timeout));
    return kTimeLimit;
}

}  // namespace

int Print(const std::string& text) {
    // A reader that has gone is an error to report, not a death.
    std::signal(SIGPIPE, SIG_IGN);
    const std::size_t written = std::fwrite(text.data(), 1, text.size(), stdout);
    if (written == text.size() && std::fflush(stdout) == 0) return kDone;
    PrintError(std::string("imsxml: standard output: ") + std::strerror(errno));
    return kWrongUsage;
}

int RunOnFiles(Command command, const Options& options) {
    // A caller may have left it ignored, and then nobody learns how a child ended.
    std::signal(SIGCHLD, SIG_DFL);
    int worst = kDone;
    std::string input;
    bool hasInput = false;
    for (const std::string& name : options.files) {
        try {
            const bool isInput = name == "-";
            // Read here, so that it can be given more than once.
            if (isInput && !hasInput) input = ReadText(name);
            hasInput = hasInput || isInput;
            const int status = RunInChild(command, options, name, isInput ? &input : nullptr);
            if (status == kOutputLost) return std::max<int>(worst, kWrongUsage);
            worst = std::max(worst, status);
        } catch (const DocumentError& error) {
            PrintError(name + ": " + error.message);
            worst = std::max<int>(worst, error.status);
        } catch (const std::exception& error) {
            PrintError(name + ": " + error.what());
            worst = std::max<int>(worst, kWrongUsage);
        }
    }
    return worst;
}
