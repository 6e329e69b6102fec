#pragma once

#include <functional>

class QProcess;

namespace uninstall {

// Waits of the GUI thread during which windows are painted, the system and other copies of the
// program are answered, and no mouse or key event reaches any widget, which the cursor shows.
// Timers, and what assistive programs press, do reach them.

// Waits until `process` has finished, at most `milliseconds`. Returns at once for a process that
// did not start.
void waitForFinished(QProcess& process, int milliseconds);

// Runs `blockingCall` on a thread of its own and returns when it has returned; there is no other
// bound. The call must not touch widgets and must not throw.
void runAside(const std::function<void()>& blockingCall);

} // namespace uninstall
