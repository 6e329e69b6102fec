"""The sample suite on one computer: its installers, its running applications, and the program."""

import shutil
import subprocess
from pathlib import Path, PureWindowsPath
from typing import Callable, Dict, Iterable, List, Optional, Sequence

from tests.harness import computers, layout, log_file, screen
from tests.harness.announced_program import AnnouncedProgram
from tests.harness.main_window import MainWindow
from tests.harness.prefix import Prefix
from tests.harness.records import Records
from tests.harness.registry import Tree
from tests.harness.waiting import PATIENCE, Timeout, wait_until
from tests.sample_suite.applications import SUITE, Application

COMPANY_BRAND = "Corvane"
PRODUCT_BRAND = "Lumacraft"
LIST_NAMES = {COMPANY_BRAND: "UninstallPaths", PRODUCT_BRAND: "UninstPaths"}
SUITE_KEY = "HKEY_CURRENT_USER\\Software\\Corvane"
# The product brand's list.
LIST_KEY = f"{SUITE_KEY}\\{LIST_NAMES[PRODUCT_BRAND]}"
PROGRAM_FILES = PureWindowsPath("C:/Program Files")

MAIN_TITLE = "Uninstall"
SURVEY_TITLE = "Uninstall .+"
OFFER_TITLE = "Tessera (Clip|Track) Saver"
WARNING_TITLE = "Uninstallation"

# The switches after the log switch in a selective run.
SELECTIVE = ["/SILENT", "/SUPPRESSMSGBOXES"]

# How long the program waits for an uninstaller, in seconds, and how much shorter or longer the times
# in its log may make that wait appear on a busy machine.
UNINSTALLER_WAIT = 2.0
EARLY, LATE = 0.05, 8.0

# Seconds for a run over the whole suite, with its windows, on a heavily loaded machine.
LONGEST_RUN = 3 * PATIENCE

# Variables that let the program log more than usual.
DETAILED_LOG = {"KEELBASE_LOG_LEVEL": "7"}

# The program's messages until its window appears.
START_OF_LOG = ["-->Widget::Widget()", "Try to fill list widget (runtime brand: Lumacraft)"]

# The settings of a suite in use. With a known location no survey asks a server for it.
COMMON_SETTINGS = "EventStatEnabled=0\nLanguage=en\nLocation=US\n"


class Suite:
    """`brand` is the one that the applications are installed under."""

    def __init__(self, prefix: Prefix, brand: str = PRODUCT_BRAND):
        self.prefix = prefix
        self.brand = brand
        self.records = Records(prefix)
        self.program_folder = PROGRAM_FILES / brand / SUITE.folder

    # Installing

    def install(self, chosen: Sequence[Application]) -> None:
        """Runs their installers. A missing computer is made as a copy of one on which they ran."""
        if self.prefix.exists:
            for application in chosen:
                computers.run_installer(self.prefix, application, self.brand)
        else:
            self.prefix.create(computers.with_installed(chosen, self.brand))
        self.write_common_settings(COMMON_SETTINGS.encode())

    def place_program(self, folder: Optional[PureWindowsPath] = None) -> None:
        """Copies the program to the suite's folder or to `folder`, from where it is then started."""
        self.program_folder = folder or self.program_folder
        target = self.prefix.unix_path(self.program_folder)
        target.mkdir(parents=True, exist_ok=True)
        shutil.copy(layout.PROGRAM, target / "Uninstall.exe")

    def write_common_settings(self, content: bytes) -> None:
        file = self.prefix.unix_path(self.prefix.settings / "common.cfg")
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)

    def damage(self, application: Application) -> None:
        """Removes the program folder by hand; what is registered stays."""
        shutil.rmtree(self.folder(application))

    # Paths

    def windows_folder(self, application: Application) -> PureWindowsPath:
        return PROGRAM_FILES / self.brand / application.folder

    def folder(self, application: Application) -> Path:
        return self.prefix.unix_path(self.windows_folder(application))

    def uninstaller(self, application: Application) -> str:
        return str(self.windows_folder(application) / "Uninst.exe")

    def settings_folder(self, application: Application) -> Path:
        return self.prefix.unix_path(self.prefix.settings / application.id_string)

    def log_switch(self, application: Application) -> str:
        return f"/log={self.prefix.logs}\\{application.id_string}_uninstall.log"

    def removal_log(self, application: Application, mode: str = "selective") -> List[str]:
        """The program's messages when it starts the application's uninstaller."""
        return [f"--> DoUninsstall: {mode}", f"DoUninsstall: {self.uninstaller(application)}"]

    def uninstall_log(self, application: Application) -> Path:
        return self.prefix.unix_path(
            self.prefix.logs / f"{application.id_string}_uninstall.log")

    def registry(self) -> Tree:
        return self.prefix.read_registry(SUITE_KEY)

    def registered(self) -> List[str]:
        """The display names in the brand's uninstall list, sorted."""
        return sorted(self.registry()[f"{SUITE_KEY}\\{LIST_NAMES[self.brand]}"])

    def log(self) -> List[log_file.Message]:
        """The program's log of all its runs; empty while there is none."""
        file = self.prefix.unix_path(self.prefix.logs / "Uninstall.log")
        return log_file.read(file) if file.exists() else []

    # Processes

    def start_application(self, application: Application) -> "RunningApplication":
        return RunningApplication(self, application)

    def start_program(self, *arguments: str, environment: Optional[Dict[str, str]] = None,
                      folder: Optional[Path] = None) -> "RunningProgram":
        """`folder` becomes the program's current folder."""
        return RunningProgram(self, arguments, environment, folder)


