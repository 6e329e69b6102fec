#pragma once

#include <functional>

class QProcess;

namespace uninstall {

// Waits for the GUI thread. Windows are painted and messages of the system and of other copies are
// handled, but no mouse or key event reaches a widget; the wait cursor shows this. Timers and
// assistive programs do reach widgets.

// Waits until `process` has finished, at most `milliseconds`. Returns at once for a process that
// did not start.
void waitForFinished(QProcess& process, int milliseconds);

// Runs `blockingCall` on a thread of its own and waits, without limit, until it has returned. The
// call must not touch widgets and must not throw.
void runAside(const std::function<void()>& blockingCall);

} // namespace uninstall
