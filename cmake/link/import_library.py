"""Converts import libraries for lld's delayed imports.

lld delays only imports in the short form: a record with the names of a function and its DLL. MinGW's
import libraries hold an object file for each function instead. short_form() converts them.
"""

import struct
from typing import Dict, Iterator, List, NamedTuple

_ARCHIVE = b"!<arch>\n"
_MEMBER_HEADER = 60
_X86_64 = 0x8664
_FILE_HEADER = struct.Struct("<HHIIIHH")
_SECTION_HEADER = struct.Struct("<8sIIIIIIHHI")
_SYMBOL = struct.Struct("<8sIhHBB")
_SHORT_IMPORT = struct.Struct("<HHHHIIHH")
_BY_NAME = 1 << 2           # code, found in the DLL by the symbol's own name
_IMPORTED = b"__imp_"


class _Import(NamedTuple):
    symbol: bytes
    hint: int


def _members(archive: bytes) -> Iterator[bytes]:
    at = len(_ARCHIVE)
    while at + _MEMBER_HEADER <= len(archive):
        size = int(archive[at + 48:at + 58])
        yield archive[at + _MEMBER_HEADER:at + _MEMBER_HEADER + size]
        at += _MEMBER_HEADER + size + size % 2


def _sections(member: bytes) -> Dict[bytes, bytes]:
    _, count, _, _, _, optional, _ = _FILE_HEADER.unpack_from(member)
    sections = {}
    for index in range(count):
        name, _, _, size, at, *_ = _SECTION_HEADER.unpack_from(
            member, _FILE_HEADER.size + optional + index * _SECTION_HEADER.size)
        sections[name.rstrip(b"\0")] = member[at:at + size]
    return sections


def _imported_symbols(member: bytes) -> Iterator[bytes]:
    _, _, _, symbols, count, _, _ = _FILE_HEADER.unpack_from(member)
    strings = symbols + count * _SYMBOL.size
    for index in range(count):
        name, _, section, *_ = _SYMBOL.unpack_from(member, symbols + index * _SYMBOL.size)
        if name.startswith(b"\0\0\0\0"):
            begin = strings + struct.unpack("<I", name[4:])[0]
            name = member[begin:member.find(b"\0", begin)]
        name = name.rstrip(b"\0")
        if section > 0 and name.startswith(_IMPORTED):
            yield name[len(_IMPORTED):]


def _member(name: bytes, content: bytes) -> bytes:
    header = b"%-16s%-12d%-6d%-6d%-8s%-10d`\n" % (name, 0, 0, 0, b"644", len(content))
    return header + content + b"\n" * (len(content) % 2)


def _short_library(imports: List[_Import], dll: bytes) -> bytes:
    records = []
    for entry in imports:
        names = entry.symbol + b"\0" + dll + b"\0"
        records.append(_member(b"import/", _SHORT_IMPORT.pack(
            0, 0xFFFF, 0, _X86_64, 0, len(names), entry.hint, _BY_NAME) + names))
    names = b"".join(entry.symbol + b"\0" + _IMPORTED + entry.symbol + b"\0" for entry in imports)
    index_size = 4 + 2 * 4 * len(imports) + len(names)
    at = len(_ARCHIVE) + _MEMBER_HEADER + index_size + index_size % 2
    offsets = []
    for record in records:
        offsets += (at, at)
        at += len(record)
    index = struct.pack(f">I{len(offsets)}I", len(offsets), *offsets) + names
    return _ARCHIVE + _member(b"/", index) + b"".join(records)


def short_form(archive: bytes) -> bytes:
    """Converts a MinGW import library. Functions whose name in the DLL differs from their symbol are
    left out."""
    imports = []
    dll = b""
    for member in _members(archive):
        if len(member) < _FILE_HEADER.size or int.from_bytes(member[:2], "little") != _X86_64:
            continue
        sections = _sections(member)
        # Only the last member holds the DLL's name; the others refer to it.
        dll = sections.get(b".idata$7", b"").rstrip(b"\0") or dll
        entry = sections.get(b".idata$6", b"")
        for symbol in _imported_symbols(member):
            if entry[2:].rstrip(b"\0") == symbol:
                imports.append(_Import(symbol, int.from_bytes(entry[:2], "little")))
    return _short_library(imports, dll)
