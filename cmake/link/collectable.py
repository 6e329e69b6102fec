"""Lets the linker leave unused functions and data out of a program.

GCC's -ffunction-sections gives every function a section of its own, but for Windows these sections
are ordinary ones, and the linkers keep every ordinary section of a linked object file: the unwind
table refers to each function, and nothing tells that an entry is the function's own. Here such a
section becomes a COMDAT section, and its unwind data become associated with it. lld drops COMDAT
sections that nothing refers to, with what is associated with them.

Only flags and the order of symbols change; everything stays in its place.
"""

import struct
from typing import Dict, Iterator, List, NamedTuple, Set, Tuple

_ARCHIVE = b"!<arch>\n"
_MEMBER_HEADER = 60
_X86_64 = 0x8664

_FILE_HEADER = struct.Struct("<HHIIIHH")
_SECTION_HEADER = struct.Struct("<8sIIIIIIHHI")
_SYMBOL = struct.Struct("<8sIhHBB")
_RELOCATION = 10                    # bytes: address, symbol, type
_INDEX = struct.Struct("<I")

_COMDAT = 0x1000                    # section flags
_MANY_RELOCATIONS = 0x01000000
_EXTERNAL, _STATIC, _WEAK_EXTERNAL = 2, 3, 105   # storage classes
_NO_DUPLICATES, _ASSOCIATIVE = 1, 5              # COMDAT selections

# The compiler's sections for one function or variable: these, and more behind a "$".
_CONTENTS = (b".text", b".rdata", b".data", b".bss")
_UNWIND_TABLE = b".pdata"
_UNWIND_INFORMATION = b".xdata"


class _Section(NamedTuple):
    name: bytes
    header: int                     # offsets in the buffer
    relocations: int
    relocation_count: int
    flags: int


