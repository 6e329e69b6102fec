#pragma once

// Windows test programs change the settings of the user who runs them: they clear
// HKCU\Software\Corvane and the suite's folder below %APPDATA%. settings_guard.cpp, which is
// linked into each, ends the program before main unless the environment allows this. Wine prefixes
// made by tools/wine-run do (tools/wine/prefix.reg).

namespace windows_tests {

// "1" allows it; anything else does not.
constexpr const wchar_t* settingsVariable = L"TESSERA_TESTS_MAY_CHANGE_SETTINGS";

// Exit code of a program that was not allowed to run.
constexpr int refusedExitCode = 2;

} // namespace windows_tests
