#pragma once

// A window on the main window's base class, and senders of messages to it.

#include "tests/windows/ipc/peer_events.h"
#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/qt_tests/window_waits.h"
#include "tests/windows/support/child_process.h"
#include "ui/common/sys/interprocess_communication_app.h"

#include <QtTest>

#include <future>
#include <memory>

namespace ipctest {

using windows_tests::patienceMs;

// Records the texts that reach the hook.
class Window : public CInterprocessCommunicationApp
{
public:
    explicit Window(std::vector<std::string> arguments = {}, QWidget* parent = nullptr,
                    bool check = true)
        : CInterprocessCommunicationApp(std::move(arguments), parent, check, 0)
    {}

    std::string answer() const { return answerText; }
    void receive(const QString& message)
    {
        QVERIFY(QMetaObject::invokeMethod(this, "onMessageReceived", Qt::DirectConnection,
                                          Q_ARG(unsigned long, 77), Q_ARG(QString, message)));
    }

    // Called as by the channel's server thread.
    void deliver(const std::string& text) { onMessageFromOtherProcess(1, text); }
    // Whether messages are delivered to the main thread.
    bool isConnected() const
    {
        return isSignalConnected(QMetaMethod::fromSignal(
            &CInterprocessCommunicationApp::messageFromOtherProcessReceived));
    }

    QStringList hooked;
    QString reply;
    std::unique_ptr<NamedEvent> deliveryBegins;

protected:
    QString handleMessage(const QString& text) override
    {
        hooked << text;
        return reply;
    }
    void onMessageFromOtherProcess(unsigned long pid, const std::string& text) override
    {
        if (deliveryBegins)
            deliveryBegins->set();
        CInterprocessCommunicationApp::onMessageFromOtherProcess(pid, text);
    }
};

// Sends a text from another thread without the program's classes; returns the answer's text.
inline std::future<std::string> sendFromThread(std::string text)
{
    return std::async(std::launch::async, [text = std::move(text)]() -> std::string {
        Stranger client;
        const Bytes answer = client.transact(frame(5, text));
        return answer.size() > 9 ? std::string(answer.begin() + 9, answer.end()) : std::string();
    });
}

// Runs the event loop until the answer has arrived.
inline std::string answerTo(const std::string& text)
{
    auto answer = sendFromThread(text);
    QElapsedTimer timer;
    timer.start();
    while (answer.wait_for(milliseconds(5)) != std::future_status::ready &&
           timer.elapsed() < patienceMs)
        QCoreApplication::processEvents();
    return answer.get();
}

// A window whose server thread takes clients; see serveForSure.
inline std::unique_ptr<Window> servingWindow()
{
    std::unique_ptr<Window> window;
    int pause = 20; // ms
    do {
        window.reset(); // otherwise the new window would be a later copy
        window = std::make_unique<Window>();
        QTest::qWait(pause);
        pause *= 2;
    } while (!serverTakesClients());
    return window;
}

} // namespace ipctest
