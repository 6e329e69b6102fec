#pragma once

// A child process that claims the single-instance mutex and does not serve.

#include "tests/windows/ipc/peer_events.h"
#include "tests/windows/support/child_process.h"
#include "tests/windows/support/unique_name.h"

#include <string>
#include <vector>

namespace ipctest {

using namespace windows_tests;

// Keeps its handle of the mutex until stop() or its own end.
class ClaimingPeer
{
public:
    // Returns when the child knows which copy it is. `more` goes to ipc_peer's "claim".
    explicit ClaimingPeer(const std::vector<std::wstring>& more = {})
        : name(uniqueName(L"tessera_ipc_claiming")), first(name + L"_first"),
          later(name + L"_later"), stopEvent(name + L"_stop"),
          process(siblingProgram(L"ipc_peer"), arguments(name, more), {false, true})
    {
        const HANDLE any[] = {first.handle(), later.handle(), process.handle()};
        WaitForMultipleObjects(3, any, FALSE, waitTime(patience));
    }
    ~ClaimingPeer() { stop(); }
    ClaimingPeer(const ClaimingPeer&) = delete;
    ClaimingPeer& operator=(const ClaimingPeer&) = delete;

    bool isFirst() const { return first.isSet(); }
    bool isLater() const { return later.isSet(); }
    // Lets the child end; false when it does not end with code 0. May be repeated.
    bool stop()
    {
        stopEvent.set();
        return process.waitForExit() == 0u;
    }

    // Lets the child end; what claiming the mutex logged.
    std::string log()
    {
        stop();
        return process.output();
    }

private:
    static std::vector<std::wstring> arguments(const std::wstring& name,
                                               const std::vector<std::wstring>& more)
    {
        std::vector<std::wstring> all = {L"claim", name};
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }

    std::wstring name;
    NamedEvent first;
    NamedEvent later;
    NamedEvent stopEvent;
    ChildProcess process;
};

} // namespace ipctest
