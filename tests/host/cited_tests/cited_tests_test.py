"""The tests that docs/reliability.md cites exist."""

import re
import unittest

from tests.harness.layout import REPOSITORY

# A test of GoogleTest, with its suite or without, or a Python one without "test_"; "…" stands for
# any ending.
CITED = re.compile(r"`([A-Z]\w+(?:\.\w+)?|(?:[a-z0-9]+_)+…?\w*)`")
ENTRY = re.compile(r"(?:e2e|host|windows|package)_")


def cited(page: str) -> list:
    cells = [row.rstrip(" |").rpartition("|")[2] for row in page.splitlines()
             if row.startswith("| ")]
    return [name for cell in cells for name in CITED.findall(cell) if not ENTRY.match(name)]


def existing() -> set:
    names = set()
    for file in (REPOSITORY / "tests").rglob("*"):
        if file.suffix == ".py":
            names.update(re.findall(r"def (?:test_)?(\w+)\(self", file.read_text(encoding="utf-8")))
        elif file.suffix == ".cpp":
            for suite, name in re.findall(r"\bTEST(?:_[FP])?\((\w+),\s*(\w+)\)",
                                          file.read_text(encoding="utf-8")):
                names.update({name, f"{suite}.{name}"})
    return names


class CitedTests(unittest.TestCase):

    def test_exist(self):
        page = (REPOSITORY / "docs/reliability.md").read_text(encoding="utf-8")
        names = cited(page)
        self.assertGreater(len(names), 15)
        tests = existing()
        for name in names:
            with self.subTest(name=name):
                start = name.partition("…")[0]
                self.assertTrue(name in tests or (start != name and
                                                  any(test.startswith(start) for test in tests)))


if __name__ == "__main__":
    unittest.main()
