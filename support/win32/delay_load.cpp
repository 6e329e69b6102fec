// Loads the libraries that the program imports with a delay: each one when its first function is
// called, and from the system's folder only. A file of the same name beside the program, in a
// folder of downloads say, or in the current folder is never looked at.
//
// The linker refers to __delayLoadHelper2, and nothing here has a header.
#include <algorithm>
#include <cstring>
#include <iterator>

#include <windows.h>

#include <delayimp.h>

namespace {

// Libraries are also loaded by other means: by Qt, by the system's own libraries, by name. From now
// on these names, too, are looked up in the system's folder only.
struct SystemFolderOnly
{
    SystemFolderOnly()
    {
        using SetDirectories = BOOL(WINAPI*)(DWORD);
        const auto setDirectories = reinterpret_cast<SetDirectories>(reinterpret_cast<void*>(
            GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories")));
        // A Windows 7 without its updates has no such function. The current folder can be left out
        // there; children inherit that, so only there.
        if (setDirectories == nullptr || !setDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32))
            SetDllDirectoryW(L"");
    }
};

// Before all other initialisers, which might load something.
[[gnu::init_priority(101)]] const SystemFolderOnly systemFolderOnly;

HMODULE loadFromSystemFolder(const char* name)
{
    wchar_t path[MAX_PATH] = {};
    const UINT length = GetSystemDirectoryW(path, MAX_PATH);
    const std::size_t nameLength = std::strlen(name);
    if (length == 0 || length + 1 + nameLength >= std::size(path))
        return nullptr;
    path[length] = L'\\';
    std::copy_n(name, nameLength, path + length + 1);
    // What the library itself needs is looked for beside it, not beside the program.
    return LoadLibraryExW(path, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

template <typename Target>
Target* at(RVA address)
{
    auto* const base = reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
    return reinterpret_cast<Target*>(base + address);
}

// There is nobody to tell: the caller takes its function for granted. The code is the one that
// debuggers know for this.
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
        // Two threads may come here at once, and one of them has loaded it a second time.
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
