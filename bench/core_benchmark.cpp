// Runs the benchmarks of the core in random interleaving and prints the fastest repetition of each beside
// that of its reference: machines are shared and noisy, which makes a repetition slower and never faster, and
// only ratios within one run count.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "bench/figure.h"

namespace {

using namespace coltre;

/// Two benchmarks by the names of their functions.
struct Ratio {
    const char* measured;
    const char* reference;
    double at_most;
};

constexpr Ratio ratios[] = {
    {"one_pitch", "one_pitch_inline", 2},
    {"two_pitches", "two_pitches_inline", 2},
    {"several_pitches", "several_pitches_inline", 2},
    {"cylindrical", "cylindrical_inline", 2},
    {"formatta_field", "snprintf_field", 3},
    {"unit_command_last_family", "unit_command_first_family", 1.5},
    {"read_altitude_farthest", "read_file_bytes", 1.3},
    {"batch_by_zone", "parse_and_write_by_zone", 0.8},
    {"batch_by_name", "parse_and_write_by_name", 1.1},
};

/// The repetitions of one benchmark.
struct Times {
    const char* unit = "";
    std::vector<double> all;

    [[nodiscard]] double fastest() const { return std::ranges::min(all); }
};

/// Keeps the times of every benchmark; prints nothing of its own.
class TimeCollector : public benchmark::BenchmarkReporter {
  public:
    std::map<std::string, Times> benchmarks;
    bool failed = false;

    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            failed = failed || run.error_occurred;
            if (run.run_type != Run::RT_Iteration) continue;
            Times& times = benchmarks[run.run_name.function_name];
            times.unit = benchmark::GetTimeUnitString(run.time_unit);
            times.all.push_back(run.GetAdjustedCPUTime());
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> options{argv[0], "--benchmark_enable_random_interleaving=true",
                                     "--benchmark_repetitions=25", "--benchmark_min_time=0.03"};
    options.insert(options.end(), argv + 1, argv + argc);
    std::vector<char*> arguments;
    for (std::string& option : options)
        arguments.push_back(option.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

    TimeCollector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    if (collector.failed) return 2;

    for (const Ratio& row : ratios) {
        const auto measured = collector.benchmarks.find(row.measured);
        const auto reference = collector.benchmarks.find(row.reference);
        if (measured == collector.benchmarks.end() || reference == collector.benchmarks.end())
            continue;  // left out by an option
        print({row.measured, measured->second.unit, measured->second.fastest(), reference->second.fastest(),
               row.at_most});
    }
    return 0;
}
