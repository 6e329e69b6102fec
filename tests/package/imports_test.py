"""The program's file: imported libraries and functions, requested rights, protections, and what must
not be in it."""

import re
import subprocess
import unittest

from tests.harness.layout import PROGRAM
from tests.package.portable_executable import Program

# Listed under "KnownDLLs" in the registry of Windows 7, 8.1, 10 and 11 (HKLM\\SYSTEM\\
# CurrentControlSet\\Control\\Session Manager\\KnownDLLs): always the system's own, whatever lies
# beside the program.
ALWAYS_THE_SYSTEMS = {"advapi32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "user32.dll"}

# Together they declare everything that the program imports.
HEADERS = ["winsock2.h", "ws2tcpip.h", "windows.h", "aclapi.h", "bcrypt.h", "commctrl.h",
           "commdlg.h", "dwmapi.h", "imm.h", "lm.h", "mmsystem.h", "ntsecapi.h", "ole2.h",
           "oleauto.h", "rpc.h", "shellapi.h", "shlobj.h", "userenv.h", "uxtheme.h", "wincrypt.h",
           "winver.h", "wtsapi32.h"]
WINDOWS_7 = "0x0601"
WINDOWS_10 = "0x0A00"
# New in Windows 8, but declared for all versions.
WRONGLY_DECLARED = {"GetSystemTimePreciseAsFileTime"}


def declared_for(version: str) -> str:
    """The headers' declarations for a Windows of at least this version."""
    return subprocess.run(
        ["x86_64-w64-mingw32-g++-posix", "-E", "-P", "-x", "c++", f"-D_WIN32_WINNT={version}",
         "-DUNICODE", "-"],
        input="".join(f"#include <{name}>\n" for name in HEADERS), text=True, check=True,
        stdout=subprocess.PIPE).stdout


def names_in(text: str) -> set:
    return set(re.findall(r"\w+", text))


class Imports(unittest.TestCase):

    def setUp(self):
        self.program = Program(PROGRAM)

    def test_at_the_start_come_only_from_system_libraries(self):
        self.assertEqual(set(self.program.imports()), ALWAYS_THE_SYSTEMS)
        self.assertTrue({"bcrypt.dll", "crypt32.dll", "userenv.dll", "dwmapi.dll"} <=
                        set(self.program.delayed_imports()))

    def test_exist_on_windows_7(self):
        # The compiler's headers declare newer functions only for newer versions. The C library is
        # left out: its functions are not declared by version.
        known = names_in(declared_for(WINDOWS_7)) - WRONGLY_DECLARED
        imported = [*self.program.imports().items(), *self.program.delayed_imports().items()]
        newer = [f"{library}: {name}" for library, names in imported if library != "msvcrt.dll"
                 for name in names if name not in known]
        self.assertGreater(sum(len(names) for _, names in imported), 300)
        self.assertEqual(newer, [])

    def test_are_checked_by_headers_that_distinguish_versions(self):
        known, later = names_in(declared_for(WINDOWS_7)), names_in(declared_for(WINDOWS_10))
        for name in ("CreateFile2", "GetDpiForWindow", "GetFirmwareType", "GetPointerInfo"):
            self.assertTrue(name in later and name not in known, name)


class Rights(unittest.TestCase):

    def test_are_the_highest_that_the_user_has(self):
        # An administrator can start every uninstaller; a standard user is not asked.
        self.assertEqual(re.findall(rb'requestedExecutionLevel level="(\w+)"', PROGRAM.read_bytes()),
                         [b"highestAvailable"])


class Protections(unittest.TestCase):

    def test_are_random_64_bit_addresses_and_no_execution_of_data(self):
        self.assertEqual(Program(PROGRAM).protections(),
                         ["high entropy", "dynamic base", "no execution of data"])


class UncaughtExceptions(unittest.TestCase):

    def test_are_not_described_on_a_console_that_nobody_sees(self):
        self.assertNotIn(b"terminate called", PROGRAM.read_bytes())
