#pragma once

// The known-folder lookup with its library loading replaceable. Programs use known_folders.h.

#include "ui/common/sys/known_folders.h"

#include <windows.h>

namespace sys {

// How the lookup gets at the system libraries: the default is the system's own way.
struct LibraryLoading
{
    HMODULE(WINAPI* load)(const wchar_t* name) = &LoadLibraryW;
    FARPROC(WINAPI* find)(HMODULE library, const char* function) = &GetProcAddress;
};

int knownFolderPath(KnownFolder folder, std::wstring& path, const LibraryLoading& loading);

} // namespace sys
