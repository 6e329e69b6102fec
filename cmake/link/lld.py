#!/usr/bin/env -S python3 -B
"""Links with lld, which can delay imports.

GCC calls this script as its -wrapper, followed by the command line of its own linker. lld gets the
same arguments, with one addition: before the import library of each DLL that --delayload names comes
a converted copy whose imports lld can delay (import_library.py). The copies are kept in ".linked"
in the working folder.
"""

import os
import sys
import tempfile
from pathlib import Path
from typing import Iterator, List, Optional

from import_library import short_form

_LINKER = "ld.lld-19"
_FOLDER = Path(".linked")
_DELAY = "--delayload="


def _converted(library: Path) -> str:
    made = _FOLDER / library.name
    _FOLDER.mkdir(exist_ok=True)
    # Another link may write the same file at the same time.
    descriptor, scratch = tempfile.mkstemp(dir=_FOLDER)
    with os.fdopen(descriptor, "wb") as output:
        output.write(short_form(library.read_bytes()))
    os.replace(scratch, made)
    return str(made)


def _library(argument: str, folders: List[Path]) -> Optional[Path]:
    """The archive that a linker argument names; None for other arguments."""
    if not argument.startswith("-l"):
        return Path(argument) if argument.endswith(".a") else None
    candidates = (folder / f"lib{argument[2:]}.a" for folder in folders)
    return next((file for file in candidates if file.is_file()), None)


def _with_converted_libraries(arguments: List[str]) -> Iterator[str]:
    folders = [Path(argument[2:]) for argument in arguments if argument.startswith("-L")]
    delayed = {f"lib{argument[len(_DELAY):-len('.dll')]}.a" for argument in arguments
               if argument.startswith(_DELAY)}
    for argument in arguments:
        library = _library(argument, folders)
        if library is not None and library.name in delayed:
            yield _converted(library)
        yield argument


def main() -> None:
    try:
        os.execvp(_LINKER, [_LINKER, *_with_converted_libraries(sys.argv[2:])])
    except OSError as error:
        sys.exit(f"{_LINKER}: {error}")


if __name__ == "__main__":
    main()
