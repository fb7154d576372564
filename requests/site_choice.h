#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "requests/answer.h"
#include "requests/request.h"
#include "requests/site_memory.h"
#include "startup/program.h"

namespace coltre {

/// The site of a request that names one, with its zone in the zone cell: province, then municipality, chosen
/// as the window does. Names need not be spelled as in the table: a single name that differs in case,
/// accents, apostrophes and blanks alone is meant.
/// @param request  with both names
/// @param memory   sites found by earlier requests of the same batch
/// @param result   takes the names, and what is wrong where the site cannot be had
/// @return nothing in that case
std::optional<Site> site_by_name(const Request& request, Program& program, SiteMemory& memory,
                                 Answer& result);

/// "comune sconosciuto: «Torin»; forse Torino, Corio"
/// @param what     "comune sconosciuto"
/// @param perhaps  what was perhaps meant, if anything
std::string not_found(std::string_view what, std::string_view typed, std::string_view perhaps);
std::string not_found(std::string_view what, std::string_view typed, std::span<const std::string> perhaps);

}  // namespace coltre
