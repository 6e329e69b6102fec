#pragma once

#include <cstdint>
#include <functional>

#include <windows.h>

namespace sys {

// Calls `visit` with every top-level window, in the system's order, until it returns 0. An empty
// `visit` raises std::bad_function_call. Any thread.
void enumerateWindows(const std::function<int(HWND)>& visit);

// Brings another copy's window to the foreground: the first top-level window other than
// `ownWindow` (a native handle) whose title contains the title of `ownWindow`. The match is loose
// on purpose, since a copy's title may carry more than the bare name; with an empty own title the
// first other window of all is taken. Does nothing when no window matches or the system refuses
// the foreground. Any thread.
void bringWindowToTop(std::int64_t ownWindow);

// Lets other processes put a window in front until the user's next input: Windows refuses that to
// a program in the background, and this one, just started by the user, may permit it. When it may
// not itself, that is logged and nothing changes. Any thread.
void passForegroundOn();

} // namespace sys
