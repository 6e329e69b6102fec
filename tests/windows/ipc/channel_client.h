#pragma once

// The channel's client end in the test process.

#include "tests/windows/ipc/pipe_stranger.h"
#include "tests/windows/support/child_process.h"
#include "ui/common/sys/interprocess_communication_win.h"

#include <ostream>
#include <string>
#include <thread>

namespace ipctest {

// The channel of a later copy.
struct Client
{
    Client()
    {
        channel.claimMutex();
        channel.firstInstance = false;
    }
    ~Client()
    {
        if (stopper.joinable())
            stopper.join();
    }

    // Like connectToServer, but waits while the server is busy with the previous exchange.
    int connect(milliseconds deadline = patience)
    {
        const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(deadline.count());
        int result = 0;
        while ((result = channel.connectToServer()) == ERROR_PIPE_BUSY && GetTickCount64() < end)
            WaitNamedPipeW(pipePath, 1000);
        return result;
    }

    // Requests a stop of the channel from another thread once `event` is signalled.
    void stopOn(HANDLE event)
    {
        stopper = std::thread([this, event] {
            WaitForSingleObject(event, waitTime(patience));
            channel.requestStop();
        });
    }

    CInterprocessCommunicationWin channel;
    std::thread stopper;
};

struct Exchange
{
    int result;
    std::string answer;
};

inline bool operator==(const Exchange& a, const Exchange& b)
{
    return a.result == b.result && a.answer == b.answer;
}

inline std::ostream& operator<<(std::ostream& out, const Exchange& exchange)
{
    return out << "result " << exchange.result << ", answer of " << exchange.answer.size()
               << " bytes: " << exchange.answer.substr(0, 60);
}

// One connection, one text, one answer.
inline Exchange exchange(const std::string& text)
{
    Client client;
    int result = client.connect();
    if (result == 0)
        result = client.channel.sendMessage(text);
    return {result, client.channel.getAnswer()};
}

} // namespace ipctest
