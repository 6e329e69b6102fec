"""Makes the harness, the sample suite's table and the stand-ins of the services importable; to be
imported before them."""

import sys
from pathlib import Path

_END_TO_END = Path(__file__).resolve().parents[1]
sys.path[:0] = [str(_END_TO_END), str(_END_TO_END / "stat")]

import harness  # noqa: E402,F401  (adds the sample suite)
