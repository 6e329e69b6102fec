// An uninstaller that misbehaves. It records its command line like every sample uninstaller and
// does what its file name says:
//   hangs.exe       never ends by itself
//   crashes.exe     ends with an access violation
//   hands_over.exe  starts a copy of itself, records and ends; the copy ends once the file
//                   C:\records\hands_over.release exists
//   drops_key.exe   deletes everything that the suite has in the registry
// elevated_uninstaller.exe is the same program with a manifest that asks for administrator rights.
#include "tests/sample_suite/record_file.h"

#include <cstdio>
#include <string>

namespace {

// A copy that no test ends must end by itself.
constexpr DWORD longestLifeMs = 30 * 60 * 1000;
constexpr DWORD checkIntervalMs = 20;

constexpr const wchar_t* copyMark = L"copy of hands_over";

// Without the system's debugger: its start takes long, and Wine's may end the process with code 0.
int crash()
{
    SetUnhandledExceptionFilter(
        [](EXCEPTION_POINTERS*) -> LONG { return EXCEPTION_EXECUTE_HANDLER; });
    RaiseException(EXCEPTION_ACCESS_VIOLATION, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    return 0;
}

int handOver()
{
    std::wstring commandLine = copyMark;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION copy{};
    if (!CreateProcessW(sample_suite::ownPath().c_str(), commandLine.data(), nullptr, nullptr,
                        FALSE, 0, nullptr, nullptr, &startup, &copy))
        return 1;
    CloseHandle(copy.hThread);
    CloseHandle(copy.hProcess);
    return sample_suite::recordCommandLine() ? 0 : 1;
}

int workAsCopy()
{
    const std::wstring release =
        std::wstring(sample_suite::recordsFolder) + L"\\hands_over.release";
    for (DWORD waited = 0; waited < longestLifeMs; waited += checkIntervalMs) {
        if (GetFileAttributesW(release.c_str()) != INVALID_FILE_ATTRIBUTES)
            return sample_suite::recordEnd() ? 0 : 1;
        Sleep(checkIntervalMs);
    }
    return 1;
}

int dropKey()
{
    if (RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Corvane") != ERROR_SUCCESS)
        return 1;
    return sample_suite::recordEnd() ? 0 : 1;
}

} // namespace

int main()
{
    if (std::wstring(GetCommandLineW()) == copyMark)
        return workAsCopy();
    const std::wstring behaviour = sample_suite::ownName();
    if (behaviour == L"hands_over")
        return handOver();
    if (!sample_suite::recordCommandLine())
        return 1;
    if (behaviour == L"hangs")
        Sleep(longestLifeMs);
    if (behaviour == L"crashes")
        return crash();
    if (behaviour == L"drops_key")
        return dropKey();
    std::fprintf(stderr, "%ls: no such behaviour\n", behaviour.c_str());
    return 1;
}
