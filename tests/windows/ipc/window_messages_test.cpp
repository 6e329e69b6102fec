// The main window's base class and its messages.

#include "tests/windows/ipc/messaged_window.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/qt_tests/window_waits.h"
#include "tests/windows/support/unique_name.h"
#include "tests/windows/widget/captured_log.h"

#include <QSignalSpy>

using namespace ipctest;

namespace {

bool minimised(const QWidget& window)
{
    return window.windowState().testFlag(Qt::WindowMinimized);
}

// The z-order of two windows of this process.
bool isAbove(const QWidget& upper, const QWidget& lower)
{
    const auto wanted = reinterpret_cast<HWND>(lower.winId());
    auto next = reinterpret_cast<HWND>(upper.winId());
    while (next != nullptr && next != wanted)
        next = GetWindow(next, GW_HWNDNEXT);
    return next == wanted;
}

// Its destructor waits until `answer` has arrived.
struct PauseAtItsEnd
{
    explicit PauseAtItsEnd(const std::future<std::string>& awaited) : answer(awaited) {}
    ~PauseAtItsEnd() { answer.wait_for(milliseconds(patienceMs)); }
    PauseAtItsEnd(const PauseAtItsEnd&) = delete;
    PauseAtItsEnd& operator=(const PauseAtItsEnd&) = delete;

    const std::future<std::string>& answer;
};

class EventCounter : public QObject
{
public:
    EventCounter(QObject& watched, QEvent::Type type) : wanted(type)
    {
        watched.installEventFilter(this);
    }
    int count() const { return seen; }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == wanted)
            ++seen;
        return false;
    }

private:
    const QEvent::Type wanted;
    int seen = 0;
};

} // namespace

class WindowMessagesTest : public QObject
{
    Q_OBJECT

private slots:
    void metaObjectHasTheSignalAndThenTheSlot();
    void castsByNameReachBothBases();

    void withoutTheCheckNothingIsServedOrSent();
    void withoutTheCheckTheMutexIsStillTaken();
    void firstCopyServesAndIsNotAnotherInstance();
    void messagesAreHandledAlthoughTheServerCouldNotStart();
    void answerIsWhatTheHookMakesOfTheMessage();
    void everyByteReachesTheHookAsLatin1();
    void deliveryIsHandledOnTheMainThreadBeforeItsAnswer();
    void receivedMessageIsLogged();

    void showRestoresAMinimisedWindow();
    void showKeepsTheMaximisedBit();
    void showLeavesAWindowThatIsNotMinimisedInItsState();
    void showActivatesAndRaisesACoveredWindow();
    void showWithMinimizedMinimisesAndAnswersNothing_data();
    void showWithMinimizedMinimisesAndAnswersNothing();
    void minimizedAloneIsForTheHook();
    void handleIsAnsweredInDecimal_data();
    void handleIsAnsweredInDecimal();
    void targetWindowIsTheOneActedOn();
    void wordsAreCaseSensitive();
    void eachMessageForgetsTheAnswerBeforeIt();

    void endWithADeliveryUnderWayDoesNotHang();
    void deliveryThatTheEndDropsIsNotAnswered();
};

void WindowMessagesTest::metaObjectHasTheSignalAndThenTheSlot()
{
    const QMetaObject& meta = CInterprocessCommunicationApp::staticMetaObject;
    const int first = meta.methodOffset();
    QCOMPARE(meta.methodCount() - first, 2);
    QCOMPARE(meta.method(first).methodSignature(),
             QByteArray("messageFromOtherProcessReceived(ulong,QString)"));
    QCOMPARE(meta.method(first).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(first + 1).methodSignature(),
             QByteArray("onMessageReceived(ulong,QString)"));
    QCOMPARE(meta.method(first + 1).methodType(), QMetaMethod::Slot);
}

void WindowMessagesTest::castsByNameReachBothBases()
{
    Window window({}, nullptr, false);
    QCOMPARE(window.qt_metacast("CInterprocessCommunicationApp"),
             static_cast<void*>(static_cast<CInterprocessCommunicationApp*>(&window)));
    QCOMPARE(window.qt_metacast("IMessageFromOtherProcess"),
             static_cast<void*>(static_cast<IMessageFromOtherProcess*>(&window)));
}

