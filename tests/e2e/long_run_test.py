"""A run over many applications whose uninstallers all take longer than they are waited for."""

import itertools
import shutil
import statistics
import subprocess
import time
from typing import Callable, List, NamedTuple, Set

from tests.harness import layout, screen
from tests.harness.case import SuiteTestCase
from tests.harness.main_window import VISIBLE_ROWS
from tests.harness.registry import Value
from tests.harness.suite import LIST_KEY, MAIN_TITLE, START_OF_LOG, RunningProgram, Suite
from tests.harness.waiting import PATIENCE
from tests.sample_suite.applications import SUITE

FOLDER = "C:\\Program Files\\Lumacraft\\Long run"

# The suite's row is in the middle of the list; its name sorts between the others'.
BEFORE_THE_SUITE = [f"Application{number:02}" for number in range(20)]
AFTER_THE_SUITE = [f"Video{number:02}" for number in range(9)]
IN_ORDER = [*BEFORE_THE_SUITE, *AFTER_THE_SUITE, SUITE.id_string]

WAIT = 2.0
# How far the log's two times of one wait may be from its length on a busy machine.
EARLY, LATE = 0.05, 8.0
# Sooner than the wait for one uninstaller ends, and than Windows calls a window hung (5 s).
LONGEST_ANSWER_MS = 1500
# No second start is put off until the run is over.
LONGEST_SECOND_START = 6.0
# Most are not even put off until a row's wait is over: they take hardly longer than before the run.
HARDLY = 0.8
# What the second starts log as well.
OF_EVERY_COPY = {*START_OF_LOG, "~Widget()"}
# While as many rows are left, the window still has time to be looked at.
LAST_LOOK = 3


class Watch(NamedTuple):
    """What window_watch.cpp counted."""
    asked: int
    unanswered: int
    hung: int
    longest_ms: int


class LongRun(SuiteTestCase):

    def setUp(self):
        super().setUp()
        self.suite = Suite(self.prefix)
        self.suite.install([])
        self.suite.place_program()
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
        """How many uninstallers have been started so far."""
        return len(self.suite.records.recorded())

    def start_watch(self) -> subprocess.Popen:
        watch = self.prefix.start(layout.WINE_TOOLS / "window_watch.exe", MAIN_TITLE,
                                  stdout=subprocess.PIPE, text=True)
        self.addCleanup(self._stop, watch)
        self.addCleanup(watch.stdout.close)
        self.assertEqual(watch.stdout.readline().strip(), "ready")
        return watch

    def second_start(self) -> float:
        """The seconds it takes."""
        begun = time.monotonic()
        self.prefix.run(self.prefix.unix_path(self.suite.program_folder) / "Uninstall.exe",
                        "/gethwnd")
        return time.monotonic() - begun

    def meddle(self, program: RunningProgram) -> List[float]:
        """Does all that a person might do about a window that is busy, and looks at it, until the
        run is nearly over. Returns how long the second starts took."""
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
        for gesture in itertools.cycle(gestures):
            gesture()
            if self.begun() > len(IN_ORDER) - LAST_LOOK:
                return second_starts
            self.assertTrue(program.running)
            self.assertEqual(screen.find_windows(MAIN_TITLE), [window.window])
            self.pictures.add(window.window.picture().points)
            rows = window.checked_rows()
            self.assertTrue(all(rows), rows)

    def test_stays_alive_for_the_person_and_for_the_system(self):
        program = self.start_program(self.suite, rows=VISIBLE_ROWS)
        program.main_window.select_all()
        program.main_window.toggle_delete_settings()
        watch = self.start_watch()
        before_the_run = statistics.median(self.second_start() for _ in range(3))
        program.main_window.press_uninstall()
        second_starts = self.meddle(program)
        self.assertEqual(program.exit_code(), 0)
        watched = Watch(*map(int, watch.communicate(timeout=PATIENCE)[0].split()))
        print(f"{watched}; second starts, s: {[round(taken, 2) for taken in second_starts]}; "
              f"{len(self.pictures)} pictures", flush=True)

        # Answered the system all along.
        self.assertGreater(watched.asked, len(IN_ORDER) * 5)
        self.assertEqual((watched.unanswered, watched.hung), (0, 0))
        self.assertLess(watched.longest_ms, LONGEST_ANSWER_MS)
        # Showed how the list became shorter.
        self.assertGreater(len(self.pictures), 10)
        # Answered other copies at once.
        self.assertGreater(len(second_starts), 1)
        self.assertLess(max(second_starts), LONGEST_SECOND_START)
        self.assertLess(statistics.median(second_starts), before_the_run + HARDLY)

        # Took no click: the log tells each gesture that the window acts on.
        messages = [message for message in self.suite.log()
                    if message.category == "MainForm" and message.text not in OF_EVERY_COPY]
        texts = [message.text for message in messages]
        run = texts.index("--> uninstallButtonClicked") + 1
        expected = []
        for name in IN_ORDER:
            expected += ["--> DoUninsstall: full", f"DoUninsstall: {self.command(name)}"]
        self.assertEqual(texts[run:], expected)
        # Gave each uninstaller its two seconds, and no more.
        times = [message.time for message in messages[run + 1::2]]
        waits = [(later - earlier).total_seconds() for earlier, later in zip(times, times[1:])]
        self.assertGreater(min(waits), WAIT - EARLY)
        self.assertLess(max(waits), WAIT + LATE)
        self.assertLess(statistics.median(waits), WAIT + 1)
        # None was ended when its wait was over.
        for name in IN_ORDER:
            self.assertEqual(self.suite.records.wait_for_end(name).exit_code, 0)
            self.assertEqual(len(self.suite.records.runs(name)), 1)
