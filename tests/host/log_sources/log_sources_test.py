"""What a line of the log says of its origin, and what docs/troubleshooting.md says of the line."""

import re
import unittest

from tests.harness.layout import REPOSITORY

CATEGORIES = {"MainForm", "IPC", "AppEventStat", "System"}
# A category and a place, as every message's origin is written.
ORIGIN = re.compile(r'\{"(\w*)", "((?:ui|support)/[^"]*)"\}')
FAILURE = re.compile(r'\blogFailure\([^;"]*(?:"[^"]*", "[^"]*"\}[^;"]*)?"(\w+)"')


def sources() -> dict:
    return {file: file.read_text(encoding="utf-8") for root in ("support", "ui")
            for file in (REPOSITORY / root).rglob("*") if file.suffix in (".h", ".cpp")}


class LogSources(unittest.TestCase):

    def test_have_a_known_category_and_a_place_that_exists(self):
        found = 0
        for file, text in sources().items():
            for category, place in ORIGIN.findall(text):
                found += 1
                with self.subTest(file=file.name, category=category, place=place):
                    self.assertIn(category, CATEGORIES)
                    # One file, or the Windows variant of it.
                    self.assertTrue(any((REPOSITORY / f"{place}{end}.cpp").exists()
                                        for end in ("", "_win")))
        self.assertGreater(found, 10)

    def test_failed_calls_are_in_the_troubleshooting_guide(self):
        guide = (REPOSITORY / "docs/troubleshooting.md").read_text(encoding="utf-8")
        calls = {call for text in sources().values() for call in FAILURE.findall(text)}
        self.assertGreater(len(calls), 10)
        self.assertEqual({call for call in calls if not re.search(rf"`{call}\b", guide)}, set())


if __name__ == "__main__":
    unittest.main()
