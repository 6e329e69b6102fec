// Running applications during a run: the real warning box, and real processes that hold the
// mutexes.

#include "support/win32/unique_handle.h"
#include "tests/support/import_slot.h"
#include "tests/windows/dialogs/dialog_driver.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/captured_log.h"
#include "tests/windows/widget/run_test_base.h"
#include "ui/uninstall/src/running_application.h"

#include <QFile>

#include <optional>

#include <windows.h>

namespace {

UINT reportedLength = 0;

UINT WINAPI reportLength(LPWSTR, UINT)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return reportedLength;
}

BOOL WINAPI refuseProcess(LPCWSTR, LPWSTR, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES, BOOL,
                          DWORD, LPVOID, LPCWSTR, LPSTARTUPINFOW, LPPROCESS_INFORMATION)
{
    SetLastError(ERROR_FILE_NOT_FOUND);
    return FALSE;
}

} // namespace

class WidgetWarningTest : public RunTestBase
{
    Q_OBJECT

private slots:
    void okEndsTheRunningApplicationAndContinues();
    void cancelInASelectiveRunChecksAllRowsAndUninstallsNothing();
    void cancelInAFullRunLeavesRowsUncheckedAndControlsDisabled();
    void closingTheWarningCountsAsCancel();
    void twoRunningApplicationsAskInRowOrder();
    void suiteRowWarnsAboutApplicationsThatAreNotListed();
    void warningIsAWarningOfTheWindowWithTwoButtons();
    void warningNamesTheInstallFolder();
    void warningWithoutAPathBeginsWithIsRunning();
    void warningOfAForeignApplicationShowsItsName();
    void taskkillIsTheSystemsAndNamesTheIdString();
    void taskkillIsNotWaitedFor();
    void taskkillThatDoesNotStartIsLogged();
    void nothingIsStartedWithoutTheSystemsFolder_data();
    void nothingIsStartedWithoutTheSystemsFolder();
    void mutexThatCannotBeOpenedIsLoggedAndCountsAsNotRunning();
};

void WidgetWarningTest::okEndsTheRunningApplicationAndContinues()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    const auto running = startApplication(QStringLiteral("ScreenTaker"));
    QVERIFY(uninstall::applicationIsRunning("ScreenTaker"));
    answerBoxes({QMessageBox::Ok});
    WindowUnderTest under;
    under.window.changeItemsState(true);
    QVERIFY(press(under));
    QCOMPARE(boxTexts.size(), 1);
    QCOMPARE(boxTitles, QStringList{QStringLiteral("Uninstallation")});
    QVERIFY(running->state() == QProcess::NotRunning || running->waitForFinished(deadlineMs));
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker")).size(), 1);
    QCOMPARE(awaitedStartsOf(QStringLiteral("WaveTuner")).size(), 1);
}

void WidgetWarningTest::cancelInASelectiveRunChecksAllRowsAndUninstallsNothing()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    addApplication(QStringLiteral("Loop Maker"), QStringLiteral("LoopMaker"));
    const auto running = startApplication(QStringLiteral("LoopMaker"));
    answerBoxes({QMessageBox::Cancel});
    const CapturedLog log;
    WindowUnderTest under;
    under.list->item(under.rowOf(QStringLiteral("Loop Maker")))->setCheckState(Qt::Checked);
    under.list->item(under.rowOf(QStringLiteral("Wave Tuner")))->setCheckState(Qt::Checked);
    QVERIFY(press(under));
    QCOMPARE(boxTexts.size(), 1);
    QCOMPARE(under.list->count(), 3);
    QCOMPARE(under.checkedRows(), 3);
    QCOMPARE(under.selectState(), 0);
    for (const QString& id :
         {QStringLiteral("ScreenTaker"), QStringLiteral("WaveTuner"), QStringLiteral("LoopMaker")})
        QCOMPARE(startsOf(id), QStringList());
    QCOMPARE(running->state(), QProcess::Running);
    const std::vector<std::string> expected{
        "-->Widget::Widget()",        "Try to fill list widget (runtime brand: Lumacraft)",
        "--> uninstallButtonClicked", "--> showWarningAndKillApp: LoopMaker",
        "changeItemsState: 0",        "allApplicationsSelButtonClicked",
        "changeItemsState: 1"};
    QCOMPARE(log.mainFormTexts(), expected);
    running->kill();
    QVERIFY(running->waitForFinished(deadlineMs));
}

void WidgetWarningTest::cancelInAFullRunLeavesRowsUncheckedAndControlsDisabled()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(suiteName, QStringLiteral("Tessera"));
    const auto running = startApplication(QStringLiteral("ScreenTaker"));
    answerBoxes({QMessageBox::Cancel});
    WindowUnderTest under;
    QVERIFY(under.show());
    QTest::mouseClick(under.select, Qt::LeftButton);
    QVERIFY(press(under));
    QCOMPARE(boxTexts.size(), 1);
    QCOMPARE(under.list->count(), 2);
    QCOMPARE(under.checkedRows(), 0);
    QVERIFY(!under.uninstall->isEnabled());
    QVERIFY(!under.deleteSettings->isEnabled());
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")), QStringList());
    QCOMPARE(startsOf(QStringLiteral("Tessera")), QStringList());
    QVERIFY(!registry->value(QStringLiteral("UninstallMode")).isValid());
    running->kill();
    QVERIFY(running->waitForFinished(deadlineMs));
}

