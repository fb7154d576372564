#include "calculate/return_period.h"

#include <gmock/gmock.h>

#include <optional>

#include "tests/support/fake_doors.h"

namespace coltre {
namespace {

// The dialog's messages stand in the golden files.
TEST(ReturnPeriod, CellTakesEvenWhatIsRejected) {
    ProgramCells cells;
    FakeDoors fake;
    EXPECT_EQ(confirm_return_period(" 75.5 ", cells, fake).OutputPerRit, "75.5");
    EXPECT_EQ(cells.return_period, 75.5);
    EXPECT_NEAR(cells.return_period_factor, 0.8623, 5e-5);  // 0.273 (1 + 0.5 x 4.3175)
    EXPECT_EQ(confirm_return_period("1e17", cells, fake).OutputPerRit, std::nullopt);
    EXPECT_EQ(confirm_return_period("1e309", cells, fake).fault, Fault::numeric_error);
    EXPECT_EQ(cells.return_period, 1e17) << "the last number that was read";
    EXPECT_NEAR(cells.return_period_factor, 0.8623, 5e-5);
    EXPECT_THAT(fake.shown, testing::SizeIs(2));
}

}  // namespace
}  // namespace coltre
