#include <signal.h>

#include <array>
#include <atomic>

#include "platform/interruption.h"
#include "platform/system_files.h"

namespace coltre {

namespace {

constexpr std::array interruptions{SIGINT, SIGTERM, SIGHUP};

// More files than are written at once.
std::array<std::atomic<const std::filesystem::path*>, 16> registered;

void exchange(const std::filesystem::path* from, const std::filesystem::path* to) {
    for (auto& file : registered) {
        const std::filesystem::path* expected = from;
        if (file.compare_exchange_strong(expected, to)) return;
    }
}

/// Does only what a signal handler may do.
void end_interrupted(int signal) {
    for (const auto& file : registered) {
        if (const std::filesystem::path* const path = file.load())
            static_cast<void>(system_files::remove(*path));
    }
    static_cast<void>(::raise(signal));  // it comes when this returns, and now ends the program
}

thread_local sigset_t mask_before;

sigset_t all_interruptions() {
    sigset_t set;
    ::sigemptyset(&set);
    for (const int signal : interruptions)
        ::sigaddset(&set, signal);
    return set;
}

}  // namespace

void remove_temporary_files_when_interrupted() {
    for (const int signal : interruptions) {
        struct sigaction action {};
        if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) continue;
        action.sa_handler = end_interrupted;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        action.sa_mask = all_interruptions();
        ::sigaction(signal, &action, nullptr);
    }
}

void remove_when_interrupted(const std::filesystem::path& file) {
    exchange(nullptr, &file);
}

void forget_to_remove(const std::filesystem::path& file) {
    exchange(&file, nullptr);
}

InterruptionsHeldBack::InterruptionsHeldBack() {
    const sigset_t set = all_interruptions();
    ::pthread_sigmask(SIG_BLOCK, &set, &mask_before);
}

InterruptionsHeldBack::~InterruptionsHeldBack() {
    ::pthread_sigmask(SIG_SETMASK, &mask_before, nullptr);
}

}  // namespace coltre
