#pragma once

#include <gmock/gmock.h>

#include "tests/support/fake_doors.h"
#include "tests/support/temporary_directory.h"

namespace coltre {

/// A program directory with whatever altitude files a test puts there, and its user.
class AltitudeDirectory : public testing::Test, public TemporaryDirectory {
  public:
    /// The program ended once, after this error; then all starts anew.
    void expect_ended_with(const std::string& text) {
        EXPECT_THAT(fake.shown, testing::ElementsAre(Message{Icon::error, "Coltre", text}));
        EXPECT_EQ(fake.ended, 1);
        fake.shown.clear();
        fake.ended = 0;
    }

    void TearDown() override { EXPECT_TRUE(fake.shown.empty()) << fake.shown.front().text; }

    FakeDoors fake;
    Doors doors = fake.doors();
};

}  // namespace coltre
