#!/usr/bin/env -S python3 -B
"""Links with lld, which can delay imports.

GCC is told to call this as its -wrapper, that is with the command of its own linker behind it. lld
gets the same arguments, but before the import library of a DLL that is named by --delayload comes
one from which lld can delay the imports (import_library.py). Those stay in the folder ".linked" of
the working folder.
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


def _short(library: Path) -> str:
    made = _FOLDER / library.name
    _FOLDER.mkdir(exist_ok=True)
    # Another link may write the same file at the same time.
    descriptor, scratch = tempfile.mkstemp(dir=_FOLDER)
    with os.fdopen(descriptor, "wb") as output:
        output.write(short_form(library.read_bytes()))
    os.replace(scratch, made)
    return str(made)


def _library(argument: str, folders: List[Path]) -> Optional[Path]:
    """The archive that is linked for the argument."""
    if not argument.startswith("-l"):
        return Path(argument) if argument.endswith(".a") else None
    candidates = (folder / f"lib{argument[2:]}.a" for folder in folders)
    return next((file for file in candidates if file.is_file()), None)


def _changed(arguments: List[str]) -> Iterator[str]:
    folders = [Path(argument[2:]) for argument in arguments if argument.startswith("-L")]
    delayed = {f"lib{argument[len(_DELAY):-len('.dll')]}.a" for argument in arguments
               if argument.startswith(_DELAY)}
    for argument in arguments:
        library = _library(argument, folders)
        if library is not None and library.name in delayed:
            yield _short(library)
        yield argument


def main() -> None:
    try:
        os.execvp(_LINKER, [_LINKER, *_changed(sys.argv[2:])])
    except OSError as error:
        sys.exit(f"{_LINKER}: {error}")


if __name__ == "__main__":
    main()
