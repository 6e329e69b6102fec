#!/usr/bin/env python3
"""Packs the program, its Windows tests and the sample suite's installers for a real Windows.

    pack.py --build-dir build/windows --output FILE.zip

In the ZIP is one folder, named like it: Uninstall.exe, run-tests.cmd, tests/ and sample_suite/.
"""

import argparse
import zipfile
from pathlib import Path
from typing import Dict

HERE = Path(__file__).resolve().parent


def contents(build: Path) -> Dict[str, bytes]:
    kit = build / "tools" / "windows_kit"
    script = (HERE / "run-tests.cmd").read_text(encoding="ascii")
    files = {
        "Uninstall.exe": (build / "Uninstall.exe").read_bytes(),
        # cmd finds its way in files with Windows' line ends only.
        "run-tests.cmd": script.replace("\n", "\r\n").encode("ascii"),
        "tests/run_tests.exe": (kit / "run_tests.exe").read_bytes(),
        "tests/tests.txt": (kit / "tests.txt").read_bytes(),
    }
    for line in (kit / "programs.txt").read_text(encoding="utf-8").splitlines():
        files[f"tests/{Path(line).name}"] = Path(line).read_bytes()
    for installer in (build / "sample_suite").glob("*_setup.exe"):
        files[f"sample_suite/{installer.name}"] = installer.read_bytes()
    return files


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build-dir", type=Path, required=True)
    parser.add_argument("--output", type=Path, required=True)
    arguments = parser.parse_args()
    output: Path = arguments.output.resolve()
    output.parent.mkdir(parents=True, exist_ok=True)
    with zipfile.ZipFile(output, "w", zipfile.ZIP_DEFLATED) as packed:
        for name, content in sorted(contents(arguments.build_dir).items()):
            packed.writestr(f"{output.stem}/{name}", content)
    print(f"{output} ({output.stat().st_size / 1e6:.1f} MB)")


if __name__ == "__main__":
    main()
