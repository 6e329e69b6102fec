// Adds to one process what Wine lacks, a network redirector: \\<computer>\pipe\NAME opens by the
// machine's own name, with the opened end in message-read mode.
//
// Loaded by launcher.exe before the program's first instruction.
#include "tests/support/import_slot.h"

#include <cwchar>
#include <string>

namespace {

decltype(&CreateFileW) originalCreateFile = nullptr;

// "\\.\pipe\NAME" for "\\<this computer>\pipe\NAME", else empty.
std::wstring localPipeName(const wchar_t* name)
{
    if (name == nullptr || std::wcsncmp(name, L"\\\\", 2) != 0) {
        return {};
    }
    const wchar_t* const host = name + 2;
    const wchar_t* const rest = std::wcschr(host, L'\\');
    if (rest == nullptr || _wcsnicmp(rest, L"\\pipe\\", 6) != 0) {
        return {};
    }
    wchar_t computer[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD length = MAX_COMPUTERNAME_LENGTH + 1;
    if (!GetComputerNameW(computer, &length)) {
        return {};
    }
    if (static_cast<size_t>(rest - host) != length || _wcsnicmp(host, computer, length) != 0) {
        return {};
    }
    return std::wstring(L"\\\\.") + rest;
}

HANDLE WINAPI createFile(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                         DWORD disposition, DWORD flags, HANDLE pattern)
{
    const std::wstring local = localPipeName(name);
    if (local.empty()) {
        return originalCreateFile(name, access, share, security, disposition, flags, pattern);
    }
    const HANDLE pipe =
        originalCreateFile(local.c_str(), access, share, security, disposition, flags, pattern);
    if (pipe != INVALID_HANDLE_VALUE) {
        // Fails on a byte-type pipe, which then stays in byte mode, as over the network.
        DWORD mode = PIPE_READMODE_MESSAGE;
        const DWORD error = GetLastError();
        SetNamedPipeHandleState(pipe, &mode, nullptr, nullptr);
        SetLastError(error);
    }
    return pipe;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
        originalCreateFile = replaceImport("CreateFileW", &createFile);
    }
    return TRUE;
}
