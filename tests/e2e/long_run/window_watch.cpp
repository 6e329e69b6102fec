// Checks repeatedly that a window answers, as the system does before it calls a program "not
// responding", until the window's process has ended.
//
//   window_watch TITLE
//
// Prints "ready" after the first answer; at the end a line of numbers: checks, checks without an
// answer in time, checks at which the system called the window hung, late answers, and the longest
// time of an answer in milliseconds.
#include "support/win32/unique_handle.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include <windows.h>

namespace {

constexpr DWORD checkIntervalMs = 50;
// After this time Windows calls a window hung.
constexpr UINT longestAnswerMs = 5000;
// Less than the program's wait for one uninstaller.
constexpr ULONGLONG lateAnswerMs = 1500;

} // namespace

int main(int argc, char** argv)
{
    const HWND window = FindWindowA(nullptr, argc > 1 ? argv[1] : "");
    DWORD pid = 0;
    GetWindowThreadProcessId(window, &pid);
    const win32::KernelHandle process(OpenProcess(SYNCHRONIZE, FALSE, pid));
    if (!process) {
        std::fprintf(stderr, "window_watch: no such window\n");
        return 1;
    }
    int asked = 0;
    int unanswered = 0;
    int hung = 0;
    int late = 0;
    ULONGLONG longest = 0;
    do {
        const ULONGLONG begun = GetTickCount64();
        DWORD_PTR result = 0;
        if (SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, longestAnswerMs, &result)) {
            const ULONGLONG taken = GetTickCount64() - begun;
            late += taken > lateAnswerMs ? 1 : 0;
            longest = std::max(longest, taken);
        } else if (IsWindow(window)) {
            ++unanswered;
        } else {
            // The program is ending; its window is gone already.
            continue;
        }
        hung += IsHungAppWindow(window) ? 1 : 0;
        if (++asked == 1) {
            std::printf("ready\n");
            std::fflush(stdout);
        }
    } while (WaitForSingleObject(process.get(), checkIntervalMs) == WAIT_TIMEOUT);
    std::printf("%d %d %d %d %llu\n", asked, unanswered, hung, late, longest);
    return 0;
}
