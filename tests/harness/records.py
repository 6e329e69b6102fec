"""Reads the records of the sample uninstallers (tests/sample_suite/records.nsh)."""

from dataclasses import dataclass
from pathlib import Path
from typing import List, Optional

from tests.harness import command_line
from tests.harness.prefix import Prefix
from tests.harness.waiting import PATIENCE, wait_until

FOLDER = "C:\\records"


@dataclass
class Run:
    """One run of an uninstaller; `exit_code` is None while it runs."""
    arguments: List[str]
    exit_code: Optional[int] = None


class Records:
    """The records of one prefix."""

    def __init__(self, prefix: Prefix):
        self.folder: Path = prefix.unix_path(FOLDER)

    def recorded(self) -> List[str]:
        """The id strings of the applications whose uninstaller has started."""
        return sorted(path.stem for path in self.folder.glob("*.txt"))

    def file(self, id_string: str) -> Path:
        return self.folder / f"{id_string}.txt"

    def runs(self, id_string: str) -> List[Run]:
        """Every run so far, oldest first. An incomplete last line is ignored."""
        path = self.file(id_string)
        if not path.exists():
            return []
        content = path.read_bytes()
        text = content[:len(content) // 2 * 2].decode("utf-16-le")
        found: List[Run] = []
        for line in text.split("\r\n")[:-1]:
            kind, *fields = line.split("\t")
            if kind == "line":
                found.append(Run(command_line.split("\t".join(fields))))
            elif kind == "end":
                found[-1].exit_code = int(fields[0])
        return found

    def wait_for_begin(self, id_string: str, seconds: float = PATIENCE) -> Run:
        """Waits until the first run has recorded its arguments."""
        def begun() -> Optional[Run]:
            runs = self.runs(id_string)
            return runs[0] if runs else None
        return wait_until(begun, f"the uninstaller of {id_string} has not begun", seconds)

    def wait_for_end(self, id_string: str, seconds: float = PATIENCE) -> Run:
        """Waits until the first run is over."""
        def ended() -> Optional[Run]:
            runs = self.runs(id_string)
            return runs[0] if runs and runs[0].exit_code is not None else None
        return wait_until(ended, f"the uninstaller of {id_string} has not ended", seconds)

    def release(self, id_string: str) -> None:
        """Lets an uninstaller whose removal holds continue."""
        self.folder.mkdir(exist_ok=True)
        (self.folder / f"{id_string}.release").touch()
