#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "site/ScriviAltitudini_cond.h"

// Reading altitudini.txt.
//
// A read fails where the file cannot be read, holds no line that equals the province, or where it comes upon
// the end of the file or a line without a blank. Deliberate: of the built-in table itself "Vicenza" (a line
// "33543") and "Oristano" (no empty line at the end of the file) fail.
namespace coltre {

/// The lines of a province's municipalities as the file holds them, at least one, each with a blank.
/// @param file  bytes of an altitude file
/// @return nothing if the read fails
std::optional<std::vector<std::string_view>> municipality_lines_in(std::string_view file,
                                                                   std::string_view province);

/// The municipalities of a province, at least one, in the order of the file.
/// @param file  bytes of an altitude file
/// @return nothing if the read fails
std::optional<std::vector<std::string>> municipalities_in(std::string_view file, std::string_view province);

/// The altitude of a municipality, m, as the text for `asinput`: the last four characters of its line without
/// blanks. The first line of that name behind the province's header counts. Deliberate: the last block has no
/// empty line that would end the search for a name it does not hold; the file's last line is taken then.
/// @param file  bytes of an altitude file
/// @return nothing if the read fails
std::optional<std::string> altitude_in(std::string_view file, std::string_view province,
                                       std::string_view municipality);

// For the windows, altitudini.txt is read whole for each choice that the user makes: a file edited meanwhile
// counts at once. When a read fails it is tried again on a file that nobody is writing just now; then the
// file is written anew from the built-in table and read once more; a failure of that is reported and ends the
// program. A file that reads without error is never rewritten, nor is one of which nothing can be told
// because the system fails: that too ends the program.

/// The municipalities of a province for the list `comuneinput`.
/// @return nothing if the program must end
std::optional<std::vector<std::string>> FillMunicipalities(std::string_view ProgramDirectory,
                                                           std::string_view province,
                                                           AltitudeNotices& notices);

/// The altitude of a municipality for `asinput`.
/// @return nothing if the program must end
std::optional<std::string> ReadAltitude(std::string_view ProgramDirectory, std::string_view province,
                                        std::string_view municipality, AltitudeNotices& notices);

/// What a read that fails for good says.
Message altitude_read_error();

}  // namespace coltre
