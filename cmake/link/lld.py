#!/usr/bin/env python3
"""Links with lld, without functions and data that nothing uses.

GCC is told to call this as its -wrapper, that is with the command of its own linker behind it. lld
gets the same arguments, but object files and archives as collectable.py changes them. The changed
ones stay in the folder ".collectable" of the working folder.
"""

import hashlib
import os
import sys
import tempfile
from pathlib import Path

from collectable import make_collectable

_FOLDER = Path(".collectable")
_KINDS = (".a", ".o", ".obj")


def _changed(argument: str) -> str:
    """The file to link in the place of this one."""
    original = Path(argument)
    if original.suffix not in _KINDS or not original.is_file():
        return argument
    place = hashlib.sha256(str(original.resolve()).encode()).hexdigest()[:16]
    changed = _FOLDER / place / original.name
    written = original.stat().st_mtime_ns
    if changed.exists() and changed.stat().st_mtime_ns == written:
        return str(changed)
    changed.parent.mkdir(parents=True, exist_ok=True)
    # Another link may need the same file at the same time.
    descriptor, scratch = tempfile.mkstemp(dir=changed.parent)
    with os.fdopen(descriptor, "wb") as output:
        output.write(make_collectable(original.read_bytes()))
    os.utime(scratch, ns=(written, written))
    os.replace(scratch, changed)
    return str(changed)


def main() -> None:
    linker = os.environ.get("TESSERA_LLD", "ld.lld-19")
    arguments = [_changed(argument) for argument in sys.argv[2:]]
    try:
        os.execvp(linker, [linker, *arguments])
    except OSError as error:
        sys.exit(f"{linker}: {error.strerror}")


if __name__ == "__main__":
    main()
