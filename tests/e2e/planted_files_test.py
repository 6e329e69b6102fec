"""The program loads no library and runs no program from its own folder or the current folder: a
download folder may hold anything."""

import shutil
from pathlib import Path

from tests.harness import layout
from tests.harness.case import SuiteTestCase
from tests.harness.screen import pressing
from tests.harness.suite import SURVEY_TITLE, WARNING_TITLE
from tests.sample_suite.applications import CLIP_SAVER, RUNNING

LIBRARIES = [
    # Imports of the program beyond the libraries that Windows always takes from its own folder,
    "bcrypt", "crypt32", "dwmapi", "netapi32", "userenv", "uxtheme", "version", "winmm", "wtsapi32",
    # and libraries that are loaded at run time.
    "combase", "d3d9", "d3d11", "dwrite", "dxgi", "opengl32", "secur32", "shcore",
    "uiautomationcore", "wintab32"]
PROGRAMS = ["taskkill"]

# Without the launcher, whose shims load libraries of these names. What the search finds comes
# before Wine's own libraries, as on Windows; but Wine's user32 would use a planted version.dll.
ENVIRONMENT = {
    "WINE_RUN_TOOLS": "",
    "WINEDLLOVERRIDES": ",".join(f"*{name}" for name in LIBRARIES if name != "version")
                        + "=native,builtin;mscoree,mshtml=;winemenubuilder.exe=d"}

# Statistics and the country lookup run up to a proxy that does not answer.
SETTINGS = b"EventStatEnabled=1\nLanguage=en\nProxyType=1\nProxyAddress=127.0.0.1\nProxyPort=9\n"


def plant(folder: Path) -> None:
    folder.mkdir(parents=True, exist_ok=True)
    for name in LIBRARIES:
        shutil.copy(layout.WINDOWS_TESTS / "planted_library.dll", folder / f"{name}.dll")
    for name in PROGRAMS:
        shutil.copy(layout.WINDOWS_TESTS / "planted_program.exe", folder / f"{name}.exe")


class PlantedFiles(SuiteTestCase):

    def touched(self):
        return sorted(str(file.relative_to(self.prefix.drive))
                      for file in self.prefix.drive.rglob("*.touched"))

    def test_are_neither_loaded_nor_run(self):
        suite = self.install([RUNNING, CLIP_SAVER])
        suite.write_common_settings(SETTINGS)
        self.start_application(suite, RUNNING)
        current_folder = self.prefix.drive / "current"
        plant(self.prefix.unix_path(suite.program_folder))
        plant(current_folder)

        program = self.start_program(suite, rows=2, folder=current_folder,
                                     environment=ENVIRONMENT)
        program.main_window.toggle_row(0)
        program.main_window.toggle_row(1)
        program.main_window.press_uninstall()
        answered = program.attend({WARNING_TITLE: pressing("Return"),
                                   SURVEY_TITLE: pressing("Escape")})
        self.assertEqual(len(answered), 2)
        self.assertEqual(program.exit_code(), 0)
        self.assertEqual(self.touched(), [])
