"""Runs over uninstallers that misbehave: the others run nevertheless."""

import subprocess
from datetime import datetime

from tests.harness import probes, processes
from tests.harness.case import SuiteTestCase
from tests.harness.registry import Value
from tests.harness.suite import (DETAILED_LOG, EARLY, LATE, LIST_KEY, SELECTIVE,
                                 UNINSTALLER_WAIT)
from tests.harness.waiting import wait_until
from tests.sample_suite.applications import SUITE

FULL = [*SELECTIVE, "/DISABLEREDIRECT"]
# Seconds in which the program goes on after an uninstaller's end, however long its start took.
NOTICED_END = UNINSTALLER_WAIT * 3 / 4
NOT_STARTED = "DoUninsstall: not started: Process failed to start: "


class UninstallerFaults(SuiteTestCase):

    def install_rows(self, names, applications=()):
        """Registers a row "<number> <probe>" for each probe; they precede those of applications."""
        self.suite = self.install(applications)
        self.prefix.write_registry([
            Value(LIST_KEY, f"{number} {name}", probes.command(name))
            for number, name in enumerate(names)])

    def remove_all_but_the_last(self, rows):
        self.remove_rows(self.suite, range(rows - 1), rows, DETAILED_LOG)

    def texts(self):
        return [message.text for message in self.suite.log() if message.category == "MainForm"]

    def removals(self):
        """The log after the press of "Uninstall"."""
        texts = self.texts()
        return texts[texts.index("--> uninstallButtonClicked") + 1:]

    def time_of(self, text):
        return next(message.time for message in self.suite.log() if message.text == text)

    def seconds_of_wait(self, name):
        """From the start of this uninstaller to that of "works"."""
        started, went_on = (self.time_of(f"DoUninsstall: {probes.path(each)}")
                            for each in (name, "works"))
        return (went_on - started).total_seconds()

    def seconds_after_end(self, name):
        """From the probe's record, which it writes last, to the start of "works". Negative when the
        two seconds were over earlier."""
        ended = datetime.fromtimestamp(self.suite.records.file(name).stat().st_mtime)
        return (self.time_of(f"DoUninsstall: {probes.path('works')}") - ended).total_seconds()

    @staticmethod
    def selective(*names):
        """The log's lines for these probes in a selective run."""
        return [line for name in names
                for line in ("--> DoUninsstall: selective", f"DoUninsstall: {probes.path(name)}")]

    def check_selective(self, place, name, started=True):
        """Removes the probe and one that works, and leaves a third one unchecked."""
        place(self.prefix, name)
        probes.place_working(self.prefix, "works")
        self.install_rows([name, "works", "stays"])
        self.remove_all_but_the_last(3)
        runs = {"works": [probes.log_switch("works"), *SELECTIVE]}
        if started:
            runs[name] = [probes.log_switch(name), *SELECTIVE]
        self.assert_recorded(self.suite, runs)
        # Probes do not remove their registration.
        self.assertEqual(self.suite.registered(), [f"0 {name}", "1 works", "2 stays"])

    def test_one_that_hangs_is_left_behind_after_two_seconds(self):
        self.check_selective(probes.place_misbehaving, "hangs")
        self.assertEqual(self.removals(), [*self.selective("hangs", "works"), "~Widget()"])
        self.assertGreater(self.seconds_of_wait("hangs"), UNINSTALLER_WAIT - EARLY)
        self.assertLess(self.seconds_of_wait("hangs"), UNINSTALLER_WAIT + LATE)
        self.assertTrue(processes.running(self.prefix, probes.path("hangs")))

    def test_one_that_crashes_counts_as_ended(self):
        self.check_selective(probes.place_misbehaving, "crashes")
        self.assertEqual(self.removals(), [*self.selective("crashes", "works"), "~Widget()"])
        wait_until(lambda: not processes.running(self.prefix, probes.path("crashes")),
                   "the probe that crashed still runs")
        self.assertLess(self.seconds_after_end("crashes"), NOTICED_END)
        with self.assertRaises(subprocess.CalledProcessError):  # the probe really crashes
            self.prefix.run(probes.path("crashes"))

    def test_the_child_of_one_that_ended_is_not_waited_for(self):
        self.check_selective(probes.place_misbehaving, "hands_over")
        self.assertEqual(self.removals(), [*self.selective("hands_over", "works"), "~Widget()"])
        self.assertLess(self.seconds_after_end("hands_over"), NOTICED_END)
        # The program has ended; the child completes its work.
        self.suite.records.release("hands_over")
        self.assertEqual(self.suite.records.wait_for_end("hands_over").exit_code, 0)

    def check_not_started(self, place, reason):
        self.check_selective(place, "broken", started=False)
        self.assertEqual(self.removals(), [
            *self.selective("broken"), NOT_STARTED + reason, *self.selective("works"), "~Widget()"])
        self.assertLess(self.seconds_of_wait("broken"), UNINSTALLER_WAIT - EARLY)

    def test_one_that_is_missing_is_reported_in_the_detailed_log(self):
        self.check_not_started(lambda prefix, name: None, "File not found.")

    def test_one_that_is_no_program_is_reported_in_the_detailed_log(self):
        # Wine has no text for error 193.
        self.check_not_started(probes.place_text, "Unknown error 0x000000c1.")

    def test_one_that_needs_elevation_is_reported_in_the_detailed_log(self):
        # process_shim.dll refuses as Windows does.
        self.check_not_started(probes.place_elevated, "Unknown error 0x000002e4.")

    def test_a_full_run_over_all_of_them_reaches_the_suite(self):
        names = ["crashes", "elevated", "hands_over", "hangs", "missing", "text", "works"]
        for name in ("crashes", "hands_over", "hangs"):
            probes.place_misbehaving(self.prefix, name)
        probes.place_elevated(self.prefix, "elevated")
        probes.place_text(self.prefix, "text")
        probes.place_working(self.prefix, "works")
        self.install_rows(names, [SUITE])
        program = self.start_program(self.suite, rows=8, environment=DETAILED_LOG)
        program.main_window.select_all()
        program.main_window.toggle_delete_settings()
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

        self.assert_recorded(self.suite, {
            "crashes": FULL, "hands_over": FULL, "hangs": FULL,
            "works": [probes.log_switch("works"), *FULL],
            SUITE.id_string: [self.suite.log_switch(SUITE), *SELECTIVE, "/LASTAPP"]})
        self.suite.records.release("hands_over")
        self.suite.records.wait_for_end("hands_over")
        lines = []
        for name in names:
            lines += ["--> DoUninsstall: full", f"DoUninsstall: {probes.path(name)}"]
            if name in ("elevated", "missing", "text"):
                lines.append(NOT_STARTED)
        lines += ["--> DoUninsstall: full", f"DoUninsstall: {self.suite.uninstaller(SUITE)}",
                  "~Widget()"]
        self.assertEqual([NOT_STARTED if text.startswith(NOT_STARTED) else text
                          for text in self.removals()], lines)
        self.assert_removed(self.suite, SUITE, with_settings=False)

    def test_one_that_deletes_the_registry_key_keeps_later_ones_from_starting(self):
        probes.place_misbehaving(self.prefix, "drops_key")
        probes.place_working(self.prefix, "works")
        self.install_rows(["works", "drops_key", "works", "stays"])
        self.remove_all_but_the_last(4)
        self.assert_recorded(self.suite, {
            "works": [probes.log_switch("works"), *SELECTIVE],
            "drops_key": [probes.log_switch("drops_key"), *SELECTIVE]})
        self.assertEqual(self.removals(), [*self.selective("works", "drops_key"),
                                           "--> DoUninsstall: selective", "~Widget()"])
        self.assertEqual(self.suite.registry(), {})

    def test_one_that_deletes_the_registry_key_in_a_full_run_spares_the_suite_too(self):
        probes.place_misbehaving(self.prefix, "drops_key")
        probes.place_working(self.prefix, "works")
        self.install_rows(["drops_key", "works"], [SUITE])
        program = self.start_program(self.suite, rows=3, environment=DETAILED_LOG)
        program.main_window.select_all()
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

        self.assert_recorded(self.suite, {
            "drops_key": ["/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"]})
        # Without its command the suite's row counts as an ordinary one; the last step finds no suite.
        self.assertEqual(self.removals(), [
            "--> DoUninsstall: full", f"DoUninsstall: {probes.path('drops_key')}",
            *["--> DoUninsstall: full"] * 3, "~Widget()"])
        self.assertEqual(self.suite.registry(), {})
        self.assert_untouched_on_disk(SUITE)

    def assert_untouched_on_disk(self, application):
        self.assertTrue((self.suite.folder(application) / "Uninst.exe").exists())
        self.assertTrue(self.suite.settings_folder(application).exists())
