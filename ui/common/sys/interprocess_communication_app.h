#pragma once

// The main window's base class: keeps the program to one copy, and acts in the first copy on what
// later copies send.

#include "ui/common/sys/interprocess_communication_win.h"

#include <QMainWindow>
#include <QString>

#include <string>
#include <vector>

class CInterprocessCommunicationApp : public QMainWindow, public IMessageFromOtherProcess
{
    Q_OBJECT

public:
    // With `check`, the constructor determines whether this is the first copy. The first copy then
    // serves the pipe. A later copy hands `arguments`, joined by single spaces ("/show" for none),
    // to the first and waits, without limit, for its answer. Then isAnotherInstanceRunning() is
    // true, even if the hand-over failed, unless the answer asks this copy to go on as the first.
    //
    // Messages act on `parent`, or on this object without one. With a parent, a later copy also
    // brings forward the window whose title contains the parent's. Main thread only, with the
    // application object alive. Failures of the channel are not reported.
    CInterprocessCommunicationApp(std::vector<std::string> arguments, QWidget* parent, bool check,
                                  qint64 reserved);
    // Stops the pipe's server thread; a message that has not been handled yet is dropped.
    ~CInterprocessCommunicationApp() override;

    // True when an earlier copy has taken this copy's arguments: main then ends with code 0.
    virtual bool isAnotherInstanceRunning();

    // What the program was started with, after its name.
    const std::vector<std::string>& startArguments() const { return startArgumentList; }

protected:
    // The hook for a program's own commands: receives a message without the channel's command words
    // and returns the answer. Main thread. The default returns an empty answer.
    virtual QString handleMessage(const QString& text);

    // Runs on the channel's server thread and returns when the main thread has handled the text.
    void onMessageFromOtherProcess(unsigned long pid, const std::string& text) override;

signals:
    void messageFromOtherProcessReceived(unsigned long pid, const QString& text);

private slots:
    void onMessageReceived(unsigned long pid, const QString& msg);

private:
    QWidget* messageWindow();
    void handOver(std::string message);
    void serve();

    std::vector<std::string> startArgumentList;
    bool quitImmediately = false;
    QWidget* targetWindow;
    CInterprocessCommunicationWin channel;
    [[maybe_unused]] qint64 reserved;
};
