"""Reads a cross-build folder: the program, its version, and how it was linked."""

import re
import shlex
import subprocess
from pathlib import Path
from typing import List

from problem import Problem

REPOSITORY = Path(__file__).resolve().parents[2]

# The cross compiler's own libraries.
TOOLCHAIN_LIBRARIES = Path("/usr/x86_64-w64-mingw32/lib")


class BuildTree:
    """A folder that the preset windows-cross has configured and built."""

    def __init__(self, folder: Path):
        self.folder = folder
        self.program = folder / "Uninstall.exe"
        cache = folder / "CMakeCache.txt"
        if not self.program.exists() or not cache.exists():
            raise Problem(f"{folder} holds no built program; run \"make build\" first")
        self._cache = cache.read_text(encoding="utf-8")
        self.version = self._cached("CMAKE_PROJECT_VERSION")
        self.qt_prefix = self._prefix_of("Qt5_DIR")
        self.curl_prefix = self._prefix_of("CURL_DIR")

    def _cached(self, name: str) -> str:
        match = re.search(rf"^{name}:[A-Z]+=(.+)$", self._cache, re.MULTILINE)
        if match is None:
            raise Problem(f"{self.folder}/CMakeCache.txt has no {name}")
        return match[1]

    def _prefix_of(self, name: str) -> Path:
        # <prefix>/lib/cmake/<package>
        return Path(self._cached(name)).parents[2]

    def link_arguments(self) -> List[str]:
        """The arguments that the program was linked with, except those that name output files;
        paths in the build folder are relative to it."""
        commands = subprocess.run(["ninja", "-C", self.folder, "-t", "commands", "Uninstall.exe"],
                                  stdout=subprocess.PIPE, text=True, check=True).stdout
        words = shlex.split(commands.strip().splitlines()[-1])
        if words[:2] != [":", "&&"] or words[-2:] != ["&&", ":"]:
            raise Problem(f"unexpected link command of the program: {words}")
        arguments = []
        pending = iter(words[3:-2])  # [2] is the compiler
        for word in pending:
            if word == "-o":
                next(pending)
            elif not word.startswith("-Wl,--out-implib,"):
                arguments.append(word)
        return arguments

    def linked_archives(self) -> List[Path]:
        """The third-party libraries that were linked by path, each once, in the order of linking."""
        paths = [Path(argument) for argument in self.link_arguments()
                 if argument.startswith("/") and argument.endswith(".a")]
        return [path for path in dict.fromkeys(paths) if path.parent != TOOLCHAIN_LIBRARIES]
