#pragma once

#include <ostream>
#include <string>

namespace coltre::cli {

/// What `comuni` is asked for.
struct PlacesQuery {
    std::string text;      ///< name of 1996 or of today, or part of it; empty: all municipalities
    std::string province;  ///< of 1996, or the plate of one of today; empty: any
    bool json = false;     ///< an object a line instead of the table
};

/// Lists the municipalities with zone and altitude, those of altitudini.txt of the directory.
/// @return the exit status: 1 if there is none
int places_command(const PlacesQuery& query, std::string_view directory, std::ostream& out,
                   std::ostream& err);

}  // namespace coltre::cli