class RunningApplication:
    """A running application of the suite."""

    def __init__(self, suite: Suite, application: Application):
        self.application = application
        # It is ready once it holds its mutex.
        self.program = AnnouncedProgram(suite.prefix,
                                        suite.folder(application) / application.process_name)

    @property
    def running(self) -> bool:
        return self.program.process.poll() is None

    def wait_until_ended(self) -> None:
        wait_until(lambda: not self.running, f"{self.application.process_name} still runs")

    def stop(self) -> None:
        self.program.stop()


class RunningProgram:
    """One run of Uninstall.exe with its window."""

    def __init__(self, suite: Suite, arguments: Iterable[str],
                 environment: Optional[Dict[str, str]], folder: Optional[Path]):
        program = suite.prefix.unix_path(suite.program_folder) / "Uninstall.exe"
        self.process = suite.prefix.start(program, *arguments, environment=environment,
                                           cwd=folder)
        self.main_window = MainWindow(
            screen.wait_for_window(MAIN_TITLE, alive=[self.process]))

    @property
    def running(self) -> bool:
        return self.process.poll() is None

    def wait_for_warning(self) -> screen.Window:
        return screen.wait_for_window(WARNING_TITLE, alive=[self.process])

    def attend(self, answers: Dict[str, screen.Answer],
               meanwhile: Callable[[], None] = lambda: None) -> List[str]:
        """Answers windows until the program has ended. `answers` maps titles (regular expressions)
        to reactions that close such a window; `meanwhile` is called repeatedly. Returns the titles
        answered, in order."""
        answered: List[str] = []

        def gone(window: screen.Window) -> Callable[[], bool]:
            return lambda: not window.exists()

        def ended() -> bool:
            for title, answer in answers.items():
                for window in screen.find_windows(title):
                    answered.append(window.title)
                    answer(window)
                    wait_until(gone(window), f"'{answered[-1]}' did not close")
            meanwhile()
            return not self.running
        wait_until(ended, "the program did not end", LONGEST_RUN)
        return answered

    def press_escape_on_surveys(self) -> List[str]:
        """Closes every survey without an answer until the program has ended."""
        return self.attend({SURVEY_TITLE: screen.pressing("Escape")})

    def exit_code(self) -> int:
        """Waits for the program's end."""
        try:
            return self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired as error:
            raise Timeout("the program did not end") from error
