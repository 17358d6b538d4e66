// Runs the benchmarks and then prints how many times as fast this library was, in each profile, as each peer on the
// same document. The machines are noisy and differ, so only these ratios say something; and the allocations, which do
// not differ.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "BenchFamilies.h"

namespace {

/// This library in the device profile and in the standard profile, then the peers.
constexpr const char* kLibraries[] = {"imsxml", "standard", "expat", "pugixml", "rapidxml", "tinyxml2"};
constexpr const char* kProfiles[] = {"device", "standard"};
constexpr std::size_t kProfileCount = std::size(kProfiles);
constexpr std::size_t kLibraryCount = std::size(kLibraries);

/// Splits "tokenizer/imsxml/1024" into the document "tokenizer/1024" and the library 0.
bool SplitName(const std::string& name, std::string& document, std::size_t& library) {
    for (library = 0; library < kLibraryCount; ++library) {
        const std::string part = std::string("/") + kLibraries[library];
        const std::size_t at = name.find(part);
        if (at == std::string::npos) continue;
        document = name.substr(0, at) + name.substr(at + part.size());
        return true;
    }
    return false;
}

class RatioReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            std::string name;
            std::size_t library = 0;
            const bool isMeasurement = !run.error_occurred && run.run_type == Run::RT_Iteration;
            if (!isMeasurement || !SplitName(run.benchmark_name(), name, library)) continue;
            if (library == 0) m_order[{run.family_index, run.per_family_instance_index}] = name;
            Result& result = m_documents[name][library];
            // The fastest of several repetitions is the one that was disturbed least.
            if (result.time != 0 && result.time <= run.GetAdjustedCPUTime()) continue;
            result = {run.GetAdjustedCPUTime(), Counter(run, "bytes_per_second"), Counter(run, "per_item")};
        }
    }

    void Finalize() override {
        std::printf("\n%-28s %-8s %8s | times as fast as           | allocations for each object and text\n", "", "",
                    "MiB/s");
        std::printf("%-28s %-8s %8s |", "", "", "");
        for (std::size_t i = kProfileCount; i < kLibraryCount; ++i) std::printf(" %8s", kLibraries[i]);
        std::printf(" | %8s", "own");
        for (std::size_t i = kProfileCount; i < kLibraryCount; ++i) std::printf(" %8s", kLibraries[i]);
        std::printf("\n");
        for (const auto& [order, name] : m_order) {
            for (std::size_t profile = 0; profile < kProfileCount; ++profile) {
                PrintLine(name, m_documents[name], profile);
            }
        }
    }

  private:
    struct Result {
        double time;
        double bytesPerSecond;
        double allocations;  ///< Negative: not counted.
    };
    using Results = std::map<std::size_t, Result>;

    static double Counter(const Run& run, const char* name) {
        const auto found = run.counters.find(name);
        return found != run.counters.end() ? static_cast<double>(found->second) : -1;
    }

    static void PrintLine(const std::string& name, const Results& results, std::size_t profile) {
        const auto own = results.find(profile);
        if (own == results.end() || results.size() < 2) return;
        std::printf("%-28s %-8s %8.1f |", name.c_str(), kProfiles[profile], own->second.bytesPerSecond / (1 << 20));
        for (std::size_t library = kProfileCount; library < kLibraryCount; ++library) {
            const auto peer = results.find(library);
            PrintCell(peer != results.end() ? peer->second.time / own->second.time : -1);
        }
        std::printf(" |");
        PrintCell(own->second.allocations);
        for (std::size_t library = kProfileCount; library < kLibraryCount; ++library) {
            const auto peer = results.find(library);
            PrintCell(peer != results.end() ? peer->second.allocations : -1);
        }
        std::printf("\n");
    }

    static void PrintCell(double value) {
        if (value < 0) {
            std::printf(" %8s", "-");
        } else {
            std::printf(" %8.2f", value);
        }
    }

    std::map<std::string, Results> m_documents;
    /// The documents that this library was measured on, in the order in which they were added.
    std::map<std::pair<std::int64_t, std::int64_t>, std::string> m_order;
};

}  // namespace

int main(int argc, char** argv) {
    AddServiceDocuments();
    AddRegistrationDocuments();
    AddConferenceDocuments();
    AddPresenceDocuments();
    AddMessagingDocuments();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
