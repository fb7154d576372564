#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/files.h"

namespace coltre {

/// A directory of a test's own, whose name has accents, removed with all that is in it.
class TemporaryDirectory {
  public:
    TemporaryDirectory() {
        const auto place = std::filesystem::temp_directory_path();
        do {
            m_path = place / to_path("coltre-città-€-" + std::to_string(std::random_device()()));
        } while (!std::filesystem::create_directory(m_path));
    }
    ~TemporaryDirectory() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }
    /// The directory in the suite's notation.
    [[nodiscard]] std::string text() const { return suite_notation(m_path); }
    /// The directory as the system knows it, in UTF-8, with "/" between the names, which JSON takes as it is.
    [[nodiscard]] std::string name() const { return path_text(m_path.generic_u8string()); }

    void put(std::string_view name, std::string_view bytes) const {
        std::ofstream(m_path / to_path(name), std::ios::binary) << bytes;
    }
    [[nodiscard]] std::optional<std::string> content(const std::string& name) const {
        return read_file(text() + "\\" + name);
    }
    /// Names of all that the directory holds, sorted.
    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names.push_back(path_text(entry.path().filename()));
        std::ranges::sort(names);
        return names;
    }

  private:
    std::filesystem::path m_path;
};

}  // namespace coltre
