#include "ui/uninstall/src/system_program.h"

#include "ui/common/sys/win32_error.h"

#include <windows.h>

namespace uninstall {

namespace {

constexpr Keelbase::LogSource logSource{"MainForm", "ui/uninstall/src/system_program"};

} // namespace

std::wstring systemProgram(const std::wstring& fileName)
{
    wchar_t folder[MAX_PATH] = {};
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) {
        win32::logFailure(logSource, __LINE__, "GetSystemDirectoryW",
                          length == 0 ? GetLastError() : ERROR_INSUFFICIENT_BUFFER);
        return {};
    }
    return std::wstring(folder, length) + L'\\' + fileName;
}

} // namespace uninstall
