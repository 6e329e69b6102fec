// Start-up, size and memory of Uninstall.exe compared with two bare windows: one of the same Qt,
// one with Qt's unpatched platform plugin. All are measured from outside and started in turns, so
// that other load on the machine affects all. Prints a table; see docs/performance.md. Run by "make
// bench".
//
//   startup_bench [STARTS]   STARTS of each program (default 60)

#include "bench/startup/shown_window.h"
#include "bench/support/give_up.h"
#include "bench/support/samples.h"
#include "tests/windows/ipc/running_program.h"
#include "tests/windows/support/child_process.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <psapi.h>

namespace {

using bench::giveUp;
using bench::now;
using bench::quantile;

constexpr int warmUps = 3;
constexpr DWORD quiet = 100; // ms

struct Subject
{
    std::wstring program;
    std::vector<double> shown;      // ms from the start to the window
    std::vector<double> ended;      // ms from closing the window to the end of the process
    std::vector<double> workingSet; // KiB at the peak
    std::vector<double> committed;  // KiB at the peak
    std::vector<double> libraries;  // loaded at the window, the program included
};

void forget(Subject& subject)
{
    subject = {subject.program, {}, {}, {}, {}, {}};
}

ULONGLONG processorTime(HANDLE process)
{
    FILETIME created = {};
    FILETIME ended = {};
    FILETIME system = {};
    FILETIME user = {};
    if (!GetProcessTimes(process, &created, &ended, &system, &user))
        giveUp("GetProcessTimes failed");
    const auto number = [](const FILETIME& time) {
        return (ULONGLONG{time.dwHighDateTime} << 32) + time.dwLowDateTime;
    };
    return number(system) + number(user);
}

// Waits until the program has nothing to do: a window that is closed earlier is painted first.
void waitForRest(HANDLE process)
{
    const ULONGLONG end = GetTickCount64() + ipctest::waitTime(ipctest::patience);
    ULONGLONG before = 0;
    for (ULONGLONG used = processorTime(process); used != before; used = processorTime(process)) {
        if (GetTickCount64() >= end)
            giveUp("a program does not come to rest");
        before = used;
        Sleep(quiet);
    }
}

// The largest permitted ratios to the bare windows; 0: no goal.
struct Goals
{
    double sameQt;
    double unpatchedQt;
};

void startOnce(Subject& subject)
{
    bench::ShownWindow shown;
    const double begun = now();
    const ipctest::ChildProcess process(subject.program, {});
    if (!process.started())
        giveUp("a program does not start");
    const HWND window = shown.wait(process.pid(), ipctest::waitTime(ipctest::patience));
    const double seen = now();
    if (window == nullptr)
        giveUp("a program shows no window");
    // The event loop answers, so the start is over.
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL,
                             ipctest::waitTime(ipctest::patience), &answer))
        giveUp("a window does not answer");
    WaitForInputIdle(process.handle(), ipctest::waitTime(ipctest::patience));
    PROCESS_MEMORY_COUNTERS memory = {};
    if (!GetProcessMemoryInfo(process.handle(), &memory, sizeof(memory)))
        giveUp("GetProcessMemoryInfo failed");
    std::array<HMODULE, 512> modules = {};
    DWORD size = 0;
    if (!EnumProcessModules(process.handle(), modules.data(), sizeof(modules), &size))
        giveUp("EnumProcessModules failed");
    waitForRest(process.handle());
    const double closed = now();
    PostMessageW(window, WM_CLOSE, 0, 0);
    if (process.waitForExit() != 0u)
        giveUp("a program does not end well");
    subject.ended.push_back((now() - closed) / 1000);
    subject.shown.push_back((seen - begun) / 1000);
    subject.workingSet.push_back(static_cast<double>(memory.PeakWorkingSetSize) / 1024);
    subject.committed.push_back(static_cast<double>(memory.PeakPagefileUsage) / 1024);
    subject.libraries.push_back(static_cast<double>(size / sizeof(HMODULE)));
    Sleep(quiet); // the system still clears up after the process
}

// The number of rows is that of the sample suite.
void registerApplications()
{
    for (int number = 1; number <= 12; ++number) {
        const std::wstring name = L"Application " + std::to_wstring(number);
        const std::wstring command = L"C:\\Program Files\\Lumacraft\\" + name +
                                     L"\\Uninst.exe /log=C:\\logs\\Application_uninstall.log";
        RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Corvane\\UninstPaths", name.c_str(), REG_SZ,
                        command.c_str(),
                        static_cast<DWORD>((command.size() + 1) * sizeof(wchar_t)));
    }
}

// A figure of the program, of the bare window of the same Qt, and of the one of unpatched Qt.
using Figures = std::array<double, 3>;

void row(const char* what, const Figures& figures, const Goals& goals)
{
    const auto [ours, same, unpatched] = figures;
    std::printf("| %s | %.1f | %.1f | %s | %.1f | %s |\n", what, ours, same,
                bench::verdict(ours / same, goals.sameQt).c_str(), unpatched,
                bench::verdict(ours / unpatched, goals.unpatchedQt).c_str());
}

void print(const std::array<Subject, 3>& subjects)
{
    using Samples = std::vector<double> Subject::*;
    std::printf("\n### Start-up and size: medians of %zu starts of each, in turns\n\n"
                "| | Uninstall.exe | bare window, same Qt | ratio | bare window, unpatched Qt "
                "| ratio |\n| --- | --- | --- | --- | --- | --- |\n",
                subjects[0].shown.size());
    const auto measured = [&](const char* what, Samples samples, double share, Goals goals) {
        Figures figures = {};
        for (std::size_t i = 0; i < subjects.size(); ++i)
            figures[i] = quantile(subjects[i].*samples, share);
        row(what, figures, goals);
    };
    measured("start to window shown, ms", &Subject::shown, 0.5, {1.00, 0.60});
    measured("- a tenth of the starts is quicker than", &Subject::shown, 0.1, {});
    measured("- a tenth of the starts is slower than", &Subject::shown, 0.9, {});
    measured("window closed to process ended, ms", &Subject::ended, 0.5, {1.30, 1.30});
    measured("peak working set, KiB", &Subject::workingSet, 0.5, {1.05, 0.34});
    measured("peak committed memory, KiB", &Subject::committed, 0.5, {});
    measured("modules loaded at the window", &Subject::libraries, 0.5, {1.00, 1.00});
    Figures sizes = {};
    for (std::size_t i = 0; i < subjects.size(); ++i)
        sizes[i] = static_cast<double>(std::filesystem::file_size(subjects[i].program)) / 1024;
    row("size of the program, KiB", sizes, {1.08, 1.08});
}

} // namespace

int main(int argc, char** argv)
{
    const int starts = argc > 1 ? std::atoi(argv[1]) : 60;
    std::array<Subject, 3> subjects;
    subjects[0].program = ipctest::programPath();
    subjects[1].program = ipctest::siblingProgram(L"bare_window");
    subjects[2].program = ipctest::siblingProgram(L"bare_window_unpatched");
    registerApplications();
    for (int i = 0; i < warmUps + starts; ++i) {
        if (i == warmUps) {
            for (Subject& subject : subjects)
                forget(subject);
        }
        // The order rotates.
        for (std::size_t turn = 0; turn < subjects.size(); ++turn)
            startOnce(subjects[(static_cast<std::size_t>(i) + turn) % subjects.size()]);
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Corvane");
    print(subjects);
    return 0;
}
