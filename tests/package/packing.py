"""Runs tools/package/package for tests, and unpacks its results."""

import os
import subprocess
import tempfile
import unittest
import zipfile
from pathlib import Path
from typing import Dict, Optional

from tests.harness.interruption import catch_signals
from tests.harness.layout import BUILD, REPOSITORY

catch_signals()

SOURCE_DATE = 1767323045  # 2026-01-02 03:04:05 UTC
DEADLINE = 300


def pack(output: Path, build: Path = BUILD, repository: Path = REPOSITORY,
         environment: Optional[Dict[str, str]] = None) -> subprocess.CompletedProcess:
    """Returns the finished process. `environment` changes variables of ours; None removes one."""
    merged = {**os.environ, "SOURCE_DATE_EPOCH": str(SOURCE_DATE), "TESSERA_SIGN_COMMAND": "",
              **(environment or {})}
    return subprocess.run(
        [repository / "tools" / "package" / "package", "--build-dir", build, "--output", output],
        env={name: value for name, value in merged.items() if value is not None},
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=DEADLINE, check=False)


def pack_for_class(cls) -> Path:
    """Packs the build for all tests of a class, and returns the folder of the packages."""
    output = Path(cls.enterClassContext(tempfile.TemporaryDirectory())) / "out"
    result = pack(output)
    assert result.returncode == 0, result.stdout
    return output


def only(folder: Path, pattern: str) -> Path:
    found = list(folder.glob(pattern))
    assert len(found) == 1, (pattern, found)
    return found[0]


def unpack(archive: Path, folder: Path) -> Path:
    """Returns the one folder that the archive holds."""
    folder.mkdir(parents=True, exist_ok=True)
    with zipfile.ZipFile(archive) as packed:
        packed.extractall(folder)
        names = {name.split("/")[0] for name in packed.namelist()}
        # ZipFile ignores the permissions.
        for entry in packed.infolist():
            (folder / entry.filename).chmod(entry.external_attr >> 16 & 0o777)
    assert len(names) == 1, names
    return folder / names.pop()


class ScratchTestCase(unittest.TestCase):
    """Each test has a folder of its own."""

    def setUp(self):
        self.scratch = Path(self.enterContext(
            tempfile.TemporaryDirectory(prefix="tessera-package-test-")))

    def assert_packed(self, result: subprocess.CompletedProcess):
        self.assertEqual(result.returncode, 0, result.stdout)
