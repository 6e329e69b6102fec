// run_tests.exe [TEST...]: runs the test programs of the kit, one after the other, and writes
// report.txt into the kit's folder. Started by run-tests.cmd, which lies there.
//
// Exit code: 0 when all passed, 1 when one failed, 2 when the run was refused or stopped.
#include "support/win32/unique_handle.h"
#include "tools/windows_kit/runner/machine.h"
#include "tools/windows_kit/runner/saved_settings.h"
#include "tools/windows_kit/runner/test_list.h"
#include "tools/windows_kit/runner/test_run.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace kit;

constexpr int refusedOrStopped = 2;

// For the console's handler, which has a thread of its own.
HANDLE stopRequested = nullptr;
HANDLE settingsAreBack = nullptr;

// Ctrl+C, Ctrl+Break and the window's close button. Windows ends this process when the handler of a
// close returns, so it waits until everything is as it was.
BOOL WINAPI stop(DWORD)
{
    SetEvent(stopRequested);
    WaitForSingleObject(settingsAreBack, INFINITE);
    return TRUE;
}

std::filesystem::path ownFolder()
{
    std::wstring path(32'768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return std::filesystem::path(path).parent_path();
}

bool userAgrees(std::size_t tests)
{
    std::printf(
        "This runs %zu test programs, one after the other, in some minutes.\n"
        "Windows will open and close; please leave mouse and keyboard alone, and close\n"
        "Uninstall.exe and the suite's applications first.\n\n"
        "For that time HKEY_CURRENT_USER\\Software\\Corvane and %%APPDATA%%\\Lumacraft are\n"
        "put aside. They are put back at the end, and also after Ctrl+C.\n\n"
        "Go on? (yes/no) ",
        tests);
    std::fflush(stdout);
    std::string answer;
    std::getline(std::cin, answer);
    if (!answer.empty() && answer.back() == '\r')
        answer.pop_back();
    std::puts("");
    return answer == "yes" || answer == "y";
}

std::string outcomeOf(const TestResult& result)
{
    switch (result.outcome) {
    case Outcome::passed:
        return "passed";
    case Outcome::failed:
        return "FAILED with code " + std::to_string(result.code);
    case Outcome::overTime:
        return "FAILED: over its time limit";
    case Outcome::stopped:
        return "stopped";
    case Outcome::notStarted:
        break;
    }
    return "FAILED to start, error " + std::to_string(result.code);
}

class Report
{
public:
    explicit Report(const std::filesystem::path& file) : stream(file, std::ios::binary) {}

    bool opened() const { return stream.is_open(); }
    // To the console and the file.
    void line(const std::string& text)
    {
        std::printf("%s\n", text.c_str());
        std::fflush(stdout);
        fileOnly(text);
    }
    void fileOnly(const std::string& text)
    {
        stream << text << "\r\n";
        stream.flush();
    }

private:
    std::ofstream stream;
};

struct Count
{
    int passed = 0;
    int failed = 0;
    bool stopped = false;
};

Count runAll(const std::filesystem::path& folder, const std::vector<TestEntry>& tests,
             Report& report)
{
    Count count;
    std::string failures;
    for (const TestEntry& test : tests) {
        clearSettings();
        const TestResult result = runTest(folder, test, stopRequested);
        char seconds[32];
        std::snprintf(seconds, sizeof(seconds), " (%.1f s)", result.seconds);
        report.line(test.name + ": " + outcomeOf(result) + seconds);
        if (result.outcome == Outcome::stopped) {
            count.stopped = true;
            break;
        }
        if (result.outcome == Outcome::passed) {
            ++count.passed;
        } else {
            ++count.failed;
            failures += "\r\n---- " + test.name + " ----\r\n" + result.output;
        }
    }
    report.fileOnly(failures);
    return count;
}

std::vector<TestEntry> chosen(const std::vector<TestEntry>& all, int argc, char** argv)
{
    if (argc < 2)
        return all;
    std::vector<TestEntry> some;
    std::copy_if(all.begin(), all.end(), std::back_inserter(some), [&](const TestEntry& test) {
        return std::find(argv + 1, argv + argc, test.name) != argv + argc;
    });
    return some;
}

// A run that was cut off left the user's settings aside.
bool makeGoodAnEarlierRun()
{
    if (restoreSettings())
        return true;
    std::fputs("The settings that an earlier run put aside cannot be put back.\n", stderr);
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    SetConsoleOutputCP(CP_UTF8);
    SetProcessDPIAware();
    const std::filesystem::path folder = ownFolder();
    const std::filesystem::path kitFolder = folder.parent_path();
    const std::vector<TestEntry> tests = chosen(readTestList(folder / "tests.txt"), argc, argv);
    if (tests.empty()) {
        std::fputs("There is no such test.\n", stderr);
        return refusedOrStopped;
    }
    if (!makeGoodAnEarlierRun() || !userAgrees(tests.size()))
        return refusedOrStopped;

    const win32::KernelHandle stopEvent(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    const win32::KernelHandle backEvent(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    stopRequested = stopEvent.get();
    settingsAreBack = backEvent.get();
    SetConsoleCtrlHandler(&stop, TRUE);
    SetEnvironmentVariableW(L"TESSERA_TESTS_MAY_CHANGE_SETTINGS", L"1");
    // The Qt tests carry the program's manifest, which asks for the highest rights: without this an
    // administrator who has not elevated the runner could not start them.
    SetEnvironmentVariableW(L"__COMPAT_LAYER", L"RunAsInvoker");
    SetEnvironmentVariableW(L"TESSERA_DPI", std::to_wstring(screenDpi()).c_str());
    // Without a console of its own Qt Test writes to the debugger only.
    SetEnvironmentVariableW(L"QT_FORCE_STDERR_LOGGING", L"1");

    const std::filesystem::path reportFile = kitFolder / "report.txt";
    Report report(reportFile);
    if (!report.opened()) {
        std::fprintf(stderr,
                     "%s cannot be written: close it, or unpack the ZIP into another folder.\n",
                     reportFile.u8string().c_str());
        return refusedOrStopped;
    }
    report.line(describeMachine() + "Uninstall.exe: SHA-256 " +
                sha256Of(kitFolder / "Uninstall.exe") + '\n');
    if (!putSettingsAside())
        return refusedOrStopped;
    const Count count = runAll(folder, tests, report);
    const bool back = restoreSettings();
    SetEvent(settingsAreBack);

    report.line(back ? "\nYour settings are back." : "\nYOUR SETTINGS COULD NOT BE PUT BACK.");
    if (count.stopped)
        report.line("Stopped before the end.");
    std::printf("The report is in %s\n", reportFile.u8string().c_str());
    report.line(std::to_string(count.passed) + " passed, " + std::to_string(count.failed) +
                " failed");
    if (count.stopped || !back)
        return refusedOrStopped;
    return count.failed == 0 ? 0 : 1;
}
