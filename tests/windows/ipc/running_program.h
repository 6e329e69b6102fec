#pragma once

// The real program, started and observed from outside.

#include "tests/windows/support/child_process.h"

#include <functional>
#include <string>
#include <vector>

namespace ipctest {

using namespace windows_tests;

// Waits for a condition that no event announces; false when it is not met in time.
bool becomesTrue(const std::function<bool()>& condition);

// Visible top-level windows with the program's title, of all processes.
std::vector<HWND> programWindows();

// The open modal box of process `pid`: its only enabled top-level window. Null when there is none.
HWND modalBoxOf(DWORD pid);

// All log lines that copies of the program have written since clearLogs().
std::string programLogs();
void clearLogs();

// The program's path.
std::wstring programPath();

// Posts a key press to a window.
void pressKey(HWND window, WORD key);

// A first copy with its window.
class RunningProgram
{
public:
    explicit RunningProgram(const std::vector<std::wstring>& arguments = {},
                            const std::wstring& program = programPath(),
                            const ChildOptions& options = {});

    bool ready() const { return mainWindow != nullptr; }
    HWND window() const { return mainWindow; }
    DWORD pid() const { return process.pid(); }
    bool running() const { return !process.waitForExit(milliseconds(0)); }
    std::optional<DWORD> waitForExit() const { return process.waitForExit(); }

    // Clicks a point of the window, in client coordinates of a screen with 96 dpi.
    void click(int x, int y) const;
    void clickSelectAll() const { click(210, 279); }
    void clickUninstall() const { click(317, 279); }
    // Closes the window; returns the exit code.
    std::optional<DWORD> close() const;

private:
    ChildProcess process;
    HWND mainWindow = nullptr;
};

struct SecondStart
{
    std::optional<DWORD> exitCode; // empty when it did not end in time
    bool showedAWindow = false;
};

// Starts the program while `first` runs and waits for its end.
SecondStart startSecond(const RunningProgram& first, const std::vector<std::wstring>& arguments);

} // namespace ipctest
