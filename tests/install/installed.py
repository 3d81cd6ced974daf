#!/usr/bin/env python3
"""Installs the built programs below a folder with blanks and umlauts and looks at what stands there:
installed.py CMAKE BUILD_FOLDER SOURCE_FOLDER VERSION"""

import configparser
import gzip
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

CMAKE, BUILD, SOURCE, VERSION = sys.argv[1:5]
PROGRAMS = ("mortane", "sadrel", "mortanectl")
WINDOWS = ("mortane", "sadrel")
SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
PATIENCE = 60


def run(*words, **options):
    return subprocess.run([str(word) for word in words], stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, timeout=PATIENCE, **options)


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="mortane-test-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.prefix = cls.folder / "Geräte für alle"
        done = run(CMAKE, "--install", BUILD, "--prefix", cls.prefix)
        assert done.returncode == 0, done.stdout + done.stderr
        cls.share = cls.prefix / "share"

    def assertSilent(self, *words, **options):
        done = run(*words, **options)
        self.assertEqual((done.returncode, done.stderr), (0, ""), f"{words}\n{done.stdout}")
        return done.stdout

    def test_the_programs_start_from_there(self):
        for program in PROGRAMS:
            with self.subTest(program):
                self.assertEqual(self.assertSilent(self.prefix / "bin" / program, "--version"),
                                 f"{program} {VERSION}\n")
        self.assertEqual(sorted(os.listdir(self.prefix / "bin")), sorted(PROGRAMS))

    def test_icons_in_every_size_from_one_drawing(self):
        icons = self.share / "icons/hicolor"
        for program in WINDOWS:
            for size in SIZES:
                picture = (icons / f"{size}x{size}/apps/{program}.png").read_bytes()
                self.assertEqual(struct.unpack(">II", picture[16:24]), (size, size))
            drawing = (icons / f"scalable/apps/{program}.svg").read_text()
            self.assertIn("<rect", drawing, "no plate behind the lines")
            self.assertNotIn("#000000", drawing)
        self.assertEqual(len(os.listdir(icons)), len(SIZES) + 1)

    def test_desktop_entries_start_what_is_installed(self):
        names = []
        for program in WINDOWS:
            entry = self.share / f"applications/{program}.desktop"
            self.assertEqual(self.assertSilent("desktop-file-validate", entry), "")
            words = configparser.ConfigParser(interpolation=None)
            words.read(entry, encoding="utf-8")
            main, action = words["Desktop Entry"], words["Desktop Action Simulated"]
            names.append(main["Name"])
            self.assertEqual((main["Exec"], main["Icon"]), (program, program))
            self.assertEqual(main["Categories"], "Science;")
            self.assertEqual((action["Name"], action["Exec"]),
                             ("Simulated microscope", f"{program} /SIM"))
        self.assertEqual(names, ["Mortane", "Mortane Wizard"])

    def test_the_catalogue_of_programs_takes_the_description(self):
        info = self.share / "metainfo/org.mortane.mortane.metainfo.xml"
        self.validate(info)
        text = info.read_text()
        self.assertIn(f'<release version="{VERSION}" date="', text)
        for entry in re.findall(r'"desktop-id">([^<]+)<', text):
            self.assertTrue((self.share / "applications" / entry).exists(), entry)
        for program in re.findall(r"<binary>([^<]+)<", text):
            self.assertIn(program, PROGRAMS)

    def test_the_catalogue_takes_published_pictures(self):
        build = self.folder / "pictures"
        done = run(CMAKE, "-G", "Ninja", "-S", SOURCE, "-B", build, "-DMORTANE_TESTS=OFF",
                   "-DMORTANE_PICTURES_URL=https://mortane.example/pictures")
        self.assertEqual(done.returncode, 0, done.stderr)
        info = build / "packaging/org.mortane.mortane.metainfo.xml"
        self.assertIn("<image>https://mortane.example/pictures/objectives.png</image>",
                      info.read_text())
        self.validate(info)

    def validate(self, info):
        said = self.assertSilent("appstreamcli", "validate", "--no-net", "--no-color",
                                 "--pedantic", info, env={**os.environ, "LC_ALL": "C.UTF-8"})
        # The tag that newer releases want for the developer is unknown to older ones.
        self.assertEqual([line for line in said.splitlines() if re.match(r"[EWIP]:", line) and
                          not line.endswith((" developer-name-tag-deprecated",
                                             " developer-info-missing"))], [])
        self.assertIn("Validation was successful", said)

    def test_manual_pages_have_no_warning(self):
        for program in PROGRAMS:
            page = self.share / f"man/man1/{program}.1.gz"
            shown = self.assertSilent("man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", page,
                                      env={**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "80"})
            self.assertIn(program, shown)

    def test_manual_pages_tell_what_the_help_tells(self):
        for program in WINDOWS:
            page = gzip.open(self.share / f"man/man1/{program}.1.gz", "rt").read()
            page = page.replace("\\-", "-")
            for word in re.findall(r"^  (--[a-z]+|/SIM)", self.help_of(program), re.M):
                self.assertIn(word, page)
        page = gzip.open(self.share / "man/man1/mortane.1.gz", "rt").read()
        variables = re.findall(r"^  (MORTANE_\w+)", self.help_of("mortane"), re.M)
        self.assertGreater(len(variables), 2)
        for word in variables:
            self.assertIn(word, page)

    def help_of(self, program):
        return self.assertSilent(self.prefix / "bin" / program, "--help")

    def test_completion_benches_and_licence(self):
        self.assertTrue((self.share / "bash-completion/completions/mortanectl").exists())
        self.assertEqual(sorted(os.listdir(self.share / "mortane/benches")),
                         sorted(os.listdir(f"{SOURCE}/benches")))
        self.assertEqual((self.share / "doc/mortane/copyright").read_text(),
                         pathlib.Path(SOURCE, "LICENSE").read_text())

    def test_nothing_else_and_nothing_that_only_its_owner_can_read(self):
        self.assertEqual(sorted(os.listdir(self.share)),
                         ["applications", "bash-completion", "doc", "icons", "man", "metainfo",
                          "mortane"])
        # The manual, where it was built.
        self.assertEqual(set(os.listdir(self.share / "doc/mortane")) - {"manual"}, {"copyright"})
        for path in self.prefix.rglob("*"):
            self.assertEqual(path.stat().st_mode & 0o444, 0o444, path)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
