#include "tests/windows/support/settings_guard.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include <windows.h>

namespace {

bool isAllowed()
{
    wchar_t value[8] = {};
    const DWORD size = GetEnvironmentVariableW(windows_tests::settingsVariable, value, 8);
    return std::wstring(value, size < 8 ? size : 0) == L"1";
}

bool endUnlessAllowed()
{
    if (isAllowed())
        return true;
    std::fprintf(
        stderr,
        "Not run: this test clears HKCU\\Software\\Corvane and the suite's settings folder of "
        "the user who runs it.\nOn an account whose settings may be lost, set %ls=1.\n",
        windows_tests::settingsVariable);
    std::fflush(stderr);
    std::_Exit(windows_tests::refusedExitCode);
}

// Runs before main, so before any test.
[[maybe_unused]] const bool allowed = endUnlessAllowed();

} // namespace
