// What holds at the moment at which an uninstaller is started, seen from the system call.

#include "tests/support/import_slot.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/run_test_base.h"

#include <windows.h>

namespace {

struct Start
{
    QString commandLine;
    QVariant uninstallMode;
};

QList<Start> starts;

decltype(&CreateProcessW) createProcess = nullptr;

BOOL WINAPI recordAndCreate(LPCWSTR program, LPWSTR commandLine, LPSECURITY_ATTRIBUTES process,
                            LPSECURITY_ATTRIBUTES thread, BOOL inherit, DWORD flags,
                            LPVOID environment, LPCWSTR folder, LPSTARTUPINFOW startup,
                            LPPROCESS_INFORMATION information)
{
    DWORD mode = 0;
    DWORD size = sizeof mode;
    const bool written = RegGetValueW(HKEY_CURRENT_USER, L"Software\\Corvane", L"UninstallMode",
                                      RRF_RT_REG_DWORD, nullptr, &mode, &size) == ERROR_SUCCESS;
    starts.append(
        {QString::fromWCharArray(commandLine), written ? QVariant(int(mode)) : QVariant()});
    return createProcess(program, commandLine, process, thread, inherit, flags, environment, folder,
                         startup, information);
}

} // namespace

class UninstallerStartTest : public RunTestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void uninstallModeIsWrittenBeforeTheFirstUninstallerStarts();
    void deleteSettingsIsReadForEachUninstaller();
};

void UninstallerStartTest::initTestCase()
{
    createProcess = replaceImport("CreateProcessW", &recordAndCreate);
    // cppcheck-suppress knownConditionTrueFalse ; it does not see what is written into the slots
    QVERIFY(createProcess != nullptr);
}

void UninstallerStartTest::uninstallModeIsWrittenBeforeTheFirstUninstallerStarts()
{
    addApplication(QStringLiteral("Loop Maker"), QStringLiteral("LoopMaker"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    WindowUnderTest under;
    under.window.changeItemsState(true);
    starts.clear();
    QVERIFY(press(under));
    QVERIFY(!starts.isEmpty());
    QVERIFY2(starts.first().commandLine.contains(QStringLiteral("LoopMaker")),
             qPrintable(starts.first().commandLine));
    QCOMPARE(starts.first().uninstallMode, QVariant(1));
}

void UninstallerStartTest::deleteSettingsIsReadForEachUninstaller()
{
    const QString program =
        addApplication(QStringLiteral("Loop Maker"), QStringLiteral("LoopMaker"));
    const std::vector<std::string> parts{QDir::toNativeSeparators(program).toStdString(),
                                         "=C:\\logs\\LoopMaker_uninstall.log"};
    WindowUnderTest under;
    starts.clear();
    for (const bool deleted : {false, true, false}) {
        under.deleteSettings->setChecked(deleted);
        under.window.DoUninsstall(1, 0, parts, false);
    }
    QCOMPARE(starts.size(), 3);
    QVERIFY(!starts.at(0).commandLine.contains(QStringLiteral("/FULL")));
    QVERIFY(starts.at(1).commandLine.contains(QStringLiteral("/FULL")));
    QVERIFY(!starts.at(2).commandLine.contains(QStringLiteral("/FULL")));
}

TESSERA_QT_TEST(UninstallerStartTest)
#include "uninstaller_start_test.moc"
