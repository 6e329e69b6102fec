"""A run over many applications whose uninstallers all take longer than the program waits."""

import itertools
import shutil
import statistics
import time
from typing import Callable, List, NamedTuple, Set

from tests.harness import layout, screen
from tests.harness.announced_program import AnnouncedProgram
from tests.harness.case import SuiteTestCase
from tests.harness.main_window import VISIBLE_ROWS
from tests.harness.registry import Value
from tests.harness.suite import (EARLY, LATE, LIST_KEY, MAIN_TITLE, START_OF_LOG,
                                 UNINSTALLER_WAIT, RunningProgram)
from tests.harness.waiting import PATIENCE, wait_until
from tests.sample_suite.applications import SUITE

FOLDER = "C:\\Program Files\\Lumacraft\\Long run"

# The suite's row is in the middle of the sorted list.
BEFORE_THE_SUITE = [f"Application{number:02}" for number in range(20)]
AFTER_THE_SUITE = [f"Video{number:02}" for number in range(9)]
IN_ORDER = [*BEFORE_THE_SUITE, *AFTER_THE_SUITE, SUITE.id_string]

# A window that does not answer during the waits answers late once for each uninstaller. A busy
# machine may make a few answers late.
MOST_LATE_ANSWERS = len(IN_ORDER) // 4
# Seconds. No second start waits for the end of the run, which takes a minute.
LONGEST_SECOND_START = 20.0
# Messages that second starts log as well.
OF_EVERY_COPY = {*START_OF_LOG, "~Widget()"}
# The window is used while at least this many rows remain, whose waits outlast the last second start.
LAST_ROWS = 10


class Watch(NamedTuple):
    """The counts of window_watch.cpp."""
    asked: int
    unanswered: int
    hung: int
    late: int
    longest_ms: int


class LongRun(SuiteTestCase):

    def setUp(self):
        super().setUp()
        self.suite = self.install([])
        folder = self.prefix.unix_path(FOLDER)
        folder.mkdir(parents=True)
        values = []
        for name in IN_ORDER:
            shutil.copy(layout.WINE_TOOLS / "lingering_uninstaller.exe", folder / f"{name}.exe")
            shown = SUITE.display_name if name == SUITE.id_string else name
            values.append(Value(LIST_KEY, shown, f"{self.command(name)} {self.log_switch(name)}"))
        self.prefix.write_registry(values)

    @staticmethod
    def command(name: str) -> str:
        return f"{FOLDER}\\{name}.exe"

    @staticmethod
    def log_switch(name: str) -> str:
        return f"/log=C:\\logs\\{name}_uninstall.log"

    def begun(self) -> int:
        """The number of uninstallers started so far."""
        return len(self.suite.records.recorded())

    def start_watch(self) -> AnnouncedProgram:
        watch = AnnouncedProgram(self.prefix, layout.WINE_TOOLS / "window_watch.exe", MAIN_TITLE)
        self.addCleanup(watch.stop)
        return watch

    def second_start(self) -> float:
        """Returns the seconds it takes."""
        begun = time.monotonic()
        self.prefix.run(self.prefix.unix_path(self.suite.program_folder) / "Uninstall.exe",
                        "/gethwnd")
        return time.monotonic() - begun

    def use_busy_window(self, program: RunningProgram) -> List[float]:
        """Clicks, presses keys and starts second copies, and checks that the window stays the same,
        until the run is nearly over. Returns the durations of the second starts."""
        window = program.main_window
        second_starts: List[float] = []
        gestures: List[Callable[[], object]] = [
            lambda: window.window.click(20, 60),  # a row's check box
            window.press_select_button,
            lambda: second_starts.append(self.second_start()),
            window.press_uninstall,
            window.close,
            lambda: window.window.press("space"),
        ]
        self.pictures: Set[bytes] = set()
        wait_until(self.begun, "the run did not begin")
        for gesture in itertools.cycle(gestures):
            gesture()
            self.pictures.add(window.settled_picture().points)
            if self.begun() > len(IN_ORDER) - LAST_ROWS:
                return second_starts
            self.assertTrue(program.running)
            self.assertEqual(screen.find_windows(MAIN_TITLE), [window.window])
            rows = window.checked_rows()
            self.assertTrue(all(rows), rows)

    def test_keeps_the_window_responsive_and_starts_every_uninstaller_once(self):
        program = self.start_program(self.suite, rows=VISIBLE_ROWS)
        program.main_window.select_all()
        program.main_window.toggle_delete_settings()
        watch = self.start_watch()
        program.main_window.press_uninstall()
        second_starts = self.use_busy_window(program)
        self.assertEqual(program.exit_code(), 0)
        watch.process.wait(PATIENCE)
        watched = Watch(*map(int, watch.lines()[1].split()))
        print(f"{watched}; second starts, s: {[round(taken, 2) for taken in second_starts]}; "
              f"{len(self.pictures)} pictures", flush=True)

        # The window answered the system at all times.
        self.assertGreater(watched.asked, len(IN_ORDER) * 5)
        self.assertEqual((watched.unanswered, watched.hung), (0, 0))
        self.assertLess(watched.late, MOST_LATE_ANSWERS, watched)
        # It showed the list becoming shorter.
        self.assertGreater(len(self.pictures), 10)
        # It answered other copies during the run.
        self.assertGreater(len(second_starts), 1)
        self.assertLess(max(second_starts), LONGEST_SECOND_START)

        # It ignored clicks and keys: the log names each one that the window acts on.
        messages = [message for message in self.suite.log()
                    if message.category == "MainForm" and message.text not in OF_EVERY_COPY]
        texts = [message.text for message in messages]
        run = texts.index("--> uninstallButtonClicked") + 1
        expected = []
        for name in IN_ORDER:
            expected += ["--> DoUninsstall: full", f"DoUninsstall: {self.command(name)}"]
        self.assertEqual(texts[run:], expected)
        # It waited for each uninstaller as long as it should.
        times = [message.time for message in messages[run + 1::2]]
        waits = [(later - earlier).total_seconds() for earlier, later in zip(times, times[1:])]
        self.assertGreater(min(waits), UNINSTALLER_WAIT - EARLY)
        self.assertLess(max(waits), UNINSTALLER_WAIT + LATE)
        self.assertLess(statistics.median(waits), UNINSTALLER_WAIT + 1)
        # Every uninstaller ran to its end.
        for name in IN_ORDER:
            self.assertEqual(self.suite.records.wait_for_end(name).exit_code, 0)
            self.assertEqual(len(self.suite.records.runs(name)), 1)
