// A window during its run, when something other than the run reaches it.

#include "support/netpull/netpull.h"
#include "tests/windows/dialogs/dialog_driver.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/widget/captured_log.h"
#include "tests/windows/widget/intruder.h"
#include "tests/windows/widget/run_test_base.h"

#include <QSemaphore>

#include <atomic>

namespace {

std::atomic<bool> countryAsked = false;
QSemaphore countryAnswer;

// One text, which a failed comparison shows completely.
QString lines(const std::vector<std::string>& texts)
{
    QString all;
    for (const std::string& text : texts)
        all += QString::fromStdString(text) + QLatin1Char('\n');
    return all;
}

// The country service keeps the program waiting until the test lets it answer.
netpull::Response answer(const netpull::Request&)
{
    countryAsked = true;
    countryAnswer.tryAcquire(1, 60'000);
    netpull::Response response;
    response.httpStatus = 200;
    response.body = "NL";
    return response;
}

} // namespace

class WidgetIntrusionTest : public RunTestBase
{
    Q_OBJECT

private slots:
    void initTestCase() { netpull::setFetch(&answer); }
    void nothingIntrudesOnTheWaitForAnUninstaller();
    void nothingIntrudesOnTheWaitForTheCountry();
    void nothingIntrudesBehindTheWarning();
    void nothingIntrudesAfterTheRun();
    void nothingIntrudesOnButtonsThatDoNotMatchTheRows();
    void nothingIntrudesAfterACancelledFullRun();

private:
    // Three applications, of which the first two are checked: Screen Taker, Wave Tuner, Loop Maker.
    void addApplications(const QString& firstProgram);
    static bool checkTwo(WindowUnderTest& under);
    // Calls `beat` from a timer until the returned object is destroyed.
    static std::unique_ptr<QTimer> heartbeat(const std::function<void()>& beat);
    // Both were uninstalled once, selectively, without "/FULL", and nothing else was touched.
    void verifyOutcome(WindowUnderTest& under, const QString& firstProgram);

    static const QString quick;
};

const QString WidgetIntrusionTest::quick = QStringLiteral("Uninst.exe");

void WidgetIntrusionTest::addApplications(const QString& firstProgram)
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"), firstProgram);
    addApplication(QStringLiteral("Wave Tuner"), QStringLiteral("WaveTuner"));
    addApplication(QStringLiteral("Loop Maker"), QStringLiteral("LoopMaker"));
}

bool WidgetIntrusionTest::checkTwo(WindowUnderTest& under)
{
    if (!under.show())
        return false;
    for (const char* name : {"Screen Taker", "Wave Tuner"})
        under.clickCheckBox(under.rowOf(QLatin1String(name)));
    return under.checkedRows() == 2 && under.uninstall->isEnabled();
}

std::unique_ptr<QTimer> WidgetIntrusionTest::heartbeat(const std::function<void()>& beat)
{
    auto timer = std::make_unique<QTimer>();
    connect(timer.get(), &QTimer::timeout, beat);
    timer->start(20);
    return timer;
}

void WidgetIntrusionTest::verifyOutcome(WindowUnderTest& under, const QString& firstProgram)
{
    const QString rest = QStringLiteral("|/SILENT|/SUPPRESSMSGBOXES");
    QCOMPARE(awaitedStartsOf(QStringLiteral("WaveTuner")),
             QStringList{logSwitch(QStringLiteral("WaveTuner")) + rest});
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker"), firstProgram),
             QStringList{logSwitch(QStringLiteral("ScreenTaker")) + rest});
    QCOMPARE(startsOf(QStringLiteral("LoopMaker")), QStringList());
    QCOMPARE(under.list->count(), 1);
    QCOMPARE(under.rowOf(QStringLiteral("Loop Maker")), 0);
    QVERIFY(!under.isChecked(0));
    QVERIFY(!under.deleteSettings->isChecked());
    QCOMPARE(under.selectState(), 1);
}

