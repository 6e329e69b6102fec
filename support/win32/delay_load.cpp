// Loads the program's delay-loaded libraries: each when its first function is called, and from the
// system's folder only. A file of the same name in the current folder, or beside a program that was
// started in a download folder, is ignored.
//
// Only the linker refers to __delayLoadHelper2, so this file has no header.
#include <cstdlib>
#include <cstring>
#include <string>

#include <windows.h>

#include <delayimp.h>

namespace {

// Qt and the system's libraries load others by name. From here on those names, too, are looked up
// in the system's folder only.
struct SystemFolderOnly
{
    SystemFolderOnly()
    {
        using SetDirectories = BOOL(WINAPI*)(DWORD);
        const auto setDirectories = reinterpret_cast<SetDirectories>(reinterpret_cast<void*>(
            GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories")));
        // Windows 7 without updates lacks the function and can only leave out the current folder.
        // Child processes inherit that, so it is done only there.
        if (setDirectories == nullptr || !setDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32))
            SetDllDirectoryW(L"");
    }
};

// Runs before all other initialisers, which may load libraries.
[[gnu::init_priority(101)]] const SystemFolderOnly systemFolderOnly;

HMODULE loadFromSystemFolder(const char* name)
{
    wchar_t folder[MAX_PATH] = {};
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH)
        return nullptr;
    const std::wstring path =
        std::wstring(folder, length) + L'\\' + std::wstring(name, name + std::strlen(name));
    // The library's own imports are looked up beside it, not beside the program.
    return LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

template <typename Target>
Target* at(RVA address)
{
    auto* const base = reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
    return reinterpret_cast<Target*>(base + address);
}

// No error can be returned: the caller expects its function to exist. Debuggers know this exception
// code.
[[noreturn]] void giveUp(DWORD error)
{
    RaiseException(static_cast<DWORD>(VcppException(ERROR_SEVERITY_ERROR, error)),
                   EXCEPTION_NONCONTINUABLE, 0, nullptr);
    TerminateProcess(GetCurrentProcess(), error);
    std::abort();
}

} // namespace

extern "C" FARPROC WINAPI __delayLoadHelper2(PCImgDelayDescr library, FARPROC* function)
{
    auto* const loaded = at<PVOID>(library->rvaHmod);
    auto module = static_cast<HMODULE>(*loaded);
    if (module == nullptr) {
        module = loadFromSystemFolder(at<const char>(library->rvaDLLName));
        if (module == nullptr)
            giveUp(ERROR_MOD_NOT_FOUND);
        // Another thread may have loaded it meanwhile; then this reference is one too many.
        if (InterlockedExchangePointer(loaded, module) == module)
            FreeLibrary(module);
    }
    auto* const addresses = at<FARPROC>(library->rvaIAT);
    const auto& name = at<const IMAGE_THUNK_DATA>(library->rvaINT)[function - addresses];
    const FARPROC found = GetProcAddress(
        module,
        IMAGE_SNAP_BY_ORDINAL(name.u1.Ordinal)
            ? MAKEINTRESOURCEA(IMAGE_ORDINAL(name.u1.Ordinal))
            : reinterpret_cast<const char*>(
                  at<const IMAGE_IMPORT_BY_NAME>(static_cast<RVA>(name.u1.AddressOfData))->Name));
    if (found == nullptr)
        giveUp(ERROR_PROC_NOT_FOUND);
    *function = found;
    return found;
}
