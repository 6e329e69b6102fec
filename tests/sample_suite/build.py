#!/usr/bin/env python3
"""Makes the installers of the sample suite.

    build.py --instance sample_instance.exe --output FOLDER

FOLDER receives <IdString>_setup.exe for every application, each a real 64-bit NSIS installer.
"""

import argparse
import os
import subprocess
import sys
from pathlib import Path

import applications

HERE = Path(__file__).resolve().parent
VERSION = "4.2.0.17"


def makensis(script: Path, values: dict) -> None:
    command = ["makensis", "-V2", "-NOCD", "-WX", "-INPUTCHARSET", "UTF8"]
    command += [f"-D{name}={value}" for name, value in values.items()]
    command += [f'-X!addincludedir "{HERE}"', str(script)]
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                            encoding="utf-8", env={**os.environ, "LC_ALL": "C.UTF-8"}, check=False)
    if result.returncode != 0:
        sys.exit(f"{' '.join(command)}\n{result.stdout}")


def build(application: applications.Application, instance: Path, output: Path) -> None:
    values = {
        "ID_STRING": application.id_string,
        "DISPLAY_NAME": application.display_name,
        "FOLDER_NAME": application.folder,
        "VERSION": VERSION,
        "PROGRAM": instance,
        "OUTPUT": output / f"{application.id_string}_setup.exe",
        "REMOVAL": application.removal,
    }
    if application.stays:
        keeper = output / f"{application.id_string}_keeper.exe"
        makensis(HERE / "keeper.nsi", {"ID_STRING": application.id_string, "OUTPUT": keeper})
        values["KEEPER"] = keeper
    makensis(HERE / "application.nsi", values)


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--instance", type=Path, required=True)
    parser.add_argument("--output", type=Path, required=True)
    arguments = parser.parse_args()
    arguments.output.mkdir(parents=True, exist_ok=True)
    for application in applications.ALL:
        build(application, arguments.instance.resolve(), arguments.output.resolve())


if __name__ == "__main__":
    main()
