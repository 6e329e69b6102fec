"""The text form in which regedit exports and imports parts of the registry."""

import re
from dataclasses import dataclass
from typing import Dict, Iterable, List, Union

REG_SZ = 1
REG_EXPAND_SZ = 2
REG_BINARY = 3
REG_DWORD = 4
REG_MULTI_SZ = 7

Data = Union[str, int, bytes]


@dataclass(frozen=True)
class Value:
    """One value. `data` is a str for REG_SZ, an int for REG_DWORD, otherwise the raw bytes."""
    key: str
    name: str
    data: Data
    kind: int = REG_SZ


class Tree(Dict[str, Dict[str, Data]]):
    """{key: {value name: data}}; a missing key reads as one without values."""

    def __missing__(self, key: str) -> Dict[str, Data]:
        return {}


def text_bytes(*texts: str) -> bytes:
    """The raw data of a text value (one text) or of a multi-text value (several, then "")."""
    return b"".join(text.encode("utf-16-le") + b"\0\0" for text in texts)


def _quote(text: str) -> str:
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def _unquote(text: str) -> str:
    return re.sub(r"\\(.)", r"\1", text, flags=re.DOTALL)


def serialise(values: Iterable[Value]) -> str:
    lines: List[str] = ["Windows Registry Editor Version 5.00", ""]
    for value in values:
        name = _quote(value.name) if value.name else "@"
        if value.kind == REG_SZ:
            data = _quote(value.data)
        elif value.kind == REG_DWORD:
            data = f"dword:{value.data:08x}"
        else:
            data = f"hex({value.kind:x}):" + ",".join(f"{byte:02x}" for byte in value.data)
        lines += [f"[{value.key}]", f"{name}={data}", ""]
    return "\r\n".join(lines) + "\r\n"


# The lines of an export: "[key]" and "name"=data, where @ is the default value's name. Backslashes
# escape quotes and themselves. Data is a quoted text, dword:..., hex:... or hex(type):...
_KEY = re.compile(r"\[(.*)\]$")
_VALUE = re.compile(r'(?:@|"((?:[^"\\]|\\.)*)")=(.*)$', re.DOTALL)
_TEXT = re.compile(r'"((?:[^"\\]|\\.)*)"$', re.DOTALL)
_HEX = re.compile(r"hex(?:\(([0-9a-f]+)\))?:(.*)$")


def _parse_data(text: str) -> Data:
    if match := _TEXT.match(text):
        return _unquote(match.group(1))
    if text.startswith("dword:"):
        return int(text[6:], 16)
    if match := _HEX.match(text):
        return bytes.fromhex(match.group(2).replace(",", " "))
    raise ValueError(f"not a registry value: {text!r}")


def parse(text: str) -> Tree:
    tree = Tree()
    key = ""
    # A backslash at a line's end joins it with the next one.
    for line in re.sub(r"\\\r?\n\s*", "", text).splitlines():
        if match := _KEY.match(line):
            key = match.group(1)
            tree[key] = {}
        elif match := _VALUE.match(line):
            tree[key][_unquote(match.group(1) or "")] = _parse_data(match.group(2))
    return tree
