#include "engine/special_loads.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

TEST(LevelChange, SlopeAbove15ChangesTheMu1CellAlone) {
    for (const auto& [alfa, mu1] : {std::pair{15.0, 7.0}, {15.01, 0.8}, {45.0, 0.4}, {60.01, 0.0}}) {
        ProgramCells cells;
        cells.qsk = 1;
        cells.mu1 = 7;
        calculate(cells, {.kind = Kind::level_change, .alfa = alfa, .b1 = 10, .b2 = 20, .h = 1});
        EXPECT_NEAR(cells.mu1, mu1, 1e-12) << alfa;
        EXPECT_EQ(cells.level_mu2, 2) << alfa;
    }
}

}  // namespace
}  // namespace coltre
