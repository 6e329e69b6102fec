#include "tests/windows/support/unique_name.h"

#include <atomic>

#include <windows.h>

namespace windows_tests {

std::wstring uniqueName(const std::wstring& stem)
{
    static std::atomic<unsigned> number{0};
    return stem + L"_" + std::to_wstring(GetCurrentProcessId()) + L"_" +
           std::to_wstring(GetTickCount64()) + L"_" + std::to_wstring(++number);
}

} // namespace windows_tests
