"""The signing command: its arguments, its effect, and its failures."""

import hashlib
import stat

from tests.harness.layout import PROGRAM
from tests.package.packing import ScratchTestCase, only, pack, unpack


class SigningCommand(ScratchTestCase):

    def command(self, script: str) -> str:
        # With a blank in its path and an argument of its own.
        tool = self.scratch / "signing tool"
        tool.write_text(f"#!/bin/sh\n{script}\n", encoding="utf-8")
        tool.chmod(tool.stat().st_mode | stat.S_IXUSR)
        return f"'{tool}' /sha256"

    def packed_program(self) -> bytes:
        folder = unpack(only(self.scratch / "out", "*-windows-x64.zip"), self.scratch / "unpacked")
        program = (folder / "Uninstall.exe").read_bytes()
        sums = (folder / "SHA256SUMS").read_text(encoding="utf-8").splitlines()
        self.assertIn(f"{hashlib.sha256(program).hexdigest()}  Uninstall.exe", sums)
        return program

    def test_changes_the_packed_program_and_its_sum_but_not_the_built_one(self):
        built = PROGRAM.read_bytes()
        command = self.command('[ "$1" = /sha256 ] && printf signed >>"$2"')
        self.assert_packed(pack(self.scratch / "out",
                                environment={"TESSERA_SIGN_COMMAND": command}))
        self.assertEqual(self.packed_program(), built + b"signed")
        self.assertEqual(PROGRAM.read_bytes(), built)

    def test_is_optional(self):
        for environment in ({"TESSERA_SIGN_COMMAND": None}, {"TESSERA_SIGN_COMMAND": ""}):
            with self.subTest(environment):
                self.assert_packed(pack(self.scratch / "out", environment=environment))
                self.assertEqual(self.packed_program(), PROGRAM.read_bytes())

    def test_leaves_no_package_not_even_an_older_one_when_it_fails(self):
        out = self.scratch / "out"
        self.assert_packed(pack(out))
        others = out / "notes.txt"
        others.touch()
        for command, complaint in ((self.command("exit 3"), "ended with code 3"),
                                   (str(self.scratch / "missing"), "cannot be run")):
            with self.subTest(complaint):
                result = pack(out, environment={"TESSERA_SIGN_COMMAND": command})
                self.assertEqual(result.returncode, 1)
                self.assertIn(complaint, result.stdout)
                self.assertEqual(list(out.iterdir()), [others])
