#include "ui/uninstall/src/responsive_wait.h"

#include <memory>

#include <QEventLoop>
#include <QProcess>
#include <QThread>
#include <QTimer>

namespace uninstall {

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
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void runAside(const std::function<void()>& blockingCall)
{
    const std::unique_ptr<QThread> worker(QThread::create(blockingCall));
    QEventLoop loop;
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    worker->start();
    if (!worker->isFinished())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    worker->wait();
}

} // namespace uninstall
