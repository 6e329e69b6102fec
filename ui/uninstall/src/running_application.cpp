#include "ui/uninstall/src/running_application.h"

#include "support/win32/unique_handle.h"
#include "ui/common/sys/text_convert.h"
#include "ui/common/sys/win32_error.h"

#include <windows.h>

namespace uninstall {

namespace {

constexpr Keelbase::LogSource logSource{"MainForm", "ui/uninstall/src/running_application"};

} // namespace

bool applicationIsRunning(const std::string& idString)
{
    const std::wstring name = L"Global\\Lumacraft_" + sys::fromUtf8(idString);
    const win32::KernelHandle mutex(CreateMutexW(nullptr, TRUE, name.c_str()));
    const DWORD error = GetLastError();
    if (!mutex)
        win32::logFailure(logSource, __LINE__, "CreateMutexW", error);
    return error == ERROR_ALREADY_EXISTS;
}

} // namespace uninstall