void WindowMessagesTest::withoutTheCheckNothingIsServedOrSent()
{
    Window window({"/app", "X"}, nullptr, false);
    QVERIFY(!window.isAnotherInstanceRunning());
    QCOMPARE(window.startArguments(), (std::vector<std::string>{"/app", "X"}));
    Stranger client(milliseconds(0));
    QCOMPARE(client.error(), DWORD{ERROR_FILE_NOT_FOUND});
    QVERIFY(!window.isConnected());
}

void WindowMessagesTest::withoutTheCheckTheMutexIsStillTaken()
{
    const auto mutexExists = [] {
        const win32::KernelHandle mutex(
            OpenMutexW(SYNCHRONIZE, FALSE, L"Global\\LUMACRAFT_UNINSTALL"));
        return static_cast<bool>(mutex);
    };
    QVERIFY(!mutexExists());
    {
        Window window({}, nullptr, false);
        QVERIFY(mutexExists());
    }
    QVERIFY(!mutexExists());
}

void WindowMessagesTest::firstCopyServesAndIsNotAnotherInstance()
{
    Window window({"/app", "X"});
    QVERIFY(!window.isAnotherInstanceRunning());
    QCOMPARE(window.startArguments(), (std::vector<std::string>{"/app", "X"}));
    Stranger client(milliseconds(0));
    QVERIFY(client.connected());
}

void WindowMessagesTest::messagesAreHandledAlthoughTheServerCouldNotStart()
{
    // A byte pipe has the name.
    const win32::FileHandle other(
        CreateNamedPipeW(pipePath, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 100, 100, 0, nullptr));
    QVERIFY(other);
    Window window;
    QVERIFY(!window.isAnotherInstanceRunning());
    QVERIFY(window.isConnected());
    auto delivered = std::async(std::launch::async, [&window] { window.deliver("text"); });
    QTRY_COMPARE_WITH_TIMEOUT(window.hooked, QStringList{QStringLiteral("text")}, patienceMs);
    delivered.get();
}

void WindowMessagesTest::answerIsWhatTheHookMakesOfTheMessage()
{
    Window window({}, nullptr, false);
    window.reply = QString::fromUtf8("\xc3\xa9\xe2\x82\xac");
    window.receive(QStringLiteral("a/showb/gethwn"));
    QCOMPARE(window.hooked, QStringList{QStringLiteral("ab/gethwn")});
    QCOMPARE(window.answer(), std::string("\xc3\xa9\xe2\x82\xac"));
}

void WindowMessagesTest::everyByteReachesTheHookAsLatin1()
{
    const auto window = servingWindow();
    window->reply = QStringLiteral("done");
    std::string text;
    QString expected;
    for (int byte = 0; byte < 256; ++byte) {
        text += static_cast<char>(byte);
        expected += QChar(byte);
    }
    QCOMPARE(answerTo(text), std::string("done"));
    QCOMPARE(window->hooked, QStringList{expected});
}

void WindowMessagesTest::deliveryIsHandledOnTheMainThreadBeforeItsAnswer()
{
    const auto window = servingWindow();
    window->reply = QStringLiteral("late");
    QSignalSpy spy(window.get(), &CInterprocessCommunicationApp::messageFromOtherProcessReceived);
    auto answer = sendFromThread("text");
    QCOMPARE(answer.wait_for(milliseconds(300)), std::future_status::timeout);
    QVERIFY(window->hooked.isEmpty()); // the event loop has not run
    QTRY_COMPARE_WITH_TIMEOUT(window->hooked.size(), 1, patienceMs);
    QCOMPARE(answer.get(), std::string("late"));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<unsigned long>(), 5ul);
}

