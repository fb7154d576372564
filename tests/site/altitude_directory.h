#pragma once

#include <gmock/gmock.h>

#include "site/ScriviAltitudini_cond.h"
#include "tests/support/temporary_directory.h"

namespace coltre {

/// A program directory with whatever altitude files a test puts there, and what is reported of them.
class AltitudeDirectory : public testing::Test, public TemporaryDirectory {
  public:
    /// This error was reported and nothing else; then all starts anew.
    void expect_ended_with(const std::string& text) {
        EXPECT_THAT(std::exchange(notices.messages, {}),
                    testing::ElementsAre(Message{Icon::error, "Coltre", text}));
    }

    void TearDown() override { EXPECT_TRUE(notices.messages.empty()) << notices.messages.front().text; }

    AltitudeNotices notices;
};

}  // namespace coltre
