"""Applications that are running when their removal begins."""

import shutil

from tests.harness import layout
from tests.harness.case import SuiteTestCase
from tests.harness.screen import pressing
from tests.harness.suite import START_OF_LOG, WARNING_TITLE
from tests.sample_suite.applications import (AWKWARD_FOLDER, PARTNER, RUNNING, SECOND_RUNNING,
                                             SLIDESHOW, SUITE, UNKNOWN)

BEGUN = "--> uninstallButtonClicked"


def warning(application):
    return f"--> showWarningAndKillApp: {application.id_string}"


class RunningApplications(SuiteTestCase):

    def test_ok_ends_the_application_and_removes_it(self):
        suite = self.install([RUNNING, PARTNER, UNKNOWN])
        karaoke = self.start_application(suite, RUNNING)
        program = self.start_program(suite, rows=3)
        program.main_window.toggle_row(0)
        program.main_window.press_uninstall()
        warning_box = program.wait_for_warning()
        self.assertTrue(karaoke.running)
        self.assertEqual(suite.records.recorded(), [])
        warning_box.press("Return")
        self.assertEqual(program.exit_code(), 0)

        karaoke.wait_until_ended()
        self.assert_ran_selectively(suite, RUNNING)
        self.assertEqual(suite.registered(), ["Vidalo Downloader", "Zebra Player"])
        self.assert_untouched(suite, PARTNER)
        self.assert_log(suite, START_OF_LOG + [BEGUN, warning(RUNNING)] +
                        suite.removal_log(RUNNING) + ["~Widget()"])

    def check_cancelled(self, key):
        suite = self.install([RUNNING, PARTNER, UNKNOWN])
        karaoke = self.start_application(suite, RUNNING)
        program = self.start_program(suite, rows=3)
        program.main_window.toggle_row(0)
        program.main_window.toggle_row(1)
        program.main_window.press_uninstall()
        program.wait_for_warning().press(key)
        self.assertEqual(program.exit_code(), 0)

        self.assertTrue(karaoke.running)
        for application in (RUNNING, PARTNER, UNKNOWN):
            self.assert_untouched(suite, application)
        self.assert_log(suite, START_OF_LOG + [
            BEGUN, warning(RUNNING), "changeItemsState: 0", "allApplicationsSelButtonClicked",
            "changeItemsState: 1", "~Widget()"])

    def test_cancel_on_the_first_removes_nothing_and_ends_the_program(self):
        self.check_cancelled("Escape")

    def test_closing_the_warning_is_a_cancel(self):
        self.check_cancelled("alt+F4")

    def test_cancel_in_a_full_run_spares_the_suite_too(self):
        suite = self.install([AWKWARD_FOLDER, RUNNING, SUITE, PARTNER])
        karaoke = self.start_application(suite, RUNNING)
        program = self.start_program(suite, rows=4)
        program.main_window.select_all()
        program.main_window.press_uninstall()
        program.wait_for_warning().press("Escape")
        self.assertEqual(program.exit_code(), 0)

        # Applications removed before the warning stay removed.
        self.assertTrue(karaoke.running)
        self.assert_arguments(suite, {
            AWKWARD_FOLDER: ["/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"]})
        for application in (RUNNING, SUITE, PARTNER):
            self.assert_untouched(suite, application)
        self.assert_log(suite, START_OF_LOG + [
            "allApplicationsSelButtonClicked", "changeItemsState: 1", BEGUN,
            *suite.removal_log(AWKWARD_FOLDER, "full"), warning(RUNNING), "changeItemsState: 0",
            "allApplicationsSelButtonClicked", "changeItemsState: 0", "~Widget()"])

    def test_two_warnings_appear_in_row_order(self):
        suite = self.install([RUNNING, SECOND_RUNNING, UNKNOWN])
        # Started in the other order.
        tuner = self.start_application(suite, SECOND_RUNNING)
        karaoke = self.start_application(suite, RUNNING)
        program = self.start_program(suite, rows=3)
        program.main_window.toggle_row(0)
        program.main_window.toggle_row(1)
        program.main_window.press_uninstall()
        self.assertEqual(program.attend({WARNING_TITLE: pressing("Return")}), [WARNING_TITLE] * 2)
        self.assertEqual(program.exit_code(), 0)

        karaoke.wait_until_ended()
        tuner.wait_until_ended()
        self.assert_ran_selectively(suite, RUNNING, SECOND_RUNNING)
        self.assert_log(suite, START_OF_LOG + [
            BEGUN, warning(RUNNING), *suite.removal_log(RUNNING), warning(SECOND_RUNNING),
            *suite.removal_log(SECOND_RUNNING), "~Widget()"])

    def test_cancel_on_the_second_keeps_what_follows(self):
        suite = self.install([AWKWARD_FOLDER, RUNNING, SECOND_RUNNING, UNKNOWN])
        self.start_application(suite, RUNNING)
        tuner = self.start_application(suite, SECOND_RUNNING)
        program = self.start_program(suite, rows=4)
        for row in (1, 2, 3):
            program.main_window.toggle_row(row)
        program.main_window.press_uninstall()
        program.wait_for_warning().press("Return")
        suite.records.wait_for_end(RUNNING.id_string)
        program.wait_for_warning().press("Escape")
        self.assertEqual(program.exit_code(), 0)

        self.assertTrue(tuner.running)
        self.assert_ran_selectively(suite, RUNNING)
        for application in (AWKWARD_FOLDER, SECOND_RUNNING, UNKNOWN):
            self.assert_untouched(suite, application)

    def test_the_suites_row_warns_about_applications_without_a_row(self):
        suite = self.install([SUITE, PARTNER])
        # Copied without an installer, so that neither a row nor a path is registered.
        folder = suite.folder(RUNNING)
        folder.mkdir()
        shutil.copy(layout.INSTALLERS / "sample_instance.exe", folder / RUNNING.process_name)
        karaoke = self.start_application(suite, RUNNING)
        program = self.start_program(suite, rows=2)
        program.main_window.select_all()
        program.main_window.press_uninstall()
        self.assertEqual(program.attend({WARNING_TITLE: pressing("Return")}), [WARNING_TITLE])
        self.assertEqual(program.exit_code(), 0)

        karaoke.wait_until_ended()
        self.assert_arguments(suite, {
            PARTNER: ["/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"],
            SUITE: ["/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/LASTAPP"]})
        # The suite's row is first in the list, its removal last in the run.
        self.assert_log(suite, START_OF_LOG + [
            "allApplicationsSelButtonClicked", "changeItemsState: 1", BEGUN, warning(RUNNING),
            *suite.removal_log(PARTNER, "full"), *suite.removal_log(SUITE, "full"), "~Widget()"])

    def test_the_slideshow_maker_is_never_warned_about(self):
        # The program looks for its mutex by the spaced name, which no instance uses.
        suite = self.install([SLIDESHOW, PARTNER])
        slideshow = self.start_application(suite, SLIDESHOW)
        program = self.start_program(suite, rows=2)
        program.main_window.toggle_row(0)
        program.main_window.press_uninstall()
        self.assertEqual(program.attend({WARNING_TITLE: pressing("Escape")}), [])
        self.assertEqual(program.exit_code(), 0)

        self.assertTrue(slideshow.running)
        self.assert_ran_selectively(suite, SLIDESHOW)

    def test_an_application_that_is_not_checked_is_left_running(self):
        suite = self.install([RUNNING, PARTNER])
        karaoke = self.start_application(suite, RUNNING)
        program = self.start_program(suite, rows=2)
        program.main_window.toggle_row(1)
        program.main_window.press_uninstall()
        self.assertEqual(program.attend({WARNING_TITLE: pressing("Escape")}), [])
        self.assertEqual(program.exit_code(), 0)

        self.assertTrue(karaoke.running)
        self.assert_untouched(suite, RUNNING)
        self.assert_removed(suite, PARTNER, with_settings=False)
