"""Lists and names beyond what the suite's installers register."""

from tests.harness import probes
from tests.harness.case import SuiteTestCase
from tests.harness.main_window import VISIBLE_ROWS
from tests.harness.registry import Value
from tests.harness.suite import DETAILED_LOG, LIST_KEY, SELECTIVE
from tests.harness.waiting import wait_until

MANY = 500

# In the order of the list, by UTF-16 code units.
NAMES = [
    "Cafe\u0301 Player",         # with a combining accent
    "Caf\u00e9 Player",          # looks the same, precomposed
    "N" * 255,
    "\u05de\u05e1\u05d9\u05e8 Media 2026",                   # right to left, with digits and Latin
    "\u0645\u0634\u063a\u0651\u0644 \u0627\u0644\u0635\u0648\u062a",
    "\u202ereyalP oediV",       # right-to-left override
    "\U0001f3b5 Music",          # two code units
]
PRECOMPOSED = 1


class ListFaults(SuiteTestCase):
    """Each row's command has its own log switch, which identifies its run."""

    def setUp(self):
        super().setUp()
        self.suite = self.install([])
        probes.place_working(self.prefix, "works")

    def register(self, names):
        self.prefix.write_registry([
            Value(LIST_KEY, name, f"{probes.path('works')} {self.log_switch(number)}")
            for number, name in enumerate(names)])

    @staticmethod
    def log_switch(number):
        return probes.log_switch(f"row{number}")

    def assert_ran(self, *numbers):
        """The uninstallers of exactly these rows ran, in this order."""
        runs = self.suite.records.runs
        wait_until(lambda: len(runs("works")) >= len(numbers), "an uninstaller did not begin")
        self.assertEqual([run.arguments for run in runs("works")],
                         [[self.log_switch(number), *SELECTIVE] for number in numbers])

    def start(self, shown):
        return self.start_program(self.suite, rows=shown, environment=DETAILED_LOG)

    def end_run(self, program):
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)

    def test_five_hundred_rows_scroll_and_are_removed_by_choice(self):
        self.register([f"Application {number:03}" for number in range(MANY)])
        program = self.start(VISIBLE_ROWS)
        window = program.main_window
        window.select_all()
        window.press_in_list("End")
        window.wait_for_checked_rows([True] * VISIBLE_ROWS)  # also those that were out of sight
        window.press_select_button()
        window.wait_for_checked_rows([False] * VISIBLE_ROWS)
        window.toggle_row(VISIBLE_ROWS - 1)
        window.press_in_list("Home")
        window.wait_for_checked_rows([False] * VISIBLE_ROWS)
        window.toggle_row(0)
        window.toggle_row(3)
        window.toggle_delete_settings()
        self.end_run(program)
        self.assert_ran(0, 3, MANY - 1)
        self.assertEqual(len(self.suite.registered()), MANY)

    def test_names_in_any_script_lead_to_their_own_commands(self):
        self.register(NAMES)
        program = self.start(len(NAMES))
        chosen = [number for number in range(len(NAMES)) if number != PRECOMPOSED]
        for number in chosen:
            program.main_window.toggle_row(number)
        self.end_run(program)
        self.assert_ran(*chosen)

    def test_of_two_names_that_look_the_same_each_has_its_own_command(self):
        self.register(NAMES)
        program = self.start(len(NAMES))
        program.main_window.toggle_row(PRECOMPOSED)
        self.end_run(program)
        self.assert_ran(PRECOMPOSED)
