// The main window's base class in a later copy. A later copy keeps the mutex until its process
// ends, so the first copy's tests run in another process.

#include "tests/windows/ipc/claiming_peer.h"
#include "tests/windows/ipc/messaged_window.h"
#include "tests/windows/ipc/serving_peer.h"
#include "tests/windows/qt_tests/qt_test.h"
#include "tests/windows/qt_tests/window_waits.h"

using namespace ipctest;

namespace {

// The number of messages that the serving peer has received, including this request.
QString deliveriesSoFar()
{
    Stranger client;
    const Bytes answer = client.transact(frame(1, "#deliveries"));
    return QString::fromLatin1(reinterpret_cast<const char*>(answer.data()) + 9,
                               static_cast<int>(answer.size()) - 9);
}

} // namespace

class LaterCopyTest : public QObject
{
    Q_OBJECT

private slots:
    void sendsItsArgumentsAndIsAnotherInstance();
    void withoutArgumentsSendsShow();
    void doesNotServe();
    void withoutAServerIsStillAnotherInstance();
    void answeredReviveBecomesTheFirst();
    void withoutTheCheckOpensItsWindow();
    void withAParentBringsItsNamesakeForward_data();
    void withAParentBringsItsNamesakeForward();
};

void LaterCopyTest::sendsItsArgumentsAndIsAnotherInstance()
{
    ServingPeer peer;
    QVERIFY(peer.ready());
    Window window({"/app", "Some Id"});
    QVERIFY(window.isAnotherInstanceRunning());
    QCOMPARE(deliveriesSoFar(), QStringLiteral("2"));
    // A copy does not wait for a busy pipe, so the server must have disconnected the last client.
    QVERIFY(WaitNamedPipeW(pipePath, waitTime(patience)));
    // The answer to a request too short for delivery is the previous one, the last message.
    Window again({"a", "b c"});
    Stranger client;
    QCOMPARE(client.transact({1}), frame(peer.pid(), "a b c"));
}

void LaterCopyTest::withoutArgumentsSendsShow()
{
    ServingPeer peer;
    QVERIFY(peer.ready());
    Window window;
    QVERIFY(window.isAnotherInstanceRunning());
    Stranger client;
    QCOMPARE(client.transact({1}), frame(peer.pid(), "/show"));
}

void LaterCopyTest::doesNotServe()
{
    std::unique_ptr<Window> window;
    {
        ServingPeer peer;
        QVERIFY(peer.ready());
        window = std::make_unique<Window>();
        QCOMPARE(peer.stop().value_or(1), DWORD{0});
    }
    QVERIFY(window->isAnotherInstanceRunning());
    Stranger client(milliseconds(0));
    QCOMPARE(client.error(), DWORD{ERROR_FILE_NOT_FOUND});
}

void LaterCopyTest::withoutAServerIsStillAnotherInstance()
{
    const ClaimingPeer other; // has the mutex, but does not serve
    QElapsedTimer timer;
    timer.start();
    Window window;
    QVERIFY(window.isAnotherInstanceRunning());
    QVERIFY(timer.elapsed() < 2000); // without a pipe there are no further attempts
}

void LaterCopyTest::answeredReviveBecomesTheFirst()
{
    ServingPeer peer; // echoes
    QVERIFY(peer.ready());
    Window window({"please", "revive"});
    QVERIFY(!window.isAnotherInstanceRunning());
    QCOMPARE(peer.stop().value_or(1), DWORD{0});
    window.reply = QStringLiteral("took over");
    QCOMPARE(answerTo("text"), std::string("took over"));
}

void LaterCopyTest::withoutTheCheckOpensItsWindow()
{
    ServingPeer peer;
    QVERIFY(peer.ready());
    Window window({}, nullptr, false);
    QVERIFY(!window.isAnotherInstanceRunning());
    QCOMPARE(deliveriesSoFar(), QStringLiteral("1")); // only this request
}

void LaterCopyTest::withAParentBringsItsNamesakeForward_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<bool>("forward");
    QTest::newRow("no arguments") << QString() << true;
    QTest::newRow("show") << "/show" << true;
    QTest::newRow("another text") << "/app" << false;
    QTest::newRow("minimised") << "/show/minimized" << false;
}

void LaterCopyTest::withAParentBringsItsNamesakeForward()
{
    QFETCH(QString, argument);
    QFETCH(bool, forward);
    ServingPeer peer;
    QVERIFY(peer.ready());
    QWidget parent;
    parent.setWindowTitle(QStringLiteral("Namesake"));
    QWidget namesake;
    namesake.setWindowTitle(QStringLiteral("The Namesake's window"));
    namesake.show();
    QWidget front;
    front.show();
    QVERIFY(windows_tests::becomesVisible(namesake));
    QVERIFY(windows_tests::becomesVisible(front));
    front.activateWindow();
    QVERIFY(windows_tests::becomesActive(front));

    std::vector<std::string> arguments;
    if (!argument.isEmpty())
        arguments.push_back(argument.toStdString());
    const Window window(arguments, &parent);
    const QWidget& expected = forward ? namesake : front;
    QTRY_COMPARE_WITH_TIMEOUT(GetForegroundWindow(), reinterpret_cast<HWND>(expected.winId()),
                              windows_tests::patienceMs);
}

TESSERA_QT_TEST(LaterCopyTest)
#include "later_copy_test.moc"
