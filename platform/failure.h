#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <thread>

namespace coltre {

/// Why something could not be done, in Italian, as part of a sentence; nothing: all went well.
using Failure = std::optional<std::string>;

/// The failure that an error number of the system (<cerrno>) stands for; nothing for 0.
Failure system_failure(int error_number);

/// Whether an error says nothing of the file it was met at, so that trying again makes sense: a disk or
/// network that stumbles, a shortage of memory or of open files.
bool may_pass(int error_number);

/// Makes a call that gives an error number; up to three times more, at short intervals, while that may pass.
template <typename Call>
int tried_again(Call call) {
    int error = call();
    for (int tries = 1; tries < 4 && may_pass(error); ++tries) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        error = call();
    }
    return error;
}

}  // namespace coltre
