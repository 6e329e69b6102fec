"""A folder includes only from the folders that its entry here allows."""

import re
import unittest

from tests.harness.layout import REPOSITORY

# Each folder with those that it may include from, besides itself.
SYSTEM = ["support/win32", "support/keelbase", "ui/common/sys"]
CONFIG = [*SYSTEM, "ui/common/config"]
STATISTICS = [*CONFIG, "support/netpull", "ui/common/stat"]
PRODUCT = [*STATISTICS, "ui/common/lang", "ui/uninstall/src", "ui/uninstall/resources"]
ALLOWED = {
    "support/win32": [],
    "support/keelbase": ["support/win32"],
    "support/netpull": [],
    "ui/common/sys": SYSTEM,
    "ui/common/config": SYSTEM,
    "ui/common/lang": [],
    "ui/common/stat": STATISTICS,
    "ui/uninstall/src": PRODUCT,
    "ui/uninstall/resources": [],
    "tests": [*PRODUCT, "tests"],
    "bench": [*PRODUCT, "tests", "bench"],
    "tools": [*PRODUCT, "tests", "tools"],
}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+/[^"]+)"', re.MULTILINE)


def folder_of(path: str) -> str:
    return max((folder for folder in ALLOWED if path.startswith(folder + "/")), key=len,
               default="")


def wrong_includes(path: str, text: str) -> list:
    folder = folder_of(path)
    return [f"{path} includes {included}" for included in INCLUDE.findall(text)
            if folder_of(included) not in [folder, *ALLOWED.get(folder, [])]]


def sources() -> list:
    return [file for root in ("support", "ui", "tests", "bench", "tools")
            for file in (REPOSITORY / root).rglob("*")
            if file.suffix in (".h", ".c", ".cpp")]


class IncludeDirections(unittest.TestCase):

    def test_every_include_is_allowed(self):
        files = sources()
        self.assertGreater(len(files), 100)
        wrong = []
        for file in files:
            path = file.relative_to(REPOSITORY).as_posix()
            wrong += wrong_includes(path, file.read_text(encoding="utf-8"))
        self.assertEqual(wrong, [])

    def test_forbidden_includes_are_found(self):
        planted = {
            "support/keelbase/log.cpp": "ui/common/sys/folders.h",
            "ui/common/sys/folders.cpp": "ui/uninstall/src/app_catalogue.h",
            "ui/common/stat/guid.cpp": "ui/uninstall/src/app_catalogue.h",
            "ui/uninstall/src/widget.cpp": "tests/support/lines.h",
            "tests/host/a_test.cpp": "tools/wine/launcher.h",
            "ui/common/config/config.cpp": "somewhere/else.h",
        }
        for path, included in planted.items():
            with self.subTest(path=path):
                self.assertEqual(wrong_includes(path, f'#include "{included}"\n'),
                                 [f"{path} includes {included}"])


if __name__ == "__main__":
    unittest.main()
