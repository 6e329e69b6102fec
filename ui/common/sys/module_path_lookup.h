#pragma once

// The module path with its system call replaceable. Programs use module_path.h.

#include "ui/common/sys/module_path.h"

#include <windows.h>

namespace sys {

// The shape of GetModuleFileNameW.
using ModuleFileName = DWORD(WINAPI*)(HMODULE module, wchar_t* path, DWORD size);

std::wstring modulePath(ModuleFileName ask);

} // namespace sys
