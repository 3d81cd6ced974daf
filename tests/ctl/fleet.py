#!/usr/bin/env python3
"""The three ways of docs/fleet.md, run as they stand there: fleet.py PROGRAM SOURCE_FOLDER"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

from device_names import lock_device_names

PROGRAM, SOURCE = sys.argv[1:3]
PATIENCE = 120
COMPUTERS = ["scope01", "scope02"]


def blocks():
    """The texts of the page by the names that stand behind their language."""
    page = pathlib.Path(SOURCE, "docs/fleet.md").read_text()
    return {name: text for name, text in re.findall(r"^```\w+ (\S+)\n(.*?)^```$", page, re.M | re.S)}


class Fleet(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="mortane-test-"))
        self.addCleanup(shutil.rmtree, self.folder)
        (self.folder / "bin").mkdir()
        (self.folder / "bin/mortanectl").symlink_to(PROGRAM)
        for name, text in blocks().items():
            (self.folder / name).write_text(text)
            (self.folder / name).chmod(0o755 if text.startswith("#!") else 0o644)
        self.environment = {
            "PATH": f"{self.folder}/bin:{os.environ['PATH']}", "HOME": str(self.folder),
            "LC_ALL": "C.UTF-8", "XDG_DATA_HOME": str(self.folder / "data"),
            "GIT_CONFIG_NOSYSTEM": "1", "GIT_AUTHOR_NAME": "scope", "GIT_COMMITTER_NAME": "scope",
            "GIT_AUTHOR_EMAIL": "scope@localhost", "GIT_COMMITTER_EMAIL": "scope@localhost",
            "MORTANE_BENCH": str(self.bench("bench", "Harbour")),
            "ANSIBLE_PIPELINING": "True"}

    def bench(self, name, bench):
        path = self.folder / f"{name}.bench.xml"
        shutil.copy(f"{SOURCE}/benches/{bench}.xml", path)
        return path

    def run_here(self, *words, code=0):
        done = subprocess.run(words, cwd=self.folder, env=self.environment, text=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, timeout=PATIENCE)
        self.assertEqual(done.returncode, code, f"{words}\n{done.stdout}")
        return done.stdout

    def rename(self, old, new):
        path = self.folder / "bench.bench.xml"
        path.write_text(path.read_text().replace(f'<Instrument Name="{old}"',
                                                 f'<Instrument Name="{new}"'))

    def test_a_night_commits_what_changed_and_nothing_else(self):
        repository = self.folder / "repository"
        self.run_here("git", "init", "--quiet", str(repository))
        self.run_here(str(self.folder / "readable-differences"), str(repository))
        script = str(self.folder / "receive-nightly")
        for expected in (1, 1, 2):
            if expected == 2:
                self.rename("Harbour", "Bay 7")
            self.run_here(script, str(repository))
            count = self.run_here("git", "-C", str(repository), "rev-list", "--count", "HEAD")
            self.assertEqual(int(count), expected)
        shown = self.run_here("git", "-C", str(repository), "show", "--format=", "-U0")
        changed = [line for line in shown.splitlines() if re.match(r"[-+][^-+]", line)]
        self.assertEqual(changed, ['-<QHRMNAME NAME="Harbour"/>', '+<QHRMNAME NAME="Bay 7"/>'])
        self.assertIn("  System Name: Harbour → Bay 7\n", self.run_here(
            "git", "-C", str(repository), "difftool", "--no-prompt", "--extcmd", "mortanectl diff",
            "HEAD~1"))

    def test_a_microscope_that_cannot_be_read_commits_nothing(self):
        repository = self.folder / "repository"
        self.run_here("git", "init", "--quiet", str(repository))
        self.environment["MORTANE_BENCH"] = "missing.xml"
        self.run_here(str(self.folder / "receive-nightly"), str(repository), code=2)
        self.assertEqual(os.listdir(repository), [".git"])

    def test_the_units_of_the_timer_are_right(self):
        units = self.folder / "units"
        units.mkdir()
        for name in ("mortane-receive.service", "mortane-receive.timer"):
            text = blocks()[name].replace("/usr/local/bin/", f"{self.folder}/")
            (units / name).write_text(text.replace("User=microscope", "User=root"))
        self.assertIn(f"ExecStart={self.folder}/receive-nightly /srv/microscopes\n",
                      (units / "mortane-receive.service").read_text())
        said = self.run_here("systemd-analyze", "verify", "--man=no",
                             *(str(unit) for unit in units.iterdir()))
        self.assertEqual([line for line in said.splitlines() if "mortane-receive" in line], [])
        self.run_here("systemd-analyze", "calendar", "*-*-* 03:00")

    def play(self, playbook, code=0):
        """What the playbook says, with the numbers of each computer."""
        said = self.run_here("ansible-playbook", "-i", "inventory", playbook, code=code)
        recap = dict(re.findall(r"^(scope\d+)\s*: (.*)$", said, re.M))
        self.assertEqual(sorted(recap), COMPUTERS, said)
        return said, {name: dict(part.split("=") for part in line.split())
                      for name, line in recap.items()}

    def test_a_playbook_fails_what_differs_and_sends(self):
        differing = COMPUTERS[1:]
        lines = ["[microscopes]"]
        for name in COMPUTERS:
            bench = self.bench(name, "Lantern" if name in differing else "Harbour")
            lines.append(f"{name} ansible_connection=local bench={bench}")
        lines += ["[microscopes:vars]", f"ansible_python_interpreter={sys.executable}"]
        (self.folder / "inventory").write_text("\n".join(lines) + "\n")
        for playbook in ("compare.yml", "send.yml"):
            path = self.folder / playbook
            path.write_text(path.read_text() + '  environment: {MORTANE_BENCH: "{{ bench }}"}\n')
        self.run_here("mortanectl", "receive", "-o", "reference.xml")

        said, recap = self.play("compare.yml", code=2)
        self.assertEqual([name for name in COMPUTERS if recap[name]["failed"] == "1"], differing)
        self.assertIn("Filter Cube 5: Empty → Orange", said)
        _, recap = self.play("send.yml")
        self.assertEqual([name for name in COMPUTERS if recap[name]["changed"] != "0"], differing)
        self.assertEqual(sorted(os.listdir(self.folder / "backups")), differing)
        kept = next((self.folder / "backups" / differing[0]).iterdir()).read_text()
        self.assertIn('NAME="Lantern"', kept)
        _, recap = self.play("send.yml")
        self.assertEqual([name for name in COMPUTERS if recap[name]["changed"] != "0"], [])

    def test_a_step_of_a_script(self):
        self.run_here("mortanectl", "receive", "-o", "reference.xml")
        script = str(self.folder / "before-session")
        self.assertIn("0 settings differ from reference.xml",
                      self.run_here(script, "reference.xml"))
        self.rename("Harbour", "Bay 7")
        self.assertIn("1 settings differ from reference.xml",
                      self.run_here(script, "reference.xml", code=1))
        (self.folder / "bad.xml").write_text(
            "<Setup><NOSEPIECE><ITEM POSITION='1' CODE='900'/></NOSEPIECE></Setup>")
        self.assertIn("bad.xml: ", self.run_here(script, "bad.xml", code=1))
        self.run_here(script, "missing.xml", code=2)


if __name__ == "__main__":
    names = lock_device_names()
    unittest.main(argv=sys.argv[:1])
