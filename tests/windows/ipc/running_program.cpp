#include "tests/windows/ipc/running_program.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace ipctest {

namespace {

constexpr DWORD checkInterval = 10; // ms

struct Search
{
    std::function<bool(HWND)> wanted;
    std::vector<HWND> found;
};

BOOL CALLBACK collect(HWND window, LPARAM parameter)
{
    auto* search = reinterpret_cast<Search*>(parameter);
    if (search->wanted(window))
        search->found.push_back(window);
    return TRUE;
}

std::vector<HWND> windowsThat(std::function<bool(HWND)> wanted)
{
    Search search = {std::move(wanted), {}};
    EnumWindows(&collect, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

DWORD processOf(HWND window)
{
    DWORD pid = 0;
    GetWindowThreadProcessId(window, &pid);
    return pid;
}

std::filesystem::path logFolder()
{
    wchar_t folder[MAX_PATH] = {};
    GetEnvironmentVariableW(L"APPDATA", folder, MAX_PATH);
    return std::filesystem::path(folder) / L"Lumacraft" / L"logs";
}

} // namespace

bool becomesTrue(const std::function<bool()>& condition)
{
    const win32::KernelHandle timer(CreateWaitableTimerW(nullptr, FALSE, nullptr));
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(patience.count());
    while (!condition()) {
        if (GetTickCount64() >= end)
            return false;
        LARGE_INTEGER due = {};
        due.QuadPart = -10000LL * checkInterval;
        SetWaitableTimer(timer.get(), &due, 0, nullptr, nullptr, FALSE);
        WaitForSingleObject(timer.get(), INFINITE);
    }
    return true;
}

std::vector<HWND> programWindows()
{
    return windowsThat([](HWND window) {
        wchar_t title[64] = {};
        GetWindowTextW(window, title, 64);
        return IsWindowVisible(window) && std::wstring(title) == L"Uninstall";
    });
}

HWND modalBoxOf(DWORD pid)
{
    const auto own = windowsThat(
        [pid](HWND window) { return processOf(window) == pid && IsWindowVisible(window); });
    if (std::none_of(own.begin(), own.end(), [](HWND window) { return !IsWindowEnabled(window); }))
        return nullptr;
    const auto box =
        std::find_if(own.begin(), own.end(), [](HWND window) { return IsWindowEnabled(window); });
    return box == own.end() ? nullptr : *box;
}

std::string programLogs()
{
    std::string text;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(logFolder(), error)) {
        std::ifstream file(entry.path(), std::ios::binary);
        text.append(std::istreambuf_iterator<char>(file), {});
    }
    return text;
}

void clearLogs()
{
    // The folder stays: a program that has begun to log does not recreate it.
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(logFolder(), error))
        std::filesystem::remove(entry.path(), error);
}

std::wstring programPath()
{
    return nearestAbove(L"Uninstall.exe");
}

void pressKey(HWND window, WORD key)
{
    PostMessageW(window, WM_KEYDOWN, key, 1);
    PostMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

RunningProgram::RunningProgram(const std::vector<std::wstring>& arguments,
                               const std::wstring& program, const ChildOptions& options)
    : process(program, arguments, options)
{
    if (!process.started() || WaitForInputIdle(process.handle(), waitTime(patience)) != 0)
        return;
    becomesTrue([this] {
        for (const HWND window : programWindows()) {
            if (processOf(window) == process.pid())
                mainWindow = window;
        }
        return mainWindow != nullptr || !running();
    });
}

void RunningProgram::click(int x, int y) const
{
    constexpr int formWidth = 379;
    RECT client = {};
    SetProcessDPIAware(); // or the width would be that at 96 dpi
    GetClientRect(mainWindow, &client);
    const LPARAM point =
        MAKELPARAM(MulDiv(x, client.right, formWidth), MulDiv(y, client.right, formWidth));
    PostMessageW(mainWindow, WM_MOUSEMOVE, 0, point);
    PostMessageW(mainWindow, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(mainWindow, WM_LBUTTONUP, 0, point);
}

std::optional<DWORD> RunningProgram::close() const
{
    PostMessageW(mainWindow, WM_CLOSE, 0, 0);
    return process.waitForExit();
}

SecondStart startSecond(const RunningProgram& first, const std::vector<std::wstring>& arguments)
{
    const ChildProcess second(programPath(), arguments, {true, false});
    SecondStart result;
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(patience.count());
    do {
        const auto windows = programWindows();
        if (std::any_of(windows.begin(), windows.end(),
                        [&first](HWND window) { return processOf(window) != first.pid(); }))
            result.showedAWindow = true;
        result.exitCode = second.waitForExit(milliseconds(checkInterval));
    } while (!result.exitCode && GetTickCount64() < end);
    return result;
}

} // namespace ipctest
