#include "ui/common/sys/bring_window_to_top.h"

#include "ui/common/sys/win32_error.h"

#include <exception>
#include <string>

namespace sys {

namespace {

struct Enumeration
{
    const std::function<int(HWND)>& visit;
    std::exception_ptr failure;
};

// The system's own code lies between this and the caller, so an exception is carried around it.
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
    GetWindowTextW(window, title, 512);
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
    // To any process: the first copy's number is not known, because its pipe is opened as if it
    // were on another computer, where process numbers mean nothing.
    if (!AllowSetForegroundWindow(ASFW_ANY))
        win32::logFailure({"IPC", "ui/common/sys/bring_window_to_top"}, __LINE__,
                          "AllowSetForegroundWindow", GetLastError());
}

} // namespace sys
