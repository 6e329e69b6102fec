// The time of the window's uninstall run for each application, compared with bare calls that start
// an uninstaller and wait for it. Prints a table; see docs/performance.md. Run by "make bench".
//
//   run_bench [ROUNDS [APPLICATIONS]]   ROUNDS of both, in turns (default 30; half as many for the
//                                       slower uninstaller), each over APPLICATIONS rows (default
//                                       10)

#include "bench/support/give_up.h"
#include "bench/support/samples.h"
#include "support/keelbase/keelbase.h"
#include "support/win32/unique_handle.h"
#include "tests/windows/widget/suite_registry.h"
#include "ui/uninstall/src/widget.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <cstdlib>

#include <windows.h>

namespace {

using bench::giveUp;
using bench::median;
using bench::now;

constexpr double goal = 1.05;
constexpr DWORD longestWait = 2000; // ms, as in the window
constexpr int warmUps = 2;
constexpr int slowerUninstallerMs = 100;

QString uninstaller()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath() +
                                    QStringLiteral("/timed_uninstaller.exe"));
}

// The command line that the window gives to every uninstaller but the last three.
std::wstring commandLine()
{
    return uninstaller().toStdWString() + L" /SILENT /SUPPRESSMSGBOXES /DISABLEREDIRECT";
}

double bareRun(int applications)
{
    const std::wstring command = commandLine();
    const double begun = now();
    for (int i = 0; i < applications; ++i) {
        std::wstring line = command;
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION information = {};
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &startup, &information))
            giveUp("CreateProcessW failed");
        const win32::KernelHandle process(information.hProcess);
        const win32::KernelHandle thread(information.hThread);
        if (WaitForSingleObject(process.get(), longestWait) != WAIT_OBJECT_0)
            giveUp("an uninstaller did not end");
    }
    return now() - begun;
}

// A full run of the real window; the list holds the applications and no row of the suite's own.
double windowsRun()
{
    Widget window({});
    window.show();
    double begun = 0;
    double ended = 0;
    QTimer::singleShot(0, &window, [&] {
        window.changeItemsState(true);
        QCoreApplication::sendPostedEvents();
        begun = now();
        window.uninstallButtonClicked();
        ended = now();
    });
    if (QApplication::exec() != 0 || window.isAnotherInstanceRunning())
        giveUp("the run did not end as it should");
    return ended - begun;
}

struct Samples
{
    std::vector<double> ours; // ms for each application
    std::vector<double> bare;
};

Samples measure(int rounds, int applications)
{
    Samples samples;
    for (int round = 0; round < warmUps + rounds; ++round) {
        // Each goes first in every other round.
        const bool oursFirst = round % 2 == 0;
        const double first = oursFirst ? windowsRun() : bareRun(applications);
        const double second = oursFirst ? bareRun(applications) : windowsRun();
        if (round < warmUps)
            continue;
        samples.ours.push_back((oursFirst ? first : second) / applications / 1000);
        samples.bare.push_back((oursFirst ? second : first) / applications / 1000);
    }
    return samples;
}

void compare(int milliseconds, int rounds, int applications)
{
    qputenv("TESSERA_BENCH_UNINSTALLER_MS", QByteArray::number(milliseconds));
    const Samples samples = measure(rounds, applications);
    const double our = median(samples.ours);
    const double least = median(samples.bare);
    std::printf("| %d ms | %.2f (%.2f to %.2f) | %.2f (%.2f to %.2f) | %.2f | %s |\n", milliseconds,
                our, bench::quantile(samples.ours, 0.1), bench::quantile(samples.ours, 0.9), least,
                bench::quantile(samples.bare, 0.1), bench::quantile(samples.bare, 0.9), our - least,
                bench::verdict(our / least, goal).c_str());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 30;
    const int applications = argc > 2 ? std::atoi(argv[2]) : 10;
    // The log is part of what is measured.
    Keelbase::setSettingsName("Lumacraft");
    const QApplication application(argc, argv);
    SuiteRegistry registry;
    for (int i = 0; i < applications; ++i)
        registry.addApplication(QStringLiteral("Application %1").arg(i),
                                uninstaller() + QStringLiteral(" /log=C:\\logs\\x_uninstall.log"));

    std::printf(
        "\n### Uninstall run: milliseconds for each application, medians of runs over %d "
        "of them\n\n"
        "In brackets: 10th to 90th percentile."
        "\n\n| the uninstaller takes | the window's run | CreateProcessW and a wait | more |"
        " ratio |\n| --- | --- | --- | --- | --- |\n",
        applications);
    compare(0, rounds, applications);
    compare(slowerUninstallerMs, (rounds + 1) / 2, applications);
    return 0;
}
