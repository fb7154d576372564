#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <optional>

#include "tests/support/fake_doors.h"
#include "tests/support/temporary_directory.h"

namespace coltre {

/// A program directory with whatever altitude files a test puts there, and its user.
class AltitudeDirectory : public testing::Test, public TemporaryDirectory {
  public:
    void put(std::string_view name, std::string_view bytes) const {
        std::ofstream(path() / name, std::ios::binary) << bytes;
    }
    [[nodiscard]] std::optional<std::string> content(const std::string& name) const {
        return read_file(text() + "\\" + name);
    }
    /// Names of all that the directory holds, sorted.
    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path()))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }
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
