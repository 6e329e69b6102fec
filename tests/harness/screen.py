"""The X screen: windows, mouse, keyboard and pictures.

Positions are relative to the window.
"""

import atexit
import functools
import itertools
import re
import subprocess
from dataclasses import dataclass, field
from pathlib import Path
from typing import Callable, List, Optional, Sequence

from Xlib import XK, X
from Xlib.display import Display
from Xlib.error import XError
from Xlib.ext import xtest
from Xlib.protocol.event import ClientMessage

from tests.harness.waiting import Timeout, wait_until

# No call of a screen tool takes longer.
_TOOL_DEADLINE = 30.0
_MODIFIERS = {"alt": "Alt_L", "ctrl": "Control_L"}
# Pictures in a row that must be the same: a fifth of a second.
_SETTLED = 6
# Window managers obey such a caller even while another window is in use.
_PAGER = 2
_ping_numbers = itertools.count(1)


@functools.lru_cache(maxsize=None)
def _display() -> Display:
    display = Display()
    atexit.register(display.close)
    return display


def _root_property(name: str) -> Sequence[int]:
    """A property that the window manager keeps."""
    found = _display().screen().root.get_full_property(
        _display().get_atom(name), X.AnyPropertyType)
    return found.value if found else []


def _send(kind: int, *codes: int) -> None:
    """Presses or releases keys or mouse buttons."""
    for code in codes:
        xtest.fake_input(_display(), kind, code)
    _display().sync()


def _key_code(name: str) -> int:
    return _display().keysym_to_keycode(XK.string_to_keysym(_MODIFIERS.get(name, name)))


@dataclass(frozen=True)
class Picture:
    """The points are four bytes each: blue, green, red, and one without a meaning."""
    width: int
    height: int
    points: bytes = field(repr=False)

    def dark(self, x: int, y: int, limit: int) -> bool:
        """Whether the red part of the point's colour, 0 to 255, is below the limit."""
        return self.points[4 * (y * self.width + x) + 2] < limit

    def save(self, file: Path) -> None:
        subprocess.run(["convert", "-size", f"{self.width}x{self.height}", "-depth", "8", "bgra:-",
                        "-alpha", "off", str(file)], input=self.points, check=True,
                       timeout=_TOOL_DEADLINE)


@dataclass(frozen=True)
class Window:
    """One top-level window by its X id. It may close at any time."""
    identifier: int

    @property
    def _window(self):
        return _display().create_resource_object("window", self.identifier)

    @property
    def title(self) -> str:
        """Empty when the window is gone."""
        try:
            return self._window.get_full_text_property(_display().get_atom("_NET_WM_NAME")) or ""
        except XError:
            return ""

    @property
    def visible(self) -> bool:
        try:
            return self._window.get_attributes().map_state == X.IsViewable
        except XError:
            return False

    def exists(self) -> bool:
        return self in find_windows(".*")

    def click(self, x: int, y: int) -> None:
        """Wait for the effect before the mouse moves on: under Wine a click is lost when the program
        finds the mouse elsewhere already."""
        self.activate()
        self.move_mouse(x, y)
        _send(X.ButtonPress, X.Button1)
        _send(X.ButtonRelease, X.Button1)

    def move_mouse(self, x: int, y: int) -> None:
        self._window.warp_pointer(x, y)
        _display().sync()

    def press(self, *keys: str) -> None:
        """Focuses the window and presses keys by their X names (Return, Escape, alt+F4)."""
        self.activate()
        for key in keys:
            codes = [_key_code(name) for name in key.split("+")]
            _send(X.KeyPress, *codes)
            _send(X.KeyRelease, *reversed(codes))

    def activate(self) -> None:
        """Brings the window forward and waits until it has the keyboard focus and its program knows
        that; keys pressed earlier are lost."""
        def active() -> bool:
            focused = getattr(_display().get_input_focus().focus, "id", None)
            if [*_root_property("_NET_ACTIVE_WINDOW"), focused] == [self.identifier] * 2:
                return True
            _ask_manager_to_activate(self._window)
            return not self.exists()
        wait_until(active, f"window {self.identifier} did not become the active one")
        self._wait_until_events_are_handled()

    def _wait_until_events_are_handled(self) -> None:
        """A program handles a window's events in their order and answers a window manager's ping by
        sending it to the root window."""
        display, number = _display(), next(_ping_numbers)
        root = display.screen().root
        ping = ClientMessage(window=self._window, client_type=display.get_atom("WM_PROTOCOLS"),
                             data=(32, [display.get_atom("_NET_WM_PING"), number, self.identifier,
                                        0, 0]))

        def answered() -> bool:
            while display.pending_events() > 0:
                event = display.next_event()
                if event.type == X.ClientMessage and event.data[1][1] == number:
                    return True
            return not self.exists()
        root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self._window.send_event(ping)
        try:
            wait_until(answered, f"window {self.identifier} did not answer")
        finally:
            root.change_attributes(event_mask=X.NoEventMask)

    def picture(self) -> Picture:
        size = self._window.get_geometry()
        image = self._window.get_image(0, 0, size.width, size.height, X.ZPixmap, 0xFFFFFFFF)
        return Picture(size.width, size.height, image.data)

    def settled_picture(self) -> Picture:
        """A picture of the window once several in a row are the same."""
        seen: List[Picture] = []

        def same() -> bool:
            seen.append(self.picture())
            return len(seen) >= _SETTLED and len({picture.points for picture in seen[-_SETTLED:]}) == 1
        wait_until(same, "the window's picture did not settle")
        return seen[-1]

    def save(self, file: Path) -> None:
        """Writes a picture of the window with its frame."""
        subprocess.run(["import", "-window", str(self.identifier), "-frame", str(file)],
                       stderr=subprocess.DEVNULL, timeout=_TOOL_DEADLINE, check=True)


def _ask_manager_to_activate(window) -> None:
    message = ClientMessage(window=window, client_type=_display().get_atom("_NET_ACTIVE_WINDOW"),
                            data=(32, [_PAGER, X.CurrentTime, 0, 0, 0]))
    _display().screen().root.send_event(
        message, event_mask=X.SubstructureNotifyMask | X.SubstructureRedirectMask)
    _display().sync()


# A reaction to a window.
Answer = Callable[[Window], None]


def pressing(*keys: str) -> Answer:
    return lambda window: window.press(*keys)


def find_windows(title: str) -> List[Window]:
    """The visible windows whose whole title matches the regular expression."""
    windows = [Window(identifier) for identifier in _root_property("_NET_CLIENT_LIST")]
    return [window for window in windows
            if window.visible and re.fullmatch(title, window.title)]


def wait_for_window(title: str, alive: Sequence[subprocess.Popen] = ()) -> Window:
    """Waits for the window; gives up at once when one of the processes has ended."""
    def window() -> Optional[Window]:
        found = find_windows(title)
        if found:
            return found[0]
        for process in alive:
            if process.poll() is not None:
                raise Timeout(f"the program ended with {process.returncode} before it showed "
                              f"a window '{title}'")
        return None
    return wait_until(window, f"no window '{title}' appeared")


def whole_screen() -> Window:
    return Window(_display().screen().root.id)
