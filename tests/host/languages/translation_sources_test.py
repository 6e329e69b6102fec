"""The translation sources hold exactly the program's texts, all translated."""

import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ET

from tests.harness.layout import REPOSITORY

LANGUAGES = REPOSITORY / "ui/uninstall/resources/languages"
SUFFIXES = [line.split()[0]
            for line in (LANGUAGES / "languages.txt").read_text(encoding="ascii").splitlines()
            if not line.startswith("#")]

# A translation must keep the source's place markers (%1), tags (<br>) and line breaks. A marker has at
# most two digits: in Turkish "%100" is a percentage.
PLACE_MARKER = r"%\d{1,2}(?!\d)"
TAG = r"</?\w+\s*/?>"
KEPT = re.compile(f"{PLACE_MARKER}|{TAG}|\n")


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
            subprocess.run([REPOSITORY / "tools/translations/update.sh", *copies], check=True)
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

    def test_place_markers_tags_and_outer_spaces_are_kept(self):
        for suffix in SUFFIXES:
            for _, message in messages(LANGUAGES / f"uninstall_{suffix}.ts"):
                source, translation = message.findtext("source"), message.findtext("translation")
                with self.subTest(suffix, text=source):
                    self.assertEqual(sorted(KEPT.findall(translation)),
                                     sorted(KEPT.findall(source)))
                    self.assertEqual(translation.startswith(" "), source.startswith(" "))
                    self.assertEqual(translation.endswith(" "), source.endswith(" "))
                    # A button hides a single "&", and no text has a mnemonic.
                    self.assertNotIn("&", translation)
                    # When a name is inserted, "%100" would be read as the marker "%10".
                    if "%1" in KEPT.findall(source):
                        self.assertEqual(re.findall(r"%\d+", translation), ["%1"])

    def test_the_description_of_the_music_downloader_is_translated(self):
        for suffix in SUFFIXES:
            for _, message in messages(LANGUAGES / f"uninstall_{suffix}.ts"):
                with self.subTest(suffix, text=message.findtext("source")):
                    self.assertNotIn("Music Downloader", message.findtext("translation"))

    def test_the_warning_says_that_cancel_ends_the_removal(self):
        """The text contains the beginning of the title, which is that language's word for it."""
        for suffix in SUFFIXES:
            texts = {message.findtext("source"): message.findtext("translation")
                     for _, message in messages(LANGUAGES / f"uninstall_{suffix}.ts")}
            warning = next(text for source, text in texts.items() if "is running" in source)
            title = texts["Uninstallation"]
            with self.subTest(suffix):
                self.assertIn(title[:len(title) * 2 // 3].lower(), warning.lower())


if __name__ == "__main__":
    unittest.main()
