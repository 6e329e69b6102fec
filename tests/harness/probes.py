"""Programs that stand in for uninstallers in registered commands: one that works, and those that go
wrong (tests/e2e/faults)."""

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
    file.parent.mkdir(exist_ok=True)
    return file


def place_working(prefix: Prefix, name: str) -> str:
    """Records its arguments and ends. Returns its Windows path."""
    shutil.copy(layout.ARGUMENT_RECORDER, _target(prefix, name))
    return path(name)


def place_misbehaving(prefix: Prefix, name: str) -> None:
    """Does what its name says (misbehaving_uninstaller.cpp)."""
    shutil.copy(MISBEHAVING, _target(prefix, name))


def place_elevated(prefix: Prefix, name: str) -> None:
    """May only be started by an administrator."""
    shutil.copy(ELEVATED, _target(prefix, name))


def place_text(prefix: Prefix, name: str) -> None:
    """Is no program."""
    _target(prefix, name).write_text("not a program\n")
