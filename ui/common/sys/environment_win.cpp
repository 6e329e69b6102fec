#include "ui/common/sys/environment.h"
#include "ui/common/sys/text_convert.h"

#include <windows.h>

namespace sys {

std::string environmentVariable(const char* name)
{
    wchar_t value[2048] = {};
    constexpr DWORD capacity = static_cast<DWORD>(std::size(value));
    // For a value that does not fit, the call returns the size it needs.
    const DWORD size = GetEnvironmentVariableW(fromUtf8(name).c_str(), value, capacity);
    return size < capacity ? toUtf8({value, size}) : std::string();
}

} // namespace sys
