// The uninstall run from its button to the end of the program, with real uninstallers.

#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/captured_log.h"
#include "tests/windows/widget/run_test_base.h"
#include "ui/uninstall/src/responsive_wait.h"

#include <QElapsedTimer>

class WidgetRunTest : public RunTestBase
{
    Q_OBJECT

private slots:
    void selectiveRunPassesItsSwitchesAndRemovesTheRow();
    void selectiveRunWithDeleteSettingsAddsFull();
    void fullRunUninstallsTheSuiteLast();
    void fullRunWithDeleteSettingsDropsTheLogSwitch();
    void uninstallModeStaysUnwrittenInSelectiveRuns();
    void everyRowWithoutASuiteRowEndsTheProgram();
    void emptyCommandRunsNothingAndRemovesTheRow();
    void emptyListQuits();
    void missingProgramDoesNotStopTheRun();
    void longAndQuotedCommandsArriveCompletely();
    void waitForAnUninstallerEndsWithIt();
    void uninstallerOverTwoSecondsIsLeftRunning();
    void windowAnswersAndStaysOpenDuringAWait();
};

void WidgetRunTest::selectiveRunPassesItsSwitchesAndRemovesTheRow()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    const CapturedLog log;
    WindowUnderTest under;
    under.list->item(under.rowOf(QStringLiteral("Screen Taker")))->setCheckState(Qt::Checked);
    QVERIFY(press(under));
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker")),
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
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker")),
             QStringList{logSwitch(QStringLiteral("ScreenTaker")) +
                         QStringLiteral("|/SILENT|/FULL|/SUPPRESSMSGBOXES")});
}

void WidgetRunTest::fullRunUninstallsTheSuiteLast()
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
    QCOMPARE(awaitedStartsOf(QStringLiteral("AlbumKeeper")), QStringList{rest});
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker")), QStringList{rest});
    QCOMPARE(awaitedStartsOf(QStringLiteral("WaveTuner")),
             QStringList{logSwitch(QStringLiteral("WaveTuner")) + QLatin1Char('|') + rest});
    QCOMPARE(awaitedStartsOf(QStringLiteral("NotInTheCatalogue")),
             QStringList{logSwitch(QStringLiteral("NotInTheCatalogue")) + QLatin1Char('|') + rest});
    QCOMPARE(awaitedStartsOf(QStringLiteral("Tessera")),
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
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker")),
             QStringList{QStringLiteral("/SILENT|/FULL|/SUPPRESSMSGBOXES|/DISABLEREDIRECT")});
    QCOMPARE(awaitedStartsOf(QStringLiteral("Tessera")),
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

void WidgetRunTest::everyRowWithoutASuiteRowEndsTheProgram()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    WindowUnderTest under;
    under.window.changeItemsState(true);
    QVERIFY(press(under));
    QCOMPARE(under.list->count(), 0);
    // The uninstaller of the last row gets "/LASTAPP".
    QCOMPARE(awaitedStartsOf(QStringLiteral("WaveTuner")),
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

void WidgetRunTest::emptyListQuits()
{
    const CapturedLog log;
    WindowUnderTest under;
    QVERIFY(press(under));
    QCOMPARE(log.mainFormTexts().back(), std::string("--> uninstallButtonClicked"));
}

void WidgetRunTest::missingProgramDoesNotStopTheRun()
{
    registry->addApplication(QStringLiteral("Album Keeper"),
                             QStringLiteral("C:\\no such folder\\Uninst.exe ") +
                                 logSwitch(QStringLiteral("AlbumKeeper")));
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    const testing_support::RecordedLog log(Keelbase::levelDetail);
    WindowUnderTest under;
    under.window.changeItemsState(true);
    QVERIFY(press(under));
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker")).size(), 1);
    QCOMPARE(under.list->count(), 0);
    int failures = 0;
    std::string textBefore;
    for (const Keelbase::LogRecord& record : log.records()) {
        if (record.text.rfind("DoUninsstall: not started: ", 0) == 0) {
            ++failures;
            QCOMPARE(record.level, Keelbase::levelDetail);
            QCOMPARE(textBefore, std::string("DoUninsstall: C:\\no such folder\\Uninst.exe"));
        }
        textBefore = record.text;
    }
    QCOMPARE(failures, 1);
}

void WidgetRunTest::longAndQuotedCommandsArriveCompletely()
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
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker")),
             QStringList{QStringLiteral("/log=C:\\logs\\ScreenTaker_uninstall ") + filler +
                         QStringLiteral("|/SILENT|/SUPPRESSMSGBOXES")});
}

void WidgetRunTest::waitForAnUninstallerEndsWithIt()
{
    QProcess uninstaller;
    uninstaller.start(addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker")),
                      QStringList());
    QElapsedTimer timer;
    timer.start();
    uninstall::waitForFinished(uninstaller, deadlineMs);
    QVERIFY(timer.elapsed() < deadlineMs);
    QCOMPARE(uninstaller.state(), QProcess::NotRunning);
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
        QCOMPARE(awaitedStartsOf(QStringLiteral("WaveTuner")).size(), 1);
    }
    // The window is gone; its uninstaller still runs.
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
        // Only the wait for an uninstaller sets a cursor.
        if (QGuiApplication::overrideCursor() == nullptr)
            return;
        if (ticks++ == 0)
            closeRefused = !under.window.close();
    });
    heartbeat.start(50);
    QVERIFY(press(under));
    QVERIFY2(ticks >= 5, "the event loop did not run during the wait for an uninstaller");
    QVERIFY(closeRefused);
}

TESSERA_QT_TEST(WidgetRunTest)
#include "widget_run_test.moc"
