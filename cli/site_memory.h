#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "engine/program_cells.h"

namespace coltre::cli {

/// A site as altitudini.txt gave it.
struct Site {
    std::string province;  ///< in the spelling of the table
    std::string municipality;
    std::string altitude;  ///< text of the altitude field
    SnowZone zone = 0;     ///< of the province
};

/// The sites that a batch has found by name, so that a million requests do not read altitudini.txt a million
/// times. A site counts only as long as the file is as it was: what an engineer changes meanwhile counts at
/// once.
class SiteMemory {
  public:
    /// The site that these names gave in this directory; nothing if they have not been looked for in the file
    /// as it is now.
    std::optional<Site> recall(std::string_view directory, std::string_view province,
                               std::string_view municipality);

    /// Keeps a site that was read after the recall() of the same names found nothing.
    void keep(std::string_view directory, std::string_view province, std::string_view municipality,
              const Site& site);

  private:
    using WriteTime = std::optional<std::filesystem::file_time_type>;

    /// When the file of the directory was written; nothing if it cannot be told.
    WriteTime write_time(std::string_view directory);

    std::string m_directory;       // of the sites below
    std::filesystem::path m_file;  // its altitudini.txt
    WriteTime m_written;           // when the file was written that the sites come from
    std::map<std::pair<std::string, std::string>, Site> m_sites;  // by the names as given
};

}  // namespace coltre::cli
