"""The demo's computer: a Wine prefix with the whole sample suite, and tables of what is on it."""

import sys
from pathlib import Path
from typing import List

from demo.services import Services
from tests.harness import layout
from tests.harness.prefix import Prefix
from tests.harness.records import Run
from tests.harness.suite import LIST_NAMES, PRODUCT_BRAND, SUITE_KEY, RunningApplication, Suite
from tests.sample_suite.applications import ALL, DAMAGED, HOLDING, RUNNING, Application

FOLDER = layout.REPOSITORY / "build" / "demo"

# The suite's own order of the rows: the window shows them sorted by name.
ROWS: List[Application] = sorted(ALL, key=lambda application: application.display_name)


def heading(text: str) -> None:
    print(f"\n{text}\n{'-' * len(text)}", flush=True)


def table(rows: List[List[str]]) -> None:
    """Columns as wide as their longest cell; the last one runs on."""
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]) - 1)]
    for row in rows:
        cells = [cell.ljust(width) for cell, width in zip(row, widths)]
        print("  " + "  ".join([*cells, row[-1]]).rstrip(), flush=True)


class Computer:
    """Made anew each time; one application runs, and one has lost its program folder."""

    def __init__(self):
        if not layout.PROGRAM.exists():
            sys.exit(f"{layout.PROGRAM} is missing: run \"make demo\"")
        self.prefix = Prefix(FOLDER / "prefix")
        self.suite = Suite(self.prefix, PRODUCT_BRAND)
        self.running: RunningApplication
        self.services = Services()

    def set_up(self) -> None:
        print(f"Installing {len(ALL)} applications of the sample suite ...", flush=True)
        self.prefix.destroy()
        self.prefix.create()
        self.suite.install(ROWS)
        self.suite.place_program()
        self.suite.damage(DAMAGED)
        self.services.connect(self.suite)
        self.running = self.suite.start_application(RUNNING)

    def tear_down(self) -> None:
        """Ends what still runs; the files stay to be looked at."""
        self.prefix.end()
        self.services.end()

    def let_the_slow_one_finish(self) -> None:
        """Sees every uninstaller to its end. One of them is as slow as the person's patience; the
        program leaves that one running."""
        slow = [application for application in self._started()
                if application == HOLDING and self._run(application).exit_code is None]
        self.suite.records.release(HOLDING.id_string)
        for application in self._started():
            if application != DAMAGED:
                self.suite.records.wait_for_end(application.id_string)
        for application in slow:
            print(f"  {application.display_name} was still being removed when the program had "
                  "ended; it was left to finish by itself.")

    def _run(self, application: Application) -> Run:
        return self.suite.records.wait_for_begin(application.id_string)

    def _started(self) -> List[Application]:
        """In the order in which the program's log says that it started their uninstallers."""
        known = {f"DoUninsstall: {self.suite.uninstaller(application)}": application
                 for application in ROWS}
        return [known[message.text] for message in self.suite.log() if message.text in known]

    # Tables

    def show_state(self) -> None:
        """What of each application is registered and on disk."""
        registered = self.suite.registered()
        rows = [["application", "registered", "program files", "settings and history", "log"]]
        for application in ROWS:
            rows.append([application.display_name,
                         "yes" if application.display_name in registered else "-",
                         self._files(self.suite.folder(application)),
                         self._files(self.suite.settings_folder(application)),
                         "yes" if self.suite.uninstall_log(application).exists() else "-"])
        table(rows)
        if self.keeper_is_left():
            print(f"\n  {HOLDING.display_name}'s last file is its uninstaller, which the system "
                  "removes at its next start.")
        print(f"\n  {SUITE_KEY}:")
        for name, data in sorted(self.suite.registry()[SUITE_KEY].items()):
            print(f"    {name} = {data}")
        print(f"    {LIST_NAMES[self.suite.brand]}: {len(registered)} values")

    def keeper_is_left(self) -> bool:
        left = self.suite.folder(HOLDING)
        return [path.name for path in left.glob("*")] == ["Uninst.exe"]

    @staticmethod
    def _files(folder: Path) -> str:
        if not folder.exists():
            return "-"
        count = sum(1 for path in folder.rglob("*") if path.is_file())
        return f"{count} file" if count == 1 else f"{count} files"

    def show_commands(self) -> None:
        """What the suite's installers registered; the window lists these names."""
        commands = self.suite.registry()[f"{SUITE_KEY}\\{LIST_NAMES[self.suite.brand]}"]
        table([[name, str(command)] for name, command in sorted(commands.items())])

    def show_runs(self) -> None:
        """Which uninstallers were started, in order, and what each was given."""
        rows = [["application", "outcome", "received"]]
        for application in self._started():
            if application == DAMAGED:
                rows.append([application.display_name, "not found", ""])
                continue
            run = self._run(application)
            ending = "done" if run.exit_code == 0 else f"failed ({run.exit_code})"
            rows.append([application.display_name, ending, " ".join(run.arguments)])
        table(rows)

    def show_events(self) -> None:
        """What the local statistics service was told."""
        events = self.services.events()
        if not events:
            print("  none")
            return
        table([["number", "action", "what", "application", "version", "country"]]
              + [[event[member] for member in
                  ("event_number", "event_type", "src", "appid", "ver", "country_id")]
                 for event in events])
