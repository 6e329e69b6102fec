#include "ui/common/sys/bring_window_to_top.h"

#include "ui/common/sys/win32_error.h"

#include <exception>
#include <iterator>
#include <string>

namespace sys {

namespace {

struct Enumeration
{
    const std::function<int(HWND)>& visit;
    std::exception_ptr failure;
};

// Exceptions must not pass through the system's code between this function and the caller.
BOOL CALLBACK visitWindow(HWND window, LPARAM parameter)
{
    auto* enumeration = reinterpret_cast<Enumeration*>(parameter);
    try {
        return enumeration->visit(window) != 0 ? TRUE : FALSE;
    } catch (...) {
        enumeration->failure = std::current_exception();
        return FALSE;
    }
}

std::wstring titleOf(HWND window)
{
    wchar_t title[512] = {};
    GetWindowTextW(window, title, static_cast<int>(std::size(title)));
    return title;
}

} // namespace

void enumerateWindows(const std::function<int(HWND)>& visit)
{
    Enumeration enumeration = {visit, nullptr};
    EnumWindows(&visitWindow, reinterpret_cast<LPARAM>(&enumeration));
    if (enumeration.failure)
        std::rethrow_exception(enumeration.failure);
}

void bringWindowToTop(std::int64_t ownWindow)
{
    const HWND own = reinterpret_cast<HWND>(ownWindow);
    const std::wstring ownTitle = titleOf(own);
    enumerateWindows([own, ownTitle](HWND window) -> int {
        constexpr int goOn = 1;
        constexpr int stop = 0;
        if (window == own)
            return goOn;
        const std::wstring title = titleOf(window);
        if (ownTitle.size() > title.size())
            return goOn;
        if (title.find(ownTitle) == std::wstring::npos)
            return goOn;
        SetForegroundWindow(window);
        return stop;
    });
}

void passForegroundOn()
{
    // Any process, since the first copy's id is unknown: its pipe is opened like one on another
    // computer.
    if (!AllowSetForegroundWindow(ASFW_ANY))
        win32::logFailure({"IPC", "ui/common/sys/bring_window_to_top"}, __LINE__,
                          "AllowSetForegroundWindow", GetLastError());
}

} // namespace sys