class _Object:
    """One object file that begins at an offset of a buffer."""

    def __init__(self, data: bytearray, start: int):
        self._data = data
        (_, count, _, symbols, self._symbol_count, optional,
         _) = _FILE_HEADER.unpack_from(data, start)
        self._symbols_at = start + symbols
        self._strings_at = self._symbols_at + self._symbol_count * _SYMBOL.size
        self._sections: Dict[int, _Section] = {}
        for number in range(1, count + 1):
            header = start + _FILE_HEADER.size + optional + (number - 1) * _SECTION_HEADER.size
            (name, _, _, _, _, relocations, _, relocation_count, _,
             flags) = _SECTION_HEADER.unpack_from(data, header)
            self._sections[number] = _Section(self._name(name), header, start + relocations,
                                              relocation_count, flags)

    def _name(self, field: bytes) -> bytes:
        if not field.startswith(b"/"):
            return field.rstrip(b"\0")
        begin = self._strings_at + int(field[1:].rstrip(b"\0"))
        return bytes(self._data[begin:self._data.index(b"\0", begin)])

    def _symbols(self) -> Iterator[Tuple[int, tuple]]:
        """Index and fields of each, without the auxiliary records."""
        index = 0
        while index < self._symbol_count:
            fields = _SYMBOL.unpack_from(self._data, self._symbols_at + index * _SYMBOL.size)
            yield index, fields
            index += 1 + fields[5]

    def _relocations(self, section: _Section) -> range:
        """Their offsets."""
        count, skipped = section.relocation_count, 0
        if section.flags & _MANY_RELOCATIONS and count == 0xFFFF:
            # The first one holds the count instead, itself included.
            count, = _INDEX.unpack_from(self._data, section.relocations)
            skipped = 1
        return range(section.relocations + skipped * _RELOCATION,
                     section.relocations + count * _RELOCATION, _RELOCATION)

    def _target(self, relocation: int) -> int:
        """The section of the symbol that is referred to; 0 and less: none here."""
        index, = _INDEX.unpack_from(self._data, relocation + 4)
        return _SYMBOL.unpack_from(self._data, self._symbols_at + index * _SYMBOL.size)[2]

    def make_collectable(self) -> None:
        ordinary = {number: section for number, section in self._sections.items()
                    if not section.flags & _COMDAT}
        led = self._led_sections()
        collectable = set()
        for number, section in ordinary.items():
            kind, _, own = section.name.partition(b"$")
            if own and kind.startswith(_CONTENTS) and number in led:
                collectable.add(number)
        if not collectable:
            return
        definitions = self._definitions_first()
        collectable &= definitions.keys()
        for number in collectable:
            self._mark(number, definitions, _NO_DUPLICATES, 0)
        for number, section in ordinary.items():
            if section.name.startswith(_UNWIND_TABLE) and number in definitions:
                self._associate(number, definitions, collectable)

    def _led_sections(self) -> Set[int]:
        """Those that hold a symbol besides the one that stands for the section."""
        seen: Set[int] = set()
        led: Set[int] = set()
        for _, (_, _, number, _, storage, _) in self._symbols():
            if number > 0 and storage in (_STATIC, _EXTERNAL):
                (led if number in seen else seen).add(number)
        return led

    def _definitions_first(self) -> Dict[int, int]:
        """Moves the symbols that stand for sections to the front, since a COMDAT section's must
        come before its others. Returns where their auxiliary records are then."""
        first: List[int] = []
        rest: List[int] = []
        definitions: Dict[int, int] = {}
        for index, (_, value, number, _, storage, auxiliary) in self._symbols():
            if number > 0 and storage == _STATIC and auxiliary == 1 and value == 0 and \
                    number not in definitions:
                definitions[number] = self._symbols_at + (len(first) + 1) * _SYMBOL.size
                first += (index, index + 1)
            else:
                rest += range(index, index + 1 + auxiliary)
        self._reorder(first + rest)
        return definitions

    def _reorder(self, order: List[int]) -> None:
        size = _SYMBOL.size
        table = bytes(self._data[self._symbols_at:self._strings_at])
        self._data[self._symbols_at:self._strings_at] = b"".join(
            [table[index * size:(index + 1) * size] for index in order])
        moved = [0] * len(order)
        for place, index in enumerate(order):
            moved[index] = place
        references = [at + 4 for section in self._sections.values()
                      for at in self._relocations(section)]
        references += [self._symbols_at + (index + 1) * size
                       for index, fields in self._symbols()
                       if fields[4] == _WEAK_EXTERNAL and fields[5] > 0]
        for at in references:
            _INDEX.pack_into(self._data, at, moved[_INDEX.unpack_from(self._data, at)[0]])

    def _associate(self, number: int, definitions: Dict[int, int], collectable: Set[int]) -> None:
        """An entry of the unwind table goes with its function, and so does the information that it
        refers to: three relocations for each entry, begin, end, information."""
        targets = [self._target(at) for at in self._relocations(self._sections[number])]
        functions = set(targets[0::3]) | set(targets[1::3])
        if len(targets) % 3 != 0 or len(functions) != 1 or not functions <= collectable:
            return
        function = functions.pop()
        self._mark(number, definitions, _ASSOCIATIVE, function)
        for information in set(targets[2::3]) & definitions.keys():
            if self._sections[information].name.startswith(_UNWIND_INFORMATION + b"$"):
                self._mark(information, definitions, _ASSOCIATIVE, function)

    def _mark(self, number: int, definitions: Dict[int, int], selection: int,
              associated: int) -> None:
        section = self._sections[number]
        _INDEX.pack_into(self._data, section.header + 36, section.flags | _COMDAT)
        # The auxiliary record: length, numbers of relocations and lines, checksum, then these two.
        struct.pack_into("<HB", self._data, definitions[number] + 12, associated, selection)


def _members(data: bytearray) -> Iterator[int]:
    """Where the object files begin."""
    if not data.startswith(_ARCHIVE):
        yield 0
        return
    at = len(_ARCHIVE)
    while at + _MEMBER_HEADER <= len(data):
        size = int(data[at + 48:at + 58])
        yield at + _MEMBER_HEADER
        at += _MEMBER_HEADER + size + size % 2


def make_collectable(contents: bytes) -> bytes:
    """An object file or an archive of them, changed. What is neither stays as it is."""
    data = bytearray(contents)
    for start in _members(data):
        if int.from_bytes(data[start:start + 2], "little") == _X86_64:
            _Object(data, start).make_collectable()
    return bytes(data)
