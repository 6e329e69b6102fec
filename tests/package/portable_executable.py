"""Reads the headers of a 64-bit Windows program."""

import struct
from pathlib import Path
from typing import Dict, Iterator, List, Optional, Tuple

_CHARACTERISTICS = {"high entropy": 0x20, "dynamic base": 0x40, "no execution of data": 0x100}
_IMPORTS, _DELAYED = 1, 13        # entries of the table of directories
_BY_ORDINAL = 1 << 63


class Program:

    def __init__(self, file: Path):
        self._data = file.read_bytes()
        header, = self._unpack("<I", 0x3C)
        sections, = self._unpack("<H", header + 6)
        optional_size, = self._unpack("<H", header + 20)
        self._optional = header + 24
        self._sections = [self._unpack("<8xIIII", self._optional + optional_size + 40 * index)
                          for index in range(sections)]

    def _unpack(self, pattern: str, at: int) -> Tuple[int, ...]:
        return struct.unpack_from(pattern, self._data, at)

    def _offset(self, address: int) -> int:
        for _, begin, size, offset in self._sections:
            if begin <= address < begin + size:
                return address - begin + offset
        raise ValueError(f"nothing lies at {address:#x}")

    def _text(self, address: int) -> str:
        begin = self._offset(address)
        return self._data[begin:self._data.index(b"\0", begin)].decode()

    def protections(self) -> List[str]:
        flags, = self._unpack("<H", self._optional + 70)
        return [name for name, bit in _CHARACTERISTICS.items() if flags & bit]

    def _descriptors(self, directory: int, size: int) -> Iterator[Tuple[int, ...]]:
        address, = self._unpack("<I", self._optional + 112 + 8 * directory)
        while address:
            fields = self._unpack(f"<{size // 4}I", self._offset(address))
            if not any(fields):
                return
            yield fields
            address += size

    def _functions(self, table: int) -> List[str]:
        names = []
        at = self._offset(table)
        entry: Optional[int] = None
        while entry != 0:
            entry, = self._unpack("<Q", at)
            if entry & _BY_ORDINAL:
                names.append(f"#{entry & 0xFFFF}")
            elif entry:
                names.append(self._text(entry + 2))
            at += 8
        return names

    def imports(self) -> Dict[str, List[str]]:
        """The functions imported at the program's start, by library in lower case."""
        return {self._text(fields[3]).lower(): self._functions(fields[0])
                for fields in self._descriptors(_IMPORTS, 20)}

    def delayed_imports(self) -> Dict[str, List[str]]:
        """The same for libraries that are loaded on first use."""
        return {self._text(fields[1]).lower(): self._functions(fields[4])
                for fields in self._descriptors(_DELAYED, 32)}
