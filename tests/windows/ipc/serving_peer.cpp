#include "tests/windows/ipc/serving_peer.h"

#include "tests/windows/support/unique_name.h"

namespace ipctest {

namespace {

std::vector<std::wstring> withName(const std::wstring& name, const std::vector<std::wstring>& more)
{
    std::vector<std::wstring> all = {L"serve", name};
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

} // namespace

ServingPeer::ServingPeer(const std::vector<std::wstring>& moreArguments)
    : name(uniqueName(L"tessera_ipc_peer")), readyEvent(name + L"_ready"),
      letGoEvent(name + L"_let_go"), stopEvent(name + L"_stop"),
      process(siblingProgram(L"ipc_peer"), withName(name, moreArguments))
{
    const HANDLE either[] = {readyEvent.handle(), process.handle()};
    isReady = process.started() &&
              WaitForMultipleObjects(2, either, FALSE, waitTime(patience)) == WAIT_OBJECT_0;
}

std::optional<DWORD> ServingPeer::stop(milliseconds deadline)
{
    stopEvent.set();
    return process.waitForExit(deadline);
}

} // namespace ipctest
