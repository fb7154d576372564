// A report field against the same field by snprintf; a unit command at the table's end against one at its
// start.

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <string>

#include "report/formatta_cond.h"

namespace {

using namespace coltre;

void format(benchmark::State& state, std::string_view directives) {
    Messages messages;
    double value = 1.23456789;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        const auto text = formatta(value, directives, 1.0, messages);
        benchmark::DoNotOptimize(text->data());
    }
}

void formatta_field(benchmark::State& state) {
    format(state, "(FD_08)(DV_04)(SC_|)");
}
void unit_command_first_family(benchmark::State& state) {
    format(state, "(FD_08)(DV_04)(SC_|)(cu_m_cm)");
}
void unit_command_last_family(benchmark::State& state) {
    format(state, "(FD_08)(DV_04)(SC_|)(cu_W/cmK_W/mK)");
}

void snprintf_field(benchmark::State& state) {
    double value = 1.23456789;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        std::array<char, 32> text;
        std::snprintf(text.data(), text.size(), "%8.4f|", value);
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(formatta_field);
BENCHMARK(snprintf_field);
BENCHMARK(unit_command_first_family);
BENCHMARK(unit_command_last_family);

}  // namespace
