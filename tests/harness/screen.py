"""The X screen: windows, mouse, keyboard and pictures.

Positions are relative to the window, since xdotool misreports absolute ones under a window manager.
"""

import subprocess
from dataclasses import dataclass
from pathlib import Path
from typing import Callable, List, Optional, Sequence

from tests.harness.waiting import Timeout, wait_until

# No call of a screen tool takes longer.
_TOOL_DEADLINE = 30.0


def _xdotool(*arguments: str) -> Optional[str]:
    """The tool's output; None when it fails, for instance because the window is gone."""
    result = subprocess.run(["xdotool", *arguments], stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, text=True, timeout=_TOOL_DEADLINE,
                            check=False)
    return result.stdout if result.returncode == 0 else None


@dataclass(frozen=True)
class Picture:
    """Brightness (0 black to 255 white) of every point."""
    width: int
    height: int
    points: bytes

    def dark(self, x: int, y: int, limit: int) -> bool:
        return self.points[y * self.width + x] < limit


@dataclass(frozen=True)
class Window:
    """One top-level window by its X id. It may close at any time."""
    identifier: str

    @property
    def title(self) -> str:
        return (_xdotool("getwindowname", self.identifier) or "").rstrip("\n")

    def exists(self) -> bool:
        return self in find_windows(".*")

    def click(self, x: int, y: int) -> None:
        self.activate()
        _xdotool("mousemove", "--window", self.identifier, str(x), str(y), "click", "1")

    def move_mouse(self, x: int, y: int) -> None:
        _xdotool("mousemove", "--window", self.identifier, str(x), str(y))

    def press(self, *keys: str) -> None:
        """Focuses the window and presses keys by xdotool's names (Return, Escape, alt+F4)."""
        self.activate()
        _xdotool("key", "--clearmodifiers", *keys)

    def activate(self) -> None:
        """Brings the window forward and waits until it has the keyboard focus, which a program takes
        only some time after it becomes active; keys pressed in between are lost."""
        def active() -> bool:
            if all((_xdotool(command) or "").strip() == self.identifier
                   for command in ("getactivewindow", "getwindowfocus")):
                return True
            _xdotool("windowactivate", self.identifier)
            return not self.exists()
        wait_until(active, f"window {self.identifier} did not become the active one")

    def picture(self) -> Picture:
        data = _import("-window", self.identifier, "-colorspace", "Gray", "-depth", "8", "pgm:-")
        # The format is "P5 <width> <height> 255", one white-space byte, then the points.
        kind, width, height, _, = data.split(maxsplit=4)[:4]
        assert kind == b"P5", kind
        size = int(width) * int(height)
        return Picture(int(width), int(height), data[len(data) - size:])

    def save(self, file: Path) -> None:
        """Writes a picture of the window with its frame."""
        _import("-window", self.identifier, "-frame", str(file))


# A reaction to a window.
Answer = Callable[[Window], None]


def pressing(*keys: str) -> Answer:
    return lambda window: window.press(*keys)


def _import(*arguments: str) -> bytes:
    return subprocess.run(["import", *arguments], stdout=subprocess.PIPE, check=True,
                          stderr=subprocess.DEVNULL, timeout=_TOOL_DEADLINE).stdout


def find_windows(title: str) -> List[Window]:
    """The visible windows whose whole title matches the regular expression."""
    found = _xdotool("search", "--onlyvisible", "--name", f"^({title})$")
    return [Window(line) for line in (found or "").split()]


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
