"""Runs with every row checked."""

import shutil

from tests.harness.case import SuiteTestCase
from tests.harness.main_window import VISIBLE_ROWS
from tests.harness.suite import START_OF_LOG, SUITE_KEY
from tests.sample_suite.applications import (ALL, AWKWARD_FOLDER, CLIP_SAVER, DAMAGED, FAILING,
                                             HOLDING, PARTNER, RUNNING, SECOND_RUNNING, SLIDESHOW,
                                             SUITE, TRACK_SAVER, UNKNOWN)


class FullRun(SuiteTestCase):

    def assert_ran_in_order(self, suite, order):
        started = [message.text for message in suite.log()
                   if message.text.startswith("DoUninsstall: ")]
        self.assertEqual(started, [f"DoUninsstall: {suite.uninstaller(application)}"
                                   for application in order])
        modes = {message.text for message in suite.log()
                 if message.text.startswith("--> DoUninsstall")}
        self.assertEqual(modes, {"--> DoUninsstall: full"})

    def test_removes_everything_and_the_suite_last(self):
        suite = self.install(ALL)
        suite.damage(DAMAGED)
        program = self.start_program(suite, rows=VISIBLE_ROWS)
        program.main_window.select_all()
        program.main_window.toggle_delete_settings()
        program.main_window.press_uninstall()
        surveys = program.press_escape_on_surveys()
        self.assertEqual(program.exit_code(), 0)
        suite.records.release(HOLDING.id_string)

        self.assertEqual(surveys, ["Uninstall Tessera Clip Saver",
                                   "Uninstall Tessera Track Saver"])
        without_log = ["/SILENT", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"]
        self.assert_arguments(suite, {
            AWKWARD_FOLDER: without_log,
            CLIP_SAVER: without_log,
            FAILING: without_log,
            RUNNING: without_log,
            HOLDING: without_log,
            SLIDESHOW: without_log,
            TRACK_SAVER: without_log,
            PARTNER: without_log,
            SECOND_RUNNING: [suite.log_switch(SECOND_RUNNING), *without_log],
            UNKNOWN: [suite.log_switch(UNKNOWN), *without_log],
            SUITE: [suite.log_switch(SUITE), "/SILENT", "/SUPPRESSMSGBOXES", "/LASTAPP"],
        })
        self.assert_ran_in_order(suite, [
            AWKWARD_FOLDER, CLIP_SAVER, FAILING, RUNNING, DAMAGED, HOLDING, SLIDESHOW, TRACK_SAVER,
            PARTNER, SECOND_RUNNING, UNKNOWN, SUITE])
        for application in (AWKWARD_FOLDER, CLIP_SAVER, RUNNING, SLIDESHOW, TRACK_SAVER, PARTNER,
                            SECOND_RUNNING, UNKNOWN, SUITE):
            self.assert_removed(suite, application, with_settings=False)
        logs = {application for application in ALL
                if suite.uninstall_log(application).exists()}
        self.assertEqual(logs, {SECOND_RUNNING, UNKNOWN, SUITE})
        # What could not be removed is still registered.
        self.assertEqual(suite.registered(), ["Codec Doctor", "Light Table"])
        self.assertEqual(suite.registry()[SUITE_KEY]["UninstallMode"], 1)

    def test_with_delete_settings_and_history_no_logs_and_no_settings_remain(self):
        suite = self.install([AWKWARD_FOLDER, SUITE, PARTNER, UNKNOWN])
        program = self.start_program(suite, rows=4)
        program.main_window.select_all()
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

        with_redirect_off = ["/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"]
        self.assert_arguments(suite, {
            AWKWARD_FOLDER: with_redirect_off,
            PARTNER: with_redirect_off,
            UNKNOWN: with_redirect_off,
            SUITE: ["/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/LASTAPP"],
        })
        self.assert_ran_in_order(suite, [AWKWARD_FOLDER, PARTNER, UNKNOWN, SUITE])
        for application in (AWKWARD_FOLDER, SUITE, PARTNER, UNKNOWN):
            self.assert_removed(suite, application, with_settings=True)
            self.assertFalse(suite.uninstall_log(application).exists())
        self.assertEqual(suite.registered(), [])
        self.assertEqual(suite.registry()[SUITE_KEY]["UninstallMode"], 1)

    def test_does_not_recreate_a_settings_folder_that_was_deleted(self):
        suite = self.install([SUITE, PARTNER])
        program = self.start_program(suite, rows=2)
        self.assertTrue(suite.log())
        settings = suite.prefix.unix_path(suite.prefix.settings)
        shutil.rmtree(settings)  # as the suite's own uninstaller may do
        program.main_window.select_all()
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

        for application in (PARTNER, SUITE):
            self.assert_removed(suite, application, with_settings=True)
        self.assertFalse(settings.exists())

    def test_begins_by_checking_only_the_suites_row(self):
        suite = self.install([SUITE, PARTNER])
        program = self.start_program(suite, rows=2)
        program.main_window.toggle_row(0)
        program.main_window.wait_for_checked_rows([True, True])
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

        self.assert_arguments(suite, {
            PARTNER: [suite.log_switch(PARTNER), "/SILENT", "/SUPPRESSMSGBOXES",
                      "/DISABLEREDIRECT"],
            SUITE: [suite.log_switch(SUITE), "/SILENT", "/SUPPRESSMSGBOXES", "/LASTAPP"],
        })
        self.assert_log(suite, [
            *START_OF_LOG,
            "--> uninstallButtonClicked",
            *suite.removal_log(PARTNER, "full"),
            *suite.removal_log(SUITE, "full"),
            "~Widget()",
        ])
        # The suite's uninstaller removed the program after its end.
        self.assertFalse((suite.prefix.unix_path(suite.program_folder) / "Uninstall.exe").exists())

    def test_of_the_suite_alone_does_not_write_the_uninstall_mode(self):
        suite = self.install([SUITE])
        self.remove_rows(suite, [0], rows=1)

        self.assert_arguments(suite, {
            SUITE: [suite.log_switch(SUITE), "/SILENT", "/SUPPRESSMSGBOXES", "/LASTAPP"]})
        self.assert_removed(suite, SUITE, with_settings=False)
        self.assertNotIn("UninstallMode", suite.registry()[SUITE_KEY])

    def test_without_a_suite_row_ends_after_the_last_application(self):
        suite = self.install([PARTNER, UNKNOWN])
        self.remove_rows(suite, [0, 1], rows=2)

        self.assert_arguments(suite, {
            PARTNER: [suite.log_switch(PARTNER), "/SILENT", "/SUPPRESSMSGBOXES",
                      "/DISABLEREDIRECT"],
            UNKNOWN: [suite.log_switch(UNKNOWN), "/SILENT", "/SUPPRESSMSGBOXES", "/LASTAPP"],
        })
        # The last step finds no uninstaller of the suite.
        self.assertEqual([message.text for message in suite.log()][-2:],
                         ["--> DoUninsstall: full", "~Widget()"])
        self.assertEqual(suite.registry()[SUITE_KEY]["UninstallMode"], 1)
