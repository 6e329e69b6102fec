"""The X screen: windows, mouse, keyboard and pictures.

Positions are relative to the window, since xdotool misreports absolute ones under a window manager.
"""

import functools
import re
import subprocess
from dataclasses import dataclass
from pathlib import Path
from typing import Callable, List, Optional, Sequence

from Xlib import X
from Xlib.display import Display
from Xlib.error import XError

from tests.harness.waiting import Timeout, wait_until

# No call of a screen tool takes longer.
_TOOL_DEADLINE = 30.0


@functools.lru_cache(maxsize=None)
def _display() -> Display:
    return Display()


def _root_property(name: str) -> Sequence[int]:
    """A property that the window manager keeps."""
    found = _display().screen().root.get_full_property(
        _display().get_atom(name), X.AnyPropertyType)
    return found.value if found else []


def _xdotool(*arguments: str) -> None:
    """Uses mouse or keyboard; without effect when the window is gone."""
    subprocess.run(["xdotool", *arguments], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                   timeout=_TOOL_DEADLINE, check=False)


@dataclass(frozen=True)
class Picture:
    """The points are four bytes each: blue, green, red, and one without a meaning."""
    width: int
    height: int
    points: bytes

    def dark(self, x: int, y: int, limit: int) -> bool:
        """Whether the point's brightness (0 black to 255 white) is below the limit."""
        first = 4 * (y * self.width + x)
        blue, green, red = self.points[first:first + 3]
        return 0.0722 * blue + 0.7152 * green + 0.2126 * red < limit


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
        self.activate()
        _xdotool("mousemove", "--window", str(self.identifier), str(x), str(y), "click", "1")

    def move_mouse(self, x: int, y: int) -> None:
        _xdotool("mousemove", "--window", str(self.identifier), str(x), str(y))

    def press(self, *keys: str) -> None:
        """Focuses the window and presses keys by xdotool's names (Return, Escape, alt+F4)."""
        self.activate()
        _xdotool("key", "--clearmodifiers", *keys)

    def activate(self) -> None:
        """Brings the window forward and waits until it has the keyboard focus, which a program takes
        only some time after it becomes active; keys pressed in between are lost."""
        def active() -> bool:
            focused = getattr(_display().get_input_focus().focus, "id", None)
            if [*_root_property("_NET_ACTIVE_WINDOW"), focused] == [self.identifier] * 2:
                return True
            _xdotool("windowactivate", str(self.identifier))
            return not self.exists()
        wait_until(active, f"window {self.identifier} did not become the active one")

    def picture(self) -> Picture:
        size = self._window.get_geometry()
        image = self._window.get_image(0, 0, size.width, size.height, X.ZPixmap, 0xFFFFFFFF)
        return Picture(size.width, size.height, image.data)

    def save(self, file: Path) -> None:
        """Writes a picture of the window with its frame."""
        _import("-window", str(self.identifier), "-frame", str(file))


# A reaction to a window.
Answer = Callable[[Window], None]


def pressing(*keys: str) -> Answer:
    return lambda window: window.press(*keys)


def _import(*arguments: str) -> None:
    subprocess.run(["import", *arguments], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                   timeout=_TOOL_DEADLINE, check=True)


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


def save_screen(file: Path) -> None:
    """Writes a picture of the whole screen."""
    _import("-window", "root", str(file))
