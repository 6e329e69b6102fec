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
    // For the message "#block": waits until it is delivered; lets its handling go on.
    bool waitUntilBlocked() const { return entered.wait(); }
    void release() const { released.set(); }
    // Makes it close its channel; gives what createServer returned there.
    std::optional<DWORD> stop(milliseconds deadline = patience);
    DWORD pid() const { return process.pid(); }

private:
    std::wstring name;
    NamedEvent readyEvent;
    NamedEvent stopEvent;
    NamedEvent entered;
    NamedEvent released;
    ChildProcess process;
    bool isReady = false;
};

} // namespace ipctest
