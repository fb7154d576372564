#pragma once

#include <string>

#include "cli/request.h"
#include "cli/result.h"
#include "cli/site_memory.h"

namespace coltre::cli {

/// Where a request finds what it does not say.
struct Surroundings {
    std::string own_directory;  ///< of the program, in the suite's notation: holds altitudini.txt by default
    char decimal_separator = '.';  ///< of the user's locale, for the strictly read fields
};

/// Performs one request on fresh program cells. By name the road is the window's: choosing the province, then
/// the municipality; a missing altitudini.txt is written on the way.
/// @param memory  sites found by earlier requests of the same batch
Result perform(const Request& request, const Surroundings& surroundings, SiteMemory& memory);

}  // namespace coltre::cli
