"""The program's log: <settings folder>\\logs\\Uninstall.log."""

import re
from dataclasses import dataclass
from datetime import datetime
from pathlib import Path
from typing import List, Optional

_LINE = re.compile(
    r"(?P<time>\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3}) (?P<process>\d+):\d+ "
    r"(?P<level>\d) (?P<category>\S+) (?P<source>\S+):(?P<line>\d+) \| (?P<text>.*)$")


@dataclass(frozen=True)
class Message:
    time: datetime  # local
    level: int
    category: str
    source: str
    line: int
    text: str


def read(file: Path) -> List[Message]:
    """Every message, oldest first; a line of another shape is an error."""
    messages = []
    for line in file.read_text(encoding="utf-8").splitlines():
        match: Optional[re.Match] = _LINE.match(line)
        if match is None:
            raise ValueError(f"not a log line: {line!r}")
        messages.append(Message(datetime.fromisoformat(match["time"]), int(match["level"]),
                                match["category"], match["source"], int(match["line"]),
                                match["text"]))
    return messages
