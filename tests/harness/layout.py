"""Paths in the source and build trees."""

import os
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ.get("TESSERA_BUILD_DIR", REPOSITORY / "build" / "windows"))

PROGRAM = BUILD / "Uninstall.exe"
INSTALLERS = BUILD / "sample_suite"
COMPUTERS = INSTALLERS / "computers"
ARGUMENT_RECORDER = INSTALLERS / "argument_recorder.exe"
WINE_RUN = REPOSITORY / "tools" / "wine-run"
WINE_TOOLS = BUILD / "tools"