void WidgetIntrusionTest::nothingIntrudesOnTheWaitForAnUninstaller()
{
    const QString slow = QStringLiteral("slow.exe");
    addApplications(slow);
    const CapturedLog log;
    WindowUnderTest under;
    QVERIFY(checkTwo(under));
    Intruder intruder(under);
    bool tried = false;
    bool waitShown = false;
    const auto beats = heartbeat([&] {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        if (tried || cursor == nullptr)
            return;
        tried = true;
        waitShown = cursor->shape() == Qt::WaitCursor;
        intruder.tryEverything();
    });
    QVERIFY(press(under));
    QVERIFY(tried);
    QCOMPARE(intruder.changes(), QString());
    QVERIFY(intruder.pressesHaveArrived());
    verifyOutcome(under, slow);
    const auto program = [this](const char* id, const QString& name) {
        return "DoUninsstall: " +
               QDir::toNativeSeparators(
                   folder->filePath(QString::fromUtf8("Ünser %1/%2").arg(QLatin1String(id), name)))
                   .toStdString();
    };
    const std::vector<std::string> expected{
        "-->Widget::Widget()",        "Try to fill list widget (runtime brand: Lumacraft)",
        "--> uninstallButtonClicked", "--> DoUninsstall: selective",
        program("ScreenTaker", slow), "--> DoUninsstall: selective",
        program("WaveTuner", quick)};
    QCOMPARE(lines(log.mainFormTexts()), lines(expected));
    QVERIFY(waitShown);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

// Only the first survey of a process asks for the country, so this is the only test here with one.
void WidgetIntrusionTest::nothingIntrudesOnTheWaitForTheCountry()
{
    addApplications(quick);
    addApplication(QStringLiteral("Clip Saver 2026"), QStringLiteral("ClipSaver"));
    WindowUnderTest under;
    QVERIFY(checkTwo(under));
    under.clickCheckBox(under.rowOf(QStringLiteral("Clip Saver 2026")));

    Intruder intruder(under);
    bool tried = false;
    bool answered = false;
    bool waitShown = false;
    const auto beats = heartbeat([&] {
        if (!countryAsked || answered)
            return;
        if (!std::exchange(tried, true)) {
            const QCursor* cursor = QGuiApplication::overrideCursor();
            waitShown = cursor != nullptr && cursor->shape() == Qt::WaitCursor;
            intruder.tryEverything();
        } else if (intruder.pressesHaveArrived()) {
            answered = true;
            countryAnswer.release();
        }
    });
    bool surveyHasItsCursor = false;
    DialogDriver driver;
    driver.expect("QuestionDlg", [&](QDialog& dialog) {
        surveyHasItsCursor = QGuiApplication::overrideCursor() == nullptr;
        pressKey(Qt::Key_Escape)(dialog);
    });
    QVERIFY(press(under));
    QVERIFY(answered);
    QCOMPARE(driver.problem(), QString());
    QCOMPARE(intruder.changes(), QString());
    QVERIFY(waitShown);
    QVERIFY(surveyHasItsCursor);
    QCOMPARE(awaitedStartsOf(QStringLiteral("ClipSaver")),
             QStringList{logSwitch(QStringLiteral("ClipSaver")) +
                         QStringLiteral("|/SILENT|/SUPPRESSMSGBOXES")});
    QVERIFY(!awaitedStartsOf(QStringLiteral("ScreenTaker")).isEmpty());
    verifyOutcome(under, quick);
}

void WidgetIntrusionTest::nothingIntrudesBehindTheWarning()
{
    addApplications(quick);
    const auto running = startApplication(QStringLiteral("WaveTuner"));
    WindowUnderTest under;
    QVERIFY(checkTwo(under));
    Intruder intruder(under);
    bool tried = false;
    const auto beats = heartbeat([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        if (!std::exchange(tried, true))
            intruder.tryEverything();
        else if (intruder.pressesHaveArrived())
            box->button(QMessageBox::Cancel)->click();
    });
    const bool ended = press(under);
    running->kill();
    QVERIFY(running->waitForFinished(deadlineMs));
    QVERIFY(ended);
    QVERIFY(tried);
    QCOMPARE(intruder.changes(), QString());
    // Cancel has its own effect on the remaining rows: all are checked.
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker")).size(), 1);
    QCOMPARE(startsOf(QStringLiteral("WaveTuner")), QStringList());
    QCOMPARE(under.list->count(), 2);
    QCOMPARE(under.checkedRows(), 2);
    QVERIFY(under.deleteSettings->isChecked());
    QCOMPARE(under.selectState(), 0);
}

// The run has asked the program to end; events that arrive then must not begin another run.
void WidgetIntrusionTest::nothingIntrudesAfterTheRun()
{
    addApplications(quick);
    WindowUnderTest under;
    QVERIFY(checkTwo(under));
    QVERIFY(press(under));
    QVERIFY(!awaitedStartsOf(QStringLiteral("ScreenTaker")).isEmpty());
    Intruder intruder(under);
    intruder.tryEverything();
    QTRY_VERIFY_WITH_TIMEOUT(intruder.pressesHaveArrived(), deadlineMs);
    QCOMPARE(intruder.changes(), QString());
    verifyOutcome(under, quick);
}

// Buttons that do not match the rows stay unchanged too. "/app" does not update the select button,
// so it does not match when every row is checked.
void WidgetIntrusionTest::nothingIntrudesOnButtonsThatDoNotMatchTheRows()
{
    const QString slow = QStringLiteral("slow.exe");
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"), slow);
    WindowUnderTest under({"/app", "ScreenTaker"});
    Intruder intruder(under);
    bool tried = false;
    const auto beats = heartbeat([&] {
        if (tried || QGuiApplication::overrideCursor() == nullptr)
            return;
        tried = true;
        under.deleteSettings->setEnabled(false);
        intruder.tryEverything();
    });
    QVERIFY(press(under));
    QVERIFY(tried);
    QCOMPARE(intruder.changes(), QString());
    QCOMPARE(awaitedStartsOf(QStringLiteral("ScreenTaker"), slow).size(), 1);
}

// The remaining rows are then unchecked, and the buttons disabled.
void WidgetIntrusionTest::nothingIntrudesAfterACancelledFullRun()
{
    addApplication(QStringLiteral("Screen Taker"), QStringLiteral("ScreenTaker"));
    addApplication(suiteName, QStringLiteral("Tessera"));
    const auto running = startApplication(QStringLiteral("ScreenTaker"));
    answerBoxes({QMessageBox::Cancel});
    WindowUnderTest under;
    QVERIFY(under.show());
    QTest::mouseClick(under.select, Qt::LeftButton);
    const bool ended = press(under);
    running->kill();
    QVERIFY(running->waitForFinished(deadlineMs));
    QVERIFY(ended);
    QVERIFY(!under.uninstall->isEnabled());
    Intruder intruder(under);
    intruder.tryEverything();
    QCOMPARE(intruder.changes(), QString());
    QCOMPARE(startsOf(QStringLiteral("ScreenTaker")), QStringList());
}

TESSERA_QT_TEST(WidgetIntrusionTest)
#include "widget_intrusion_test.moc"
