"""Windows programs that tell when they are ready."""

import os
import subprocess
import tempfile
from pathlib import Path
from typing import List

from tests.harness.prefix import Prefix
from tests.harness.waiting import PATIENCE, wait_until


class AnnouncedProgram:
    """A program that prints "ready" as its first line. Constructed once it has done so."""

    def __init__(self, prefix: Prefix, program: Path, *arguments: str):
        # Wine's services inherit the output of the first program and would keep a pipe open.
        self._output = tempfile.TemporaryFile()
        self.process: subprocess.Popen = prefix.start(program, *arguments, stdout=self._output)
        wait_until(lambda: self.lines() or self.process.poll() is not None,
                   f"{program.name} is not ready")
        if self.lines()[:1] != ["ready"]:
            raise AssertionError(f"{program.name} said {self.lines()}")

    def lines(self) -> List[str]:
        """The complete lines that it has printed so far."""
        text = os.pread(self._output.fileno(), 4096, 0).decode("ascii")
        return text[:text.rfind("\n") + 1].splitlines()

    def stop(self) -> None:
        """Ends it. Must also be called when it has ended by itself."""
        self.process.terminate()
        self.process.wait(PATIENCE)
        self._output.close()
