#pragma once

#include <filesystem>

// What becomes of temporary files when the program is interrupted: by Ctrl-C, by a terminal that is closed,
// by a call to end.
namespace coltre {

/// From now on an interruption removes the registered files before it ends the program. One that the program
/// was started to ignore stays ignored.
void remove_temporary_files_when_interrupted();

/// Registers a file. The path stays where and as it is until it is forgotten.
void remove_when_interrupted(const std::filesystem::path& file);
void forget_to_remove(const std::filesystem::path& file);

/// Removes the registered files. Does only what a signal handler may do.
void remove_registered_files() noexcept;

/// Holds an interruption back for its lifetime, so that it does not come between a file's change and the
/// registration of that.
class InterruptionsHeldBack {
  public:
    InterruptionsHeldBack();
    ~InterruptionsHeldBack();
    InterruptionsHeldBack(const InterruptionsHeldBack&) = delete;
    InterruptionsHeldBack& operator=(const InterruptionsHeldBack&) = delete;
};

}  // namespace coltre
