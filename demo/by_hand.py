"""Installs the sample suite on a computer of its own (a Wine prefix below build/demo/) and opens
the program's window for the person at the screen. Tells afterwards what happened."""

import sys

from demo import computer


def main() -> None:
    demo = computer.Computer()
    try:
        demo.set_up()
        computer.heading("Before")
        demo.show_state()
        print(f"\n  {computer.RUNNING.process_name} is running. The window is yours.", flush=True)
        program = demo.suite.start_program()
        code = program.process.wait()
        demo.let_the_slow_one_finish()
        computer.heading("The uninstallers that were started")
        demo.show_runs()
        computer.heading("After")
        demo.show_state()
        computer.heading("The events that the local statistics service received")
        demo.show_events()
        print(f"\nThe program ended with code {code}. The computer is in {demo.prefix.folder}.")
    finally:
        demo.tear_down()
    sys.exit(code)


if __name__ == "__main__":
    main()
