// The uninstall run from its button to the end of the program, with real uninstallers, real
// running applications and the real warning box.

#include <QElapsedTimer>
#include <QMessageBox>
#include <QProcess>
#include <QTemporaryDir>

#include "tests/windows/widget/captured_log.h"
#include "tests/windows/widget/suite_registry.h"
#include "tests/windows/widget/window_under_test.h"
#include "ui/uninstall/src/app_catalogue.h"
#include "ui/uninstall/src/running_application.h"

namespace {

constexpr int deadlineMs = 60'000;

const QString suiteName = QString::fromStdString(uninstall::displayName(uninstall::suiteId, false));

} // namespace

class WidgetRunTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void selectiveRunPassesItsSwitchesAndRemovesTheRow();
    void selectiveRunWithDeleteSettingsAddsFull();
    void fullRunCountsRowsDownAndTakesTheSuiteLast();
    void fullRunWithDeleteSettingsDropsTheLogSwitch();
    void uninstallModeStaysUnwrittenInSelectiveRuns();
    void everyRowWithoutASuiteRowEndsQuietly();
    void emptyCommandRunsNothingAndRemovesTheRow();
    void emptyListQuitsAtOnce();
    void missingProgramDoesNotStopTheRun();
    void longAndQuotedCommandsArriveWhole();
    void uninstallerOverTwoSecondsIsLeftRunning();
    void windowAnswersAndStaysOpenDuringAWait();
    void okEndsTheRunningApplicationAndGoesOn();
    void cancelInASelectiveRunChecksAllRowsAgainAndUninstallsNothing();
    void cancelInAFullRunLeavesRowsUncheckedAndControlsDisabled();
    void closingTheWarningCountsAsCancel();
    void twoRunningApplicationsAskInRowOrder();
    void suiteRowAsksForApplicationsThatAreNotListed();
    void warningNamesTheInstallFolder();
    void warningWithoutAPathBeginsWithIsRunning();
    void warningOfAForeignApplicationShowsItsName();
    void taskkillNamesTheIdString();

private:
    QString addApplication(const QString& displayName, const QString& idString,
                           const QString& program = QStringLiteral("Uninst.exe"));
    QStringList startsOf(const QString& idString,
                         const QString& program = QStringLiteral("Uninst.exe"));
    std::unique_ptr<QProcess> startApplication(const QString& idString);
    bool press(WindowUnderTest& under);
    void answerBoxes(QList<QMessageBox::StandardButton> answers);
    static QString logSwitch(const QString& idString);

    std::unique_ptr<SuiteRegistry> registry;
    std::unique_ptr<QTemporaryDir> folder;
    QStringList boxTexts;
    QStringList boxTitles;
    std::unique_ptr<QTimer> boxWatcher;
};

void WidgetRunTest::init()
{
    registry = std::make_unique<SuiteRegistry>();
    folder = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/run XXXXXX"));
    QVERIFY(folder->isValid());
    boxTexts.clear();
    boxTitles.clear();
}

void WidgetRunTest::cleanup()
{
    boxWatcher.reset();
    registry.reset();
    folder.reset();
}

QString WidgetRunTest::logSwitch(const QString& idString)
{
    return QStringLiteral("/log=C:\\users\\logs\\%1_uninstall.log").arg(idString);
}

// Registers an application whose uninstaller records its arguments, in a folder of its own with
// a space and non-ASCII letters in its path.
QString WidgetRunTest::addApplication(const QString& displayName, const QString& idString,
                                      const QString& program)
{
    const QString home = folder->filePath(QString::fromUtf8("Ünser %1").arg(idString));
    QDir().mkpath(home);
    const QString path = home + QLatin1Char('/') + program;
    QFile::copy(QCoreApplication::applicationDirPath() +
                    QStringLiteral("/recording_uninstaller.exe"),
                path);
    registry->addApplication(displayName, QDir::toNativeSeparators(path) + QLatin1Char(' ') +
                                              logSwitch(idString));
    return path;
}

