#include <signal.h>

#include <array>

#include "platform/interruption.h"

namespace coltre {

namespace {

constexpr std::array interruptions{SIGINT, SIGTERM, SIGHUP};

void end_interrupted(int signal) {
    remove_registered_files();
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

InterruptionsHeldBack::InterruptionsHeldBack() {
    const sigset_t set = all_interruptions();
    ::pthread_sigmask(SIG_BLOCK, &set, &mask_before);
}

InterruptionsHeldBack::~InterruptionsHeldBack() {
    ::pthread_sigmask(SIG_SETMASK, &mask_before, nullptr);
}

}  // namespace coltre
