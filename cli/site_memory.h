#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace coltre::cli {

/// A site as altitudini.txt gave it.
struct Site {
    std::string province;  ///< in the spelling of the table
    std::string municipality;
    std::string altitude;  ///< text of the altitude field
};

/// Which state of a file: it changes whenever the file is written anew or replaced.
struct FileState {
    std::filesystem::file_time_type written;
    std::uintmax_t size = 0;

    bool operator==(const FileState&) const = default;
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
    using Names = std::tuple<std::string, std::string, std::string>;
    struct Kept {
        FileState state;
        Site site;
    };

    std::map<Names, Kept> m_sites;
    std::optional<FileState> m_state;  // at the last recall()
};

}  // namespace coltre::cli