void WindowMessagesTest::receivedMessageIsLogged()
{
    CapturedLog log;
    Window window({}, nullptr, false);
    window.receive(QString::fromLatin1("/app \xe9"));
    QCOMPARE(log.records().size(), std::size_t{1});
    const Keelbase::LogRecord record = log.records().front();
    QCOMPARE(record.level, 6);
    QCOMPARE(record.category, std::string("IPC"));
    QCOMPARE(record.sourceFile, std::string("ui/common/sys/interprocess_communication_app"));
    QCOMPARE(record.text, std::string("onMessageReceived | Message from other process was "
                                      "received. PID: 77. MSG: /app \xc3\xa9"));
}

void WindowMessagesTest::showRestoresAMinimisedWindow()
{
    Window window({}, nullptr, false);
    window.show();
    QVERIFY(windows_tests::becomesVisible(window));
    const auto handle = reinterpret_cast<HWND>(window.winId());
    window.showMinimized();
    QTRY_VERIFY_WITH_TIMEOUT(minimised(window) && IsIconic(handle), patienceMs);
    window.receive(QStringLiteral("/show"));
    QTRY_VERIFY_WITH_TIMEOUT(!minimised(window) && !IsIconic(handle), patienceMs);
    // The window manager may remove the minimised window's focus only after it was restored.
    const auto activated = [&window] {
        if (!window.isActiveWindow())
            window.receive(QStringLiteral("/show"));
        return window.isActiveWindow();
    };
    QVERIFY(QTest::qWaitFor(activated, patienceMs));
    QCOMPARE(window.answer(), std::string());
}

void WindowMessagesTest::showKeepsTheMaximisedBit()
{
    Window window({}, nullptr, false);
    window.setWindowState(Qt::WindowMinimized | Qt::WindowMaximized);
    window.receive(QStringLiteral("/show"));
    QCOMPARE(window.windowState(), Qt::WindowStates(Qt::WindowMaximized));
}

void WindowMessagesTest::showLeavesAWindowThatIsNotMinimisedInItsState()
{
    Window window({}, nullptr, false);
    window.setWindowState(Qt::WindowMaximized);
    window.receive(QStringLiteral("/show"));
    QCOMPARE(window.windowState(), Qt::WindowStates(Qt::WindowMaximized));
}

