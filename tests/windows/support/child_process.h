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

// How long a test waits for what should happen at once.
constexpr milliseconds patience{60000};

// A number of `milliseconds` as Win32 calls take it.
DWORD waitTime(milliseconds time);

struct ChildOptions
{
    // Start it with what the environment lends to programs: needed by whoever opens a pipe by the
    // computer's name.
    bool withEnvironment = false;
    // Its standard output goes to ChildProcess::output().
    bool captureOutput = false;
    // And its standard error with it.
    bool captureErrors = false;
};

class ChildProcess
{
public:
    ChildProcess(const std::wstring& program, const std::vector<std::wstring>& arguments,
                 ChildOptions options = {});
    // Ends the process, and all that it started, when it still runs.
    ~ChildProcess() = default;
    ChildProcess(ChildProcess&&) = default;
    ChildProcess& operator=(ChildProcess&&) = default;

    bool started() const { return static_cast<bool>(process); }
    // Of the process that was started; with an environment that is not the program itself.
    DWORD pid() const { return processId; }
    HANDLE handle() const { return process.get(); }

    // The exit code, or nothing when it still runs after `deadline`.
    std::optional<DWORD> waitForExit(milliseconds deadline = patience) const;
    void kill();
    // What the process wrote until it ended. Call after waitForExit.
    std::string output();

private:
    win32::KernelHandle job; // ends with this object, and the process with it
    win32::KernelHandle process;
    win32::FileHandle outputEnd;
    DWORD processId = 0;
};

// The program `name`.exe beside the running test.
std::wstring siblingProgram(const std::wstring& name);

// The file `relativePath` in the running test's folder or the nearest folder above that has it;
// empty when none has.
std::wstring nearestAbove(const std::wstring& relativePath);

} // namespace windows_tests
