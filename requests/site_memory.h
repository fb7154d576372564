#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "engine/program_cells.h"
#include "platform/failure.h"
#include "platform/messages.h"

namespace coltre {

/// A site as a table of altitudes gave it.
struct Site {
    std::string province;  ///< in the spelling of the table
    std::string municipality;
    std::string altitude;        ///< text of the altitude field
    SnowZone zone = 0;           ///< of the province
    bool from_built_in = false;  ///< altitudini.txt did not give it, the built-in table did

    bool operator==(const Site&) const = default;
};

/// altitudini.txt of a directory, as a run of the command found it.
struct AltitudeTable {
    std::string_view bytes;  ///< empty for a file that is there but cannot be read
    Failure failure;         ///< why there is none: the file is missing and cannot be written, or the system
                             ///< fails
    bool missing = false;    ///< the failure is the former
};

/// What a run of the command knows of altitudini.txt. A directory's file is read once, whole, when the first
/// request asks for it; where it is missing it is written. What changes meanwhile counts from the next run,
/// so that the order of requests changes no result. Sites are remembered by the names as they were typed.
class SiteMemory {
  public:
    /// The table of a directory, read if this is the first request for it.
    const AltitudeTable& table(std::string_view directory);

    /// The site that these names gave in this directory; null if none is remembered.
    const Site* recall(std::string_view directory, std::string_view province, std::string_view municipality);

    void keep(std::string_view directory, std::string_view province, std::string_view municipality,
              const Site& site);

  private:
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    AltitudeTable read_table(std::string_view directory);

    /// The three texts as one, in m_key.
    std::string_view key(std::string_view directory, std::string_view province,
                         std::string_view municipality);

    std::map<std::string, AltitudeTable, std::less<>> m_tables;  // by directory, in each of its spellings
    std::unordered_set<std::string> m_files;                     // what the tables hold, equal ones once
    std::unordered_map<std::string, Site, Hash, std::equal_to<>> m_sites;
    std::string m_key;
};

}  // namespace coltre
