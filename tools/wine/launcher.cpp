// Starts a Windows program under Wine with the shims loaded into it, which supply what Wine lacks,
// and ends with the program's exit code.
//
//   launcher.exe PROGRAM ARGS...
//
// The rest of the command line reaches the program byte for byte. Children that the program starts
// are ordinary processes without the DLLs.
//
// Exit codes of its own: 126 the program could not be prepared, 127 it could not be started. A
// program's code above 255 becomes 255, because the Unix side sees 8 bits and would take 256 for
// success.
#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <iterator>
#include <memory>
#include <string>
#include <type_traits>

#include <windows.h>

namespace {

constexpr UINT cannotPrepare = 126;
constexpr UINT cannotStart = 127;
constexpr DWORD largestUnixCode = 255;
constexpr DWORD loadTimeoutMs = 60'000;
constexpr const wchar_t* shims[] = {L"pipe_shim.dll", L"certificate_shim.dll", L"process_shim.dll",
                                    L"file_shim.dll"};

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

void report(const char* call)
{
    std::fprintf(stderr, "launcher: %s failed with error %lu\n", call, GetLastError());
}

// The command line after its first word, by the rule with which the C runtime finds that word:
// quotes toggle, a blank outside quotes ends it, and a backslash is an ordinary character.
std::wstring withoutFirstWord(const wchar_t* line)
{
    bool quoted = false;
    for (; *line != L'\0' && (quoted || (*line != L' ' && *line != L'\t')); ++line) {
        if (*line == L'"') {
            quoted = !quoted;
        }
    }
    while (*line == L' ' || *line == L'\t') {
        ++line;
    }
    return line;
}

std::wstring besideLauncher(const wchar_t* name)
{
    std::wstring path(32'768, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    path.resize(length);
    path.erase(path.find_last_of(L'\\') + 1);
    return path + name;
}

// Starts a thread in the program whose start routine is LoadLibraryW itself: kernel32 has the same
// address in every process of a session.
bool loadInto(HANDLE process, const std::wstring& library)
{
    const SIZE_T size = (library.size() + 1) * sizeof(wchar_t);
    void* remote = VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (remote == nullptr || !WriteProcessMemory(process, remote, library.c_str(), size, nullptr)) {
        report("writing the DLL's name");
        return false;
    }
    const auto load = reinterpret_cast<LPTHREAD_START_ROUTINE>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "LoadLibraryW")));
    const Handle thread(CreateRemoteThread(process, nullptr, 0, load, remote, 0, nullptr));
    if (!thread) {
        report("CreateRemoteThread");
        return false;
    }
    DWORD loaded = 0;
    const bool finished = WaitForSingleObject(thread.get(), loadTimeoutMs) == WAIT_OBJECT_0 &&
                          GetExitCodeThread(thread.get(), &loaded) != FALSE;
    VirtualFreeEx(process, remote, 0, MEM_RELEASE);
    if (!finished || loaded == 0) {
        std::fprintf(stderr, "launcher: %ls could not be loaded into the program\n",
                     library.c_str());
        return false;
    }
    return true;
}

// tools/wine-run passes Qt's variables as HOST_QT_NAME, since Wine drops QT_NAME.
void restoreQtVariables()
{
    constexpr wchar_t handedOver[] = L"HOST_QT_";
    constexpr size_t handedOverLength = std::size(handedOver) - 1;
    constexpr size_t prefixLength = 5;
    wchar_t* const block = GetEnvironmentStringsW();
    if (block == nullptr) {
        return;
    }
    for (const wchar_t* entry = block; *entry != L'\0'; entry += std::wcslen(entry) + 1) {
        const wchar_t* const equals = std::wcschr(entry, L'=');
        if (equals != nullptr && std::wcsncmp(entry, handedOver, handedOverLength) == 0) {
            const std::wstring name(entry + prefixLength, equals);
            SetEnvironmentVariableW(name.c_str(), equals + 1);
        }
    }
    FreeEnvironmentStringsW(block);
}

// The program must not outlive a killed launcher; the program's own children may.
Handle jobThatEndsWithUs()
{
    Handle job(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_SILENT_BREAKAWAY_OK;
    if (!job || !SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits,
                                         sizeof limits)) {
        report("creating the job");
        return nullptr;
    }
    return job;
}

} // namespace

int main()
{
    std::wstring commandLine = withoutFirstWord(GetCommandLineW());
    if (commandLine.empty()) {
        std::fprintf(stderr, "usage: launcher PROGRAM [ARGS...]\n");
        return static_cast<int>(cannotStart);
    }
    restoreQtVariables();
    STARTUPINFOW startup{};
    GetStartupInfoW(&startup);
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED,
                        nullptr, nullptr, &startup, &started)) {
        report("CreateProcessW");
        return static_cast<int>(cannotStart);
    }
    const Handle process(started.hProcess);
    const Handle mainThread(started.hThread);
    const Handle job = jobThatEndsWithUs();
    if (!job || !AssignProcessToJobObject(job.get(), process.get()) ||
        !std::all_of(std::begin(shims), std::end(shims), [&](const wchar_t* shim) {
            return loadInto(process.get(), besideLauncher(shim));
        })) {
        TerminateProcess(process.get(), cannotPrepare);
        return static_cast<int>(cannotPrepare);
    }
    ResumeThread(mainThread.get());
    WaitForSingleObject(process.get(), INFINITE);
    DWORD code = cannotPrepare;
    GetExitCodeProcess(process.get(), &code);
    return static_cast<int>(code > largestUnixCode ? largestUnixCode : code);
}
