#pragma once

// The message channel between copies of the program on one machine: the single-instance mutex and
// a named pipe that carries one text and its answer at a time. The channel does not interpret the
// texts; docs/messages.md describes the frames and the words in them.

#include "ui/common/sys/thread.h"

#include <cstdint>
#include <memory>
#include <string>

#include <windows.h>

// Receives the texts that arrive at a serving channel.
class IMessageFromOtherProcess
{
public:
    virtual ~IMessageFromOtherProcess() = default;

    // Called on the channel's server thread, one message at a time. When it returns, the channel
    // sends `answerText` back, unless it is empty or the channel is being closed. When it throws,
    // the sender gets no answer, and the next client is served.
    virtual void onMessageFromOtherProcess(unsigned long pid, const std::string& text) = 0;

    // Read by the server thread right after each call. A request too short to be delivered gets it
    // too, so what is left here goes to the next such client.
    std::string answerText;
};

// One end of the channel: idle, then either serving (createServer) or a client
// (connectToServer, sendMessage), then closed. It may be used again after close().
//
// Threads: all operations belong to the thread that made the object, except requestStop().
// Operations that return int give 0 or a Win32 error code; none throws for a failed call.
class CInterprocessCommunicationWin : private win32::CThreadFunction
{
public:
    // Idle; touches neither the mutex nor the pipe.
    CInterprocessCommunicationWin();
    // Calls close(), then releases the mutex.
    ~CInterprocessCommunicationWin() override;
    CInterprocessCommunicationWin(const CInterprocessCommunicationWin&) = delete;
    CInterprocessCommunicationWin& operator=(const CInterprocessCommunicationWin&) = delete;

    // Creates the single-instance mutex, or opens it and clears `firstInstance` when another copy
    // holds it. Called once, by the owner, before anything else. Nobody waits on the mutex: its
    // existence alone marks a running copy.
    void claimMutex();

    // Global\LUMACRAFT_UNINSTALL.
    std::wstring getMutexName();
    // The pipe's bare name, without a \\.\pipe\ in front.
    std::wstring getPipeName();

    // Opens the pipe's server end to any account and starts the server thread. Besides the error
    // of CreateNamedPipeW: 87, 170 and 10 as win32::CBaseThread::start(). With 170 the channel
    // serves on, untouched; with the other two no pipe stays open.
    int createServer();

    // Opens the client end. ERROR_PIPE_BUSY (231) while the server handles another client,
    // ERROR_FILE_NOT_FOUND (2) without a server.
    int connectToServer();

    // Sends one text and waits, without limit, for the answer, which getAnswer() then returns.
    // A failed transaction is tried again, seven times in all, with pauses of 300 ms between.
    // The first instance sends nothing and returns 0. Returns ERROR_BAD_ENVIRONMENT (10) without
    // an open pipe and ERROR_BUFFER_OVERFLOW (111) for more than 65526 bytes.
    int sendMessage(const std::string& text);

    // The answer of the last sendMessage; empty when none came.
    std::string getAnswer() const { return lastAnswer; }

    // True while this end holds a pipe, as server or client.
    bool isPipeOpen() const { return static_cast<bool>(pipe); }

    // Ends the server thread and closes the pipe. Waits without limit for a delivery in progress,
    // so it must not be called on the thread that handles the message. May be called on a client,
    // and more than once.
    void close();

    // The first step of close(), for any thread: the server thread ends without writing another
    // answer, and a sendMessage that pauses before its next attempt returns at once.
    void requestStop();

    // True until claimMutex() finds another copy. The owner sets it again when it takes over.
    bool firstInstance = true;

private:
    enum class Wake { io, stop, failure };

    void run(int argument) override;
    bool serveOneClient(std::string& text);
    void deliver(std::uint32_t received, std::string& text);
    void writeAnswer(const std::string& answer);
    Wake waitForIo() const;
    int openPipe();
    void prepare();
    void setStop(bool value);
    bool stopRequested();

    win32::CriticalSection stopLock;
    bool stop = false; // guarded by stopLock
    win32::KernelHandle mutex;
    win32::FileHandle pipe;
    // 65535 bytes each while the channel is open. Like the pipe, they belong to the server thread
    // from createServer to close, to the owner otherwise.
    std::unique_ptr<std::uint8_t[]> sendBuffer;
    std::unique_ptr<std::uint8_t[]> receiveBuffer;
    win32::KernelHandle stopEvent;
    win32::KernelHandle ioEvent;
    OVERLAPPED overlapped = {};
    win32::CBaseThread<100> serverThread;

public:
    // Not owned. Set before createServer() and not changed until close().
    IMessageFromOtherProcess* receiver = nullptr;

private:
    std::wstring mutexName;
    std::wstring pipeName;
    std::string lastAnswer;
};
