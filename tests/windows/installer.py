#!/usr/bin/env python3
"""The installer for Windows under Wine: installs, starts, upgrades and removes a folder of programs:
installer.py FOLDER
Of a folder without programs with windows, mortanectl.exe stands in for them."""

import hashlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import desktop

PATIENCE_S = 120
UNINSTALL_KEY = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\Mortane"
OLD, NEW = "1.0.0", "1.0.1"
ONLY_OLD, ONLY_NEW = "manual/old only.html", "manual/new $name ü.html"

work = pathlib.Path()
drive = pathlib.Path()
environment = {}


def wine(*arguments):
    """The exit code and the output of a program."""
    ended = subprocess.run([desktop.WINE, "--collect", *map(str, arguments)], env=environment,
                           stdin=subprocess.DEVNULL, capture_output=True, text=True,
                           errors="replace", check=False, timeout=PATIENCE_S)
    return ended.returncode, ended.stdout


def line(*words):
    """The exit code of a line in which a folder goes on to the end, without quotes."""
    return wine("cmd", "/c", " ".join(words))[0]


def unix_path(path):
    return drive / path.replace("C:\\", "", 1).replace("\\", "/")


def entry(root, name):
    """A value of the list of installed programs; None without one."""
    code, said = wine("reg", "query", f"{root}\\{UNINSTALL_KEY}", "/v", name)
    lines = [line for line in said.splitlines() if line.strip().startswith(name)]
    return lines[0].split("REG_SZ")[1].strip() if code == 0 and lines else None


def files(folder):
    return {str(file.relative_to(folder)): hashlib.sha256(file.read_bytes()).hexdigest()
            for file in sorted(folder.rglob("*")) if file.is_file()}


def everything():
    """All files and folders of the drive but those that Wine and the system keep for themselves."""
    kept = ("windows", "ProgramData/Microsoft")
    return {name for path in drive.rglob("*")
            if not (name := str(path.relative_to(drive))).startswith(kept)
            and "/Temp/" not in name}


