#pragma once

#include <string>

namespace windows_tests {

// A name for an event, a mutex or a folder that no other test, process or run uses.
std::wstring uniqueName(const std::wstring& stem);

} // namespace windows_tests
