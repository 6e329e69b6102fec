"""A common.cfg that something has damaged. The language that it holds shows in the window."""

from tests.harness.case import SuiteTestCase
from tests.sample_suite.applications import PARTNER, UNKNOWN

LARGE = 50 * 1024 * 1024


class BadSettings(SuiteTestCase):

    def setUp(self):
        super().setUp()
        self.suite = self.install([PARTNER, UNKNOWN])
        self.common = self.prefix.unix_path(self.prefix.settings / "common.cfg")

    def faces(self):
        """What the window looks like in English and in German."""
        self.suite.write_common_settings(b"Language=en\n")
        english = self.face()
        self.suite.write_common_settings(b"Language=de\n")
        german = self.face()
        self.assertNotEqual(english, german)
        return english, german

    def face(self):
        program = self.start_program(self.suite, rows=2)
        picture = program.main_window.settled_picture()
        program.main_window.close()
        self.assertEqual(program.exit_code(), 0)
        return picture

    def test_is_read_as_far_as_it_is_one(self):
        english, german = self.faces()
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
                self.assertEqual(self.face(), expected)

    def test_of_fifty_megabytes_is_read_whole(self):
        _, german = self.faces()
        line = b"Some%08d=" + b"v" * 50 + b"\n"
        filler = b"".join(line % number for number in range(LARGE // len(line % 0)))
        for name, content in (("pairs", filler), ("no pairs", b"x" * LARGE + b"\n")):
            with self.subTest(name):
                self.suite.write_common_settings(content + b"Language=de\n")
                self.assertEqual(self.face(), german)

    def test_of_fifty_megabytes_of_nuls_is_empty(self):
        english, _ = self.faces()
        self.suite.write_common_settings(b"\0" * LARGE)
        self.assertEqual(self.face(), english)

    def test_that_is_missing_or_a_folder_leaves_everything_working(self):
        english, _ = self.faces()
        self.common.unlink()
        self.assertEqual(self.face(), english)
        self.common.mkdir()
        self.assertEqual(self.face(), english)

        self.remove_rows(self.suite, [0], rows=2)
        self.assert_ran_selectively(self.suite, PARTNER)
        self.assertTrue(self.common.is_dir())
