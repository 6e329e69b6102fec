#include "ui/uninstall/src/responsive_wait.h"

#include <QCursor>
#include <QEventLoop>
#include <QGuiApplication>
#include <QProcess>
#include <QThread>
#include <QTimer>

#include <memory>

namespace uninstall {

namespace {

// Shows the wait cursor over all windows, since clicks have no effect.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

void runWithoutInput(QEventLoop& loop)
{
    const WaitCursor cursor;
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

void waitForFinished(QProcess& process, int milliseconds)
{
    if (process.state() == QProcess::NotRunning)
        return;
    QEventLoop loop;
    QObject::connect(&process, &QProcess::stateChanged, &loop, [&loop](QProcess::ProcessState now) {
        if (now == QProcess::NotRunning)
            loop.quit();
    });
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    runWithoutInput(loop);
}

void runAside(const std::function<void()>& blockingCall)
{
    const std::unique_ptr<QThread> worker(QThread::create(blockingCall));
    QEventLoop loop;
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    worker->start();
    if (!worker->isFinished())
        runWithoutInput(loop);
    worker->wait();
}

} // namespace uninstall
