// A calculation with its record against the same formulas written inline, without checks, that fill the same
// record.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "engine/calculation.h"

namespace {

using namespace coltre;

void calculate(benchmark::State& state, const Entries& entries) {
    ProgramCells cells;
    cells.qsk = 1.65;
    for (auto _ : state) {
        Entries typed = entries;
        benchmark::DoNotOptimize(typed);
        benchmark::DoNotOptimize(calculate(cells, typed));
        benchmark::ClobberMemory();
    }
}

void one_pitch(benchmark::State& state) {
    calculate(state, {.kind = Kind::one_pitch, .alfa = 35});
}
void two_pitches(benchmark::State& state) {
    calculate(state, {.kind = Kind::two_pitches, .alfa1 = 35, .alfa2 = 50});
}
void several_pitches(benchmark::State& state) {
    calculate(state, {.kind = Kind::several_pitches, .alfa1 = 35, .alfa2 = 50});
}
void cylindrical(benchmark::State& state) {
    calculate(state, {.kind = Kind::cylindrical, .L = 10, .H = 2});
}

double plain_mu1(double alfa) {
    return alfa <= 30 ? 0.8 : alfa <= 60 ? (60 - alfa) * 0.8 / 30 : 0;
}
double plain_mu2(double alfa) {
    return alfa <= 30 ? 0.8 / 30 * alfa + 0.8 : alfa <= 60 ? 1.6 : 0;
}
double plain_qe(double qs) {
    const double d = qs / 3;
    return std::pow(qs, 2.0) * std::min(3 / d, 3 * d) / 3;
}

using namespace results;

/// Runs formulas of two entries on an input and cells that the compiler must not look through, and fills the
/// same record.
/// @param set  the results in the order in which the record has them
template <typename Formulas>
void calculate_inline(benchmark::State& state, double first, double second,
                      std::initializer_list<const ResultCell*> set, Formulas formulas) {
    ProgramCells cells;
    cells.qsk = 1.65;
    for (auto _ : state) {
        benchmark::DoNotOptimize(first);
        benchmark::DoNotOptimize(second);
        Calculation record;
        formulas(cells, record, first, second);
        for (const ResultCell* cell : set)
            record.results.push_back({cell, cells.*cell->cell});
        for (const LoadCase& load_case : record.load_cases)
            record.coefficients.push_back({load_case.label, load_case.mu});
        benchmark::ClobberMemory();
        benchmark::DoNotOptimize(cells);
        benchmark::DoNotOptimize(record);
    }
}

void one_pitch_inline(benchmark::State& state) {
    calculate_inline(state, 35, 0, {&qs_1, &qe_1},
                     [](ProgramCells& c, Calculation& record, double alfa, double) {
                         c.mu1 = plain_mu1(alfa);
                         c.qs_1 = c.mu1 * c.qsk;
                         c.qe_1 = plain_qe(c.qs_1);
                         record.load_cases = {{"mu1", c.mu1, c.qs_1, c.qe_1}};
                     });
}

void two_pitches_inline(benchmark::State& state) {
    calculate_inline(state, 35, 50, {&qs_2a, &qs_2b, &qe_2a, &qe_2b, &qs_2c, &qs_2d, &qe_2c, &qe_2d},
                     [](ProgramCells& c, Calculation& record, double alfa1, double alfa2) {
                         const double mu = plain_mu1(alfa1);
                         c.qs_2a = mu * c.qsk;
                         c.qs_2b = 0.5 * mu * c.qsk;
                         c.qe_2a = plain_qe(c.qs_2a);
                         c.qe_2b = plain_qe(c.qs_2b);
                         c.mu1 = plain_mu1(alfa2);
                         c.qs_2c = c.mu1 * c.qsk;
                         c.qs_2d = 0.5 * c.mu1 * c.qsk;
                         c.qe_2c = plain_qe(c.qs_2c);
                         c.qe_2d = plain_qe(c.qs_2d);
                         record.load_cases = {{"mu1(alfa1)", mu, c.qs_2a, c.qe_2a},
                                              {"0.5mu1(alfa1)", 0.5 * mu, c.qs_2b, c.qe_2b},
                                              {"mu1(alfa2)", c.mu1, c.qs_2c, c.qe_2c},
                                              {"0.5mu1(alfa2)", 0.5 * c.mu1, c.qs_2d, c.qe_2d}};
                     });
}

void several_pitches_inline(benchmark::State& state) {
    calculate_inline(state, 35, 50, {&qs_3a, &qs_3b, &qs_3c},
                     [](ProgramCells& c, Calculation& record, double alfa1, double alfa2) {
                         const double mu = plain_mu1(alfa1);
                         c.qs_3a = mu * c.qsk;
                         c.mu1 = plain_mu1(alfa2);
                         c.qs_3b = c.mu1 * c.qsk;
                         c.mu2 = plain_mu2((alfa1 + alfa2) / 2);
                         c.qs_3c = c.mu2 * c.qsk;
                         record.load_cases = {{"mu1(alfa1)", mu, c.qs_3a, {}},
                                              {"mu1(alfa2)", c.mu1, c.qs_3b, {}},
                                              {"mu2((alfa1+alfa2)/2)", c.mu2, c.qs_3c, {}}};
                     });
}

void cylindrical_inline(benchmark::State& state) {
    calculate_inline(state, 10, 2, {&L1, &L2, &qs_4a, &qs_4b, &qs_4c, &qe_4a, &qe_4b, &qe_4c},
                     [](ProgramCells& c, Calculation& record, double L, double H) {
                         const double R = L / 2 * std::tan(2 * std::atan((L - 2 * H) / (L + 2 * H))) + H;
                         c.L1 = 2 * R * std::cos(30.0 / 180 * 4 * std::atan(1.0));
                         c.L2 = c.L1 / 4;
                         c.mu1 = 0.8;
                         c.mu3 = std::min(10 * H / L + 0.2, 2.0);
                         c.mu2 = 0.5 * c.mu3;
                         c.qs_4a = c.mu1 * c.qsk;
                         c.qs_4b = c.mu2 * c.qsk;
                         c.qs_4c = c.mu3 * c.qsk;
                         c.qe_4a = plain_qe(c.qs_4a);
                         c.qe_4b = plain_qe(c.qs_4b);
                         c.qe_4c = plain_qe(c.qs_4c);
                         record.load_cases = {{"mu1", c.mu1, c.qs_4a, c.qe_4a},
                                              {"0.5mu3", c.mu2, c.qs_4b, c.qe_4b},
                                              {"mu3", c.mu3, c.qs_4c, c.qe_4c}};
                     });
}

BENCHMARK(one_pitch);
BENCHMARK(one_pitch_inline);
BENCHMARK(two_pitches);
BENCHMARK(two_pitches_inline);
BENCHMARK(several_pitches);
BENCHMARK(several_pitches_inline);
BENCHMARK(cylindrical);
BENCHMARK(cylindrical_inline);

}  // namespace
