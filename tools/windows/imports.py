#!/usr/bin/env python3
"""What the programs and libraries of a folder import stands there or in the system:
imports.py FOLDER SYSTEM_DLLS"""

import pathlib
import subprocess
import sys

MARK = "DLL Name:"


def imports_of(file):
    listed = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", file], capture_output=True,
                            text=True, check=True).stdout
    return {line.split(MARK)[1].strip().lower() for line in listed.splitlines() if MARK in line}


def problems(folder, system):
    """One line for each DLL that nobody has, and one for each that stands there for nobody."""
    files = [file for file in folder.rglob("*") if file.suffix in (".exe", ".dll")]
    here = {file.name.lower() for file in folder.iterdir() if file.suffix == ".dll"}
    said = [] if files else [f"{folder}: no programs"]
    wanted = set()
    for file in sorted(files):
        imported = imports_of(file)
        wanted |= imported
        said += [f"{file.name}: {name} is neither here nor of the system"
                 for name in sorted(imported - here - system)]
    return said + [f"{name}: nothing here needs it" for name in sorted(here - wanted)]


def main():
    folder, listed = (pathlib.Path(argument) for argument in sys.argv[1:])
    lines = (line.split("#")[0].strip() for line in listed.read_text().splitlines())
    said = problems(folder, {line.lower() for line in lines if line})
    print("\n".join(said), file=sys.stderr)
    return 1 if said else 0


if __name__ == "__main__":
    sys.exit(main())
