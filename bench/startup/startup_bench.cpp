// Start-up, size and memory of Uninstall.exe beside a bare static Qt window. Both are looked at
// from outside and started in turns, so that what else the machine does hits both. Prints a table;
// see docs/performance.md. Run by "make bench".
//
//   startup_bench [STARTS [REMARK]]   STARTS of each program (default 60); the REMARK stands in the
//                                     table's title

#include "bench/startup/shown_window.h"
#include "bench/support/give_up.h"
#include "bench/support/samples.h"
#include "tests/windows/ipc/running_program.h"
#include "tests/windows/support/child_process.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <psapi.h>

namespace {

using bench::giveUp;
using bench::median;
using bench::now;
using bench::quantile;

constexpr int warmUps = 3;
constexpr double startGoal = 1.15;
constexpr double sizeGoal = 1.20;
constexpr double memoryGoal = 1.15;

struct Subject
{
    std::wstring program;
    std::vector<double> shown;      // ms from the start to the window
    std::vector<double> ended;      // ms from closing the window to the end of the process
    std::vector<double> workingSet; // KiB at the peak
    std::vector<double> committed;  // KiB at the peak
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
    // The answer comes from its event loop, so the start is over.
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL,
                             ipctest::waitTime(ipctest::patience), &answer))
        giveUp("a window does not answer");
    WaitForInputIdle(process.handle(), ipctest::waitTime(ipctest::patience));
    PROCESS_MEMORY_COUNTERS memory = {};
    if (!GetProcessMemoryInfo(process.handle(), &memory, sizeof(memory)))
        giveUp("GetProcessMemoryInfo failed");
    const double closed = now();
    PostMessageW(window, WM_CLOSE, 0, 0);
    if (process.waitForExit() != 0u)
        giveUp("a program does not end well");
    subject.ended.push_back((now() - closed) / 1000);
    subject.shown.push_back((seen - begun) / 1000);
    subject.workingSet.push_back(static_cast<double>(memory.PeakWorkingSetSize) / 1024);
    subject.committed.push_back(static_cast<double>(memory.PeakPagefileUsage) / 1024);
}

// As many rows as the sample suite has.
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

void row(const char* what, double ours, double bare, const std::string& judged)
{
    std::printf("| %s | %.1f | %.1f | %s |\n", what, ours, bare, judged.c_str());
}

std::string plainRatio(double ours, double bare)
{
    char text[32] = {};
    std::snprintf(text, sizeof(text), "%.3f", ours / bare);
    return text;
}

void print(const Subject& ours, const Subject& bare, const char* remark)
{
    using Samples = std::vector<double> Subject::*;
    std::printf("\n### Start-up and size%s: medians of %zu starts of each, in turns\n\n"
                "| | Uninstall.exe | bare window | ratio |\n| --- | --- | --- | --- |\n",
                remark, ours.shown.size());
    const auto judge = [&](const char* what, Samples samples, double goal) {
        const double our = median(ours.*samples);
        const double least = median(bare.*samples);
        row(what, our, least,
            goal > 0 ? bench::verdict(our / least, goal) : plainRatio(our, least));
    };
    const auto spread = [&](const char* what, double share) {
        row(what, quantile(ours.shown, share), quantile(bare.shown, share), "");
    };
    judge("start to window shown, ms", &Subject::shown, startGoal);
    spread("- a tenth of the starts is quicker than", 0.1);
    spread("- a tenth of the starts is slower than", 0.9);
    judge("window closed to process ended, ms", &Subject::ended, 0);
    judge("peak working set, KiB", &Subject::workingSet, memoryGoal);
    judge("peak committed memory, KiB", &Subject::committed, 0);
    const double ourSize = static_cast<double>(std::filesystem::file_size(ours.program));
    const double bareSize = static_cast<double>(std::filesystem::file_size(bare.program));
    row("size of the program, KiB", ourSize / 1024, bareSize / 1024,
        bench::verdict(ourSize / bareSize, sizeGoal));
}

} // namespace

int main(int argc, char** argv)
{
    const int starts = argc > 1 ? std::atoi(argv[1]) : 60;
    Subject ours{ipctest::programPath(), {}, {}, {}, {}};
    Subject bare{ipctest::siblingProgram(L"bare_window"), {}, {}, {}, {}};
    registerApplications();
    for (int i = 0; i < warmUps + starts; ++i) {
        if (i == warmUps) {
            for (Subject* subject : {&ours, &bare})
                *subject = {subject->program, {}, {}, {}, {}};
        }
        // Neither always follows the other.
        startOnce(i % 2 == 0 ? ours : bare);
        startOnce(i % 2 == 0 ? bare : ours);
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Corvane");
    print(ours, bare, argc > 2 ? argv[2] : "");
    return 0;
}
