#include "support/win32/unique_handle.h"
#include "ui/common/sys/known_folders.h"
#include "ui/common/sys/replaceable.h"

#include <iostream>
#include <utility>

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

namespace sys {

namespace {

// FOLDERID_RoamingAppData and FOLDERID_LocalAppData, which shlobj.h only declares.
constexpr GUID roamingAppDataId = {
    0x3EB685DB, 0x65F9, 0x4CF6, {0xA0, 0x3A, 0xE3, 0xEF, 0x65, 0x72, 0x9F, 0x3D}};
constexpr GUID localAppDataId = {
    0xF1B32785, 0x6FBA, 0x4FCF, {0x9D, 0x55, 0x7B, 0x8E, 0x7F, 0x15, 0x70, 0x91}};

void tell(const char* what)
{
    const DWORD error = GetLastError(); // writing changes it
    std::cerr << what << " | err = " << error << std::flush;
}

// A function of a library that stays loaded as long as this object lives.
template <typename Function>
class LoadedFunction
{
public:
    LoadedFunction(const LibraryLoading& loading, const wchar_t* libraryName,
                   const char* functionName)
        : library(loading.load(libraryName))
    {
        if (!library) {
            const DWORD error = GetLastError(); // writing changes it
            std::wcerr << L"Couldn't load dll" << libraryName << L" | err = " << error << std::endl;
            return;
        }
        const FARPROC found = loading.find(library.get(), functionName);
        if (found == nullptr) {
            tell("GetProcAddress return null");
            return;
        }
        // Through void*: compilers warn about a direct cast between function types.
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(found));
    }

    explicit operator bool() const { return function != nullptr; }

    template <typename... Arguments>
    auto operator()(Arguments&&... arguments) const
    {
        return function(std::forward<Arguments>(arguments)...);
    }

private:
    win32::LibraryHandle library;
    Function function = nullptr;
};

// If the path cannot be freed, its few bytes stay allocated until the process ends.
void freePath(wchar_t* memory, const LibraryLoading& loading)
{
    const LoadedFunction<decltype(&CoTaskMemFree)> free(loading, L"ole32.dll", "CoTaskMemFree");
    if (!free)
        return;
    try {
        free(memory);
    } catch (...) {
        tell("Exception (\"CoTaskMemFree\")");
    }
}

} // namespace

int knownFolderPath(KnownFolder folder, std::wstring& path, const LibraryLoading& loading)
{
    path.clear();
    const LoadedFunction<decltype(&SHGetKnownFolderPath)> lookUp(loading, L"shell32.dll",
                                                                 "SHGetKnownFolderPath");
    if (!lookUp)
        return E_FAIL;
    const GUID& id = folder == KnownFolder::roamingAppData ? roamingAppDataId : localAppDataId;
    wchar_t* found = nullptr;
    HRESULT result = E_FAIL;
    try {
        result = lookUp(id, DWORD(0), HANDLE(nullptr), &found);
    } catch (...) {
        tell("Exception(\"SHGetKnownFolderPath\")");
    }
    if (SUCCEEDED(result) && found != nullptr)
        path = found;
    // To be freed even when the call fails.
    if (found != nullptr)
        freePath(found, loading);
    return result;
}

int knownFolderPath(KnownFolder folder, std::wstring& path)
{
    return knownFolderPath(folder, path, LibraryLoading());
}

} // namespace sys
