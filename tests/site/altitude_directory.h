#pragma once

#include <gmock/gmock.h>

#include "platform/messages.h"
#include "tests/support/temporary_directory.h"

namespace coltre {

/// A program directory with whatever altitude files a test puts there, and what the user is told.
class AltitudeDirectory : public testing::Test, public TemporaryDirectory {
  public:
    /// This error was told and nothing else; then all starts anew.
    void expect_ended_with(const std::string& text) {
        EXPECT_THAT(std::exchange(told, {}), testing::ElementsAre(Message{Icon::error, "Coltre", text}));
    }

    void TearDown() override { EXPECT_TRUE(told.empty()) << told.front().text; }

    Messages told;
};

}  // namespace coltre
