#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>
#include <system_error>

#include "platform/files.h"

namespace coltre {

/// A new empty directory, removed at the end with all that is in it.
class TemporaryDirectory {
  public:
    TemporaryDirectory() {
        static int count = 0;
        const std::string name = "coltre-" + std::to_string(::getpid()) + "-";
        do {
            m_path = std::filesystem::temp_directory_path() / (name + std::to_string(++count));
        } while (!std::filesystem::create_directory(m_path));
    }
    ~TemporaryDirectory() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }
    /// The path in the suite's notation.
    [[nodiscard]] std::string text() const { return suite_notation(m_path); }

  private:
    std::filesystem::path m_path;
};

}  // namespace coltre
