#pragma once

namespace uninstall {

// The progress of the uninstall run, and so who may change the user's choice: the rows' check
// boxes, "Delete settings and history" and the buttons. A run begins once and never returns to
// idle, because the program ends with its run.
//
// No Qt, one thread: the window's.
class RunState
{
public:
    // Begins the run. Returns false, without effect, when it has begun before: assistive programs
    // and timers can press buttons during the run's own waits.
    bool begin();
    bool begun() const { return phase != Phase::idle; }

    // Keeps a begun run from uninstalling anything more. Without effect while idle.
    void cancel();
    bool cancelled() const { return phase == Phase::cancelled; }

    // True while the choice may be changed: by anybody before the run, then only by the run itself.
    bool choiceIsOpen() const { return phase == Phase::idle || ownChanges > 0; }

    // Marks the changes made while it lives as the run's own. No event loop may run meanwhile.
    class OwnChange
    {
    public:
        explicit OwnChange(RunState& state) : state(state) { ++state.ownChanges; }
        ~OwnChange() { --state.ownChanges; }
        OwnChange(const OwnChange&) = delete;
        OwnChange& operator=(const OwnChange&) = delete;

    private:
        RunState& state;
    };

private:
    enum class Phase { idle, running, cancelled };

    Phase phase = Phase::idle;
    int ownChanges = 0;
};

} // namespace uninstall
