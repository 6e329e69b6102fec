"""The NSIS script of docs/integrating.md, extracted from the page."""

import os
import re
import shutil
import subprocess
from pathlib import PureWindowsPath

from tests.harness import layout
from tests.harness.case import SuiteTestCase
from tests.harness.registry import REG_DWORD, Value
from tests.harness.suite import LIST_KEY, SUITE_KEY
from tests.harness.waiting import wait_until

PAGE = layout.REPOSITORY / "docs" / "integrating.md"
LOG_OF_REMOVAL = "Wave Tuner removed\r\n"


class IntegratingPage(SuiteTestCase):

    def setUp(self):
        super().setUp()
        self.folder = self.prefix.roaming.parent / "Local/Programs/Lumacraft/Wave Tuner"
        self.settings = self.prefix.unix_path(self.prefix.settings / "WaveTuner")
        self._install()

    def _install(self) -> None:
        source = self.scratch / "application"
        source.mkdir()
        script = re.search(r"^```nsis\n(.*?)^```$", PAGE.read_text("utf-8"), re.M | re.S)
        (source / "application.nsi").write_text(script.group(1), "utf-8")
        (source / "WaveTuner.cfg").write_text("Version=4.2.0.17\n", "utf-8")
        shutil.copy(layout.ARGUMENT_RECORDER, source / "WaveTuner.exe")
        subprocess.run(["makensis", "-V2", "-WX", "-INPUTCHARSET", "UTF8", "application.nsi"],
                       cwd=source, env={**os.environ, "LC_ALL": "C.UTF-8"}, check=True)
        self.prefix.run(source / "WaveTuner_setup.exe", "/S")

    def _registered(self):
        tree = self.prefix.read_registry(SUITE_KEY)
        return tree[LIST_KEY], tree[f"{SUITE_KEY}\\AppPaths"]

    def _assert_removed(self, log: PureWindowsPath) -> None:
        """Waits for the uninstaller's log, since its first process ends at once."""
        file = self.prefix.unix_path(log)
        content = LOG_OF_REMOVAL.encode("utf-16-le")
        wait_until(lambda: file.exists() and file.read_bytes() == content,
                   f"{log} does not report the removal")
        self.assertFalse(self.prefix.unix_path(self.folder).exists())
        self.assertEqual(self._registered(), ({}, {}))

    def test_its_installer_registers_what_the_page_asks_for(self):
        log = self.prefix.logs / "WaveTuner_uninstall.log"
        self.assertEqual(self._registered(),
                         ({"Wave Tuner": f"{self.folder}\\Uninst.exe /log={log}"},
                          {"WaveTuner": str(self.folder)}))
        self.assertTrue((self.settings / "WaveTuner.cfg").exists())

    def test_its_uninstaller_is_run_by_the_program(self):
        self.remove_rows(self.install([]), [0], rows=1)
        self._assert_removed(self.prefix.logs / "WaveTuner_uninstall.log")
        self.assertTrue(self.settings.exists())

    def test_its_uninstaller_obeys_every_switch(self):
        log = PureWindowsPath("C:/with a blank/logs/WaveTuner_uninstall.log")
        self.prefix.unix_path(log.parent).mkdir(parents=True)
        self.prefix.write_registry([Value(SUITE_KEY, "UninstallMode", 1, REG_DWORD)])
        self.prefix.run(self.prefix.unix_path(self.folder / "Uninst.exe"), f"/log={log}",
                        "/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/LASTAPP")
        self._assert_removed(log)
        self.assertFalse(self.settings.exists())
        self.assertNotIn("UninstallMode", self.prefix.read_registry(SUITE_KEY)[SUITE_KEY])
