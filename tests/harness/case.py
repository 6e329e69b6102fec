"""The base of the end-to-end tests."""

import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path
from typing import Dict, Iterable, List, Optional, Sequence

from tests.harness import layout, screen
from tests.harness.interruption import catch_signals
from tests.harness.prefix import Prefix
from tests.harness.suite import (MAIN_TITLE, PRODUCT_BRAND, SELECTIVE, START_OF_LOG,
                                 RunningApplication, RunningProgram, Suite)
from tests.harness.waiting import wait_until
from tests.sample_suite.applications import Application

catch_signals()


class SuiteTestCase(unittest.TestCase):
    """Each test has its own computer (Wine prefix) below the build tree, made when it is first used.
    After a failure it is kept, with a picture of the screen; otherwise it is removed."""

    maxDiff = None

    def run(self, result=None):
        result = result or self.defaultTestResult()
        problems = len(result.failures) + len(result.errors)
        name = self.id().rpartition(".")[0].rpartition(".")[2] + "." + self._testMethodName
        folder = layout.BUILD / "e2e"
        folder.mkdir(exist_ok=True)
        self.scratch = Path(tempfile.mkdtemp(prefix=f"{name}-", dir=folder))
        self.prefix = Prefix(self.scratch / "prefix")
        self.last_screen: Optional[screen.Picture] = None
        try:
            super().run(result)
        except KeyboardInterrupt:
            # unittest leaves the clean-ups out.
            self.prefix.end()
            shutil.rmtree(self.scratch, ignore_errors=True)
            raise
        if len(result.failures) + len(result.errors) == problems:
            shutil.rmtree(self.scratch, ignore_errors=True)
        else:
            if self.last_screen is not None:
                self.last_screen.save(self.scratch / "screen.png")
            print(f"\nkept: {self.scratch}", flush=True)
        return result

    def setUp(self):
        self.programs: List[RunningProgram] = []
        self.addCleanup(self.prefix.end)

    def tearDown(self):
        # Now, before the programs are ended.
        self.last_screen = screen.whole_screen().picture()

    # Steps that most tests begin with

    def install(self, chosen: Sequence[Application], brand: str = PRODUCT_BRAND) -> Suite:
        """Installs the applications, and the program in the suite's folder."""
        suite = Suite(self.prefix, brand)
        suite.install(chosen)
        suite.place_program()
        return suite

    def start_application(self, suite: Suite, application: Application) -> RunningApplication:
        started = suite.start_application(application)
        self.addCleanup(started.stop)
        return started

    def start_program(self, suite: Suite, *arguments: str, rows: Optional[int] = None,
                      environment: Optional[Dict[str, str]] = None,
                      folder: Optional[Path] = None) -> RunningProgram:
        """Starts the program and waits for its window, with `rows` rows if given. A program that a
        failed sub-test left running is ended first: it would receive the new one's arguments."""
        for earlier in self.programs:
            self._stop(earlier.process)
        wait_until(lambda: not screen.find_windows(MAIN_TITLE), "an earlier program's window stays")
        program = suite.start_program(*arguments, environment=environment, folder=folder)
        self.programs.append(program)
        self.addCleanup(self._stop, program.process)
        if rows is not None:
            program.main_window.wait_for_rows(rows)
        return program

    def remove_rows(self, suite: Suite, checked: Iterable[int], rows: int,
                    environment: Optional[Dict[str, str]] = None) -> None:
        """Starts the program, which must show `rows` rows, uninstalls the checked ones, and waits
        for the program's end. The run must ask no questions."""
        program = self.start_program(suite, rows=rows, environment=environment)
        for row in checked:
            program.main_window.toggle_row(row)
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

    @staticmethod
    def _stop(process: subprocess.Popen):
        process.kill()
        process.wait()

    # Checks

    def assert_arguments(self, suite: Suite, expected: Dict[Application, List[str]]):
        """Exactly these uninstallers ran, each once, with exactly these arguments, and have ended."""
        for application in expected:
            suite.records.wait_for_end(application.id_string)
        self.assert_recorded(suite, {application.id_string: arguments
                                     for application, arguments in expected.items()})

    def assert_ran_selectively(self, suite: Suite, *applications: Application):
        """Exactly their uninstallers ran, with the switches of a selective run."""
        self.assert_arguments(suite, {
            application: [suite.log_switch(application), *SELECTIVE]
            for application in applications})

    def assert_recorded(self, suite: Suite, expected: Dict[str, List[str]]):
        """Exactly these programs have started, each once, with exactly these arguments. The keys are
        their names in the records."""
        for name in expected:
            suite.records.wait_for_begin(name)
        self.assertEqual({name: [run.arguments for run in suite.records.runs(name)]
                          for name in suite.records.recorded()},
                         {name: [arguments] for name, arguments in expected.items()})

    def assert_log(self, suite: Suite, expected: List[str]):
        """These are all of the program's main form messages, in order."""
        messages = [message for message in suite.log() if message.category == "MainForm"]
        self.assertEqual([message.text for message in messages], expected)
        self.assertEqual({(message.level, message.source) for message in messages},
                         {(6, "ui/uninstall/src/widget")})

    def assert_selective_log(self, suite: Suite, *applications: Application):
        """The program was started once and ran a selective run over these applications."""
        removals = [line for application in applications
                    for line in suite.removal_log(application)]
        self.assert_log(suite, [*START_OF_LOG, "--> uninstallButtonClicked", *removals,
                                "~Widget()"])

    def assert_removed(self, suite: Suite, application: Application, with_settings: bool):
        """Once its uninstaller has ended, its program folder is gone, and its settings are gone only
        if `with_settings`."""
        suite.records.wait_for_end(application.id_string)
        self.assertFalse(suite.folder(application).exists(), application.folder)
        self.assertEqual(suite.settings_folder(application).exists(), not with_settings)

    def assert_untouched(self, suite: Suite, application: Application):
        self.assertTrue((suite.folder(application) / application.process_name).exists())
        self.assertTrue((suite.folder(application) / "Uninst.exe").exists())
        self.assertTrue(suite.settings_folder(application).exists())
        self.assertEqual(suite.records.runs(application.id_string), [])
        self.assertIn(application.display_name, suite.registered())
