#pragma once

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/files.h"

namespace coltre {

/// A directory of a test's own, removed with all that is in it.
class TemporaryDirectory {
  public:
    TemporaryDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "coltre-XXXXXX").string();
        m_path = ::mkdtemp(name.data());
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

    void put(std::string_view name, std::string_view bytes) const {
        std::ofstream(m_path / name, std::ios::binary) << bytes;
    }
    [[nodiscard]] std::optional<std::string> content(const std::string& name) const {
        return read_file(text() + "\\" + name);
    }
    /// Names of all that the directory holds, sorted.
    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

  private:
    std::filesystem::path m_path;
};

}  // namespace coltre
