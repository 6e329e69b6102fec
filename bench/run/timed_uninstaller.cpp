// An uninstaller that has nothing to remove. It takes as many milliseconds as the environment's
// TESSERA_BENCH_UNINSTALLER_MS says; without it, all that it costs is its start.
#include <cstdlib>
#include <cwchar>
#include <iterator>

#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    wchar_t duration[16] = {};
    if (GetEnvironmentVariableW(L"TESSERA_BENCH_UNINSTALLER_MS", duration,
                                static_cast<DWORD>(std::size(duration))) > 0)
        Sleep(static_cast<DWORD>(std::wcstoul(duration, nullptr, 10)));
    return 0;
}
