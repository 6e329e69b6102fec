#include "ui/uninstall/src/run_state.h"

namespace uninstall {

bool RunState::begin()
{
    if (begun())
        return false;
    phase = Phase::running;
    return true;
}

void RunState::cancel()
{
    if (begun())
        phase = Phase::cancelled;
}

} // namespace uninstall
