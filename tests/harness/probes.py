"""Substitutes for uninstallers in registered commands: one that works, and some that fail
(tests/e2e/faults)."""

import shutil
from pathlib import Path

from tests.harness import layout
from tests.harness.prefix import Prefix

FOLDER = "C:\\probe dir"
ELEVATED = layout.WINE_TOOLS / "elevated_uninstaller.exe"
MISBEHAVING = layout.WINE_TOOLS / "misbehaving_uninstaller.exe"


def path(name: str) -> str:
    return f"{FOLDER}\\{name}.exe"


def log_switch(name: str) -> str:
    return f"/log=C:\\logs\\{name}_uninstall.log"


def command(name: str) -> str:
    return f"{path(name)} {log_switch(name)}"


def _target(prefix: Prefix, name: str) -> Path:
    file = prefix.unix_path(path(name))
    file.parent.mkdir(parents=True, exist_ok=True)
    return file


def place_working(prefix: Prefix, name: str) -> str:
    """A program that records its arguments and ends. Returns its Windows path."""
    shutil.copy(layout.ARGUMENT_RECORDER, _target(prefix, name))
    return path(name)


def place_misbehaving(prefix: Prefix, name: str) -> None:
    """A program that misbehaves as its name says (misbehaving_uninstaller.cpp)."""
    shutil.copy(MISBEHAVING, _target(prefix, name))


def place_elevated(prefix: Prefix, name: str) -> None:
    """A program that only an administrator may start."""
    shutil.copy(ELEVATED, _target(prefix, name))


def place_text(prefix: Prefix, name: str) -> None:
    """A text file instead of a program."""
    _target(prefix, name).write_text("not a program\n")
