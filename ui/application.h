#pragma once

namespace coltre {

/// Runs the program with its windows: `--version` and `--help`, or the main window until it is closed.
/// Without a display, one line on the standard error names the command that needs none.
/// @return the exit status of the process
int run(int argc, char** argv);

}  // namespace coltre
