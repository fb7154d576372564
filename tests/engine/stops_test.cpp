#include <gmock/gmock.h>

#include "engine/calculation.h"

namespace coltre {
namespace {

using namespace results;

// A pitch from 60 degrees on has no load, and its overhang load is a division by that; a cylinder of H =
// -0.02 L has mu3 = 0. The greatest double is 1.8e308.
TEST(StoppedCalculation, SetsTheCellsBeforeTheFaultAlone) {
    constexpr double untouched = 7;
    constexpr Fault by_zero = Fault::division_by_zero;
    constexpr Fault numeric = Fault::numeric_error;
    struct Case {
        double qsk;
        Entries entries;
        Fault fault;
        const char* quantity;
        const ResultCell* cell;
        const char* set;  ///< cells set, in their order
    };
    using enum Kind;
    // clang-format off
    const Case cases[] = {
        {1, {.kind = one_pitch, .alfa = 60}, by_zero, "qe_1", &qe_1, "qs_1 "},
        {1, {.kind = two_pitches, .alfa1 = 70, .alfa2 = 20}, by_zero, "qe_2a", &qe_2a, "qs_2a qs_2b "},
        {1, {.kind = two_pitches, .alfa1 = 20, .alfa2 = 70}, by_zero, "qe_2c", &qe_2c,
         "qs_2a qs_2b qe_2a qe_2b qs_2c qs_2d "},
        {1.5e308, {.kind = several_pitches, .alfa1 = 20, .alfa2 = 40}, numeric, "qs_3c", &qs_3c, "qs_3a qs_3b "},
        {1, {.kind = several_pitches, .alfa1 = 1e308, .alfa2 = 1e308}, numeric, "mu2", nullptr, "qs_3a qs_3b "},
        {1, {.kind = cylindrical, .L = 10, .H = -0.2}, by_zero, "qe_4b", &qe_4b, "L1 L2 qs_4a qs_4b qs_4c qe_4a "},
        {1, {.kind = cylindrical, .L = 4, .H = 2.0001}, Fault::incongruent_dimensions, "", nullptr, ""},
        {1, {.kind = level_change, .alfa = 45, .b1 = 10, .b2 = 4}, by_zero, "mu2", &level_mu2, ""},
        // Inside the cut: the load at the end of a roof that ends behind its beginning.
        {10, {.kind = level_change, .b1 = 1.7e308, .b2 = -1e308, .h = 20}, numeric, "qs1", &level_qs1, "mu2 qs2 qs1 ls "},
        {0, {.kind = wall, .h = 2}, by_zero, "mu2", &wall_mu2, "qs1 "},
        {1, {.kind = snow_guard, .alfa = 30, .qs = 1e200, .b = 1e200}, numeric, "Fs", &Fs, ""},
    };
    // clang-format on
    for (const Case& c : cases) {
        ProgramCells cells;
        for (const ResultCell* cell : results::all)
            cells.*cell->cell = untouched;
        cells.qsk = c.qsk;
        const Calculation calculation = calculate(cells, c.entries);
        EXPECT_EQ(calculation.end.fault, c.fault) << c.quantity;
        EXPECT_EQ(calculation.end.quantity, c.quantity);
        EXPECT_EQ(calculation.end.cell, c.cell);
        std::string names;
        for (const Result& it : calculation.results)
            names += std::string(it.cell->name) + " ";
        EXPECT_EQ(names, c.set);
        for (const ResultCell* cell : results::all) {
            if (cell == &wall_mu2 && c.entries.kind != wall) continue;  // the roofs set it too
            EXPECT_EQ(cells.*cell->cell != untouched,
                      std::ranges::count(calculation.results, cell, &Result::cell) == 1)
                << cell->name;
        }
    }
}

}  // namespace
}  // namespace coltre
