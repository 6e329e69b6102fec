// An uninstaller that removes nothing and runs for TESSERA_BENCH_UNINSTALLER_MS milliseconds;
// without that variable it ends at once.
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
