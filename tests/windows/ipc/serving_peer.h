#pragma once

// A child process that serves the pipe, for one test. Its answers: see ScriptedReceiver in
// ipc_peer.cpp.

#include "tests/windows/ipc/peer_events.h"
#include "tests/windows/support/child_process.h"

#include <string>

namespace ipctest {

using namespace windows_tests;

class ServingPeer
{
public:
    // Returns when the child serves, or has failed.
    explicit ServingPeer(const std::vector<std::wstring>& moreArguments = {});

    bool ready() const { return isReady; }
    // Lets it close its channel and end; returns its createServer() result.
    std::optional<DWORD> stop(milliseconds deadline = patience);
    DWORD pid() const { return process.pid(); }
    // Waits until the client that came before the first wait has been disconnected.
    bool earlyClientIsLetGo() const { return letGoEvent.wait(); }

private:
    std::wstring name;
    NamedEvent readyEvent;
    NamedEvent letGoEvent;
    NamedEvent stopEvent;
    ChildProcess process;
    bool isReady = false;
};

} // namespace ipctest
