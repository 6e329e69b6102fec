"""The C runtime's rule for splitting a command line into arguments."""

from typing import List, Tuple


def split(line: str) -> List[str]:
    """The arguments after the program's name."""
    rest = _after_program(line)
    arguments: List[str] = []
    position = 0
    while True:
        while position < len(rest) and rest[position] in " \t":
            position += 1
        if position == len(rest):
            return arguments
        argument, position = _argument(rest, position)
        arguments.append(argument)


def _after_program(line: str) -> str:
    # In the program's own name quotes toggle and a backslash is an ordinary character.
    quoted = False
    for position, character in enumerate(line):
        if character == '"':
            quoted = not quoted
        elif character in " \t" and not quoted:
            return line[position:]
    return ""


def _argument(line: str, position: int) -> Tuple[str, int]:
    text = ""
    quoted = False
    while position < len(line) and (quoted or line[position] not in " \t"):
        backslashes = 0
        while position < len(line) and line[position] == "\\":
            backslashes += 1
            position += 1
        if position == len(line) or line[position] != '"':
            text += "\\" * backslashes
            if backslashes == 0:
                text += line[position]
                position += 1
            continue
        # Before a quote two backslashes mean one; an odd backslash makes the quote a character.
        text += "\\" * (backslashes // 2)
        position += 1
        if backslashes % 2 == 1:
            text += '"'
        elif quoted and line[position:position + 1] == '"':
            text += '"'
            position += 1
        else:
            quoted = not quoted
    return text, position
