#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "engine/program_cells.h"
#include "platform/files.h"

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
    /// State of the directory's altitudini.txt; nothing if it cannot be told.
    std::optional<FileState> state(std::string_view directory);

    std::string m_directory;                                      // of the sites below
    std::filesystem::path m_file;                                 // its altitudini.txt
    std::optional<FileState> m_state;                             // of the file that the sites come from
    std::map<std::pair<std::string, std::string>, Site> m_sites;  // by the names as given
};

}  // namespace coltre::cli
