#pragma once

#include <windows.h>

namespace windows_tests {

// Sets an environment variable for this process and its children while in scope. `name` is kept by
// pointer: a literal.
class ScopedVariable
{
public:
    ScopedVariable(const wchar_t* name, const wchar_t* value) : variable(name)
    {
        SetEnvironmentVariableW(name, value);
    }
    ~ScopedVariable() { SetEnvironmentVariableW(variable, nullptr); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    const wchar_t* variable;
};

} // namespace windows_tests
