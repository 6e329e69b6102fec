"""The translation sources hold every text of the program, finished, and nothing else."""

import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ET

ROOT = pathlib.Path(__file__).resolve().parents[3]
LANGUAGES = ROOT / "ui/uninstall/resources/languages"
SUFFIXES = "cn de dk es fi fr gr hu it ja ko nl pl pt ru si sk sv th tr tw vn".split()
MARKUP = re.compile(r"%\d+|</?\w+\s*/?>|\n")


def messages(catalogue):
    """(context, message element) for every message of a catalogue."""
    for context in ET.parse(catalogue).getroot().findall("context"):
        for message in context.findall("message"):
            yield context.findtext("name"), message


class TranslationSources(unittest.TestCase):
    maxDiff = None

    def test_there_is_one_source_for_each_language(self):
        names = sorted(path.name for path in LANGUAGES.glob("*.ts"))
        self.assertEqual(names, [f"uninstall_{suffix}.ts" for suffix in SUFFIXES])

    def test_lupdate_finds_nothing_missing_or_obsolete(self):
        with tempfile.TemporaryDirectory() as folder:
            copies = [shutil.copy(LANGUAGES / f"uninstall_{suffix}.ts", folder)
                      for suffix in SUFFIXES]
            subprocess.run([ROOT / "tools/translations/update.sh", *copies], check=True)
            for copy in map(pathlib.Path, copies):
                with self.subTest(copy.name):
                    original = (LANGUAGES / copy.name).read_text(encoding="utf-8")
                    self.assertEqual(copy.read_text(encoding="utf-8"), original)

    def test_every_text_is_finished(self):
        for suffix in SUFFIXES:
            for context, message in messages(LANGUAGES / f"uninstall_{suffix}.ts"):
                translation = message.find("translation")
                with self.subTest(suffix, context=context, text=message.findtext("source")):
                    self.assertIsNone(translation.get("type"))
                    self.assertTrue(translation.text and translation.text.strip())

    def test_every_language_has_the_same_texts(self):
        texts = {suffix: sorted((context, message.findtext("source")) for context, message
                                in messages(LANGUAGES / f"uninstall_{suffix}.ts"))
                 for suffix in SUFFIXES}
        self.assertEqual(len(texts["de"]), 25)
        for suffix in SUFFIXES:
            with self.subTest(suffix):
                self.assertEqual(texts[suffix], texts["de"])

    def test_place_markers_and_tags_are_kept(self):
        for suffix in SUFFIXES:
            for _, message in messages(LANGUAGES / f"uninstall_{suffix}.ts"):
                source, translation = message.findtext("source"), message.findtext("translation")
                with self.subTest(suffix, text=source):
                    self.assertEqual(sorted(MARKUP.findall(translation)),
                                     sorted(MARKUP.findall(source)))


if __name__ == "__main__":
    unittest.main()
