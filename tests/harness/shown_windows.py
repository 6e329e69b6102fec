"""The windows that appear on the X screen, as the server reports them: none is too short-lived."""

from typing import List

from Xlib import X
from Xlib.display import Display


class ShownWindows:
    """Watches the screen from its creation to the end of its `with` block."""

    def __init__(self):
        self._display = Display()
        self._display.screen().root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self._display.sync()

    def __enter__(self) -> "ShownWindows":
        return self

    def __exit__(self, *_) -> None:
        self._display.close()

    def since_last_call(self) -> List[int]:
        """The ids of the top-level windows, or of their frames, that have appeared."""
        self._display.sync()
        shown = []
        while self._display.pending_events():
            event = self._display.next_event()
            if event.type == X.MapNotify:
                shown.append(event.window.id)
        return shown
