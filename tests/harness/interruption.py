"""Ctrl+C, which reaches a test below tools/wine/with-display as SIGTERM."""

import signal

_SIGNALS = (signal.SIGINT, signal.SIGTERM)


def _interrupt(*_) -> None:
    # Both may come, and more than once; the clean-up that follows the first goes on.
    for number in _SIGNALS:
        signal.signal(number, signal.SIG_IGN)
    raise KeyboardInterrupt


def catch_signals() -> None:
    """Lets both raise KeyboardInterrupt. Without this SIGTERM ends Python at once, and a background
    job ignores SIGINT."""
    for number in _SIGNALS:
        signal.signal(number, _interrupt)
