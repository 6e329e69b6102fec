#pragma once

#include "tools/windows_kit/runner/test_list.h"

#include <filesystem>
#include <string>

#include <windows.h>

namespace kit {

enum class Outcome { passed, failed, overTime, stopped, notStarted };

struct TestResult
{
    Outcome outcome = Outcome::notStarted;
    DWORD code = 0; // the exit code when passed or failed, Windows' error when not started
    double seconds = 0;
    std::string output; // both standard streams
};

// Runs one test program of the folder to its end, its time limit, or until `stop` is set. Neither
// it nor anything that it started runs afterwards.
TestResult runTest(const std::filesystem::path& folder, const TestEntry& entry, HANDLE stop);

} // namespace kit