QStringList WidgetRunTest::startsOf(const QString& idString, const QString& program)
{
    QFile file(folder->filePath(QString::fromUtf8("Ünser %1/").arg(idString)) + program +
               QStringLiteral(".args"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    lines.removeLast();
    return lines;
}

std::unique_ptr<QProcess> WidgetRunTest::startApplication(const QString& idString)
{
    const QString program = folder->filePath(idString + QStringLiteral(".exe"));
    QFile::copy(QCoreApplication::applicationDirPath() + QStringLiteral("/suite_instance.exe"),
                program);
    auto process = std::make_unique<QProcess>();
    process->start(program, QStringList());
    while (process->state() != QProcess::NotRunning && !process->canReadLine()) {
        if (!process->waitForReadyRead(deadlineMs))
            break;
    }
    return process;
}

// Shows the window, presses "Uninstall" with the mouse and runs the event loop to its end.
bool WidgetRunTest::press(WindowUnderTest& under)
{
    if (!under.show())
        return false;
    bool timedOut = false;
    QTimer::singleShot(0, &under.window, [&under] {
        under.uninstall->setEnabled(true);
        QTest::mouseClick(under.uninstall, Qt::LeftButton);
    });
    QTimer::singleShot(deadlineMs, &under.window, [&timedOut] {
        timedOut = true;
        QCoreApplication::exit(1);
    });
    return QApplication::exec() == 0 && !timedOut;
}

// Presses the given buttons of the warning boxes that appear, one after the other, and notes
// their texts. NoButton closes the box by its title bar.
void WidgetRunTest::answerBoxes(QList<QMessageBox::StandardButton> answers)
{
    boxWatcher = std::make_unique<QTimer>();
    connect(boxWatcher.get(), &QTimer::timeout, this, [this, answers]() mutable {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || answers.isEmpty())
            return;
        boxTitles.append(box->windowTitle());
        boxTexts.append(box->text());
        const QMessageBox::StandardButton answer = answers.takeFirst();
        if (answer == QMessageBox::NoButton)
            box->close();
        else
            QTest::mouseClick(box->button(answer), Qt::LeftButton);
    });
    boxWatcher->start(10);
}

void WidgetRunTest::selectiveRunPassesItsSwitchesAndRemovesTheRow()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    const CapturedLog log;
    WindowUnderTest under;
    under.list->item(under.rowOf(QStringLiteral("Screen Taker")))->setCheckState(Qt::Checked);
    QVERIFY(press(under));
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")),
             QStringList{logSwitch(QStringLiteral("ScreenTaker")) +
                         QStringLiteral("|/SILENT|/SUPPRESSMSGBOXES")});
    QCOMPARE(startsOf(QStringLiteral("WaveTuner")), QStringList());
    QCOMPARE(under.list->count(), 1);
    QCOMPARE(under.rowOf(QStringLiteral("Wave Tuner")), 0);

    const std::string program =
        QDir::toNativeSeparators(
            folder->filePath(QString::fromUtf8("Ünser ScreenTaker/Uninst.exe")))
            .toStdString();
    const std::vector<std::string> expected{
        "-->Widget::Widget()", "Try to fill list widget (runtime brand: Lumacraft)",
        "--> uninstallButtonClicked", "--> DoUninsstall: selective", "DoUninsstall: " + program};
    QCOMPARE(log.mainFormTexts(), expected);
}

void WidgetRunTest::selectiveRunWithDeleteSettingsAddsFull()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    WindowUnderTest under;
    under.list->item(under.rowOf(QStringLiteral("Screen Taker")))->setCheckState(Qt::Checked);
    under.deleteSettings->setChecked(true);
    QVERIFY(press(under));
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")),
             QStringList{logSwitch(QStringLiteral("ScreenTaker")) +
                         QStringLiteral("|/SILENT|/FULL|/SUPPRESSMSGBOXES")});
}

