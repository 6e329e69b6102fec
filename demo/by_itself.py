"""Drives the program through a full removal of the sample suite, on a screen of its own, and tells
what happened. Pictures go to build/demo/."""

import os
import signal
import sys

from demo import computer
from tests.harness import layout
from tests.harness.screen import Window, pressing, wait_for_window
from tests.harness.suite import OFFER_TITLE, SURVEY_TITLE, WARNING_TITLE
from tests.sample_suite.applications import HOLDING, RUNNING

# Set for the copy of this program that has the private screen.
ON_PRIVATE_SCREEN = "TESSERA_DEMO_ON_PRIVATE_SCREEN"
# In the exit survey.
MISSING_FEATURES = (244, 196)


class Demo:

    def __init__(self):
        self.computer = computer.Computer()
        self.suite = self.computer.suite
        self.pictures = []

    def picture(self, window: Window, name: str) -> None:
        """Taken once under each name. A new window shows what was below it until it is painted."""
        if name not in self.pictures:
            self.pictures.append(name)
            window.settled_picture()
            window.save(computer.FOLDER / f"{name}.png")

    def run(self) -> int:
        for old in computer.FOLDER.glob("*.png"):
            old.unlink()
        try:
            self.computer.set_up()
            return self.removal()
        finally:
            self.computer.tear_down()

    def removal(self) -> int:
        computer.heading("Registered by the installers, and so listed in the window")
        self.computer.show_commands()
        computer.heading("Before")
        self.computer.show_state()
        print(f"\n  {RUNNING.process_name} is running.")

        computer.heading("The run")
        program = self.suite.start_program()
        window = program.main_window
        for row in (0, 6):
            window.toggle_row(row)
        window.move_mouse_aside()
        self.picture(window.window, "main-window")
        window.select_all()
        window.move_mouse_aside()
        self.picture(window.window, "all-selected")
        print('  "Select all" was pressed, which also checks "Delete settings and history"; '
              'then "Uninstall".', flush=True)
        window.press_uninstall()

        def during_the_run() -> None:
            if self.suite.records.runs(HOLDING.id_string) and program.running:
                self.picture(window.window, "during-the-run")
        program.attend({SURVEY_TITLE: self.answer_survey, WARNING_TITLE: self.accept_warning},
                       during_the_run)
        code = program.exit_code()
        print(f"  The program ended with code {code}.")

        self.computer.let_the_slow_one_finish()
        computer.heading("The uninstallers, in the order in which they were started")
        self.computer.show_runs()
        computer.heading("After")
        self.computer.show_state()
        print(f"\n  {RUNNING.process_name} is "
              f"{'still running' if self.computer.running.running else 'not running any more'}.")
        print(f"\nPictures in {computer.FOLDER}: {', '.join(self.pictures)}")
        computer.heading("The events that the local statistics service received")
        self.computer.show_events()
        return code

    def answer_survey(self, survey: Window) -> None:
        """The first one is answered, which brings the offer; the second is declined."""
        title = survey.title
        if "survey" in self.pictures:
            print(f'  Survey "{title}": closed with Escape.')
            survey.press("Escape")
            return
        self.picture(survey, "survey")
        survey.click(*MISSING_FEATURES)
        offer = wait_for_window(OFFER_TITLE)
        self.picture(offer, "offer")
        print(f'  Survey "{title}": "Missing features"; the offer that followed was closed.')
        pressing("Escape")(offer)

    def accept_warning(self, warning: Window) -> None:
        self.picture(warning, "warning")
        print("  A warning that an application is running: OK.")
        pressing("Return")(warning)


def main() -> None:
    if ON_PRIVATE_SCREEN not in os.environ:
        environment = {**os.environ, ON_PRIVATE_SCREEN: "1"}
        environment.pop("DISPLAY", None)
        screen = str(layout.REPOSITORY / "tools" / "wine" / "with-display")
        os.execve(screen, [screen, sys.executable, *sys.orig_argv[1:]], environment)
    # Ctrl+C arrives as this signal, by way of with-display.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    sys.exit(Demo().run())


if __name__ == "__main__":
    main()
