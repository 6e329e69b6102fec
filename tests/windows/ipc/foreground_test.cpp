// On Windows a later copy has the right to bring windows to the foreground, and the first copy has
// not. Wine has no such right, so the test records the calls.

#include "tests/support/import_slot.h"
#include "tests/support/recorded_log.h"
#include "tests/windows/ipc/messaged_window.h"
#include "tests/windows/ipc/serving_peer.h"
#include "tests/windows/qt_tests/qt_test.h"

#include <algorithm>

using namespace ipctest;

namespace {

QStringList calls;

bool hasTheRight = true;

decltype(&AllowSetForegroundWindow) systemAllow = nullptr;
decltype(&TransactNamedPipe) systemTransact = nullptr;
decltype(&SetForegroundWindow) systemForeground = nullptr;

QVector<HWND> activated;

BOOL WINAPI watchedForeground(HWND window)
{
    calls << QStringLiteral("activate");
    activated << window;
    return systemForeground(window);
}

BOOL WINAPI watchedAllow(DWORD process)
{
    calls << QStringLiteral("allow ") +
                 (process == ASFW_ANY ? QStringLiteral("any") : QString::number(process));
    SetLastError(ERROR_ACCESS_DENIED);
    return hasTheRight ? TRUE : FALSE;
}

BOOL WINAPI watchedTransact(HANDLE pipe, LPVOID request, DWORD requestSize, LPVOID answer,
                            DWORD answerSize, LPDWORD answered, LPOVERLAPPED overlapped)
{
    calls << QStringLiteral("send");
    return systemTransact(pipe, request, requestSize, answer, answerSize, answered, overlapped);
}

} // namespace

class ForegroundTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void laterCopyPassesItsRightOnBeforeItSends_data();
    void laterCopyPassesItsRightOnBeforeItSends();
    void laterCopyActivatesItsNamesakeBeforeItSends();
    void onlyAMissingRightIsLogged();
    void minimisedWindowIsActivated();
};

void ForegroundTest::initTestCase()
{
    systemAllow = replaceImport("AllowSetForegroundWindow", &watchedAllow);
    systemTransact = replaceImport("TransactNamedPipe", &watchedTransact);
    systemForeground = replaceImport("SetForegroundWindow", &watchedForeground);
}

void ForegroundTest::laterCopyPassesItsRightOnBeforeItSends_data()
{
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<bool>("passes");
    QTest::newRow("no arguments") << QByteArray() << true;
    QTest::newRow("show") << QByteArray("/show") << true;
    QTest::newRow("not shown") << QByteArray("/app") << false;
    QTest::newRow("minimised") << QByteArray("/show/minimized") << false;
}

void ForegroundTest::laterCopyPassesItsRightOnBeforeItSends()
{
    QFETCH(QByteArray, argument);
    QFETCH(bool, passes);
    ServingPeer peer;
    QVERIFY(peer.ready());
    std::vector<std::string> arguments;
    if (!argument.isEmpty())
        arguments.push_back(argument.toStdString());
    calls.clear();
    Window window(arguments);
    QVERIFY(window.isAnotherInstanceRunning());
    const QStringList sent{QStringLiteral("send")};
    QCOMPARE(calls, passes ? QStringList{QStringLiteral("allow any")} + sent : sent);
}

void ForegroundTest::laterCopyActivatesItsNamesakeBeforeItSends()
{
    ServingPeer peer;
    QVERIFY(peer.ready());
    QWidget parent;
    parent.setWindowTitle(QStringLiteral("Namesake"));
    QWidget namesake;
    namesake.setWindowTitle(QStringLiteral("Namesake"));
    namesake.show();
    QVERIFY(windows_tests::becomesVisible(namesake));
    calls.clear();
    activated.clear();
    const Window window({}, &parent);
    QCOMPARE(calls, (QStringList{QStringLiteral("allow any"), QStringLiteral("activate"),
                                 QStringLiteral("send")}));
    QCOMPARE(activated, QVector<HWND>{reinterpret_cast<HWND>(namesake.winId())});
}

void ForegroundTest::onlyAMissingRightIsLogged()
{
    for (const bool right : {true, false}) {
        ServingPeer peer;
        QVERIFY(peer.ready());
        hasTheRight = right;
        calls.clear();
        const testing_support::RecordedLog log;
        const Window window;
        QVERIFY(calls.contains(QStringLiteral("send")));
        const auto records = log.records();
        const auto refusals =
            std::count_if(records.begin(), records.end(), [](const Keelbase::LogRecord& record) {
                return record.category == "IPC" &&
                       record.text.rfind("AllowSetForegroundWindow failed: 5 ", 0) == 0;
            });
        QCOMPARE(refusals, right ? 0 : 1);
    }
    hasTheRight = true;
}

void ForegroundTest::minimisedWindowIsActivated()
{
    Window window({}, nullptr, false);
    window.show();
    QVERIFY(windows_tests::becomesActive(window));
    activated.clear();
    window.receive(QStringLiteral("/show/minimized"));
    QVERIFY(window.isMinimized());
    QVERIFY(activated.contains(reinterpret_cast<HWND>(window.winId())));
}

TESSERA_QT_TEST(ForegroundTest)
#include "foreground_test.moc"
