"""What the end-to-end tests and the demo share: a Wine prefix with the sample suite in it, the
program under test, and a person's hands on its window."""

import sys

from harness import layout

# The table of the sample applications lies with their installers' sources.
sys.path.insert(0, str(layout.SAMPLE_SUITE))
