#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "tests/support/temporary_directory.h"

namespace coltre {

/// A program directory with whatever altitude files a test puts there.
class AltitudeDirectory : public TemporaryDirectory {
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
};

}  // namespace coltre