void WidgetRunTest::fullRunCountsRowsDownAndTakesTheSuiteLast()
{
    // Registered so that the suite is neither the first nor the last row.
    addApplication(QStringLiteral("Album Keeper"), QStringLiteral("AlbumKeeper"));
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(suiteName, QStringLiteral("Tessera"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    addApplication(QStringLiteral("Zebra"), QStringLiteral("NotInTheCatalogue"));
    WindowUnderTest under;
    under.window.changeItemsState(true);
    QVERIFY(press(under));

    const QString rest = QStringLiteral("/SILENT|/SUPPRESSMSGBOXES|/DISABLEREDIRECT");
    QCOMPARE(startsOf(QStringLiteral("AlbumKeeper")), QStringList{rest});
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")), QStringList{rest});
    QCOMPARE(startsOf(QStringLiteral("WaveTuner")),
             QStringList{logSwitch(QStringLiteral("WaveTuner")) + QLatin1Char('|') + rest});
    QCOMPARE(startsOf(QStringLiteral("NotInTheCatalogue")),
             QStringList{logSwitch(QStringLiteral("NotInTheCatalogue")) + QLatin1Char('|') + rest});
    QCOMPARE(startsOf(QStringLiteral("Tessera")),
             QStringList{logSwitch(QStringLiteral("Tessera")) +
                         QStringLiteral("|/SILENT|/SUPPRESSMSGBOXES|/LASTAPP")});
    QCOMPARE(under.list->count(), 0);
    const QVariant mode = registry->value(QStringLiteral("UninstallMode"));
    QCOMPARE(mode.toInt(), 1);
    QCOMPARE(mode.type(), QVariant::Int);
}

void WidgetRunTest::fullRunWithDeleteSettingsDropsTheLogSwitch()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(suiteName, QStringLiteral("Tessera"));
    WindowUnderTest under;
    QVERIFY(under.show());
    QTest::mouseClick(under.select, Qt::LeftButton);
    QVERIFY(press(under));
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")),
             QStringList{QStringLiteral("/SILENT|/FULL|/SUPPRESSMSGBOXES|/DISABLEREDIRECT")});
    QCOMPARE(startsOf(QStringLiteral("Tessera")),
             QStringList{QStringLiteral("/SILENT|/FULL|/SUPPRESSMSGBOXES|/LASTAPP")});
}

void WidgetRunTest::uninstallModeStaysUnwrittenInSelectiveRuns()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    WindowUnderTest under({"/app", "ScreenTaker"});
    QVERIFY(press(under));
    QVERIFY(!registry->value(QStringLiteral("UninstallMode")).isValid());
}

void WidgetRunTest::everyRowWithoutASuiteRowEndsQuietly()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    WindowUnderTest under;
    under.window.changeItemsState(true);
    QVERIFY(press(under));
    QCOMPARE(under.list->count(), 0);
    // The last application is the last row, and it is told so.
    QCOMPARE(startsOf(QStringLiteral("WaveTuner")),
             QStringList{logSwitch(QStringLiteral("WaveTuner")) +
                         QStringLiteral("|/SILENT|/SUPPRESSMSGBOXES|/LASTAPP")});
}

void WidgetRunTest::emptyCommandRunsNothingAndRemovesTheRow()
{
    registry->addApplication(QStringLiteral("Screen Taker"), QString());
    const CapturedLog log;
    WindowUnderTest under;
    under.window.changeItemsState(true);
    QVERIFY(press(under));
    QCOMPARE(under.list->count(), 0);
    for (const std::string& text : log.mainFormTexts())
        QVERIFY(text.rfind("DoUninsstall: ", 0) != 0);
}

void WidgetRunTest::emptyListQuitsAtOnce()
{
    WindowUnderTest under;
    QElapsedTimer timer;
    QVERIFY(press(under));
    QCOMPARE(under.list->count(), 0);
}

void WidgetRunTest::missingProgramDoesNotStopTheRun()
{
    registry->addApplication(QStringLiteral("Album Keeper"),
                             QStringLiteral("C:\\no such folder\\Uninst.exe ") +
                                 logSwitch(QStringLiteral("AlbumKeeper")));
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    WindowUnderTest under;
    under.window.changeItemsState(true);
    QVERIFY(press(under));
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")).size(), 1);
    QCOMPARE(under.list->count(), 0);
}

void WidgetRunTest::longAndQuotedCommandsArriveWhole()
{
    const QString path =
        addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    const QString filler(30'000, QLatin1Char('x'));
    const QString command = QLatin1Char('"') + QDir::toNativeSeparators(path) +
                            QStringLiteral("\" /log=C:\\logs\\ScreenTaker_uninstall ") + filler;
    registry->addApplication(QStringLiteral("Screen Taker"), command);
    WindowUnderTest under({"/app", "ScreenTaker"});
    // A second row keeps the run selective.
    under.list->addItem(QStringLiteral("other"));
    QVERIFY(press(under));
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")),
             QStringList{QStringLiteral("/log=C:\\logs\\ScreenTaker_uninstall ") + filler +
                         QStringLiteral("|/SILENT|/SUPPRESSMSGBOXES")});
}

