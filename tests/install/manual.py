#!/usr/bin/env python3
"""Builds the manual and looks at what came out, and shows that a chapter which is wrong ends the
building: manual.py PICTURES_PROGRAM SOURCE_FOLDER"""

import base64
import html.parser
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM, SOURCE = sys.argv[1:3]
sys.path.insert(0, f"{SOURCE}/tests/ctl")
from device_names import lock_device_names  # noqa: E402

CHAPTERS = sorted(pathlib.Path(SOURCE, "docs/manual").glob("*.md"))
PATIENCE = 200
# In the header of a PNG file.
COLOUR_TYPE = 25
OF_A_TABLE = 3


def build(source, folder):
    return subprocess.run([f"{source}/tools/manual.sh", PROGRAM, str(folder)],
                          stdin=subprocess.DEVNULL, capture_output=True, text=True,
                          timeout=PATIENCE)


class Page(html.parser.HTMLParser):
    """What stands in the file: targets, anchors, pictures."""

    def __init__(self, text):
        super().__init__()
        self.targets, self.anchors, self.pictures, self.tags = [], set(), [], set()
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        self.tags.add(tag)
        if "id" in attrs:
            self.anchors.add(attrs["id"])
        if "href" in attrs:
            self.targets.append(attrs["href"])
        if tag == "img":
            self.pictures.append(attrs)


class Manual(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="mortane-test-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.built = cls.folder / "Handbuch für alle"
        done = build(SOURCE, cls.built)
        assert done.returncode == 0, done.stdout + done.stderr
        assert done.stderr == "", done.stderr
        cls.text = cls.built.joinpath("index.html").read_text(encoding="utf-8")
        cls.page = Page(cls.text)
        cls.chapters = [re.search(r"\{#([\w-]+)\}", path.read_text(encoding="utf-8"))[1]
                        for path in CHAPTERS]

    def test_it_is_one_file_with_all_chapters_and_a_way_to_each(self):
        self.assertEqual(len(self.chapters), 13)
        self.assertEqual(sorted(path.name for path in self.built.iterdir()),
                         sorted(["index.html"] + [f"{name}.html" for name in self.chapters]))
        for name in self.chapters:
            self.assertIn(f"#{name}", self.page.targets, "the table of contents")
            way = Page(self.built.joinpath(f"{name}.html").read_text(encoding="utf-8"))
            self.assertEqual(way.targets, [f"index.html#{name}"])

    def test_it_needs_nothing_from_elsewhere(self):
        for target in self.page.targets:
            self.assertTrue(target.startswith("#"), target)
            self.assertIn(target[1:], self.page.anchors)
        for tag in ("script", "link", "iframe", "object"):
            self.assertNotIn(tag, self.page.tags)
        self.assertNotRegex(self.text, r"url\(|@import")
        self.assertNotIn("mark", self.page.tags, "a text that is marked as found")

    def test_every_picture_is_in_it_at_both_scales(self):
        asked = sum(path.read_text(encoding="utf-8").count("](pictures/") for path in CHAPTERS)
        self.assertEqual(len(self.page.pictures), asked)
        for picture in self.page.pictures:
            self.assertTrue(picture["src"].startswith("data:image/png;base64,"))
            self.assertRegex(picture["srcset"], r"^data:image/png;base64,\S+ 2x$")
            for address in (picture["src"], picture["srcset"].split()[0]):
                png = base64.b64decode(address.partition(",")[2])
                self.assertEqual(png[COLOUR_TYPE], OF_A_TABLE, picture["alt"])
            self.assertNotEqual(picture["alt"], "")

    def test_it_follows_the_palette_and_can_be_printed(self):
        self.assertIn("@media (prefers-color-scheme: dark)", self.text)
        self.assertIn("@media print", self.text)

    def test_what_is_wrong_ends_the_building_with_its_name(self):
        rows = (
            ("a control that is not on the page", 'marks="ListSeries"', "(1)", "ListSeries"),
            ("a circle that nobody speaks of", 'marks="TextSystemName"', "", "circles 1, text []"),
            ("a circle that there is not", "", "(1)", "circles 0, text [1]"),
        )
        for meaning, marks, words, said in rows:
            with self.subTest(meaning):
                tree = self.folder / "tree"
                shutil.copytree(f"{SOURCE}/tools", tree / "tools")
                shutil.copy(f"{SOURCE}/CMakeLists.txt", tree)
                chapter = tree / "docs/manual/99-bad.md"
                chapter.parent.mkdir(parents=True)
                chapter.write_text(
                    f'# Bad {{#bad}}\n\n![B](pictures/bad.png){{shows="System" {marks}}}\n'.replace(
                        " }", "}") + f"\nLook {words}\n", encoding="utf-8")
                done = build(tree, self.folder / "bad")
                self.assertNotEqual(done.returncode, 0)
                self.assertIn(said, done.stderr)
                shutil.rmtree(tree)


if __name__ == "__main__":
    lock = lock_device_names()
    unittest.main(argv=sys.argv[:1])
