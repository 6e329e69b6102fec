// delayed_call LIBRARY FUNCTION [LENGTH]: loads a function as the linker's code for delayed imports
// does, from tables made by hand. FUNCTION is a name, or "#" and an ordinal. With LENGTH the system
// reports that length for its folder's path.
//
// Ends with 0 when the function was found and the tables hold it, with 1 when they do not, with 2
// when the library is not the system folder's, with 4 when one was loaded in spite of LENGTH, and
// with the exception's code when there was one.
#include "tests/support/import_slot.h"

#include <cstdlib>
#include <cstring>
#include <string>

#include <windows.h>

#include <delayimp.h>

extern "C" FARPROC WINAPI __delayLoadHelper2(PCImgDelayDescr library, FARPROC* function);

namespace {

struct Name
{
    WORD hint;
    char text[64];
};

// The addresses in a linker's tables are relative to the program.
struct Tables
{
    char library[64];
    Name name;
    IMAGE_THUNK_DATA names[2];
    FARPROC functions[2];
    PVOID module;
};

Tables tables = {};
UINT reportedLength = 0;

RVA relative(const void* object)
{
    return static_cast<RVA>(static_cast<const BYTE*>(object) -
                            reinterpret_cast<const BYTE*>(GetModuleHandleW(nullptr)));
}

UINT WINAPI reportLength(LPWSTR, UINT)
{
    return reportedLength;
}

HMODULE WINAPI endInsteadOfLoading(LPCWSTR, HANDLE, DWORD)
{
    TerminateProcess(GetCurrentProcess(), 4);
    return nullptr;
}

LONG CALLBACK endWithItsCode(EXCEPTION_POINTERS* exception)
{
    TerminateProcess(GetCurrentProcess(), exception->ExceptionRecord->ExceptionCode);
    return EXCEPTION_CONTINUE_SEARCH;
}

bool isTheSystems(HMODULE module)
{
    wchar_t path[MAX_PATH] = {};
    wchar_t folder[MAX_PATH] = {};
    GetModuleFileNameW(module, path, MAX_PATH);
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    return _wcsnicmp(path, folder, length) == 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return 3;
    std::strncpy(tables.library, argv[1], sizeof(tables.library) - 1);
    std::strncpy(tables.name.text, argv[2], sizeof(tables.name.text) - 1);
    const bool byName = argv[2][0] != '#';
    const auto ordinal = static_cast<ULONGLONG>(byName ? 0 : std::atoi(argv[2] + 1));
    // The second place of each table, as if the library had another function.
    tables.names[1].u1.AddressOfData =
        byName ? relative(&tables.name) : IMAGE_ORDINAL_FLAG64 | ordinal;

    ImgDelayDescr descriptor = {};
    descriptor.grAttrs = dlattrRva;
    descriptor.rvaDLLName = relative(tables.library);
    descriptor.rvaHmod = relative(&tables.module);
    descriptor.rvaIAT = relative(tables.functions);
    descriptor.rvaINT = relative(tables.names);

    AddVectoredExceptionHandler(1, &endWithItsCode);
    FARPROC found = nullptr;
    if (argc > 3) {
        reportedLength = static_cast<UINT>(std::atoi(argv[3]));
        const ReplacedImport reported("GetSystemDirectoryW", &reportLength);
        const ReplacedImport loading("LoadLibraryExW", &endInsteadOfLoading);
        found = __delayLoadHelper2(&descriptor, &tables.functions[1]);
    } else {
        found = __delayLoadHelper2(&descriptor, &tables.functions[1]);
    }

    const HMODULE module = GetModuleHandleA(argv[1]);
    const FARPROC expected = GetProcAddress(
        module, byName ? argv[2] : reinterpret_cast<const char*>(std::uintptr_t{ordinal}));
    if (found == nullptr || found != expected || tables.functions[1] != found ||
        tables.functions[0] != nullptr || tables.module != module)
        return 1;
    return isTheSystems(module) ? 0 : 2;
}
