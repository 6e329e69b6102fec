"""What the end-to-end tests and the demo share: a Wine prefix with the sample suite in it, the
program under test, and a person's hands on its window."""