void WindowMessagesTest::showActivatesAndRaisesACoveredWindow()
{
    Window window({}, nullptr, false);
    window.setGeometry(100, 100, 300, 200);
    window.show();
    QVERIFY(windows_tests::becomesVisible(window));
    QWidget cover;
    cover.setGeometry(window.geometry());
    cover.show();
    QVERIFY(windows_tests::becomesVisible(cover));
    cover.activateWindow();
    QVERIFY(windows_tests::becomesActive(cover));
    QVERIFY(!window.isActiveWindow());

    EventCounter raised(window, QEvent::ZOrderChange);
    window.receive(QStringLiteral("/show"));
    QCOMPARE(raised.count(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(window.isActiveWindow(), patienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(isAbove(window, cover), patienceMs);
}

void WindowMessagesTest::showWithMinimizedMinimisesAndAnswersNothing_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("in order") << "/show/minimized";
    QTest::newRow("reversed") << "/minimized/show";
    QTest::newRow("apart") << "/minimized and /show";
    QTest::newRow("with the handle") << "/show /minimized /gethwnd";
}

void WindowMessagesTest::showWithMinimizedMinimisesAndAnswersNothing()
{
    QFETCH(QString, message);
    Window window({}, nullptr, false);
    window.reply = QStringLiteral("never");
    window.show();
    QVERIFY(windows_tests::becomesVisible(window));
    EventCounter raised(window, QEvent::ZOrderChange);
    window.receive(message);
    QTRY_VERIFY_WITH_TIMEOUT(minimised(window), patienceMs);
    QCOMPARE(raised.count(), 0);
    QCOMPARE(window.answer(), std::string());
    QVERIFY(window.hooked.isEmpty());
}

void WindowMessagesTest::minimizedAloneIsForTheHook()
{
    Window window({}, nullptr, false);
    window.show();
    QVERIFY(windows_tests::becomesVisible(window));
    window.receive(QStringLiteral("please /minimized"));
    QVERIFY(!minimised(window));
    QCOMPARE(window.hooked, QStringList{QStringLiteral("please ")});
}

void WindowMessagesTest::handleIsAnsweredInDecimal_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("staysMinimised");
    QTest::newRow("alone") << "/gethwnd" << true;
    QTest::newRow("with show") << "/gethwnd /show" << false;
    QTest::newRow("with minimized") << "/gethwnd /minimized" << true;
}

void WindowMessagesTest::handleIsAnsweredInDecimal()
{
    QFETCH(QString, message);
    QFETCH(bool, staysMinimised);
    Window window({}, nullptr, false);
    window.reply = QStringLiteral("never");
    window.setWindowState(Qt::WindowMinimized);
    window.receive(message);
    QCOMPARE(window.answer(), std::to_string(static_cast<int>(window.winId())));
    QVERIFY(
        IsWindow(reinterpret_cast<HWND>(static_cast<std::intptr_t>(std::stoi(window.answer())))));
    QVERIFY(window.hooked.isEmpty());
    QCOMPARE(minimised(window), staysMinimised);
}

void WindowMessagesTest::targetWindowIsTheOneActedOn()
{
    QWidget target;
    target.setWindowState(Qt::WindowMinimized);
    Window window({}, &target, false);
    window.setWindowState(Qt::WindowMinimized);
    window.receive(QStringLiteral("/show /gethwnd"));
    QVERIFY(!minimised(target));
    QVERIFY(minimised(window));
    QCOMPARE(window.answer(), std::to_string(static_cast<int>(target.winId())));
}

void WindowMessagesTest::wordsAreCaseSensitive()
{
    Window window({}, nullptr, false);
    window.setWindowState(Qt::WindowMinimized);
    window.receive(QStringLiteral("/SHOW /GETHWND"));
    QVERIFY(minimised(window));
    QCOMPARE(window.hooked, QStringList{QStringLiteral("/SHOW /GETHWND")});
}

void WindowMessagesTest::eachMessageForgetsTheAnswerBeforeIt()
{
    Window window({}, nullptr, false);
    window.receive(QStringLiteral("/gethwnd"));
    QVERIFY(!window.answer().empty());
    window.receive(QStringLiteral("text"));
    QCOMPARE(window.answer(), std::string());
    window.receive(QStringLiteral("/gethwnd"));
    window.receive(QStringLiteral("/show/minimized"));
    QCOMPARE(window.answer(), std::string());
}

void WindowMessagesTest::endWithADeliveryUnderWayDoesNotHang()
{
    for (int i = 0; i < 20; ++i) {
        auto window = servingWindow();
        const std::wstring name = uniqueName(L"tessera_ipc_delivery");
        window->deliveryBegins = std::make_unique<NamedEvent>(name);
        const NamedEvent begun(name);
        auto answer = sendFromThread("text");
        QVERIFY(begun.wait());
        // This thread's event loop does not run, so the delivery cannot be handled.
        auto ended = std::async(std::launch::async, [&answer] {
            return answer.wait_for(milliseconds(patienceMs)) == std::future_status::ready;
        });
        window.reset();
        QVERIFY(ended.get());
    }
}

void WindowMessagesTest::deliveryThatTheEndDropsIsNotAnswered()
{
    auto window = servingWindow();
    window->answerText = "an older message's";
    const std::wstring name = uniqueName(L"tessera_ipc_delivery");
    window->deliveryBegins = std::make_unique<NamedEvent>(name);
    auto answer = sendFromThread("text");
    QVERIFY(NamedEvent(name).wait());
    QCOMPARE(answer.wait_for(milliseconds(300)), std::future_status::timeout);
    // Queued behind the delivery and dropped after it: its destruction gives the server thread time
    // to write an answer before the channel is closed.
    QMetaObject::invokeMethod(
        window.get(), [pause = std::make_shared<PauseAtItsEnd>(answer)] {}, Qt::QueuedConnection);
    window.reset();
    QCOMPARE(answer.get(), std::string());
}

TESSERA_QT_TEST(WindowMessagesTest)
#include "window_messages_test.moc"
