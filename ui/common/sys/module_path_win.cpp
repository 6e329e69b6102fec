#include "ui/common/sys/module_path.h"
#include "ui/common/sys/replaceable.h"

#include <windows.h>

namespace sys {

std::wstring modulePath(ModuleFileName ask)
{
    // A path that does not fit is truncated, without its length being returned. No path is longer
    // than this.
    constexpr std::size_t longestPath = 32768;
    for (std::size_t size = MAX_PATH; size <= 2 * longestPath; size *= 2) {
        std::wstring path(size, L'\0');
        const DWORD length = ask(nullptr, path.data(), static_cast<DWORD>(size));
        if (length < size) {
            path.resize(length);
            return path;
        }
    }
    return {};
}

std::wstring modulePath()
{
    return modulePath(&GetModuleFileNameW);
}

std::wstring moduleFolder()
{
    const std::wstring path = modulePath();
    const std::size_t separator = path.find_last_of(L"\\/");
    return separator == std::wstring::npos ? std::wstring() : path.substr(0, separator);
}

} // namespace sys
