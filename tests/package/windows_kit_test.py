"""The tests' kit for a real Windows, unpacked where a person might unpack it."""

import hashlib
import shutil
import subprocess
import tempfile
import zipfile
from pathlib import Path, PureWindowsPath
from typing import List

from tests.harness import layout, processes
from tests.harness.case import SuiteTestCase
from tests.harness.registry import REG_BINARY, Value
from tests.harness.screen import wait_for_window
from tests.harness.suite import SUITE_KEY
from tests.harness.waiting import wait_until

PACK = layout.REPOSITORY / "tools" / "windows_kit" / "pack.py"
FOLDER = PureWindowsPath("C:/users/Public/Tests of Uninstall – 卸载 (1)")
LARGEST_ZIP = 40_000_000
DEADLINE = 240
# What Wine's "pause" says.
PROMPT = "Press any key to continue... "
CMD = r"C:\windows\system32\cmd.exe"
ASIDE_KEY = "HKEY_CURRENT_USER\\Software\\Tessera test kit"
OWN_VALUES = [Value(f"{SUITE_KEY}\\Sub", "Text", "mine"),
              Value(SUITE_KEY, "Bytes", b"\0\1\2", REG_BINARY)]


class WindowsKit(SuiteTestCase):

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="tessera-windows-kit-")
        cls.addClassCleanup(folder.cleanup)
        cls.zip = Path(folder.name) / "kit.zip"
        subprocess.run([PACK, "--build-dir", layout.BUILD, "--output", cls.zip], check=True,
                       stdout=subprocess.DEVNULL)

    def setUp(self):
        super().setUp()
        with zipfile.ZipFile(self.zip) as packed:
            packed.extractall(self.prefix.unix_path(FOLDER))
        self.kit = self.prefix.unix_path(FOLDER) / "kit"
        self.add_what_wine_lacks()
        self.prefix.write_registry(OWN_VALUES)
        self.settings = self.prefix.unix_path(self.prefix.settings)
        (self.settings / "logs").mkdir(parents=True)
        (self.settings / "common.cfg").write_text("mine", encoding="ascii")
        self.registry = self.prefix.read_registry(SUITE_KEY)

    def add_what_wine_lacks(self) -> None:
        """Lets the launcher of tools/wine-run start every test program."""
        tools = self.kit / "tools"
        tools.mkdir()
        for file in [layout.WINE_TOOLS / "launcher.exe", *layout.WINE_TOOLS.glob("*_shim.dll")]:
            shutil.copy(file, tools)
        tests = self.kit / "tests" / "tests.txt"
        lines = [line.split(" ", 2) for line in tests.read_text(encoding="ascii").splitlines()]
        tests.write_text("".join(f"{name} {seconds} ..\\tools\\launcher.exe {command}\n"
                                 for name, seconds, command in lines), encoding="ascii")

    def add_test(self, line: str) -> None:
        with (self.kit / "tests" / "tests.txt").open("a", encoding="ascii") as tests:
            tests.write(line + "\n")

    def start(self, *tests: str, answer: str = "yes") -> subprocess.Popen:
        # The permission must come from the kit, not from the prefix.
        consent = self.scratch / "answer.txt"
        consent.write_text(f"{answer}\r\n", encoding="ascii")
        with consent.open("rb") as keyboard, self.told.open("wb") as told:
            return self.prefix.start("cmd", "/c", "run-tests.cmd", *tests, cwd=self.kit,
                                     stdin=keyboard, stdout=told, stderr=told,
                                     environment={"TESSERA_TESTS_MAY_CHANGE_SETTINGS": "0"})

    def run_tests(self, *tests: str, answer: str = "yes") -> int:
        process = self.start(*tests, answer=answer)
        try:
            return process.wait(DEADLINE)
        finally:
            process.kill()

    @property
    def told(self) -> Path:
        return self.scratch / "told.txt"

    def lines(self) -> List[str]:
        return self.told.read_text(encoding="utf-8").splitlines()

    def report(self) -> str:
        return (self.kit / "report.txt").read_text(encoding="utf-8")

    def assert_settings_are_back(self):
        self.assertEqual(self.prefix.read_registry(SUITE_KEY), self.registry)
        self.assertEqual(self.prefix.read_registry(ASIDE_KEY), {})
        self.assertEqual((self.settings / "common.cfg").read_text(encoding="ascii"), "mine")
        self.assertTrue((self.settings / "logs").is_dir())
        self.assertEqual([folder.name for folder in self.settings.parent.glob("Lumacraft*")],
                         ["Lumacraft"])

    def test_is_small_and_runs_its_tests_in_a_folder_of_any_name(self):
        self.assertLess(self.zip.stat().st_size, LARGEST_ZIP)
        code = self.run_tests("windows_sys", "windows_widget_run", "windows_config",
                              "windows_scenarios")
        self.assertEqual(self.lines()[-2:], ["4 passed, 0 failed", PROMPT], self.report())
        self.assertEqual(code, 0)
        program = hashlib.sha256(layout.PROGRAM.read_bytes()).hexdigest()
        for text in ("Windows: ", "Account: ", "Elevated: ", " 96 dpi", program,
                     "windows_widget_run: passed ("):
            self.assertIn(text, self.report())
        self.assert_settings_are_back()

    def test_tells_failures_with_their_output_and_ends_what_takes_too_long(self):
        self.add_test(f"fails 60 {CMD} /c echo one reason & exit 3")
        self.add_test(r"hangs 1 C:\windows\system32\notepad.exe")
        self.add_test("is_missing 60 missing.exe")
        self.add_test(f"writes 60 {CMD} /c reg add HKCU\\Software\\Corvane /v Text /d test")
        self.add_test(f"finds_nothing 60 {CMD} /c reg query HKCU\\Software\\Corvane")
        self.add_test(f"asks_for_no_rights 60 {CMD} /c "
                      "if %__COMPAT_LAYER%==RunAsInvoker (exit 0) else exit 1")
        code = self.run_tests("fails", "hangs", "is_missing", "writes", "finds_nothing",
                              "asks_for_no_rights")
        self.assertEqual(self.lines()[-2:], ["2 passed, 4 failed", PROMPT], self.report())
        self.assertEqual(code, 1)
        self.assertRegex(self.report(), r"(?s)fails: FAILED with code 3 .*"
                                        r"hangs: FAILED: over its time limit .*"
                                        r"is_missing: FAILED to start, error 2 .*"
                                        r"finds_nothing: FAILED with code 1 .*"
                                        r"---- fails ----\s+one reason")
        self.assert_settings_are_back()

    def test_changes_nothing_without_consent(self):
        self.assertEqual(self.run_tests("windows_sys", answer="no"), 2)
        self.assertFalse((self.kit / "report.txt").exists())
        self.assert_settings_are_back()

    def test_changes_nothing_when_its_report_cannot_be_written(self):
        (self.kit / "report.txt").mkdir()
        self.assertEqual(self.run_tests("windows_sys"), 2)
        self.assertIn("report.txt cannot be written", self.told.read_text(encoding="utf-8"))
        self.assert_settings_are_back()

    def test_puts_back_at_its_next_start_what_a_run_that_was_cut_off_left_aside(self):
        self.add_test(f"cuts_off 60 {CMD} /c taskkill /F /IM run_tests.exe")
        self.run_tests("cuts_off")
        self.assertNotEqual(self.prefix.read_registry(ASIDE_KEY), {})
        self.assertFalse(self.settings.exists())
        self.assertEqual(self.run_tests("windows_sys", answer="no"), 2)
        self.assert_settings_are_back()

    def test_puts_the_settings_back_after_ctrl_c(self):
        # The suite's instances stay until they are ended.
        shutil.copy(layout.BUILD / "sample_suite" / "sample_instance.exe", self.kit / "tests")
        self.add_test(f"passes 60 {CMD} /c exit 0")
        self.add_test("stays 120 sample_instance.exe")
        self.add_test(f"never_begins 60 {CMD} /c exit 0")
        # In a window of its own: only a console has a Ctrl+C.
        script = self.prefix.start("cmd", "/c", "start", "tests of the kit", "/wait", "cmd", "/c",
                                   "run-tests.cmd", "passes", "stays", "never_begins", cwd=self.kit)
        self.addCleanup(self._stop, script)
        console = wait_for_window("tests of the kit.*", [script])
        wait_until(lambda: processes.find(self.prefix, FOLDER / "kit/tests/run_tests.exe"),
                   "the script did not begin")
        console.press("y", "e", "s", "Return")
        wait_until(lambda: processes.find(self.prefix, FOLDER / "kit/tests/sample_instance.exe"),
                   "the second test did not begin")
        console.press("ctrl+c")
        wait_until(lambda: "1 passed, 0 failed" in self.report(), "the run did not stop")
        self.assertIn("stays: stopped", self.report())
        self.assertNotIn("never_begins", self.report())
        self.assert_settings_are_back()
