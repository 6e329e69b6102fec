"""The program's start: its command line, and starts without anything to remove."""

from tests.harness import screen
from tests.harness.case import SuiteTestCase
from tests.harness.shown_windows import ShownWindows
from tests.harness.suite import MAIN_TITLE, PRODUCT_BRAND, START_OF_LOG, Suite
from tests.sample_suite.applications import AWKWARD_FOLDER, CLIP_SAVER, PARTNER, SLIDESHOW

ROWS = [AWKWARD_FOLDER, CLIP_SAVER, SLIDESHOW, PARTNER]


class Preselection(SuiteTestCase):

    def test_uninstall_removes_exactly_the_named_application(self):
        suite = self.install(ROWS)
        program = self.start_program(suite, "/app", "VidaloDownloader", rows=4)
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

        self.assert_ran_selectively(suite, PARTNER)
        self.assert_removed(suite, PARTNER, with_settings=False)
        for application in (AWKWARD_FOLDER, CLIP_SAVER, SLIDESHOW):
            self.assert_untouched(suite, application)

    def test_finds_a_surveyed_application_by_its_name_in_the_list(self):
        suite = self.install(ROWS)
        program = self.start_program(suite, "/app", "ClipSaver", rows=4)
        program.main_window.press_uninstall()
        self.assertEqual(program.press_escape_on_surveys(), ["Uninstall Tessera Clip Saver"])
        self.assertEqual(program.exit_code(), 0)

        self.assert_ran_selectively(suite, CLIP_SAVER)
        self.assert_untouched(suite, PARTNER)

    def test_follows_the_rules_of_the_switch(self):
        suite = self.install(ROWS)
        nothing = [False] * 4
        only_beat_grid = [True, False, False, False]
        only_vidalo = [False, False, False, True]
        for arguments, expected in (
                (["/app", "VidaloDownloader", "/app", "BeatGrid"], only_beat_grid),
                (["/app", "/app", "BeatGrid"], only_beat_grid),
                (["/other", "BeatGrid", "/app", "VidaloDownloader", "more"], only_vidalo),
                (["/app", "VidaloDownloader", "/app"], nothing),
                (["/app"], nothing),
                (["/app", "WaveTuner"], nothing),
                (["/app", "ZebraPlayer"], nothing),
                (["/app", "beatgrid"], nothing),
                (["/app", "Beat Grid"], nothing),
                (["/app", "PhotoStoryAndSlideshow"], nothing),
                (["/APP", "BeatGrid"], nothing),
                (["-app", "BeatGrid"], nothing),
                (["/app=BeatGrid"], nothing),
                (["BeatGrid"], nothing)):
            with self.subTest(arguments=arguments):
                program = self.start_program(suite, *arguments, rows=4)
                self.assertEqual(program.main_window.checked_rows(), expected)
                # The button is disabled, so nothing happens.
                if not any(expected):
                    program.main_window.press_uninstall()
                program.main_window.close()
                self.assertEqual(program.exit_code(), 0)
        self.assertNotIn("--> uninstallButtonClicked", [message.text for message in suite.log()])
        self.assertEqual(suite.records.recorded(), [])


class Start(SuiteTestCase):

    def test_with_an_empty_list_shows_a_window_without_active_buttons(self):
        suite = self.install([])
        program = self.start_program(suite, rows=0)
        program.main_window.press_select_button()
        program.main_window.settled_picture()
        program.main_window.press_uninstall()
        program.main_window.settled_picture()
        program.main_window.close()
        self.assertEqual(program.exit_code(), 0)
        self.assertFalse(any(suite.registry().values()))
        self.assert_log(suite, [*START_OF_LOG, "~Widget()"])

    def test_on_a_computer_without_anything_of_the_suite_works(self):
        suite = Suite(self.prefix, PRODUCT_BRAND)
        suite.place_program()
        program = self.start_program(suite, rows=0)
        program.main_window.close()
        self.assertEqual(program.exit_code(), 0)

    def test_of_a_second_copy_shows_no_window(self):
        suite = self.install([PARTNER])
        program_file = suite.prefix.unix_path(suite.program_folder) / "Uninstall.exe"
        with ShownWindows() as shown:
            first = self.start_program(suite, rows=1)
            self.assertNotEqual(shown.since_last_call(), [])
            for arguments in ([], ["/app", "VidaloDownloader"]):
                suite.prefix.run(program_file, *arguments)
                self.assertEqual(shown.since_last_call(), [])
        self.assertEqual(screen.find_windows(MAIN_TITLE), [first.main_window.window])
        self.assertTrue(first.running)
        first.main_window.close()
        self.assertEqual(first.exit_code(), 0)

    def test_without_a_usable_log_folder_still_removes_applications(self):
        suite = self.install([PARTNER, AWKWARD_FOLDER])
        logs = suite.prefix.unix_path(suite.prefix.logs)
        logs.rmdir()
        logs.write_bytes(b"in the way")
        self.remove_rows(suite, [1], rows=2)
        self.assert_ran_selectively(suite, PARTNER)
        self.assertEqual(logs.read_bytes(), b"in the way")

    def test_with_logging_switched_off_writes_no_log(self):
        suite = self.install([PARTNER])
        program = self.start_program(suite, rows=1, environment={"KEELBASE_LOG_LEVEL": "0"})
        program.main_window.close()
        self.assertEqual(program.exit_code(), 0)
        self.assertFalse(suite.prefix.unix_path(suite.prefix.logs / "Uninstall.log").exists())
