// The altitude of the farthest municipality against reading the file's bytes.

#include <benchmark/benchmark.h>

#include <cstdlib>

#include "platform/files.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"
#include "site/municipalities.h"
#include "tests/support/temporary_directory.h"

namespace {

using namespace coltre;

/// A directory with the built-in table.
class TableDirectory : public TemporaryDirectory {
  public:
    TableDirectory() {
        if (replace_altitude_file(text(), built_in_altitude_file()).failure) std::abort();
    }
};

void read_altitude_farthest(benchmark::State& state) {
    const TableDirectory directory;
    AltitudeNotices notices;
    for (auto _ : state) {
        const auto altitude = ReadAltitude(directory.text(), "Oristano", "Zerfaliu", notices);
        if (altitude != "15") state.SkipWithError("wrong altitude");
    }
}

void read_file_bytes(benchmark::State& state) {
    const TableDirectory directory;
    const std::string name = altitude_file_name(directory.text());
    for (auto _ : state) {
        const auto bytes = read_file(name);
        benchmark::DoNotOptimize(bytes->data());
    }
}

BENCHMARK(read_altitude_farthest)->Unit(benchmark::kMicrosecond);
BENCHMARK(read_file_bytes)->Unit(benchmark::kMicrosecond);

}  // namespace
