#pragma once

#include <string_view>

#include "ui/user_dialogs.h"

namespace coltre {

/// "Verifica e ripara altitudini.txt": tells the faults of the file, and repairs them if the user agrees.
void check_and_repair_altitudes(std::string_view ProgramDirectory, UserDialogs& dialogs);

}  // namespace coltre