void WidgetWarningTest::closingTheWarningCountsAsCancel()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    const auto running = startApplication(QStringLiteral("ScreenTaker"));
    answerBoxes({QMessageBox::NoButton});
    WindowUnderTest under({"/app", "ScreenTaker"});
    QVERIFY(press(under));
    QCOMPARE(boxTexts.size(), 1);
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")), QStringList());
    QCOMPARE(running->state(), QProcess::Running);
    running->kill();
    QVERIFY(running->waitForFinished(deadlineMs));
}

void WidgetWarningTest::twoRunningApplicationsAskInRowOrder()
{
    addApplication(QStringLiteral("Loop Maker"), QStringLiteral("LoopMaker"));
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    registry->addPath(QStringLiteral("LoopMaker"), QStringLiteral("C:\\Lumacraft\\Loops"));
    registry->addPath(QStringLiteral("ScreenTaker"), QStringLiteral("C:\\Lumacraft\\Screens"));
    const auto first = startApplication(QStringLiteral("LoopMaker"));
    const auto second = startApplication(QStringLiteral("ScreenTaker"));
    answerBoxes({QMessageBox::Ok, QMessageBox::Ok});
    WindowUnderTest under;
    under.window.changeItemsState(true);
    QVERIFY(press(under));
    QCOMPARE(boxTexts.size(), 2);
    const int loops = under.rowOf(QStringLiteral("Loop Maker"));
    QCOMPARE(loops, -1);
    QVERIFY(boxTexts.at(0).startsWith(QStringLiteral("Loops is running.\n")));
    QVERIFY(boxTexts.at(1).startsWith(QStringLiteral("Screens is running.\n")));
    QVERIFY(first->state() == QProcess::NotRunning || first->waitForFinished(deadlineMs));
    QVERIFY(second->state() == QProcess::NotRunning || second->waitForFinished(deadlineMs));
}

void WidgetWarningTest::suiteRowWarnsAboutApplicationsThatAreNotListed()
{
    addApplication(suiteName, QStringLiteral("Tessera"));
    const auto running = startApplication(QStringLiteral("WaveTuner"));
    answerBoxes({QMessageBox::Ok});
    WindowUnderTest under({"/app", "Tessera"});
    QVERIFY(press(under));
    QCOMPARE(boxTexts.size(), 1);
    QVERIFY(running->state() == QProcess::NotRunning || running->waitForFinished(deadlineMs));
    QCOMPARE(awaitedStartsOf(QStringLiteral("Tessera")).size(), 1);
}

void WidgetWarningTest::warningIsAWarningOfTheWindowWithTwoButtons()
{
    WindowUnderTest under;
    QWidget* parent = nullptr;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
    DialogDriver driver;
    driver.expect("QMessageBox", [&](QDialog& dialog) {
        auto& box = static_cast<QMessageBox&>(dialog);
        parent = box.parentWidget();
        icon = box.icon();
        buttons = box.standardButtons();
        QTest::mouseClick(box.button(QMessageBox::Cancel), Qt::LeftButton);
    });
    under.window.showWarningAndKillApp("ScreenTaker", true);
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(parent, &under.window);
    QCOMPARE(icon, QMessageBox::Warning);
    QCOMPARE(buttons, QMessageBox::Ok | QMessageBox::Cancel);
}

void WidgetWarningTest::warningNamesTheInstallFolder()
{
    registry->addPath(QStringLiteral("ScreenTaker"),
                      QStringLiteral("C:\\Program Files\\Lumacraft\\Screen Taker 3\\bin\\x.exe"));
    answerBoxes({QMessageBox::Cancel});
    WindowUnderTest under;
    under.window.showWarningAndKillApp("ScreenTaker", true);
    QCOMPARE(boxTexts,
             QStringList{QStringLiteral("Screen Taker 3 is running.\nPlease click OK to close "
                                        "this application or click Cancel to exit.")});
}

void WidgetWarningTest::warningWithoutAPathBeginsWithIsRunning()
{
    answerBoxes({QMessageBox::Cancel});
    WindowUnderTest under;
    under.window.showWarningAndKillApp("ScreenTaker", true);
    QCOMPARE(boxTexts.size(), 1);
    QVERIFY(boxTexts.at(0).startsWith(QStringLiteral(" is running.\n")));
}

