// Runs the benchmarks and then prints how many times as fast this library was as each peer on the same document. The
// machines are noisy and differ, so only these ratios say something.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

namespace {

/// Splits "tokenizer/imsxml/1024" into the document "tokenizer/1024" and the library "imsxml".
bool SplitName(const std::string& name, std::string* document, std::string* library) {
    for (const char* const candidate : {"imsxml", "expat", "pugixml"}) {
        const std::string part = std::string("/") + candidate;
        const std::size_t at = name.find(part);
        if (at == std::string::npos) continue;
        *document = name.substr(0, at) + name.substr(at + part.size());
        *library = candidate;
        return true;
    }
    return false;
}

class RatioReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            std::string document;
            std::string library;
            const bool isMeasurement = !run.error_occurred && run.run_type == Run::RT_Iteration;
            if (isMeasurement && SplitName(run.benchmark_name(), &document, &library)) {
                // The fastest of several repetitions is the one that was disturbed least.
                double& time = m_times[document][library];
                if (time == 0 || run.GetAdjustedCPUTime() < time) time = run.GetAdjustedCPUTime();
            }
        }
    }

    void Finalize() override {
        std::printf("\ntimes as fast as\n");
        for (const auto& [document, times] : m_times) {
            const auto own = times.find("imsxml");
            if (own == times.end() || times.size() < 2) continue;
            std::printf("  %-28s", document.c_str());
            for (const auto& [library, time] : times) {
                if (library != "imsxml") std::printf("  %s %.2f", library.c_str(), time / own->second);
            }
            std::printf("\n");
        }
    }

  private:
    std::map<std::string, std::map<std::string, double>> m_times;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
