"""The contents of the packages."""

import hashlib
import json
import re
import stat
import subprocess
import zipfile
from pathlib import Path

from tests.harness.layout import PROGRAM, REPOSITORY, cmake_variable
from tests.package.packing import ScratchTestCase, only, pack, pack_for_class, unpack

TABLE = json.loads((REPOSITORY / "packaging" / "components.json").read_text(encoding="utf-8"))

# Members of MinGW's import libraries, which hold no code: lib<name>s00012.o, ...h.o and ...t.o.
IMPORT_MEMBER = re.compile(r"lib\w+?(s\d{5}|[ht])\.o")


def text_of(file: Path) -> str:
    return file.read_text(encoding="utf-8-sig")


class Package(ScratchTestCase):

    @classmethod
    def setUpClass(cls):
        cls.out = pack_for_class(cls)
        cls.main = only(cls.out, "*-windows-x64.zip")
        cls.relink = only(cls.out, "*-relink.zip")

    def unpacked(self) -> Path:
        return unpack(self.main, self.scratch / "main")

    def test_holds_the_built_program_its_licence_notices_sums_and_components(self):
        folder = self.unpacked()
        self.assertEqual(folder.name, self.main.name.replace("-windows-x64.zip", ""))
        self.assertEqual(sorted(file.name for file in folder.iterdir()),
                         ["LICENSE.txt", "SHA256SUMS", "THIRD-PARTY-NOTICES.txt", "Uninstall.exe",
                          "components.cdx.json", "licences"])
        self.assertEqual((folder / "Uninstall.exe").read_bytes(), PROGRAM.read_bytes())
        self.assertEqual(text_of(folder / "LICENSE.txt"),
                         (REPOSITORY / "LICENSE").read_text(encoding="utf-8"))

    def test_has_sums_of_every_file_that_sha256sum_accepts(self):
        folder = self.unpacked()
        listed = (folder / "SHA256SUMS").read_text(encoding="utf-8").splitlines()
        files = sorted(str(file.relative_to(folder)) for file in folder.rglob("*")
                       if file.is_file() and file.name != "SHA256SUMS")
        self.assertEqual([line[66:] for line in listed], files)
        for place in (folder, self.out):
            subprocess.run(["sha256sum", "--check", "--strict", "SHA256SUMS"], cwd=place,
                           check=True, stdout=subprocess.PIPE)

    def test_is_sorted_dated_by_the_sources_and_has_fixed_permissions(self):
        for archive in (self.main, self.relink):
            with zipfile.ZipFile(archive) as packed:
                names = packed.namelist()
                self.assertEqual(names, sorted(names))
                for entry in packed.infolist():
                    self.assertEqual(entry.date_time, (2026, 1, 2, 3, 4, 4), entry.filename)
                    executable = entry.filename.endswith((".exe", ".sh", "link/lld.py")) and \
                        not entry.filename.endswith(("common.sh", "recipes/qt.sh"))
                    self.assertEqual(stat.filemode(entry.external_attr >> 16),
                                     "-rwxr-xr-x" if executable else "-rw-r--r--", entry.filename)

    def test_is_dated_by_the_last_commit_by_default(self):
        committed = subprocess.run(["git", "log", "-1", "--format=%ct"], cwd=REPOSITORY, text=True,
                                   stdout=subprocess.PIPE, check=True).stdout.strip()
        by_default, by_commit = self.scratch / "by default", self.scratch / "by commit"
        self.assert_packed(pack(by_default, environment={"SOURCE_DATE_EPOCH": None}))
        self.assert_packed(pack(by_commit, environment={"SOURCE_DATE_EPOCH": committed}))
        self.assertEqual((by_default / "SHA256SUMS").read_bytes(),
                         (by_commit / "SHA256SUMS").read_bytes())

    def test_names_every_component_with_version_licence_and_text(self):
        folder = self.unpacked()
        notices = text_of(folder / "THIRD-PARTY-NOTICES.txt")
        named = set(re.findall(r"licences/([\w.-]+\.txt)", notices))
        self.assertEqual(named, {file.name for file in (folder / "licences").iterdir()})
        for file in (folder / "licences").iterdir():
            self.assertGreater(len(text_of(file)), 300, file.name)
        for entry in TABLE["linked"] + TABLE["inside Qt"]["parts"]:
            self.assertIn(entry["name"], " ".join(notices.split()))
            self.assertIn(f"licence: {entry['licence']}\n", notices)
        for phrase in ("GNU LESSER GENERAL PUBLIC LICENSE", "Version 3"):
            self.assertIn(phrase, text_of(folder / "licences" / "LGPL-3.0.txt"))
        self.assertIn("GCC RUNTIME LIBRARY EXCEPTION", text_of(folder / "licences" / "gcc.txt"))
        version = re.search(r"qtbase-opensource-src (5\.\d+\.\d+)", notices)
        self.assertIsNotNone(version)
        self.assertIn(f"qt-{version[1]}-", cmake_variable("Qt5_DIR"))

    def test_lists_components_with_versions_and_the_hashes_of_what_was_linked(self):
        folder = self.unpacked()
        document = json.loads((folder / "components.cdx.json").read_text(encoding="utf-8"))
        self.assertEqual((document["bomFormat"], document["specVersion"]), ("CycloneDX", "1.5"))
        self.assertEqual(document["metadata"]["timestamp"], "2026-01-02T03:04:05Z")
        program = document["metadata"]["component"]
        self.assertEqual(program["hashes"][0]["content"],
                         hashlib.sha256((folder / "Uninstall.exe").read_bytes()).hexdigest())
        entries = {entry["bom-ref"]: entry for entry in document["components"]}
        self.assertEqual(len(entries), len(document["components"]))
        for entry in TABLE["linked"]:
            self.assertRegex(entries[entry["id"]]["version"], r"^\d+\.\d+")
            self.assertTrue(entries[entry["id"]]["purl"].startswith("pkg:deb/debian/"))
        curl = entries["curl"]["components"][0]
        library = Path(cmake_variable("CURL_DIR")).parents[1] / "libcurl.a"
        self.assertEqual(curl["hashes"][0]["content"],
                         hashlib.sha256(library.read_bytes()).hexdigest())
        depended = {reference for entry in document["dependencies"]
                    for reference in entry["dependsOn"]}
        self.assertEqual(depended, set(entries))

    def test_relinks_to_the_same_program_and_accounts_for_all_linked_code(self):
        folder = unpack(self.relink, self.scratch / "with blanks" / "relink")
        self.assertIn("qtbase-opensource-src=5.", text_of(folder / "README.txt"))
        linker = self.scratch / "linker"
        linker.write_text("#!/bin/sh\nexec x86_64-w64-mingw32-g++-posix \"$@\" "
                          f"-Wl,--verbose,-Map,'{self.scratch}/map'\n", encoding="utf-8")
        linker.chmod(0o755)
        prefix = Path(cmake_variable("Qt5_DIR")).parents[2]
        output = subprocess.run([folder / "relink.sh", prefix], text=True, check=True,
                                env={"CXX": linker, "PATH": "/usr/bin:/bin"},
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT).stdout
        self.assertTrue((folder / "Uninstall.exe").read_bytes() == PROGRAM.read_bytes())

        # The linker reports which members of which archives it loaded; its map, which it kept.
        linked = (self.scratch / "map").read_text(encoding="utf-8", errors="replace")
        kept = set(re.findall(r" {9}(\S+):\(", linked))
        members = {(Path(archive).name, member) for archive, member in
                   re.findall(r": Loaded (\S+\.a)\((\S+)\) for ", output) if member in kept}
        self.assertGreater(len(members), 500)
        with zipfile.ZipFile(self.main) as packed:
            document = json.loads(packed.read(only_name(packed, "components.cdx.json")))
        accounted = {archive["name"] for entry in document["components"]
                     for archive in entry.get("components", [])}
        own = {file.name for file in (folder / "objects").glob("*-lib*.a")}
        unaccounted = {f"{archive}({member})" for archive, member in members
                       if archive not in accounted | own
                       and not IMPORT_MEMBER.fullmatch(member)}
        self.assertEqual(unaccounted, set())
        linked_members = {f"{archive}({member})" for archive, member in members}
        self.assertEqual([part["name"] for part in TABLE["inside Qt"]["parts"]
                          if part["member"] not in linked_members], [])


def only_name(packed: zipfile.ZipFile, end: str) -> str:
    return next(name for name in packed.namelist() if name.endswith(end))


class Packaging(ScratchTestCase):

    def test_fails_without_a_build(self):
        result = pack(self.scratch / "out", build=self.scratch)
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stdout, f"package: {self.scratch} holds no built program; "
                                        "run \"make build\" first\n")

    def test_fails_at_a_date_that_a_zip_cannot_hold(self):
        for date, complaint in (("5", "before 1980"), ("soon", "set SOURCE_DATE_EPOCH")):
            result = pack(self.scratch / "out", environment={"SOURCE_DATE_EPOCH": date})
            self.assertEqual(result.returncode, 1)
            self.assertIn(complaint, result.stdout)
            self.assertFalse((self.scratch / "out").exists())
