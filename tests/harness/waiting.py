"""Waiting for events, always with a deadline."""

import time
from typing import Callable, TypeVar

Result = TypeVar("Result")

# Long enough for a heavily loaded machine; only failing tests wait that long.
PATIENCE = 40.0
# Between two checks of a condition that no event announces. The pause grows: a check may start a
# process, and several tests share the machine.
_FIRST_PAUSE, _GROWTH, _LONGEST_PAUSE = 0.02, 1.3, 0.2


class Timeout(AssertionError):
    """A condition was not met in time."""


def wait_until(condition: Callable[[], Result], what: str, seconds: float = PATIENCE) -> Result:
    """Returns the first true result of `condition`; raises Timeout after `seconds`."""
    deadline = time.monotonic() + seconds
    pause = _FIRST_PAUSE
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > deadline:
            raise Timeout(f"after {seconds:.0f} s: {what}")
        time.sleep(pause)
        pause = min(pause * _GROWTH, _LONGEST_PAUSE)
