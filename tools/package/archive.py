"""ZIP files that depend on nothing but their contents and one date."""

import hashlib
import time
import zipfile
from pathlib import Path
from typing import Dict, Mapping

from problem import Problem

# The format has no earlier time.
_FIRST_DATE = 315532800  # 1980-01-01 00:00:00 UTC


def sha256_of(content: bytes) -> str:
    return hashlib.sha256(content).hexdigest()


def sums_text(contents: Mapping[str, bytes]) -> str:
    """As sha256sum writes and checks it, sorted by name."""
    return "".join(f"{sha256_of(content)}  {name}\n" for name, content in sorted(contents.items()))


class Archive:
    """Collects files below one folder, then writes them sorted by name, all with the same date
    and with fixed permissions."""

    def __init__(self, name: str, folder: str, date: int):
        if date < _FIRST_DATE:
            raise Problem(f"SOURCE_DATE_EPOCH={date} is before 1980, which a ZIP cannot hold")
        self.name = name
        self.folder = folder
        self.date = date
        self.contents: Dict[str, bytes] = {}
        self._executables = set()

    def add_bytes(self, name: str, content: bytes, executable: bool = False) -> None:
        assert name not in self.contents, name
        self.contents[name] = content
        if executable:
            self._executables.add(name)

    def add_file(self, name: str, file: Path, executable: bool = False) -> None:
        self.add_bytes(name, file.read_bytes(), executable)

    def add_text(self, name: str, text: str) -> None:
        """With Windows line ends and a byte order mark, which old versions of Notepad need."""
        self.add_bytes(name, text.replace("\n", "\r\n").encode("utf-8-sig"))

    def write(self, output: Path) -> None:
        with zipfile.ZipFile(output / self.name, "w", zipfile.ZIP_DEFLATED,
                             compresslevel=9) as packed:
            for name, content in sorted(self.contents.items()):
                entry = zipfile.ZipInfo(f"{self.folder}/{name}", time.gmtime(self.date)[:6])
                entry.create_system = 3  # Unix, on every system
                mode = 0o755 if name in self._executables else 0o644
                entry.external_attr = (0o100000 | mode) << 16
                entry.compress_type = zipfile.ZIP_DEFLATED
                packed.writestr(entry, content)
