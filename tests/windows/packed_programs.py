#!/usr/bin/env python3
"""The packed programs under Wine, on the COM server of the tests:
packed_programs.py PACKAGE_FOLDER SERVER_FOLDER SERVER32_FOLDER
The server folder holds mortane_test_library.dll and mortane_test_server.exe, the other one the
library and mortane-host32.exe of 32 bits. Where Wine runs no programs of 32 bits, those of the host's
test are of 64 bits."""

import contextlib
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
import uuid

import desktop

package = pathlib.Path()
servers = pathlib.Path()
servers32 = pathlib.Path()
screen = None  # the one display: Wine stays on that on which its first process began

EDITOR32 = "C:\\windows\\syswow64\\regedit.exe"
CONNECTED = "DeviceList.Item(1).Connect()"


def library(kind):
    """The variables that lead a program to a server of the tests: InProcess or OwnProcess."""
    return {f"MORTANE_PROGID_{name.upper()}": f"MortaneTest.{kind}.{name}"
            for name in ("Microscope", "FiberServer", "FiberRemote")}


def wine(*arguments):
    subprocess.run([desktop.WINE, *arguments], check=True, timeout=desktop.PATIENCE_S,
                   stdout=subprocess.DEVNULL, env=screen.environment)


def register(kind, server, command, editor="regedit"):
    """New identifiers for the names of a kind; what serves them is a line that may name the family of
    the identifiers, which is returned. An editor of 32 bits writes into the list for 32 bits."""
    family = uuid.uuid4().bytes
    base = "{%s}" % uuid.UUID(bytes=family[:-1] + bytes([0]))
    escaped = command.format(family=base).replace("\\", "\\\\").replace('"', '\\"')
    root = "HKEY_LOCAL_MACHINE\\Software\\Classes\\"
    lines = ["REGEDIT4", ""]
    for place, name in enumerate(("Microscope", "FiberServer", "FiberRemote")):
        identifier = "{%s}" % uuid.UUID(bytes=family[:-1] + bytes([place + 1]))
        lines += [f"[{root}CLSID\\{identifier}\\{server}]", f'@="{escaped}"',
                  '"ThreadingModel"="Apartment"',
                  f"[{root}MortaneTest.{kind}.{name}\\CLSID]", f'@="{identifier}"', ""]
    with tempfile.NamedTemporaryFile("w", suffix=".reg", newline="\r\n") as entries:
        entries.write("\n".join(lines))
        entries.flush()
        wine(editor, "/S", desktop.windows_path(entries.name))
    return base


def point_to_new_classes():
    """Wine starts no second server for a class whose server was killed: the server's names get
    identifiers that nothing has."""
    server = desktop.windows_path(servers / "mortane_test_server.exe")
    register("OwnProcess", "LocalServer32", f'"{server}" -Family {{family}}')


def runs_32_bits():
    host = servers32 / "mortane-host32.exe"
    said = subprocess.run([desktop.WINE, "--collect", host], check=False, text=True,
                          timeout=desktop.PATIENCE_S, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, env=screen.environment).stdout
    return said.startswith("mortane-host32 ")


def kill_server():
    """A server whose clients were killed lives on, with the bench of a test before. Wine's taskkill
    finds no process of 64 bits where Wine itself has 32."""
    server = desktop.windows_path(servers / "mortane_test_server.exe").encode()
    for command_line in pathlib.Path("/proc").glob("[0-9]*/cmdline"):
        with contextlib.suppress(OSError):  # of a process that has just ended
            if server in command_line.read_bytes():
                os.kill(int(command_line.parent.name), signal.SIGKILL)


