// Adds to one process what Wine's _wfopen_s lacks: a file that it opens for reading is closed to
// writers, and one that it opens for writing is closed to everybody. Wine shares both with all.
//
// Loaded by launcher.exe before the program's first instruction.
#include "tests/support/import_slot.h"

#include <cerrno>
#include <cstdio>
#include <cwchar>
#include <share.h>

namespace {

decltype(&_wfopen_s) originalOpen = nullptr;

bool onlyReads(const wchar_t* mode)
{
    return mode[0] == L'r' && std::wcschr(mode, L'+') == nullptr;
}

errno_t openSecurely(FILE** stream, const wchar_t* path, const wchar_t* mode)
{
    if (stream == nullptr || path == nullptr || mode == nullptr)
        return originalOpen(stream, path, mode);
    *stream = _wfsopen(path, mode, onlyReads(mode) ? _SH_DENYWR : _SH_DENYRW);
    return *stream != nullptr ? 0 : errno;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
        originalOpen = replaceImport("_wfopen_s", &openSecurely);
    }
    return TRUE;
}
