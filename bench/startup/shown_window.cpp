#include "bench/startup/shown_window.h"

#include <algorithm>
#include <vector>

namespace bench {

namespace {

constexpr DWORD checkInterval = 1; // ms

// Windows that any process has created since the ShownWindow was.
std::vector<HWND> made;

void CALLBACK onCreated(HWINEVENTHOOK, DWORD, HWND window, LONG object, LONG, DWORD, DWORD)
{
    if (object == OBJID_WINDOW && window != nullptr)
        made.push_back(window);
}

bool mayBeMainWindow(DWORD pid, HWND window)
{
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    return owner == pid && (style & WS_CAPTION) == WS_CAPTION && (style & WS_CHILD) == 0;
}

} // namespace

ShownWindow::ShownWindow()
    : hook(SetWinEventHook(EVENT_OBJECT_CREATE, EVENT_OBJECT_CREATE, nullptr, &onCreated, 0, 0,
                           WINEVENT_OUTOFCONTEXT))
{
    made.clear();
}

ShownWindow::~ShownWindow()
{
    UnhookWinEvent(hook);
}

HWND ShownWindow::wait(DWORD pid, DWORD milliseconds)
{
    const ULONGLONG end = GetTickCount64() + milliseconds;
    std::vector<HWND> candidates;
    while (GetTickCount64() < end) {
        // The hook is called while messages are dispatched.
        MSG message = {};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
        std::copy_if(made.begin(), made.end(), std::back_inserter(candidates),
                     [pid](HWND window) { return mayBeMainWindow(pid, window); });
        made.clear();
        const auto shown = std::find_if(candidates.begin(), candidates.end(), &IsWindowVisible);
        if (shown != candidates.end())
            return *shown;
        const DWORD pause = candidates.empty() ? milliseconds : checkInterval;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, pause, QS_ALLINPUT);
    }
    return nullptr;
}

} // namespace bench
