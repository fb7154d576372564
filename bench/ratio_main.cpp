// Runs the benchmarks in random interleaving and prints how each compares with its reference: machines are
// shared and noisy, so only ratios within one run count.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

struct Ratio {
    const char* measured;
    const char* reference;
    double at_most;
};

constexpr std::array ratios{
    Ratio{"one_pitch", "one_pitch_inline", 3},
    Ratio{"two_pitches", "two_pitches_inline", 3},
    Ratio{"several_pitches", "several_pitches_inline", 3},
    Ratio{"cylindrical", "cylindrical_inline", 3},
    Ratio{"formatta_field", "snprintf_field", 4},
    Ratio{"unit_command_last_family", "unit_command_first_family", 1.5},
    Ratio{"read_altitude_farthest", "read_file_bytes", 3},
    Ratio{"batch_by_zone", "parse_and_write_by_zone", 2},
    Ratio{"batch_by_name", "parse_and_write_by_name", 2},
};

/// Keeps the time of every repetition; prints nothing of its own.
class TimeCollector : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration)
                times[run.run_name.function_name].push_back(run.GetAdjustedCPUTime());
        }
    }
    /// Median over the repetitions, ns.
    double median(const std::string& name) {
        std::vector<double>& all = times.at(name);
        std::ranges::nth_element(all, all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2));
        return all[all.size() / 2];
    }

    std::map<std::string, std::vector<double>> times;
};

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> options{argv[0], "--benchmark_enable_random_interleaving=true",
                                     "--benchmark_repetitions=9", "--benchmark_min_time=0.05"};
    options.insert(options.end(), argv + 1, argv + argc);
    std::vector<char*> arguments;
    for (std::string& option : options)
        arguments.push_back(option.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

    TimeCollector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);

    bool all_met = true;
    std::printf("%-26s %12s   %-26s %12s %7s %8s\n", "measured", "ns", "reference", "ns", "ratio", "at most");
    for (const Ratio& row : ratios) {
        if (!collector.times.contains(row.measured) || !collector.times.contains(row.reference)) continue;
        const double measured = collector.median(row.measured);
        const double reference = collector.median(row.reference);
        const double ratio = measured / reference;
        all_met = all_met && ratio <= row.at_most;
        std::printf("%-26s %12.1f   %-26s %12.1f %7.2f %8.1f%s\n", row.measured, measured, row.reference,
                    reference, ratio, row.at_most, ratio <= row.at_most ? "" : "  MISSED");
    }
    return all_met ? 0 : 1;
}
