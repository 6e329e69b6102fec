"""Paths in the source and build trees."""

import os
import re
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ.get("TESSERA_BUILD_DIR", REPOSITORY / "build" / "windows"))

PROGRAM = BUILD / "Uninstall.exe"
INSTALLERS = BUILD / "sample_suite"
COMPUTERS = INSTALLERS / "computers"
ARGUMENT_RECORDER = INSTALLERS / "argument_recorder.exe"
WINE_RUN = REPOSITORY / "tools" / "wine-run"
WINE_TOOLS = BUILD / "tools"


def cmake_variable(name: str) -> str:
    """Its value in the build's cache."""
    cache = BUILD / "CMakeCache.txt"
    if not cache.exists():
        raise SystemExit(f"{cache} is missing: run \"make build\"")
    return re.search(rf"^{name}:\w+=(.*)$", cache.read_text(encoding="utf-8"), re.MULTILINE)[1]
