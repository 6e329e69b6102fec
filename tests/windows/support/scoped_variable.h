#pragma once

#include <optional>
#include <string>

#include <windows.h>

namespace windows_tests {

// Sets an environment variable (null: removes it) while in scope, for this process and its
// children. `name` must outlive the object.
class ScopedVariable
{
public:
    ScopedVariable(const wchar_t* name, const wchar_t* value) : variable(name)
    {
        SetLastError(ERROR_SUCCESS);
        std::wstring text(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
        if (!text.empty() || GetLastError() == ERROR_SUCCESS) {
            text.resize(
                GetEnvironmentVariableW(name, text.data(), static_cast<DWORD>(text.size())));
            before = text;
        }
        SetEnvironmentVariableW(name, value);
    }
    ~ScopedVariable() { SetEnvironmentVariableW(variable, before ? before->c_str() : nullptr); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    const wchar_t* variable;
    std::optional<std::wstring> before;
};

} // namespace windows_tests