class Installation(unittest.TestCase):
    root = "HKCU"
    switches = ()
    folder = r"C:\users\%s\AppData\Local\Programs\Mortane"
    menu = r"C:\users\%s\AppData\Roaming\Microsoft\Windows\Start Menu\Programs\Mortane"

    def setUp(self):
        user = next(path.name for path in (drive / "users").iterdir() if path.name != "Public")
        fill = lambda text: text % user if "%s" in text else text
        self.windows_folder = fill(self.folder)
        self.place = unix_path(self.windows_folder)
        self.shortcuts = unix_path(fill(self.menu))
        self.before = everything()
        self.addCleanup(self.leave_nothing)

    def leave_nothing(self):
        if (self.place / "uninstall.exe").exists():
            self.uninstall()
        shutil.rmtree(self.place, ignore_errors=True)
        shutil.rmtree(self.shortcuts, ignore_errors=True)
        wine("reg", "delete", f"{self.root}\\{UNINSTALL_KEY}", "/f")

    def install(self, version, *more):
        return wine(work / f"{version}.exe", "/S", *self.switches, *more)[0]

    def uninstall(self):
        """In its place, so that the call ends with it; its own file then stays."""
        code = line(f"cd /d {self.windows_folder} && uninstall.exe", "/S", *self.switches,
                    "_?=" + self.windows_folder)
        if code == 0:
            (self.place / "uninstall.exe").unlink()
            if not any(self.place.iterdir()):
                self.place.rmdir()
        return code

    def installed(self):
        found = files(self.place)
        found.pop("uninstall.exe", None)
        return found

    def test_puts_every_file_there_and_takes_every_one_away(self):
        self.assertEqual(self.install(OLD), 0)
        self.assertEqual(self.installed(), files(work / OLD))
        self.assertEqual(entry(self.root, "DisplayVersion"), OLD)
        self.assertEqual(entry(self.root, "InstallLocation"), self.windows_folder)
        names = {"Mortane", "Mortane Wizard", "Simulated Microscope",
                 "Mortane with a Journal", "Manual", "Uninstall Mortane"}
        self.assertEqual({file.name for file in self.shortcuts.iterdir()},
                         {f"{name}.lnk" for name in names})
        code, said = wine(self.place / "mortanectl.exe", "--version")
        self.assertEqual((code, said.split()[0]), (0, "mortanectl"))
        self.assertEqual(self.uninstall(), 0)
        self.assertEqual(everything() - self.before, set())
        self.assertIsNone(entry(self.root, "DisplayVersion"))

    def test_removes_itself_when_it_is_called_as_the_system_does(self):
        self.assertEqual(self.install(OLD), 0)
        self.assertEqual(wine(self.place / "uninstall.exe", "/S", *self.switches)[0], 0)
        desktop.await_that(lambda: not self.place.exists(), "the folder gone")
        desktop.await_that(lambda: not self.shortcuts.exists(), "the shortcuts gone")

    def test_upgrades_an_older_version_and_leaves_nothing_of_it(self):
        self.assertEqual(self.install(OLD), 0)
        self.assertEqual(self.install(NEW), 0)
        self.assertEqual(self.installed(), files(work / NEW))
        self.assertEqual(entry(self.root, "DisplayVersion"), NEW)

    def test_installs_again_over_itself(self):
        self.assertEqual(self.install(OLD), 0)
        (self.place / "mortanectl.exe").write_bytes(b"broken")
        self.assertEqual(self.install(OLD), 0)
        self.assertEqual(self.installed(), files(work / OLD))

    def test_leaves_what_the_user_put_there(self):
        self.assertEqual(self.install(OLD), 0)
        own = self.place / "manual" / "mine.txt"
        own.write_text("mine", encoding="utf-8")
        self.assertEqual(self.install(NEW), 0)
        self.assertEqual(own.read_text(encoding="utf-8"), "mine")
        self.assertEqual(self.uninstall(), 0)
        self.assertEqual(list(self.installed()), ["manual/mine.txt"])

    def test_refuses_while_a_program_runs(self):
        self.assertEqual(self.install(OLD), 0)
        before = self.installed()
        # It waits for the end of its input, of which a pipe alone does not hold so much.
        running = subprocess.Popen([desktop.WINE, str(self.place / "mortanectl.exe"), "check", "-"],
                                   env=environment, stdin=subprocess.PIPE,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            running.stdin.write(b" " * 500_000)
            self.assertEqual(self.install(NEW), 2)
            self.assertEqual(self.uninstall(), 2)
            self.assertEqual(self.installed(), before)
            self.assertEqual(entry(self.root, "DisplayVersion"), OLD)
        finally:
            running.communicate(b"")
        self.assertEqual(self.install(NEW), 0)

    def test_goes_where_it_is_told_with_blanks_and_umlauts_and_is_found_there_again(self):
        self.windows_folder = "C:\\Labör 2\\Mortane Programme"
        self.place = unix_path(self.windows_folder)
        code = line(desktop.windows_path(work / f"{OLD}.exe"), "/S", *self.switches,
                    "/D=" + self.windows_folder)
        self.assertEqual(code, 0)
        self.assertEqual(self.installed(), files(work / OLD))
        self.assertEqual(self.install(NEW), 0)
        self.assertEqual(self.installed(), files(work / NEW))
        self.assertEqual(self.uninstall(), 0)
        shutil.rmtree(self.place.parent)
        self.assertEqual(everything() - self.before, set())


class ForAllUsers(Installation):
    root = "HKLM"
    switches = ("/ALLUSERS",)
    folder = r"C:\Program Files\Mortane"
    menu = r"C:\ProgramData\Microsoft\Windows\Start Menu\Programs\Mortane"


class BrokenInstaller(unittest.TestCase):
    def test_one_that_is_cut_off_or_changed_installs_nothing(self):
        whole = (work / f"{OLD}.exe").read_bytes()
        before = everything()
        for broken in (whole[:-5000], whole[:-5000] + b"x" + whole[-4999:]):
            file = work / "broken.exe"
            file.write_bytes(broken)
            self.assertNotEqual(wine(file, "/S")[0], 0)
            self.assertEqual(everything() - before, set())


def stage(folder):
    """The folder as an older and as a newer version, and an installer of each."""
    for version in (OLD, NEW):
        staged = work / version
        shutil.copytree(folder, staged)
        for name in ("mortane.exe", "sadrel.exe"):
            if not (staged / name).exists():
                shutil.copy(staged / "mortanectl.exe", staged / name)
        extra = staged / (ONLY_OLD if version == OLD else ONLY_NEW)
        extra.parent.mkdir(exist_ok=True)
        extra.write_text(version, encoding="utf-8")
        subprocess.run([desktop.ROOT / "tools/windows/installer.sh", staged,
                        work / f"{version}.exe", version], check=True)


def main():
    global work, drive, environment
    folder = pathlib.Path(sys.argv.pop(1)).resolve()
    with tempfile.TemporaryDirectory(prefix="mortane-installer-") as temporary:
        work = pathlib.Path(temporary)
        # Nothing of it shows a window.
        environment = {**os.environ, "DISPLAY": "", "LC_ALL": "C.UTF-8", "WINEPATH": "C:\\windows",
                       "MORTANE_WINE": str(work / "wine")}
        stage(folder)
        wine("cmd", "/c", "exit")
        drive = work / "wine/drive_c"
        result = unittest.main(exit=False, verbosity=2).result
        subprocess.run([desktop.WINE, "--end"], env=environment, check=False)
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
