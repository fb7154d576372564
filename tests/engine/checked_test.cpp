#include "engine/checked.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

TEST(Checked, KeepsTheFirstFault) {
    const Checked by_zero = Checked(1) / 0;
    const Checked undefined = Checked(0) / 0;
    EXPECT_EQ(by_zero.fault(), Fault::division_by_zero);
    EXPECT_EQ((Checked(-1) / -0.0).fault(), Fault::division_by_zero);
    EXPECT_EQ(undefined.fault(), Fault::numeric_error);
    for (const Checked& result :
         {Checked(1.7e308) + 1.7e308, Checked(-1.7e308) - 1.7e308, Checked(1e200) * -1e200,
          Checked(1e200) / 1e-200, squared(Checked(-1e155)), ln(Checked(0)), ln(Checked(-1)), 2 / undefined})
        EXPECT_EQ(result.fault(), Fault::numeric_error);
    for (const Checked& result : {by_zero * undefined, 0 * by_zero, by_zero / 0, ln(by_zero),
                                  min(Checked(1), by_zero), max(by_zero, undefined)})
        EXPECT_EQ(result.fault(), Fault::division_by_zero);
    for (const Checked& result : {Checked(1e-300) * 1e-300, Checked(1e-300) / 1e300})
        EXPECT_EQ(result.fault(), Fault::none) << "underflow is no fault";
}

}  // namespace
}  // namespace coltre
