#pragma once

#include <functional>
#include <string>

namespace uninstall {

// Runs a call that may block for seconds, and returns when it has returned. A caller with windows
// passes a function that keeps them responsive. The call touches no window, does not throw, and may
// run on any thread.
using BlockingRunner = std::function<void(const std::function<void()>& blockingCall)>;

// Prepares the statistics for one application and starts the event sender: country, client GUID,
// parameters from common.cfg and the application's own ".cfg", then AppStatHelper::init.
// `runBlocking` runs what uses network and files. To be called once per process, before the first
// event. `suiteFlag` only matters for application id 0.
void startStatistics(int applicationId, bool suiteFlag, const BlockingRunner& runBlocking);

// The APPID of an application: its short code, for the suite itself with "_qx" or "_a".
std::string applicationCode(int applicationId, bool suiteFlag);

} // namespace uninstall
