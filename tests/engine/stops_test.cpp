#include <gmock/gmock.h>

#include <variant>

#include "engine/roof_loads.h"
#include "engine/special_loads.h"

namespace coltre {
namespace {

using namespace results;

const std::vector<ResultCell> all_cells{
    qs_1,  qe_1,      qs_2a,     qs_2b,     qe_2a,    qe_2b,    qs_2c,    qs_2d,   qe_2c, qe_2d,
    qs_3a, qs_3b,     qs_3c,     L1,        L2,       qs_4a,    qs_4b,    qs_4c,   qe_4a, qe_4b,
    qe_4c, level_mu2, level_qs1, level_qs2, level_ls, wall_qs1, wall_qs2, wall_ls, Fs};

// A pitch from 60 degrees on has no load, and its overhang load is a division by that; a cylinder of H =
// -0.02 L has mu3 = 0. The greatest double is 1.8e308.
TEST(StoppedCalculation, SetsTheCellsBeforeTheFaultAlone) {
    constexpr double untouched = 7;
    constexpr Fault by_zero = Fault::division_by_zero;
    constexpr Fault numeric = Fault::numeric_error;
    struct Case {
        double qsk;
        std::variant<Roof, SpecialCaseEntries> what;
        Fault fault;
        const char* quantity;
        const char* set;  ///< cells set, in their order
    };
    for (const Case& c : {
             Case{1, Roof{RoofFamily::one_pitch, 60}, by_zero, "qe_1", "qs_1 "},
             Case{1, Roof{RoofFamily::two_pitches, 70, 20}, by_zero, "qe_2a", "qs_2a qs_2b "},
             Case{1, Roof{RoofFamily::two_pitches, 20, 70}, by_zero, "qe_2c",
                  "qs_2a qs_2b qe_2a qe_2b qs_2c qs_2d "},
             Case{1.5e308, Roof{RoofFamily::several_pitches, 20, 40}, numeric, "qs_3c", "qs_3a qs_3b "},
             Case{1, Roof{RoofFamily::cylindrical, 0, 0, 10, -0.2}, by_zero, "qe_4b",
                  "L1 L2 qs_4a qs_4b qs_4c qe_4a "},
             Case{1, Roof{RoofFamily::cylindrical, 0, 0, 4, 2.0001}, Fault::incongruent_dimensions, "", ""},
             Case{1, SpecialCaseEntries{.b1 = 10, .b2 = 4}, by_zero, "mu2", ""},
             Case{0, SpecialCaseEntries{SpecialCase::wall, 0, 0, 2}, by_zero, "mu2", "qs1 "},
             Case{1, SpecialCaseEntries{SpecialCase::snow_guard, 0, 0, 0, 30, 1e200, 1e200}, numeric, "Fs",
                  ""},
         }) {
        ProgramCells cells;
        for (const ResultCell& cell : all_cells)
            cells.*cell.cell = untouched;
        cells.qsk = c.qsk;
        const auto* const roof = std::get_if<Roof>(&c.what);
        const Calculation calculation =
            roof != nullptr ? calculate_roof(cells, *roof)
                            : calculate_special_case(cells, std::get<SpecialCaseEntries>(c.what));
        EXPECT_EQ(calculation.end.fault, c.fault) << c.quantity;
        EXPECT_EQ(calculation.end.quantity, c.quantity);
        std::string names;
        for (const Result& it : calculation.results)
            names += std::string(it.cell->name) + " ";
        EXPECT_EQ(names, c.set);
        for (const ResultCell& cell : all_cells)
            EXPECT_EQ(cells.*cell.cell != untouched,
                      std::ranges::count(calculation.results, cell.cell,
                                         [](const Result& it) { return it.cell->cell; }) == 1)
                << cell.name;
    }
}

}  // namespace
}  // namespace coltre
