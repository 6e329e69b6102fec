#pragma once

#include <cstdint>
#include <functional>

#include <windows.h>

namespace sys {

// Calls `visit` with every top-level window, in the system's order, until it returns 0. An empty
// `visit` raises std::bad_function_call. Any thread.
void enumerateWindows(const std::function<int(HWND)>& visit);

// Brings another copy's window to the foreground: the first top-level window other than `ownWindow`
// (a native handle) whose title contains the title of `ownWindow`. An empty own title deliberately
// matches any window. Does nothing when no window matches or the system refuses the foreground. Any
// thread.
void bringWindowToTop(std::int64_t ownWindow);

// Allows all processes to bring a window to the front until the user's next input. Windows grants
// this only to a process with that right, such as one the user has just started; otherwise the
// failure is logged and nothing changes. Any thread.
void passForegroundOn();

} // namespace sys
