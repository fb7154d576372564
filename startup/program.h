#pragma once

#include <string>

#include "engine/program_cells.h"
#include "startup/direttori_cond.h"

namespace coltre {

/// All that the program keeps while it runs: one set a run, handed by reference to windows and calculations.
struct Program {
    ProgramCells cells;
    Directories directories;
    std::string own_directory;   ///< that holds the program
    std::string CommandLine;     ///< the command-line arguments as one text
    bool StandaloneFlag = true;  ///< false when the suite started the program
    std::string unit_setting;    ///< 1-based item of the unit selector in suite mode ("3"); empty stand-alone
};

}  // namespace coltre
