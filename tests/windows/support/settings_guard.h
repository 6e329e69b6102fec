#pragma once

// Every Windows test program changes the settings of the user who runs it: it clears
// HKCU\Software\Corvane and log folders below %APPDATA%. settings_guard.cpp is therefore part of
// each (cmake/tests.cmake links it) and ends the program before main, with a message, unless the
// environment allows it. Wine prefixes made by tools/wine-run do: tools/wine/prefix.reg.

namespace windows_tests {

// "1" allows it; anything else does not.
constexpr const wchar_t* settingsVariable = L"TESSERA_TESTS_MAY_CHANGE_SETTINGS";

// Exit code of a program that was not allowed to run.
constexpr int refusedExitCode = 2;

} // namespace windows_tests
