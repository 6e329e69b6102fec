#pragma once

#include <string>

namespace uninstall {

// The full path of one of Windows' own programs, such as "taskkill.exe". Started by its bare name,
// a file of that name beside this program or in the current folder would come first. Empty, and
// logged, when Windows does not tell its folder. Any thread.
std::wstring systemProgram(const std::wstring& fileName);

} // namespace uninstall
