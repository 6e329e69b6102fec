// Supplies to one process what Windows' network redirector does and Wine has none of: opening
// \\<computer>\pipe\NAME by the machine's own name, with the opened end in message-read mode.
//
// Only the main module's import of CreateFileW is replaced; libraries, and addresses taken by
// GetProcAddress, are left alone. Loaded by launcher.exe before the program's first instruction.
#include <windows.h>

#include <cstring>
#include <cwchar>
#include <string>

namespace {

using CreateFileFunction = decltype(&CreateFileW);

CreateFileFunction originalCreateFile = nullptr;

// "\\.\pipe\NAME" for "\\<this computer>\pipe\NAME", else empty. Names of other computers stay as
// they are: no Windows machine would answer for them here either.
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

void replaceSlot(IMAGE_THUNK_DATA& slot)
{
    DWORD protection = 0;
    if (!VirtualProtect(&slot, sizeof slot, PAGE_READWRITE, &protection)) {
        return;
    }
    originalCreateFile = reinterpret_cast<CreateFileFunction>(slot.u1.Function);
    slot.u1.Function = reinterpret_cast<ULONGLONG>(&createFile);
    VirtualProtect(&slot, sizeof slot, protection, &protection);
}

void replaceImport()
{
    auto* const base = reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports =
        nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (imports.VirtualAddress == 0) {
        return;
    }
    const auto* library =
        reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
    for (; library->Name != 0; ++library) {
        if (library->OriginalFirstThunk == 0) {
            continue; // without the names there is nothing to compare with
        }
        const auto* name =
            reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++slot) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) {
                continue;
            }
            const auto* const import =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), "CreateFileW") == 0) {
                replaceSlot(*slot);
            }
        }
    }
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
        replaceImport();
    }
    return TRUE;
}
