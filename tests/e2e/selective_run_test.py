"""Runs that keep at least one application."""

from tests.harness.case import SuiteTestCase
from tests.harness.suite import EARLY, LATE, SUITE_KEY, UNINSTALLER_WAIT
from tests.sample_suite.applications import (AWKWARD_FOLDER, CLIP_SAVER, DAMAGED, FAILING,
                                             FAILURE_CODE, HOLDING, PARTNER, SECOND_RUNNING,
                                             SLIDESHOW, SUITE, TRACK_SAVER, UNKNOWN)


class SelectiveRun(SuiteTestCase):

    def test_removes_exactly_the_checked_applications(self):
        suite = self.install([AWKWARD_FOLDER, SLIDESHOW, PARTNER, SECOND_RUNNING, UNKNOWN])
        self.remove_rows(suite, [0, 1, 4], rows=5)

        chosen = [AWKWARD_FOLDER, SLIDESHOW, UNKNOWN]
        self.assert_ran_selectively(suite, *chosen)
        for application in chosen:
            self.assert_removed(suite, application, with_settings=False)
            self.assertTrue(suite.uninstall_log(application).exists())
        for application in (PARTNER, SECOND_RUNNING):
            self.assert_untouched(suite, application)
        self.assertEqual(suite.registered(), ["Vidalo Downloader", "Wave Tuner"])
        self.assertNotIn("UninstallMode", suite.registry()[SUITE_KEY])
        self.assert_selective_log(suite, *chosen)

    def test_delete_settings_and_history_adds_its_switch_and_keeps_the_log_switch(self):
        suite = self.install([PARTNER, SECOND_RUNNING, UNKNOWN])
        program = self.start_program(suite, rows=3)
        program.main_window.toggle_row(0)
        program.main_window.toggle_row(2)
        program.main_window.toggle_delete_settings()
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

        self.assert_arguments(suite, {
            application: [suite.log_switch(application), "/SILENT", "/FULL", "/SUPPRESSMSGBOXES"]
            for application in (PARTNER, UNKNOWN)})
        self.assert_removed(suite, PARTNER, with_settings=True)
        self.assert_removed(suite, UNKNOWN, with_settings=True)
        self.assert_untouched(suite, SECOND_RUNNING)
        self.assertNotIn("UninstallMode", suite.registry()[SUITE_KEY])

    def test_shows_one_survey_for_each_surveyed_application(self):
        suite = self.install([CLIP_SAVER, TRACK_SAVER, PARTNER])
        program = self.start_program(suite, rows=3)
        program.main_window.toggle_row(0)
        program.main_window.toggle_row(1)
        program.main_window.press_uninstall()
        surveys = program.press_escape_on_surveys()
        self.assertEqual(program.exit_code(), 0)

        self.assertEqual(surveys, ["Uninstall Tessera Clip Saver",
                                   "Uninstall Tessera Track Saver"])
        self.assert_ran_selectively(suite, CLIP_SAVER, TRACK_SAVER)
        self.assert_removed(suite, CLIP_SAVER, with_settings=False)
        self.assert_removed(suite, TRACK_SAVER, with_settings=False)
        self.assert_untouched(suite, PARTNER)

    def test_continues_after_an_uninstaller_that_is_missing(self):
        suite = self.install([DAMAGED, PARTNER, UNKNOWN])
        suite.damage(DAMAGED)
        self.remove_rows(suite, [0, 1], rows=3)

        self.assert_ran_selectively(suite, PARTNER)
        self.assertEqual(suite.registered(), ["Light Table", "Zebra Player"])
        self.assert_selective_log(suite, DAMAGED, PARTNER)

    def test_continues_after_an_uninstaller_that_fails(self):
        suite = self.install([FAILING, PARTNER, UNKNOWN])
        self.remove_rows(suite, [0, 1], rows=3)

        self.assert_ran_selectively(suite, FAILING, PARTNER)
        self.assertEqual(suite.records.runs(FAILING.id_string)[0].exit_code, FAILURE_CODE)
        self.assertTrue((suite.folder(FAILING) / FAILING.process_name).exists())
        self.assert_removed(suite, PARTNER, with_settings=False)
        self.assertEqual(suite.registered(), ["Codec Doctor", "Zebra Player"])

    def test_waits_two_seconds_for_an_uninstaller_and_leaves_it_running(self):
        suite = self.install([HOLDING, PARTNER, UNKNOWN])
        self.remove_rows(suite, [0, 1], rows=3)

        # The program has ended; the slow uninstaller still runs.
        held = suite.records.wait_for_begin(HOLDING.id_string)
        self.assertIsNone(held.exit_code)
        self.assertTrue((suite.folder(HOLDING) / HOLDING.process_name).exists())
        times = {message.text: message.time for message in suite.log()}
        waited = (times[f"DoUninsstall: {suite.uninstaller(PARTNER)}"] -
                  times[f"DoUninsstall: {suite.uninstaller(HOLDING)}"]).total_seconds()
        self.assertGreater(waited, UNINSTALLER_WAIT - EARLY)
        self.assertLess(waited, UNINSTALLER_WAIT + LATE)

        suite.records.release(HOLDING.id_string)
        self.assert_ran_selectively(suite, HOLDING, PARTNER)
        self.assertEqual(suite.records.runs(HOLDING.id_string)[0].exit_code, 0)
        self.assertFalse((suite.folder(HOLDING) / HOLDING.process_name).exists())
        self.assertEqual(suite.registered(), ["Zebra Player"])

    def test_keeps_the_suite_when_only_its_own_row_is_unchecked_again(self):
        suite = self.install([AWKWARD_FOLDER, SUITE, PARTNER])
        program = self.start_program(suite, rows=3)
        program.main_window.toggle_row(1)
        program.main_window.toggle_row(1)
        program.main_window.wait_for_checked_rows([True, False, True])
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

        chosen = [AWKWARD_FOLDER, PARTNER]
        self.assert_ran_selectively(suite, *chosen)
        self.assert_untouched(suite, SUITE)
        self.assert_selective_log(suite, *chosen)

    def test_with_only_the_suites_row_checked_removes_nothing(self):
        suite = self.install([AWKWARD_FOLDER, SUITE, PARTNER])
        # Pre-selection does not check the other rows.
        program = self.start_program(suite, "/app", "Tessera", rows=3)
        program.main_window.wait_for_checked_rows([False, True, False])
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

        for application in (AWKWARD_FOLDER, SUITE, PARTNER):
            self.assert_untouched(suite, application)
        self.assert_selective_log(suite)
