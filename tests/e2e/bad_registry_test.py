"""Uninstall lists with contents that no installer of the suite writes."""

from tests.harness import probes
from tests.harness.case import SuiteTestCase
from tests.harness.registry import (REG_BINARY, REG_DWORD, REG_EXPAND_SZ, REG_MULTI_SZ, Value,
                                    text_bytes)
from tests.harness.suite import LIST_KEY, SELECTIVE, SUITE_KEY
from tests.sample_suite.applications import PARTNER, RUNNING

# With the other switches added, Windows still starts a command of this length.
LONG = 30_000
LONGEST_VALUE_NAME = 16_383


class BadRegistry(SuiteTestCase):
    """The commands name copies of a program that records its arguments."""

    def setUp(self):
        super().setUp()
        self.suite = self.install([])

    def place_probe(self, name):
        """Returns its Windows path."""
        return probes.place_working(self.prefix, name)

    def remove(self, checked, rows):
        self.remove_rows(self.suite, checked, rows)

    def assert_probes(self, expected):
        """Exactly these probes ran, once each, with these arguments."""
        self.assert_recorded(self.suite, expected)

    def test_unusual_commands_run_if_they_name_a_program(self):
        no_switch = self.place_probe("no_switch")
        no_folder = self.place_probe("no_folder")
        quoted = self.place_probe("quoted")
        quotes_later = self.place_probe("quotes_later")
        two_switches = self.place_probe("two_switches")
        other_case = self.place_probe("other_case")
        long = self.place_probe("long")
        long_log = "=C:\\logs\\Long_uninstall" + "x" * LONG
        commands = [
            no_switch,
            f"{no_folder} /log=C:\\old_uninstall.log",
            f'"{quoted}" /log=C:\\logs\\Quoted_uninstall.log',
            f'{quotes_later} /log="C:\\my logs\\Quotes_uninstall.log"',
            f"{two_switches} /log=C:\\first /log=C:\\logs\\Two_uninstall.log",
            f"{other_case} /LOG=C:\\logs\\Case_uninstall.log",
            f"{long} /log{long_log}",
            "/log=C:\\logs\\Nothing_uninstall.log",
        ]
        self.prefix.write_registry([Value(LIST_KEY, f"{number} command", command)
                                    for number, command in enumerate(commands)] +
                                   [Value(LIST_KEY, "stays", no_switch)])
        self.remove(range(len(commands)), rows=len(commands) + 1)
        self.assert_probes({
            "no_switch": [f"/log{no_switch}", *SELECTIVE],
            "no_folder": ["/log=C:\\old_uninstall.log", *SELECTIVE],
            "quoted": ["/log=C:\\logs\\Quoted_uninstall.log", *SELECTIVE],
            "quotes_later": ['/log="C:\\my logs\\Quotes_uninstall.log"', *SELECTIVE],
            "two_switches": ["/log=C:\\logs\\Two_uninstall.log", *SELECTIVE],
            "long": [f"/log{long_log}", *SELECTIVE],
        })

    def test_a_program_that_is_not_found_is_skipped_however_long_its_name(self):
        probe = self.place_probe("after")
        self.prefix.write_registry([
            Value(LIST_KEY, "1 long program", "C:\\" + "p" * LONG),
            Value(LIST_KEY, "2 long path", "C:\\" + "p\\" * (LONG // 2) + "x.exe /log=C:\\logs\\L"),
            Value(LIST_KEY, "3 good", f"{probe} /log=C:\\logs\\After_uninstall.log"),
            Value(LIST_KEY, "4 empty", ""),
            Value(LIST_KEY, "5 blank", " "),
            Value(LIST_KEY, "6 stays", probe)])
        self.remove(range(5), rows=6)
        self.assert_probes({"after": ["/log=C:\\logs\\After_uninstall.log", *SELECTIVE]})

    def test_values_that_are_not_text_run_nothing(self):
        command = self.place_probe("command") + " /log=C:\\logs\\Command_uninstall.log"
        last = self.place_probe("last") + " /log=C:\\logs\\Last_uninstall.log"
        self.prefix.write_registry([
            Value(LIST_KEY, "1 number", 5, REG_DWORD),
            Value(LIST_KEY, "2 bytes", b"\0\xff\x80", REG_BINARY),
            Value(LIST_KEY, "3 no bytes", b"", REG_BINARY),
            Value(LIST_KEY, "4 texts", text_bytes(command, command, ""), REG_MULTI_SZ),
            Value(LIST_KEY, "5 unexpanded", text_bytes("%SystemDrive%" + command[2:]),
                  REG_EXPAND_SZ),
            Value(LIST_KEY, "6 text", last),
            Value(LIST_KEY, "7 stays", command)])
        self.remove(range(6), rows=7)
        self.assert_probes({"last": ["/log=C:\\logs\\Last_uninstall.log", *SELECTIVE]})

    def test_unusual_value_names_are_rows_like_others(self):
        names = ["", "n" * LONGEST_VALUE_NAME, "100 %20 percent", "Übergröße 節拍", "with/slash"]
        programs = ["empty", "huge", "percent", "letters", "slash"]
        values = [Value(LIST_KEY, name, self.place_probe(program) + " /log=C:\\logs\\Some_uninstall")
                  for name, program in zip(names, programs)]
        self.prefix.write_registry(values + [Value(LIST_KEY, "~ stays", "C:\\nothing.exe")])
        # The rows are sorted; "~ stays" comes before the accented letter.
        self.remove([0, 1, 2, 3, 5], rows=6)
        self.assert_probes({program: ["/log=C:\\logs\\Some_uninstall", *SELECTIVE]
                            for program in programs})

    def test_a_value_name_with_a_backslash_has_a_row_without_a_command(self):
        # QSettings reads the name as the path of another key, which does not exist.
        self.prefix.write_registry([
            Value(LIST_KEY, "a\\b", self.place_probe("backslash") + " /log=C:\\logs\\B_uninstall"),
            Value(LIST_KEY, "stays", "C:\\nothing.exe")])
        self.remove([0], rows=2)
        self.assert_probes({})

    def test_a_damaged_install_path_leaves_the_warning_working(self):
        self.suite.install([RUNNING, PARTNER])
        self.prefix.write_registry([
            Value(f"{SUITE_KEY}\\AppPaths", RUNNING.id_string, b"\0\1", REG_BINARY)])
        karaoke = self.start_application(self.suite, RUNNING)
        program = self.start_program(self.suite, rows=2)
        program.main_window.toggle_row(0)
        program.main_window.press_uninstall()
        program.wait_for_warning().press("Return")
        self.assertEqual(program.exit_code(), 0)
        karaoke.wait_until_ended()
        self.assert_probes({RUNNING.id_string: [self.suite.log_switch(RUNNING), *SELECTIVE]})
