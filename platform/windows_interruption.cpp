#include <windows.h>

#include "platform/interruption.h"

namespace coltre {

namespace {

// An interruption comes in a thread of its own.
SRWLOCK changing = SRWLOCK_INIT;

BOOL WINAPI end_interrupted(DWORD /*event*/) {
    ::AcquireSRWLockExclusive(&changing);  // to the end: no file is created any more
    remove_registered_files();
    return FALSE;  // the system's own handler ends the program
}

}  // namespace

void remove_temporary_files_when_interrupted() {
    ::SetConsoleCtrlHandler(end_interrupted, TRUE);
}

InterruptionsHeldBack::InterruptionsHeldBack() {
    ::AcquireSRWLockExclusive(&changing);
}

InterruptionsHeldBack::~InterruptionsHeldBack() {
    ::ReleaseSRWLockExclusive(&changing);
}

}  // namespace coltre
