#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/messages.h"

// Reading altitudini.txt, whole for each choice that the user makes: a file edited meanwhile counts at once.
// When a read fails the file is written anew from the built-in table and read once more; a second failure is
// told to the user and ends the program. A file that reads without error is never rewritten.
//
// A read fails where the file cannot be read, holds no line that equals the province, or where it comes upon
// the end of the file or a line without a blank. Deliberate: of the built-in table itself "Vicenza" (a line
// "33543") and "Oristano" (no empty line at the end of the file) fail.
namespace coltre {

/// The municipalities of a province.
struct MunicipalityList {
    std::vector<std::string> names;  ///< at least one, in the order of the file
    std::string altitude;            ///< text of ReadAltitude() for the first
};

/// The municipalities of a province for the list `comuneinput`, and what selecting its first entry reads.
/// @return nothing if the program must end
std::optional<MunicipalityList> FillMunicipalities(std::string_view ProgramDirectory,
                                                   std::string_view province, Messages& messages);

/// The altitude of a municipality, m, as the text for `asinput`: the last four characters of its line without
/// blanks. The first line of that name behind the province's header counts. Deliberate: the last block has no
/// empty line that would end the search for a name it does not hold; the file's last line is taken then.
/// @return nothing if the program must end
std::optional<std::string> ReadAltitude(std::string_view ProgramDirectory, std::string_view province,
                                        std::string_view municipality, Messages& messages);

}  // namespace coltre
