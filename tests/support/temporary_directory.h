#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>
#include <system_error>

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

  private:
    std::filesystem::path m_path;
};

}  // namespace coltre
