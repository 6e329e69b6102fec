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
    // Returns when the child serves, or has failed to.
    explicit ServingPeer(const std::vector<std::wstring>& moreArguments = {});

    bool ready() const { return isReady; }
    // Makes it close its channel; gives what createServer returned there.
    std::optional<DWORD> stop(milliseconds deadline = patience);
    DWORD pid() const { return process.pid(); }
    // True once the client that came before the first wait has been let go; waits for that.
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