void WidgetWarningTest::warningOfAForeignApplicationShowsItsName()
{
    registry->addPath(QStringLiteral("Stranger"), QStringLiteral("C:\\Lumacraft\\Folder"));
    answerBoxes({QMessageBox::Cancel});
    WindowUnderTest under;
    under.window.showWarningAndKillApp("Stranger", false);
    QCOMPARE(boxTexts.size(), 1);
    QVERIFY(boxTexts.at(0).startsWith(QStringLiteral("Stranger is running.\n")));
}

void WidgetWarningTest::taskkillIsTheSystemsAndNamesTheIdString()
{
    registry->addPath(QStringLiteral("ScreenTaker"), QStringLiteral("C:\\Lumacraft\\Screens"));
    answerBoxes({QMessageBox::Ok});
    WindowUnderTest under;
    under.window.showWarningAndKillApp("ScreenTaker", true);
    const auto* taskkill = under.window.findChild<QProcess*>();
    QVERIFY(taskkill != nullptr);
    wchar_t folder[MAX_PATH] = {};
    QVERIFY(GetSystemDirectoryW(folder, MAX_PATH) > 0);
    QCOMPARE(taskkill->program(),
             QString::fromWCharArray(folder) + QStringLiteral("\\taskkill.exe"));
    QVERIFY(QFile::exists(taskkill->program()));
    const QStringList expected{QStringLiteral("/IM"), QStringLiteral("ScreenTaker.exe"),
                               QStringLiteral("/F")};
    QCOMPARE(taskkill->arguments(), expected);
}

void WidgetWarningTest::taskkillIsNotWaitedFor()
{
    answerBoxes({QMessageBox::Ok});
    WindowUnderTest under;
    under.window.showWarningAndKillApp("ScreenTaker", true);
    const auto* taskkill = under.window.findChild<QProcess*>();
    QVERIFY(taskkill != nullptr);
    // Its end is noticed by an event loop or a wait only, and there has been neither since.
    QCOMPARE(taskkill->state(), QProcess::Running);
}

void WidgetWarningTest::taskkillThatDoesNotStartIsLogged()
{
    answerBoxes({QMessageBox::Ok});
    const testing_support::RecordedLog log;
    WindowUnderTest under;
    const ReplacedImport refused("CreateProcessW", &refuseProcess);
    QVERIFY(refused.original() != nullptr);
    under.window.showWarningAndKillApp("ScreenTaker", true);
    const Keelbase::LogRecord last = log.records().back();
    QVERIFY2(QString::fromStdString(last.text).startsWith(
                 QStringLiteral("showWarningAndKillApp: not started: ")),
             last.text.c_str());
}

void WidgetWarningTest::nothingIsStartedWithoutTheSystemsFolder_data()
{
    QTest::addColumn<unsigned>("lengthReported");
    QTest::addColumn<QString>("logged");
    QTest::newRow("unknown") << 0U << QStringLiteral("GetSystemDirectoryW failed: 5 ");
    QTest::newRow("too long for the buffer")
        << unsigned{MAX_PATH} << QStringLiteral("GetSystemDirectoryW failed: 122 ");
}

void WidgetWarningTest::nothingIsStartedWithoutTheSystemsFolder()
{
    QFETCH(unsigned, lengthReported);
    QFETCH(QString, logged);
    reportedLength = lengthReported;
    std::optional<ReplacedImport<decltype(&GetSystemDirectoryW)>> replaced;
    const testing_support::RecordedLog log;
    WindowUnderTest under;
    DialogDriver driver;
    driver.expect("QMessageBox", [&replaced](QDialog& box) {
        // Qt calls the function too, so it is replaced as late as possible.
        replaced.emplace("GetSystemDirectoryW", &reportLength);
        QTest::mouseClick(static_cast<QMessageBox&>(box).button(QMessageBox::Ok), Qt::LeftButton);
    });
    under.window.showWarningAndKillApp("ScreenTaker", true);
    QCOMPARE(driver.problem(), QString());
    QVERIFY(replaced->original() != nullptr);
    replaced.reset();
    QVERIFY(under.window.findChild<QProcess*>() == nullptr);
    const Keelbase::LogRecord last = log.records().back();
    QCOMPARE(last.category, std::string("MainForm"));
    QVERIFY2(QString::fromStdString(last.text).startsWith(logged), last.text.c_str());
}

void WidgetWarningTest::mutexThatCannotBeOpenedIsLoggedAndCountsAsNotRunning()
{
    // Another kind of object has the name.
    const win32::KernelHandle event(
        CreateEventW(nullptr, TRUE, FALSE, L"Global\\Lumacraft_ScreenTaker"));
    QVERIFY(event);
    const testing_support::RecordedLog log;
    QVERIFY(!uninstall::applicationIsRunning("ScreenTaker"));
    QCOMPARE(log.records().size(), std::size_t{1});
    QCOMPARE(log.records()[0].text.rfind("CreateMutexW failed: 6 ", 0), std::size_t{0});
}

TESSERA_QT_TEST(WidgetWarningTest)
#include "widget_warning_test.moc"
