#!/usr/bin/env python3
"""A person's session with the built mortanectl, over every command and two bench files:
session.py PROGRAM SOURCE_FOLDER"""

import json
import os
import pathlib
import pty
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

from device_names import lock_device_names

PROGRAM, SOURCE = sys.argv[1:3]
PATIENCE = 30


def some_of(number, rows):
    """Every third row, from another one on for each number; with MORTANE_ALL_CASES all of them."""
    return rows if "MORTANE_ALL_CASES" in os.environ else rows[number % 3::3]


class Session(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="mortane-test-"))
        self.addCleanup(shutil.rmtree, self.folder)
        for bench in ("Harbour", "Lantern"):
            shutil.copy(f"{SOURCE}/benches/{bench}.xml", self.folder)
        self.environment = {**os.environ, "XDG_DATA_HOME": str(self.folder / "data"),
                            "TERM": "xterm"}
        for name in ("MORTANE_BENCH", "MORTANE_JOURNAL", "MORTANE_REPLAY", "NO_COLOR"):
            self.environment.pop(name, None)

    def start(self, *words, journal=None, **options):
        environment = self.environment
        if journal is not None:
            environment = {**environment, "MORTANE_JOURNAL": str(self.folder / journal)}
        return subprocess.Popen([PROGRAM, *words], cwd=self.folder, env=environment, **options)

    def run_program(self, *words, code=0, given=None, wait=True):
        if wait and "--bench" in words:  # the machine's devices may be in use by others
            words += ("--wait", "20")
        done = subprocess.run([PROGRAM, *words], cwd=self.folder, env=self.environment,
                              input=given, stdin=None if given is not None else subprocess.DEVNULL,
                              capture_output=True, timeout=PATIENCE)
        self.out, self.err = (stream.decode() for stream in (done.stdout, done.stderr))
        self.assertEqual(done.returncode, code, f"{words}\n{self.out}\n{self.err}")
        return self.out

    def on_terminal(self, *words, answer=b"", environment=None):
        """The exit code and everything that a terminal shows."""
        process, terminal = pty.fork()
        if process == 0:
            os.chdir(self.folder)
            os.execve(PROGRAM, [PROGRAM, *words], environment or self.environment)
        shown = b""
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            if not select.select([terminal], [], [], 0.2)[0]:
                continue
            try:
                piece = os.read(terminal, 65536)
            except OSError:
                break
            if not piece:
                break
            shown += piece
            if answer and shown.endswith(b"[y/N] "):
                os.write(terminal, answer)
                answer = b""
        _, status = os.waitpid(process, 0)
        os.close(terminal)
        return os.waitstatus_to_exitcode(status), shown.decode()

    def backups(self):
        return sorted((self.folder / "data").rglob("*.xml"))

    # A session at a microscope, played back without it.

    def test_a_session_is_recorded_and_replayed(self):
        journal = str(self.folder / "journal.txt")
        words = ("send", "--sections", "INTERLOCK", "--yes", "--no-backup", "reference.xml")
        self.run_program("receive", "--bench", "Harbour.xml", "-o", "reference.xml")
        self.environment.update(MORTANE_JOURNAL=journal, MORTANE_BENCH="Lantern.xml")
        recorded = self.run_program(*words, "--wait", "20")
        del self.environment["MORTANE_JOURNAL"], self.environment["MORTANE_BENCH"]
        self.environment["MORTANE_REPLAY"] = journal
        self.assertEqual(self.run_program(*words, "--wait", "20"), recorded)
        self.assertNotIn("the session", self.err)
        self.run_program("receive", "-o", "other.xml", "--wait", "20")
        self.assertIn(f"mortanectl: {journal}:", self.err)
        self.assertIn("; the program called ", self.err)
        self.run_program("send", "--yes", "--no-backup", "reference.xml", "--wait", "20", code=2)
        self.assertIn("; the program called ", self.err)
        self.environment["MORTANE_REPLAY"] = "reference.xml"
        self.run_program("devices", code=2)
        self.assertIn("no journal of a session", self.err)

    # The day of a service engineer.

    def test_a_reference_is_compared_sent_and_taken_back(self):
        harbour, lantern = ("--bench", "Harbour.xml"), ("--bench", "Lantern.xml")
        self.assertIn("1  Harbour     can be used\n", self.run_program("devices", *harbour))
        self.run_program("receive", *harbour, "-o", "reference.xml")
        self.run_program("receive", *lantern, "-o", "before.xml")
        self.assertIn("1 file checked, 0 lines refused", self.run_program("check", "reference.xml"))
        self.run_program("compare", *harbour, "reference.xml")
        self.assertTrue(self.out.endswith(": 0 changes\n"), self.out)

        self.run_program("compare", *lantern, "reference.xml", "--sections", "INTERLOCK", code=1)
        self.assertIn("  Nosepiece Change to ND Filter: OFF → ON\n", self.out)
        self.run_program("diff", "before.xml", "reference.xml", code=1)
        self.assertIn("  System Name: Lantern → Harbour\n", self.out)
        self.run_program("send", *lantern, "reference.xml", "--sections", "INTERLOCK", "--dry-run",
                         code=1)
        self.assertEqual(self.backups(), [])

        self.run_program("send", *lantern, "reference.xml", "--sections", "INTERLOCK", code=2)
        self.assertIn("--yes", self.err)
        self.run_program("send", *lantern, "reference.xml", "--sections", "INTERLOCK", "--yes")
        self.assertIn("sent and read back\n", self.out)
        self.assertEqual(len(self.backups()), 1)
        self.assertEqual(self.backups()[0].read_bytes(),
                         (self.folder / "before.xml").read_bytes())
        self.run_program("send", *lantern, "reference.xml", "--sections", "INTERLOCK", "--yes")
        self.assertIn("Lantern: 0 changes, nothing was sent\n", self.out)

        self.run_program("backups", *lantern)
        self.assertIn(str(self.backups()[0]), self.out)
        self.run_program("restore", *lantern, "--yes")
        self.run_program("receive", *lantern, "-o", "after.xml")
        self.assertEqual((self.folder / "after.xml").read_bytes(),
                         (self.folder / "before.xml").read_bytes())
        self.run_program("backups", *lantern, "--keep", "1", "--json")
        self.assertEqual(json.loads(self.out)["removed"], 1)
        self.assertEqual(len(self.backups()), 1)

    def test_the_first_screen_of_the_readme_shows_what_is_answered(self):
        page = pathlib.Path(SOURCE, "README.md").read_text()
        block = re.search(r"^    \$ mortanectl (.*)\n((?:    .*\n)+)", page, re.M)
        self.run_program("receive", "--bench", "Harbour.xml", "-o", "reference.xml")
        self.run_program(*block[1].split(), "--bench", "Lantern.xml", code=1)
        shown = [line[4:] for line in block[2].splitlines()]
        self.assertEqual(shown.pop(), "  ...")
        self.assertEqual(self.out.splitlines()[:len(shown)], shown)

    def test_the_answers_for_programs(self):
        self.run_program("receive", "--bench", "Harbour.xml", "-o", "a.xml")
        for words, code in (
                (("devices", "--bench", "Harbour.xml"), 0), (("diff", "a.xml", "a.xml"), 0),
                (("compare", "--bench", "Lantern.xml", "a.xml"), 1), (("check", "a.xml"), 0),
                (("send", "--bench", "Lantern.xml", "a.xml", "--yes"), 0),
                (("backups", "--bench", "Lantern.xml", "--device", "1"), 0)):
            answer = json.loads(self.run_program(*words, "--json", code=code))
            self.assertIsInstance(answer, dict)
            self.assertEqual(self.err, "")

    def test_standard_streams_stand_for_files(self):
        file = self.run_program("receive", "--bench", "Harbour.xml", "-o", "-")
        self.run_program("compare", "--bench", "Harbour.xml", "-", given=file.encode())
        (self.folder / "a.xml").write_text(file)
        self.run_program("diff", "-", "a.xml", given=file.encode())
        self.run_program("check", "-", given=file.encode())

    def test_on_a_terminal_it_asks_and_shows_progress_and_colours(self):
        self.run_program("receive", "--bench", "Harbour.xml", "-o", "a.xml")
        words = ("send", "--bench", "Lantern.xml", "a.xml", "--sections", "SYSTEM", "--wait", "20")
        code, shown = self.on_terminal(*words, answer=b"n\n")
        self.assertEqual(code, 2)
        self.assertIn("\x1b[31mLantern\x1b[0m → \x1b[32mHarbour\x1b[0m", shown)
        self.assertIn("Receiving 3/", shown)
        self.assertIn("nothing was sent", shown)
        code, shown = self.on_terminal(*words, answer=b"y\n",
                                       environment={**self.environment, "NO_COLOR": "1"})
        self.assertEqual(code, 0, shown)
        self.assertNotIn("\x1b[3", shown)
        self.assertIn("1 change sent and read back", shown)

    def test_a_held_microscope_is_refused_or_waited_for(self):
        watch = self.start("watch", "--bench", "Harbour.xml", "--wait", "20", stdout=subprocess.PIPE,
                           stderr=subprocess.PIPE)
        try:
            self.await_use()
            self.run_program("receive", "--bench", "Harbour.xml", "-o", "-", code=2, wait=False)
            self.assertIn('"Harbour" is used by another program', self.err)
            self.assertIn("used by another program",
                          self.run_program("devices", "--bench", "Harbour.xml"))
            waiting = self.start("receive", "--bench", "Harbour.xml", "-o", "a.xml", "--wait", "20",
                                 journal="waiting.txt")
            self.await_call("waiting.txt", 'Name -> "Harbour"')
            self.assertIsNone(waiting.poll())
            watch.send_signal(signal.SIGINT)
            self.assertEqual(watch.wait(PATIENCE), 0, watch.stderr.read())
            self.assertEqual(waiting.wait(PATIENCE), 0)
        finally:
            watch.kill()
            watch.communicate()

    def await_that(self, holds, otherwise):
        deadline = time.monotonic() + PATIENCE
        while not holds():
            self.assertLess(time.monotonic(), deadline, otherwise)
            time.sleep(0.05)

    def await_use(self):
        self.await_that(
            lambda: "used by" in self.run_program("devices", "--bench", "Harbour.xml"),
            "the microscope was never in use")

    def await_call(self, journal, call, times=1):
        path = self.folder / journal
        self.await_that(
            lambda: path.exists() and path.read_text(errors="replace").count(call) >= times,
            f"{call} was never called")

    def test_watch_tells_each_change_in_a_line(self):
        watch = self.start("watch", "--bench", "Harbour.xml", "--every", "1", "--wait", "20",
                           journal="watch.txt", stdout=subprocess.PIPE, text=True)
        try:
            # The last call of connecting, and of the first reading.
            self.await_call("watch.txt", "CondenserDevice.Positions.Count", 2)
            bench = self.folder / "Harbour.xml"
            text = bench.read_text().replace('<Instrument Name="Harbour"',
                                             '<Instrument Name="Bay 7"')
            (self.folder / "new.xml").write_text(text)
            os.replace(self.folder / "new.xml", bench)
            self.assertRegex(watch.stdout.readline(),
                             r"^\d{4}-\d\d-\d\dT\S+Z  System Name: Harbour → Bay 7\n$")
            watch.send_signal(signal.SIGTERM)
            self.assertEqual(watch.wait(PATIENCE), 0)
        finally:
            watch.kill()
            watch.communicate()

    # What may go wrong.

    def test_a_closed_standard_output_is_no_signal_and_no_half_line(self):
        self.run_program("receive", "--bench", "Harbour.xml", "-o", "a.xml")
        for words in (("compare", "--bench", "Lantern.xml", "a.xml"), ("--help",),
                      ("send", "--bench", "Lantern.xml", "a.xml", "--yes")):
            reader, writer = os.pipe()
            os.close(reader)
            process = self.start(*words, stdout=writer, stderr=subprocess.PIPE)
            os.close(writer)
            _, err = process.communicate(timeout=PATIENCE)
            self.assertEqual(process.returncode, 2, words)
            self.assertIn(b"cannot write the standard output", err)
        self.assertEqual(self.backups(), [])
        self.assertIn('Name="Lantern"', (self.folder / "Lantern.xml").read_text())
        done = subprocess.run(["sh", "-c", '"$0" devices --bench Harbour.xml >&-', PROGRAM],
                              cwd=self.folder, env=self.environment, stderr=subprocess.PIPE)
        self.assertEqual(done.returncode, 2)

    def test_a_full_disk_is_told(self):
        with open("/dev/full", "wb") as full:
            process = self.start("devices", "--bench", "Harbour.xml", stdout=full,
                                 stderr=subprocess.PIPE)
            _, err = process.communicate(timeout=PATIENCE)
        self.assertEqual(process.returncode, 2)
        self.assertIn(b"No space left", err)

    def test_files_that_are_none(self):
        os.mkfifo(self.folder / "pipe")
        (self.folder / "dir").mkdir()
        (self.folder / "empty").write_text("")
        (self.folder / "cut").write_text("<Setup><SYST")
        with open(self.folder / "huge", "wb") as huge:
            huge.truncate(100 * 1024 * 1024)
        self.run_program("receive", "--bench", "Harbour.xml", "-o", "a.xml")
        for number, file in enumerate(("missing", "empty", "cut", "huge", "dir", "pipe",
                                       "/dev/null", "/dev/zero", "a\nb", "x" * 5000)):
            for words in some_of(number, (
                    ("diff", "a.xml", file), ("compare", "--bench", "Harbour.xml", file),
                    ("send", "--bench", "Harbour.xml", file, "--yes"),
                    ("restore", "--bench", "Harbour.xml", "./" + file, "--yes"),
                    ("report", file), ("check", file))):
                self.run_program(*words, code=2)
                lines = self.err.splitlines()
                self.assertEqual(len(lines), 1, f"{words}: {self.err}")
                self.assertTrue(lines[0].startswith("mortanectl: "), lines[0])
                self.assertIn(file.replace("\n", "\\n"), lines[0])
        self.assertEqual(self.backups(), [])

    def test_outputs_that_cannot_be_written(self):
        (self.folder / "dir").mkdir()
        for file in ("missing/a.txt", "dir", "/dev/null", ""):
            for words in (("receive", "-o", file), ("report", "-o", file),
                          ("export", "--ome", file)):
                if words == ("report", "-o", ""):
                    continue  # the standard output
                self.run_program(*words, "--bench", "Harbour.xml", code=2)
                self.assertIn(file, self.err)
                self.assertEqual(len(self.err.splitlines()), 1, self.err)

    def test_a_backup_folder_that_cannot_be_written_stops_everything(self):
        self.run_program("receive", "--bench", "Harbour.xml", "-o", "a.xml")
        (self.folder / "data").write_text("in the way")
        before = (self.folder / "Lantern.xml").read_bytes()
        self.run_program("send", "--bench", "Lantern.xml", "a.xml", "--yes", code=2)
        self.assertIn("nothing was sent", self.err)
        self.assertEqual((self.folder / "Lantern.xml").read_bytes(), before)

    def test_a_bench_file_that_is_wrong(self):
        (self.folder / "wrong.xml").write_text("<Other/>")
        for bench in ("wrong.xml", "missing.xml", "."):
            self.run_program("devices", "--bench", bench, code=2)
            self.assertIn(bench, self.err)

    def test_help_version_and_diff_open_no_library(self):
        """A bench file that is wrong would tell."""
        self.environment["MORTANE_BENCH"] = "missing.xml"
        self.run_program("receive", "--bench", "Harbour.xml", "-o", "a.xml")
        self.run_program("--help")
        self.run_program("--version")
        self.run_program("send", "--help")
        self.run_program("diff", "a.xml", "a.xml")
        self.run_program("check", "a.xml")
        self.run_program("devices", code=2)

    # What is installed beside the program.

    def test_the_manual_page_knows_every_command_and_option(self):
        page = pathlib.Path(SOURCE, "packaging/ctl/mortanectl.1").read_text().replace("\\-", "-")
        completion = pathlib.Path(SOURCE, "packaging/ctl/mortanectl.bash").read_text()
        commands = [line.split()[0] for line in self.run_program("--help").splitlines()
                    if line.startswith("  ") and line[2].isalpha() and "mortanectl" not in line]
        self.assertEqual(len(commands), 12, commands)
        for command in commands:
            self.assertIn(command, page)
            options = {word.split(",")[-1] for line in
                       self.run_program(command, "--help").splitlines()
                       for word in line.split()[:1] if word.startswith("-")}
            for option in options:
                self.assertIn(option, page)
                self.assertIn(option, completion)

    def test_the_manual_page_has_no_warning(self):
        done = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z",
                               f"{SOURCE}/packaging/ctl/mortanectl.1"], capture_output=True,
                              env={**self.environment, "LC_ALL": "C.UTF-8", "MANWIDTH": "80"},
                              timeout=PATIENCE)
        self.assertEqual((done.returncode, done.stderr.decode()), (0, ""))
        self.assertIn(b"mortanectl", done.stdout)

    def test_completion(self):
        def complete(*words):
            script = (f"source {SOURCE}/packaging/ctl/mortanectl.bash; COMP_WORDS=(\"$@\"); "
                      "COMP_CWORD=$(($# - 1)); _mortanectl; printf '%s\\n' \"${COMPREPLY[@]}\"")
            return subprocess.run(["bash", "-c", script, "bash", *words], cwd=self.folder,
                                  capture_output=True, text=True, timeout=PATIENCE).stdout.split()
        self.assertEqual(complete("mortanectl", "re"), ["receive", "restore", "report"])
        self.assertEqual(complete("mortanectl", "send", "--dr"), ["--dry-run"])
        self.assertEqual(complete("mortanectl", "diff", "--ye"), [])
        self.assertEqual(complete("mortanectl", "compare", "Har"), ["Harbour.xml"])
        self.assertEqual(complete("mortanectl", "send", "a.xml", "--sections", "SYSTEM,NO"),
                         ["SYSTEM,NOSEPIECE"])


if __name__ == "__main__":
    names = lock_device_names()
    unittest.main(argv=sys.argv[:1])
