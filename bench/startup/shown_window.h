#pragma once

#include <windows.h>

namespace bench {

// Tells when another process shows its main window. The system reports every new window; only those
// are then looked at, once a millisecond, until one is visible: Wine does not report the showing,
// and looking for windows all the time would cost the system what the process needs. One object at
// a time, on one thread.
class ShownWindow
{
public:
    // Begins to listen; windows that exist already are not seen.
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
