"""Which brand's list the program reads: the folder's name decides, otherwise global.cfg."""

from pathlib import PureWindowsPath

from tests.harness.case import SuiteTestCase
from tests.harness.suite import COMPANY_BRAND, PRODUCT_BRAND, PROGRAM_FILES, Suite
from tests.sample_suite.applications import AWKWARD_FOLDER, PARTNER, SUITE, UNKNOWN

# Different numbers of applications, so that the lists differ.
ROWS = {COMPANY_BRAND: 1, PRODUCT_BRAND: 2}


class Brand(SuiteTestCase):

    def install_both(self):
        """One application of the company brand and two of the product brand."""
        company = Suite(self.prefix, COMPANY_BRAND)
        company.install([PARTNER])
        product = Suite(self.prefix, PRODUCT_BRAND)
        product.install([AWKWARD_FOLDER, UNKNOWN])
        return company, product

    def check_brand(self, folder, expected, global_settings=None):
        """The program started in `folder` shows the expected brand's list."""
        suite = Suite(self.prefix, expected)
        suite.place_program(PureWindowsPath(folder))
        beside = self.prefix.unix_path(suite.program_folder.parent) / "global.cfg"
        beside.unlink(missing_ok=True)
        if global_settings is not None:
            beside.write_bytes(global_settings)
        # Its own folder is current, as when it is started by a double click.
        program = self.start_program(suite,
                                     folder=self.prefix.unix_path(suite.program_folder))
        # Logged before the window is shown.
        logged = [message.text for message in suite.log()
                  if message.text.startswith("Try to fill list widget")]
        self.assertEqual(logged[-1], f"Try to fill list widget (runtime brand: {expected})")
        program.main_window.wait_for_rows(ROWS[expected])
        program.main_window.close()
        self.assertEqual(program.exit_code(), 0)

    def check_removal(self, suite, application):
        self.remove_rows(suite, [0], rows=ROWS[suite.brand])
        self.assert_removed(suite, application, with_settings=False)

    def test_by_the_company_folder(self):
        company, product = self.install_both()
        company.place_program()
        self.check_removal(company, PARTNER)
        self.assertEqual(company.registered(), [])
        self.assertEqual(product.registered(), ["Beat Grid", "Zebra Player"])

    def test_by_the_product_folder(self):
        company, product = self.install_both()
        product.place_program()
        self.check_removal(product, AWKWARD_FOLDER)
        self.assertEqual(company.registered(), ["Vidalo Downloader"])
        self.assertEqual(product.registered(), ["Zebra Player"])

    def test_by_global_settings_removes_from_that_brands_list(self):
        company, product = self.install_both()
        company.place_program(PROGRAM_FILES / "Media Suite" / SUITE.folder)
        settings = self.prefix.unix_path(PROGRAM_FILES / "Media Suite" / "global.cfg")
        settings.write_bytes(b"CompanyBrandMode=1\r\n")
        self.check_removal(company, PARTNER)
        self.assertEqual(company.registered(), [])
        self.assertEqual(product.registered(), ["Beat Grid", "Zebra Player"])

    def test_company_has_the_same_full_run(self):
        suite = self.install([SUITE, PARTNER], COMPANY_BRAND)
        program = self.start_program(suite, rows=2)
        program.main_window.select_all()
        program.main_window.press_uninstall()
        self.assertEqual(program.exit_code(), 0)
        self.assert_arguments(suite, {
            PARTNER: ["/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/DISABLEREDIRECT"],
            SUITE: ["/SILENT", "/FULL", "/SUPPRESSMSGBOXES", "/LASTAPP"]})
        self.assertEqual(suite.registered(), [])

    def test_by_global_settings_follows_their_lenient_rules(self):
        self.install_both()
        neutral = PROGRAM_FILES / "Übliche Suite 節拍" / "Tessera"
        for content, expected in (
                (None, PRODUCT_BRAND),
                (b"", PRODUCT_BRAND),
                (b"CompanyBrandMode=1", COMPANY_BRAND),
                (b"CompanyBrandMode=0\n", PRODUCT_BRAND),
                (b"CompanyBrandMode = 1 \r\n", COMPANY_BRAND),
                (b"CompanyBrandMode\t=\t1\t\r\n", COMPANY_BRAND),
                (b"CompanyBrandMode=01\n", PRODUCT_BRAND),
                (b" CompanyBrandMode=1\n", PRODUCT_BRAND),
                (b"companybrandmode=1\n", PRODUCT_BRAND),
                (b"no pair\nOther=1\nCompanyBrandMode=1\n", COMPANY_BRAND),
                (b"CompanyBrandMode=0\nCompanyBrandMode=1\n", PRODUCT_BRAND),
                (b"CompanyBrandMode=\nCompanyBrandMode=1\n", PRODUCT_BRAND)):
            with self.subTest(content=content):
                self.check_brand(neutral, expected, content)

    def test_by_global_settings_in_the_root_of_a_drive(self):
        self.install_both()
        self.check_brand("C:/Tessera", PRODUCT_BRAND)
        self.check_brand("C:/Tessera", COMPANY_BRAND, b"CompanyBrandMode=1\n")

    def test_by_folder_name_wins_over_global_settings_and_is_exact(self):
        self.install_both()
        opposite = {COMPANY_BRAND: b"CompanyBrandMode=0\n", PRODUCT_BRAND: b"CompanyBrandMode=1\n"}
        for brand, content in opposite.items():
            with self.subTest(brand=brand):
                self.check_brand(PROGRAM_FILES / brand / "Tessera", brand, content)
        for folder in ("corvane", "CORVANE", "Corvane 2", "lumacraft"):
            with self.subTest(folder=folder):
                self.check_brand(f"C:/{folder}/Tessera", PRODUCT_BRAND, b"CompanyBrandMode=0\n")
                self.check_brand(f"C:/{folder}/Tessera", COMPANY_BRAND, b"CompanyBrandMode=1\n")
