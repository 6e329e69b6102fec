#!/usr/bin/env -S python3 -B
"""Links with lld, without functions and data that nothing uses.

GCC is told to call this as its -wrapper, that is with the command of its own linker behind it. lld
gets the same arguments, with two differences:

- object files and archives are linked as collectable.py changes them;
- before the import library of a DLL that is named by --delayload comes one from which lld can
  delay the imports (import_library.py).

What is made for that stays in the folder ".linked" of the working folder.
"""

import hashlib
import os
import sys
import tempfile
from pathlib import Path
from typing import Callable, Iterator, List, Optional

from collectable import make_collectable
from import_library import short_form

_LINKER = "ld.lld-19"
_FOLDER = Path(".linked")
_OBJECTS = (".a", ".o", ".obj")
_DELAY = "--delayload="


def _made(original: Path, make: Callable[[bytes], bytes]) -> str:
    """The file that `make` makes of the original, made again when that has changed."""
    key = f"{make.__name__} {original.resolve()}"
    made = _FOLDER / hashlib.sha256(key.encode()).hexdigest()[:16] / original.name
    written = original.stat().st_mtime_ns
    if made.exists() and made.stat().st_mtime_ns == written:
        return str(made)
    made.parent.mkdir(parents=True, exist_ok=True)
    # Another link may need the same file at the same time.
    descriptor, scratch = tempfile.mkstemp(dir=made.parent)
    with os.fdopen(descriptor, "wb") as output:
        output.write(make(original.read_bytes()))
    os.utime(scratch, ns=(written, written))
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
            yield _made(library, short_form)
        if argument.endswith(_OBJECTS) and Path(argument).is_file():
            argument = _made(Path(argument), make_collectable)
        yield argument


def main() -> None:
    try:
        os.execvp(_LINKER, [_LINKER, *_changed(sys.argv[2:])])
    except OSError as error:
        sys.exit(f"{_LINKER}: {error}")


if __name__ == "__main__":
    main()
