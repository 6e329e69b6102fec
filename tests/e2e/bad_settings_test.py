"""A damaged common.cfg. The window shows whether its language was read."""

from tests.harness.case import SuiteTestCase
from tests.sample_suite.applications import PARTNER, UNKNOWN

LARGE = 50 * 1024 * 1024


class BadSettings(SuiteTestCase):

    def setUp(self):
        super().setUp()
        self.suite = self.install([PARTNER, UNKNOWN])
        self.common = self.prefix.unix_path(self.prefix.settings / "common.cfg")

    def pictures(self):
        """The window in English and in German."""
        self.suite.write_common_settings(b"Language=en\n")
        english = self.window_picture()
        self.suite.write_common_settings(b"Language=de\n")
        german = self.window_picture()
        self.assertNotEqual(english, german)
        return english, german

    def window_picture(self):
        program = self.start_program(self.suite, rows=2)
        picture = program.main_window.settled_picture()
        program.main_window.close()
        self.assertEqual(program.exit_code(), 0)
        return picture

    def test_is_read_line_by_line_whatever_else_it_holds(self):
        english, german = self.pictures()
        for name, content, expected in (
                ("no final line feed", b"Location=US\nLanguage=de", german),
                ("CR LF", b"Location=US\r\nLanguage=de\r\n", german),
                ("NULs at the end", b"Language=de\n" + b"\0" * 4096, german),
                ("NULs before", b"\0" * 4096 + b"Language=de\n", english),
                ("NULs only", b"\0" * 4096, english),
                ("nothing", b"", english),
                ("line feeds", b"\n" * 4096, english),
                ("no pairs", b"Language de\nLanguage\n", english),
                ("blanks", b"Language = de\n", english),
                ("two entries", b"Language=de\nLanguage=fr\n", german),
                ("unknown language", b"Language=xx\n", english),
                ("long language", b"Language=" + b"d" * 100_000, english),
                ("random bytes", bytes(range(256)) * 64 + b"\nLanguage=de\n", german),
                ("one long line", b"Language=de\n" + b"x" * 1_000_000, german)):
            with self.subTest(name):
                self.suite.write_common_settings(content)
                self.assertEqual(self.window_picture(), expected)

    def test_of_fifty_megabytes_is_read_to_its_end(self):
        _, german = self.pictures()
        line = b"Some%08d=" + b"v" * 50 + b"\n"
        filler = b"".join(line % number for number in range(LARGE // len(line % 0)))
        for name, content in (("pairs", filler), ("no pairs", b"x" * LARGE + b"\n")):
            with self.subTest(name):
                self.suite.write_common_settings(content + b"Language=de\n")
                self.assertEqual(self.window_picture(), german)

    def test_of_fifty_megabytes_of_nuls_counts_as_empty(self):
        english, _ = self.pictures()
        self.suite.write_common_settings(b"\0" * LARGE)
        self.assertEqual(self.window_picture(), english)

    def test_that_is_missing_or_a_folder_leaves_the_program_working(self):
        english, _ = self.pictures()
        self.common.unlink()
        self.assertEqual(self.window_picture(), english)
        self.common.mkdir()
        self.assertEqual(self.window_picture(), english)

        self.remove_rows(self.suite, [0], rows=2)
        self.assert_ran_selectively(self.suite, PARTNER)
        self.assertTrue(self.common.is_dir())
