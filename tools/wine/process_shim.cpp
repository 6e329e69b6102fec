// Adds to one process what Wine's CreateProcessW lacks. It refuses
// - a program whose manifest asks for more rights, as for an administrator's process that is not
//   elevated, unless the environment says RunAsInvoker;
// - a command line that is too long.
// Wine grants the rights and starts both.
//
// Loaded by launcher.exe before the program's first instruction.
#include "tests/support/import_slot.h"

#include <cwchar>
#include <string>
#include <string_view>

namespace {

// The Windows SDK's ERROR_ELEVATION_REQUIRED, which MinGW's headers lack.
constexpr DWORD elevationRequired = 740;

// With the terminating null.
constexpr std::size_t longestCommandLine = 32'767;

decltype(&CreateProcessW) originalCreateProcess = nullptr;

// The first word of a command line: quotes around it, or a blank after it, end it.
std::wstring firstWord(std::wstring_view line)
{
    if (!line.empty() && line.front() == L'"') {
        line.remove_prefix(1);
        return std::wstring(line.substr(0, line.find(L'"')));
    }
    return std::wstring(line.substr(0, line.find_first_of(L" \t")));
}

bool runsAsInvoker()
{
    wchar_t layers[64] = {};
    const DWORD length = GetEnvironmentVariableW(L"__COMPAT_LAYER", layers, 64);
    return length < 64 && std::wstring_view(layers, length) == L"RunAsInvoker";
}

bool asksForMoreRights(const std::wstring& program)
{
    if (runsAsInvoker())
        return false;
    const HMODULE module = LoadLibraryExW(program.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (module == nullptr)
        return false;
    std::string_view manifest;
    const HRSRC resource = FindResourceW(module, CREATEPROCESS_MANIFEST_RESOURCE_ID, RT_MANIFEST);
    if (resource != nullptr) {
        if (const HGLOBAL loaded = LoadResource(module, resource))
            manifest = {static_cast<const char*>(LockResource(loaded)),
                        SizeofResource(module, resource)};
    }
    const bool asks = manifest.find("\"requireAdministrator\"") != std::string_view::npos ||
                      manifest.find("\"highestAvailable\"") != std::string_view::npos;
    FreeLibrary(module);
    return asks;
}

BOOL WINAPI createProcess(LPCWSTR program, LPWSTR commandLine, LPSECURITY_ATTRIBUTES process,
                          LPSECURITY_ATTRIBUTES thread, BOOL inherit, DWORD flags,
                          LPVOID environment, LPCWSTR folder, LPSTARTUPINFOW startup,
                          LPPROCESS_INFORMATION started)
{
    if (commandLine != nullptr && std::wcslen(commandLine) >= longestCommandLine) {
        SetLastError(ERROR_FILENAME_EXCED_RANGE);
        return FALSE;
    }
    if (asksForMoreRights(program != nullptr ? std::wstring(program) : firstWord(commandLine))) {
        SetLastError(elevationRequired);
        return FALSE;
    }
    return originalCreateProcess(program, commandLine, process, thread, inherit, flags, environment,
                                 folder, startup, started);
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
        originalCreateProcess = replaceImport("CreateProcessW", &createProcess);
    }
    return TRUE;
}
