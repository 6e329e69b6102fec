"""A Wine prefix: one simulated computer with one user."""

import atexit
import getpass
import os
import shutil
import subprocess
import uuid
from pathlib import Path, PureWindowsPath
from typing import Dict, List, Optional, Sequence, Union

from tests.harness import layout, registry

# No Windows program that the harness waits for takes longer.
RUN_DEADLINE = 120.0


class Prefix:
    """Owns the folder: `create` or its first program makes it, `destroy` ends its processes and
    removes it. No process outlives ours.

    Its programs' output goes to a file beside the folder, never to a pipe: Wine's service processes
    inherit it, and a reader would wait until they end."""

    def __init__(self, folder: Path):
        self.folder = folder
        self.output = folder.with_suffix(".txt")
        self._started: List[subprocess.Popen] = []

    @property
    def exists(self) -> bool:
        return (self.folder / "system.reg").exists()

    def create(self, template: Optional[Path] = None) -> None:
        """`template` is a prefix that it becomes a copy of."""
        self._wine_run("--prepare", {"WINE_RUN_TEMPLATE": str(template or "")})

    def end(self) -> None:
        """Ends every Windows process of the prefix and writes its registry to disk."""
        # First those that Wine's server may not know yet.
        for process in self._started:
            process.kill()
            process.wait()
        self._started.clear()
        self._wine_run("--end")
        atexit.unregister(self.end)

    def destroy(self) -> None:
        if self.folder.exists():
            self.end()
            shutil.rmtree(self.folder)

    def _wine_run(self, option: str, environment: Optional[Dict[str, str]] = None) -> None:
        subprocess.run([layout.WINE_RUN, option], env=self.environment(environment), check=True,
                       timeout=RUN_DEADLINE, stdin=subprocess.DEVNULL)

    def environment(self, extra: Optional[Dict[str, str]] = None) -> Dict[str, str]:
        return {**os.environ, "WINEPREFIX": str(self.folder), "WINE_RUN_AT_END": "leave",
                "WINE_RUN_TOOLS": str(layout.WINE_TOOLS), **(extra or {})}

    # Paths

    @property
    def drive(self) -> Path:
        return self.folder / "drive_c"

    def unix_path(self, windows_path: Union[str, PureWindowsPath]) -> Path:
        path = PureWindowsPath(windows_path)
        assert path.drive.upper() == "C:", path
        return self.drive.joinpath(*path.parts[1:])

    @property
    def roaming(self) -> PureWindowsPath:
        """The user's roaming application data."""
        return PureWindowsPath("C:/users", getpass.getuser(), "AppData", "Roaming")

    @property
    def settings(self) -> PureWindowsPath:
        """The suite's settings folder, the same for both brands."""
        return self.roaming / "Lumacraft"

    @property
    def logs(self) -> PureWindowsPath:
        return self.settings / "logs"

    # Programs

    def start(self, program: Union[str, Path], *arguments: str,
              environment: Optional[Dict[str, str]] = None, **options) -> subprocess.Popen:
        """Starts a Windows program; `options` are those of Popen."""
        self.folder.mkdir(parents=True, exist_ok=True)
        with self.output.open("ab") as output:
            process = subprocess.Popen([layout.WINE_RUN, str(program), *arguments],
                                       env=self.environment(environment),
                                       **{"stdin": subprocess.DEVNULL, "stdout": output,
                                          "stderr": output, **options})
        if not self._started:
            atexit.register(self.end)
        self._started.append(process)
        return process

    def run(self, program: Union[str, Path], *arguments: str) -> None:
        """Runs a Windows program to its end; raises when it reports a failure."""
        process = self.start(program, *arguments)
        try:
            code = process.wait(RUN_DEADLINE)
        finally:
            process.kill()
        if code != 0:
            raise subprocess.CalledProcessError(code, process.args)

    # Registry

    def read_registry(self, key: str) -> registry.Tree:
        """The key and all keys below it; empty when it is missing."""
        name = f"export-{uuid.uuid4().hex}.reg"
        self.run("regedit", "/E", f"C:\\{name}", key)
        exported = self.drive / name
        if not exported.exists():
            return registry.Tree()
        text = exported.read_bytes().decode("utf-16")
        exported.unlink()
        return registry.parse(text)

    def write_registry(self, values: Sequence[registry.Value]) -> None:
        name = f"import-{uuid.uuid4().hex}.reg"
        imported = self.drive / name
        imported.write_bytes(registry.serialise(values).encode("utf-16"))
        self.run("regedit", "/S", f"C:\\{name}")
        imported.unlink()
