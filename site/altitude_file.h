#pragma once

#include <string>
#include <string_view>

#include "platform/failure.h"

namespace coltre {

/// The name of the altitude file, in the suite's notation.
std::string altitude_file_name(std::string_view ProgramDirectory);

/// What became of a table that was to take the place of altitudini.txt.
struct TableReplacement {
    Failure failure{};        ///< the old file is as it was
    bool is_new = false;      ///< false where the file held these bytes already
    std::string kept_name{};  ///< name that the file which was there has now; empty if none was there
};

/// Puts these bytes in the place of altitudini.txt in one step. A different file that was there is kept,
/// itself and no copy of it, as altitudini.bak, and a different altitudini.bak as the first free of
/// altitudini.bak1, .bak2 and so on: an engineer's own altitudes are never lost, not even those that another
/// program is writing into the file at this moment. If the file holds these bytes already it is left alone,
/// but not being able to write beside it is a failure all the same.
TableReplacement replace_altitude_file(std::string_view ProgramDirectory, std::string_view bytes);

/// Puts these bytes where there is no altitudini.txt. One that another program has put there meanwhile stays,
/// and is no failure.
Failure create_altitude_file(std::string_view ProgramDirectory, std::string_view bytes);

}  // namespace coltre
