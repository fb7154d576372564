#pragma once

#include <string>

#include "requests/answer.h"
#include "requests/request.h"
#include "requests/site_memory.h"

namespace coltre {

/// Where a request finds what it does not say.
struct Environment {
    std::string own_directory;     ///< of altitudini.txt by default, in the suite's notation
    char decimal_separator = '.';  ///< of the user's locale, for the strictly read fields
};

/// The controls of the windows as a request has them; what it does not name as the command takes it.
/// @param request  without a validation error
Fields fields_of(const Request& request, std::string altitude, char decimal_separator);

/// Performs one request on fresh program cells. A site by name is chosen as in the window, province, then
/// municipality, but an altitudini.txt that is there stays as it is; a missing one is written.
/// @param memory  tables and sites that earlier requests of the same batch asked for
Answer perform(const Request& request, const Environment& environment, SiteMemory& memory);

}  // namespace coltre