class PackedPrograms(unittest.TestCase):
    def setUp(self):
        self.folder = desktop.Folder()
        self.addCleanup(self.folder.close)
        self.desktop = screen
        point_to_new_classes()
        self.addCleanup(kill_server)

    def start(self, program, *arguments, kind="OwnProcess", bench="", variables=None, folder=None):
        started = desktop.Program(
            self.desktop, self.folder.path, (folder or package) / f"{program}.exe", *arguments,
            variables={**library(kind), **({"MORTANE_SERVER_BENCH": str(bench)} if bench else {}),
                       **(variables or {})})
        self.addCleanup(started.close)
        return started

    def bench(self, name):
        self.bench_file = self.folder.bench(name)
        return desktop.windows_path(self.bench_file)

    def change_name(self, program, name):
        """On the system page, whose button stands first on the rail."""
        window = program.window()
        self.desktop.focus(window)
        self.desktop.tool("mousemove", "--window", window, "52", "110", "click", "1")
        time.sleep(0.2)
        self.desktop.tool("key", "Tab")
        self.desktop.tool("key", "ctrl+a")
        self.desktop.write(name)
        self.desktop.tool("key", "Return")

    def save(self, program, path):
        program.press(program.window(), "alt+f", "s")
        self.answer_file_dialog("Save As", path)

    def answer_file_dialog(self, title, path):
        self.desktop.focus(self.desktop.await_windows(1, title)[0])
        self.desktop.tool("key", "alt+n")  # the field for the name
        time.sleep(0.2)
        self.desktop.tool("key", "ctrl+a")
        self.desktop.write(desktop.windows_path(path))
        self.desktop.tool("key", "Return")

    def select_the_third(self, program):
        program.press(program.window(), "alt+c", "l")
        choice = self.desktop.await_windows(1, "Select Microscope Dialog")[0]
        program.press(choice, "Down", "Down", "Return")
        program.await_call("DeviceList.Item(3).Connect()")

    def work_through(self, kind, **details):
        """Start, Receive, change, Send, Save, Open, Select, Exit."""
        program = self.start("mortane", kind=kind, bench=self.bench("Harbour"), **details)
        program.window()
        program.await_call(CONNECTED)
        program.await_rest()
        calls = len(program.journal())
        self.assertGreater(calls, 500)

        program.press(program.window(), "alt+c", "r")
        program.await_rest()
        self.assertGreater(len(program.journal()) - calls, 500)

        self.change_name(program, "Bay 4")
        program.press(program.window(), "alt+c", "n")
        program.await_sent('SystemName = "Bay 4"')
        desktop.await_that(lambda: 'Bay 4' in self.bench_file.read_text(encoding="utf-8"),
                           "the name in the bench file")

        saved = self.folder.path / "saved.xml"
        self.save(program, saved)
        desktop.await_that(saved.exists, "the saved file")
        self.assertIn("Bay 4", saved.read_text(encoding="utf-8"))

        saved.write_text(saved.read_text(encoding="utf-8").replace("Bay 4", "Opened"),
                         encoding="utf-8")
        program.press(program.window(), "alt+f", "o")
        self.answer_file_dialog("Open", saved)
        items = self.desktop.await_windows(1, "Select File Items")[0]
        program.press(items, "Return")
        time.sleep(0.5)
        program.press(program.window(), "alt+c", "n")
        program.await_sent('SystemName = "Opened"')

        program.press(program.window(), "alt+c", "l")
        choice = self.desktop.await_windows(1, "Select Microscope Dialog")[0]
        program.press(choice, "Return")
        time.sleep(0.5)
        self.assertEqual(program.end_by_menu(), 0)
        self.assertTrue(program.called("DeviceList.Item(1).Disconnect()"))

    def test_mortane_works_on_a_server_of_its_own_process(self):
        self.work_through("OwnProcess")

    def test_mortane_works_on_a_server_in_its_process(self):
        self.work_through("InProcess")

    def test_mortane_works_on_a_library_of_32_bits_that_nobody_set_up_for_it(self):
        of_32_bits = runs_32_bits()
        library_folder = servers32 if of_32_bits else servers
        folder = package
        variables = {}
        if not of_32_bits:
            print("this Wine runs no programs of 32 bits; the host is one of 64", file=sys.stderr)
            folder = self.folder.path / "package"
            shutil.copytree(package, folder)
            shutil.copy(servers / "mortane-host32.exe", folder)
            variables["MORTANE_LIBRARY"] = "host32"
        variables["MORTANE_SERVER_FAMILY"] = register(
            "Hosted", "InprocServer32",
            desktop.windows_path(library_folder / "mortane_test_library.dll"),
            EDITOR32 if of_32_bits else "regedit")
        self.work_through("Hosted", folder=folder, variables=variables)

    def test_a_second_copy_on_one_device_is_refused_until_the_first_is_gone_however_it_went(self):
        bench = self.bench("Harbour")
        first = self.start("mortane", bench=bench)
        first.await_call(CONNECTED)
        first.await_rest()
        second = self.start("sadrel", bench=bench)
        box = self.desktop.await_windows(1, "Sadrel")[0]
        second.press(box, "Return")
        self.assertEqual(second.end(), 0)
        self.assertFalse(second.called(CONNECTED))
        first.kill()
        third = self.start("mortane", bench=bench)
        third.await_call(CONNECTED)
        self.assertEqual(third.end_by_menu(), 0)

    def test_select_goes_to_another_microscope(self):
        program = self.start("mortane", "Alpha", bench=self.bench("Crowd"))
        program.await_call(CONNECTED)
        program.await_rest()
        self.select_the_third(program)
        self.assertEqual(program.end_by_menu(), 0)

    def test_a_server_that_is_killed_leaves_the_window_alive_and_select_connects_again(self):
        program = self.start("mortane", "Alpha", bench=self.bench("Crowd"))
        program.await_call(CONNECTED)
        program.await_rest()
        kill_server()
        point_to_new_classes()
        program.press(program.window(), "alt+c", "r")
        program.box()
        program.close_boxes()
        self.select_the_third(program)
        self.assertEqual(program.end_by_menu(), 0)

    def test_without_a_library_it_says_so_and_has_the_simulated_microscope(self):
        program = self.start("mortane", "/SIM",
                             variables={"MORTANE_PROGID_MICROSCOPE": "Nobody.Has.This"})
        box = self.desktop.await_windows(1, "Mortane")[0]
        program.press(box, "Return")
        desktop.await_that(lambda: box not in self.desktop.windows("Mortane"), "the box gone")
        program.press(self.desktop.await_windows(2, "Mortane")[0], "Return")
        program.await_call("DeviceList.Item(0).Connect()")
        self.assertEqual(program.end_by_menu(), 0)

    def test_a_bench_file_comes_before_the_library(self):
        program = self.start("mortane", variables={
            "MORTANE_BENCH": self.bench("Harbour"), "MORTANE_PROGID_MICROSCOPE": "Nobody.Has"})
        program.await_call(CONNECTED)
        self.assertEqual(program.end_by_menu(), 0)

    def test_a_wrong_bench_file_is_refused_with_one_line_and_code_two(self):
        wrong = self.folder.path / "bench.xml"
        wrong.write_text("no bench", encoding="utf-8")
        program = self.start("mortane", variables={"MORTANE_BENCH": desktop.windows_path(wrong)})
        self.assertEqual(program.end(), 2)
        line = program.process.stderr.read()
        self.assertTrue(line.startswith("mortane: "), line)
        self.assertIn("bench.xml", line)
        self.assertEqual(line.count("\n"), 1)

    def test_sadrel_is_gone_through_by_keyboard_alone(self):
        saved = self.folder.path / "saved.xml"
        program = self.start("sadrel", bench=self.bench("Harbour"))
        window = program.window()
        program.await_call(CONNECTED)
        program.await_rest()
        self.desktop.focus(window)
        self.desktop.tool("key", "ctrl+a")
        self.desktop.write("Bay 4")
        self.desktop.tool("key", "alt+n")
        time.sleep(0.4)
        # Custom; each of the seven items is turned over.
        for key in ["Down", "Tab", *["space", "Down"] * 7]:
            self.desktop.tool("key", key)
        for _ in range(9):
            self.desktop.tool("key", "alt+n")
            time.sleep(0.4)
        time.sleep(0.5)  # as long as the keys of the last step are deaf
        self.desktop.tool("key", "alt+e")
        program.press(program.box(), "Return")
        self.answer_file_dialog("Save As", saved)
        self.assertEqual(program.end(), 0)
        self.assertIn("Bay 4", self.bench_file.read_text(encoding="utf-8"))
        self.assertIn("Bay 4", saved.read_text(encoding="utf-8"))


def main():
    global package, servers, servers32, screen
    package, servers, servers32 = (pathlib.Path(name).resolve() for name in sys.argv[1:4])
    subprocess.run([desktop.WINE, "--end"], check=True)
    screen = desktop.Desktop()
    wine("regsvr32", "/s", servers / "mortane_test_library.dll")
    # A process of Wine's that stays saves each start of a program two seconds.
    with subprocess.Popen([desktop.WINE, "cmd"], stdin=subprocess.PIPE, env=screen.environment,
                          stdout=subprocess.DEVNULL) as keeper:
        result = unittest.main(argv=sys.argv[:1] + sys.argv[4:], exit=False, verbosity=2).result
        keeper.stdin.close()
    subprocess.run([desktop.WINE, "--end"], check=True)
    screen.close()
    print(f"{result.testsRun - len(result.failures) - len(result.errors)} of {result.testsRun} "
          "tests of the packed programs passed")
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
