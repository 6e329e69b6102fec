"""Third-party code in the program, from packaging/components.json.

The table is maintained by hand. Versions come from the installed packages, and packaging stops at an
archive on the linker's command line that belongs to no component. The keys of an entry:

archives    patterns of archives that the linker's command line names
toolchain   archives that the compiler adds by itself
headers     folder of a header-only library
member      of a part of Qt: an object file of it, by which the tests see that the part is linked
"""

import json
import subprocess
from dataclasses import dataclass, field
from fnmatch import fnmatch
from pathlib import Path
from typing import Dict, List, Optional, Tuple

from build_tree import REPOSITORY, BuildTree
from problem import Problem

_TABLE = REPOSITORY / "packaging" / "components.json"
_TEXTS = REPOSITORY / "packaging" / "licences"
_COMPILER = "x86_64-w64-mingw32-g++-posix"


@dataclass
class Component:
    id: str
    name: str
    licence: str                          # an SPDX expression, or "Public domain"
    texts: List[str]                      # files in licences/
    version: Optional[str] = None         # None: its authors give it none
    source: Optional[Tuple[str, str]] = None   # Debian's source package and version
    inside: Optional[str] = None          # the component that brings it along
    archives: List[Path] = field(default_factory=list)
    headers: Optional[Path] = None        # of a header-only library


def _package(name: str) -> Tuple[str, str, str]:
    """Version, source package and its version of an installed package."""
    found = subprocess.run(
        ["dpkg-query", "-W", "-f", "${Version} ${source:Package} ${source:Version}", name],
        stdout=subprocess.PIPE, text=True, check=False)
    if found.returncode != 0:
        raise Problem(f"package {name} is not installed; run \"make setup\"")
    version, source, source_version = found.stdout.split()
    return version, source, source_version


def _toolchain_archive(name: str) -> Path:
    path = subprocess.run([_COMPILER, f"-print-file-name={name}"], stdout=subprocess.PIPE,
                          text=True, check=True).stdout.strip()
    if not path.startswith("/"):
        raise Problem(f"{_COMPILER} has no {name}")
    return Path(path)


def upstream(version: str) -> str:
    """1:5.15.8+dfsg-11+deb12u3 -> 5.15.8"""
    return version.split(":", 1)[-1].split("-", 1)[0].split("+", 1)[0]


class Components:
    """All components, in the order of the table."""

    def __init__(self, tree: BuildTree):
        self.all: List[Component] = []
        self._texts: Dict[str, Path] = {}
        table = json.loads(_TABLE.read_text(encoding="utf-8"))
        unclaimed = {path.name: path for path in tree.linked_archives()}
        for entry in table["linked"]:
            self._add_linked(entry, unclaimed)
        bundle = table["inside Qt"]
        if self["qt"].version != bundle["release"]:
            raise Problem(f"{_TABLE} lists the parts of Qt {bundle['release']}, but "
                          f"{self['qt'].version} is linked: check its qt_attribution.json files")
        for entry in bundle["parts"]:
            self._add_part(entry, unclaimed)
        if unclaimed:
            raise Problem(f"{_TABLE} has no component for {', '.join(sorted(unclaimed))}, which the "
                          "program links")

    def __getitem__(self, identifier: str) -> Component:
        return next(component for component in self.all if component.id == identifier)

    def _add_linked(self, entry: dict, unclaimed: Dict[str, Path]) -> None:
        version, source, source_version = _package(entry["package"])
        self._texts.update({name: Path(file) for name, file in entry["texts"].items()})
        headers = entry.get("headers")
        self.all.append(Component(
            entry["id"], entry["name"], entry["licence"], list(entry["texts"]), upstream(version),
            source=(source, source_version),
            archives=self._claim(entry, unclaimed) +
            [_toolchain_archive(name) for name in entry.get("toolchain", [])],
            headers=Path(headers) if headers else None))

    def _add_part(self, entry: dict, unclaimed: Dict[str, Path]) -> None:
        self._texts[entry["text"]] = _TEXTS / entry["text"]
        self.all.append(Component(
            entry["id"], entry["name"], entry["licence"], [entry["text"]], entry.get("version"),
            inside="qt", archives=self._claim(entry, unclaimed)))

    @staticmethod
    def _claim(entry: dict, unclaimed: Dict[str, Path]) -> List[Path]:
        names = [name for name in sorted(unclaimed)
                 if any(fnmatch(name, pattern) for pattern in entry.get("archives", []))]
        return [unclaimed.pop(name) for name in names]

    def licence_texts(self) -> Dict[str, str]:
        return {name: file.read_text(encoding="utf-8")
                for name, file in sorted(self._texts.items())}
