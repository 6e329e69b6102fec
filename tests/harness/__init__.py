"""Helpers of the end-to-end tests and the demo: a Wine prefix with the sample suite, the program
under test, and mouse and keyboard for its window."""
