"""The packaged program, unpacked into a download folder."""

from pathlib import PureWindowsPath

from tests.harness.case import SuiteTestCase
from tests.harness.suite import START_OF_LOG
from tests.package.packing import only, pack_for_class, unpack
from tests.sample_suite.applications import AWKWARD_FOLDER, PARTNER, SECOND_RUNNING

# A blank, German letters, an en dash and Chinese letters: no ANSI code page has all of them.
FOLDER = PureWindowsPath("C:/users/Public/Größere Downloads – 卸载")


class PackagedProgram(SuiteTestCase):

    @classmethod
    def setUpClass(cls):
        cls.package = only(pack_for_class(cls), "*-windows-x64.zip")

    def unpacked_suite(self, chosen):
        suite = self.install(chosen)
        folder = unpack(self.package, self.prefix.unix_path(FOLDER))
        suite.program_folder = FOLDER / folder.name
        return suite

    def test_shows_its_window_and_closes_with_code_0(self):
        suite = self.unpacked_suite([])
        program = self.start_program(suite, rows=0)
        program.main_window.close()
        self.assertEqual(program.exit_code(), 0)
        self.assert_log(suite, [*START_OF_LOG, "~Widget()"])

    def test_removes_exactly_the_checked_applications(self):
        suite = self.unpacked_suite([AWKWARD_FOLDER, PARTNER, SECOND_RUNNING])
        self.remove_rows(suite, [0, 1], rows=3)

        chosen = [AWKWARD_FOLDER, PARTNER]
        self.assert_ran_selectively(suite, *chosen)
        for application in chosen:
            self.assert_removed(suite, application, with_settings=False)
        self.assert_untouched(suite, SECOND_RUNNING)
