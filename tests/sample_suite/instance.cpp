// An application of the sample suite. Installed as <IdString>.exe it holds the mutex that marks the
// application as running, prints "ready", and runs until it is ended from outside.
#include "tests/sample_suite/record_file.h"

#include <cstdio>
#include <string>

namespace {

// A copy that no test ends must end by itself.
constexpr DWORD longestLifeMs = 30 * 60 * 1000;

} // namespace

int main()
{
    const std::wstring name = L"Global\\Lumacraft_" + sample_suite::ownName();
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, name.c_str());
    if (mutex == nullptr) {
        std::fprintf(stderr, "CreateMutexW failed with error %lu\n", GetLastError());
        return 1;
    }
    std::puts("ready");
    std::fflush(stdout);
    Sleep(longestLifeMs);
    CloseHandle(mutex);
    return 0;
}
