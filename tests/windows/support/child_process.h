#pragma once

// Child processes of a test, which never outlive it.

#include "support/win32/unique_handle.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

namespace windows_tests {

using std::chrono::milliseconds;

// How long a test waits for an event before it fails.
constexpr milliseconds patience{60000};

// `time` as a DWORD for Win32 calls.
DWORD waitTime(milliseconds time);

struct ChildOptions
{
    // Start it through the launcher under Wine: needed to open a pipe by the computer's name.
    bool withEnvironment = false;
    // Its standard output goes to ChildProcess::output().
    bool captureOutput = false;
    // Its standard error too.
    bool captureErrors = false;
    // Its current folder; empty: the test's.
    std::wstring folder = {};
};

class ChildProcess
{
public:
    ChildProcess(const std::wstring& program, const std::vector<std::wstring>& arguments,
                 const ChildOptions& options = {});
    // Ends the process and its children if they still run.
    ~ChildProcess() = default;
    ChildProcess(ChildProcess&&) = default;
    ChildProcess& operator=(ChildProcess&&) = default;

    bool started() const { return static_cast<bool>(process); }
    // The id of the started process, which withEnvironment makes the launcher's.
    DWORD pid() const { return processId; }
    HANDLE handle() const { return process.get(); }

    // The exit code, or nothing when it still runs after `deadline`.
    std::optional<DWORD> waitForExit(milliseconds deadline = patience) const;
    void kill();
    // The captured output. Call after waitForExit.
    std::string output();

private:
    win32::KernelHandle job; // closing it ends the process
    win32::KernelHandle process;
    win32::FileHandle outputEnd;
    DWORD processId = 0;
};

// The program `name`.exe in the running test's folder.
std::wstring siblingProgram(const std::wstring& name);

// The file `relativePath` in the running test's folder or the nearest folder above that has it;
// empty when none has.
std::wstring nearestAbove(const std::wstring& relativePath);

} // namespace windows_tests
