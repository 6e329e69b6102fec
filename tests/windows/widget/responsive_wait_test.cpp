// Waits that keep the window painted.

#include "tests/windows/qt_tests/qt_test.h"
#include "ui/uninstall/src/responsive_wait.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <atomic>

class ResponsiveWaitTest : public QObject
{
    Q_OBJECT

private slots:
    void callAsideIsOverWhenTheProgramHasBeenToldToEnd();
};

void ResponsiveWaitTest::callAsideIsOverWhenTheProgramHasBeenToldToEnd()
{
    std::atomic<bool> over{false};
    bool overAtReturn = false;
    QTimer::singleShot(0, this, [&] {
        QTimer::singleShot(0, this, [] { QCoreApplication::exit(0); });
        uninstall::runAside([&over] {
            QThread::msleep(500); // long after the event loop has ended
            over = true;
        });
        overAtReturn = over;
    });
    QCoreApplication::exec();
    QVERIFY(overAtReturn);
}

TESSERA_QT_TEST(ResponsiveWaitTest)
#include "responsive_wait_test.moc"
