"""The same sources give the same packages, wherever and whenever they are built."""

import os
import re
import shutil
import subprocess
import zipfile
from pathlib import Path

from tests.harness.layout import BUILD, PROGRAM, REPOSITORY
from tests.package.packing import ScratchTestCase, pack

# Lines of CMakeCache.txt with settings of the first build beyond the preset that may change the
# program: ours, except those of the measurements, and the compiler's flags.
_SETTING = re.compile(r"^((?:TESSERA_(?!BENCH)|CMAKE_(?:BUILD_TYPE|\w*_FLAGS|INTERPROCEDURAL)).*?)"
                      r":(\w+)=(.*)$", re.MULTILINE)
_PLACE = BUILD / "another place"
_LIBRARIES = re.compile(r"^(Qt5_DIR|CURL_DIR):PATH=(.*)$", re.MULTILINE)


def settings_of(build: Path, pattern: re.Pattern):
    return pattern.findall((build / "CMakeCache.txt").read_text(encoding="utf-8"))


class SecondBuild(ScratchTestCase):
    """The first build is the one under test. The second is made here from a copy of the sources in
    another folder. It has its own compiler cache, so that no object of the first build is reused."""

    def copy_sources(self) -> Path:
        copy = _PLACE / "uninstaller sources"
        shutil.rmtree(copy, ignore_errors=True)
        self.addCleanup(shutil.rmtree, copy)
        names = subprocess.run(
            ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            cwd=REPOSITORY, stdout=subprocess.PIPE, text=True, check=True).stdout
        for name in names.rstrip("\0").split("\0"):
            if (REPOSITORY / name).is_file():
                (copy / name).parent.mkdir(parents=True, exist_ok=True)
                # Without the times, as in a fresh clone.
                shutil.copyfile(REPOSITORY / name, copy / name)
                shutil.copymode(REPOSITORY / name, copy / name)
        return copy

    def build(self, sources: Path) -> Path:
        folder = sources / "build" / "windows"
        environment = {**os.environ, "CCACHE_DIR": str(_PLACE / "ccache"),
                       "CCACHE_MAXSIZE": "200M"}
        settings = [f"-D{name}:{kind}={value}"
                    for name, kind, value in settings_of(BUILD, _SETTING)]
        for command in (
                ["cmake", "--preset", "windows-cross", *settings, "-DBUILD_TESTING=OFF"],
                ["nice", "cmake", "--build", folder, "-j2", "--target", "Uninstall.exe"]):
            done = subprocess.run(command, cwd=sources, env=environment, text=True, check=False,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
            self.assertEqual(done.returncode, 0, done.stdout)
        return folder

    @staticmethod
    def contents(file: Path):
        """In a form whose differences can be read in a report."""
        if file.suffix != ".zip":
            return file.read_text(encoding="utf-8")
        with zipfile.ZipFile(file) as packed:
            return [(entry.filename, entry.file_size, f"{entry.CRC:08x}", entry.date_time)
                    for entry in packed.infolist()]

    def test_in_another_folder_gives_the_same_packages_byte_for_byte(self):
        sources = self.copy_sources()
        build = self.build(sources)
        self.assertEqual(settings_of(build, _LIBRARIES), settings_of(BUILD, _LIBRARIES),
                         "the build under test was made with other libraries; build it again")
        first, second = self.scratch / "first", self.scratch / "second"
        self.assert_packed(pack(first))
        self.assert_packed(pack(second, build, sources))

        # The programs first: differences of theirs explain all others.
        program = (build / "Uninstall.exe").read_bytes()
        self.assertTrue(program == PROGRAM.read_bytes(), "the programs differ")
        names = sorted(file.name for file in first.iterdir())
        self.assertEqual(sorted(file.name for file in second.iterdir()), names)
        self.assertEqual(len(names), 3)
        for name in names:
            self.assertEqual(self.contents(second / name), self.contents(first / name))
            self.assertTrue((first / name).read_bytes() == (second / name).read_bytes(), name)

        # The program names no folder that it was built in.
        for text in (str(sources), str(REPOSITORY)):
            for encoded in (text.encode(), text.encode("utf-16-le")):
                self.assertNotIn(encoded, program)