void WidgetRunTest::uninstallerOverTwoSecondsIsLeftRunning()
{
    const QString slow = addApplication(QStringLiteral("Screen Taker"),
                                        QStringLiteral("ScreenTaker"), QStringLiteral("slow.exe"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    {
        WindowUnderTest under;
        under.window.changeItemsState(true);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(press(under));
        QVERIFY(timer.elapsed() >= 2000);
        QVERIFY(!QFile::exists(slow + QStringLiteral(".done")));
        QCOMPARE(startsOf(QStringLiteral("WaveTuner")).size(), 1);
    }
    // The window is gone, its uninstaller is not.
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(slow + QStringLiteral(".done")), deadlineMs);
}

void WidgetRunTest::windowAnswersAndStaysOpenDuringAWait()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"),
                   QStringLiteral("slow.exe"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    WindowUnderTest under({"/app", "ScreenTaker"});
    int ticks = 0;
    bool closeRefused = false;
    QTimer heartbeat;
    connect(&heartbeat, &QTimer::timeout, &under.window, [&] {
        // Counts the beats of the wait only: the uninstaller has been started.
        if (startsOf(QStringLiteral("ScreenTaker"), QStringLiteral("slow.exe")).isEmpty())
            return;
        if (ticks++ == 0)
            closeRefused = !under.window.close();
    });
    heartbeat.start(50);
    QVERIFY(press(under));
    QVERIFY2(ticks >= 5, "the event loop stood still while an uninstaller was waited for");
    QVERIFY(closeRefused);
}

void WidgetRunTest::okEndsTheRunningApplicationAndGoesOn()
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
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")).size(), 1);
    QCOMPARE(startsOf(QStringLiteral("WaveTuner")).size(), 1);
}

void WidgetRunTest::cancelInASelectiveRunChecksAllRowsAgainAndUninstallsNothing()
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

void WidgetRunTest::cancelInAFullRunLeavesRowsUncheckedAndControlsDisabled()
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

void WidgetRunTest::closingTheWarningCountsAsCancel()
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

void WidgetRunTest::twoRunningApplicationsAskInRowOrder()
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

void WidgetRunTest::suiteRowAsksForApplicationsThatAreNotListed()
{
    addApplication(suiteName, QStringLiteral("Tessera"));
    const auto running = startApplication(QStringLiteral("WaveTuner"));
    answerBoxes({QMessageBox::Ok});
    WindowUnderTest under({"/app", "Tessera"});
    QVERIFY(press(under));
    QCOMPARE(boxTexts.size(), 1);
    QVERIFY(running->state() == QProcess::NotRunning || running->waitForFinished(deadlineMs));
    QCOMPARE(startsOf(QStringLiteral("Tessera")).size(), 1);
}

void WidgetRunTest::warningNamesTheInstallFolder()
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

void WidgetRunTest::warningWithoutAPathBeginsWithIsRunning()
{
    answerBoxes({QMessageBox::Cancel});
    WindowUnderTest under;
    under.window.showWarningAndKillApp("ScreenTaker", true);
    QCOMPARE(boxTexts.size(), 1);
    QVERIFY(boxTexts.at(0).startsWith(QStringLiteral(" is running.\n")));
}

void WidgetRunTest::warningOfAForeignApplicationShowsItsName()
{
    registry->addPath(QStringLiteral("Stranger"), QStringLiteral("C:\\Lumacraft\\Folder"));
    answerBoxes({QMessageBox::Cancel});
    WindowUnderTest under;
    under.window.showWarningAndKillApp("Stranger", false);
    QCOMPARE(boxTexts.size(), 1);
    QVERIFY(boxTexts.at(0).startsWith(QStringLiteral("Stranger is running.\n")));
}

void WidgetRunTest::taskkillNamesTheIdString()
{
    registry->addPath(QStringLiteral("ScreenTaker"), QStringLiteral("C:\\Lumacraft\\Screens"));
    answerBoxes({QMessageBox::Ok});
    WindowUnderTest under;
    under.window.showWarningAndKillApp("ScreenTaker", true);
    const auto* taskkill = under.window.findChild<QProcess*>();
    QVERIFY(taskkill != nullptr);
    QCOMPARE(taskkill->program(), QStringLiteral("taskkill"));
    const QStringList expected{QStringLiteral("/IM"), QStringLiteral("ScreenTaker.exe"),
                               QStringLiteral("/F")};
    QCOMPARE(taskkill->arguments(), expected);
}

QTEST_MAIN(WidgetRunTest)
#include "widget_run_test.moc"
