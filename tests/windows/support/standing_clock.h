#pragma once

#include "tests/support/import_slot.h"

#include <windows.h>

namespace windows_tests {

// While it exists, no time passes for the code under test: GetTickCount64 stays the same, and
// Sleep calls `whilePaused` and returns. At most one at a time; `whilePaused` captures nothing.
class StandingClock
{
public:
    using Pause = void (*)();
    explicit StandingClock(Pause whilePaused) { paused = whilePaused; }

private:
    static inline Pause paused = nullptr;

    static ULONGLONG WINAPI standingStill() { return 1; }
    static void WINAPI pauseInstead(DWORD) { paused(); }

    const ReplacedImport<decltype(&standingStill)> clock{"GetTickCount64", &standingStill};
    const ReplacedImport<decltype(&pauseInstead)> sleep{"Sleep", &pauseInstead};
};

} // namespace windows_tests
