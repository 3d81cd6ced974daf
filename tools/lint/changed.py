#!/usr/bin/env python3
"""The sources that the linters have to look at: of those named on standard input, one a line, each
whose content, headers of this tree, command, settings or tools are not those of its last silent
look. Printed as "KEY SOURCE"; a look that found nothing leaves the file FOLDER/silent/KEY.
Usage: changed.py FOLDER SETTINGS..., FOLDER with compile_commands.json."""

import functools
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

INCLUDE = re.compile(rb'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
TOOLS = ("clang-tidy", "clazy-standalone")


@functools.cache
def included(name, folders):
    """The headers of this tree that the file itself includes."""
    found = []
    for header in INCLUDE.findall(pathlib.Path(name).read_bytes()):
        for folder in (os.path.dirname(name), *folders):
            path = os.path.normpath(os.path.join(folder, header.decode()))
            if os.path.isfile(path):
                found.append(path)
                break
    return found


def read_by(source, folders):
    """The source and all headers of this tree that it includes, directly or not."""
    seen, ahead = {source}, [source]
    while ahead:
        new = set(included(ahead.pop(), folders)) - seen
        seen |= new
        ahead += new
    return sorted(seen)


@functools.cache
def digest(name):
    return hashlib.sha256(pathlib.Path(name).read_bytes()).hexdigest()


def key(source, command, same_for_all):
    # The precompiled header is built anew when a system header changes.
    headers = re.findall(r"-include-pch -Xclang (\S+)", command)
    folders = tuple(os.path.relpath(path) for path in re.findall(r"-I(\S+)", command))
    parts = [same_for_all, command, *(str(os.stat(header).st_mtime_ns) for header in headers),
             *(f"{name} {digest(name)}" for name in read_by(source, folders))]
    return hashlib.sha256("\n".join(parts).encode()).hexdigest()


def main():
    folder, *settings = sys.argv[1:]
    versions = [subprocess.check_output([tool, "--version"], text=True) for tool in TOOLS]
    same_for_all = "\n".join(versions + [digest(name) for name in settings])
    commands = json.loads((pathlib.Path(folder) / "compile_commands.json").read_text())
    commands = {os.path.relpath(entry["file"]): entry["command"] for entry in commands}
    for source in sys.stdin.read().split():
        name = key(source, commands[source], same_for_all)
        if not (pathlib.Path(folder) / "silent" / name).exists():
            print(name, source)


main()
