#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "platform/code_page.h"
#include "tests/support/temporary_directory.h"

namespace coltre {

/// A suite installed on disk, with letter cases as people leave them; the current job is job001.
class SuiteTree {
  public:
    SuiteTree() {
        for (const char* name : {"IMPOSTAZIONI", "Progra", "driver", "Custom", "help", "MANUALI",
                                 "VideoCorso", "temp", "Telai", "dati/Lavori/job001"})
            std::filesystem::create_directories(disk_root() / name);
        write_setting("DirLav", to_code_page(jobs()) + "\r\n");
        write_setting("LAVORO", "job001\r\nsecond line\r\n");
    }

    [[nodiscard]] std::filesystem::path disk_root() const { return m_directory.path() / "Arco Suite"; }
    /// The root as the launcher writes it.
    [[nodiscard]] std::string root() const { return suite_notation(disk_root()); }
    [[nodiscard]] std::string jobs() const { return root() + "\\dati\\Lavori"; }
    [[nodiscard]] std::string command_line() const { return "|diroot=" + root() + "|"; }

    void write_setting(const char* name, std::string_view bytes) const {
        std::ofstream(disk_root() / "IMPOSTAZIONI" / name, std::ios::binary) << bytes;
    }
    void remove(const char* name) const { std::filesystem::remove_all(disk_root() / name); }

  private:
    TemporaryDirectory m_directory;
};

}  // namespace coltre
