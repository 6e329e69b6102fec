#pragma once

// The system calls behind this library, replaceable for tests. Programs use file_io.h,
// known_folders.h and module_path.h.

#include "ui/common/sys/known_folders.h"

#include <cstdio>
#include <string>

#ifdef _WIN32
#include <windows.h>
#endif

namespace sys {

// The three services of file_io.h.
struct FileFunctions
{
    int (*read)(const std::wstring& path, std::string& content);
    int (*write)(const std::wstring& path, const std::string& text);
    bool (*exists)(const std::wstring& path);
};

// The platform's services.
FileFunctions systemFiles();

// Replaces the services for the whole process. Not while another thread uses them.
void setFileFunctions(const FileFunctions& replacement);

#ifdef _WIN32

// The shape of _wfopen_s: returns 0 and a stream, or an error number.
using OpenFile = int (*)(std::FILE** stream, const wchar_t* path, const wchar_t* mode);

int readWholeFile(const std::wstring& path, std::string& content, OpenFile open);

// How the known-folder lookup loads the system's libraries.
struct LibraryLoading
{
    HMODULE(WINAPI* load)(const wchar_t* name) = &LoadLibraryW;
    FARPROC(WINAPI* find)(HMODULE library, const char* function) = &GetProcAddress;
};

int knownFolderPath(KnownFolder folder, std::wstring& path, const LibraryLoading& loading);

// The shape of GetModuleFileNameW.
using ModuleFileName = DWORD(WINAPI*)(HMODULE module, wchar_t* path, DWORD size);

std::wstring modulePath(ModuleFileName ask);

#endif

} // namespace sys
