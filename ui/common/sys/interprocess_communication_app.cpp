#include "ui/common/sys/interprocess_communication_app.h"

#include "support/keelbase/keelbase.h"
#include "ui/common/sys/bring_window_to_top.h"
#include "ui/common/sys/ipc_commands.h"

#include <QCoreApplication>
#include <QEvent>

#include <string_view>
#include <utility>

namespace {

constexpr Keelbase::LogSource logSource{"IPC", "ui/common/sys/interprocess_communication_app"};

} // namespace

CInterprocessCommunicationApp::CInterprocessCommunicationApp(std::vector<std::string> arguments,
                                                             QWidget* parent, bool check,
                                                             qint64 reserved)
    : QMainWindow(parent, Qt::WindowFlags()), startArgumentList(std::move(arguments)),
      targetWindow(parent), reserved(reserved)
{
    channel.claimMutex();
    if (!check)
        return;
    std::string message = sys::joinArguments(startArgumentList);
    channel.receiver = this;
    if (!channel.firstInstance)
        handOver(std::move(message));
    if (!quitImmediately)
        serve();
}

CInterprocessCommunicationApp::~CInterprocessCommunicationApp()
{
    // The channel's destructor waits for the server thread, which may be waiting for this thread to
    // handle a message. Without the connection no new message comes in, and dropping a queued one
    // releases the server thread. After requestStop() its sender gets no answer, since the stored
    // one belongs to an older message.
    channel.requestStop();
    disconnect(this, &CInterprocessCommunicationApp::messageFromOtherProcessReceived, this,
               &CInterprocessCommunicationApp::onMessageReceived);
    QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
}

bool CInterprocessCommunicationApp::isAnotherInstanceRunning()
{
    return quitImmediately;
}

QString CInterprocessCommunicationApp::handleMessage(const QString&)
{
    return QString();
}

// Errors are ignored here: a copy that found the mutex taken opens no window of its own, unless the
// first copy's answer tells it to.
void CInterprocessCommunicationApp::handOver(std::string message)
{
    if (!channel.isPipeOpen())
        channel.connectToServer();
    if (message.empty())
        message = sys::showMessage();
    if (sys::bringsWindowUp(message)) {
        sys::passForegroundOn();
        if (targetWindow)
            sys::bringWindowToTop(static_cast<std::int64_t>(targetWindow->winId()));
    }
    channel.sendMessage(message);
    quitImmediately = !sys::answerRevives(channel.getAnswer());
    channel.close();
}

void CInterprocessCommunicationApp::serve()
{
    channel.firstInstance = true;
    if (!channel.isPipeOpen())
        channel.createServer();
    connect(this, &CInterprocessCommunicationApp::messageFromOtherProcessReceived, this,
            &CInterprocessCommunicationApp::onMessageReceived, Qt::BlockingQueuedConnection);
}

void CInterprocessCommunicationApp::onMessageFromOtherProcess(unsigned long pid,
                                                              const std::string& text)
{
    emit messageFromOtherProcessReceived(
        pid, QString::fromLatin1(text.data(), static_cast<int>(text.size())));
}

QWidget* CInterprocessCommunicationApp::messageWindow()
{
    return targetWindow ? targetWindow : this;
}

void CInterprocessCommunicationApp::onMessageReceived(unsigned long pid, const QString& msg)
{
    KEELBASE_LOG(logSource, Keelbase::levelInformation)
        << "onMessageReceived | Message from other process was received. PID: " << pid
        << ". MSG: " << msg.toUtf8().toStdString();
    answerText.clear();
    QWidget* window = messageWindow();
    const sys::MessagePlan plan = sys::planForMessage(std::u16string_view(
        reinterpret_cast<const char16_t*>(msg.utf16()), static_cast<std::size_t>(msg.size())));

    if (plan.windowAction == sys::WindowAction::restore) {
        if (window->isMinimized())
            window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->activateWindow();
        window->raise();
    } else if (plan.windowAction == sys::WindowAction::minimize) {
        if (!window->isMinimized())
            window->showMinimized();
        window->activateWindow();
    }

    if (plan.answer == sys::AnswerSource::hook)
        answerText = handleMessage(QString::fromStdU16String(plan.rest)).toUtf8().toStdString();
    else if (plan.answer == sys::AnswerSource::windowHandle)
        answerText = sys::handleText(static_cast<std::uint64_t>(window->winId()));
}
