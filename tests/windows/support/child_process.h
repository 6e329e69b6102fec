#pragma once

#include "ui/common/sys/unique_handle.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace windows_tests {

// How long a test waits for something that takes milliseconds when all is well.
constexpr DWORD patienceMs = 60000;

// A program that the test starts, ended with the scope at the latest.
class ChildProcess
{
public:
    // Throws when the program cannot be started. Arguments must not hold quotes or end with a
    // backslash. Environment variables are inherited.
    ChildProcess(const std::filesystem::path& program, const std::vector<std::wstring>& arguments);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Its exit code, or nothing when it has not ended in time.
    std::optional<DWORD> waitForEnd(DWORD timeoutMs = patienceMs) const;

    DWORD id() const { return processId; }

private:
    win32::KernelHandle process;
    DWORD processId = 0;
};

// A program that is built beside the test.
std::filesystem::path helperProgram(const std::wstring& name);

// Sets an environment variable for this process and its children while in scope.
class ScopedVariable
{
public:
    ScopedVariable(const wchar_t* name, const wchar_t* value);
    ~ScopedVariable();
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    const wchar_t* variable;
};

} // namespace windows_tests
