"""The processes of this machine that run a Windows program."""

from pathlib import Path, PureWindowsPath
from typing import List, Union

from tests.harness.prefix import Prefix


def find(prefix: Prefix, program: Union[str, PureWindowsPath]) -> List[int]:
    """The ids of the processes that run the program, by its Windows path, in the prefix."""
    name = str(program).encode()
    owner = f"WINEPREFIX={prefix.folder}".encode()
    found = []
    for process in Path("/proc").glob("[0-9]*"):
        try:
            if (process.joinpath("cmdline").read_bytes().split(b"\0")[0] == name
                    and owner in process.joinpath("environ").read_bytes().split(b"\0")):
                found.append(int(process.name))
        except OSError:
            continue  # it has just ended, or belongs to another user
    return found


def running(prefix: Prefix, program: Union[str, PureWindowsPath]) -> bool:
    return bool(find(prefix, program))
