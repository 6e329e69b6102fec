#pragma once

#include <windows.h>

namespace bench {

// Waits until another process shows its main window. The system reports new windows; those are
// checked every millisecond until one is visible, because Wine does not report the showing.
// Enumerating all windows instead would slow down the process that is measured. One object at a
// time, on one thread.
class ShownWindow
{
public:
    // Begins to listen; windows that exist already are ignored.
    ShownWindow();
    ~ShownWindow();
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

    // Waits until process `pid` has shown a top-level window with a title bar; null after
    // `milliseconds` without one.
    HWND wait(DWORD pid, DWORD milliseconds);

private:
    HWINEVENTHOOK hook;
};

} // namespace bench
