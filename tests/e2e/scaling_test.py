"""The window at 100, 125, 150 and 200 percent."""

from tests.harness.case import SuiteTestCase


class Scaling(SuiteTestCase):

    def test_grows_the_window_by_the_exact_factor(self):
        suite = self.install([])
        for dpi, size in ((96, (379, 305)), (120, (474, 381)), (144, (569, 458)),
                          (192, (758, 610))):
            with self.subTest(dpi=dpi):
                program = self.start_program(suite, environment={"WINE_RUN_DPI": str(dpi)})
                picture = program.main_window.window.picture()
                self.assertEqual((picture.width, picture.height), size)
                program.main_window.close()
                self.assertEqual(program.exit_code(), 0)
