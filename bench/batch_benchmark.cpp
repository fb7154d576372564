// A batch against a program that only parses the same request lines and writes the same result lines with the
// JSON library.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>
#include <vector>

#include "bench/request_lines.h"
#include "cli/batch.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"
#include "tests/support/temporary_directory.h"

namespace {

using namespace coltre;

constexpr long line_count = 10000;

std::string request_lines(std::string (*request)(long)) {
    std::string lines;
    for (long i = 0; i < line_count; ++i)
        lines += request(i) + '\n';
    return lines;
}

/// A directory with the built-in table, from which the requests by name read.
struct Table {
    TemporaryDirectory directory;
    Environment environment{.own_directory = directory.text()};

    Table() {
        if (replace_altitude_file(directory.text(), built_in_altitude_file()).failure) std::abort();
    }
};

std::string batch_results(const std::string& requests, const Environment& environment) {
    std::istringstream in(requests);
    std::ostringstream out;
    cli::run_batch(in, out, environment);
    return std::move(out).str();
}

void batch(benchmark::State& state, std::string (*request)(long)) {
    const Table table;
    const std::string requests = request_lines(request);
    for (auto _ : state)
        benchmark::DoNotOptimize(batch_results(requests, table.environment).data());
}

void parse_and_write(benchmark::State& state, std::string (*request)(long)) {
    const Table table;
    const std::string requests = request_lines(request);
    std::vector<nlohmann::ordered_json> results;
    std::istringstream lines(batch_results(requests, table.environment));
    for (std::string line; std::getline(lines, line);)
        results.push_back(nlohmann::ordered_json::parse(line));

    for (auto _ : state) {
        std::istringstream in(requests);
        std::ostringstream out;
        std::size_t i = 0;
        for (std::string line; std::getline(in, line); ++i) {
            const auto parsed = nlohmann::json::parse(line);
            benchmark::DoNotOptimize(&parsed);
            out << results[i].dump() << '\n';
        }
        benchmark::DoNotOptimize(out.str().data());
    }
}

void batch_by_zone(benchmark::State& state) {
    batch(state, request_by_zone);
}
void batch_by_name(benchmark::State& state) {
    batch(state, request_by_name);
}
void parse_and_write_by_zone(benchmark::State& state) {
    parse_and_write(state, request_by_zone);
}
void parse_and_write_by_name(benchmark::State& state) {
    parse_and_write(state, request_by_name);
}

BENCHMARK(batch_by_zone)->Unit(benchmark::kMillisecond);
BENCHMARK(parse_and_write_by_zone)->Unit(benchmark::kMillisecond);
BENCHMARK(batch_by_name)->Unit(benchmark::kMillisecond);
BENCHMARK(parse_and_write_by_name)->Unit(benchmark::kMillisecond);

}  // namespace
