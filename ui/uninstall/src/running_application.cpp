#include "ui/uninstall/src/running_application.h"

#include "support/win32/unique_handle.h"
#include "ui/common/sys/text_convert.h"

#include <windows.h>

namespace uninstall {

bool applicationIsRunning(const std::string& idString)
{
    const std::wstring name = L"Global\\Lumacraft_" + sys::fromUtf8(idString);
    const win32::KernelHandle mutex(CreateMutexW(nullptr, TRUE, name.c_str()));
    return GetLastError() == ERROR_ALREADY_EXISTS;
}

} // namespace uninstall
