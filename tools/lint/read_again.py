#!/usr/bin/env python3
"""Reads the sources of a build folder with another tool than the build's own compiler.

    read_again.py clang-tidy build/host-bench CACHE  looks for mistakes, by .clang-tidy
    read_again.py clang      build/windows CACHE     clang's warnings, with the build's own options

Only files that git knows are read, one process per core. A source that passed is read again when
its command, the tool, .clang-tidy or any file it includes has changed; CACHE remembers this by
names relative to the tree, so that clones share it. Exit code 1: something was found.
"""

import argparse
import functools
import gzip
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from typing import List, NamedTuple, Optional

ROOT = Path(__file__).resolve().parents[2]
# GCC's options that clang does not know.
GCC_ONLY = {"-Wshadow=local": "-Wshadow", "-fno-keep-inline-dllexport": ""}


class Reading(NamedTuple):
    source: str
    command: List[str]
    # Prints the files that the source includes, as a rule for make.
    dependencies: List[str]


def output_of(command: List[str]) -> str:
    return subprocess.run(command, cwd=ROOT, check=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True).stdout


@functools.lru_cache(maxsize=None)
def hash_of(path: str) -> str:
    try:
        return hashlib.sha256((ROOT / path).read_bytes()).hexdigest()
    except OSError:
        return "missing"


@functools.lru_cache(maxsize=None)
def cross_compiler_options(compiler: str) -> List[str]:
    """Makes clang read the headers that the cross compiler reads."""
    verbose = output_of([compiler, "-E", "-v", "-x", "c++", os.devnull])
    folders = verbose.split("search starts here:\n")[-1].split("End of search list")[0].split()
    # The folders of the compiler itself hold what only GCC understands; clang has its own.
    own = [folder for folder in folders if Path(folder).name in ("include", "include-fixed")
           and "/gcc/" in os.path.normpath(folder)]
    options = ["--target=x86_64-w64-mingw32", "-nostdinc++", "-nostdlibinc"]
    for folder in folders:
        if folder not in own:
            options += ["-isystem", os.path.normpath(folder)]
    return options


def reading_of(tool: str, entry: dict) -> Reading:
    compiler, *arguments = [word for word in shlex.split(entry["command"])
                            if not word.endswith("ccache")]
    options = []
    skipped = 0
    for word in arguments:
        if skipped:
            skipped -= 1
        elif word in ("-o", "-c"):
            skipped = 1
        else:
            options.append(GCC_ONLY.get(word, word))
    options = [word for word in options if word] + ["-Wno-unknown-warning-option"]
    if "mingw32" in compiler:
        options += cross_compiler_options(compiler)
    source = entry["file"]
    clang = "clang" if source.endswith(".c") else "clang++"
    command = [clang, *options, "-fsyntax-only", source]
    if tool == "clang-tidy":
        command = [tool, "--quiet", source, "--", clang, *options]
    return Reading(source, command, [clang, *options, "-M", source])


def readings(tool: str, build: Path) -> List[Reading]:
    known = set(output_of(["git", "ls-files"]).splitlines())
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
        source = os.path.relpath(entry["file"], ROOT)
        if source in known and not source.endswith(".rc"):
            reading = reading_of(tool, entry)
            found[" ".join(reading.command)] = reading
    return list(found.values())


def included_files(reading: Reading) -> Optional[List[str]]:
    made = subprocess.run(reading.dependencies, cwd=ROOT, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True, check=False)
    if made.returncode != 0:
        return None
    names = shlex.split(made.stdout.replace("\\\n", " "))[1:]
    return [os.path.relpath(name, ROOT) if Path(name).is_relative_to(ROOT) else name
            for name in names]


def state_of(files: List[str]) -> str:
    return hashlib.sha256("".join(hash_of(name) for name in files).encode()).hexdigest()


def read(reading: Reading, tool_state: str, cache: Path) -> bool:
    key = "\n".join([tool_state, *reading.command]).replace(str(ROOT), ".")
    passed = cache / (hashlib.sha256(key.encode()).hexdigest()[:32] + ".gz")
    try:
        remembered = json.loads(gzip.decompress(passed.read_bytes()))
        if state_of(remembered["files"]) == remembered["state"]:
            return True
    except (OSError, EOFError, ValueError, KeyError):
        pass
    # Hashed before the tool reads them: what is edited meanwhile is read again next time.
    files = included_files(reading)
    state = state_of(files) if files is not None else ""
    told = subprocess.run(reading.command, cwd=ROOT, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, check=False)
    if told.returncode != 0:
        # clang-tidy counts what it found in foreign headers.
        text = re.sub(r"^\d+ warnings? generated\.\n", "", told.stdout, flags=re.MULTILINE)
        print(f"{os.path.relpath(reading.source, ROOT)}:\n{text}", end="", flush=True)
        return False
    if files is not None:
        aside = passed.with_suffix(f".{os.getpid()}")
        aside.write_bytes(gzip.compress(json.dumps({"files": files, "state": state}).encode()))
        aside.replace(passed)
    return True


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("tool", choices=["clang-tidy", "clang"])
    parser.add_argument("build", type=Path)
    parser.add_argument("cache", type=Path)
    arguments = parser.parse_args()
    cache = arguments.cache / arguments.tool
    cache.mkdir(parents=True, exist_ok=True)
    tool_state = output_of([arguments.tool, "--version"]) + hash_of(".clang-tidy")
    todo = readings(arguments.tool, arguments.build)
    pool = ThreadPoolExecutor(os.cpu_count())
    try:
        results = list(pool.map(lambda reading: read(reading, tool_state, cache), todo))
    finally:
        pool.shutdown(cancel_futures=True)
    print(f"{arguments.tool}: {results.count(True)} of {len(results)} sources passed")
    return 0 if results and all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
