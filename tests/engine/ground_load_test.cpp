#include "engine/ground_load.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

// By hand: at the reference altitude of its zone a load is twice the load factor, 2 x 1.39 and so on. Just
// above 200 m: 1.39 (1 + 0.075475), 1.35 (1 + 0.110372), 0.85 (1 + 0.172890), 0.51 (1 + 0.172890).
TEST(GroundLoad, OfEachZone) {
    struct Case {
        SnowZone zone;
        double up_to_200, just_above;
        double reference, at_reference;
    };
    for (const Case& c : {
             Case{0, 1.5, 1.49491, 728, 2.78},
             Case{1, 1.5, 1.49900, 602, 2.70},
             Case{2, 1.0, 0.99696, 481, 1.70},
             Case{3, 0.6, 0.59817, 481, 1.02},
         }) {
        ProgramCells cells;
        cells.zone = c.zone;
        const auto load = [&](double altitude) {
            EXPECT_EQ(set_base_ground_load(cells, altitude), Fault::none);
            return cells.qsk;
        };
        EXPECT_EQ(load(-5), c.up_to_200);
        EXPECT_EQ(load(200), c.up_to_200);
        EXPECT_NEAR(load(200.0001), c.just_above, 6e-6) << "zone " << c.zone;
        EXPECT_NEAR(load(c.reference), c.at_reference, 1e-12) << "zone " << c.zone;
    }
}

TEST(GroundLoad, StaysWhereItCannotBeComputed) {
    ProgramCells cells;
    cells.qsk = 7;
    EXPECT_EQ(set_base_ground_load(cells, 1e200), Fault::numeric_error);
    cells.zone = 4;
    EXPECT_EQ(set_base_ground_load(cells, 100), Fault::none);
    EXPECT_EQ(apply_load_factors(cells, 1e308, 1), Fault::numeric_error);
    EXPECT_EQ(cells.qsk, 7);
    cells.return_period_factor = 0.5;
    EXPECT_EQ(apply_load_factors(cells, 1.1, 2), Fault::none);
    EXPECT_NEAR(cells.qsk, 7.7, 1e-12);
}

// Published values, to their four decimals.
TEST(ReturnPeriodFactor, GrowsWithTheYears) {
    EXPECT_NEAR(return_period_factor(10).value(), 0.5802, 5e-5);
    EXPECT_NEAR(return_period_factor(50).value(), 0.8056, 5e-5);
    EXPECT_NEAR(return_period_factor(500).value(), 1.1212, 5e-5);
    for (const double years : {1.0, 0.5, 1e17})
        EXPECT_EQ(return_period_factor(years).fault(), Fault::numeric_error) << years;
    EXPECT_EQ(return_period_factor(0).fault(), Fault::division_by_zero);
}

}  // namespace
}  // namespace coltre
