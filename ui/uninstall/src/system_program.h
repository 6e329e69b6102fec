#pragma once

#include <string>

namespace uninstall {

// The full path of one of Windows' own programs, such as "taskkill.exe". By its bare name, a file
// of that name beside this program or in the current folder would be started instead. Empty, and
// logged, if Windows cannot name its folder. Any thread.
std::wstring systemProgram(const std::wstring& fileName);

} // namespace uninstall
