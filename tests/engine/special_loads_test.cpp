#include "engine/special_loads.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

ProgramCells calculated(const SpecialCaseEntries& entries, double G) {
    ProgramCells cells;
    cells.qsk = G;
    cells.mu1 = 7;
    CalculationObserver nobody;
    EXPECT_FALSE(calculate_special_case(cells, entries, nobody).stopped());
    return cells;
}

// By hand: mu2 = (b1 + b2) / 2h, not above 2h / G, then from 0.8 to 4.0; ls = 2h from 5 to 15; a drift that
// reaches the end of the lower roof gets qs1 = 0.8 G + (qs2 - 0.8 G) (ls - b2) / ls and ls = b2.
TEST(LevelChange, LimitsAndCut) {
    struct Case {
        double b1, b2, h, G;
        double mu2, qs1, ls;
    };
    for (const Case& c : {
             Case{4, 20, 4, 1, 3, 0.8, 8},  // the width decides, not 2h / G = 8
             Case{4, 20, 7.6, 1, 24 / 15.2, 0.8, 15},
             Case{10, 5.01, 1, 1, 2, 0.8, 5},  // just not cut
             Case{10, 5, 1, 1, 2, 0.8, 5},
             Case{10, 4.99, 1, 1, 2, 0.8024, 4.99},  // just cut
             Case{10, 4, 1, 0.5, 4, 0.72, 4},
         }) {
        const ProgramCells cells = calculated({.b1 = c.b1, .b2 = c.b2, .h = c.h, .alfa = 10}, c.G);
        EXPECT_NEAR(cells.level_mu2, c.mu2, 1e-12) << c.b2;
        EXPECT_NEAR(cells.level_qs2, c.mu2 * c.G, 1e-12) << c.b2;
        EXPECT_NEAR(cells.level_qs1, c.qs1, 1e-12) << c.b2;
        EXPECT_NEAR(cells.level_ls, c.ls, 1e-12) << c.b2;
    }
}

TEST(LevelChange, SlopeAbove15ChangesTheMu1CellAlone) {
    SpecialCaseEntries entries{.b1 = 10, .b2 = 20, .h = 1, .alfa = 15};
    EXPECT_EQ(calculated(entries, 1).mu1, 7);
    entries.alfa = 15.01;
    EXPECT_EQ(calculated(entries, 1).mu1, 0.8);
    entries.alfa = 60.01;
    EXPECT_EQ(calculated(entries, 1).mu1, 0);
    EXPECT_EQ(calculated(entries, 1).level_mu2, 2);
}

// By hand: mu2 = 2h / G = 1.375, between its limits; 2h = 5.5 and 14.5 are between those of ls, and longer
// than b2, which plays no part.
TEST(Wall, BetweenTheLimits) {
    const ProgramCells low = calculated({.special_case = SpecialCase::wall, .b2 = 1, .h = 2.75}, 4);
    EXPECT_NEAR(low.mu2, 1.375, 1e-12) << "the cell of the roofs' mu2";
    EXPECT_EQ(low.level_mu2, 0);
    EXPECT_NEAR(low.wall_qs1, 3.2, 1e-12);
    EXPECT_NEAR(low.wall_qs2, 5.5, 1e-12);
    EXPECT_NEAR(low.wall_ls, 5.5, 1e-12);
    EXPECT_NEAR(calculated({.special_case = SpecialCase::wall, .h = 7.25}, 4).wall_ls, 14.5, 1e-12);
}

}  // namespace
}  // namespace coltre
